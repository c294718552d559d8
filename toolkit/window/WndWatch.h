// Whether the object of a window is still there after a call that may have ended it.
#pragma once

#include <afxwin.h>

// Watches the object of a window. A call that reaches other code, such as a message sent or a focus moved,
// may end the object; whoever made the call must then not touch it again. For the thread of the window.
class ZEB17_EXPORT CWndWatch
{
public:
    explicit CWndWatch(const CWnd& wnd);
    ~CWndWatch();
    CWndWatch(const CWndWatch&) = delete;
    CWndWatch& operator=(const CWndWatch&) = delete;

    // False once the object has ended.
    bool IsAlive() const { return m_pWnd; }

private:
    friend class CWnd;

    // Tells all that watch the object of its end.
    static void End(const CWnd& wnd);

    const CWnd* m_pWnd;
    CWndWatch* m_pNext; // another that watches the same object
};

// Takes the steps of an operation in their order, for as long as the object is alive. False if it ended
// before the last step was done, or in that step.
template <class... Step>
bool WhileAlive(const CWnd& wnd, Step... step)
{
    const CWndWatch watch(wnd);
    return ((step(), watch.IsAlive()) && ...);
}

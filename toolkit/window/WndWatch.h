// Whether the object of a window is still there after a call that may have ended it.
#pragma once

#include <afxwin.h>

/// Watches the object of a window while a call runs that reaches other code: a message sent, a focus moved. That code
/// may delete the object, and whoever made the call must then not touch it again.
///
/// Lives on the stack, on the thread of the window; watches of one object end in the reverse order of their making.
class ZEB17_EXPORT CWndWatch
{
public:
    explicit CWndWatch(const CWnd& wnd);
    ~CWndWatch();
    CWndWatch(const CWndWatch&) = delete;
    CWndWatch& operator=(const CWndWatch&) = delete;

    /// False once the destructor of CWnd has run for the object.
    bool IsAlive() const { return m_pWnd != nullptr; }

private:
    friend class CWnd;

    const CWnd* m_pWnd;
    CWndWatch* m_pOuter; // the watch of the same object that was made before this one
};

/// Takes the steps of an operation in their order, for as long as the object is alive. False if it ended before the
/// last step was done or in that step.
template <class... Step>
bool WhileAlive(const CWnd& wnd, Step... step)
{
    const CWndWatch watch(wnd);
    return ((step(), watch.IsAlive()) && ...);
}

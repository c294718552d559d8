// Tells whether the object of a window is still there after a call that may have deleted it.
#pragma once

#include <afxwin.h>

// Watches the object of a window. A call that runs other code, such as sending a message or moving the focus,
// may delete the object; the caller must then not touch the object again. To be used on the window's thread.
class ZEB17_EXPORT CWndWatch
{
public:
    explicit CWndWatch(const CWnd& wnd);
    ~CWndWatch();
    CWndWatch(const CWndWatch&) = delete;
    CWndWatch& operator=(const CWndWatch&) = delete;

    // False once the object is deleted.
    bool IsAlive() const { return m_pWnd; }

private:
    friend class CWnd;

    // Tells all watches of the object that it is deleted.
    static void End(const CWnd& wnd);

    const CWnd* m_pWnd;
    CWndWatch* m_pNext; // the next watch of the same object
};

// Takes the steps of an operation one after the other, and stops when a step has deleted the object. False if
// a step did, even the last one.
template <class... Step>
bool WhileAlive(const CWnd& wnd, Step... step)
{
    const CWndWatch watch(wnd);
    return ((step(), watch.IsAlive()) && ...);
}

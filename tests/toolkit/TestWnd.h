// Windows that the tests of the toolkit share.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <string>
#include <vector>

using Log = std::vector<std::string>;

// A plain top-level window, not shown unless asked for.
class TestFrame : public CWnd
{
public:
    explicit TestFrame(DWORD style = WS_POPUP)
    {
        CreateEx(0, AfxRegisterWndClass(0), "frame", style, CRect(20, 20, 320, 220), nullptr, 0);
    }
};

// Creates a window of the object in the parent, at (10, 10) and 50 by 30 in size.
template <class Window>
bool CreateChild(Window& window, CWnd& parent, UINT id)
{
    return window.CreateEx(0, AfxRegisterWndClass(0), "child", WS_CHILD | WS_VISIBLE, CRect(10, 10, 60, 40),
                           &parent, id);
}

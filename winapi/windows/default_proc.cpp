// What winapi does with the messages of a window that the window does not handle itself.
#include "focus.h"
#include "geometry.h"
#include "host_widget.h"
#include "keyboard.h"
#include "mouse.h"
#include "oleacc.h"
#include "placement.h"
#include "rooms_above.h"
#include "system_colors.h"

#include <cstring>

using namespace winapi;

namespace {

constexpr WPARAM kSystemCommand = 0xFFF0; // the lowest four bits are the system's own

void takeText(Window& window, const char* text)
{
    window.text = text ? text : "";
    if (window.isTopLevel())
        followWindow(window, false);
}

LRESULT giveText(const Window& window, WPARAM size, LPARAM buffer)
{
    if (size == 0)
        return 0;
    auto* const target = reinterpret_cast<LPSTR>(buffer);
    lstrcpynA(target, window.text.c_str(), static_cast<int>(size));
    return static_cast<LRESULT>(std::strlen(target));
}

void tellPlacing(const Window& window, const WINDOWPOS& pos)
{
    const WPARAM state = window.is(WS_MAXIMIZE)   ? SIZE_MAXIMIZED
                         : window.is(WS_MINIMIZE) ? SIZE_MINIMIZED
                                                  : SIZE_RESTORED;
    if (!(pos.flags & kNoClientMove))
        SendMessageA(pos.hwnd, WM_MOVE, 0, toLParam(window.rect.topLeft()));
    if (!(pos.flags & kNoClientSize) && isAlive(window))
        SendMessageA(pos.hwnd, WM_SIZE, state, toLParam(window.rect.size()));
}

LRESULT erase(const Window& window, HDC dc)
{
    const HBRUSH brush = window.windowClass->info.hbrBackground;
    if (!brush)
        return FALSE;
    const RECT area = toRect(window.clientRect());
    FillRect(dc, &area, brush);
    return TRUE;
}

// A parent may set the cursor for its children.
LRESULT setCursor(const Window& window, WPARAM wParam, LPARAM lParam)
{
    if (window.is(WS_CHILD) && SendMessageA(window.parent->handle, WM_SETCURSOR, wParam, lParam))
        return TRUE;
    if (reinterpret_cast<HWND>(wParam) != window.handle || static_cast<short>(LOWORD(lParam)) != HTCLIENT)
        return FALSE;
    if (const HCURSOR cursor = window.windowClass->info.hCursor)
        SetCursor(cursor);
    return FALSE;
}

LRESULT mouseActivate(const Window& window, WPARAM wParam, LPARAM lParam)
{
    return window.is(WS_CHILD) ? SendMessageA(window.parent->handle, WM_MOUSEACTIVATE, wParam, lParam)
                               : MA_ACTIVATE;
}

// Tab in a window that stands in a Qt application: the application's next widget gets the keyboard.
void leaveEmbedded(const Window& window, WPARAM key)
{
    if (key == VK_TAB && window.isTopLevel() && window.host && window.host->isEmbedded())
        window.host->passFocus(!isDown(VK_SHIFT));
}

void validateByPainting(HWND handle)
{
    PAINTSTRUCT paint;
    BeginPaint(handle, &paint);
    EndPaint(handle, &paint);
}

LRESULT toParent(const Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return window.is(WS_CHILD) ? SendMessageA(window.parent->handle, message, wParam, lParam) : 0;
}

}

LRESULT DefWindowProcA(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    switch (message) {
    case WM_NCCREATE:
        takeText(*window, reinterpret_cast<CREATESTRUCTA*>(lParam)->lpszName);
        return TRUE;
    case WM_SETTEXT:
        takeText(*window, reinterpret_cast<LPCSTR>(lParam));
        NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, handle, OBJID_CLIENT, CHILDID_SELF);
        return TRUE;
    case WM_GETTEXT:
        return giveText(*window, wParam, lParam);
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(window->text.size());
    case WM_WINDOWPOSCHANGED:
        tellPlacing(*window, *reinterpret_cast<WINDOWPOS*>(lParam));
        return 0;
    case WM_NCACTIVATE:
        return TRUE;
    case WM_ACTIVATE:
        if (LOWORD(wParam) != WA_INACTIVE)
            SetFocus(handle);
        return 0;
    case WM_MOUSEACTIVATE:
        return mouseActivate(*window, wParam, lParam);
    case WM_CANCELMODE:
        endMenu();
        releaseCapture(handle);
        return 0;
    case WM_SETCURSOR:
        return setCursor(*window, wParam, lParam);
    case WM_ERASEBKGND:
        return erase(*window, reinterpret_cast<HDC>(wParam));
    case WM_PAINT:
        validateByPainting(handle);
        return 0;
    case WM_KEYDOWN:
        leaveEmbedded(*window, wParam);
        return 0;
    case WM_SYSKEYDOWN:
        if (wParam == VK_F4 && (HIWORD(lParam) & KF_ALTDOWN))
            PostMessageA(GetAncestor(handle, GA_ROOT), WM_SYSCOMMAND, SC_CLOSE, 0);
        return 0;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL:
    case WM_CONTEXTMENU:
        return toParent(*window, message, wParam, lParam);
    case WM_RBUTTONUP: {
        POINT place{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
        ClientToScreen(handle, &place);
        SendMessageA(handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle), MAKELPARAM(place.x, place.y));
        return 0;
    }
    case WM_SYSCOMMAND:
        if ((wParam & kSystemCommand) == SC_CLOSE)
            SendMessageA(handle, WM_CLOSE, 0, 0);
        return 0;
    case WM_CLOSE:
        DestroyWindow(handle);
        return 0;
    default:
        return 0;
    }
}

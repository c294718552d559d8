// What can be asked of a window and set: its style, its procedure and its text.
#include "window.h"

using namespace winapi;

namespace {

LONG_PTR changeStyle(Window& window, DWORD value)
{
    const HWND handle = window.handle;
    STYLESTRUCT change{window.style, value};
    SendMessageA(handle, WM_STYLECHANGING, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&change));
    window.style = change.styleNew;
    SendMessageA(handle, WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE), reinterpret_cast<LPARAM>(&change));
    return static_cast<LONG>(change.styleOld);
}

LONG_PTR refuseIndex()
{
    SetLastError(ERROR_INVALID_INDEX);
    return 0;
}

}

LONG_PTR GetWindowLongPtrA(HWND handle, int index)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    switch (index) {
    case GWL_STYLE:
        return static_cast<LONG>(window->style);
    case GWL_EXSTYLE:
        return static_cast<LONG>(window->exStyle);
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(window->procedure);
    default:
        return refuseIndex();
    }
}

LONG_PTR SetWindowLongPtrA(HWND handle, int index, LONG_PTR value)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    switch (index) {
    case GWL_STYLE:
        return changeStyle(*window, static_cast<DWORD>(value));
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(std::exchange(window->procedure, reinterpret_cast<WNDPROC>(value)));
    default:
        return refuseIndex();
    }
}

LONG GetWindowLongA(HWND handle, int index)
{
    return static_cast<LONG>(GetWindowLongPtrA(handle, index));
}

BOOL SetWindowTextA(HWND window, LPCSTR text)
{
    return findWindow(window) && SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
}

int GetWindowTextA(HWND window, LPSTR buffer, int size)
{
    if (!buffer || size <= 0)
        return 0;
    buffer[0] = '\0';
    if (!findWindow(window))
        return 0;
    return static_cast<int>(
        SendMessageA(window, WM_GETTEXT, static_cast<WPARAM>(size), reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND window)
{
    return findWindow(window) ? static_cast<int>(SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) : 0;
}

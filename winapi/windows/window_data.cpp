// What can be asked of a window and set: styles, procedures, ids, user data, text.
#include "window.h"

#include "host_widget.h"

#include <cstring>

using namespace winapi;

namespace {

// Where the value of a negative index lives; null for the ones that have their own rules.
LONG_PTR* valueAt(Window& window, int index)
{
    switch (index) {
    case GWLP_ID:
        return &window.id;
    case GWLP_USERDATA:
        return &window.userData;
    default:
        return nullptr;
    }
}

bool isExtra(const Window& window, int index, std::size_t size)
{
    return index >= 0 && index + size <= window.extra.size();
}

template <class Value>
Value exchangeExtra(Window& window, int index, const Value* newValue)
{
    Value old{};
    if (!isExtra(window, index, sizeof old)) {
        SetLastError(ERROR_INVALID_INDEX);
        return old;
    }
    std::memcpy(&old, window.extra.data() + index, sizeof old);
    if (newValue)
        std::memcpy(window.extra.data() + index, newValue, sizeof old);
    return old;
}

LONG_PTR changeStyle(Window& window, int index, DWORD value)
{
    DWORD& style = index == GWL_STYLE ? window.style : window.exStyle;
    const HWND handle = window.handle;
    STYLESTRUCT change{style, value};
    SendMessageA(handle, WM_STYLECHANGING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    style = change.styleNew;
    SendMessageA(handle, WM_STYLECHANGED, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&change));
    return static_cast<LONG>(change.styleOld);
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
    case GWLP_HINSTANCE:
        return reinterpret_cast<LONG_PTR>(window->instance);
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(window->isTopLevel() ? window->owner : GetParent(handle));
    default:
        break;
    }
    const LONG_PTR* value = valueAt(*window, index);
    return value ? *value : exchangeExtra<LONG_PTR>(*window, index, nullptr);
}

LONG_PTR SetWindowLongPtrA(HWND handle, int index, LONG_PTR value)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    switch (index) {
    case GWL_STYLE:
    case GWL_EXSTYLE:
        return changeStyle(*window, index, static_cast<DWORD>(value));
    case GWLP_WNDPROC:
        return reinterpret_cast<LONG_PTR>(std::exchange(window->procedure, reinterpret_cast<WNDPROC>(value)));
    case GWLP_HWNDPARENT:
        return reinterpret_cast<LONG_PTR>(std::exchange(window->owner, reinterpret_cast<HWND>(value)));
    default:
        break;
    }
    if (LONG_PTR* const place = valueAt(*window, index))
        return std::exchange(*place, value);
    return exchangeExtra(*window, index, &value);
}

LONG GetWindowLongA(HWND handle, int index)
{
    if (index < 0)
        return static_cast<LONG>(GetWindowLongPtrA(handle, index));
    const WindowPtr window = findWindow(handle);
    return window ? exchangeExtra<LONG>(*window, index, nullptr) : 0;
}

LONG SetWindowLongA(HWND handle, int index, LONG value)
{
    if (index < 0)
        return static_cast<LONG>(SetWindowLongPtrA(handle, index, value));
    const WindowPtr window = findWindow(handle);
    return window ? exchangeExtra(*window, index, &value) : 0;
}

ULONG_PTR GetClassLongPtrA(HWND handle, int index)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    switch (index) {
    case GCL_STYLE:
        return window->windowClass->info.style;
    case GCLP_HBRBACKGROUND:
        return reinterpret_cast<ULONG_PTR>(window->windowClass->info.hbrBackground);
    case GCLP_HCURSOR:
        return reinterpret_cast<ULONG_PTR>(window->windowClass->info.hCursor);
    default:
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
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

BOOL SetDlgItemTextA(HWND parent, int id, LPCSTR text)
{
    return SetWindowTextA(GetDlgItem(parent, id), text);
}

UINT GetDlgItemTextA(HWND parent, int id, LPSTR buffer, int size)
{
    return static_cast<UINT>(GetWindowTextA(GetDlgItem(parent, id), buffer, size));
}

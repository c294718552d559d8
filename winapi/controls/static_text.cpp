// The label.
#include "static_text.h"

#include "control.h"
#include "geometry.h"
#include "window_class.h"

namespace winapi {

namespace {

struct StaticState : ControlState
{
    HFONT font = nullptr;
};

UINT formatFor(DWORD style)
{
    UINT format = 0;
    switch (style & 0x1Fu) {
    case SS_CENTER:
        format |= DT_CENTER | DT_WORDBREAK;
        break;
    case SS_RIGHT:
        format |= DT_RIGHT | DT_WORDBREAK;
        break;
    case SS_SIMPLE:
    case SS_LEFTNOWORDWRAP:
        format |= DT_LEFT;
        break;
    default:
        format |= DT_LEFT | DT_WORDBREAK;
        break;
    }
    if (style & SS_NOPREFIX)
        format |= DT_NOPREFIX;
    if (style & SS_CENTERIMAGE)
        format = (format & ~static_cast<UINT>(DT_WORDBREAK)) | DT_SINGLELINE | DT_VCENTER;
    return format;
}

void paint(const Window& window, HFONT font)
{
    const ControlPaint context(window.handle, font);
    fillByParent(window, context.dc(), WM_CTLCOLORSTATIC);
    if (!window.isEnabled())
        SetTextColor(context.dc(), GetSysColor(COLOR_GRAYTEXT));
    RECT rect = toRect(window.clientRect());
    DrawTextA(context.dc(), window.text.c_str(), -1, &rect, formatFor(window.style));
}

LRESULT staticProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    if (!window->control)
        window->control = std::make_unique<StaticState>();
    HFONT& font = static_cast<StaticState&>(*window->control).font;
    switch (message) {
    case WM_PAINT:
        paint(*window, font);
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_NCHITTEST:
        return window->is(SS_NOTIFY) ? HTCLIENT : HTTRANSPARENT;
    case WM_SETTEXT:
    case WM_ENABLE: {
        const LRESULT result = DefWindowProcA(handle, message, wParam, lParam);
        InvalidateRect(handle, nullptr, TRUE);
        return result;
    }
    case WM_SETFONT:
        font = reinterpret_cast<HFONT>(wParam);
        if (LOWORD(lParam))
            InvalidateRect(handle, nullptr, TRUE);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_STATIC;
    default:
        return DefWindowProcA(handle, message, wParam, lParam);
    }
}

}

void registerStaticClass()
{
    registerSystemClass("Static", staticProcedure, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, IDC_ARROW);
}

}

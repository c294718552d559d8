// The button: drawn by its owner, or a plain push button.
#include "button.h"

#include "control.h"
#include "focus.h"
#include "geometry.h"
#include "system_colors.h"
#include "window_class.h"

namespace winapi {

namespace {

constexpr DWORD kButtonStyles = 0xFFFF; // the bits of a style that say what only a button understands

struct ButtonState : ControlState
{
    HFONT font = nullptr;
    bool focused = false;
    bool pushed = false; // looks pressed
    bool held = false;   // the mouse button or the space key is down, wherever the pointer is
};

class Button : public Control<ButtonState>
{
public:
    using Control::Control;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    DWORD type() const { return m_window.style & BS_TYPEMASK; }
    bool isOwnerDrawn() const { return type() == BS_OWNERDRAW; }
    LRESULT otherwise(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return DefWindowProcA(hwnd(), message, wParam, lParam);
    }

    void redraw(UINT action);
    void drawItem(HDC dc, UINT action);
    void paint();
    void paintPush(HDC dc, RECT rect);

    void setPushed(bool pushed);
    void hold();
    void follow(LPARAM point);
    void letGo(bool inside);
    void setFocused(bool focused);
    void loseFocus();
    void loseCapture();
    LRESULT dialogCode() const;
    bool contains(LPARAM point) const
    {
        return m_window.clientRect().contains(GET_X_LPARAM(point), GET_Y_LPARAM(point));
    }
};

LRESULT Button::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_LBUTTONDBLCLK:
        if (isOwnerDrawn()) {
            notifyCommand(m_window, BN_DOUBLECLICKED);
            return 0;
        }
        [[fallthrough]];
    case WM_LBUTTONDOWN:
        SetFocus(hwnd());
        hold();
        return 0;
    case WM_MOUSEMOVE:
        follow(lParam);
        return 0;
    case WM_LBUTTONUP:
        letGo(contains(lParam));
        return 0;
    case WM_KEYDOWN:
        if (wParam != VK_SPACE)
            return otherwise(message, wParam, lParam);
        hold();
        return 0;
    case WM_KEYUP:
        if (wParam != VK_SPACE)
            return otherwise(message, wParam, lParam);
        letGo(true);
        return 0;
    case WM_CAPTURECHANGED:
        loseCapture();
        return 0;
    case WM_SETFOCUS:
        setFocused(true);
        return 0;
    case WM_KILLFOCUS:
        loseFocus();
        return 0;
    case WM_ENABLE:
        redraw(ODA_DRAWENTIRE);
        return 0;
    case WM_SETTEXT: {
        const LRESULT result = otherwise(message, wParam, lParam);
        redraw(ODA_DRAWENTIRE);
        return result;
    }
    case WM_SETFONT:
        m_state.font = reinterpret_cast<HFONT>(wParam);
        if (LOWORD(lParam))
            InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    case WM_GETDLGCODE:
        return dialogCode();
    case BM_SETSTATE:
        setPushed(wParam);
        return 0;
    case BM_SETSTYLE:
        m_window.style = (m_window.style & ~kButtonStyles) | LOWORD(wParam);
        if (LOWORD(lParam))
            InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    case BM_CLICK: {
        const HWND self = hwnd();
        SendMessageA(self, WM_LBUTTONDOWN, 0, 0);
        SendMessageA(self, WM_LBUTTONUP, 0, 0);
        return 0;
    }
    default:
        return otherwise(message, wParam, lParam);
    }
}

// An owner draws at once; a plain button waits for WM_PAINT.
void Button::redraw(UINT action)
{
    if (!m_window.isVisible())
        return;
    if (!isOwnerDrawn()) {
        InvalidateRect(hwnd(), nullptr, FALSE);
        return;
    }
    const ControlContext context(hwnd(), m_state.font);
    drawItem(context.dc(), action);
}

void Button::drawItem(HDC dc, UINT action)
{
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.CtlID = static_cast<UINT>(m_window.id);
    item.itemAction = action;
    item.itemState = (m_state.pushed ? ODS_SELECTED : 0) | (m_state.focused ? ODS_FOCUS : 0) |
                     (m_window.isEnabled() ? 0 : ODS_DISABLED);
    item.hwndItem = hwnd();
    item.hDC = dc;
    item.rcItem = toRect(m_window.clientRect());
    SendMessageA(m_window.parent->handle, WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void Button::paint()
{
    const ControlPaint context(hwnd(), m_state.font);
    const RECT rect = toRect(m_window.clientRect());
    if (isOwnerDrawn())
        drawItem(context.dc(), ODA_DRAWENTIRE);
    else
        paintPush(context.dc(), rect);
}

void Button::paintPush(HDC dc, RECT rect)
{
    FillRect(dc, &rect, systemBrush(m_state.pushed ? COLOR_3DLIGHT : COLOR_BTNFACE));
    FrameRect(dc, &rect, systemBrush(COLOR_BTNSHADOW));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(m_window.isEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextA(dc, m_window.text.c_str(), -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if (!m_state.focused)
        return;
    constexpr int kFocusInset = 3;
    rect = toRect(toQRect(rect).adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset));
    DrawFocusRect(dc, &rect);
}

void Button::setPushed(bool pushed)
{
    m_state.pushed = pushed;
    redraw(ODA_SELECT);
}

void Button::hold()
{
    if (m_state.held)
        return;
    setCapture(hwnd());
    m_state.held = true;
    SendMessageA(hwnd(), BM_SETSTATE, TRUE, 0);
}

void Button::follow(LPARAM point)
{
    if (m_state.held && captureHolder() == hwnd() && contains(point) != m_state.pushed)
        SendMessageA(hwnd(), BM_SETSTATE, contains(point), 0);
}

void Button::letGo(bool inside)
{
    if (!m_state.held)
        return;
    m_state.held = false;
    SendMessageA(hwnd(), BM_SETSTATE, FALSE, 0);
    releaseCapture(hwnd());
    if (inside && isAlive(m_window))
        notifyCommand(m_window, BN_CLICKED);
}

void Button::setFocused(bool focused)
{
    m_state.focused = focused;
    redraw(ODA_FOCUS);
}

void Button::loseFocus()
{
    setFocused(false);
    releaseCapture(hwnd());
    if (isAlive(m_window))
        InvalidateRect(hwnd(), nullptr, FALSE);
}

void Button::loseCapture()
{
    m_state.held = false;
    if (m_state.pushed)
        SendMessageA(hwnd(), BM_SETSTATE, FALSE, 0);
}

LRESULT Button::dialogCode() const
{
    switch (type()) {
    case BS_PUSHBUTTON:
        return DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    case BS_DEFPUSHBUTTON:
        return DLGC_BUTTON | DLGC_DEFPUSHBUTTON;
    default:
        return DLGC_BUTTON;
    }
}

LRESULT buttonProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    if (!window->control)
        window->control = std::make_unique<ButtonState>();
    return Button(*window, static_cast<ButtonState&>(*window->control)).handle(message, wParam, lParam);
}

}

void registerButtonClass()
{
    registerSystemClass("Button", buttonProcedure, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, IDC_ARROW);
}

}

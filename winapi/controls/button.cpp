// The button: drawn by its owner, or a plain push button, check box or frame of a group.
#include "button.h"

#include "control.h"
#include "geometry.h"
#include "window_class.h"

#include <algorithm>
#include <iterator>

namespace winapi {

namespace {

struct ButtonState : ControlState
{
    HFONT font = nullptr;
    WPARAM check = BST_UNCHECKED;
    bool focused = false;
    bool pushed = false; // looks pressed
    bool held = false;   // by the mouse or the space key, wherever the pointer is
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
    void paintCheck(HDC dc, RECT rect);
    void paintGroup(HDC dc, RECT rect);
    void drawMark(HDC dc, const RECT& rect, int color, int frameColor);
    void drawTick(HDC dc, const RECT& box);
    void drawLabel(HDC dc, RECT rect, UINT format);

    void setPushed(bool pushed);
    void hold();
    void follow(LPARAM point);
    void letGo(bool inside);
    void click();
    void checkAlone();
    bool isRadio() const { return type() == BS_RADIOBUTTON || type() == BS_AUTORADIOBUTTON; }
    void gainFocus();
    void loseFocus();
    void loseCapture();
    LRESULT dialogCode() const;
    LRESULT stateBits() const;
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
    case WM_NCHITTEST:
        return type() == BS_GROUPBOX ? HTTRANSPARENT : otherwise(message, wParam, lParam);
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
        gainFocus();
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
    case WM_GETFONT:
        return reinterpret_cast<LRESULT>(m_state.font);
    case WM_GETDLGCODE:
        return dialogCode();
    case BM_SETSTATE:
        setPushed(wParam);
        return 0;
    case BM_GETSTATE:
        return stateBits();
    case BM_SETSTYLE:
        m_window.style = (m_window.style & ~0xFFFFu) | LOWORD(wParam);
        if (LOWORD(lParam))
            InvalidateRect(hwnd(), nullptr, TRUE);
        return 0;
    case BM_GETCHECK:
        return static_cast<LRESULT>(m_state.check);
    case BM_SETCHECK:
        m_state.check = wParam;
        redraw(ODA_DRAWENTIRE);
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

// An owner draws at once; the plain kinds wait for WM_PAINT.
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
    switch (type()) {
    case BS_OWNERDRAW:
        drawItem(context.dc(), ODA_DRAWENTIRE);
        return;
    case BS_GROUPBOX:
        paintGroup(context.dc(), rect);
        return;
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
        paintPush(context.dc(), rect);
        return;
    default:
        paintCheck(context.dc(), rect);
        return;
    }
}

void Button::drawLabel(HDC dc, RECT rect, UINT format)
{
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(m_window.isEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextA(dc, m_window.text.c_str(), -1, &rect, format | DT_SINGLELINE);
}

void Button::paintPush(HDC dc, RECT rect)
{
    FillRect(dc, &rect, GetSysColorBrush(m_state.pushed ? COLOR_3DLIGHT : COLOR_BTNFACE));
    FrameRect(dc, &rect, GetSysColorBrush(COLOR_BTNSHADOW));
    drawLabel(dc, rect, DT_CENTER | DT_VCENTER);
    if (!m_state.focused)
        return;
    InflateRect(&rect, -3, -3);
    DrawFocusRect(dc, &rect);
}

void Button::paintCheck(HDC dc, RECT rect)
{
    constexpr int boxSize = 13;
    constexpr int gap = 4;
    fillByParent(m_window, dc, WM_CTLCOLORSTATIC);
    RECT box = rect;
    box.top += (rect.bottom - rect.top - boxSize) / 2;
    box.right = box.left + boxSize;
    box.bottom = box.top + boxSize;
    drawMark(dc, box, COLOR_WINDOW, COLOR_BTNSHADOW);
    if (m_state.check != BST_UNCHECKED) {
        if (isRadio()) {
            InflateRect(&box, -3, -3);
            drawMark(dc, box, COLOR_BTNTEXT, COLOR_BTNTEXT);
        } else {
            drawTick(dc, box);
        }
    }
    rect.left += boxSize + gap;
    drawLabel(dc, rect, DT_LEFT | DT_VCENTER);
    if (m_state.focused)
        DrawFocusRect(dc, &rect);
}

// Round for a radio button, square for a check box.
void Button::drawMark(HDC dc, const RECT& rect, int color, int frameColor)
{
    if (!isRadio()) {
        FillRect(dc, &rect, GetSysColorBrush(color));
        FrameRect(dc, &rect, GetSysColorBrush(frameColor));
        return;
    }
    const HPEN pen = CreatePen(PS_SOLID, 1, GetSysColor(frameColor));
    const HGDIOBJ oldPen = SelectObject(dc, pen);
    const HGDIOBJ oldBrush = SelectObject(dc, GetSysColorBrush(color));
    Ellipse(dc, rect.left, rect.top, rect.right, rect.bottom);
    SelectObject(dc, oldBrush);
    DeleteObject(SelectObject(dc, oldPen));
}

void Button::drawTick(HDC dc, const RECT& box)
{
    const POINT corners[] = {
        {box.left + 3, box.top + 6}, {box.left + 5, box.top + 9}, {box.left + 10, box.top + 3}};
    const HGDIOBJ oldPen = SelectObject(dc, CreatePen(PS_SOLID, 2, GetSysColor(COLOR_BTNTEXT)));
    Polyline(dc, corners, static_cast<int>(std::size(corners)));
    DeleteObject(SelectObject(dc, oldPen));
}

void Button::paintGroup(HDC dc, RECT rect)
{
    constexpr int indent = 8;
    RECT label = rect;
    label.left += indent;
    DrawTextA(dc, m_window.text.c_str(), -1, &label, DT_CALCRECT | DT_SINGLELINE);
    rect.top += (label.bottom - label.top) / 2;
    FrameRect(dc, &rect, GetSysColorBrush(COLOR_BTNSHADOW));
    FillRect(dc, &label, GetSysColorBrush(COLOR_BTNFACE));
    drawLabel(dc, label, DT_LEFT);
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
    SetCapture(hwnd());
    m_state.held = true;
    SendMessageA(hwnd(), BM_SETSTATE, TRUE, 0);
}

void Button::follow(LPARAM point)
{
    if (m_state.held && GetCapture() == hwnd() && contains(point) != m_state.pushed)
        SendMessageA(hwnd(), BM_SETSTATE, contains(point), 0);
}

void Button::letGo(bool inside)
{
    if (!m_state.held)
        return;
    m_state.held = false;
    SendMessageA(hwnd(), BM_SETSTATE, FALSE, 0);
    if (GetCapture() == hwnd())
        ReleaseCapture();
    if (inside && isAlive(m_window))
        click();
}

void Button::click()
{
    if (type() == BS_AUTOCHECKBOX) {
        m_state.check = m_state.check == BST_CHECKED ? BST_UNCHECKED : BST_CHECKED;
        redraw(ODA_DRAWENTIRE);
    }
    if (type() == BS_AUTORADIOBUTTON)
        checkAlone();
    notifyCommand(m_window, BN_CLICKED);
}

// Of its group, which reaches from one control with WS_GROUP to the next.
void Button::checkAlone()
{
    const auto& siblings = m_window.parent->children;
    const auto begins = [](const Window* sibling) { return sibling->is(WS_GROUP); };
    const auto self = std::find(siblings.begin(), siblings.end(), &m_window);
    const auto before = std::find_if(std::make_reverse_iterator(self + 1), siblings.rend(), begins);
    const auto first = before == siblings.rend() ? siblings.begin() : before.base() - 1;
    std::vector<HWND> group;
    std::transform(first, std::find_if(self + 1, siblings.end(), begins), std::back_inserter(group),
                   [](const Window* sibling) { return sibling->handle; });
    for (const HWND one : group) {
        if (SendMessageA(one, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON)
            SendMessageA(one, BM_SETCHECK, one == hwnd() ? BST_CHECKED : BST_UNCHECKED, 0);
    }
}

void Button::gainFocus()
{
    m_state.focused = true;
    redraw(ODA_FOCUS);
    if (m_window.is(BS_NOTIFY))
        notifyCommand(m_window, BN_SETFOCUS);
}

void Button::loseFocus()
{
    m_state.focused = false;
    redraw(ODA_FOCUS);
    if (GetCapture() == hwnd())
        ReleaseCapture();
    if (!isAlive(m_window))
        return;
    InvalidateRect(hwnd(), nullptr, FALSE);
    if (m_window.is(BS_NOTIFY))
        notifyCommand(m_window, BN_KILLFOCUS);
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
    case BS_GROUPBOX:
        return DLGC_STATIC;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
        return DLGC_BUTTON | DLGC_RADIOBUTTON;
    default:
        return DLGC_BUTTON;
    }
}

LRESULT Button::stateBits() const
{
    return static_cast<LRESULT>(m_state.check) | (m_state.pushed ? BST_PUSHED : 0) |
           (m_state.focused ? BST_FOCUS : 0);
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

// The list of rows, drawn by itself or by its owner.
#include "list_box.h"

#include "application.h"
#include "context.h"
#include "control.h"
#include "control_widget.h"
#include "focus.h"
#include "geometry.h"
#include "keyboard.h"
#include "system_colors.h"
#include "window_class.h"

#include <QScrollBar>

#include <algorithm>

namespace winapi {

namespace {

struct Item
{
    std::string text;
    LPARAM data = 0;
};

std::unique_ptr<QWidget> makeScrollBar(QPointer<QScrollBar>& made)
{
    application();
    auto bar = std::make_unique<QScrollBar>(Qt::Vertical);
    made = bar.get();
    return bar;
}

struct ListState : ControlState
{
    explicit ListState(const Window&) : widget(makeScrollBar(bar)) {}
    void follow(Window& window) override;

    std::vector<Item> items;
    int selected = LB_ERR;
    int rowHeight = 1;
    HFONT font = nullptr;
    bool focused = false;
    bool barHeld = false;     // the press at hand is the bar's
    QPointer<QScrollBar> bar; // its value is the row at the top
    ControlWidget widget;     // of the bar
};

QRect rowsArea(const Window& window)
{
    const bool framed = window.is(WS_BORDER) || (window.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    const int frame = framed ? 1 : 0;
    return window.clientRect().adjusted(frame, frame, -frame, -frame);
}

void ListState::follow(Window& window)
{
    if (!bar)
        return;
    const QRect area = rowsArea(window);
    const int page = std::max(1, area.height() / rowHeight);
    bar->setPageStep(page);
    bar->setRange(0, std::max(0, static_cast<int>(items.size()) - page));
    QRect place = area;
    place.setLeft(area.right() + 1 - bar->sizeHint().width());
    widget.follow(window, window.is(WS_VSCROLL) && bar->maximum() > 0 ? place : QRect());
}

class ListBox : public Control<ListState>
{
public:
    using Control::Control;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    bool isOwnerDrawn() const { return m_window.is(LBS_OWNERDRAWFIXED); }
    bool hasTexts() const { return !isOwnerDrawn() || m_window.is(LBS_HASSTRINGS); }
    int count() const { return static_cast<int>(m_state.items.size()); }
    bool isRow(WPARAM index) const { return index < m_state.items.size(); }
    Item& item(WPARAM index) { return m_state.items[index]; }
    int top() const { return m_state.bar ? m_state.bar->value() : 0; }

    LRESULT handleRows(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handleRow(UINT message, WPARAM index, LPARAM lParam);
    void create();
    void measure();
    void changed();

    LRESULT insert(int index, LPARAM textOrData);
    LRESULT remove(int index);
    LRESULT giveText(const Item& item, LPARAM buffer) const;
    LRESULT select(int index);
    void show(int index);
    QRect rows() const;
    QRect rowRect(int index) const;
    LRESULT itemFromPoint(LPARAM point) const;

    void paint();
    void drawRow(HDC dc, int index);
    void drawByOwner(HDC dc, int index, UINT state);

    bool onBar(LPARAM point) const;
    void press(UINT message, LPARAM lParam);
    void drag(UINT message, LPARAM lParam);
    void letGo(UINT message, LPARAM lParam);
    bool keyDown(WPARAM key);
    void setFocused(bool focused);
    void tell(WORD code);
};

LRESULT ListBox::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        create();
        return 0;
    case WM_SIZE:
    case WM_ENABLE:
        changed();
        return 0;
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SETFONT:
        m_state.font = reinterpret_cast<HFONT>(wParam);
        if (!isOwnerDrawn())
            measure();
        changed();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        setFocused(message == WM_SETFOCUS);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(message, lParam);
        return 0;
    case WM_MOUSEMOVE:
        drag(message, lParam);
        return 0;
    case WM_LBUTTONUP:
        letGo(message, lParam);
        return 0;
    case WM_MOUSEWHEEL:
        m_state.widget.sendWheel(wParam, lParam);
        return 0;
    case WM_KEYDOWN:
        return keyDown(wParam) ? 0 : DefWindowProcA(hwnd(), message, wParam, lParam);
    default:
        return handleRows(message, wParam, lParam);
    }
}

LRESULT ListBox::handleRows(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case LB_GETCOUNT:
        return count();
    case LB_GETCURSEL:
        return m_state.selected;
    case LB_SETCURSEL:
        return select(static_cast<int>(wParam));
    case LB_GETTOPINDEX:
        return top();
    case LB_GETITEMHEIGHT:
        return m_state.rowHeight;
    case LB_ITEMFROMPOINT:
        return itemFromPoint(lParam);
    case LB_ADDSTRING:
        return insert(count(), lParam);
    case LB_INSERTSTRING:
        return insert(static_cast<int>(wParam) < 0 ? count() : static_cast<int>(wParam), lParam);
    case LB_RESETCONTENT:
        m_state.items.clear();
        m_state.selected = LB_ERR;
        changed();
        return LB_OKAY;
    case LB_DELETESTRING:
    case LB_SETTOPINDEX:
    case LB_GETTEXT:
    case LB_GETTEXTLEN:
    case LB_GETITEMDATA:
    case LB_SETITEMDATA:
    case LB_GETITEMRECT:
        return isRow(wParam) ? handleRow(message, wParam, lParam) : LB_ERR;
    default:
        return DefWindowProcA(hwnd(), message, wParam, lParam);
    }
}

LRESULT ListBox::handleRow(UINT message, WPARAM index, LPARAM lParam)
{
    switch (message) {
    case LB_DELETESTRING:
        return remove(static_cast<int>(index));
    case LB_SETTOPINDEX:
        if (m_state.bar)
            m_state.bar->setValue(static_cast<int>(index));
        return LB_OKAY;
    case LB_GETTEXT:
        return giveText(item(index), lParam);
    case LB_GETTEXTLEN:
        return hasTexts() ? static_cast<LRESULT>(item(index).text.size()) : sizeof(ULONG_PTR);
    case LB_GETITEMDATA:
        return item(index).data;
    case LB_SETITEMDATA:
        item(index).data = lParam;
        return TRUE;
    default:
        *reinterpret_cast<RECT*>(lParam) = toRect(rowRect(static_cast<int>(index)));
        return TRUE;
    }
}

void ListBox::create()
{
    const HWND self = hwnd();
    QObject::connect(m_state.bar, &QScrollBar::valueChanged, [self] { InvalidateRect(self, nullptr, TRUE); });
    measure();
}

void ListBox::measure()
{
    TEXTMETRICA metrics{};
    GetTextMetricsA(ControlContext(hwnd(), m_state.font).dc(), &metrics);
    MEASUREITEMSTRUCT row{};
    row.CtlType = ODT_LISTBOX;
    row.CtlID = static_cast<UINT>(m_window.id);
    row.itemWidth = static_cast<UINT>(m_window.rect.width());
    row.itemHeight = static_cast<UINT>(metrics.tmHeight);
    if (isOwnerDrawn())
        SendMessageA(m_window.parent->handle, WM_MEASUREITEM, row.CtlID, reinterpret_cast<LPARAM>(&row));
    m_state.rowHeight = std::max(1, static_cast<int>(row.itemHeight));
}

void ListBox::changed()
{
    m_state.follow(m_window);
    InvalidateRect(hwnd(), nullptr, TRUE);
}

LRESULT ListBox::insert(int index, LPARAM textOrData)
{
    if (index > count())
        return LB_ERR;
    Item added;
    if (hasTexts())
        added.text = reinterpret_cast<LPCSTR>(textOrData);
    else
        added.data = textOrData;
    m_state.items.insert(m_state.items.begin() + index, std::move(added));
    if (m_state.selected >= index)
        ++m_state.selected;
    changed();
    return index;
}

LRESULT ListBox::remove(int index)
{
    m_state.items.erase(m_state.items.begin() + index);
    if (m_state.selected == index)
        m_state.selected = LB_ERR;
    else if (m_state.selected > index)
        --m_state.selected;
    changed();
    return count();
}

LRESULT ListBox::giveText(const Item& item, LPARAM buffer) const
{
    if (!hasTexts()) {
        *reinterpret_cast<LPARAM*>(buffer) = item.data;
        return sizeof item.data;
    }
    item.text.copy(reinterpret_cast<char*>(buffer), item.text.size());
    reinterpret_cast<char*>(buffer)[item.text.size()] = '\0';
    return static_cast<LRESULT>(item.text.size());
}

LRESULT ListBox::select(int index)
{
    const bool valid = index >= 0 && index < count();
    if (!valid && index != LB_ERR)
        return LB_ERR;
    m_state.selected = index;
    if (valid)
        show(index);
    InvalidateRect(hwnd(), nullptr, TRUE);
    return index;
}

void ListBox::show(int index)
{
    if (!m_state.bar)
        return;
    const int last = m_state.bar->pageStep() - 1;
    m_state.bar->setValue(std::clamp(top(), std::max(0, index - last), index));
}

// Where rows are drawn: left of the bar.
QRect ListBox::rows() const
{
    QRect area = rowsArea(m_window);
    if (m_state.bar && m_state.bar->maximum() > 0 && m_window.is(WS_VSCROLL))
        area.setRight(area.right() - m_state.bar->sizeHint().width());
    return area;
}

QRect ListBox::rowRect(int index) const
{
    QRect rect = rows();
    rect.moveTop(rect.top() + (index - top()) * m_state.rowHeight);
    rect.setHeight(m_state.rowHeight);
    return rect;
}

LRESULT ListBox::itemFromPoint(LPARAM point) const
{
    const QPoint place(GET_X_LPARAM(point), GET_Y_LPARAM(point));
    const int down = place.y() - rows().top();
    const int row = top() + (down < 0 ? -1 : down / m_state.rowHeight);
    const int nearest = std::clamp(row, 0, std::max(0, count() - 1));
    const bool inside = row == nearest && count() > 0 && m_window.clientRect().contains(place);
    return MAKELONG(nearest, !inside);
}

void ListBox::paint()
{
    const ControlPaint context(hwnd(), m_state.font);
    const RECT whole = toRect(m_window.clientRect());
    FillRect(context.dc(), &whole, systemBrush(COLOR_WINDOW));
    m_state.widget.paint(context.dc());
    if (rowsArea(m_window) != m_window.clientRect())
        FrameRect(context.dc(), &whole, systemBrush(COLOR_BTNSHADOW));
    const QRect area = rows();
    findContext(context.dc())->clipTo(area);
    for (int index = top(); index < count() && rowRect(index).top() <= area.bottom(); ++index)
        drawRow(context.dc(), index);
}

void ListBox::drawRow(HDC dc, int index)
{
    const bool selected = index == m_state.selected;
    const bool enabled = m_window.isEnabled();
    SetTextColor(dc, GetSysColor(!enabled   ? COLOR_GRAYTEXT
                                 : selected ? COLOR_HIGHLIGHTTEXT
                                            : COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (isOwnerDrawn()) {
        const bool focus = selected && m_state.focused;
        return drawByOwner(dc, index,
                           (selected ? ODS_SELECTED : 0) | (focus ? ODS_FOCUS : 0) |
                               (enabled ? 0 : ODS_DISABLED));
    }
    constexpr int margin = 2;
    RECT rect = toRect(rowRect(index));
    FillRect(dc, &rect, systemBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (selected && m_state.focused)
        DrawFocusRect(dc, &rect);
    rect.left += margin;
    DrawTextA(dc, m_state.items[static_cast<std::size_t>(index)].text.c_str(), -1, &rect,
              DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void ListBox::drawByOwner(HDC dc, int index, UINT state)
{
    DRAWITEMSTRUCT row{};
    row.CtlType = ODT_LISTBOX;
    row.CtlID = static_cast<UINT>(m_window.id);
    row.itemID = static_cast<UINT>(index);
    row.itemAction = ODA_DRAWENTIRE;
    row.itemState = state;
    row.hwndItem = hwnd();
    row.hDC = dc;
    row.rcItem = toRect(rowRect(index));
    row.itemData = static_cast<ULONG_PTR>(item(static_cast<WPARAM>(index)).data);
    SendMessageA(m_window.parent->handle, WM_DRAWITEM, row.CtlID, reinterpret_cast<LPARAM>(&row));
}

bool ListBox::onBar(LPARAM point) const
{
    return GET_X_LPARAM(point) > rows().right() && rows() != rowsArea(m_window);
}

void ListBox::press(UINT message, LPARAM lParam)
{
    const HWND self = hwnd();
    SetFocus(self);
    if (!IsWindow(self))
        return;
    setCapture(self);
    m_state.barHeld = onBar(lParam);
    if (m_state.barHeld)
        return m_state.widget.sendMouse(message, lParam);
    const auto hit = static_cast<DWORD>(itemFromPoint(lParam));
    if (HIWORD(hit))
        return;
    select(LOWORD(hit));
    if (message == WM_LBUTTONDBLCLK)
        tell(LBN_DBLCLK);
}

void ListBox::drag(UINT message, LPARAM lParam)
{
    if (captureHolder() != hwnd())
        return;
    if (m_state.barHeld)
        return m_state.widget.sendMouse(message, lParam);
    const auto nearest = LOWORD(static_cast<DWORD>(itemFromPoint(lParam)));
    if (isRow(nearest) && nearest != m_state.selected)
        select(nearest);
}

void ListBox::letGo(UINT message, LPARAM lParam)
{
    if (captureHolder() != hwnd())
        return;
    const HWND self = hwnd();
    releaseCapture(hwnd());
    if (!IsWindow(self))
        return;
    if (m_state.barHeld)
        m_state.widget.sendMouse(message, lParam);
    else
        tell(LBN_SELCHANGE);
}

bool ListBox::keyDown(WPARAM key)
{
    const int page = m_state.bar ? std::max(1, m_state.bar->pageStep() - 1) : 1;
    const int last = count() - 1;
    const int from = m_state.selected;
    const struct
    {
        WPARAM key;
        int row;
    } moves[] = {{VK_UP, from - 1},      {VK_DOWN, from + 1}, {VK_PRIOR, from - page},
                 {VK_NEXT, from + page}, {VK_HOME, 0},        {VK_END, last}};
    const auto move =
        std::find_if(std::begin(moves), std::end(moves), [key](const auto& one) { return one.key == key; });
    if (move == std::end(moves))
        return false;
    if (last < 0)
        return true;
    select(std::clamp(move->row, 0, last));
    tell(LBN_SELCHANGE);
    return true;
}

void ListBox::setFocused(bool focused)
{
    m_state.focused = focused;
    InvalidateRect(hwnd(), nullptr, TRUE);
}

void ListBox::tell(WORD code)
{
    if (m_window.is(LBS_NOTIFY))
        notifyCommand(m_window, code);
}

}

void registerListBoxClass()
{
    registerSystemClass("ListBox", widgetControlProcedure<ListBox>, CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW,
                        IDC_ARROW);
}

}

// The field with a list that drops down.
#include "combo_box.h"

#include "application.h"
#include "control.h"
#include "control_widget.h"
#include "keyboard.h"
#include "placement.h"
#include "window_class.h"

#include <QComboBox>

namespace winapi {

namespace {

std::unique_ptr<QWidget> makeCombo(QPointer<QComboBox>& made)
{
    application();
    auto combo = std::make_unique<QComboBox>();
    made = combo.get();
    return combo;
}

struct ComboState : ControlState
{
    explicit ComboState(const Window& control);
    void follow(Window& window) override { widget.follow(window, window.clientRect()); }

    QPointer<QComboBox> combo;
    ControlWidget widget;
    HFONT font = nullptr;
};

ComboState::ComboState(const Window& control) : widget(makeCombo(combo))
{
    QObject::connect(combo, &QComboBox::activated, [window = control.handle] {
        InvalidateRect(window, nullptr, FALSE);
        if (const WindowPtr found = findWindow(window))
            notifyCommand(*found, CBN_SELCHANGE);
    });
    widget.setFont(nullptr);
}

class Combo : public Control<ComboState>
{
public:
    using Control::Control;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    QComboBox& combo() const { return *m_state.combo; }
    LRESULT handleList(UINT message, WPARAM wParam, LPARAM lParam);
    int height() const { return combo().sizeHint().height(); }
    void setFont(HFONT font);
    void press(UINT message, LPARAM lParam);
    bool keyDown(WPARAM key);
    LRESULT add(LPCSTR text);
    LRESULT select(int index);
    LRESULT giveText(const QString& text, LPARAM buffer, int size) const;
    void paint();
};

LRESULT Combo::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!m_state.combo)
        return 0;
    switch (message) {
    case WM_CREATE:
        m_window.rect.setHeight(height()); // the rest of the height asked for is the list's
        return 0;
    case WM_WINDOWPOSCHANGING:
        reinterpret_cast<WINDOWPOS*>(lParam)->cy = height();
        return 0;
    case WM_GETTEXT:
        return giveText(combo().currentText(), lParam, static_cast<int>(wParam));
    case WM_GETTEXTLENGTH:
        return combo().currentText().toUtf8().size();
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SETFONT:
        setFont(reinterpret_cast<HFONT>(wParam));
        return 0;
    case WM_ENABLE:
        m_state.follow(m_window);
        InvalidateRect(hwnd(), nullptr, FALSE);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        m_state.widget.sendFocus(message == WM_SETFOCUS);
        InvalidateRect(hwnd(), nullptr, FALSE);
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(message, lParam);
        return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        return keyDown(wParam) ? 0 : DefWindowProcA(hwnd(), message, wParam, lParam);
    case WM_CHAR:
        if (wParam > ' ')
            m_state.widget.sendKey(0, QString(QLatin1Char(static_cast<char>(wParam))));
        return 0;
    default:
        return handleList(message, wParam, lParam);
    }
}

LRESULT Combo::handleList(UINT message, WPARAM wParam, LPARAM lParam)
{
    const int index = static_cast<int>(wParam);
    switch (message) {
    case CB_GETCOUNT:
        return combo().count();
    case CB_GETCURSEL:
        return combo().currentIndex();
    case CB_SETCURSEL:
        return select(index);
    case CB_ADDSTRING:
        return add(reinterpret_cast<LPCSTR>(lParam));
    case CB_RESETCONTENT:
        combo().clear();
        InvalidateRect(hwnd(), nullptr, FALSE);
        return CB_OKAY;
    case CB_GETLBTEXT:
    case CB_GETLBTEXTLEN:
        if (index < 0 || index >= combo().count())
            return CB_ERR;
        if (message == CB_GETLBTEXT)
            giveText(combo().itemText(index), lParam, INT_MAX);
        return combo().itemText(index).toUtf8().size();
    default:
        return DefWindowProcA(hwnd(), message, wParam, lParam);
    }
}

void Combo::setFont(HFONT font)
{
    m_state.font = font;
    m_state.widget.setFont(font);
    placeWindow(hwnd(), {0, 0, m_window.rect.width(), 0}, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

void Combo::press(UINT message, LPARAM lParam)
{
    const HWND self = hwnd();
    SetFocus(self);
    if (!IsWindow(self))
        return;
    noteKey(VK_LBUTTON, false); // the list that opens gets the release
    m_state.widget.sendMouse(message, lParam);
}

bool Combo::keyDown(WPARAM key)
{
    const int qtKey = key == VK_F4 ? static_cast<int>(Qt::Key_F4) : editingKey(key);
    if (!qtKey || (isDown(VK_MENU) && qtKey != Qt::Key_Down && qtKey != Qt::Key_Up))
        return false;
    m_state.widget.sendKey(qtKey);
    return true;
}

// Unlike Qt, selects nothing of itself.
LRESULT Combo::add(LPCSTR text)
{
    const int selected = combo().currentIndex();
    combo().addItem(QString::fromUtf8(text));
    combo().setCurrentIndex(selected);
    return combo().count() - 1;
}

LRESULT Combo::select(int index)
{
    const bool valid = index >= 0 && index < combo().count();
    combo().setCurrentIndex(valid ? index : CB_ERR);
    InvalidateRect(hwnd(), nullptr, FALSE);
    return valid ? index : CB_ERR;
}

LRESULT Combo::giveText(const QString& text, LPARAM buffer, int size) const
{
    if (size <= 0)
        return 0;
    auto* const target = reinterpret_cast<LPSTR>(buffer);
    lstrcpynA(target, text.toUtf8().constData(), size);
    return static_cast<LRESULT>(qstrlen(target));
}

void Combo::paint()
{
    const ControlPaint context(hwnd(), m_state.font);
    m_state.widget.paint(context.dc());
}

}

void registerComboBoxClass()
{
    registerSystemClass("ComboBox", widgetControlProcedure<Combo>, CS_DBLCLKS, IDC_ARROW);
}

}

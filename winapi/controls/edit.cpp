// The text field, of one line or of several.
#include "edit.h"

#include "application.h"
#include "control.h"
#include "control_widget.h"
#include "focus.h"
#include "keyboard.h"
#include "window_class.h"

#include <QClipboard>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStringDecoder>
#include <QTextBlock>

namespace winapi {

namespace {

struct Range
{
    int start;
    int end;
};

// What the two widgets call by different names.
class TextField
{
public:
    virtual ~TextField() = default;
    virtual QString text() const = 0;
    virtual void setText(const QString& text) = 0;
    virtual Range selection() const = 0;
    virtual void select(Range range) = 0;
    virtual void replaceSelection(const QString& text) = 0;
    virtual void setReadOnly(bool readOnly) = 0;
};

class SingleLine : public TextField
{
public:
    explicit SingleLine(QLineEdit& widget) : m_widget(widget) {}

    QString text() const override { return m_widget.text(); }
    void setText(const QString& text) override
    {
        m_widget.setText(text);
        m_widget.setCursorPosition(0);
    }
    Range selection() const override
    {
        if (m_widget.hasSelectedText())
            return {m_widget.selectionStart(), m_widget.selectionEnd()};
        return {m_widget.cursorPosition(), m_widget.cursorPosition()};
    }
    void select(Range range) override
    {
        m_widget.setCursorPosition(range.end);
        if (range.start != range.end)
            m_widget.setSelection(range.start, range.end - range.start);
    }
    void replaceSelection(const QString& text) override { m_widget.insert(text); }
    void setReadOnly(bool readOnly) override { m_widget.setReadOnly(readOnly); }

private:
    QLineEdit& m_widget;
};

class MultiLine : public TextField
{
public:
    explicit MultiLine(QPlainTextEdit& widget) : m_widget(widget) {}

    QString text() const override { return m_widget.toPlainText(); }
    void setText(const QString& text) override { m_widget.setPlainText(text); }
    Range selection() const override
    {
        const QTextCursor cursor = m_widget.textCursor();
        return {cursor.selectionStart(), cursor.selectionEnd()};
    }
    void select(Range range) override
    {
        QTextCursor cursor = m_widget.textCursor();
        cursor.setPosition(range.start);
        cursor.setPosition(range.end, QTextCursor::KeepAnchor);
        m_widget.setTextCursor(cursor);
    }
    void replaceSelection(const QString& text) override { m_widget.insertPlainText(text); }
    void setReadOnly(bool readOnly) override { m_widget.setReadOnly(readOnly); }

private:
    QPlainTextEdit& m_widget;
};

constexpr int defaultLimit = 30000; // bytes

struct EditState : ControlState
{
    explicit EditState(const Window& window);
    void follow(Window& window) override { widget.follow(window, window.clientRect()); }
    void compose(Window& window, QInputMethodEvent& event) override;
    QVariant answer(Qt::InputMethodQuery query) const override { return widget.answer(query); }

    bool changed = false; // by what the widget is being told
    std::unique_ptr<TextField> field;
    ControlWidget widget;
    HFONT font = nullptr;
    int limit = defaultLimit;
    bool inDialog = false;                        // its parent leads the keys by IsDialogMessage
    QStringDecoder decoder{QStringDecoder::Utf8}; // a letter comes byte by byte

private:
    std::unique_ptr<QWidget> makeWidget(const Window& window);
    std::unique_ptr<QWidget> makeSingleLine(const Window& window);
    std::unique_ptr<QWidget> makeMultiLine(const Window& window);
};

bool hasFrame(const Window& window)
{
    return window.is(WS_BORDER) || (window.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
}

Qt::Alignment alignmentOf(const Window& window)
{
    return window.is(ES_CENTER) ? Qt::AlignHCenter : window.is(ES_RIGHT) ? Qt::AlignRight : Qt::AlignLeft;
}

EditState::EditState(const Window& window) : widget(makeWidget(window))
{
    field->setReadOnly(window.is(ES_READONLY));
    widget.setFont(nullptr);
}

std::unique_ptr<QWidget> EditState::makeWidget(const Window& window)
{
    application();
    return window.is(ES_MULTILINE) ? makeMultiLine(window) : makeSingleLine(window);
}

std::unique_ptr<QWidget> EditState::makeSingleLine(const Window& window)
{
    auto line = std::make_unique<QLineEdit>();
    line->setFrame(hasFrame(window));
    line->setAlignment(alignmentOf(window));
    line->setEchoMode(window.is(ES_PASSWORD) ? QLineEdit::Password : QLineEdit::Normal);
    QObject::connect(line.get(), &QLineEdit::textChanged, [this] { changed = true; });
    field = std::make_unique<SingleLine>(*line);
    return line;
}

std::unique_ptr<QWidget> EditState::makeMultiLine(const Window& window)
{
    auto lines = std::make_unique<QPlainTextEdit>();
    if (!hasFrame(window))
        lines->setFrameShape(QFrame::NoFrame);
    lines->setVerticalScrollBarPolicy(window.is(WS_VSCROLL) ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    lines->setHorizontalScrollBarPolicy(window.is(WS_HSCROLL) ? Qt::ScrollBarAsNeeded
                                                              : Qt::ScrollBarAlwaysOff);
    lines->setLineWrapMode(window.is(ES_AUTOHSCROLL) ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
    QObject::connect(lines.get(), &QPlainTextEdit::textChanged, [this] { changed = true; });
    field = std::make_unique<MultiLine>(*lines);
    return lines;
}

QByteArray toBytes(const QString& text)
{
    return QString(text).replace('\n', "\r\n").toUtf8();
}

QString toLines(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes).remove('\r');
}

class Edit : public Control<EditState>
{
public:
    using Control::Control;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void compose(QInputMethodEvent& event);

private:
    bool isMultiLine() const { return m_window.is(ES_MULTILINE); }
    bool isReadOnly() const { return m_window.is(ES_READONLY); }
    bool takesEnter() const { return isMultiLine() && (m_window.is(ES_WANTRETURN) || !m_state.inDialog); }
    TextField& field() { return *m_state.field; }

    template <class Action>
    void act(Action action);
    void setText(LPCSTR text);
    LRESULT giveText(WPARAM size, LPARAM buffer);
    void type(char character);
    void typeControl(char character);
    void paste();
    void insert(QString text);
    bool cutToLimit(QString& text);
    void press(UINT message, LPARAM lParam);
    bool keyDown(WPARAM key);
    void focus(bool gained);
    void leaveComposition();
    void select(int start, int end);
    LRESULT giveSelection(WPARAM start, LPARAM end);
    void setReadOnly(bool readOnly);
    LRESULT dialogCode(const MSG* message);
    bool leaveToDialog(WPARAM key);
    void paint();
};

LRESULT Edit::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:
        field().setText(toLines(QByteArray::fromStdString(m_window.text)));
        m_window.text.clear(); // the text is the widget's, and no mnemonic is in it
        return 0;
    case WM_SETTEXT:
        setText(reinterpret_cast<LPCSTR>(lParam));
        return TRUE;
    case WM_GETTEXT:
        return giveText(wParam, lParam);
    case WM_GETTEXTLENGTH:
        return toBytes(field().text()).size();
    case WM_PAINT:
        paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SETFONT:
        m_state.font = reinterpret_cast<HFONT>(wParam);
        m_state.widget.setFont(m_state.font);
        InvalidateRect(hwnd(), nullptr, FALSE);
        return 0;
    case WM_ENABLE:
        m_state.follow(m_window);
        InvalidateRect(hwnd(), nullptr, FALSE);
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        focus(message == WM_SETFOCUS);
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        press(message, lParam);
        return 0;
    case WM_MOUSEMOVE:
        if (captureHolder() == hwnd())
            act([&] { m_state.widget.sendMouse(message, lParam); });
        return 0;
    case WM_LBUTTONUP:
        act([&] { m_state.widget.sendMouse(message, lParam); });
        releaseCapture(hwnd());
        return 0;
    case WM_MOUSEWHEEL:
        return isMultiLine() && m_state.widget.sendWheel(wParam, lParam)
                   ? InvalidateRect(hwnd(), nullptr, FALSE)
                   : DefWindowProcA(hwnd(), message, wParam, lParam);
    case WM_KEYDOWN:
        return keyDown(wParam) ? 0 : DefWindowProcA(hwnd(), message, wParam, lParam);
    case WM_CHAR:
        type(static_cast<char>(wParam));
        return 0;
    case WM_GETDLGCODE:
        return dialogCode(reinterpret_cast<const MSG*>(lParam));
    case EM_GETSEL:
        return giveSelection(wParam, lParam);
    case EM_SETSEL:
        select(static_cast<int>(wParam), static_cast<int>(lParam));
        return TRUE;
    case EM_REPLACESEL:
        insert(toLines(reinterpret_cast<LPCSTR>(lParam)));
        return TRUE;
    case EM_LIMITTEXT:
        m_state.limit = wParam && wParam <= INT_MAX ? static_cast<int>(wParam) : INT_MAX;
        return TRUE;
    case EM_SETREADONLY:
        setReadOnly(wParam);
        return TRUE;
    default:
        return DefWindowProcA(hwnd(), message, wParam, lParam);
    }
}

// Nothing of the control may be touched afterwards: the parent may destroy it when it hears of a change.
template <class Action>
void Edit::act(Action action)
{
    m_state.changed = false;
    action();
    InvalidateRect(hwnd(), nullptr, FALSE);
    if (m_state.changed)
        notifyCommand(m_window, EN_CHANGE);
}

void Edit::setText(LPCSTR text)
{
    const auto set = [&] { field().setText(toLines(text)); };
    if (!isMultiLine())
        return act(set);
    set();
    InvalidateRect(hwnd(), nullptr, FALSE);
}

LRESULT Edit::giveText(WPARAM size, LPARAM buffer)
{
    if (size == 0)
        return 0;
    auto* const target = reinterpret_cast<LPSTR>(buffer);
    lstrcpynA(target, toBytes(field().text()).constData(), static_cast<int>(size));
    return static_cast<LRESULT>(qstrlen(target));
}

void Edit::type(char character)
{
    constexpr char firstLetter = ' ';
    constexpr char wordBack = '\x7f'; // of Ctrl and Backspace
    if (character >= 0 && (character < firstLetter || character == wordBack))
        return typeControl(character);
    const QString letter = m_state.decoder(QByteArrayView(&character, 1));
    const bool refused = m_window.is(ES_NUMBER) && !letter.isEmpty() && !letter[0].isDigit();
    if (!letter.isEmpty() && !refused && !isReadOnly())
        insert(letter);
}

void Edit::typeControl(char character)
{
    constexpr auto control = [](char letter) { return static_cast<char>(letter - 'A' + 1); };
    const auto widget = [&](const char* slot) { act([&] { m_state.widget.call(slot); }); };
    switch (character) {
    case control('A'):
        return widget("selectAll");
    case control('C'):
        return widget("copy");
    default:
        break;
    }
    if (isReadOnly())
        return;
    switch (character) {
    case control('V'):
        return paste();
    case control('X'):
        return widget("cut");
    case control('Z'):
        return widget("undo");
    case '\b':
        return act([&] { m_state.widget.sendKey(Qt::Key_Backspace); });
    case '\r':
        return takesEnter() ? insert("\n") : void();
    case '\t':
        return isMultiLine() && !m_state.inDialog ? insert("\t") : void();
    default:
        return;
    }
}

void Edit::paste()
{
    QString text = QApplication::clipboard()->text();
    if (!isMultiLine())
        text = text.section('\n', 0, 0);
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    if (!m_window.is(ES_NUMBER) || digits)
        insert(text);
}

// All that is put in by hand or by a message comes by here.
void Edit::insert(QString text)
{
    if (cutToLimit(text))
        notifyCommand(m_window, EN_MAXTEXT);
    if (isAlive(m_window))
        act([&] { field().replaceSelection(text); });
}

bool Edit::cutToLimit(QString& text)
{
    const Range selection = field().selection();
    QString rest = field().text();
    rest.remove(selection.start, selection.end - selection.start);
    const auto room = m_state.limit - toBytes(rest).size();
    const auto whole = text.size();
    while (!text.isEmpty() && toBytes(text).size() > room)
        text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text.size() != whole;
}

void Edit::press(UINT message, LPARAM lParam)
{
    const HWND self = hwnd();
    SetFocus(self);
    if (!isAlive(m_window))
        return;
    setCapture(self);
    act([&] { m_state.widget.sendMouse(message, lParam); });
}

bool Edit::keyDown(WPARAM key)
{
    if (key == VK_INSERT && isDown(VK_SHIFT) && !isReadOnly()) {
        paste();
        return true;
    }
    if (leaveToDialog(key))
        return true;
    const int qtKey = editingKey(key);
    if (qtKey)
        act([&] { m_state.widget.sendKey(qtKey); });
    return qtKey != 0;
}

// What is selected goes as soon as something is begun in its place.
void Edit::compose(QInputMethodEvent& event)
{
    act([&] { m_state.widget.sendComposition(event); });
}

void Edit::focus(bool gained)
{
    if (!gained)
        leaveComposition();
    m_state.widget.sendFocus(gained);
    QGuiApplication::inputMethod()->update(Qt::ImQueryAll);
    InvalidateRect(hwnd(), nullptr, FALSE);
    notifyCommand(m_window, gained ? EN_SETFOCUS : EN_KILLFOCUS);
}

// Counted in bytes; -1 as the start selects nothing, as the end it stands for the end of the text.
void Edit::select(int start, int end)
{
    const QByteArray bytes = toBytes(field().text());
    const auto index = [&](int count) {
        return static_cast<int>(toLines(count < 0 ? bytes : bytes.left(count)).size());
    };
    if (start < 0)
        field().select({field().selection().end, field().selection().end});
    else
        field().select({index(start), index(end)});
    InvalidateRect(hwnd(), nullptr, FALSE);
}

LRESULT Edit::giveSelection(WPARAM start, LPARAM end)
{
    const Range range = field().selection();
    const QString text = field().text();
    const auto first = static_cast<DWORD>(toBytes(text.left(range.start)).size());
    const auto last = static_cast<DWORD>(toBytes(text.left(range.end)).size());
    if (auto* const place = reinterpret_cast<DWORD*>(start))
        *place = first;
    if (auto* const place = reinterpret_cast<DWORD*>(end))
        *place = last;
    return first > 0xFFFF || last > 0xFFFF ? -1 : MAKELONG(first, last);
}

void Edit::setReadOnly(bool readOnly)
{
    m_window.style = readOnly ? m_window.style | ES_READONLY : m_window.style & ~DWORD(ES_READONLY);
    field().setReadOnly(readOnly);
    QGuiApplication::inputMethod()->update(Qt::ImEnabled);
    InvalidateRect(hwnd(), nullptr, FALSE);
}

// Of several lines it gets all keys, also those of the dialog.
LRESULT Edit::dialogCode(const MSG* message)
{
    m_state.inDialog |= message != nullptr;
    return DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS | (isMultiLine() ? DLGC_WANTALLKEYS : 0);
}

bool Edit::leaveToDialog(WPARAM key)
{
    if (!m_state.inDialog || !isMultiLine() || (key != VK_TAB && key != VK_ESCAPE))
        return false;
    if (key == VK_TAB)
        PostMessageA(m_window.parent->handle, WM_NEXTDLGCTL, isDown(VK_SHIFT), 0);
    else
        PostMessageA(m_window.parent->handle, WM_CLOSE, 0, 0);
    return true;
}

// What was begun is given up.
void Edit::leaveComposition()
{
    QGuiApplication::inputMethod()->reset();
    QInputMethodEvent nothing;
    m_state.widget.sendComposition(nothing);
}

void Edit::paint()
{
    const ControlPaint context(hwnd(), m_state.font);
    m_state.widget.paint(context.dc());
}

}

void EditState::compose(Window& window, QInputMethodEvent& event)
{
    Edit(window, *this).compose(event);
}

void registerEditClass()
{
    registerSystemClass("Edit", widgetControlProcedure<Edit>, CS_DBLCLKS, IDC_IBEAM);
}

}

// Events of Qt as its platform plugins make them, sent to the widget that the pointer or the keyboard is on.
#include "Hands.h"

#include <zeb17_qt.h>

#include <QApplication>
#include <QCursor>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>

namespace {

Qt::MouseButtons held;
Qt::KeyboardModifiers modifiers;
QPointer<QWidget> grabber; // Qt keeps a press with the widget that got it

QWidget* widgetUnderPointer()
{
    if (grabber)
        return grabber;
    const QPoint place = QCursor::pos();
    for (HWND window = GetTopWindow(nullptr); window; window = GetWindow(window, GW_HWNDNEXT)) {
        RECT rect{};
        GetWindowRect(window, &rect);
        if (IsWindowVisible(window) && PtInRect(&rect, {place.x(), place.y()}))
            return QWidgetFromWindow(window);
    }
    return nullptr;
}

void sendMouse(QEvent::Type type, Qt::MouseButton button)
{
    QWidget* const widget = widgetUnderPointer();
    if (!widget)
        return;
    grabber = held ? widget : nullptr;
    const QPointF screen = QCursor::pos();
    QMouseEvent event(type, widget->mapFromGlobal(screen), screen, button, held, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

Qt::MouseButton toQt(MouseButton button)
{
    return button == MouseButton::Left ? Qt::LeftButton : Qt::RightButton;
}

int keyOf(int virtualKey)
{
    const struct
    {
        int virtualKey;
        int qt;
    } keys[] = {{VK_SHIFT, Qt::Key_Shift},   {VK_CONTROL, Qt::Key_Control}, {VK_MENU, Qt::Key_Alt},
                {VK_TAB, Qt::Key_Tab},       {VK_RETURN, Qt::Key_Return},   {VK_ESCAPE, Qt::Key_Escape},
                {VK_SPACE, Qt::Key_Space},   {VK_PRIOR, Qt::Key_PageUp},    {VK_NEXT, Qt::Key_PageDown},
                {VK_HOME, Qt::Key_Home},     {VK_END, Qt::Key_End},         {VK_LEFT, Qt::Key_Left},
                {VK_RIGHT, Qt::Key_Right},   {VK_UP, Qt::Key_Up},           {VK_DOWN, Qt::Key_Down},
                {VK_DELETE, Qt::Key_Delete}, {VK_F5, Qt::Key_F5},           {VK_F10, Qt::Key_F10}};
    const auto found = std::find_if(std::begin(keys), std::end(keys),
                                    [&](const auto& key) { return key.virtualKey == virtualKey; });
    return found == std::end(keys) ? virtualKey : found->qt;
}

QString textOf(int virtualKey)
{
    const bool letter = virtualKey >= 'A' && virtualKey <= 'Z';
    if (letter && (modifiers & Qt::ControlModifier))
        return QChar(virtualKey - 'A' + 1);
    if (letter)
        return QChar(modifiers & Qt::ShiftModifier ? virtualKey : virtualKey - 'A' + 'a');
    switch (virtualKey) {
    case VK_DELETE:
        return QChar(127);
    case VK_TAB:
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_SPACE:
        return QChar(virtualKey);
    default:
        return {};
    }
}

void noteModifier(int virtualKey, bool down)
{
    const Qt::KeyboardModifier modifier = virtualKey == VK_SHIFT     ? Qt::ShiftModifier
                                          : virtualKey == VK_CONTROL ? Qt::ControlModifier
                                          : virtualKey == VK_MENU    ? Qt::AltModifier
                                                                     : Qt::NoModifier;
    modifiers.setFlag(modifier, down && modifier != Qt::NoModifier);
}

void sendKey(QEvent::Type type, int virtualKey)
{
    const QWidget* const dialog = QApplication::activeModalWidget(); // of Qt, with no window of ours
    QWidget* const widget = dialog ? QApplication::focusWidget() : QWidgetFromWindow(GetActiveWindow());
    if (!widget)
        return;
    QKeyEvent event(type, keyOf(virtualKey), modifiers, textOf(virtualKey));
    QCoreApplication::sendEvent(widget, &event);
}

}

void movePointer(int x, int y)
{
    QCursor::setPos(x, y); // the plugin tells the window that it comes to
}

void pressButton(MouseButton button)
{
    static QElapsedTimer sinceLast;
    static QPoint lastPlace;
    const bool twice = sinceLast.isValid() && sinceLast.elapsed() < QApplication::doubleClickInterval() &&
                       lastPlace == QCursor::pos();
    if (twice)
        sinceLast.invalidate();
    else
        sinceLast.start();
    lastPlace = QCursor::pos();
    held |= toQt(button);
    sendMouse(twice ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, toQt(button));
}

void releaseButton(MouseButton button)
{
    held &= ~Qt::MouseButtons(toQt(button));
    sendMouse(QEvent::MouseButtonRelease, toQt(button));
}

void turnWheel(int delta)
{
    QWidget* const widget = widgetUnderPointer();
    if (!widget)
        return;
    const QPointF screen = QCursor::pos();
    QWheelEvent event(widget->mapFromGlobal(screen), screen, {}, {0, delta}, held, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void pressKey(int virtualKey)
{
    noteModifier(virtualKey, true);
    sendKey(QEvent::KeyPress, virtualKey);
}

void releaseKey(int virtualKey)
{
    noteModifier(virtualKey, false);
    sendKey(QEvent::KeyRelease, virtualKey);
}

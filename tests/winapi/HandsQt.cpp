// The input of a user as Qt's platform plugins give it: events for the widget that has the pointer or the
// keyboard.
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
    return grabber ? grabber.data() : QApplication::topLevelAt(QCursor::pos());
}

void sendMouse(QEvent::Type type)
{
    QWidget* const widget = widgetUnderPointer();
    if (!widget)
        return;
    grabber = held ? widget : nullptr;
    const QPointF screen = QCursor::pos();
    QMouseEvent event(type, widget->mapFromGlobal(screen), screen, Qt::LeftButton, held, modifiers);
    QCoreApplication::sendEvent(widget, &event);
}

int keyOf(int virtualKey)
{
    constexpr struct
    {
        int virtualKey;
        int qt;
    } kKeys[] = {{VK_SHIFT, Qt::Key_Shift},   {VK_CONTROL, Qt::Key_Control}, {VK_RETURN, Qt::Key_Return},
                 {VK_ESCAPE, Qt::Key_Escape}, {VK_PRIOR, Qt::Key_PageUp},    {VK_DELETE, Qt::Key_Delete}};
    const auto found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                    [&](const auto& key) { return key.virtualKey == virtualKey; });
    return found == std::end(kKeys) ? virtualKey : found->qt;
}

QString textOf(int virtualKey)
{
    const bool letter = virtualKey >= 'A' && virtualKey <= 'Z';
    if (letter && (modifiers & Qt::ControlModifier))
        return QChar(virtualKey - 'A' + 1);
    if (letter)
        return QChar(modifiers & Qt::ShiftModifier ? virtualKey : virtualKey - 'A' + 'a');
    if (virtualKey == VK_DELETE)
        return QChar(127);
    return virtualKey == VK_RETURN || virtualKey == VK_ESCAPE ? QString(QChar(virtualKey)) : QString();
}

void noteModifier(int virtualKey, bool down)
{
    const Qt::KeyboardModifier modifier = virtualKey == VK_SHIFT     ? Qt::ShiftModifier
                                          : virtualKey == VK_CONTROL ? Qt::ControlModifier
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

void pressButton()
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
    held = Qt::LeftButton;
    sendMouse(twice ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress);
}

void releaseButton()
{
    held = Qt::NoButton;
    sendMouse(QEvent::MouseButtonRelease);
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

#include "control_widget.h"

#include "context_painter.h"
#include "control.h"
#include "host_widget.h"
#include "keyboard.h"
#include "window_tree.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

namespace winapi {

namespace {

Qt::KeyboardModifiers heldModifiers()
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, isDown(VK_SHIFT));
    modifiers.setFlag(Qt::ControlModifier, isDown(VK_CONTROL));
    modifiers.setFlag(Qt::AltModifier, isDown(VK_MENU));
    return modifiers;
}

struct MouseKind
{
    UINT message;
    QEvent::Type type;
    Qt::MouseButton button;
};
constexpr MouseKind mouseKinds[] = {
    {WM_MOUSEMOVE, QEvent::MouseMove, Qt::NoButton},
    {WM_LBUTTONDOWN, QEvent::MouseButtonPress, Qt::LeftButton},
    {WM_LBUTTONDBLCLK, QEvent::MouseButtonDblClick, Qt::LeftButton},
    {WM_LBUTTONUP, QEvent::MouseButtonRelease, Qt::LeftButton},
};

const MouseKind* findKind(UINT message)
{
    const auto found = std::find_if(std::begin(mouseKinds), std::end(mouseKinds),
                                    [message](const MouseKind& kind) { return kind.message == message; });
    return found == std::end(mouseKinds) ? nullptr : found;
}

// Past Qt's own delivery, which would hand on to the parent what the widget ignores.
void deliver(QObject& target, QEvent& event)
{
    target.event(&event);
}

}

ControlWidget::ControlWidget(std::unique_ptr<QWidget> widget) : m_widget(widget.release())
{
    m_widget->hide();
    m_widget->setFocusPolicy(Qt::NoFocus);
    m_widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_widget->setAttribute(Qt::WA_NoMousePropagation);
}

// An event of the widget may be what ends the control, so it goes when that is done.
ControlWidget::~ControlWidget()
{
    if (!m_widget)
        return;
    m_widget->disconnect();
    m_widget->hide();
    m_widget->setParent(nullptr);
    m_widget->deleteLater();
}

void ControlWidget::follow(Window& control, const QRect& place)
{
    if (!m_widget)
        return;
    HostWidget* const host = rootOf(control).host;
    if (host && m_widget->parentWidget() != host)
        m_widget->setParent(host);
    m_origin = place.topLeft();
    m_widget->setGeometry(place.translated(originInRoot(control)));
    m_widget->setEnabled(control.isEnabled());
    m_widget->setVisible(host && !place.isEmpty() && control.isVisible());
}

void ControlWidget::setFont(HFONT font)
{
    if (const auto found = findObject<Font>(fontOr(font)); found && m_widget)
        m_widget->setFont(found->font);
}

void ControlWidget::paint(HDC dc)
{
    const auto context = findContext(dc);
    if (!context || !m_widget || m_widget->isHidden())
        return;
    const ContextPainter painter(*context, QRect(m_origin, m_widget->size()));
    if (painter)
        painter->drawPixmap(m_origin, m_widget->grab());
}

QWidget* ControlWidget::partAt(QPoint place) const
{
    QWidget* const part = m_widget->childAt(place);
    return part ? part : m_widget.data();
}

void ControlWidget::sendMouse(UINT message, LPARAM lParam)
{
    const MouseKind* const kind = findKind(message);
    if (!kind || !m_widget)
        return;
    const bool release = kind->type == QEvent::MouseButtonRelease;
    const bool press = kind->button != Qt::NoButton && !release;
    const QPoint place = QPoint(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)) - m_origin;
    if (press)
        m_held = partAt(place);
    const Qt::MouseButton held = m_held && !release ? Qt::LeftButton : Qt::NoButton;
    QWidget* const target = m_held ? m_held.data() : partAt(place);
    QMouseEvent event(kind->type, target->mapFrom(m_widget, place), m_widget->mapToGlobal(place),
                      kind->button, held, heldModifiers());
    if (release)
        m_held = nullptr;
    QCoreApplication::sendEvent(target, &event);
}

void ControlWidget::sendKey(int qtKey, const QString& text)
{
    if (!m_widget)
        return;
    QKeyEvent event(QEvent::KeyPress, qtKey, text.isEmpty() ? heldModifiers() : Qt::NoModifier, text);
    deliver(*m_widget, event);
}

void ControlWidget::sendFocus(bool gained)
{
    if (!m_widget)
        return;
    // For this reason a selection stays as it is.
    QFocusEvent event(gained ? QEvent::FocusIn : QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    deliver(*m_widget, event);
}

void ControlWidget::sendComposition(QInputMethodEvent& event)
{
    if (m_widget)
        deliver(*m_widget, event);
}

QVariant ControlWidget::answer(Qt::InputMethodQuery query) const
{
    if (!m_widget || !m_widget->testAttribute(Qt::WA_InputMethodEnabled)) // as it has one that is read only
        return {};
    const QVariant answer = m_widget->inputMethodQuery(query);
    const bool isPlace = answer.typeId() == QMetaType::QRect || answer.typeId() == QMetaType::QRectF;
    return isPlace ? answer.toRectF().translated(m_widget->pos()) : answer;
}

void ControlWidget::call(const char* slot)
{
    if (m_widget)
        QMetaObject::invokeMethod(m_widget, slot, Qt::DirectConnection);
}

bool ControlWidget::sendWheel(WPARAM wParam, LPARAM screenPoint)
{
    if (!m_widget)
        return false;
    const QPoint screen(GET_X_LPARAM(screenPoint), GET_Y_LPARAM(screenPoint));
    QWidget* const target = partAt(m_widget->mapFromGlobal(screen));
    QWheelEvent event(target->mapFromGlobal(screen), screen, {}, {0, GET_WHEEL_DELTA_WPARAM(wParam)},
                      Qt::NoButton, heldModifiers(), Qt::NoScrollPhase, false);
    return QCoreApplication::sendEvent(target, &event) && event.isAccepted();
}

int editingKey(WPARAM virtualKey)
{
    switch (virtualKey) {
    case VK_LEFT:
        return Qt::Key_Left;
    case VK_RIGHT:
        return Qt::Key_Right;
    case VK_UP:
        return Qt::Key_Up;
    case VK_DOWN:
        return Qt::Key_Down;
    case VK_HOME:
        return Qt::Key_Home;
    case VK_END:
        return Qt::Key_End;
    case VK_PRIOR:
        return Qt::Key_PageUp;
    case VK_NEXT:
        return Qt::Key_PageDown;
    case VK_DELETE:
        return Qt::Key_Delete;
    default:
        return 0;
    }
}

}

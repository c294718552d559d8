// The widget of a top-level window: what Qt tells of it becomes messages, and the window's pixels are shown.
#include "host_widget.h"

#include "application.h"
#include "focus.h"
#include "keyboard.h"
#include "message_queue.h"
#include "mouse.h"
#include "placement.h"
#include "rooms_above.h"
#include "update_region.h"
#include "window_surface.h"
#include "window_tree.h"
#include "zeb17_qt.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace winapi {

namespace {

Qt::WindowFlags flagsFor(const Window& window)
{
    Qt::WindowFlags flags = window.owner ? Qt::Dialog : Qt::Window;
    if (window.is(WS_POPUP) && !window.is(WS_CAPTION))
        flags |= Qt::FramelessWindowHint;
    return flags;
}

Qt::WindowStates stateOf(const Window& window)
{
    if (window.is(WS_MINIMIZE))
        return Qt::WindowMinimized;
    return window.is(WS_MAXIMIZE) ? Qt::WindowMaximized : Qt::WindowNoState;
}

void postMove(const QSinglePointEvent& event)
{
    postInput(MouseInput{WM_MOUSEMOVE, event.globalPosition().toPoint(), 0, false, event.modifiers()});
}

QWidget* ownerWidget(const Window& window)
{
    const WindowPtr owner = window.owner ? findWindow(window.owner) : nullptr;
    return owner ? owner->host.data() : nullptr;
}

}

HostWidget::HostWidget(Window& window)
    : QWidget(ownerWidget(window), flagsFor(window)), m_handle(window.handle)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(window.rect.size());
    m_ratio = devicePixelRatioF();
}

HostWidget::~HostWidget()
{
    const WindowPtr window = served();
    if (!window)
        return;
    window->host = nullptr;
    DestroyWindow(m_handle);
}

QPoint HostWidget::screenOrigin() const
{
    return isEmbedded() ? mapToGlobal(QPoint(0, 0)) : geometry().topLeft();
}

void HostWidget::follow(bool mayActivate)
{
    const WindowPtr window = served();
    if (!window || m_following)
        return;
    m_following = true;
    setWindowTitle(QString::fromUtf8(window->text.c_str()));
    if (!isEmbedded()) {
        if (stateOf(*window) == Qt::WindowNoState)
            setGeometry(window->rect);
        setWindowState(stateOf(*window) | (windowState() & Qt::WindowActive));
        setAttribute(Qt::WA_ShowWithoutActivating, !mayActivate);
    }
    const QPointer<HostWidget> self(this);
    setVisible(window->is(WS_VISIBLE));
    if (!self)
        return;
    m_following = false;
    takePlace();
}

void HostWidget::takeActivation()
{
    if (!isEmbedded())
        activateWindow();
    setFocus();
}

void HostWidget::abandon()
{
    m_handle = nullptr;
    const QPointer<HostWidget> self(this);
    hide(); // another widget gets the focus, and its handler may delete this one
    if (self && isEmbedded())
        setParent(nullptr); // a layout lets go of it at once
    if (self && m_eventsRunning == 0)
        deleteLater();
    else if (self)
        m_isToBeDeleted = true;
}

bool HostWidget::event(QEvent* event)
{
    const EndedWindowsKept kept;
    const QPointer<HostWidget> self(this);
    ++m_eventsRunning;
    const bool taken = QWidget::event(event);
    if (self && --m_eventsRunning == 0 && std::exchange(m_isToBeDeleted, false))
        deleteLater();
    return taken;
}

// The surface keeps all pixels, so nothing needs to be painted again to be shown again.
void HostWidget::paintEvent(QPaintEvent* event)
{
    const WindowPtr window = served();
    if (!window)
        return;
    // On a screen of another density the window is painted anew, so that it stays sharp.
    if (std::exchange(m_ratio, devicePixelRatioF()) != devicePixelRatioF())
        invalidate(*window, window->clientRect(), true, Children::All);
    WindowSurface& surface = surfaceOf(*window);
    surface.settle();
    QPainter painter(this);
    // One by one, since Qt takes far longer for a region of several rectangles.
    for (const QRect& part : event->region()) {
        painter.setClipRect(part);
        painter.drawImage(0, 0, *surface.image());
    }
}

// The window system, or the layout that the widget stands in, has the last word on size and place.
void HostWidget::takePlace()
{
    const WindowPtr window = served();
    if (!window || m_following)
        return;
    const QRect place = isEmbedded() ? QRect(window->rect.topLeft(), size()) : geometry();
    if (place == window->rect)
        return;
    m_following = true;
    const QPointer<HostWidget> self(this);
    placeWindow(m_handle, place, SWP_NOZORDER | SWP_NOACTIVATE);
    if (self)
        m_following = false;
}

void HostWidget::resizeEvent(QResizeEvent*)
{
    takePlace();
}

void HostWidget::moveEvent(QMoveEvent*)
{
    if (!isEmbedded())
        takePlace();
}

void HostWidget::showEvent(QShowEvent*)
{
    if (!m_following && served())
        ShowWindow(m_handle, SW_SHOWNA);
}

void HostWidget::hideEvent(QHideEvent*)
{
    if (!m_following && isHidden() && served())
        ShowWindow(m_handle, SW_HIDE);
}

void HostWidget::closeEvent(QCloseEvent* event)
{
    event->ignore();
    PostMessageA(m_handle, WM_SYSCOMMAND, SC_CLOSE, 0);
}

void HostWidget::changeEvent(QEvent* event)
{
    const WindowPtr window = served();
    if (!window || m_following || event->type() != QEvent::WindowStateChange)
        return;
    window->style &= ~(WS_MINIMIZE | WS_MAXIMIZE);
    if (isMinimized())
        window->style |= WS_MINIMIZE;
    else if (isMaximized())
        window->style |= WS_MAXIMIZE;
}

// While a menu is open it has the keyboard, but the window keeps its focus.
void HostWidget::focusInEvent(QFocusEvent* event)
{
    const WindowPtr window = served();
    if (!window || event->reason() == Qt::PopupFocusReason)
        return;
    // After this event Qt announces to screen readers that the widget has the focus. The child window that
    // really has it is announced after that, so that it is the last that a screen reader hears.
    QMetaObject::invokeMethod(this, &HostWidget::tellFocus, Qt::QueuedConnection);
    const QPointer<HostWidget> self(this);
    activate(window.get(), ActivatedBy::Host);
    if (self && isAlive(*window) && isEmbedded() && IsWindow(window->lastFocus))
        SetFocus(window->lastFocus);
}

void HostWidget::tellFocus()
{
    if (QAccessible::isActive() && hasFocus())
        tellFocusBelow(*this);
}

void HostWidget::focusOutEvent(QFocusEvent* event)
{
    const WindowPtr window = served();
    // When the window is hidden (m_following), leaveHidden has already found the next window.
    if (!window || m_following || event->reason() == Qt::PopupFocusReason || GetActiveWindow() != m_handle)
        return;
    window->lastFocus = GetFocus();
    if (!dynamic_cast<HostWidget*>(QApplication::focusWidget()))
        activate(nullptr, ActivatedBy::Host);
}

// The pointer may rest while a window appears below it: that counts as a move.
void HostWidget::enterEvent(QEnterEvent* event)
{
    postMove(*event);
}

void HostWidget::leaveEvent(QEvent*)
{
    if (const WindowPtr window = served())
        mouseLeft(*window);
}

namespace {

struct ButtonMessages
{
    Qt::MouseButton button;
    UINT down;
    UINT up;
};
constexpr ButtonMessages kButtonMessages[] = {
    {Qt::LeftButton, WM_LBUTTONDOWN, WM_LBUTTONUP},
    {Qt::RightButton, WM_RBUTTONDOWN, WM_RBUTTONUP},
    {Qt::MiddleButton, WM_MBUTTONDOWN, WM_MBUTTONUP},
};

// Other buttons are left out.
void postButton(const QMouseEvent& event, bool down, bool doubleClick)
{
    for (const ButtonMessages& messages : kButtonMessages) {
        if (messages.button == event.button())
            postInput(MouseInput{down ? messages.down : messages.up, event.globalPosition().toPoint(), 0,
                                 doubleClick, event.modifiers()});
    }
}

// Gives whole notches only, however small the steps of the device are, and keeps the rest.
int takeNotches(int& rest, int delta)
{
    if (delta == 0) // a move in the other direction
        return 0;
    if ((rest < 0) != (delta < 0))
        rest = 0;
    rest += delta;
    const int notches = rest / WHEEL_DELTA * WHEEL_DELTA;
    rest -= notches;
    return notches;
}

}

void HostWidget::mousePressEvent(QMouseEvent* event)
{
    postButton(*event, true, false);
}

void HostWidget::mouseReleaseEvent(QMouseEvent* event)
{
    postButton(*event, false, false);
}

void HostWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    postButton(*event, true, true);
}

void HostWidget::mouseMoveEvent(QMouseEvent* event)
{
    postMove(*event);
}

void HostWidget::wheelEvent(QWheelEvent* event)
{
    const QPoint screen = event->globalPosition().toPoint();
    if (event->phase() == Qt::ScrollBegin || event->phase() == Qt::ScrollEnd)
        m_wheelRest = {};
    if (const int up = takeNotches(m_wheelRest.ry(), event->angleDelta().y()))
        postInput(MouseInput{WM_MOUSEWHEEL, screen, up, false, event->modifiers()});
    if (const int right = takeNotches(m_wheelRest.rx(), -event->angleDelta().x()))
        postInput(MouseInput{WM_MOUSEHWHEEL, screen, right, false, event->modifiers()});
    event->accept();
}

void HostWidget::keyPressEvent(QKeyEvent* event)
{
    postKey(*event, false);
}

void HostWidget::keyReleaseEvent(QKeyEvent* event)
{
    if (!event->isAutoRepeat())
        postKey(*event, true);
}

HostWidget& hostOf(Window& root)
{
    if (!root.host) {
        application();
        installAccessibility();
        root.host = new HostWidget(root);
    }
    return *root.host;
}

void followWindow(Window& root, bool mayActivate)
{
    if (root.is(WS_VISIBLE))
        hostOf(root);
    if (root.host)
        root.host->follow(mayActivate);
}

void destroyHost(Window& root)
{
    if (HostWidget* const host = std::exchange(root.host, nullptr))
        host->abandon();
}

}

QWidget* QWidgetFromWindow(HWND handle)
{
    using namespace winapi;
    const WindowPtr window = findWindow(handle);
    return window && window->parent && window->isTopLevel() ? &hostOf(*window) : nullptr;
}

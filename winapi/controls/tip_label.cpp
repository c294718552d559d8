// The little window that shows a tip: its look and its place.
#include "tip_label.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>
#include <QWindow>

namespace winapi {

namespace {

// Pixels between the pointer and the tip.
constexpr int kBelowPointer = 20;
constexpr int kAbovePointer = 4;

QRect placeInside(const QRect& screen, QPoint pointer, QSize size)
{
    QRect place(pointer + QPoint(0, kBelowPointer), size);
    if (place.bottom() > screen.bottom())
        place.moveBottom(pointer.y() - kAbovePointer);
    if (place.right() > screen.right())
        place.moveRight(screen.right());
    place.moveLeft(std::max(place.left(), screen.left()));
    place.moveTop(std::max(place.top(), screen.top()));
    return place;
}

}

TipLabel::TipLabel()
    : QLabel(nullptr, Qt::ToolTip | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)
{
    constexpr int kInside = 3;
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setPalette(QToolTip::palette());
    setFont(QToolTip::font());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(kInside);
}

QRect TipLabel::showAt(QPoint pointer, QString text, QWidget* owner)
{
    setText(text.replace("\r\n", " ").replace('\n', ' '));
    adjustSize();

    const QScreen* const under = QGuiApplication::screenAt(pointer);
    const QScreen* const screen = under ? under : QGuiApplication::primaryScreen();
    const QRect place = placeInside(screen->availableGeometry(), pointer, size());
    // Wayland places a tip relative to the window that it belongs to.
    winId();
    if (owner)
        windowHandle()->setTransientParent(owner->window()->windowHandle());
    setGeometry(place);
    show();
    return place;
}

}

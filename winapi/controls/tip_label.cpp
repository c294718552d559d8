#include "tip_label.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>
#include <QWindow>

namespace winapi {

namespace {

constexpr int belowPointer = 20;
constexpr int abovePointer = 4;

QRect placeInside(const QRect& screen, QPoint pointer, QSize size)
{
    QRect place(pointer + QPoint(0, belowPointer), size);
    if (place.bottom() > screen.bottom())
        place.moveBottom(pointer.y() - abovePointer);
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
    constexpr int inside = 3;
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setPalette(QToolTip::palette());
    setFont(QToolTip::font());
    setForegroundRole(QPalette::ToolTipText);
    setBackgroundRole(QPalette::ToolTipBase);
    setAutoFillBackground(true);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setMargin(inside);
}

QRect TipLabel::showAt(QPoint pointer, const QString& text, int maxWidth, QWidget* above)
{
    QString shown = text;
    if (maxWidth < 0)
        shown.replace("\r\n", " ").replace('\n', ' ');
    setWordWrap(maxWidth >= 0);
    setMaximumWidth(maxWidth >= 0 ? maxWidth : QWIDGETSIZE_MAX);
    setText(shown);
    adjustSize();

    const QScreen* const under = QGuiApplication::screenAt(pointer);
    const QScreen* const screen = under ? under : QGuiApplication::primaryScreen();
    const QRect place = placeInside(screen->availableGeometry(), pointer, size());
    // Wayland places a tip by the window that it belongs to.
    winId();
    if (above)
        windowHandle()->setTransientParent(above->window()->windowHandle());
    setGeometry(place);
    show();
    return place;
}

}

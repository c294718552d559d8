// Draws the square fine enough for dense screens, and asks for a colour with Qt's own dialog.
#include "color_button.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

QIcon swatch(const QColor& color)
{
    constexpr int kSide = 14;
    constexpr int kDensity = 3; // pixels for a logical one
    QPixmap pixmap(kSide * kDensity, kSide * kDensity);
    pixmap.setDevicePixelRatio(kDensity);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawRect(QRectF(0.5, 0.5, kSide - 1, kSide - 1));
    return pixmap;
}

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent)
{
    connect(this, &QPushButton::clicked, this, &ColorButton::choose);
}

void ColorButton::setColor(const QColor& color)
{
    if (color == m_color)
        return;
    m_color = color;
    setIcon(swatch(color));
    setText(color.name());
    Q_EMIT colorChanged(color);
}

void ColorButton::choose()
{
    const QColor color = QColorDialog::getColor(m_color, this);
    if (color.isValid())
        setColor(color);
}

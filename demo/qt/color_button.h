// How colours are shown and chosen: a small square for lists, and a button with a dialog.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPushButton>

// A small square of the colour; empty if the colour is not valid.
QIcon swatch(const QColor& color);

class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ColorButton(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged(const QColor& color);

private:
    void choose();

    QColor m_color;
};

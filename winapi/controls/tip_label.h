// The little window that shows a tip.
#pragma once

#include <QLabel>

namespace winapi {

class TipLabel : public QLabel
{
public:
    TipLabel();

    // Shows plain text below the pointer, or above it where the screen ends. A width of -1 means one line.
    // Returns the place on the screen.
    QRect showAt(QPoint pointer, const QString& text, int maxWidth, QWidget* above);
};

}

// The little window that shows a tip.
#pragma once

#include <QLabel>

namespace winapi {

class TipLabel : public QLabel
{
public:
    TipLabel();

    // Shows plain text in one line below the pointer, or above it where the screen ends. `owner`, which may
    // be null, stands in the window that the tip belongs to. Gives the place on the screen.
    QRect showAt(QPoint pointer, QString text, QWidget* owner);
};

}

// What the user does with mouse and keyboard, before it is known which window it is for.
#pragma once

#include "winuser.h"

#include <QPoint>
#include <QString>

#include <variant>

namespace winapi {

struct MouseInput
{
    UINT message;
    QPoint screen;
    int wheelDelta = 0;
    bool doubleClick = false;
    Qt::KeyboardModifiers modifiers = {};
};
struct KeyInput
{
    int key; // virtual
    bool up;
    bool alt;
    WORD scanCode;
    bool extended;
    QString text;
    Qt::KeyboardModifiers modifiers = {};
};
using Input = std::variant<MouseInput, KeyInput>;

}

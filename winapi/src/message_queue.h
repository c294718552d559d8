// The queue of the thread that owns the windows.
#pragma once

#include "window.h"

#include <QString>

#include <optional>
#include <variant>

namespace winapi {

// What a hand did, before it is known which window it concerns.
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

void postInput(Input input);
// Tells whoever waits, us or a Qt loop, that there may be something to do.
void wakeQueue();

// Turn input into the message of a window; none when no window is concerned. Both send what comes before it.
std::optional<MSG> toMessage(const MouseInput& input);
std::optional<MSG> toMessage(const KeyInput& input);

MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void discardMessagesOf(const Window& window);

// The characters that a key message stands for, when it is posted by a program and no keyboard tells them.
QString charactersOf(int key);

}

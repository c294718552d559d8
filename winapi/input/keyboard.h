// Keys: from Qt's events to messages, and which are down.
#pragma once

#include "hand_input.h"

#include <optional>

class QKeyEvent;

namespace winapi {

// Puts a key of Qt into the queue.
void postKey(const QKeyEvent& event, bool up);
// Puts text into the queue that belongs to no single key.
void postText(const QString& text);

// The message for the window with the focus; none when no window has it. Notes that the key is down, or up.
std::optional<MSG> toMessage(const KeyInput& input);
// The characters of a key message that a program has posted: no keyboard has told them.
QString charactersOf(int key);

// Notes Shift, Control and Alt as an event tells them; another program may have got their own events.
void noteModifiers(Qt::KeyboardModifiers modifiers);
// Notes a key, or a mouse button, as down or up.
void noteKey(int key, bool down);
// Whether it was down at the message taken last.
bool isDown(int key);

}

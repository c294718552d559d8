// The state of the keys, and keys of Qt as virtual keys.
#pragma once

#include "hand_input.h"

#include <optional>

class QKeyEvent;

namespace winapi {

void postKey(const QKeyEvent& event, bool up);
// Text that an input method has made of several keys.
void postText(const QString& text);

// The message that the input makes for the window with the focus, if there is one.
std::optional<MSG> toMessage(const KeyInput& input);
// The characters that a key message stands for, when it is posted by a program and no keyboard tells them.
QString charactersOf(int key);

// Shift, Control and Alt as an event of the window system tells them: their own key events may have gone
// elsewhere.
void noteModifiers(Qt::KeyboardModifiers modifiers);
// As the hand has it now, and as the message at hand has it.
void noteKey(int key, bool down);
void noteKeyOfMessage(int key, bool down);
bool isDown(int key);

}

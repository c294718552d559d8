// The state of the keys, and keys of Qt as virtual keys.
#pragma once

#include "message_queue.h"

class QKeyEvent;

namespace winapi {

void postKey(const QKeyEvent& event, bool up);
// Text that an input method has made of several keys.
void postText(const QString& text);

// Shift, Control and Alt as an event of the window system tells them: their own key events may have gone
// elsewhere.
void noteModifiers(Qt::KeyboardModifiers modifiers);
// As the hand has it now, and as the message at hand has it.
void noteKey(int key, bool down);
void noteKeyOfMessage(int key, bool down);
bool isDown(int key);

}

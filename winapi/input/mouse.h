// The mouse: from its input to messages, and the window that the pointer is on.
#pragma once

#include "hand_input.h"
#include "window.h"

#include <optional>

namespace winapi {

// The message for the window that the input is for, if there is one. What the window hears before that
// message is sent at once: WM_SETCURSOR, and the messages of an activation.
std::optional<MSG> toMessage(const MouseInput& input);

// To be called when the pointer has left a top-level window; no matter if it is in another one already.
void mouseLeft(const Window& root);
// To be called when a window is gone.
void forgetMouse(const Window& window);

// The keys and buttons in wParam of a mouse message.
WPARAM mouseKeys();

}

// The mouse and what follows it.
#pragma once

#include "hand_input.h"
#include "window.h"

#include <optional>

namespace winapi {

// The message that the input makes for the window it concerns, if there is one. What comes before the message is
// sent at once.
std::optional<MSG> toMessage(const MouseInput& input);

void mouseLeft(const Window& root);
void forgetMouse(const Window& window);

// The keys and buttons in wParam of a mouse message.
WPARAM mouseKeys();

}

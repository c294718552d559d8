// The mouse and what follows it.
#pragma once

#include "window.h"

namespace winapi {

void mouseLeft(const Window& root);
void forgetMouse(const Window& window);

// The keys and buttons in wParam of a mouse message.
WPARAM mouseKeys();

}

// The mouse and what follows it.
#pragma once

#include "window.h"

namespace winapi {

void mouseLeftHost();
void forgetMouse(const Window& window);

// The keys and buttons in wParam of a mouse message.
WPARAM mouseKeys();

}

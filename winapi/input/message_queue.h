// The queue of the thread that owns the windows.
#pragma once

#include "hand_input.h"
#include "window.h"

namespace winapi {

void postInput(Input input);
// Tells whoever waits, us or a Qt loop, that there may be something to do.
void wakeQueue();

MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void discardMessagesOf(const Window& window);

}

// The queue of messages and of input.
#pragma once

#include "hand_input.h"
#include "window.h"

namespace winapi {

// Input waits in the queue until its turn comes; only then is it known which window it is for.
void postInput(Input input);
// Tells the loop that waits, the program's or Qt's, that there may be something to do.
void wakeQueue();

// A message of this moment, with the place of the pointer.
MSG makeMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
void discardMessagesOf(const Window& window);

}

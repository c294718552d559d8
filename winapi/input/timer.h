// Timers of windows and of the program.
#pragma once

#include "window.h"

#include <optional>

namespace winapi {

// The message of a timer that is due, of the window or one in it; null means any window. However long a timer
// has been due, it gives one message.
std::optional<MSG> takeDueTimer(HWND window);
void killTimersOf(const Window& window);

}

// Timers of windows.
#pragma once

#include "window.h"

#include <optional>

namespace winapi {

// The message of a timer that is due; each timer has at most one.
std::optional<MSG> takeDueTimer(HWND window);
void killTimersOf(const Window& window);

}

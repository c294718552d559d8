// Who has the keyboard, who is active, who has the mouse.
#pragma once

#include "window.h"

namespace winapi {

enum class ActivatedBy
{
    Program,
    Mouse,
    Host, // the window system has given us the keyboard already
};

// Makes a top-level window the active one, or none. True when it is active then.
bool activate(Window* root, ActivatedBy by);

// A window goes, for a time or for good: focus, activation and capture leave it.
void leaveHidden(Window& window);
void leaveDestroyed(Window& window);

}

// Which window has the keyboard, which is active, and which has captured the mouse.
#pragma once

#include "window.h"

namespace winapi {

enum class ActivatedBy
{
    Program,
    Mouse,
    Host, // the window system, which has given the keyboard to the window already
};

// Makes a top-level window the active one, or with null none. True when it is active afterwards.
bool activate(Window* root, ActivatedBy by);

// Take focus, activation and capture away from a window that is hidden, or destroyed.
void leaveHidden(Window& window);
void leaveDestroyed(Window& window);
// The window is gone, and no message can be sent any more.
void forgetFocus(const Window& window);

// All mouse input goes to the window that has the capture, wherever the pointer is.
void setCapture(HWND window);
HWND captureHolder();
// Ends the capture, if the window has it.
void releaseCapture(HWND window);

}

// Which window stands in which, and where.
#pragma once

#include "window.h"

namespace winapi {

Window& desktop();
Window& rootOf(Window& window); // the top-level window above
bool isDescendant(const Window& ancestor, const Window& window);
void linkWindow(Window& window, Window& parent, HWND insertAfter);
void unlinkWindow(Window& window);

QPoint originInRoot(const Window& window);
QPoint screenOrigin(const Window& window);

// The window at a place of the screen that mouse input goes to; null outside of all windows. Sends
// WM_NCHITTEST.
WindowPtr hitTest(QPoint screen);

}

// The size and the place of windows, and what windows hear about them.
#pragma once

#include "window.h"

namespace winapi {

// Flags of WM_WINDOWPOSCHANGED that no caller sets: the client area has kept its size, its place.
constexpr UINT kNoClientSize = 0x0800;
constexpr UINT kNoClientMove = 0x1000;

// Place and size as far as messages can tell them, which is by 16 bits each.
QPoint placeWithin(int x, int y);
QSize sizeWithin(int width, int height);

// Places a window in its parent's client area, or on the screen. Some of the flags SWP_ say what stays as it
// is, others show or hide the window; without SWP_NOZORDER it becomes the topmost among its siblings.
bool placeWindow(HWND handle, const QRect& rect, UINT flags);

// Sends WM_SIZE and WM_MOVE to a window that appears for the first time.
void tellSizeAndPlace(Window& window);

}

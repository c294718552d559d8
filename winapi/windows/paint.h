// Contexts of windows.
#pragma once

#include "window.h"

namespace winapi {

// Releases the contexts that are still open on a top-level window that goes.
void releaseContextsOf(const Window& root);

// Sends WM_PAINT to the window, and to what is below it, where something is to be painted.
void paintNow(HWND window, bool children);

}

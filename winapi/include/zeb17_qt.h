// Windows of this system in a Qt application.
#pragma once

#include <windows.h>

class QWidget;

// The widget that stands for a top-level window; made on the first call. It may be shown by itself or put
// into a layout of a Qt application, whose loop then serves the window's messages. It belongs to the window:
// destroying either destroys the other. Null for anything else than a top-level window.
__attribute__((visibility("default"))) QWidget* QWidgetFromWindow(HWND window);

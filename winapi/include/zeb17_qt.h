// How a Qt application takes in a window made by the Windows calls.
#pragma once

#include <windows.h>

class QWidget;

// The widget that stands for a top-level window, made on the first call; null for any other window. It may be
// shown by itself or put into a layout of a Qt application, whose loop then serves the window's messages.
// Destroying the window destroys the widget, and the other way round.
__attribute__((visibility("default"))) QWidget* QWidgetFromWindow(HWND window);

// The windows as Qt tells the desktop of them: the widget of a top-level window, below it its child windows,
// and below each the items that its object lists.
#pragma once

#include "oleacc.h"
#include "window.h"

#include <QAccessibleInterface>

namespace winapi {

// Null for a window that is not shown.
QAccessibleInterface* accessibleOf(Window& window);
QAccessibleInterface* accessibleOf(Window& window, LONG item);

// The items of the window are others now.
void forgetAccessibleItems(HWND window);

}

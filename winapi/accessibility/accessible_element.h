// What Qt shows the desktop of our windows: the widget of a top-level window, below it the child windows, and
// below each of these the items that its object lists.
#pragma once

#include "oleacc.h"
#include "window.h"

#include <QAccessibleInterface>

namespace winapi {

// The element of a window; null for a top-level window without a widget.
QAccessibleInterface* accessibleOf(Window& window);
// The element of an item, by its number in the window's object.
QAccessibleInterface* accessibleOf(Window& window, LONG item);

// To be called when the items of a window have changed: they get new elements.
void forgetAccessibleItems(HWND window);

}

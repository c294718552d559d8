// The windows as Qt tells the desktop of them: the widget of a top-level window, below it its child windows,
// and below each the items that its object lists.
#pragma once

#include "oleacc.h"
#include "window.h"

#include <QAccessibleInterface>

namespace winapi {

// From now on Qt asks us about our widgets. Once is enough, more does no harm.
void installAccessibility();

// Null for a window that is not shown.
QAccessibleInterface* accessibleOf(Window& window);
QAccessibleInterface* accessibleOf(Window& window, LONG item);

// Tells of the window or item below the widget that has the focus, if one has.
void tellFocusBelow(QWidget& host);

// The items are others now, or the window is gone.
void forgetAccessibleItems(HWND window);
void forgetAccessible(HWND window);

}

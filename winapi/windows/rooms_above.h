// What windows ask of the rooms that stand above them. Those rooms define these functions; the linker brings both
// together, so that no header of theirs is needed here.
#pragma once

#include "winuser.h"

class QWidget;

namespace winapi {

// `controls`: registers the classes of the system's controls.
void registerSystemClasses();

// `controls`: lets the tool tips that asked for it (TTF_SUBCLASS) see a message that is about to be dispatched.
void showToToolTips(const MSG& message);

// `accessibility`: from now on Qt asks about the widgets of our windows. Once is enough, more does no harm.
void installAccessibility();
// `accessibility`: tells of the window or item below the widget that has the focus, if one has.
void tellFocusBelow(QWidget& host);
// `accessibility`: the window is gone.
void forgetAccessible(HWND window);

}

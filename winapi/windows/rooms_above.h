// What windows ask of the rooms that stand above them. Each function is defined in the room that its comment
// names; the linker brings caller and function together, so windows include no header of those rooms.
#pragma once

#include "winuser.h"

class QWidget;

namespace winapi {

struct Window;

// `controls`: registers the classes of the system's controls.
void registerSystemClasses();

// `menus`: closes the menu that is open, if one is; only one of the window or of one below it.
void endMenu();
void endMenuOf(const Window& window);

// `accessibility`: makes Qt show the child windows below the widget of each top-level window. May be called
// again.
void installAccessibility();
// `accessibility`: announces the child window or the item below the widget that has the focus, if one has it.
void tellFocusBelow(QWidget& host);
// `accessibility`: to be called when a window is gone.
void forgetAccessible(HWND window);

}

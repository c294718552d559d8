// Which window stands in which, in which order, and where.
#pragma once

#include "window.h"

#include <functional>

namespace winapi {

Window& desktop();              // the parent of all top-level windows
Window& rootOf(Window& window); // the top-level window above; itself, if it is one
bool isDescendant(const Window& ancestor, const Window& window);
std::vector<Window*> shownChildren(const Window& window);

// Makes a window the lowest of the children of another.
void linkWindow(Window& window, Window& parent);
// Makes a window the topmost among its siblings.
void raiseWindow(Window& window);
void unlinkWindow(Window& window);

// Sends WM_PARENTNOTIFY to each window above a child, the nearest first, as long as both live. `detailFor`
// gives the lParam for a parent.
void notifyAncestors(Window& window, WPARAM event,
                     const std::function<LPARAM(const Window& parent)>& detailFor);

QPoint originInRoot(const Window& window);
QPoint screenOrigin(const Window& window);

// The window that mouse input at a place of the screen goes to, null outside of all windows.
WindowPtr hitTest(QPoint screen);

}

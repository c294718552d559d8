// What of a window can be seen, and what of it is to be painted.
#pragma once

#include "window.h"

namespace winapi {

// What a window shows of itself, in coordinates of its top-level window: without what hides it, as its style
// asks.
QRegion visibleRegion(const Window& window);
// The same with its children.
QRegion exposedRegion(const Window& window);

enum class Children
{
    ByStyle, // those of windows that don't leave their children out
    All,
    None,
};

// Both take client coordinates and nothing of a window that isn't visible.
void invalidate(Window& window, const QRegion& region, bool erase, Children children);
void validate(Window& window, const QRegion& region, Children children);

// The next window that is to be painted, parents first; null when all is painted.
WindowPtr nextToPaint();
void discardUpdates(Window& window); // with its children

// After a window was moved, sized, shown or hidden: moves the pixels that are kept and invalidates the rest.
// `before` is what it exposed then, in coordinates of its top-level window.
struct Exposure
{
    QRegion region;
    QPoint origin;
};
Exposure exposureOf(const Window& window);
void repaintAfterChange(Window& window, const Exposure& before, bool keepPixels);

}

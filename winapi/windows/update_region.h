// What of a window can be seen, and what of it is to be painted.
#pragma once

#include "window.h"

namespace winapi {

// The part of a window that the windows above it let through, in coordinates of the top-level window.
QRegion exposedRegion(const Window& window);
// The part of it that drawing reaches: without its children, if its style asks for that (WS_CLIPCHILDREN).
QRegion visibleRegion(const Window& window);

// Which children are to be painted along with a window.
enum class Children
{
    ByStyle, // all, but not below a window with WS_CLIPCHILDREN
    All,
};

// Adds to what is to be painted, as far as it can be seen. The region is in client coordinates.
void invalidate(Window& window, const QRegion& region, bool erase, Children children);
// Takes away from what is to be painted of the window, but not of its children.
void validate(Window& window, const QRegion& region);

// The next window that is to be painted, parents first; null when all is painted.
WindowPtr nextToPaint();

// What a window exposes at some time, and where it stands, in coordinates of its top-level window.
struct Exposure
{
    QRegion region;
    QPoint origin;
};
Exposure exposureOf(const Window& window);

// After a window was moved, sized, shown or hidden: moves the pixels that can be kept and invalidates the
// rest. `before` is its exposure before the change.
void repaintAfterChange(Window& window, const Exposure& before, bool keepPixels);

}

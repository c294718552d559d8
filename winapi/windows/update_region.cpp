// What can be seen of each window, and what of it is to be painted.
#include "update_region.h"

#include "message_queue.h"
#include "window_surface.h"
#include "window_tree.h"

namespace winapi {

namespace {

QRegion clippedByAncestors(const Window& window)
{
    QRegion region = window.clientRect().translated(originInRoot(window));
    for (const Window* w = &window; w->parent && !w->isTopLevel(); w = w->parent)
        region &= w->parent->clientRect().translated(originInRoot(*w->parent));
    return region;
}

}

QRegion exposedRegion(const Window& window)
{
    return window.isVisible() ? clippedByAncestors(window) : QRegion();
}

QRegion visibleRegion(const Window& window)
{
    QRegion region = exposedRegion(window);
    if (!window.is(WS_CLIPCHILDREN))
        return region;
    const QPoint origin = originInRoot(window);
    for (const Window* child : shownChildren(window))
        region -= child->rect.translated(origin);
    return region;
}

namespace {

bool includesChildren(const Window& window, Children children)
{
    return children == Children::All || (children == Children::ByStyle && !window.is(WS_CLIPCHILDREN));
}

template <class Change>
void forEachWithin(Window& window, const QRegion& region, Children children, Change change)
{
    const QRegion inside = region & window.clientRect();
    if (inside.isEmpty())
        return;
    change(window, inside);
    if (!includesChildren(window, children))
        return;
    for (Window* child : shownChildren(window))
        forEachWithin(*child, inside.translated(-child->rect.topLeft()), children, change);
}

QRegion withoutChildren(const Window& window, QRegion region)
{
    if (!window.is(WS_CLIPCHILDREN))
        return region;
    for (const Window* child : shownChildren(window))
        region -= child->rect;
    return region;
}

}

void invalidate(Window& window, const QRegion& region, bool erase, Children children)
{
    if (!window.isVisible())
        return;
    const QRegion seen = exposedRegion(window).translated(-originInRoot(window));
    forEachWithin(window, region & seen, children, [&](Window& target, const QRegion& part) {
        target.update += withoutChildren(target, part);
        // A child that is invalidated along with its parent is always erased.
        target.eraseUpdate |= erase || &target != &window;
    });
    wakeQueue();
}

void validate(Window& window, const QRegion& region)
{
    window.update -= region;
    if (window.update.isEmpty())
        window.eraseUpdate = false;
}

namespace {

Window* firstToPaint(Window& window)
{
    if (!window.is(WS_VISIBLE))
        return nullptr;
    if (!window.update.isEmpty())
        return &window;
    for (Window* child : window.children) {
        if (Window* const found = firstToPaint(*child))
            return found;
    }
    return nullptr;
}

}

WindowPtr nextToPaint()
{
    for (Window* root : desktop().children) {
        if (const Window* const found = firstToPaint(*root))
            return findWindow(found->handle);
    }
    return nullptr;
}

Exposure exposureOf(const Window& window)
{
    return {exposedRegion(window), originInRoot(window)};
}

namespace {

void discardUpdates(Window& window)
{
    window.update = QRegion();
    window.eraseUpdate = false;
    for (Window* child : window.children)
        discardUpdates(*child);
}

}

void repaintAfterChange(Window& window, const Exposure& before, bool keepPixels)
{
    const Exposure now = exposureOf(window);
    if (!window.isTopLevel()) {
        Window& parent = *window.parent;
        const QRegion uncovered = before.region - now.region;
        invalidate(parent, uncovered.translated(-originInRoot(parent)), true, Children::All);
    }
    if (!window.isVisible()) {
        discardUpdates(window);
        return;
    }
    QRegion kept;
    const QPoint delta = now.origin - before.origin;
    if (keepPixels && surfaceOf(rootOf(window)).canCopy(delta)) {
        kept = before.region.translated(delta) & now.region;
        surfaceOf(rootOf(window)).copy(kept, delta);
    }
    invalidate(window, (now.region - kept).translated(-now.origin), true, Children::All);
}

}

#include "update_region.h"

#include "message_queue.h"
#include "paint.h"
#include "window_surface.h"
#include "window_tree.h"

namespace winapi {

namespace {

// The part of `window` that its ancestors let through, less what its upper siblings hide.
QRegion clippedRegion(const Window& window)
{
    QPoint origin = originInRoot(window);
    QRegion region = window.clientRect().translated(origin);
    for (const Window* w = &window; w->parent && !w->isTopLevel(); w = w->parent) {
        const QPoint parentOrigin = originInRoot(*w->parent);
        region &= w->parent->clientRect().translated(parentOrigin);
        if (!w->is(WS_CLIPSIBLINGS))
            continue;
        for (const Window* sibling : w->parent->children) {
            if (sibling == w)
                break;
            if (sibling->is(WS_VISIBLE))
                region -= sibling->rect.translated(parentOrigin);
        }
    }
    return region;
}

}

QRegion exposedRegion(const Window& window)
{
    return window.isVisible() ? clippedRegion(window) : QRegion();
}

QRegion visibleRegion(const Window& window)
{
    QRegion region = exposedRegion(window);
    if (!window.is(WS_CLIPCHILDREN))
        return region;
    const QPoint origin = originInRoot(window);
    for (const Window* child : window.children) {
        if (child->is(WS_VISIBLE))
            region -= child->rect.translated(origin);
    }
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
    for (Window* child : window.children) {
        if (child->is(WS_VISIBLE))
            forEachWithin(*child, inside.translated(-child->rect.topLeft()), children, change);
    }
}

QRegion withoutChildren(const Window& window, QRegion region)
{
    if (!window.is(WS_CLIPCHILDREN))
        return region;
    for (const Window* child : window.children) {
        if (child->is(WS_VISIBLE))
            region -= child->rect;
    }
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
        // A child that is hit along with its parent starts from a clean ground.
        target.eraseUpdate |= erase || &target != &window;
    });
    wakeQueue();
}

void validate(Window& window, const QRegion& region, Children children)
{
    forEachWithin(window, region, children, [](Window& target, const QRegion& part) {
        target.update -= part;
        if (target.update.isEmpty())
            target.eraseUpdate = false;
    });
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

void discardUpdates(Window& window)
{
    window.update = QRegion();
    window.eraseUpdate = false;
    for (Window* child : window.children)
        discardUpdates(*child);
}

Exposure exposureOf(const Window& window)
{
    return {exposedRegion(window), originInRoot(window)};
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

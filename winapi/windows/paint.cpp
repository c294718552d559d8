#include "paint.h"

#include "context.h"
#include "geometry.h"
#include "update_region.h"
#include "window_surface.h"
#include "window_tree.h"

#include <map>

namespace winapi {

namespace {

struct OpenContext
{
    HWND window;
    HWND root; // null for the screen
};

std::map<HDC, OpenContext>& openContexts()
{
    static std::map<HDC, OpenContext> contexts;
    return contexts;
}

HDC openContext(Window& window, const QRegion& clip)
{
    Window& root = rootOf(window);
    const HDC dc = createContext(surfaceOf(root), originInRoot(window), clip);
    if (dc)
        openContexts()[dc] = {window.handle, root.handle};
    return dc;
}

bool closeContext(HDC dc)
{
    if (!openContexts().erase(dc))
        return false;
    destroyContext(dc);
    return true;
}

}

void releaseContextsOf(const Window& root)
{
    std::erase_if(openContexts(), [&](const auto& entry) {
        if (entry.second.root != root.handle)
            return false;
        destroyContext(entry.first);
        return true;
    });
}

void paintNow(HWND handle, bool children)
{
    WindowPtr window = findWindow(handle);
    if (!window || !window->isVisible())
        return;
    if (!window->update.isEmpty())
        SendMessageA(handle, WM_PAINT, 0, 0);
    if (!children || !isAlive(*window))
        return;
    std::vector<HWND> below;
    for (const Window* child : window->children)
        below.push_back(child->handle);
    for (const HWND child : below)
        paintNow(child, true);
}

}

using namespace winapi;

HDC GetDC(HWND handle)
{
    if (!handle || handle == GetDesktopWindow()) {
        const HDC dc = createScreenContext();
        openContexts()[dc] = {handle, nullptr};
        return dc;
    }
    const WindowPtr window = findWindow(handle);
    return window ? openContext(*window, visibleRegion(*window)) : nullptr;
}

HDC GetWindowDC(HWND handle)
{
    return GetDC(handle);
}

int ReleaseDC(HWND, HDC dc)
{
    return closeContext(dc);
}

HWND WindowFromDC(HDC dc)
{
    const auto found = openContexts().find(dc);
    return found == openContexts().end() ? nullptr : found->second.window;
}

HDC BeginPaint(HWND handle, LPPAINTSTRUCT paint)
{
    const WindowPtr window = findWindow(handle);
    if (!window || !paint)
        return nullptr;
    const QRegion update = std::exchange(window->update, QRegion());
    const bool erase = std::exchange(window->eraseUpdate, false);

    const QRegion clip = visibleRegion(*window) & update.translated(originInRoot(*window));
    *paint = {};
    paint->hdc = openContext(*window, clip);
    if (!paint->hdc)
        return nullptr;
    paint->rcPaint = toRect(update.boundingRect());
    if (erase)
        paint->fErase = !SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(paint->hdc), 0);
    return paint->hdc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint)
{
    if (paint)
        closeContext(paint->hdc);
    return TRUE;
}

namespace {

// The region counts, if there is one.
QRegion regionOf(const Window& window, const RECT* rect, HRGN region)
{
    if (const auto given = findObject<Region>(region))
        return given->region;
    return rect ? toQRect(*rect).normalized() : window.clientRect();
}

}

BOOL InvalidateRect(HWND handle, const RECT* rect, BOOL erase)
{
    return RedrawWindow(handle, rect, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0));
}

BOOL ValidateRect(HWND handle, const RECT* rect)
{
    return RedrawWindow(handle, rect, nullptr, RDW_VALIDATE | RDW_NOCHILDREN);
}

BOOL RedrawWindow(HWND handle, const RECT* rect, HRGN region, UINT flags)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    const Children children = flags & RDW_ALLCHILDREN  ? Children::All
                              : flags & RDW_NOCHILDREN ? Children::None
                                                       : Children::ByStyle;
    if (flags & RDW_INVALIDATE)
        invalidate(*window, regionOf(*window, rect, region), flags & RDW_ERASE, children);
    else if (flags & RDW_VALIDATE)
        validate(*window, regionOf(*window, rect, region), children);
    if (flags & RDW_UPDATENOW)
        paintNow(handle, !(flags & RDW_NOCHILDREN));
    return TRUE;
}

BOOL UpdateWindow(HWND handle)
{
    return RedrawWindow(handle, nullptr, nullptr, RDW_UPDATENOW);
}

BOOL GetUpdateRect(HWND handle, LPRECT rect, BOOL erase)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    if (rect)
        *rect = toRect(window->update.boundingRect());
    if (erase && window->eraseUpdate && !window->update.isEmpty()) {
        const HDC dc =
            openContext(*window, visibleRegion(*window) & window->update.translated(originInRoot(*window)));
        window->eraseUpdate = !SendMessageA(handle, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
        closeContext(dc);
    }
    return !window->update.isEmpty();
}

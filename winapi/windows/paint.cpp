// Painting windows: their contexts, and what of them is to be painted.
#include "paint.h"

#include "context.h"
#include "geometry.h"
#include "update_region.h"
#include "window_surface.h"
#include "window_tree.h"

#include <map>

namespace winapi {

namespace {

enum class Purpose
{
    Paint, // BeginPaint made the context
    Other,
};

struct OpenContext
{
    HWND root; // the top-level window that the context draws on; null for the screen
    Purpose purpose;
};

std::map<HDC, OpenContext>& openContexts()
{
    static auto& contexts = *new std::map<HDC, OpenContext>;
    return contexts;
}

HDC openContext(Window& window, const QRegion& clip, Purpose purpose)
{
    Window& root = rootOf(window);
    WindowSurface& surface = surfaceOf(root);
    const HDC dc = createContext(surface, originInRoot(window), clip);
    openContexts()[dc] = {root.handle, purpose};
    if (purpose == Purpose::Paint)
        surface.beginPaint();
    return dc;
}

bool closeContext(HDC dc)
{
    const auto node = openContexts().extract(dc);
    if (!node)
        return false;
    destroyContext(dc);
    const auto [root, purpose] = node.mapped();
    const WindowPtr window = purpose == Purpose::Paint ? findWindow(root) : nullptr;
    if (window)
        surfaceOf(*window).endPaint();
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

}

using namespace winapi;

HDC GetDC(HWND handle)
{
    if (!handle || handle == desktop().handle) {
        const HDC dc = createScreenContext();
        openContexts()[dc] = {nullptr, Purpose::Other};
        return dc;
    }
    const WindowPtr window = findWindow(handle);
    return window ? openContext(*window, visibleRegion(*window), Purpose::Other) : nullptr;
}

int ReleaseDC(HWND, HDC dc)
{
    return closeContext(dc);
}

HDC BeginPaint(HWND handle, LPPAINTSTRUCT paint)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window || !paint)
        return nullptr;
    const QRegion update = std::exchange(window->update, QRegion());
    const bool erase = std::exchange(window->eraseUpdate, false);

    const QRegion clip = visibleRegion(*window) & update.translated(originInRoot(*window));
    *paint = {};
    paint->hdc = openContext(*window, clip, Purpose::Paint);
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

QRegion regionOf(const Window& window, const RECT* rect)
{
    return rect ? toQRect(*rect).normalized() : window.clientRect();
}

// Sends WM_PAINT to the window and to its children, where something waits to be painted.
void paintNow(HWND handle)
{
    const EndedWindowsKept kept;
    const WindowPtr window = findWindow(handle);
    if (!window || !window->isVisible())
        return;
    if (!window->update.isEmpty())
        SendMessageA(handle, WM_PAINT, 0, 0);
    if (!isAlive(*window))
        return;
    std::vector<HWND> below;
    for (const Window* child : window->children)
        below.push_back(child->handle);
    for (const HWND child : below)
        paintNow(child);
}

}

BOOL InvalidateRect(HWND handle, const RECT* rect, BOOL erase)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    invalidate(*window, regionOf(*window, rect), erase, Children::ByStyle);
    return TRUE;
}

BOOL ValidateRect(HWND handle, const RECT* rect)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    validate(*window, regionOf(*window, rect));
    return TRUE;
}

BOOL UpdateWindow(HWND handle)
{
    if (!findWindow(handle))
        return FALSE;
    paintNow(handle);
    return TRUE;
}

BOOL GetUpdateRect(HWND handle, LPRECT rect, BOOL)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return FALSE;
    if (rect)
        *rect = toRect(window->update.boundingRect());
    return !window->update.isEmpty();
}

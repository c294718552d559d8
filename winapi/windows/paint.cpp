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

// The contexts that are open, each with the top-level window that it draws on; null for the screen.
std::map<HDC, HWND>& openContexts()
{
    static auto& contexts = *new std::map<HDC, HWND>;
    return contexts;
}

HDC openContext(Window& window, const QRegion& clip)
{
    Window& root = rootOf(window);
    const HDC dc = createContext(surfaceOf(root), originInRoot(window), clip);
    if (dc)
        openContexts()[dc] = root.handle;
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
        if (entry.second != root.handle)
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
        openContexts()[dc] = nullptr;
        return dc;
    }
    const WindowPtr window = findWindow(handle);
    return window ? openContext(*window, visibleRegion(*window)) : nullptr;
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

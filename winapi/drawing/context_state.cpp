// What a context holds: selected objects, colours and modes, and the mapping of coordinates.
#include "context.h"
#include "overload.h"

#include <algorithm>
#include <utility>

using namespace winapi;

namespace {

// Puts `object` in the place of `current` and gives the handle that stood there.
template <class Kind>
HGDIOBJ select(Selected<Kind>& current, const Selected<Kind>& object)
{
    return std::exchange(current, object).handle;
}

HGDIOBJ selectBitmap(Context& context, const Selected<Bitmap>& bitmap)
{
    if (!context.isMemory() || (bitmap->selected && bitmap.object != context.state.bitmap.object))
        return nullptr;
    const HGDIOBJ old = context.state.bitmap.handle;
    context.selectBitmap(bitmap);
    return old;
}

// Stores `value` and gives the value before it, or `failure` if there is no such context.
template <class Value, class Argument>
Value exchangeState(HDC dc, Value DrawingState::*member, Argument value, Value failure)
{
    const auto context = findContext(dc);
    return context ? std::exchange(context->state.*member, static_cast<Value>(value)) : failure;
}

BOOL exchangePoint(QPoint& current, QPoint point, POINT* old)
{
    const QPoint before = std::exchange(current, point);
    if (old)
        *old = {before.x(), before.y()};
    return TRUE;
}

void mapPoints(POINT* points, int count, const QTransform& transform)
{
    std::for_each_n(points, std::max(count, 0), [&transform](POINT& point) {
        const QPoint mapped = transform.map(QPointF(point.x, point.y)).toPoint();
        point = {mapped.x(), mapped.y()};
    });
}

BOOL setExtent(HDC dc, QSize Mapping::*member, QSize extent, SIZE* old)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const QSize before = context->mapping().*member;
    if (old)
        *old = {before.width(), before.height()};
    // While a logical unit is a pixel, the extents stay 1, and the call succeeds.
    if (context->mapping().mode != MM_ANISOTROPIC)
        return TRUE;
    if (extent.width() == 0 || extent.height() == 0)
        return FALSE;
    context->changeMapping().*member = extent;
    return TRUE;
}

}

int SetMapMode(HDC dc, int mode)
{
    const auto context = findContext(dc);
    if (!context || (mode != MM_TEXT && mode != MM_ANISOTROPIC))
        return 0;
    Mapping& mapping = context->changeMapping();
    if (mode == MM_TEXT)
        mapping.windowExtent = mapping.viewportExtent = {1, 1};
    return std::exchange(mapping.mode, mode);
}

BOOL SetWindowExtEx(HDC dc, int width, int height, SIZE* old)
{
    return setExtent(dc, &Mapping::windowExtent, {width, height}, old);
}

BOOL SetViewportExtEx(HDC dc, int width, int height, SIZE* old)
{
    return setExtent(dc, &Mapping::viewportExtent, {width, height}, old);
}

BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old)
{
    const auto context = findContext(dc);
    return context && exchangePoint(context->changeMapping().windowOrigin, {x, y}, old);
}

BOOL MoveToEx(HDC dc, int x, int y, POINT* old)
{
    const auto context = findContext(dc);
    return context && exchangePoint(context->state.position, {x, y}, old);
}

BOOL DPtoLP(HDC dc, POINT* points, int count)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    mapPoints(points, count, context->toDevice().inverted());
    return TRUE;
}

COLORREF SetBkColor(HDC dc, COLORREF color)
{
    return exchangeState(dc, &DrawingState::backgroundColor, color, CLR_INVALID);
}

int SetBkMode(HDC dc, int mode)
{
    if (mode != TRANSPARENT && mode != OPAQUE)
        return 0;
    return exchangeState(dc, &DrawingState::backgroundMode, mode, 0);
}

COLORREF SetTextColor(HDC dc, COLORREF color)
{
    return exchangeState(dc, &DrawingState::textColor, color, CLR_INVALID);
}

HGDIOBJ SelectObject(HDC dc, HGDIOBJ handle)
{
    const auto context = findContext(dc);
    const auto object = findObject(handle);
    if (!context || !object)
        return nullptr;
    const auto selected = [&](auto& kind) {
        using Kind = std::remove_reference_t<decltype(kind)>;
        return Selected<Kind>{handle, std::shared_ptr<Kind>(object, &kind)};
    };
    return std::visit(Overload{
                          [&](Pen& pen) { return select(context->state.pen, selected(pen)); },
                          [&](Brush& brush) { return select(context->state.brush, selected(brush)); },
                          [&](Font& font) { return select(context->state.font, selected(font)); },
                          [&](Bitmap& bitmap) { return selectBitmap(*context, selected(bitmap)); },
                      },
                      *object);
}

// Regions, and the part of a context that drawing is confined to.
#include "context.h"
#include "geometry.h"

namespace winapi {

namespace {

int kindOf(const QRegion& region)
{
    if (region.isEmpty())
        return NULLREGION;
    return region.rectCount() == 1 ? SIMPLEREGION : COMPLEXREGION;
}

QRegion fromSides(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right - 1, bottom - 1)).normalized();
}

int setClip(Context& context, std::optional<QRegion> clip)
{
    context.state.clip = std::move(clip);
    return kindOf(context.drawable());
}

}

}

using namespace winapi;

HRGN CreateRectRgn(int left, int top, int right, int bottom)
{
    return static_cast<HRGN>(addObject(Region{fromSides(left, top, right, bottom)}));
}

HRGN CreateRectRgnIndirect(const RECT* rect)
{
    return rect ? CreateRectRgn(rect->left, rect->top, rect->right, rect->bottom) : nullptr;
}

int GetRgnBox(HRGN handle, RECT* box)
{
    const auto region = findObject<Region>(handle);
    if (!region || !box)
        return ERROR;
    *box = toRect(region->region.boundingRect());
    return kindOf(region->region);
}

int SelectClipRgn(HDC dc, HRGN handle)
{
    const auto context = findContext(dc);
    const auto region = findObject<Region>(handle);
    if (!context || (handle && !region))
        return ERROR;
    return setClip(*context, region ? std::optional(region->region) : std::nullopt);
}

int IntersectClipRect(HDC dc, int left, int top, int right, int bottom)
{
    const auto context = findContext(dc);
    if (!context)
        return ERROR;
    const QRegion rect = context->toDevice().map(fromSides(left, top, right, bottom));
    return setClip(*context, context->state.clip.value_or(context->visible()) & rect);
}

int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom)
{
    const auto context = findContext(dc);
    if (!context)
        return ERROR;
    const QRegion rect = context->toDevice().map(fromSides(left, top, right, bottom));
    return setClip(*context, context->state.clip.value_or(context->visible()) - rect);
}

int GetClipBox(HDC dc, RECT* box)
{
    const auto context = findContext(dc);
    if (!context || !box)
        return ERROR;
    const QRegion drawable = context->drawable();
    *box = toRect(context->toDevice().inverted().mapRect(drawable.boundingRect()));
    return kindOf(drawable);
}

BOOL RectVisible(HDC dc, const RECT* rect)
{
    const auto context = findContext(dc);
    return context && rect && context->drawable().intersects(context->toDevice().mapRect(toQRect(*rect)));
}

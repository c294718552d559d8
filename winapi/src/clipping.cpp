// Regions, and the part of a context that drawing is confined to.
#include "context.h"

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

QRegion combine(const QRegion& first, const QRegion& second, int mode)
{
    switch (mode) {
    case RGN_AND:
        return first & second;
    case RGN_OR:
        return first | second;
    case RGN_XOR:
        return first ^ second;
    case RGN_DIFF:
        return first - second;
    default:
        return first;
    }
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

BOOL SetRectRgn(HRGN handle, int left, int top, int right, int bottom)
{
    const auto region = findObject<Region>(handle);
    if (!region)
        return FALSE;
    region->region = fromSides(left, top, right, bottom);
    return TRUE;
}

int CombineRgn(HRGN targetHandle, HRGN firstHandle, HRGN secondHandle, int mode)
{
    const auto target = findObject<Region>(targetHandle);
    const auto first = findObject<Region>(firstHandle);
    const auto second = mode == RGN_COPY ? first : findObject<Region>(secondHandle);
    if (!target || !first || !second || mode < RGN_AND || mode > RGN_COPY)
        return ERROR;
    target->region = combine(first->region, second->region, mode);
    return kindOf(target->region);
}

int GetRgnBox(HRGN handle, RECT* box)
{
    const auto region = findObject<Region>(handle);
    if (!region || !box)
        return ERROR;
    *box = toRect(region->region.boundingRect());
    return kindOf(region->region);
}

int OffsetRgn(HRGN handle, int x, int y)
{
    const auto region = findObject<Region>(handle);
    if (!region)
        return ERROR;
    region->region.translate(x, y);
    return kindOf(region->region);
}

BOOL PtInRegion(HRGN handle, int x, int y)
{
    const auto region = findObject<Region>(handle);
    return region && region->region.contains(QPoint(x, y));
}

BOOL RectInRegion(HRGN handle, const RECT* rect)
{
    const auto region = findObject<Region>(handle);
    return region && rect && region->region.intersects(toQRect(*rect));
}

BOOL EqualRgn(HRGN firstHandle, HRGN secondHandle)
{
    const auto first = findObject<Region>(firstHandle);
    const auto second = findObject<Region>(secondHandle);
    return first && second && first->region == second->region;
}

int SelectClipRgn(HDC dc, HRGN region)
{
    return ExtSelectClipRgn(dc, region, RGN_COPY);
}

int ExtSelectClipRgn(HDC dc, HRGN handle, int mode)
{
    const auto context = findContext(dc);
    const auto region = findObject<Region>(handle);
    if (!context || (!region && (handle || mode != RGN_COPY)) || mode < RGN_AND || mode > RGN_COPY)
        return ERROR;
    if (!region)
        return setClip(*context, std::nullopt);
    if (mode == RGN_COPY)
        return setClip(*context, region->region);
    const QRegion before = context->state.clip.value_or(context->visible());
    return setClip(*context, combine(before, region->region, mode));
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

BOOL PtVisible(HDC dc, int x, int y)
{
    const auto context = findContext(dc);
    return context && context->drawable().contains(context->toDevice().map(QPoint(x, y)));
}

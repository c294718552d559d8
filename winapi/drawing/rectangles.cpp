// Arithmetic of rectangles.
#include "wingdi.h"

#include <algorithm>

BOOL SetRect(RECT* rect, int left, int top, int right, int bottom)
{
    if (!rect)
        return FALSE;
    *rect = {left, top, right, bottom};
    return TRUE;
}

BOOL SetRectEmpty(RECT* rect)
{
    return SetRect(rect, 0, 0, 0, 0);
}

BOOL CopyRect(RECT* target, const RECT* source)
{
    return target && source && SetRect(target, source->left, source->top, source->right, source->bottom);
}

BOOL InflateRect(RECT* rect, int dx, int dy)
{
    return rect && SetRect(rect, rect->left - dx, rect->top - dy, rect->right + dx, rect->bottom + dy);
}

BOOL OffsetRect(RECT* rect, int dx, int dy)
{
    return rect && SetRect(rect, rect->left + dx, rect->top + dy, rect->right + dx, rect->bottom + dy);
}

BOOL IntersectRect(RECT* target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    const RECT common = {std::max(first->left, second->left), std::max(first->top, second->top),
                         std::min(first->right, second->right), std::min(first->bottom, second->bottom)};
    const bool meet = !IsRectEmpty(first) && !IsRectEmpty(second) && !IsRectEmpty(&common);
    *target = meet ? common : RECT{};
    return meet;
}

BOOL UnionRect(RECT* target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    if (IsRectEmpty(first))
        *target = IsRectEmpty(second) ? RECT{} : *second;
    else if (IsRectEmpty(second))
        *target = *first;
    else
        *target = {std::min(first->left, second->left), std::min(first->top, second->top),
                   std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
    return !IsRectEmpty(target);
}

BOOL IsRectEmpty(const RECT* rect)
{
    return !rect || rect->left >= rect->right || rect->top >= rect->bottom;
}

BOOL EqualRect(const RECT* first, const RECT* second)
{
    return first && second && first->left == second->left && first->top == second->top &&
           first->right == second->right && first->bottom == second->bottom;
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

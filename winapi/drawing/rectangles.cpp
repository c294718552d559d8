// Arithmetic of rectangles.
#include "geometry.h"
#include "wingdi.h"

#include <algorithm>

using namespace winapi;

BOOL IntersectRect(RECT* target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    const RECT common = {std::max(first->left, second->left), std::max(first->top, second->top),
                         std::min(first->right, second->right), std::min(first->bottom, second->bottom)};
    const bool meet = !isEmpty(*first) && !isEmpty(*second) && !isEmpty(common);
    *target = meet ? common : RECT{};
    return meet;
}

BOOL UnionRect(RECT* target, const RECT* first, const RECT* second)
{
    if (!target || !first || !second)
        return FALSE;
    if (isEmpty(*first))
        *target = isEmpty(*second) ? RECT{} : *second;
    else if (isEmpty(*second))
        *target = *first;
    else
        *target = {std::min(first->left, second->left), std::min(first->top, second->top),
                   std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
    return !isEmpty(*target);
}

BOOL PtInRect(const RECT* rect, POINT point)
{
    return rect && point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
           point.y < rect->bottom;
}

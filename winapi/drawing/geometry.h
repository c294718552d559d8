// Rectangles of the Windows calls and of Qt.
#pragma once

#include "windef.h"

#include <QRect>

#include <algorithm>

namespace winapi {

// Places beyond this are taken for this, so that no calculation with them leaves the range of int.
constexpr int kFarthest = 1 << 24;

constexpr int clampPlace(int place)
{
    return std::clamp(place, -kFarthest, kFarthest);
}

inline QRect toQRect(const RECT& rect)
{
    return {QPoint(clampPlace(rect.left), clampPlace(rect.top)),
            QPoint(clampPlace(rect.right) - 1, clampPlace(rect.bottom) - 1)};
}

inline bool isEmpty(const RECT& rect)
{
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

inline RECT toRect(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}

}

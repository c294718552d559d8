// Rectangles of the Windows calls and of Qt.
#pragma once

#include "windef.h"

#include <QRect>

namespace winapi {

inline QRect toQRect(const RECT& rect)
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

inline RECT toRect(const QRect& rect)
{
    return {rect.x(), rect.y(), rect.x() + rect.width(), rect.y() + rect.height()};
}

}

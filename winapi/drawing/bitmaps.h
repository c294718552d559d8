// Bitmaps, measured in logical pixels.
#pragma once

#include "drawing_objects.h"

namespace winapi {

// The handle of the bitmap that a new memory context holds. Each context has a bitmap of its own under it.
HBITMAP defaultBitmap();

// A black image of so many logical pixels.
QImage makeImage(int width, int height, qreal devicePixelRatio);

}

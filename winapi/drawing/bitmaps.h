// Bitmaps, measured in logical pixels.
#pragma once

#include "drawing_objects.h"

namespace winapi {

// The bitmap that a new memory context holds. Every context has one of its own, but they share its handle.
HBITMAP defaultBitmap();

// A black image of so many logical pixels.
QImage makeImage(int width, int height, qreal devicePixelRatio);

}

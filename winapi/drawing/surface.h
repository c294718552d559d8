// What a device context draws on: the image of a window or a bitmap, or a printer.
#pragma once

#include "windef.h"

#include <QPaintDevice>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QRegion>

namespace winapi {

class Surface
{
public:
    virtual ~Surface() = default;

    // A QImage for windows and bitmaps. Each call paints with a painter of its own.
    virtual QPaintDevice& device() = 0;

    // The painter that a printer keeps open through a page; windows and memory have none.
    virtual QPainter* heldPainter() { return nullptr; }

    // What GetDeviceCaps tells of the device: of the screen, unless a surface says otherwise.
    virtual int capability(int index) const;

    // Called after each drawing call with the part that it may have changed, in logical pixels of the
    // surface.
    virtual void changed(const QRect&) {}
};

}

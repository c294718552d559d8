// What a device context draws on: the meeting place of windows and drawing.
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

    // A QImage for windows and memory; painted on by one call at a time, never held open by a context.
    virtual QPaintDevice& device() = 0;

    // The painter that a printer keeps open through a page; windows and memory have none.
    virtual QPainter* heldPainter() { return nullptr; }

    // What GetDeviceCaps tells of the device; of the screen, where nothing else is said.
    virtual int capability(int index) const;

    // Called after each drawing call with the part that it may have changed, in logical pixels of the
    // surface.
    virtual void changed(const QRect&) {}
};

}

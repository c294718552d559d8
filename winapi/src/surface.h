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

    // Called after each drawing call with the part that it may have changed, in logical pixels of the
    // surface.
    virtual void changed(const QRect&) {}
};

// Makes a context whose origin lies at `origin` of the surface and that draws inside `clip` only (both in
// logical pixels of the surface). Released by destroyContext. The surface outlives the context.
HDC createContext(Surface& surface, QPoint origin, const QRegion& clip);
void destroyContext(HDC dc);

// Makes a context of the screen as a whole, which can be asked but not drawn on.
HDC createScreenContext();

// Fills `rect` (context coordinates) with `brush`, as FillRect does; system colours count as brushes (index +
// 1).
void eraseRect(HDC dc, const RECT& rect, HBRUSH brush);

}

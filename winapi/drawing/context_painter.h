// The painter that each drawing call paints with.
#pragma once

#include "context.h"
#include "geometry.h"

namespace winapi {

// Paints on the surface of a context, in logical coordinates, where the context shows. Lives for one call.
class ContextPainter
{
public:
    // `touched`: the part that the call may change, in logical coordinates.
    ContextPainter(Context& context, const QRect& touched);
    ~ContextPainter();
    ContextPainter(const ContextPainter&) = delete;
    ContextPainter& operator=(const ContextPainter&) = delete;

    QPainter* operator->() const { return m_painter; }
    QPainter& operator*() const { return *m_painter; }
    // Fills with one colour. On whole pixels that need no clip it writes to the pixels itself.
    void fill(const QRect& rect, COLORREF color);

    // Draws inside of `rect` only, until unclip.
    void clipTo(const QRect& rect);
    void unclip();

    // False if nothing that the call draws would show.
    explicit operator bool() const { return m_painter != nullptr; }

private:
    Surface& m_surface;
    const Placement& m_placement;
    QRect m_touched; // logical pixels of the surface
    QPainter* m_painter = nullptr;
    bool m_clips = false; // by a clip of the call's own
};

}

// Device contexts as the drawing calls see them.
#pragma once

#include "drawing_objects.h"
#include "surface.h"
#include "wingdi.h"

#include <QPainter>
#include <QTransform>

#include <memory>
#include <optional>

namespace winapi {

// An object that is selected into a context. It lives on there even when its handle is released.
template <class Kind>
struct Selected
{
    HGDIOBJ handle = nullptr;
    std::shared_ptr<Kind> object;

    const Kind* operator->() const { return object.get(); }
};

// What is selected and set.
struct DrawingState
{
    Selected<Pen> pen;
    Selected<Brush> brush;
    Selected<Font> font;
    Selected<Bitmap> bitmap; // of memory contexts
    COLORREF textColor = 0x000000;
    COLORREF backgroundColor = 0xFFFFFF;
    int backgroundMode = OPAQUE;
    QPoint position; // logical
};

// From logical units to those of the device.
struct Mapping
{
    int mode = MM_TEXT;
    QPoint windowOrigin;
    QSize windowExtent{1, 1};   // so many logical units are as long as
    QSize viewportExtent{1, 1}; // so many pixels
};

class Context
{
public:
    // `origin` and `visible` are in pixels of the surface, which outlives the context.
    Context(Surface& surface, QPoint origin, QRegion visible);
    // A memory context, or one that owns what it draws on. `gridOrigin`: where its device 0, 0 lies on the
    // surface that it is compatible with.
    Context(std::unique_ptr<Surface> surface, const QRegion& visible, QPoint gridOrigin = {});
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    DrawingState state;

    Surface& surface() const { return *m_surface; }
    bool isMemory() const { return state.bitmap.object != nullptr; }
    // The image drawn on, or null on a printer.
    QImage* image() const { return m_surface->image(); }
    // Pixels of the device a logical pixel.
    qreal pixelRatio() const { return m_surface->device().devicePixelRatio(); }

    void selectBitmap(const Selected<Bitmap>& bitmap);

    const Mapping& mapping() const { return m_mapping; }
    Mapping& changeMapping();
    // Worked out once, until the mapping or the clip changes.
    const Placement& placement() const;

    // From logical units to device units (the origin of the context is device 0, 0), and on to the surface.
    QTransform toDevice() const;
    QPoint origin() const { return m_origin; }
    QPoint gridOrigin() const { return m_gridOrigin + m_origin; }
    // How far drawing is moved, by less than a pixel, on a screen that has 1.5 pixels, say, for a logical
    // one: so that a memory context rounds to pixels as the surface does that it is compatible with.
    QPointF gridShift() const;
    // Device units a logical unit.
    QSizeF scale() const;

    // Where drawing shows, in device units.
    QRegion visible() const { return m_visible.translated(-m_origin); }
    void clipTo(const QRect& area);

private:
    std::unique_ptr<Surface> m_owned;
    Surface* m_surface;
    QPoint m_origin;
    QPoint m_gridOrigin;
    QRegion m_visible;
    Mapping m_mapping;
    mutable std::optional<Placement> m_placement;
};

HDC addContext(std::shared_ptr<Context> context);
std::shared_ptr<Context> findContext(HDC dc);

// Makes a context whose origin lies at `origin` of the surface and that draws inside `clip` only, both in
// logical pixels of the surface. It is released by destroyContext; the surface outlives it.
HDC createContext(Surface& surface, QPoint origin, const QRegion& clip);
void destroyContext(HDC dc);

// Makes a context of the screen as a whole, which can be asked but not drawn on.
HDC createScreenContext();

}

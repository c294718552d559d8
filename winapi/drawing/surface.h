// What a device context draws on: the image of a window or a bitmap, or a printer.
#pragma once

#include "windef.h"

#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QPoint>
#include <QRect>
#include <QRegion>
#include <QTransform>

namespace winapi {

// How what is drawn in a context comes to lie on the surface.
struct Placement
{
    // Gives each placement a number of its own.
    Placement(const QTransform& toDevice, QPoint origin, QPointF shift, QRegion visible, qreal pixelRatio);

    void applyTo(QPainter& painter) const;
    // The part of `rect`, in logical coordinates, that shows: in logical pixels of the surface.
    QRect shownPart(const QRect& rect) const;

    // Whether each logical pixel is a number of whole pixels, and the clip a rectangle.
    bool wholePixels() const { return m_wholePixels; }
    // The pixels of a part of the surface, where they are whole ones.
    QRect pixelsOf(const QRect& part) const;

    quint64 number;
    QTransform toSurface; // from logical coordinates to logical pixels of the surface, without the shift
    QPointF shift;        // see Context::gridShift
    QRegion clip;         // in logical pixels of the surface, without the shift
    qreal ratio;          // pixels of the device a logical pixel

private:
    bool m_wholePixels;
};

class Surface
{
public:
    virtual ~Surface() = default;

    virtual QPaintDevice& device() = 0;
    // What is drawn on, or null on a printer.
    virtual QImage* image() { return nullptr; }

    // Each drawing call begins and ends with these. The painter is in its place; what a call changes of it
    // stays for the next one, but its transformation and clip, which the call gives back, anti-aliasing and
    // the composition mode, which it resets. Null where nothing can be drawn: on a printer between two pages.
    virtual QPainter* beginCall(const Placement& placement) = 0;
    // `changed`: the part that the call may have changed, in logical pixels of the surface.
    virtual void endCall(const QRect& changed) = 0;

    // Ends what drawing calls keep open. To be called before the pixels are used by anything but drawing
    // calls on this surface.
    virtual void settle() {}

    // What GetDeviceCaps tells of the device: of the screen, unless a surface says otherwise.
    virtual int capability(int index) const;
};

// A surface of pixels. It keeps one painter open from call to call. Classes that own the image settle before
// they end.
class ImageSurface : public Surface
{
public:
    QPaintDevice& device() override { return *image(); }
    QPainter* beginCall(const Placement& placement) override;
    void endCall(const QRect&) override {}
    void settle() override;

private:
    QPainter m_painter;
    quint64 m_placed = 0; // the number of the placement that the painter has
};

}

// Bitmaps and the copying of pixels.
//
// A bitmap is measured in logical pixels, as its context is. On a dense screen it holds several pixels for a
// logical one, as the screen does, so that what goes through it stays sharp.
#include "bitmaps.h"

#include "context_painter.h"

#include <cmath>

namespace winapi {

QImage makeImage(int width, int height, qreal devicePixelRatio)
{
    const auto pixels = [devicePixelRatio](int length) {
        return static_cast<int>(std::ceil(length * devicePixelRatio));
    };
    QImage image(pixels(width), pixels(height), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::black);
    return image;
}

HBITMAP defaultBitmap()
{
    static const HGDIOBJ bitmap = addPermanentObject(Bitmap{makeImage(1, 1, 1)});
    return static_cast<HBITMAP>(bitmap);
}

namespace {

// From logical coordinates to the pixels that the surface is made of.
QTransform toPixels(const Context& context)
{
    const Placement& placement = context.placement();
    return placement.toSurface * QTransform::fromTranslate(placement.shift.x(), placement.shift.y()) *
           QTransform::fromScale(placement.ratio, placement.ratio);
}

// Moves each edge to the nearest pixel, as filling does.
QRect roundEdges(const QRectF& rect)
{
    return QRect(rect.topLeft().toPoint(), rect.bottomRight().toPoint() - QPoint(1, 1));
}

bool isVisible(const Context& context, int x, int y)
{
    return context.image() && context.visible().contains(context.toDevice().map(QPoint(x, y)));
}

// The part that a copy can be taken from, in logical coordinates.
QRect available(const Context& context)
{
    return context.toDevice().inverted().mapRect(context.visible().boundingRect());
}

// Larger bitmaps are refused, as by a system that is out of memory.
constexpr int kLongestSide = 32767;

HBITMAP makeBitmap(int width, int height, qreal devicePixelRatio)
{
    if (width < 0 || height < 0 || width > kLongestSide || height > kLongestSide)
        return nullptr;
    if (width == 0 || height == 0)
        return defaultBitmap();
    QImage image = makeImage(width, height, devicePixelRatio);
    return image.isNull() ? nullptr : static_cast<HBITMAP>(addObject(Bitmap{std::move(image)}));
}

}

}

using namespace winapi;

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height)
{
    const auto context = findContext(dc);
    return context ? makeBitmap(width, height, context->pixelRatio()) : nullptr;
}

COLORREF GetPixel(HDC dc, int x, int y)
{
    const auto context = findContext(dc);
    if (!context || !isVisible(*context, x, y))
        return CLR_INVALID;
    return toColorRef(context->image()->pixelColor(toPixels(*context).map(QPointF(x, y)).toPoint()));
}

BOOL BitBlt(HDC targetDc, int x, int y, int width, int height, HDC sourceDc, int sourceX, int sourceY,
            DWORD operation)
{
    const auto target = findContext(targetDc);
    const auto source = findContext(sourceDc);
    if (!target || !source || !source->image() || operation != SRCCOPY)
        return FALSE;
    const QPoint shift = QPoint(x, y) - QPoint(sourceX, sourceY);
    const QRect part = QRect(sourceX, sourceY, width, height) & available(*source);
    const QRect area = part.translated(shift);
    source->surface().settle();
    const QImage& pixels = *source->image();
    const QRect copied = roundEdges(toPixels(*source).mapRect(QRectF(part)));
    const QTransform toTarget = toPixels(*target);
    const QRectF rounded = roundEdges(toTarget.mapRect(QRectF(area)));
    const QRectF place = toTarget.inverted().mapRect(rounded);
    ContextPainter painter(*target, area);
    if (!painter)
        return TRUE;
    if (&source->surface() != &target->surface() && pixels.rect().contains(copied))
        painter->drawImage(place, pixels, QRectF(copied));
    else // one image is source and target, or less is there than is asked for
        painter->drawImage(place, pixels.copy(copied), QRectF(QPointF(), QSizeF(copied.size())));
    return TRUE;
}

// What can be asked of a device: the screen's size, or what another surface tells.
#include "surface.h"

#include "application.h"
#include "context.h"

#include <QScreen>

#include <cmath>
#include <utility>

namespace winapi {

namespace {

quint64 nextNumber()
{
    static quint64 last = 0;
    return ++last;
}

}

Placement::Placement(const QTransform& toDevice, QPoint origin, QPointF shift, QRegion visible,
                     qreal pixelRatio)
    : number(nextNumber()), toSurface(toDevice * QTransform::fromTranslate(origin.x(), origin.y())),
      shift(shift), clip(std::move(visible)), ratio(pixelRatio),
      m_wholePixels(ratio == std::floor(ratio) && toSurface.type() <= QTransform::TxTranslate &&
                    clip.rectCount() == 1)
{
}

QRect Placement::pixelsOf(const QRect& part) const
{
    const int pixels = qRound(ratio);
    return {part.topLeft() * pixels, part.size() * pixels};
}

void Placement::applyTo(QPainter& painter) const
{
    const QTransform shifted = QTransform::fromTranslate(shift.x(), shift.y());
    painter.setTransform(shifted);
    painter.setClipRegion(clip);
    painter.setTransform(toSurface * shifted);
}

QRect Placement::shownPart(const QRect& rect) const
{
    return toSurface.mapRect(rect) & clip.boundingRect();
}

QPainter* ImageSurface::beginCall(const Placement& placement)
{
    QImage* const pixels = image();
    if (!m_painter.isActive()) {
        m_painter.begin(pixels);
        m_placed = 0;
    }
    if (std::exchange(m_placed, placement.number) != placement.number)
        placement.applyTo(m_painter);
    return &m_painter;
}

void ImageSurface::settle()
{
    if (m_painter.isActive())
        m_painter.end();
}

int Surface::capability(int index) const
{
    constexpr int kDotsPerInch = 96;
    const QRect screen = application().primaryScreen()->geometry();
    switch (index) {
    case HORZRES:
        return screen.width();
    case VERTRES:
        return screen.height();
    case LOGPIXELSX:
    case LOGPIXELSY:
        return kDotsPerInch;
    default:
        return 0;
    }
}

}

using namespace winapi;

int GetDeviceCaps(HDC dc, int index)
{
    const auto context = findContext(dc);
    return context ? context->surface().capability(index) : 0;
}

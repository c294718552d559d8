// The pixels of a top-level window, in the density of the screen that it stands on.
#include "window_surface.h"

#include "host_widget.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace winapi {

void WindowSurface::show(const QRect& changed)
{
    if (m_root.host)
        m_root.host->update(changed);
}

void WindowSurface::endCall(const QRect& changed)
{
    if (m_paints > 0)
        m_gathered |= changed;
    else
        show(changed);
}

void WindowSurface::endPaint()
{
    if (--m_paints > 0)
        return;
    const QRect changed = std::exchange(m_gathered, QRect());
    if (!changed.isEmpty())
        show(changed);
}

QImage* WindowSurface::image()
{
    const qreal ratio = m_root.host ? m_root.host->devicePixelRatioF() : 1.0;
    const QSizeF exact = QSizeF(m_root.rect.size()) * ratio;
    const QSize size(std::max(1, static_cast<int>(std::ceil(exact.width()))),
                     std::max(1, static_cast<int>(std::ceil(exact.height()))));
    if (m_image.size() == size && m_image.devicePixelRatio() == ratio)
        return &m_image;

    settle();
    QImage larger(size, QImage::Format_RGB32);
    larger.setDevicePixelRatio(ratio);
    larger.fill(Qt::white);
    if (!m_image.isNull())
        QPainter(&larger).drawImage(0, 0, m_image);
    m_image = larger;
    return &m_image;
}

bool WindowSurface::canCopy(QPoint delta)
{
    const QPointF exact = QPointF(delta) * image()->devicePixelRatio();
    return exact == exact.toPoint();
}

void WindowSurface::copy(const QRegion& target, QPoint delta)
{
    if (target.isEmpty() || delta.isNull())
        return;
    settle();
    const QRect area = target.boundingRect();
    const qreal ratio = image()->devicePixelRatio();
    const QRectF source(QPointF(area.topLeft() - delta) * ratio, QSizeF(area.size()) * ratio);
    const QRect pixels = source.toAlignedRect() & image()->rect();
    const QImage before = image()->copy(pixels);
    QPainter painter(image());
    painter.setClipRegion(target);
    painter.drawImage(QPointF(pixels.topLeft()) / ratio + delta, before);
    painter.end();
    show(area);
}

WindowSurface& surfaceOf(Window& root)
{
    if (!root.surface)
        root.surface = std::make_unique<WindowSurface>(root);
    return *root.surface;
}

}

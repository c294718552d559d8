// The pixels of a top-level window, in the density of the screen that it stands on.
#include "window_surface.h"

#include "host_widget.h"

#include <QPainter>

#include <cmath>
#include <utility>

namespace winapi {

namespace {

// Windows change their size in small steps, and fresh memory is slow at first.
QSize roomFor(QSize size)
{
    constexpr int kStep = 64;
    const auto up = [](int length) { return (length + kStep - 1) / kStep * kStep; };
    return {up(size.width()), up(size.height())};
}

// Whether memory of so many pixels holds those of a window, and is not a waste for it.
bool isRightFor(QSize memory, QSize size)
{
    const auto area = [](QSize pixels) { return qint64{pixels.width()} * pixels.height(); };
    return memory == memory.expandedTo(size) && area(memory) <= 4 * area(roomFor(size));
}

// The upper left part of the memory, not a copy.
QImage part(QImage& memory, QSize size)
{
    return {memory.bits(), size.width(), size.height(), memory.bytesPerLine(), memory.format()};
}

}

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
    if (m_image.size() != size || m_image.devicePixelRatio() != ratio)
        resize(size, ratio);
    return &m_image;
}

void WindowSurface::resize(QSize size, qreal ratio)
{
    settle();
    if (m_image.devicePixelRatio() == ratio && isRightFor(m_memory.size(), size)) {
        const QRegion added = QRegion(QRect({0, 0}, size)) - m_image.rect();
        m_image = part(m_memory, size);
        QPainter painter(&m_image);
        for (const QRect& rect : added)
            painter.fillRect(rect, Qt::white);
    } else {
        QImage memory(roomFor(size), QImage::Format_RGB32);
        memory.setDevicePixelRatio(ratio);
        memory.fill(Qt::white);
        if (!m_image.isNull())
            QPainter(&memory).drawImage(0, 0, m_image);
        m_memory = std::move(memory);
        m_image = part(m_memory, size);
    }
    m_image.setDevicePixelRatio(ratio);
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

// The painter that each drawing call paints with.
#include "context_painter.h"

#include <cwchar>

namespace winapi {

ContextPainter::ContextPainter(Context& context, const QRect& touched)
    : m_surface(context.surface()), m_placement(context.placement()),
      m_touched(m_placement.shownPart(touched))
{
    if (!m_touched.isEmpty())
        m_painter = m_surface.beginCall(m_placement);
}

ContextPainter::~ContextPainter()
{
    if (m_painter)
        m_surface.endCall(m_touched);
}

namespace {

// A wide character is as wide as a pixel here, and the C library fills with it faster than a loop does.
void fillPixels(QImage& image, const QRect& pixels, QRgb color)
{
    static_assert(sizeof(wchar_t) == sizeof(QRgb));
    uchar* row = image.scanLine(pixels.top()) + sizeof(QRgb) * static_cast<std::size_t>(pixels.left());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y, row += image.bytesPerLine())
        std::wmemset(reinterpret_cast<wchar_t*>(row), static_cast<wchar_t>(color),
                     static_cast<std::size_t>(pixels.width()));
}

}

void ContextPainter::fill(const QRect& rect, COLORREF color)
{
    QImage* const image = m_clips || !m_placement.wholePixels() ? nullptr : m_surface.image();
    if (!image) {
        m_painter->fillRect(rect, toColor(color));
        return;
    }
    // The window of a context that is held open may have become smaller.
    const QRect pixels = m_placement.pixelsOf(m_placement.shownPart(rect)) & image->rect();
    if (!pixels.isEmpty())
        fillPixels(*image, pixels, toColor(color).rgb());
}

void ContextPainter::clipTo(const QRect& rect)
{
    m_painter->save();
    m_painter->setClipRect(rect, Qt::IntersectClip);
    m_clips = true;
}

void ContextPainter::unclip()
{
    m_painter->restore();
    m_clips = false;
}

}

// The flat GDI+ interface.
#include "gdiplus.h"

#include "context.h"
#include "handles.h"

#include <QPolygonF>

#include <span>
#include <unordered_set>

using namespace winapi;

namespace {

struct Graphics
{
    HDC dc;
    Gdiplus::SmoothingMode smoothing = Gdiplus::SmoothingModeDefault;
};

struct Fill
{
    QColor color;
};

std::unordered_set<ULONG_PTR>& sessions()
{
    static std::unordered_set<ULONG_PTR> tokens;
    return tokens;
}

bool isStarted()
{
    return !sessions().empty();
}

HandleTable<void*, Graphics>& graphicsTable()
{
    static HandleTable<void*, Graphics> table;
    return table;
}

HandleTable<void*, Fill>& fills()
{
    static HandleTable<void*, Fill> table;
    return table;
}

bool isSmooth(Gdiplus::SmoothingMode mode)
{
    return mode == Gdiplus::SmoothingModeHighQuality || mode == Gdiplus::SmoothingModeAntiAlias;
}

// Lets `draw` use a painter that is set up for filling an area within `bounds`.
template <class Draw>
Gdiplus::GpStatus fill(void* graphicsHandle, void* brushHandle, const QRectF& bounds, Draw draw)
{
    if (!isStarted())
        return Gdiplus::GdiplusNotInitialized;
    const auto graphics = graphicsTable().find(graphicsHandle);
    const auto brush = fills().find(brushHandle);
    if (!graphics || !brush)
        return Gdiplus::InvalidParameter;
    const auto context = findContext(graphics->dc);
    if (!context)
        return Gdiplus::GenericError;
    ContextPainter painter(*context, bounds.toAlignedRect().adjusted(-1, -1, 1, 1));
    if (!painter)
        return Gdiplus::Ok;
    painter->setRenderHint(QPainter::Antialiasing, isSmooth(graphics->smoothing));
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush->color);
    draw(*painter);
    return Gdiplus::Ok;
}

template <class Object>
Gdiplus::GpStatus remove(HandleTable<void*, Object>& table, void* handle)
{
    if (!isStarted())
        return Gdiplus::GdiplusNotInitialized;
    return table.remove(handle) ? Gdiplus::Ok : Gdiplus::InvalidParameter;
}

}

namespace Gdiplus {

GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input, GdiplusStartupOutput*)
{
    if (!token || !input)
        return InvalidParameter;
    if (input->GdiplusVersion < 1 || input->GdiplusVersion > 2)
        return UnsupportedGdiplusVersion;
    *token = nextHandleValue();
    sessions().insert(*token);
    return Ok;
}

void GdiplusShutdown(ULONG_PTR token)
{
    sessions().erase(token);
}

namespace DllExports {

GpStatus GdipCreateFromHDC(HDC dc, GpGraphics** graphics)
{
    if (!isStarted())
        return GdiplusNotInitialized;
    if (!graphics)
        return InvalidParameter;
    if (!findContext(dc))
        return OutOfMemory;
    *graphics = graphicsTable().add(std::make_shared<Graphics>(Graphics{dc}));
    return Ok;
}

GpStatus GdipDeleteGraphics(GpGraphics* graphics)
{
    return remove(graphicsTable(), graphics);
}

GpStatus GdipSetSmoothingMode(GpGraphics* handle, SmoothingMode mode)
{
    if (!isStarted())
        return GdiplusNotInitialized;
    const auto graphics = graphicsTable().find(handle);
    if (!graphics || mode < SmoothingModeDefault || mode > SmoothingModeAntiAlias)
        return InvalidParameter;
    graphics->smoothing = mode;
    return Ok;
}

GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush)
{
    if (!isStarted())
        return GdiplusNotInitialized;
    if (!brush)
        return InvalidParameter;
    *brush = fills().add(std::make_shared<Fill>(Fill{QColor::fromRgba(color)}));
    return Ok;
}

GpStatus GdipDeleteBrush(GpBrush* brush)
{
    return remove(fills(), brush);
}

GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width, INT height)
{
    const QRectF area(x, y, width, height);
    return fill(graphics, brush, area, [&](QPainter& painter) { painter.drawEllipse(area); });
}

GpStatus GdipFillPolygon(GpGraphics* graphics, GpBrush* brush, const GpPointF* points, INT count,
                         GpFillMode mode)
{
    if (isStarted() && (!points || count < 3))
        return InvalidParameter;
    QPolygonF polygon;
    for (const GpPointF& point : std::span(points, isStarted() ? static_cast<std::size_t>(count) : 0))
        polygon << QPointF(point.X, point.Y);
    const Qt::FillRule rule = mode == FillModeWinding ? Qt::WindingFill : Qt::OddEvenFill;
    return fill(graphics, brush, polygon.boundingRect(),
                [&](QPainter& painter) { painter.drawPolygon(polygon, rule); });
}

}
}

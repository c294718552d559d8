// The drawing of GDI+: graphics on a context, and the filling of ellipses.
#include "gdiplus_session.h"

#include "context_painter.h"
#include "handle_table.h"

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

HandleTable<void*, Graphics>& graphicsTable()
{
    static auto& table = *new HandleTable<void*, Graphics>;
    return table;
}

HandleTable<void*, Fill>& fills()
{
    static auto& table = *new HandleTable<void*, Fill>;
    return table;
}

template <class Object>
Gdiplus::GpStatus remove(HandleTable<void*, Object>& table, void* handle)
{
    return whenGdiPlusRuns([&] { return table.remove(handle) ? Gdiplus::Ok : Gdiplus::InvalidParameter; });
}

Gdiplus::GpStatus fillEllipse(void* graphicsHandle, void* brushHandle, const QRect& area)
{
    const auto graphics = graphicsTable().find(graphicsHandle);
    const auto brush = fills().find(brushHandle);
    if (!graphics || !brush)
        return Gdiplus::InvalidParameter;
    const auto context = findContext(graphics->dc);
    if (!context)
        return Gdiplus::GenericError;
    ContextPainter painter(*context, area.adjusted(-1, -1, 1, 1));
    if (!painter)
        return Gdiplus::Ok;
    painter->setRenderHint(QPainter::Antialiasing, graphics->smoothing == Gdiplus::SmoothingModeAntiAlias);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush->color);
    painter->drawEllipse(QRectF(area));
    painter->setRenderHint(QPainter::Antialiasing, false);
    return Gdiplus::Ok;
}

}

namespace Gdiplus::DllExports {

GpStatus GdipCreateFromHDC(HDC dc, GpGraphics** graphics)
{
    return whenGdiPlusRuns([&] {
        if (!graphics)
            return InvalidParameter;
        if (!findContext(dc))
            return OutOfMemory;
        *graphics = graphicsTable().add(std::make_shared<Graphics>(Graphics{dc}));
        return Ok;
    });
}

GpStatus GdipDeleteGraphics(GpGraphics* graphics)
{
    return remove(graphicsTable(), graphics);
}

GpStatus GdipSetSmoothingMode(GpGraphics* handle, SmoothingMode mode)
{
    return whenGdiPlusRuns([&] {
        const auto graphics = graphicsTable().find(handle);
        if (!graphics || (mode != SmoothingModeDefault && mode != SmoothingModeAntiAlias))
            return InvalidParameter;
        graphics->smoothing = mode;
        return Ok;
    });
}

GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush)
{
    return whenGdiPlusRuns([&] {
        if (!brush)
            return InvalidParameter;
        *brush = fills().add(std::make_shared<Fill>(Fill{QColor::fromRgba(color)}));
        return Ok;
    });
}

GpStatus GdipDeleteBrush(GpBrush* brush)
{
    return remove(fills(), brush);
}

GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width, INT height)
{
    return whenGdiPlusRuns([&] { return fillEllipse(graphics, brush, {x, y, width, height}); });
}

}

#include "ZEBIcon.h"
#include "GraphicsUtils.h"
#include <gdiplus.h>
#include <array>
#include <memory>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

namespace {
// An arrow is a triangle with a right angle at its tip: `DEPTH` pixels deep, twice as high less one.
constexpr int ARROW_DEPTH = 5;
constexpr int COMBO_ARROW_DEPTH = 4;
constexpr int ARROW_GAP = 1;

struct Direction
{
    int dx;
    int dy;
};

constexpr Direction LEFT{-1, 0};
constexpr Direction RIGHT{1, 0};
constexpr Direction DOWN{0, 1};

struct Shape
{
    ZEBIcon::ButtonIcon eIcon;
    Direction direction;
    int nArrows;
};

constexpr Shape SHAPES[] = {
    {ZEBIcon::IconPreviousMonth, LEFT, 1},
    {ZEBIcon::IconNextMonth, RIGHT, 1},
    {ZEBIcon::IconPreviousYear, LEFT, 2},
    {ZEBIcon::IconNextYear, RIGHT, 2},
};

const Shape* FindShape(ZEBIcon::ButtonIcon eIcon)
{
    for (const Shape& shape : SHAPES)
        if (shape.eIcon == eIcon)
            return &shape;
    return nullptr;
}

int GetWidth(const Shape& shape)
{
    return shape.nArrows * (ARROW_DEPTH + ARROW_GAP) - ARROW_GAP;
}

struct GraphicsDeleter
{
    void operator()(GpGraphics* pGraphics) const { GdipDeleteGraphics(pGraphics); }
};

struct BrushDeleter
{
    void operator()(GpSolidFill* pBrush) const { GdipDeleteBrush(pBrush); }
};

// Fails where GDI+ has not been started.
bool FillSmoothly(HDC hDC, const std::array<PointF, 3>& points, COLORREF crFill)
{
    GpGraphics* pNewGraphics = nullptr;
    if (GdipCreateFromHDC(hDC, &pNewGraphics) != Ok)
        return false;
    const std::unique_ptr<GpGraphics, GraphicsDeleter> pGraphics(pNewGraphics);

    GpSolidFill* pNewBrush = nullptr;
    if (GdipCreateSolidFill(GraphicsUtils::ToArgb(crFill), &pNewBrush) != Ok)
        return false;
    const std::unique_ptr<GpSolidFill, BrushDeleter> pBrush(pNewBrush);

    GdipSetSmoothingMode(pGraphics.get(), SmoothingModeAntiAlias);
    return GdipFillPolygon(pGraphics.get(), pBrush.get(), points.data(), static_cast<INT>(points.size()),
                           FillModeAlternate) == Ok;
}

void FillPlainly(CDC* pDC, const std::array<POINT, 3>& points, COLORREF crFill)
{
    CBrush brush(crFill);
    CPen pen(PS_SOLID, 1, crFill);
    const HGDIOBJ hOldBrush = ::SelectObject(pDC->m_hDC, brush.m_hObject);
    const HGDIOBJ hOldPen = ::SelectObject(pDC->m_hDC, pen.m_hObject);
    ::Polygon(pDC->m_hDC, points.data(), static_cast<int>(points.size()));
    ::SelectObject(pDC->m_hDC, hOldPen);
    ::SelectObject(pDC->m_hDC, hOldBrush);
}

// `ptBase` is the pixel in the middle of the arrow's base.
void DrawArrow(CDC* pDC, CPoint ptBase, Direction direction, int nDepth, COLORREF crArrow)
{
    const auto [dx, dy] = direction;

    // GDI+ counts from the middle of a pixel, and the smooth triangle stands on the outer edge of its base.
    const float x = static_cast<float>(ptBase.x) - static_cast<float>(dx) / 2;
    const float y = static_cast<float>(ptBase.y) - static_cast<float>(dy) / 2;
    const auto fx = static_cast<float>(dx * nDepth);
    const auto fy = static_cast<float>(dy * nDepth);
    const std::array<PointF, 3> edges = {PointF(x + fy, y + fx), PointF(x - fy, y - fx),
                                         PointF(x + fx, y + fy)};
    if (FillSmoothly(pDC->m_hDC, edges, crArrow))
        return;

    const int n = nDepth - 1;
    const std::array<POINT, 3> pixels = {POINT{ptBase.x + n * dy, ptBase.y + n * dx},
                                         POINT{ptBase.x - n * dy, ptBase.y - n * dx},
                                         POINT{ptBase.x + n * dx, ptBase.y + n * dy}};
    FillPlainly(pDC, pixels, crArrow);
}
}

CSize ZEBIcon::GetSize(ButtonIcon eIcon)
{
    const Shape* pShape = FindShape(eIcon);
    return pShape ? CSize(GetWidth(*pShape), 2 * ARROW_DEPTH - 1) : CSize(0, 0);
}

void ZEBIcon::Draw(CDC* pDC, ButtonIcon eIcon, const CRect& rect, COLORREF crIcon)
{
    const Shape* pShape = FindShape(eIcon);
    if (!pDC || !pShape)
        return;

    const int nLeft = rect.left + (rect.Width() - GetWidth(*pShape)) / 2;
    const int nBase = pShape->direction.dx < 0 ? ARROW_DEPTH - 1 : 0;
    for (int i = 0; i < pShape->nArrows; ++i) {
        const CPoint ptBase(nLeft + nBase + i * (ARROW_DEPTH + ARROW_GAP), rect.top + rect.Height() / 2);
        DrawArrow(pDC, ptBase, pShape->direction, ARROW_DEPTH, crIcon);
    }
}

void ZEBIcon::DrawComboArrow(CDC* pDC, const CRect& rect, COLORREF crArrow)
{
    if (!pDC)
        return;
    const CPoint ptBase(rect.left + rect.Width() / 2, rect.top + (rect.Height() - COMBO_ARROW_DEPTH) / 2);
    DrawArrow(pDC, ptBase, DOWN, COMBO_ARROW_DEPTH, crArrow);
}

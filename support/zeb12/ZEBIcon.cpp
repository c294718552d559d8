// Arrows, drawn as polygons.
#include "ZEBIcon.h"

#include <iterator>

namespace {

// An arrow is a triangle with a right angle at its tip. Its depth is that from the base to the tip in pixels;
// its base has twice as many pixels less one.
constexpr int kArrowDepth = 5;
constexpr int kComboArrowDepth = 4;
constexpr int kArrowGap = 1;

struct Direction
{
    int dx;
    int dy;
};

constexpr Direction kLeft{-1, 0};
constexpr Direction kRight{1, 0};
constexpr Direction kDown{0, 1};

struct Shape
{
    ZEBIcon::ButtonIcon eIcon;
    Direction direction;
    int nArrows;
};

constexpr Shape kShapes[] = {
    {ZEBIcon::IconPreviousMonth, kLeft, 1},
    {ZEBIcon::IconNextMonth, kRight, 1},
    {ZEBIcon::IconPreviousYear, kLeft, 2},
    {ZEBIcon::IconNextYear, kRight, 2},
};

const Shape* FindShape(ZEBIcon::ButtonIcon eIcon)
{
    for (const Shape& shape : kShapes)
        if (shape.eIcon == eIcon)
            return &shape;
    return nullptr;
}

int GetWidth(const Shape& shape)
{
    return shape.nArrows * (kArrowDepth + kArrowGap) - kArrowGap;
}

// ptBase is the pixel in the middle of the arrow's base. The edges of the arrow lie at 45 degrees, where
// whole pixels make the clearest line.
void DrawArrow(CDC* pDC, CPoint ptBase, Direction direction, int nDepth, COLORREF crArrow)
{
    const auto [dx, dy] = direction;
    const int n = nDepth - 1;
    const POINT points[] = {{ptBase.x + n * dy, ptBase.y + n * dx},
                            {ptBase.x - n * dy, ptBase.y - n * dx},
                            {ptBase.x + n * dx, ptBase.y + n * dy}};

    CBrush brush(crArrow);
    CPen pen(PS_SOLID, 1, crArrow);
    CBrush* pOldBrush = pDC->SelectObject(&brush);
    CPen* pOldPen = pDC->SelectObject(&pen);
    pDC->Polygon(points, static_cast<int>(std::size(points)));
    pDC->SelectObject(pOldPen);
    pDC->SelectObject(pOldBrush);
}

}

CSize ZEBIcon::GetSize(ButtonIcon eIcon)
{
    const Shape* pShape = FindShape(eIcon);
    return pShape ? CSize(GetWidth(*pShape), 2 * kArrowDepth - 1) : CSize(0, 0);
}

void ZEBIcon::Draw(CDC* pDC, ButtonIcon eIcon, const CRect& rect, COLORREF crIcon)
{
    const Shape* pShape = FindShape(eIcon);
    if (!pDC || !pShape)
        return;

    const int nLeft = rect.left + (rect.Width() - GetWidth(*pShape)) / 2;
    const int nBase = pShape->direction.dx < 0 ? kArrowDepth - 1 : 0;
    for (int i = 0; i < pShape->nArrows; ++i) {
        const CPoint ptBase(nLeft + nBase + i * (kArrowDepth + kArrowGap), rect.top + rect.Height() / 2);
        DrawArrow(pDC, ptBase, pShape->direction, kArrowDepth, crIcon);
    }
}

void ZEBIcon::DrawComboArrow(CDC* pDC, const CRect& rect, COLORREF crArrow)
{
    if (!pDC)
        return;
    const CPoint ptBase(rect.left + rect.Width() / 2, rect.top + (rect.Height() - kComboArrowDepth) / 2);
    DrawArrow(pDC, ptBase, kDown, kComboArrowDepth, crArrow);
}

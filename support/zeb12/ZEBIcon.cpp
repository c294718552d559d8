#include "ZEBIcon.h"
#include <iterator>

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

// `ptBase` is the pixel in the middle of the arrow's base. Its edges lie at 45 degrees, where whole pixels
// make the clearest line.
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

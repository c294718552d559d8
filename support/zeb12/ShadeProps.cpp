// Drawing a face line by line, and the flat faces by default.
#include "ShadeProps.h"

#include <algorithm>

namespace {

ShadeProps::Face MakeFlatFace(int nColor)
{
    return {::GetSysColor(nColor), ::GetSysColor(nColor), ::GetSysColor(COLOR_BTNSHADOW)};
}

BYTE Mix(BYTE byFrom, BYTE byTo, int nPart, int nWhole)
{
    return static_cast<BYTE>(byFrom + (byTo - byFrom) * nPart / nWhole);
}

COLORREF Mix(COLORREF crFrom, COLORREF crTo, int nPart, int nWhole)
{
    return RGB(Mix(GetRValue(crFrom), GetRValue(crTo), nPart, nWhole),
               Mix(GetGValue(crFrom), GetGValue(crTo), nPart, nWhole),
               Mix(GetBValue(crFrom), GetBValue(crTo), nPart, nWhole));
}

}

ShadeProps::ShadeProps()
    : m_aFaces{MakeFlatFace(COLOR_BTNFACE), MakeFlatFace(COLOR_BTNHIGHLIGHT), MakeFlatFace(COLOR_3DLIGHT),
               MakeFlatFace(COLOR_BTNFACE)}
{
}

ShadeProps::ShadeProps(const std::array<Face, StateCount>& aFaces) : m_aFaces(aFaces) {}

void ShadeProps::Draw(CDC* pDC, const CRect& rect, State eState) const
{
    if (!pDC || rect.IsRectEmpty())
        return;

    const Face& face = m_aFaces[eState];
    const int nSteps = std::max(1, rect.Height() - 1);
    for (int y = 0; y < rect.Height(); ++y)
        pDC->FillSolidRect(rect.left, rect.top + y, rect.Width(), 1,
                           Mix(face.m_crFrom, face.m_crTo, y, nSteps));

    CBrush brush(face.m_crBorder);
    pDC->FrameRect(&rect, &brush);
}

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

// How bright the eye sees a colour, from 0 to 1. A square comes close to the curve of screens.
double GetLuminance(COLORREF cr)
{
    const auto linear = [](BYTE byValue) { return byValue * byValue / (255.0 * 255.0); };
    return 0.2126 * linear(GetRValue(cr)) + 0.7152 * linear(GetGValue(cr)) + 0.0722 * linear(GetBValue(cr));
}

double GetContrast(COLORREF crOne, COLORREF crOther)
{
    const auto [dDark, dLight] = std::minmax({GetLuminance(crOne), GetLuminance(crOther)});
    return (dLight + 0.05) / (dDark + 0.05);
}

}

ShadeProps::ShadeProps()
    : m_aFaces{MakeFlatFace(COLOR_BTNFACE), MakeFlatFace(COLOR_BTNHIGHLIGHT), MakeFlatFace(COLOR_3DLIGHT),
               MakeFlatFace(COLOR_BTNFACE)}
{
}

ShadeProps::ShadeProps(const std::array<Face, StateCount>& aFaces) : m_aFaces(aFaces) {}

ShadeProps ShadeProps::OfSystemTheme()
{
    const COLORREF crFace = ::GetSysColor(COLOR_BTNFACE);
    const Face face = {crFace, crFace, ::GetSysColor(COLOR_BTNTEXT)};
    const Face faceHot = {crFace, crFace, ::GetSysColor(COLOR_HIGHLIGHT)};
    const Face faceDisabled = {crFace, crFace, ::GetSysColor(COLOR_GRAYTEXT)};
    return ShadeProps({face, faceHot, faceHot, faceDisabled});
}

bool ShadeProps::CanCarry(COLORREF crText) const
{
    constexpr double kLeastContrast = 3;
    return std::all_of(m_aFaces.begin(), m_aFaces.end(), [=](const Face& face) {
        return std::min(GetContrast(face.m_crFrom, crText), GetContrast(face.m_crTo, crText)) >=
               kLeastContrast;
    });
}

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

// Pens, brushes, fonts and bitmaps, and the objects of their handles.
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

namespace {

GdiMap<CGdiObject>& GetPermanentObjects()
{
    return std::get<GdiMap<CGdiObject>>(ThreadState::Current().drawingObjects);
}

// The permanent objects of all classes are in one map; the temporary ones are in a map for each class.
template <class Object>
Object* ObjectFromHandle(HGDIOBJ hObject)
{
    if (auto* pObject = dynamic_cast<Object*>(GetPermanentObjects().Permanent(hObject)))
        return pObject;
    return std::get<GdiMap<Object>>(ThreadState::Current().drawingObjects).FromHandle(hObject);
}

}

CPen* CPen::FromHandle(HPEN hPen)
{
    return ObjectFromHandle<CPen>(hPen);
}

CBrush* CBrush::FromHandle(HBRUSH hBrush)
{
    return ObjectFromHandle<CBrush>(hBrush);
}

CFont* CFont::FromHandle(HFONT hFont)
{
    return ObjectFromHandle<CFont>(hFont);
}

CBitmap* CBitmap::FromHandle(HBITMAP hBitmap)
{
    return ObjectFromHandle<CBitmap>(hBitmap);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject || m_hObject)
        return FALSE;
    m_hObject = hObject;
    GetPermanentObjects().Attach(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ hObject = std::exchange(m_hObject, nullptr);
    if (hObject)
        GetPermanentObjects().Detach(hObject, this);
    return hObject;
}

BOOL CGdiObject::DeleteObject()
{
    const HGDIOBJ hObject = Detach();
    return hObject && ::DeleteObject(hObject);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

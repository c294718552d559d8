#include "threadstate.h"

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

static GdiMap<CGdiObject>& PermanentObjects()
{
    return std::get<GdiMap<CGdiObject>>(ThreadState::Current().drawingObjects);
}

// The permanent objects of all classes stand in one map, the temporary ones in a map for each class.
template <class Object>
static Object* ObjectFromHandle(HGDIOBJ handle)
{
    if (auto* object = dynamic_cast<Object*>(PermanentObjects().Permanent(handle)))
        return object;
    return std::get<GdiMap<Object>>(ThreadState::Current().drawingObjects).FromHandle(handle);
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return ObjectFromHandle<CGdiObject>(hObject);
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

CRgn* CRgn::FromHandle(HRGN hRgn)
{
    return ObjectFromHandle<CRgn>(hRgn);
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    if (!hObject || m_hObject)
        return FALSE;
    m_hObject = hObject;
    PermanentObjects().Attach(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ hObject = std::exchange(m_hObject, nullptr);
    if (hObject)
        PermanentObjects().Detach(hObject, this);
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

// The calls of IAccessible, answered by the questions to a derived class and by the system's object for the
// window.
#include "WindowAccessible.h"

#include <WideText.h>

#include <vector>

namespace {

HRESULT AskWindow(HWND hWnd, IDispatch** ppObject)
{
    return ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IDispatch),
                                        reinterpret_cast<void**>(ppObject));
}

std::vector<HWND> GetShownChildren(HWND hWnd)
{
    std::vector<HWND> vChildren;
    for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
        if (::GetWindowLongA(hChild, GWL_STYLE) & WS_VISIBLE)
            vChildren.push_back(hChild);
    return vChildren;
}

void Set(VARIANT& variant, LONG nNumber)
{
    ::VariantInit(&variant);
    variant.vt = VT_I4;
    variant.lVal = nNumber;
}

HRESULT SetWindow(VARIANT& variant, HWND hWnd)
{
    ::VariantInit(&variant);
    const HRESULT hr = AskWindow(hWnd, &variant.pdispVal);
    variant.vt = SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY;
    return hr;
}

HRESULT SetNothing(VARIANT& variant)
{
    ::VariantInit(&variant);
    return S_FALSE;
}

HRESULT GiveString(const CString& strText, BSTR* pText)
{
    const WideText strWide = ToWide(strText);
    *pText =
        strWide.empty() ? nullptr : ::SysAllocStringLen(strWide.data(), static_cast<UINT>(strWide.size()));
    return *pText ? S_OK : S_FALSE;
}

}

WindowAccessible::WindowAccessible(HWND hWnd) : m_hWnd(hWnd)
{
    ::CreateStdAccessibleObject(hWnd, OBJID_CLIENT, __uuidof(IAccessible),
                                reinterpret_cast<void**>(&m_pStandard));
}

WindowAccessible::~WindowAccessible()
{
    if (m_pStandard)
        m_pStandard->Release();
}

LRESULT WindowAccessible::HandOut(WindowAccessible* pObject, WPARAM wParam)
{
    const LRESULT result = ::LresultFromObject(__uuidof(IAccessible), wParam, pObject);
    pObject->Release();
    return result;
}

HRESULT WindowAccessible::QueryInterface(REFIID riid, void** ppObject)
{
    if (!ppObject)
        return E_POINTER;
    const bool bKnown = IsEqualIID(riid, __uuidof(IUnknown)) || IsEqualIID(riid, __uuidof(IDispatch)) ||
                        IsEqualIID(riid, __uuidof(IAccessible));
    *ppObject = bKnown ? static_cast<IAccessible*>(this) : nullptr;
    if (!bKnown)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG WindowAccessible::AddRef()
{
    return ++m_nReferences;
}

ULONG WindowAccessible::Release()
{
    const ULONG nLeft = --m_nReferences;
    if (nLeft == 0)
        delete this;
    return nLeft;
}

HRESULT WindowAccessible::NoText(BSTR* pText)
{
    return pText ? GiveString("", pText) : E_POINTER;
}

HRESULT WindowAccessible::Find(const VARIANT& child, LONG& nItem) const
{
    if (!IsConnected())
        return CO_E_OBJNOTCONNECTED;
    if (child.vt != VT_I4 || child.lVal < 0 || child.lVal > GetItemCount())
        return E_INVALIDARG;
    nItem = child.lVal;
    return S_OK;
}

template <class Get>
HRESULT WindowAccessible::GiveText(const VARIANT& child, BSTR* pText, Get get) const
{
    if (!pText)
        return E_POINTER;
    *pText = nullptr;
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    return hr == S_OK ? GiveString((this->*get)(nItem), pText) : hr;
}

template <class Get>
HRESULT WindowAccessible::GiveNumber(const VARIANT& child, VARIANT* pNumber, Get get) const
{
    if (!pNumber)
        return E_POINTER;
    SetNothing(*pNumber);
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    if (hr == S_OK)
        Set(*pNumber, (this->*get)(nItem));
    return hr;
}

HRESULT WindowAccessible::get_accName(VARIANT child, BSTR* pName)
{
    return GiveText(child, pName, &WindowAccessible::GetName);
}

HRESULT WindowAccessible::get_accDefaultAction(VARIANT child, BSTR* pAction)
{
    return GiveText(child, pAction, &WindowAccessible::GetAction);
}

HRESULT WindowAccessible::get_accRole(VARIANT child, VARIANT* pRole)
{
    return GiveNumber(child, pRole, &WindowAccessible::GetRole);
}

HRESULT WindowAccessible::get_accState(VARIANT child, VARIANT* pState)
{
    return GiveNumber(child, pState, &WindowAccessible::GetState);
}

HRESULT WindowAccessible::get_accParent(IDispatch** ppParent)
{
    return m_pStandard ? m_pStandard->get_accParent(ppParent) : E_FAIL;
}

HRESULT WindowAccessible::get_accKeyboardShortcut(VARIANT child, BSTR* pKey)
{
    const bool bWindow = child.vt == VT_I4 && child.lVal == CHILDID_SELF;
    return bWindow && m_pStandard ? m_pStandard->get_accKeyboardShortcut(child, pKey) : NoText(pKey);
}

// Counts the items first, then the child windows.
HRESULT WindowAccessible::get_accChildCount(LONG* pCount)
{
    if (!pCount)
        return E_POINTER;
    *pCount = 0;
    if (!IsConnected())
        return CO_E_OBJNOTCONNECTED;
    *pCount = GetItemCount() + static_cast<LONG>(GetShownChildren(m_hWnd).size());
    return S_OK;
}

HRESULT WindowAccessible::get_accChild(VARIANT child, IDispatch** ppChild)
{
    if (!ppChild)
        return E_POINTER;
    *ppChild = nullptr;
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    if (hr == S_OK)
        return nItem == CHILDID_SELF ? QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(ppChild))
                                     : S_FALSE;
    if (hr != E_INVALIDARG || child.vt != VT_I4 || child.lVal <= 0)
        return hr;
    const std::vector<HWND> vChildren = GetShownChildren(m_hWnd);
    const auto i = static_cast<std::size_t>(child.lVal - GetItemCount() - 1);
    return i < vChildren.size() ? AskWindow(vChildren[i], ppChild) : E_INVALIDARG;
}

HRESULT WindowAccessible::get_accFocus(VARIANT* pChild)
{
    if (!pChild)
        return E_POINTER;
    SetNothing(*pChild);
    if (!IsConnected())
        return CO_E_OBJNOTCONNECTED;
    const HWND hFocus = ::GetFocus();
    if (hFocus != m_hWnd)
        return ::IsChild(m_hWnd, hFocus) ? SetWindow(*pChild, hFocus) : S_FALSE;
    Set(*pChild, GetSelectedItem());
    return S_OK;
}

HRESULT WindowAccessible::get_accSelection(VARIANT* pChild)
{
    if (!pChild)
        return E_POINTER;
    SetNothing(*pChild);
    if (!IsConnected())
        return CO_E_OBJNOTCONNECTED;
    const LONG nItem = GetSelectedItem();
    if (nItem == 0)
        return S_FALSE;
    Set(*pChild, nItem);
    return S_OK;
}

// Selecting an item carries out its action.
HRESULT WindowAccessible::accSelect(LONG nFlags, VARIANT child)
{
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    if (hr != S_OK)
        return hr;
    if (nItem != CHILDID_SELF && (nFlags & (SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION)))
        DoAction(nItem);
    else if (nItem == CHILDID_SELF && nFlags == SELFLAG_TAKEFOCUS)
        ::SetFocus(m_hWnd);
    else
        return E_INVALIDARG;
    return S_OK;
}

HRESULT WindowAccessible::accLocation(LONG* pLeft, LONG* pTop, LONG* pWidth, LONG* pHeight, VARIANT child)
{
    if (!pLeft || !pTop || !pWidth || !pHeight)
        return E_POINTER;
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    if (hr != S_OK)
        return hr;
    CRect rc;
    if (nItem == CHILDID_SELF)
        ::GetClientRect(m_hWnd, &rc);
    else
        rc = GetItemRect(nItem);
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(&rc), 2);
    *pLeft = rc.left;
    *pTop = rc.top;
    *pWidth = rc.Width();
    *pHeight = rc.Height();
    return S_OK;
}

HRESULT WindowAccessible::accHitTest(LONG x, LONG y, VARIANT* pChild)
{
    if (!pChild)
        return E_POINTER;
    SetNothing(*pChild);
    if (!IsConnected())
        return CO_E_OBJNOTCONNECTED;
    CPoint point(x, y);
    ::ScreenToClient(m_hWnd, &point);
    const HWND hHit = ::ChildWindowFromPoint(m_hWnd, point);
    if (!hHit)
        return S_FALSE;
    if (hHit != m_hWnd)
        return SetWindow(*pChild, hHit);
    Set(*pChild, GetItemAt(point));
    return S_OK;
}

HRESULT WindowAccessible::accDoDefaultAction(VARIANT child)
{
    LONG nItem = 0;
    const HRESULT hr = Find(child, nItem);
    if (hr != S_OK)
        return hr;
    if (GetAction(nItem).IsEmpty())
        return DISP_E_MEMBERNOTFOUND;
    DoAction(nItem);
    return S_OK;
}

LONG WindowAccessible::GetWindowState() const
{
    const LONG nStyle = ::GetWindowLongA(m_hWnd, GWL_STYLE);
    LONG nState = 0;
    if (!::IsWindowVisible(m_hWnd))
        nState |= STATE_SYSTEM_INVISIBLE;
    if (nStyle & WS_DISABLED)
        nState |= STATE_SYSTEM_UNAVAILABLE;
    else if (nStyle & WS_TABSTOP)
        nState |= STATE_SYSTEM_FOCUSABLE;
    if (::GetFocus() == m_hWnd)
        nState |= STATE_SYSTEM_FOCUSED;
    return nState;
}

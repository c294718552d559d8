// Drawing the button, following the mouse, and telling screen readers of it.
#include "ZEBButton.h"

#include <FontSelection.h>
#include <GraphicsUtils.h>
#include <WindowAccessible.h>

namespace {

constexpr int kDefaultFontHeight = 15;
constexpr int kPadding = 2;    // between the edge of the face and its content
constexpr int kFocusInset = 3; // between the edge of the face and the focus rectangle
constexpr int kIconGap = 3;    // between icon and caption
constexpr COLORREF kDisabledIconColor = RGB(0xA8, 0xAE, 0xB8);

// Where a length begins between two ends: at the low end, at the high end, or centred.
int Align(int nLow, int nHigh, int nLength, bool bLow, bool bHigh)
{
    if (bLow)
        return nLow;
    return bHigh ? nHigh - nLength : nLow + (nHigh - nLow - nLength) / 2;
}

}

IMPLEMENT_DYNAMIC(CZEBButton, CButton)

BEGIN_MESSAGE_MAP(CZEBButton, CButton)
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_MESSAGE(WM_MOUSELEAVE, &CZEBButton::OnMouseLeave)
    ON_MESSAGE(WM_GETOBJECT, &CZEBButton::OnGetObject)
END_MESSAGE_MAP()

CZEBButton::CZEBButton()
{
    GraphicsUtils::SetDefaultFont(m_lfCaption, "", kDefaultFontHeight, -1, false, false, false);
}

CZEBButton::~CZEBButton()
{
    DestroyWindow();
}

BOOL CZEBButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CButton::Create(lpszCaption, dwStyle | BS_OWNERDRAW, rect, pParentWnd, nID);
}

void CZEBButton::SetFont(const CString& strFace, long nHeight, long nWeight, BYTE byItalic, BYTE byUnderline)
{
    GraphicsUtils::SetDefaultFont(m_lfCaption, strFace, static_cast<int>(nHeight), static_cast<int>(nWeight),
                                  byItalic != 0, byUnderline != 0, false);
    m_fontCaption.DeleteObject();
    m_fontDisabled.DeleteObject();
    RedrawIfCreated();
}

void CZEBButton::SetIcon(ZEBIcon::ButtonIcon eIcon, UINT nHorzAlign, UINT nVertAlign, bool bRedraw)
{
    m_eIcon = eIcon;
    m_nHorzAlign = nHorzAlign;
    m_nVertAlign = nVertAlign;
    if (bRedraw)
        RedrawIfCreated();
}

void CZEBButton::SetRegularFontWhenDisabled(bool bRegularFont, bool bRegularColor)
{
    m_bRegularFontWhenDisabled = bRegularFont;
    m_bRegularColorWhenDisabled = bRegularColor;
    RedrawIfCreated();
}

void CZEBButton::SetShadeProps(const ShadeProps& props)
{
    m_shade = props;
    RedrawIfCreated();
}

void CZEBButton::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    if (!lpDIS)
        return;

    CDC& dc = *CDC::FromHandle(lpDIS->hDC);
    const CRect rcFace(lpDIS->rcItem);
    const bool bOwnShade = m_shade.CanCarry(::GetSysColor(COLOR_BTNTEXT));
    const ShadeProps shade = bOwnShade ? m_shade : ShadeProps::OfSystemTheme();
    shade.Draw(&dc, rcFace, GetShadeState(lpDIS->itemState));

    CRect rcContent(rcFace);
    rcContent.DeflateRect(kPadding, kPadding);
    if (lpDIS->itemState & ODS_SELECTED)
        rcContent.OffsetRect(1, 1);

    CRect rcIcon(rcContent);
    if (!m_bIconOnly) {
        CPoint ptIcon;
        AdjustForIcon(rcContent, ptIcon);
        rcIcon = CRect(ptIcon, ZEBIcon::GetSize(m_eIcon));
    }
    const bool bDisabled = (lpDIS->itemState & ODS_DISABLED) != 0;
    const COLORREF crDisabled = bOwnShade ? kDisabledIconColor : ::GetSysColor(COLOR_GRAYTEXT);
    ZEBIcon::Draw(&dc, m_eIcon, rcIcon, bDisabled ? crDisabled : ::GetSysColor(COLOR_BTNTEXT));
    DrawCaption(dc, rcContent, lpDIS->itemState);

    if ((lpDIS->itemState & ODS_FOCUS) && !(lpDIS->itemState & ODS_NOFOCUSRECT)) {
        CRect rcFocus(rcFace);
        rcFocus.DeflateRect(kFocusInset, kFocusInset);
        dc.DrawFocusRect(&rcFocus);
    }
}

bool CZEBButton::IsChecked() const
{
    return false;
}

bool CZEBButton::GetHaveFocus() const
{
    return m_hWnd && ::GetFocus() == m_hWnd;
}

void CZEBButton::AdjustForIcon(CRect& rect, CPoint& ptIcon) const
{
    const CSize size = ZEBIcon::GetSize(m_eIcon);
    const UINT nHorz = m_nHorzAlign & BS_CENTER;
    const UINT nVert = m_nVertAlign & BS_VCENTER;
    ptIcon.x = Align(rect.left, rect.right, size.cx, nHorz == BS_LEFT, nHorz == BS_RIGHT);
    ptIcon.y = Align(rect.top, rect.bottom, size.cy, nVert == BS_TOP, nVert == BS_BOTTOM);
    if (size.cx == 0)
        return;
    if (nHorz == BS_LEFT)
        rect.left += size.cx + kIconGap;
    else if (nHorz == BS_RIGHT)
        rect.right -= size.cx + kIconGap;
}

void CZEBButton::SetButtonStyle(UINT nStyle, BOOL bRedraw)
{
    CButton::SetButtonStyle((nStyle & ~static_cast<UINT>(BS_TYPEMASK)) | BS_OWNERDRAW, bRedraw);
}

// The face covers the whole button.
BOOL CZEBButton::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

// The system does not press an owner-drawn button by the second click of a double click. This one is pressed,
// so that fast clicks all count.
void CZEBButton::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    SendMessage(WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

void CZEBButton::OnMouseMove(UINT nFlags, CPoint point)
{
    CButton::OnMouseMove(nFlags, point);
    if (m_bHot)
        return;
    TRACKMOUSEEVENT request = {sizeof(request), TME_LEAVE, m_hWnd, 0};
    m_bHot = ::TrackMouseEvent(&request) != FALSE;
    RedrawIfCreated();
}

LRESULT CZEBButton::OnMouseLeave(WPARAM, LPARAM)
{
    m_bHot = false;
    RedrawIfCreated();
    return Default();
}

ShadeProps::State CZEBButton::GetShadeState(UINT nItemState) const
{
    if (nItemState & ODS_DISABLED)
        return ShadeProps::StateDisabled;
    if ((nItemState & ODS_SELECTED) || IsChecked())
        return ShadeProps::StatePressed;
    return m_bHot ? ShadeProps::StateHot : ShadeProps::StateNormal;
}

COLORREF CZEBButton::GetCaptionColor(bool bDisabled) const
{
    return ::GetSysColor(bDisabled && !m_bRegularColorWhenDisabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
}

CFont& CZEBButton::GetCaptionFont(bool bDisabled)
{
    const bool bLight = bDisabled && !m_bRegularFontWhenDisabled;
    CFont& font = bLight ? m_fontDisabled : m_fontCaption;
    if (font.m_hObject)
        return font;

    LOGFONTA lf = m_lfCaption;
    if (bLight)
        lf.lfWeight = FW_NORMAL;
    font.CreateFontIndirect(&lf);
    return font;
}

void CZEBButton::DrawCaption(CDC& dc, CRect rect, UINT nItemState)
{
    CString strCaption;
    GetWindowText(strCaption);
    if (strCaption.IsEmpty())
        return;

    const bool bDisabled = (nItemState & ODS_DISABLED) != 0;
    const FontSelection selection(dc, GetCaptionFont(bDisabled));
    const int nOldMode = dc.SetBkMode(TRANSPARENT);
    const COLORREF crOld = dc.SetTextColor(GetCaptionColor(bDisabled));
    const UINT nPrefix = nItemState & ODS_NOACCEL ? DT_HIDEPREFIX : 0;
    CRect rcNeeded;
    dc.DrawText(strCaption, &rcNeeded, DT_CALCRECT | DT_SINGLELINE);
    const UINT nPlace = rcNeeded.Width() <= rect.Width() ? DT_CENTER : DT_LEFT | DT_END_ELLIPSIS;
    dc.DrawText(strCaption, &rect, nPlace | DT_VCENTER | DT_SINGLELINE | nPrefix);
    dc.SetTextColor(crOld);
    dc.SetBkMode(nOldMode);
}

bool CZEBButton::IsMarkedBy(WPARAM nKey) const
{
    if (nKey < 'A' || nKey > 'Z' || !::IsWindowVisible(m_hWnd) || !IsWindowEnabled())
        return false;
    CString strCaption;
    GetWindowText(strCaption);
    strCaption.Replace("&&", ""); // an ampersand that is shown
    const int nMark = strCaption.Find('&');
    return nMark >= 0 && strCaption.Mid(nMark + 1, 1).CompareNoCase(CString(static_cast<char>(nKey))) == 0;
}

void CZEBButton::RedrawIfCreated()
{
    if (m_hWnd)
        Invalidate(FALSE);
}

// What screen readers are told of the button.
class CZEBButton::Accessible final : public AccessibleOf<CZEBButton>
{
public:
    using AccessibleOf::AccessibleOf;

private:
    // The caption. A button that has only an icon has the name that its tip tells.
    CString GetName(LONG) const override
    {
        CString strCaption;
        GetWnd().GetWindowText(strCaption);
        strCaption.Replace("&", "");
        return strCaption.IsEmpty() ? AskTip() : strCaption;
    }

    // A button that keeps its regular font when it is disabled serves as a label then.
    LONG GetRole(LONG) const override
    {
        const bool bLabel = GetWnd().m_bRegularFontWhenDisabled && !GetWnd().IsWindowEnabled();
        return bLabel ? ROLE_SYSTEM_STATICTEXT : ROLE_SYSTEM_PUSHBUTTON;
    }

    // Without caption and icon there is nothing to see.
    LONG GetState(LONG) const override
    {
        const bool bBlank = GetWnd().m_eIcon == ZEBIcon::IconNone && GetWnd().GetWindowTextLength() == 0;
        return GetWindowState() | (bBlank ? STATE_SYSTEM_INVISIBLE : 0);
    }

    CString GetAction(LONG) const override { return GetWnd().IsWindowEnabled() ? "Press" : ""; }
    void DoAction(LONG) override { GetWnd().PostMessage(BM_CLICK); }

    CString AskTip() const
    {
        TOOLTIPTEXTA tip{};
        tip.hdr = {m_hWnd, reinterpret_cast<UINT_PTR>(m_hWnd), TTN_NEEDTEXTA};
        tip.lpszText = tip.szText;
        tip.uFlags = TTF_IDISHWND;
        ::SendMessageA(::GetParent(m_hWnd), WM_NOTIFY, tip.hdr.idFrom, reinterpret_cast<LPARAM>(&tip));
        return tip.lpszText;
    }
};

LRESULT CZEBButton::OnGetObject(WPARAM wParam, LPARAM lParam)
{
    return WindowAccessible::IsAskedFor(lParam) ? WindowAccessible::HandOut(new Accessible(m_hWnd), wParam)
                                                : Default();
}

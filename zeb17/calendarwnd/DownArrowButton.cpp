// Drawing the arrow, and keeping its place free of the caption.
#include "DownArrowButton.h"

IMPLEMENT_DYNAMIC(CDownArrowButton, CZEBButton)

BEGIN_MESSAGE_MAP(CDownArrowButton, CZEBButton)
END_MESSAGE_MAP()

CDownArrowButton::CDownArrowButton() = default;

CDownArrowButton::~CDownArrowButton() = default;

void CDownArrowButton::DrawItem(LPDRAWITEMSTRUCT lpDIS)
{
    if (!lpDIS)
        return;

    const bool bDisabled = (lpDIS->itemState & ODS_DISABLED) != 0;
    CRect rcArrow;
    rcArrow.CopyRect(&lpDIS->rcItem);

    CZEBButton::DrawItem(lpDIS);

    rcArrow.left = rcArrow.right - ::GetSystemMetrics(SM_CXVSCROLL);
    ZEBIcon::DrawComboArrow(CDC::FromHandle(lpDIS->hDC), rcArrow,
                            ::GetSysColor(bDisabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
}

void CDownArrowButton::AdjustForIcon(CRect& rect, CPoint& ptIcon) const
{
    const int nWidth = ::GetSystemMetrics(SM_CXVSCROLL);
    const int nHeight = ::GetSystemMetrics(SM_CYHSCROLL);
    ptIcon.x = rect.right - nWidth - 1;
    ptIcon.y = (rect.bottom - rect.top) / 2 - nHeight / 2 + 1;
    rect.right -= nWidth;
}

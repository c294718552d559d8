// What the parts of a print job share.
#pragma once

#include <afxdlgs.h>

// The dialog of a print job, and the page at hand.
struct ZEB17_EXPORT CPrintInfo
{
    CPrintDialog m_dialog;
    UINT m_nCurPage = 1; // the number of the page at hand
    CRect m_rectDraw;    // the part of the page that can be drawn on, in units of the context
};

#include "ColorButton.h"

#include "Controls.h"

void ColorButton::SetColor(COLORREF color)
{
    m_color = color;
    Invalidate();
}

bool ColorButton::Choose()
{
    CColorDialog dialog(m_color, CC_FULLOPEN | CC_RGBINIT, this);
    if (dialog.DoModal() != IDOK)
        return false;
    SetColor(dialog.GetColor());
    return true;
}

void ColorButton::DrawItem(LPDRAWITEMSTRUCT item)
{
    CDC& dc = *CDC::FromHandle(item->hDC);
    CRect rect(item->rcItem);
    CBrush border(RGB(90, 90, 90));
    dc.FillSolidRect(&rect, m_color);
    dc.FrameRect(&rect, &border);
    if ((item->itemState & ODS_FOCUS) == 0)
        return;
    rect.DeflateRect(3, 3);
    dc.DrawFocusRect(&rect);
}

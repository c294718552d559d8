// The small shapes that buttons carry, drawn as vectors so that they are crisp at any size.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT ZEBIcon
{
public:
    // The numbers are the family's own; a month is a single arrow, a year a double one.
    enum ButtonIcon
    {
        IconNone = 0,
        IconPreviousMonth = 5,
        IconNextMonth = 72,
        IconPreviousYear = 83,
        IconNextYear = 119
    };

    // The room that an icon takes, in pixels; 0 by 0 for a number that names no icon.
    static CSize GetSize(ButtonIcon eIcon);

    // Draws the icon centred in `rect`, which is not clipped to. A number that names no icon draws nothing.
    static void Draw(CDC* pDC, ButtonIcon eIcon, const CRect& rect, COLORREF crIcon);

    // Draws the down arrow of a combo box centred in `rect`.
    static void DrawComboArrow(CDC* pDC, const CRect& rect, COLORREF crArrow);
};

// The icons of buttons, drawn as polygons so that they are sharp on any screen.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT ZEBIcon
{
public:
    // A month is a single arrow, a year a double one. The numbers are those that all libraries of the family
    // use.
    enum ButtonIcon
    {
        IconNone = 0,
        IconPreviousMonth = 5,
        IconNextMonth = 72,
        IconPreviousYear = 83,
        IconNextYear = 119
    };

    // The size of an icon in pixels; 0 by 0 for a number that is no icon.
    static CSize GetSize(ButtonIcon eIcon);

    // Draws the icon in the middle of the rectangle; a larger icon goes beyond it. A number that is no icon
    // draws nothing.
    static void Draw(CDC* pDC, ButtonIcon eIcon, const CRect& rect, COLORREF crIcon);

    // Draws the down arrow of a combo box in the middle of the rectangle.
    static void DrawComboArrow(CDC* pDC, const CRect& rect, COLORREF crArrow);
};

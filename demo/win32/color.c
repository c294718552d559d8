// Draws swatches with the stock brush, and asks for a colour with the system's dialog.
#include "color.h"

#include <commdlg.h>

void drawSwatch(HDC dc, const RECT* rect, COLORREF color)
{
    SetDCBrushColor(dc, color);
    FillRect(dc, rect, GetStockObject(DC_BRUSH));
    FrameRect(dc, rect, GetStockObject(GRAY_BRUSH));
}

int chooseColor(HWND owner, uint32_t* color)
{
    COLORREF custom[16] = {0};
    CHOOSECOLOR choice = {0};
    choice.lStructSize = sizeof choice;
    choice.hwndOwner = owner;
    choice.rgbResult = *color;
    choice.lpCustColors = custom;
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColor(&choice))
        return 0;
    *color = choice.rgbResult;
    return 1;
}

// Draws swatches with the stock brush, and makes list views show them as the images of their rows.
#include "swatch.h"

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
    CHOOSECOLOR choice = {.lStructSize = sizeof choice, .hwndOwner = owner, .rgbResult = *color};
    choice.lpCustColors = custom;
    choice.Flags = CC_RGBINIT | CC_FULLOPEN;
    if (!ChooseColor(&choice))
        return 0;
    *color = choice.rgbResult;
    return 1;
}

void startSwatchList(HWND list)
{
    LVCOLUMN column = {0};
    ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    ListView_InsertColumn(list, 0, &column);
}

SwatchRows beginSwatchRows(HWND list)
{
    const int side = GetSystemMetricsForDpi(SM_CXSMICON, GetDpiForWindow(list));
    const SwatchRows rows = {list, ImageList_Create(side, side, ILC_COLOR24, 8, 8), side, 0};
    ImageList_Destroy(ListView_SetImageList(list, rows.images, LVSIL_SMALL));
    return rows;
}

static void addImage(const SwatchRows* rows, COLORREF color)
{
    const HDC screen = GetDC(NULL);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP image = CreateCompatibleBitmap(screen, rows->side, rows->side);
    const HGDIOBJ before = SelectObject(memory, image);
    RECT square = {0, 0, rows->side, rows->side};
    FillRect(memory, &square, GetSysColorBrush(COLOR_WINDOW));
    InflateRect(&square, -1, -1);
    drawSwatch(memory, &square, color);
    SelectObject(memory, before);
    ImageList_Add(rows->images, image, NULL);
    DeleteObject(image);
    DeleteDC(memory);
    ReleaseDC(NULL, screen);
}

void addSwatchRow(SwatchRows* rows, const char* text, COLORREF color, int isChecked)
{
    const int row = rows->count++;
    LVITEM item = {.mask = LVIF_TEXT | LVIF_IMAGE, .iItem = row, .iImage = row, .pszText = (char*)text};
    addImage(rows, color);
    if (row < ListView_GetItemCount(rows->list))
        ListView_SetItem(rows->list, &item);
    else
        ListView_InsertItem(rows->list, &item);
    ListView_SetCheckState(rows->list, row, isChecked);
}

void endSwatchRows(const SwatchRows* rows)
{
    for (int row = ListView_GetItemCount(rows->list); row > rows->count; --row)
        ListView_DeleteItem(rows->list, row - 1);
    ListView_SetColumnWidth(rows->list, 0, LVSCW_AUTOSIZE_USEHEADER);
}

int selectedRow(HWND list)
{
    return ListView_GetNextItem(list, -1, LVNI_SELECTED);
}

void selectRow(HWND list, int row)
{
    const UINT state = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(list, row, state, state);
    ListView_EnsureVisible(list, row, FALSE);
}

// Makes the list view show the squares as the images of its rows.
#include "swatch_list.h"

#include "color.h"

void startSwatchList(HWND list)
{
    const DWORD style = LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
    LVCOLUMN column = {0};
    ListView_SetExtendedListViewStyle(list, style);
    ListView_InsertColumn(list, 0, &column);
}

void beginSwatchRows(SwatchRows* rows, HWND list)
{
    rows->list = list;
    rows->side = GetSystemMetricsForDpi(SM_CXSMICON, GetDpiForWindow(list));
    rows->images = ImageList_Create(rows->side, rows->side, ILC_COLOR24, 8, 8);
    rows->count = 0;
    ImageList_Destroy(ListView_SetImageList(list, rows->images, LVSIL_SMALL));
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
    LVITEM item = {0};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = item.iImage = rows->count++;
    item.pszText = (char*)text;
    addImage(rows, color);
    if (item.iItem < ListView_GetItemCount(rows->list))
        ListView_SetItem(rows->list, &item);
    else
        ListView_InsertItem(rows->list, &item);
    ListView_SetCheckState(rows->list, item.iItem, isChecked);
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

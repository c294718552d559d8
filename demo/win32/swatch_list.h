// List views whose rows have a check box, a square of colour and a text.
#ifndef DESK_SWATCH_LIST_H
#define DESK_SWATCH_LIST_H

#include <windows.h>
#include <commctrl.h>

// Prepares a list view in the report view: once.
void startSwatchList(HWND list);

// A list that is being filled anew, row by row. Its selection stays where it is.
typedef struct SwatchRows
{
    HWND list;
    HIMAGELIST images;
    int side; // of a square, in pixels
    int count;
} SwatchRows;

void beginSwatchRows(SwatchRows* rows, HWND list);
void addSwatchRow(SwatchRows* rows, const char* text, COLORREF color, int isChecked);
// Removes the rows that the list had more before.
void endSwatchRows(const SwatchRows* rows);

// The row that is selected, -1 for none; and selects one.
int selectedRow(HWND list);
void selectRow(HWND list, int row);

#endif

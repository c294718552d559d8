// Colours: squares of them, list views whose rows have a check box, a square and a text, and the question for
// one.
#ifndef DESK_SWATCH_H
#define DESK_SWATCH_H

#include <stdint.h>
#include <windows.h>
#include <commctrl.h>

// Draws a framed rectangle of that colour.
void drawSwatch(HDC dc, const RECT* rect, COLORREF color);

// Asks the user for a colour, from the one given. 0 if the user cancels; then the colour stays.
int chooseColor(HWND owner, uint32_t* color);

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

SwatchRows beginSwatchRows(HWND list);
void addSwatchRow(SwatchRows* rows, const char* text, COLORREF color, int isChecked);
// Removes the rows that the list had more before.
void endSwatchRows(const SwatchRows* rows);

// The row that is selected, -1 for none; and selects one.
int selectedRow(HWND list);
void selectRow(HWND list, int row);

#endif

// Colours: a square of one, and the system's dialog that asks for one.
#ifndef DESK_COLOR_H
#define DESK_COLOR_H

#include <stdint.h>
#include <windows.h>

// Draws a framed rectangle of that colour.
void drawSwatch(HDC dc, const RECT* rect, COLORREF color);

// Asks the user for a colour, from the one given. 0 if the user cancels; then the colour stays.
int chooseColor(HWND owner, uint32_t* color);

#endif

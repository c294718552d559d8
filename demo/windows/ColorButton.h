// A button that shows a colour, and lets the user choose another when it is pressed.
#pragma once

#include <afxwin.h>

class ColorButton : public CButton
{
public:
    COLORREF GetColor() const { return m_color; }
    void SetColor(COLORREF color);
    // Asks for a colour; false if the user keeps the one there is.
    bool Choose();

    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    COLORREF m_color = RGB(255, 255, 255);
};

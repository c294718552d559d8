// A button that opens a menu, with a down arrow at its right edge.
#pragma once

#include <ZEBButton.h>

class ZEB17_EXPORT CDownArrowButton : public CZEBButton
{
    DECLARE_DYNAMIC(CDownArrowButton)

public:
    CDownArrowButton();
    ~CDownArrowButton() override;

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override;

    // Keeps the strip of the arrow, as wide as a vertical scroll bar, free of the caption.
    void AdjustForIcon(CRect& rect, CPoint& ptIcon) const override;

    DECLARE_MESSAGE_MAP()
};

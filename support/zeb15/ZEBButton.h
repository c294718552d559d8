// A push button that draws itself: shaded face, icon, caption in a font of its own, focus rectangle.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>
#include "ShadeProps.h"
#include "ZEBIcon.h"

class ZEB17_EXPORT CZEBButton : public CButton
{
    DECLARE_DYNAMIC(CZEBButton)

public:
    CZEBButton();
    ~CZEBButton() override;

    // Creates the button; it is owner-drawn whatever the style says. The caption may mark a mnemonic
    // with an ampersand.
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    // Sets the caption's font and repaints: height of a line in pixels, weight as in LOGFONT, and whether
    // it is italic and underlined (0 or 1). Without a call the default font of the user interface serves.
    void SetFont(const CString& strFace, long nHeight, long nWeight, BYTE byItalic, BYTE byUnderline);

    // Puts an icon on the button.
    //   nHorzAlign   BS_LEFT, BS_CENTER or BS_RIGHT: where it stands beside the caption
    //   nVertAlign   BS_TOP, BS_VCENTER or BS_BOTTOM
    //   bRedraw      repaint at once
    void SetIcon(ZEBIcon::ButtonIcon eIcon, UINT nHorzAlign, UINT nVertAlign, bool bRedraw);

    // A disabled caption loses its weight and turns grey. `bRegularFont` lets it keep the button's
    // font, `bRegularColor` its colour: for a button that only shows something.
    void SetRegularFontWhenDisabled(bool bRegularFont, bool bRegularColor);

    // Copies the shading and repaints. Without a call the button has the system's flat look.
    void SetShadeProps(const ShadeProps& props);

    // The icon is all that the button shows: it is centred in the whole face, and no room is kept for
    // a caption beside it.
    bool m_bIconOnly = false;

protected:
    // Draws the whole button: face, icon, caption and focus rectangle.
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override;

    // Whether the button shows itself pressed while nobody presses it; a push button never does.
    virtual bool IsChecked() const;

    // Whether the button has the keyboard focus.
    virtual bool GetHaveFocus() const;

    // Divides the content rectangle between icon and caption: gives the icon's upper left corner and
    // takes the icon's room off `rect`. A derived class may keep a part of the face free here.
    virtual void AdjustForIcon(CRect& rect, CPoint& ptIcon) const;

    // Changes the style as CButton does, but the button stays owner-drawn.
    virtual void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);

    DECLARE_MESSAGE_MAP()

private:
    class Accessible;

    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM, LPARAM);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);

    ShadeProps::State GetShadeState(UINT nItemState) const;
    COLORREF GetCaptionColor(bool bDisabled) const;
    CFont& GetCaptionFont(bool bDisabled);
    void DrawCaption(CDC& dc, CRect rect, UINT nItemState);
    void RedrawIfCreated();

    LOGFONTA m_lfCaption;
    CFont m_fontCaption; // both fonts are made when first drawn with
    CFont m_fontDisabled;
    ShadeProps m_shade;
    ZEBIcon::ButtonIcon m_eIcon = ZEBIcon::IconNone;
    UINT m_nHorzAlign = BS_LEFT;
    UINT m_nVertAlign = BS_VCENTER;
    bool m_bRegularFontWhenDisabled = false;
    bool m_bRegularColorWhenDisabled = false;
    bool m_bHot = false; // the mouse is over the button
};

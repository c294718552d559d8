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

    // Creates the button, which is owner-drawn whatever dwStyle says. An ampersand in the caption marks the
    // letter behind it as a mnemonic. A caption that does not fit is drawn from the left and ends in dots.
    BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;

    // Sets the font of the caption and repaints. nHeight is the height of a line in pixels, nWeight the
    // weight as in LOGFONT; byItalic and byUnderline are 0 or 1. Before the first call the caption has the
    // default font of the user interface.
    void SetFont(const CString& strFace, long nHeight, long nWeight, BYTE byItalic, BYTE byUnderline);

    // Puts an icon on the button.
    //   nHorzAlign   BS_LEFT, BS_CENTER or BS_RIGHT: the place of the icon beside the caption
    //   nVertAlign   BS_TOP, BS_VCENTER or BS_BOTTOM
    //   bRedraw      repaint at once
    void SetIcon(ZEBIcon::ButtonIcon eIcon, UINT nHorzAlign, UINT nVertAlign, bool bRedraw);

    // The caption of a disabled button is light and grey. With bRegularFont it keeps the font, with
    // bRegularColor the colour of an enabled one: for a button that serves as a label.
    void SetRegularFontWhenDisabled(bool bRegularFont, bool bRegularColor);

    // Copies the shading and repaints. Before the first call the button is flat, in colours of the system.
    // Where the system's text cannot be read on the shading, as in a dark theme, the button is drawn in the
    // colours of the system's theme instead.
    void SetShadeProps(const ShadeProps& props);

    // Whether this key, a letter's virtual key, presses the button together with Alt: its caption marks the
    // letter, and the button can be pressed.
    bool IsMarkedBy(WPARAM nKey) const;

    // The button shows nothing but the icon, which is centred on the whole face.
    bool m_bIconOnly = false;

protected:
    // Draws the whole button: face, icon, caption and focus rectangle.
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override;

    // Whether the button looks pressed while nobody presses it. A push button never does.
    virtual bool IsChecked() const;

    // Whether the button has the keyboard focus.
    virtual bool GetHaveFocus() const;

    // Divides the content rectangle between icon and caption: ptIcon becomes the upper left corner of the
    // icon, and rect the place of the caption. A derived class may keep a part of the face free here.
    virtual void AdjustForIcon(CRect& rect, CPoint& ptIcon) const;

    // Changes the style as CButton::SetButtonStyle does, but the button stays owner-drawn.
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
    CFont m_fontCaption; // this and the next are made when they are first needed
    CFont m_fontDisabled;
    ShadeProps m_shade;
    ZEBIcon::ButtonIcon m_eIcon = ZEBIcon::IconNone;
    UINT m_nHorzAlign = BS_LEFT;
    UINT m_nVertAlign = BS_VCENTER;
    bool m_bRegularFontWhenDisabled = false;
    bool m_bRegularColorWhenDisabled = false;
    bool m_bHot = false; // the pointer is over the button
};

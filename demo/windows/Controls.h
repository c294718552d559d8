// The controls and the dialog of the system that only this host uses: labels, text fields, lists, combo
// boxes, check boxes, and the dialog for a colour.
#pragma once

#include <afxdlgs.h>
#include <afxwin.h>

// The notifications of text fields and lists, in the message map of the parent.
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

// A button that is ticked or not.
class CheckBox : public CButton
{
public:
    int GetCheck() const { return static_cast<int>(::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
};

// A text or a frame.
class CStatic : public CWnd
{
public:
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);
};

// A text field of one line; or with ES_MULTILINE of several lines, which "\r\n" separates.
class CEdit : public CWnd
{
public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Limits what can be typed; 0 lifts the limit.
    void SetLimitText(UINT nMax) { SendMessage(EM_LIMITTEXT, nMax); }
};

// A list of rows, one of which may be selected. Indexes count from 0; LB_ERR stands for no row.
class CListBox : public CWnd
{
public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return Ask(LB_GETCOUNT); }
    int GetCurSel() const { return Ask(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(LB_SETCURSEL, nSelect); }
    // Gives the index of the new row.
    int AddString(LPCTSTR lpszItem) { return Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int DeleteString(UINT nIndex) { return Ask(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { Ask(LB_RESETCONTENT); }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return Ask(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect));
    }
    int SetTopIndex(int nIndex) { return Ask(LB_SETTOPINDEX, nIndex); }

    // Tells the height of a row with the style LBS_OWNERDRAWFIXED.
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    // Draws a row with that style.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, static_cast<WPARAM>(wParam), lParam));
    }
};

// A field from which a list opens to choose from. Indexes count from 0; CB_ERR stands for no entry.
class CComboBox : public CWnd
{
public:
    // The rectangle is that of the field and the opened list together.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCurSel() const { return Ask(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(CB_SETCURSEL, nSelect); }
    int AddString(LPCTSTR lpszString) { return Ask(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, static_cast<WPARAM>(wParam), lParam));
    }
};

// The dialog that asks for a colour. The colours that the user mixes are remembered until the process ends.
class CColorDialog : public CWnd
{
public:
    // clrInit: the colour that is shown first. dwFlags: CC_ flags.
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);

    // Shows the dialog, and gives IDOK, or IDCANCEL if it was cancelled or failed.
    virtual INT_PTR DoModal();
    // The colour chosen.
    COLORREF GetColor() const { return m_cc.rgbResult; }

    CHOOSECOLORA m_cc{};
};

// Buttons, labels, text fields, lists and combo boxes. Included by afxwin.h.
#pragma once

#include <afxwnd_.h>

// The notifications of text fields and lists, in the message map of the parent.
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

// A push button, check box or radio button.
class ZEB17_EXPORT CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    // Draws a button of the style BS_OWNERDRAW.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

    int GetCheck() const { return static_cast<int>(::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};

// A text or a frame.
class ZEB17_EXPORT CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xFFFF);
};

// A text field of one line; or with ES_MULTILINE of several lines, which "\r\n" separates.
class ZEB17_EXPORT CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Limits what can be typed; 0 lifts the limit.
    void SetLimitText(UINT nMax) { SendMessage(EM_LIMITTEXT, nMax); }
};

// A list of rows, one of which may be selected. Indexes count from 0; LB_ERR stands for no row.
class ZEB17_EXPORT CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
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
class ZEB17_EXPORT CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
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

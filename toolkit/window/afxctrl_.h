// Text fields, lists and combo boxes. Included by afxwin.h.
#pragma once

#include <afxwin.h>

// Their notifications, in the message map of the parent.
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)

/// A text field of one line, or of several with ES_MULTILINE, which parts them by "\r\n".
class ZEB17_EXPORT CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Limits what can be typed; 0 lifts the limit.
    void SetLimitText(UINT nMax) { SendMessage(EM_LIMITTEXT, nMax); }
};

/// A list of rows, one of which may be selected. Indexes count from 0; LB_ERR stands for no row.
class ZEB17_EXPORT CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return Ask(LB_GETCOUNT); }
    int GetCurSel() const { return Ask(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(LB_SETCURSEL, nSelect); }
    /// Gives the index of the new row.
    int AddString(LPCTSTR lpszItem) { return Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszItem)); }
    int DeleteString(UINT nIndex) { return Ask(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { Ask(LB_RESETCONTENT); }
    int GetTextLen(int nIndex) const { return Ask(LB_GETTEXTLEN, nIndex); }
    /// Empty for a row that isn't there.
    void GetText(int nIndex, CString& rString) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData)
    {
        return Ask(LB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    int GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return Ask(LB_GETITEMRECT, nIndex, reinterpret_cast<LPARAM>(lpRect));
    }
    int SetTopIndex(int nIndex) { return Ask(LB_SETTOPINDEX, nIndex); }

    /// Tells the height of a row with the style LBS_OWNERDRAWFIXED.
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    /// Draws a row with that style.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, static_cast<WPARAM>(wParam), lParam));
    }
};

/// A field that drops a list down to choose from. Indexes count from 0; CB_ERR stands for no entry.
class ZEB17_EXPORT CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    /// The rectangle holds the list that drops down, too.
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetCount() const { return Ask(CB_GETCOUNT); }
    int GetCurSel() const { return Ask(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(CB_SETCURSEL, nSelect); }
    int AddString(LPCTSTR lpszString) { return Ask(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)); }
    void ResetContent() { Ask(CB_RESETCONTENT); }

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(::SendMessageA(m_hWnd, message, static_cast<WPARAM>(wParam), lParam));
    }
};

// The panel beside the calendar: the groups, the user's dates, and what is done with them.
#pragma once

#include "DemoCalendar.h"
#include "EntryList.h"
#include "GroupList.h"

#include <afxwin.h>

class SettingsPanel : public CWnd
{
public:
    explicit SettingsPanel(DemoCalendar& calendar);

    bool CreatePanel(const CRect& rect, CWnd* parent, UINT id, CFont& font);

    // Lists what the settings hold now, for example after a load.
    void Refresh();
    void FocusFirst() { m_groups.SetFocus(); }
    // Saving is refused while the file could not be read, since it would replace what is in there.
    void AllowSave(bool allow) { m_save.EnableWindow(allow); }

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnAddDate();
    afx_msg void OnAddToDo();
    afx_msg void OnDelete();
    afx_msg void OnSave();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    DECLARE_MESSAGE_MAP()

private:
    CalendarDateEntry* MakeEntry();
    void ApplyChange();

    DemoCalendar& m_calendar;
    GroupList m_groups;
    EntryList m_entries;
    CEdit m_text;
    CButton m_addDate;
    CButton m_addToDo;
    CButton m_delete;
    CButton m_save;
};

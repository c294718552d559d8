// The panel beside the calendar: the groups, the user's dates, and what is done with them.
#pragma once

#include "Controls.h"
#include "DemoCalendar.h"
#include "EntryList.h"
#include "GroupList.h"

class SettingsPanel : public CWnd
{
public:
    explicit SettingsPanel(DemoCalendar& calendar);

    // `readable`: whether the data file could be read. If not, nothing can be changed or saved here, since
    // saving would replace what is in there.
    bool CreatePanel(const CRect& rect, CWnd* parent, UINT id, CFont& font, bool readable);

    // Whether there is something to save.
    bool IsChanged() const { return m_isChanged; }
    // Saves; false, and the user has been told, if that failed.
    bool Save();

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnAdd();
    afx_msg void OnEdit();
    afx_msg void OnDelete();
    afx_msg void OnSave() { Save(); }
    afx_msg void OnSelected() { ShowSelected(); }
    BOOL PreTranslateMessage(MSG* pMsg) override;
    DECLARE_MESSAGE_MAP()

private:
    bool CreateControls();
    void AddEntry(const CalendarDateEntry& entry, CalendarSettings::Group group);
    CalendarDateEntry EntryOfShownDate() const;
    void ApplyChange(const CalendarDateEntry* selected);
    void SetChanged(bool changed);
    void ShowSelected();

    DemoCalendar& m_calendar;
    CFont* m_font = nullptr;
    bool m_isChanged = false;

    CStatic m_groupsLabel;
    GroupList m_groups;
    CStatic m_entriesLabel;
    EntryList m_entries;
    CStatic m_words;
    CButton m_add;
    CButton m_edit;
    CButton m_delete;
    CButton m_save;
};

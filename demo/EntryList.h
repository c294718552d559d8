// The user's own dates and to-do entries, one a row.
#pragma once

#include <afxwin.h>

#include <CalendarSettings.h>

class EntryList : public CListBox
{
public:
    explicit EntryList(CalendarSettings& settings) : m_settings(settings) {}

    bool CreateList(const CRect& rect, CWnd* parent, UINT id);

    // Lists what the settings hold now.
    void Refill();
    // Deletes the selected entry; false if none is selected.
    bool DeleteSelected();

private:
    void AddGroup(CalendarSettings::Group group);

    CalendarSettings& m_settings;
};

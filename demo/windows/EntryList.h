// The user's own dates and to-do entries, one a row.
#pragma once

#include "Controls.h"

#include <CalendarSettings.h>

class EntryList : public CListBox
{
public:
    explicit EntryList(CalendarSettings& settings) : m_settings(settings) {}

    bool CreateList(const CRect& rect, CWnd* parent, UINT id);

    // Lists what the settings hold now, and selects the entry, if it is among them.
    void Refill(const CalendarDateEntry* selected);

    // The selected entry and its group; null if none is selected.
    CalendarDateEntry* Selected();
    CalendarSettings::Group SelectedGroup() const;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;

private:
    CalendarDateEntry* EntryAt(int row);
    CalendarSettings::Group GroupAt(int row) const;

    CalendarSettings& m_settings;
};

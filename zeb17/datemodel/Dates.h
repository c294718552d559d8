// What the groups of special dates have in common.
#pragma once

#include "CalendarDateEntry.h"
#include "DateTable.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

class Dates
{
public:
    Dates() = default;
    virtual ~Dates() = default;
    Dates(const Dates&) = delete;
    Dates& operator=(const Dates&) = delete;

    // Stores or loads the show flag and the colour of each entry under the entry's id. Loading passes over an
    // id that the group does not have, and leaves an entry whose id does not come as it is. Failures are the
    // archive's exceptions; what was read before a failure stays.
    virtual void Serialize(CArchive& archive);

    // Adds the texts of what falls on the date to strDesc, and sets dwColor to the colour of the last entry
    // that it reports; without such an entry both stay as they are. True if the date is a special date of the
    // group; that is so for a calculated date even if its entry is hidden.
    virtual bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const = 0;

    // The entries, which the group owns. GetAt gives null past the end.
    size_t GetCount() const { return m_Entries.size(); }
    CalendarDateEntry* GetAt(size_t nIndex) const;

    // Give all entries a colour, 0x00BBGGRR, or show or hide them all.
    void SetAllColor(DWORD dwColor);
    void SetAllShow(bool bShow);

protected:
    // For the constructors of the groups. They add a blank entry, a fixed date (month 1 to 12, day 1 to 31),
    // an entry whose date the group works out, and all rows of a table.
    CalendarDateEntry* AddEntry();
    void AddDay(int nID, int nMonth, int nDay, const CString& strDesc, bool bRuleFlag);
    void AddCalculated(int nID, const CString& strDesc);
    void AddTable(const DateTable& table);

    // Reports the entries whose rule falls on the date, in the order of the list.
    bool LookupEntries(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const;
    // Does the same, and then reports the first of easterDates that falls on the date.
    bool LookupWithEaster(std::span<const DateTable::EasterDate> easterDates, int nDay, int nMonth, int nYear,
                          CString& strDesc, DWORD& dwColor) const;

    // Adds strNew to strDesc on a line of its own, with the age in parentheses if it is above 0. Does nothing
    // if strDesc already holds strNew.
    static void AppendDesc(const CString& strNew, CString& strDesc, int nAge);
    // The date of Easter Sunday by the Gregorian rule, which serves for every year, also before 1582.
    static void GetEasterDate(int nYear, int& nMonth, int& nDay);

    std::vector<std::unique_ptr<CalendarDateEntry>> m_Entries; // may hold null

private:
    CalendarDateEntry* FindByID(int nID) const;
    void StoreOverlay(CArchive& archive);
    void LoadOverlay(CArchive& archive);
};

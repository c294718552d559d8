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

    // Stores or loads show flag and colour of each entry, by id. Loading drops what has no entry here, and an
    // entry that is not in the archive keeps what it has. Failures are the archive's exceptions; what was
    // read before stays.
    virtual void Serialize(CArchive& archive);

    // Adds to strDesc what falls on the date and sets dwColor to the colour of the last entry reported; both
    // stay as they are if nothing is. True when the date is a special date of the group, even if its entry is
    // hidden.
    virtual bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const = 0;

    // The entries, which stay the group's. Null past the end.
    size_t GetCount() const { return m_Entries.size(); }
    CalendarDateEntry* GetAt(size_t nIndex) const;

    // Give all entries a colour, 0x00BBGGRR, or show or hide them all.
    void SetAllColor(DWORD dwColor);
    void SetAllShow(bool bShow);

protected:
    // For the constructors of the groups: a blank entry, a fixed date (month 1 to 12, day 1 to 31), an entry
    // whose date the group works out, and all that a table says.
    CalendarDateEntry* AddEntry();
    void AddDay(int nID, int nMonth, int nDay, const CString& strDesc, bool bRuleFlag);
    void AddCalculated(int nID, const CString& strDesc);
    void AddTable(const DateTable& table);

    // Reports the entries whose rule falls on the date, in the order of the list.
    bool LookupEntries(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const;
    // The same, and then the first of the dates that fall on the date counted from Easter.
    bool LookupWithEaster(std::span<const DateTable::EasterDate> easterDates, int nDay, int nMonth, int nYear,
                          CString& strDesc, DWORD& dwColor) const;

    // Puts strNew on a line of its own, with the age in parentheses if it is above 0, unless strDesc holds
    // it.
    static void AppendDesc(const CString& strNew, CString& strDesc, int nAge);
    // Easter Sunday by the Gregorian rule, which is applied to every year.
    static void GetEasterDate(int nYear, int& nMonth, int& nDay);

    std::vector<std::unique_ptr<CalendarDateEntry>> m_Entries; // may hold null

private:
    CalendarDateEntry* FindByID(int nID) const;
    void StoreOverlay(CArchive& archive);
    void LoadOverlay(CArchive& archive);
};

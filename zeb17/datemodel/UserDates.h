// What the two groups of the user's own entries have in common: the entries are stored whole.
#pragma once

#include "Dates.h"

class UserDates : public Dates
{
public:
    bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const override;

    // The entry is the group's from now on.
    void Add(std::unique_ptr<CalendarDateEntry> pEntry);
    // Ends the first entry at that address; an entry of another group is left alone.
    void Delete(const CalendarDateEntry* pEntry);

protected:
    // Stores a section: its word, the number of records, the records.
    void StoreEntries(CArchive& archive, WORD wSectionWord);

    // Takes the place of the old entries, with the records read before an exception of the archive.
    void LoadEntries(CArchive& archive, size_t nCount);

    // The number of records that follow. Throws std::length_error if no list could hold them.
    size_t ReadCount(CArchive& archive, bool bOldForm);
};

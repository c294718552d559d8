// What the two groups of the user's own entries have in common. Their entries are stored whole.
#pragma once

#include "Dates.h"

class UserDates : public Dates
{
public:
    bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const override;

    // Adds the entry, which the group owns from then on.
    void Add(std::unique_ptr<CalendarDateEntry> pEntry);
    // Deletes the entry. Does nothing if it is not an entry of this group.
    void Delete(const CalendarDateEntry* pEntry);

protected:
    // Stores a section: its word, the number of records, and the records.
    void StoreEntries(CArchive& archive, WORD wSectionWord);

    // Reads that many records and adds them to the list, which keeps those that were read before an exception
    // of the archive.
    void LoadEntries(CArchive& archive, size_t nCount);

    // The number of records that follow. Throws std::length_error if no list could hold them.
    size_t ReadCount(CArchive& archive, bool bOldForm);
};

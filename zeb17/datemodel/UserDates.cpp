// The list of a group of the user's, and the part of its section that both groups share.
#include "UserDates.h"

#include <SerializeData.h>

#include <algorithm>
#include <stdexcept>

bool UserDates::Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const
{
    return LookupEntries(nDay, nMonth, nYear, strDesc, dwColor);
}

void UserDates::Add(std::unique_ptr<CalendarDateEntry> pEntry)
{
    m_Entries.push_back(std::move(pEntry));
}

void UserDates::Delete(const CalendarDateEntry* pEntry)
{
    const auto entry = std::ranges::find(m_Entries, pEntry, &std::unique_ptr<CalendarDateEntry>::get);
    if (pEntry && entry != m_Entries.end())
        m_Entries.erase(entry);
}

void UserDates::StoreEntries(CArchive& archive, WORD wSectionWord)
{
    archive << wSectionWord;
    SerializeData::SerializeLoopCounter(archive, m_Entries.size(), false);
    for (const auto& pEntry : m_Entries) {
        if (pEntry)
            pEntry->Serialize(archive);
    }
}

size_t UserDates::ReadCount(CArchive& archive, bool bOldForm)
{
    const size_t nCount = SerializeData::SerializeLoopCounter(archive, 0, bOldForm);
    if (nCount > m_Entries.max_size())
        throw std::length_error("vector too long");
    return nCount;
}

void UserDates::LoadEntries(CArchive& archive, size_t nCount)
{
    // The list grows with the records that are there; the count alone takes no memory.
    for (size_t i = 0; i < nCount; ++i) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        pEntry->Serialize(archive);
        Add(std::move(pEntry));
    }
}

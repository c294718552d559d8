// The section of the user's own dates, in all its forms.
#include "DatesCustom.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr WORD kSectionWord = 3;
constexpr WORD kLastWordOfOldCounter = 2;
constexpr WORD kWordOfBareEntries = 1;

}

DWORD DatesCustom::s_nNextCustomID = 10000;

void DatesCustom::Serialize(CArchive& archive)
{
    if (archive.IsStoring()) {
        StoreEntries(archive, kSectionWord);
        return;
    }
    WORD wSectionWord = 0;
    archive >> wSectionWord;
    m_Entries.clear();
    const size_t nCount = ReadCount(archive, wSectionWord <= kLastWordOfOldCounter);
    if (wSectionWord == kWordOfBareEntries)
        LoadBareEntries(archive, nCount);
    else
        LoadEntries(archive, nCount);
}

// The first data files held neither the colour nor the show flag of an entry, and no lasting id.
void DatesCustom::LoadBareEntries(CArchive& archive, size_t nCount)
{
    DateEntry bare;
    for (size_t i = 0; i < nCount; ++i) {
        bare.Serialize(archive);
        auto pEntry = std::make_unique<CalendarDateEntry>();
        pEntry->DateEntry::operator=(bare);
        pEntry->m_nID = static_cast<std::int32_t>(s_nNextCustomID++);
        Add(std::move(pEntry));
    }
}

// Looking up what falls on a date, the date of Easter, and the stored colours and show flags of a group.
#include "Dates.h"

#include "SeenPieces.h"

#include <NumberTextConv.h>
#include <SerializeData.h>
#include <StringUtils.h>

#include <algorithm>
#include <limits>
#include <string_view>

namespace {

constexpr WORD kOverlayVersion = 2;
constexpr WORD kOldCounterVersion = 1;

// A date that is counted from Easter is looked for in these months.
constexpr int kFirstEasterMonth = 3;
constexpr int kLastEasterMonth = 6;

// How many years the entry has been observed; 0 for an entry that tells no first year.
int GetAge(const DateEntry& entry, int nYear)
{
    if (entry.m_nKind != DateEntry::KIND_FROM_YEAR)
        return 0;
    const long long nAge = static_cast<long long>(nYear) - entry.m_nStartYear; // a file may hold any year
    return static_cast<int>(std::min<long long>(nAge, std::numeric_limits<int>::max()));
}

std::string_view ViewOf(const CString& strText)
{
    return {strText.GetString(), static_cast<std::size_t>(strText.GetLength())};
}

void AppendLine(const CString& strNew, CString& strDesc, int nAge)
{
    if (!strDesc.IsEmpty())
        strDesc += "\r\n";
    strDesc += strNew;
    if (nAge > 0)
        strDesc += " (" + NumberTextConv::NumberToString(nAge, false, 0, CString()) + ')';
}

}

void Dates::Serialize(CArchive& archive)
{
    if (archive.IsStoring())
        StoreOverlay(archive);
    else
        LoadOverlay(archive);
}

void Dates::StoreOverlay(CArchive& archive)
{
    archive << kOverlayVersion;
    SerializeData::SerializeLoopCounter(archive, m_Entries.size(), false);
    for (const auto& pEntry : m_Entries) {
        if (!pEntry)
            continue;
        archive << pEntry->m_nID << pEntry->m_dwColor;
        SerializeData::Serialize(archive, pEntry->m_bShow);
    }
}

void Dates::LoadOverlay(CArchive& archive)
{
    WORD wVersion = 0;
    archive >> wVersion;
    const size_t nCount = SerializeData::SerializeLoopCounter(archive, 0, wVersion == kOldCounterVersion);
    for (size_t i = 0; i < nCount; ++i) {
        std::int32_t nID = 0;
        DWORD dwColor = 0;
        bool bShow = false;
        archive >> nID >> dwColor;
        SerializeData::Serialize(archive, bShow);
        if (CalendarDateEntry* pEntry = FindByID(nID)) {
            pEntry->m_dwColor = dwColor;
            pEntry->m_bShow = bShow;
        }
    }
}

CalendarDateEntry* Dates::GetAt(size_t nIndex) const
{
    return nIndex < m_Entries.size() ? m_Entries[nIndex].get() : nullptr;
}

void Dates::SetAllColor(DWORD dwColor)
{
    for (const auto& pEntry : m_Entries) {
        if (pEntry)
            pEntry->m_dwColor = dwColor;
    }
}

void Dates::SetAllShow(bool bShow)
{
    for (const auto& pEntry : m_Entries) {
        if (pEntry)
            pEntry->m_bShow = bShow;
    }
}

CalendarDateEntry* Dates::AddEntry()
{
    return m_Entries.emplace_back(std::make_unique<CalendarDateEntry>()).get();
}

void Dates::AddDay(int nID, int nMonth, int nDay, const CString& strDesc, bool bRuleFlag)
{
    CalendarDateEntry* pEntry = AddEntry();
    pEntry->m_nID = nID;
    pEntry->SetDay(strDesc, nDay, nMonth);
    pEntry->m_bRuleFlag = bRuleFlag;
}

void Dates::AddCalculated(int nID, const CString& strDesc)
{
    CalendarDateEntry* pEntry = AddEntry();
    pEntry->m_nID = nID;
    pEntry->SetDesc(strDesc);
    pEntry->m_bCalculated = true;
}

void Dates::AddTable(const DateTable& table)
{
    for (const auto& row : table.fixed)
        AddDay(row.nID, row.nMonth, row.nDay, StringUtils::DecryptText(*row.pText), row.bRuleFlag);

    for (const auto& row : table.weekdays) {
        CalendarDateEntry* pEntry = AddEntry();
        pEntry->m_nID = row.nID;
        pEntry->SetDayOfWeek(StringUtils::DecryptText(*row.pText), row.occurrence, row.dayOfWeek, row.nMonth);
        pEntry->m_nKind = row.kind;
        pEntry->m_nStartYear = row.nStartYear;
    }

    for (const auto& row : table.nearWeekdays) {
        CalendarDateEntry* pEntry = AddEntry();
        pEntry->m_nID = row.nID;
        pEntry->SetBeforeAfterDayOfWeek(StringUtils::DecryptText(*row.pText), row.occurrence, row.dayOfWeek,
                                        row.nMonth, row.nSignedDayOfWeek);
        pEntry->m_nKind = row.kind;
    }

    for (const auto& row : table.nearFixed) {
        CalendarDateEntry* pEntry = AddEntry();
        pEntry->m_nID = row.nID;
        pEntry->SetBeforeAfterDay(StringUtils::DecryptText(*row.pText), row.nDay, row.nMonth,
                                  row.nSignedDayOfWeek);
    }

    for (const auto& row : table.easter)
        AddCalculated(row.nID, StringUtils::DecryptText(*row.pText));
}

bool Dates::LookupEntries(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const
{
    bool bFound = false;
    SeenPieces pieces; // of strDesc
    for (const auto& pEntry : m_Entries) {
        if (!pEntry || !pEntry->m_bShow || !pEntry->IsMatch(nDay, nMonth, nYear))
            continue;
        const int nAge = GetAge(*pEntry, nYear);
        if (pieces.MayHold(ViewOf(strDesc), ViewOf(pEntry->m_strDesc)))
            AppendDesc(pEntry->m_strDesc, strDesc, nAge);
        else
            AppendLine(pEntry->m_strDesc, strDesc, nAge);
        dwColor = pEntry->m_dwColor;
        bFound = true;
    }
    return bFound;
}

bool Dates::LookupWithEaster(std::span<const DateTable::EasterDate> easterDates, int nDay, int nMonth,
                             int nYear, CString& strDesc, DWORD& dwColor) const
{
    const bool bFound = LookupEntries(nDay, nMonth, nYear, strDesc, dwColor);
    if (nMonth < kFirstEasterMonth || nMonth > kLastEasterMonth)
        return bFound;

    int nEasterMonth = 0;
    int nEasterDay = 0;
    GetEasterDate(nYear, nEasterMonth, nEasterDay);
    const std::int32_t nEaster = DayNumbers::FromDate({nYear, nEasterMonth, nEasterDay});
    const std::int32_t nQueried = DayNumbers::FromDate({nYear, nMonth, nDay});
    const auto isOnDate = [&](const DateTable::EasterDate& date) {
        if (date.nDaysAfterEaster == 0) // also in a year beyond the range of dates
            return nEasterMonth == nMonth && nEasterDay == nDay;
        return nQueried != DayNumbers::kNone && nQueried == nEaster + date.nDaysAfterEaster;
    };
    const auto date = std::ranges::find_if(easterDates, isOnDate);
    if (date == easterDates.end())
        return bFound;

    const CalendarDateEntry* pEntry = FindByID(date->nID);
    if (pEntry && pEntry->m_bShow) {
        AppendDesc(pEntry->m_strDesc, strDesc, 0);
        dwColor = pEntry->m_dwColor;
    }
    return true;
}

void Dates::AppendDesc(const CString& strNew, CString& strDesc, int nAge)
{
    if (strDesc.Find(strNew) < 0)
        AppendLine(strNew, strDesc, nAge);
}

// The computus of Oudin (1940) in the form of the Explanatory Supplement to the Astronomical Almanac. With 64
// bits no year of 32 bits overflows.
void Dates::GetEasterDate(int nYear, int& nMonth, int& nDay)
{
    const long long y = nYear;
    const long long c = y / 100;
    const long long n = y - 19 * (y / 19);
    const long long k = (c - 17) / 25;
    long long i = c - c / 4 - (c - k) / 3 + 19 * n + 15;
    i = i - 30 * (i / 30);
    if (i / 28 != 0) // otherwise the correction is 0, and for a year below 0 its divisor i + 1 could be 0
        i = i - (i / 28) * (1 - (i / 28) * (29 / (i + 1)) * ((21 - n) / 11));
    long long j = y + y / 4 + i + 2 - c + c / 4;
    j = j - 7 * (j / 7);
    const long long l = i - j;
    nMonth = static_cast<int>(3 + (l + 40) / 44);
    nDay = static_cast<int>(l + 28 - 31LL * (nMonth / 4));
}

CalendarDateEntry* Dates::FindByID(int nID) const
{
    const auto entry =
        std::ranges::find_if(m_Entries, [nID](const auto& pEntry) { return pEntry && pEntry->m_nID == nID; });
    return entry == m_Entries.end() ? nullptr : entry->get();
}

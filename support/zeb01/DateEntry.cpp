// The rules of a special date: when they are complete, what dates they fall on, and how they are stored.
#include "DateEntry.h"

#include "SerializeData.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

// The forms of a stored entry. The first one has neither the rule flag nor the start year.
constexpr WORD kFirstForm = 1;
constexpr WORD kCurrentForm = 2;

constexpr int kSunday = 1;
constexpr int kSaturday = 7;

bool IsDayOfWeek(int nDayOfWeek)
{
    return nDayOfWeek >= kSunday && nDayOfWeek <= kSaturday;
}

bool IsSignedDayOfWeek(int nSigned)
{
    return IsDayOfWeek(nSigned) || (nSigned <= -kSunday && nSigned >= -kSaturday);
}

bool IsDayOfAnyYear(int nDay, int nMonth)
{
    constexpr int kLeapYear = 2000;
    return nDay >= 1 && nDay <= DayNumbers::DaysInMonth(kLeapYear, nMonth);
}

bool IsOccurrence(int nOccurrence)
{
    return (nOccurrence >= DateEntry::OCCURRENCE_FIRST && nOccurrence <= DateEntry::OCCURRENCE_FOURTH) ||
           nOccurrence == DateEntry::OCCURRENCE_LAST;
}

// The day number of the first, second ... or last such day of the week in a month, kNone if there is none.
std::int32_t FindDayOfWeek(int nOccurrence, int nDayOfWeek, int nMonth, int nYear)
{
    const std::int32_t nFirst = DayNumbers::FromDate({nYear, nMonth, 1});
    if (nFirst == DayNumbers::kNone || !IsOccurrence(nOccurrence) || !IsDayOfWeek(nDayOfWeek))
        return DayNumbers::kNone;

    const std::int32_t nLast = DayNumbers::FromDate({nYear, nMonth, DayNumbers::DaysInMonth(nYear, nMonth)});
    if (nOccurrence == DateEntry::OCCURRENCE_LAST)
        return nLast - (DayNumbers::DayOfWeek(nLast) - nDayOfWeek + 7) % 7;

    const std::int32_t nPicked =
        nFirst + (nDayOfWeek - DayNumbers::DayOfWeek(nFirst) + 7) % 7 + 7 * (nOccurrence - 1);
    return nPicked <= nLast ? nPicked : DayNumbers::kNone; // October 1582 is three weeks long
}

// The working day nearest to a day: Friday for a Saturday, Monday for a Sunday.
std::int32_t ToWorkingDay(std::int32_t nDayNumber)
{
    switch (DayNumbers::DayOfWeek(nDayNumber)) {
    case kSaturday:
        return nDayNumber - 1;
    case kSunday:
        return nDayNumber + 1;
    default:
        return nDayNumber;
    }
}

}

void DateEntry::Serialize(CArchive& archive)
{
    WORD wForm = kCurrentForm;
    if (archive.IsStoring()) {
        archive << wForm << m_nRuleWord << m_nKind;
        SerializeData::Serialize(archive, m_bRuleFlag);
        for (const std::int32_t nValue : m_anRule)
            archive << nValue;
        archive << m_nStartYear << m_nID << m_strDesc;
        return;
    }

    archive >> wForm;
    if (wForm != kFirstForm && wForm != kCurrentForm)
        AfxThrowArchiveException(CArchiveException::badSchema, archive.GetFile()->GetFilePath());
    m_bRuleFlag = false;
    m_nStartYear = 0;
    archive >> m_nRuleWord >> m_nKind;
    if (wForm == kCurrentForm)
        SerializeData::Serialize(archive, m_bRuleFlag);
    for (std::int32_t& nValue : m_anRule)
        archive >> nValue;
    if (wForm == kCurrentForm)
        archive >> m_nStartYear;
    archive >> m_nID >> m_strDesc;
}

bool DateEntry::IsValid() const
{
    return !m_strDesc.IsEmpty() && HasCompleteRule();
}

void DateEntry::SetDesc(const CString& strDesc)
{
    m_strDesc = strDesc;
}

void DateEntry::SetDay(const CString& strDesc, int nDay, int nMonth)
{
    SetRule(strDesc, RULE_DAY, {nDay, nMonth});
}

void DateEntry::SetDayOfWeek(const CString& strDesc, OCCURRENCE occurrence, int nDayOfWeek, int nMonth)
{
    SetRule(strDesc, RULE_DAY_OF_WEEK, {occurrence, nDayOfWeek, nMonth});
}

void DateEntry::SetBeforeAfterDay(const CString& strDesc, int nDay, int nMonth, int nSignedDayOfWeek)
{
    SetRule(strDesc, RULE_NEAR_DAY, {nDay, nMonth, nSignedDayOfWeek});
}

void DateEntry::SetBeforeAfterDayOfWeek(const CString& strDesc, OCCURRENCE occurrence, int nDayOfWeek,
                                        int nMonth, int nSignedDayOfWeek)
{
    SetRule(strDesc, RULE_NEAR_DAY_OF_WEEK, {occurrence, nDayOfWeek, nMonth, nSignedDayOfWeek});
}

std::optional<DayNumbers::Date> DateEntry::FindNext(DayNumbers::Date date) const
{
    // Weekdays and leap days come round again within 40 years, also where a century lacks its leap day.
    constexpr int kDaysToSearch = 40 * 366;
    if (DayNumbers::FromDate(date) == DayNumbers::kNone)
        return std::nullopt;
    if ((m_nKind == KIND_FROM_YEAR || m_nKind == KIND_IN_YEAR) && m_nStartYear > date.nYear)
        date = {m_nStartYear, 1, 1};
    for (int i = 0; i < kDaysToSearch && date.nYear <= DayNumbers::kMaxYear; ++i) {
        if (IsMatch(date.nDay, date.nMonth, date.nYear))
            return date;
        date = DayNumbers::DayAfter(date);
    }
    return std::nullopt;
}

bool DateEntry::IsMatchInMonth(int nDay, int nMonth, int nYear) const
{
    if (!HoldsInYear(nYear))
        return false;
    switch (m_nRuleWord) {
    case RULE_DAY:
        return IsMatchFixed(nDay, nMonth, nYear);
    case RULE_DAY_OF_WEEK:
        return IsMatchDayOfWeek(nDay, nMonth, nYear);
    case RULE_NEAR_DAY:
    case RULE_NEAR_DAY_OF_WEEK:
        return IsMatchNear(nDay, nMonth, nYear);
    default:
        return false;
    }
}

bool DateEntry::HoldsInYear(int nYear) const
{
    switch (m_nKind) {
    case KIND_EVEN_YEARS:
        return nYear % 2 == 0;
    case KIND_FROM_YEAR:
        return nYear >= m_nStartYear;
    case KIND_UNTIL_YEAR:
        return nYear <= m_nStartYear;
    case KIND_IN_YEAR:
        return nYear == m_nStartYear;
    default:
        return true;
    }
}

bool DateEntry::HasCompleteRule() const
{
    const auto& [n0, n1, n2, n3] = m_anRule;
    switch (m_nRuleWord) {
    case RULE_DAY:
        return IsDayOfAnyYear(n0, n1);
    case RULE_DAY_OF_WEEK:
        return IsOccurrence(n0) && IsDayOfWeek(n1) && IsDayOfAnyYear(1, n2);
    case RULE_NEAR_DAY:
        return IsDayOfAnyYear(n0, n1) && IsSignedDayOfWeek(n2);
    case RULE_NEAR_DAY_OF_WEEK:
        return IsOccurrence(n0) && IsDayOfWeek(n1) && IsDayOfAnyYear(1, n2) && IsSignedDayOfWeek(n3);
    default:
        return false;
    }
}

bool DateEntry::IsMatchFixed(int nDay, int nMonth, int nYear) const
{
    if (!m_bRuleFlag)
        return nDay == m_anRule[0];
    const std::int32_t nFixed = DayNumbers::FromDate({nYear, m_anRule[1], m_anRule[0]});
    const std::int32_t nQueried = DayNumbers::FromDate({nYear, nMonth, nDay});
    if (nFixed == DayNumbers::kNone || nQueried == DayNumbers::kNone)
        return false;
    return nQueried == ToWorkingDay(nFixed);
}

bool DateEntry::IsMatchDayOfWeek(int nDay, int nMonth, int nYear) const
{
    const std::int32_t nQueried = DayNumbers::FromDate({nYear, nMonth, nDay});
    return nQueried != DayNumbers::kNone && nQueried == FindAnchor(nYear);
}

bool DateEntry::IsMatchNear(int nDay, int nMonth, int nYear) const
{
    const bool bNearDay = m_nRuleWord == RULE_NEAR_DAY;
    const std::int32_t nSigned = bNearDay ? m_anRule[2] : m_anRule[3];
    const std::int32_t nQueried = DayNumbers::FromDate({nYear, nMonth, nDay});
    if (nQueried == DayNumbers::kNone || !IsSignedDayOfWeek(nSigned) ||
        DayNumbers::DayOfWeek(nQueried) != std::abs(nSigned))
        return false;

    const std::int32_t nAnchor = FindAnchor(nYear);
    const std::int32_t nDistance = nSigned < 0 ? nAnchor - nQueried : nQueried - nAnchor;
    return nAnchor != DayNumbers::kNone && nDistance >= 1 && nDistance <= 7;
}

// The date from which the rule counts, in the given year.
std::int32_t DateEntry::FindAnchor(int nYear) const
{
    if (m_nRuleWord == RULE_NEAR_DAY)
        return DayNumbers::FromDate({nYear, m_anRule[1], m_anRule[0]});
    return FindDayOfWeek(m_anRule[0], m_anRule[1], m_anRule[2], nYear);
}

void DateEntry::SetRule(const CString& strDesc, std::int32_t nRuleWord, const std::int32_t (&anRule)[4])
{
    SetDesc(strDesc);
    m_nRuleWord = nRuleWord;
    std::copy(std::begin(anRule), std::end(anRule), std::begin(m_anRule));
}

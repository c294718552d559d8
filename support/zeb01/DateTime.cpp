// Setting, moving and reading dates, on top of the day numbers.
#include "DateTime.h"

#include "Clock.h"
#include "LocaleUtils.h"

#include <algorithm>

DateTime::DateTime(int nYear, int nMonth, int nDay, int nHour, int nMinute, int nSecond)
{
    Set(nYear, nMonth, nDay, nHour, nMinute, nSecond);
}

void DateTime::Set(int nYear, int nMonth, int nDay, int nHour, int nMinute, int nSecond)
{
    SetDate(nYear, nMonth, nDay);
    const auto isBelow = [](int n, int nEnd) { return n >= 0 && n < nEnd; };
    const bool bTime = isBelow(nHour, 24) && isBelow(nMinute, 60) && isBelow(nSecond, 60);
    m_nTimeWord = bTime ? (nHour * 60 + nMinute) * 60 + nSecond : -1;
}

void DateTime::SetDate(int nYear, int nMonth, int nDay)
{
    m_nDayNumber = DayNumbers::FromDate({nYear, nMonth, nDay});
}

void DateTime::SetToCurrent()
{
    const Clock::Moment now = Clock::Now();
    Set(now.nYear, now.nMonth, now.nDay, now.nHour, now.nMinute, now.nSecond);
}

void DateTime::SetToCurrentDate()
{
    SetToCurrent();
    m_nTimeWord = -1;
}

void DateTime::SetDay(int nDay)
{
    const auto [nYear, nMonth, nOldDay] = Parts();
    SetOrLastOfMonth(nYear, nMonth, nDay);
}

void DateTime::SetMonth(int nMonth)
{
    const auto [nYear, nOldMonth, nDay] = Parts();
    SetOrLastOfMonth(nYear, nMonth, nDay);
}

void DateTime::SetYear(int nYear)
{
    const auto [nOldYear, nMonth, nDay] = Parts();
    SetOrLastOfMonth(nYear, nMonth, nDay);
}

void DateTime::SetToFirstDay()
{
    SetDay(1);
}

void DateTime::SetToLastDay()
{
    const auto [nYear, nMonth, nDay] = Parts();
    SetDate(nYear, nMonth, GetDaysInMonth(nYear, nMonth));
}

void DateTime::AddWeeks(int nWeeks)
{
    constexpr int kRange = DayNumbers::kLast / 7 + 1;
    AddDays(7 * std::clamp(nWeeks, -kRange, kRange));
}

void DateTime::AddMonths(int nMonths)
{
    const auto [nYear, nMonth, nDay] = Parts();
    const long long nCount = 12LL * nYear + (nMonth - 1) + nMonths;
    // In a year below 0 the remainder is negative. No harm is done, since such a year has no dates.
    SetOrLastOfMonth(nCount / 12, static_cast<int>(nCount % 12) + 1, nDay);
}

void DateTime::AddYears(int nYears)
{
    const auto [nYear, nMonth, nDay] = Parts();
    SetOrLastOfMonth(static_cast<long long>(nYear) + nYears, nMonth, nDay);
}

void DateTime::GetDate(int& nYear, int& nMonth, int& nDay) const
{
    const DayNumbers::Date date = Parts();
    nYear = date.nYear;
    nMonth = date.nMonth;
    nDay = date.nDay;
}

int DateTime::GetYear() const
{
    return IsValid() ? Parts().nYear : Clock::Now().nYear;
}

int DateTime::GetMonth() const
{
    return Parts().nMonth;
}

int DateTime::GetDay() const
{
    return Parts().nDay;
}

int DateTime::GetDayOfWeek() const
{
    return IsValid() ? DayNumbers::DayOfWeek(m_nDayNumber) : 0;
}

int DateTime::CompareDate(const DateTime& other) const
{
    if (m_nDayNumber == other.m_nDayNumber)
        return 0;
    return m_nDayNumber < other.m_nDayNumber ? -1 : 1;
}

bool DateTime::IsToday() const
{
    DateTime today;
    today.SetToCurrentDate();
    return IsValid() && CompareDate(today) == 0;
}

int DateTime::GetDaysInMonth(int nYear, int nMonth)
{
    return DayNumbers::DaysInMonth(nYear, nMonth);
}

CString DateTime::ConvertDateToText(const DateTime& date, bool, bool, bool, bool bShort)
{
    if (!date.IsValid())
        return {};
    const auto [nYear, nMonth, nDay] = date.Parts();
    return LocaleUtils::FormatDate(nYear, nMonth, nDay, date.GetDayOfWeek(), bShort);
}

DayNumbers::Date DateTime::Parts() const
{
    return IsValid() ? DayNumbers::ToDate(m_nDayNumber) : DayNumbers::Date{};
}

void DateTime::SetOrLastOfMonth(long long nYear, int nMonth, int nDay)
{
    if (!IsValid())
        return;
    const bool bYear = nYear >= DayNumbers::kMinYear && nYear <= DayNumbers::kMaxYear;
    const int nCalendarYear = bYear ? static_cast<int>(nYear) : 0;
    SetDate(nCalendarYear, nMonth, std::min(nDay, GetDaysInMonth(nCalendarYear, nMonth)));
}

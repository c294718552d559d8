// A calendar date with a time of day, as a value of two 32-bit words.
#pragma once

#include "DayNumbers.h"

#include <afx.h>
#include <zeb17_export.h>

#include <cstdint>

// A date from 1 January of year 1 (Julian) to 31 December 9999 (Gregorian, which follows the Julian 4 October
// 1582 with 15 October 1582), or no date at all.
//
// Nothing here reports a failure: where an operation leads to a date that does not exist, the result is no
// date, which IsValid tells. The ten dates that were left out in October 1582 stand for 15 October. Changing
// the date keeps the time word.
class ZEB17_EXPORT DateTime
{
public:
    // No date.
    DateTime() = default;
    DateTime(int nYear, int nMonth, int nDay, int nHour, int nMinute, int nSecond);

    // Whether this is a date.
    bool IsValid() const { return DayNumbers::IsValid(m_nDayNumber); }

    // Month 1 to 12, day from 1, hour 0 to 23.
    void Set(int nYear, int nMonth, int nDay, int nHour, int nMinute, int nSecond);
    void SetDate(int nYear, int nMonth, int nDay);
    void SetToCurrent();     // now
    void SetToCurrentDate(); // today, without a time of day

    // These change one part of a valid date. A month that lacks the day gives its last day.
    void SetDay(int nDay);
    void SetMonth(int nMonth);
    void SetYear(int nYear);
    void SetToFirstDay(); // of the month
    void SetToLastDay();

    // These move a valid date, and do nothing where there is none. Beyond the range of dates the result is no
    // date. A month that lacks the day gives its last day.
    void AddDays(int nDays)
    {
        if (IsValid())
            m_nDayNumber = static_cast<std::int32_t>(static_cast<std::uint32_t>(m_nDayNumber) +
                                                     static_cast<std::uint32_t>(nDays));
    }
    // As AddDays, in longer steps.
    void AddWeeks(int nWeeks);
    void AddMonths(int nMonths);
    void AddYears(int nYears);

    // 0, 0, 0 for no date.
    void GetDate(int& nYear, int& nMonth, int& nDay) const;
    // The present year if this is no date, so that stepping by years has a year to start from.
    int GetYear() const;
    int GetMonth() const;     // 0 for no date
    int GetDay() const;       // 0 for no date
    int GetDayOfWeek() const; // 1 (Sunday) to 7 (Saturday), 0 for no date

    // Negative, 0 or positive as this date is before, on or after the other; the times play no part.
    int CompareDate(const DateTime& other) const;
    bool IsToday() const;

    // The number of the month's last day, 0 if there is no such month. For October 1582 it is 31, though the
    // days 5 to 14 were left out.
    static int GetDaysInMonth(int nYear, int nMonth);

    // The date in the user's long or short form, empty for no date. The three flags in the middle are
    // reserved and ignored.
    static CString ConvertDateToText(const DateTime& date, bool, bool, bool, bool bShort);

    std::int32_t m_nDayNumber = DayNumbers::kNone; // count of days, see DayNumbers.h
    std::int32_t m_nTimeWord = -1;                 // seconds since midnight, -1 without a time of day

private:
    DayNumbers::Date Parts() const;
    void SetOrLastOfMonth(long long nYear, int nMonth, int nDay);
};

static_assert(sizeof(DateTime) == 8);

// The form in which a national group writes down its special dates.
#pragma once

#include <DateEntry.h>

#include <span>
#include <vector>

struct DateTable
{
    using Text = const std::vector<int>*; // enciphered

    enum DayOfWeek
    {
        SUNDAY = 1,
        MONDAY,
        TUESDAY,
        WEDNESDAY,
        THURSDAY,
        FRIDAY,
        SATURDAY,
    };

    struct FixedDate
    {
        int nID;
        int nMonth;
        int nDay;
        Text pText;
        bool bRuleFlag = false;
    };

    struct WeekdayDate
    {
        int nID;
        DateEntry::OCCURRENCE occurrence;
        DayOfWeek dayOfWeek;
        int nMonth;
        Text pText;
        DateEntry::KIND kind = DateEntry::KIND_EVERY_YEAR;
        int nStartYear = 0;
    };

    // The day nSignedDayOfWeek before or after a weekday of the month.
    struct NearWeekdayDate
    {
        int nID;
        DateEntry::OCCURRENCE occurrence;
        DayOfWeek dayOfWeek;
        int nMonth;
        int nSignedDayOfWeek;
        Text pText;
        DateEntry::KIND kind = DateEntry::KIND_EVERY_YEAR;
    };

    // The day nSignedDayOfWeek before or after a fixed date.
    struct NearFixedDate
    {
        int nID;
        int nDay;
        int nMonth;
        int nSignedDayOfWeek;
        Text pText;
    };

    // A date so many days after Easter Sunday.
    struct EasterDate
    {
        int nID;
        int nDaysAfterEaster;
        Text pText;
    };

    std::span<const FixedDate> fixed = {};
    std::span<const WeekdayDate> weekdays = {};
    std::span<const NearWeekdayDate> nearWeekdays = {};
    std::span<const NearFixedDate> nearFixed = {};
    std::span<const EasterDate> easter = {}; // in the order of testing
};

// The tables in which a national group writes down its special dates, one row a date.
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

    // The weekday before or after a weekday of the month; nSignedDayOfWeek is negative for before.
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

    // The weekday before or after a fixed date; nSignedDayOfWeek is negative for before.
    struct NearFixedDate
    {
        int nID;
        int nMonth;
        int nDay;
        int nSignedDayOfWeek;
        Text pText;
    };

    // A date that is counted in days from Easter Sunday.
    struct EasterDate
    {
        int nID;
        int nDaysAfterEaster; // negative for a date before Easter
        Text pText;
    };

    std::span<const FixedDate> fixed = {};
    std::span<const WeekdayDate> weekdays = {};
    std::span<const NearWeekdayDate> nearWeekdays = {};
    std::span<const NearFixedDate> nearFixed = {};
    std::span<const EasterDate> easter = {}; // the first one that falls on a date is reported
};

// Conversion between calendar dates and day numbers, in constant time and without tables.
//
// Day number 1 is 1 January of year 1, the last one 31 December 9999. Dates up to 4 October 1582 are
// Julian, those from 15 October 1582, the day after, are Gregorian.
//
// The conversions are Euclidean affine functions: C. Neri, L. Schneider, "Euclidean affine functions and
// their application to calendar algorithms", Software: Practice and Experience 53 (2023). They count
// years from 1 March, so that the leap day is the last day of a year.
#pragma once

#include <cstdint>

namespace DayNumbers {

// A date as three numbers.
struct Date
{
    int nYear;  // 1 to 9999
    int nMonth; // 1 to 12
    int nDay;   // 1 to 31

    constexpr bool operator==(const Date&) const = default; // the same day
};

inline constexpr int kMinYear = 1;                   // the first year of the range
inline constexpr int kMaxYear = 9999;                // the last one
inline constexpr std::int32_t kNone = 0;             // no date
inline constexpr std::int32_t kFirst = 1;            // 1 January of year 1
inline constexpr std::int32_t kLast = 3652061;       // 31 December 9999
inline constexpr Date kGregorianStart{1582, 10, 15}; // the first day of the Gregorian calendar
inline constexpr int kLastJulianDay = 4;             // of October 1582

// 577737 Julian days from 1 January 1 to 4 October 1582: 1581 * 365 + 395 leap days + 277 days of 1582.
inline constexpr std::int32_t kFirstGregorian = 577738;

// 1 January 1 is day 306 of the year that began on 1 March 0, and has day number 1: 306 - 1 = 305.
inline constexpr std::uint32_t kJulianShift = 305;
// The Gregorian 1 March 0 lies two days after the Julian one: 305 - 2 = 303.
inline constexpr std::uint32_t kGregorianShift = 303;

inline constexpr std::uint32_t kDaysInFourYears = 1461;       // Julian
inline constexpr std::uint32_t kDaysInFourCenturies = 146097; // Gregorian

// Whether the number stands for a date.
constexpr bool IsValid(std::int32_t nDayNumber)
{
    return static_cast<std::uint32_t>(nDayNumber) - 1U < static_cast<std::uint32_t>(kLast);
}

// By the Julian rule up to 1582, by the Gregorian one from then on.
constexpr bool IsLeapYear(int nYear)
{
    if (nYear <= kGregorianStart.nYear || nYear % 100 != 0)
        return nYear % 4 == 0;
    return nYear % 400 == 0;
}

// The number of the last day of a month: 31 for October 1582 too, which lacks the numbers 5 to 14.
// 0 if there is no such month.
constexpr int DaysInMonth(int nYear, int nMonth)
{
    if (nYear < kMinYear || nYear > kMaxYear || nMonth < 1 || nMonth > 12)
        return 0;
    if (nMonth == 2)
        return IsLeapYear(nYear) ? 29 : 28;
    // The long months are odd up to July and even from August on: bit 0 of the month, turned over by bit 3.
    return 30 | (nMonth ^ (nMonth >> 3));
}

// Days from 1 March of a year to day nDay of its month nMonth, where January and February are 13 and 14.
constexpr std::uint32_t DayOfMarchYear(std::uint32_t nMonth, std::uint32_t nDay)
{
    // Five months from March on have 153 days, 30.6 each; 979 / 32 = 30.59 rounds alike for all twelve, and
    // 2919 makes March start at 0: (979 * 3 - 2919) / 32 = 0.
    return (979 * nMonth - 2919) / 32 + nDay - 1;
}

// The day number of a date, kNone if there is no such date. The ten dates that were left out in October
// 1582 give the day that followed them.
constexpr std::int32_t FromDate(const Date& date)
{
    if (date.nDay < 1 || date.nDay > DaysInMonth(date.nYear, date.nMonth))
        return kNone;

    const bool bOctober1582 = date.nYear == kGregorianStart.nYear && date.nMonth == kGregorianStart.nMonth;
    if (bOctober1582 && date.nDay > kLastJulianDay && date.nDay < kGregorianStart.nDay)
        return kFirstGregorian;

    const bool bNextYear = date.nMonth <= 2; // of the year that began in March
    const auto nYear = static_cast<std::uint32_t>(date.nYear - (bNextYear ? 1 : 0));
    const auto nMonth = static_cast<std::uint32_t>(date.nMonth + (bNextYear ? 12 : 0));
    const std::uint32_t nDays =
        kDaysInFourYears * nYear / 4 + DayOfMarchYear(nMonth, static_cast<std::uint32_t>(date.nDay));
    const auto nJulian = static_cast<std::int32_t>(nDays - kJulianShift);
    if (nJulian < kFirstGregorian)
        return nJulian;
    const std::uint32_t nCentury = nYear / 100;
    return static_cast<std::int32_t>(nDays - nCentury + nCentury / 4 - kGregorianShift);
}

// The date of a valid day number.
constexpr Date ToDate(std::int32_t nDayNumber)
{
    const auto nNumber = static_cast<std::uint32_t>(nDayNumber);
    std::uint32_t nCentury = 0;
    std::uint32_t nDayOfCentury = nNumber + kJulianShift; // one endless century is the Julian calendar
    if (nDayNumber >= kFirstGregorian) {
        const std::uint32_t nQuarters = 4 * (nNumber + kGregorianShift) + 3;
        nCentury = nQuarters / kDaysInFourCenturies;
        nDayOfCentury = nQuarters % kDaysInFourCenturies / 4;
    }

    // One product gives quotient and remainder: 2939745 = 2^32 / 1461, rounded up by 149 / 1461. For n = 1461
    // q + r it is 2^32 q + 2939745 r + 149 q, and 149 q is below 2939745 for all years that there are.
    constexpr std::uint32_t kFourYearsInverse = 2939745;
    const std::uint64_t nProduct = std::uint64_t{kFourYearsInverse} * (4 * nDayOfCentury + 3);
    const auto nYearOfCentury = static_cast<std::uint32_t>(nProduct >> 32);
    const std::uint32_t nDayOfYear = static_cast<std::uint32_t>(nProduct) / kFourYearsInverse / 4;

    // The inverse of DayOfMarchYear: 65536 / 2141 = 30.61 days a month, and 197913 = 3 * 65536 + 1305 starts
    // at March with the rounding that makes all 366 days come out.
    const std::uint32_t nMonths = 2141 * nDayOfYear + 197913;
    const bool bNextYear = nDayOfYear >= 306; // 1 January is day 306, counted from 1 March as day 0
    return {static_cast<int>(100 * nCentury + nYearOfCentury) + (bNextYear ? 1 : 0),
            static_cast<int>(nMonths / 65536) - (bNextYear ? 12 : 0),
            static_cast<int>(nMonths % 65536 / 2141) + 1};
}

// The date after another one. There must be one: the last date has none.
constexpr Date DayAfter(const Date& date)
{
    if (date.nDay == kLastJulianDay && date.nMonth == kGregorianStart.nMonth &&
        date.nYear == kGregorianStart.nYear)
        return kGregorianStart;
    if (date.nDay < DaysInMonth(date.nYear, date.nMonth))
        return {date.nYear, date.nMonth, date.nDay + 1};
    return date.nMonth < 12 ? Date{date.nYear, date.nMonth + 1, 1} : Date{date.nYear + 1, 1, 1};
}

// 1 (Sunday) to 7 (Saturday). Day number 1 is a Saturday.
constexpr int DayOfWeek(std::int32_t nDayNumber)
{
    return (nDayNumber + 5) % 7 + 1;
}

static_assert(FromDate({1, 1, 1}) == kFirst);
static_assert(FromDate({9999, 12, 31}) == kLast);
static_assert(FromDate(kGregorianStart) == kFirstGregorian);
static_assert(FromDate({1582, 10, 4}) == kFirstGregorian - 1);

}

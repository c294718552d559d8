// Dates and day numbers over their whole range, and the steps at its ends.
#include <Clock.h>
#include <DateTime.h>

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace {

struct Date
{
    int nYear;
    int nMonth;
    int nDay;

    bool operator==(const Date&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Date& date)
{
    return stream << date.nYear << '-' << date.nMonth << '-' << date.nDay;
}

constexpr Date kNoDate{0, 0, 0};

DateTime Make(const Date& date)
{
    return DateTime(date.nYear, date.nMonth, date.nDay, 0, 0, 0);
}

Date DateOf(const DateTime& value)
{
    Date date{};
    value.GetDate(date.nYear, date.nMonth, date.nDay);
    return date;
}

// The calendar counted day by day, without arithmetic.
int LengthOfMonth(int nYear, int nMonth)
{
    constexpr int kLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool bJulianLeap = nYear % 4 == 0;
    const bool bLeap = bJulianLeap && (nYear < 1583 || nYear % 100 != 0 || nYear % 400 == 0);
    return kLengths[nMonth - 1] + (nMonth == 2 && bLeap ? 1 : 0);
}

Date NextDay(Date date)
{
    if (date == Date{1582, 10, 4})
        return {1582, 10, 15};
    if (++date.nDay <= LengthOfMonth(date.nYear, date.nMonth))
        return date;
    date.nDay = 1;
    if (++date.nMonth <= 12)
        return date;
    return {date.nYear + 1, 1, 1};
}

}

TEST(DateTime, CountsEveryDayOfTheRange)
{
    Date expected{1, 1, 1};
    int nDayOfWeek = 7; // a Saturday
    int nWrong = 0;
    for (std::int32_t nNumber = 1; nNumber <= 3652061; ++nNumber) {
        DateTime value;
        value.m_nDayNumber = nNumber;
        const bool bRight = value.IsValid() && DateOf(value) == expected &&
                            value.GetYear() == expected.nYear && value.GetMonth() == expected.nMonth &&
                            value.GetDay() == expected.nDay && value.GetDayOfWeek() == nDayOfWeek &&
                            Make(expected).m_nDayNumber == nNumber;
        if (!bRight && ++nWrong <= 5)
            ADD_FAILURE() << "day " << nNumber << " is " << DateOf(value) << ", expected " << expected;
        expected = NextDay(expected);
        nDayOfWeek = nDayOfWeek % 7 + 1;
    }
    EXPECT_EQ(nWrong, 0);
    EXPECT_EQ(expected, (Date{10000, 1, 1}));
}

TEST(DateTime, KnowsTheLengthOfEveryMonth)
{
    for (int nYear = 1; nYear <= 9999; ++nYear) {
        for (int nMonth = 1; nMonth <= 12; ++nMonth)
            ASSERT_EQ(DateTime::GetDaysInMonth(nYear, nMonth), LengthOfMonth(nYear, nMonth));
    }
    for (const auto& [nYear, nMonth] : {std::pair{2000, 0}, {2000, 13}, {0, 1}, {10000, 1}, {-4, 2}})
        EXPECT_EQ(DateTime::GetDaysInMonth(nYear, nMonth), 0);
}

TEST(DateTime, IsNoDateOutsideTheCalendar)
{
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    for (const Date& date : {Date{0, 12, 31},
                             {10000, 1, 1},
                             {2021, 2, 29},
                             {1900, 2, 29},
                             {2021, 4, 31},
                             {2021, 0, 1},
                             {2021, 13, 1},
                             {2021, 1, 0},
                             {kMin, kMin, kMin},
                             {kMax, kMax, kMax}}) {
        EXPECT_FALSE(Make(date).IsValid()) << date;
        EXPECT_EQ(DateOf(Make(date)), kNoDate);
    }
    EXPECT_EQ(DateTime().m_nTimeWord, -1);
    EXPECT_EQ(DateTime().GetDayOfWeek(), 0);
    EXPECT_TRUE(DateTime::ConvertDateToText(DateTime(), false, false, false, false).IsEmpty());
}

TEST(DateTime, AddDaysGoesOutOfTheRangeAndNotBack)
{
    DateTime value;
    value.AddDays(5);
    EXPECT_EQ(value.m_nDayNumber, 0);

    value = Make({9999, 12, 31});
    value.AddDays(1);
    EXPECT_EQ(value.m_nDayNumber, 3652062);
    EXPECT_FALSE(value.IsValid());
    value.AddDays(-1);
    EXPECT_EQ(value.m_nDayNumber, 3652062);

    value = Make({1, 1, 1});
    value.AddDays(-1);
    EXPECT_EQ(value.m_nDayNumber, 0);

    for (const int nDays : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        value = Make({9999, 12, 31});
        value.AddDays(nDays);
        EXPECT_FALSE(value.IsValid());
        value = Make({9999, 12, 31});
        value.AddWeeks(nDays);
        EXPECT_FALSE(value.IsValid());
    }
}

TEST(DateTime, StepsAndSetsItsParts)
{
    using Step = void (DateTime::*)(int);
    constexpr Step kWeeks = &DateTime::AddWeeks;
    constexpr Step kMonths = &DateTime::AddMonths;
    constexpr Step kYears = &DateTime::AddYears;
    constexpr Step kSetDay = &DateTime::SetDay;
    constexpr Step kSetMonth = &DateTime::SetMonth;
    constexpr Step kSetYear = &DateTime::SetYear;
    constexpr int kMax = std::numeric_limits<int>::max();
    const struct
    {
        Date from;
        Step step;
        int nCount;
        Date to;
    } cases[] = {
        {{2021, 4, 4}, kWeeks, 7, {2021, 5, 23}},
        {{2021, 1, 1}, kWeeks, -1, {2020, 12, 25}},
        {{9999, 12, 25}, kWeeks, 1, kNoDate},
        {{1, 1, 7}, kWeeks, -1, kNoDate},
        {{2020, 12, 15}, kMonths, 1, {2021, 1, 15}},
        {{2021, 1, 15}, kMonths, -1, {2020, 12, 15}},
        {{2021, 1, 31}, kMonths, 1, {2021, 2, 28}},
        {{2020, 1, 31}, kMonths, 1, {2020, 2, 29}},
        {{2021, 3, 31}, kMonths, -1, {2021, 2, 28}},
        {{2021, 5, 31}, kMonths, 25, {2023, 6, 30}},
        {{9999, 12, 1}, kMonths, 1, kNoDate},
        {{1, 1, 31}, kMonths, -1, kNoDate},
        {{1, 6, 1}, kMonths, -6, kNoDate},
        {{1, 6, 1}, kMonths, -5, {1, 1, 1}},
        {{2021, 1, 1}, kMonths, kMax, kNoDate},
        {{2021, 1, 1}, kMonths, -kMax - 1, kNoDate},
        {{2020, 2, 29}, kYears, 1, {2021, 2, 28}},
        {{2020, 2, 29}, kYears, -4, {2016, 2, 29}},
        {{1500, 2, 29}, kYears, 100, {1600, 2, 29}},
        {{1600, 2, 29}, kYears, 100, {1700, 2, 28}},
        {{9999, 1, 1}, kYears, 1, kNoDate},
        {{1, 12, 31}, kYears, -1, kNoDate},
        {{2021, 1, 1}, kYears, kMax, kNoDate},
        {{2021, 1, 1}, kYears, -kMax - 1, kNoDate},
        {{1582, 9, 10}, kMonths, 1, {1582, 10, 15}}, // in place of the days that were left out
        {{1582, 10, 1}, kSetDay, 5, {1582, 10, 15}},
        {{1582, 10, 20}, kSetDay, 14, {1582, 10, 15}},
        {{2021, 3, 31}, kSetMonth, 4, {2021, 4, 30}},
        {{2021, 3, 31}, kSetMonth, 13, kNoDate},
        {{2021, 4, 30}, kSetDay, 1, {2021, 4, 1}},
        {{2020, 2, 29}, kSetYear, 2021, {2021, 2, 28}},
        {kNoDate, kSetDay, 1, kNoDate},
        {kNoDate, kSetMonth, 1, kNoDate},
        {kNoDate, kSetYear, 2021, kNoDate},
        {kNoDate, kMonths, 1, kNoDate},
        {kNoDate, kYears, 1, kNoDate},
    };
    for (const auto& c : cases) {
        DateTime value = Make(c.from);
        (value.*c.step)(c.nCount);
        EXPECT_EQ(DateOf(value), c.to) << c.from << " and " << c.nCount;
        EXPECT_EQ(value.IsValid(), c.to != kNoDate);
    }
}

TEST(DateTime, CarriesTheTimeAlongAndComparesDatesOnly)
{
    DateTime morning(2021, 4, 4, 6, 30, 15);
    const DateTime evening(2021, 4, 4, 23, 59, 59);
    EXPECT_EQ(morning.m_nTimeWord, (6 * 60 + 30) * 60 + 15);
    EXPECT_EQ(morning.CompareDate(evening), 0);
    morning.SetDate(2021, 4, 3);
    morning.AddMonths(0);
    EXPECT_EQ(morning.m_nTimeWord, (6 * 60 + 30) * 60 + 15);
    EXPECT_LT(morning.CompareDate(evening), 0);
    EXPECT_GT(evening.CompareDate(morning), 0);
    EXPECT_EQ(DateTime(2021, 4, 4, 24, 0, 0).m_nTimeWord, -1);
}

TEST(DateTime, IsTodayWhatTheClockSays)
{
    Clock::SetFixed({2024, 2, 29, 23, 59, 58});
    DateTime now;
    now.SetToCurrent();
    EXPECT_EQ(DateOf(now), (Date{2024, 2, 29}));
    EXPECT_EQ(now.m_nTimeWord, 86398);
    EXPECT_TRUE(now.IsToday());
    now.AddDays(1);
    EXPECT_FALSE(now.IsToday());
    EXPECT_FALSE(DateTime().IsToday());
    EXPECT_EQ(DateTime().GetYear(), 2024);

    Clock::SetToday(2031, 1, 2);
    DateTime today;
    today.SetToCurrentDate();
    EXPECT_EQ(DateOf(today), (Date{2031, 1, 2}));
    EXPECT_EQ(today.m_nTimeWord, -1);

    Clock::Release();
    today.SetToCurrent();
    EXPECT_TRUE(today.IsValid());
    EXPECT_GE(today.GetYear(), 2024);
}

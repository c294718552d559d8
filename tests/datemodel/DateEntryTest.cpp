// When a rule falls, whatever it holds.
#include <CalendarDateEntry.h>
#include <DateTime.h>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace {

using Occurrence = DateEntry::OCCURRENCE;

// The dates of a year on which the entry matches, as "month-day".
std::vector<std::string> MatchesIn(const DateEntry& entry, int nYear)
{
    std::vector<std::string> dates;
    DateTime date(nYear, 1, 1, 0, 0, 0);
    for (; date.GetYear() == nYear && date.IsValid(); date.AddDays(1)) {
        if (entry.IsMatch(date.GetDay(), date.GetMonth(), nYear))
            dates.push_back(std::to_string(date.GetMonth()) + "-" + std::to_string(date.GetDay()));
    }
    return dates;
}

DateEntry Fixed(int nDay, int nMonth, bool bRuleFlag = false)
{
    DateEntry entry;
    entry.SetDay("x", nDay, nMonth);
    entry.m_bRuleFlag = bRuleFlag;
    return entry;
}

DateEntry Weekday(Occurrence occurrence, int nDayOfWeek, int nMonth)
{
    DateEntry entry;
    entry.SetDayOfWeek("x", occurrence, nDayOfWeek, nMonth);
    return entry;
}

DateEntry NearDay(int nDay, int nMonth, int nSigned)
{
    DateEntry entry;
    entry.SetBeforeAfterDay("x", nDay, nMonth, nSigned);
    return entry;
}

DateEntry NearWeekday(Occurrence occurrence, int nDayOfWeek, int nMonth, int nSigned)
{
    DateEntry entry;
    entry.SetBeforeAfterDayOfWeek("x", occurrence, nDayOfWeek, nMonth, nSigned);
    return entry;
}

}

TEST(DateEntry, MatchesTheDatesOfItsRule)
{
    using enum DateEntry::OCCURRENCE;
    using Dates = std::vector<std::string>;
    const struct
    {
        const char* szWhat;
        DateEntry entry;
        int nYear;
        Dates dates;
    } cases[] = {
        {"blank", DateEntry(), 2026, {}},
        {"fixed", Fixed(4, 7), 2026, {"7-4"}},
        {"leap day in a leap year", Fixed(29, 2), 2024, {"2-29"}},
        {"leap day in a common year", Fixed(29, 2), 2026, {}},
        {"working day: itself", Fixed(16, 10, true), 2026, {"10-16"}},
        {"working day: Saturday to Friday", Fixed(16, 10, true), 2027, {"10-15"}},
        {"working day: Sunday to Monday", Fixed(16, 10, true), 2022, {"10-17"}},
        {"working day of another month", Fixed(1, 8, true), 2026, {"7-31"}},
        {"working day that would be last year's", Fixed(1, 1, true), 2022, {}},
        {"Monday before a Monday", NearDay(25, 5, -2), 2026, {"5-18"}},
        {"Monday before a Tuesday", NearDay(25, 5, -2), 2027, {"5-24"}},
        {"Monday after a Monday", NearDay(25, 5, 2), 2026, {"6-1"}},
        {"Sunday before a Monday", NearDay(25, 5, -1), 2026, {"5-24"}},
        {"Wednesday before the last Friday", NearWeekday(OCCURRENCE_LAST, 6, 4, -4), 2026, {"4-22"}},
        {"Sunday after the first Monday", NearWeekday(OCCURRENCE_FIRST, 2, 9, 1), 2026, {"9-13"}},
        {"Tuesday after the first Monday", NearWeekday(OCCURRENCE_FIRST, 2, 11, 3), 2026, {"11-3"}},
        {"Saturday before the first Sunday", NearWeekday(OCCURRENCE_FIRST, 1, 3, -7), 2026, {"2-28"}},
        {"Friday after the last Thursday", NearWeekday(OCCURRENCE_LAST, 5, 4, 6), 2026, {"5-1"}},
        {"picked in the next year", NearDay(28, 12, 1), 2025, {}},
        {"picked in the year before", NearDay(1, 1, -2), 2026, {}},
        {"a fourth week that 1582 lacked", Weekday(OCCURRENCE_FOURTH, 6, 10), 1582, {}},
        {"the last one all the same", Weekday(OCCURRENCE_LAST, 6, 10), 1582, {"10-29"}},
        {"the second, over the gap", Weekday(OCCURRENCE_SECOND, 6, 10), 1582, {"10-22"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MatchesIn(c.entry, c.nYear), c.dates) << c.szWhat;
}

TEST(DateEntry, PicksEachWeekdayOfEachMonth)
{
    using enum DateEntry::OCCURRENCE;
    for (int nYear = 1990; nYear <= 2017; ++nYear) { // every shape of a year
        for (int nMonth = 1; nMonth <= 12; ++nMonth) {
            std::array<std::vector<std::string>, 8> byDayOfWeek;
            for (DateTime date(nYear, nMonth, 1, 0, 0, 0); date.GetMonth() == nMonth; date.AddDays(1)) {
                byDayOfWeek[static_cast<size_t>(date.GetDayOfWeek())].push_back(
                    std::to_string(nMonth) + "-" + std::to_string(date.GetDay()));
            }
            for (int nDayOfWeek = 1; nDayOfWeek <= 7; ++nDayOfWeek) {
                const auto& days = byDayOfWeek[static_cast<size_t>(nDayOfWeek)];
                for (const auto occurrence : {OCCURRENCE_FIRST, OCCURRENCE_SECOND, OCCURRENCE_THIRD,
                                              OCCURRENCE_FOURTH, OCCURRENCE_LAST}) {
                    const auto& expected = occurrence == OCCURRENCE_LAST
                                               ? days.back()
                                               : days[static_cast<size_t>(occurrence - 1)];
                    ASSERT_EQ(MatchesIn(Weekday(occurrence, nDayOfWeek, nMonth), nYear),
                              std::vector<std::string>{expected});
                }
            }
        }
    }
}

TEST(DateEntry, HoldsInTheYearsOfItsKind)
{
    const struct
    {
        int nKind;
        int nStartYear;
        std::vector<int> years; // of 2005 to 2008
    } cases[] = {
        {DateEntry::KIND_EVERY_YEAR, 2006, {2005, 2006, 2007, 2008}},
        {DateEntry::KIND_FROM_YEAR, 2007, {2007, 2008}},
        {DateEntry::KIND_UNTIL_YEAR, 2006, {2005, 2006}},
        {DateEntry::KIND_EVEN_YEARS, 0, {2006, 2008}},
        {1, 2006, {2005, 2006, 2007, 2008}},
        {std::numeric_limits<int>::min(), 2006, {2005, 2006, 2007, 2008}},
    };
    for (const auto& c : cases) {
        std::vector<int> years;
        for (int nYear = 2005; nYear <= 2008; ++nYear) {
            DateEntry entry = Weekday(DateEntry::OCCURRENCE_SECOND, 1, 3);
            entry.m_nKind = c.nKind;
            entry.m_nStartYear = c.nStartYear;
            if (!MatchesIn(entry, nYear).empty())
                years.push_back(nYear);
        }
        EXPECT_EQ(years, c.years) << "kind " << c.nKind;
    }
}

// What a damaged file may bring must be answered, by no and without harm.
TEST(DateEntry, AnswersForRulesAndDatesOfAnyValue)
{
    const int values[] = {std::numeric_limits<int>::min(), -8, -7, -1, 0, 1, 5, 7, 12, 31, 32,
                          std::numeric_limits<int>::max()};
    int nValid = 0;
    for (const int nRule : {-1, 0, 1, 2, 3, 4, 5, 0x7FFFFFFF}) {
        for (const int n0 : values) {
            for (const int n1 : values) {
                for (const int n2 : values) {
                    DateEntry entry;
                    entry.SetDesc("x");
                    entry.m_nRuleWord = nRule;
                    entry.m_bRuleFlag = true;
                    entry.m_anRule[0] = n0;
                    entry.m_anRule[1] = n1;
                    entry.m_anRule[2] = n2;
                    entry.m_anRule[3] = n2;
                    bool bMatch = false;
                    for (const int n : values)
                        bMatch = entry.IsMatch(n, n, n) || bMatch;
                    for (const int nYear : {1582, 9999})
                        bMatch = !MatchesIn(entry, nYear).empty() || bMatch;
                    nValid += entry.IsValid() ? 1 : 0;
                    ASSERT_TRUE(entry.IsValid() || !bMatch) << nRule << ' ' << n0 << ' ' << n1 << ' ' << n2;
                }
            }
        }
    }
    EXPECT_GT(nValid, 0);
    EXPECT_FALSE(Fixed(1, 1, true).IsMatch(99, 1, 1)) << "the first day of all is a Saturday";
}

TEST(DateEntry, IsValidWithADescriptionAndARule)
{
    EXPECT_FALSE(DateEntry().IsValid());
    EXPECT_TRUE(Fixed(29, 2).IsValid());
    EXPECT_FALSE(Fixed(30, 2).IsValid());
    EXPECT_TRUE(NearWeekday(DateEntry::OCCURRENCE_LAST, 6, 4, -4).IsValid());
    EXPECT_FALSE(NearWeekday(DateEntry::OCCURRENCE_LAST, 6, 4, 0).IsValid());

    DateEntry entry = Fixed(1, 1);
    entry.SetDesc("");
    EXPECT_FALSE(entry.IsValid());
    EXPECT_TRUE(entry.IsMatch(1, 1, 2026)) << "a description is all that is missing";

    DateEntry described;
    described.SetDesc("x");
    EXPECT_FALSE(described.IsValid());
    EXPECT_TRUE(MatchesIn(described, 2026).empty());
}

TEST(DateEntry, ReplacesItsRule)
{
    DateEntry entry = NearWeekday(DateEntry::OCCURRENCE_LAST, 6, 4, -4);
    entry.SetDay("y", 4, 7);
    EXPECT_EQ(MatchesIn(entry, 2026), std::vector<std::string>{"7-4"});
    EXPECT_STREQ(entry.m_strDesc, "y");
}

TEST(CalendarDateEntry, StartsShownAndWhite)
{
    const CalendarDateEntry entry;
    EXPECT_TRUE(entry.GetShow());
    EXPECT_FALSE(entry.GetCalculated());
    EXPECT_EQ(entry.GetColor(), 0xFFFFFFU);
    EXPECT_FALSE(entry.IsValid());
}

TEST(CalendarDateEntry, NeedsOnlyADescriptionWhenCalculated)
{
    CalendarDateEntry entry;
    entry.SetCalculated(true);
    EXPECT_FALSE(entry.IsValid());
    entry.SetDesc("x");
    EXPECT_TRUE(entry.IsValid());
    entry.SetDay("", 1, 1);
    EXPECT_FALSE(entry.IsValid());
}

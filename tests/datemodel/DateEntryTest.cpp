// The dates that rules fall on, also rules with senseless numbers.
#include <CalendarDateEntry.h>
#include <DateTime.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

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

constexpr auto kFixed = &DateEntry::SetDay;
constexpr auto kWeekday = &DateEntry::SetDayOfWeek;
constexpr auto kNearDay = &DateEntry::SetBeforeAfterDay;
constexpr auto kNearWeekday = &DateEntry::SetBeforeAfterDayOfWeek;

template <class Setter, class... Args>
DateEntry Make(Setter setter, Args... args)
{
    DateEntry entry;
    (entry.*setter)("x", args...);
    return entry;
}

DateEntry WorkingDay(int nDay, int nMonth)
{
    DateEntry entry = Make(kFixed, nDay, nMonth);
    entry.m_bRuleFlag = true;
    return entry;
}

}

TEST(DateEntry, MatchesTheDatesOfItsRule)
{
    using enum DateEntry::OCCURRENCE;
    const struct
    {
        const char* szWhat;
        DateEntry entry;
        int nYear;
        std::vector<std::string> dates;
    } cases[] = {
        {"blank", DateEntry(), 2026, {}},
        {"fixed", Make(kFixed, 4, 7), 2026, {"7-4"}},
        {"leap day in a leap year", Make(kFixed, 29, 2), 2024, {"2-29"}},
        {"leap day in a common year", Make(kFixed, 29, 2), 2026, {}},
        {"working day: itself", WorkingDay(16, 10), 2026, {"10-16"}},
        {"working day: Saturday to Friday", WorkingDay(16, 10), 2027, {"10-15"}},
        {"working day: Sunday to Monday", WorkingDay(16, 10), 2022, {"10-17"}},
        {"working day of another month", WorkingDay(1, 8), 2026, {"7-31"}},
        {"working day that would be last year's", WorkingDay(1, 1), 2022, {}},
        {"Monday before a Monday", Make(kNearDay, 25, 5, -2), 2026, {"5-18"}},
        {"Monday before a Tuesday", Make(kNearDay, 25, 5, -2), 2027, {"5-24"}},
        {"Monday after a Monday", Make(kNearDay, 25, 5, 2), 2026, {"6-1"}},
        {"Sunday before a Monday", Make(kNearDay, 25, 5, -1), 2026, {"5-24"}},
        {"Wednesday before the last Friday", Make(kNearWeekday, OCCURRENCE_LAST, 6, 4, -4), 2026, {"4-22"}},
        {"Sunday after the first Monday", Make(kNearWeekday, OCCURRENCE_FIRST, 2, 9, 1), 2026, {"9-13"}},
        {"Tuesday after the first Monday", Make(kNearWeekday, OCCURRENCE_FIRST, 2, 11, 3), 2026, {"11-3"}},
        {"Saturday before the first Sunday", Make(kNearWeekday, OCCURRENCE_FIRST, 1, 3, -7), 2026, {"2-28"}},
        {"Friday after the last Thursday", Make(kNearWeekday, OCCURRENCE_LAST, 5, 4, 6), 2026, {"5-1"}},
        {"picked in the next year", Make(kNearDay, 28, 12, 1), 2025, {}},
        {"picked in the year before", Make(kNearDay, 1, 1, -2), 2026, {}},
        {"a fourth week that 1582 lacked", Make(kWeekday, OCCURRENCE_FOURTH, 6, 10), 1582, {}},
        {"the last one all the same", Make(kWeekday, OCCURRENCE_LAST, 6, 10), 1582, {"10-29"}},
        {"the second, over the gap", Make(kWeekday, OCCURRENCE_SECOND, 6, 10), 1582, {"10-22"}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MatchesIn(c.entry, c.nYear), c.dates) << c.szWhat;
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
        {DateEntry::KIND_IN_YEAR, 2006, {2006}},
        {DateEntry::KIND_EVEN_YEARS, 0, {2006, 2008}},
        {1, 2006, {2005, 2006, 2007, 2008}},
        {std::numeric_limits<int>::min(), 2006, {2005, 2006, 2007, 2008}},
    };
    for (const auto& c : cases) {
        std::vector<int> years;
        for (int nYear = 2005; nYear <= 2008; ++nYear) {
            DateEntry entry = Make(kWeekday, DateEntry::OCCURRENCE_SECOND, 1, 3);
            entry.m_nKind = c.nKind;
            entry.m_nStartYear = c.nStartYear;
            if (!MatchesIn(entry, nYear).empty())
                years.push_back(nYear);
        }
        EXPECT_EQ(years, c.years) << "kind " << c.nKind;
    }
}

// A damaged file may bring any numbers. The answer is no, and nothing breaks.
TEST(DateEntry, AnswersForRulesAndDatesOfAnyValue)
{
    constexpr int kMin = std::numeric_limits<int>::min();
    constexpr int kMax = std::numeric_limits<int>::max();
    constexpr int kRules[] = {-1, 0, 1, 2, 3, 4, 5, kMax};
    constexpr int kValues[] = {kMin, -8, -7, -1, 0, 1, 5, 7, 12, 31, 32, kMax};
    int nValid = 0;
    for (size_t i = 0; i < std::size_t{8} * 12 * 12 * 12; ++i) {
        DateEntry entry;
        entry.SetDesc("x");
        entry.m_bRuleFlag = true;
        entry.m_nRuleWord = kRules[i % 8];
        entry.m_anRule[0] = kValues[i / 8 % 12];
        entry.m_anRule[1] = kValues[i / 96 % 12];
        entry.m_anRule[2] = entry.m_anRule[3] = kValues[i / 1152];
        bool bMatch = !MatchesIn(entry, 1582).empty() || !MatchesIn(entry, 9999).empty();
        for (const int n : kValues)
            bMatch = entry.IsMatch(n, n, n) || bMatch;
        nValid += entry.IsValid() ? 1 : 0;
        ASSERT_TRUE(entry.IsValid() || !bMatch) << i;
    }
    EXPECT_GT(nValid, 0);
    EXPECT_FALSE(WorkingDay(1, 1).IsMatch(99, 1, 1)) << "the first day of all is a Saturday";
}

TEST(DateEntry, IsValidWithADescriptionAndARule)
{
    EXPECT_FALSE(DateEntry().IsValid());
    EXPECT_FALSE(Make(kFixed, 30, 2).IsValid());
    EXPECT_TRUE(Make(kNearWeekday, DateEntry::OCCURRENCE_LAST, 6, 4, -4).IsValid());
    EXPECT_FALSE(Make(kNearWeekday, DateEntry::OCCURRENCE_LAST, 6, 4, 0).IsValid());

    // A new rule replaces the old one with all its numbers.
    CalendarDateEntry entry;
    entry.SetBeforeAfterDayOfWeek("x", DateEntry::OCCURRENCE_LAST, 6, 4, -4);
    entry.SetDay("", 29, 2);
    EXPECT_FALSE(entry.IsValid());
    EXPECT_EQ(MatchesIn(entry, 2024), std::vector<std::string>{"2-29"}) << "all that is missing is a text";
    entry.SetDesc("x");
    EXPECT_TRUE(entry.IsValid());

    // A calculated date needs no rule.
    CalendarDateEntry described;
    described.SetDesc("x");
    EXPECT_FALSE(described.IsValid());
    described.SetCalculated(true);
    EXPECT_TRUE(described.IsValid());
    EXPECT_TRUE(MatchesIn(described, 2026).empty());
    described.SetDesc("");
    EXPECT_FALSE(described.IsValid());
}

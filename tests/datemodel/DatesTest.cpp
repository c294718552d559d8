// What all groups share: the walk over the entries, the joining of texts, and Easter.
#include <DatesCustom.h>
#include <DatesUS.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

// A group that shows what the others keep to themselves.
class OpenDates : public DatesCustom
{
public:
    using Dates::AppendDesc;
    using Dates::GetEasterDate;

    CalendarDateEntry& AddFixed(const char* szDesc, int nDay, int nMonth, DWORD dwColor)
    {
        CalendarDateEntry& entry = *AddEntry();
        entry.SetDay(szDesc, nDay, nMonth);
        entry.SetColor(dwColor);
        return entry;
    }
    void AddNull() { m_Entries.emplace_back(); }
};

struct Found
{
    bool bFound;
    CString strDesc;
    DWORD dwColor;

    bool operator==(const Found&) const = default;
};

Found Lookup(const Dates& dates, int nDay, int nMonth, int nYear, const char* szBefore = "",
             DWORD dwBefore = 7)
{
    Found found{false, szBefore, dwBefore};
    found.bFound = dates.Lookup(nDay, nMonth, nYear, found.strDesc, found.dwColor);
    return found;
}

// Easter by the anonymous rule of 1876 (Meeus, Jones and Butcher), whose lunar correction begins, as in the
// rule of Oudin with its truncating division, in the year 1800 and not before.
std::pair<int, int> EasterOf(int nYear)
{
    const int a = nYear % 19;
    const int b = nYear / 100;
    const int c = nYear % 100;
    const int g = (b - std::max((b + 8) / 25 - 1, 0)) / 3;
    const int h = (19 * a + b - b / 4 - g + 15) % 30;
    const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int n = h + l - 7 * m + 114;
    return {n / 31, n % 31 + 1};
}

}

TEST(Easter, AgreesWithAnIndependentRuleInEveryYear)
{
    int nWrong = 0;
    for (int nYear = 1; nYear <= 9999; ++nYear) {
        std::pair<int, int> easter;
        OpenDates::GetEasterDate(nYear, easter.first, easter.second);
        const bool bInRange = easter >= std::pair{3, 22} && easter <= std::pair{4, 25};
        nWrong += bInRange && easter == EasterOf(nYear) ? 0 : 1;
    }
    EXPECT_EQ(nWrong, 0);
}

TEST(Dates, ReportInTheOrderOfTheListAndTheLastColourWins)
{
    OpenDates dates;
    EXPECT_EQ(Lookup(dates, 4, 7, 2026, "before"), (Found{false, "before", 7}));
    dates.AddFixed("one", 4, 7, 0x111111);
    dates.AddNull();
    dates.AddFixed("other day", 5, 7, 0x222222);
    dates.AddFixed("hidden", 4, 7, 0x333333).SetShow(false);
    dates.AddFixed("two", 4, 7, 0x444444);
    EXPECT_EQ(Lookup(dates, 4, 7, 2026, "zero"), (Found{true, "zero\r\none\r\ntwo", 0x444444}));

    dates.AddFixed("one", 4, 7, 0x555555);
    EXPECT_EQ(Lookup(dates, 4, 7, 2026), (Found{true, "one\r\ntwo", 0x555555}));

    dates.SetAllShow(false);
    EXPECT_EQ(Lookup(dates, 4, 7, 2026), (Found{false, "", 7}));
}

TEST(Dates, CountTheYearsOfAnEntryThatBeganInOne)
{
    OpenDates dates;
    CalendarDateEntry& entry = dates.AddFixed("Founded", 4, 7, 0x111111);
    entry.m_nKind = DateEntry::KIND_FROM_YEAR;
    entry.m_nStartYear = 2007;
    EXPECT_EQ(Lookup(dates, 4, 7, 2006).strDesc, "");
    EXPECT_EQ(Lookup(dates, 4, 7, 2007).strDesc, "Founded");
    EXPECT_EQ(Lookup(dates, 4, 7, 2010).strDesc, "Founded (3)");

    dates.AddFixed("Founded", 4, 7, 0x222222);
    EXPECT_EQ(Lookup(dates, 4, 7, 2010), (Found{true, "Founded (3)", 0x222222}));

    entry.m_nStartYear = std::numeric_limits<int>::min();
    EXPECT_EQ(Lookup(dates, 4, 7, 2010).strDesc, "Founded (2147483647)");
}

TEST(Dates, JoinTexts)
{
    const struct
    {
        const char* szNew;
        const char* szBefore;
        int nAge;
        const char* szAfter;
    } cases[] = {
        {"a", "", 0, "a"},  {"a", "b", 0, "b\r\na"},     {"a", "b", 12, "b\r\na (12)"},
        {"a", "", -1, "a"}, {"a", "xay", 3, "xay"},      {"", "b", 3, "b"},
        {"", "", 3, ""},    {"a", "xAy", 0, "xAy\r\na"},
    };
    for (const auto& c : cases) {
        CString strDesc(c.szBefore);
        OpenDates::AppendDesc(c.szNew, strDesc, c.nAge);
        EXPECT_EQ(strDesc, c.szAfter);
    }
}

// Texts of one day are joined as the rule for one text has it, however many and however long they are.
TEST(Dates, JoinManyTextsAsTheyJoinOne)
{
    OpenDates dates;
    CString strExpected("before");
    for (int i = 0; i < 3000; ++i) {
        CString strDesc;
        // Distinct ones, parts of earlier ones, and some that cross from one line into the next.
        if (i % 3 == 2)
            strDesc = strExpected.Mid(i * 7 % strExpected.GetLength(), 3 + i % 30);
        else
            strDesc.Format("%s %d", i % 2 ? "An appointment" : "x", i * 7919 % 3000);
        dates.AddFixed(strDesc, 4, 7, 0);
        OpenDates::AppendDesc(strDesc, strExpected, 0);
    }
    EXPECT_TRUE(Lookup(dates, 4, 7, 2026, "before").strDesc == strExpected);
}

TEST(Dates, AnswerForYearsOfAnyValue)
{
    const DatesUS dates;
    const int years[] = {std::numeric_limits<int>::min(), -2000, -1, 0, 10000,
                         std::numeric_limits<int>::max()};
    for (const int nYear : years) {
        EXPECT_TRUE(Lookup(dates, 4, 7, nYear).bFound) << "Independence Day of " << nYear;
        for (int nDay = 1; nDay <= 31; ++nDay)
            EXPECT_FALSE(Lookup(dates, nDay, 5, nYear).strDesc == "Memorial Day");
    }
    for (int nYear = -10000; nYear <= 0; ++nYear) // divisions by what may become 0
        Lookup(dates, 1, 4, nYear);
}

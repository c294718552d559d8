// The three national tables: every entry on a date that it marks and on one that it doesn't.
#include <DateTime.h>
#include <DatesCanada.h>
#include <DatesNetherlands.h>
#include <DatesUS.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <ostream>
#include <vector>

namespace {

struct Date
{
    int nDay;
    int nMonth;
    int nYear;
};

std::ostream& operator<<(std::ostream& stream, const Date& date)
{
    return stream << date.nDay << '.' << date.nMonth << '.' << date.nYear;
}

struct Observance
{
    std::vector<int> ids;
    const char* szDesc; // on the date
    Date marked;
};

constexpr DWORD kColor = 0x123456;

// The dates come from other calendars, not from this code. Clock changes count their years; 16 October 2027
// is a Saturday, 25 May 2026 a Monday.
const Observance kObservances[] = {
    {{0, 100}, "New Year's Day", {1, 1, 2026}},
    {{1}, "Groundhog Day", {2, 2, 2026}},
    {{2, 101}, "Valentine's Day", {14, 2, 2026}},
    {{3, 102}, "St. Patrick's Day", {17, 3, 2026}},
    {{4, 103}, "Spring", {21, 3, 2026}},
    {{5, 104}, "April Fools Day", {1, 4, 2026}},
    {{6, 105}, "Earth Day", {22, 4, 2026}},
    {{7, 106}, "Cinco de Mayo", {5, 5, 2026}},
    {{8}, "Flag Day", {14, 6, 2026}},
    {{9, 107}, "Summer", {21, 6, 2026}},
    {{10}, "Independence Day", {4, 7, 2026}},
    {{11, 110}, "Autumn", {21, 9, 2026}},
    {{12}, "Constitution Day", {17, 9, 2026}},
    {{13, 111}, "National Boss' Day", {15, 10, 2027}},
    {{14, 112}, "Halloween", {31, 10, 2026}},
    {{15}, "Veterans Day", {11, 11, 2026}},
    {{17}, "Pearl Harbor Remembrance Day", {7, 12, 2026}},
    {{18, 116, 209}, "Winter", {21, 12, 2026}},
    {{19, 117}, "Christmas Eve", {24, 12, 2026}},
    {{20, 118}, "Christmas", {25, 12, 2026}},
    {{21, 120}, "New Year's Eve", {31, 12, 2026}},
    {{22}, "Martin Luther King, Jr. Day", {19, 1, 2026}},
    {{23}, "Presidents Day", {16, 2, 2026}},
    {{24, 122}, "Daylight Saving Time (start)", {2, 4, 2006}},
    {{25, 123}, "Daylight Saving Starts (3)", {14, 3, 2010}},
    {{26, 124}, "Mother's Day", {10, 5, 2026}},
    {{27, 125}, "Father's Day", {21, 6, 2026}},
    {{28, 126}, "Parents' Day", {26, 7, 2026}},
    {{29}, "Labor Day", {7, 9, 2026}},
    {{30}, "Columbus Day", {12, 10, 2026}},
    {{31, 130}, "Daylight Saving Ends (3)", {7, 11, 2010}},
    {{32}, "Thanksgiving", {26, 11, 2026}},
    {{33}, "Memorial Day", {25, 5, 2026}},
    {{34, 131}, "Daylight Saving Time (end)", {29, 10, 2006}},
    {{35, 133}, "Administrative Professionals Day", {22, 4, 2026}},
    {{36, 132}, "Grandparents Day", {13, 9, 2026}},
    {{37}, "Election Day", {3, 11, 2026}},
    {{38, 135}, "Easter", {4, 4, 2021}},
    {{39, 137}, "Ash Wednesday", {6, 3, 2019}},
    {{40, 138}, "Palm Sunday", {28, 3, 2021}},
    {{41, 139}, "Good Friday", {2, 4, 2021}},
    {{108}, "St. Jean Baptiste Day", {24, 6, 2026}},
    {{109}, "Canada Day", {1, 7, 2026}},
    {{113}, "All Saints' Day", {1, 11, 2026}},
    {{114}, "National Child Day", {20, 11, 2026}},
    {{119}, "Boxing Day", {26, 12, 2026}},
    {{121}, "Family Day", {16, 2, 2026}},
    {{127}, "Civic Holiday", {3, 8, 2026}},
    {{128}, "Labour Day", {7, 9, 2026}},
    {{129}, "Thanksgiving", {12, 10, 2026}},
    {{134}, "Victoria Day", {18, 5, 2026}},
    {{136}, "Easter Monday", {5, 4, 2021}},
    {{200}, "Nieuwjaar", {1, 1, 2026}},
    {{201}, "Lente", {21, 3, 2026}},
    {{202}, "Koninginnedag", {30, 4, 2026}},
    {{203}, "Dodenherdenking", {4, 5, 2026}},
    {{204}, "Bevrijdingsdag", {5, 5, 2026}},
    {{205}, "Zomer!", {21, 6, 2026}},
    {{206}, "Herfst", {21, 9, 2026}},
    {{207}, "Sinterklaas", {5, 12, 2026}},
    {{208}, "Koninkrijksdag", {15, 12, 2026}},
    {{210}, "Kerstmis", {25, 12, 2026}},
    {{211}, "Oud-en-nieuwfeest", {31, 12, 2026}},
    {{212}, "Begin zomertijd", {29, 3, 2026}},
    {{213}, "Einde van de zomertijd", {29, 9, 1996}},
    {{214}, "Einde zomertijd (3)", {29, 10, 2000}},
    {{215}, "Eerste Paasdag", {4, 4, 2021}},
    {{216}, "Tweede Paasdag", {5, 4, 2021}},
    {{217}, "Aswoensdag", {6, 3, 2019}},
    {{218}, "Palmpaasdag", {28, 3, 2021}},
    {{219}, "Hemelvaartweek", {14, 5, 2021}},
    {{220}, "Pinksteren", {23, 5, 2021}},
    {{221}, "Tweede Pinksterdag", {24, 5, 2021}},
};

// The dates on which an entry would fall without its limit of years. Elections are held in even years; Ash
// Wednesday of 2021 is in February, which is not looked at.
const struct
{
    std::vector<int> ids;
    Date notMarked;
} kOtherYears[] = {
    {{24, 122}, {1, 4, 2007}},   {{25, 123}, {12, 3, 2006}}, {{31, 130}, {5, 11, 2006}},
    {{34, 131}, {28, 10, 2007}}, {{37}, {4, 11, 2025}},      {{39, 137, 217}, {17, 2, 2021}},
    {{213}, {28, 9, 1997}},      {{214}, {27, 10, 1996}},
};

class NationalDates : public testing::Test
{
protected:
    std::array<Dates*, 3> Groups() { return {&m_us, &m_canada, &m_netherlands}; }
    Dates& GroupOf(int nID) { return *Groups()[static_cast<size_t>(nID / 100)]; }

    CalendarDateEntry* Find(int nID)
    {
        Dates& group = GroupOf(nID);
        for (size_t i = 0; i < group.GetCount(); ++i) {
            if (group.GetAt(i)->m_nID == nID)
                return group.GetAt(i);
        }
        return nullptr;
    }

    // Shows one entry, and no other.
    Dates& ShowOnly(int nID)
    {
        Dates& group = GroupOf(nID);
        group.SetAllShow(false);
        Find(nID)->SetShow(true);
        Find(nID)->SetColor(kColor);
        return group;
    }

    static CString Describe(const Dates& group, const Date& date, DWORD& dwColor)
    {
        CString strDesc;
        group.Lookup(date.nDay, date.nMonth, date.nYear, strDesc, dwColor);
        return strDesc;
    }

private:
    DatesUS m_us;
    DatesCanada m_canada;
    DatesNetherlands m_netherlands;
};

}

TEST_F(NationalDates, HoldTheEntriesOfTheirTablesInTheOrderOfTheirIds)
{
    std::vector<int> ids;
    for (const Dates* pGroup : Groups()) {
        for (size_t i = 0; i < pGroup->GetCount(); ++i) {
            const CalendarDateEntry& entry = *pGroup->GetAt(i);
            ids.push_back(entry.m_nID);
            EXPECT_TRUE(entry.IsValid()) << entry.m_nID;
            EXPECT_TRUE(entry.GetShow());
            EXPECT_EQ(entry.GetColor(), 0xFFFFFFU);
        }
    }
    std::vector<int> expected;
    for (const Observance& observance : kObservances)
        expected.insert(expected.end(), observance.ids.begin(), observance.ids.end());
    std::ranges::sort(expected);
    EXPECT_EQ(expected.size(), 102U);
    EXPECT_EQ(ids, expected);
}

TEST_F(NationalDates, MarkEachObservanceOnceInItsYear)
{
    for (const auto& [ids, szDesc, marked] : kObservances) {
        for (const int nID : ids) {
            const Dates& group = ShowOnly(nID);
            DWORD dwColor = 0;
            EXPECT_EQ(Describe(group, marked, dwColor), szDesc) << marked;
            EXPECT_EQ(dwColor, kColor);

            int nMarks = 0;
            for (DateTime date(marked.nYear, 1, 1, 0, 0, 0); date.GetYear() == marked.nYear;
                 date.AddDays(1)) {
                const Date day{date.GetDay(), date.GetMonth(), marked.nYear};
                nMarks += Describe(group, day, dwColor).IsEmpty() ? 0 : 1;
            }
            EXPECT_EQ(nMarks, 1) << nID;
        }
    }
    for (const auto& [ids, notMarked] : kOtherYears) {
        for (const int nID : ids) {
            DWORD dwColor = 7;
            EXPECT_EQ(Describe(ShowOnly(nID), notMarked, dwColor), "") << nID;
            EXPECT_EQ(dwColor, 7U);
        }
    }
}

TEST_F(NationalDates, JoinARuleAndEasterOnOneDay)
{
    const struct
    {
        int nRuleID;
        int nEasterID;
        Date date;
        const char* szDesc;
    } cases[] = {
        {5, 38, {1, 4, 2018}, "April Fools Day\r\nEaster"},
        {104, 136, {1, 4, 2024}, "April Fools Day\r\nEaster Monday"},
        {204, 219, {5, 5, 1989}, "Bevrijdingsdag\r\nHemelvaartweek"},
    };
    for (const auto& c : cases) {
        Find(c.nRuleID)->SetColor(1);
        Find(c.nEasterID)->SetColor(kColor);
        DWORD dwColor = 0;
        EXPECT_EQ(Describe(GroupOf(c.nRuleID), c.date, dwColor), c.szDesc);
        EXPECT_EQ(dwColor, kColor);
    }
}

TEST_F(NationalDates, KnowTheDateOfAHiddenCalculatedEntry)
{
    for (const auto& [nID, date] :
         {std::pair{38, Date{4, 4, 2021}}, {139, {2, 4, 2021}}, {221, {24, 5, 2021}}}) {
        GroupOf(nID).SetAllShow(false);
        CString strDesc("before");
        DWORD dwColor = 7;
        EXPECT_TRUE(GroupOf(nID).Lookup(date.nDay, date.nMonth, date.nYear, strDesc, dwColor)) << nID;
        EXPECT_EQ(strDesc, "before");
        EXPECT_EQ(dwColor, 7U);
    }
    CString strDesc;
    DWORD dwColor = 7;
    EXPECT_FALSE(GroupOf(0).Lookup(4, 7, 2021, strDesc, dwColor)) << "a hidden rule is not reported at all";
}

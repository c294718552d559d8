// The three national tables: which entries they hold, and every one that moves on dates that it marks and
// doesn't.
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
    const char* szDesc;
    std::vector<Date> marked;
};

constexpr DWORD kColor = 0x123456;

// The entries that move, in years that tell the rule of each from its neighbours: with four and with five of
// the weekday in the month, with the month's first day on the weekday and not. Written down from almanacs:
// federal holidays by the Office of Personnel Management, Canadian ones by the Department of Canadian
// Heritage, clock changes by the tz database, Easter by the tables of the Astronomical Applications
// Department of the U.S. Naval Observatory. Clock changes count their years.
const Observance kMovingDates[] = {
    {{13, 111}, "National Boss' Day", {{16, 10, 2026}, {15, 10, 2027}}},
    {{22}, "Martin Luther King, Jr. Day", {{15, 1, 2024}, {19, 1, 2026}}},
    {{23}, "Presidents Day", {{16, 2, 2026}, {21, 2, 2028}}},
    {{24, 122}, "Daylight Saving Time (start)", {{1, 4, 2001}, {4, 4, 2004}, {2, 4, 2006}}},
    {{25, 123}, "Daylight Saving Starts (3)", {{14, 3, 2010}}},
    {{25, 123}, "Daylight Saving Starts (19)", {{8, 3, 2026}}},
    {{26, 124}, "Mother's Day", {{8, 5, 2022}, {14, 5, 2023}}},
    {{27, 125}, "Father's Day", {{15, 6, 2025}, {21, 6, 2026}}},
    {{28, 126}, "Parents' Day", {{24, 7, 2022}, {28, 7, 2030}}},
    {{29}, "Labor Day", {{1, 9, 2025}, {7, 9, 2026}}},
    {{30}, "Columbus Day", {{14, 10, 2024}, {8, 10, 2029}}},
    {{31, 130}, "Daylight Saving Ends (3)", {{7, 11, 2010}}},
    {{31, 130}, "Daylight Saving Ends (19)", {{1, 11, 2026}}},
    {{32}, "Thanksgiving", {{26, 11, 2026}, {23, 11, 2028}}},
    {{33}, "Memorial Day", {{25, 5, 2026}, {31, 5, 2027}}},
    {{34, 131}, "Daylight Saving Time (end)", {{31, 10, 2004}, {29, 10, 2006}}},
    {{35, 133}, "Administrative Professionals Day", {{22, 4, 2026}, {28, 4, 2027}}},
    {{36, 132}, "Grandparents Day", {{7, 9, 2025}, {13, 9, 2026}}},
    {{37}, "Election Day", {{8, 11, 2022}, {3, 11, 2026}}},
    {{38, 135}, "Easter", {{4, 4, 2021}, {31, 3, 2024}, {20, 4, 2025}}},
    {{39, 137}, "Ash Wednesday", {{6, 3, 2019}, {5, 3, 2025}}},
    {{40, 138}, "Palm Sunday", {{28, 3, 2021}, {13, 4, 2025}}},
    {{41, 139}, "Good Friday", {{2, 4, 2021}, {29, 3, 2024}}},
    {{121}, "Family Day", {{16, 2, 2026}, {21, 2, 2028}}},
    {{127}, "Civic Holiday", {{1, 8, 2022}, {3, 8, 2026}}},
    {{128}, "Labour Day", {{1, 9, 2025}, {7, 9, 2026}}},
    {{129}, "Thanksgiving", {{14, 10, 2024}, {8, 10, 2029}}},
    {{134}, "Victoria Day", {{18, 5, 2026}, {24, 5, 2027}}},
    {{136}, "Easter Monday", {{5, 4, 2021}, {1, 4, 2024}}},
    {{212}, "Begin zomertijd", {{29, 3, 2026}, {28, 3, 2027}}},
    {{213}, "Einde van de zomertijd", {{24, 9, 1995}, {29, 9, 1996}}},
    {{214}, "Einde zomertijd (3)", {{29, 10, 2000}}},
    {{214}, "Einde zomertijd (29)", {{25, 10, 2026}}},
    {{215}, "Eerste paasdag", {{4, 4, 2021}, {31, 3, 2024}}},
    {{216}, "Tweede paasdag", {{5, 4, 2021}, {1, 4, 2024}}},
    {{217}, "Aswoensdag", {{6, 3, 2019}, {5, 3, 2025}}},
    {{218}, "Palmpaasdag", {{28, 3, 2021}, {13, 4, 2025}}},
    {{219}, "Hemelvaartweek", {{14, 5, 2021}, {30, 5, 2025}}},
    {{220}, "Pinksteren", {{23, 5, 2021}, {8, 6, 2025}}},
    {{221}, "Tweede pinksterdag", {{24, 5, 2021}, {9, 6, 2025}}},
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

CString Describe(const Dates& group, const Date& date, DWORD& dwColor)
{
    CString strDesc;
    group.Lookup(date.nDay, date.nMonth, date.nYear, strDesc, dwColor);
    return strDesc;
}

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

private:
    DatesUS m_us;
    DatesCanada m_canada;
    DatesNetherlands m_netherlands;
};

// Whether the moving date is the only one of the year on which the entry is reported.
void ExpectOnlyOn(const Dates& group, const Date& marked, const char* szDesc)
{
    DWORD dwColor = 0;
    EXPECT_EQ(Describe(group, marked, dwColor), szDesc) << marked;
    EXPECT_EQ(dwColor, kColor);

    int nMarks = 0;
    for (DateTime date(marked.nYear, 1, 1, 0, 0, 0); date.GetYear() == marked.nYear; date.AddDays(1)) {
        const Date day{date.GetDay(), date.GetMonth(), marked.nYear};
        nMarks += Describe(group, day, dwColor).IsEmpty() ? 0 : 1;
    }
    EXPECT_EQ(nMarks, 1) << szDesc << ' ' << marked;
}

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
    for (const auto& [nFirst, nLast] : {std::pair{0, 15}, {17, 41}, {100, 114}, {116, 139}, {200, 221}}) {
        for (int nID = nFirst; nID <= nLast; ++nID)
            expected.push_back(nID);
    }
    EXPECT_EQ(expected.size(), 102U);
    EXPECT_EQ(ids, expected);
}

TEST_F(NationalDates, MarkEachMovingDateOnceInItsYear)
{
    for (const auto& [ids, szDesc, marked] : kMovingDates) {
        for (const int nID : ids) {
            for (const Date& date : marked)
                ExpectOnlyOn(ShowOnly(nID), date, szDesc);
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

// The places of the buttons and cells, and the tables of the cells.
#include "CalendarFixture.h"

#include <Clock.h>
#include <LocaleUtils.h>

#include <gmock/gmock.h>

using testing::Each;
using testing::ElementsAre;

using LayoutTest = CalendarTest;

TEST_F(LayoutTest, ButtonsFillHeadingAndFooter)
{
    Start();
    for (const auto& [cx, cy] :
         {std::pair(300, 240), std::pair(301, 241), std::pair(302, 90), std::pair(104, 400)}) {
        calendar->MoveWindow(0, 0, cx, cy);
        const TestCalendar& c = *calendar;
        const std::pair<const CWnd*, CRect> places[] = {
            {c.m_pPrevYearButton, {0, 0, 25, 23}},
            {c.m_pPrevMonthButton, {25, 0, 50, 23}},
            {c.m_pMonthYearButton, {50, 0, cx - 50, 23}},
            {c.m_pNextMonthButton, {cx - 50, 0, cx - 25, 23}},
            {c.m_pNextYearButton, {cx - 25, 0, cx, 23}},
            {c.m_pTodayButton, {0, cy - 25, cx / 3, cy}},
            {c.m_pOptionsButton, {cx / 3, cy - 25, cx / 3 * 2, cy}},
            {c.m_pClearButton, {cx / 3 * 2, cy - 25, cx, cy}},
        };
        for (const auto& [pButton, rc] : places) {
            CRect rcPlace;
            pButton->GetWindowRect(&rcPlace);
            ::MapWindowPoints(nullptr, *calendar, reinterpret_cast<POINT*>(&rcPlace), 2);
            EXPECT_EQ(rcPlace, rc) << pButton->GetDlgCtrlID() << " in " << cx << 'x' << cy;
        }
        EXPECT_EQ(c.m_rcGrid, CRect(0, 23, cx, cy - 25));
    }
}

// All rows and all columns have the same size but the last, which makes up for what is left over.
TEST_F(LayoutTest, Edges)
{
    Start();
    calendar->OnSize(0, 210, 200);
    EXPECT_THAT(calendar->m_vRowEdges, ElementsAre(24, 43, 65, 87, 109, 131, 153, 174));
    EXPECT_THAT(calendar->m_vColumnEdges, ElementsAre(1, 31, 61, 91, 121, 151, 181, 209));
    calendar->OnSize(0, 202, 200);
    EXPECT_THAT(calendar->m_vColumnEdges, ElementsAre(1, 29, 57, 85, 113, 141, 169, 201));
    calendar->OnSize(0, 300, 240);
    EXPECT_THAT(calendar->m_vRowEdges, ElementsAre(24, 43, 71, 99, 127, 155, 183, 214));
    Repaint();
    calendar->OnSize(0, 300, 240);
    EXPECT_EQ(GetInvalid(), calendar->m_rcGrid);
    EXPECT_EQ(calendar->GetCellRect({2, 1}), CRect(4, 45, 43 - 1, 70));
    EXPECT_EQ(calendar->GetCellRect({7, 7}), CRect(253 + 4, 185, 298, 213));
}

// Nothing limits the size, and no size harms. The random game has the sizes that a window can have.
TEST_F(LayoutTest, AnySize)
{
    ASSERT_TRUE(Create({}, {-30, -40}));
    EXPECT_EQ(calendar->m_vColumnEdges.back(), -31);
    EXPECT_EQ(calendar->m_vRowEdges.back(), -66);
    for (const int n : {-1000, -1, 0, 7, 26, 51, 32767}) {
        calendar->OnSize(0, n, 100 - n);
        Repaint();
    }
}

// Today is found in each cell in which it can lie, whatever day the week begins with.
TEST_F(LayoutTest, TodayCell)
{
    Start({.bUseSpecialDates = false});
    for (const char* strLocale : {"en-US", "nl-NL"}) {
        ASSERT_TRUE(LocaleUtils::SetLocale(strLocale));
        DateTime shown = Date(2026, 2, 15); // has 28 days and begins on a Sunday
        for (int nMonth = 0; nMonth < 14; ++nMonth, shown.AddMonths(1)) {
            calendar->m_date = shown;
            DateTime today = shown;
            today.SetDay(1);
            while (today.GetDayOfWeek() != LocaleUtils::GetFirstDayOfWeek())
                today.AddDays(-1);
            today.AddDays(-1);
            for (int nCell = -1; nCell <= 42; ++nCell, today.AddDays(1)) {
                Clock::SetToday(today.GetYear(), today.GetMonth(), today.GetDay());
                calendar->RefreshMonth();
                ASSERT_EQ(calendar->m_nTodayCell, nCell == 42 ? -1 : nCell) << strLocale << ToText(today);
            }
        }
    }
    EXPECT_THAT(calendar->m_vDayDescs, Each(CString()));
}

// Neither painting nor a step within the month looks dates up.
TEST_F(LayoutTest, DaysAreLookedUpWithTheirMonth)
{
    Start();
    HideNationalDays();
    const std::vector<CString> descs = calendar->m_vDayDescs;
    Key(VK_RIGHT);
    Repaint();
    EXPECT_EQ(calendar->m_vDayDescs, descs);
    Key(VK_NEXT);
    EXPECT_THAT(calendar->m_vDayDescs, Each(CString()));
}

// The places of the buttons and cells, and the tables of the cells.
#include "CalendarFixture.h"

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

// Mouse, wheel, keys and focus.
#include "CalendarFixture.h"

#include <ZEBButton.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class InputTest : public CalendarTest
{
protected:
    void Tab(bool bShift)
    {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = bShift ? 0x80 : 0;
        ::SetKeyboardState(keys);
        Key(VK_TAB);
        keys[VK_SHIFT] = 0;
        ::SetKeyboardState(keys);
    }
};

// Each pixel of a row and of a column. Those on an edge and behind it belong to the cell before them, those
// outside of the days to none.
TEST_F(InputTest, PressEveryPixel)
{
    Start();
    const auto press = [this](CPoint point, const std::vector<int>& edges, int n, int nFirstDay, int nStep) {
        Show(Date(2026, 2, 28), false); // the month starts in the first cell
        parent.SetFocus();
        Press(point);
        EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
        const bool bInside = n >= edges.front() && n <= edges.back() + 1;
        const auto nPassed = std::ranges::count_if(edges.begin() + 1, edges.end() - 1,
                                                   [n](int nEdge) { return n > nEdge + 1; });
        DateTime expected = Date(2026, 2, nFirstDay);
        expected.AddDays(static_cast<int>(nPassed) * nStep);
        EXPECT_EQ(ToText(bInside ? expected : Date(2026, 2, 28)), ToText(calendar->m_date)) << n;
        EXPECT_EQ(TakeHeard().size(), bInside ? 1u : 0u) << n;
    };
    const CPoint center = calendar->GetCellRect({3, 2}).CenterPoint();
    for (int x = -3; x < kWidth + 3; ++x)
        press({x, center.y}, calendar->m_vColumnEdges, x, 8, 1);
    // The row of names counts as none, down to the pixel behind its edge.
    std::vector<int> edges(calendar->m_vRowEdges.begin() + 1, calendar->m_vRowEdges.end());
    edges.front() += 2;
    for (int y = 20; y < kHeight; ++y)
        press({center.x, y}, edges, y, 2, 7);
}

TEST_F(InputTest, PressBeforeTheFirstPaint)
{
    ASSERT_TRUE(Create());
    parent.SetFocus();
    parent.m_heard.clear();
    ::ValidateRect(calendar->m_hWnd, nullptr);
    calendar->m_nFirstDayColumn = -1;
    Press(CPoint(150, 120));
    EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

// From each stop of the ring in both directions, for each choice of the two optional buttons. A move redraws
// the frame at the day of the date, except away from Clear and the previous month.
TEST_F(InputTest, FocusRing)
{
    struct Stop
    {
        CWnd* pWnd;
        bool bPresent;
        bool bRedraws;
    };
    for (int nCase = 0; nCase < 8; ++nCase) {
        const bool bOptions = nCase & 1, bNoDate = nCase & 2, bHaveDate = nCase & 4;
        Renew();
        Start({.bAllowNoDate = bNoDate, .bShowOptions = bOptions});
        std::vector<Stop> ring = {
            {&parent, true, false},
            {calendar.get(), true, true},
            {calendar->m_pTodayButton, true, true},
            {calendar->m_pOptionsButton, bOptions, true},
            {calendar->m_pClearButton, bNoDate, false},
            {calendar->m_pPrevMonthButton, true, false},
            {calendar->m_pNextMonthButton, true, true},
            {calendar->m_pPrevYearButton, true, true},
            {calendar->m_pNextYearButton, true, true},
            {&parent, true, false},
        };
        std::erase_if(ring, [](const Stop& stop) { return !stop.bPresent; });
        for (size_t i = 1; i + 1 < ring.size(); ++i)
            for (const bool bShift : {false, true}) {
                SCOPED_TRACE(testing::Message() << nCase << ' ' << i << bShift);
                Show(Date(2026, 7, 8), bHaveDate);
                ring[i].pWnd->SetFocus();
                const CRect rcElsewhere = calendar->GetDayRect(22);
                calendar->m_rcSelection = rcElsewhere; // shows whether the frame was put right
                Tab(bShift);
                EXPECT_EQ(::GetFocus(), ring[bShift ? i - 1 : i + 1].pWnd->m_hWnd);
                const bool bRedrawn = bHaveDate && ring[i].bRedraws;
                EXPECT_EQ(calendar->m_rcSelection, bRedrawn ? calendar->GetDayRect(8) : rcElsewhere);
            }
        EXPECT_THAT(TakeHeard(), IsEmpty());
    }
}

TEST_F(InputTest, FrameGoesWhereTheHostPutTheDateWhenItGotTheFocus)
{
    Start();
    Show(Date(2026, 7, 8), true);
    parent.m_onFocus = [this] { calendar->SetDate(Date(2026, 7, 20)); };
    Tab(true);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
    EXPECT_EQ(calendar->m_rcSelection, calendar->GetDayRect(20));
}

TEST_F(InputTest, TabIsLeftAloneWithoutAWholeRing)
{
    Start();
    MSG msg{calendar->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    parent.SetFocus(); // no stop of the ring
    EXPECT_FALSE(calendar->PreTranslateMessage(&msg));
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
    calendar->SetFocus();
    calendar->m_pPrevYearButton->DestroyWindow();
    EXPECT_FALSE(calendar->PreTranslateMessage(&msg));
    EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
}

TEST_F(InputTest, TodayTakesTheFocusBeforeTheParentHears)
{
    Start();
    calendar->m_pNextYearButton->SetFocus();
    Key('T');
    EXPECT_EQ(parent.m_heard.at(0).hFocus, calendar->m_hWnd);
}

TEST_F(InputTest, CursorIsTheArrow)
{
    Start();
    ::SetCursor(nullptr);
    EXPECT_EQ(calendar->SendMessage(WM_SETCURSOR), 1);
    EXPECT_EQ(::SetCursor(nullptr), ::LoadCursorA(nullptr, IDC_ARROW));
}

// Wherever the focus is in the control; a button that is not offered has no letter.
TEST_F(InputTest, UnderlinedLettersPressTheirButtons)
{
    const auto press = [this](WPARAM nKey) {
        MSG msg{::GetFocus(), WM_SYSKEYDOWN, nKey, 1 << 29, 0, {}};
        return CWnd::WalkPreTranslateTree(parent.m_hWnd, &msg) != FALSE;
    };
    Start();
    Show(Date(2026, 7, 8), true);
    calendar->m_pNextYearButton->SetFocus();
    EXPECT_TRUE(press('T'));
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 1"));
    EXPECT_TRUE(press('C'));
    EXPECT_THAT(TakeHeard(), ElementsAre("NODATE 0"));
    EXPECT_FALSE(press('X'));
    EXPECT_FALSE(press(VK_F10));
    Renew();
    Start({.bAllowNoDate = false, .bShowOptions = false});
    EXPECT_FALSE(press('C'));
    EXPECT_FALSE(press('O'));
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

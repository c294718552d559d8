#include "CalendarFixture.h"

#include <LocaleUtils.h>
#include <ZEBButton.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class InputTest : public CalendarTest
{
protected:
    void SetShift(bool bDown)
    {
        BYTE keys[256];
        ::GetKeyboardState(keys);
        keys[VK_SHIFT] = bDown ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    void Tab(bool bShift)
    {
        SetShift(bShift);
        Key(VK_TAB);
        SetShift(false);
    }
};

// Each of the 42 cells of months of every shape leads to its date, and says so once.
TEST_F(InputTest, PressEveryCell)
{
    Start();
    std::vector<DateTime> months = {Date(2010, 2, 1), Date(2015, 2, 1), Date(2024, 2, 1)};
    for (int nMonth = 1; nMonth <= 12; ++nMonth)
        months.push_back(Date(2026, nMonth, 1));
    for (size_t i = 0; i < months.size() * MonthBlock::kCells; ++i) {
        const DateTime first = months[i / MonthBlock::kCells];
        const int nCell = static_cast<int>(i) % MonthBlock::kCells;
        ASSERT_TRUE(LocaleUtils::SetLocale(i % 2 != 0 ? "en-US" : "nl-NL"));
        Show(first, false);
        parent.m_heard.clear();
        DateTime expected = first;
        expected.AddDays(nCell + 1 - MonthBlock::ShapeOf(first)->nFirstColumn);
        Press(calendar->GetCellRect(MonthBlock::PlaceOfCell(nCell)).CenterPoint());
        ASSERT_EQ(ToText(calendar->m_date), ToText(expected));
        ASSERT_THAT(TakeHeard(), ElementsAre("SELCHANGE 0"));
    }
}

TEST_F(InputTest, PressWithoutADay)
{
    ASSERT_TRUE(Create());
    parent.SetFocus();
    parent.m_heard.clear();
    ::ValidateRect(calendar->m_hWnd, nullptr);
    calendar->m_nFirstDayColumn = -1; // as before the first paint
    Press(CPoint(150, 120));
    EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
    EXPECT_THAT(TakeHeard(), IsEmpty());

    Repaint();
    for (const CPoint point : {CPoint(150, 30), CPoint(150, 44), CPoint(301, 100), CPoint(150, 216)}) {
        parent.SetFocus();
        Press(point);
        EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
        EXPECT_THAT(TakeHeard(), IsEmpty()) << point.x << ',' << point.y;
    }
}

TEST_F(InputTest, DoubleClickIsTwoPresses)
{
    Start();
    Show(Date(2026, 5, 20), true);
    const CPoint shown = calendar->GetDayRect(4).CenterPoint();
    Press(shown);
    Press(shown);
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 0"));
    const CPoint last = calendar->GetCellRect({7, 7}).CenterPoint(); // 6 June, then 11 July
    Press(last);
    Repaint();
    Press(last);
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 0", "SELCHANGE 0"));
    EXPECT_EQ(ToText(calendar->m_date), "2026-7-11");
}

// The whole ring in both directions, for each choice of the two optional buttons.
TEST_F(InputTest, FocusRing)
{
    for (const bool bOptions : {false, true})
        for (const bool bNoDate : {false, true}) {
            Renew();
            Start({.bAllowNoDate = bNoDate, .bShowOptions = bOptions});
            std::vector<CWnd*> ring = {
                calendar.get(),
                calendar->m_pTodayButton,
                bOptions ? calendar->m_pOptionsButton : nullptr,
                bNoDate ? calendar->m_pClearButton : nullptr,
                calendar->m_pPrevMonthButton,
                calendar->m_pNextMonthButton,
                calendar->m_pPrevYearButton,
                calendar->m_pNextYearButton,
                &parent,
            };
            std::erase(ring, nullptr);
            for (size_t i = 1; i < ring.size(); ++i) {
                Tab(false);
                ASSERT_EQ(::GetFocus(), ring[i]->m_hWnd) << bOptions << bNoDate << i;
            }
            calendar->m_pNextYearButton->SetFocus();
            for (size_t i = ring.size() - 2; i-- > 0;) {
                Tab(true);
                ASSERT_EQ(::GetFocus(), ring[i]->m_hWnd) << bOptions << bNoDate << i;
            }
            Tab(true);
            EXPECT_EQ(::GetFocus(), parent.m_hWnd);
            EXPECT_THAT(TakeHeard(), IsEmpty());
        }
}

// A move redraws the frame at the day of the date, except away from Clear and the previous month.
TEST_F(InputTest, FocusMovesRedrawTheFrame)
{
    Start();
    const std::pair<CWnd*, bool> stops[] = {
        {calendar.get(), true},
        {calendar->m_pTodayButton, true},
        {calendar->m_pOptionsButton, true},
        {calendar->m_pClearButton, false},
        {calendar->m_pPrevMonthButton, false},
        {calendar->m_pNextMonthButton, true},
        {calendar->m_pPrevYearButton, true},
        {calendar->m_pNextYearButton, true},
    };
    for (const bool bHaveDate : {true, false})
        for (const bool bShift : {false, true})
            for (const auto& [pStop, bRedraws] : stops) {
                Show(Date(2026, 7, 8), bHaveDate);
                pStop->SetFocus();
                const CRect rcElsewhere = calendar->GetDayRect(22);
                calendar->m_rcSelection = rcElsewhere; // shows whether the frame was put right
                Tab(bShift);
                EXPECT_EQ(calendar->m_rcSelection,
                          bHaveDate && bRedraws ? calendar->GetDayRect(8) : rcElsewhere)
                    << pStop->GetDlgCtrlID() << bShift;
            }
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

TEST_F(InputTest, KeysWorkOnTheButtonsToo)
{
    Start();
    Show(Date(2026, 5, 20), true);
    calendar->m_pNextYearButton->SetFocus();
    Key(VK_DOWN);
    Key(VK_RETURN);
    Key(VK_ESCAPE);
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 1")); // Enter and Esc are the button's own
    Key('T');
    EXPECT_EQ(::GetFocus(), calendar->m_hWnd);
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 1"));
}

TEST_F(InputTest, HorizontalWheelDoesNothing)
{
    Start();
    constexpr UINT kMouseHWheel = 0x020E;
    calendar->SendMessage(kMouseHWheel, MAKEWPARAM(0, 120));
    EXPECT_EQ(ToText(calendar->m_date), "2026-7-15");
    EXPECT_TRUE(calendar->OnMouseHWheel(0, 120, CPoint()));
    EXPECT_EQ(ToText(calendar->m_date), "2026-6-15");
}

TEST_F(InputTest, CursorIsTheArrow)
{
    Start();
    ::SetCursor(nullptr);
    EXPECT_EQ(calendar->SendMessage(WM_SETCURSOR, 0, MAKELPARAM(HTNOWHERE, 0)), 1);
    EXPECT_EQ(::SetCursor(nullptr), ::LoadCursorA(nullptr, IDC_ARROW));
}

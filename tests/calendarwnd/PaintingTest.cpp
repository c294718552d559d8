// The pixels of the grid, of the days and of the selection frame.
#include "CalendarFixture.h"

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kLine = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kHeader = RGB(0xF9, 0xF4, 0x9B);
constexpr COLORREF kToday = RGB(0xFF, 0xD9, 0xB3);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGray = RGB(0x80, 0x80, 0x80);

}

class PaintingTest : public CalendarTest
{
protected:
    void SetUp() override
    {
        Start();
        HideNationalDays();
        calendar->RefreshMonth();
    }

    // The colour of the corners and sides of the frame around a cell's text rectangle.
    void ExpectFrame(const CRect& rc, COLORREF cr)
    {
        const Picture picture(*calendar);
        for (const LONG x : {rc.left - 3, rc.right + 0})
            for (const LONG y : {rc.top - 1, rc.bottom + 0, rc.CenterPoint().y + 0})
                EXPECT_EQ(picture.GetPixel(x, y), cr) << x << ',' << y;
    }
    CString GetTip(UINT_PTR nId) const
    {
        char szTip[200] = "";
        TOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V1_SIZE;
        tool.hwnd = calendar->m_hWnd;
        tool.uId = nId;
        tool.lpszText = szTip;
        SendToTip(TTM_GETTEXTA, sizeof szTip, &tool);
        return szTip;
    }
    LRESULT CountTools() const { return SendToTip(TTM_GETTOOLCOUNT, 0, nullptr); }
    LRESULT SendToTip(UINT message, WPARAM wParam, TOOLINFOA* pTool) const
    {
        return ::SendMessageA(calendar->m_toolTip, message, wParam, reinterpret_cast<LPARAM>(pTool));
    }
};

TEST_F(PaintingTest, LinesAndBands)
{
    Show(Date(2026, 1, 15), false);
    const Picture picture(*calendar);
    const CRect& grid = calendar->m_rcGrid;
    const int nNames = calendar->m_vRowEdges[1];
    for (const int x : {0, 1, kWidth - 1}) { // no lines down the sides
        const std::pair<int, COLORREF> rows[] = {
            {grid.top, kLine},    {grid.top + 1, kHeader},   {nNames - 1, kHeader},    {nNames, kLine},
            {nNames + 1, kWhite}, {grid.bottom - 2, kWhite}, {grid.bottom - 1, kLine},
        };
        for (const auto& [y, cr] : rows)
            EXPECT_EQ(picture.GetPixel(x, y), cr) << x << ',' << y;
    }
    for (size_t i = 1; i < 7; ++i) {
        const int x = calendar->m_vColumnEdges[i];
        EXPECT_EQ(picture.GetPixel(0, calendar->m_vRowEdges[i]), kLine);
        EXPECT_EQ(picture.GetPixel(kWidth - 1, calendar->m_vRowEdges[i]), kLine);
        EXPECT_EQ(picture.GetPixel(x, grid.top + 1), kLine);
        EXPECT_EQ(picture.GetPixel(x, grid.bottom - 2), kLine);
        EXPECT_EQ(picture.GetPixel(x + 1, grid.bottom - 2), kWhite);
    }
    for (int c = 1; c <= 7; ++c)
        EXPECT_LT(picture.GetDarkest(calendar->GetCellRect({1, c})), 100) << "name of day " << c;
}

TEST_F(PaintingTest, NumbersOfThreeMonths)
{
    Show(Date(2026, 5, 20), false);
    const Picture picture(*calendar);
    const auto shape = MonthBlock::ShapeOf(calendar->m_date);
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell) {
        const int nDarkest = picture.GetDarkest(calendar->GetRectOfCell(nCell));
        if (MonthBlock::CellAt(*shape, nCell).month == MonthBlock::Month::Shown)
            EXPECT_LT(nDarkest, 100) << nCell;
        else
            EXPECT_TRUE(nDarkest >= 0xC4 && nDarkest < 0xF0) << nCell << ": " << nDarkest;
    }
    EXPECT_EQ(MonthBlock::ShapeOf(Date(1, 1, 1))->nPrevDays, 31) << "before the first of all days";
}

// Today keeps its highlight, also as a day of a neighbouring month, and the frame has the same outline.
TEST_F(PaintingTest, TodayAndFrame)
{
    Show(Date(2026, 7, 15), true);
    CRect rc = calendar->GetRectOfCell(calendar->m_nTodayCell);
    EXPECT_EQ(calendar->m_rcSelection, rc);
    ExpectFrame(rc, kBlack);
    const Picture picture(*calendar);
    EXPECT_EQ(picture.GetPixel(rc.right - 3, rc.bottom - 3), kToday);
    EXPECT_FALSE(picture.Contains(rc, kWhite)) << "the number stands on the highlight";
    EXPECT_FALSE(picture.Contains(calendar->GetRectOfCell(calendar->m_nTodayCell + 1), kToday))
        << "the next does not";

    Key(VK_RIGHT); // the frame leaves, the highlight stays whole
    ExpectFrame(rc, kToday);
    ExpectFrame(calendar->GetRectOfCell(calendar->m_nTodayCell + 1), kBlack);
    Key(VK_RIGHT);
    ExpectFrame(calendar->GetRectOfCell(calendar->m_nTodayCell + 1), kWhite);
    EXPECT_EQ(GetInvalid(), CRect());

    Show(Date(2026, 7, 15), true);
    Command(2605); // white on every cell
    ExpectFrame(rc, kWhite);

    Show(Date(2026, 8, 1), false); // 15 July is outside
    EXPECT_EQ(calendar->m_nTodayCell, -1);
    EXPECT_EQ(calendar->m_rcToday.left, rc.left - 3); // keeps what was painted last
}

TEST_F(PaintingTest, FrameFollowsTheFocus)
{
    Show(Date(2026, 7, 8), true);
    const CRect rc = calendar->m_rcSelection;
    ExpectFrame(rc, kBlack);
    calendar->m_pTodayButton->SetFocus();
    EXPECT_EQ(GetInvalid(), CRect(rc.left - 2, rc.top, rc.right, rc.bottom));
    ExpectFrame(rc, kGray); // at once
    Repaint();
    ExpectFrame(rc, kGray);
    calendar->SetFocus(); // at once
    ExpectFrame(rc, kBlack);
    EXPECT_EQ(GetInvalid(), CRect(rc.left - 2, rc.top, rc.right, rc.bottom));

    Show(Date(2026, 7, 8), false);
    ExpectFrame(rc, kWhite);
    EXPECT_EQ(calendar->m_rcSelection, rc);
    calendar->m_pTodayButton->SetFocus();
    Repaint();
    calendar->SetFocus();
    ExpectFrame(rc, kWhite);
}

// The control has the focus and shows today, with no date selected: no paint will come.
TEST_F(PaintingTest, TodayFramesADayThatIsShownAlready)
{
    Show(Date(2026, 7, 15), false);
    const CRect rc = calendar->m_rcSelection;
    COLORREF crHeard = kWhite;
    parent.m_onHeard = [&] { crHeard = Picture(*calendar).GetPixel(rc.right, rc.top); };
    Key('T');
    ExpectFrame(rc, kBlack);
    EXPECT_EQ(crHeard, kBlack) << "before the parent hears";
    EXPECT_EQ(GetInvalid(), CRect());
}

// A frame leaves no ghost of today's colour in a month that shows today's place, but not today.
TEST_F(PaintingTest, AFrameLeavesWhiteWhereTodayWasInAnotherMonth)
{
    Show(Date(2026, 7, 15), true);
    const int nCell = calendar->m_nTodayCell;
    Show(Date(2027, 4, 15), true);
    const CRect rc = calendar->GetRectOfCell(nCell);
    calendar->MoveSelectionRect(rc);
    calendar->MoveSelectionRect(calendar->GetRectOfCell(nCell + 1));
    ExpectFrame(rc, kWhite);
}

TEST_F(PaintingTest, DotsAndTips)
{
    AddSpecialDay("Before", 28, 6, RGB(200, 10, 20));
    AddSpecialDay("Salt & pepper", 4, 7, RGB(10, 120, 220));
    AddSpecialDay("Second", 4, 7, RGB(10, 120, 220));
    AddSpecialDay("White", 20, 7, kWhite);
    AddSpecialDay("After", 8, 8, RGB(200, 10, 20));
    for (int nPaint = 1; nPaint <= 3; ++nPaint) {
        Show(Date(2026, 7, 9), true);
        EXPECT_EQ(calendar->m_nNextToolId, 5u);
        EXPECT_EQ(CountTools(), 4);
        EXPECT_EQ(GetTip(1), "Before");
        EXPECT_EQ(GetTip(2), "Salt && pepper && Second");
        EXPECT_EQ(GetTip(3), "White");
        EXPECT_EQ(GetTip(4), "After");
    }
    const Picture picture(*calendar);
    const std::pair<int, COLORREF> dots[] = {
        {0, RGB(200, 10, 20)}, {6, RGB(10, 120, 220)}, {22, kWhite}, {23, kWhite}, {41, RGB(200, 10, 20)}};
    for (const auto& [nCell, cr] : dots) {
        const CRect rc = calendar->GetRectOfCell(nCell);
        const CPoint center(rc.right - 12 + 5, rc.top + 2 + 5);
        for (const CPoint pt : {center, CPoint(center.x - 3, center.y), CPoint(center.x, center.y - 3)})
            EXPECT_EQ(picture.GetPixel(pt.x, pt.y), cr) << nCell;
        EXPECT_EQ(picture.GetPixel(rc.right - 12, rc.top + 2), kWhite) << "corner of " << nCell;
        EXPECT_EQ(picture.GetPixel(center.x, rc.top), kWhite) << "above " << nCell;
    }

    Show(Date(2026, 1, 9), true);
    EXPECT_EQ(CountTools(), 0);
    EXPECT_EQ(calendar->m_nNextToolId, 1u);
}

TEST_F(PaintingTest, WithoutADateTheGridIsEmpty)
{
    AddSpecialDay("Tip", 4, 7, RGB(10, 120, 220));
    Show(Date(2026, 7, 9), true);
    Show(DateTime(), true);
    const Picture picture(*calendar);
    EXPECT_EQ(picture.GetDarkest(calendar->GetCellRect({1, 4})), GetGValue(kHeader));
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell)
        EXPECT_EQ(picture.GetDarkest(calendar->GetRectOfCell(nCell)), 255) << nCell;
    EXPECT_EQ(calendar->m_rcSelection, CRect());
    EXPECT_EQ(CountTools(), 1);
}

TEST_F(PaintingTest, WithoutSpecialDatesThereAreNoTools)
{
    Renew();
    Start({.bUseSpecialDates = false});
    AddSpecialDay("Tip", 4, 7, RGB(10, 120, 220));
    Show(Date(2026, 7, 9), true);
    EXPECT_EQ(calendar->m_nNextToolId, 0u);
    const CRect rc = calendar->GetRectOfCell(6);
    EXPECT_EQ(Picture(*calendar).GetPixel(rc.right - 7, rc.top + 7), kWhite);
    ExpectFrame(calendar->m_rcSelection, kBlack);
}

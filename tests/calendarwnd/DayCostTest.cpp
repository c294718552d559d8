// What drawing a day costs once its number is known to the font.
#include "CalendarFixture.h"

#include <CountedNew.h>
#include <MemDC.h>

#include <cstdlib>

namespace {

class CellCalendar : public CCalendarWnd
{
public:
    using CCalendarWnd::DrawDay;
    using CCalendarWnd::m_fontGrid;
    using CCalendarWnd::m_rcGrid;
};

}

TEST_F(CalendarTest, DaysAreDrawnWithoutMemory)
{
    if (std::getenv("QT_SCALE_FACTOR"))
        GTEST_SKIP() << "a scaled painter of Qt takes memory of its own";
    CellCalendar cells;
    ASSERT_TRUE(
        cells.Create(kCalendarId, CRect(0, 0, kWidth, kHeight), false, &parent, true, true, true, true));
    cells.SetDate(Date(2026, 7, 9)); // with today and days of the neighbouring months
    const MonthBlock::Shape shape = *MonthBlock::ShapeOf(cells.GetDate());
    CClientDC window(&cells);
    CMemDC dc(&window, cells.m_rcGrid);
    CFont* const pOldFont = dc.SelectObject(&cells.m_fontGrid);
    const auto draw = [&] {
        for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell)
            cells.DrawDay(&dc, nCell, MonthBlock::CellAt(shape, nCell));
    };
    draw();
    const std::size_t nBefore = g_nAllocated;
    draw();
    EXPECT_EQ(g_nAllocated - nBefore, 0U);
    dc.SelectObject(pOldFont);
}

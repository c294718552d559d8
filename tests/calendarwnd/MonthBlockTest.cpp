#include <MonthBlock.h>

#include <gtest/gtest.h>

#include <vector>

// Every cell of every month of eight centuries, for each first day of the week, is the day that stepping
// from day to day gives.
TEST(MonthBlock, CellsFollowTheCalendar)
{
    for (DateTime first(1583, 1, 1, 0, 0, 0); first.GetYear() < 2400; first.AddMonths(1)) {
        MonthBlock::Shape shape = *MonthBlock::ShapeOf(first);
        for (int nFirstDay = 1; nFirstDay <= 7; ++nFirstDay) {
            shape.nFirstColumn = MonthBlock::FirstColumn(first.GetDayOfWeek(), nFirstDay);
            DateTime date = first;
            while (date.GetDayOfWeek() != nFirstDay)
                date.AddDays(-1);
            for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell, date.AddDays(1)) {
                const MonthBlock::Cell cell = MonthBlock::CellAt(shape, nCell);
                const auto month = date.CompareDate(first) < 0           ? MonthBlock::Month::Previous
                                   : date.GetMonth() == first.GetMonth() ? MonthBlock::Month::Shown
                                                                         : MonthBlock::Month::Next;
                const MonthBlock::Place place = MonthBlock::PlaceOfCell(nCell);
                ASSERT_TRUE(cell == (MonthBlock::Cell{month, date.GetDay()}))
                    << first.GetYear() << '-' << first.GetMonth() << " cell " << nCell;
                ASSERT_TRUE(month != MonthBlock::Month::Shown ||
                            MonthBlock::PlaceOfDay(shape.nFirstColumn, cell.nDay) == place);
                ASSERT_EQ(MonthBlock::OffsetOfPlace(shape.nFirstColumn, place),
                          date.m_nDayNumber - first.m_nDayNumber);
            }
        }
    }
}

TEST(MonthBlock, ShapeAtTheEndsOfTheRange)
{
    EXPECT_FALSE(MonthBlock::ShapeOf(DateTime()));
    EXPECT_EQ(MonthBlock::ShapeOf(DateTime(1, 1, 31, 0, 0, 0))->nPrevDays, 31);
    EXPECT_EQ(MonthBlock::ShapeOf(DateTime(9999, 12, 31, 0, 0, 0))->nDays, 31);
    EXPECT_EQ(MonthBlock::ShapeOf(DateTime(2024, 3, 30, 0, 0, 0))->nPrevDays, 29);
}

// The last step takes up what is left, and gives up 1 or 2 where that would be 5 or more.
TEST(MonthBlock, SplitsIntoEqualSteps)
{
    const std::pair<int, std::vector<int>> cases[] = {
        {704, {0, 100, 200, 300, 400, 500, 600, 704}}, {705, {0, 101, 202, 303, 404, 505, 606, 705}},
        {706, {0, 101, 202, 303, 404, 505, 606, 706}}, {0, {0, 0, 0, 0, 0, 0, 0, 0}},
        {-15, {0, -2, -4, -6, -8, -10, -12, -15}},
    };
    for (const auto& [nLength, expected] : cases) {
        std::vector<int> edges(8);
        MonthBlock::Split(edges, 0, nLength);
        EXPECT_EQ(edges, expected);
    }
}

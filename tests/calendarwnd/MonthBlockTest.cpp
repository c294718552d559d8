#include <MonthBlock.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <vector>

using testing::ElementsAre;

namespace {

std::vector<int> SplitInto(std::size_t nEdges, int nBegin, int nEnd)
{
    std::vector<int> edges(nEdges);
    MonthBlock::Split(edges, nBegin, nEnd);
    return edges;
}

}

// Every cell of every month of eight centuries, for each first day of the week, is the day that stepping
// from day to day gives.
TEST(MonthBlock, CellsFollowTheCalendar)
{
    for (DateTime first(1583, 1, 1, 0, 0, 0); first.GetYear() < 2400; first.AddMonths(1)) {
        const int nYear = first.GetYear();
        const int nMonth = first.GetMonth();
        DateTime before = first;
        before.AddMonths(-1);
        MonthBlock::Shape shape{0, DateTime::GetDaysInMonth(nYear, nMonth),
                                DateTime::GetDaysInMonth(before.GetYear(), before.GetMonth())};
        for (int nFirstDay = 1; nFirstDay <= 7; ++nFirstDay) {
            shape.nFirstColumn = MonthBlock::FirstColumn(first.GetDayOfWeek(), nFirstDay);
            DateTime date = first;
            while (date.GetDayOfWeek() != nFirstDay)
                date.AddDays(-1);
            for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell, date.AddDays(1)) {
                const MonthBlock::Cell cell = MonthBlock::CellAt(shape, nCell);
                const int nAway = date.CompareDate(first) < 0           ? -1
                                  : date.GetMonth() == first.GetMonth() ? 0
                                                                        : 1;
                ASSERT_EQ(cell.nDay, date.GetDay()) << nYear << '-' << nMonth << " cell " << nCell;
                ASSERT_EQ(static_cast<int>(cell.month) - 1, nAway) << nYear << '-' << nMonth;
                if (nAway == 0) {
                    ASSERT_EQ(MonthBlock::PlaceOfDay(shape.nFirstColumn, cell.nDay),
                              MonthBlock::PlaceOfCell(nCell));
                }
                ASSERT_EQ(MonthBlock::OffsetOfPlace(shape.nFirstColumn, MonthBlock::PlaceOfCell(nCell)),
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

TEST(MonthBlock, SplitKnownLengths)
{
    EXPECT_THAT(SplitInto(7, 43, 174), ElementsAre(43, 65, 87, 109, 131, 153, 174));
    EXPECT_THAT(SplitInto(8, 1, 209), ElementsAre(1, 31, 61, 91, 121, 151, 181, 209));
    EXPECT_THAT(SplitInto(8, 1, 199), ElementsAre(1, 29, 57, 85, 113, 141, 169, 199));
    EXPECT_THAT(SplitInto(7, 43, 214), ElementsAre(43, 71, 99, 127, 155, 183, 214));
    EXPECT_THAT(SplitInto(8, 0, 704), ElementsAre(0, 100, 200, 300, 400, 500, 600, 704));
    EXPECT_THAT(SplitInto(8, 0, 705), ElementsAre(0, 101, 202, 303, 404, 505, 606, 705));
    EXPECT_THAT(SplitInto(8, 5, -10), ElementsAre(5, 3, 1, -1, -3, -5, -7, -10));
}

// The last step is never more than 4 longer nor more than 2 shorter than the others, which are all alike.
TEST(MonthBlock, SplitKeepsStepsAlike)
{
    for (const std::size_t nEdges : {7u, 8u})
        for (int nLength = 0; nLength < 400; ++nLength) {
            std::vector<int> steps = SplitInto(nEdges, 10, 10 + nLength);
            std::adjacent_difference(steps.begin(), steps.end(), steps.begin());
            for (std::size_t i = 2; i + 1 < nEdges; ++i)
                ASSERT_EQ(steps[i], steps[1]) << nLength;
            ASSERT_LE(steps.back() - steps[1], 4) << nLength;
            ASSERT_GE(steps.back() - steps[1], -2) << nLength;
            ASSERT_EQ(std::accumulate(steps.begin(), steps.end(), 0), 10 + nLength);
        }
}

TEST(MonthBlock, PressesCountToTheCellBefore)
{
    const std::vector<int> rows = {24, 43, 71, 99, 127, 155, 183, 214};
    const std::vector<int> columns = {1, 43, 85, 127, 169, 211, 253, 299};
    const auto at = [&](int x, int y) { return MonthBlock::PlaceAt(rows, columns, x, y); };
    struct
    {
        int x, y, nRow, nColumn; // row 0 for none
    } const cases[] = {
        {20, 44, 0, 0},    {20, 45, 2, 1},   {20, 72, 2, 1},   {20, 73, 3, 1},  {1, 60, 2, 1},
        {0, 60, 0, 0},     {44, 60, 2, 1},   {45, 60, 2, 2},   {300, 60, 2, 7}, {301, 60, 0, 0},
        {300, 215, 7, 7},  {20, 216, 0, 0},  {20, 23, 0, 0},   {20, 24, 0, 0},  {254, 215, 7, 6},
        {-500, 100, 0, 0}, {255, 184, 6, 7}, {255, 185, 7, 7},
    };
    for (const auto& c : cases) {
        const auto place = at(c.x, c.y);
        EXPECT_EQ(place.value_or(MonthBlock::Place{0, 0}), (MonthBlock::Place{c.nRow, c.nColumn}))
            << c.x << ',' << c.y;
    }
}

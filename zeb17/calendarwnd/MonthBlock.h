// The block of 7 rows by 7 columns in which a month is shown: on the screen, on paper and as a web page.
//
// Rows and columns are numbered from 1; row 1 holds the names of the weekdays. The 42 cells of rows 2 to 7
// are numbered from 0, row by row. An edge table holds 8 positions, the edges of 7 rows or columns: row r
// lies between entries r - 1 and r.
#pragma once

#include <windows.h>
#include <DateTime.h>
#include <LocaleUtils.h>

#include <cstddef>
#include <optional>
#include <span>

namespace MonthBlock {

inline constexpr int kRows = 7;
inline constexpr int kColumns = 7;
inline constexpr int kCells = (kRows - 1) * kColumns;
inline constexpr int kEdges = 8;

struct Place
{
    int nRow;
    int nColumn;

    constexpr bool operator==(const Place&) const = default;
};

// All that the places of the days of a month depend on: the column of day 1, and how many days the month and
// the month before it have.
struct Shape
{
    int nFirstColumn;
    int nDays;
    int nPrevDays;

    constexpr bool operator==(const Shape&) const = default;
};

enum class Month
{
    Previous,
    Shown,
    Next
};

struct Cell
{
    Month month;
    int nDay;

    constexpr bool operator==(const Cell&) const = default;
};

// The column of day 1, from its weekday and the first day of the week, both 1 (Sunday) to 7 (Saturday).
constexpr int FirstColumn(int nDayOfWeek, int nFirstDayOfWeek)
{
    const int nColumn = nDayOfWeek + 8 - nFirstDayOfWeek;
    return nColumn > 7 ? nColumn - 7 : nColumn;
}

constexpr int NextWeekday(int nWeekday)
{
    return nWeekday % 7 + 1;
}

// The place of a day of the month, 1 to 31.
constexpr Place PlaceOfDay(int nFirstColumn, int nDay)
{
    const int n = nFirstColumn - 1 + nDay - 1;
    return {2 + n / kColumns, n % kColumns + 1};
}

constexpr Place PlaceOfCell(int nCell)
{
    return {2 + nCell / kColumns, nCell % kColumns + 1};
}

constexpr int CellOfPlace(Place place)
{
    return (place.nRow - 2) * kColumns + place.nColumn - 1;
}

// What cell 0 to 41 shows. No cell is ever blank.
constexpr Cell CellAt(const Shape& shape, int nCell)
{
    const int nDay = nCell + 2 - shape.nFirstColumn;
    if (nDay < 1)
        return {Month::Previous, shape.nPrevDays + nDay};
    if (nDay > shape.nDays)
        return {Month::Next, nDay - shape.nDays};
    return {Month::Shown, nDay};
}

// How many days the day at a place comes after day 1 of the month; negative for a day before it.
constexpr int OffsetOfPlace(int nFirstColumn, Place place)
{
    return (place.nRow - 2) * kColumns + place.nColumn - nFirstColumn;
}

// The place of the day at a point, by the edge tables; none in the row of the weekday names and outside of
// the block. An edge and the pixel behind it belong to the cell before them.
constexpr std::optional<Place> PlaceAt(std::span<const int> rowEdges, std::span<const int> columnEdges, int x,
                                       int y)
{
    const auto isWithin = [](std::span<const int> edges, std::size_t i, int n) {
        return n >= edges[i - 1] && n <= edges[i] + 1;
    };
    for (std::size_t r = 1; r <= kRows; ++r) {
        if (!isWithin(rowEdges, r, y))
            continue;
        if (r == 1)
            return std::nullopt;
        for (std::size_t c = 1; c <= kColumns; ++c)
            if (isWithin(columnEdges, c, x))
                return Place{static_cast<int>(r), static_cast<int>(c)};
    }
    return std::nullopt;
}

// Sets the edges from nBegin to nEnd at equal whole distances. Only the last distance differs: it is longer
// by what is left over, up to 4; where 5 or 6 would be left over, all others are longer by 1, and it is
// shorter.
constexpr void Split(std::span<int> edges, int nBegin, int nEnd)
{
    const int nSteps = static_cast<int>(edges.size()) - 1;
    const int nQuotient = (nEnd - nBegin) / nSteps;
    const int nRest = (nEnd - nBegin) - nQuotient * nSteps;
    const int nStep = nRest >= 5 ? nQuotient + 1 : nQuotient;
    for (int i = 0; i < nSteps; ++i)
        edges[static_cast<std::size_t>(i)] = nBegin + i * nStep;
    edges.back() = nEnd;
}

// The rectangle in which the text of a place is drawn, from the edge tables.
constexpr RECT TextRect(std::span<const int> rowEdges, std::span<const int> columnEdges, Place place)
{
    const auto r = static_cast<std::size_t>(place.nRow);
    const auto c = static_cast<std::size_t>(place.nColumn);
    return {columnEdges[c - 1] + (c == 1 ? 3 : 4), rowEdges[r - 1] + 2, columnEdges[c] - 1, rowEdges[r] - 1};
}

// The column of day 1 in the month of a valid date, for the user's first day of the week.
inline int FirstColumnOf(DateTime date)
{
    date.SetDay(1);
    return FirstColumn(date.GetDayOfWeek(), LocaleUtils::GetFirstDayOfWeek());
}

// The date of a cell, 0 to 41, where the block shows the month of a valid date. No date if the cell lies
// beyond the range of dates.
inline DateTime DateOfCell(DateTime date, int nCell)
{
    const int nFirstColumn = FirstColumnOf(date);
    date.SetDay(1);
    date.AddDays(nCell + 1 - nFirstColumn);
    return date;
}

// The shape of the month of a date, for the user's first day of the week; nothing for no date.
inline std::optional<Shape> ShapeOf(const DateTime& date)
{
    constexpr int kDaysOfDecember = 31; // of the month before January of year 1, which has no dates
    if (!date.IsValid())
        return std::nullopt;
    DateTime before = date;
    before.SetDay(1);
    before.AddDays(-1);
    return Shape{FirstColumnOf(date), DateTime::GetDaysInMonth(date.GetYear(), date.GetMonth()),
                 before.IsValid() ? DateTime::GetDaysInMonth(before.GetYear(), before.GetMonth())
                                  : kDaysOfDecember};
}

}

// Lines, rectangles and fills, pixel by pixel.
#include "Canvas.h"

class ShapesTest : public Canvas
{
protected:
    ShapesTest()
    {
        SelectObject(dc, redPen);
        SelectObject(dc, greenBrush);
    }

    void line(int x1, int y1, int x2, int y2)
    {
        MoveToEx(dc, x1, y1, nullptr);
        LineTo(dc, x2, y2);
    }

    void expectRows(int left, int right, std::initializer_list<std::pair<int, const char*>> rows) const
    {
        for (const auto& [y, letters] : rows)
            EXPECT_EQ(letters, row(y, left, right)) << "row " << y;
    }

    HPEN redPen = keep(CreatePen(PS_SOLID, 1, kRed));
    HBRUSH greenBrush = keep(CreateSolidBrush(kGreen));
};

TEST_F(ShapesTest, ALineLeavesItsLastPointOutInEachDirection)
{
    line(5, 5, 5, 5);
    EXPECT_RECT(0, 0, 0, 0, drawn());
    line(2, 1, 6, 1);
    line(6, 3, 2, 3);
    expectRows(0, 8, {{1, "..rrrr.."}, {3, "...rrrr."}});
    line(20, 5, 20, 8);
    line(24, 8, 24, 5);
    expectRows(20, 25, {{5, "r...."}, {6, "r...r"}, {7, "r...r"}, {8, "....r"}});
    clear();
    line(2, 6, 12, 11); // two pixels a step
    expectRows(2, 12, {{6, "rr........"}, {7, "..rr......"}, {10, "........rr"}, {11, ".........."}});
}

TEST_F(ShapesTest, ARectangleEndsBeforeItsRightAndBottomEdges)
{
    Rectangle(dc, 2, 2, 3, 3); // too small
    EXPECT_RECT(0, 0, 0, 0, drawn());
    for (const RECT& r : {RECT{2, 2, 7, 6}, RECT{7, 6, 2, 2}}) { // in any order
        clear();
        Rectangle(dc, r.left, r.top, r.right, r.bottom);
        expectRows(1, 8, {{2, ".rrrrr."}, {3, ".rgggr."}, {5, ".rrrrr."}});
        EXPECT_RECT(2, 2, 7, 6, drawn());
    }
}

TEST_F(ShapesTest, AFrameIsOnePixelWideAndLeavesTheInsideAlone)
{
    const RECT rect = {2, 2, 6, 5};
    const RECT empty = {2, 2, 2, 6};
    const RECT inverted = {6, 6, 2, 2};
    EXPECT_EQ(0, FrameRect(dc, &empty, greenBrush));
    EXPECT_EQ(0, FrameRect(dc, &inverted, greenBrush));
    EXPECT_RECT(0, 0, 0, 0, drawn());
    EXPECT_NE(0, FrameRect(dc, &rect, greenBrush));
    expectRows(1, 7, {{2, ".gggg."}, {3, ".g..g."}, {4, ".gggg."}});
    EXPECT_RECT(2, 2, 6, 5, drawn());
}

TEST_F(ShapesTest, FillRectTakesRectanglesOfAnyOrder)
{
    const RECT empty = {2, 2, 2, 6};
    EXPECT_NE(0, FillRect(dc, &empty, greenBrush));
    EXPECT_RECT(0, 0, 0, 0, drawn());
    const RECT rect = {3, 2, 10, 8};
    FillRect(dc, &rect, greenBrush);
    EXPECT_RECT(3, 2, 10, 8, drawn());
    clear();
    const RECT inverted = {10, 8, 3, 2};
    FillRect(dc, &inverted, greenBrush);
    EXPECT_RECT(4, 3, 11, 9, drawn());
}

TEST_F(ShapesTest, ANumberStandsForTheBrushOfASystemColour)
{
    const RECT rect = {2, 2, 4, 4};
    FillRect(dc, &rect, reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetPixel(dc, 3, 3));
}

TEST_F(ShapesTest, AFocusRectangleDrawnTwiceIsGone)
{
    const RECT rect = {2, 2, 13, 10};
    DrawFocusRect(dc, &rect);
    expectRows(2, 13, {{2, "#.#.#.#.#.#"}, {3, "..........."}});
    EXPECT_RECT(2, 2, 13, 10, drawn());
    DrawFocusRect(dc, &rect);
    EXPECT_RECT(0, 0, 0, 0, drawn());
}

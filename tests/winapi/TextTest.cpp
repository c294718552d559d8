// Fonts and text. Where letters lie is told by their opaque background.
#include "Canvas.h"
#include <cstring>

class TextTest : public Canvas
{
protected:
    TextTest() { useFont(-11); }

    void useFont(LONG height)
    {
        LOGFONTA font{};
        font.lfHeight = height;
        font.lfCharSet = DEFAULT_CHARSET;
        std::strcpy(font.lfFaceName, "Arial");
        SelectObject(dc, keep(CreateFontIndirectA(&font)));
    }

    TEXTMETRICA metrics() const
    {
        TEXTMETRICA told{};
        GetTextMetricsA(dc, &told);
        return told;
    }

    SIZE extent(const char* text) const
    {
        RECT rect{};
        DrawTextA(dc, text, -1, &rect, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
        return {rect.right, rect.bottom};
    }

    // Where the text lies: text and background in one colour.
    RECT place(const char* text, RECT rect, UINT format)
    {
        clear();
        SetBkColor(dc, kGreen);
        SetTextColor(dc, kGreen);
        DrawTextA(dc, text, -1, &rect, format);
        return drawn();
    }

    RECT measure(const char* text, RECT rect, UINT format)
    {
        DrawTextA(dc, text, -1, &rect, format | DT_CALCRECT);
        return rect;
    }
};

TEST_F(TextTest, AHeightIsThatOfTheLineOrNegativeThatOfTheLetters)
{
    for (const LONG height : {9, 12, 16, 25}) {
        useFont(height);
        EXPECT_NEAR(height, metrics().tmHeight, 1);
        useFont(-height);
        EXPECT_NEAR(height, metrics().tmHeight - metrics().tmInternalLeading, 1);
    }
}

TEST_F(TextTest, CentresBothWays)
{
    const SIZE size = extent("17");
    for (const RECT& rect : {RECT{5, 3, 30, 20}, RECT{5, 3, 31, 21}}) {
        const int left = (rect.left + rect.right - size.cx) / 2;
        const int top = rect.top + (rect.bottom - rect.top) / 2 - size.cy / 2;
        EXPECT_RECT(left, top, left + size.cx, top + size.cy,
                    place("17", rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE));
    }
}

TEST_F(TextTest, GoesToEachSide)
{
    const RECT rect = {5, 3, 40, 25};
    const SIZE size = extent("17");
    EXPECT_RECT(5, 3, 5 + size.cx, 3 + size.cy, place("17", rect, DT_LEFT));
    EXPECT_RECT(40 - size.cx, 3, 40, 3 + size.cy, place("17", rect, DT_RIGHT));
    // Only a single line is placed by the height.
    EXPECT_EQ(3, place("17", rect, DT_VCENTER).top);
}

TEST_F(TextTest, IsClippedToItsRectangle)
{
    const RECT rect = {5, 3, 8, 9};
    EXPECT_RECT(5, 3, 8, 9, place("HHH", rect, DT_SINGLELINE));
}

TEST_F(TextTest, MeasuringSetsTheRectangleAndDrawsNothing)
{
    const RECT rect = {2, 2, 52, 28};
    const SIZE size = extent("Hi");
    for (const UINT format : {0u, UINT(DT_CENTER | DT_SINGLELINE)})
        EXPECT_RECT(2, 2, 2 + size.cx, 2 + size.cy, measure("Hi", rect, format));
    EXPECT_RECT(2, 2, 2 + extent("b").cx, 2 + 2 * size.cy, measure("a\r\nb", rect, 0));
    EXPECT_RECT(2, 2, 2 + extent("b").cx, 2 + 3 * size.cy, measure("a\n\nb", rect, 0));
    EXPECT_RECT(0, 0, 0, 0, drawn());
}

TEST_F(TextTest, BreaksAtBlanks)
{
    const LONG line = extent("x").cy;
    const RECT rect = {0, 0, extent("one two ").cx, 30};
    EXPECT_EQ(2 * line, measure("one two four", rect, DT_WORDBREAK).bottom);
    EXPECT_EQ(line, measure("one two", rect, DT_WORDBREAK).bottom);
    EXPECT_EQ(line, measure("one two four", rect, 0).bottom);
    // A word that is too long stays whole.
    EXPECT_EQ(extent("onetwothreefour").cx, measure("onetwothreefour", rect, DT_WORDBREAK).right);
}

TEST_F(TextTest, AmpersandsMarkLetters)
{
    const RECT rect = {0, 0, 60, 30};
    EXPECT_EQ(extent("File").cx, measure("&File", rect, 0).right);
    EXPECT_EQ(extent("&File").cx, measure("&File", rect, DT_NOPREFIX).right);
    EXPECT_EQ(extent("A & B").cx, measure("A && B", rect, 0).right);
    EXPECT_EQ(extent("tail&").cx, measure("tail&", rect, 0).right);
}

TEST_F(TextTest, TooLongALineEndsInDots)
{
    const RECT rect = {0, 0, 30, 20};
    const LONG right = measure("onetwothreefour", rect, DT_SINGLELINE | DT_END_ELLIPSIS).right;
    EXPECT_LE(right, 30);
    EXPECT_GT(right, extent("...").cx);
}

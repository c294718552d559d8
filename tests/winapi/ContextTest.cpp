// Device contexts: objects, state, clipping, origins and copying.
#include "Canvas.h"

using ContextTest = Canvas;

TEST_F(ContextTest, BeginsAsWindowsHasItAndGivesWhatHeldBefore)
{
    EXPECT_EQ(black, SetTextColor(dc, red));
    EXPECT_EQ(red, GetTextColor(dc));
    EXPECT_EQ(white, SetBkColor(dc, green));
    EXPECT_EQ(green, GetBkColor(dc));
    EXPECT_EQ(OPAQUE, SetBkMode(dc, TRANSPARENT));
    EXPECT_EQ(0, SetBkMode(dc, 9));
    EXPECT_EQ(TRANSPARENT, GetBkMode(dc));

    const HPEN pen = keep(CreatePen(PS_SOLID, 1, red));
    const HBRUSH brush = keep(CreateSolidBrush(green));
    EXPECT_EQ(GetStockObject(SYSTEM_FONT), GetCurrentObject(dc, OBJ_FONT));
    EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(dc, pen));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(dc, brush));
    EXPECT_EQ(brush, GetCurrentObject(dc, OBJ_BRUSH));

    const HDC other = CreateCompatibleDC(screen);
    EXPECT_EQ(nullptr, SelectObject(other, GetCurrentObject(dc, OBJ_BITMAP))) << "it is in another context";
    EXPECT_TRUE(DeleteDC(other));
    EXPECT_FALSE(DeleteDC(other));
}

TEST_F(ContextTest, ADeletedBrushDrawsOnWhileItIsSelected)
{
    const HBRUSH brush = CreateSolidBrush(green);
    SelectObject(dc, brush);
    DeleteObject(brush);
    Rectangle(dc, 0, 0, 5, 5);
    EXPECT_EQ(green, GetPixel(dc, 2, 2));
}

TEST_F(ContextTest, ObjectsOfTheSystemCannotBeDeleted)
{
    EXPECT_TRUE(DeleteObject(GetStockObject(BLACK_BRUSH)));
    DeleteObject(GetSysColorBrush(COLOR_BTNFACE));
    const RECT rect = {0, 0, 2, 2};
    FillRect(dc, &rect, GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetPixel(dc, 0, 0));
    FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(black, GetPixel(dc, 0, 0));
}

TEST_F(ContextTest, SavedStatesComeBackInAnyDepth)
{
    EXPECT_EQ(1, SaveDC(dc));
    SetTextColor(dc, red);
    EXPECT_EQ(2, SaveDC(dc));
    SetTextColor(dc, green);
    for (const int wrong : {0, 3, -3})
        EXPECT_FALSE(RestoreDC(dc, wrong));
    EXPECT_TRUE(RestoreDC(dc, -1));
    EXPECT_EQ(red, GetTextColor(dc));
    EXPECT_TRUE(RestoreDC(dc, 1));
    EXPECT_EQ(black, GetTextColor(dc));
    EXPECT_FALSE(RestoreDC(dc, -1));
}

TEST_F(ContextTest, DrawingStaysWithinTheClip)
{
    const HBRUSH brush = keep(CreateSolidBrush(green));
    const RECT all = {0, 0, width, height};
    EXPECT_EQ(SIMPLEREGION, IntersectClipRect(dc, 5, 5, 20, 15));
    RECT box{};
    EXPECT_EQ(SIMPLEREGION, GetClipBox(dc, &box));
    EXPECT_RECT(5, 5, 20, 15, box);
    EXPECT_EQ(COMPLEXREGION, ExcludeClipRect(dc, 8, 8, 10, 10));
    FillRect(dc, &all, brush);
    EXPECT_EQ(SIMPLEREGION, SelectClipRgn(dc, nullptr));
    EXPECT_RECT(5, 5, 20, 15, drawn());
    EXPECT_EQ("ggg..ggg", row(9, 5, 13));

    clear();
    const HRGN region = keep(CreateRectRgn(1, 1, 4, 4));
    SelectClipRgn(dc, region);
    FillRect(dc, &all, brush);
    EXPECT_EQ(NULLREGION, IntersectClipRect(dc, 10, 10, 12, 12));
    SelectClipRgn(dc, nullptr);
    EXPECT_RECT(1, 1, 4, 4, drawn());
}

TEST_F(ContextTest, CopiesPixelsAlsoWithinOneBitmap)
{
    SetPixel(dc, 1, 1, red);
    SetPixel(dc, 2, 2, green);
    EXPECT_TRUE(BitBlt(dc, 2, 2, 5, 5, dc, 1, 1, SRCCOPY));
    EXPECT_EQ(red, GetPixel(dc, 2, 2));
    EXPECT_EQ(green, GetPixel(dc, 3, 3));
    SetPixel(dc, 0, 0, red);
    EXPECT_TRUE(BitBlt(dc, 30, 5, 4, 4, dc, -1, -1, SRCCOPY));
    EXPECT_EQ(red, GetPixel(dc, 31, 6));
    EXPECT_EQ(white, GetPixel(dc, 30, 5)) << "what the source lacks is not copied";
    EXPECT_FALSE(BitBlt(dc, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
}

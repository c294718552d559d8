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
    EXPECT_EQ(0u, SetTextAlign(dc, TA_CENTER));
    EXPECT_EQ(CLR_INVALID, SetTextColor(nullptr, red));

    const HPEN pen = keep(CreatePen(PS_SOLID, 1, red));
    const HBRUSH brush = keep(CreateSolidBrush(green));
    EXPECT_EQ(GetStockObject(SYSTEM_FONT), GetCurrentObject(dc, OBJ_FONT));
    EXPECT_EQ(GetStockObject(BLACK_PEN), SelectObject(dc, pen));
    EXPECT_EQ(pen, SelectObject(dc, GetStockObject(BLACK_PEN)));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(dc, brush));
    EXPECT_EQ(brush, GetCurrentObject(dc, OBJ_BRUSH));
    EXPECT_EQ(nullptr, SelectObject(dc, nullptr));
    EXPECT_EQ(nullptr, SelectObject(nullptr, pen));

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
    EXPECT_FALSE(DeleteObject(nullptr));
    const RECT rect = {0, 0, 2, 2};
    FillRect(dc, &rect, GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetPixel(dc, 0, 0));
    FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(black, GetPixel(dc, 0, 0));
}

TEST_F(ContextTest, ObjectsTellWhatTheyAre)
{
    LOGPEN pen{};
    EXPECT_EQ(static_cast<int>(sizeof pen), GetObjectA(keep(CreatePen(PS_SOLID, 3, red)), sizeof pen, &pen));
    EXPECT_EQ(3, pen.lopnWidth.x);
    EXPECT_EQ(red, pen.lopnColor);
    LOGBRUSH brush{};
    GetObjectA(keep(CreateSolidBrush(green)), sizeof brush, &brush);
    EXPECT_EQ(green, brush.lbColor);
    BITMAP bitmap{};
    GetObjectA(GetCurrentObject(dc, OBJ_BITMAP), sizeof bitmap, &bitmap);
    EXPECT_EQ(width, bitmap.bmWidth);
    EXPECT_EQ(height, bitmap.bmHeight);
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

TEST_F(ContextTest, OriginsMoveWhatIsDrawn)
{
    POINT old{};
    SetViewportOrgEx(dc, 10, 5, nullptr);
    OffsetViewportOrgEx(dc, 3, 2, &old);
    EXPECT_EQ(10, old.x);
    SetWindowOrgEx(dc, 3, 3, nullptr);
    SetPixel(dc, 0, 0, red);
    SetViewportOrgEx(dc, 0, 0, nullptr);
    SetWindowOrgEx(dc, 0, 0, nullptr);
    EXPECT_RECT(10, 4, 11, 5, drawn());
}

TEST_F(ContextTest, ExtentsStretchTheUnits)
{
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, 10, 10, nullptr);
    SetViewportExtEx(dc, 20, 30, nullptr);
    const RECT rect = {2, 1, 5, 4};
    FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    POINT point = {40, 30};
    DPtoLP(dc, &point, 1);
    EXPECT_EQ(20, point.x);
    EXPECT_EQ(10, point.y);
    SetMapMode(dc, MM_TEXT);
    EXPECT_RECT(4, 3, 10, 12, drawn());
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

TEST_F(ContextTest, RectanglesCombine)
{
    const RECT first = {0, 0, 10, 10};
    const RECT second = {5, 5, 20, 8};
    const RECT inverted = {5, 5, 3, 3};
    RECT result{};
    EXPECT_TRUE(IntersectRect(&result, &first, &second));
    EXPECT_RECT(5, 5, 10, 8, result);
    EXPECT_FALSE(IntersectRect(&result, &first, &inverted));
    EXPECT_RECT(0, 0, 0, 0, result);
    EXPECT_TRUE(UnionRect(&result, &first, &second));
    EXPECT_RECT(0, 0, 20, 10, result);
    EXPECT_TRUE(UnionRect(&result, &inverted, &second));
    EXPECT_RECT(5, 5, 20, 8, result);
    EXPECT_TRUE(PtInRect(&first, {0, 0}));
    EXPECT_FALSE(PtInRect(&first, {10, 9}));
    EXPECT_TRUE(IsRectEmpty(&inverted));
    InflateRect(&result, -8, 1);
    EXPECT_RECT(13, 4, 12, 9, result);
}

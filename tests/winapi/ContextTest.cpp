// Device contexts: objects, state and copying.
#include "Canvas.h"

using ContextTest = Canvas;

TEST_F(ContextTest, BeginsAsWindowsHasItAndGivesWhatHeldBefore)
{
    EXPECT_EQ(kBlack, SetTextColor(dc, kRed));
    EXPECT_EQ(kRed, SetTextColor(dc, kBlack));
    EXPECT_EQ(kWhite, SetBkColor(dc, kGreen));
    EXPECT_EQ(kGreen, SetBkColor(dc, kWhite));
    EXPECT_EQ(OPAQUE, SetBkMode(dc, TRANSPARENT));
    EXPECT_EQ(0, SetBkMode(dc, 9));
    EXPECT_EQ(TRANSPARENT, SetBkMode(dc, OPAQUE));

    const HPEN pen = keep(CreatePen(PS_SOLID, 1, kRed));
    const HBRUSH brush = keep(CreateSolidBrush(kGreen));
    const HGDIOBJ firstPen = SelectObject(dc, pen);
    EXPECT_EQ(pen, SelectObject(dc, firstPen));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), SelectObject(dc, brush));
    EXPECT_EQ(brush, SelectObject(dc, brush));

    const HDC other = CreateCompatibleDC(screen);
    EXPECT_EQ(nullptr, SelectObject(other, bitmap)) << "it is in another context";
    EXPECT_TRUE(DeleteDC(other));
    EXPECT_FALSE(DeleteDC(other));
}

TEST_F(ContextTest, ADeletedBrushDrawsOnWhileItIsSelected)
{
    const HBRUSH brush = CreateSolidBrush(kGreen);
    SelectObject(dc, brush);
    DeleteObject(brush);
    Rectangle(dc, 0, 0, 5, 5);
    EXPECT_EQ(kGreen, GetPixel(dc, 2, 2));
}

TEST_F(ContextTest, ObjectsOfTheSystemCannotBeDeleted)
{
    const HBRUSH brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    setPixel(0, 0, kRed);
    EXPECT_TRUE(DeleteObject(brush));
    const RECT rect = {0, 0, 2, 2};
    FillRect(dc, &rect, brush);
    EXPECT_EQ(kWhite, GetPixel(dc, 0, 0));
}

TEST_F(ContextTest, CopiesPixelsAlsoWithinOneBitmap)
{
    setPixel(1, 1, kRed);
    setPixel(2, 2, kGreen);
    EXPECT_TRUE(BitBlt(dc, 2, 2, 5, 5, dc, 1, 1, SRCCOPY));
    EXPECT_EQ(kRed, GetPixel(dc, 2, 2));
    EXPECT_EQ(kGreen, GetPixel(dc, 3, 3));
    setPixel(0, 0, kRed);
    EXPECT_TRUE(BitBlt(dc, 30, 5, 4, 4, dc, -1, -1, SRCCOPY));
    EXPECT_EQ(kRed, GetPixel(dc, 31, 6));
    EXPECT_EQ(kWhite, GetPixel(dc, 30, 5)) << "what the source lacks is not copied";
    EXPECT_FALSE(BitBlt(dc, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
}

// Filling with GDI+.
#include "Canvas.h"
#include <gdiplus.h>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;

class GdiPlusTest : public Canvas
{
protected:
    GdiPlusTest()
    {
        const GdiplusStartupInput input;
        GdiplusStartup(&m_token, &input, nullptr);
        GdipCreateFromHDC(dc, &graphics);
        GdipCreateSolidFill(0xFF00FF00, &brush);
        GdipSetSmoothingMode(graphics, SmoothingModeAntiAlias);
    }

    ~GdiPlusTest() override
    {
        GdipDeleteBrush(brush);
        GdipDeleteGraphics(graphics);
        GdiplusShutdown(m_token);
    }

    GpGraphics* graphics = nullptr;
    GpSolidFill* brush = nullptr;

private:
    ULONG_PTR m_token = 0;
};

TEST_F(GdiPlusTest, AnEllipseIsRoundAndInItsColour)
{
    EXPECT_EQ(Ok, GdipFillEllipseI(graphics, brush, 5, 5, 10, 10));
    EXPECT_EQ(green, GetPixel(dc, 10, 10));
    for (const POINT corner : {POINT{5, 5}, POINT{14, 5}, POINT{5, 14}, POINT{14, 14}})
        EXPECT_EQ(white, GetPixel(dc, corner.x, corner.y));
    for (const POINT inside : {POINT{7, 10}, POINT{12, 10}, POINT{10, 12}})
        EXPECT_EQ(green, GetPixel(dc, inside.x, inside.y));
    const RECT found = drawn();
    EXPECT_TRUE(found.left >= 4 && found.top >= 4 && found.right <= 16 && found.bottom <= 16);
}

TEST_F(GdiPlusTest, WhatIsMissingIsTold)
{
    GpGraphics* none = nullptr;
    EXPECT_EQ(OutOfMemory, GdipCreateFromHDC(nullptr, &none));
    EXPECT_EQ(InvalidParameter, GdipFillEllipseI(nullptr, brush, 0, 0, 5, 5));
}

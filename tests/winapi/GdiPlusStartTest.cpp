// GDI+ draws only when the program has started it. (Wine lets everybody draw, so this runs natively only.)
#include "Canvas.h"
#include <gdiplus.h>

using namespace Gdiplus;
using namespace Gdiplus::DllExports;
using GdiPlusStartTest = Canvas;

TEST_F(GdiPlusStartTest, NothingWorksBeforeAndAfter)
{
    const auto tryAll = [this] {
        GpGraphics* graphics = nullptr;
        GpSolidFill* brush = nullptr;
        EXPECT_EQ(GdiplusNotInitialized, GdipCreateFromHDC(dc, &graphics));
        EXPECT_EQ(GdiplusNotInitialized, GdipCreateSolidFill(0xFF00FF00, &brush));
        EXPECT_EQ(GdiplusNotInitialized, GdipFillEllipseI(graphics, brush, 5, 5, 10, 10));
    };
    tryAll();
    ULONG_PTR token = 0;
    const GdiplusStartupInput input;
    EXPECT_EQ(Ok, GdiplusStartup(&token, &input, nullptr));
    GdiplusShutdown(token);
    tryAll();
}

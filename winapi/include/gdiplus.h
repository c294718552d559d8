// The part of GDI+ that is used: smooth ellipses.
//
// As on Windows, the program has to start GDI+. Until then every other call gives GdiplusNotInitialized.
#pragma once

#include "windef.h"

namespace Gdiplus {

using ARGB = DWORD; // 0xAARRGGBB

enum GpStatus
{
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
};

enum SmoothingMode
{
    SmoothingModeDefault = 0,
    SmoothingModeAntiAlias = 4,
};

using GpGraphics = void;
using GpBrush = void;
using GpSolidFill = void;

struct GdiplusStartupInput
{
    UINT GdiplusVersion = 1;
    void* DebugEventCallback = nullptr;
    BOOL SuppressBackgroundThread = FALSE;
    BOOL SuppressExternalCodecs = FALSE;
};
struct GdiplusStartupOutput;

WINGDIAPI GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                  GdiplusStartupOutput* output) ZEB17_NAME(GdiplusStartup);
WINGDIAPI void GdiplusShutdown(ULONG_PTR token) ZEB17_NAME(GdiplusShutdown);

namespace DllExports {

WINGDIAPI GpStatus GdipCreateFromHDC(HDC dc, GpGraphics** graphics) ZEB17_NAME(GdipCreateFromHDC);
WINGDIAPI GpStatus GdipDeleteGraphics(GpGraphics* graphics) ZEB17_NAME(GdipDeleteGraphics);
WINGDIAPI GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode)
    ZEB17_NAME(GdipSetSmoothingMode);
WINGDIAPI GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush) ZEB17_NAME(GdipCreateSolidFill);
WINGDIAPI GpStatus GdipDeleteBrush(GpBrush* brush) ZEB17_NAME(GdipDeleteBrush);
WINGDIAPI GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width, INT height)
    ZEB17_NAME(GdipFillEllipseI);

}
}

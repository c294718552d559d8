// The flat GDI+ interface, as far as it is used: anti-aliased filling, and pictures as files.
//
// As on Windows, GDI+ must be started by the program; until then every call gives GdiplusNotInitialized.
#pragma once

#include "windef.h"

#define GDIPCONST const

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
using Status = GpStatus;

enum SmoothingMode
{
    SmoothingModeInvalid = -1,
    SmoothingModeDefault = 0,
    SmoothingModeHighSpeed = 1,
    SmoothingModeHighQuality = 2,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias = 4,
};

using GpGraphics = void;
using GpBrush = void;
using GpSolidFill = void;
using GpImage = void;
using GpBitmap = void;
struct EncoderParameters;

struct GdiplusStartupInput
{
    UINT GdiplusVersion = 1;
    void* DebugEventCallback = nullptr;
    BOOL SuppressBackgroundThread = FALSE;
    BOOL SuppressExternalCodecs = FALSE;
};
struct GdiplusStartupOutput;

WINGDIAPI GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                  GdiplusStartupOutput* output);
WINGDIAPI void GdiplusShutdown(ULONG_PTR token);

namespace DllExports {

WINGDIAPI GpStatus GdipCreateFromHDC(HDC dc, GpGraphics** graphics);
WINGDIAPI GpStatus GdipDeleteGraphics(GpGraphics* graphics);
WINGDIAPI GpStatus GdipSetSmoothingMode(GpGraphics* graphics, SmoothingMode mode);
WINGDIAPI GpStatus GdipCreateSolidFill(ARGB color, GpSolidFill** brush);
WINGDIAPI GpStatus GdipDeleteBrush(GpBrush* brush);
WINGDIAPI GpStatus GdipFillEllipseI(GpGraphics* graphics, GpBrush* brush, INT x, INT y, INT width,
                                    INT height);

// A copy of the bitmap's pixels; to be given to GdipDisposeImage. The palette is not used.
WINGDIAPI GpStatus GdipCreateBitmapFromHBITMAP(HBITMAP bitmap, HPALETTE palette, GpBitmap** image);
WINGDIAPI GpStatus GdipDisposeImage(GpImage* image);
// Writes a picture file; the one encoder there is writes PNG. The parameters are not used.
WINGDIAPI GpStatus GdipSaveImageToFile(GpImage* image, const WCHAR* path, const CLSID* encoder,
                                       const EncoderParameters* parameters);

}
}

// Copies the pixels of a window and lets GDI+ write them.
#include "picture.h"

#include <zeb17.h>

// GDI+ has functions for C, and no header for them.
int WINAPI GdipCreateBitmapFromHBITMAP(HBITMAP bitmap, HPALETTE palette, void** image);
int WINAPI GdipSaveImageToFile(void* image, const WCHAR* path, const CLSID* encoder, const void* parameters);
int WINAPI GdipDisposeImage(void* image);

static HBITMAP copyPixels(HWND window)
{
    const HDC source = GetDC(window);
    const HDC copy = CreateCompatibleDC(source);
    RECT client;
    GetClientRect(window, &client);
    const HBITMAP bitmap = CreateCompatibleBitmap(source, client.right, client.bottom);
    const HGDIOBJ before = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, client.right, client.bottom, source, 0, 0, SRCCOPY);
    SelectObject(copy, before);
    DeleteDC(copy);
    ReleaseDC(window, source);
    return bitmap;
}

int savePicture(HWND window, const char* path)
{
    static const CLSID png = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};
    const HBITMAP bitmap = copyPixels(window);
    WCHAR widePath[MAX_PATH];
    void* image = NULL;
    const int isSaved = GdipCreateBitmapFromHBITMAP(bitmap, NULL, &image) == 0 &&
                        MultiByteToWideChar(CP_ACP, 0, path, -1, widePath, MAX_PATH) > 0 &&
                        GdipSaveImageToFile(image, widePath, &png, NULL) == 0;
    GdipDisposeImage(image);
    DeleteObject(bitmap);
    return isSaved ? ZEB17_OK : ZEB17_FILE_FAILED;
}

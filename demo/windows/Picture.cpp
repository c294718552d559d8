#include "Picture.h"

#include <gdiplus.h>

#include <vector>

namespace {

const CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

std::vector<WCHAR> ToWide(const CString& text)
{
    const int length = MultiByteToWideChar(CP_ACP, 0, text, -1, nullptr, 0);
    std::vector<WCHAR> wide(static_cast<size_t>(length) + 1);
    MultiByteToWideChar(CP_ACP, 0, text, -1, wide.data(), length);
    return wide;
}

bool SaveBitmap(HBITMAP bitmap, const CString& path)
{
    Gdiplus::GpBitmap* image = nullptr;
    if (Gdiplus::DllExports::GdipCreateBitmapFromHBITMAP(bitmap, nullptr, &image) != Gdiplus::Ok)
        return false;
    const Gdiplus::GpStatus status =
        Gdiplus::DllExports::GdipSaveImageToFile(image, ToWide(path).data(), &kPngEncoder, nullptr);
    Gdiplus::DllExports::GdipDisposeImage(image);
    return status == Gdiplus::Ok;
}

}

bool SaveWindowAsPng(CWnd& wnd, const CString& path)
{
    CRect client;
    wnd.GetClientRect(&client);
    CClientDC window(&wnd);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&window) ||
        !bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height()))
        return false;
    CBitmap* const old = memory.SelectObject(&bitmap);
    memory.BitBlt(0, 0, client.Width(), client.Height(), &window, 0, 0, SRCCOPY);
    memory.SelectObject(old);
    return SaveBitmap(static_cast<HBITMAP>(bitmap.GetSafeHandle()), path);
}

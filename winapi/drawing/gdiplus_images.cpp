// The pictures of GDI+: a copy of a bitmap, and its writing as a PNG file.
#include "gdiplus_session.h"

#include "drawing_objects.h"
#include "handle_table.h"

#include <QImageWriter>

#include <cstring>

using namespace winapi;

namespace {

constexpr CLSID kPngEncoder = {0x557cf406, 0x1a04, 0x11d3, {0x9a, 0x73, 0x00, 0x00, 0xf8, 0x1e, 0xf3, 0x2e}};

HandleTable<void*, QImage>& images()
{
    static auto& table = *new HandleTable<void*, QImage>;
    return table;
}

}

namespace Gdiplus::DllExports {

GpStatus GdipCreateBitmapFromHBITMAP(HBITMAP bitmap, HPALETTE, GpBitmap** image)
{
    return whenGdiPlusRuns([&] {
        const auto source = findObject<Bitmap>(bitmap);
        if (!source || !image)
            return InvalidParameter;
        *image = images().add(std::make_shared<QImage>(source->image.copy()));
        return Ok;
    });
}

GpStatus GdipDisposeImage(GpImage* image)
{
    return whenGdiPlusRuns([&] { return images().remove(image) ? Ok : InvalidParameter; });
}

GpStatus GdipSaveImageToFile(GpImage* image, const WCHAR* path, const CLSID* encoder,
                             const EncoderParameters*)
{
    return whenGdiPlusRuns([&] {
        const auto picture = images().find(image);
        if (!picture || !path || !encoder || std::memcmp(encoder, &kPngEncoder, sizeof kPngEncoder) != 0)
            return InvalidParameter;
        QImageWriter writer(QString::fromUtf16(path), "png");
        return writer.write(*picture) ? Ok : GenericError;
    });
}

}

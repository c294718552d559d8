// Pens, brushes and fonts, and what all drawing objects share.
#include "drawing_objects.h"

#include "bitmaps.h"
#include "handle_table.h"
#include "overload.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <unordered_set>

namespace winapi {

namespace {

HandleTable<HGDIOBJ, Object>& objects()
{
    static HandleTable<HGDIOBJ, Object> table;
    return table;
}

std::unordered_set<HGDIOBJ>& permanentObjects()
{
    static std::unordered_set<HGDIOBJ> handles;
    return handles;
}

LOGFONTA fontOf(LONG height, LONG weight, const char* face)
{
    LOGFONTA font{};
    font.lfHeight = height;
    font.lfWeight = weight;
    font.lfCharSet = DEFAULT_CHARSET;
    qstrncpy(font.lfFaceName, face, LF_FACESIZE);
    return font;
}

constexpr int stockCount = DEFAULT_GUI_FONT + 1;

std::array<HGDIOBJ, stockCount> makeStock()
{
    const auto font = [](const LOGFONTA& description) {
        return addPermanentObject(Font{description, toFont(description)});
    };
    std::array<HGDIOBJ, stockCount> stock{};
    stock[WHITE_BRUSH] = addPermanentObject(Brush{BS_SOLID, RGB(255, 255, 255)});
    stock[LTGRAY_BRUSH] = addPermanentObject(Brush{BS_SOLID, RGB(192, 192, 192)});
    stock[GRAY_BRUSH] = addPermanentObject(Brush{BS_SOLID, RGB(128, 128, 128)});
    stock[DKGRAY_BRUSH] = addPermanentObject(Brush{BS_SOLID, RGB(64, 64, 64)});
    stock[BLACK_BRUSH] = addPermanentObject(Brush{BS_SOLID, RGB(0, 0, 0)});
    stock[NULL_BRUSH] = addPermanentObject(Brush{BS_NULL, 0});
    stock[WHITE_PEN] = addPermanentObject(Pen{PS_SOLID, 0, RGB(255, 255, 255)});
    stock[BLACK_PEN] = addPermanentObject(Pen{PS_SOLID, 0, RGB(0, 0, 0)});
    stock[NULL_PEN] = addPermanentObject(Pen{PS_NULL, 1, 0});
    stock[ANSI_VAR_FONT] = font(fontOf(12, FW_NORMAL, "MS Sans Serif"));
    stock[SYSTEM_FONT] = font(fontOf(16, FW_BOLD, "System"));
    stock[DEFAULT_GUI_FONT] = font(fontOf(-11, FW_NORMAL, "MS Shell Dlg"));
    return stock;
}

const std::array<HGDIOBJ, stockCount>& stock()
{
    static const std::array<HGDIOBJ, stockCount> objects = makeStock();
    return objects;
}

// Copies as much of `value` as fits, and gives the bytes copied; their number when nothing is to be filled.
template <class Value>
int copyOut(const Value& value, int size, void* data)
{
    if (!data)
        return sizeof value;
    const int copied = std::min(size, static_cast<int>(sizeof value));
    if (copied <= 0)
        return 0;
    std::memcpy(data, &value, static_cast<std::size_t>(copied));
    return copied;
}

BITMAP describe(const Bitmap& bitmap)
{
    const QSize size = bitmap.image.deviceIndependentSize().toSize();
    return {0, size.width(), size.height(), size.width() * 4, 1, 32, nullptr};
}

}

// As many objects as Windows lets a process have: a program that forgets to delete them fails here as it does
// there.
HGDIOBJ addObject(Object object)
{
    constexpr std::size_t quota = 10000;
    const bool isFull = objects().size() - permanentObjects().size() >= quota;
    return isFull ? nullptr : objects().add(std::make_shared<Object>(std::move(object)));
}

HGDIOBJ addPermanentObject(Object object)
{
    return *permanentObjects().insert(objects().add(std::make_shared<Object>(std::move(object)))).first;
}

std::shared_ptr<Object> findObject(HGDIOBJ handle)
{
    return objects().find(handle);
}

std::shared_ptr<Brush> findBrush(HBRUSH handle)
{
    const auto value = reinterpret_cast<ULONG_PTR>(handle);
    if (value == 0 || value > COLOR_MENUBAR + 1)
        return findObject<Brush>(handle);
    return findObject<Brush>(GetSysColorBrush(static_cast<int>(value) - 1));
}

QColor toColor(COLORREF color)
{
    return QColor(GetRValue(color), GetGValue(color), GetBValue(color));
}

COLORREF toColorRef(const QColor& color)
{
    return RGB(color.red(), color.green(), color.blue());
}

}

using namespace winapi;

HGDIOBJ GetStockObject(int index)
{
    return index >= 0 && index < stockCount ? stock()[static_cast<std::size_t>(index)] : nullptr;
}

BOOL DeleteObject(HGDIOBJ handle)
{
    return permanentObjects().contains(handle) || objects().remove(handle) != nullptr;
}

int GetObjectA(HANDLE handle, int size, LPVOID data)
{
    const auto object = findObject(handle);
    if (!object)
        return 0;
    return std::visit(
        Overload{
            [&](const Pen& pen) {
                return copyOut(LOGPEN{static_cast<UINT>(pen.style), {pen.width, 0}, pen.color}, size, data);
            },
            [&](const Brush& brush) {
                return copyOut(LOGBRUSH{brush.style, brush.color, 0}, size, data);
            },
            [&](const Font& font) { return copyOut(font.description, size, data); },
            [&](const Bitmap& bitmap) { return copyOut(describe(bitmap), size, data); },
            [](const Region&) { return 0; },
        },
        *object);
}

HPEN CreatePen(int style, int width, COLORREF color)
{
    if (style == PS_NULL)
        return static_cast<HPEN>(addObject(Pen{PS_NULL, 1, 0}));
    return static_cast<HPEN>(addObject(Pen{style == PS_DOT ? PS_DOT : PS_SOLID, std::abs(width), color}));
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    return static_cast<HBRUSH>(addObject(Brush{BS_SOLID, color}));
}

HBRUSH CreateBrushIndirect(const LOGBRUSH* brush)
{
    if (!brush || (brush->lbStyle != BS_SOLID && brush->lbStyle != BS_NULL))
        return nullptr;
    return static_cast<HBRUSH>(addObject(Brush{brush->lbStyle, brush->lbColor}));
}

HFONT CreateFontIndirectA(const LOGFONTA* font)
{
    return font ? static_cast<HFONT>(addObject(Font{*font, toFont(*font)})) : nullptr;
}

// Pens, brushes and fonts, and the table of all drawing objects.
#include "drawing_objects.h"

#include "bitmaps.h"
#include "handle_table.h"
#include "system_colors.h"
#include "text.h"

#include <QCoreApplication>

#include <unordered_set>
#include <utility>

namespace winapi {

namespace {

HandleTable<HGDIOBJ, Object>& objects()
{
    static auto& table = *new HandleTable<HGDIOBJ, Object>;
    return table;
}

std::unordered_set<HGDIOBJ>& permanentObjects()
{
    static auto& handles = *new std::unordered_set<HGDIOBJ>;
    return handles;
}

HFONT makeFont(LONG height, LONG weight, const char* face)
{
    LOGFONTA description{};
    description.lfHeight = height;
    description.lfWeight = weight;
    description.lfCharSet = DEFAULT_CHARSET;
    qstrncpy(description.lfFaceName, face, LF_FACESIZE);
    return static_cast<HFONT>(addPermanentObject(Font{description.lfCharSet, toFont(description), nullptr}));
}

bool g_forgetsAtExit = false;

// Qt forgets its routines once it has called them.
void forgetMeasures()
{
    g_forgetsAtExit = false;
    objects().forEach([](Object& object) {
        if (Font* const font = std::get_if<Font>(&object))
            font->measure.reset();
    });
}

}

// A program that forgets to delete its objects fails here after as many as on Windows.
HGDIOBJ addObject(Object object)
{
    constexpr std::size_t kQuota = 10000;
    const bool isFull = objects().size() - permanentObjects().size() >= kQuota;
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

void forgetMeasuresAtExit()
{
    if (!std::exchange(g_forgetsAtExit, true))
        qAddPostRoutine(forgetMeasures);
}

HPEN blackPen()
{
    static const HGDIOBJ pen = addPermanentObject(Pen{0, RGB(0, 0, 0)});
    return static_cast<HPEN>(pen);
}

HBRUSH whiteBrush()
{
    static const HGDIOBJ brush = addPermanentObject(Brush{RGB(255, 255, 255)});
    return static_cast<HBRUSH>(brush);
}

HFONT systemFont()
{
    static const HFONT font = makeFont(16, FW_BOLD, "System");
    return font;
}

HFONT windowFont()
{
    static const HFONT font = makeFont(-11, FW_NORMAL, "MS Shell Dlg");
    return font;
}

std::shared_ptr<Brush> findBrush(HBRUSH handle)
{
    const auto value = reinterpret_cast<ULONG_PTR>(handle);
    const HBRUSH ofSystem = value < kFirstHandle ? systemBrush(static_cast<int>(value) - 1) : nullptr;
    return findObject<Brush>(ofSystem ? ofSystem : handle);
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
    return index == WHITE_BRUSH ? whiteBrush() : nullptr;
}

BOOL DeleteObject(HGDIOBJ handle)
{
    return permanentObjects().contains(handle) || objects().remove(handle);
}

HPEN CreatePen(int style, int width, COLORREF color)
{
    return style == PS_SOLID ? static_cast<HPEN>(addObject(Pen{std::abs(width), color})) : nullptr;
}

HBRUSH CreateSolidBrush(COLORREF color)
{
    return static_cast<HBRUSH>(addObject(Brush{color}));
}

HFONT CreateFontIndirectA(const LOGFONTA* font)
{
    return font ? static_cast<HFONT>(addObject(Font{font->lfCharSet, toFont(*font), nullptr})) : nullptr;
}

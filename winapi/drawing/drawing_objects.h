// Drawing objects and their handles.
#pragma once

#include "wingdi.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPen>
#include <QRegion>

#include <memory>
#include <variant>

namespace winapi {

struct Pen
{
    int style;
    int width;
    COLORREF color;
};

struct Brush
{
    UINT style;
    COLORREF color;
};

struct Font
{
    LOGFONTA description;
    QFont font;
};

struct Bitmap
{
    QImage image;
    bool selected = false; // in some context; no second one may draw on it
};

struct Region
{
    QRegion region;
};

using Object = std::variant<Pen, Brush, Font, Bitmap, Region>;

HGDIOBJ addObject(Object object);
// Of the system: DeleteObject leaves it alone.
HGDIOBJ addPermanentObject(Object object);
std::shared_ptr<Object> findObject(HGDIOBJ handle);

// The object of `handle` if it is of this kind, else null.
template <class Kind>
std::shared_ptr<Kind> findObject(HGDIOBJ handle)
{
    const auto object = findObject(handle);
    Kind* kind = object ? std::get_if<Kind>(object.get()) : nullptr;
    return kind ? std::shared_ptr<Kind>(object, kind) : nullptr;
}

// The brush of `handle`; a small number stands for a system colour's index plus 1. Null if there is none.
std::shared_ptr<Brush> findBrush(HBRUSH handle);

QColor toColor(COLORREF color);
COLORREF toColorRef(const QColor& color);

}

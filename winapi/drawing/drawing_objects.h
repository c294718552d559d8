// Drawing objects and their handles.
#pragma once

#include "wingdi.h"

#include <QColor>
#include <QFont>
#include <QImage>

#include <memory>
#include <variant>

namespace winapi {

class TextMeasure;

struct Pen
{
    int width;
    COLORREF color;
};

struct Brush
{
    COLORREF color;
};

struct Font
{
    BYTE charSet; // as asked for
    QFont font;
    std::shared_ptr<TextMeasure> measure; // once text was drawn or measured in it; see measureOf
};

struct Bitmap
{
    QImage image;
    bool selected = false; // in one context; no second one may draw on it
};

using Object = std::variant<Pen, Brush, Font, Bitmap>;

// Null when there are as many objects as Windows lets a program have.
HGDIOBJ addObject(Object object);
// An object of the system: DeleteObject leaves it alone.
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

// Has all fonts give back what they keep for drawing, when the Qt application ends: Qt's fonts end with it.
void forgetMeasuresAtExit();

// What a new context holds.
HPEN blackPen();
HBRUSH whiteBrush();
HFONT systemFont();
// What texts of windows are written in, unless they say otherwise.
HFONT windowFont();

// The brush of `handle`. A small number stands for the brush of a system colour: the colour's index plus 1.
// Null if there is no such brush.
std::shared_ptr<Brush> findBrush(HBRUSH handle);

QColor toColor(COLORREF color);
COLORREF toColorRef(const QColor& color);

}

// The colours of the system and the sizes of its parts: those of a plain light Windows, so that the control
// looks alike on both platforms.
#include "system_colors.h"

#include "drawing_objects.h"

#include <algorithm>

namespace winapi {

namespace {

struct SystemColor
{
    int index;
    COLORREF color;
};

constexpr SystemColor kSystemColors[] = {
    {COLOR_WINDOW, RGB(255, 255, 255)},       {COLOR_WINDOWTEXT, RGB(0, 0, 0)},
    {COLOR_HIGHLIGHT, RGB(0, 120, 215)},      {COLOR_HIGHLIGHTTEXT, RGB(255, 255, 255)},
    {COLOR_BTNFACE, RGB(240, 240, 240)},      {COLOR_BTNSHADOW, RGB(160, 160, 160)},
    {COLOR_GRAYTEXT, RGB(109, 109, 109)},     {COLOR_BTNTEXT, RGB(0, 0, 0)},
    {COLOR_BTNHIGHLIGHT, RGB(255, 255, 255)}, {COLOR_3DLIGHT, RGB(227, 227, 227)},
};

const SystemColor* findColor(int index)
{
    const auto* found = std::find_if(std::begin(kSystemColors), std::end(kSystemColors),
                                     [index](const SystemColor& color) { return color.index == index; });
    return found == std::end(kSystemColors) ? nullptr : found;
}

}

HBRUSH systemBrush(int index)
{
    static HGDIOBJ brushes[std::size(kSystemColors)] = {};
    const SystemColor* const color = findColor(index);
    if (!color)
        return nullptr;
    HGDIOBJ& brush = brushes[color - kSystemColors];
    if (!brush)
        brush = addPermanentObject(Brush{color->color});
    return static_cast<HBRUSH>(brush);
}

}

using namespace winapi;

DWORD GetSysColor(int index)
{
    const SystemColor* const color = findColor(index);
    return color ? color->color : 0;
}

int GetSystemMetrics(int index)
{
    constexpr int kScrollBarThickness = 17;
    return index == SM_CXVSCROLL || index == SM_CYHSCROLL ? kScrollBarThickness : 0;
}

// The colours and metrics of the system: those of a plain light Windows, so that the control looks alike on
// both platforms.
#include "application.h"
#include "drawing_objects.h"

#include <QScreen>

#include <array>

namespace winapi {

namespace {

constexpr int colorCount = COLOR_MENUBAR + 1;

constexpr std::array<COLORREF, colorCount> systemColors = {
    RGB(200, 200, 200), // COLOR_SCROLLBAR
    RGB(0, 0, 0),       // COLOR_BACKGROUND
    RGB(153, 180, 209), // COLOR_ACTIVECAPTION
    RGB(191, 205, 219), // COLOR_INACTIVECAPTION
    RGB(240, 240, 240), // COLOR_MENU
    RGB(255, 255, 255), // COLOR_WINDOW
    RGB(100, 100, 100), // COLOR_WINDOWFRAME
    RGB(0, 0, 0),       // COLOR_MENUTEXT
    RGB(0, 0, 0),       // COLOR_WINDOWTEXT
    RGB(0, 0, 0),       // COLOR_CAPTIONTEXT
    RGB(180, 180, 180), // COLOR_ACTIVEBORDER
    RGB(244, 247, 252), // COLOR_INACTIVEBORDER
    RGB(171, 171, 171), // COLOR_APPWORKSPACE
    RGB(0, 120, 215),   // COLOR_HIGHLIGHT
    RGB(255, 255, 255), // COLOR_HIGHLIGHTTEXT
    RGB(240, 240, 240), // COLOR_BTNFACE
    RGB(160, 160, 160), // COLOR_BTNSHADOW
    RGB(109, 109, 109), // COLOR_GRAYTEXT
    RGB(0, 0, 0),       // COLOR_BTNTEXT
    RGB(0, 0, 0),       // COLOR_INACTIVECAPTIONTEXT
    RGB(255, 255, 255), // COLOR_BTNHIGHLIGHT
    RGB(105, 105, 105), // COLOR_3DDKSHADOW
    RGB(227, 227, 227), // COLOR_3DLIGHT
    RGB(0, 0, 0),       // COLOR_INFOTEXT
    RGB(255, 255, 225), // COLOR_INFOBK
    RGB(0, 0, 0),       // not in use
    RGB(0, 102, 204),   // COLOR_HOTLIGHT
    RGB(185, 209, 234), // COLOR_GRADIENTACTIVECAPTION
    RGB(215, 228, 242), // COLOR_GRADIENTINACTIVECAPTION
    RGB(0, 120, 215),   // COLOR_MENUHILIGHT
    RGB(240, 240, 240), // COLOR_MENUBAR
};

std::array<HBRUSH, colorCount> makeBrushes()
{
    std::array<HBRUSH, colorCount> brushes{};
    std::transform(systemColors.begin(), systemColors.end(), brushes.begin(), [](COLORREF color) {
        return static_cast<HBRUSH>(addPermanentObject(Brush{BS_SOLID, color}));
    });
    return brushes;
}

bool isColor(int index)
{
    return index >= 0 && index < colorCount;
}

QRect screenArea()
{
    return application().primaryScreen()->geometry();
}

QRect allScreensArea()
{
    return application().primaryScreen()->virtualGeometry();
}

}

}

using namespace winapi;

DWORD GetSysColor(int index)
{
    return isColor(index) ? systemColors[static_cast<std::size_t>(index)] : 0;
}

HBRUSH GetSysColorBrush(int index)
{
    static const std::array<HBRUSH, colorCount> brushes = makeBrushes();
    return isColor(index) ? brushes[static_cast<std::size_t>(index)] : nullptr;
}

int GetSystemMetrics(int index)
{
    switch (index) {
    case SM_CXSCREEN:
        return screenArea().width();
    case SM_CYSCREEN:
        return screenArea().height();
    case SM_CXVIRTUALSCREEN:
        return allScreensArea().width();
    case SM_CYVIRTUALSCREEN:
        return allScreensArea().height();
    case SM_CXVSCROLL:
    case SM_CYVSCROLL:
    case SM_CXHSCROLL:
    case SM_CYHSCROLL:
        return 17;
    case SM_CXBORDER:
    case SM_CYBORDER:
        return 1;
    case SM_CXEDGE:
    case SM_CYEDGE:
        return 2;
    case SM_CXDLGFRAME:
    case SM_CYDLGFRAME:
        return 3;
    case SM_CXFRAME:
    case SM_CYFRAME:
    case SM_CXDOUBLECLK:
    case SM_CYDOUBLECLK:
    case SM_CXDRAG:
    case SM_CYDRAG:
        return 4;
    case SM_CXSMICON:
    case SM_CYSMICON:
        return 16;
    case SM_CXMENUCHECK:
    case SM_CYMENUCHECK:
        return 15;
    case SM_CYMENU:
        return 20;
    case SM_CYCAPTION:
        return 23;
    case SM_CXICON:
    case SM_CYICON:
    case SM_CXCURSOR:
    case SM_CYCURSOR:
        return 32;
    default:
        return 0;
    }
}

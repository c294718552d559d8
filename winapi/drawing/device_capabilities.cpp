// What can be asked of a device: the screen's size and colours, or what another surface tells.
#include "application.h"
#include "context.h"

#include <QScreen>

namespace winapi {

int Surface::capability(int index) const
{
    const QScreen* screen = application().primaryScreen();
    switch (index) {
    case TECHNOLOGY:
        return DT_RASDISPLAY;
    case HORZSIZE:
        return qRound(screen->physicalSize().width());
    case VERTSIZE:
        return qRound(screen->physicalSize().height());
    case HORZRES:
        return screen->geometry().width();
    case VERTRES:
        return screen->geometry().height();
    case BITSPIXEL:
        return 32;
    case PLANES:
        return 1;
    case NUMCOLORS:
        return -1;
    case RASTERCAPS:
        return RC_BITBLT;
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    default:
        return 0;
    }
}

}

using namespace winapi;

int GetDeviceCaps(HDC dc, int index)
{
    const auto context = findContext(dc);
    return context ? context->surface().capability(index) : 0;
}

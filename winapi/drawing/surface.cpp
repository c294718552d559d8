// What can be asked of a device: the screen's size, or what another surface tells.
#include "surface.h"

#include "application.h"
#include "context.h"

#include <QScreen>

namespace winapi {

int Surface::capability(int index) const
{
    constexpr int kDotsPerInch = 96;
    const QRect screen = application().primaryScreen()->geometry();
    switch (index) {
    case HORZRES:
        return screen.width();
    case VERTRES:
        return screen.height();
    case LOGPIXELSX:
    case LOGPIXELSY:
        return kDotsPerInch;
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

// The starting and stopping of GDI+.
#include "gdiplus_session.h"

#include "handle_table.h"

#include <unordered_set>

namespace {

std::unordered_set<ULONG_PTR>& sessions()
{
    static auto& tokens = *new std::unordered_set<ULONG_PTR>;
    return tokens;
}

}

bool winapi::isGdiPlusRunning()
{
    return !sessions().empty();
}

namespace Gdiplus {

GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input, GdiplusStartupOutput*)
{
    if (!token || !input)
        return InvalidParameter;
    if (input->GdiplusVersion < 1 || input->GdiplusVersion > 2)
        return UnsupportedGdiplusVersion;
    *token = winapi::nextHandleValue();
    sessions().insert(*token);
    return Ok;
}

void GdiplusShutdown(ULONG_PTR token)
{
    sessions().erase(token);
}

}

// Whether the program has started GDI+, which every flat function asks first.
#pragma once

#include "gdiplus.h"

namespace winapi {

bool isGdiPlusRunning();

// The status of `call`, which runs only between start and shutdown.
template <class Call>
Gdiplus::GpStatus whenGdiPlusRuns(Call call)
{
    return isGdiPlusRunning() ? call() : Gdiplus::GdiplusNotInitialized;
}

}

// Whether the program has started GDI+. Every other GDI+ call asks that first.
#pragma once

#include "gdiplus.h"

namespace winapi {

bool isGdiPlusRunning();

// Runs `call` and gives its status, but only between start and shutdown.
template <class Call>
Gdiplus::GpStatus whenGdiPlusRuns(Call call)
{
    return isGdiPlusRunning() ? call() : Gdiplus::GdiplusNotInitialized;
}

}

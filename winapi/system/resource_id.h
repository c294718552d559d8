// Names of resources and classes that are numbers: small values in the place of a pointer to a text.
#pragma once

#include "windef.h"

namespace winapi {

inline bool isResourceId(LPCSTR name)
{
    return reinterpret_cast<ULONG_PTR>(name) >> 16 == 0;
}

}

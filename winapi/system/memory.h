// The memory that GlobalAlloc gives, as the other rooms see it.
#pragma once

#include "windef.h"

namespace winapi {

// The bytes that were asked for.
SIZE_T sizeOfMemory(HGLOBAL memory);

}

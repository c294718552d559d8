// The clock that messages are stamped with.
#pragma once

#include "windef.h"

namespace winapi {

// Milliseconds since some start, never set back; after 49 days it begins at 0 again.
DWORD tickCount();

}

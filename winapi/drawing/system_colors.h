// The brushes of the system's colours.
#pragma once

#include "wingdi.h"

namespace winapi {

// The brush of a colour (COLOR_...), which DeleteObject leaves alone. Null if there is no such colour.
HBRUSH systemBrush(int index);

}

// Tool-tip controls, as the message loop sees them.
#pragma once

#include "winuser.h"

namespace winapi {

// Lets the controls that asked for it (TTF_SUBCLASS) see a message that is about to be dispatched.
void showToToolTips(const MSG& message);

}

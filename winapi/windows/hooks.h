// How winapi calls the hooks that programs have set.
#pragma once

#include "winuser.h"

namespace winapi {

// Calls the newest hook of the type, which may go on to older ones; gives its answer, 0 without one.
LRESULT callHooks(int type, int code, WPARAM wParam, LPARAM lParam);

}

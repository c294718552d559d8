// Calls of the hooks that programs have set.
#pragma once

#include "winuser.h"

namespace winapi {

LRESULT callHooks(int type, int code, WPARAM wParam, LPARAM lParam);

}

// Window classes, those of programs and those of the system.
#pragma once

#include "window.h"

namespace winapi {

// By name or by atom; null if there is none.
WindowClassPtr findClass(LPCSTR nameOrAtom);
void registerSystemClass(const char* name, WNDPROC procedure, UINT style, LPCSTR cursor);

}

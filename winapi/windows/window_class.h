// Window classes, those of programs and those of the system.
#pragma once

#include "window.h"

namespace winapi {

// By name or by atom; null if there is none.
WindowClassPtr findClass(LPCSTR nameOrAtom);
// The class of a control of the system.
void registerSystemClass(const char* name, WNDPROC procedure, UINT style, LPCSTR cursor);

}

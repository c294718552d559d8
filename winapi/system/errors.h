// From the errors of this system to those of the calls.
#pragma once

#include "winbase.h"

namespace winapi {

// The code for an errno value.
DWORD errorFromErrno(int error);

// Sets the last error and gives back the FALSE with which the call then ends.
BOOL fail(DWORD error);
BOOL failWithErrno();

}

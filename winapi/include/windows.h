// The Windows calls that this system uses, for Linux. One header an area, as on Windows.
#pragma once

#include "windef.h"
#include "winbase.h"
#include "winnls.h"
#include "wingdi.h"
#include "winuser.h"

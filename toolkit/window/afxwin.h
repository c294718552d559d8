// The window toolkit. A host includes this header, which holds all of the toolkit besides the common controls
// (afxcmn.h), the system's dialogs (afxdlgs.h) and printing (afxext.h).
//
// The toolkit adds types and lifetime to the system's calls, and no behaviour of its own: a member that has
// the name of a call makes that call on the object's handle.
#pragma once

#include <afxapp_.h>
#include <afxctrl_.h>
#include <afxdll_.h>
#include <afxgdi_.h>
#include <afxmenu_.h>
#include <afxmsg_.h>
#include <afxwnd_.h>

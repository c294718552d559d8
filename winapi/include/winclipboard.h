// The clipboard, which holds plain text only.
#pragma once

#include "windef.h"

#define CF_UNICODETEXT 13u

WINUSERAPI BOOL WINAPI OpenClipboard(HWND owner);
WINUSERAPI BOOL WINAPI CloseClipboard();
WINUSERAPI BOOL WINAPI EmptyClipboard();
// `memory`: from GlobalAlloc, a text that ends in a null. The clipboard owns it if the call succeeds.
WINUSERAPI HANDLE WINAPI SetClipboardData(UINT format, HANDLE memory);
// The memory belongs to the clipboard and is valid until the clipboard is closed. Null if there is no text.
WINUSERAPI HANDLE WINAPI GetClipboardData(UINT format);

// The clipboard, which holds plain text only.
#pragma once

#include "windef.h"

#define CF_UNICODETEXT 13u

WINUSERAPI BOOL WINAPI OpenClipboard(HWND owner) ZEB17_NAME(OpenClipboard);
WINUSERAPI BOOL WINAPI CloseClipboard(void) ZEB17_NAME(CloseClipboard);
WINUSERAPI BOOL WINAPI EmptyClipboard(void) ZEB17_NAME(EmptyClipboard);
// `memory`: from GlobalAlloc, a text that ends in a null. The clipboard owns it if the call succeeds.
WINUSERAPI HANDLE WINAPI SetClipboardData(UINT format, HANDLE memory) ZEB17_NAME(SetClipboardData);
// The memory belongs to the clipboard and is valid until the clipboard is closed. Null if there is no text.
WINUSERAPI HANDLE WINAPI GetClipboardData(UINT format) ZEB17_NAME(GetClipboardData);

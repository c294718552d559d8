// The clipboard: plain text only.
#pragma once

#include "windef.h"

#define CF_TEXT 1u
#define CF_UNICODETEXT 13u

WINUSERAPI BOOL WINAPI OpenClipboard(HWND owner);
WINUSERAPI BOOL WINAPI CloseClipboard();
WINUSERAPI BOOL WINAPI EmptyClipboard();
// Takes the memory over when it succeeds.
WINUSERAPI HANDLE WINAPI SetClipboardData(UINT format, HANDLE memory);
// The memory stays the clipboard's and is valid until it is closed.
WINUSERAPI HANDLE WINAPI GetClipboardData(UINT format);
WINUSERAPI BOOL WINAPI IsClipboardFormatAvailable(UINT format);

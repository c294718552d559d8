// The folders of the user.
#pragma once

#include "windef.h"
#include "winerror.h"

#define CSIDL_APPDATA 0x001A
#define SHGFP_TYPE_CURRENT 0u

// Gives the folder of the user's application data: $XDG_DATA_HOME, else ~/.local/share. `path` holds MAX_PATH
// characters.
WINBASEAPI HRESULT WINAPI SHGetFolderPathA(HWND owner, int folder, HANDLE token, DWORD flags, LPSTR path)
    ZEB17_NAME(SHGetFolderPathA);
#define SHGetFolderPath SHGetFolderPathA

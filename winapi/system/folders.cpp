// Where a user's programs keep their data.
#include "shlobj.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace {

std::string homeDirectory()
{
    if (const char* home = std::getenv("HOME"); home && *home == '/')
        return home;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "";
}

// The XDG Base Directory Specification has a relative $XDG_DATA_HOME ignored.
std::string dataDirectory()
{
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/')
        return data;
    const std::string home = homeDirectory();
    return home.empty() ? home : home + "/.local/share";
}

}

HRESULT SHGetFolderPathA(HWND, int folder, HANDLE, DWORD, LPSTR path)
{
    path[0] = '\0';
    if (folder != CSIDL_APPDATA)
        return E_INVALIDARG;
    const std::string directory = dataDirectory();
    if (directory.empty() || directory.size() >= MAX_PATH)
        return E_FAIL;
    std::memcpy(path, directory.c_str(), directory.size() + 1);
    return S_OK;
}

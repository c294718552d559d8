// Where a user's home is, and where programs keep their data.
#include "folders.h"

#include "shlobj.h"
#include "winbase.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace winapi {

std::string homeOfUser()
{
    std::vector<char> texts(1024);
    passwd entry;
    passwd* found = nullptr;
    while (::getpwuid_r(::geteuid(), &entry, texts.data(), texts.size(), &found) == ERANGE)
        texts.resize(2 * texts.size());
    return found && found->pw_dir ? found->pw_dir : "";
}

}

namespace {

std::string homeDirectory()
{
    if (const char* home = std::getenv("HOME"); home && *home == '/')
        return home;
    return winapi::homeOfUser();
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

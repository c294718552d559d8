// The paths of the data files.
#include "ZebrikUtils.h"

#include "DirUtils.h"

#include <shlobj.h>

namespace {

constexpr const char* kDirectory = "zeb17";

constexpr const char* kFileNames[] = {"calendar1.dat", "calendar2.dat", "calendar3.dat", "calendar4.dat"};

CString g_strDataDirectory; // empty: the user's own

CString GetDataDirectory()
{
    if (!g_strDataDirectory.IsEmpty())
        return g_strDataDirectory;
    char szPath[MAX_PATH];
    if (FAILED(SHGetFolderPathA(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, szPath)))
        return {};
    return DirUtils::JoinPath(szPath, kDirectory);
}

}

CString ZebrikUtils::GetCalendarSettingsPath(unsigned short nVersion)
{
    if (nVersion < 1 || nVersion > std::size(kFileNames))
        return {};
    const CString strDirectory = GetDataDirectory();
    return strDirectory.IsEmpty() ? strDirectory : DirUtils::JoinPath(strDirectory, kFileNames[nVersion - 1]);
}

void ZebrikUtils::SetDataDirectory(const CString& strDirectory)
{
    g_strDataDirectory = strDirectory;
}

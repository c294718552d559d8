// Paths as texts, and the making of directories.
#include "DirUtils.h"

#include <filesystem>

namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

// The slash is a separator on every system.
constexpr char kSeparators[] = {kSeparator, '/', '\0'};

bool EndsInSeparator(const CString& strPath)
{
    return !strPath.IsEmpty() && strPath.Right(1).FindOneOf(kSeparators) == 0;
}

bool IsDirectory(const CString& strPath)
{
    const DWORD dwAttributes = GetFileAttributesA(strPath);
    return dwAttributes != INVALID_FILE_ATTRIBUTES && dwAttributes & FILE_ATTRIBUTE_DIRECTORY;
}

}

CString DirUtils::ParsePathFromFile(const CString& strPath)
{
    CString strDirectory = strPath;
    while (!strDirectory.IsEmpty() && !EndsInSeparator(strDirectory))
        strDirectory = strDirectory.Left(strDirectory.GetLength() - 1);

    // "/" and "C:\" keep their separator; without it they would be other paths.
    while (strDirectory.GetLength() > 1 && EndsInSeparator(strDirectory) &&
           strDirectory.Right(2).GetAt(0) != ':')
        strDirectory = strDirectory.Left(strDirectory.GetLength() - 1);
    return strDirectory;
}

bool DirUtils::CreateDirectoryA(const CString& strPath)
{
    if (::CreateDirectoryA(strPath, nullptr) || IsDirectory(strPath))
        return true;
    if (::GetLastError() != ERROR_PATH_NOT_FOUND)
        return false;

    const CString strParent = ParsePathFromFile(strPath);
    if (strParent.IsEmpty() || strParent == strPath || !CreateDirectoryA(strParent))
        return false;
    return ::CreateDirectoryA(strPath, nullptr) || IsDirectory(strPath);
}

CString DirUtils::JoinPath(const CString& strDirectory, const CString& strName)
{
    if (strDirectory.IsEmpty() || EndsInSeparator(strDirectory))
        return strDirectory + strName;
    return strDirectory + kSeparator + strName;
}

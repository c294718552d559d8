// Paths as texts, and the making of directories.
#include "DirUtils.h"

#include <algorithm>
#include <filesystem>
#include <iterator>

namespace {

constexpr char kSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

// The slash is a separator on every system.
bool IsSeparator(char ch)
{
    constexpr char kSeparators[] = {kSeparator, '/'};
    return std::ranges::find(kSeparators, ch) != std::end(kSeparators);
}

// The index of the first of the separators at the end of the path, its length if there are none. The second
// byte of a character of two bytes may look like a separator, so the path is walked from its beginning.
int FindEndSeparators(const CString& strPath)
{
    int nEnd = 0;
    for (int i = 0; i < strPath.GetLength(); ++i) {
        if (IsSeparator(strPath[i]))
            continue;
        if (IsDBCSLeadByte(static_cast<BYTE>(strPath[i])))
            ++i;
        nEnd = i + 1;
    }
    return std::min(nEnd, strPath.GetLength());
}

bool EndsInSeparator(const CString& strPath)
{
    return FindEndSeparators(strPath) < strPath.GetLength();
}

// The length of the path up to its last part: with the separators before that part, without the part.
int FindLastPart(const CString& strPath)
{
    int nPart = 0;
    for (int i = 0; i < strPath.GetLength(); ++i) {
        if (IsSeparator(strPath[i]))
            nPart = i + 1;
        else if (IsDBCSLeadByte(static_cast<BYTE>(strPath[i])))
            ++i;
    }
    return nPart;
}

bool IsDirectory(const CString& strPath)
{
    const DWORD dwAttributes = GetFileAttributesA(strPath);
    return dwAttributes != INVALID_FILE_ATTRIBUTES && dwAttributes & FILE_ATTRIBUTE_DIRECTORY;
}

bool MakeDirectory(const CString& strPath)
{
    // The directory is for the user alone, unless its parent says who may use new directories: that is what
    // attributes without a descriptor mean.
    SECURITY_ATTRIBUTES userAlone = {sizeof(userAlone), nullptr, FALSE};
    return ::CreateDirectoryA(strPath, &userAlone) || IsDirectory(strPath);
}

}

CString DirUtils::ParsePathFromFile(const CString& strPath)
{
    const CString strDirectory = strPath.Left(FindLastPart(strPath));
    // "/" and "C:\" keep one separator; without it they would be other paths.
    const int nEnd = FindEndSeparators(strDirectory);
    const bool bRoot = nEnd == 0 || strDirectory[nEnd - 1] == ':';
    return strDirectory.Left(bRoot ? nEnd + 1 : nEnd);
}

bool DirUtils::CreateDirectoryA(const CString& strPath)
{
    if (MakeDirectory(strPath))
        return true;
    if (::GetLastError() != ERROR_PATH_NOT_FOUND)
        return false;

    const CString strParent = ParsePathFromFile(strPath);
    if (strParent.IsEmpty() || strParent == strPath || !CreateDirectoryA(strParent))
        return false;
    return MakeDirectory(strPath);
}

CString DirUtils::JoinPath(const CString& strDirectory, const CString& strName)
{
    if (strDirectory.IsEmpty() || EndsInSeparator(strDirectory))
        return strDirectory + strName;
    return strDirectory + kSeparator + strName;
}

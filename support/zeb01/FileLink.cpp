// Following links by the path that the system knows of an open file.
#include "FileLink.h"

CString FollowLink(const CString& strPath)
{
    const DWORD dwAttributes = GetFileAttributesA(strPath);
    CFile file;
    if (dwAttributes == INVALID_FILE_ATTRIBUTES || !(dwAttributes & FILE_ATTRIBUTE_REPARSE_POINT) ||
        !file.Open(strPath, CFile::modeRead))
        return strPath;

    CString strTarget;
    constexpr DWORD kFlags = FILE_NAME_NORMALIZED | VOLUME_NAME_DOS;
    const DWORD nSize = GetFinalPathNameByHandleA(file.m_hFile, nullptr, 0, kFlags);
    char* const szTarget = strTarget.GetBuffer(static_cast<int>(nSize));
    const DWORD nLength = GetFinalPathNameByHandleA(file.m_hFile, szTarget, nSize, kFlags);
    strTarget.ReleaseBuffer(nLength < nSize ? static_cast<int>(nLength) : 0);
    return strTarget.IsEmpty() ? strPath : strTarget;
}

// Following links by the path that the system knows of an open file.
#include "FileLink.h"

CString FollowLink(const CString& strPath)
{
    CFile file;
    if (!IsLink(strPath) || !file.Open(strPath, CFile::modeRead))
        return strPath;
    const CString strTarget = GetPathOf(file);
    return strTarget.IsEmpty() ? strPath : strTarget;
}

CString GetPathOf(const CFile& file)
{
    constexpr DWORD kFlags = FILE_NAME_NORMALIZED | VOLUME_NAME_DOS;
    CString strTarget;
    const DWORD nSize = GetFinalPathNameByHandleA(file.m_hFile, nullptr, 0, kFlags);
    char* const szTarget = strTarget.GetBuffer(static_cast<int>(nSize));
    const DWORD nLength = GetFinalPathNameByHandleA(file.m_hFile, szTarget, nSize, kFlags);
    strTarget.ReleaseBuffer(nLength < nSize ? static_cast<int>(nLength) : 0);
    return strTarget;
}

bool IsLink(const CString& strPath)
{
    const DWORD dwAttributes = GetFileAttributesA(strPath);
    return dwAttributes != INVALID_FILE_ATTRIBUTES && dwAttributes & FILE_ATTRIBUTE_REPARSE_POINT;
}

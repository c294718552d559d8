// Tests of files, and the writing of text files.
#include "FileUtils.h"

#include "FileLink.h"
#include "ReplacedFile.h"
#include "TextArray.h"

#include <WideText.h>

#include <algorithm>

namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kLineEnd = "\r\n";

CString ToUtf8(const CString& strText)
{
    return FromWide(ToWide(strText), CP_UTF8);
}

CString JoinLines(const TextArray& lines, int nIndent)
{
    const CString strIndent(' ', std::max(nIndent, 0));
    CString strContent;
    for (std::size_t i = 0; i < lines.GetSize(); ++i)
        strContent += strIndent + ToUtf8(lines.GetAt(i)) + kLineEnd;
    return strContent;
}

}

bool FileUtils::DoesFileExist(const CString& strPath)
{
    if (GetFileAttributesA(strPath) == INVALID_FILE_ATTRIBUTES)
        return false;
    CFileException error;
    CFile file;
    return !IsLink(strPath) || file.Open(strPath, CFile::modeRead, &error) ||
           (error.m_cause != CFileException::fileNotFound && error.m_cause != CFileException::badPath);
}

bool FileUtils::EnsureFileIsWritable(const CString& strPath)
{
    const CString strFile = FollowLink(strPath);
    const DWORD dwAttributes = GetFileAttributesA(strFile);
    if (dwAttributes == INVALID_FILE_ATTRIBUTES || dwAttributes & FILE_ATTRIBUTE_DIRECTORY)
        return false;
    if (!(dwAttributes & FILE_ATTRIBUTE_READONLY))
        return true;
    return SetFileAttributesA(strFile, dwAttributes & ~FILE_ATTRIBUTE_READONLY) != FALSE;
}

bool FileUtils::WriteFileContent(const CString& strPath, const TextArray& lines, bool bByteOrderMark,
                                 int nIndent)
{
    const CString strContent = (bByteOrderMark ? kByteOrderMark : "") + JoinLines(lines, nIndent);
    try {
        ReplacedFile file(strPath);
        file.Write(strContent.GetString(), static_cast<UINT>(strContent.GetLength()));
        file.Commit();
        return true;
    } catch (CFileException* pException) {
        pException->Delete();
        return false;
    }
}

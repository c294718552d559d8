// The texts of the toolkit's exceptions, and how the system's errors lead to their causes.
#include "CException.h"

#include <array>
#include <utility>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

CString GetSystemText(DWORD dwError)
{
    char szText[512];
    const DWORD dwLength = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                                              FORMAT_MESSAGE_MAX_WIDTH_MASK,
                                          nullptr, dwError, 0, szText, sizeof(szText), nullptr);
    return CString(szText, static_cast<int>(dwLength)).TrimRight();
}

CString JoinNameAndText(const CString& strName, const CString& strText)
{
    return strName.IsEmpty() || strText.IsEmpty() ? strText : strName + ": " + strText;
}

struct SystemErrorCause
{
    DWORD dwError;
    int nCause;
};

constexpr SystemErrorCause kSystemErrorCauses[] = {
    {ERROR_SUCCESS, CFileException::none},
    {ERROR_FILE_NOT_FOUND, CFileException::fileNotFound},
    {ERROR_PATH_NOT_FOUND, CFileException::badPath},
    {ERROR_INVALID_NAME, CFileException::badPath},
    {ERROR_DIRECTORY, CFileException::badPath},
    {ERROR_FILENAME_EXCED_RANGE, CFileException::badPath},
    {ERROR_TOO_MANY_OPEN_FILES, CFileException::tooManyOpenFiles},
    {ERROR_ACCESS_DENIED, CFileException::accessDenied},
    {ERROR_WRITE_PROTECT, CFileException::accessDenied},
    {ERROR_FILE_EXISTS, CFileException::accessDenied},
    {ERROR_ALREADY_EXISTS, CFileException::accessDenied},
    {ERROR_INVALID_HANDLE, CFileException::invalidFile},
    {ERROR_FILE_INVALID, CFileException::invalidFile},
    {ERROR_NEGATIVE_SEEK, CFileException::badSeek},
    {ERROR_WRITE_FAULT, CFileException::hardIO},
    {ERROR_READ_FAULT, CFileException::hardIO},
    {ERROR_IO_DEVICE, CFileException::hardIO},
    {ERROR_GEN_FAILURE, CFileException::hardIO},
    {ERROR_SHARING_VIOLATION, CFileException::sharingViolation},
    {ERROR_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_DISK_FULL, CFileException::diskFull},
    {ERROR_HANDLE_EOF, CFileException::endOfFile},
};

// By the cause of a CArchiveException.
constexpr std::array kArchiveTexts = {
    "No error",
    "Unknown error in an archive",
    "A loading archive was written to",
    "The file ends too early",
    "A storing archive was read from",
    "The file is damaged: bad index",
    "The file is damaged: bad class",
    "The file is damaged: bad version",
};

}

BOOL CException::GetErrorMessage(LPTSTR lpszText, UINT nSize, UINT* pnHelpContext) const
{
    if (pnHelpContext)
        *pnHelpContext = 0;
    const CString strText = GetMessageText();
    if (strText.IsEmpty() || nSize == 0)
        return FALSE;
    lstrcpynA(lpszText, strText, static_cast<int>(nSize));
    return TRUE;
}

CString CMemoryException::GetMessageText() const
{
    return "Out of memory";
}

CString CResourceException::GetMessageText() const
{
    return "A resource is missing";
}

int CFileException::OsErrorToException(LONG lOsError)
{
    for (const auto& [dwError, nCause] : kSystemErrorCauses)
        if (dwError == static_cast<DWORD>(lOsError))
            return nCause;
    return genericException;
}

CString CFileException::GetMessageText() const
{
    const CString strText = m_lOsError >= 0 ? GetSystemText(static_cast<DWORD>(m_lOsError)) : CString();
    return JoinNameAndText(m_strFileName, strText.IsEmpty() ? CString("Unknown error on a file") : strText);
}

CString CArchiveException::GetMessageText() const
{
    const auto nCause = static_cast<std::size_t>(m_cause);
    const bool bKnown = nCause < kArchiveTexts.size();
    return JoinNameAndText(m_strFileName, bKnown ? kArchiveTexts[nCause] : kArchiveTexts[genericException]);
}

void AfxThrowFileException(int nCause, LONG lOsError, LPCTSTR lpszFileName)
{
    throw new CFileException(nCause, lOsError, lpszFileName);
}

void AfxThrowArchiveException(int nCause, LPCTSTR lpszArchiveName)
{
    throw new CArchiveException(nCause, lpszArchiveName);
}

void AfxThrowMemoryException()
{
    throw new CMemoryException;
}

void AfxThrowResourceException()
{
    throw new CResourceException;
}

#include "CException.h"

#include <array>
#include <utility>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CException)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

CString GetSystemText(DWORD error)
{
    char text[512];
    const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS |
                                            FORMAT_MESSAGE_MAX_WIDTH_MASK,
                                        nullptr, error, 0, text, sizeof(text), nullptr);
    return CString(text, static_cast<int>(length)).TrimRight();
}

CString JoinNameAndText(const CString& name, const CString& text)
{
    return name.IsEmpty() || text.IsEmpty() ? text : name + ": " + text;
}

struct SystemErrorCause
{
    DWORD error;
    int cause;
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

BOOL CException::GetErrorMessage(LPTSTR text, UINT size, UINT* helpContext) const
{
    if (helpContext)
        *helpContext = 0;
    const CString message = GetMessageText();
    if (message.IsEmpty() || size == 0)
        return FALSE;
    lstrcpynA(text, message, static_cast<int>(size));
    return TRUE;
}

CString CMemoryException::GetMessageText() const
{
    return "Out of memory";
}

CString CNotSupportedException::GetMessageText() const
{
    return "The operation is not supported";
}

CString CResourceException::GetMessageText() const
{
    return "A resource is missing";
}

int CFileException::OsErrorToException(LONG osError)
{
    for (const auto& [error, cause] : kSystemErrorCauses)
        if (error == static_cast<DWORD>(osError))
            return cause;
    return genericException;
}

CString CFileException::GetMessageText() const
{
    const CString text = m_lOsError >= 0 ? GetSystemText(static_cast<DWORD>(m_lOsError)) : CString();
    return JoinNameAndText(m_strFileName, text.IsEmpty() ? CString("Unknown error on a file") : text);
}

CString CArchiveException::GetMessageText() const
{
    const auto cause = static_cast<std::size_t>(m_cause);
    const bool known = cause < kArchiveTexts.size();
    return JoinNameAndText(m_strFileName, known ? kArchiveTexts[cause] : kArchiveTexts[genericException]);
}

void AfxThrowFileException(int cause, LONG osError, LPCTSTR fileName)
{
    throw new CFileException(cause, osError, fileName);
}

void AfxThrowArchiveException(int cause, LPCTSTR archiveName)
{
    throw new CArchiveException(cause, archiveName);
}

void AfxThrowMemoryException()
{
    throw new CMemoryException;
}

void AfxThrowResourceException()
{
    throw new CResourceException;
}

void AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

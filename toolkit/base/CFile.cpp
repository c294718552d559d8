// CFile on the system's file calls.
#include "CFile.h"

#include "FileFault.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

FileFault g_fileFault = nullptr;

namespace {

HANDLE OpenHandle(LPCTSTR lpszPath, UINT nOpenFlags)
{
    const bool bWrite = nOpenFlags & CFile::modeWrite;
    const bool bCreate = nOpenFlags & CFile::modeCreate;
    return CreateFileA(lpszPath, bWrite ? GENERIC_WRITE : GENERIC_READ, bWrite ? 0 : FILE_SHARE_READ, nullptr,
                       bCreate ? CREATE_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}

CFile::CFile(LPCTSTR lpszPath, UINT nOpenFlags)
{
    CFileException error;
    if (!CFile::Open(lpszPath, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    CFile::Abort();
}

BOOL CFile::Open(LPCTSTR lpszPath, UINT nOpenFlags, CFileException* pError)
{
    CFile::Abort();
    m_strFileName = lpszPath;
    m_hFile = OpenHandle(lpszPath, nOpenFlags);
    if (IsOpen())
        return TRUE;

    if (pError) {
        pError->m_lOsError = static_cast<LONG>(GetLastError());
        pError->m_cause = CFileException::OsErrorToException(pError->m_lOsError);
        pError->m_strFileName = m_strFileName;
    }
    return FALSE;
}

UINT CFile::Read(void* pBuffer, UINT nCount)
{
    DWORD dwRead = 0;
    if (!ReadFile(m_hFile, pBuffer, nCount, &dwRead, nullptr))
        Fail(GetLastError());
    return dwRead;
}

void CFile::Write(const void* pBuffer, UINT nCount)
{
    if (const DWORD dwFault = GetFileFault(FileOperation::Write))
        Fail(dwFault);
    DWORD dwWritten = 0;
    if (!WriteFile(m_hFile, pBuffer, nCount, &dwWritten, nullptr))
        Fail(GetLastError());
    if (dwWritten != nCount)
        Fail(ERROR_DISK_FULL);
}

ULONGLONG CFile::Seek(LONGLONG nOffset, UINT nFrom)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = nOffset;
    if (!SetFilePointerEx(m_hFile, distance, &position, nFrom))
        Fail(GetLastError());
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = 0;
    if (!SetFilePointerEx(m_hFile, distance, &position, FILE_CURRENT))
        Fail(GetLastError());
    return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER size;
    if (!GetFileSizeEx(m_hFile, &size))
        Fail(GetLastError());
    return static_cast<ULONGLONG>(size.QuadPart);
}

void CFile::Flush()
{
    if (const DWORD dwFault = GetFileFault(FileOperation::Flush))
        Fail(dwFault);
    if (!FlushFileBuffers(m_hFile))
        Fail(GetLastError());
}

void CFile::Close()
{
    if (!IsOpen())
        return;
    const DWORD dwFault = GetFileFault(FileOperation::Close);
    const bool bClosed = CloseHandle(std::exchange(m_hFile, INVALID_HANDLE_VALUE));
    if (dwFault)
        Fail(dwFault);
    if (!bClosed)
        Fail(GetLastError());
}

void CFile::Abort() noexcept
{
    if (IsOpen())
        CloseHandle(std::exchange(m_hFile, INVALID_HANDLE_VALUE));
}

void CFile::Fail(DWORD dwError) const
{
    const auto lOsError = static_cast<LONG>(dwError);
    AfxThrowFileException(CFileException::OsErrorToException(lOsError), lOsError, m_strFileName);
}

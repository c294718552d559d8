#include "CFile.h"

#include "FileFault.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

FileFault g_fileFault = nullptr;

namespace {

[[noreturn]] void ThrowFileException(DWORD error, LPCTSTR path)
{
    const auto osError = static_cast<LONG>(error);
    AfxThrowFileException(CFileException::OsErrorToException(osError), osError, path);
}

struct OpenMode
{
    DWORD access;
    DWORD sharing;
    DWORD disposition;
};

OpenMode GetOpenMode(UINT flags)
{
    constexpr DWORD kAccess[] = {GENERIC_READ, GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE, GENERIC_READ};
    const DWORD access = kAccess[flags & 3];
    const DWORD sharing = access == GENERIC_READ ? FILE_SHARE_READ : 0;
    return {access, sharing, static_cast<DWORD>(flags & CFile::modeCreate ? CREATE_ALWAYS : OPEN_EXISTING)};
}

}

CFile::CFile(LPCTSTR path, UINT openFlags)
{
    CFileException error;
    if (!CFile::Open(path, openFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile()
{
    CFile::Abort();
}

BOOL CFile::Open(LPCTSTR path, UINT openFlags, CFileException* error)
{
    CFile::Abort();
    m_strFileName = path;
    const OpenMode mode = GetOpenMode(openFlags);
    m_hFile = CreateFileA(path, mode.access, mode.sharing, nullptr, mode.disposition, FILE_ATTRIBUTE_NORMAL,
                          nullptr);
    if (IsOpen())
        return TRUE;

    if (error) {
        error->m_lOsError = static_cast<LONG>(GetLastError());
        error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
        error->m_strFileName = m_strFileName;
    }
    return FALSE;
}

UINT CFile::Read(void* buffer, UINT count)
{
    DWORD read = 0;
    if (!ReadFile(m_hFile, buffer, count, &read, nullptr))
        Fail(GetLastError());
    return read;
}

void CFile::Write(const void* buffer, UINT count)
{
    if (const DWORD fault = GetFileFault(FileOperation::Write))
        Fail(fault);
    DWORD written = 0;
    if (!WriteFile(m_hFile, buffer, count, &written, nullptr))
        Fail(GetLastError());
    if (written != count)
        Fail(ERROR_DISK_FULL);
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from)
{
    LARGE_INTEGER distance;
    LARGE_INTEGER position;
    distance.QuadPart = offset;
    if (!SetFilePointerEx(m_hFile, distance, &position, from))
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
    if (const DWORD fault = GetFileFault(FileOperation::Flush))
        Fail(fault);
    if (!FlushFileBuffers(m_hFile))
        Fail(GetLastError());
}

void CFile::Close()
{
    if (!IsOpen())
        return;
    const DWORD fault = GetFileFault(FileOperation::Close);
    const bool closed = CloseHandle(std::exchange(m_hFile, INVALID_HANDLE_VALUE));
    if (fault)
        Fail(fault);
    if (!closed)
        Fail(GetLastError());
}

void CFile::Abort() noexcept
{
    if (IsOpen())
        CloseHandle(std::exchange(m_hFile, INVALID_HANDLE_VALUE));
}

void CFile::Fail(DWORD error) const
{
    ThrowFileException(error, m_strFileName);
}

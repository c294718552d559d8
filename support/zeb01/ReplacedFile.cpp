// Writes the new file beside the old one, and moves it there in one step.
#include "ReplacedFile.h"

#include "DirUtils.h"
#include "FileLink.h"

#include <FileFault.h>

#include <atomic>

namespace {

// Gives each name once in a process; the process's id keeps it apart from the names of other processes.
CString MakeTemporaryName()
{
    static std::atomic<unsigned> nCount;
    CString strName;
    strName.Format("zeb17-%lu-%u.tmp", static_cast<unsigned long>(GetCurrentProcessId()), ++nCount);
    return strName;
}

}

ReplacedFile::ReplacedFile(const CString& strPath) : m_strPlace(FollowLink(strPath))
{
    m_strFileName = strPath;
    const DWORD dwAttributes = GetFileAttributesA(m_strPlace);
    constexpr DWORD kProtected = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DEVICE;
    if (dwAttributes != INVALID_FILE_ATTRIBUTES && dwAttributes & kProtected)
        Fail(ERROR_ACCESS_DENIED);
    if (const DWORD nFault = GetFileFault(FileOperation::Create))
        Fail(nFault);

    CFile oldFile;
    const bool bOldFile = oldFile.Open(m_strPlace, modeRead);
    const CString strDirectory = DirUtils::ParsePathFromFile(m_strPlace);
    do {
        // A file of that name was left behind by a process that was killed and had the same id.
        m_strTemporary = DirUtils::JoinPath(strDirectory, MakeTemporaryName());
        m_hFile = CreateFileA(m_strTemporary, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL,
                              bOldFile ? oldFile.m_hFile : nullptr);
    } while (!IsOpen() && GetLastError() == ERROR_FILE_EXISTS);
    if (!IsOpen())
        Fail(GetLastError());
}

ReplacedFile::~ReplacedFile()
{
    Abort();
    if (!m_strTemporary.IsEmpty())
        DeleteFileA(m_strTemporary);
}

void ReplacedFile::Commit()
{
    Flush();
    Close();
    if (const DWORD nFault = GetFileFault(FileOperation::Rename))
        Fail(nFault);
    if (!MoveFileExA(m_strTemporary, m_strPlace, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        Fail(GetLastError());
    m_strTemporary.Empty();
}

// Writes the new file beside the old one, and moves it there in one step.
#include "ReplacedFile.h"

#include "DirUtils.h"
#include "FileLink.h"

#include <FileFault.h>

#include <algorithm>
#include <atomic>
#include <initializer_list>

namespace {

// The beginnings of the names of new files, by purpose. Leftovers of user data are found by theirs.
constexpr const char* kPrefixes[] = {"zeb17-", "zeb17-data-"};
constexpr const char* kSuffix = ".tmp";

// Gives each name once in a process; the process's id keeps it apart from the names of other processes.
CString MakeTemporaryName(ReplacedFile::Purpose purpose)
{
    static std::atomic<unsigned> nCount;
    CString strName;
    strName.Format("%s%lu-%u%s", kPrefixes[purpose], static_cast<unsigned long>(GetCurrentProcessId()),
                   ++nCount, kSuffix);
    return strName;
}

// Carries out the action; if it fails with one of these errors, which mean that another program uses the
// file, tries again for about a second.
template <class Action>
bool TryWhileInUse(std::initializer_list<DWORD> errorsInUse, Action action)
{
    constexpr int kTries = 20;
    constexpr DWORD kPause = 50; // ms
    for (int nTry = 1; !action(); ++nTry) {
        if (nTry == kTries || std::ranges::find(errorsInUse, GetLastError()) == errorsInUse.end())
            return false;
        Sleep(kPause);
    }
    return true;
}

// Opens the file as if to write to it, without keeping others from opening it.
HANDLE OpenOldFile(const CString& strPath)
{
    HANDLE hFile = INVALID_HANDLE_VALUE;
    TryWhileInUse({ERROR_SHARING_VIOLATION}, [&] {
        hFile = CreateFileA(strPath, GENERIC_READ | GENERIC_WRITE,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
        return hFile != INVALID_HANDLE_VALUE;
    });
    return hFile;
}

// A new file of user data is for the user alone, unless its folder says who may read new files: that is what
// attributes without a descriptor mean.
HANDLE CreateNewFile(const CString& strPath, ReplacedFile::Purpose purpose, HANDLE hOldFile)
{
    SECURITY_ATTRIBUTES userAlone = {sizeof(userAlone), nullptr, FALSE};
    return CreateFileA(strPath, GENERIC_WRITE, 0, purpose == ReplacedFile::UserData ? &userAlone : nullptr,
                       CREATE_NEW, FILE_ATTRIBUTE_NORMAL, hOldFile);
}

}

ReplacedFile::ReplacedFile(const CString& strPath, Purpose purpose) : m_strPlace(strPath)
{
    m_strFileName = strPath;
    if (const DWORD nFault = GetFileFault(FileOperation::Open))
        Fail(nFault);
    CFile oldFile;
    const bool bOldFile = GetFileAttributesA(strPath) != INVALID_FILE_ATTRIBUTES;
    if (bOldFile) {
        oldFile.m_hFile = OpenOldFile(strPath);
        if (oldFile.m_hFile == INVALID_HANDLE_VALUE)
            Fail(GetLastError());
        if (GetFileType(oldFile.m_hFile) != FILE_TYPE_DISK)
            Fail(ERROR_ACCESS_DENIED);
        if (IsLink(strPath))
            m_strPlace = GetPathOf(oldFile);
        if (m_strPlace.IsEmpty())
            Fail(GetLastError());
        // The read-only mark counts also for a user who may write to any file.
        if (GetFileAttributesA(m_strPlace) & FILE_ATTRIBUTE_READONLY)
            Fail(ERROR_ACCESS_DENIED);
    } else if (GetLastError() != ERROR_FILE_NOT_FOUND) {
        Fail(GetLastError());
    }

    if (const DWORD nFault = GetFileFault(FileOperation::Create))
        Fail(nFault);
    const CString strDirectory = DirUtils::ParsePathFromFile(m_strPlace);
    do {
        // A file of that name was left behind by a process that was killed and had the same id.
        m_strTemporary = DirUtils::JoinPath(strDirectory, MakeTemporaryName(purpose));
        m_hFile = CreateNewFile(m_strTemporary, purpose, bOldFile ? oldFile.m_hFile : nullptr);
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
    // On Windows a move is denied while another program has the file open and does not share its deletion.
    const bool bMoved = TryWhileInUse({ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}, [this] {
        return MoveFileExA(m_strTemporary, m_strPlace, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
               FALSE;
    });
    if (!bMoved)
        Fail(GetLastError());
    m_strTemporary.Empty();
}

void ReplacedFile::DeleteLeftovers(const CString& strPath)
{
    const CString strDirectory = DirUtils::ParsePathFromFile(FollowLink(strPath));
    WIN32_FIND_DATAA found;
    const HANDLE hSearch = FindFirstFileA(
        DirUtils::JoinPath(strDirectory, CString(kPrefixes[UserData]) + '*' + kSuffix), &found);
    if (hSearch == INVALID_HANDLE_VALUE)
        return;
    do
        DeleteFileA(DirUtils::JoinPath(strDirectory, found.cFileName));
    while (FindNextFileA(hSearch, &found));
    FindClose(hSearch);
}

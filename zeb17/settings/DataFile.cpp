// Reading and writing the data file. docs/data-file.md describes its bytes.
#include "CalendarSettings.h"

#include <AppLogger.h>
#include <DirUtils.h>
#include <FileUtils.h>
#include <MTAutoLock.h>
#include <ReplacedFile.h>
#include <SystemUtils.h>
#include <ZebrikUtils.h>

#include <algorithm>
#include <span>
#include <vector>

namespace {

using enum CalendarSettings::Group;

constexpr unsigned short kNewestVersion = 4;
constexpr WORD kFileWord = 3; // written, and skipped by the readers: the path alone tells them the form
constexpr int kBufferSize = 4096;

// The groups in the order of their sections in the file.
constexpr CalendarSettings::Group kGroups[] = {GroupUS, GroupCanada, GroupNetherlands, GroupCustom,
                                               GroupToDo};

// Files before version 4 have no to-do list.
constexpr auto kGroupsBeforeToDo = std::span(kGroups).first<4>();

[[noreturn]] void ThrowFileException(DWORD dwError, const CString& strPath)
{
    const auto lError = static_cast<LONG>(dwError);
    AfxThrowFileException(CFileException::OsErrorToException(lError), lError, strPath);
}

// Nothing is read while somebody else holds the lock, or if something else has the lock's name. If the system
// can make no lock at all, the file is read without: a save replaces it in one step, so what is read is
// whole.
void RequireLockToRead(const MTAutoLock& lock, const CString& strPath)
{
    const DWORD dwError = lock.GetError();
    if (dwError == ERROR_SHARING_VIOLATION || dwError == ERROR_FILE_INVALID)
        ThrowFileException(dwError, strPath);
    if (dwError != ERROR_SUCCESS && AppLogger::m_pInstance)
        AppLogger::m_pInstance->AddLine("{7C1D3A52-0B6E-4E0F-9A57-3D2B6F18C4E9}" +
                                        SystemUtils::GetLastError(dwError));
}

void RequireLockToWrite(const MTAutoLock& lock, const CString& strPath)
{
    if (lock.GetError() != ERROR_SUCCESS)
        ThrowFileException(lock.GetError(), strPath);
}

// A device is not read as a data file: it may have no content, or content without an end.
void RequireFile(const CFile& file, const CString& strPath)
{
    if (GetFileType(file.m_hFile) != FILE_TYPE_DISK)
        ThrowFileException(ERROR_ACCESS_DENIED, strPath);
}

void SkipWord(CArchive& archive)
{
    WORD wSkipped = 0;
    archive >> wSkipped;
}

// What the oldest form of the file keeps of a group: one colour and one show flag, under the group's name.
struct GroupSettings
{
    Dates* pGroup = nullptr;
    CString strName;
    DWORD dwColor = 0xFFFFFF;
    bool bShow = false;
};

}

bool CalendarSettings::GetReadFromDataFile(unsigned short& nVersion, CString& strPath) const
{
    for (nVersion = kNewestVersion; nVersion != 0; --nVersion) {
        strPath = ZebrikUtils::GetCalendarSettingsPath(nVersion);
        if (FileUtils::DoesFileExist(strPath))
            break;
    }
    return nVersion != 0;
}

bool CalendarSettings::Load()
{
    unsigned short nVersion = 0;
    CString strPath;
    if (!GetReadFromDataFile(nVersion, strPath))
        return false;

    const MTAutoLock lock(m_pMutex.get());
    RequireLockToRead(lock, strPath);
    CFile file(strPath, CFile::modeRead);
    RequireFile(file, strPath);
    if (file.GetLength() == 0) {
        file.Close();
        return false;
    }
    CArchive archive(&file, CArchive::load, kBufferSize, nullptr);
    switch (nVersion) {
    case 1:
        ReadDataFileVersion1(archive);
        break;
    case 2:
    case 3:
        ReadDataFileVersion2(archive);
        break;
    default:
        ReadDataFileVersion4(archive);
        break;
    }
    archive.Close();
    file.Close();
    return true;
}

bool CalendarSettings::Save()
{
    const CString strPath = ZebrikUtils::GetCalendarSettingsPath(kNewestVersion);
    if (FileUtils::DoesFileExist(strPath))
        FileUtils::EnsureFileIsWritable(strPath);
    else
        DirUtils::CreateDirectoryA(DirUtils::ParsePathFromFile(strPath));

    const MTAutoLock lock(m_pMutex.get());
    RequireLockToWrite(lock, strPath);
    ReplacedFile::DeleteLeftovers(strPath);
    ReplacedFile file(strPath, ReplacedFile::UserData);
    CArchive archive(&file, CArchive::store, kBufferSize, nullptr);
    archive << kFileWord;
    SerializeSections(archive, kGroups);
    archive << DatesCustom::s_nNextCustomID;
    archive.Close();
    file.Commit();
    return true;
}

void CalendarSettings::ReadDataFileVersion1(CArchive& archive)
{
    std::vector<GroupSettings> groups;
    for (const Group group : kGroupsBeforeToDo)
        groups.push_back({.pGroup = FindGroup(group), .strName = GetName(group)});
    GroupSettings other; // takes what the file says of groups that there are not
    const auto readGroup = [&]() -> GroupSettings& {
        CString strName;
        archive >> strName;
        const auto found = std::ranges::find(groups, strName, &GroupSettings::strName);
        return found == groups.end() ? other : *found;
    };

    SkipWord(archive);
    std::int32_t nColors = 0;
    archive >> nColors;
    for (std::int32_t i = 0; i < nColors; ++i)
        archive >> readGroup().dwColor;

    // This is the stored form of a CStringList. The names are read one by one, since a list of millions of
    // names would take much memory.
    const ULONGLONG nShown = archive.ReadCount();
    for (ULONGLONG i = 0; i < nShown; ++i)
        readGroup().bShow = true;

    m_DatesCustom.Serialize(archive);
    for (const GroupSettings& group : groups) {
        group.pGroup->SetAllColor(group.dwColor);
        group.pGroup->SetAllShow(group.bShow);
    }
}

void CalendarSettings::ReadDataFileVersion2(CArchive& archive)
{
    SkipWord(archive);
    SerializeSections(archive, kGroupsBeforeToDo);
    archive >> DatesCustom::s_nNextCustomID;
}

void CalendarSettings::ReadDataFileVersion4(CArchive& archive)
{
    SkipWord(archive);
    SerializeSections(archive, kGroups);
    archive >> DatesCustom::s_nNextCustomID;
}

void CalendarSettings::SerializeSections(CArchive& archive, std::span<const Group> groups)
{
    for (const Group group : groups)
        FindGroup(group)->Serialize(archive);
}

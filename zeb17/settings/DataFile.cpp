// Reading and writing the data file. docs/data-file.md describes its bytes.
#include "CalendarSettings.h"

#include <DirUtils.h>
#include <FileUtils.h>
#include <MTAutoLock.h>
#include <ReplacedFile.h>
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
    CFile file(strPath, CFile::modeRead);
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
    ReplacedFile file(strPath);
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

// The data file: its byte form is described in docs/data-file.md.
#include "CalendarSettings.h"

#include <DirUtils.h>
#include <FileUtils.h>
#include <MTAutoLock.h>
#include <ReplacedFile.h>
#include <ZebrikUtils.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr unsigned short kNewestVersion = 4;
constexpr WORD kFileWord = 3; // as written; readers go by the path alone
constexpr int kBufferSize = 4096;

void SkipWord(CArchive& archive)
{
    WORD wSkipped = 0;
    archive >> wSkipped;
}

// The oldest form keeps one colour and one show flag a group, under the group's name.
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
    m_DatesUS.Serialize(archive);
    m_DatesCanada.Serialize(archive);
    m_DatesNetherlands.Serialize(archive);
    m_DatesCustom.Serialize(archive);
    m_DatesToDo.Serialize(archive);
    archive << DatesCustom::s_nNextCustomID;
    archive.Close();
    file.Commit();
    return true;
}

void CalendarSettings::ReadDataFileVersion1(CArchive& archive)
{
    GroupSettings groups[] = {{&m_DatesUS, GetName(GroupUS)},
                              {&m_DatesCanada, GetName(GroupCanada)},
                              {&m_DatesNetherlands, GetName(GroupNetherlands)},
                              {&m_DatesCustom, GetName(GroupCustom)}};
    GroupSettings other; // takes what belongs to no group
    const auto readGroup = [&]() -> GroupSettings& {
        CString strName;
        archive >> strName;
        const auto group = std::ranges::find(groups, strName, &GroupSettings::strName);
        return group == std::end(groups) ? other : *group;
    };

    SkipWord(archive);
    std::int32_t nColors = 0;
    archive >> nColors;
    for (std::int32_t i = 0; i < nColors; ++i)
        archive >> readGroup().dwColor;

    // The stored form of a CStringList, read name by name: a list of millions of names would take memory.
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
    m_DatesUS.Serialize(archive);
    m_DatesCanada.Serialize(archive);
    m_DatesNetherlands.Serialize(archive);
    m_DatesCustom.Serialize(archive);
    archive >> DatesCustom::s_nNextCustomID;
}

void CalendarSettings::ReadDataFileVersion4(CArchive& archive)
{
    SkipWord(archive);
    m_DatesUS.Serialize(archive);
    m_DatesCanada.Serialize(archive);
    m_DatesNetherlands.Serialize(archive);
    m_DatesCustom.Serialize(archive);
    m_DatesToDo.Serialize(archive);
    archive >> DatesCustom::s_nNextCustomID;
}

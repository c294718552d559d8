// Loads any bytes as the data file of one version (PATH_VERSION), and uses what was loaded.
#include "FuzzDirectory.h"

#include <CalendarSettings.h>
#include <ZebrikUtils.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

using enum CalendarSettings::Group;

constexpr CalendarSettings::Group kGroups[] = {GroupUS, GroupCanada, GroupNetherlands, GroupCustom,
                                               GroupToDo};

fs::path PathOf(unsigned short nVersion)
{
    return ZebrikUtils::GetCalendarSettingsPath(nVersion).GetString();
}

// The only failures that a damaged file may end in.
bool Load(CalendarSettings& settings)
{
    try {
        return settings.Load();
    } catch (CArchiveException* pException) {
        pException->Delete();
    } catch (const std::length_error&) {
    }
    return false;
}

std::string Save(CalendarSettings& settings)
{
    settings.Save();
    std::ifstream file(PathOf(4), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Use(CalendarSettings& settings)
{
    constexpr int nMin = std::numeric_limits<int>::min();
    constexpr int nMax = std::numeric_limits<int>::max();
    const struct
    {
        int nDay, nMonth, nYear;
    } dates[] = {{1, 1, 2026}, {31, 12, 9999},     {15, 10, 1582},
                 {4, 4, 2021}, {nMax, nMax, nMax}, {nMin, nMin, nMin}};
    for (const auto& date : dates) {
        DWORD dwColor = 0;
        settings.GetDateDesc(date.nDay, date.nMonth, date.nYear, dwColor);
    }
    for (const auto group : kGroups) {
        for (std::size_t i = 0; i < settings.GetCount(group); ++i)
            settings.GetAt(group, i)->IsValid();
    }
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const FuzzDirectory directory;
    fs::remove(PathOf(4));
    std::ofstream(PathOf(PATH_VERSION), std::ios::binary)
        .write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));

    CalendarSettings settings;
    const bool bLoaded = Load(settings);
    Use(settings);
    if (!bLoaded)
        return 0;

    // What a file holds survives being saved and loaded again.
    const std::string strSaved = Save(settings);
    CalendarSettings reloaded;
    if (!Load(reloaded) || Save(reloaded) != strSaved)
        std::abort();
    return 0;
}

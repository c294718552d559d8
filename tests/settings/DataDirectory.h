// A data directory of the test's own, and the files in it.
#pragma once

#include <DatesCustom.h>
#include <DatesToDo.h>
#include <TemporaryDirectory.h>
#include <ZebrikUtils.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

class DataDirectory : public testing::Test
{
protected:
    static constexpr int kFalse = -1; // no file to load

    DataDirectory()
    {
        UseDirectory(m_root / "data");
        DatesCustom::s_nNextCustomID = 10000;
        DatesToDo::s_nNextToDoID = 11000;
    }
    ~DataDirectory() override { ZebrikUtils::SetDataDirectory(""); }

    void UseDirectory(const std::filesystem::path& directory)
    {
        m_directory = directory;
        ZebrikUtils::SetDataDirectory(directory.string().c_str());
    }

    // The cause of the CFileException with which a load or a save fails, which must name the data file.
    static int CauseOf(const std::function<bool()>& action)
    {
        try {
            return action() ? int(CFileException::none) : kFalse;
        } catch (CFileException* pException) {
            const int nCause = pException->m_cause;
            EXPECT_EQ(pException->m_strFileName, ZebrikUtils::GetCalendarSettingsPath(4));
            pException->Delete();
            return nCause;
        }
    }

    static std::filesystem::path PathOf(unsigned short nVersion)
    {
        return ZebrikUtils::GetCalendarSettingsPath(nVersion).GetString();
    }

    void WriteFile(unsigned short nVersion, const std::string& strContent) const
    {
        std::filesystem::create_directories(m_directory);
        std::ofstream(PathOf(nVersion), std::ios::binary) << strContent;
    }

    static std::string ReadFile(unsigned short nVersion)
    {
        std::ifstream file(PathOf(nVersion), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::vector<std::string> NamesInDirectory() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_directory))
            names.push_back(entry.path().filename().string());
        return names;
    }

    const TemporaryDirectory m_temporary;
    const std::filesystem::path m_root = m_temporary.PathOf("");
    std::filesystem::path m_directory;
};

// Error texts and the paths of the data file.
#include <SystemUtils.h>
#include <ZebrikUtils.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

TEST(SystemUtils, GivesTheTextOfAnError)
{
    SetLastError(ERROR_FILE_NOT_FOUND);
    const CString last = SystemUtils::GetLastError(0);
    EXPECT_EQ(last, SystemUtils::GetLastError(ERROR_FILE_NOT_FOUND));
    EXPECT_NE(last, SystemUtils::GetLastError(ERROR_ACCESS_DENIED));
    EXPECT_GT(last.GetLength(), 8);
    EXPECT_EQ(last.FindOneOf("\r\n"), -1);
    EXPECT_NE(SystemUtils::GetLastError(0xDEADBEEF), "");
}

TEST(ZebrikUtils, GivesEachVersionItsPath)
{
    std::set<std::string> paths;
    for (unsigned short version = 1; version <= 4; ++version) {
        const CString path = ZebrikUtils::GetCalendarSettingsPath(version);
        EXPECT_NE(path.Find("zeb17"), -1);
        EXPECT_EQ(path, ZebrikUtils::GetCalendarSettingsPath(version));
        paths.insert(path.GetString());
    }
    EXPECT_EQ(paths.size(), 4u);
    EXPECT_EQ(ZebrikUtils::GetCalendarSettingsPath(0), "");
    EXPECT_EQ(ZebrikUtils::GetCalendarSettingsPath(5), "");

    ZebrikUtils::SetDataDirectory("elsewhere");
    EXPECT_EQ(ZebrikUtils::GetCalendarSettingsPath(4).Find("elsewhere"), 0);
    ZebrikUtils::SetDataDirectory("");
    EXPECT_EQ(paths.count(ZebrikUtils::GetCalendarSettingsPath(4).GetString()), 1u);
}

}

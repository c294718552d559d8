// Error texts, the log, modules, memory and time.
#include <AppLogger.h>
#include <SystemUtils.h>
#include <ZebrikUtils.h>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

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

class MemoryLogger : public AppLogger
{
public:
    void AddLine(const CString& strLine) override { m_lines.push_back(strLine.GetString()); }

    std::vector<std::string> m_lines;
};

TEST(AppLogger, IsTheHosts)
{
    EXPECT_EQ(AppLogger::m_pInstance, nullptr);
    MemoryLogger logger;
    AppLogger::m_pInstance = &logger;
    AppLogger::m_pInstance->AddLine("{1}");
    AppLogger::m_pInstance = nullptr;
    EXPECT_EQ(logger.m_lines, std::vector<std::string>{"{1}"});
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

TEST(Modules, AreFoundByName)
{
    EXPECT_NE(GetModuleHandleA(nullptr), nullptr);
    HMODULE module = GetModuleHandleA(nullptr);
    EXPECT_FALSE(
        GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT, "no-such-module.dll", &module));
    EXPECT_EQ(module, nullptr);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_MOD_NOT_FOUND));
}

TEST(Memory, KnowsItsSize)
{
    const HGLOBAL memory = GlobalAlloc(GHND, 100);
    ASSERT_NE(memory, nullptr);
    EXPECT_GE(GlobalSize(memory), 100u);
    auto* bytes = static_cast<char*>(GlobalLock(memory));
    EXPECT_EQ(std::string(bytes, 100), std::string(100, '\0'));
    GlobalUnlock(memory);
    EXPECT_EQ(GlobalFree(memory), nullptr);
}

TEST(Time, Passes)
{
    SYSTEMTIME time;
    GetLocalTime(&time);
    EXPECT_GE(time.wYear, 2024);
    EXPECT_TRUE(time.wMonth >= 1 && time.wMonth <= 12 && time.wDay >= 1 && time.wDay <= 31);
    EXPECT_TRUE(time.wHour <= 23 && time.wMinute <= 59 && time.wDayOfWeek <= 6);
    const ULONGLONG start = GetTickCount64();
    Sleep(30);
    const ULONGLONG passed = GetTickCount64() - start;
    EXPECT_TRUE(passed >= 10 && passed < 5000) << passed;
}

}

// The lock of the data file: how long others are waited for, where it lies, and what happens where there is
// none.
#include "DataDirectory.h"
#include "MarkedSettings.h"
#include "Worker.h"

#include <RecordingLogger.h>

#include <chrono>
#include <functional>
#include <future>

#ifndef _WIN32
#include <folders.h>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

class DataLock : public DataDirectory
{
protected:
    static int CauseOfLoad()
    {
        return CauseOf([] { return CalendarSettings().Load(); });
    }
    static int CauseOfSave()
    {
        return CauseOf([] { return CalendarSettings().Save(); });
    }

    ~DataLock() override { LockHome::Set(m_strHome); }

    // Another home, of the test's own.
    fs::path UseHome(const char* szName)
    {
        const fs::path home = m_root / szName;
        fs::create_directories(home);
        LockHome::Set(home.string());
        return home;
    }

    const std::string m_strHome = LockHome::Get();
};

}

TEST_F(DataLock, IsWaitedForAFewSeconds)
{
    ASSERT_EQ(CauseOfSave(), CFileException::none);
    std::ofstream(m_directory / "hold").close();
    auto holder = std::async(std::launch::async, [this] { return RunWorker(m_directory, "hold 0 0"); });
    for (int i = 0; i < 2000 && !fs::exists(m_directory / "held"); ++i)
        Sleep(10);
    ASSERT_TRUE(fs::exists(m_directory / "held"));

    const auto start = std::chrono::steady_clock::now();
    auto load = std::async(std::launch::async, CauseOfLoad);
    EXPECT_EQ(CauseOfSave(), CFileException::sharingViolation);
    EXPECT_EQ(load.get(), CFileException::sharingViolation);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(15));

    fs::remove(m_directory / "hold");
    EXPECT_EQ(holder.get(), 0);
    EXPECT_EQ(CauseOfLoad(), CFileException::none);
    EXPECT_EQ(CauseOfSave(), CFileException::none);
}

#ifndef _WIN32
TEST_F(DataLock, LiesInTheHomeOfTheUserWhateverTheEnvironmentSays)
{
    const std::string home = ::getpwuid(::geteuid())->pw_dir;
    const char* const szHome = std::getenv("HOME");
    const std::string before = szHome ? szHome : "";
    ::setenv("HOME", "/nowhere", 1);
    EXPECT_EQ(winapi::homeOfUser(), home);
    ::setenv("HOME", before.c_str(), 1);
}

TEST_F(DataLock, IsThereOnlyWhileItIsHeld)
{
    const fs::path home = UseHome("home");
    CalendarSettings settings;
    EXPECT_TRUE(fs::is_empty(home)) << "construction touches no file";
    EXPECT_TRUE(settings.Save());
    EXPECT_TRUE(settings.Load());
    EXPECT_TRUE(fs::is_empty(home));

    HANDLE mutex = CreateMutexA(nullptr, FALSE, "zeb17data");
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    struct stat folder;
    struct stat file;
    EXPECT_EQ(::stat((home / ".zeb17-locks").c_str(), &folder), 0);
    EXPECT_EQ(::stat((home / ".zeb17-locks/mutex.zeb17data").c_str(), &file), 0);
    EXPECT_EQ(folder.st_mode & 0777, 0700U);
    EXPECT_EQ(file.st_mode & 0777, 0600U);

    // Who takes the file away while the lock is held doesn't free the lock for its holder's thread, and takes
    // nothing from those who come later.
    fs::remove_all(home / ".zeb17-locks");
    ReleaseMutex(mutex);
    EXPECT_EQ(WaitForSingleObject(mutex, 0), WAIT_OBJECT_0);
    ReleaseMutex(mutex);
    CloseHandle(mutex);
    EXPECT_TRUE(fs::is_empty(home));
}

TEST_F(DataLock, IsRefusedWhereSomethingElseStandsInItsPlace)
{
    ASSERT_EQ(CauseOfSave(), CFileException::none);
    const fs::path victim = m_root / "victim";
    std::ofstream(victim) << "precious";
    fs::permissions(victim, fs::perms::owner_read | fs::perms::owner_write);
    const auto makeFile = [](const fs::path& path, fs::perms mode) {
        std::ofstream(path).close();
        fs::permissions(path, mode);
    };
    using Place = std::function<void(const fs::path& folder, const fs::path& file)>;
    const std::pair<const char*, Place> places[] = {
        {"folder-link", [&](auto& folder, auto&) { fs::remove(folder), fs::create_symlink(m_root, folder); }},
        {"folder-file", [&](auto& folder, auto&) { fs::remove(folder), makeFile(folder, fs::perms(0700)); }},
        {"folder-open", [](auto& folder, auto&) { fs::permissions(folder, fs::perms::all); }},
        {"link", [&](auto&, auto& file) { fs::create_symlink(victim, file); }},
        {"second-name", [&](auto&, auto& file) { fs::create_hard_link(victim, file); }},
        {"content", [&](auto&, auto& file) { fs::copy_file(victim, file); }},
        {"directory", [](auto&, auto& file) { fs::create_directory(file); }},
        {"pipe", [](auto&, auto& file) { ::mkfifo(file.c_str(), 0600); }},
        {"open-to-others", [&](auto&, auto& file) { makeFile(file, fs::perms(0644)); }},
        {"of-somebody-else",
         [&](auto&, auto& file) {
             makeFile(file, fs::perms(0600));
             if (::chown(file.c_str(), 65534, 65534) != 0)
                 fs::permissions(file, fs::perms(0644));
         }},
    };
    for (const auto& [szName, place] : places) {
        const fs::path folder = UseHome(szName) / ".zeb17-locks";
        fs::create_directory(folder);
        fs::permissions(folder, fs::perms::owner_all);
        place(folder, folder / "mutex.zeb17data");
        EXPECT_EQ(CauseOfLoad(), CFileException::invalidFile) << szName;
        EXPECT_EQ(CauseOfSave(), CFileException::invalidFile) << szName;
    }
    std::ifstream file(victim);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "precious");
}

TEST_F(DataLock, IsMissedByASaveAndNotByALoadWhereNoneCanBeMade)
{
    ASSERT_EQ(CauseOfSave(), CFileException::none);
    const std::string strBefore = ReadFile(4);
    LockHome::Set((m_root / "no-home").string());
    RecordingLogger log;
    EXPECT_EQ(CauseOfLoad(), CFileException::none);
    EXPECT_EQ(log.m_lines.size(), 1U);
    EXPECT_NE(CauseOfSave(), CFileException::none);
    EXPECT_TRUE(ReadFile(4) == strBefore);
    EXPECT_EQ(NamesInDirectory().size(), 1U);
}
#endif

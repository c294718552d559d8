// What stands at the place of the data file, and who may do what with it.
#include "DataDirectory.h"
#include "MarkedSettings.h"

#include <gtest/gtest.h>

#include <functional>
#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

constexpr int kFalse = -1; // Load gives false

int CauseOf(const std::function<bool()>& action)
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

class DataPlace : public DataDirectory
{
protected:
    DataPlace()
    {
        fs::create_directories(m_directory);
        SetMark(m_settings, 1);
    }

    int CauseOfLoad()
    {
        return CauseOf([this] { return m_settings.Load(); });
    }
    int CauseOfSave()
    {
        return CauseOf([this] { return m_settings.Save(); });
    }

    CalendarSettings m_settings;
};

}

TEST_F(DataPlace, TakenByADirectoryFailsBothWays)
{
    fs::create_directory(PathOf(4));
    EXPECT_EQ(CauseOfLoad(), CFileException::accessDenied);
    EXPECT_EQ(CauseOfSave(), CFileException::accessDenied);
    EXPECT_EQ(NamesInDirectory().size(), 1U);
}

// A scanner or a backup opens the file for a moment, and lets others neither write nor delete.
TEST_F(DataPlace, HeldOpenByAnotherProgramIsTriedAgainForAMoment)
{
    ASSERT_EQ(CauseOfSave(), CFileException::none);
    for (const DWORD dwShare : {FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE}) {
        HANDLE hFile = CreateFileA(PathOf(4).string().c_str(), GENERIC_READ, dwShare, nullptr, OPEN_EXISTING,
                                   FILE_ATTRIBUTE_NORMAL, nullptr);
        ASSERT_NE(hFile, INVALID_HANDLE_VALUE);
        std::thread scanner([hFile] {
            Sleep(300);
            CloseHandle(hFile);
        });
        EXPECT_EQ(CauseOfSave(), CFileException::none) << dwShare;
        scanner.join();
    }
#ifdef _WIN32
    const std::string strBefore = ReadFile(4);
    const CFile file(PathOf(4).string().c_str(), CFile::modeRead);
    EXPECT_EQ(CauseOfSave(), CFileException::sharingViolation) << "but not for ever";
    EXPECT_TRUE(ReadFile(4) == strBefore);
    EXPECT_EQ(NamesInDirectory().size(), 1U);
#endif
}

#ifndef _WIN32
namespace {

struct stat StatusOf(const fs::path& path)
{
    struct stat status = {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
    return status;
}

}

TEST_F(DataPlace, TakenByWhatIsNoFileFailsWithoutWaiting)
{
    const struct
    {
        const char* szWhat;
        std::function<void(const fs::path&)> make;
        int nLoad, nSave;
    } cases[] = {
        {"a pipe", [](const fs::path& path) { ::mkfifo(path.c_str(), 0600); }, CFileException::accessDenied,
         CFileException::accessDenied},
        {"a link to a pipe",
         [](const fs::path& path) {
             ::mkfifo((path.parent_path() / "pipe").c_str(), 0600);
             fs::create_symlink("pipe", path);
         },
         CFileException::accessDenied, CFileException::accessDenied},
        {"a link to a device", [](const fs::path& path) { fs::create_symlink("/dev/zero", path); },
         CFileException::accessDenied, CFileException::accessDenied},
        {"a link to a directory", [](const fs::path& path) { fs::create_directory_symlink(".", path); },
         CFileException::accessDenied, CFileException::accessDenied},
        {"a link that leads nowhere", [](const fs::path& path) { fs::create_symlink("nowhere", path); },
         kFalse, CFileException::fileNotFound},
        {"a link into no directory", [](const fs::path& path) { fs::create_symlink("no/where", path); },
         kFalse, CFileException::fileNotFound},
        {"a link to itself", [](const fs::path& path) { fs::create_symlink(path.filename(), path); }, kFalse,
         CFileException::badPath},
    };
    for (const auto& c : cases) {
        UseDirectory(m_root / c.szWhat);
        fs::create_directories(m_directory);
        c.make(PathOf(4));
        const auto status = fs::symlink_status(PathOf(4)).type();
        const auto names = NamesInDirectory();
        EXPECT_EQ(CauseOfLoad(), c.nLoad) << c.szWhat;
        EXPECT_EQ(CauseOfSave(), c.nSave) << c.szWhat;
        EXPECT_EQ(fs::symlink_status(PathOf(4)).type(), status) << c.szWhat;
        EXPECT_EQ(NamesInDirectory(), names) << c.szWhat;
    }
}

TEST_F(DataPlace, IsMadeForTheUserAlone)
{
    const mode_t before = ::umask(0022);
    UseDirectory(m_root / "new" / "data");
    EXPECT_EQ(CauseOfSave(), CFileException::none);
    EXPECT_EQ(StatusOf(m_root / "new").st_mode & 0777, 0700U);
    EXPECT_EQ(StatusOf(m_directory).st_mode & 0777, 0700U);
    EXPECT_EQ(StatusOf(PathOf(4)).st_mode & 0777, 0600U);

    fs::permissions(PathOf(4), fs::perms(0640));
    EXPECT_EQ(CauseOfSave(), CFileException::none);
    EXPECT_EQ(StatusOf(PathOf(4)).st_mode & 0777, 0640U) << "what the user opened stays open";
    ::umask(before);
}

TEST_F(DataPlace, KeepsItsOwnerWhoeverSaves)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can give files away";
    ASSERT_EQ(CauseOfSave(), CFileException::none);
    ASSERT_EQ(::chown(PathOf(4).c_str(), 65534, 65533), 0);
    EXPECT_EQ(CauseOfSave(), CFileException::none);
    EXPECT_EQ(StatusOf(PathOf(4)).st_uid, 65534U);
    EXPECT_EQ(StatusOf(PathOf(4)).st_gid, 65533U);
    EXPECT_EQ(StatusOf(PathOf(4)).st_mode & 0777, 0600U);
}
#endif

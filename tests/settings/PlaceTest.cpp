// What stands at the place of the data file, and who may do what with it.
#include "DataDirectory.h"
#include "MarkedSettings.h"

#include <thread>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

namespace fs = std::filesystem;

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
        const char* szTarget; // of the link at the place of the file; null for a pipe there
        int nLoad, nSave;
    } cases[] = {
        {"a pipe", nullptr, CFileException::accessDenied, CFileException::accessDenied},
        {"a link to a pipe", "pipe", CFileException::accessDenied, CFileException::accessDenied},
        {"a link to a device", "/dev/zero", CFileException::accessDenied, CFileException::accessDenied},
        {"a link to a directory", ".", CFileException::accessDenied, CFileException::accessDenied},
        {"a link that leads nowhere", "nowhere", kFalse, CFileException::fileNotFound},
        {"a link into no directory", "no/where", kFalse, CFileException::fileNotFound},
        {"a link to itself", "calendar4.dat", kFalse, CFileException::badPath},
    };
    for (const auto& c : cases) {
        UseDirectory(m_root / c.szWhat);
        fs::create_directories(m_directory);
        ::mkfifo((m_directory / "pipe").c_str(), 0600);
        if (c.szTarget)
            fs::create_symlink(c.szTarget, PathOf(4));
        else
            fs::rename(m_directory / "pipe", PathOf(4));
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
#endif

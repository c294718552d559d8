// What a save leaves when it dies on the way, and when others work on the same file.
#include "DataDirectory.h"
#include "MarkedSettings.h"
#include "Worker.h"

#include <future>
#include <vector>

namespace {

constexpr int kOld = 1;
constexpr int kNew = 3;

class Save : public DataDirectory
{
protected:
    // What a save of that mark writes.
    std::string ContentOf(int nMark)
    {
        UseDirectory(m_root / ("mark" + std::to_string(nMark)));
        CalendarSettings settings;
        SetMark(settings, nMark);
        EXPECT_TRUE(settings.Save());
        return ReadFile(4);
    }

    int LoadMark()
    {
        CalendarSettings settings;
        return settings.Load() ? MarkOf(settings) : 0;
    }

    int CauseOfLoad()
    {
        return CauseOf([] { return CalendarSettings().Load(); });
    }
    int CauseOfSave(CalendarSettings& settings)
    {
        return CauseOf([&settings] { return settings.Save(); });
    }
};

}

TEST_F(Save, LeavesTheOldOrTheNewFileWhenItsProcessDies)
{
    const std::string strOld = ContentOf(kOld);
    const std::string strNew = ContentOf(kNew);
    UseDirectory(m_root / "data");
    int nOperation = 1;
    for (;; ++nOperation) {
        WriteFile(4, strOld);
        const int nExit =
            RunWorker(m_directory, "die " + std::to_string(kNew) + ' ' + std::to_string(nOperation));
        if (nExit == 0)
            break;
        ASSERT_EQ(nExit, 9);
        ASSERT_TRUE(ReadFile(4) == strOld) << "operation " << nOperation;
        ASSERT_EQ(LoadMark(), kOld) << "and the mutex is free";
    }
    EXPECT_GE(nOperation, 8);
    EXPECT_TRUE(ReadFile(4) == strNew);
    EXPECT_EQ(LoadMark(), kNew);
    EXPECT_EQ(NamesInDirectory().size(), 1U) << "what the dead left beside is gone";
}

TEST_F(Save, SharesTheFileWithOtherProcesses)
{
    ContentOf(kOld);
    constexpr int kWorkers = 4;
    std::vector<std::future<int>> workers;
    for (int nMark = 1; nMark <= kWorkers; ++nMark) {
        workers.push_back(std::async(std::launch::async, [this, nMark] {
            return RunWorker(m_directory, "share " + std::to_string(nMark) + " 25");
        }));
    }
    for (int i = 0; i < 25; ++i) {
        const int nMark = LoadMark();
        EXPECT_TRUE(nMark >= 1 && nMark <= kWorkers) << "a torn file, or a counter of another save";
    }
    for (auto& worker : workers)
        EXPECT_EQ(worker.get(), 0);
    EXPECT_EQ(NamesInDirectory().size(), 1U);
}

TEST_F(Save, MakesMissingDirectoriesAndOverwritesAReadOnlyFile)
{
    UseDirectory(m_root / "several" / "levels" / "deep");
    for (const int nMark : {kOld, kNew}) {
        CalendarSettings marked;
        SetMark(marked, nMark);
        EXPECT_EQ(CauseOfSave(marked), CFileException::none);
        EXPECT_EQ(LoadMark(), nMark);
        SetFileAttributesA(PathOf(4).string().c_str(), FILE_ATTRIBUTE_READONLY);
    }
}

TEST_F(Save, FailsWhereSomethingElseStands)
{
    CalendarSettings settings;
    std::filesystem::create_directories(PathOf(4) / "inside");
    EXPECT_EQ(CauseOfLoad(), CFileException::accessDenied);
    EXPECT_EQ(CauseOfSave(settings), CFileException::accessDenied) << "a directory for the file";
    EXPECT_TRUE(std::filesystem::is_directory(PathOf(4) / "inside"));
    EXPECT_EQ(NamesInDirectory().size(), 1U);

    std::ofstream(m_root / "file") << "x";
    UseDirectory(m_root / "file" / "data");
    EXPECT_EQ(CauseOfSave(settings), CFileException::badPath) << "a file for a directory";
}

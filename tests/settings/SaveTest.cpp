// What a save leaves when it fails or dies on the way, and when others work on the same file.
#include "DataDirectory.h"
#include "MarkedSettings.h"
#include "Worker.h"

#include <FileUtils.h>
#include <FullDisk.h>

#include <cstdlib>
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

    // From another thread, since the mutex lets the same one in.
    bool IsMutexFree()
    {
        auto load = std::async(std::launch::async, [] {
            try {
                CalendarSettings().Load();
            } catch (CFileException* pException) { // of a file that no user may read
                pException->Delete();
            }
        });
        if (load.wait_for(std::chrono::seconds(20)) == std::future_status::ready)
            return true;
        std::cerr << "The mutex is held." << std::endl;
        std::_Exit(EXIT_FAILURE); // the thread can't be ended
    }

    // The cause of the failure with which the save ended, none if it came through.
    int SaveAndCatch(CalendarSettings& settings)
    {
        try {
            EXPECT_TRUE(settings.Save());
            return CFileException::none;
        } catch (CFileException* pException) {
            const int nCause = pException->m_cause;
            EXPECT_EQ(pException->m_strFileName, ZebrikUtils::GetCalendarSettingsPath(4));
            pException->Delete();
            return nCause;
        }
    }
};

}

TEST_F(Save, KeepsTheOldFileWhenAnyOperationFails)
{
    const std::string strOld = ContentOf(kOld);
    const std::string strNew = ContentOf(kNew);
    UseDirectory(m_root / "data");
    WriteFile(4, strOld);

    CalendarSettings settings;
    SetMark(settings, kNew);
    std::vector<FileOperation> failed;
    for (int nOperation = 1;; ++nOperation) {
        const FullDisk disk(nOperation);
        DatesCustom::s_nNextCustomID = 20000 + kNew; // since IsMutexFree loads the old one
        const int nCause = SaveAndCatch(settings);
        if (nCause == CFileException::none)
            break;
        failed.push_back(FullDisk::s_failed);
        ASSERT_EQ(nCause, CFileException::diskFull);
        ASSERT_TRUE(ReadFile(4) == strOld) << "operation " << nOperation;
        ASSERT_EQ(NamesInDirectory().size(), 1U) << "what was written beside is gone";
        ASSERT_TRUE(IsMutexFree());
    }
    EXPECT_TRUE(ReadFile(4) == strNew);
    EXPECT_EQ(NamesInDirectory().size(), 1U);

    ASSERT_GE(failed.size(), 7U);
    EXPECT_EQ(failed[0], FileOperation::Open);
    EXPECT_EQ(failed[1], FileOperation::Create);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), FileOperation::Write),
              static_cast<std::ptrdiff_t>((strNew.size() + 4095) / 4096));
    const std::vector end(failed.end() - 3, failed.end());
    EXPECT_EQ(end, (std::vector{FileOperation::Flush, FileOperation::Close, FileOperation::Rename}));
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
        EXPECT_EQ(SaveAndCatch(marked), CFileException::none);
        EXPECT_EQ(LoadMark(), nMark);
        SetFileAttributesA(PathOf(4).string().c_str(), FILE_ATTRIBUTE_READONLY);
    }
}

TEST_F(Save, FailsWhereSomethingElseStands)
{
    CalendarSettings settings;
    std::filesystem::create_directories(PathOf(4) / "inside");
    EXPECT_EQ(SaveAndCatch(settings), CFileException::accessDenied) << "a directory for the file";
    EXPECT_TRUE(std::filesystem::is_directory(PathOf(4) / "inside"));
    EXPECT_EQ(NamesInDirectory().size(), 1U);
    EXPECT_TRUE(IsMutexFree());

    std::ofstream(m_root / "file") << "x";
    UseDirectory(m_root / "file" / "data");
    EXPECT_EQ(SaveAndCatch(settings), CFileException::badPath) << "a file for a directory";
}

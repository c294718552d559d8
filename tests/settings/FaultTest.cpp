// Every step of writing a file fails in turn: the old content or the new is there whole, and nothing beside
// it.
#include "CountedNew.h"
#include "DataDirectory.h"
#include "FileBytes.h"
#include "MarkedSettings.h"

#include <FileUtils.h>
#include <FullDisk.h>
#include <MTAutoLock.h>
#include <TextArray.h>

#include <functional>
#include <future>
#include <new>

#ifndef _WIN32
#include "SystemCalls.h"
#endif

namespace {

class Faults : public DataDirectory
{
protected:
    Faults()
    {
        std::filesystem::create_directories(m_directory);
        SetMark(m_settings, 2);
        for (int i = 0; i < 500; ++i)
            m_lines.Add("<td>One of many lines</td>");
    }

    bool Save() { return m_settings.Save(); }
    bool WritePage()
    {
        return FileUtils::WriteFileContent((m_directory / "page.html").string().c_str(), m_lines, false, 0);
    }

    static std::string Read(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // From another thread, since the mutex lets the same one in.
    static bool IsMutexFree()
    {
        const auto lock = [] {
            MTMutex mutex(false, "zeb17data", nullptr);
            return MTAutoLock(&mutex).GetError();
        };
        return std::async(std::launch::async, lock).get() == ERROR_SUCCESS;
    }

    // nLeft counts the steps down, and the one that makes it 0 fails. Gives how many steps there are.
    template <class Counter>
    int FailEachStep(Counter& nLeft, const std::filesystem::path& path, const std::function<bool()>& write)
    {
        EXPECT_TRUE(write());
        const std::string strNew = Read(path);
        for (int nStep = 1;; ++nStep) {
            std::ofstream(path, std::ios::binary) << "old";
            bool bWritten = false;
            CException* pException = nullptr;
            nLeft = nStep;
            try {
                bWritten = write();
            } catch (CException* pThrown) {
                pException = pThrown;
            } catch (const std::bad_alloc&) {
            }
            const bool bFailed = nLeft <= 0;
            nLeft = -1;
            if (pException)
                pException->Delete();
            EXPECT_TRUE(Read(path) == (bWritten ? strNew : "old")) << "step " << nStep;
            EXPECT_EQ(NamesInDirectory().size(), 1U) << "step " << nStep;
            EXPECT_TRUE(IsMutexFree()) << "step " << nStep;
            if (!bFailed) {
                EXPECT_TRUE(bWritten);
                std::filesystem::remove(path);
                return nStep - 1;
            }
            if (HasFailure())
                return 0;
        }
    }

    CalendarSettings m_settings;
    TextArray m_lines;
};

}

TEST_F(Faults, OfTheHeapLeaveTheFileWhole)
{
    EXPECT_GE(FailEachStep(g_nAllocationsLeft, PathOf(4), [this] { return Save(); }), 1);
    EXPECT_GE(FailEachStep(g_nAllocationsLeft, m_directory / "page.html", [this] { return WritePage(); }), 1);
}

TEST_F(Faults, OfTheDiskLeaveTheFileWhole)
{
    const FullDisk disk(0);
    std::vector<FileOperation> failed;
    const auto save = [&] {
        const int nCause = CauseOf([this] { return Save(); });
        if (nCause == CFileException::none)
            return true;
        EXPECT_EQ(nCause, CFileException::diskFull);
        failed.push_back(FullDisk::s_failed);
        return false;
    };
    EXPECT_GE(FailEachStep(FullDisk::s_operationsLeft, PathOf(4), save), 7);
    EXPECT_EQ(failed[0], FileOperation::Open);
    EXPECT_EQ(failed[1], FileOperation::Create);
    EXPECT_EQ(std::count(failed.begin(), failed.end(), FileOperation::Write),
              static_cast<std::ptrdiff_t>((SavedBytesOf(m_settings).size() + 4095) / 4096));
    const std::vector end(failed.end() - 3, failed.end());
    EXPECT_EQ(end, (std::vector{FileOperation::Flush, FileOperation::Close, FileOperation::Rename}));
    EXPECT_EQ(
        FailEachStep(FullDisk::s_operationsLeft, m_directory / "page.html", [this] { return WritePage(); }),
        6);
}

#ifndef _WIN32
// Opening, writing, flushing, closing, permissions, moving and the synchronising of the directory.
TEST_F(Faults, OfTheSystemLeaveTheFileWhole)
{
    EXPECT_GE(FailEachStep(g_nCallsLeft, PathOf(4), [this] { return Save(); }), 15);
    EXPECT_GE(FailEachStep(g_nCallsLeft, m_directory / "page.html", [this] { return WritePage(); }), 8);
}
#endif

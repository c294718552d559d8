// Every step of writing a file fails in turn: the old content or the new is there whole, and nothing beside
// it.
#include "CountedNew.h"
#include "DataDirectory.h"
#include "MarkedSettings.h"

#include <FileUtils.h>
#include <TextArray.h>

#include <functional>
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

#ifndef _WIN32
// Opening, writing, flushing, closing, permissions, moving and the synchronising of the directory.
TEST_F(Faults, OfTheSystemLeaveTheFileWhole)
{
    EXPECT_GE(FailEachStep(g_nCallsLeft, PathOf(4), [this] { return Save(); }), 15);
    EXPECT_GE(FailEachStep(g_nCallsLeft, m_directory / "page.html", [this] { return WritePage(); }), 8);
}
#endif

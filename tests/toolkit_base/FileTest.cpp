// CFile and its failures.
#include <afx.h>

#include <TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <functional>
#include <tuple>

namespace {

constexpr UINT kCreate = CFile::modeCreate | CFile::modeWrite;

// The cause with which the action fails; its exception must name the path.
int CauseOf(const std::function<void()>& action, const std::string& path)
{
    try {
        action();
    } catch (CFileException* error) {
        const int cause = error->m_cause;
        EXPECT_EQ(error->m_strFileName, path.c_str());
        EXPECT_GT(error->m_lOsError, 0);
        error->Delete();
        return cause;
    }
    return CFileException::none;
}

class File : public testing::Test
{
protected:
    TemporaryDirectory m_directory;
};

TEST_F(File, WritesSeeksAndReads)
{
    const std::string path = m_directory.PathOf("a.dat");
    CFile file(path.c_str(), kCreate);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetPosition(), 10u);
    file.Seek(-4, CFile::end);
    file.Write("ab", 2);
    file.Flush();
    EXPECT_EQ(file.GetLength(), 10u);
    file.Close();
    EXPECT_EQ(m_directory.Read("a.dat"), "012345ab89");

    CFile again(path.c_str(), 0);
    char text[20] = {};
    EXPECT_EQ(again.Seek(5, CFile::begin), 5u);
    EXPECT_EQ(again.Read(text, sizeof(text)), 5u);
    EXPECT_STREQ(text, "5ab89");
    EXPECT_EQ(again.Read(text, sizeof(text)), 0u);
    EXPECT_EQ(CauseOf([&] { again.Seek(-1, CFile::begin); }, path), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { again.Write("x", 1); }, path), CFileException::accessDenied);
    again.Close();
    CFile(path.c_str(), kCreate).Close();
    EXPECT_EQ(m_directory.Read("a.dat"), "") << "made anew";
}

TEST_F(File, OpeningFailsWithCauseAndPath)
{
    m_directory.Write("file", "x");
    std::filesystem::create_directory(m_directory.PathOf("directory"));
    constexpr std::tuple<const char*, UINT, int> kCases[] = {
        {"missing.dat", CFile::modeRead, CFileException::fileNotFound},
        {"missing/a.dat", CFile::modeRead, CFileException::badPath},
        {"missing/a.dat", kCreate, CFileException::badPath},
        {"file/a.dat", kCreate, CFileException::badPath},
        {"directory", CFile::modeRead, CFileException::accessDenied},
        {"directory", kCreate, CFileException::accessDenied},
    };
    for (const auto& [name, flags, cause] : kCases) {
        const std::string path = m_directory.PathOf(name);
        EXPECT_EQ(CauseOf([&, flags = flags] { CFile(path.c_str(), flags); }, path), cause)
            << name << " " << flags;
    }
}

}

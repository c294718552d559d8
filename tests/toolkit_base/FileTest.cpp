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
    CFile file(path.c_str(), 0x1001);
    file.Write("0123456789", 10);
    EXPECT_EQ(file.GetPosition(), 10u);
    file.Seek(-4, CFile::end);
    file.Write("ab", 2);
    file.Flush();
    EXPECT_EQ(file.GetLength(), 10u);
    EXPECT_EQ(file.GetFilePath(), path.c_str());
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
}

TEST_F(File, CreateEmptiesUnlessToldNotTo)
{
    m_directory.Write("a.dat", "old");
    const std::string path = m_directory.PathOf("a.dat");
    CFile(path.c_str(), kCreate | CFile::modeNoTruncate).Close();
    EXPECT_EQ(m_directory.Read("a.dat"), "old");
    CFile(path.c_str(), kCreate).Close();
    EXPECT_EQ(m_directory.Read("a.dat"), "");
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
        EXPECT_EQ(CauseOf([&] { CFile(path.c_str(), flags); }, path), cause) << name << " " << flags;
    }

    CFile file;
    EXPECT_FALSE(file.Open(m_directory.PathOf("missing.dat").c_str(), CFile::modeRead));
}

TEST_F(File, RenamesAndRemoves)
{
    m_directory.Write("a", "1");
    m_directory.Write("b", "2");
    const std::string a = m_directory.PathOf("a");
    const std::string b = m_directory.PathOf("b");
    const std::string c = m_directory.PathOf("c");
    EXPECT_EQ(CauseOf([&] { CFile::Rename(a.c_str(), b.c_str()); }, a), CFileException::accessDenied)
        << "exists";
    EXPECT_EQ(CauseOf([&] { CFile::Rename(c.c_str(), a.c_str()); }, c), CFileException::fileNotFound);
    CFile::Rename(a.c_str(), c.c_str());
    EXPECT_EQ(m_directory.Read("c"), "1");
    CFile::Remove(c.c_str());
    EXPECT_EQ(CauseOf([&] { CFile::Remove(c.c_str()); }, c), CFileException::fileNotFound);
}

// Wine lets the superuser write to a read-only file.
bool IsReadOnlyFileWritable(const std::string& path)
{
#ifdef _WIN32
    return std::ofstream(path, std::ios::app).is_open();
#else
    static_cast<void>(path);
    return false; // by the rule of the layer, whoever asks
#endif
}

TEST_F(File, ReadOnlyFilesAreLeftAlone)
{
    m_directory.Write("readonly", "x");
    m_directory.Write("a", "1");
    const std::string path = m_directory.PathOf("readonly");
    const std::string a = m_directory.PathOf("a");
    ASSERT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY));
    if (IsReadOnlyFileWritable(path))
        GTEST_SKIP() << "This system does not heed the mark.";

    CFile(path.c_str(), CFile::modeRead).Close();
    EXPECT_EQ(CauseOf([&] { CFile(path.c_str(), kCreate); }, path), CFileException::accessDenied);
    EXPECT_EQ(CauseOf([&] { CFile::Remove(path.c_str()); }, path), CFileException::accessDenied);
    EXPECT_FALSE(MoveFileExA(a.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_ACCESS_DENIED));
    EXPECT_EQ(m_directory.Read("readonly"), "x");

    ASSERT_TRUE(SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_TRUE(MoveFileExA(a.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(m_directory.Read("readonly"), "1");
}

}

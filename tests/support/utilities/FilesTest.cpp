// Whole files, directories, and files that are replaced in one step.
#include <DirUtils.h>
#include <FileUtils.h>
#include <ReplacedFile.h>
#include <TextArray.h>

#include <TemporaryDirectory.h>
#include <WideText.h>

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

class Files : public testing::Test
{
protected:
    CString PathOf(const char* name) const { return m_directory.PathOf(name).c_str(); }

    // The cause with which replacing fails; the exception must name the path.
    int CauseOfReplacing(const CString& path, const std::string& content)
    {
        try {
            ReplacedFile file(path);
            file.Write(content.data(), static_cast<UINT>(content.size()));
            file.Commit();
            return CFileException::none;
        } catch (CFileException* error) {
            const int cause = error->m_cause;
            EXPECT_EQ(error->m_strFileName, path);
            error->Delete();
            return cause;
        }
    }

    TemporaryDirectory m_directory;
};

using Names = std::vector<std::string>;

TEST_F(Files, AreReplacedWholeOrNotAtAll)
{
    const CString path = PathOf("a.dat");
    EXPECT_EQ(CauseOfReplacing(path, "first"), CFileException::none) << "no file before";
    EXPECT_EQ(m_directory.Read("a.dat"), "first");
    {
        ReplacedFile file(path);
        file.Write("half", 4);
        file.Flush();
        EXPECT_EQ(file.GetFilePath(), path);
        EXPECT_EQ(m_directory.Read("a.dat"), "first") << "until it is committed";
    }
    EXPECT_EQ(m_directory.Names(), Names{"a.dat"}) << "nothing is left behind";
    EXPECT_EQ(CauseOfReplacing(path, "second"), CFileException::none);
    EXPECT_EQ(m_directory.Read("a.dat"), "second");
}

TEST_F(Files, AreNotReplacedWhereTheyMustNot)
{
    m_directory.Write("readonly.dat", "old");
    std::filesystem::create_directory(m_directory.PathOf("directory"));
    SetFileAttributesA(PathOf("readonly.dat"), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(CauseOfReplacing(PathOf("readonly.dat"), "new"), CFileException::accessDenied);
    EXPECT_EQ(CauseOfReplacing(PathOf("directory"), "new"), CFileException::accessDenied);
    EXPECT_EQ(CauseOfReplacing(PathOf("missing/a.dat"), "new"), CFileException::badPath);
    EXPECT_EQ(m_directory.Read("readonly.dat"), "old");

    EXPECT_TRUE(FileUtils::EnsureFileIsWritable(PathOf("readonly.dat")));
    EXPECT_EQ(CauseOfReplacing(PathOf("readonly.dat"), "new"), CFileException::none);
    EXPECT_FALSE(FileUtils::EnsureFileIsWritable(PathOf("missing.dat")));
    EXPECT_FALSE(FileUtils::EnsureFileIsWritable(PathOf("directory")));
}

#ifndef _WIN32
TEST_F(Files, BehindLinksAreReplacedWithTheirPermissions)
{
    namespace fs = std::filesystem;
    m_directory.Write("real.dat", "old");
    fs::permissions(m_directory.PathOf("real.dat"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.dat", m_directory.PathOf("link.dat"));
    EXPECT_EQ(CauseOfReplacing(PathOf("link.dat"), "new"), CFileException::none);
    EXPECT_TRUE(fs::is_symlink(m_directory.PathOf("link.dat")));
    EXPECT_EQ(m_directory.Read("real.dat"), "new");
    EXPECT_EQ(fs::status(m_directory.PathOf("real.dat")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);

    fs::create_symlink("nowhere", m_directory.PathOf("dangling.dat"));
    EXPECT_EQ(CauseOfReplacing(PathOf("dangling.dat"), "new"), CFileException::none);
    EXPECT_EQ(m_directory.Read("dangling.dat"), "new");

    EXPECT_EQ(CauseOfReplacing("/dev/null", "new"), CFileException::accessDenied);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Files, OnAFullDiskFail)
{
    CFile full("/dev/full", CFile::modeWrite);
    try {
        full.Write("x", 1);
        FAIL();
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_cause, CFileException::diskFull);
        error->Delete();
    }
}
#endif

TEST_F(Files, OfTextAreUtf8WithTheLineEndsOfAllReaders)
{
    TextArray lines;
    lines.Add("<html>");
    lines.Add("");
    lines.Add(FromWide(WideText{'M', WCHAR(0xE4), 'r', 'z'}));
    const CString path = PathOf("page.html");
    EXPECT_TRUE(FileUtils::WriteFileContent(path, lines, false, 0));
    EXPECT_EQ(m_directory.Read("page.html"), "<html>\r\n\r\nM\xC3\xA4rz\r\n");
    EXPECT_TRUE(FileUtils::WriteFileContent(path, lines, true, 2));
    EXPECT_EQ(m_directory.Read("page.html"), "\xEF\xBB\xBF  <html>\r\n  \r\n  M\xC3\xA4rz\r\n");
}

TEST_F(Files, HaveDirectoriesMadeAllTheWay)
{
    const CString deep = PathOf("a/b/c/d");
    EXPECT_TRUE(DirUtils::CreateDirectoryA(deep));
    EXPECT_TRUE(DirUtils::CreateDirectoryA(deep)) << "it is there";
    EXPECT_TRUE(std::filesystem::is_directory(deep.GetString()));
    EXPECT_TRUE(DirUtils::CreateDirectoryA(PathOf("e/f/")));

    m_directory.Write("file", "");
    EXPECT_FALSE(DirUtils::CreateDirectoryA(PathOf("file")));
    EXPECT_FALSE(DirUtils::CreateDirectoryA(PathOf("file/x")));
    EXPECT_FALSE(DirUtils::CreateDirectoryA(""));
}

TEST(Paths, ArePartedAndJoined)
{
    constexpr const char* kPaths[][2] = {
        {"/home/u/a.dat", "/home/u"}, {"/a.dat", "/"}, {"a.dat", ""}, {"a//b.dat", "a"}, {"", ""},
        {"C:/a.dat", "C:/"}};
    for (const auto& [path, directory] : kPaths)
        EXPECT_EQ(DirUtils::ParsePathFromFile(path), directory) << path;

    const CString joined = DirUtils::JoinPath("x", "a.dat");
    EXPECT_EQ(DirUtils::ParsePathFromFile(joined), "x");
    EXPECT_EQ(joined.GetLength(), 7);
    EXPECT_EQ(DirUtils::JoinPath("", "a"), "a");
    EXPECT_EQ(DirUtils::JoinPath("/", "a"), "/a");
}

}

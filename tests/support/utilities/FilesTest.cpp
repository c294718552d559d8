// Whole files, directories, and files that are replaced in one step.
#include <DirUtils.h>
#include <FileUtils.h>
#include <ReplacedFile.h>
#include <TextArray.h>

#include <TemporaryDirectory.h>
#include <WideText.h>

#include <gtest/gtest.h>

#include <filesystem>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>
#endif

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

    EXPECT_EQ(CauseOfReplacing("/dev/null", "new"), CFileException::accessDenied);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

// Where the file can't be opened for writing, or can't keep its owner, another user must leave it as it is.
TEST_F(Files, AreNotTakenFromTheirOwner)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser can be other users";
    namespace fs = std::filesystem;
    constexpr uid_t kNobody = 65534;
    constexpr int kWritten = CFileException::none;
    constexpr int kDenied = CFileException::accessDenied;
    const struct
    {
        const char* what;
        uid_t owner;
        mode_t mode;
        uid_t directoryOwner;
        mode_t directoryMode;
        uid_t writer;
        int cause;
    } cases[] = {
        {"of the superuser, unreadable", 0, 0600, 0, 0777, kNobody, kDenied},
        {"of the superuser, readable", 0, 0644, 0, 0777, kNobody, kDenied},
        {"of the superuser, writable", 0, 0666, 0, 0777, kNobody, kDenied},
        {"own, in a directory of the superuser", kNobody, 0644, 0, 0755, kNobody, kDenied},
        {"own, in a directory that can't be opened", kNobody, 0644, kNobody, 0300, kNobody, kDenied},
        {"own, write-only", kNobody, 0200, kNobody, 0700, kNobody, kDenied},
        {"own", kNobody, 0640, 0, 0777, kNobody, kWritten},
        {"of a user, by the superuser", kNobody, 0600, 0, 0755, 0, kWritten},
    };
    fs::permissions(m_directory.PathOf(""), fs::perms(0755));
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string directory = m_directory.PathOf(c.what);
        const std::string file = directory + "/a.dat";
        fs::create_directory(directory);
        m_directory.Write(c.what + "/a.dat"s, "old");
        ASSERT_EQ(::chown(file.c_str(), c.owner, c.owner), 0);
        ASSERT_EQ(::chmod(file.c_str(), c.mode), 0);
        ASSERT_EQ(::chown(directory.c_str(), c.directoryOwner, c.directoryOwner), 0);
        ASSERT_EQ(::chmod(directory.c_str(), c.directoryMode), 0);

        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(::setgid(c.writer) == 0 && ::setuid(c.writer) == 0 ? CauseOfReplacing(file.c_str(), "new")
                                                                       : 99);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(WEXITSTATUS(status), c.cause);

        struct stat after;
        ASSERT_EQ(::stat(file.c_str(), &after), 0);
        EXPECT_EQ(after.st_uid, c.owner);
        EXPECT_EQ(after.st_gid, c.owner);
        EXPECT_EQ(after.st_mode & 0777, c.mode);
        EXPECT_EQ(m_directory.Read(c.what + "/a.dat"s), c.cause == kWritten ? "new" : "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(directory), {}), 1) << "nothing is left behind";
    }
}

// Without the list the permissions of its group would open the file to others than before.
TEST_F(Files, KeepTheListOfThoseWithAccess)
{
    constexpr const char* kName = "system.posix_acl_access";
    // The user may read and write, user 65534 too, the group and others may nothing; the mask lets both.
    constexpr char kList[] = "\2\0\0\0\1\0\6\0\377\377\377\377\2\0\6\0\376\377\0\0\4\0\0\0\377\377\377\377"
                             "\20\0\6\0\377\377\377\377\40\0\0\0\377\377\377\377";
    m_directory.Write("a.dat", "old");
    const std::string path = m_directory.PathOf("a.dat");
    if (::setxattr(path.c_str(), kName, kList, sizeof(kList) - 1, 0) != 0)
        GTEST_SKIP() << "the file system keeps no such list";
    EXPECT_EQ(CauseOfReplacing(path.c_str(), "new"), CFileException::none);
    char list[256];
    const ssize_t size = ::getxattr(path.c_str(), kName, list, sizeof(list));
    EXPECT_EQ(std::string(list, static_cast<std::size_t>(std::max<ssize_t>(size, 0))),
              std::string(kList, sizeof(kList) - 1));
    EXPECT_EQ(m_directory.Read("a.dat"), "new");
}

TEST_F(Files, OfTextFollowTheUmask)
{
    const mode_t before = ::umask(0027);
    EXPECT_TRUE(FileUtils::WriteFileContent(PathOf("page.html"), TextArray(), false, 0));
    ::umask(before);
    EXPECT_EQ(std::filesystem::status(m_directory.PathOf("page.html")).permissions(),
              std::filesystem::perms(0640));
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
    if (ToWide(FromWide(WideText{WCHAR(0xE4)})) != WideText{WCHAR(0xE4)})
        GTEST_SKIP() << "the code page lacks the letter";
    TextArray lines;
    lines.Add("<html>");
    lines.Add("");
    lines.Add(FromWide(WideText{'M', WCHAR(0xE4), 'r', 'z'}));
    const CString path = PathOf("page.html");
    EXPECT_TRUE(FileUtils::WriteFileContent(path, lines, false, 0));
    EXPECT_EQ(m_directory.Read("page.html"), "<html>\r\n\r\nM\xC3\xA4rz\r\n");
    EXPECT_TRUE(FileUtils::WriteFileContent(path, lines, true, 2));
    EXPECT_EQ(m_directory.Read("page.html"), "\xEF\xBB\xBF  <html>\r\n  \r\n  M\xC3\xA4rz\r\n");
    EXPECT_TRUE(FileUtils::WriteFileContent(path, lines, false, -1));
    EXPECT_EQ(m_directory.Read("page.html"), "<html>\r\n\r\nM\xC3\xA4rz\r\n");
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

// In code page 932 this letter is the bytes 0x95 0x5C, and 0x5C alone is the backslash.
TEST_F(Files, HaveDirectoriesNamedByCharactersOfTwoBytes)
{
    const WideText wide{WCHAR(0x8868)};
    const CString name = FromWide(wide);
    if (ToWide(name) != wide)
        GTEST_SKIP() << "the code page lacks the letter";
    const CString directory = DirUtils::JoinPath(PathOf("parent"), name);
    const CString file = DirUtils::JoinPath(directory, "a.dat");
    EXPECT_EQ(file.GetLength(), directory.GetLength() + 6) << "with a separator between";
    EXPECT_EQ(DirUtils::ParsePathFromFile(file), directory);
    EXPECT_EQ(DirUtils::ParsePathFromFile(directory), PathOf("parent"));
    ::CreateDirectoryA(PathOf("parent"), nullptr);
    if (!::CreateDirectoryA(directory, nullptr))
        GTEST_SKIP() << "the file system lacks the letter";
    std::filesystem::remove(directory.GetString());
    std::filesystem::remove(PathOf("parent").GetString());
    EXPECT_TRUE(DirUtils::CreateDirectoryA(directory));
    EXPECT_EQ(CauseOfReplacing(file, "new"), CFileException::none);
    EXPECT_TRUE(FileUtils::DoesFileExist(file));
    DeleteFileA(file);
    std::filesystem::remove(directory.GetString());
}

}

// The bytes of an archive, and archives that lie.
#include <afx.h>

#include <FullDisk.h>
#include <TemporaryDirectory.h>
#include <WideText.h>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <utility>

using namespace std::string_literals;

namespace {

class Archive : public testing::Test
{
protected:
    std::string Path() const { return m_directory.PathOf("a.dat"); }

    std::string BytesOf(const std::function<void(CArchive&)>& write)
    {
        CFile file(Path().c_str(), 0x1001);
        CArchive ar(&file, CArchive::store, 4096, nullptr);
        write(ar);
        ar.Close();
        file.Close();
        return m_directory.Read("a.dat");
    }

    void Read(const std::string& bytes, const std::function<void(CArchive&)>& read)
    {
        m_directory.Write("a.dat", bytes);
        CFile file(Path().c_str(), 0);
        CArchive ar(&file, CArchive::load, 4096, nullptr);
        read(ar);
        ar.Close();
    }

    // A text that fills the file.
    CString ReadText(const std::string& bytes)
    {
        CString text;
        Read(bytes, [&text](CArchive& ar) {
            ar >> text;
            EXPECT_EQ(ar.GetBytesLeft(), 0u);
        });
        return text;
    }

    // The cause with which reading fails.
    int CauseOf(const std::string& bytes, const std::function<void(CArchive&)>& read)
    {
        return CauseOf([&] { Read(bytes, read); });
    }

    int CauseOf(const std::function<void()>& action)
    {
        try {
            action();
        } catch (CArchiveException* error) {
            const int cause = error->m_cause;
            EXPECT_EQ(error->m_strFileName, Path().c_str());
            error->Delete();
            return cause;
        }
        return CArchiveException::none;
    }

    TemporaryDirectory m_directory;
};

TEST_F(Archive, WritesTextsWithTheShortestLength)
{
    const std::pair<std::size_t, std::string> kCases[] = {
        {0, "\0"s},
        {254, "\xFE"s},
        {255, "\xFF\xFF\0"s},
        {0xFFFD, "\xFF\xFD\xFF"s},
        {0xFFFE, "\xFF\xFF\xFF\xFE\xFF\0\0"s},
        {70000, "\xFF\xFF\xFF\x70\x11\x01\0"s},
    };
    for (const auto& [length, leadIn] : kCases) {
        const CString text('x', static_cast<int>(length));
        const auto bytes = BytesOf([&](CArchive& ar) { ar << text; });
        EXPECT_EQ(bytes.substr(0, leadIn.size()), leadIn) << length;
        EXPECT_EQ(bytes.size(), leadIn.size() + length);
        EXPECT_TRUE(ReadText(bytes) == text) << length;
    }
}

TEST_F(Archive, ReadsEveryFormOfLength)
{
    for (const auto& length : {"\x02"s, "\xFF\x02\0"s, "\xFF\xFF\xFF\x02\0\0\0"s,
                               "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x02\0\0\0\0\0\0\0"s}) {
        EXPECT_EQ(ReadText(length + "ab"), "ab");
        EXPECT_EQ(ReadText("\xFF\xFE\xFF" + length + "a\0b\0"s), "ab") << "of 16-bit characters";
    }
    std::string wide;
    for (int i = 0; i < 0xFFFE; ++i)
        wide += "x\0"s;
    EXPECT_TRUE(ReadText("\xFF\xFE\xFF\xFF\xFE\xFF" + wide) == CString('x', 0xFFFE))
        << "the lead-in as a length";
}

// The bytes are the same in every code page that has the letters; the text is that of the code page.
TEST_F(Archive, WritesTextsBeyondAsciiForReadersWithAnyCodePage)
{
    for (const WideText& wide : {WideText{0xE4, 0x20AC}, WideText{0x65E5, 0x672C, 0x8868}}) {
        const CString text = FromWide(wide);
        if (ToWide(text) != wide)
            continue;
        std::string bytes = "\xFF\xFE\xFF"s + static_cast<char>(wide.size());
        for (const WCHAR ch : wide)
            (bytes += static_cast<char>(ch & 0xFF)) += static_cast<char>(ch >> 8);
        EXPECT_EQ(BytesOf([&](CArchive& ar) { ar << text; }), bytes);
        EXPECT_EQ(ReadText(bytes), text);
        EXPECT_EQ(ReadText(static_cast<char>(text.GetLength()) + std::string(text)), text)
            << "as it once was";
    }
    if (ToWide("\xC3\xA4").size() != 1) // the code page is not UTF-8
        return;
    const CString noText("a\xFF");
    EXPECT_EQ(BytesOf([&](CArchive& ar) { ar << noText; }), "\2a\xFF") << "bytes that are no text stay";
    const std::string lead = "\xFF\xFE\xFF\xFF\xFF\xFF\xFE\xFF\0\0"s;
    CString longText;
    for (int i = 0; i < 0xFFFE; ++i)
        longText += "\xC3\xA4";
    const std::string bytes = BytesOf([&](CArchive& ar) { ar << longText; });
    EXPECT_EQ(bytes.substr(0, lead.size()), lead);
    EXPECT_TRUE(ReadText(bytes) == longText);
}

TEST_F(Archive, CountsInThreeWidths)
{
    const std::pair<ULONGLONG, std::string> kCases[] = {
        {0, "\0\0"s},
        {0xFFFE, "\xFE\xFF"s},
        {0xFFFF, "\xFF\xFF\xFF\xFF\0\0"s},
        {0xFFFFFFFE, "\xFF\xFF\xFE\xFF\xFF\xFF"s},
        {0xFFFFFFFF, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\0"s},
    };
    for (const auto& [count, bytes] : kCases) {
        EXPECT_EQ(BytesOf([count = count](CArchive& ar) { ar.WriteCount(count); }), bytes);
        Read(bytes, [count = count](CArchive& ar) { EXPECT_EQ(ar.ReadCount(), count); });
    }
}

TEST_F(Archive, ListsOfTextsKeepTheirOrderAndAppendWhatTheyLoad)
{
    CStringList list;
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    for (const char* text : {"b", "", "a"})
        list.AddTail(text);
    const auto bytes = BytesOf([&](CArchive& ar) { list.Serialize(ar); });
    EXPECT_EQ(bytes, "\x03\0\x01\x62\0\x01\x61"s);
    Read(bytes, [&](CArchive& ar) { list.Serialize(ar); });
    CString all;
    for (POSITION pos = list.GetHeadPosition(); pos;)
        all += list.GetNext(pos) + "|";
    EXPECT_EQ(all, "b||a|b||a|");
}

TEST_F(Archive, EndsEarlyWithAnExceptionAndWithoutTakingMemory)
{
    const std::string kBadTexts[] = {
        ""s,
        "\x03\x61\x62"s,
        "\xFF"s,
        "\xFF\xFF\xFF"s,
        "\xFF\xFE\xFF"s,
        "\xFF\xFF\xFF\xFE\xFF\xFF\xFF\x61"s,                             // 4 GB
        "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"s, // more than there is
        "\xFF\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x61"s,
        "\xFF\xFE\xFF\x02\x61\0\x62"s};
    for (const auto& bytes : kBadTexts)
        EXPECT_EQ(CauseOf([&] { ReadText(bytes); }), CArchiveException::endOfFile) << bytes.size();
    const auto readNumber = [](CArchive& ar) {
        DWORD number;
        ar >> number;
    };
    EXPECT_EQ(CauseOf("\x01\x02\x03", readNumber), CArchiveException::endOfFile);
    const auto readList = [](CArchive& ar) { CStringList().Serialize(ar); };
    EXPECT_EQ(CauseOf("\xFF\xFF\xFF\xFF\xFF\x7F\x01z", readList), CArchiveException::endOfFile);
}

TEST_F(Archive, HasOneDirection)
{
    EXPECT_EQ(CauseOf("abcd", [](CArchive& ar) { ar << 1; }), CArchiveException::readOnly);
    const auto readFromStoring = [this] {
        BytesOf([](CArchive& ar) {
            int number;
            ar >> number;
        });
    };
    EXPECT_EQ(CauseOf(readFromStoring), CArchiveException::writeOnly);
}

// Longer than the buffer, so that both ends of it are crossed.
TEST_F(Archive, BuffersWholeAndInPart)
{
    std::string content;
    for (int i = 0; i < 3000; ++i)
        content += std::to_string(i);
    const auto bytes = BytesOf([&](CArchive& ar) {
        ar << WORD(1);
        ar.Write(content.data(), static_cast<UINT>(content.size()));
        ar.Flush();
        ar << WORD(2);
    });
    EXPECT_EQ(bytes, "\x01\0"s + content + "\x02\0"s);

    Read(bytes, [&](CArchive& ar) {
        WORD number;
        ar >> number;
        EXPECT_EQ(ar.GetBytesLeft(), bytes.size() - 2);
        ar.Flush();
        EXPECT_EQ(ar.GetFile()->GetPosition(), 2u) << "where the archive is";
        std::string read(content.size(), '\0');
        EXPECT_EQ(ar.Read(read.data(), static_cast<UINT>(read.size())), read.size());
        EXPECT_EQ(read, content);
        char rest[10];
        EXPECT_EQ(ar.Read(rest, sizeof(rest)), 2u);
    });
}

TEST_F(Archive, ReportsAFailedWriteOnceAndDropsWhatIsBufferedWhileAnExceptionPasses)
{
    const FullDisk disk(1);
    const auto closeInDestructor = [this] {
        CFile file(Path().c_str(), 0x1001);
        CArchive(&file, CArchive::store) << 1;
    };
    try {
        closeInDestructor();
        FAIL() << "The failure was lost.";
    } catch (CFileException* error) {
        EXPECT_EQ(error->m_cause, CFileException::diskFull);
        error->Delete();
    }

    const auto throwWithOpenArchive = [this] {
        CFile file(Path().c_str(), 0x1001);
        CArchive ar(&file, CArchive::store);
        ar << 1;
        throw std::runtime_error("first");
    };
    EXPECT_THROW(throwWithOpenArchive(), std::runtime_error);
    EXPECT_EQ(m_directory.Read("a.dat"), "");
}

}

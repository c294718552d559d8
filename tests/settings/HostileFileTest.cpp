// Files that are damaged or made to do harm: what Load answers, what it keeps, and what it costs.
#include "CountedNew.h"
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <stdexcept>

namespace {

using enum CalendarSettings::Group;

enum class Outcome
{
    Loaded,
    EndOfFile,
    BadSchema,
    TooLong
};

Outcome Load(CalendarSettings& settings, const CString& strPath = ZebrikUtils::GetCalendarSettingsPath(4))
{
    try {
        EXPECT_TRUE(settings.Load());
        return Outcome::Loaded;
    } catch (CArchiveException* pException) {
        const int nCause = pException->m_cause;
        EXPECT_EQ(pException->m_strFileName, strPath);
        pException->Delete();
        EXPECT_TRUE(nCause == CArchiveException::endOfFile || nCause == CArchiveException::badSchema);
        return nCause == CArchiveException::endOfFile ? Outcome::EndOfFile : Outcome::BadSchema;
    } catch (const std::length_error& error) {
        EXPECT_STREQ(error.what(), "vector too long");
        return Outcome::TooLong;
    }
}

const CalendarDateEntry kEntry = MakeEntry(7);
const std::string kEntryBytes = FileBytes().Entry(kEntry);

FileBytes NationalSections()
{
    return FileBytes()
        .U16(3)
        .Overlay({MakeEntry(0, "", false, 5), MakeEntry(1, "", true, 6)})
        .Overlay({MakeEntry(100, "", true, 7)})
        .Overlay({});
}

std::string MakeFile()
{
    return NationalSections().Custom({kEntry, kEntry, kEntry}).ToDo({kEntry}).U32(12345);
}

// A file up to the description of its only own date.
FileBytes UpToText()
{
    return NationalSections().U16(3).U64(1).Rule(kEntry);
}

class HostileFile : public DataDirectory
{
};

}

TEST_F(HostileFile, CutAtAnyByte)
{
    const std::string strFile = MakeFile();
    for (std::size_t nLength = 1; nLength < strFile.size(); ++nLength) {
        CalendarSettings settings;
        WriteFile(4, strFile.substr(0, nLength));
        ASSERT_EQ(Load(settings), Outcome::EndOfFile) << nLength;
        ASSERT_EQ(DatesCustom::s_nNextCustomID, 10000U);
    }
    CalendarSettings settings;
    WriteFile(4, strFile + "more");
    EXPECT_EQ(Load(settings), Outcome::Loaded);
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 12345U);
}

TEST_F(HostileFile, KeepsWhatWasReadBeforeItEnded)
{
    const std::size_t nNational = NationalSections().Size();
    const std::size_t nCustom = NationalSections().Custom({kEntry, kEntry, kEntry}).Size();
    const struct
    {
        std::size_t nLength;
        size_t nCustom;
        DWORD dwCanada; // of the first entry
    } cuts[] = {
        {nNational - 10 - 1, 1, 0xFFFFFF}, // in the only record of Canada; the old list is whole
        {nNational + 1, 1, 7},             // in the word of the custom section
        {nNational + 2, 0, 7},             // behind it: the old entries are gone
        {nCustom - 1, 2, 7},               // in the third entry
        {nCustom, 3, 7},
    };
    for (const auto& cut : cuts) {
        CalendarSettings settings;
        settings.AddCustomEntry(new CalendarDateEntry);
        WriteFile(4, MakeFile().substr(0, cut.nLength));
        EXPECT_EQ(Load(settings), Outcome::EndOfFile);
        EXPECT_EQ(settings.GetCount(GroupCustom), cut.nCustom) << cut.nLength;
        EXPECT_EQ(settings.GetAt(GroupCanada, 0)->GetColor(), cut.dwCanada) << cut.nLength;
        EXPECT_EQ(settings.GetAt(GroupUS, 0)->GetColor(), 5U);

        // The file and the mutex are free again.
        EXPECT_TRUE(settings.Save());
        EXPECT_EQ(Load(settings), Outcome::Loaded);
    }
}

TEST_F(HostileFile, CountsMoreThanThereIs)
{
    const std::uint64_t nMaxCount = std::vector<CalendarDateEntry*>().max_size();
    const struct
    {
        std::uint64_t nCount;
        Outcome outcome;
        size_t nRead;
    } counts[] = {{4, Outcome::EndOfFile, 1},
                  {0x10000000, Outcome::EndOfFile, 1},
                  {nMaxCount, Outcome::EndOfFile, 1},
                  {nMaxCount + 1, Outcome::TooLong, 0},
                  {UINT64_MAX, Outcome::TooLong, 0}};
    for (const auto& c : counts) {
        CalendarSettings settings;
        WriteFile(4, NationalSections().U16(3).U64(c.nCount).Raw(kEntryBytes));
        EXPECT_EQ(Load(settings), c.outcome);
        EXPECT_EQ(settings.GetCount(GroupCustom), c.nRead);

        WriteFile(4, NationalSections().Custom({}).U16(1).U64(c.nCount).Raw(kEntryBytes));
        EXPECT_EQ(Load(settings), c.outcome);
        EXPECT_EQ(settings.GetCount(GroupToDo), c.nRead);

        WriteFile(4, FileBytes().U16(3).U16(2).U64(c.nCount).I32(0).U32(9).U8(1));
        EXPECT_EQ(Load(settings), Outcome::EndOfFile) << "an overlay makes no list";
        EXPECT_EQ(settings.GetAt(GroupUS, 0)->GetColor(), 9U);
    }
}

// Each byte in turn is changed: Load gives one of the four answers, and dates can be looked up afterwards.
TEST_F(HostileFile, HasAByteThatIsAnother)
{
    const std::string strFile = MakeFile();
    for (std::size_t i = 0; i < strFile.size(); ++i) {
        for (const unsigned nFlip : {0x01U, 0x80U, 0xFFU}) {
            std::string strDamaged = strFile;
            strDamaged[i] = static_cast<char>(static_cast<unsigned char>(strDamaged[i]) ^ nFlip);
            WriteFile(4, strDamaged);
            CalendarSettings settings;
            Load(settings);
            for (int nDay = 1; nDay <= 31; ++nDay) {
                DWORD dwColor = 0;
                settings.GetDateDesc(nDay, 7, 2026, dwColor);
            }
        }
    }
    for (const unsigned nForm : {0U, 3U, 0xFFFFU}) {
        CalendarSettings settings;
        WriteFile(4, NationalSections().U16(3).U64(1).Entry(kEntry, nForm).ToDo({}).U32(1));
        EXPECT_EQ(Load(settings), Outcome::BadSchema);
    }
}

// No memory is taken for a count or a length alone, and what is read takes a small multiple of its bytes.
TEST_F(HostileFile, TakesNoMemoryThatItDoesNotFill)
{
    const std::string strEntry = FileBytes().Entry(MakeEntry(7, ""));
    std::string strEntries;
    for (int i = 0; i < 20000; ++i)
        strEntries += strEntry;
    const std::string strLength = FileBytes().U8(255).U16(0xFFFF).U32(0x7FFFFFFF);
    const std::string strZeros(100000, '\0');
    const struct
    {
        const char* szWhat;
        unsigned short nVersion;
        std::string strFile;
    } files[] = {
        {"a count of entries", 4, NationalSections().U16(3).U64(0x0FFFFFFFFFFFFFFF).Raw(strEntry)},
        {"many entries", 4, NationalSections().U16(3).U64(1000000).Raw(strEntries)},
        {"the length of a text", 4, UpToText().Raw(strLength).Raw("abc")},
        {"a longer length", 4, UpToText().U8(255).U16(0xFFFF).U32(0xFFFFFFFF).U64(1ULL << 40)},
        {"the length of a wide text", 4, UpToText().U8(255).U16(0xFFFE).Raw(strLength)},
        {"a count of names", 1, FileBytes().U16(1).I32(0).U16(0xFFFF).U32(0xFFFFFFFE).Text("Canada")},
        {"many names", 1, FileBytes().U16(1).I32(0).U16(0xFFFF).U32(1000000).Raw(strZeros)},
        {"many rows", 1, FileBytes().U16(1).I32(1000000).Raw(strZeros)},
        {"a count of rows", 1, FileBytes().U16(1).I32(INT32_MAX).Text("Canada").U32(1)},
    };
    for (const auto& file : files) {
        UseDirectory(m_root / std::to_string(file.nVersion));
        WriteFile(file.nVersion, file.strFile);
        CalendarSettings settings;
        g_nAllocated = 0;
        const Outcome outcome = Load(settings, ZebrikUtils::GetCalendarSettingsPath(file.nVersion));
        const std::size_t nAllocated = g_nAllocated;
        EXPECT_EQ(outcome, Outcome::EndOfFile) << file.szWhat;
        EXPECT_LT(nAllocated, 16 * file.strFile.size() + 65536) << file.szWhat;
    }
}

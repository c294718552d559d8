// Files of all four versions, built byte by byte, as they load; and what a save writes.
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <memory>
#include <sstream>

namespace {

using enum CalendarSettings::Group;

// An entry in which no two numbers are alike.
CalendarDateEntry FullEntry(std::int32_t nID)
{
    CalendarDateEntry entry = MakeEntry(nID, "Full", false, 0xAABBCCDD);
    entry.m_nRuleWord = 4;
    entry.m_nKind = 5;
    entry.m_bRuleFlag = true;
    std::int32_t nValue = -100;
    for (std::int32_t& n : entry.m_anRule)
        n = nValue++;
    entry.m_nStartYear = 2006;
    return entry;
}

// The bytes in the block of code under "An example", which stand before the text of each line.
std::string ExampleOfDescription()
{
    std::ifstream page(DATA_FILE_PAGE);
    std::string strLine;
    while (std::getline(page, strLine) && strLine != "## An example") {
    }
    while (std::getline(page, strLine) && strLine != "```") {
    }
    FileBytes bytes;
    while (std::getline(page, strLine) && strLine != "```") {
        std::istringstream columns(strLine.substr(0, 48));
        for (unsigned nByte = 0; columns >> std::hex >> nByte;)
            bytes.U8(nByte);
    }
    return bytes;
}

class DataFile : public DataDirectory
{
protected:
    FileBytes BytesOfGroup(CalendarSettings::Group group) { return BytesOf(EntriesOf(m_settings, group)); }

    CalendarDateEntry& Find(CalendarSettings::Group group, int nID)
    {
        for (size_t i = 0; i < m_settings.GetCount(group); ++i) {
            if (m_settings.GetAt(group, i)->m_nID == nID)
                return *m_settings.GetAt(group, i);
        }
        throw std::out_of_range("no such entry");
    }

    CalendarSettings m_settings;
};

// A file of version 4, and without its to-do section of version 3 or 2.
std::string MakeFile(unsigned short nVersion)
{
    FileBytes file;
    file.U16(nVersion).Overlay({MakeEntry(2, "", false, 0x0000FF)}).Overlay({});
    file.Overlay({MakeEntry(202, "", true, 0xFF0000)}).Custom({MakeEntry(10007), FullEntry(-5)});
    if (nVersion == 4)
        file.ToDo({MakeEntry(11003)});
    return file.U32(10040U + nVersion);
}

}

TEST_F(DataFile, LoadsTheNewestFileAndReplacesTheUsersLists)
{
    EXPECT_FALSE(m_settings.Load()) << "no file";
    WriteFile(1, FileBytes().U16(1).I32(0).U16(0).Custom({MakeEntry(1)}));
    for (const unsigned short nVersion : std::initializer_list<unsigned short>{2, 3, 4}) {
        WriteFile(nVersion, MakeFile(nVersion));
        ASSERT_TRUE(m_settings.Load());

        EXPECT_EQ(Find(GroupUS, 2).GetColor(), 0x0000FFU);
        EXPECT_FALSE(Find(GroupUS, 2).GetShow());
        EXPECT_TRUE(Find(GroupUS, 1).GetShow());
        EXPECT_EQ(Find(GroupNetherlands, 202).GetColor(), 0xFF0000U);
        EXPECT_EQ(Find(GroupCanada, 101).GetColor(), 0xFFFFFFU);
        EXPECT_EQ(BytesOfGroup(GroupCustom), BytesOf({MakeEntry(10007), FullEntry(-5)}));
        EXPECT_FALSE(Find(GroupCustom, -5).GetCalculated());
        EXPECT_EQ(m_settings.GetCount(GroupToDo), nVersion == 4 ? 1U : 0U);
        EXPECT_EQ(DatesCustom::s_nNextCustomID, 10040U + nVersion);
    }

    // An older file knows no to-do list: the list stays, and the next save moves it along.
    std::filesystem::remove(PathOf(4));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(BytesOfGroup(GroupToDo), BytesOf({MakeEntry(11003)}));
    ASSERT_TRUE(m_settings.Save());
    EXPECT_TRUE(ReadFile(3) == MakeFile(3));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(BytesOfGroup(GroupToDo), BytesOf({MakeEntry(11003)}));

    const std::string strBefore = SavedBytesOf(m_settings);
    WriteFile(4, "");
    EXPECT_FALSE(m_settings.Load()) << "an empty file";
    EXPECT_TRUE(SavedBytesOf(m_settings) == strBefore);
}

TEST_F(DataFile, LoadsTheExampleOfItsDescription)
{
    WriteFile(4, ExampleOfDescription());
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(BytesOfGroup(GroupCustom), BytesOf({MakeEntry(10000, "Fet", true, 0x0000FF)}));
    EXPECT_EQ(Find(GroupNetherlands, 202).GetColor(), 0xFF0000U);
    EXPECT_FALSE(Find(GroupNetherlands, 202).GetShow());
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10001U);
    DWORD dwColor = 7;
    EXPECT_EQ(m_settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day\r\nFet");
}

TEST_F(DataFile, LoadsVersion1ByTheNamesOfTheGroups)
{
    FileBytes file;
    file.U16(77).I32(5);
    file.Text("Canada").U32(1).Text("united states").U32(2).Text("Custom dates").U32(3);
    file.Text("The Netherlands").U32(4).Text("Custom dates").U32(5);
    file.U16(3).Text("Canada").Text("Custom dates").Text("nonsense");
    WriteFile(1, file.Custom({MakeEntry(10007, "Mine", false, 9)}));
    m_settings.SetAllColor(GroupUS, 6);
    m_settings.AddCustomEntry(new CalendarDateEntry);
    ASSERT_TRUE(m_settings.Load());

    const struct
    {
        CalendarSettings::Group group;
        DWORD dwColor;
        bool bShow;
    } groups[] = {{GroupUS, 0xFFFFFF, false}, {GroupCanada, 1, true}, {GroupNetherlands, 4, false}};
    for (const auto& c : groups) {
        for (const CalendarDateEntry& entry : EntriesOf(m_settings, c.group)) {
            EXPECT_EQ(entry.GetColor(), c.dwColor);
            EXPECT_EQ(entry.GetShow(), c.bShow);
        }
    }
    EXPECT_EQ(BytesOfGroup(GroupCustom), BytesOf({MakeEntry(10007, "Mine", true, 5)}));
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10001U) << "this form holds no counter";

    for (const std::int32_t nRows : {0, -1, INT32_MIN}) {
        WriteFile(1, FileBytes().U16(1).I32(nRows).U16(1).Text("Canada").Custom({}));
        m_settings.SetAllColor(GroupCanada, 5);
        m_settings.SetAllShow(GroupCanada, false);
        ASSERT_TRUE(m_settings.Load());
        EXPECT_EQ(Find(GroupCanada, 100).GetColor(), 0xFFFFFFU);
        EXPECT_TRUE(Find(GroupCanada, 100).GetShow());
        EXPECT_FALSE(Find(GroupUS, 0).GetShow());
    }
}

TEST_F(DataFile, LoadsEveryFormOfACustomSection)
{
    const CalendarDateEntry stored = FullEntry(10007);
    CalendarDateEntry renumbered = stored;
    renumbered.m_nID = 10000;
    renumbered.SetShow(true);
    renumbered.SetColor(0xFFFFFF);
    for (const unsigned nWord : {0U, 1U, 2U, 3U, 4U, 0xFFFFU}) {
        DatesCustom::s_nNextCustomID = 10000;
        WriteFile(4, FileBytes().U16(3).NoOverlays().Custom({stored}, nWord).ToDo({}, nWord).U32(10042));
        ASSERT_TRUE(m_settings.Load());
        EXPECT_EQ(BytesOfGroup(GroupCustom), BytesOf({nWord == 1 ? renumbered : stored})) << nWord;
        EXPECT_EQ(DatesCustom::s_nNextCustomID, 10042U) << "the counter of the file counts";
    }

    // The first form of a record, among those of the current one.
    FileBytes file;
    file.U16(3).NoOverlays().U16(3).U64(2).Entry(MakeEntry(7), 1).Entry(stored).ToDo({}).U32(1);
    WriteFile(4, file);
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(BytesOfGroup(GroupCustom), BytesOf({MakeEntry(7), stored}));

    // The file holds no counter: the counter of the process goes on from the ids that were given.
    DatesCustom::s_nNextCustomID = 10000;
    UseDirectory(m_root / "oldest");
    WriteFile(1, FileBytes().U16(1).I32(0).U16(0).Custom({stored, stored, stored}, 1));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(m_settings.GetAt(GroupCustom, 2)->m_nID, 10002);
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10003U);
}

TEST_F(DataFile, LoadsEveryFormOfAnOverlay)
{
    // A record without an entry is passed over; of two records with the same id the last one counts.
    const Entries records = {MakeEntry(0, "", false, 5), MakeEntry(16, "", false, 6),
                             MakeEntry(41, "", true, 7), MakeEntry(0, "", false, 8)};
    for (const unsigned nWord : {0U, 1U, 2U, 3U, 0xFFFFU}) {
        CalendarSettings settings;
        WriteFile(2,
                  FileBytes().U16(2).Overlay(records, nWord).Overlay({}).Overlay({}).Custom({}).U32(10000));
        ASSERT_TRUE(settings.Load());
        EXPECT_EQ(settings.GetAt(GroupUS, 0)->GetColor(), 8U) << nWord;
        EXPECT_EQ(settings.GetAt(GroupUS, 40)->GetColor(), 7U);
        EXPECT_EQ(settings.GetAt(GroupUS, 1)->GetColor(), 0xFFFFFFU);
    }
}

TEST_F(DataFile, IsWrittenAsDescribedAndComesBackWhole)
{
    WriteFile(4, MakeFile(4));
    ASSERT_TRUE(m_settings.Load());
    m_settings.SetAllColor(GroupNetherlands, 0x80000001);
    m_settings.SetAllShow(GroupCanada, false);
    for (const unsigned nLength : {0U, 1U, 254U, 255U, 65533U, 65534U, 70000U}) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        pEntry->SetBeforeAfterDayOfWeek(CString(std::string(nLength, 'y')), DateEntry::OCCURRENCE_LAST, 6, 4,
                                        -4);
        m_settings.AddCustomEntry(pEntry.release());
    }
    const CalendarDateEntry& rule = Find(GroupCustom, 10044);
    EXPECT_EQ(rule.m_nRuleWord, 4);
    EXPECT_EQ(std::vector(std::begin(rule.m_anRule), std::end(rule.m_anRule)), (std::vector{7, 6, 4, -4}));
    ASSERT_TRUE(m_settings.Save());
    const std::string strSaved = SavedBytesOf(m_settings);
    EXPECT_TRUE(ReadFile(4) == strSaved);

    CalendarSettings other;
    DatesCustom::s_nNextCustomID = 1;
    ASSERT_TRUE(other.Load());
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10051U);
    EXPECT_TRUE(SavedBytesOf(other) == strSaved);
}

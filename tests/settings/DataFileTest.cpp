// Files of all four versions, built byte by byte, as they load; and what a save writes, read byte by byte.
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <memory>

namespace {

using enum CalendarSettings::Group;

EntryRecord Entry(std::int32_t nID, const char* szDesc, bool bShow = true, std::uint32_t nColor = 0x123456)
{
    EntryRecord entry;
    entry.date.nID = nID;
    entry.date.strDesc = szDesc;
    entry.bShow = bShow;
    entry.nColor = nColor;
    return entry;
}

// An entry in which no two numbers are alike.
EntryRecord FullEntry(std::int32_t nID)
{
    EntryRecord entry = Entry(nID, "Full", false, 0xAABBCCDD);
    entry.date.nRule = 4;
    entry.date.nKind = 5;
    entry.date.bRuleFlag = true;
    std::int32_t nValue = -100;
    for (std::int32_t& n : entry.date.anRule)
        n = nValue++;
    entry.date.nStartYear = 2006;
    return entry;
}

EntryRecord RecordOf(const CalendarDateEntry& entry)
{
    EntryRecord record;
    record.date.nRule = entry.m_nRuleWord;
    record.date.nKind = entry.m_nKind;
    record.date.bRuleFlag = entry.m_bRuleFlag;
    std::copy(std::begin(entry.m_anRule), std::end(entry.m_anRule), std::begin(record.date.anRule));
    record.date.nStartYear = entry.m_nStartYear;
    record.date.nID = entry.m_nID;
    record.date.strDesc = entry.m_strDesc;
    record.bShow = entry.m_bShow;
    record.nColor = entry.m_dwColor;
    return record;
}

class DataFile : public DataDirectory
{
protected:
    std::vector<EntryRecord> RecordsOf(CalendarSettings::Group group)
    {
        std::vector<EntryRecord> records;
        for (size_t i = 0; i < m_settings.GetCount(group); ++i) {
            records.push_back(RecordOf(*m_settings.GetAt(group, i)));
            EXPECT_FALSE(m_settings.GetAt(group, i)->GetCalculated());
        }
        return records;
    }

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
    file.U16(nVersion).Overlay({{2, 0x0000FF, false}}).Overlay({}).Overlay({{202, 0xFF0000, true}});
    file.Custom({Entry(10007, "Mine"), FullEntry(-5)});
    if (nVersion == 4)
        file.ToDo({Entry(11003, "Do it")});
    return file.U32(10042);
}

}

TEST_F(DataFile, LoadsVersions2To4)
{
    for (const unsigned short nVersion : {2, 3, 4}) {
        UseDirectory(m_root / std::to_string(nVersion));
        WriteFile(nVersion, MakeFile(nVersion));
        ASSERT_TRUE(m_settings.Load());

        EXPECT_EQ(Find(GroupUS, 2).GetColor(), 0x0000FFU);
        EXPECT_FALSE(Find(GroupUS, 2).GetShow());
        EXPECT_TRUE(Find(GroupUS, 1).GetShow());
        EXPECT_EQ(Find(GroupNetherlands, 202).GetColor(), 0xFF0000U);
        EXPECT_EQ(Find(GroupCanada, 101).GetColor(), 0xFFFFFFU);
        EXPECT_EQ(RecordsOf(GroupCustom), (std::vector{Entry(10007, "Mine"), FullEntry(-5)}));
        EXPECT_EQ(RecordsOf(GroupToDo).size(), nVersion == 4 ? 1U : 0U);
        EXPECT_EQ(DatesCustom::s_nNextCustomID, 10042U);
    }
}

TEST_F(DataFile, LoadsTheExampleOfItsDescription)
{
    const unsigned char example[] = {
        0x03, 0x00,                                                             // file word
        0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,             // United States
        0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,             // Canada
        0x02, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,             // Netherlands
        0xCA, 0x00, 0x00, 0x00, 0x00, 0x00, 0xFF, 0x00, 0x00,                   // 202 in blue, hidden
        0x03, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,             // own dates
        0x02, 0x00, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,       // fixed, every year
        0x04, 0x00, 0x00, 0x00, 0x07, 0x00, 0x00, 0x00,                         // 4 July
        0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, // no year
        0x10, 0x27, 0x00, 0x00, 0x03, 0x46, 0x65, 0x74,                         // 10000, "Fet"
        0x01, 0x00, 0x01, 0xFF, 0x00, 0x00, 0x00,                               // shown in red
        0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,             // to-do list
        0x11, 0x27, 0x00, 0x00,                                                 // next id
    };
    WriteFile(4, std::string(std::begin(example), std::end(example)));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(RecordsOf(GroupCustom), std::vector{Entry(10000, "Fet", true, 0x0000FF)});
    EXPECT_EQ(Find(GroupNetherlands, 202).GetColor(), 0xFF0000U);
    EXPECT_FALSE(Find(GroupNetherlands, 202).GetShow());
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10001U);
    EXPECT_TRUE(m_settings.Save());
    DWORD dwColor = 7;
    EXPECT_EQ(m_settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day\r\nFet");
    EXPECT_EQ(dwColor, 0x0000FFU);
}

TEST_F(DataFile, LoadsVersion1ByTheNamesOfTheGroups)
{
    FileBytes file;
    file.U16(77).I32(5);
    file.Text("Canada").U32(1).Text("united states").U32(2).Text("Custom dates").U32(3);
    file.Text("The Netherlands").U32(4).Text("Custom dates").U32(5);
    file.U16(3).Text("Canada").Text("Custom dates").Text("nonsense");
    file.Custom({Entry(10007, "Mine", false, 9)});
    WriteFile(1, file);
    m_settings.SetAllColor(GroupUS, 6);
    m_settings.AddCustomEntry(new CalendarDateEntry);
    ASSERT_TRUE(m_settings.Load());

    const struct
    {
        CalendarSettings::Group group;
        DWORD dwColor;
        bool bShow;
    } groups[] = {{GroupUS, 0xFFFFFF, false},
                  {GroupCanada, 1, true},
                  {GroupNetherlands, 4, false},
                  {GroupCustom, 5, true}};
    for (const auto& c : groups) {
        ASSERT_GT(m_settings.GetCount(c.group), 0U);
        for (size_t i = 0; i < m_settings.GetCount(c.group); ++i) {
            EXPECT_EQ(m_settings.GetAt(c.group, i)->GetColor(), c.dwColor);
            EXPECT_EQ(m_settings.GetAt(c.group, i)->GetShow(), c.bShow);
        }
    }
    EXPECT_EQ(RecordsOf(GroupCustom), std::vector{Entry(10007, "Mine", true, 5)});
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10001U) << "this form holds no counter";
}

TEST_F(DataFile, LoadsVersion1WithoutColourRows)
{
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
    const EntryRecord stored = FullEntry(10007);
    EntryRecord renumbered = stored;
    renumbered.date.nID = 10000;
    renumbered.bShow = true;
    renumbered.nColor = 0xFFFFFF;
    for (const unsigned nWord : {0, 1, 2, 3, 4, 0xFFFF}) {
        DatesCustom::s_nNextCustomID = 10000;
        WriteFile(4, FileBytes()
                         .U16(3)
                         .Overlay({})
                         .Overlay({})
                         .Overlay({})
                         .Custom({stored}, nWord)
                         .ToDo({})
                         .U32(10042));
        ASSERT_TRUE(m_settings.Load());
        EXPECT_EQ(RecordsOf(GroupCustom), std::vector{nWord == 1 ? renumbered : stored}) << nWord;
        EXPECT_EQ(DatesCustom::s_nNextCustomID, 10042U) << "the counter of the file counts";
    }

    // Without a counter in the file, the ids drawn from it stay used.
    DatesCustom::s_nNextCustomID = 10000;
    UseDirectory(m_root / "oldest");
    WriteFile(1, FileBytes().U16(1).I32(0).U16(0).Custom({stored, stored, stored}, 1));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(m_settings.GetAt(GroupCustom, 2)->m_nID, 10002);
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10003U);
}

TEST_F(DataFile, LoadsTheFirstFormOfADate)
{
    EntryRecord stored = Entry(10007, "Mine");
    FileBytes file;
    file.U16(3)
        .Overlay({})
        .Overlay({})
        .Overlay({})
        .U16(3)
        .U64(2)
        .Entry(stored, 1)
        .Entry(FullEntry(1))
        .ToDo({})
        .U32(1);
    WriteFile(4, file);
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(RecordsOf(GroupCustom), (std::vector{stored, FullEntry(1)}));
}

TEST_F(DataFile, LoadsEveryFormOfAnOverlay)
{
    for (const unsigned nWord : {0, 1, 2, 3, 0xFFFF}) {
        CalendarSettings settings;
        // An id without an entry, between two with one; the last record of an id counts.
        const std::vector<OverlayRecord> records = {
            {0, 5, false}, {16, 6, false}, {41, 7, true}, {0, 8, false}};
        WriteFile(2,
                  FileBytes().U16(2).Overlay(records, nWord).Overlay({}).Overlay({}).Custom({}).U32(10000));
        ASSERT_TRUE(settings.Load());
        EXPECT_EQ(settings.GetAt(GroupUS, 0)->GetColor(), 8U) << nWord;
        EXPECT_EQ(settings.GetAt(GroupUS, 40)->GetColor(), 7U);
        EXPECT_EQ(settings.GetAt(GroupUS, 1)->GetColor(), 0xFFFFFFU);
    }
}

TEST_F(DataFile, TakesTheNewestFileAndLooksAtNoOther)
{
    EXPECT_FALSE(m_settings.Load()) << "no file";
    WriteFile(1, FileBytes().U16(1).I32(0).U16(0).Custom({Entry(1, "one")}));
    WriteFile(3, MakeFile(3));
    ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(RecordsOf(GroupCustom).size(), 2U);

    m_settings.SetAllColor(GroupCanada, 5);
    WriteFile(4, "");
    EXPECT_FALSE(m_settings.Load()) << "an empty file";
    EXPECT_EQ(RecordsOf(GroupCustom).size(), 2U);
    EXPECT_EQ(Find(GroupCanada, 101).GetColor(), 5U);
}

TEST_F(DataFile, ReplacesTheUsersListsAndLaysTheRestOver)
{
    WriteFile(4, MakeFile(4));
    for (int i = 0; i < 2; ++i)
        ASSERT_TRUE(m_settings.Load());
    EXPECT_EQ(m_settings.GetCount(GroupCustom), 2U);
    EXPECT_EQ(m_settings.GetCount(GroupToDo), 1U);

    // An older file knows no to-do list: the list stays, and the next save moves it along.
    std::filesystem::remove(PathOf(4));
    WriteFile(3, MakeFile(3));
    const std::string strOld = ReadFile(3);
    ASSERT_TRUE(m_settings.Load());
    ASSERT_TRUE(m_settings.Save());
    EXPECT_TRUE(ReadFile(3) == strOld);
    EXPECT_EQ(FileParser(ReadFile(4)).Parse().toDo, std::vector{Entry(11003, "Do it")});
}

TEST_F(DataFile, IsWrittenAsDescribed)
{
    for (CalendarDateEntry* pEntry : {&Find(GroupUS, 17), &Find(GroupCanada, 116)}) {
        pEntry->SetShow(false);
        pEntry->SetColor(0x80000001);
    }
    auto pRule = std::make_unique<CalendarDateEntry>();
    pRule->SetBeforeAfterDayOfWeek(CString('x', 300), DateEntry::OCCURRENCE_LAST, 6, 4, -4);
    pRule->m_nKind = DateEntry::KIND_FROM_YEAR;
    pRule->m_nStartYear = 2007;
    pRule->SetColor(0xFF);
    m_settings.AddCustomEntry(pRule.release());
    m_settings.AddCustomEntry(new CalendarDateEntry);
    ASSERT_TRUE(m_settings.Save());

    const FileContent content = FileParser(ReadFile(4)).Parse();
    EXPECT_EQ(content.nFileWord, 3U);
    EXPECT_EQ(content.nCustomWord, 3U);
    EXPECT_EQ(content.nToDoWord, 1U);
    EXPECT_EQ(content.nNextCustomID, 10002U);
    EXPECT_TRUE(content.toDo.empty());

    const struct
    {
        CalendarSettings::Group group;
        const std::vector<OverlayRecord>& records;
    } overlays[] = {
        {GroupUS, content.us}, {GroupCanada, content.canada}, {GroupNetherlands, content.netherlands}};
    for (const auto& overlay : overlays) {
        ASSERT_EQ(overlay.records.size(), m_settings.GetCount(overlay.group));
        for (size_t i = 0; i < overlay.records.size(); ++i) {
            const CalendarDateEntry& entry = *m_settings.GetAt(overlay.group, i);
            EXPECT_EQ(overlay.records[i], (OverlayRecord{entry.m_nID, entry.m_dwColor, entry.m_bShow}));
        }
    }
    EXPECT_EQ(content.us[16], (OverlayRecord{17, 0x80000001, false}));

    ASSERT_EQ(content.custom, RecordsOf(GroupCustom));
    const DateRecord& rule = content.custom[0].date;
    EXPECT_EQ(rule.strDesc, std::string(300, 'x'));
    EXPECT_EQ(std::vector(std::begin(rule.anRule), std::end(rule.anRule)), (std::vector{7, 6, 4, -4}));
    EXPECT_EQ(rule.nRule, 4);
}

TEST_F(DataFile, ComesBackWhole)
{
    WriteFile(4, MakeFile(4));
    ASSERT_TRUE(m_settings.Load());
    for (const size_t nLength : {0, 1, 254, 255, 65533, 65534, 70000}) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        pEntry->SetDay(CString(std::string(nLength, 'y')), 1, 1);
        m_settings.AddCustomEntry(pEntry.release());
    }
    m_settings.SetAllColor(GroupNetherlands, 0x010203);
    m_settings.SetAllShow(GroupCanada, false);
    ASSERT_TRUE(m_settings.Save());
    const std::string strSaved = ReadFile(4);

    CalendarSettings other;
    DatesCustom::s_nNextCustomID = 1;
    ASSERT_TRUE(other.Load());
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10049U);
    ASSERT_TRUE(other.Save());
    EXPECT_TRUE(ReadFile(4) == strSaved);
    EXPECT_TRUE(FileParser(strSaved).Parse().custom == RecordsOf(GroupCustom));
}

// The switch of the to-do list. It can't be put back, so everything about it is one test.
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <memory>

namespace {

using enum CalendarSettings::Group;

std::unique_ptr<CalendarDateEntry> NewEntry(const char* szDesc)
{
    auto pEntry = std::make_unique<CalendarDateEntry>();
    pEntry->SetDay(szDesc, 26, 12);
    pEntry->SetColor(5);
    return pEntry;
}

}

class ToDoList : public DataDirectory
{
};

TEST_F(ToDoList, IsKeptButSilentUntilItIsPutIntoUse)
{
    EntryRecord stored;
    stored.date.strDesc = "Stored";
    stored.date.nID = 11000;
    stored.nColor = 9;
    WriteFile(4, FileBytes().U16(3).Overlay({}).Overlay({}).Overlay({}).Custom({}).ToDo({stored}).U32(10000));
    CalendarSettings settings;
    ASSERT_TRUE(settings.Load());
    EXPECT_FALSE(CalendarSettings::IsEnableToDoList());

    // Off: the list is there to be read and saved, and for nothing else.
    auto pEntry = NewEntry("New");
    settings.AddToDoEntry(pEntry.get());
    EXPECT_EQ(pEntry->m_nID, 0);
    ASSERT_EQ(settings.GetCount(GroupToDo), 1U);
    settings.DeleteToDoEntry(settings.GetAt(GroupToDo, 0));
    settings.SetAllShow(GroupToDo, false);
    settings.SetAllColor(GroupToDo, 1);
    ASSERT_EQ(settings.GetCount(GroupToDo), 1U);
    EXPECT_TRUE(settings.GetAt(GroupToDo, 0)->GetShow());
    EXPECT_EQ(settings.GetAt(GroupToDo, 0)->GetColor(), 9U);
    DWORD dwColor = 7;
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day");
    EXPECT_NE(dwColor, 9U);
    EXPECT_TRUE(settings.Save());
    EXPECT_EQ(FileParser(ReadFile(4)).Parse().toDo, std::vector<EntryRecord>{stored});

    // On.
    CalendarSettings::EnableToDoList();
    EXPECT_TRUE(CalendarSettings::IsEnableToDoList());
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day\r\nStored");
    EXPECT_EQ(dwColor, 9U);
    settings.AddToDoEntry(pEntry.release());
    settings.AddToDoEntry(nullptr);
    ASSERT_EQ(settings.GetCount(GroupToDo), 2U);
    EXPECT_EQ(settings.GetAt(GroupToDo, 1)->m_nID, 11000) << "a process begins anew, whatever the file holds";
    settings.AddToDoEntry(NewEntry("Another").release());
    EXPECT_EQ(settings.GetAt(GroupToDo, 2)->m_nID, 11001);
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10000U);

    settings.SetAllColor(GroupToDo, 6);
    EXPECT_EQ(settings.GetDateDesc(26, 12, 2026, dwColor), "Boxing Day\r\nNew\r\nAnother");
    EXPECT_EQ(dwColor, 6U);
    settings.SetAllShow(GroupToDo, false);
    EXPECT_EQ(settings.GetDateDesc(26, 12, 2026, dwColor), "Boxing Day");

    settings.DeleteToDoEntry(settings.GetAt(GroupToDo, 1));
    ASSERT_EQ(settings.GetCount(GroupToDo), 2U);
    EXPECT_EQ(settings.GetAt(GroupToDo, 1)->m_strDesc, "Another");
}

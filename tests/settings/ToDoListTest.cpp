// The switch of the to-do list. It can't be put back, so everything about it is one test.
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <memory>

using ToDoList = DataDirectory;
using enum CalendarSettings::Group;

TEST_F(ToDoList, IsKeptButSilentUntilItIsPutIntoUse)
{
    const CalendarDateEntry stored = MakeEntry(11000, "Stored", true, 9);
    WriteFile(4, FileBytes().U16(3).NoOverlays().Custom({}).ToDo({stored}).U32(10000));
    CalendarSettings settings;
    ASSERT_TRUE(settings.Load());
    EXPECT_FALSE(CalendarSettings::IsEnableToDoList());

    // Off: the list is there to be read and saved, and for nothing else.
    auto pEntry = std::make_unique<CalendarDateEntry>(MakeEntry(0, "New", true, 5));
    settings.AddToDoEntry(pEntry.get());
    EXPECT_EQ(pEntry->m_nID, 0);
    ASSERT_EQ(settings.GetCount(GroupToDo), 1U);
    settings.DeleteToDoEntry(settings.GetAt(GroupToDo, 0));
    settings.SetAllShow(GroupToDo, false);
    settings.SetAllColor(GroupToDo, 1);
    EXPECT_EQ(BytesOf(EntriesOf(settings, GroupToDo)), BytesOf({stored}));
    DWORD dwColor = 7;
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day");
    EXPECT_NE(dwColor, 9U);
    EXPECT_TRUE(settings.Save());
    EXPECT_TRUE(ReadFile(4) == SavedBytesOf(settings));

    // On.
    CalendarSettings::EnableToDoList();
    EXPECT_TRUE(CalendarSettings::IsEnableToDoList());
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day\r\nStored");
    EXPECT_EQ(dwColor, 9U);
    settings.AddToDoEntry(pEntry.release());
    settings.AddToDoEntry(nullptr);
    settings.AddToDoEntry(new CalendarDateEntry(MakeEntry(0, "Another")));
    ASSERT_EQ(settings.GetCount(GroupToDo), 3U);
    EXPECT_EQ(settings.GetAt(GroupToDo, 1)->m_nID, 11000) << "a process begins anew, whatever the file holds";
    EXPECT_EQ(settings.GetAt(GroupToDo, 2)->m_nID, 11001);
    EXPECT_EQ(DatesCustom::s_nNextCustomID, 10000U);

    settings.SetAllColor(GroupToDo, 6);
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day\r\nStored\r\nNew\r\nAnother");
    EXPECT_EQ(dwColor, 6U);
    settings.SetAllShow(GroupToDo, false);
    EXPECT_EQ(settings.GetDateDesc(4, 7, 2026, dwColor), "Independence Day");

    settings.DeleteToDoEntry(settings.GetAt(GroupToDo, 1));
    ASSERT_EQ(settings.GetCount(GroupToDo), 2U);
    EXPECT_EQ(settings.GetAt(GroupToDo, 1)->m_strDesc, "Another");
}

// The groups as one object, with the to-do list not in use.
#include "DataDirectory.h"
#include "FileBytes.h"

#include <CalendarSettings.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace {

using enum CalendarSettings::Group;

constexpr auto kNoGroup = static_cast<CalendarSettings::Group>(5);

class Settings : public DataDirectory
{
protected:
    CalendarSettings m_settings;
};

}

TEST_F(Settings, NameTheGroupsAndGiveTheirEntries)
{
    const struct
    {
        CalendarSettings::Group group;
        const char* szName;
        size_t nCount;
    } groups[] = {{GroupUS, "United States", 41},
                  {GroupCanada, "Canada", 39},
                  {GroupNetherlands, "The Netherlands", 22},
                  {GroupCustom, "Custom dates", 0},
                  {GroupToDo, "To-do list", 0},
                  {kNoGroup, "", 0},
                  {static_cast<CalendarSettings::Group>(-1), "", 0}};
    for (const auto& c : groups) {
        EXPECT_EQ(CalendarSettings::GetName(c.group), c.szName);
        EXPECT_EQ(m_settings.GetCount(c.group), c.nCount) << c.szName;
        if (c.group == GroupCustom || c.group == GroupToDo)
            EXPECT_THAT([&] { m_settings.GetAt(c.group, 0); },
                        testing::ThrowsMessage<std::out_of_range>("invalid vector subscript"));
        else
            EXPECT_EQ(m_settings.GetAt(c.group, c.nCount), nullptr);
    }
    EXPECT_EQ(m_settings.GetAt(GroupUS, 16)->m_nID, 17);
    EXPECT_FALSE(std::filesystem::exists(m_directory)) << "construction touches no file";

    m_settings.SetAllColor(kNoGroup, 5);
    m_settings.SetAllShow(kNoGroup, false);
    EXPECT_EQ(SavedBytesOf(m_settings), SavedBytesOf(*std::make_unique<CalendarSettings>()));
}

TEST_F(Settings, JoinTheGroupsAndTakeTheColourOfTheLast)
{
    m_settings.SetAllColor(GroupUS, 1);
    m_settings.SetAllColor(GroupCanada, 2);
    m_settings.SetAllColor(GroupNetherlands, 3);
    const struct
    {
        int nDay, nMonth, nYear;
        const char* szDesc;
        DWORD dwColor;
    } dates[] = {
        {1, 1, 2026, "Nieuwjaar\r\nNew Year's Day", 1}, // a text that two groups share stands once
        {21, 12, 2026, "Winter", 1},                    // and one that three share
        {26, 12, 2026, "Boxing Day", 2},
        {12, 10, 2026, "Thanksgiving\r\nColumbus Day", 1},
        {23, 5, 2021, "Pinksteren", 3},
        {4, 4, 2021, "Eerste paasdag\r\nEaster", 1},
        {3, 1, 2026, "", 7},
    };
    for (const auto& date : dates) {
        DWORD dwColor = 7;
        EXPECT_EQ(m_settings.GetDateDesc(date.nDay, date.nMonth, date.nYear, dwColor), date.szDesc);
        EXPECT_EQ(dwColor, date.dwColor) << date.szDesc;
    }

    auto pMine = std::make_unique<CalendarDateEntry>(MakeEntry(0, "Mine", true, 4));
    pMine->SetDay("Mine", 26, 12);
    m_settings.AddCustomEntry(pMine.release());
    DWORD dwColor = 7;
    EXPECT_EQ(m_settings.GetDateDesc(26, 12, 2026, dwColor), "Boxing Day\r\nMine");
    EXPECT_EQ(dwColor, 4U);

    m_settings.SetAllShow(GroupCustom, false);
    EXPECT_EQ(m_settings.GetDateDesc(26, 12, 2026, dwColor), "Boxing Day");
    m_settings.SetAllShow(GroupCustom, true);
    EXPECT_EQ(m_settings.GetDateDesc(26, 12, 2026, dwColor), "Boxing Day\r\nMine");
}

TEST_F(Settings, NumberTheUsersDatesAndNeverReuseANumber)
{
    m_settings.AddCustomEntry(nullptr);
    EXPECT_EQ(m_settings.GetCount(GroupCustom), 0U);
    for (int i = 0; i < 3; ++i)
        m_settings.AddCustomEntry(new CalendarDateEntry);
    m_settings.DeleteCustomEntry(m_settings.GetAt(GroupCustom, 1));
    CalendarSettings other; // of the same process
    other.AddCustomEntry(new CalendarDateEntry);
    m_settings.AddCustomEntry(new CalendarDateEntry);

    // What is not in the list is left alone.
    CalendarDateEntry foreign;
    for (CalendarDateEntry* pEntry :
         {&foreign, static_cast<CalendarDateEntry*>(nullptr), m_settings.GetAt(GroupUS, 0)})
        m_settings.DeleteCustomEntry(pEntry);
    EXPECT_EQ(m_settings.GetCount(GroupUS), 41U);

    const int ids[] = {10000, 10002, 10004};
    ASSERT_EQ(m_settings.GetCount(GroupCustom), std::size(ids));
    for (size_t i = 0; i < std::size(ids); ++i)
        EXPECT_EQ(m_settings.GetAt(GroupCustom, i)->m_nID, ids[i]);
    EXPECT_EQ(other.GetAt(GroupCustom, 0)->m_nID, 10003);
}

#include "CalendarFixture.h"

#include <DownArrowButton.h>
#include <NumberTextConv.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

enum class Screen
{
    Unchanged, // nothing waits to be painted
    Grid       // the whole grid does
};

// A message, and how far the control had got when it was sent.
struct Told
{
    std::string strName;
    bool bNewTitle;
    bool bNewFrame;

    bool operator==(const Told&) const = default;
};

void PrintTo(const Told& told, std::ostream* out)
{
    *out << told.strName << (told.bNewTitle ? " title" : "") << (told.bNewFrame ? " frame" : "");
}

const Told kTold{"SELCHANGE 1", true, false};               // the last thing done
const Told kToldBeforeRefresh{"SELCHANGE 1", false, false}; // the first
const Told kToldFrameMoved{"SELCHANGE 1", false, true};
const Told kPressed{"SELCHANGE 0", false, false};
const Told kPressedMonth{"SELCHANGE 0", true, false};

}

// Each way to change the date: what becomes of flag, date and screen, and what the parent hears when.
class TriggerTest : public CalendarTest
{
protected:
    struct Trigger
    {
        const char* strName;
        std::function<void()> act;
        bool bHaveDateBefore;
        DateTime before;
        bool bHaveDate;
        DateTime date;
        Screen screen;
        std::vector<Told> told;
    };

    void Check(const Trigger& trigger)
    {
        SCOPED_TRACE(trigger.strName);
        Show(trigger.before, trigger.bHaveDateBefore);
        parent.m_heard.clear();
        const CString strOldTitle = calendar->GetTitle();
        const CRect rcOld = calendar->m_rcSelection;
        trigger.act();

        EXPECT_EQ(calendar->m_bHaveDate, trigger.bHaveDate);
        EXPECT_EQ(ToText(calendar->GetDate()), ToText(trigger.date));
        EXPECT_EQ(GetInvalid(), trigger.screen == Screen::Grid ? calendar->m_rcGrid : CRect());
        CheckTables();
        std::vector<Told> told;
        for (const Heard& heard : parent.m_heard) {
            EXPECT_EQ(heard.wParam, kCalendarId);
            EXPECT_EQ(ToText(heard.date), ToText(trigger.date));
            EXPECT_EQ(heard.bHaveDate, trigger.bHaveDate);
            told.push_back({NameOf(heard), heard.strTitle != strOldTitle, heard.rcSelection != rcOld});
        }
        EXPECT_EQ(told, trigger.told);
        Repaint();
        EXPECT_EQ(calendar->m_rcSelection, calendar->GetDayRect(trigger.date.GetDay()));
    }

    // Title and special days are those of the month shown.
    void CheckTables()
    {
        const CString strTitle = calendar->GetTitle();
        const auto descs = calendar->m_vDayDescs;
        const int nToday = calendar->m_nTodayCell;
        calendar->RefreshMonth();
        EXPECT_EQ(strTitle, calendar->GetTitle());
        EXPECT_EQ(nToday, calendar->m_nTodayCell);
        EXPECT_TRUE(descs == calendar->m_vDayDescs);
    }
};

TEST_F(TriggerTest, Table)
{
    Start();
    const DateTime start = Date(2026, 5, 20);
    const DateTime today = Date(2026, 7, 15);
    const auto key = [this](WPARAM nKey) { return [this, nKey] { Key(nKey); }; };
    const auto command = [this](UINT nId) { return [this, nId] { Command(nId); }; };
    const auto set = [this](const DateTime& date) { return [this, date] { calendar->SetDate(date); }; };
    const auto wheel = [this](short n) {
        return [this, n] { calendar->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n), 0); };
    };
    const auto press = [this](int nCell) {
        return [this, nCell] { Press(calendar->GetCellRect(MonthBlock::PlaceOfCell(nCell)).CenterPoint()); };
    };
    constexpr int kFirstCell = 5; // 1 May 2026 is a Friday
    const Told noDate{"NODATE 0", false, false};
    const Told range{"RANGE 0", true, false};

    const Trigger triggers[] = {
        {"SetDate in the month",
         set(Date(2026, 5, 3)),
         true,
         start,
         true,
         Date(2026, 5, 3),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"SetDate in another month",
         set(Date(2026, 6, 3)),
         false,
         start,
         true,
         Date(2026, 6, 3),
         Screen::Grid,
         {kTold}},
        {"SetDate in another year",
         set(Date(2025, 5, 20)),
         false,
         start,
         true,
         Date(2025, 5, 20),
         Screen::Grid,
         {kTold}},
        {"SetDate without a date", set(DateTime()), true, start, false, today, Screen::Grid, {}},
        {"SetDate without a date, today shown",
         set(DateTime()),
         true,
         Date(2026, 7, 1),
         false,
         today,
         Screen::Grid,
         {}},
        {"Year back",
         command(2600),
         true,
         start,
         true,
         Date(2025, 5, 20),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Year on", command(2601), true, start, true, Date(2027, 5, 20), Screen::Grid, {kToldBeforeRefresh}},
        {"Month back",
         command(2602),
         true,
         start,
         true,
         Date(2026, 4, 20),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Month on", command(2603), true, start, true, Date(2026, 6, 20), Screen::Grid, {kToldBeforeRefresh}},
        {"Month on, no date", command(2603), false, start, false, Date(2026, 6, 20), Screen::Grid, {}},
        {"Year back, no date", command(2600), false, start, false, Date(2025, 5, 20), Screen::Grid, {}},
        {"Month on keeps within the month",
         command(2603),
         true,
         Date(2026, 1, 31),
         true,
         Date(2026, 2, 28),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Page Up",
         key(VK_PRIOR),
         true,
         Date(2026, 1, 5),
         true,
         Date(2025, 12, 5),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Page Down",
         key(VK_NEXT),
         true,
         Date(2026, 12, 5),
         true,
         Date(2027, 1, 5),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Page Down, no date", key(VK_NEXT), false, start, false, Date(2026, 6, 20), Screen::Grid, {}},
        {"Wheel away", wheel(120), true, start, true, Date(2026, 4, 20), Screen::Grid, {kToldBeforeRefresh}},
        {"Wheel away a little", wheel(1), false, start, false, Date(2026, 4, 20), Screen::Grid, {}},
        {"Wheel not at all",
         wheel(0),
         true,
         start,
         true,
         Date(2026, 6, 20),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Wheel two notches near",
         wheel(-240),
         true,
         start,
         true,
         Date(2026, 6, 20),
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Today", command(2604), false, start, true, today, Screen::Grid, {kTold}},
        {"Today, in the month",
         command(2604),
         true,
         Date(2026, 7, 1),
         true,
         today,
         Screen::Grid,
         {kToldBeforeRefresh}},
        {"Today, already", command(2604), true, today, true, today, Screen::Unchanged, {kToldBeforeRefresh}},
        {"T", key('T'), false, today, true, today, Screen::Unchanged, {kToldBeforeRefresh}},
        {"F5", key(VK_F5), true, start, true, today, Screen::Grid, {kTold}},
        {"Clear", command(2605), true, start, false, start, Screen::Unchanged, {noDate}},
        {"Clear again", command(2605), false, start, false, start, Screen::Unchanged, {noDate}},
        {"Press a day",
         press(kFirstCell + 2),
         true,
         start,
         true,
         Date(2026, 5, 3),
         Screen::Unchanged,
         {kPressed}},
        {"Press the selected day", press(kFirstCell + 19), true, start, true, start, Screen::Unchanged, {}},
        {"Press the day of no date",
         press(kFirstCell + 19),
         false,
         start,
         true,
         start,
         Screen::Unchanged,
         {kPressed}},
        {"Press the month before",
         press(0),
         false,
         start,
         true,
         Date(2026, 4, 26),
         Screen::Grid,
         {kPressedMonth}},
        {"Press the month after",
         press(41),
         true,
         start,
         true,
         Date(2026, 6, 6),
         Screen::Grid,
         {kPressedMonth}},
        {"Press before January",
         press(3),
         true,
         Date(2026, 1, 9),
         true,
         Date(2025, 12, 31),
         Screen::Grid,
         {kPressedMonth}},
        {"Left", key(VK_LEFT), true, start, true, Date(2026, 5, 19), Screen::Unchanged, {kToldFrameMoved}},
        {"Right", key(VK_RIGHT), true, start, true, Date(2026, 5, 21), Screen::Unchanged, {kToldFrameMoved}},
        {"Up", key(VK_UP), false, start, true, Date(2026, 5, 13), Screen::Unchanged, {kToldFrameMoved}},
        {"Down", key(VK_DOWN), true, start, true, Date(2026, 5, 27), Screen::Unchanged, {kToldFrameMoved}},
        {"Left, month before",
         key(VK_LEFT),
         true,
         Date(2026, 5, 1),
         true,
         Date(2026, 4, 30),
         Screen::Grid,
         {kTold}},
        {"Right, month after",
         key(VK_RIGHT),
         false,
         Date(2026, 12, 31),
         true,
         Date(2027, 1, 1),
         Screen::Grid,
         {kTold}},
        {"Up, month before",
         key(VK_UP),
         true,
         Date(2026, 5, 7),
         true,
         Date(2026, 4, 30),
         Screen::Grid,
         {kTold}},
        {"Down, month after",
         key(VK_DOWN),
         true,
         Date(2026, 5, 25),
         true,
         Date(2026, 6, 1),
         Screen::Grid,
         {kTold}},
        {"Left, first of all days",
         key(VK_LEFT),
         false,
         Date(1, 1, 1),
         true,
         Date(1, 1, 1),
         Screen::Unchanged,
         {kToldBeforeRefresh}},
        {"Down, last of all days",
         key(VK_DOWN),
         true,
         Date(9999, 12, 31),
         true,
         Date(9999, 12, 31),
         Screen::Unchanged,
         {kToldBeforeRefresh}},
        {"Press after the last of all days",
         press(41),
         false,
         Date(9999, 12, 31),
         true,
         Date(9999, 12, 31),
         Screen::Grid,
         {kPressed}},
        {"Home", key(VK_HOME), false, start, true, Date(2026, 5, 1), Screen::Unchanged, {kToldBeforeRefresh}},
        {"End", key(VK_END), true, start, true, Date(2026, 5, 31), Screen::Unchanged, {kToldBeforeRefresh}},
        {"Enter", key(VK_RETURN), true, start, true, start, Screen::Unchanged, {{"ENTER 0", false, false}}},
        {"Esc", key(VK_ESCAPE), false, start, false, start, Screen::Unchanged, {{"ESC 0", false, false}}},
        {"Another key", key('X'), true, start, true, start, Screen::Unchanged, {}},
        {"A range", command(42032), false, start, true, Date(2026, 7, 1), Screen::Grid, {kTold, range}},
        {"Copy", command(42031), true, start, true, start, Screen::Unchanged, {}},
        {"Web page",
         command(42049),
         true,
         start,
         true,
         start,
         Screen::Unchanged,
         {{"WEBPAGE 0", false, false}}},
        {"Reload", [this] { calendar->ReloadSpecialDates(); }, true, start, true, start, Screen::Grid, {}},
    };
    for (const Trigger& trigger : triggers)
        Check(trigger);
}

class NavigationTest : public CalendarTest
{
};

TEST_F(NavigationTest, ClearNeedsPermissionAndAFrame)
{
    ASSERT_TRUE(Create());
    parent.m_heard.clear();
    calendar->m_rcSelection.SetRectEmpty(); // as before the first paint
    calendar->m_bHaveDate = true;
    calendar->OnClearButton();
    EXPECT_FALSE(calendar->m_bHaveDate);
    EXPECT_THAT(TakeHeard(), IsEmpty());

    Show(Date(2026, 5, 20), true);
    calendar->m_bAllowNoDate = false;
    calendar->OnClearButton();
    EXPECT_TRUE(calendar->m_bHaveDate);
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

TEST_F(NavigationTest, TitleNamesMonthAndYear)
{
    Start();
    const std::pair<DateTime, const char*> cases[] = {{Date(2026, 3, 9), "March 2026"},
                                                      {Date(1, 1, 1), "January 1"},
                                                      {Date(9999, 12, 31), "December 9999"},
                                                      {DateTime(), "(no date)"}};
    for (const auto& [date, strTitle] : cases) {
        calendar->m_date = date;
        calendar->UpdateMonthYearText();
        EXPECT_EQ(calendar->GetTitle(), strTitle);
    }
}

// Without a date the title is asked, which names one only in the form with a comma; else today serves.
TEST_F(NavigationTest, InvalidDateIsRepaired)
{
    Start();
    struct
    {
        const char* strTitle;
        DateTime date;
        bool bGridInvalid;
    } const cases[] = {
        {"(no date)", Date(2026, 7, 15), true},
        {"March 2026", Date(2026, 7, 15), true},
        {"March, 2025", Date(2025, 3, 1), false},
        {"March,   1999x", Date(1999, 3, 1), false},
        {"March, none", Date(2026, 7, 15), true},
        {"march, 2025", Date(2026, 7, 15), true},
        {"Smarch, 2025", Date(2026, 7, 15), true},
        {",", Date(2026, 7, 15), true},
        {"", Date(2026, 7, 15), true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.strTitle);
        Show(DateTime(), true);
        calendar->m_pMonthYearButton->SetWindowText(c.strTitle);
        calendar->SetValidDate();
        EXPECT_EQ(ToText(calendar->m_date), ToText(c.date));
        EXPECT_EQ(GetInvalid(), c.bGridInvalid ? calendar->m_rcGrid : CRect());
        EXPECT_THAT(TakeHeard(), IsEmpty());
        EXPECT_TRUE(calendar->m_bHaveDate);
    }

    Show(DateTime(), false);
    Command(2603);
    EXPECT_EQ(ToText(calendar->m_date), "2026-8-15");

    calendar->m_date = DateTime();
    calendar->m_pMonthYearButton->DestroyWindow();
    calendar->SetValidDate();
    EXPECT_FALSE(calendar->m_date.IsValid());
}

// Steps out of the range of dates, and what follows after them, leave a control that works.
TEST_F(NavigationTest, StepsOutOfTheRange)
{
    Start();
    const std::pair<DateTime, UINT> cases[] = {
        {Date(9999, 12, 31), 2601}, {Date(9999, 12, 31), 2603}, {Date(1, 1, 1), 2600}, {Date(1, 1, 1), 2602}};
    for (const auto& [date, nCommand] : cases) {
        Show(date, true);
        Command(nCommand);
        EXPECT_EQ(calendar->GetTitle(), "(no date)");
        Repaint();
        for (const WPARAM nKey : {VK_LEFT, VK_END, VK_HOME, VK_DOWN})
            Key(nKey);
        Press(CPoint(100, 100));
        Repaint();
        Command(2602);
        EXPECT_EQ(ToText(calendar->m_date), "2026-6-15");
    }
}

TEST_F(NavigationTest, MessagesNeedALivingParent)
{
    Start();
    calendar->m_pParent = nullptr;
    calendar->SetDate(Date(2026, 1, 2));
    EXPECT_THAT(TakeHeard(), IsEmpty());
    EXPECT_EQ(ToText(calendar->GetDate()), "2026-1-2");

    CWnd gone;
    calendar->m_pParent = &gone;
    Command(42049);
    calendar->SetDate(Date(2026, 1, 3));
    EXPECT_THAT(TakeHeard(), IsEmpty());
    calendar->m_pParent = &parent;
    calendar->SetDate(calendar->GetDate());
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 1"));
}

TEST_F(NavigationTest, ReloadReadsTheFile)
{
    Start();
    HideNationalDays();
    AddSpecialDay("Stored", 10, 7, RGB(1, 2, 3));
    calendar->m_settings.Save();
    calendar->m_settings.SetAllShow(CalendarSettings::GroupCustom, false);
    calendar->RefreshMonth();
    const int nCell = 2 + 10; // 1 July 2026 is a Wednesday
    EXPECT_EQ(calendar->m_vDayDescs[nCell], "");
    calendar->ReloadSpecialDates();
    EXPECT_EQ(calendar->m_vDayDescs[nCell], "Stored");
    EXPECT_EQ(calendar->m_vDayColors[nCell], RGB(1, 2, 3));

    calendar->m_settings.SetAllShow(CalendarSettings::GroupCustom, false);
    calendar->m_bUseSpecialDates = false;
    Repaint();
    calendar->ReloadSpecialDates();
    EXPECT_EQ(GetInvalid(), CRect());
}

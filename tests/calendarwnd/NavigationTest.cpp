// The date, the buttons that move it, and what the parent hears.
#include "CalendarFixture.h"

#include <gmock/gmock.h>

#include <cstdio>

using testing::IsEmpty;

namespace {

DateTime Parse(const char* strDate)
{
    int nYear = 0, nMonth = 0, nDay = 0;
    std::sscanf(strDate, "%d-%d-%d", &nYear, &nMonth, &nDay);
    return Date(nYear, nMonth, nDay);
}

}

// Each way to change the date: what becomes of flag, date and screen, and what the parent hears when.
class TriggerTest : public CalendarTest
{
protected:
    // A state is a date, with a plus before it if it is selected and a minus if not. The messages stand in
    // the order in which they are sent, each with its `lParam`, and with "title" or "frame" if that had
    // changed before.
    struct Trigger
    {
        const char* strName;
        std::function<void()> act;
        const char* strBefore;
        const char* strAfter;
        bool bGridInvalid; // otherwise nothing is invalid
        const char* strTold;
    };

    void Check(const Trigger& trigger)
    {
        SCOPED_TRACE(trigger.strName);
        Show(Parse(trigger.strBefore + 1), trigger.strBefore[0] == '+');
        parent.m_heard.clear();
        const CString strOldTitle = calendar->GetTitle();
        const CRect rcOld = calendar->m_rcSelection;
        const std::vector<CString> oldDescs = calendar->m_vDayDescs;
        const int nPaints = calendar->m_nPaints;
        trigger.act();

        const std::string strAfter = trigger.strAfter;
        EXPECT_EQ(GetState(calendar->GetDate(), calendar->m_bHaveDate), strAfter);
        EXPECT_EQ(GetInvalid(), trigger.bGridInvalid ? calendar->m_rcGrid : CRect());
        ExpectMonth();
        std::string strTold;
        for (const Heard& heard : parent.m_heard) {
            const bool bNewTitle = heard.strTitle != strOldTitle;
            EXPECT_EQ(heard.wParam, kCalendarId);
            EXPECT_EQ(GetState(heard.date, heard.bHaveDate), strAfter);
            EXPECT_TRUE(heard.descs == (bNewTitle ? calendar->m_vDayDescs : oldDescs));
            strTold += (strTold.empty() ? "" : ", ") + heard.strName;
            strTold += bNewTitle ? " title" : "";
            strTold += heard.rcSelection != rcOld ? " frame" : "";
        }
        EXPECT_EQ(strTold, trigger.strTold);
        calendar->UpdateWindow();
        EXPECT_EQ(calendar->m_nPaints - nPaints, trigger.bGridInvalid ? 1 : 0);
        EXPECT_EQ(calendar->m_rcSelection, calendar->GetDayRect(calendar->GetDate().GetDay()));
    }

    static std::string GetState(const DateTime& date, bool bHaveDate)
    {
        return (bHaveDate ? "+" : "-") + ToText(date);
    }
};

TEST_F(TriggerTest, Table)
{
    Start();
    const auto key = [this](WPARAM nKey) { return [this, nKey] { Key(nKey); }; };
    const auto command = [this](UINT nId) { return [this, nId] { Command(nId); }; };
    const auto set = [this](const char* strDate) {
        return [this, date = Parse(strDate)] { calendar->SetDate(date); };
    };
    const auto wheel = [this](short n) {
        return [this, n] { calendar->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, n), 0); };
    };
    const auto wheelSideways = [this] { calendar->SendMessage(0x020E, MAKEWPARAM(0, 120)); };
    const auto press = [this](int nCell) { return [this, nCell] { PressCell(nCell); }; };
    const auto reload = [this] { calendar->ReloadSpecialDates(); };
    constexpr bool kGrid = true, kKept = false;
    const char* const strSel = "SELCHANGE 1"; // before anything else is done

    // Cell 5 is 1 May 2026. Today is 15 July 2026.
    const Trigger triggers[] = {
        {"SetDate in the month", set("2026-5-3"), "+2026-5-20", "+2026-5-3", kGrid, strSel},
        {"SetDate in another month", set("2026-6-3"), "-2026-5-20", "+2026-6-3", kGrid, "SELCHANGE 1 title"},
        {"SetDate in another year", set("2025-5-20"), "-2026-5-20", "+2025-5-20", kGrid, "SELCHANGE 1 title"},
        {"SetDate to none", set(""), "+2026-5-20", "-2026-7-15", kGrid, ""},
        {"SetDate to none, today shown", set(""), "+2026-7-1", "-2026-7-15", kGrid, ""},
        {"Year back", command(2600), "+2026-5-20", "+2025-5-20", kGrid, strSel},
        {"Year on", command(2601), "+2026-5-20", "+2027-5-20", kGrid, strSel},
        {"Month back", command(2602), "+2026-5-20", "+2026-4-20", kGrid, strSel},
        {"Month on", command(2603), "+2026-5-20", "+2026-6-20", kGrid, strSel},
        {"Month on, no date", command(2603), "-2026-5-20", "-2026-6-20", kGrid, ""},
        {"Year back, no date", command(2600), "-2026-5-20", "-2025-5-20", kGrid, ""},
        {"Month on, to a short one", command(2603), "+2026-1-31", "+2026-2-28", kGrid, strSel},
        {"Page Up", key(VK_PRIOR), "+2026-1-5", "+2025-12-5", kGrid, strSel},
        {"Page Down", key(VK_NEXT), "+2026-12-5", "+2027-1-5", kGrid, strSel},
        {"Page Down, no date", key(VK_NEXT), "-2026-5-20", "-2026-6-20", kGrid, ""},
        {"Wheel away", wheel(120), "+2026-5-20", "+2026-4-20", kGrid, strSel},
        {"Wheel away a little", wheel(1), "-2026-5-20", "-2026-4-20", kGrid, ""},
        {"Wheel not at all", wheel(0), "+2026-5-20", "+2026-6-20", kGrid, strSel},
        {"Wheel sideways", wheelSideways, "+2026-5-20", "+2026-5-20", kKept, ""},
        {"Wheel two notches near", wheel(-240), "+2026-5-20", "+2026-6-20", kGrid, strSel},
        {"Today", command(2604), "-2026-5-20", "+2026-7-15", kGrid, "SELCHANGE 1 title"},
        {"Today, in the month", command(2604), "+2026-7-1", "+2026-7-15", kGrid, strSel},
        {"Today, already", command(2604), "+2026-7-15", "+2026-7-15", kKept, strSel},
        {"T", key('T'), "-2026-7-15", "+2026-7-15", kKept, strSel},
        {"F5", key(VK_F5), "+2026-5-20", "+2026-7-15", kGrid, "SELCHANGE 1 title"},
        {"Clear", command(2605), "+2026-5-20", "-2026-5-20", kKept, "NODATE 0"},
        {"Clear again", command(2605), "-2026-5-20", "-2026-5-20", kKept, "NODATE 0"},
        {"Press a day", press(7), "+2026-5-20", "+2026-5-3", kKept, "SELCHANGE 0"},
        {"Press the selected day", press(24), "+2026-5-20", "+2026-5-20", kKept, ""},
        {"Press the day of no date", press(24), "-2026-5-20", "+2026-5-20", kKept, "SELCHANGE 0"},
        {"Press the month before", press(0), "-2026-5-20", "+2026-4-26", kGrid, "SELCHANGE 0 title"},
        {"Press the month after", press(41), "+2026-5-20", "+2026-6-6", kGrid, "SELCHANGE 0 title"},
        {"Press the year before", press(3), "+2026-1-9", "+2025-12-31", kGrid, "SELCHANGE 0 title"},
        {"Press after the last day", press(41), "-9999-12-31", "+9999-12-31", kGrid, "SELCHANGE 0"},
        {"Left", key(VK_LEFT), "+2026-5-20", "+2026-5-19", kKept, "SELCHANGE 1 frame"},
        {"Right", key(VK_RIGHT), "+2026-5-20", "+2026-5-21", kKept, "SELCHANGE 1 frame"},
        {"Up", key(VK_UP), "-2026-5-20", "+2026-5-13", kKept, "SELCHANGE 1 frame"},
        {"Down", key(VK_DOWN), "+2026-5-20", "+2026-5-27", kKept, "SELCHANGE 1 frame"},
        {"Left, month before", key(VK_LEFT), "+2026-5-1", "+2026-4-30", kGrid, "SELCHANGE 1 title"},
        {"Right, year after", key(VK_RIGHT), "-2026-12-31", "+2027-1-1", kGrid, "SELCHANGE 1 title"},
        {"Up, month before", key(VK_UP), "+2026-5-7", "+2026-4-30", kGrid, "SELCHANGE 1 title"},
        {"Down, month after", key(VK_DOWN), "+2026-5-25", "+2026-6-1", kGrid, "SELCHANGE 1 title"},
        {"Left on the first of all days", key(VK_LEFT), "-1-1-1", "+1-1-1", kKept, strSel},
        {"Down on the last of all days", key(VK_DOWN), "+9999-12-31", "+9999-12-31", kKept, strSel},
        {"Home", key(VK_HOME), "-2026-5-20", "+2026-5-1", kKept, strSel},
        {"End", key(VK_END), "+2026-5-20", "+2026-5-31", kKept, strSel},
        {"Enter", key(VK_RETURN), "+2026-5-20", "+2026-5-20", kKept, "ENTER 0"},
        {"Esc", key(VK_ESCAPE), "-2026-5-20", "-2026-5-20", kKept, "ESC 0"},
        {"Another key", key('X'), "+2026-5-20", "+2026-5-20", kKept, ""},
        {"A range", command(42032), "-2026-5-20", "+2026-7-1", kGrid, "SELCHANGE 1 title, RANGE 0 title"},
        {"Copy", command(42031), "+2026-5-20", "+2026-5-20", kKept, ""},
        {"Web page", command(42049), "+2026-5-20", "+2026-5-20", kKept, "WEBPAGE 0"},
        {"Reload", reload, "+2026-5-20", "+2026-5-20", kGrid, ""},
    };
    for (const Trigger& trigger : triggers)
        Check(trigger);
}

using NavigationTest = CalendarTest;

TEST_F(NavigationTest, ClearNeedsPermission)
{
    Start({.bAllowNoDate = false});
    Show(Date(2026, 5, 20), true);
    calendar->OnClearButton();
    EXPECT_TRUE(calendar->m_bHaveDate);
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

// Without a date the month of the title is taken, if the title has the form with a comma; otherwise that of
// today.
TEST_F(NavigationTest, InvalidDateIsRepaired)
{
    Start();
    const std::string strToday = "2026-7-15";
    const std::pair<const char*, std::string> cases[] = {
        {"(no date)", strToday},        {"March 2026", strToday},  {"March, 2025", "2025-3-1"},
        {"March,   1999x", "1999-3-1"}, {"march, 2025", strToday}, {"Smarch, 2025", strToday},
    };
    for (const auto& [strTitle, strDate] : cases) {
        SCOPED_TRACE(strTitle);
        Show(DateTime(), true);
        calendar->m_pMonthYearButton->SetWindowText(strTitle);
        calendar->SetValidDate();
        EXPECT_EQ(ToText(calendar->m_date), strDate);
        EXPECT_EQ(GetInvalid(), strDate == strToday ? calendar->m_rcGrid : CRect());
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

TEST_F(NavigationTest, MessagesNeedALivingParent)
{
    Start();
    CWnd gone;
    for (CWnd* pParent : {static_cast<CWnd*>(nullptr), &gone}) {
        calendar->m_pParent = pParent;
        calendar->SetDate(Date(2026, 1, 2));
        Command(42049);
    }
    EXPECT_THAT(TakeHeard(), IsEmpty());
    EXPECT_EQ(ToText(calendar->GetDate()), "2026-1-2");
}

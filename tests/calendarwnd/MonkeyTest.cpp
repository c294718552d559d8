// A random game: whatever messages come, the control stays consistent.
#include "CalendarFixture.h"
#include "RandomGame.h"

// Random messages. After each of them the control must be consistent.
class MonkeyTest : public CalendarTest, public testing::WithParamInterface<unsigned>
{
protected:
    // What the parent must hear of a message, or may hear.
    struct Due
    {
        std::string strTold;
        bool bMustBeTold = true;
    };

    int Pick(int nBelow) { return m_game.Pick(nBelow); }
    CPoint PickPoint() { return CPoint(Pick(kWidth + 20) - 10, Pick(kHeight + 20) - 10); }
    std::string IfDate(const char* strTold) const { return calendar->m_bHaveDate ? strTold : ""; }

    Due Act()
    {
        switch (Pick(16)) {
        case 0:
            calendar->SetFocus();
            return {};
        case 1:
            parent.SetFocus();
            return {};
        case 2:
            calendar->MoveWindow(0, 0, Pick(400), Pick(300));
            return {};
        case 3:
            calendar->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(Pick(300), Pick(300)));
            return {};
        case 4:
            calendar->ReloadSpecialDates();
            return {};
        case 5:
            return ActOnButton();
        case 6: {
            const Due due = {IfDate("SELCHANGE 1")};
            calendar->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, Pick(3) - 1), 0);
            return due;
        }
        case 7:
            Command(static_cast<UINT>(42032 + Pick(17)));
            return {calendar->m_bHaveDate ? "SELCHANGE 1, RANGE 0" : "RANGE 0"};
        case 8: {
            const DateTime date = m_game.PickDate();
            calendar->SetDate(date);
            return {date.IsValid() ? "SELCHANGE 1" : ""};
        }
        case 9:
        case 10:
            Press(PickPoint());
            return {"SELCHANGE 0", false};
        default:
            return ActOnKey();
        }
    }

    Due ActOnKey()
    {
        const bool bFocus = ::GetFocus() == calendar->m_hWnd;
        const bool bInside = bFocus || ::IsChild(calendar->m_hWnd, ::GetFocus());
        constexpr WPARAM kArrows[] = {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN};
        constexpr WPARAM kJumps[] = {VK_HOME, VK_END, 'T', VK_F5};
        const std::pair<WPARAM, std::string> keys[] = {
            {kArrows[Pick(4)], "SELCHANGE 1"},
            {kJumps[Pick(4)], "SELCHANGE 1"},
            {Pick(2) ? VK_PRIOR : VK_NEXT, IfDate("SELCHANGE 1")},
            {Pick(2) ? VK_TAB : VK_SPACE, ""},
            {VK_RETURN, bFocus ? "ENTER 0" : ""},
            {VK_ESCAPE, bFocus ? "ESC 0" : ""},
        };
        const auto& [nKey, strTold] = keys[Pick(std::size(keys))];
        Key(nKey);
        return {bInside ? strTold : ""};
    }

    Due ActOnButton()
    {
        const UINT nId = static_cast<UINT>(2600 + Pick(6));
        const Due due = {nId == 2604                             ? "SELCHANGE 1"
                         : nId != 2605                           ? IfDate("SELCHANGE 1")
                         : calendar->m_rcSelection.IsRectEmpty() ? ""
                                                                 : "NODATE 0"};
        Command(nId);
        return due;
    }

    // Each message comes in the state that it tells of, and none comes without a change of that state.
    void CheckHeard(const Due& due, bool bChanged)
    {
        std::string strTold;
        for (const Heard& heard : parent.m_heard) {
            ASSERT_EQ(heard.wParam, kCalendarId);
            ASSERT_EQ(heard.date.m_nDayNumber, calendar->GetDate().m_nDayNumber);
            ASSERT_EQ(heard.bHaveDate, calendar->m_bHaveDate);
            strTold += (strTold.empty() ? "" : ", ") + heard.strName;
        }
        parent.m_heard.clear();
        if (strTold.empty() && !due.bMustBeTold) {
            ASSERT_FALSE(bChanged);
            return;
        }
        ASSERT_EQ(strTold, due.strTold);
    }

    // When only the invalid parts are painted, the frame is at the day of the date.
    void CheckFrame()
    {
        calendar->UpdateWindow();
        if (calendar->GetDate().IsValid() && !calendar->m_rcGrid.IsRectEmpty()) {
            ASSERT_EQ(calendar->m_rcSelection, calendar->GetDayRect(calendar->GetDate().GetDay()));
        }
    }

    RandomGame m_game{GetParam()};
};

TEST_P(MonkeyTest, LeavesTheControlInOrder)
{
    Start();
    const unsigned nMessages = RandomGame::GetSetting("ZEB17_MONKEY_MESSAGES", MONKEY_MESSAGES);
    for (unsigned i = 0; i < nMessages; ++i) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + " message " + std::to_string(i));
        const DateTime before = calendar->GetDate();
        const bool bHadDate = calendar->m_bHaveDate;
        const bool bAtAnEnd = !before.IsValid() || before.GetYear() < 3 || before.GetYear() > 9997;
        const Due due = Act();
        const DateTime& date = calendar->GetDate();
        ASSERT_TRUE(date.IsValid() || bAtAnEnd) << "from " << ToText(before);
        ASSERT_NO_FATAL_FAILURE(
            CheckHeard(due, calendar->m_bHaveDate != bHadDate || date.m_nDayNumber != before.m_nDayNumber));
        ASSERT_NO_FATAL_FAILURE(CheckFrame());
        ASSERT_NO_FATAL_FAILURE(ExpectMonth());
        ASSERT_EQ(calendar->GetTitle() == "(no date)", !date.IsValid());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, testing::ValuesIn(RandomGame::GetSeeds()),
                         testing::PrintToStringParamName());

#include "CalendarFixture.h"

#include <LocaleUtils.h>
#include <NumberTextConv.h>
#include <ZEBButton.h>

#include <random>

// Random messages, after each of which the control must be in order. A seed that fails is to be added below.
// The build says how many there are: the emulated system is slow.
class MonkeyTest : public CalendarTest, public testing::WithParamInterface<unsigned>
{
protected:
    int Pick(int nBelow) { return static_cast<int>(m_random() % static_cast<unsigned>(nBelow)); }
    CPoint PickPoint() { return CPoint(Pick(kWidth + 20) - 10, Pick(kHeight + 20) - 10); }
    DateTime PickDate()
    {
        DateTime date;
        const int nKind = Pick(8);
        date.m_nDayNumber = nKind == 0   ? 1 + Pick(400)
                            : nKind == 1 ? 3652061 - Pick(400)
                            : nKind == 2 ? 0
                                         : 739000 + Pick(2000);
        return date;
    }

    void Act()
    {
        static constexpr WPARAM keys[] = {VK_TAB,  VK_PRIOR,  VK_NEXT,   VK_HOME, VK_END,
                                          VK_LEFT, VK_UP,     VK_RIGHT,  VK_DOWN, 'T',
                                          VK_F5,   VK_RETURN, VK_ESCAPE, VK_SPACE};
        switch (Pick(10)) {
        case 0:
        case 1:
            return Press(PickPoint());
        case 2:
        case 3:
        case 4:
            return Key(keys[Pick(std::size(keys))]);
        case 5:
            return Command(static_cast<UINT>(2600 + Pick(6)));
        case 6:
            calendar->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, Pick(3) - 1), 0);
            return;
        case 7:
            return Command(static_cast<UINT>(42032 + Pick(17)));
        case 8:
            return calendar->SetDate(PickDate());
        default:
            return ActOnWindow();
        }
    }

    void ActOnWindow()
    {
        switch (Pick(5)) {
        case 0:
            calendar->SetFocus();
            break;
        case 1:
            parent.SetFocus();
            break;
        case 2:
            calendar->MoveWindow(0, 0, Pick(400), Pick(300));
            break;
        case 3:
            calendar->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(Pick(300), Pick(300)));
            break;
        default:
            calendar->ReloadSpecialDates();
        }
    }

    // After a paint: title, tables and frame are those of the date.
    void CheckScreen()
    {
        const DateTime& date = calendar->GetDate();
        if (!date.IsValid()) {
            ASSERT_EQ(calendar->GetTitle(), "(no date)");
            return;
        }
        ASSERT_EQ(calendar->GetTitle(), LocaleUtils::GetMonthName(date.GetMonth(), false) + " " +
                                            NumberTextConv::NumberToString(date.GetYear(), false, 0, ""));
        DateTime today;
        today.SetToCurrentDate();
        DateTime first = date;
        first.SetDay(1);
        const int nCell = today.m_nDayNumber - first.m_nDayNumber +
                          MonthBlock::FirstColumn(first.GetDayOfWeek(), LocaleUtils::GetFirstDayOfWeek()) - 1;
        ASSERT_EQ(calendar->m_nTodayCell, nCell >= 0 && nCell < 42 ? nCell : -1);
        if (!calendar->m_rcGrid.IsRectEmpty()) {
            ASSERT_EQ(calendar->m_rcSelection, calendar->GetDayRect(date.GetDay()));
        }
    }

    // At most a change and its range, each in the state that it tells of.
    void CheckHeard()
    {
        ASSERT_LE(parent.m_heard.size(), 2u);
        for (const Heard& heard : parent.m_heard) {
            ASSERT_EQ(heard.wParam, kCalendarId);
            if (heard.nMessage != CCalendarWnd::CALWND_DATERANGE_CHANGED &&
                heard.nMessage != CCalendarWnd::CALWND_ENTERKEY &&
                heard.nMessage != CCalendarWnd::CALWND_ESCKEY) {
                ASSERT_EQ(heard.bHaveDate, heard.nMessage == CCalendarWnd::CALWND_ONSELCHANGE);
            }
        }
        parent.m_heard.clear();
    }

    std::mt19937 m_random{GetParam()};
};

TEST_P(MonkeyTest, LeavesTheControlInOrder)
{
    Start();
    for (int i = 0; i < MONKEY_MESSAGES; ++i) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + " message " + std::to_string(i));
        const DateTime before = calendar->GetDate();
        const bool bAtAnEnd = !before.IsValid() || before.GetYear() < 3 || before.GetYear() > 9997;
        Act();
        ASSERT_TRUE(calendar->GetDate().IsValid() || bAtAnEnd) << "from " << ToText(before);
        ASSERT_NO_FATAL_FAILURE(CheckHeard());
        if (i % 8 == 0) {
            Repaint();
            ASSERT_NO_FATAL_FAILURE(CheckScreen());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, testing::Values(1u, 20260715u));

// Hosts that end the control, its window or themselves inside a notification.
#include "CalendarFixture.h"

#include <oleacc.h>
#include <oleauto.h>

#include <gmock/gmock.h>

#include <limits>

using testing::IsEmpty;

namespace {

enum class Ends
{
    Window,
    Object,
    Host,
};

struct Cause
{
    const char* strName;
    std::function<void(TestCalendar&)> act;
};

void SendKey(TestCalendar& calendar, WPARAM nKey)
{
    MSG msg{calendar.m_hWnd, WM_KEYDOWN, nKey, 1, 0, {}};
    if (!CWnd::WalkPreTranslateTree(::GetParent(calendar.m_hWnd), &msg))
        ::DispatchMessageA(&msg);
}

Cause KeyCause(const char* strName, WPARAM nKey)
{
    return {strName, [nKey](TestCalendar& calendar) { SendKey(calendar, nKey); }};
}

Cause CommandCause(const char* strName, UINT nId)
{
    return {strName, [nId](TestCalendar& calendar) { calendar.SendMessage(WM_COMMAND, MAKEWPARAM(nId, 0)); }};
}

// By the button itself, whose own frames lie below the handler.
Cause ClickCause(const char* strName, UINT nId)
{
    return {strName, [nId](TestCalendar& calendar) {
                ::SendMessageA(::GetDlgItem(calendar, int(nId)), BM_CLICK, 0, 0);
            }};
}

Cause PressCause(const char* strName, int nCell)
{
    return {strName, [nCell](TestCalendar& calendar) {
                const CPoint point = calendar.GetRectOfCell(nCell).CenterPoint();
                calendar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
            }};
}

IAccessible* GetAccessible(HWND hWnd)
{
    void* pObject = nullptr;
    ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &pObject);
    return static_cast<IAccessible*>(pObject);
}

VARIANT ItemId(LONG nItem)
{
    VARIANT item{};
    item.vt = VT_I4;
    item.lVal = nItem;
    return item;
}

std::string GetAccessibleName(HWND hWnd)
{
    IAccessible* const pAccessible = GetAccessible(hWnd);
    BSTR strName = nullptr;
    pAccessible->get_accName(ItemId(CHILDID_SELF), &strName);
    const std::string name(strName, strName + ::SysStringLen(strName));
    ::SysFreeString(strName);
    pAccessible->Release();
    return name;
}

void DoAccessibleAction(TestCalendar& calendar)
{
    IAccessible* const pAccessible = GetAccessible(calendar.m_hWnd);
    pAccessible->accDoDefaultAction(ItemId(20));
    pAccessible->Release();
}

// July 2026 is shown, the 15th selected; day 1 stands in cell 3.
const Cause kCauses[] = {
    PressCause("PressOnShownDay", 10),
    PressCause("PressOnDayBefore", 0),
    PressCause("PressOnDayAfter", 41),
    KeyCause("Left", VK_LEFT),
    KeyCause("UpToOtherMonth", VK_UP),
    KeyCause("Home", VK_HOME),
    KeyCause("End", VK_END),
    KeyCause("PageUp", VK_PRIOR),
    KeyCause("PageDown", VK_NEXT),
    KeyCause("T", 'T'),
    KeyCause("Enter", VK_RETURN),
    KeyCause("Escape", VK_ESCAPE),
    {"Wheel", [](TestCalendar& calendar) { calendar.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0); }},
    ClickCause("PreviousYear", 2600),
    ClickCause("NextMonth", 2603),
    ClickCause("Today", 2604),
    ClickCause("Clear", 2605),
    CommandCause("RangeOfMonth", 42032),
    CommandCause("RangeOfWeeks", 42041),
    {"SetDate", [](TestCalendar& calendar) { calendar.SetDate(Date(2026, 8, 1)); }},
    {"AccessibleAction", DoAccessibleAction},
};

}

class HostActionTest : public CalendarTest, public testing::WithParamInterface<std::tuple<Cause, Ends>>
{
protected:
    void End()
    {
        parent.m_onHeard = [] {};
        switch (std::get<Ends>(GetParam())) {
        case Ends::Window:
            calendar->DestroyWindow();
            break;
        case Ends::Object:
            parent.m_pCalendar = nullptr;
            calendar.reset();
            break;
        case Ends::Host:
            parent.DestroyWindow();
            break;
        }
        m_bEnded = true;
    }

    bool m_bEnded = false;
};

TEST_P(HostActionTest, IsSurvived)
{
    Start();
    Show(Date(2026, 7, 15), true);
    parent.m_onHeard = [this] { End(); };
    std::get<Cause>(GetParam()).act(*calendar);
    EXPECT_TRUE(m_bEnded);
    if (calendar) {
        EXPECT_EQ(calendar->m_hWnd, nullptr);
    }
}

std::string NameOf(const testing::TestParamInfo<std::tuple<Cause, Ends>>& test)
{
    constexpr const char* kEnds[] = {"EndsWindow", "EndsObject", "EndsHost"};
    return std::string(std::get<Cause>(test.param).strName) +
           kEnds[static_cast<int>(std::get<Ends>(test.param))];
}

INSTANTIATE_TEST_SUITE_P(Causes, HostActionTest,
                         testing::Combine(testing::ValuesIn(kCauses),
                                          testing::Values(Ends::Window, Ends::Object, Ends::Host)),
                         NameOf);

// The host, an accessibility client or a nested loop reaches the window for as long as there is one.
TEST_F(CalendarTest, ItsWindowEndsBeforeItsButtonsAndTellsNobody)
{
    Start();
    Show(Date(2026, 7, 15), true);
    const HWND hCalendar = calendar->m_hWnd;
    std::vector<std::string> names;
    parent.m_onChildEnd = [&] { names.push_back(GetAccessibleName(hCalendar)); };
    parent.m_pCalendar = nullptr;
    calendar.reset();
    EXPECT_FALSE(::IsWindow(hCalendar));
    EXPECT_THAT(names, testing::ElementsAre("July 2026"));
    EXPECT_THAT(TakeHeard(), IsEmpty());
}

// A control that is created once more starts as a new one does; its settings stay.
TEST_F(CalendarTest, ASecondCreationStartsWithoutADate)
{
    Start();
    Show(Date(2030, 3, 5), true);
    calendar->m_settings.SetAllShow(CalendarSettings::GroupUS, false);
    calendar->DestroyWindow();
    parent.m_heard.clear();
    ASSERT_TRUE(Create());
    EXPECT_FALSE(calendar->m_bHaveDate);
    EXPECT_TRUE(calendar->GetDate().IsToday());
    EXPECT_EQ(calendar->GetTitle(), "July 2026");
    EXPECT_EQ(calendar->m_nFirstDayColumn, -1);
    EXPECT_TRUE(calendar->m_rcSelection.IsRectEmpty());
    EXPECT_THAT(TakeHeard(), testing::ElementsAre("NODATE 0"));
    calendar->OnClearButton();
    EXPECT_THAT(TakeHeard(), IsEmpty()) << "nothing is painted yet";
}

TEST_F(CalendarTest, TakesAnyRectangle)
{
    constexpr int kLeast = std::numeric_limits<int>::min(), kMost = std::numeric_limits<int>::max();
    for (const CRect& rc :
         {CRect(kLeast, kLeast, kMost, kMost), CRect(kMost, kMost, kLeast, kLeast), CRect(0, 0, kMost, kMost),
          CRect(kLeast, kLeast, 0, 0), CRect(kMost, kMost, kMost, kMost)}) {
        Renew();
        ASSERT_TRUE(calendar->Create(kCalendarId, rc, false, &parent, true, true, false, false));
        calendar->MoveWindow(rc.left, rc.top, rc.Width(), rc.Height());
        calendar->OnSize(0, kMost, kLeast);
        calendar->OnSize(0, kLeast, kMost);
        Repaint();
    }
}

// What screen readers can learn of the control and do with it, by the calls that they make.
#include "CalendarFixture.h"

#include <LocaleUtils.h>
#include <WideText.h>
#include <oleacc.h>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

using Events = std::vector<std::pair<DWORD, LONG>>; // each with its item

HWND theListened = nullptr;
Events theEvents;

void CALLBACK Record(HWINEVENTHOOK, DWORD nEvent, HWND hWnd, LONG nObject, LONG nChild, DWORD, DWORD)
{
    if (hWnd == theListened && nObject == OBJID_CLIENT)
        theEvents.emplace_back(nEvent, nChild);
}

VARIANT Child(LONG nChild)
{
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = nChild;
    return child;
}

// Asks the object of a window, and gives the answers.
class Speaker
{
public:
    explicit Speaker(HWND hWnd)
    {
        ::AccessibleObjectFromWindow(hWnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible),
                                     reinterpret_cast<void**>(&m_pObject));
    }
    ~Speaker() { m_pObject->Release(); }
    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;
    IAccessible* operator->() const { return m_pObject; }

    CString GetName(LONG nChild = CHILDID_SELF) const { return GetText(&IAccessible::get_accName, nChild); }
    CString GetAction(LONG nChild) const { return GetText(&IAccessible::get_accDefaultAction, nChild); }
    LONG GetRole(LONG nChild = CHILDID_SELF) const { return GetNumber(&IAccessible::get_accRole, nChild); }
    LONG GetState(LONG nChild = CHILDID_SELF) const { return GetNumber(&IAccessible::get_accState, nChild); }
    CRect GetPlace(LONG nChild) const
    {
        LONG x = 0, y = 0, cx = 0, cy = 0;
        m_pObject->accLocation(&x, &y, &cx, &cy, Child(nChild));
        return CRect(CPoint(x, y), CSize(cx, cy));
    }
    // The item at a place of the screen; -1 for another object or nothing.
    LONG HitTest(CPoint point) const
    {
        VARIANT hit{};
        m_pObject->accHitTest(point.x, point.y, &hit);
        const LONG nItem = hit.vt == VT_I4 ? hit.lVal : -1;
        ::VariantClear(&hit);
        return nItem;
    }

private:
    CString GetText(HRESULT (STDMETHODCALLTYPE IAccessible::*pGet)(VARIANT, BSTR*), LONG nChild) const
    {
        BSTR text = nullptr;
        (m_pObject->*pGet)(Child(nChild), &text);
        const CString strText = FromWide({text, ::SysStringLen(text)});
        ::SysFreeString(text);
        return strText;
    }
    LONG GetNumber(HRESULT (STDMETHODCALLTYPE IAccessible::*pGet)(VARIANT, VARIANT*), LONG nChild) const
    {
        VARIANT number{};
        (m_pObject->*pGet)(Child(nChild), &number);
        return number.lVal;
    }

    IAccessible* m_pObject = nullptr;
};

class AccessibleTest : public CalendarTest
{
protected:
    AccessibleTest()
    {
        m_hook = ::SetWinEventHook(EVENT_OBJECT_REORDER, EVENT_OBJECT_NAMECHANGE, nullptr, &Record,
                                   ::GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    }
    ~AccessibleTest() override { ::UnhookWinEvent(m_hook); }

    // What was announced of the control itself since the last call.
    Events TakeEvents()
    {
        theListened = calendar->m_hWnd;
        MSG msg;
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageA(&msg);
        return std::exchange(theEvents, {});
    }

    // The same without what the system announces of the control as a whole.
    Events TakeDays()
    {
        Events events = TakeEvents();
        std::erase_if(events, [](const auto& event) { return event.second == CHILDID_SELF; });
        return events;
    }

private:
    HWINEVENTHOOK m_hook;
};

}

TEST_F(AccessibleTest, DaysCanBeReadOneByOne)
{
    ASSERT_TRUE(Create());
    HideNationalDays();
    AddSpecialDay("Fair", 14, 7, RGB(255, 0, 0));
    AddSpecialDay("Market & more", 14, 7, RGB(255, 0, 0));
    Show(Date(2026, 7, 20), true); // the 1st is a Wednesday: cell 0 is the 28th of June
    calendar->SetFocus();
    const Speaker speaker(calendar->m_hWnd);
    EXPECT_EQ(speaker.GetName(), "July 2026");
    EXPECT_EQ(speaker.GetRole(), ROLE_SYSTEM_TABLE);

    DateTime date = Date(2026, 6, 28);
    for (LONG nItem = 1; nItem <= MonthBlock::kCells; ++nItem, date.AddDays(1)) {
        CString strName = LocaleUtils::FormatDate(date.GetYear(), date.GetMonth(), date.GetDay(),
                                                  date.GetDayOfWeek(), false);
        if (date.CompareDate(Date(2026, 7, 14)) == 0)
            strName += ", Fair, Market & more";
        else if (date.CompareDate(Date(2026, 7, 15)) == 0)
            strName += ", Today";
        const bool bSelected = date.CompareDate(Date(2026, 7, 20)) == 0;
        CRect rc = calendar->GetRectOfCell(nItem - 1);
        ::MapWindowPoints(*calendar, nullptr, reinterpret_cast<POINT*>(&rc), 2);

        EXPECT_EQ(speaker.GetName(nItem), strName);
        EXPECT_EQ(speaker.GetRole(nItem), ROLE_SYSTEM_CELL);
        EXPECT_EQ(speaker.GetState(nItem),
                  STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_SELECTABLE |
                      (bSelected ? STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED : 0));
        EXPECT_EQ(speaker.GetPlace(nItem), rc);
        EXPECT_EQ(speaker.HitTest(rc.CenterPoint()), nItem);
    }
    const CRect rc = speaker.GetPlace(CHILDID_SELF);
    EXPECT_EQ(speaker.HitTest(CPoint(rc.left + 20, rc.top + 30)), CHILDID_SELF); // the names of the weekdays
    EXPECT_EQ(speaker.HitTest(CPoint(rc.left + 5, rc.top + 5)), -1);             // a button
    EXPECT_EQ(speaker.HitTest(CPoint(rc.left - 5, rc.top + 5)), -1);
    VARIANT focus{};
    EXPECT_EQ(speaker->get_accFocus(&focus), S_OK);
    EXPECT_EQ(focus.lVal, 23);
}

TEST_F(AccessibleTest, DaysAtTheEndsOfTimeHaveNoDate)
{
    ASSERT_TRUE(Create());
    const Speaker speaker(calendar->m_hWnd);
    LONG nCount = 0;
    Show(Date(9999, 12, 31), true); // a Friday, in cell 33
    EXPECT_EQ(speaker.GetName(34).Left(6), "Friday");
    EXPECT_EQ(speaker.GetName(35), "");
    Show(DateTime(), false);
    EXPECT_EQ(speaker->get_accChildCount(&nCount), S_OK);
    EXPECT_EQ(nCount, 8); // the buttons
    EXPECT_EQ(speaker.GetName(), "(no date)");
}

TEST_F(AccessibleTest, MovesAreAnnounced)
{
    Start();
    // A key, whether the month is another one, and the item that gets the focus.
    const std::tuple<WPARAM, bool, LONG> cases[] = {
        {VK_RIGHT, false, 19}, {VK_HOME, false, 4}, {VK_LEFT, true, 31},
        {VK_NEXT, true, 33},   {'T', false, 18},
    };
    TakeEvents();
    for (const auto& [nKey, bMonth, nFocused] : cases) {
        Events expected;
        if (bMonth)
            expected = {{EVENT_OBJECT_REORDER, CHILDID_SELF}, {EVENT_OBJECT_NAMECHANGE, CHILDID_SELF}};
        expected.emplace_back(EVENT_OBJECT_FOCUS, nFocused);
        expected.emplace_back(EVENT_OBJECT_SELECTION, nFocused);
        Key(nKey);
        EXPECT_EQ(TakeEvents(), expected) << nKey;
    }
    // However the focus comes with the change, the day that was selected before is not read out.
    calendar->m_pTodayButton->SetFocus();
    Key(VK_HOME);
    TakeEvents();
    Key('T');
    EXPECT_EQ(TakeDays(), (Events{{EVENT_OBJECT_FOCUS, 18}, {EVENT_OBJECT_SELECTION, 18}}));
    calendar->m_pTodayButton->SetFocus();
    TakeEvents();
    PressCell(22);
    EXPECT_EQ(TakeDays(), (Events{{EVENT_OBJECT_FOCUS, 23}, {EVENT_OBJECT_SELECTION, 23}}));
    // With the focus on a button only the selection moves.
    calendar->m_pTodayButton->SetFocus();
    TakeEvents();
    Key(VK_RIGHT);
    EXPECT_EQ(TakeEvents(), (Events{{EVENT_OBJECT_SELECTION, 24}}));
    Command(2605);
    EXPECT_EQ(TakeEvents(), (Events{{EVENT_OBJECT_SELECTION, CHILDID_SELF}}));
}

TEST_F(AccessibleTest, ActionOfADaySelectsAsAPressDoes)
{
    Start();
    const Speaker speaker(calendar->m_hWnd);
    EXPECT_EQ(speaker.GetAction(10), "Select");
    EXPECT_EQ(speaker->accDoDefaultAction(Child(10)), S_OK);
    EXPECT_EQ(ToText(calendar->GetDate()), "2026-7-7");
    EXPECT_EQ(speaker->accSelect(SELFLAG_TAKESELECTION | SELFLAG_TAKEFOCUS, Child(42)), S_OK);
    EXPECT_EQ(ToText(calendar->GetDate()), "2026-8-8");
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 0", "SELCHANGE 0"));
    EXPECT_EQ(speaker->accDoDefaultAction(Child(CHILDID_SELF)), DISP_E_MEMBERNOTFOUND);
}

TEST_F(AccessibleTest, ButtonsAreNamedByCaptionOrTip)
{
    Start({true, false, true, true, true}); // no Clear
    const std::tuple<CWnd*, const char*, LONG, LONG> cases[] = {
        {calendar->m_pPrevMonthButton, "Show June, 2026", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSABLE},
        {calendar->m_pTodayButton, "Today", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSABLE},
        {calendar->m_pOptionsButton, "Options", ROLE_SYSTEM_PUSHBUTTON, STATE_SYSTEM_FOCUSABLE},
        {calendar->m_pMonthYearButton, "July 2026", ROLE_SYSTEM_STATICTEXT, STATE_SYSTEM_UNAVAILABLE},
        {calendar->m_pClearButton, "", ROLE_SYSTEM_STATICTEXT,
         STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE},
    };
    for (const auto& [pButton, strName, nRole, nState] : cases) {
        const Speaker speaker(pButton->m_hWnd);
        EXPECT_EQ(speaker.GetName(), strName);
        EXPECT_EQ(speaker.GetRole(), nRole) << strName;
        EXPECT_EQ(speaker.GetState(), nState) << strName;
    }
    const Speaker nextYear(calendar->m_pNextYearButton->m_hWnd);
    EXPECT_EQ(nextYear->accDoDefaultAction(Child(CHILDID_SELF)), S_OK);
    TakeEvents(); // what was posted is done
    EXPECT_EQ(nextYear.GetName(), "Show July, 2028");
}

TEST_F(AccessibleTest, ObjectOutlivesItsWindow)
{
    Start();
    const Speaker speaker(calendar->m_hWnd);
    EXPECT_EQ(speaker->get_accName(Child(CHILDID_SELF), nullptr), E_POINTER);
    BSTR name = nullptr;
    for (const LONG nWrong : {-1, 43, 1000})
        EXPECT_EQ(speaker->get_accName(Child(nWrong), &name), E_INVALIDARG);
    Renew();
    VARIANT state{};
    EXPECT_EQ(speaker->get_accName(Child(1), &name), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(speaker->get_accState(Child(CHILDID_SELF), &state), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(speaker->accDoDefaultAction(Child(1)), CO_E_OBJNOTCONNECTED);
}

// Creating the control: what it makes, tells, logs, and refuses.
#include "CalendarFixture.h"

#include <BkgStyle.h>
#include <ZEBButton.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A button that the system refuses to create.
template <class Button>
class RefusedButton : public Button
{
public:
    BOOL Create(LPCTSTR, DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
};

template <class Button>
void Replace(Button*& pButton, Button* pOther)
{
    delete pButton;
    pButton = pOther;
}

}

using CreationTest = CalendarTest;

TEST_F(CreationTest, EndsWithoutADateAndSaysSo)
{
    ASSERT_TRUE(Create());
    ASSERT_EQ(parent.m_heard.size(), 1u);
    const Heard& heard = parent.m_heard.front();
    EXPECT_EQ(heard.strName, "NODATE 0");
    EXPECT_EQ(heard.wParam, kCalendarId);
    EXPECT_EQ(ToText(heard.date), "2026-7-15");
    EXPECT_EQ(heard.strTitle, "July 2026");
    EXPECT_FALSE(heard.bHaveDate);
    EXPECT_EQ(calendar->m_nTodayCell, 2 * 7 + 3); // the third Wednesday
    EXPECT_THAT(logger.m_lines, IsEmpty());
    EXPECT_NE(calendar->m_toolTip.m_hWnd, nullptr);
    EXPECT_EQ(::GetWindowLongA(*calendar, GWL_STYLE) & (WS_CHILD | WS_VISIBLE | WS_TABSTOP),
              WS_CHILD | WS_VISIBLE | WS_TABSTOP);
    char szClass[128];
    ::GetClassNameA(calendar->m_hWnd, szClass, sizeof szClass);
    EXPECT_THAT(szClass, testing::HasSubstr(":843:")) << "the style of the class";
}

// Buttons with their captions and ids, for each choice of the two optional ones.
TEST_F(CreationTest, Buttons)
{
    for (const bool bOptions : {false, true})
        for (const bool bNoDate : {false, true}) {
            Renew();
            ASSERT_TRUE(
                Create({.bUseSpecialDates = false, .bAllowNoDate = bNoDate, .bShowOptions = bOptions}));
            const TestCalendar& c = *calendar;
            struct
            {
                const CWnd* pButton;
                int nId;
                const char* strCaption;
                bool bEnabled;
            } const buttons[] = {
                {c.m_pPrevYearButton, 2600, "", true},
                {c.m_pNextYearButton, 2601, "", true},
                {c.m_pPrevMonthButton, 2602, "", true},
                {c.m_pNextMonthButton, 2603, "", true},
                {c.m_pTodayButton, 2604, "&Today", true},
                {c.m_pClearButton, 2605, bNoDate ? "&Clear" : "", bNoDate},
                {c.m_pOptionsButton, bOptions ? 2606 : 2605, bOptions ? "&Options" : "", bOptions},
                {c.m_pMonthYearButton, 2607, "July 2026", false},
            };
            for (const auto& button : buttons) {
                CString strCaption;
                button.pButton->GetWindowText(strCaption);
                EXPECT_EQ(button.pButton->GetDlgCtrlID(), button.nId);
                EXPECT_EQ(strCaption, button.strCaption) << button.nId;
                EXPECT_EQ(button.pButton->IsWindowEnabled() != FALSE, button.bEnabled) << button.nId;
                EXPECT_TRUE(::IsWindowVisible(*button.pButton));
            }
        }
}

TEST_F(CreationTest, FileIsReadForSpecialDatesOnly)
{
    HideNationalDays();
    AddSpecialDay("Stored", 10, 7, RGB(1, 2, 3));
    calendar->m_settings.Save();
    for (const bool bUse : {false, true}) {
        Renew();
        Start({.bUseSpecialDates = bUse});
        const CString& strDesc = calendar->m_vDayDescs[2 + 10]; // 1 July 2026 is a Wednesday
        EXPECT_EQ(strDesc, bUse ? "Stored" : "");
        calendar->m_settings.SetAllShow(CalendarSettings::GroupCustom, false);
        calendar->RefreshMonth();
        EXPECT_EQ(strDesc, "");
        calendar->ReloadSpecialDates();
        EXPECT_EQ(strDesc, bUse ? "Stored" : "");
        EXPECT_EQ(GetInvalid(), bUse ? calendar->m_rcGrid : CRect());
        EXPECT_EQ(calendar->m_vDayDescs[2 + 4], "")
            << "Independence Day is hidden by the file, or not in use";
    }
}

TEST_F(CreationTest, NoWindow)
{
    EXPECT_FALSE(calendar->Create(kCalendarId, CRect(), false, nullptr, true, true, true, true));
    EXPECT_THAT(logger.m_lines, ElementsAre("{9C02F331-DDE6-430B-BCCF-80503618AC46}"));
    EXPECT_THAT(parent.m_heard, IsEmpty());
}

TEST_F(CreationTest, CreatedTwice)
{
    Start();
    const HWND hWnd = calendar->m_hWnd;
    EXPECT_FALSE(Create({.bUseSpecialDates = false}));
    EXPECT_THAT(logger.m_lines, ElementsAre("{9C02F331-DDE6-430B-BCCF-80503618AC46}"));
    EXPECT_EQ(calendar->m_hWnd, hWnd);
    EXPECT_TRUE(calendar->m_bUseSpecialDates);
    EXPECT_THAT(parent.m_heard, IsEmpty());

    calendar->DestroyWindow();
    Start();
    calendar->SetDate(Date(2026, 8, 1));
    EXPECT_THAT(TakeHeard(), ElementsAre("SELCHANGE 1"));
}

TEST_F(CreationTest, MissingButtonObject)
{
    Replace<CZEBButton>(calendar->m_pTodayButton, nullptr);
    EXPECT_FALSE(Create());
    // The first line is that of the layout, which the new window asks for.
    EXPECT_THAT(logger.m_lines, ElementsAre("{EE857672-D8CE-45B9-828B-F0930F6AB2EA}",
                                            "{D110EEBF-8B1E-462E-9AE9-2E70E72F2BDC}"));
    EXPECT_THAT(parent.m_heard, IsEmpty());
}

// A button that could not be created is logged, and the control goes on without it.
TEST_F(CreationTest, RefusedButtons)
{
    // Null stands for the options.
    const std::tuple<CZEBButton * TestCalendar::*, bool, const char*> cases[] = {
        {&TestCalendar::m_pPrevMonthButton, true, "{E9A2B6D6-9485-42D0-BF9F-FDB8E8AF8E8D}"},
        {&TestCalendar::m_pNextMonthButton, true, "{9250256C-0A3D-4561-8A9F-0E8C44AA8720}"},
        {&TestCalendar::m_pPrevYearButton, true, "{00AB4C70-44C8-4D43-AA36-D5C877FE0C2E}"},
        {&TestCalendar::m_pNextYearButton, true, "{2EDBD217-3019-42E1-A166-826798479116}"},
        {&TestCalendar::m_pTodayButton, true, "{80061BF2-11FA-47A3-9D22-FF36F1371BD9}"},
        {nullptr, true, "{709907EF-F870-43E9-B85F-0B708B12AF01}"},
        {nullptr, false, "{ECC5886C-D1BD-4C83-98FA-8A938D421FA5}"},
        {&TestCalendar::m_pClearButton, true, "{360450D8-23CD-4A6E-AA1F-40921D061B79}"},
        {&TestCalendar::m_pClearButton, false, "{839A35AF-62E0-4FD3-8CB0-9EB85D62FF60}"},
        {&TestCalendar::m_pMonthYearButton, true, "{637363C1-6A35-450D-9CBF-A0D5BA7CDE3B}"},
    };
    for (const auto& [pButton, bOffered, strMark] : cases) {
        SCOPED_TRACE(strMark);
        logger.m_lines.clear();
        Renew();
        if (!pButton)
            Replace<CDownArrowButton>(calendar->m_pOptionsButton, new RefusedButton<CDownArrowButton>);
        else
            Replace<CZEBButton>((*calendar).*pButton, new RefusedButton<CZEBButton>);
        EXPECT_TRUE(Create({.bAllowNoDate = bOffered, .bShowOptions = bOffered}));
        EXPECT_THAT(logger.m_lines, ElementsAre(strMark));

        // Whatever is missing, the control can be painted and driven.
        calendar->SetFocus();
        Repaint();
        for (const int nKey : {VK_TAB, VK_DOWN, VK_NEXT, VK_HOME})
            Key(static_cast<WPARAM>(nKey));
        Press(CPoint(50, 60));
        calendar->MoveWindow(0, 0, 250, 250);
        Repaint();
    }
}

TEST_F(CreationTest, ShadingReachesTheButtonsAtAnyTime)
{
    calendar->ApplyBkgShading(); // nothing there to shade yet
    Start();
    const COLORREF cr = RGB(10, 200, 30);
    const ShadeProps::Face face{cr, cr, cr};
    BkgStyle::GetInstance()->Set(BkgStyle::UIPushButton, ShadeProps({face, face, face, face}));
    calendar->ApplyBkgShading();
    BkgStyle::SetInstance(nullptr);
    calendar->ApplyBkgShading(); // changes nothing
    BkgStyle::SetInstance(std::make_unique<BkgStyle>());
    Repaint();
    EXPECT_EQ(Picture(*calendar->m_pTodayButton).GetPixel(3, 3), cr);
    EXPECT_EQ(Picture(*calendar->m_pMonthYearButton).GetPixel(3, 3), cr);
}

#include "CalendarFixture.h"

#include <LocaleUtils.h>
#include <ZEBButton.h>

class ToolTipTest : public CalendarTest
{
protected:
    // What the notification gives for a child, in the narrow form; "-" if it declines.
    template <class Text>
    std::string Ask(UINT nCode, const CWnd* pChild, UINT nFlags = TTF_IDISHWND)
    {
        Text text{};
        text.hdr.code = nCode;
        text.hdr.idFrom = reinterpret_cast<UINT_PTR>(pChild->m_hWnd);
        text.uFlags = nFlags;
        LRESULT nResult = 77;
        const BOOL bAnswered = calendar->OnToolTipNotify(0, &text.hdr, &nResult);
        EXPECT_EQ(nResult, 0);
        std::string strTip;
        for (size_t i = 0; text.szText[i] != 0; ++i)
            strTip += static_cast<char>(text.szText[i]);
        EXPECT_TRUE(bAnswered || strTip.empty());
        return bAnswered ? strTip : "-";
    }
    std::string AskBoth(const CWnd* pChild)
    {
        const std::string strTip = Ask<TOOLTIPTEXTA>(TTN_NEEDTEXTA, pChild);
        EXPECT_EQ(Ask<TOOLTIPTEXTW>(TTN_NEEDTEXTW, pChild), strTip);
        return strTip;
    }
};

TEST_F(ToolTipTest, StepButtonsSayWhereTheyLead)
{
    Start({.bUseSpecialDates = false});
    const std::array<CWnd*, 4> buttons = {calendar->m_pPrevYearButton, calendar->m_pNextYearButton,
                                          calendar->m_pPrevMonthButton, calendar->m_pNextMonthButton};
    struct
    {
        DateTime date;
        std::array<const char*, 4> tips;
    } const cases[] = {
        {Date(2026, 1, 31),
         {"Show January, 2025", "Show January, 2027", "Show December, 2025", "Show February, 2026"}},
        {Date(2021, 12, 1),
         {"Show December, 2020", "Show December, 2022", "Show November, 2021", "Show January, 2022"}},
        {Date(2024, 2, 29),
         {"Show February, 2023", "Show February, 2025", "Show January, 2024", "Show March, 2024"}},
        {DateTime(), {"(no date)", "(no date)", "(no date)", "(no date)"}},
    };
    for (const auto& c : cases)
        for (const bool bHaveDate : {false, true}) {
            calendar->m_date = c.date;
            calendar->m_bHaveDate = bHaveDate;
            for (size_t i = 0; i < buttons.size(); ++i)
                EXPECT_EQ(AskBoth(buttons[i]), c.tips[i]);
        }
    calendar->m_date = Date(9999, 12, 31);
    EXPECT_EQ(AskBoth(calendar->m_pNextYearButton), "Show December, 10000");
    AskBoth(calendar->m_pNextMonthButton);
}

TEST_F(ToolTipTest, AllElseIsDeclined)
{
    Start();
    for (const CWnd* pChild :
         {static_cast<CWnd*>(calendar->m_pTodayButton), static_cast<CWnd*>(calendar->m_pClearButton),
          static_cast<CWnd*>(calendar->m_pOptionsButton), static_cast<CWnd*>(calendar->m_pMonthYearButton),
          static_cast<CWnd*>(&parent)})
        EXPECT_EQ(AskBoth(pChild), "-");
    EXPECT_EQ(Ask<TOOLTIPTEXTA>(TTN_NEEDTEXTA, calendar->m_pPrevYearButton, 0), "-");
    EXPECT_EQ(Ask<TOOLTIPTEXTW>(TTN_NEEDTEXTW, calendar->m_pPrevYearButton, 0), "-");
    EXPECT_EQ(Ask<TOOLTIPTEXTA>(TTN_SHOW, calendar->m_pPrevYearButton), "-");
    LRESULT nResult = 5;
    EXPECT_FALSE(calendar->OnToolTipNotify(0, nullptr, &nResult));
    EXPECT_EQ(nResult, 0);
    EXPECT_FALSE(calendar->OnToolTipNotify(0, nullptr, nullptr));
}

// The same by the message, as a tool-tip control sends it.
TEST_F(ToolTipTest, NotificationReachesTheHandler)
{
    Start();
    TOOLTIPTEXTA text{};
    text.hdr.code = TTN_NEEDTEXTA;
    text.hdr.idFrom = reinterpret_cast<UINT_PTR>(calendar->m_pNextMonthButton->m_hWnd);
    text.uFlags = TTF_IDISHWND;
    calendar->SendMessage(WM_NOTIFY, text.hdr.idFrom, reinterpret_cast<LPARAM>(&text));
    EXPECT_STREQ(text.szText, "Show August, 2026");
}

TEST_F(ToolTipTest, LongestTipIsWhole)
{
    Start();
    for (const char* strLocale : {"en-US", "nl-NL", "de-DE"})
        for (int nMonth = 1; nMonth <= 12; ++nMonth) {
            LocaleUtils::SetLocale(strLocale);
            calendar->m_date = Date(9998, nMonth, 1);
            EXPECT_TRUE(Ask<TOOLTIPTEXTA>(TTN_NEEDTEXTA, calendar->m_pNextYearButton).ends_with(", 9999"));
        }
}

TEST_F(ToolTipTest, MessagesOfAllKindsAreRelayed)
{
    Start();
    EXPECT_FALSE(calendar->PreTranslateMessage(nullptr));
    MSG msg{calendar->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(50, 60), 0, {}};
    EXPECT_FALSE(calendar->PreTranslateMessage(&msg));
    calendar->m_toolTip.DestroyWindow();
    EXPECT_FALSE(calendar->PreTranslateMessage(&msg));
    Repaint();
}

// The texts of the tips, and the tips that a resting pointer brings up.
#include "CalendarFixture.h"

#include <ToolTips.h>

#include <chrono>
#include <thread>

class ToolTipTest : public CalendarTest
{
protected:
    // What the notification gives for a child, in the narrow form; "-" if it declines.
    template <class Text>
    std::string Ask(UINT nCode, const CWnd* pChild)
    {
        Text text{};
        text.hdr = {nullptr, reinterpret_cast<UINT_PTR>(pChild->m_hWnd), nCode};
        text.uFlags = TTF_IDISHWND;
        LRESULT nResult = 77;
        const BOOL bAnswered = calendar->OnToolTipNotify(0, &text.hdr, &nResult);
        EXPECT_EQ(nResult, 0);
        std::string strTip;
        for (size_t i = 0; text.szText[i] != 0; ++i)
            strTip += static_cast<char>(text.szText[i]);
        return bAnswered ? strTip : "-";
    }
    std::string AskBoth(const CWnd* pChild)
    {
        const std::string strTip = Ask<TOOLTIPTEXTA>(TTN_NEEDTEXTA, pChild);
        EXPECT_EQ(Ask<TOOLTIPTEXTW>(TTN_NEEDTEXTW, pChild), strTip);
        return strTip;
    }

    // The pointer comes to rest on a point of a window.
    static void PointAt(CWnd& wnd, CPoint point = {9, 9})
    {
        ::ClientToScreen(wnd, &point);
        ::SetCursorPos(point.x, point.y);
    }

    // Runs the host's loop until that tip is up, for two seconds at most.
    bool Shows(const std::string& strTip)
    {
        using Clock = std::chrono::steady_clock;
        const auto end = Clock::now() + std::chrono::seconds(2);
        while (GetShownToolTip() != strTip && Clock::now() < end) {
            MSG msg;
            while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
                if (!CWnd::WalkPreTranslateTree(parent.m_hWnd, &msg))
                    ::DispatchMessageA(&msg);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return GetShownToolTip() == strTip;
    }
};

// In both kinds, under the pointer of a user.
TEST_F(ToolTipTest, TipsComeAndGo)
{
    Start();
    HideNationalDays();
    AddSpecialDay("Salt & pepper", 4, 7, RGB(1, 2, 3));
    AddSpecialDay("<b>Second</b>", 4, 7, RGB(1, 2, 3));
    Show(Date(2026, 7, 15), true);
    PointAt(*calendar, calendar->GetDayRect(4).CenterPoint());
    EXPECT_TRUE(Shows("Salt && pepper && <b>Second</b>"));
    Key(VK_NEXT);
    EXPECT_TRUE(Shows("")) << "another month";

    PointAt(*calendar->m_pNextMonthButton);
    EXPECT_TRUE(Shows("Show September, 2026"));
    calendar->m_pNextMonthButton->PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(9, 9));
    calendar->m_pNextMonthButton->PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(9, 9));
    EXPECT_TRUE(Shows("")) << "a press";
    PointAt(*calendar->m_pPrevMonthButton);
    EXPECT_TRUE(Shows("Show August, 2026"));
    ::PostMessageA(calendar->m_hWnd, WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0);
    EXPECT_TRUE(Shows("")) << "a turn of the wheel, which changes what the tip says";
    PointAt(*calendar->m_pNextMonthButton);
    EXPECT_TRUE(Shows("Show September, 2026"));
    PointAt(*calendar->m_pTodayButton);
    EXPECT_TRUE(Shows("")) << "no step button";
}

TEST_F(ToolTipTest, FailureToCreateTheDaysTipsIsLogged)
{
    const auto refuse = [](int nCode, WPARAM wParam, LPARAM) -> LRESULT {
        char szClass[32] = "";
        ::GetClassNameA(reinterpret_cast<HWND>(wParam), szClass, sizeof szClass);
        return nCode == HCBT_CREATEWND && std::string(szClass) == TOOLTIPS_CLASSA;
    };
    const HHOOK hHook = ::SetWindowsHookExA(WH_CBT, refuse, nullptr, ::GetCurrentThreadId());
    Start();
    ::UnhookWindowsHookEx(hHook);
    EXPECT_EQ(logger.m_lines, std::vector<std::string>{"{9E65460D-A45F-46D5-B417-DFAAC0F156CA}"});
    EXPECT_EQ(AskBoth(calendar->m_pNextMonthButton), "Show August, 2026");
    MSG msg{calendar->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(50, 60), 0, {}};
    EXPECT_FALSE(calendar->PreTranslateMessage(&msg));
    Repaint();
}

TEST_F(ToolTipTest, StepButtonsSayWhereTheyLead)
{
    Start({.bUseSpecialDates = false});
    const std::array<CWnd*, 4> buttons = {calendar->m_pPrevYearButton, calendar->m_pNextYearButton,
                                          calendar->m_pPrevMonthButton, calendar->m_pNextMonthButton};
    const std::pair<DateTime, std::array<const char*, 4>> cases[] = {
        {Date(2026, 1, 31),
         {"Show January, 2025", "Show January, 2027", "Show December, 2025", "Show February, 2026"}},
        {Date(2024, 2, 29),
         {"Show February, 2023", "Show February, 2025", "Show January, 2024", "Show March, 2024"}},
        {DateTime(), {"(no date)", "(no date)", "(no date)", "(no date)"}},
    };
    for (const auto& [date, tips] : cases) {
        calendar->m_date = date;
        for (size_t i = 0; i < buttons.size(); ++i)
            EXPECT_EQ(AskBoth(buttons[i]), tips[i]);
    }
    calendar->m_date = Date(9999, 12, 31);
    EXPECT_EQ(AskBoth(calendar->m_pNextYearButton), "Show December, 10000");
    EXPECT_EQ(AskBoth(calendar->m_pNextMonthButton), "(no date)");
    for (const CWnd* pOther : {calendar->m_pTodayButton, calendar->m_pMonthYearButton})
        EXPECT_EQ(AskBoth(pOther), "-");
    EXPECT_EQ(AskBoth(&parent), "-");
}

#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
/// Answers for the tips of its children by their ids.
class Tipped : public CWnd
{
public:
    Log m_asked;

protected:
    BOOL OnNeedText(UINT, NMHDR* header, LRESULT* result)
    {
        *result = 0;
        auto* text = reinterpret_cast<TOOLTIPTEXTA*>(header);
        if (header->code != TTN_NEEDTEXTA || !(text->uFlags & TTF_IDISHWND))
            return FALSE;
        const int id = ::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom));
        m_asked.push_back(std::to_string(id));
        ::lstrcpynA(text->szText, id == 30 ? "tip of thirty" : "", 80);
        return id == 30;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Tipped, CWnd)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &Tipped::OnNeedText)
END_MESSAGE_MAP()

class ToolTips : public testing::Test
{
protected:
    ToolTips()
    {
        EXPECT_TRUE(m_window.CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE,
                                      CRect(0, 0, 200, 100), &m_frame, 1));
        EXPECT_TRUE(m_thirty.Create("", WS_CHILD | WS_VISIBLE, CRect(10, 10, 50, 40), &m_window, 30));
        EXPECT_TRUE(
            m_other.Create("", WS_CHILD | WS_VISIBLE | WS_DISABLED, CRect(60, 10, 90, 40), &m_window, 31));
        EXPECT_TRUE(m_hidden.Create("", WS_CHILD, CRect(0, 50, 200, 90), &m_window, 32));
    }

    /// Moves the pointer for the window that gets the message there.
    void Move(CWnd& window, CPoint point)
    {
        MSG message{};
        message.hwnd = window.m_hWnd;
        message.message = WM_MOUSEMOVE;
        message.lParam = MAKELPARAM(point.x, point.y);
        EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &message)) << "the message goes on";
    }

    /// The tool that the tip control of the frame holds, and what is asked for its text.
    static BOOL CALLBACK FindTip(HWND hWnd, LPARAM found)
    {
        char name[32];
        ::GetClassNameA(hWnd, name, sizeof name);
        if (std::string(name) == TOOLTIPS_CLASSA)
            *reinterpret_cast<HWND*>(found) = hWnd;
        return TRUE;
    }
    static HWND Tip()
    {
        HWND tip = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &FindTip, reinterpret_cast<LPARAM>(&tip));
        return tip;
    }
    std::string TipText(CWnd& tool)
    {
        char text[128] = "";
        TOOLINFOA info{};
        info.cbSize = TTTOOLINFOA_V1_SIZE;
        info.hwnd = m_window;
        info.uId = reinterpret_cast<UINT_PTR>(tool.m_hWnd);
        info.lpszText = text;
        ::SendMessageA(Tip(), TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&info));
        return text;
    }

    TestFrame m_frame{WS_POPUP | WS_VISIBLE};
    Tipped m_window;
    CButton m_thirty;
    CButton m_other;
    CButton m_hidden;
};
}

TEST_F(ToolTips, TheToolAtAPointIsTheVisibleChild)
{
    TOOLINFOA tool{};
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(10, 10), &tool), 30);
    EXPECT_EQ(tool.hwnd, m_window.m_hWnd);
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(m_thirty.m_hWnd));
    EXPECT_EQ(tool.uFlags, UINT(TTF_IDISHWND));
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACKA);
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(89, 39), nullptr), 31) << "a disabled child is one too";
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(50, 10), nullptr), -1);
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(100, 70), nullptr), -1) << "a hidden child is none";
}

TEST_F(ToolTips, FollowThePointerFromChildToChild)
{
    Move(m_thirty, CPoint(3, 3));
    EXPECT_EQ(Tip(), nullptr) << "not turned on";

    m_window.EnableToolTips(TRUE);
    Move(m_thirty, CPoint(3, 3));
    ASSERT_NE(Tip(), nullptr);
    EXPECT_EQ(SendMessageA(Tip(), TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(TipText(m_thirty), "tip of thirty");
    EXPECT_THAT(m_window.m_asked, testing::Contains("30"));

    Move(m_window, CPoint(65, 15)); // a disabled child's messages go to its parent
    EXPECT_EQ(SendMessageA(Tip(), TTM_GETTOOLCOUNT, 0, 0), 1) << "one tool, that of the child at the pointer";
    EXPECT_EQ(TipText(m_thirty), "");
    EXPECT_EQ(TipText(m_other), "");
    EXPECT_THAT(m_window.m_asked, testing::Contains("31"));

    Move(m_window, CPoint(150, 5));
    EXPECT_EQ(SendMessageA(Tip(), TTM_GETTOOLCOUNT, 0, 0), 0);

    Move(m_thirty, CPoint(3, 3));
    m_window.EnableToolTips(FALSE);
    EXPECT_EQ(SendMessageA(Tip(), TTM_GETTOOLCOUNT, 0, 0), 0);
}

TEST_F(ToolTips, OutliveTheWindowThatAskedForThem)
{
    m_window.EnableToolTips(TRUE);
    Move(m_thirty, CPoint(3, 3));
    m_window.DestroyWindow();
    EXPECT_EQ(SendMessageA(Tip(), TTM_GETTOOLCOUNT, 0, 0), 0);
    m_frame.DestroyWindow();
    EXPECT_EQ(Tip(), nullptr) << "goes with the top-level window";

    TestFrame frame(WS_POPUP | WS_VISIBLE);
    CButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 40));
    frame.EnableToolTips(TRUE);
    Move(button, CPoint(3, 3));
    EXPECT_NE(Tip(), nullptr) << "and comes with the next";
}

TEST_F(ToolTips, TheControlHoldsToolsByWindowAndId)
{
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_window));
    EXPECT_FALSE(tip.Create(&m_window));
    EXPECT_TRUE(tip.AddTool(&m_window, "first", CRect(0, 0, 5, 5), 1));
    EXPECT_TRUE(tip.AddTool(&m_window, "second", CRect(5, 0, 9, 5), 2));
    EXPECT_TRUE(tip.AddTool(&m_thirty, "window"));
    EXPECT_EQ(tip.GetToolCount(), 3);
    CString text;
    tip.UpdateTipText("changed", &m_window, 2);
    tip.GetText(text, &m_window, 2);
    EXPECT_STREQ(text, "changed");
    tip.GetText(text, &m_thirty);
    EXPECT_STREQ(text, "window");
    tip.DelTool(&m_window, 1);
    tip.DelTool(&m_window, 77); // none there
    EXPECT_EQ(tip.GetToolCount(), 2);
    tip.GetText(text, &m_window, 1);
    EXPECT_STREQ(text, "");
}

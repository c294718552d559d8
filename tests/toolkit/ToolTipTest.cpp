// The tool tip that the toolkit shows for the children of a window.
#include "TestWnd.h"

#include <ToolTips.h>

#include <gtest/gtest.h>

namespace {
class ToolTips : public testing::Test
{
protected:
    ToolTips()
    {
        const CRect rect(10, 10, 50, 40);
        EXPECT_TRUE(CreateChild(m_window, m_frame, 1));
        EXPECT_TRUE(m_hidden.Create("", WS_CHILD, rect, &m_window, 31));
        EXPECT_TRUE(m_child.Create("", WS_CHILD | WS_VISIBLE | WS_DISABLED, rect, &m_window, 30));
        EXPECT_TRUE(m_other.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &m_window, 32));
        m_window.EnableToolTips(TRUE);
    }

    // Moves the pointer for the window that gets the message there.
    static void Move(CWnd& window, CPoint point = {15, 15})
    {
        MSG message{};
        message.hwnd = window.m_hWnd;
        message.message = WM_MOUSEMOVE;
        message.lParam = MAKELPARAM(point.x, point.y);
        EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &message)) << "the message goes on";
    }

    static LRESULT CountTools() { return SendMessageA(FindToolTip(), TTM_GETTOOLCOUNT, 0, 0); }

    TestFrame m_frame{WS_POPUP | WS_VISIBLE};
    CWnd m_window;
    CButton m_hidden;
    CButton m_child;
    CButton m_other;
};
}

TEST_F(ToolTips, TheToolIsTheVisibleChildAtThePoint)
{
    TOOLINFOA tool{};
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(15, 15), &tool), 30) << "a disabled child is one too";
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(m_child.m_hWnd));
    EXPECT_EQ(m_window.OnToolHitTest(CPoint(9, 9), nullptr), -1);
}

TEST_F(ToolTips, FollowThePointerUntilTheyAreTurnedOff)
{
    Move(m_other, CPoint(3, 3));
    Move(m_window); // a disabled child's messages go to its parent
    EXPECT_EQ(CountTools(), 1) << "that of the child at the pointer";
    Move(m_window, CPoint(9, 9));
    EXPECT_EQ(CountTools(), 0);
    Move(m_window);
    m_window.EnableToolTips(FALSE);
    EXPECT_EQ(CountTools(), 0);
}

TEST_F(ToolTips, OutliveTheWindowThatAskedForThem)
{
    Move(m_window);
    m_window.DestroyWindow();
    EXPECT_EQ(CountTools(), 0);
    m_frame.DestroyWindow();
    EXPECT_EQ(FindToolTip(), nullptr) << "goes with the top-level window";

    TestFrame frame(WS_POPUP | WS_VISIBLE);
    CButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &frame, 40));
    frame.EnableToolTips(TRUE);
    Move(button);
    EXPECT_NE(FindToolTip(), nullptr) << "and comes with the next";
}

TEST_F(ToolTips, ComeBackWhenTheirWindowWasClosedElsewhere)
{
    Move(m_window);
    ::DestroyWindow(FindToolTip());
    Move(m_window);
    ASSERT_NE(FindToolTip(), nullptr);
    EXPECT_EQ(CountTools(), 1) << "the pointer has not left the child";
}

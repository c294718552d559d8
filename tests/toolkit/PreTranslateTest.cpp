// Messages that are offered to windows before they are dispatched, in the loops of the toolkit and of others.
#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
// Writes down which messages are offered to it and which reach it, by its name.
class Stop : public CWnd
{
public:
    Stop(Log& log, const char* name) : m_log(log), m_name(name) {}

    bool m_keep = false;
    bool m_throw = false;
    bool m_dialog = false;

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (pMsg->message != WM_USER)
            return CWnd::PreTranslateMessage(pMsg);
        if (m_throw)
            AfxThrowResourceException();
        m_log.push_back(m_name);
        return m_dialog ? ::IsDialogMessageA(m_hWnd, pMsg) : m_keep || CWnd::PreTranslateMessage(pMsg);
    }

protected:
    LRESULT OnApp(WPARAM, LPARAM)
    {
        m_log.push_back(m_name + " got it");
        return 0;
    }
    DECLARE_MESSAGE_MAP()

    Log& m_log;
    std::string m_name;
};

BEGIN_MESSAGE_MAP(Stop, CWnd)
    ON_MESSAGE(WM_USER, &Stop::OnApp)
END_MESSAGE_MAP()

class PreTranslate : public testing::Test
{
protected:
    PreTranslate()
    {
        EXPECT_TRUE(
            m_top.CreateEx(0, AfxRegisterWndClass(0), "top", WS_POPUP, CRect(0, 0, 90, 90), nullptr, 0));
        EXPECT_TRUE(CreateChild(m_middle, m_top, 1));
        // A window without an object stands between.
        m_plain =
            CreateWindowExA(0, "BUTTON", "", WS_CHILD, 0, 0, 40, 40, m_middle, nullptr, nullptr, nullptr);
        EXPECT_TRUE(
            m_leaf.CreateEx(0, AfxRegisterWndClass(0), "leaf", WS_CHILD, 0, 0, 9, 9, m_plain, nullptr));
    }

    MSG MakeMessage() const
    {
        MSG message{};
        message.hwnd = m_leaf.m_hWnd;
        message.message = WM_USER;
        return message;
    }

    Log TakeLog() { return std::exchange(m_log, {}); }

    Log m_log;
    Stop m_top{m_log, "top"};
    Stop m_middle{m_log, "middle"};
    HWND m_plain = nullptr;
    Stop m_leaf{m_log, "leaf"};
};

// Ends its loop with an exit code, and says when it is idle.
class LoopApp : public CWinApp
{
public:
    explicit LoopApp(Log& log) : m_log(log) {}

    BOOL OnIdle(LONG count) override
    {
        m_log.push_back("idle " + std::to_string(count));
        CWinApp::OnIdle(count);
        if (count == 1)
            ::PostQuitMessage(5);
        return count == 0;
    }

    Log& m_log;
};
}

TEST_F(PreTranslate, OffersAMessageToTheWindowAndItsAncestorsUntilOneKeepsIt)
{
    MSG message = MakeMessage();
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &message));
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle", "top"));
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(m_middle, &message)) << "up to the given window";
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle"));
    m_leaf.m_keep = true;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &message));
    EXPECT_THAT(TakeLog(), ElementsAre("leaf"));
}

TEST_F(PreTranslate, TheLoopOffersBeforeItDispatchesAndEndsWithTheExitCode)
{
    LoopApp app(m_log);
    m_leaf.PostMessage(WM_USER);
    EXPECT_EQ(app.Run(), 5);
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle", "top", "leaf got it", "idle 0", "idle 1"));

    m_middle.m_keep = true;
    m_leaf.PostMessage(WM_USER);
    EXPECT_EQ(app.Run(), 5);
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle", "idle 0", "idle 1"));
}

TEST_F(PreTranslate, ALoopOfTheHostsOwnOffersItsMessagesThroughTheFilter)
{
    ASSERT_TRUE(AfxWinInit(nullptr, nullptr, "", SW_HIDE));
    ASSERT_TRUE(AfxWinInit(nullptr, nullptr, "", SW_HIDE)) << "again does no harm";
    MSG message = MakeMessage();
    EXPECT_FALSE(CallMsgFilterA(&message, MSGF_USER));
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle", "top"));
    m_middle.m_keep = true;
    EXPECT_TRUE(CallMsgFilterA(&message, MSGF_USER));
    EXPECT_THAT(TakeLog(), ElementsAre("leaf", "middle"));
    EXPECT_FALSE(CallMsgFilterA(&message, MSGF_USER + 1)) << "another filter's";
    EXPECT_THAT(TakeLog(), ElementsAre());
    m_leaf.m_throw = true;
    EXPECT_FALSE(CallMsgFilterA(&message, MSGF_USER)) << "no exception crosses the filter";
}

TEST_F(PreTranslate, OffersAMessageOnceThoughADialogHandsItToTheFilter)
{
    ASSERT_TRUE(AfxWinInit(nullptr, nullptr, "", SW_HIDE));
    m_middle.m_dialog = true;
    MSG message = MakeMessage();
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &message));
    EXPECT_THAT(m_log, ElementsAre("leaf", "middle", "leaf got it"));
}

TEST_F(PreTranslate, TemporaryObjectsEndWithoutTheirWindows)
{
    ASSERT_TRUE(AfxWinInit(nullptr, nullptr, "", SW_HIDE));
    CWnd* temporary = CWnd::FromHandle(m_plain);
    EXPECT_EQ(CWnd::FromHandle(m_plain), temporary);
    MSG message = MakeMessage();
    CallMsgFilterA(&message, MSGF_USER); // no handler is at work: the temporary objects end here
    EXPECT_TRUE(IsWindow(m_plain));
    EXPECT_EQ(CWnd::FromHandle(m_plain)->m_hWnd, m_plain);
}

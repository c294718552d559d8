// The life of a window and its object, and exceptions on the way of messages.
#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
// Writes down how its window ends.
class Witness : public CWnd
{
public:
    explicit Witness(Log& log) : m_log(log) {}
    ~Witness() override { m_log.push_back("end"); }

    bool m_deleteSelf = false;

protected:
    void PostNcDestroy() override
    {
        m_log.push_back(m_hWnd ? "still a handle" : "postncdestroy");
        if (m_deleteSelf)
            delete this;
    }

    Log& m_log;
};

class WindowLife : public testing::Test
{
protected:
    TestFrame m_frame;
    Log m_log;
};
}

TEST_F(WindowLife, CreationFailsForASecondWindowAndAnUnknownClass)
{
    Witness window(m_log);
    ASSERT_TRUE(CreateChild(window, m_frame, 8));
    EXPECT_FALSE(CreateChild(window, m_frame, 9)) << "the object has a window already";
    EXPECT_EQ(window.GetDlgCtrlID(), 8);

    Witness unknown(m_log);
    EXPECT_FALSE(unknown.CreateEx(0, "no such class", "", WS_CHILD, CRect(0, 0, 1, 1), &m_frame, 8));
    EXPECT_THAT(m_log, ElementsAre("postncdestroy"));
}

TEST_F(WindowLife, ObjectAndWindowMayEndInAnyOrder)
{
    HWND hWnd = nullptr;
    {
        Witness window(m_log);
        ASSERT_TRUE(CreateChild(window, m_frame, 8));
        hWnd = window.m_hWnd;
    }
    EXPECT_FALSE(IsWindow(hWnd)) << "the end of the object ends the window";
    EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);

    Witness outliving(m_log);
    ASSERT_TRUE(CreateChild(outliving, m_frame, 8));
    m_frame.DestroyWindow();
    EXPECT_EQ(outliving.m_hWnd, nullptr) << "the end of the parent ends the child's window";

    TestFrame other;
    m_log.clear();
    auto* own = new Witness(m_log);
    own->m_deleteSelf = true;
    ASSERT_TRUE(CreateChild(*own, other, 8));
    other.DestroyWindow();
    EXPECT_EQ(m_log.back(), "end") << "an object may end itself with its window";
}

TEST_F(WindowLife, HandlesLeadToTheirObject)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandle(m_frame), &m_frame);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_frame), &m_frame);

    const HWND plain =
        CreateWindowExA(0, "BUTTON", "plain", WS_CHILD, 0, 0, 9, 9, m_frame, nullptr, nullptr, nullptr);
    CWnd* temporary = CWnd::FromHandle(plain);
    EXPECT_EQ(temporary->m_hWnd, plain);
    EXPECT_EQ(CWnd::FromHandle(plain), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(plain), nullptr);

    CButton button;
    EXPECT_TRUE(button.Attach(plain));
    EXPECT_FALSE(button.Attach(m_frame));
    EXPECT_EQ(CWnd::FromHandle(plain), &button);
    EXPECT_EQ(button.Detach(), plain);
    EXPECT_NE(CWnd::FromHandle(plain), &button);
}

TEST_F(WindowLife, ASubclassedWindowGetsItsProcedureBack)
{
    const HWND plain =
        CreateWindowExA(0, "BUTTON", "", WS_CHILD, 0, 0, 9, 9, m_frame, nullptr, nullptr, nullptr);
    const LONG_PTR procedure = GetWindowLongPtrA(plain, GWLP_WNDPROC);
    CWnd window;
    ASSERT_TRUE(window.SubclassWindow(plain));
    EXPECT_NE(GetWindowLongPtrA(plain, GWLP_WNDPROC), procedure);
    EXPECT_EQ(window.SendMessage(WM_GETDLGCODE) & DLGC_BUTTON, DLGC_BUTTON) << "the button still answers";
    EXPECT_EQ(window.UnsubclassWindow(), plain);
    EXPECT_EQ(GetWindowLongPtrA(plain, GWLP_WNDPROC), procedure);
}

namespace {
// Sends itself another message in the middle of one, and then asks for the default of the first.
class Defaulting : public CWnd
{
public:
    using CWnd::Default;
    Defaulting* m_other = nullptr;

protected:
    LRESULT OnSetText(WPARAM, LPARAM)
    {
        SendMessage(WM_USER);
        return Default();
    }
    LRESULT OnClose(WPARAM, LPARAM) { return m_other->Default(); } // by hand
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Defaulting, CWnd)
    ON_MESSAGE(WM_SETTEXT, &Defaulting::OnSetText)
    ON_MESSAGE(WM_CLOSE, &Defaulting::OnClose)
END_MESSAGE_MAP()
}

TEST_F(WindowLife, DefaultRunsTheMessageAtHandAndNoneOfAnotherWindow)
{
    Defaulting window;
    ASSERT_TRUE(CreateChild(window, m_frame, 8));
    window.SetWindowText("new text");
    CString text;
    window.GetWindowText(text);
    EXPECT_STREQ(text, "new text");

    Defaulting caller;
    ASSERT_TRUE(CreateChild(caller, m_frame, 9));
    caller.m_other = &window;
    caller.SendMessage(WM_CLOSE);
    EXPECT_TRUE(IsWindow(window.m_hWnd)) << "the close was not the other window's";
}

namespace {
class Throwing : public CWnd
{
public:
    UINT m_throwOn = WM_USER;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == m_throwOn)
            AfxThrowResourceException();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class CatchingApp : public CWinApp
{
public:
    LRESULT ProcessWndProcException(CException* e, const MSG* message) override
    {
        const bool isResource = e->IsKindOf(RUNTIME_CLASS(CResourceException));
        e->Delete();
        return isResource && message->message == WM_USER ? 42 : 1;
    }
};
}

TEST_F(WindowLife, AnExceptionOfAHandlerEndsAtTheWindowProcedure)
{
    Throwing window;
    ASSERT_TRUE(CreateChild(window, m_frame, 8));
    EXPECT_EQ(window.SendMessage(WM_USER), 0);
    {
        const CatchingApp app;
        EXPECT_EQ(window.SendMessage(WM_USER), 42);
    }

    Throwing unborn;
    unborn.m_throwOn = WM_CREATE;
    EXPECT_FALSE(CreateChild(unborn, m_frame, 9));

    m_frame.ShowWindow(SW_SHOW);
    window.m_throwOn = WM_PAINT;
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "a failed paint is not asked for again";
}

#include "TestWnd.h"

#include <gmock/gmock.h>

#include <functional>

using testing::ElementsAre;

namespace {
const UINT kRegistered = RegisterWindowMessageA("toolkit test message");

/// Writes down each call of a handler with its arguments.
class Recorder : public CWnd
{
public:
    template <class... Arguments>
    void Note(const char* name, Arguments... arguments)
    {
        std::string line = name;
        ((line += " " + std::to_string(arguments)), ...);
        m_log.push_back(line);
    }

    Log m_log;

protected:
    void OnSize(UINT type, int cx, int cy) { Note("size", type, cx, cy); }
    void OnMove(int x, int y) { Note("move", x, y); }
    void OnPaint()
    {
        Note("paint");
        Default();
    }
    void OnLButtonDown(UINT flags, CPoint point) { Note("down", flags, point.x, point.y); }
    void OnLButtonUp(UINT flags, CPoint point) { Note("up", flags, point.x, point.y); }
    void OnMouseMove(UINT flags, CPoint point) { Note("mousemove", flags, point.x, point.y); }
    void OnMouseLeave() { Note("leave"); }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint point)
    {
        Note("wheel", flags, delta, point.x, point.y);
        return 1;
    }
    BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message)
    {
        Note("cursor", window == this, hitTest, message);
        return 1;
    }
    void OnSetFocus(CWnd* old) { Note("focus", old == nullptr); }
    void OnKillFocus(CWnd* next) { Note("killfocus", next == this); }
    void OnKeyDown(UINT key, UINT count, UINT flags) { Note("key", key, count, flags); }
    void OnChar(UINT key, UINT count, UINT flags) { Note("char", key, count, flags); }
    void OnTimer(UINT_PTR id) { Note("timer", id); }
    void OnEnable(BOOL enable) { Note("enable", enable); }
    BOOL OnEraseBkgnd(CDC* dc)
    {
        Note("erase", dc->m_hDC == reinterpret_cast<HDC>(0x1234));
        return 77;
    }
    UINT OnGetDlgCode() { return DLGC_WANTTAB; }
    LRESULT OnPlain(WPARAM wParam, LPARAM lParam)
    {
        Note("plain", wParam, lParam);
        return -5;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
    {
        Note("registered", wParam, lParam);
        return 9;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_TIMER()
    ON_WM_ENABLE()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_MESSAGE(WM_APP + 1, &Recorder::OnPlain)
    ON_REGISTERED_MESSAGE(kRegistered, &Recorder::OnRegistered)
END_MESSAGE_MAP()

/// Overrides one line of its base's map and leaves the others to it.
class Derived : public Recorder
{
protected:
    void OnLButtonDown(UINT flags, CPoint point)
    {
        Note("derived");
        Recorder::OnLButtonDown(flags, point);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Recorder)
    ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

struct Case
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    const char* expected;
    LRESULT result;
};

class MessageMap : public testing::Test
{
protected:
    TestFrame m_frame;
};
}

TEST_F(MessageMap, BringsEachMessageToItsHandlerWithItsArguments)
{
    Recorder window;
    ASSERT_TRUE(CreateChild(window, m_frame, 5));
    const auto self = reinterpret_cast<WPARAM>(window.m_hWnd);
    const Case cases[] = {
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 0xFFFE), "size 2 300 -2", 0},
        {WM_MOVE, 0, MAKELPARAM(0xFFFF, 7), "move -1 7", 0},
        {WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0xFFFD, 4), "down 1 -3 4", 0},
        {WM_LBUTTONUP, MK_SHIFT, MAKELPARAM(3, 0x8000), "up 4 3 -32768", 0},
        {WM_MOUSEMOVE, MK_CONTROL, MAKELPARAM(5, 6), "mousemove 8 5 6", 0},
        {WM_MOUSELEAVE, 0, 0, "leave", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), MAKELPARAM(9, 0xFFFF),
         "wheel 4 -120 9 -1", 1},
        {WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 512", 1},
        {WM_SETFOCUS, 0, 0, "focus 1", 0},
        {WM_KILLFOCUS, self, 0, "killfocus 1", 0},
        {WM_KEYDOWN, VK_PRIOR, MAKELPARAM(2, 0x0149), "key 33 2 329", 0},
        {WM_CHAR, 'x', MAKELPARAM(1, 0x2D), "char 120 1 45", 0},
        {WM_TIMER, 17, 0, "timer 17", 0},
        {WM_ENABLE, TRUE, 0, "enable 1", 0},
        {WM_ERASEBKGND, 0x1234, 0, "erase 1", 77},
        {WM_APP + 1, 11, -12, "plain 11 -12", -5},
        {kRegistered, 13, 14, "registered 13 14", 9},
    };
    for (const Case& c : cases) {
        window.m_log.clear();
        EXPECT_EQ(window.SendMessage(c.message, c.wParam, c.lParam), c.result) << c.expected;
        EXPECT_THAT(window.m_log, ElementsAre(c.expected));
    }
    EXPECT_EQ(window.SendMessage(WM_GETDLGCODE), DLGC_WANTTAB);
}

TEST_F(MessageMap, LeavesMessagesWithoutAHandlerToTheSystem)
{
    Recorder window;
    ASSERT_TRUE(CreateChild(window, m_frame, 5));
    window.m_log.clear();
    char text[16] = "";
    EXPECT_EQ(window.SendMessage(WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text)), 5);
    EXPECT_STREQ(text, "child");
    EXPECT_EQ(window.SendMessage(WM_APP + 2, 1, 1), 0);
    EXPECT_THAT(window.m_log, ElementsAre());
}

TEST_F(MessageMap, SearchesTheDerivedClassBeforeItsBase)
{
    Derived window;
    ASSERT_TRUE(CreateChild(window, m_frame, 5));
    window.m_log.clear();
    window.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(1, 2));
    window.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(3, 4));
    EXPECT_THAT(window.m_log, ElementsAre("derived", "down 0 1 2", "up 0 3 4"));
}

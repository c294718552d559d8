// How messages and their arguments reach the handlers of a message map.
#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
// Writes down each call of a handler with its arguments. The control's own handlers cover the other kinds of
// arguments.
class Recorder : public CWnd
{
public:
    Log m_log;

protected:
    template <class... Arguments>
    void Note(const char* name, Arguments... arguments)
    {
        std::string line = name;
        ((line += " " + std::to_string(arguments)), ...);
        m_log.push_back(line);
    }

    void OnLButtonDown(UINT flags, CPoint point) { Note("down", flags, point.x, point.y); }
    void OnMouseMove(UINT flags, CPoint point) { Note("move", flags, point.x, point.y); }
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
    void OnKillFocus(CWnd* next) { Note("killfocus", next == this); }
    void OnKeyDown(UINT key, UINT count, UINT flags) { Note("key", key, count, flags); }
    void OnTimer(UINT_PTR id) { Note("timer", id); }
    BOOL OnEraseBkgnd(CDC* dc)
    {
        Note("erase", dc->m_hDC == reinterpret_cast<HDC>(0x1234));
        return 77;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

// Has one line of its base's map anew, and leaves the others to the base.
class Derived : public Recorder
{
protected:
    void OnMouseMove(UINT, CPoint) { Note("derived"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Recorder)
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()
}

TEST(MessageMap, BringsEachMessageToItsHandlerWithItsArguments)
{
    TestFrame frame;
    Derived window;
    ASSERT_TRUE(CreateChild(window, frame, 5));
    const auto self = reinterpret_cast<WPARAM>(window.m_hWnd);
    const struct
    {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* expected;
        LRESULT result;
    } cases[] = {
        {WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0xFFFD, 0x8000), "down 1 -3 -32768", 0},
        {WM_MOUSEMOVE, 0, 0, "derived", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), MAKELPARAM(9, 0xFFFF),
         "wheel 4 -120 9 -1", 1},
        {WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 512", 1},
        {WM_KILLFOCUS, self, 0, "killfocus 1", 0},
        {WM_KEYDOWN, VK_PRIOR, MAKELPARAM(2, 0x0149), "key 33 2 329", 0},
        {WM_TIMER, 17, 0, "timer 17", 0},
        {WM_ERASEBKGND, 0x1234, 0, "erase 1", 77},
    };
    for (const auto& c : cases) {
        window.m_log.clear();
        EXPECT_EQ(window.SendMessage(c.message, c.wParam, c.lParam), c.result) << c.expected;
        EXPECT_THAT(window.m_log, ElementsAre(c.expected));
    }
}

// Focus, activation, capture, mouse and keyboard.
#include "Hands.h"
#include "MessageRecorder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace {

class Input : public testing::Test
{
protected:
    // A top-level window at 100, 100 of the screen with a child at 10, 20 of it, 100 x 80.
    void SetUp() override
    {
        movePointer(600, 600);
        top = recorder.createTop("t");
        child = recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
        serveMessages();
        recorder.clear();
    }

    MessageRecorder recorder;
    HWND top = nullptr;
    HWND child = nullptr;
};

TEST_F(Input, FocusMovesAtOnce)
{
    EXPECT_EQ(SetFocus(child), top);
    EXPECT_EQ(recorder.take(), "t.KILLFOCUS(c) c.SETFOCUS(t)");
    EXPECT_EQ(SetFocus(child), child);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_EQ(SetFocus(nullptr), child);
    EXPECT_EQ(recorder.take(), "c.KILLFOCUS(-)");
    EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(Input, DisabledAndHiddenWindowsLoseTheFocus)
{
    SetFocus(child);
    recorder.clear();
    EXPECT_FALSE(EnableWindow(child, FALSE));
    EXPECT_EQ(recorder.take(), "c.CANCELMODE c.KILLFOCUS(-) c.ENABLE(0)");
    EXPECT_FALSE(IsWindowEnabled(child));
    EXPECT_EQ(SetFocus(child), nullptr);
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_TRUE(EnableWindow(child, TRUE));

    SetFocus(child);
    recorder.only({"KILLFOCUS", "SETFOCUS"});
    ShowWindow(child, SW_HIDE);
    EXPECT_EQ(recorder.take(), "c.KILLFOCUS(t) t.SETFOCUS(c)");
}

TEST_F(Input, ActivationGoesWithTheFocus)
{
    const HWND other = recorder.createTop("o");
    EXPECT_EQ(GetActiveWindow(), other);
    SetFocus(child);
    EXPECT_EQ(recorder.take(),
              "o.NCACTIVATE o.ACTIVATE(0) t.NCACTIVATE t.ACTIVATE(1) o.KILLFOCUS(t) t.SETFOCUS(o) "
              "t.KILLFOCUS(c) c.SETFOCUS(t)");
    SetFocus(other);
    EXPECT_EQ(recorder.take(),
              "t.NCACTIVATE t.ACTIVATE(0) o.NCACTIVATE o.ACTIVATE(1) c.KILLFOCUS(o) o.SETFOCUS(c)");
}

TEST_F(Input, MouseMessagesAndWhatComesBeforeThem)
{
    movePointer(120, 130);
    EXPECT_EQ(recorder.served(), "c.SETCURSOR t.SETCURSOR c.MOUSEMOVE(10,10)");
    pressButton();
    EXPECT_EQ(recorder.served(),
              "t.PARENTNOTIFY(513) c.MOUSEACTIVATE t.MOUSEACTIVATE c.SETCURSOR t.SETCURSOR "
              "c.LBUTTONDOWN(10,10)");
    releaseButton();
    EXPECT_EQ(recorder.served(), "c.SETCURSOR t.SETCURSOR c.LBUTTONUP(10,10)");
}

TEST_F(Input, ADisabledChildLetsTheMouseThroughToItsParent)
{
    EnableWindow(child, FALSE);
    movePointer(120, 130);
    recorder.served();
    pressButton();
    EXPECT_EQ(recorder.served(), "t.SETCURSOR t.LBUTTONDOWN(20,30)");
    releaseButton();
    serveMessages();
    EXPECT_EQ(ChildWindowFromPoint(top, {20, 30}), child);
}

// A button that is held down has the capture.
TEST_F(Input, TheCaptureGetsTheMouseFromEverywhereUntilItsWindowIsDisabled)
{
    const HWND button = CreateWindowExA(0, "BUTTON", "", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, 150, 20, 100,
                                        80, top, nullptr, nullptr, nullptr);
    recorder.subclass(button, "b");
    recorder.only({"MOUSEMOVE", "LBUTTON", "CANCELMODE", "CAPTURECHANGED", "ENABLE"});
    const auto hold = [this](int x) {
        movePointer(x, 130);
        serveMessages();
        pressButton();
        serveMessages();
        recorder.clear();
    };
    hold(260);
    movePointer(105, 290);
    EXPECT_EQ(recorder.served(), "b.MOUSEMOVE(-145,170)");
    releaseButton();
    // A move may follow, since the pointer is over another window now.
    EXPECT_EQ(recorder.served().find("b.LBUTTONUP(-145,170) b.CAPTURECHANGED"), 0u);
    hold(270); // elsewhere, so that it is no double click
    EnableWindow(button, FALSE);
    EXPECT_EQ(recorder.take(), "b.CANCELMODE b.CAPTURECHANGED b.ENABLE(0)");
    releaseButton();
    serveMessages();
}

TEST_F(Input, TheWheelGoesToTheWindowUnderThePointerAndUpFromThere)
{
    movePointer(120, 130);
    serveMessages();
    recorder.only({"WHEEL"});
    turnWheel(WHEEL_DELTA);
    EXPECT_EQ(recorder.served(), "c.WHEEL t.WHEEL");
}

TEST_F(Input, AWindowHearsOnceThatThePointerHasLeft)
{
    const auto awaited = [this] {
        constexpr int kEnough = 20; // Wine looks for the pointer now and then only
        constexpr DWORD kPause = 100;
        std::string heard;
        for (int i = 0; heard.empty() && i < kEnough; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(kPause));
            heard = recorder.served();
        }
        return heard;
    };
    movePointer(120, 130);
    serveMessages();
    recorder.only({"MOUSELEAVE"});
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, child, 0};
    ASSERT_TRUE(TrackMouseEvent(&track));
    movePointer(121, 131);
    EXPECT_EQ(recorder.served(), "");
    movePointer(350, 280);
    EXPECT_EQ(awaited(), "c.MOUSELEAVE");
    movePointer(120, 130);
    serveMessages();
    movePointer(350, 280);
    EXPECT_EQ(recorder.served(), "");
}

TEST_F(Input, KeysAndTheirCharacters)
{
    SetFocus(child);
    recorder.only({"KEY", "SYSKEY", "CHAR", "SYSCHAR"});
    const struct
    {
        int key;
        const char* expected;
    } keys[] = {
        {'A', "c.KEYDOWN(65) c.CHAR(97) c.KEYUP(65)"},
        {VK_PRIOR, "c.KEYDOWN(33) c.KEYUP(33)"},
        {VK_DELETE, "c.KEYDOWN(46) c.KEYUP(46)"},
        {VK_RETURN, "c.KEYDOWN(13) c.CHAR(13) c.KEYUP(13)"},
    };
    for (const auto& [key, expected] : keys) {
        pressKey(key);
        releaseKey(key);
        EXPECT_EQ(recorder.served(), expected);
    }
    SetFocus(nullptr);
    recorder.clear();
    pressKey('A');
    releaseKey('A');
    EXPECT_EQ(recorder.served(), "t.SYSKEYDOWN(65) t.SYSCHAR(97)");
}

TEST_F(Input, ModifiersAreKnownAtTheMessage)
{
    SetFocus(child);
    serveMessages();
    recorder.only({"KEYDOWN", "CHAR"});
    EXPECT_FALSE(GetKeyState(VK_SHIFT) & 0x8000);
    pressKey(VK_SHIFT);
    pressKey('B');
    EXPECT_EQ(recorder.served(), "c.KEYDOWN(16) c.KEYDOWN(66) c.CHAR(66)");
    EXPECT_TRUE(GetKeyState(VK_SHIFT) & 0x8000);
    releaseKey('B');
    releaseKey(VK_SHIFT);
    serveMessages();
    EXPECT_FALSE(GetKeyState(VK_SHIFT) & 0x8000);
    recorder.clear();
    pressKey(VK_CONTROL);
    pressKey('C');
    EXPECT_EQ(recorder.served(), "c.KEYDOWN(17) c.KEYDOWN(67) c.CHAR(3)");
    releaseKey('C');
    releaseKey(VK_CONTROL);
    serveMessages();
}

TEST_F(Input, ADoubleClickNeedsItsStyle)
{
    const HWND twice = recorder.create("d", WS_CHILD | WS_VISIBLE, top, 6, CS_DBLCLKS);
    MoveWindow(twice, 150, 20, 100, 80, TRUE);
    serveMessages();
    recorder.only({"LBUTTON"});
    const struct
    {
        int x;
        const char* expected;
    } places[] = {
        {120, "c.LBUTTONDOWN(10,10) c.LBUTTONUP(10,10) c.LBUTTONDOWN(10,10) c.LBUTTONUP(10,10)"},
        {260, "d.LBUTTONDOWN(10,10) d.LBUTTONUP(10,10) d.LBUTTONDBLCLK(10,10) d.LBUTTONUP(10,10)"},
    };
    for (const auto& [x, expected] : places) {
        movePointer(x, 130);
        serveMessages();
        recorder.clear();
        for (int i = 0; i < 2; ++i) {
            pressButton();
            releaseButton();
        }
        EXPECT_EQ(recorder.served(), expected);
    }
}

}

// The button that its owner draws: how it is pressed, and what its parent hears.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

constexpr LPARAM kInside = MAKELPARAM(5, 5);
constexpr LPARAM kOutside = MAKELPARAM(500, 5);

class Button : public testing::Test
{
protected:
    void SetUp() override
    {
        top = recorder.createTop("t");
        button = CreateWindowExA(0, "BUTTON", "te&st", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, 150, 20, 100, 50,
                                 top, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(77)), nullptr, nullptr);
        recorder.subclass(button, "b");
        serveMessages();
        recorder.only({"DRAWITEM", "COMMAND", "BM_SETSTATE", "CAPTURECHANGED", "KILLFOCUS", "SETFOCUS"});
    }

    std::string send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        SendMessageA(button, message, wParam, lParam);
        return recorder.take();
    }

    MessageRecorder recorder;
    HWND top = nullptr;
    HWND button = nullptr;
};

TEST_F(Button, PressedByTheMouse)
{
    EXPECT_EQ(send(WM_LBUTTONDOWN, MK_LBUTTON, kInside),
              "t.KILLFOCUS(b) b.SETFOCUS(t) t.DRAWITEM(4:16) b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    EXPECT_EQ(send(WM_MOUSEMOVE, MK_LBUTTON, kOutside), "b.BM_SETSTATE(0) t.DRAWITEM(2:16)");
    EXPECT_EQ(send(WM_MOUSEMOVE, MK_LBUTTON, kInside), "b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    EXPECT_EQ(send(WM_LBUTTONUP, 0, kInside),
              "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED t.CLICKED(77)");
    EXPECT_EQ(send(WM_LBUTTONDBLCLK, MK_LBUTTON, kInside), "t.TWICE(77)");
    EXPECT_EQ(send(WM_LBUTTONUP, 0, kInside), "");

    send(WM_LBUTTONDOWN, MK_LBUTTON, kInside);
    EXPECT_EQ(send(WM_LBUTTONUP, 0, kOutside), "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED");
}

TEST_F(Button, LosingTheFocusLetsGo)
{
    SetFocus(button);
    recorder.clear();
    EXPECT_EQ(send(WM_KEYDOWN, VK_SPACE), "b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    SetFocus(top);
    EXPECT_EQ(recorder.take(),
              "b.KILLFOCUS(t) t.DRAWITEM(4:1) b.CAPTURECHANGED b.BM_SETSTATE(0) t.DRAWITEM(2:0) "
              "t.SETFOCUS(b)");
    EXPECT_EQ(send(WM_KEYUP, VK_SPACE), "");
    EXPECT_EQ(recorder.served(), "t.DRAWITEM(1:0)");
}

TEST_F(Button, ItsLookFollowsTextAndState)
{
    SetWindowTextA(button, "new");
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:0)");
    EnableWindow(button, FALSE);
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:4)");
    EnableWindow(button, TRUE);
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:0)");
    ShowWindow(button, SW_HIDE);
    recorder.clear();
    EXPECT_EQ(send(BM_SETSTATE, TRUE), "b.BM_SETSTATE(1)") << "nothing is drawn of what is hidden";
}

}

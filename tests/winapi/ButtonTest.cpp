// The button that its owner draws: how it is pressed, and what its parent hears.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

constexpr int id = 77;
constexpr LPARAM inside = MAKELPARAM(5, 5);
constexpr LPARAM outside = MAKELPARAM(500, 5);

class Button : public testing::Test
{
protected:
    void SetUp() override
    {
        top = recorder.createTop("t");
        other = recorder.create("o", WS_CHILD | WS_VISIBLE, top, 5);
        button = CreateWindowExA(0, "BUTTON", "te&st", WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW, 150,
                                 20, 100, 50, top, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)),
                                 nullptr, nullptr);
        recorder.subclass(button, "b");
        serveMessages();
        recorder.only({"DRAWITEM", "COMMAND", "BM_SETSTATE", "CAPTURECHANGED", "KILLFOCUS", "SETFOCUS"});
    }

    std::string send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        SendMessageA(button, message, wParam, lParam);
        return recorder.take();
    }

    LRESULT state() { return SendMessageA(button, BM_GETSTATE, 0, 0) & (BST_PUSHED | BST_FOCUS); }

    MessageRecorder recorder;
    HWND top = nullptr;
    HWND other = nullptr;
    HWND button = nullptr;
};

TEST_F(Button, FirstPaintAsksItsOwnerOnce)
{
    InvalidateRect(button, nullptr, TRUE);
    serveMessages();
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:0)");
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), DLGC_BUTTON);
}

TEST_F(Button, PressedByTheMouse)
{
    EXPECT_EQ(send(WM_LBUTTONDOWN, MK_LBUTTON, inside),
              "t.KILLFOCUS(b) b.SETFOCUS(t) t.DRAWITEM(4:16) b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(state(), BST_PUSHED | BST_FOCUS);
    EXPECT_EQ(send(WM_MOUSEMOVE, MK_LBUTTON, outside), "b.BM_SETSTATE(0) t.DRAWITEM(2:16)");
    EXPECT_EQ(send(WM_MOUSEMOVE, MK_LBUTTON, inside), "b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    EXPECT_EQ(send(WM_LBUTTONUP, 0, inside),
              "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED t.COMMAND(77:0)");
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(send(WM_LBUTTONUP, 0, inside), "");
}

TEST_F(Button, LetGoOutsideIsNoClick)
{
    send(WM_LBUTTONDOWN, MK_LBUTTON, inside);
    EXPECT_EQ(send(WM_LBUTTONUP, 0, outside), "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED");
}

TEST_F(Button, TheSecondPressOfADoubleClickIsToldAsOne)
{
    EXPECT_EQ(send(WM_LBUTTONDBLCLK, MK_LBUTTON, inside), "t.COMMAND(77:5)");
    EXPECT_EQ(send(WM_LBUTTONUP, 0, inside), "");
}

TEST_F(Button, PressedByTheSpaceKey)
{
    SetFocus(button);
    EXPECT_EQ(recorder.take(), "t.KILLFOCUS(b) b.SETFOCUS(t) t.DRAWITEM(4:16)");
    EXPECT_EQ(send(WM_KEYDOWN, VK_SPACE), "b.BM_SETSTATE(1) t.DRAWITEM(2:17)");
    EXPECT_EQ(GetCapture(), button);
    EXPECT_EQ(send(WM_KEYUP, VK_SPACE), "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED t.COMMAND(77:0)");
    EXPECT_EQ(send(WM_KEYDOWN, VK_RETURN), "");
    EXPECT_EQ(send(WM_KEYUP, VK_RETURN), "");
}

TEST_F(Button, LosingTheFocusLetsGo)
{
    SetFocus(button);
    send(WM_KEYDOWN, VK_SPACE);
    SetFocus(other);
    EXPECT_EQ(recorder.take(),
              "b.KILLFOCUS(o) t.DRAWITEM(4:1) b.CAPTURECHANGED b.BM_SETSTATE(0) t.DRAWITEM(2:0) "
              "o.SETFOCUS(b)");
    EXPECT_EQ(state(), 0);
    EXPECT_EQ(send(WM_KEYUP, VK_SPACE), "");
    serveMessages();
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:0)");
}

TEST_F(Button, ClickedByAProgram)
{
    SetFocus(other);
    recorder.clear();
    EXPECT_EQ(send(BM_CLICK),
              "o.KILLFOCUS(b) b.SETFOCUS(o) t.DRAWITEM(4:16) b.BM_SETSTATE(1) t.DRAWITEM(2:17) "
              "b.BM_SETSTATE(0) t.DRAWITEM(2:16) b.CAPTURECHANGED t.COMMAND(77:0)");
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
    EXPECT_EQ(state(), BST_PUSHED);
}

TEST_F(Button, ItsFontIsInItsContext)
{
    LOGFONTA description{};
    description.lfHeight = -20;
    const HFONT font = CreateFontIndirectA(&description);
    SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    DestroyWindow(button);
    DeleteObject(font);
}

TEST_F(Button, DestroyedByItsOwnCommand)
{
    static HWND victim;
    victim = button;
    static WNDPROC original;
    original = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(
        top, GWLP_WNDPROC,
        reinterpret_cast<LONG_PTR>(+[](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            if (message == WM_COMMAND)
                DestroyWindow(victim);
            return CallWindowProcA(original, window, message, wParam, lParam);
        })));
    send(WM_LBUTTONDOWN, MK_LBUTTON, inside);
    send(WM_LBUTTONUP, 0, inside);
    EXPECT_FALSE(IsWindow(victim));
    SetWindowLongPtrA(top, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
}

TEST_F(Button, ACheckBoxTogglesItself)
{
    const HWND box =
        CreateWindowExA(0, "BUTTON", "box", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX, 0, 0, 80, 20, top,
                        reinterpret_cast<HMENU>(static_cast<LONG_PTR>(9)), nullptr, nullptr);
    for (const LRESULT expected : {BST_CHECKED, BST_UNCHECKED}) {
        SendMessageA(box, BM_CLICK, 0, 0);
        EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), expected);
    }
    DestroyWindow(box);
}

}

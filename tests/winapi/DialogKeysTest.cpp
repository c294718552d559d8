// The keyboard of dialogs.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

class DialogKeys : public testing::Test
{
protected:
    void SetUp() override
    {
        top = recorder.createTop("t");
        add("Static", "&Name", 1, 0);
        add("BUTTON", "first", 11, WS_TABSTOP | BS_OWNERDRAW);
        add("BUTTON", "&second && more", 12, WS_TABSTOP | BS_PUSHBUTTON);
        add("BUTTON", "hidden", 13, WS_TABSTOP | BS_PUSHBUTTON);
        add("BUTTON", "no stop", 14, BS_PUSHBUTTON);
        add("BUTTON", "last", 15, WS_TABSTOP | BS_DEFPUSHBUTTON);
        ShowWindow(GetDlgItem(top, 13), SW_HIDE);
        SetFocus(item(11));
        serveMessages();
        recorder.only({"COMMAND"});
    }

    void add(const char* windowClass, const char* text, int id, DWORD style)
    {
        CreateWindowExA(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 0, 20 * id, 80, 18, top,
                        reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }

    HWND item(int id) { return GetDlgItem(top, id); }

    void key(UINT message, WPARAM wParam)
    {
        MSG sent{};
        sent.hwnd = GetFocus();
        sent.message = message;
        sent.wParam = wParam;
        EXPECT_TRUE(IsDialogMessageA(top, &sent));
    }

    MessageRecorder recorder;
    HWND top = nullptr;
};

TEST_F(DialogKeys, TabWalksTheStopsAndAround)
{
    for (const int id : {12, 15, 11}) {
        key(WM_KEYDOWN, VK_TAB);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), id);
    }
    EXPECT_EQ(GetNextDlgTabItem(top, item(12), TRUE), item(11));
    EXPECT_EQ(GetNextDlgTabItem(top, item(11), TRUE), item(15));
}

TEST_F(DialogKeys, EnterAndEscapeAreCommands)
{
    key(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(recorder.take(), "t.COMMAND(2:0)");
    key(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(recorder.take(), "t.COMMAND(1:0)") << "a plain window names no other default";
}

TEST_F(DialogKeys, MnemonicsPressButtons)
{
    key(WM_SYSCHAR, 's');
    EXPECT_EQ(recorder.take(), "t.COMMAND(12:0)");
    EXPECT_EQ(GetFocus(), item(12));
    key(WM_SYSCHAR, 'x');
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(DialogKeys, OtherWindowsAreLeftAlone)
{
    const HWND other = recorder.createTop("o");
    MSG sent{};
    sent.hwnd = other;
    sent.message = WM_KEYDOWN;
    sent.wParam = VK_TAB;
    EXPECT_FALSE(IsDialogMessageA(top, &sent));
}

}

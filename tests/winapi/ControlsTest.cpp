// The keyboard of dialogs.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

class Controls : public testing::Test
{
protected:
    void SetUp() override
    {
        top = recorder.createTop("t");
        recorder.only({"COMMAND", "DRAWITEM"});
    }

    HWND add(const char* windowClass, DWORD style, int id = 7, const char* text = "", int y = 10)
    {
        return CreateWindowExA(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 10, y, 120, 100, top,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    }

    void inDialog(UINT message, WPARAM key)
    {
        MSG sent{};
        sent.hwnd = GetFocus();
        sent.message = message;
        sent.wParam = key;
        EXPECT_TRUE(IsDialogMessageA(top, &sent));
    }

    MessageRecorder recorder;
    HWND top = nullptr;
};

TEST_F(Controls, TheKeyboardOfADialog)
{
    add("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 2, "first");
    add("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 3, "&second && more");
    ShowWindow(add("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 4), SW_HIDE);
    add("BUTTON", BS_PUSHBUTTON, 5, "no stop");
    add("BUTTON", WS_TABSTOP | BS_DEFPUSHBUTTON, 6, "last");
    SetFocus(GetDlgItem(top, 6));
    for (const int id : {2, 3, 6}) {
        inDialog(WM_KEYDOWN, VK_TAB);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), id);
    }
    EXPECT_EQ(GetNextDlgTabItem(top, GetDlgItem(top, 3), TRUE), GetDlgItem(top, 2));
    EXPECT_EQ(GetNextDlgTabItem(top, GetDlgItem(top, 2), TRUE), GetDlgItem(top, 6));

    recorder.clear();
    inDialog(WM_SYSCHAR, 's');
    EXPECT_EQ(recorder.take(), "t.CLICKED(3)");
    EXPECT_EQ(GetDlgCtrlID(GetFocus()), 3);
    inDialog(WM_SYSCHAR, 'x');
    EXPECT_EQ(recorder.take(), "");
}

}

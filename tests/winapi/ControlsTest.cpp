// Text fields, lists, combo boxes, check boxes and the keyboard of dialogs: what they hold, and what their
// parent hears.
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

    static std::string textOf(HWND window)
    {
        std::string text(100, '\0');
        text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), 100)));
        return text;
    }

    static LPARAM text(const char* text) { return reinterpret_cast<LPARAM>(text); }

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

TEST_F(Controls, TypingIntoATextField)
{
    const struct
    {
        DWORD style;
        const char* before;
        const char* typed;
        const char* after;
        const char* told;
    } cases[] = {
        {0, "ab", "c\bd", "abd", "t.CHANGED(7) t.CHANGED(7) t.CHANGED(7)"},
        {0, "ab", "\r\b", "a", "t.CHANGED(7)"},
        {0, "1234", "56", "12345", "t.CHANGED(7) t.FULL(7) t.CHANGED(7)"},
        {ES_NUMBER, "1", "x2-", "12", "t.CHANGED(7)"},
        {ES_READONLY, "ab", "c\b", "ab", ""},
        {ES_MULTILINE | ES_AUTOVSCROLL, "a", "\rb", "a\r\nb", "t.CHANGED(7) t.CHANGED(7)"},
        {ES_MULTILINE, "a\r\nb", "\b\b", "a", "t.CHANGED(7) t.CHANGED(7)"},
    };
    for (const auto& one : cases) {
        const HWND edit = add("EDIT", one.style | ES_AUTOHSCROLL, 7, one.before);
        SendMessageA(edit, EM_LIMITTEXT, 5, 0);
        SetFocus(edit);
        SendMessageA(edit, EM_SETSEL, 100, 100);
        recorder.clear();
        for (const char* key = one.typed; *key; ++key)
            SendMessageA(edit, WM_CHAR, static_cast<BYTE>(*key), 1);
        EXPECT_EQ(recorder.take(), one.told) << one.typed;
        EXPECT_EQ(textOf(edit), one.after);
        DestroyWindow(edit);
    }
}

TEST_F(Controls, ATextFieldTellsOfItsTextAndItsFocus)
{
    const HWND line = add("EDIT", ES_AUTOHSCROLL);
    const HWND lines = add("EDIT", ES_MULTILINE | ES_AUTOVSCROLL, 8, "", 120);
    SetWindowTextA(line, "<b>one</b>");
    SetWindowTextA(lines, "two\r\nthree");
    EXPECT_EQ(recorder.take(), "t.CHANGED(7)") << "of one line only, when a program sets it";
    SetFocus(line);
    SendMessageA(line, EM_SETSEL, 1, 3);
    SetFocus(lines);
    EXPECT_EQ(recorder.take(), "t.FOCUSED(7) t.LEFT(7) t.FOCUSED(8)");
    EXPECT_EQ(SendMessageA(line, EM_GETSEL, 0, 0), MAKELONG(1, 3));
}

TEST_F(Controls, TheSelectionCountsLineEndsAsTwo)
{
    const HWND lines = add("EDIT", ES_MULTILINE | ES_AUTOVSCROLL, 7, "one\r\ntwo");
    SendMessageA(lines, EM_SETSEL, 3, 5);
    EXPECT_EQ(SendMessageA(lines, EM_GETSEL, 0, 0), MAKELONG(3, 5));
    SendMessageA(lines, EM_REPLACESEL, FALSE, text("+"));
    EXPECT_EQ(textOf(lines), "one+two");
    EXPECT_EQ(recorder.take(), "t.CHANGED(7)");
}

TEST_F(Controls, TheMouseSelectsText)
{
    const HWND edit = add("EDIT", ES_AUTOHSCROLL, 7, "a text");
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0, 8));
    SendMessageA(edit, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(110, 8));
    SendMessageA(edit, WM_LBUTTONUP, 0, MAKELPARAM(110, 8));
    EXPECT_EQ(SendMessageA(edit, EM_GETSEL, 0, 0), MAKELONG(0, 6));
}

TEST_F(Controls, TheRowsOfAList)
{
    const HWND list = add("LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL);
    const auto ask = [&](UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(list, message, wParam, lParam);
    };
    EXPECT_EQ(ask(LB_ADDSTRING, 0, text("a")), 0);
    EXPECT_EQ(ask(LB_ADDSTRING, 0, text("c")), 1);
    EXPECT_EQ(ask(LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(ask(LB_SETCURSEL, 1), 1);
    EXPECT_EQ(ask(LB_INSERTSTRING, 1, text("b")), 1);
    EXPECT_EQ(ask(LB_GETCURSEL), 2) << "the row stays selected that was";
    ask(LB_SETITEMDATA, 1, 77);
    EXPECT_EQ(ask(LB_DELETESTRING, 0), 2);
    EXPECT_EQ(ask(LB_GETITEMDATA, 0), 77);
    EXPECT_EQ(ask(LB_GETCURSEL), 1);

    for (int i = 0; i < 50; ++i)
        ask(LB_ADDSTRING, 0, text("more"));
    ask(LB_SETTOPINDEX, 20);
    EXPECT_EQ(ask(LB_GETTOPINDEX), 20);
    ask(LB_SETCURSEL, 5);
    EXPECT_EQ(ask(LB_GETTOPINDEX), 5) << "the selected row is brought into view";
    EXPECT_EQ(recorder.take(), "") << "what a program does is not told";
}

TEST_F(Controls, ChoosingARow)
{
    const HWND list = add("LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    for (const char* row : {"a", "b", "c"})
        SendMessageA(list, LB_ADDSTRING, 0, text(row));
    RECT second{};
    SendMessageA(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    const LPARAM inside = MAKELPARAM(5, second.top + 3);
    EXPECT_EQ(SendMessageA(list, LB_ITEMFROMPOINT, 0, MAKELPARAM(5, 90)), MAKELONG(2, 1)) << "below the last";

    recorder.only({"COMMAND"});
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 1);
    SendMessageA(list, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(recorder.take(), "t.SELECTED(7)");
    SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, inside);
    EXPECT_EQ(recorder.take(), "t.TWICE(7)");
    SendMessageA(list, WM_LBUTTONUP, 0, inside);
    recorder.clear();
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(recorder.take(), "t.SELECTED(7)");

    SetFocus(top);
    serveMessages();
    recorder.only({"DRAWITEM"});
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    EXPECT_EQ(recorder.take(), "t.DRAWITEM(1:0) t.DRAWITEM(1:0) t.DRAWITEM(1:1)");
}

TEST_F(Controls, AComboBox)
{
    const HWND combo = add("COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL);
    RECT rect{};
    GetWindowRect(combo, &rect);
    EXPECT_LT(rect.bottom - rect.top, 50) << "the list is not part of it while it is closed";
    for (const char* row : {"<i>one</i>", "two"})
        SendMessageA(combo, CB_ADDSTRING, 0, text(row));
    SendMessageA(combo, CB_SETCURSEL, 0, 0);
    EXPECT_EQ(textOf(combo), "<i>one</i>");
    EXPECT_EQ(recorder.take(), "");
    SetFocus(combo);
    SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(SendMessageA(combo, CB_GETCURSEL, 0, 0), 1);
    EXPECT_EQ(recorder.take(), "t.SELECTED(7)");
}

TEST_F(Controls, DestroyedByWhatTheyTell)
{
    const struct
    {
        const char* windowClass;
        DWORD style;
        UINT message;
        WPARAM key;
    } cases[] = {
        {"EDIT", ES_AUTOHSCROLL, WM_CHAR, 'x'},       {"EDIT", ES_MULTILINE, WM_CHAR, 'x'},
        {"LISTBOX", LBS_NOTIFY, WM_KEYDOWN, VK_DOWN}, {"COMBOBOX", CBS_DROPDOWNLIST, WM_KEYDOWN, VK_DOWN},
        {"BUTTON", BS_OWNERDRAW, BM_CLICK, 0},
    };
    for (const auto& one : cases) {
        const HWND control = add(one.windowClass, one.style);
        SendMessageA(control, LB_ADDSTRING, 0, text("row")); // each knows its own message only
        SendMessageA(control, CB_ADDSTRING, 0, text("row"));
        SetFocus(control);
        recorder.destroyWhenHeard(control);
        SendMessageA(control, one.message, one.key, 1);
        EXPECT_FALSE(IsWindow(control)) << one.windowClass;
        serveMessages();
    }
}

TEST_F(Controls, AClickedCheckBoxToggles)
{
    const HWND box = add("BUTTON", BS_AUTOCHECKBOX);
    for (const int expected : {BST_CHECKED, BST_UNCHECKED}) {
        SendMessageA(box, BM_CLICK, 0, 0);
        EXPECT_EQ(SendMessageA(box, BM_GETCHECK, 0, 0), expected);
        EXPECT_EQ(recorder.take(), "t.CLICKED(7)");
    }
}

TEST_F(Controls, TheKeyboardOfADialog)
{
    add("EDIT", WS_TABSTOP, 2, "some text");
    add("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 3, "&second && more");
    ShowWindow(add("BUTTON", WS_TABSTOP | BS_PUSHBUTTON, 4), SW_HIDE);
    add("BUTTON", BS_PUSHBUTTON, 5, "no stop");
    add("BUTTON", WS_TABSTOP | BS_DEFPUSHBUTTON, 6, "last");
    SetFocus(GetDlgItem(top, 6));
    for (const int id : {2, 3, 6}) {
        inDialog(WM_KEYDOWN, VK_TAB);
        EXPECT_EQ(GetDlgCtrlID(GetFocus()), id);
    }
    EXPECT_EQ(SendMessageA(GetDlgItem(top, 2), EM_GETSEL, 0, 0), MAKELONG(0, 9)) << "ready to be typed over";
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

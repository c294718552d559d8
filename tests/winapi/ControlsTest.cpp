// Text fields, lists, combo boxes and dialogs: what they hold, and what their parent hears.
#include "Hands.h"
#include "MessageRecorder.h"

#include <commdlg.h>
#include <gtest/gtest.h>

#include <utility>

namespace {

constexpr int id = 7;
constexpr int rowHeight = 21;

// Other notifications come on one platform only, and nobody needs them.
constexpr struct
{
    int code;
    const char* name;
} notifications[] = {{BN_CLICKED, "clicked"}, {LBN_SELCHANGE, "select"}, {LBN_DBLCLK, "twice"},
                     {EN_SETFOCUS, "focus"},  {EN_KILLFOCUS, "blur"},    {EN_CHANGE, "change"},
                     {EN_MAXTEXT, "full"}};

class Controls : public testing::Test
{
protected:
    void SetUp() override
    {
        s_current = this;
        WNDCLASSA windowClass{};
        if (!GetClassInfoA(nullptr, "ControlsParent", &windowClass)) {
            windowClass = {};
            windowClass.lpfnWndProc = procedure;
            windowClass.lpszClassName = "ControlsParent";
            windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
            RegisterClassA(&windowClass);
        }
        top = CreateWindowExA(0, "ControlsParent", "", WS_POPUP | WS_VISIBLE, 100, 100, 300, 250, nullptr,
                              nullptr, nullptr, nullptr);
        serveMessages();
    }
    void TearDown() override { DestroyWindow(top); }

    HWND add(const char* windowClass, DWORD style, int controlId = id, const char* text = "", int y = 10)
    {
        return CreateWindowExA(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 10, y, 120, 100, top,
                               reinterpret_cast<HMENU>(static_cast<LONG_PTR>(controlId)), nullptr, nullptr);
    }

    std::string told()
    {
        std::string all;
        for (const std::string& one : notes)
            all += (all.empty() ? "" : " ") + one;
        notes.clear();
        return all;
    }

    static std::string textOf(HWND window)
    {
        std::string text(100, '\0');
        text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), 100)));
        return text;
    }

    static void type(HWND window, const char* keys)
    {
        for (; *keys; ++keys)
            SendMessageA(window, WM_CHAR, static_cast<BYTE>(*keys), 1);
    }

    static LPARAM text(const char* text) { return reinterpret_cast<LPARAM>(text); }

    bool pressInDialog(WPARAM key)
    {
        MSG message{};
        message.hwnd = GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return IsDialogMessageA(top, &message);
    }

    HWND top = nullptr;
    std::vector<std::string> notes;
    std::vector<DRAWITEMSTRUCT> drawn;
    int measured = 0;
    HWND victim = nullptr; // destroyed at the next notification

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_COMMAND)
            s_current->note(HIWORD(wParam), LOWORD(wParam));
        if (message == WM_DRAWITEM)
            s_current->drawn.push_back(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
        if (message == WM_MEASUREITEM) {
            auto& item = *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
            EXPECT_EQ(item.CtlID, wParam);
            s_current->measured = static_cast<int>(wParam);
            item.itemHeight = rowHeight;
        }
        if (message == WM_NEXTDLGCTL)
            s_current->notes.push_back("next" + std::to_string(wParam));
        if (message == WM_CLOSE)
            s_current->notes.push_back("close0");
        return message == WM_CLOSE ? 0 : DefWindowProcA(window, message, wParam, lParam);
    }

    void note(int code, int controlId)
    {
        for (const auto& known : notifications) {
            if (known.code == code)
                notes.push_back(known.name + std::to_string(controlId));
        }
        if (code == EN_CHANGE || code == LBN_SELCHANGE)
            DestroyWindow(std::exchange(victim, nullptr));
    }

    static inline Controls* s_current = nullptr;
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
        {0, "ab", "c\bd", "abd", "change7 change7 change7"},
        {0, "ab", "\r\b", "a", "change7"},
        {ES_NUMBER, "1", "x2-", "12", "change7"},
        {ES_READONLY, "ab", "c\b", "ab", ""},
        {ES_MULTILINE | ES_AUTOVSCROLL, "a", "\rb", "a\r\nb", "change7 change7"},
        {ES_MULTILINE, "a\r\nb", "\b\b", "a", "change7 change7"},
    };
    for (const auto& one : cases) {
        const HWND edit = add("EDIT", one.style | ES_AUTOHSCROLL, id, one.before);
        SetFocus(edit);
        SendMessageA(edit, EM_SETSEL, 100, 100);
        told();
        type(edit, one.typed);
        EXPECT_EQ(told(), one.told) << one.typed;
        EXPECT_EQ(textOf(edit), one.after);
        DestroyWindow(edit);
    }
}

TEST_F(Controls, ALimitedTextField)
{
    const HWND edit = add("EDIT", ES_AUTOHSCROLL, id, "ab");
    SendMessageA(edit, EM_LIMITTEXT, 3, 0);
    SendMessageA(edit, EM_SETSEL, 2, 2);
    type(edit, "cd");
    EXPECT_EQ(textOf(edit), "abc");
    EXPECT_EQ(told().find("change7 full7"), 0u);
    SetWindowTextA(edit, "longer");
    EXPECT_EQ(textOf(edit), "longer") << "the limit is the hand's";
}

TEST_F(Controls, ATextFieldTellsOfItsTextAndItsFocus)
{
    const HWND line = add("EDIT", ES_AUTOHSCROLL, id, "&first");
    const HWND lines = add("EDIT", ES_MULTILINE | ES_AUTOVSCROLL, 8, "", 120);
    EXPECT_EQ(told(), "");
    EXPECT_EQ(textOf(line), "&first");
    SetWindowTextA(line, "<b>one</b>");
    SetWindowTextA(lines, "two\r\nthree");
    EXPECT_EQ(told(), "change7") << "of one line only, when a program sets it";
    EXPECT_EQ(textOf(line), "<b>one</b>");
    EXPECT_EQ(GetWindowTextLengthA(lines), 10);
    char part[4] = {};
    EXPECT_EQ(GetWindowTextA(lines, part, 4), 3);
    EXPECT_STREQ(part, "two");

    SetFocus(line);
    SendMessageA(line, EM_SETSEL, 1, 3);
    SetFocus(lines);
    EXPECT_EQ(told(), "focus7 blur7 focus8");
    EXPECT_EQ(SendMessageA(line, EM_GETSEL, 0, 0), MAKELONG(1, 3));
    EXPECT_EQ(SendMessageA(line, WM_GETDLGCODE, 0, 0), DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS);
    DestroyWindow(line);
    EXPECT_FALSE(IsWindow(line));
}

TEST_F(Controls, TheSelectionCountsLineEndsAsTwo)
{
    const HWND lines = add("EDIT", ES_MULTILINE | ES_AUTOVSCROLL, id, "one\r\ntwo");
    SendMessageA(lines, EM_SETSEL, 3, 5);
    DWORD start = 0;
    DWORD end = 0;
    SendMessageA(lines, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 3u);
    EXPECT_EQ(end, 5u);
    SendMessageA(lines, EM_REPLACESEL, FALSE, text("+"));
    EXPECT_EQ(textOf(lines), "one+two");
    EXPECT_EQ(told(), "change7");
    SendMessageA(lines, EM_SETSEL, 0, -1);
    EXPECT_EQ(SendMessageA(lines, EM_GETSEL, 0, 0), MAKELONG(0, 7));
    SendMessageA(lines, WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(SendMessageA(lines, EM_GETSEL, 0, 0), MAKELONG(7, 7));
}

TEST_F(Controls, TheMouseSelectsText)
{
    const HWND edit = add("EDIT", ES_AUTOHSCROLL, id, "a text");
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0, 8));
    EXPECT_EQ(GetCapture(), edit);
    SendMessageA(edit, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(110, 8));
    SendMessageA(edit, WM_LBUTTONUP, 0, MAKELPARAM(110, 8));
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(SendMessageA(edit, EM_GETSEL, 0, 0), MAKELONG(0, 6));
}

TEST_F(Controls, AFieldFollowsItsWindow)
{
    const HWND edit = add("EDIT", WS_BORDER);
    EnableWindow(edit, FALSE);
    EXPECT_FALSE(IsWindowEnabled(edit));
    EnableWindow(edit, TRUE);
    SetFocus(edit);
    ShowWindow(edit, SW_HIDE);
    EXPECT_NE(GetFocus(), edit);
    MoveWindow(edit, 30, 40, 90, 25, TRUE);
    ShowWindow(edit, SW_SHOW);
    serveMessages();
    RECT rect{};
    GetWindowRect(edit, &rect);
    MapWindowPoints(nullptr, top, reinterpret_cast<LPPOINT>(&rect), 2);
    EXPECT_EQ(rect.left, 30);
    EXPECT_EQ(rect.bottom, 65);
}

TEST_F(Controls, TheRowsOfAList)
{
    const HWND list = add("LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL);
    const auto ask = [&](UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(list, message, wParam, lParam);
    };
    EXPECT_EQ(ask(LB_ADDSTRING, 0, text("a")), 0);
    EXPECT_EQ(ask(LB_ADDSTRING, 0, text("c & d")), 1);
    EXPECT_EQ(ask(LB_GETCURSEL), LB_ERR);
    EXPECT_EQ(ask(LB_SETCURSEL, 1), 1);
    EXPECT_EQ(ask(LB_INSERTSTRING, 1, text("b")), 1);
    EXPECT_EQ(ask(LB_INSERTSTRING, 9, text("z")), LB_ERR);
    EXPECT_EQ(ask(LB_GETCURSEL), 2) << "the row stays selected that was";
    char buffer[10] = {};
    EXPECT_EQ(ask(LB_GETTEXTLEN, 2), 5);
    EXPECT_EQ(ask(LB_GETTEXT, 2, reinterpret_cast<LPARAM>(buffer)), 5);
    EXPECT_STREQ(buffer, "c & d");
    EXPECT_EQ(ask(LB_GETTEXT, 3, reinterpret_cast<LPARAM>(buffer)), LB_ERR);
    ask(LB_SETITEMDATA, 1, 77);
    EXPECT_EQ(ask(LB_DELETESTRING, 0), 2);
    EXPECT_EQ(ask(LB_GETITEMDATA, 0), 77);
    EXPECT_EQ(ask(LB_GETITEMDATA, 5), LB_ERR);
    EXPECT_EQ(ask(LB_SETCURSEL, static_cast<WPARAM>(-1)), LB_ERR);
    EXPECT_EQ(ask(LB_GETCURSEL), LB_ERR);

    for (int i = 0; i < 50; ++i)
        ask(LB_ADDSTRING, 0, text("more"));
    ask(LB_SETTOPINDEX, 20);
    EXPECT_EQ(ask(LB_GETTOPINDEX), 20);
    ask(LB_SETCURSEL, 5);
    EXPECT_EQ(ask(LB_GETTOPINDEX), 5) << "the selected row is brought into view";
    ask(LB_RESETCONTENT);
    EXPECT_EQ(ask(LB_GETCOUNT), 0);
    EXPECT_EQ(told(), "") << "what a program does is not told";
}

TEST_F(Controls, RowsThatTheirOwnerDraws)
{
    const HWND list = add("LISTBOX", LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT);
    EXPECT_EQ(measured, id);
    for (const LPARAM data : {11, 12, 13}) {
        const LRESULT row = SendMessageA(list, LB_ADDSTRING, 0, text("row"));
        SendMessageA(list, LB_SETITEMDATA, static_cast<WPARAM>(row), data);
    }
    SendMessageA(list, LB_SETCURSEL, 1, 0);
    serveMessages();
    drawn.clear();
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    ASSERT_EQ(drawn.size(), 3u);
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const DRAWITEMSTRUCT& row = drawn[i];
        EXPECT_EQ(row.CtlType, UINT(ODT_LISTBOX));
        EXPECT_EQ(row.CtlID, UINT(id));
        EXPECT_EQ(row.itemID, i);
        EXPECT_EQ(row.itemData, 11 + i);
        EXPECT_EQ(row.itemState & ODS_SELECTED, i == 1 ? UINT(ODS_SELECTED) : 0u);
        EXPECT_EQ(row.rcItem.top, static_cast<int>(i) * rowHeight);
        EXPECT_EQ(row.rcItem.bottom - row.rcItem.top, rowHeight);
        EXPECT_NE(row.hDC, nullptr);
    }
}

TEST_F(Controls, ChoosingARow)
{
    const HWND list = add("LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    for (const char* row : {"a", "b", "c"})
        SendMessageA(list, LB_ADDSTRING, 0, text(row));
    RECT second{};
    SendMessageA(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
    EXPECT_EQ(second.top, rowHeight);
    const LPARAM inside = MAKELPARAM(5, second.top + 3);
    EXPECT_EQ(SendMessageA(list, LB_ITEMFROMPOINT, 0, inside), MAKELONG(1, 0));
    EXPECT_EQ(SendMessageA(list, LB_ITEMFROMPOINT, 0, MAKELPARAM(5, 90)), MAKELONG(2, 1));

    MessageRecorder recorder;
    recorder.subclass(list, "l");
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, inside);
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 1);
    SendMessageA(list, WM_LBUTTONUP, 0, inside);
    EXPECT_EQ(told(), "select7");
    EXPECT_NE(recorder.take().find("l.LBUTTONDOWN"), std::string::npos);
    SendMessageA(list, WM_LBUTTONDBLCLK, MK_LBUTTON, inside);
    EXPECT_EQ(told(), "twice7");
    SendMessageA(list, WM_LBUTTONUP, 0, inside);
    told();
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(SendMessageA(list, LB_GETCURSEL, 0, 0), 2);
    EXPECT_EQ(told(), "select7");
}

TEST_F(Controls, AComboBox)
{
    const HWND combo = add("COMBOBOX", CBS_DROPDOWNLIST | WS_VSCROLL);
    const auto ask = [&](UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(combo, message, wParam, lParam);
    };
    RECT rect{};
    GetWindowRect(combo, &rect);
    EXPECT_LT(rect.bottom - rect.top, 50) << "the list is not part of it while it is closed";
    EXPECT_EQ(ask(CB_ADDSTRING, 0, text("<i>one</i>")), 0);
    EXPECT_EQ(ask(CB_GETCURSEL), CB_ERR);
    EXPECT_EQ(ask(CB_ADDSTRING, 0, text("two")), 1);
    EXPECT_EQ(ask(CB_SETCURSEL, 0), 0);
    EXPECT_EQ(textOf(combo), "<i>one</i>");
    EXPECT_EQ(told(), "");
    SetFocus(combo);
    ask(WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(ask(CB_GETCURSEL), 1);
    EXPECT_EQ(told(), "select7");
    char buffer[10] = {};
    EXPECT_EQ(ask(CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(buffer)), 3);
    EXPECT_STREQ(buffer, "two");
    EXPECT_EQ(ask(CB_GETLBTEXTLEN, 2), CB_ERR);
    EXPECT_EQ(ask(CB_SETCURSEL, 9), CB_ERR);
    ask(CB_RESETCONTENT);
    EXPECT_EQ(ask(CB_GETCOUNT), 0);
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
        {"EDIT", ES_AUTOHSCROLL, WM_CHAR, 'x'},
        {"EDIT", ES_MULTILINE, WM_CHAR, 'x'},
        {"LISTBOX", LBS_NOTIFY, WM_KEYDOWN, VK_DOWN},
        {"COMBOBOX", CBS_DROPDOWNLIST, WM_KEYDOWN, VK_DOWN},
    };
    for (const auto& one : cases) {
        const HWND control = add(one.windowClass, one.style);
        SendMessageA(control, LB_ADDSTRING, 0, text("row")); // each knows its own message only
        SendMessageA(control, CB_ADDSTRING, 0, text("row"));
        SetFocus(control);
        victim = control;
        SendMessageA(control, one.message, one.key, 1);
        EXPECT_FALSE(IsWindow(control)) << one.windowClass;
        serveMessages();
    }
}

TEST_F(Controls, RadioButtonsOfAGroupExcludeEachOther)
{
    for (const int one : {1, 2, 3, 4})
        add("BUTTON", BS_AUTORADIOBUTTON | (one % 3 == 1 ? WS_GROUP : 0), one, "r", one * 20);
    const auto checked = [&] {
        std::string all;
        for (const int one : {1, 2, 3, 4})
            all += SendDlgItemMessageA(top, one, BM_GETCHECK, 0, 0) == BST_CHECKED ? '1' : '0';
        return all;
    };
    for (const auto& [pressed, after] : {std::pair(1, "1000"), {4, "1001"}, {3, "0011"}, {3, "0011"}}) {
        SendDlgItemMessageA(top, pressed, BM_CLICK, 0, 0);
        EXPECT_EQ(checked(), after);
    }
}

TEST_F(Controls, TheKeyboardOfADialogWithFields)
{
    add("EDIT", WS_TABSTOP, 11);
    const HWND next = add("EDIT", WS_TABSTOP, 12, "some text", 40);
    SetFocus(GetDlgItem(top, 11));
    EXPECT_TRUE(pressInDialog(VK_TAB));
    EXPECT_EQ(GetFocus(), next);
    EXPECT_EQ(SendMessageA(next, EM_GETSEL, 0, 0), MAKELONG(0, 9)) << "ready to be typed over";
    told();
    pressInDialog(VK_RETURN);
    EXPECT_EQ(told(), "clicked1");
    pressInDialog(VK_ESCAPE);
    EXPECT_EQ(told(), "clicked2");
}

// Such a field gets every key, and tells its parent of those that it has no use for.
TEST_F(Controls, SeveralLinesInADialog)
{
    const struct
    {
        DWORD style;
        WPARAM key;
        const char* told;
        const char* text;
    } cases[] = {
        {0, VK_TAB, "next0", ""},
        {0, VK_ESCAPE, "close0", ""},
        {0, VK_RETURN, "", ""},
        {ES_WANTRETURN, VK_RETURN, "change7", "\r\n"},
    };
    for (const auto& one : cases) {
        const HWND edit = add("EDIT", WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL | one.style);
        SetFocus(edit);
        told();
        pressInDialog(one.key);
        serveMessages();
        EXPECT_EQ(told(), one.told) << one.key;
        EXPECT_EQ(textOf(edit), one.text);
        DestroyWindow(edit);
    }
}

// A dialog that waits is answered by hand, key after key.
class Dialogs : public Controls
{
protected:
    void SetUp() override
    {
        Controls::SetUp();
        SetForegroundWindow(top);
        s_top = top;
        SetFocus(top);
    }

    void answer(std::vector<int> keys)
    {
        constexpr UINT pause = 300;
        s_ownerWasEnabled = false;
        s_keys = std::move(keys);
        SetTimer(top, 1, pause, [](HWND, UINT, UINT_PTR, DWORD) {
            s_ownerWasEnabled |= IsWindowEnabled(s_top) != 0;
            const int key = s_keys.front();
            if (s_keys.size() > 1)
                s_keys.erase(s_keys.begin());
            pressKey(key);
            releaseKey(key);
        });
    }

    void expectOwnerBack()
    {
        KillTimer(top, 1);
        EXPECT_FALSE(s_ownerWasEnabled);
        EXPECT_TRUE(IsWindowEnabled(top));
        EXPECT_EQ(GetActiveWindow(), top);
    }

private:
    static inline HWND s_top;
    static inline std::vector<int> s_keys;
    static inline bool s_ownerWasEnabled;
};

TEST_F(Dialogs, MessageBoxesGiveTheButtonPressed)
{
    const struct
    {
        UINT type;
        std::vector<int> keys;
        int expected;
    } cases[] = {
        {MB_OK | MB_ICONINFORMATION, {VK_RETURN}, IDOK},
        {MB_OKCANCEL | MB_ICONWARNING, {VK_ESCAPE}, IDCANCEL},
        {MB_YESNO | MB_DEFBUTTON2 | MB_ICONQUESTION, {VK_RETURN}, IDNO},
        {MB_YESNOCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDCANCEL},
#ifndef _WIN32 // Wine takes Escape for a cancellation of these, other than Windows
        {MB_OK, {VK_ESCAPE}, IDOK},
        {MB_YESNO, {VK_ESCAPE, VK_RETURN}, IDYES},
#endif
    };
    for (const auto& one : cases) {
        answer(one.keys);
        EXPECT_EQ(MessageBoxA(top, "a < b & c", "Title", one.type), one.expected) << one.type;
        expectOwnerBack();
    }
}

TEST_F(Dialogs, ColorsAreChosenOrNot)
{
    COLORREF custom[16] = {RGB(1, 2, 3)};
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        CHOOSECOLORA dialog{};
        dialog.lStructSize = static_cast<DWORD>(sizeof dialog);
        dialog.hwndOwner = top;
        dialog.rgbResult = RGB(10, 200, 30);
        dialog.lpCustColors = custom;
        dialog.Flags = CC_RGBINIT;
        answer({key});
        EXPECT_EQ(ChooseColorA(&dialog), key == VK_RETURN);
        EXPECT_EQ(dialog.rgbResult, RGB(10, 200, 30));
        EXPECT_EQ(custom[0], RGB(1, 2, 3));
        EXPECT_EQ(CommDlgExtendedError(), 0u);
        expectOwnerBack();
    }
}

TEST_F(Dialogs, FilesAreChosenOrNot)
{
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        char path[MAX_PATH] = "no-such-file";
        OPENFILENAMEA dialog{};
        dialog.lStructSize = static_cast<DWORD>(sizeof dialog);
        dialog.hwndOwner = top;
        dialog.lpstrFilter = "Texts (*.txt)\0*.txt\0All files\0*.*\0";
        dialog.nFilterIndex = 1;
        dialog.lpstrFile = path;
        dialog.nMaxFile = MAX_PATH;
        dialog.lpstrDefExt = "txt";
        dialog.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
        answer({key});
        const bool chosen = GetSaveFileNameA(&dialog);
        EXPECT_EQ(chosen, key == VK_RETURN);
        expectOwnerBack();
        if (!chosen)
            continue;
        EXPECT_STREQ(path + dialog.nFileOffset, "no-such-file.txt");
        EXPECT_STREQ(path + dialog.nFileExtension, "txt");
        EXPECT_GT(dialog.nFileOffset, 1);
    }
}

}

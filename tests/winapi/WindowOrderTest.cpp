// The order in which windows hear of their life: creation, showing, placing, destruction.
#include "Hands.h"
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

class WindowOrder : public testing::Test
{
protected:
    void SetUp() override { movePointer(600, 600); } // out of the way of what appears

    MessageRecorder recorder;
};

TEST_F(WindowOrder, CreationOfHiddenWindows)
{
    const HWND top = recorder.create("t", WS_POPUP);
    EXPECT_EQ(recorder.take(), "t.NCCREATE t.NCCALCSIZE t.CREATE t.SIZE(300x200) t.MOVE(100,100)");
    recorder.create("c", WS_CHILD, top, 5);
    EXPECT_EQ(recorder.take(),
              "c.NCCREATE c.NCCALCSIZE c.CREATE c.SIZE(100x80) c.MOVE(10,20) t.PARENTNOTIFY(1)");
    recorder.create("v", WS_CHILD | WS_VISIBLE, top, 6);
    EXPECT_EQ(recorder.take(),
              "v.NCCREATE v.NCCALCSIZE v.CREATE v.SIZE(100x80) v.MOVE(10,20) t.PARENTNOTIFY(1) "
              "v.SHOWWINDOW(1)");
}

TEST_F(WindowOrder, CreationOfVisibleWindows)
{
    const HWND top = recorder.create("t", WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(recorder.take(),
              "t.NCCREATE t.NCCALCSIZE t.CREATE t.SIZE(300x200) t.MOVE(100,100) t.SHOWWINDOW(1) "
              "t.POSCHANGING t.ACTIVATEAPP(1) t.NCACTIVATE t.ACTIVATE(1) t.SETFOCUS(-) t.POSCHANGED");
    serveMessages();
    EXPECT_EQ(recorder.take(), "t.PAINT");
    recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
    EXPECT_EQ(recorder.take(),
              "c.NCCREATE c.NCCALCSIZE c.CREATE c.SIZE(100x80) c.MOVE(10,20) t.PARENTNOTIFY(1) "
              "c.SHOWWINDOW(1) c.POSCHANGING c.POSCHANGED");
}

TEST_F(WindowOrder, RefusedCreationLeavesNoWindow)
{
    const HWND top = recorder.createTop("t");
    recorder.refuseCreation();
    EXPECT_EQ(recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5), nullptr);
    EXPECT_EQ(recorder.take(), "c.NCCREATE c.NCCALCSIZE c.CREATE c.NCDESTROY");
    EXPECT_EQ(GetWindow(top, GW_CHILD), nullptr);
}

TEST_F(WindowOrder, ShowingAndHidingAChild)
{
    const HWND top = recorder.createTop("t");
    const HWND child = recorder.create("c", WS_CHILD, top, 5);
    recorder.clear();
    const struct
    {
        int command;
        const char* expected;
    } steps[] = {
        {SW_SHOW, "c.SHOWWINDOW(1) c.POSCHANGING c.POSCHANGED"},   {SW_SHOW, ""},
        {SW_HIDE, "c.SHOWWINDOW(0) c.POSCHANGING c.POSCHANGED"},   {SW_HIDE, ""},
        {SW_SHOWNA, "c.SHOWWINDOW(1) c.POSCHANGING c.POSCHANGED"},
    };
    for (const auto& [command, expected] : steps) {
        ShowWindow(child, command);
        EXPECT_EQ(recorder.take(), expected) << command;
    }
}

TEST_F(WindowOrder, Placing)
{
    const HWND top = recorder.createTop("t");
    const HWND child = recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
    recorder.create("d", WS_CHILD | WS_VISIBLE, top, 6);
    recorder.clear();
    const struct
    {
        int x, y, width, height;
        const char* expected;
    } moves[] = {
        {15, 25, 100, 80, "c.POSCHANGING c.POSCHANGED c.MOVE(15,25)"},
        {15, 25, 120, 90, "c.POSCHANGING c.NCCALCSIZE c.POSCHANGED c.SIZE(120x90)"},
        {15, 25, 120, 90, "c.POSCHANGING"},
        {5, 6, 70, 80, "c.POSCHANGING c.NCCALCSIZE c.POSCHANGED c.MOVE(5,6) c.SIZE(70x80)"},
        {5, 6, -5, 80, "c.POSCHANGING c.NCCALCSIZE c.POSCHANGED c.SIZE(0x80)"},
    };
    for (const auto& [x, y, width, height, expected] : moves) {
        MoveWindow(child, x, y, width, height, TRUE);
        EXPECT_EQ(recorder.take(), expected);
    }
    SetWindowPos(child, nullptr, 0, 0, 50, 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(recorder.take(), "c.POSCHANGING c.NCCALCSIZE c.CHILDACTIVATE c.POSCHANGED c.SIZE(50x50)");
    SetWindowPos(child, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(recorder.take(), "c.POSCHANGING c.POSCHANGED");
    EXPECT_EQ(recorder.nameOf(GetWindow(top, GW_CHILD)), "d");
    EXPECT_EQ(recorder.nameOf(GetWindow(child, GW_HWNDPREV)), "d");
}

TEST_F(WindowOrder, DestructionOfAChildMovesTheFocusToItsParent)
{
    const HWND top = recorder.createTop("t");
    const HWND child = recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
    SetFocus(child);
    recorder.clear();
    EXPECT_TRUE(DestroyWindow(child));
    EXPECT_EQ(recorder.take(), "t.PARENTNOTIFY(2) c.SHOWWINDOW(0) c.POSCHANGING c.POSCHANGED c.KILLFOCUS(t) "
                               "t.SETFOCUS(c) c.DESTROY c.NCDESTROY");
    EXPECT_FALSE(IsWindow(child));
    EXPECT_FALSE(DestroyWindow(child));
}

TEST_F(WindowOrder, DestructionOfATreeActivatesAnother)
{
    const HWND other = recorder.createTop("o");
    const HWND top = recorder.createTop("t");
    recorder.create("a", WS_CHILD | WS_VISIBLE, top, 5);
    recorder.create("aa", WS_CHILD | WS_VISIBLE, GetDlgItem(top, 5), 7);
    recorder.create("b", WS_CHILD | WS_VISIBLE, top, 6);
    SetFocus(GetDlgItem(top, 6));
    recorder.clear();
    DestroyWindow(top);
    EXPECT_EQ(recorder.take(),
              "t.POSCHANGING t.POSCHANGED t.NCACTIVATE t.ACTIVATE(0) o.NCACTIVATE o.ACTIVATE(1) "
              "b.KILLFOCUS(o) o.SETFOCUS(b) t.DESTROY a.DESTROY aa.DESTROY b.DESTROY aa.NCDESTROY "
              "a.NCDESTROY b.NCDESTROY t.NCDESTROY");
    EXPECT_EQ(GetActiveWindow(), other);
    EXPECT_EQ(GetFocus(), other);
}

TEST_F(WindowOrder, ClosingDestroysAndOwnedWindowsGoWithTheirOwner)
{
    const HWND owner = recorder.createTop("o");
    const HWND owned = recorder.create("p", WS_POPUP, owner);
    EXPECT_EQ(GetParent(owned), owner);
    EXPECT_EQ(GetWindow(owned, GW_OWNER), owner);
    SendMessageA(owner, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_FALSE(IsWindow(owned));
}

TEST_F(WindowOrder, NonsenseMakesNoWindow)
{
    const auto attempt = [](const char* name, DWORD style, HWND parent) {
        SetLastError(0);
        const HWND window =
            CreateWindowExA(0, name, "", style, 0, 0, 1, 1, parent, nullptr, nullptr, nullptr);
        return window ? 0 : GetLastError();
    };
    EXPECT_NE(attempt("no such class", WS_POPUP, nullptr), 0u);
    EXPECT_EQ(attempt("Static", WS_CHILD, nullptr), 1406u);
    EXPECT_EQ(attempt("Static", WS_CHILD, reinterpret_cast<HWND>(0x1234)), 1400u);
    const HWND gone = recorder.create("g", WS_POPUP);
    DestroyWindow(gone);
    EXPECT_EQ(attempt("Static", WS_CHILD, gone), 1400u);
}

TEST_F(WindowOrder, TreeQueries)
{
    const HWND top = recorder.createTop("t");
    const HWND a = recorder.create("a", WS_CHILD | WS_VISIBLE, top, 5);
    const HWND aa = recorder.create("aa", WS_CHILD | WS_VISIBLE, a, 7);
    const HWND b = recorder.create("b", WS_CHILD, top, 6);
    EXPECT_EQ(GetParent(aa), a);
    EXPECT_EQ(GetParent(top), nullptr);
    EXPECT_EQ(GetAncestor(aa, GA_ROOT), top);
    EXPECT_TRUE(IsChild(top, aa));
    EXPECT_FALSE(IsChild(aa, top));
    EXPECT_EQ(GetWindow(top, GW_CHILD), a);
    EXPECT_EQ(GetWindow(a, GW_HWNDNEXT), b);
    EXPECT_EQ(GetDlgItem(top, 7), nullptr);
    EXPECT_EQ(GetDlgCtrlID(b), 6);
    EXPECT_TRUE(IsWindowVisible(aa));
    ShowWindow(a, SW_HIDE);
    EXPECT_FALSE(IsWindowVisible(aa));

    std::string order;
    static MessageRecorder* names;
    names = &recorder;
    EnumChildWindows(
        top,
        [](HWND window, LPARAM text) -> BOOL {
            *reinterpret_cast<std::string*>(text) += names->nameOf(window) + " ";
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&order));
    EXPECT_EQ(order, "a aa b ");

    POINT place{3, 4};
    ClientToScreen(aa, &place);
    EXPECT_EQ(place.x, 100 + 10 + 10 + 3);
    EXPECT_EQ(place.y, 100 + 20 + 20 + 4);
    MapWindowPoints(nullptr, a, &place, 1);
    EXPECT_EQ(place.x, 13);
    EXPECT_EQ(place.y, 24);
    RECT rect{};
    GetWindowRect(aa, &rect);
    EXPECT_EQ(rect.left, 120);
    EXPECT_EQ(rect.bottom, 220);
}

TEST_F(WindowOrder, DataOfAWindow)
{
    const HWND top = recorder.createTop("t");
    SetWindowTextA(top, "hello");
    char text[16];
    EXPECT_EQ(GetWindowTextA(top, text, 4), 3);
    EXPECT_STREQ(text, "hel");
    EXPECT_EQ(GetWindowTextLengthA(top), 5);
    EXPECT_EQ(SetWindowLongPtrA(top, GWLP_USERDATA, 77), 0);
    EXPECT_EQ(GetWindowLongPtrA(top, GWLP_USERDATA), 77);
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(top, GWL_STYLE));
    EXPECT_EQ(style & (WS_POPUP | WS_VISIBLE), DWORD(WS_POPUP | WS_VISIBLE));
    SetWindowLongPtrA(top, GWL_STYLE, static_cast<LONG>(style | WS_GROUP));
    EXPECT_TRUE(GetWindowLongPtrA(top, GWL_STYLE) & WS_GROUP);
}

}

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

TEST_F(WindowOrder, Creation)
{
    const HWND hidden = recorder.create("h", WS_POPUP);
    EXPECT_EQ(recorder.take(), "h.NCCREATE h.NCCALCSIZE h.CREATE h.SIZE(300x200) h.MOVE(100,100)");
    const HWND inside = recorder.create("c", WS_CHILD | WS_VISIBLE, hidden, 5);
    EXPECT_EQ(recorder.take(),
              "c.NCCREATE c.NCCALCSIZE c.CREATE c.SIZE(100x80) c.MOVE(10,20) h.PARENTNOTIFY(1) "
              "c.SHOWWINDOW(1)");
    EXPECT_FALSE(IsWindowVisible(inside));
    DestroyWindow(hidden);
    recorder.clear();

    const HWND top = recorder.create("t", WS_POPUP | WS_VISIBLE);
    EXPECT_EQ(recorder.take(),
              "t.NCCREATE t.NCCALCSIZE t.CREATE t.SIZE(300x200) t.MOVE(100,100) t.SHOWWINDOW(1) "
              "t.POSCHANGING t.ACTIVATEAPP(1) t.NCACTIVATE t.ACTIVATE(1) t.SETFOCUS(-) t.POSCHANGED");
    EXPECT_EQ(recorder.served(), "t.PAINT");
    recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
    EXPECT_EQ(recorder.take(),
              "c.NCCREATE c.NCCALCSIZE c.CREATE c.SIZE(100x80) c.MOVE(10,20) t.PARENTNOTIFY(1) "
              "c.SHOWWINDOW(1) c.POSCHANGING c.POSCHANGED");
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
    EXPECT_EQ(recorder.nameOf(GetWindow(top, GW_CHILD)), "c") << "the first made is the topmost";
    EXPECT_EQ(recorder.nameOf(GetWindow(child, GW_HWNDNEXT)), "d");
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
    SendMessageA(owner, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_FALSE(IsWindow(owned));
}

}

// How a menu is shown, and what its owner hears.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

// A timer stands for the user's hands.
class MenuShowing : public testing::Test
{
protected:
    MenuShowing()
    {
        AppendMenuA(sub, MF_STRING, 20, "Inner");
        AppendMenuA(menu, MF_STRING, 10, "&One");
        AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(menu, MF_STRING | MF_GRAYED, 11, "Two");
        AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), "Sub");
        AppendMenuA(menu, MF_STRING, 12, "Three");
        recorder.only(
            {"ENTERMENULOOP", "INITMENU", "MENUSELECT", "UNINITMENUPOPUP", "EXITMENULOOP", "COMMAND"});
    }

    ~MenuShowing() override
    {
        DestroyMenu(menu);
        EXPECT_EQ(-1, GetMenuItemCount(sub)) << "it goes with its menu";
    }

    BOOL show(std::function<void()> hands)
    {
        s_hands = std::move(hands);
        SetTimer(owner, 1, 100, [](HWND window, UINT, UINT_PTR id, DWORD) {
            KillTimer(window, id);
            s_hands();
        });
        return TrackPopupMenu(menu, 0, 60, 60, 0, owner, nullptr);
    }

    void press(WPARAM key) const { PostMessageA(owner, WM_KEYDOWN, key, 0); }

    void cancel() const { SendMessageA(owner, WM_CANCELMODE, 0, 0); }

    HMENU menu = CreatePopupMenu();
    HMENU sub = CreatePopupMenu();
    MessageRecorder recorder;
    HWND owner = recorder.createTop("o");

private:
    static inline std::function<void()> s_hands;
};

TEST_F(MenuShowing, TheOwnerHearsOfTheMenuAndThenOfItsCommand)
{
    const struct
    {
        std::function<void()> hands;
        std::string selected;
        std::string command;
    } cases[] = {
        {[this] { press(VK_DOWN), press(VK_RETURN); }, "o.MENUSELECT(10) ", "o.CLICKED(10)"},
        {[this] { PostMessageA(owner, WM_CHAR, 'o', 0); }, "o.MENUSELECT(10) ", "o.CLICKED(10)"},
        {[this] { press(VK_UP), press(VK_RETURN); }, "o.MENUSELECT(12) ", "o.CLICKED(12)"},
        {[this] { press(VK_ESCAPE); }, "", ""},
        {[this] { cancel(); }, "", ""},
    };
    for (const auto& [hands, selected, command] : cases) {
        EXPECT_EQ(TRUE, show(hands));
        EXPECT_EQ(recorder.take(), "o.ENTERMENULOOP o.INITMENU o.INITMENUPOPUP " + selected +
                                       "o.UNINITMENUPOPUP o.MENUSELECT(none) o.EXITMENULOOP");
        EXPECT_EQ(recorder.served(), command);
    }
}

TEST_F(MenuShowing, AMenuClosesWithItsOwner)
{
    show([this] { DestroyWindow(owner); });
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_EQ(recorder.served().find("CLICKED"), std::string::npos);
    owner = recorder.createTop("o");
    EXPECT_EQ(TRUE, show([this] { cancel(); })) << "no menu is open";
}

TEST_F(MenuShowing, OnlyOneMenuIsShownAtATime)
{
    BOOL second = TRUE;
    show([&] {
        second = TrackPopupMenu(menu, 0, 0, 0, 0, owner, nullptr);
        cancel();
    });
    EXPECT_FALSE(second);
}

}

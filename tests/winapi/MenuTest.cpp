// How a menu is shown, and what its owner hears.
#include <windows.h>
#include <gtest/gtest.h>
#include <functional>
#include <map>
#include <string>

// A timer stands for the user's hands.
class MenuShowingTest : public testing::Test
{
protected:
    MenuShowingTest()
    {
        AppendMenuA(sub, MF_STRING, 20, "Inner");
        AppendMenuA(menu, MF_STRING, 10, "&One");
        AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(menu, MF_STRING | MF_GRAYED, 11, "Two");
        AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), "Sub");
        AppendMenuA(menu, MF_STRING, 12, "Three");

        s_test = this;
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = handle;
        windowClass.lpszClassName = "menu_owner";
        RegisterClassA(&windowClass);
        owner = createOwner();
    }

    ~MenuShowingTest() override
    {
        DestroyWindow(owner);
        s_test = nullptr;
        DestroyMenu(menu);
        EXPECT_EQ(-1, GetMenuItemCount(sub)) << "it goes with its menu";
    }

    static HWND createOwner()
    {
        const HWND owner = CreateWindowExA(0, "menu_owner", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 200,
                                           200, nullptr, nullptr, nullptr, nullptr);
        pump();
        return owner;
    }

    int show(std::function<void()> hands)
    {
        heard.clear();
        m_hands = std::move(hands);
        SetTimer(owner, 1, 100, nullptr);
        const int result = TrackPopupMenu(menu, 0, 60, 60, 0, owner, nullptr);
        heard += "returned ";
        pump();
        return result;
    }

    void press(WPARAM key) const { PostMessageA(owner, WM_KEYDOWN, key, 0); }

    void cancel() const { SendMessageA(owner, WM_CANCELMODE, 0, 0); }

    static void pump()
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
    }

    HMENU menu = CreatePopupMenu();
    HMENU sub = CreatePopupMenu();
    HWND owner = nullptr;
    std::string heard;

private:
    static LRESULT CALLBACK handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (s_test)
            s_test->hear(window, message, wParam);
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void hear(HWND window, UINT message, WPARAM wParam)
    {
        static const std::map<UINT, std::string> names = {
            {WM_ENTERMENULOOP, "enter"}, {WM_INITMENU, "init"},     {WM_INITMENUPOPUP, "initpopup"},
            {WM_MENUSELECT, "select"},   {WM_EXITMENULOOP, "exit"}, {WM_UNINITMENUPOPUP, "uninitpopup"},
            {WM_COMMAND, "command"}};
        if (message == WM_TIMER) {
            KillTimer(window, wParam);
            m_hands();
        }
        const auto name = names.find(message);
        if (name == names.end())
            return;
        heard += name->second;
        if (message == WM_MENUSELECT || message == WM_COMMAND)
            heard += HIWORD(wParam) == 0xFFFF ? "none" : std::to_string(LOWORD(wParam));
        heard += ' ';
    }

    static inline MenuShowingTest* s_test = nullptr;
    std::function<void()> m_hands;
};

TEST_F(MenuShowingTest, TheOwnerHearsOfTheMenuAndThenOfItsCommand)
{
    const struct
    {
        std::function<void()> hands;
        std::string selected;
        std::string command;
    } cases[] = {
        {[this] { press(VK_DOWN), press(VK_RETURN); }, "select10 ", "command10 "},
        {[this] { PostMessageA(owner, WM_CHAR, 'o', 0); }, "select10 ", "command10 "},
        {[this] { press(VK_UP), press(VK_RETURN); }, "select12 ", "command12 "},
        {[this] { press(VK_ESCAPE); }, "", ""},
        {[this] { cancel(); }, "", ""},
    };
    for (const auto& [hands, selected, command] : cases) {
        EXPECT_EQ(TRUE, show(hands));
        EXPECT_EQ("enter init initpopup " + selected + "uninitpopup selectnone exit returned " + command,
                  heard);
    }
}

TEST_F(MenuShowingTest, AMenuClosesWithItsOwner)
{
    show([this] { DestroyWindow(owner); });
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_EQ(heard.find("command"), std::string::npos);
    owner = createOwner();
    EXPECT_EQ(TRUE, show([this] { cancel(); })) << "no menu is open";
}

TEST_F(MenuShowingTest, OnlyOneMenuIsShownAtATime)
{
    BOOL second = TRUE;
    show([&] {
        second = TrackPopupMenu(menu, 0, 0, 0, 0, owner, nullptr);
        cancel();
    });
    EXPECT_FALSE(second);
}

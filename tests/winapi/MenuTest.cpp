// Menus: their items, their resource and their showing.
#include <windows.h>
#include <gtest/gtest.h>
#include "test_menu.h"
#include <functional>
#include <map>
#include <string>
#include <vector>

class MenuTest : public testing::Test
{
protected:
    MenuTest()
    {
        AppendMenuA(sub, MF_STRING, 20, "Inner");
        AppendMenuA(sub, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(menu, MF_STRING, 10, "&One");
        AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(menu, MF_STRING | MF_GRAYED, 11, "Two");
        AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), "Sub");
        AppendMenuA(menu, MF_STRING, 12, "Three");
    }

    ~MenuTest() override { DestroyMenu(menu); }

    static std::string text(HMENU menu, UINT position)
    {
        char buffer[64] = {};
        GetMenuStringA(menu, position, buffer, sizeof buffer, MF_BYPOSITION);
        return buffer;
    }

    static std::string texts(HMENU menu)
    {
        std::string all;
        for (int i = 0; i < GetMenuItemCount(menu); ++i)
            all += "[" + text(menu, static_cast<UINT>(i)) + "]";
        return all;
    }

    HMENU menu = CreatePopupMenu();
    HMENU sub = CreatePopupMenu();
};

TEST_F(MenuTest, ItemsTellWhatTheyAre)
{
    EXPECT_EQ(5, GetMenuItemCount(menu));
    EXPECT_EQ("[&One][][Two][Sub][Three]", texts(menu));
    EXPECT_EQ(10u, GetMenuItemID(menu, 0));
    EXPECT_EQ(0u, GetMenuItemID(menu, 1));
    EXPECT_EQ(static_cast<UINT>(-1), GetMenuItemID(menu, 3));
    EXPECT_EQ(sub, GetSubMenu(menu, 3));
    EXPECT_EQ(nullptr, GetSubMenu(menu, 0));
    EXPECT_EQ(static_cast<UINT>(MF_STRING), GetMenuState(menu, 0, MF_BYPOSITION));
    EXPECT_TRUE(GetMenuState(menu, 1, MF_BYPOSITION) & MF_SEPARATOR);
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), GetMenuState(menu, 11, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(2 << 8 | MF_POPUP), GetMenuState(menu, 3, MF_BYPOSITION));
    EXPECT_EQ(0u, GetMenuState(menu, 20, MF_BYCOMMAND));
    EXPECT_EQ(static_cast<UINT>(-1), GetMenuState(menu, 99, MF_BYCOMMAND));

    char buffer[] = "xxxxx";
    EXPECT_EQ(2, GetMenuStringA(menu, 12, buffer, 3, MF_BYCOMMAND));
    EXPECT_EQ("Th", std::string(buffer, 2));
    EXPECT_STREQ("xx", buffer + 3);
    EXPECT_EQ(5, GetMenuStringA(menu, 12, nullptr, 0, MF_BYCOMMAND));
}

TEST_F(MenuTest, StatesChangeAndTellWhatTheyWere)
{
    EXPECT_EQ(MF_GRAYED, EnableMenuItem(menu, 11, MF_ENABLED));
    EXPECT_EQ(MF_ENABLED, EnableMenuItem(menu, 11, MF_GRAYED));
    EXPECT_EQ(-1, EnableMenuItem(menu, 99, MF_GRAYED));
    EXPECT_EQ(0u, CheckMenuItem(menu, 10, MF_CHECKED));
    EXPECT_EQ(static_cast<DWORD>(MF_CHECKED), CheckMenuItem(menu, 10, MF_UNCHECKED));
    EXPECT_EQ(static_cast<DWORD>(-1), CheckMenuItem(menu, 99, MF_CHECKED));
}

TEST_F(MenuTest, ItemsComeAndGo)
{
    EXPECT_TRUE(InsertMenuA(menu, 0, MF_BYPOSITION, 30, "Zero"));
    EXPECT_TRUE(InsertMenuA(menu, 12, MF_BYCOMMAND, 31, "Before"));
    EXPECT_EQ("[Zero][&One][][Two][Sub][Before][Three]", texts(menu));
    EXPECT_TRUE(ModifyMenuA(menu, 31, MF_BYCOMMAND, 32, "Changed"));
    EXPECT_TRUE(RemoveMenu(menu, 30, MF_BYCOMMAND));
    EXPECT_FALSE(RemoveMenu(menu, 30, MF_BYCOMMAND));
    EXPECT_TRUE(RemoveMenu(menu, 1, MF_BYPOSITION));
    EXPECT_EQ("[&One][Two][Sub][Changed][Three]", texts(menu));
}

TEST_F(MenuTest, ARemovedSubmenuLivesOnAndADeletedOneDoesNot)
{
    EXPECT_TRUE(RemoveMenu(menu, 3, MF_BYPOSITION));
    ASSERT_TRUE(IsMenu(sub));
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), "Sub");
    EXPECT_TRUE(DeleteMenu(menu, 4, MF_BYPOSITION));
    EXPECT_FALSE(IsMenu(sub));

    sub = CreatePopupMenu();
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(sub), "Sub");
    EXPECT_TRUE(DestroyMenu(menu));
    EXPECT_FALSE(DestroyMenu(menu));
    EXPECT_FALSE(IsMenu(sub));
    EXPECT_EQ(-1, GetMenuItemCount(menu));
}

TEST_F(MenuTest, ComesFromTheResource)
{
    const HMENU bar = LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDR_TEST_MENU));
    ASSERT_NE(nullptr, bar);
    EXPECT_EQ("[Title]", texts(bar));
    const HMENU popup = GetSubMenu(bar, 0);
    EXPECT_EQ("[First...][][Second]", texts(popup));
    EXPECT_EQ(static_cast<UINT>(ID_TEST_FIRST), GetMenuItemID(popup, 0));
    EXPECT_TRUE(GetMenuState(popup, 1, MF_BYPOSITION) & MF_SEPARATOR);
    DestroyMenu(bar);
    EXPECT_EQ(nullptr, LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(999)));
    EXPECT_NE(nullptr, FindResourceA(nullptr, MAKEINTRESOURCEA(IDR_TEST_MENU), RT_MENU));
}

// Shows the menu; a timer stands for the user's hands.
class MenuShowingTest : public MenuTest
{
protected:
    MenuShowingTest()
    {
        s_test = this;
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = handle;
        windowClass.lpszClassName = "menu_owner";
        windowClass.hInstance = GetModuleHandleA(nullptr);
        RegisterClassA(&windowClass);
        owner = CreateWindowExA(0, "menu_owner", "", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20, 20, 200, 200,
                                nullptr, nullptr, windowClass.hInstance, nullptr);
        pump();
    }

    ~MenuShowingTest() override
    {
        DestroyWindow(owner);
        UnregisterClassA("menu_owner", GetModuleHandleA(nullptr));
        s_test = nullptr;
    }

    int show(UINT flags, std::function<void()> hands)
    {
        heard.clear();
        m_hands = std::move(hands);
        SetTimer(owner, 1, 100, nullptr);
        const int result = TrackPopupMenu(menu, flags, 60, 60, 0, owner, nullptr);
        heard += "returned ";
        pump();
        return result;
    }

    void press(WPARAM key) const { PostMessageA(owner, WM_KEYDOWN, key, 0); }

    static void pump()
    {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageA(&message);
    }

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
        UINT flags;
        std::function<void()> hands;
        int result;
        std::string selected;
        std::string command;
    } cases[] = {
        {0, [this] { press(VK_DOWN), press(VK_RETURN); }, TRUE, "select10 ", "command10 "},
        {0, [this] { PostMessageA(owner, WM_CHAR, 'o', 0); }, TRUE, "select10 ", "command10 "},
        {TPM_RETURNCMD, [this] { press(VK_UP), press(VK_RETURN); }, 12, "select12 ", ""},
        {TPM_RETURNCMD, [] { EndMenu(); }, 0, "", ""},
        {0, [this] { press(VK_ESCAPE); }, TRUE, "", ""},
        {0, [this] { SendMessageA(owner, WM_CANCELMODE, 0, 0); }, TRUE, "", ""},
    };
    for (const auto& [flags, hands, result, selected, command] : cases) {
        EXPECT_EQ(result, show(flags, hands));
        EXPECT_EQ("enter init initpopup " + selected + "uninitpopup selectnone exit returned " + command,
                  heard);
    }
}

TEST_F(MenuShowingTest, OnlyOneMenuIsShownAtATime)
{
    BOOL second = TRUE;
    DWORD error = 0;
    show(0, [&] {
        second = TrackPopupMenu(menu, 0, 0, 0, 0, owner, nullptr);
        error = GetLastError();
        EndMenu();
    });
    EXPECT_FALSE(second);
    EXPECT_EQ(static_cast<DWORD>(ERROR_POPUP_ALREADY_ACTIVE), error);
}

TEST_F(MenuShowingTest, FailsWithoutOwnerOrMenuOrItems)
{
    EXPECT_FALSE(TrackPopupMenu(menu, 0, 0, 0, 0, nullptr, nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE), GetLastError());
    EXPECT_FALSE(TrackPopupMenu(nullptr, 0, 0, 0, 0, owner, nullptr));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_MENU_HANDLE), GetLastError());
    const HMENU empty = CreatePopupMenu();
    EXPECT_FALSE(TrackPopupMenu(empty, 0, 0, 0, 0, owner, nullptr));
    DestroyMenu(empty);
}

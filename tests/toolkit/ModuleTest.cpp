#include "TestWnd.h"

#include <gtest/gtest.h>

TEST(WindowClasses, AreRegisteredOnceForTheirAttributes)
{
    const HCURSOR arrow = LoadCursorA(nullptr, IDC_ARROW);
    const auto white = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    const LPCTSTR name = AfxRegisterWndClass(0x843, nullptr, white);
    const CString copy = name;
    EXPECT_EQ(AfxRegisterWndClass(0x843, nullptr, white), name);
    EXPECT_NE(CString(AfxRegisterWndClass(0x843, arrow, white)), copy);
    EXPECT_NE(CString(AfxRegisterWndClass(0x842, nullptr, white)), copy);

    WNDCLASSA registered{};
    ASSERT_TRUE(GetClassInfoA(AfxGetInstanceHandle(), name, &registered));
    EXPECT_EQ(registered.style, 0x843U);
    EXPECT_EQ(registered.hbrBackground, white);
    EXPECT_EQ(registered.hCursor, nullptr);
}

TEST(Modules, ExtensionModulesJoinAndLeaveTheChain)
{
    AFX_MODULE_STATE& state = *AfxGetModuleState();
    const std::size_t before = state.m_libraries.size();
    const auto module = reinterpret_cast<HMODULE>(&state); // only a name here: it holds no resources
    AFX_EXTENSION_MODULE first;
    AFX_EXTENSION_MODULE second;
    ASSERT_TRUE(AfxInitExtensionModule(first, module));
    ASSERT_TRUE(AfxInitExtensionModule(second, GetModuleHandleA(nullptr)));
    new CDynLinkLibrary(first);
    auto* latest = new CDynLinkLibrary(second);
    ASSERT_EQ(state.m_libraries.size(), before + 2);
    EXPECT_EQ(state.m_libraries.front(), latest) << "the latest is asked first";

    AfxTermExtensionModule(first);
    EXPECT_EQ(state.m_libraries.size(), before + 1);
    AfxTermExtensionModule(first); // once is enough
    AfxTermExtensionModule(second);
    EXPECT_EQ(state.m_libraries.size(), before);
}

TEST(Modules, TheResourceHandleIsTheOneLastSet)
{
    const HINSTANCE own = AfxGetResourceHandle();
    const HINSTANCE other = GetModuleHandleA(nullptr);
    AfxSetResourceHandle(other);
    EXPECT_EQ(AfxGetModuleState()->m_hCurrentResourceHandle, other);
    EXPECT_EQ(AfxFindResourceHandle("no such resource", RT_MENU), other);
    AfxSetResourceHandle(own);
}

TEST(Menus, OwnTheirHandleAndReportAMissingResource)
{
    CMenu menu;
    EXPECT_FALSE(menu.LoadMenu(65000));
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_FALSE(menu.CreatePopupMenu()) << "it has a menu already";
    CMenu submenu;
    ASSERT_TRUE(submenu.CreatePopupMenu());
    const HMENU child = submenu.Detach();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(child), "more");
    menu.AppendMenu(MF_STRING, 40, "item");
    EXPECT_EQ(menu.GetSubMenu(0)->m_hMenu, child);
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
    EXPECT_EQ(CMenu::FromHandle(menu), &menu);
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(IsMenu(child)) << "goes with the menu that holds it";
    EXPECT_FALSE(menu.DestroyMenu());
}

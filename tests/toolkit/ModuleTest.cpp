// The chain of extension modules.
#include "TestWnd.h"

#include <gtest/gtest.h>

TEST(Modules, ExtensionModulesJoinAndLeaveTheChain)
{
    AFX_MODULE_STATE& state = *AfxGetModuleState();
    const std::size_t before = state.m_vLibraries.size();
    const auto module = reinterpret_cast<HMODULE>(&state); // only a name here: it holds no resources
    AFX_EXTENSION_MODULE first;
    AFX_EXTENSION_MODULE second;
    ASSERT_TRUE(AfxInitExtensionModule(first, module));
    ASSERT_TRUE(AfxInitExtensionModule(second, GetModuleHandleA(nullptr)));
    new CDynLinkLibrary(first);
    new CDynLinkLibrary(second);
    ASSERT_EQ(state.m_vLibraries.size(), before + 2);
    EXPECT_EQ(state.m_vLibraries.front()->m_hModule, second.hModule) << "the latest is asked first";

    AfxTermExtensionModule(first);
    EXPECT_EQ(state.m_vLibraries.size(), before + 1);
    AfxTermExtensionModule(first); // once is enough
    AfxTermExtensionModule(second);
    EXPECT_EQ(state.m_vLibraries.size(), before);
}

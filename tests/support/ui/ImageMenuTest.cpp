// Loading the options menu.
#include <ImageMenu.h>

#include <resource.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

// The number and the text of each item; 0 for a separator.
constexpr char kItems[] =
    "42030 Copy Date (Long Form)\n42031 Copy Date (Short Form)\n0 \n42050 Print...\n"
    "42049 Generate Web Page...\n0 \n42032 Show Current Month\n42034 Show Current Year\n"
    "42046 Show Previous Month\n42043 Show Next Month\n42048 Show Previous Year\n42045 Show Next Year\n"
    "42033 Show Current Quarter\n42047 Show Previous Quarter\n42044 Show Next Quarter\n"
    "42042 Show Last Week\n42035 Show Last Two Weeks\n42036 Show Last Three Weeks\n"
    "42037 Show Last Four Weeks\n42038 Show Last Five Weeks\n42039 Show Last Six Weeks\n"
    "42040 Show Last Seven Weeks\n42041 Show Last Eight Weeks\n";

class ImageMenuTest : public testing::Test
{
protected:
    std::unique_ptr<CImageMenu> Load(UINT nResource)
    {
        CImageMenu loader;
        return std::unique_ptr<CImageMenu>(loader.LoadFilteredPopupMenu(nResource, &target));
    }
    static std::string TextOf(HMENU hMenu, int nIndex)
    {
        char szText[100] = "";
        ::GetMenuStringA(hMenu, static_cast<UINT>(nIndex), szText, sizeof szText, MF_BYPOSITION);
        return szText;
    }

    CWnd target;
};

TEST_F(ImageMenuTest, HoldsTheItemsInTheirOrder)
{
    auto pMenu = Load(133);
    ASSERT_TRUE(pMenu);
    const HMENU hMenu = pMenu->m_hMenu;
    std::string items;
    for (int i = 0; i < ::GetMenuItemCount(hMenu); ++i) {
        const UINT nState = ::GetMenuState(hMenu, static_cast<UINT>(i), MF_BYPOSITION);
        EXPECT_EQ((nState & MF_SEPARATOR) != 0, ::GetMenuItemID(hMenu, i) == 0);
        items += std::to_string(::GetMenuItemID(hMenu, i)) + ' ' + TextOf(hMenu, i) + '\n';
    }
    EXPECT_EQ(items, kItems);
    pMenu.reset();
    EXPECT_EQ(::GetMenuItemCount(hMenu), -1) << "it goes with its object";
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(133));
    EXPECT_EQ(::GetMenuItemCount(bar.m_hMenu), 1);
    EXPECT_EQ(TextOf(bar.m_hMenu, 0), "_OPTIONS_");
}

TEST_F(ImageMenuTest, FailuresAreTold)
{
    EXPECT_FALSE(Load(134));
    CImageMenu loader;
    EXPECT_EQ(loader.LoadFilteredPopupMenu(IDR_OPTIONS_MENU, nullptr), nullptr);
    EXPECT_EQ(loader.TrackPopupMenu(0, 0, 0, &target, nullptr), 0); // no menu
    EXPECT_EQ(Load(IDR_OPTIONS_MENU)->TrackPopupMenu(0, 0, 0, nullptr, nullptr), 0);
}

}

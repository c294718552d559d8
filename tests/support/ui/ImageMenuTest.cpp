// Loading and updating the options menu.
#include <ImageMenu.h>

#include <resource.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

// A target that enables one item, disables another and counts how often it was asked.
class MenuTarget : public CWnd
{
public:
    MenuTarget() { CreateEx(0, AfxRegisterWndClass(0), "target", WS_POPUP, CRect(0, 0, 90, 90), nullptr, 0); }
    ~MenuTarget() override { DestroyWindow(); }

    int m_nAsked = 0;

protected:
    afx_msg void OnUpdateLong(CCmdUI* pCmdUI) { Answer(pCmdUI, FALSE); }
    afx_msg void OnUpdateShort(CCmdUI* pCmdUI) { Answer(pCmdUI, TRUE); }
    DECLARE_MESSAGE_MAP()

private:
    void Answer(CCmdUI* pCmdUI, BOOL bEnable)
    {
        ++m_nAsked;
        pCmdUI->Enable(bEnable);
    }
};

BEGIN_MESSAGE_MAP(MenuTarget, CWnd)
    ON_UPDATE_COMMAND_UI(ID_OPTIONS_COPYDATELONGFORM, &MenuTarget::OnUpdateLong)
    ON_UPDATE_COMMAND_UI(ID_OPTIONS_COPYDATESHORTFORM, &MenuTarget::OnUpdateShort)
END_MESSAGE_MAP()

constexpr UINT kSeparator = 0;

const std::pair<UINT, const char*> kItems[] = {{42030, "Copy Date (Long Form)"},
                                               {42031, "Copy Date (Short Form)"},
                                               {kSeparator, ""},
                                               {42050, "Print..."},
                                               {42049, "Generate Web Page..."},
                                               {kSeparator, ""},
                                               {42032, "Show Current Month"},
                                               {42034, "Show Current Year"},
                                               {42046, "Show Previous Month"},
                                               {42043, "Show Next Month"},
                                               {42048, "Show Previous Year"},
                                               {42045, "Show Next Year"},
                                               {42033, "Show Current Quarter"},
                                               {42047, "Show Previous Quarter"},
                                               {42044, "Show Next Quarter"},
                                               {42042, "Show Last Week"},
                                               {42035, "Show Last Two Weeks"},
                                               {42036, "Show Last Three Weeks"},
                                               {42037, "Show Last Four Weeks"},
                                               {42038, "Show Last Five Weeks"},
                                               {42039, "Show Last Six Weeks"},
                                               {42040, "Show Last Seven Weeks"},
                                               {42041, "Show Last Eight Weeks"}};

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

    MenuTarget target;
};

TEST_F(ImageMenuTest, HoldsTheItemsInTheirOrder)
{
    const auto pMenu = Load(133);
    ASSERT_TRUE(pMenu);
    const HMENU hMenu = pMenu->m_hMenu;
    ASSERT_EQ(::GetMenuItemCount(hMenu), static_cast<int>(std::size(kItems)));
    for (int i = 0; i < static_cast<int>(std::size(kItems)); ++i) {
        const auto& [nId, pszText] = kItems[i];
        EXPECT_EQ(::GetMenuItemID(hMenu, i), nId);
        EXPECT_EQ(TextOf(hMenu, i), pszText);
        const UINT nState = ::GetMenuState(hMenu, static_cast<UINT>(i), MF_BYPOSITION);
        EXPECT_EQ((nState & MF_SEPARATOR) != 0, nId == kSeparator);
    }
    CMenu bar;
    ASSERT_TRUE(bar.LoadMenu(133));
    EXPECT_EQ(::GetMenuItemCount(bar.m_hMenu), 1);
    EXPECT_EQ(TextOf(bar.m_hMenu, 0), "_OPTIONS_");
}

TEST_F(ImageMenuTest, TargetSetsEachItemThatItHasAHandlerFor)
{
    auto pMenu = Load(IDR_OPTIONS_MENU);
    ASSERT_TRUE(pMenu);
    EXPECT_EQ(target.m_nAsked, 2);
    const auto IsGrey = [&](UINT nId) {
        return (::GetMenuState(pMenu->m_hMenu, nId, MF_BYCOMMAND) & MF_GRAYED) != 0;
    };
    EXPECT_TRUE(IsGrey(ID_OPTIONS_COPYDATELONGFORM));
    EXPECT_FALSE(IsGrey(ID_OPTIONS_COPYDATESHORTFORM));
    EXPECT_FALSE(IsGrey(ID_OPTIONS_PRINT));
    const HMENU hMenu = pMenu->m_hMenu;
    pMenu.reset();
    EXPECT_EQ(::GetMenuItemCount(hMenu), -1);
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

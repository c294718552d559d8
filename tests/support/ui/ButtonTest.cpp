// The look of the buttons, and what they do.
#include "Canvas.h"

#include <DownArrowButton.h>
#include <ZEBButton.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr COLORREF kNormal = RGB(250, 250, 250);
constexpr COLORREF kHot = RGB(200, 220, 255);
constexpr COLORREF kPressed = RGB(180, 180, 255);
constexpr COLORREF kDisabled = RGB(230, 230, 230);
constexpr COLORREF kBorder = RGB(90, 90, 90);

template <class Button>
class OpenButton : public Button
{
public:
    using Button::AdjustForIcon;
    using Button::DrawItem;
    using Button::GetHaveFocus;
    using Button::IsChecked;
    using Button::SetButtonStyle;
};

class CommandFrame : public CWnd
{
public:
    CommandFrame()
    {
        CreateEx(0, AfxRegisterWndClass(0), "frame", WS_POPUP | WS_VISIBLE, CRect(50, 50, 250, 150), nullptr,
                 0);
    }
    ~CommandFrame() override { DestroyWindow(); }

    std::vector<WPARAM> m_commands;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_COMMAND)
            m_commands.push_back(wParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

template <class Button>
class ButtonTestBase : public testing::Test
{
protected:
    static constexpr int kWidth = 80;
    static constexpr int kHeight = 25;

    void Create(const char* pszCaption)
    {
        ASSERT_TRUE(button.Create(pszCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                                  CRect(0, 0, kWidth, kHeight), &frame, 77));
        button.SetShadeProps(ShadeProps({ShadeProps::Face{kNormal, kNormal, kBorder},
                                         {kHot, kHot, kBorder},
                                         {kPressed, kPressed, kBorder},
                                         {kDisabled, kDisabled, kBorder}}));
    }

    Canvas& Draw(UINT nState)
    {
        canvas.FillSolidRect(canvas.GetRect(), RGB(255, 0, 255));
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.CtlID = 77;
        item.itemAction = ODA_DRAWENTIRE;
        item.itemState = nState;
        item.hwndItem = button.m_hWnd;
        item.hDC = canvas.m_hDC;
        item.rcItem = canvas.GetRect();
        button.DrawItem(&item);
        return canvas;
    }

    // Where the content stands out from the face, inside the border.
    CRect FindContent(UINT nState)
    {
        Draw(nState);
        CRect rcInside = canvas.GetRect();
        rcInside.DeflateRect(1, 1);
        const COLORREF crFace = canvas.GetPixel(1, 1);
        return canvas.FindInk(rcInside, [=](COLORREF cr) { return cr != crFace; });
    }

    int FindDarkest(const CRect& rect)
    {
        int nDarkest = 255;
        canvas.FindInk(rect, [&](COLORREF cr) {
            nDarkest = std::min<int>(nDarkest, GetGValue(cr));
            return false;
        });
        return nDarkest;
    }

    CommandFrame frame;
    OpenButton<Button> button;
    Canvas canvas{kWidth, kHeight};
};

using ButtonTest = ButtonTestBase<CZEBButton>;
using DownArrowButtonTest = ButtonTestBase<CDownArrowButton>;

TEST_F(ButtonTest, FaceShowsTheState)
{
    Create("");
    const struct
    {
        UINT nState;
        COLORREF crFace;
    } cases[] = {{0, kNormal},
                 {ODS_SELECTED, kPressed},
                 {ODS_DISABLED, kDisabled},
                 {ODS_SELECTED | ODS_DISABLED, kDisabled}};
    for (const auto& [nState, crFace] : cases) {
        Draw(nState);
        EXPECT_EQ(canvas.GetPixel(1, 1), crFace) << nState;
        EXPECT_EQ(canvas.GetPixel(0, 0), kBorder) << nState;
        EXPECT_EQ(canvas.GetPixel(kWidth - 1, kHeight - 1), kBorder) << nState;
    }
    button.DrawItem(nullptr);
    button.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    Draw(0);
    EXPECT_EQ(canvas.GetPixel(1, 1), kHot);
    button.SendMessage(WM_MOUSELEAVE);
    Draw(0);
    EXPECT_EQ(canvas.GetPixel(1, 1), kNormal);
}

TEST_F(ButtonTest, CaptionIsCentredAndMovesWhenPressed)
{
    Create("Clear");
    const CRect rcNormal = FindContent(0);
    const CPoint ptMiddle = CRect(0, 0, kWidth, kHeight).CenterPoint();
    EXPECT_NEAR(rcNormal.CenterPoint().x, ptMiddle.x, 1);
    EXPECT_NEAR(rcNormal.CenterPoint().y, ptMiddle.y, 2);
    CRect rcMoved(rcNormal);
    rcMoved.OffsetRect(1, 1);
    EXPECT_EQ(FindContent(ODS_SELECTED), rcMoved);

    button.SetWindowText("nnn");
    const CRect rcPlain = FindContent(0);
    button.SetWindowText("&nnn"); // underlines its mnemonic
    const CRect rcMarked = FindContent(0);
    EXPECT_GT(rcMarked.bottom, rcPlain.bottom);
    EXPECT_EQ(rcMarked.CenterPoint().x, rcPlain.CenterPoint().x);
}

TEST_F(ButtonTest, ALongCaptionBeginsAtTheLeftAndEndsInDots)
{
    Create("Im Dezember 2026");
    const CRect rcLong = FindContent(0);
    EXPECT_LE(rcLong.left, 5);
    EXPECT_LE(rcLong.right, kWidth - 2);
    button.SetWindowText("Im Dezember 2026 oder 2027"); // the same but for the part that is left out
    EXPECT_EQ(FindContent(0), rcLong);
    CString strCaption;
    button.GetWindowText(strCaption);
    EXPECT_STREQ(strCaption, "Im Dezember 2026 oder 2027");
    EXPECT_GT(rcLong.right, kWidth - 20);
}

// The system's text is dark here, so a dark shading stands for the light one of a dark theme.
TEST_F(ButtonTest, FaceAndTextFollowTheSystemWhereTheShadingHidesTheText)
{
    Create("Clear");
    for (const COLORREF crDark : {RGB(0, 0, 0), RGB(0x50, 0x50, 0x50)}) {
        const ShadeProps::Face light{kNormal, kNormal, kBorder};
        button.SetShadeProps(ShadeProps({light, light, ShadeProps::Face{kPressed, crDark, kBorder}, light}));
        for (const UINT nState : {0u, static_cast<UINT>(ODS_SELECTED), static_cast<UINT>(ODS_DISABLED)}) {
            Draw(nState);
            EXPECT_EQ(canvas.GetPixel(1, 1), ::GetSysColor(COLOR_BTNFACE)) << nState;
            EXPECT_NE(canvas.GetPixel(0, 0), kBorder) << nState;
        }
        EXPECT_FALSE(FindContent(0).IsRectEmpty());
    }
}

TEST_F(ButtonTest, DisabledCaptionIsLightAndGreyUnlessItIsToStay)
{
    Create("Month");
    button.SetFont("Arial", 16, 700, 0, 0);
    const CRect rcEnabled = FindContent(0);
    const int nEnabled = FindDarkest(rcEnabled);
    const CRect rcDisabled = FindContent(ODS_DISABLED);
    EXPECT_LT(rcDisabled.Width(), rcEnabled.Width());
    EXPECT_GT(FindDarkest(rcDisabled), nEnabled + 50);

    button.SetRegularFontWhenDisabled(true, false);
    const CRect rcRegularFont = FindContent(ODS_DISABLED);
    EXPECT_EQ(rcRegularFont.Width(), rcEnabled.Width());
    EXPECT_GT(FindDarkest(rcRegularFont), nEnabled + 50);

    button.SetRegularFontWhenDisabled(true, true);
    EXPECT_LE(FindDarkest(FindContent(ODS_DISABLED)), nEnabled + 10);
}

TEST_F(ButtonTest, FontFollowsSetFont)
{
    Create("Month");
    const auto FindContentIn = [this](long nSize, BYTE nUnderline) {
        button.SetFont("Arial", nSize, 400, 0, nUnderline);
        return FindContent(0);
    };
    const CRect rcSmall = FindContentIn(12, 0);
    EXPECT_GT(FindContentIn(20, 0).Width(), rcSmall.Width() * 5 / 4);
    EXPECT_GT(FindContentIn(12, 1).bottom, rcSmall.bottom);
}

TEST_F(ButtonTest, IconStandsWhereItWasPut)
{
    Create("");
    const struct
    {
        UINT nHorz;
        UINT nVert;
        CPoint ptIcon;
    } cases[] = {
        {BS_LEFT, BS_TOP, {2, 2}}, {BS_CENTER, BS_VCENTER, {37, 8}}, {BS_RIGHT, BS_BOTTOM, {73, 14}}};
    for (const auto& [nHorz, nVert, ptIcon] : cases) {
        button.SetIcon(ZEBIcon::IconNextMonth, nHorz, nVert, false);
        EXPECT_EQ(FindContent(0), CRect(ptIcon, ZEBIcon::GetSize(ZEBIcon::IconNextMonth)));
    }
    button.m_bIconOnly = true;
    EXPECT_EQ(FindContent(0).CenterPoint(), CPoint(39, 12));
    EXPECT_GT(FindDarkest(FindContent(ODS_DISABLED)), FindDarkest(FindContent(0)) + 50);
}

TEST_F(ButtonTest, IconAndCaptionShareTheFace)
{
    Create("Clear");
    const CRect rcAlone = FindContent(0);
    button.SetIcon(ZEBIcon::IconPreviousYear, BS_LEFT, BS_VCENTER, true);
    CRect rcContent(2, 2, 78, 23);
    CPoint ptIcon;
    button.AdjustForIcon(rcContent, ptIcon);
    EXPECT_EQ(rcContent.left, 2 + 11 + 3);
    EXPECT_EQ(rcContent.right, 78);
    const CRect rcBoth = FindContent(0);
    EXPECT_EQ(rcBoth.left, 2);
    EXPECT_NEAR(rcBoth.right, rcAlone.right + 7, 1);
}

TEST_F(ButtonTest, FocusIsFramedUnlessHidden)
{
    Create("");
    EXPECT_EQ(FindContent(ODS_FOCUS), CRect(3, 3, kWidth - 3, kHeight - 3));
    EXPECT_TRUE(FindContent(ODS_FOCUS | ODS_NOFOCUSRECT).IsRectEmpty());
}

TEST_F(ButtonTest, StaysOwnerDrawnAndKnowsItsFocus)
{
    EXPECT_FALSE(button.GetHaveFocus());
    Create("");
    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(::GetWindowLongA(button, GWL_STYLE) & BS_TYPEMASK, BS_OWNERDRAW);
    EXPECT_FALSE(button.IsChecked());
    frame.SetFocus();
    button.SetFocus();
    EXPECT_TRUE(button.GetHaveFocus());
    frame.SetFocus();
    EXPECT_FALSE(button.GetHaveFocus());
}

TEST_F(ButtonTest, EveryClickOfAFastPairCounts)
{
    Create("");
    for (const UINT nPress : {UINT(WM_LBUTTONDOWN), UINT(WM_LBUTTONDBLCLK)}) {
        button.SendMessage(nPress, MK_LBUTTON, MAKELPARAM(5, 5));
        button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    EXPECT_EQ(frame.m_commands, std::vector<WPARAM>(2, MAKEWPARAM(77, BN_CLICKED)));
}

TEST_F(DownArrowButtonTest, KeepsAStripForItsArrow)
{
    Create("Options");
    const int nStrip = ::GetSystemMetrics(SM_CXVSCROLL);
    CRect rect(2, 2, 78, 23);
    CPoint ptIcon;
    button.AdjustForIcon(rect, ptIcon);
    EXPECT_EQ(rect, CRect(2, 2, 78 - nStrip, 23));
    EXPECT_EQ(ptIcon, CPoint(78 - nStrip - 1, 21 / 2 - ::GetSystemMetrics(SM_CYHSCROLL) / 2 + 1));

    const CRect rcStrip(kWidth - nStrip, 1, kWidth - 1, kHeight - 1);
    for (const UINT nState : {0u, static_cast<UINT>(ODS_DISABLED)}) {
        Draw(nState);
        const COLORREF crArrow = ::GetSysColor(nState ? COLOR_GRAYTEXT : COLOR_BTNTEXT);
        const CRect rcArrow = canvas.FindInk(rcStrip, [=](COLORREF cr) { return cr == crArrow; });
        EXPECT_FALSE(rcArrow.IsRectEmpty()) << nState;
        const int nMiddle = kWidth - nStrip / 2;
        EXPECT_NEAR(rcArrow.CenterPoint().x, nMiddle, 1) << nState;
    }
    button.DrawItem(nullptr);
    EXPECT_STREQ(button.GetRuntimeClass()->m_lpszClassName, "CDownArrowButton");
    EXPECT_TRUE(button.IsKindOf(RUNTIME_CLASS(CZEBButton)));
}

}

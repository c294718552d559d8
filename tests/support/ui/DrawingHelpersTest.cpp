// Shading, icons, the drawing buffer, and the description of a font.
#include "Canvas.h"

#include <BkgStyle.h>
#include <GraphicsUtils.h>
#include <MemDC.h>
#include <ZEBIcon.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

constexpr COLORREF kInk = RGB(0, 0, 0);
constexpr COLORREF kPaper = RGB(255, 255, 255);

bool IsDark(COLORREF cr)
{
    return GetGValue(cr) < 128;
}

int CountDark(const Canvas& canvas, int x)
{
    int nCount = 0;
    for (int y = 0; y < canvas.GetRect().bottom; ++y)
        nCount += IsDark(canvas.GetPixel(x, y));
    return nCount;
}

TEST(IconTest, ArrowsAreCentredAndPointTheRightWay)
{
    struct Case
    {
        ZEBIcon::ButtonIcon eIcon;
        bool bLeft;
        int nWidth;
    };
    for (const auto& [eIcon, bLeft, nWidth] :
         {Case{ZEBIcon::IconPreviousMonth, true, 5}, Case{ZEBIcon::IconNextMonth, false, 5},
          Case{ZEBIcon::IconPreviousYear, true, 11}, Case{ZEBIcon::IconNextYear, false, 11}}) {
        SCOPED_TRACE(static_cast<int>(eIcon));
        Canvas canvas(25, 23);
        ZEBIcon::Draw(&canvas, eIcon, canvas.GetRect(), kInk);

        const CRect rcInk = canvas.FindInk(canvas.GetRect(), IsDark);
        EXPECT_EQ(rcInk.Width(), nWidth);
        EXPECT_EQ(rcInk.left, (25 - nWidth) / 2);
        EXPECT_EQ(rcInk.CenterPoint().y, 11);
        EXPECT_EQ(rcInk.top + rcInk.bottom, 23);
        const int nLeft = CountDark(canvas, rcInk.left);
        const int nRight = CountDark(canvas, rcInk.right - 1);
        EXPECT_EQ(bLeft, nLeft < nRight);
        EXPECT_EQ(std::min(nLeft, nRight), 1);
        EXPECT_EQ(std::max(nLeft, nRight), 9);
    }
}

TEST(IconTest, ComboArrowPointsDownInTheMiddleOfItsStrip)
{
    Canvas canvas(60, 25);
    const CRect rcStrip(43, 0, 60, 25);
    ZEBIcon::DrawComboArrow(&canvas, rcStrip, RGB(0, 0, 200));

    const CRect rcInk = canvas.FindInk(canvas.GetRect(), [](COLORREF cr) { return GetRValue(cr) < 128; });
    EXPECT_EQ(rcInk, CRect(48, 10, 55, 14));
    EXPECT_EQ(canvas.GetPixel(51, 10), RGB(0, 0, 200));
    EXPECT_EQ(canvas.GetPixel(51, 13), RGB(0, 0, 200));
    EXPECT_EQ(canvas.GetPixel(48, 13), kPaper);
}

TEST(IconTest, NothingIsDrawnForAnUnknownIconOrNoContext)
{
    Canvas canvas(25, 23);
    ZEBIcon::Draw(&canvas, static_cast<ZEBIcon::ButtonIcon>(6), canvas.GetRect(), kInk);
    ZEBIcon::Draw(nullptr, ZEBIcon::IconNextMonth, canvas.GetRect(), kInk);
    ZEBIcon::DrawComboArrow(nullptr, canvas.GetRect(), kInk);
    EXPECT_TRUE(canvas.FindInk().IsRectEmpty());
}

TEST(ShadePropsTest, FaceRunsFromTopToBottomInsideItsBorder)
{
    const ShadeProps::Face face = {RGB(0, 100, 200), RGB(200, 100, 0), RGB(1, 2, 3)};
    const ShadeProps props({face, face, face, {kPaper, kPaper, kInk}});
    Canvas canvas(10, 23);
    props.Draw(&canvas, CRect(0, 0, 10, 23), ShadeProps::StateNormal);

    EXPECT_EQ(canvas.GetPixel(0, 5), face.m_crBorder);
    EXPECT_EQ(canvas.GetPixel(9, 22), face.m_crBorder);
    EXPECT_EQ(canvas.GetPixel(5, 11), RGB(100, 100, 100));
    EXPECT_LT(GetRValue(canvas.GetPixel(5, 1)), GetRValue(canvas.GetPixel(5, 21)));
    EXPECT_GT(GetBValue(canvas.GetPixel(5, 1)), GetBValue(canvas.GetPixel(5, 21)));

    props.Draw(&canvas, CRect(0, 0, 10, 23), ShadeProps::StateDisabled);
    EXPECT_EQ(canvas.GetPixel(5, 11), kPaper);
    props.Draw(&canvas, CRect(0, 0, 10, 1), ShadeProps::StateNormal);
    EXPECT_EQ(canvas.GetPixel(5, 0), face.m_crBorder);
    props.Draw(&canvas, CRect(5, 5, 2, 2), ShadeProps::StateNormal);
    EXPECT_EQ(canvas.GetPixel(3, 3), kPaper);
}

TEST(BkgStyleTest, GivesWhatWasSetAndLeavesThePointerElse)
{
    ASSERT_NE(BkgStyle::GetInstance(), nullptr);
    ShadeProps* pProps = nullptr;
    EXPECT_TRUE(BkgStyle::GetInstance()->Get(BkgStyle::UIPushButton, pProps));
    ASSERT_NE(pProps, nullptr);
    const ShadeProps propsDefault = *pProps;

    BkgStyle::SetInstance(std::make_unique<BkgStyle>());
    pProps = nullptr;
    EXPECT_FALSE(BkgStyle::GetInstance()->Get(BkgStyle::UIPushButton, pProps));
    EXPECT_EQ(pProps, nullptr);

    auto pStyle = std::make_unique<BkgStyle>();
    pStyle->Set(static_cast<BkgStyle::UIComponent>(13), propsDefault);
    BkgStyle::SetInstance(std::move(pStyle));
    EXPECT_TRUE(BkgStyle::GetInstance()->Get(BkgStyle::UIPushButton, pProps));
}

TEST(MemDCTest, ShowsItsPixelsAtItsEndAndNoOthers)
{
    Canvas canvas(40, 40);
    const CRect rcBuffer(10, 12, 30, 20);
    {
        CMemDC dc(&canvas, rcBuffer);
        ASSERT_TRUE(dc.m_bIsValid);
        dc.FillSolidRect(CRect(0, 0, 40, 40), kInk);
        dc.FillSolidRect(CRect(10, 12, 11, 13), RGB(255, 0, 0));
        EXPECT_TRUE(canvas.FindInk().IsRectEmpty());
    }
    EXPECT_EQ(canvas.FindInk(), rcBuffer);
    EXPECT_EQ(canvas.GetPixel(10, 12), RGB(255, 0, 0));
}

TEST(MemDCTest, IsNotUsableWithoutContextOrArea)
{
    Canvas canvas(4, 4);
    EXPECT_FALSE(CMemDC(nullptr, CRect(0, 0, 4, 4)).m_bIsValid);
    EXPECT_FALSE(CMemDC(&canvas, CRect(2, 2, 2, 4)).m_bIsValid);
    EXPECT_FALSE(CMemDC(&canvas, CRect(4, 4, 0, 0)).m_bIsValid);
    EXPECT_TRUE(canvas.FindInk().IsRectEmpty());
}

TEST(GraphicsUtilsTest, FontDescriptionHoldsWhatWasAskedFor)
{
    LOGFONTA lf = {};
    GraphicsUtils::SetDefaultFont(lf, CString('x', 50), 11, 300, true, true, true);
    EXPECT_EQ(lf.lfWeight, 300);
    EXPECT_TRUE(lf.lfItalic && lf.lfUnderline && lf.lfStrikeOut);
    EXPECT_EQ(std::string(lf.lfFaceName), std::string(LF_FACESIZE - 1, 'x'));
}

TEST(GraphicsUtilsTest, DefaultFontFitsTheLineAskedFor)
{
    LOGFONTA lf;
    memset(&lf, 0x55, sizeof(lf));
    GraphicsUtils::SetDefaultFont(lf, "", 15, -1, false, false, false);
    EXPECT_EQ(lf.lfWeight, FW_NORMAL);
    EXPECT_EQ(lf.lfWidth + lf.lfEscapement + lf.lfItalic + lf.lfUnderline + lf.lfStrikeOut, 0);
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&lf));
    Canvas canvas(100, 20);
    const HGDIOBJ hOld = ::SelectObject(canvas.m_hDC, font.m_hObject);
    TEXTMETRICA metrics;
    ASSERT_TRUE(canvas.GetTextMetrics(&metrics));
    EXPECT_GE(metrics.tmHeight, 13);
    EXPECT_LE(metrics.tmHeight, 16);
    CRect rect;
    ::DrawTextA(canvas, "Wed", 3, &rect, DT_CALCRECT | DT_SINGLELINE);
    EXPECT_NEAR(rect.Width(), 27, 4);
    ::SelectObject(canvas.m_hDC, hOld);
}

}

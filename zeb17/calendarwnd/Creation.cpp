// Making the window, its buttons, its tool tip and its font.
#include "CalendarWnd.h"

#include "CalendarTexts.h"
#include "DownArrowButton.h"
#include "LogLine.h"

#include <BkgStyle.h>
#include <GraphicsUtils.h>
#include <StringUtils.h>
#include <WndWatch.h>

#include <algorithm>

namespace {

constexpr DWORD kChildStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP;

struct ButtonFont
{
    long nHeight; // 0: the button keeps its own font
    long nWeight;
};

constexpr ButtonFont kNoFont{0, 0};
constexpr ButtonFont kMonthFont{12, FW_LIGHT};
constexpr ButtonFont kYearFont{11, FW_LIGHT};
constexpr ButtonFont kTitleFont{16, FW_BOLD};

struct ButtonSetUp
{
    CZEBButton* pButton;
    UINT nID;
    const std::vector<int>* pCaption; // null for none
    ButtonFont font;
    ZEBIcon::ButtonIcon eIcon;
    bool bEnabled;
    const char* pFailureMark;
};

void CreateButton(const ButtonSetUp& setUp, CWnd* pParent)
{
    CZEBButton& button = *setUp.pButton;
    const CString strCaption = setUp.pCaption ? StringUtils::DecryptText(*setUp.pCaption) : CString();
    const CWndWatch watch(button);
    const BOOL bCreated = button.Create(strCaption, kChildStyle, CRect(0, 0, 10, 10), pParent, setUp.nID);
    if (!watch.IsAlive())
        return;
    if (!bCreated) {
        LogLine(setUp.pFailureMark);
        return;
    }
    if (setUp.font.nHeight != 0)
        button.SetFont(StringUtils::DecryptText(CalendarTexts::kFace), setUp.font.nHeight, setUp.font.nWeight,
                       0, 0);
    if (setUp.eIcon != ZEBIcon::IconNone) {
        button.SetIcon(setUp.eIcon, BS_LEFT, BS_VCENTER, false);
        button.m_bIconOnly = true;
    }
    if (!setUp.bEnabled) {
        button.SetRegularFontWhenDisabled(true, true);
        button.EnableWindow(FALSE);
    }
}

}

bool CCalendarWnd::Create(UINT nID, const CRect& rect, bool bUseSpecialDates, CWnd* pParent,
                          bool bAllowNoDate, bool bShowOptions, bool bAllowWebPage, bool bAllowDateRanges)
{
    constexpr const char* kNoWindowMark = "{9C02F331-DDE6-430B-BCCF-80503618AC46}";
    if (GetSafeHwnd()) { // the window that exists stays as it is
        LogLine(kNoWindowMark);
        return false;
    }

    BeginCreation(bUseSpecialDates, pParent, bAllowNoDate, bShowOptions, bAllowWebPage, bAllowDateRanges);
    const LPCTSTR pClass = AfxRegisterWndClass(kClassStyle, nullptr,
                                               static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)), nullptr);
    if (!CreateEx(0, pClass, "", kChildStyle, rect, pParent, nID, nullptr)) {
        LogLine(kNoWindowMark);
        return false;
    }
    return SetUpWindow(rect.Width(), rect.Height());
}

void CCalendarWnd::BeginCreation(bool bUseSpecialDates, CWnd* pParent, bool bAllowNoDate, bool bShowOptions,
                                 bool bAllowWebPage, bool bAllowDateRanges)
{
    StandOnToday(); // nothing is left of an earlier window
    m_bUseSpecialDates = bUseSpecialDates;
    m_bAllowNoDate = bAllowNoDate;
    m_bShowOptions = bShowOptions;
    m_bAllowWebPage = bAllowWebPage;
    m_bAllowDateRanges = bAllowDateRanges;
    m_pParent = pParent;
    m_pParentWatch = pParent ? std::make_unique<CWndWatch>(*pParent) : nullptr;
    if (bUseSpecialDates)
        m_settings.Load();
}

bool CCalendarWnd::SetUpWindow(int cx, int cy)
{
    if (!HasAllButtons()) {
        LogLine("{D110EEBF-8B1E-462E-9AE9-2E70E72F2BDC}");
        return false;
    }
    // The host hears of each child, and may delete the control then.
    return WhileAlive(
        *this, [&] { EnableToolTips(TRUE); }, // of the toolkit, for the step buttons
        [&] {
            if (m_bUseSpecialDates)
                CreateToolTip();
        },
        [&] { CreateButtons(); }, [&] { CreateGridFont(); }, [&] { ApplyBkgShading(); },
        [&] { OnSize(0, cx, cy); }, [&] { RefreshMonth(); },
        [&] { NotifyParentWnd(CALWND_ONNODATE, false); });
}

std::array<CZEBButton*, 8> CCalendarWnd::GetButtons() const
{
    return {m_pPrevMonthButton, m_pNextMonthButton, m_pPrevYearButton, m_pNextYearButton,
            m_pTodayButton,     m_pOptionsButton,   m_pClearButton,    m_pMonthYearButton};
}

bool CCalendarWnd::HasAllButtons() const
{
    return std::ranges::none_of(GetButtons(), [](const CZEBButton* pButton) { return !pButton; });
}

void CCalendarWnd::CreateToolTip()
{
    m_toolTip.DestroyWindow(); // one that an earlier window of this object has left behind
    if (!m_toolTip.Create(this, 0))
        LogLine("{9E65460D-A45F-46D5-B417-DFAAC0F156CA}");
}

void CCalendarWnd::CreateButtons()
{
    // The place of a button that is not offered is filled by a disabled button without a caption.
    const auto blank = [](CZEBButton* pButton, const char* pFailureMark) {
        return ButtonSetUp{pButton, ClearButtonId, nullptr, kNoFont, ZEBIcon::IconNone, false, pFailureMark};
    };
    const ButtonSetUp setUps[] = {
        {m_pPrevMonthButton, PrevMonthButtonId, nullptr, kMonthFont, ZEBIcon::IconPreviousMonth, true,
         "{E9A2B6D6-9485-42D0-BF9F-FDB8E8AF8E8D}"},
        {m_pNextMonthButton, NextMonthButtonId, nullptr, kMonthFont, ZEBIcon::IconNextMonth, true,
         "{9250256C-0A3D-4561-8A9F-0E8C44AA8720}"},
        {m_pPrevYearButton, PrevYearButtonId, nullptr, kYearFont, ZEBIcon::IconPreviousYear, true,
         "{00AB4C70-44C8-4D43-AA36-D5C877FE0C2E}"},
        {m_pNextYearButton, NextYearButtonId, nullptr, kYearFont, ZEBIcon::IconNextYear, true,
         "{2EDBD217-3019-42E1-A166-826798479116}"},
        {m_pTodayButton, TodayButtonId, &CalendarTexts::kToday, kNoFont, ZEBIcon::IconNone, true,
         "{80061BF2-11FA-47A3-9D22-FF36F1371BD9}"},
        m_bShowOptions ? ButtonSetUp{m_pOptionsButton, OptionsButtonId, &CalendarTexts::kOptions, kNoFont,
                                     ZEBIcon::IconNone, true, "{709907EF-F870-43E9-B85F-0B708B12AF01}"}
                       : blank(m_pOptionsButton, "{ECC5886C-D1BD-4C83-98FA-8A938D421FA5}"),
        m_bAllowNoDate ? ButtonSetUp{m_pClearButton, ClearButtonId, &CalendarTexts::kClear, kNoFont,
                                     ZEBIcon::IconNone, true, "{360450D8-23CD-4A6E-AA1F-40921D061B79}"}
                       : blank(m_pClearButton, "{839A35AF-62E0-4FD3-8CB0-9EB85D62FF60}"),
        {m_pMonthYearButton, MonthYearButtonId, nullptr, kTitleFont, ZEBIcon::IconNone, false,
         "{637363C1-6A35-450D-9CBF-A0D5BA7CDE3B}"},
    };
    const CWndWatch watch(*this);
    for (const ButtonSetUp& setUp : setUps)
        if (watch.IsAlive())
            CreateButton(setUp, this);
}

void CCalendarWnd::CreateGridFont()
{
    LOGFONTA lf{};
    GraphicsUtils::SetDefaultFont(lf, "", 15, -1, false, false, false);
    m_fontGrid.DeleteObject();
    m_fontGrid.Attach(::CreateFontIndirectA(&lf));
}

void CCalendarWnd::ApplyBkgShading()
{
    const BkgStyle* const pStyle = BkgStyle::GetInstance();
    ShadeProps* pProps = nullptr;
    if (pStyle)
        pStyle->Get(BkgStyle::UIPushButton, pProps);
    if (!pProps)
        return;
    for (CZEBButton* const pButton : GetButtons())
        if (pButton && ::IsWindow(pButton->GetSafeHwnd()))
            pButton->SetShadeProps(*pProps);
}

// The pixels of the grid, of the days and of the selection frame.
#include "CalendarFixture.h"

#include <BkgStyle.h>
#include <Clock.h>
#include <GraphicsUtils.h>
#include <LocaleUtils.h>
#include <ZEBButton.h>
#include <gdiplus.h>

#include <array>
#include <optional>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kLine = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kHeader = RGB(0xF9, 0xF4, 0x9B);
constexpr COLORREF kToday = RGB(0xFF, 0xD9, 0xB3);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kGray = RGB(0x80, 0x80, 0x80);
constexpr COLORREF kOther = RGB(0xC4, 0xC4, 0xC4); // the days of the months around

// What is to stand in a cell.
struct Mark
{
    CString strText;
    COLORREF crText = kBlack;
    COLORREF crPaper = kWhite;
    std::optional<COLORREF> crDot = {};
};

// The month as it is to be seen, drawn by the calls that the control is to use, and no other code of its.
class ExpectedMonth : public Canvas
{
public:
    explicit ExpectedMonth(HWND hWnd) : Canvas(500, 400, hWnd)
    {
        LOGFONTA lf{};
        GraphicsUtils::SetDefaultFont(lf, "", 15, -1, false, false, false);
        m_font.Attach(::CreateFontIndirectA(&lf));
        m_hOldFont = ::SelectObject(m_hDC, m_font.m_hObject);
    }
    ~ExpectedMonth() override { ::SelectObject(m_hDC, m_hOldFont); }

    void DrawName(const CRect& rc, const char* szName) { DrawText({szName, kBlack, kHeader}, rc, DT_CENTER); }

    void DrawDay(const CRect& rc, const Mark& mark)
    {
        FillSolidRect(rc, mark.crPaper);
        if (mark.crDot)
            DrawDot(rc.right - 12, rc.top + 2, *mark.crDot);
        DrawText(mark, rc, DT_LEFT);
    }

private:
    void DrawText(const Mark& mark, CRect rc, UINT nAlign)
    {
        if (!mark.crDot)
            FillSolidRect(rc, mark.crPaper);
        SetBkColor(mark.crPaper);
        SetTextColor(mark.crText);
        CDC::DrawText(mark.strText, rc, nAlign | DT_VCENTER | DT_SINGLELINE);
    }

    void DrawDot(int x, int y, COLORREF cr)
    {
        using namespace Gdiplus;
        GpGraphics* pGraphics = nullptr;
        GpSolidFill* pBrush = nullptr;
        DllExports::GdipCreateFromHDC(m_hDC, &pGraphics);
        const ARGB argb = 0xFF000000U | static_cast<ARGB>(GetRValue(cr)) << 16 |
                          static_cast<ARGB>(GetGValue(cr)) << 8 | GetBValue(cr);
        DllExports::GdipCreateSolidFill(argb, &pBrush);
        DllExports::GdipSetSmoothingMode(pGraphics, SmoothingModeAntiAlias);
        DllExports::GdipFillEllipseI(pGraphics, pBrush, x, y, 10, 10);
        DllExports::GdipDeleteBrush(pBrush);
        DllExports::GdipDeleteGraphics(pGraphics);
    }

    CFont m_font;
    HGDIOBJ m_hOldFont;
};

// The 42 days of a block: those seen of the month before, all of the month, and as many of the next as there
// is room for.
std::vector<Mark> DaysOf(int nFirstSeen, int nLastBefore, int nLast)
{
    std::vector<Mark> marks;
    const auto add = [&marks](int nFirst, int nEnd, COLORREF cr) {
        for (int nDay = nFirst; nDay <= nEnd && marks.size() < 42; ++nDay)
            marks.push_back({std::to_string(nDay).c_str(), cr});
    };
    if (nFirstSeen > 0)
        add(nFirstSeen, nLastBefore, kOther);
    add(1, nLast, kBlack);
    add(1, 14, kOther);
    return marks;
}

// The first place at which two pictures differ inside a rectangle.
std::optional<CPoint> FindDifference(const Canvas& one, const Canvas& other, const CRect& rc)
{
    for (LONG y = rc.top; y < rc.bottom; ++y)
        for (LONG x = rc.left; x < rc.right; ++x)
            if (one.GetPixel(x, y) != other.GetPixel(x, y))
                return CPoint(x, y);
    return {};
}

}

class PaintingTest : public CalendarTest
{
protected:
    void SetUp() override
    {
        Start();
        HideNationalDays();
        calendar->RefreshMonth();
    }

    // The colour of the corners and sides of the frame around a cell's text rectangle.
    void ExpectFrame(const CRect& rc, COLORREF cr)
    {
        const Picture picture(*calendar);
        for (const LONG x : {rc.left - 3, rc.right + 0})
            for (const LONG y : {rc.top - 1, rc.bottom + 0, rc.CenterPoint().y + 0})
                EXPECT_EQ(picture.GetPixel(x, y), cr) << x << ',' << y;
    }
    // The texts of the tips of the days.
    std::vector<CString> GetTips() const
    {
        const HWND hTips = calendar->m_toolTip;
        std::vector<CString> tips(static_cast<std::size_t>(::SendMessageA(hTips, TTM_GETTOOLCOUNT, 0, 0)));
        UINT_PTR nId = 1;
        for (CString& strTip : tips) {
            char szTip[200] = "";
            TOOLINFOA tool{};
            tool.cbSize = TTTOOLINFOA_V1_SIZE;
            tool.hwnd = calendar->m_hWnd;
            tool.uId = nId++;
            tool.lpszText = szTip;
            ::SendMessageA(hTips, TTM_GETTEXTA, sizeof szTip, reinterpret_cast<LPARAM>(&tool));
            strTip = szTip;
        }
        return tips;
    }
};

TEST_F(PaintingTest, LinesAndBands)
{
    Show(Date(2026, 1, 15), false);
    const Picture picture(*calendar);
    const CRect& grid = calendar->m_rcGrid;
    const int nNames = calendar->m_vRowEdges[1];
    for (const int x : {0, 1, kWidth - 1}) { // no lines down the sides
        const std::pair<int, COLORREF> rows[] = {
            {grid.top, kLine},    {grid.top + 1, kHeader},   {nNames - 1, kHeader},    {nNames, kLine},
            {nNames + 1, kWhite}, {grid.bottom - 2, kWhite}, {grid.bottom - 1, kLine},
        };
        for (const auto& [y, cr] : rows)
            EXPECT_EQ(picture.GetPixel(x, y), cr) << x << ',' << y;
    }
    for (size_t i = 1; i < 7; ++i) {
        const int x = calendar->m_vColumnEdges[i];
        EXPECT_EQ(picture.GetPixel(0, calendar->m_vRowEdges[i]), kLine);
        EXPECT_EQ(picture.GetPixel(kWidth - 1, calendar->m_vRowEdges[i]), kLine);
        EXPECT_EQ(picture.GetPixel(x, grid.top + 1), kLine);
        EXPECT_EQ(picture.GetPixel(x, grid.bottom - 2), kLine);
        EXPECT_EQ(picture.GetPixel(x + 1, grid.bottom - 2), kWhite);
    }
}

// Each name and number in its place, font and colours, pixel by pixel. The months are written down from a
// wall calendar: the days of the last month that are seen, and of the month itself.
TEST_F(PaintingTest, NamesNumbersAndDots)
{
    constexpr COLORREF kDot = RGB(10, 120, 220);
    const std::array english = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const std::array dutch = {"ma", "di", "wo", "do", "vr", "za", "zo"};
    const struct
    {
        const char* szLocale;
        DateTime date;
        std::array<const char*, 7> names;
        int nFirstSeen, nLastBefore, nLast;
        DateTime today;
        int nTodayCell; // -1 for none
        int nDotCell;   // of 4 July 2026
    } months[] = {
        {"en-US", Date(2026, 7, 20), english, 28, 30, 31, Date(2026, 7, 15), 17, 6},
        {"nl-NL", Date(2026, 7, 1), dutch, 29, 30, 31, Date(2026, 6, 29), 0, 5},
        {"nl-NL", Date(2026, 6, 8), dutch, 0, 0, 30, Date(2026, 7, 12), 41, 33},
        {"en-US", Date(2026, 3, 31), english, 0, 0, 31, Date(2026, 4, 12), -1, -1},
    };
    for (const auto& month : months) {
        LocaleUtils::SetLocale(month.szLocale);
        Clock::SetToday(month.today.GetYear(), month.today.GetMonth(), month.today.GetDay());
        Renew();
        Start();
        HideNationalDays();
        AddSpecialDay("Dot", 4, 7, kDot);
        Show(month.date, false);

        const Picture picture(*calendar);
        ExpectedMonth expected(calendar->m_hWnd);
        for (int c = 1; c <= 7; ++c) {
            const CRect rc = calendar->GetCellRect({1, c});
            expected.DrawName(rc, month.names[static_cast<std::size_t>(c - 1)]);
            EXPECT_FALSE(FindDifference(picture, expected, rc)) << month.szLocale << ": name " << c;
        }
        std::vector<Mark> marks = DaysOf(month.nFirstSeen, month.nLastBefore, month.nLast);
        if (month.nTodayCell >= 0)
            marks[static_cast<std::size_t>(month.nTodayCell)].crPaper = kToday;
        if (month.nDotCell >= 0)
            marks[static_cast<std::size_t>(month.nDotCell)].crDot = kDot;
        for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell) {
            const CRect rc = calendar->GetRectOfCell(nCell);
            expected.DrawDay(rc, marks[static_cast<std::size_t>(nCell)]);
            EXPECT_FALSE(FindDifference(picture, expected, rc)) << ToText(month.date) << ": cell " << nCell;
        }
        if (month.nTodayCell >= 0) {
            PressCell(month.nTodayCell);
            EXPECT_EQ(ToText(calendar->m_date), ToText(month.today)) << "leads where it says";
        }
    }
    EXPECT_EQ(MonthBlock::ShapeOf(Date(1, 1, 1))->nPrevDays, 31) << "before the first of all days";
}

// Today keeps its highlight, also as a day of a neighbouring month, and the frame has the same outline.
TEST_F(PaintingTest, TodayAndFrame)
{
    Show(Date(2026, 7, 15), true);
    CRect rc = calendar->GetRectOfCell(calendar->m_nTodayCell);
    EXPECT_EQ(calendar->m_rcSelection, rc);
    ExpectFrame(rc, kBlack);

    Key(VK_RIGHT); // the frame leaves, the highlight stays whole
    ExpectFrame(rc, kToday);
    ExpectFrame(calendar->GetRectOfCell(calendar->m_nTodayCell + 1), kBlack);
    Key(VK_RIGHT);
    ExpectFrame(calendar->GetRectOfCell(calendar->m_nTodayCell + 1), kWhite);
    EXPECT_EQ(GetInvalid(), CRect());

    Show(Date(2026, 7, 15), true);
    Command(2605); // white on every cell
    ExpectFrame(rc, kWhite);
}

TEST_F(PaintingTest, FrameFollowsTheFocus)
{
    Show(Date(2026, 7, 8), true);
    const CRect rc = calendar->m_rcSelection;
    ExpectFrame(rc, kBlack);
    calendar->m_pTodayButton->SetFocus();
    EXPECT_EQ(GetInvalid(), CRect(rc.left - 2, rc.top, rc.right, rc.bottom));
    ExpectFrame(rc, kGray); // at once
    Repaint();
    ExpectFrame(rc, kGray);
    calendar->SetFocus(); // at once
    ExpectFrame(rc, kBlack);
    EXPECT_EQ(GetInvalid(), CRect(rc.left - 2, rc.top, rc.right, rc.bottom));

    Show(Date(2026, 7, 8), false);
    ExpectFrame(rc, kWhite);
    EXPECT_EQ(calendar->m_rcSelection, rc);
    calendar->m_pTodayButton->SetFocus();
    Repaint();
    calendar->SetFocus();
    ExpectFrame(rc, kWhite);
}

// The control has the focus and shows today, with no date selected: no paint will come.
TEST_F(PaintingTest, TodayFramesADayThatIsShownAlready)
{
    Show(Date(2026, 7, 15), false);
    const CRect rc = calendar->m_rcSelection;
    COLORREF crHeard = kWhite;
    parent.m_onHeard = [&] { crHeard = Picture(*calendar).GetPixel(rc.right, rc.top); };
    Key('T');
    ExpectFrame(rc, kBlack);
    EXPECT_EQ(crHeard, kBlack) << "before the parent hears";
    EXPECT_EQ(GetInvalid(), CRect());
}

// A frame leaves no ghost of today's colour in a month that shows today's place, but not today.
TEST_F(PaintingTest, AFrameLeavesWhiteWhereTodayWasInAnotherMonth)
{
    Show(Date(2026, 7, 15), true);
    const int nCell = calendar->m_nTodayCell;
    Show(Date(2027, 4, 15), true);
    const CRect rc = calendar->GetRectOfCell(nCell);
    calendar->MoveSelectionRect(rc);
    calendar->MoveSelectionRect(calendar->GetRectOfCell(nCell + 1));
    ExpectFrame(rc, kWhite);
}

TEST_F(PaintingTest, TipsOfTheCells)
{
    AddSpecialDay("Before", 28, 6, RGB(200, 10, 20));
    AddSpecialDay("Salt & pepper", 4, 7, RGB(10, 120, 220));
    AddSpecialDay("Second", 4, 7, RGB(10, 120, 220));
    AddSpecialDay("White", 20, 7, kWhite);
    AddSpecialDay("After", 8, 8, RGB(200, 10, 20));
    for (int nPaint = 1; nPaint <= 3; ++nPaint) {
        Show(Date(2026, 7, 9), true);
        EXPECT_EQ(GetTips(), (std::vector<CString>{"Before", "Salt && pepper && Second", "White", "After"}));
    }
    Show(Date(2026, 1, 9), true);
    EXPECT_TRUE(GetTips().empty());
}

// The title and the step buttons look like buttons of their font and icon.
TEST_F(PaintingTest, TitleAndStepButtons)
{
    constexpr ShadeProps::Face kFace = {RGB(10, 200, 100), RGB(0, 100, 50), kBlack};
    const ShadeProps shading({kFace, kFace, kFace, kFace});
    BkgStyle::SetInstance(std::make_unique<BkgStyle>());
    BkgStyle::GetInstance()->Set(BkgStyle::UIPushButton, shading);
    Renew();
    Start();
    Show(Date(2026, 5, 20), false);
    const struct
    {
        CZEBButton* pButton;
        ZEBIcon::ButtonIcon eIcon;
    } buttons[] = {
        {calendar->m_pMonthYearButton, ZEBIcon::IconNone},
        {calendar->m_pPrevMonthButton, ZEBIcon::IconPreviousMonth},
        {calendar->m_pNextMonthButton, ZEBIcon::IconNextMonth},
        {calendar->m_pPrevYearButton, ZEBIcon::IconPreviousYear},
        {calendar->m_pNextYearButton, ZEBIcon::IconNextYear},
    };
    for (const auto& [pButton, eIcon] : buttons) {
        CString strText;
        pButton->GetWindowText(strText);
        CRect rc;
        pButton->GetClientRect(&rc);
        CZEBButton twin;
        CRect rcOnScreen, rcParent;
        ::GetWindowRect(pButton->m_hWnd, &rcOnScreen);
        ::GetWindowRect(parent.m_hWnd, &rcParent);
        // Below the control, at a place that a scaled screen rounds alike.
        const CRect rcInView(CPoint(rcOnScreen.left - rcParent.left, rcOnScreen.top - rcParent.top + 260),
                             rc.Size());
        ASSERT_TRUE(twin.Create(strText, WS_CHILD | WS_VISIBLE, rcInView, &parent, 1));
        twin.SetShadeProps(shading);
        if (eIcon == ZEBIcon::IconNone) {
            twin.SetFont("Arial", 16, FW_BOLD, 0, 0);
            twin.SetRegularFontWhenDisabled(true, true);
            twin.EnableWindow(FALSE);
        } else {
            twin.SetIcon(eIcon, BS_LEFT, BS_VCENTER, false);
            twin.m_bIconOnly = true;
        }
        twin.UpdateWindow();
        pButton->UpdateWindow();
        EXPECT_FALSE(FindDifference(Picture(*pButton), Picture(twin), rc)) << pButton->GetDlgCtrlID();
    }
    BkgStyle::SetInstance(std::make_unique<BkgStyle>());
}

TEST_F(PaintingTest, AnAreaToBeErasedTurnsWhite)
{
    Canvas canvas(50, 50, calendar->m_hWnd);
    canvas.FillSolidRect(CRect(0, 0, 50, 50), kBlack);
    calendar->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.m_hDC), 0);
    EXPECT_EQ(canvas.GetPixel(20, 20), kWhite);
}

TEST_F(PaintingTest, WithoutADateTheGridIsEmpty)
{
    AddSpecialDay("Tip", 4, 7, RGB(10, 120, 220));
    Show(Date(2026, 7, 9), true);
    Show(DateTime(), true);
    const Picture picture(*calendar);
    EXPECT_TRUE(picture.IsFilledWith(kHeader, calendar->GetCellRect({1, 4})));
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell)
        EXPECT_TRUE(picture.IsFilledWith(kWhite, calendar->GetRectOfCell(nCell))) << nCell;
    EXPECT_EQ(calendar->m_rcSelection, CRect());
    EXPECT_EQ(GetTips().size(), 1U);
}

// Drawing the month on the page.
#include "CalendarWndPrinter.h"

#include <afxext.h>
#include <FontSelection.h>
#include <LocaleUtils.h>
#include <MonthBlock.h>
#include <NumberTextConv.h>

#include <algorithm>
#include <array>

namespace {

constexpr COLORREF kLineColor = RGB(0, 0, 0);
constexpr COLORREF kOtherMonthColor = RGB(0xC4, 0xC4, 0xC4);
constexpr UINT kNameFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
constexpr UINT kNumberFormat = DT_VCENTER | DT_SINGLELINE;

// The edges of the rows and columns on the page.
struct Grid
{
    explicit Grid(const CRect& rect) : m_rect(rect)
    {
        MonthBlock::Split(m_rows, rect.top, rect.bottom);
        MonthBlock::Split(m_columns, rect.left, rect.right);
    }

    CRect GetTextRect(MonthBlock::Place place) const
    {
        return MonthBlock::TextRect(m_rows, m_columns, place);
    }

    CRect m_rect;
    std::array<int, MonthBlock::kEdges> m_rows;
    std::array<int, MonthBlock::kEdges> m_columns;
};

void DrawLines(CDC& dc, const Grid& grid)
{
    for (std::size_t i = 1; i < MonthBlock::kRows; ++i) {
        dc.MoveTo(grid.m_rect.left, grid.m_rows[i]);
        dc.LineTo(grid.m_rect.right, grid.m_rows[i]);
    }
    for (std::size_t i = 1; i < MonthBlock::kColumns; ++i) {
        dc.MoveTo(grid.m_columns[i], grid.m_rect.top);
        dc.LineTo(grid.m_columns[i], grid.m_rect.bottom);
    }
}

int GetWidth(CDC& dc, const CString& strText)
{
    CRect rect;
    dc.DrawText(strText, &rect, DT_CALCRECT | DT_SINGLELINE);
    return rect.Width();
}

// The height of letters at which the widest name fits its column; 0 if it fits as it is.
int GetHeightThatFits(CDC& dc, const Grid& grid)
{
    int nWidest = 0;
    for (int nWeekday = 1; nWeekday <= MonthBlock::kColumns; ++nWeekday)
        nWidest = std::max(nWidest, GetWidth(dc, LocaleUtils::GetDayName(nWeekday, true)));
    const int nRoom = std::max(grid.GetTextRect({1, 2}).Width(), 1);
    if (nWidest <= nRoom)
        return 0;
    TEXTMETRICA metrics = {};
    dc.GetTextMetrics(&metrics);
    return std::max<int>((metrics.tmHeight - metrics.tmInternalLeading) * nRoom / nWidest, 1);
}

void DrawDayNames(CDC& dc, const Grid& grid)
{
    int nWeekday = LocaleUtils::GetFirstDayOfWeek();
    for (int nColumn = 1; nColumn <= MonthBlock::kColumns; ++nColumn) {
        CRect rcText = grid.GetTextRect({1, nColumn});
        dc.DrawText(LocaleUtils::GetDayName(nWeekday, true), &rcText, kNameFormat);
        nWeekday = MonthBlock::NextWeekday(nWeekday);
    }
}

void DrawDays(CDC& dc, const Grid& grid, const MonthBlock::Shape& shape, COLORREF crText)
{
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell) {
        const MonthBlock::Cell cell = MonthBlock::CellAt(shape, nCell);
        CRect rcText = grid.GetTextRect(MonthBlock::PlaceOfCell(nCell));
        const COLORREF crOld =
            dc.SetTextColor(cell.month == MonthBlock::Month::Shown ? crText : kOtherMonthColor);
        dc.DrawText(NumberTextConv::NumberToString(cell.nDay, false, 0, ""), &rcText, kNumberFormat);
        dc.SetTextColor(crOld);
    }
}

}

CCalendarWndPrinter::CCalendarWndPrinter(const DateTime& date) : m_date(date) {}

CCalendarWndPrinter::~CCalendarWndPrinter() = default;

void CCalendarWndPrinter::PrintPageContent(COLORREF crText)
{
    CDC* pDC = GetPrintDC();
    const CPrintInfo* pInfo = GetPrintInfo();
    if (!pDC || !pInfo)
        return;

    CPen pen;
    CPen* pOldPen = pen.CreatePen(PS_SOLID, 1, kLineColor) ? pDC->SelectObject(&pen) : nullptr;
    PrintMonth(*pDC, pInfo->m_rectDraw, crText);
    if (pOldPen)
        pDC->SelectObject(pOldPen);
}

void CCalendarWndPrinter::GetPageTexts(CString& strLeft, CString& strCenter, CString& strRight)
{
    strLeft.Empty();
    strCenter.Empty();
    strRight.Empty();
}

void CCalendarWndPrinter::PrintMonth(CDC& dc, CRect rect, COLORREF crText) const
{
    dc.Rectangle(&rect);
    rect.InflateRect(-1, -1);
    const Grid grid(rect);
    DrawLines(dc, grid);

    const auto shape = MonthBlock::ShapeOf(m_date);
    if (!shape)
        return;
    if (const int nHeight = GetHeightThatFits(dc, grid)) {
        CFont font;
        CreateFontOfHeight(font, nHeight);
        const FontSelection selection(dc, font);
        DrawDayNames(dc, grid);
    } else {
        DrawDayNames(dc, grid);
    }
    DrawDays(dc, grid, *shape, crText);
}

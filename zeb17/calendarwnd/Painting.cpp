// Drawing the grid, its days and the selection frame.
#include "CalendarWnd.h"

#include "MonthBlock.h"

#include <MemDC.h>
#include <NumberTextConv.h>
#include <StringUtils.h>
#include <gdiplus.h>

namespace {

constexpr COLORREF kGridColor = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kLineColor = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kHeaderColor = RGB(0xF9, 0xF4, 0x9B);
constexpr COLORREF kTodayColor = RGB(0xFF, 0xD9, 0xB3);
constexpr COLORREF kDayColor = RGB(0, 0, 0);
constexpr COLORREF kOtherMonthColor = RGB(0xC4, 0xC4, 0xC4);
constexpr COLORREF kFocusedFrameColor = RGB(0, 0, 0);
constexpr COLORREF kFrameColor = RGB(0x80, 0x80, 0x80);

constexpr UINT kDayNameFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
constexpr UINT kDayFormat = DT_VCENTER | DT_SINGLELINE;

constexpr int kDotSize = 10;

void DrawLine(CDC* pDC, int x1, int y1, int x2, int y2)
{
    pDC->MoveTo(x1, y1);
    pDC->LineTo(x2, y2);
}

Gdiplus::ARGB OpaqueArgb(COLORREF cr)
{
    return 0xFF000000u | static_cast<Gdiplus::ARGB>(GetRValue(cr)) << 16 |
           static_cast<Gdiplus::ARGB>(GetGValue(cr)) << 8 | GetBValue(cr);
}

// There is no dot if the host has not started GDI+, or if a call fails.
void FillDot(CDC* pDC, int x, int y, COLORREF cr)
{
    using namespace Gdiplus;
    GpGraphics* pGraphics = nullptr;
    GpSolidFill* pBrush = nullptr;
    DllExports::GdipCreateFromHDC(pDC->GetSafeHdc(), &pGraphics);
    DllExports::GdipCreateSolidFill(OpaqueArgb(cr), &pBrush);
    DllExports::GdipSetSmoothingMode(pGraphics, SmoothingModeAntiAlias);
    DllExports::GdipFillEllipseI(pGraphics, pBrush, x, y, kDotSize, kDotSize);
    DllExports::GdipSetSmoothingMode(pGraphics, SmoothingModeDefault);
    DllExports::GdipDeleteBrush(pBrush);
    DllExports::GdipDeleteGraphics(pGraphics);
}

}

void CCalendarWnd::OnPaint()
{
    CPaintDC dc(this);
    CMemDC memDC(&dc, m_rcGrid);
    if (!memDC.m_bIsValid)
        return;
    m_rcSelection.SetRectEmpty();
    memDC.FillSolidRect(&m_rcGrid, kGridColor);
    if (m_vRowEdges.empty()) // the title button could not be made, so nothing was laid out
        return;
    DrawGrid(&memDC);
    if (m_date.IsValid())
        DrawMonth(&memDC);
}

// Draws the lines and the band behind the names of the weekdays. There are no lines at the left and right
// edges.
void CCalendarWnd::DrawGrid(CDC* pDC)
{
    const CRect& rc = m_rcGrid;
    CPen pen;
    pen.CreatePen(PS_SOLID, 1, kLineColor);
    CPen* const pOldPen = pDC->SelectObject(&pen);
    DrawLine(pDC, rc.left, rc.top, rc.right, rc.top);
    DrawLine(pDC, rc.left, rc.bottom - 1, rc.right, rc.bottom - 1);
    pDC->FillSolidRect(CRect(rc.left, rc.top + 1, rc.right, m_vRowEdges[1]), kHeaderColor);
    for (std::size_t i = 1; i < MonthBlock::kRows; ++i)
        DrawLine(pDC, rc.left, m_vRowEdges[i], rc.right, m_vRowEdges[i]);
    for (std::size_t i = 1; i < MonthBlock::kColumns; ++i)
        DrawLine(pDC, m_vColumnEdges[i], rc.top + 1, m_vColumnEdges[i], rc.bottom - 1);
    pDC->SelectObject(pOldPen);
}

void CCalendarWnd::DrawMonth(CDC* pDC)
{
    const std::optional<MonthBlock::Shape> shape = MonthBlock::ShapeOf(m_date);
    if (!shape)
        return;
    CFont* const pOldFont = pDC->SelectObject(&m_fontGrid);
    if (m_bUseSpecialDates)
        RemoveCellTips();
    m_nFirstDayColumn = shape->nFirstColumn;
    pDC->SetBkColor(kHeaderColor);
    DrawDayNames(pDC);
    pDC->SetBkColor(kGridColor);
    for (int nCell = 0; nCell < MonthBlock::kCells; ++nCell)
        DrawDay(pDC, nCell, MonthBlock::CellAt(*shape, nCell));
    if (m_bHaveDate && !m_rcSelection.IsRectEmpty())
        DrawSelectionFrame(pDC, GetFrameColor());
    pDC->SelectObject(pOldFont);
}

void CCalendarWnd::RemoveCellTips()
{
    for (unsigned int nId = 1; nId <= m_nNextToolId; ++nId)
        m_toolTip.DelTool(this, nId);
    m_nNextToolId = 1;
}

void CCalendarWnd::DrawDayNames(CDC* pDC)
{
    int nDay = LocaleUtils::GetFirstDayOfWeek();
    for (int c = 1; c <= MonthBlock::kColumns; ++c, nDay = MonthBlock::NextWeekday(nDay))
        pDC->DrawText(LocaleUtils::GetDayName(nDay, true), GetCellRect({1, c}), kDayNameFormat);
}

void CCalendarWnd::DrawDay(CDC* pDC, int nCell, const MonthBlock::Cell& cell)
{
    const bool bShown = cell.month == MonthBlock::Month::Shown;
    CRect rcCell = GetCellRect(MonthBlock::PlaceOfCell(nCell));
    if (nCell == m_nTodayCell)
        DrawTodayBkg(pDC, rcCell);
    if (m_bUseSpecialDates)
        DrawSpecialDay(pDC, nCell, rcCell);
    const COLORREF crOld = pDC->SetTextColor(bShown ? kDayColor : kOtherMonthColor);
    pDC->DrawText(NumberTextConv::NumberToString(cell.nDay, false, 0, ""), &rcCell, kDayFormat);
    pDC->SetTextColor(crOld);
    if (bShown && cell.nDay == m_date.GetDay())
        m_rcSelection = rcCell;
    if (nCell == m_nTodayCell)
        pDC->SetBkColor(kGridColor);
}

// The colour of the highlight stays the background colour of the context, for the number that is drawn on it
// next.
void CCalendarWnd::DrawTodayBkg(CDC* pDC, const CRect& rcCell)
{
    m_rcToday = rcCell;
    m_rcToday.left -= 2;
    m_rcToday.InflateRect(1, 1);
    if (pDC)
        pDC->FillSolidRect(&m_rcToday, kTodayColor);
}

void CCalendarWnd::DrawSpecialDay(CDC* pDC, int nCell, CRect rcCell)
{
    if (!pDC)
        return;
    const auto i = static_cast<std::size_t>(nCell);
    CString strTip = m_vDayDescs[i];
    if (strTip.IsEmpty())
        return;
    StringUtils::EscapeAmpersand(strTip);
    strTip.Replace("\r\n", " && "); // doubled already: it shows as a single ampersand
    m_toolTip.AddTool(this, strTip, &rcCell, m_nNextToolId++);
    FillDot(pDC, rcCell.right - kDotSize - 2, rcCell.top + 2, m_vDayColors[i]);
}

// The frame runs around the cell where the edge of today's highlight would be.
void CCalendarWnd::DrawSelectionFrame(CDC* pDC, COLORREF crFrame)
{
    CRect rcFrame = m_rcSelection;
    rcFrame.InflateRect(3, 1, 1, 1);
    CBrush brush(crFrame);
    pDC->FrameRect(&rcFrame, &brush);
}

COLORREF CCalendarWnd::GetFrameColor() const
{
    return ::GetFocus() == m_hWnd ? kFocusedFrameColor : kFrameColor;
}

void CCalendarWnd::MoveSelectionRect(const CRect& rcNew)
{
    try {
        CClientDC dc(this);
        if (!m_rcSelection.IsRectEmpty()) {
            // The highlight keeps its last place while a month without today is shown.
            const bool bToday = m_nTodayCell != -1 && m_rcSelection.PtInRect(m_rcToday.CenterPoint());
            DrawSelectionFrame(&dc, bToday ? kTodayColor : kGridColor);
        }
        if (!rcNew.IsRectEmpty())
            m_rcSelection = rcNew;
        else if (m_nFirstDayColumn >= 0 && m_date.IsValid())
            m_rcSelection = GetCellRect(MonthBlock::PlaceOfDay(m_nFirstDayColumn, m_date.GetDay()));
        DrawSelectionFrame(&dc, GetFrameColor());
    } catch (CResourceException* pException) {
        pException->Delete();
    }
}

#include "ListRow.h"

namespace {

constexpr int kSquare = 13;
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kSelected = RGB(0xd6, 0xe8, 0xf8);
constexpr COLORREF kFrame = RGB(90, 90, 90);
constexpr COLORREF kTick = RGB(30, 30, 30);

}

ListRow::ListRow(const DRAWITEMSTRUCT& item)
    : m_dc(*CDC::FromHandle(item.hDC)), m_rect(item.rcItem), m_hasFocus((item.itemState & ODS_FOCUS) != 0)
{
    m_dc.FillSolidRect(&m_rect, (item.itemState & ODS_SELECTED) != 0 ? kSelected : kWhite);
}

ListRow::~ListRow()
{
    if (m_hasFocus)
        m_dc.DrawFocusRect(&m_rect);
}

void ListRow::DrawCheckBox(int left, bool checked)
{
    const CRect box = FrameSquare(left, kWhite);
    if (!checked)
        return;
    CPen pen(PS_SOLID, 2, kTick);
    CPen* const old = m_dc.SelectObject(&pen);
    m_dc.MoveTo(box.left + 3, box.top + 6);
    m_dc.LineTo(box.left + 5, box.top + 9);
    m_dc.LineTo(box.left + 10, box.top + 3);
    m_dc.SelectObject(old);
}

void ListRow::DrawSwatch(int left, COLORREF color)
{
    FrameSquare(left, color);
}

void ListRow::DrawText(int left, const CString& text, COLORREF color)
{
    CRect rect(m_rect);
    rect.left += left;
    m_dc.SetTextColor(color);
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

CRect ListRow::FrameSquare(int left, COLORREF color)
{
    const int top = m_rect.top + (m_rect.Height() - kSquare) / 2;
    const CRect square(CPoint(m_rect.left + left, top), CSize(kSquare, kSquare));
    CBrush border(kFrame);
    m_dc.FillSolidRect(&square, color);
    m_dc.FrameRect(&square, &border);
    return square;
}

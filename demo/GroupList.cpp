#include "GroupList.h"

#include <afxdlgs.h>

namespace {

constexpr int kRowHeight = 22;
constexpr int kBoxSize = 13;
constexpr int kBoxLeft = 6;
constexpr int kSwatchLeft = 26;
constexpr int kTextLeft = 46;

constexpr CalendarSettings::Group kGroups[] = {CalendarSettings::GroupUS, CalendarSettings::GroupCanada,
                                               CalendarSettings::GroupNetherlands,
                                               CalendarSettings::GroupCustom, CalendarSettings::GroupToDo};

// A group counts as shown if any of its dates is, and has the colour of its first date.
bool IsShown(CalendarSettings& settings, CalendarSettings::Group group)
{
    for (size_t i = 0; i < settings.GetCount(group); ++i)
        if (settings.GetAt(group, i)->GetShow())
            return true;
    return false;
}

COLORREF ColorOf(CalendarSettings& settings, CalendarSettings::Group group)
{
    return settings.GetCount(group) > 0 ? settings.GetAt(group, 0)->GetColor() : RGB(255, 255, 255);
}

CRect SquareIn(const CRect& row, int left)
{
    const int top = row.top + (row.Height() - kBoxSize) / 2;
    return CRect(CPoint(row.left + left, top), CSize(kBoxSize, kBoxSize));
}

void DrawCheckBox(CDC& dc, const CRect& rect, bool checked)
{
    CBrush border(RGB(90, 90, 90));
    dc.FillSolidRect(&rect, RGB(255, 255, 255));
    dc.FrameRect(&rect, &border);
    if (!checked)
        return;
    CPen pen(PS_SOLID, 2, RGB(30, 30, 30));
    CPen* const old = dc.SelectObject(&pen);
    dc.MoveTo(rect.left + 3, rect.top + 6);
    dc.LineTo(rect.left + 5, rect.top + 9);
    dc.LineTo(rect.left + 10, rect.top + 3);
    dc.SelectObject(old);
}

}

BEGIN_MESSAGE_MAP(GroupList, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_KEYDOWN()
END_MESSAGE_MAP()

GroupList::GroupList(CalendarSettings& settings, std::function<void()> changed)
    : m_settings(settings), m_changed(std::move(changed))
{
}

bool GroupList::CreateList(const CRect& rect, CWnd* parent, UINT id)
{
    constexpr DWORD style =
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY;
    if (!Create(style, rect, parent, id))
        return false;
    for (const CalendarSettings::Group group : kGroups)
        AddString(CalendarSettings::GetName(group));
    SetCurSel(0);
    return true;
}

void GroupList::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    item->itemHeight = kRowHeight;
}

void GroupList::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (item->itemID >= std::size(kGroups))
        return;
    const CalendarSettings::Group group = kGroups[item->itemID];
    CDC& dc = *CDC::FromHandle(item->hDC);
    const CRect row(item->rcItem);
    const bool selected = (item->itemState & ODS_SELECTED) != 0;
    dc.FillSolidRect(&row, selected ? RGB(0xe5, 0xf1, 0xfb) : RGB(255, 255, 255));
    DrawCheckBox(dc, SquareIn(row, kBoxLeft), IsShown(m_settings, group));

    CBrush border(RGB(90, 90, 90));
    const CRect swatch = SquareIn(row, kSwatchLeft);
    dc.FillSolidRect(&swatch, ColorOf(m_settings, group));
    dc.FrameRect(&swatch, &border);

    CString text;
    text.Format("%s (%d)", static_cast<LPCTSTR>(CalendarSettings::GetName(group)),
                static_cast<int>(m_settings.GetCount(group)));
    CRect textRect(row);
    textRect.left += kTextLeft;
    dc.SetTextColor(RGB(0, 0, 0));
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, &textRect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    if ((item->itemState & ODS_FOCUS) != 0)
        dc.DrawFocusRect(&row);
}

void GroupList::OnLButtonDown(UINT nFlags, CPoint point)
{
    CListBox::OnLButtonDown(nFlags, point);
    const int row = point.y / kRowHeight;
    if (row < 0 || row >= static_cast<int>(std::size(kGroups)))
        return;
    if (point.x < kSwatchLeft - 2)
        ToggleShow(kGroups[row]);
    else if (point.x < kTextLeft - 4)
        PickColor(kGroups[row]);
}

// Space shows or hides the group, Enter chooses its colour.
void GroupList::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const int row = GetCurSel();
    if (row >= 0 && nChar == VK_SPACE)
        ToggleShow(kGroups[row]);
    else if (row >= 0 && nChar == VK_RETURN)
        PickColor(kGroups[row]);
    else
        CListBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

void GroupList::ToggleShow(CalendarSettings::Group group)
{
    m_settings.SetAllShow(group, !IsShown(m_settings, group));
    TellChanged();
}

void GroupList::PickColor(CalendarSettings::Group group)
{
    CColorDialog dialog(ColorOf(m_settings, group), CC_FULLOPEN | CC_RGBINIT, this);
    if (dialog.DoModal() != IDOK)
        return;
    m_settings.SetAllColor(group, dialog.GetColor());
    TellChanged();
}

void GroupList::TellChanged()
{
    Invalidate();
    m_changed();
}

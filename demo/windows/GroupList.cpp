#include "GroupList.h"

#include "ListRow.h"

namespace {

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
    if (!Create(kListStyle, rect, parent, id))
        return false;
    for (const CalendarSettings::Group group : kGroups)
        AddString(CalendarSettings::GetName(group));
    SetCurSel(0);
    return true;
}

void GroupList::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    item->itemHeight = kListRowHeight;
}

void GroupList::DrawItem(LPDRAWITEMSTRUCT item)
{
    if (item->itemID >= std::size(kGroups))
        return;
    const CalendarSettings::Group group = kGroups[item->itemID];
    ListRow row(*item);
    row.DrawCheckBox(kBoxLeft, IsShown(m_settings, group));
    row.DrawSwatch(kSwatchLeft, ColorOf(m_settings, group));
    CString text;
    text.Format("%s (%d)", CalendarSettings::GetName(group).GetString(),
                static_cast<int>(m_settings.GetCount(group)));
    row.DrawText(kTextLeft, text, RGB(0, 0, 0));
}

void GroupList::OnLButtonDown(UINT nFlags, CPoint point)
{
    CListBox::OnLButtonDown(nFlags, point);
    const int row = point.y / kListRowHeight;
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

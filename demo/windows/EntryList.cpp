#include "EntryList.h"

#include "ListRow.h"

namespace {

constexpr int kSwatchLeft = 6;
constexpr int kTextLeft = 26;
constexpr COLORREF kShownText = RGB(0, 0, 0);
constexpr COLORREF kHiddenText = RGB(130, 130, 130);

constexpr CalendarSettings::Group kUserGroups[] = {CalendarSettings::GroupCustom,
                                                   CalendarSettings::GroupToDo};

}

bool EntryList::CreateList(const CRect& rect, CWnd* parent, UINT id)
{
    return Create(kListStyle, rect, parent, id) != FALSE;
}

void EntryList::Refill(const CalendarDateEntry* selected)
{
    ResetContent();
    for (const CalendarSettings::Group group : kUserGroups)
        for (size_t i = 0; i < m_settings.GetCount(group); ++i) {
            const CalendarDateEntry* const entry = m_settings.GetAt(group, i);
            const int row = AddString(entry->m_strDesc);
            if (entry == selected)
                SetCurSel(row);
        }
}

CalendarDateEntry* EntryList::Selected()
{
    return EntryAt(GetCurSel());
}

CalendarSettings::Group EntryList::SelectedGroup() const
{
    return GroupAt(GetCurSel());
}

// The rows are the custom dates and then the to-do entries, in the order of the settings.
CalendarDateEntry* EntryList::EntryAt(int row)
{
    if (row < 0 || row >= GetCount())
        return nullptr;
    const size_t customCount = m_settings.GetCount(CalendarSettings::GroupCustom);
    const CalendarSettings::Group group = GroupAt(row);
    const size_t index = static_cast<size_t>(row);
    return m_settings.GetAt(group, group == CalendarSettings::GroupToDo ? index - customCount : index);
}

CalendarSettings::Group EntryList::GroupAt(int row) const
{
    return row < static_cast<int>(m_settings.GetCount(CalendarSettings::GroupCustom))
               ? CalendarSettings::GroupCustom
               : CalendarSettings::GroupToDo;
}

void EntryList::MeasureItem(LPMEASUREITEMSTRUCT item)
{
    item->itemHeight = kListRowHeight;
}

void EntryList::DrawItem(LPDRAWITEMSTRUCT item)
{
    ListRow row(*item);
    const int index = static_cast<int>(item->itemID);
    const CalendarDateEntry* const entry = EntryAt(index);
    if (entry == nullptr)
        return;
    row.DrawSwatch(kSwatchLeft, entry->GetColor());
    const char* const kind = GroupAt(index) == CalendarSettings::GroupToDo ? "To do: " : "";
    row.DrawText(kTextLeft, kind + entry->m_strDesc, entry->GetShow() ? kShownText : kHiddenText);
}

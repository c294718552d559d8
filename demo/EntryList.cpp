#include "EntryList.h"

namespace {

constexpr CalendarSettings::Group kUserGroups[] = {CalendarSettings::GroupCustom,
                                                   CalendarSettings::GroupToDo};

}

bool EntryList::CreateList(const CRect& rect, CWnd* parent, UINT id)
{
    return Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL | LBS_NOTIFY, rect, parent,
                  id) != FALSE;
}

void EntryList::Refill()
{
    ResetContent();
    for (const CalendarSettings::Group group : kUserGroups)
        AddGroup(group);
}

void EntryList::AddGroup(CalendarSettings::Group group)
{
    for (size_t i = 0; i < m_settings.GetCount(group); ++i)
        AddString(CalendarSettings::GetName(group) + ": " + m_settings.GetAt(group, i)->m_strDesc);
}

bool EntryList::DeleteSelected()
{
    const int row = GetCurSel();
    if (row < 0)
        return false;
    const size_t index = static_cast<size_t>(row);
    const size_t customCount = m_settings.GetCount(CalendarSettings::GroupCustom);
    if (index < customCount)
        m_settings.DeleteCustomEntry(m_settings.GetAt(CalendarSettings::GroupCustom, index));
    else
        m_settings.DeleteToDoEntry(m_settings.GetAt(CalendarSettings::GroupToDo, index - customCount));
    return true;
}

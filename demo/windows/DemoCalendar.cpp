#include "DemoCalendar.h"

namespace {

struct GroupColor
{
    CalendarSettings::Group group;
    COLORREF color;
};
constexpr GroupColor kGroupColors[] = {
    {CalendarSettings::GroupUS, RGB(0x2a, 0x6f, 0xc9)},
    {CalendarSettings::GroupCanada, RGB(0xd0, 0x3a, 0x3a)},
    {CalendarSettings::GroupNetherlands, RGB(0xe8, 0x80, 0x1a)},
    {CalendarSettings::GroupCustom, RGB(0x2e, 0x9b, 0x4f)},
    {CalendarSettings::GroupToDo, RGB(0x8a, 0x4f, 0xbf)},
};

}

DemoCalendar::DemoCalendar()
{
    EnableToDoList();
    for (const GroupColor& entry : kGroupColors)
        m_settings.SetAllColor(entry.group, entry.color);
}

void DemoCalendar::RefreshSpecialDates()
{
    DetermineSpecialDays();
    InvalidateGrid();
}

// Settings in which every part tells the same number, so that parts of two saves are found out.
#pragma once

#include <CalendarSettings.h>

#include <memory>

inline constexpr CalendarSettings::Group kMarkedGroups[] = {
    CalendarSettings::GroupUS, CalendarSettings::GroupCanada, CalendarSettings::GroupNetherlands,
    CalendarSettings::GroupCustom};

// The number is from 1; the file grows with it, over several buffers.
inline void SetMark(CalendarSettings& settings, int nMark)
{
    DatesCustom::s_nNextCustomID = 10000; // whatever the process did before
    for (int i = 0; i < 100 * nMark; ++i) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        pEntry->SetDay("One of many own dates", 4, 7);
        settings.AddCustomEntry(pEntry.release());
    }
    for (const auto group : kMarkedGroups)
        settings.SetAllColor(group, static_cast<DWORD>(nMark));
    DatesCustom::s_nNextCustomID = 20000U + static_cast<DWORD>(nMark);
}

// 0 if they are not all of one number. The counter is that of the last load.
inline int MarkOf(CalendarSettings& settings)
{
    const int nMark = static_cast<int>(DatesCustom::s_nNextCustomID) - 20000;
    if (settings.GetCount(CalendarSettings::GroupCustom) != 100 * static_cast<size_t>(nMark))
        return 0;
    for (const auto group : kMarkedGroups) {
        for (size_t i = 0; i < settings.GetCount(group); ++i) {
            if (settings.GetAt(group, i)->GetColor() != static_cast<DWORD>(nMark))
                return 0;
        }
    }
    return nMark;
}

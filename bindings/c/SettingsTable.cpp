// The table of the settings that hosts hold.
#include "SettingsTable.h"

#include <map>
#include <mutex>
#include <utility>

namespace Zeb17::SettingsTable {

namespace {

struct Held
{
    CalendarSettings* pSettings;
    std::unique_ptr<CalendarSettings> pOwned; // null if they are lent
    DWORD dwThread;
};

struct Table
{
    std::mutex mutex;
    std::map<UINT_PTR, Held> byNumber;
    UINT_PTR nNext = 0x17001;
};

// Never deleted: a host may leave settings open, and end after the static objects.
Table& AllSettings()
{
    static Table& s_table = *new Table;
    return s_table;
}

UINT_PTR NumberOf(zeb17_settings hSettings)
{
    return reinterpret_cast<UINT_PTR>(hSettings);
}

zeb17_settings AddHeld(Held held)
{
    Table& table = AllSettings();
    const std::lock_guard lock(table.mutex);
    table.byNumber.emplace(table.nNext, std::move(held));
    return reinterpret_cast<zeb17_settings>(table.nNext++);
}

}

zeb17_settings Add(std::unique_ptr<CalendarSettings> pSettings)
{
    CalendarSettings* const pKept = pSettings.get();
    return AddHeld({pKept, std::move(pSettings), ::GetCurrentThreadId()});
}

zeb17_settings AddLent(CalendarSettings& settings)
{
    return AddHeld({&settings, nullptr, ::GetCurrentThreadId()});
}

CalendarSettings* Find(zeb17_settings hSettings, int& nResult)
{
    Table& table = AllSettings();
    const std::lock_guard lock(table.mutex);
    const auto held = table.byNumber.find(NumberOf(hSettings));
    nResult = ZEB17_BAD_HANDLE;
    if (held == table.byNumber.end())
        return nullptr;
    nResult = ZEB17_WRONG_THREAD;
    if (held->second.dwThread != ::GetCurrentThreadId())
        return nullptr;
    nResult = ZEB17_OK;
    return held->second.pSettings;
}

void Remove(zeb17_settings hSettings)
{
    std::unique_ptr<CalendarSettings> pEnding; // ends outside of the lock
    Table& table = AllSettings();
    const std::lock_guard lock(table.mutex);
    const auto held = table.byNumber.find(NumberOf(hSettings));
    if (held == table.byNumber.end())
        return;
    pEnding = std::move(held->second.pOwned);
    table.byNumber.erase(held);
}

bool IsLent(zeb17_settings hSettings)
{
    Table& table = AllSettings();
    const std::lock_guard lock(table.mutex);
    const auto held = table.byNumber.find(NumberOf(hSettings));
    return held != table.byNumber.end() && !held->second.pOwned;
}

}

// The settings that hosts hold by a handle.
#pragma once

#include "zeb17.h"

#include <CalendarSettings.h>

#include <memory>

// A handle is a number that never comes again, so that no call takes closed settings for open ones. Each
// belongs to the thread that adds it. The operations may be called from any thread.
namespace Zeb17::SettingsTable {

zeb17_settings Add(std::unique_ptr<CalendarSettings> pSettings);
// The same for settings that belong to somebody else, who removes the handle before they end.
zeb17_settings AddLent(CalendarSettings& settings);

// Null, and the code, if there are no such settings or if they belong to another thread.
CalendarSettings* Find(zeb17_settings hSettings, int& nResult);

// Forgets the handle. The settings end, unless they are lent.
void Remove(zeb17_settings hSettings);
bool IsLent(zeb17_settings hSettings);

}

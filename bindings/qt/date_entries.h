// Special dates in Qt's terms, and the entries that the calendar keeps.
#pragma once

#include "Zeb17SpecialDate.h"

#include <CalendarDateEntry.h>

namespace date_entries {

Zeb17SpecialDate fromEntry(const CalendarDateEntry& entry);

// Whether the date has a text of one line and a rule by which it can fall on a day.
bool isComplete(const Zeb17SpecialDate& date);

// Gives the entry the text, the look and the rule of the date, whose colour is valid.
void toEntry(const Zeb17SpecialDate& date, CalendarDateEntry& entry);

}

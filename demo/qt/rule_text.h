// The rule of a special date in words for the user.
#pragma once

#include <Zeb17SpecialDate.h>

// "The fourth Thursday of November, from 2020 on", and in a second line when that is next.
QString describeRule(const Zeb17DateRule& rule);

// The names as the lists of the editor offer them: weekdays from Sunday.
QStringList monthNames();
QStringList weekdayNames();

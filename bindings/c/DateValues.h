// Dates of the interface and of the library.
#pragma once

#include "zeb17.h"

#include <DateTime.h>

namespace Zeb17 {

// No date for null, and for numbers that are none.
inline DateTime ToDateTime(const zeb17_date* pDate)
{
    if (!pDate)
        return {};
    const DateTime date(pDate->year, pDate->month, pDate->day, 0, 0, 0);
    zeb17_date given{};
    date.GetDate(given.year, given.month, given.day);
    // The days that were left out in October 1582 come back as another one.
    const bool bSame = given.year == pDate->year && given.month == pDate->month && given.day == pDate->day;
    return bSame ? date : DateTime();
}

inline zeb17_date FromDateTime(const DateTime& date)
{
    zeb17_date result{};
    date.GetDate(result.year, result.month, result.day);
    return result;
}

}

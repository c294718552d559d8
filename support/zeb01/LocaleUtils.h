// The user's locale: week, names and the forms of dates.
#pragma once

#include <afx.h>

class ZEB17_EXPORT LocaleUtils
{
public:
    // 1 (Sunday) to 7 (Saturday).
    static int GetFirstDayOfWeek();

    // The name of a weekday from 1 (Sunday) to 7; bShort asks for the one that fits a narrow column. Empty
    // for another number.
    static CString GetDayName(int nDayOfWeek, bool bShort);

    // The name of a month from 1 to 12 as it stands alone; bShort abbreviates it. Empty for another number.
    static CString GetMonthName(int nMonth, bool bShort);

    // The date as a user of the locale writes it, long or short. Any year; the weekday is 1 (Sunday) to 7.
    static CString FormatDate(int nYear, int nMonth, int nDay, int nDayOfWeek, bool bShort);

    // Makes the process follow the locale of that name ("nl-NL"), for tests and for pictures in a given
    // language; the empty name is the user's own. False, without a change, if the system knows no such
    // locale. Not guarded: to be called on the thread that uses the library.
    static bool SetLocale(const CString& strName);
};

// The user's locale: week, names and the forms of dates.
#pragma once

#include <afx.h>

class ZEB17_EXPORT LocaleUtils
{
public:
    // The first day of the week, 1 (Sunday) to 7 (Saturday).
    static int GetFirstDayOfWeek();

    // The name of a weekday from 1 (Sunday) to 7. With bShort it suits a narrow column: it is the abbreviated
    // name, or the shortest one where the locale does not abbreviate. Empty for another number.
    static CString GetDayName(int nDayOfWeek, bool bShort);

    // The name of a month from 1 to 12, in the form in which it stands alone, abbreviated if bShort is true.
    // Empty for another number.
    static CString GetMonthName(int nMonth, bool bShort);

    // The date as a user of the locale writes it, long or short. Any year; the weekday is 1 (Sunday) to 7.
    static CString FormatDate(int nYear, int nMonth, int nDay, int nDayOfWeek, bool bShort);

    // Makes the process follow the locale of that name, such as "nl-NL", for tests and for pictures in a
    // given language; the empty name stands for the user's own locale. False, with nothing changed, if the
    // system knows no such locale. To be called on the thread that uses the library, since nothing guards the
    // name.
    static bool SetLocale(const CString& strName);
};

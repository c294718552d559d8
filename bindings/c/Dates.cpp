// The functions of the interface that work with dates alone, and their words in the user's locale.
#include "DateValues.h"
#include "Result.h"
#include "Texts.h"

#include <Clock.h>
#include <LocaleUtils.h>

using namespace Zeb17;

namespace {

bool IsForm(int form)
{
    return form == ZEB17_LONG || form == ZEB17_SHORT;
}

int GiveName(int number, int last, int form, CString (*pName)(int, bool), char* buffer, uint32_t size,
             uint32_t* length)
{
    return Run([=] {
        if (number < 1 || number > last || !IsForm(form))
            return static_cast<int>(ZEB17_BAD_ARGUMENT);
        return GiveText(ToUtf8(pName(number, form == ZEB17_SHORT)), buffer, size, length);
    });
}

}

int zeb17_today(zeb17_date* date)
{
    return Run([=] {
        if (!date)
            return ZEB17_BAD_ARGUMENT;
        DateTime today;
        today.SetToCurrentDate();
        *date = FromDateTime(today);
        return ZEB17_OK;
    });
}

int zeb17_set_today(const zeb17_date* date)
{
    return Run([=] {
        if (!date) {
            Clock::Release();
            return ZEB17_OK;
        }
        if (!ToDateTime(date).IsValid())
            return ZEB17_BAD_DATE;
        Clock::SetToday(date->year, date->month, date->day);
        return ZEB17_OK;
    });
}

int zeb17_date_text(const zeb17_date* date, int form, char* buffer, uint32_t size, uint32_t* length)
{
    return Run([=]() -> int {
        if (!date || !IsForm(form))
            return ZEB17_BAD_ARGUMENT;
        const DateTime value = ToDateTime(date);
        if (!value.IsValid())
            return ZEB17_BAD_DATE;
        const CString text = DateTime::ConvertDateToText(value, false, false, false, form == ZEB17_SHORT);
        return GiveText(ToUtf8(text), buffer, size, length);
    });
}

int zeb17_month_name(int month, int form, char* buffer, uint32_t size, uint32_t* length)
{
    return GiveName(month, 12, form, &LocaleUtils::GetMonthName, buffer, size, length);
}

int zeb17_weekday_name(int weekday, int form, char* buffer, uint32_t size, uint32_t* length)
{
    return GiveName(weekday, 7, form, &LocaleUtils::GetDayName, buffer, size, length);
}

int zeb17_add_days(zeb17_date* date, int32_t days)
{
    return Run([=] {
        if (!date)
            return ZEB17_BAD_ARGUMENT;
        DateTime value = ToDateTime(date);
        const std::int64_t nDay = std::int64_t{value.m_nDayNumber} + days;
        if (!value.IsValid() || nDay < DayNumbers::kFirst || nDay > DayNumbers::kLast)
            return ZEB17_BAD_DATE;
        value.AddDays(days);
        *date = FromDateTime(value);
        return ZEB17_OK;
    });
}

int zeb17_weekday(const zeb17_date* date, int* weekday)
{
    return Run([=] {
        if (!date || !weekday)
            return ZEB17_BAD_ARGUMENT;
        const DateTime value = ToDateTime(date);
        if (!value.IsValid())
            return ZEB17_BAD_DATE;
        *weekday = value.GetDayOfWeek();
        return ZEB17_OK;
    });
}

int zeb17_set_locale(const char* name)
{
    return Run([=] {
        CString text;
        if (!FromUtf8(name, text))
            return ZEB17_BAD_TEXT;
        return LocaleUtils::SetLocale(text) ? ZEB17_OK : ZEB17_NOT_FOUND;
    });
}

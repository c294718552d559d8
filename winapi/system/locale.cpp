// Names of days and months, date formats and the first day of the week, from Qt.
#include "errors.h"
#include "winnls.h"

#include <QLocale>
#include <QString>

#include <algorithm>
#include <mutex>
#include <string>

using namespace winapi;

namespace {

// The locale that was asked for last, by its name. Any thread may ask.
struct LastLocale
{
    std::mutex mutex;
    std::u16string name;
    QLocale locale = QLocale::c();
};

QLocale localeFromName(LPCWSTR name)
{
    static auto& last = *new LastLocale;
    if (!name)
        return QLocale::system();
    const std::lock_guard lock(last.mutex);
    if (last.name != name) {
        last.locale = QLocale(QString::fromUtf16(name).replace('-', '_'));
        last.name = name;
    }
    return last.locale;
}

// LOCALE_SDAYNAME1 begins a run of 7 types, and so on: the place in the run, from 1; 0 for a type outside of
// it.
int numberInRun(LCTYPE type, LCTYPE first, int count)
{
    return type >= first && type < first + static_cast<LCTYPE>(count) ? static_cast<int>(type - first) + 1
                                                                      : 0;
}

QString monthName(const QLocale& locale, int month, QLocale::FormatType format, bool besideDay)
{
    return besideDay ? locale.monthName(month, format) : locale.standaloneMonthName(month, format);
}

QString localeInfo(const QLocale& locale, LCTYPE type, bool genitive)
{
    if (const int day = numberInRun(type, LOCALE_SDAYNAME1, 7))
        return locale.standaloneDayName(day, QLocale::LongFormat);
    if (const int day = numberInRun(type, LOCALE_SABBREVDAYNAME1, 7))
        return locale.standaloneDayName(day, QLocale::ShortFormat);
    if (const int day = numberInRun(type, LOCALE_SSHORTESTDAYNAME1, 7))
        return locale.standaloneDayName(day, QLocale::NarrowFormat);
    if (const int month = numberInRun(type, LOCALE_SMONTHNAME1, 12))
        return monthName(locale, month, QLocale::LongFormat, genitive);
    if (const int month = numberInRun(type, LOCALE_SABBREVMONTHNAME1, 12))
        return monthName(locale, month, QLocale::ShortFormat, genitive);
    switch (type) {
    case LOCALE_SLONGDATE:
        return locale.dateFormat(QLocale::LongFormat);
    case LOCALE_SSHORTDATE:
        return locale.dateFormat(QLocale::ShortFormat);
    case LOCALE_IFIRSTDAYOFWEEK:
        return QString::number(locale.firstDayOfWeek() - Qt::Monday);
    default:
        return {};
    }
}

int copyText(const QString& info, LPWSTR data, int size)
{
    const auto length = static_cast<int>(info.size()) + 1;
    if (size == 0)
        return length;
    if (size < length)
        return fail(ERROR_INSUFFICIENT_BUFFER);
    std::copy_n(reinterpret_cast<const WCHAR*>(info.utf16()), length, data);
    return length;
}

}

int GetLocaleInfoEx(LPCWSTR localeName, LCTYPE type, LPWSTR data, int size)
{
    if (localeName && !IsValidLocaleName(localeName))
        return fail(ERROR_INVALID_PARAMETER);
    const bool genitive = type & LOCALE_RETURN_GENITIVE_NAMES;
    const LCTYPE plainType = type & ~LOCALE_RETURN_GENITIVE_NAMES;
    const QString info = localeInfo(localeFromName(localeName), plainType, genitive);
    if (info.isNull())
        return fail(ERROR_INVALID_FLAGS);
    return copyText(info, data, size);
}

// Qt falls back to the C locale for a name that it does not know.
BOOL IsValidLocaleName(LPCWSTR localeName)
{
    return localeName && *localeName && localeFromName(localeName).language() != QLocale::C;
}

// Days, texts and colours, from Qt's form to the calendar's and back.
#pragma once

#include <DateTime.h>
#include <afx.h>

#include <QColor>
#include <QDate>
#include <QString>

namespace conversions {

// Day number 577738 of the calendar is 15 October 1582, whose Julian day number is 2299161.
inline constexpr qint64 kJulianDayBeforeFirst = 2299161 - DayNumbers::kFirstGregorian;

inline QDate toQDate(const DateTime& date)
{
    return date.IsValid() ? QDate::fromJulianDay(kJulianDayBeforeFirst + date.m_nDayNumber) : QDate();
}

// Gives no date for a day out of the calendar's range.
inline DateTime toDateTime(QDate date)
{
    DateTime converted;
    const qint64 number = date.isValid() ? date.toJulianDay() - kJulianDayBeforeFirst : DayNumbers::kNone;
    if (number >= DayNumbers::kFirst && number <= DayNumbers::kLast)
        converted.m_nDayNumber = static_cast<std::int32_t>(number);
    return converted;
}

inline QString toQString(const CString& text)
{
    return QString::fromUtf8(text.GetString());
}

inline CString toCString(const QString& text)
{
    return text.toUtf8().constData();
}

inline QColor toQColor(DWORD color)
{
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

inline DWORD toColorRef(const QColor& color)
{
    return RGB(color.red(), color.green(), color.blue());
}

}

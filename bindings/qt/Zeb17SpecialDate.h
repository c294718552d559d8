// A special date in Qt's terms: the rule that says on which days it falls, and what the user sees of it. For
// C++17, as Qt itself.
#pragma once

#include <zeb17_export.h>

#include <QColor>
#include <QDate>
#include <QString>
#include <QStringList>

// Says on which days of which years a special date falls. A value without a window, for any thread.
//
// Which members count depends on the kind; the others keep what they hold and play no part. The days and
// months are those that the calendar shows, so of the Julian calendar up to 4 October 1582. No operation
// throws: a rule of numbers that make no date is not valid, and falls on no day.
struct ZEB17_EXPORT Zeb17DateRule
{
    // What the rule counts from.
    enum Kind : int
    {
        NoRule,      // falls on no day
        OnDay,       // `day` of `month`, such as 25 December
        OnWeekday,   // the `occurrence` of `weekday` in `month`, such as the last Monday of May
        NearDay,     // the `nearWeekday` before or after `day` of `month`, never that day itself
        NearWeekday, // the `nearWeekday` before or after the `occurrence` of `weekday` in `month`
        WorkedOut    // by the calendar, such as from Easter; of national dates only
    };
    // Which of a month's days of one weekday the rule picks.
    enum Occurrence : int
    {
        First = 1,
        Second,
        Third,
        Fourth,
        Last = 7
    };
    // Where the rule looks for a weekday.
    enum Side : int
    {
        Before,
        After
    };
    // The years in which the rule holds.
    enum Years : int
    {
        EveryYear,
        EvenYears,
        FromYear,  // from `year` on; the calendar adds the number of years to the text
        UntilYear, // up to and including `year`
        InYear     // in `year` only: a date that happens once
    };

    Kind kind = NoRule;                     // which of the members below count
    int day = 1;                            // 1 to 31
    int month = 1;                          // 1 to 12
    Occurrence occurrence = First;          // of `weekday` in `month`
    Qt::DayOfWeek weekday = Qt::Monday;     // the weekday that `occurrence` counts
    Qt::DayOfWeek nearWeekday = Qt::Monday; // the weekday that is looked for
    Side side = After;                      // where it is looked for
    bool movesToWorkday = false;            // OnDay only: on a weekend it falls on the nearest working day
    Years years = EveryYear;                // in which years it holds
    int year = 0;                           // 1 to 9999, for FromYear, UntilYear and InYear

    // A rule of each kind, for every year.
    static Zeb17DateRule onDay(int day, int month);
    static Zeb17DateRule onWeekday(Occurrence occurrence, Qt::DayOfWeek weekday, int month);
    static Zeb17DateRule nearDay(Qt::DayOfWeek nearWeekday, Side side, int day, int month);
    static Zeb17DateRule nearTheWeekday(Qt::DayOfWeek nearWeekday, Side side, Occurrence occurrence,
                                        Qt::DayOfWeek weekday, int month);
    // A rule that falls on this one day; not valid if `date` is not valid or out of the calendar's range.
    static Zeb17DateRule once(QDate date);

    // The same rule in these years. `year` counts for FromYear, UntilYear and InYear.
    Zeb17DateRule in(Years years, int year = 0) const;

    // Whether the rule falls on a day in some year. A rule of the kind WorkedOut is valid.
    bool isValid() const;
    // Whether the rule falls on the day; false for the kind WorkedOut, of which only the calendar knows.
    bool fallsOn(QDate date) const;
    // The first day from `from` on on which the rule falls; an invalid date if there is none, and for the
    // kind WorkedOut.
    QDate nextDate(QDate from) const;

    // Whether all members are the same, also those that play no part.
    bool operator==(const Zeb17DateRule& other) const;
    bool operator!=(const Zeb17DateRule& other) const { return !(*this == other); }
};

// One special date: what the user reads, its look and its rule. A value, for any thread.
struct Zeb17SpecialDate
{
    QString text;       // one line
    QColor color;       // of the dot; opaque. Invalid in a date to be added: the colour of its group
    bool shown = true;  // a date that is not shown keeps its place in the list and in the file
    Zeb17DateRule rule; // when it falls

    // Whether all members are the same.
    bool operator==(const Zeb17SpecialDate& other) const
    {
        return text == other.text && color == other.color && shown == other.shown && rule == other.rule;
    }
    // Whether a member differs.
    bool operator!=(const Zeb17SpecialDate& other) const { return !(*this == other); }
};

// What is special about one day. A value, for any thread.
struct Zeb17SpecialDay
{
    QStringList texts; // those of the shown dates that fall on the day; empty for an ordinary day
    QColor color;      // of the day's dot; invalid for an ordinary day
};

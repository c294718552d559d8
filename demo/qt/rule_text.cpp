// Hands the rule, in numbers and with the names of the user's language, to the words that all desk calendars
// share.
#include "rule_text.h"

#include <rule_words.h>

#include <Zeb17CalendarWidget.h>

#include <QCoreApplication>
#include <QLocale>

namespace {

using Rule = Zeb17DateRule;

// The words count the days of the week from Sunday, 1; Qt counts from Monday, 1.
DeskRule toDeskRule(const Rule& rule)
{
    const bool byWeekday = rule.kind == Rule::OnWeekday || rule.kind == Rule::NearWeekday;
    const bool isNear = rule.kind == Rule::NearDay || rule.kind == Rule::NearWeekday;
    const int nearWeekday = (rule.nearWeekday % 7 + 1) * (rule.side == Rule::Before ? -1 : 1);
    DeskRule desk = {};
    desk.day = rule.day;
    desk.month = rule.month;
    desk.occurrence = byWeekday ? rule.occurrence : 0;
    desk.weekday = rule.weekday % 7 + 1;
    desk.nearWeekday = isNear ? nearWeekday : 0;
    desk.movesToWorkday = rule.kind == Rule::OnDay && rule.movesToWorkday;
    desk.years = deskYears[rule.years].value;
    desk.year = rule.year;
    return desk;
}

QString ruleWords(const Rule& rule)
{
    QList<QByteArray> names;
    for (const QString& name : monthNames() + weekdayNames())
        names << name.toUtf8();
    DeskNames desk = {};
    for (int i = 0; i < names.size(); ++i)
        (i < 12 ? desk.months[i] : desk.weekdays[i - 12]) = names[i].constData();
    char words[400];
    const DeskRule numbers = toDeskRule(rule);
    deskRuleWords(words, sizeof words, &numbers, &desk);
    return QString::fromUtf8(words);
}

}

QString describeRule(const Zeb17DateRule& rule)
{
    if (!rule.isValid())
        return QCoreApplication::translate("describeRule", "There is no such day.");
    const QDate next = rule.nextDate(Zeb17CalendarWidget::today());
    const QString date = next.isValid() ? QLocale().toString(next, QLocale::LongFormat)
                                        : QCoreApplication::translate("describeRule", "none");
    return QCoreApplication::translate("describeRule", "%1.\nNext: %2").arg(ruleWords(rule), date);
}

QStringList monthNames()
{
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names << QLocale().standaloneMonthName(month);
    return names;
}

QStringList weekdayNames()
{
    QStringList names;
    for (int day = 0; day < 7; ++day)
        names << QLocale().standaloneDayName(day == 0 ? 7 : day);
    return names;
}

// The rules of special dates in Qt's terms, made of the rules of the calendar's entries and made into them.
#include "date_entries.h"

#include "conversions.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <tuple>

using namespace conversions;

namespace {

using Rule = Zeb17DateRule;

struct YearsForm
{
    Rule::Years years;
    DateEntry::KIND kind;
};
constexpr YearsForm kYearsForms[] = {
    {Rule::EveryYear, DateEntry::KIND_EVERY_YEAR}, {Rule::EvenYears, DateEntry::KIND_EVEN_YEARS},
    {Rule::FromYear, DateEntry::KIND_FROM_YEAR},   {Rule::UntilYear, DateEntry::KIND_UNTIL_YEAR},
    {Rule::InYear, DateEntry::KIND_IN_YEAR},
};

// The calendar counts the days of the week from Sunday, 1; Qt from Monday, 1.
constexpr int toWeekday(Qt::DayOfWeek day)
{
    return day % 7 + 1;
}

constexpr Qt::DayOfWeek fromWeekday(int day)
{
    return static_cast<Qt::DayOfWeek>((day + 5) % 7 + 1);
}

static_assert(toWeekday(Qt::Sunday) == 1 && fromWeekday(1) == Qt::Sunday);
static_assert(toWeekday(Qt::Saturday) == 7 && fromWeekday(7) == Qt::Saturday);

int toSignedWeekday(const Rule& rule)
{
    return rule.side == Rule::Before ? -toWeekday(rule.nearWeekday) : toWeekday(rule.nearWeekday);
}

DateEntry::OCCURRENCE toOccurrence(Rule::Occurrence occurrence)
{
    return static_cast<DateEntry::OCCURRENCE>(occurrence);
}

void setRule(const Rule& rule, const CString& text, DateEntry& entry)
{
    switch (rule.kind) {
    case Rule::OnDay:
        entry.SetDay(text, rule.day, rule.month);
        break;
    case Rule::OnWeekday:
        entry.SetDayOfWeek(text, toOccurrence(rule.occurrence), toWeekday(rule.weekday), rule.month);
        break;
    case Rule::NearDay:
        entry.SetBeforeAfterDay(text, rule.day, rule.month, toSignedWeekday(rule));
        break;
    case Rule::NearWeekday:
        entry.SetBeforeAfterDayOfWeek(text, toOccurrence(rule.occurrence), toWeekday(rule.weekday),
                                      rule.month, toSignedWeekday(rule));
        break;
    case Rule::NoRule:
    case Rule::WorkedOut:
        entry.SetDesc(text);
        entry.m_nRuleWord = DateEntry::RULE_NONE;
        break;
    }
    entry.m_bRuleFlag = rule.kind == Rule::OnDay && rule.movesToWorkday;
    const auto* const form = std::ranges::find(kYearsForms, rule.years, &YearsForm::years);
    entry.m_nKind = form != std::end(kYearsForms) ? form->kind : DateEntry::KIND_EVERY_YEAR;
    entry.m_nStartYear = rule.year;
}

DateEntry toRuleEntry(const Rule& rule)
{
    DateEntry entry;
    setRule(rule, "rule", entry); // without a text no entry falls on a day
    return entry;
}

void takeNear(Rule& rule, int signedWeekday)
{
    rule.side = signedWeekday < 0 ? Rule::Before : Rule::After;
    rule.nearWeekday = fromWeekday(std::abs(signedWeekday));
}

void takeWeekday(Rule& rule, const std::int32_t (&numbers)[4])
{
    rule.occurrence = static_cast<Rule::Occurrence>(numbers[0]);
    rule.weekday = fromWeekday(numbers[1]);
    rule.month = numbers[2];
}

void takeDay(Rule& rule, const std::int32_t (&numbers)[4])
{
    rule.day = numbers[0];
    rule.month = numbers[1];
}

Rule ruleOf(const CalendarDateEntry& entry)
{
    Rule rule;
    if (entry.GetCalculated())
        rule.kind = Rule::WorkedOut;
    if (entry.GetCalculated() || !entry.IsValid()) // a data file may hold numbers that make no rule
        return rule;
    switch (entry.m_nRuleWord) {
    case DateEntry::RULE_DAY:
        rule.kind = Rule::OnDay;
        takeDay(rule, entry.m_anRule);
        break;
    case DateEntry::RULE_DAY_OF_WEEK:
        rule.kind = Rule::OnWeekday;
        takeWeekday(rule, entry.m_anRule);
        break;
    case DateEntry::RULE_NEAR_DAY:
        rule.kind = Rule::NearDay;
        takeDay(rule, entry.m_anRule);
        takeNear(rule, entry.m_anRule[2]);
        break;
    case DateEntry::RULE_NEAR_DAY_OF_WEEK:
        rule.kind = Rule::NearWeekday;
        takeWeekday(rule, entry.m_anRule);
        takeNear(rule, entry.m_anRule[3]);
        break;
    default:
        break;
    }
    rule.movesToWorkday = rule.kind == Rule::OnDay && entry.m_bRuleFlag;
    const auto* const form = std::ranges::find(kYearsForms, entry.m_nKind, &YearsForm::kind);
    rule.years = form != std::end(kYearsForms) ? form->years : Rule::EveryYear;
    rule.year = entry.m_nStartYear;
    return rule;
}

auto membersOf(const Rule& rule)
{
    return std::tie(rule.kind, rule.day, rule.month, rule.occurrence, rule.weekday, rule.nearWeekday,
                    rule.side, rule.movesToWorkday, rule.years, rule.year);
}

bool isMatch(const DateEntry& entry, const DateTime& date)
{
    int year = 0, month = 0, day = 0;
    date.GetDate(year, month, day);
    return entry.IsMatch(day, month, year);
}

bool hasYear(const Rule& rule)
{
    const bool needsYear =
        rule.years == Rule::FromYear || rule.years == Rule::UntilYear || rule.years == Rule::InYear;
    return !needsYear || (rule.year >= DayNumbers::kMinYear && rule.year <= DayNumbers::kMaxYear);
}

}

Zeb17DateRule Zeb17DateRule::onDay(int day, int month)
{
    Zeb17DateRule rule;
    rule.kind = OnDay;
    rule.day = day;
    rule.month = month;
    return rule;
}

Zeb17DateRule Zeb17DateRule::onWeekday(Occurrence occurrence, Qt::DayOfWeek weekday, int month)
{
    Zeb17DateRule rule;
    rule.kind = OnWeekday;
    rule.occurrence = occurrence;
    rule.weekday = weekday;
    rule.month = month;
    return rule;
}

Zeb17DateRule Zeb17DateRule::nearDay(Qt::DayOfWeek nearWeekday, Side side, int day, int month)
{
    Zeb17DateRule rule = onDay(day, month);
    rule.kind = NearDay;
    rule.nearWeekday = nearWeekday;
    rule.side = side;
    return rule;
}

Zeb17DateRule Zeb17DateRule::nearTheWeekday(Qt::DayOfWeek nearWeekday, Side side, Occurrence occurrence,
                                            Qt::DayOfWeek weekday, int month)
{
    Zeb17DateRule rule = onWeekday(occurrence, weekday, month);
    rule.kind = NearWeekday;
    rule.nearWeekday = nearWeekday;
    rule.side = side;
    return rule;
}

Zeb17DateRule Zeb17DateRule::once(QDate date)
{
    const DateTime day = toDateTime(date);
    return day.IsValid() ? onDay(day.GetDay(), day.GetMonth()).in(InYear, day.GetYear()) : Zeb17DateRule();
}

Zeb17DateRule Zeb17DateRule::in(Years newYears, int newYear) const
{
    Zeb17DateRule rule = *this;
    rule.years = newYears;
    rule.year = newYear;
    return rule;
}

bool Zeb17DateRule::isValid() const
{
    return kind == WorkedOut || (hasYear(*this) && toRuleEntry(*this).IsValid());
}

bool Zeb17DateRule::fallsOn(QDate date) const
{
    const DateTime day = toDateTime(date);
    return day.IsValid() && isMatch(toRuleEntry(*this), day);
}

QDate Zeb17DateRule::nextDate(QDate from) const
{
    DayNumbers::Date parts{};
    toDateTime(from).GetDate(parts.nYear, parts.nMonth, parts.nDay);
    const auto next = toRuleEntry(*this).FindNext(parts);
    return next ? toQDate(DateTime(next->nYear, next->nMonth, next->nDay, 0, 0, 0)) : QDate();
}

bool Zeb17DateRule::operator==(const Zeb17DateRule& other) const
{
    return membersOf(*this) == membersOf(other);
}

Zeb17SpecialDate date_entries::fromEntry(const CalendarDateEntry& entry)
{
    return {toQString(entry.m_strDesc), toQColor(entry.GetColor()), entry.GetShow(), ruleOf(entry)};
}

bool date_entries::isComplete(const Zeb17SpecialDate& date)
{
    const bool oneLine = !date.text.contains(QLatin1Char('\n')) && !date.text.contains(QLatin1Char('\r'));
    return oneLine && !date.text.trimmed().isEmpty() && date.rule.kind != Zeb17DateRule::WorkedOut &&
           date.rule.isValid();
}

void date_entries::toEntry(const Zeb17SpecialDate& date, CalendarDateEntry& entry)
{
    setRule(date.rule, toCString(date.text.trimmed()), entry);
    entry.SetColor(toColorRef(date.color));
    entry.SetShow(date.shown);
}

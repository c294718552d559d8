#include "Rules.h"

#include <LocaleUtils.h>

#include <algorithm>
#include <cstdlib>

namespace {

using enum RulePart;
constexpr RulePart kDayParts[] = {Day, Month};
constexpr RulePart kDayOfWeekParts[] = {Occurrence, DayOfWeek, Month};
constexpr RulePart kNearDayParts[] = {Day, Month, SignedDayOfWeek};
constexpr RulePart kNearDayOfWeekParts[] = {Occurrence, DayOfWeek, Month, SignedDayOfWeek};

constexpr RuleForm kForms[] = {
    {DateEntry::RULE_DAY, "A day of the year", kDayParts},
    {DateEntry::RULE_DAY_OF_WEEK, "A weekday of a month", kDayOfWeekParts},
    {DateEntry::RULE_NEAR_DAY, "A weekday before or after a day", kNearDayParts},
    {DateEntry::RULE_NEAR_DAY_OF_WEEK, "A weekday before or after another", kNearDayOfWeekParts},
};

constexpr Choice kOccurrences[] = {
    {DateEntry::OCCURRENCE_FIRST, "first"}, {DateEntry::OCCURRENCE_SECOND, "second"},
    {DateEntry::OCCURRENCE_THIRD, "third"}, {DateEntry::OCCURRENCE_FOURTH, "fourth"},
    {DateEntry::OCCURRENCE_LAST, "last"},
};

constexpr Choice kYearLimits[] = {
    {DateEntry::KIND_EVERY_YEAR, "Every year"},    {DateEntry::KIND_EVEN_YEARS, "Even years"},
    {DateEntry::KIND_FROM_YEAR, "From the year"},  {DateEntry::KIND_UNTIL_YEAR, "Until the year"},
    {DateEntry::KIND_IN_YEAR, "Only in the year"},
};

const RuleForm* FormOf(const DateEntry& entry)
{
    const auto* const form =
        std::ranges::find(kForms, entry.m_nRuleWord, [](const RuleForm& one) { return one.rule; });
    return form == std::end(kForms) ? nullptr : form;
}

int PartOf(const DateEntry& entry, const RuleForm& form, RulePart part)
{
    return entry.m_anRule[std::ranges::find(form.parts, part) - form.parts.begin()];
}

const char* OccurrenceName(int value)
{
    const auto* const found = std::ranges::find(kOccurrences, value, &Choice::value);
    return found == std::end(kOccurrences) ? "" : found->name;
}

CString DescribeYears(const DateEntry& entry)
{
    CString words;
    if (entry.m_nKind == DateEntry::KIND_EVEN_YEARS)
        words = ", in even years";
    else if (entry.m_nKind == DateEntry::KIND_FROM_YEAR)
        words.Format(", from %d on", static_cast<int>(entry.m_nStartYear));
    else if (entry.m_nKind == DateEntry::KIND_UNTIL_YEAR)
        words.Format(", until %d", static_cast<int>(entry.m_nStartYear));
    else if (entry.m_nKind == DateEntry::KIND_IN_YEAR)
        words.Format(", in %d only", static_cast<int>(entry.m_nStartYear));
    return words;
}

}

bool RuleForm::Has(RulePart part) const
{
    return std::ranges::find(parts, part) != parts.end();
}

std::span<const RuleForm> RuleForms()
{
    return kForms;
}

std::span<const Choice> Occurrences()
{
    return kOccurrences;
}

std::span<const Choice> YearLimits()
{
    return kYearLimits;
}

CString DescribeRule(const DateEntry& entry)
{
    const RuleForm* const form = FormOf(entry);
    if (form == nullptr)
        return {};
    const auto part = [&](RulePart one) { return PartOf(entry, *form, one); };
    const CString month = LocaleUtils::GetMonthName(part(Month), false);
    CString words;
    if (form->Has(Occurrence))
        words.Format("the %s %s of %s", OccurrenceName(part(Occurrence)),
                     LocaleUtils::GetDayName(part(DayOfWeek), false).GetString(), month.GetString());
    else
        words.Format("%d %s", part(Day), month.GetString());
    if (form->Has(SignedDayOfWeek)) {
        const int day = part(SignedDayOfWeek);
        CString relation;
        relation.Format("the %s %s ", LocaleUtils::GetDayName(std::abs(day), false).GetString(),
                        day < 0 ? "before" : "after");
        words = relation + words;
    }
    if (entry.m_bRuleFlag && form->rule == DateEntry::RULE_DAY)
        words += ", or the nearest working day";
    if (words[0] == 't')
        words.SetAt(0, 'T');
    return words + DescribeYears(entry);
}

std::optional<DateTime> FindNext(const DateEntry& entry)
{
    constexpr int kDays = 9 * 366; // 29 February can be eight years away
    DateTime date;
    date.SetToCurrentDate();
    const bool begins =
        entry.m_nKind == DateEntry::KIND_FROM_YEAR || entry.m_nKind == DateEntry::KIND_IN_YEAR;
    if (begins && entry.m_nStartYear > date.GetYear())
        date.SetDate(entry.m_nStartYear, 1, 1);
    for (int i = 0; i < kDays && date.IsValid(); ++i, date.AddDays(1)) {
        int year = 0, month = 0, day = 0;
        date.GetDate(year, month, day);
        if (entry.IsMatch(day, month, year))
            return date;
    }
    return std::nullopt;
}

CString DescribeNext(const DateEntry& entry)
{
    const std::optional<DateTime> next = FindNext(entry);
    if (!next)
        return "Next: none";
    return "Next: " + DateTime::ConvertDateToText(*next, false, false, false, false);
}

#include "Rules.h"

#include <LocaleUtils.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

using enum RulePart;
constexpr RulePart kDayParts[] = {Day, Month};
constexpr RulePart kDayOfWeekParts[] = {Occurrence, DayOfWeek, Month};
constexpr RulePart kNearDayParts[] = {Day, Month, SignedDayOfWeek};
constexpr RulePart kNearDayOfWeekParts[] = {Occurrence, DayOfWeek, Month, SignedDayOfWeek};

constexpr RuleForm kForms[] = {
    {DateEntry::RULE_DAY, kDayParts},
    {DateEntry::RULE_DAY_OF_WEEK, kDayOfWeekParts},
    {DateEntry::RULE_NEAR_DAY, kNearDayParts},
    {DateEntry::RULE_NEAR_DAY_OF_WEEK, kNearDayOfWeekParts},
};

const RuleForm* FormOf(const DateEntry& entry)
{
    const auto* const form =
        std::ranges::find(kForms, entry.m_nRuleWord, [](const RuleForm& one) { return one.rule; });
    return form == std::end(kForms) ? nullptr : form;
}

// 0 for a part that the rule does not have.
int PartOf(const DateEntry& entry, const RuleForm& form, RulePart part)
{
    const auto found = std::ranges::find(form.parts, part);
    return found == form.parts.end() ? 0 : entry.m_anRule[found - form.parts.begin()];
}

DeskRule ToDeskRule(const DateEntry& entry, const RuleForm& form)
{
    const auto part = [&](RulePart one) { return PartOf(entry, form, one); };
    DeskRule rule = {};
    rule.day = part(Day);
    rule.month = part(Month);
    rule.occurrence = part(Occurrence);
    rule.weekday = part(DayOfWeek);
    rule.nearWeekday = part(SignedDayOfWeek);
    rule.movesToWorkday = entry.m_bRuleFlag && form.rule == DateEntry::RULE_DAY;
    rule.years = entry.m_nKind;
    rule.year = entry.m_nStartYear;
    return rule;
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

CString DescribeRule(const DateEntry& entry)
{
    const RuleForm* const form = FormOf(entry);
    if (form == nullptr)
        return {};
    std::vector<CString> texts;
    for (int month = 1; month <= 12; ++month)
        texts.push_back(LocaleUtils::GetMonthName(month, false));
    for (int day = 1; day <= 7; ++day)
        texts.push_back(LocaleUtils::GetDayName(day, false));
    DeskNames names = {};
    std::copy_n(texts.begin(), 12, names.months);
    std::copy_n(texts.begin() + 12, 7, names.weekdays);
    std::array<char, 400> words = {};
    const DeskRule rule = ToDeskRule(entry, *form);
    deskRuleWords(words.data(), words.size(), &rule, &names);
    return words.data();
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

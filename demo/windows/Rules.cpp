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

CString DescribeNext(const DateEntry& entry)
{
    DateTime date;
    date.SetToCurrentDate();
    DayNumbers::Date today{};
    date.GetDate(today.nYear, today.nMonth, today.nDay);
    const auto next = entry.FindNext(today);
    if (!next)
        return "Next: none";
    date.SetDate(next->nYear, next->nMonth, next->nDay);
    return "Next: " + DateTime::ConvertDateToText(date, false, false, false, false);
}

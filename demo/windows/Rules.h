// The rules of dates, as the editor takes them apart and as words for the user.
#pragma once

#include <rule_words.h>

#include <DateEntry.h>
#include <DateTime.h>

#include <span>

// The numbers that a rule is made of.
enum class RulePart
{
    Day,
    Month,
    Occurrence,
    DayOfWeek,
    SignedDayOfWeek,
};

// A kind of rule, in the order of deskRuleKinds, and its parts in the order in which m_anRule holds them.
struct RuleForm
{
    DateEntry::RULE rule;
    std::span<const RulePart> parts;

    bool Has(RulePart part) const;
};

std::span<const RuleForm> RuleForms();

// "The fourth Thursday of November, from 2020", empty without a rule.
CString DescribeRule(const DateEntry& entry);
// "Next: Thursday, November 26, 2026", or that there is none.
CString DescribeNext(const DateEntry& entry);

// One special date: a rule that says when it falls, and what the user reads.
#pragma once

#include "DayNumbers.h"

#include <afx.h>

#include <zeb17_export.h>

#include <cstdint>
#include <optional>

class ZEB17_EXPORT DateEntry
{
public:
    // Which of a month's days of one weekday a rule picks.
    enum OCCURRENCE : int
    {
        OCCURRENCE_FIRST = 1,
        OCCURRENCE_SECOND = 2,
        OCCURRENCE_THIRD = 3,
        OCCURRENCE_FOURTH = 4,
        OCCURRENCE_LAST = 7,
    };

    // The years in which the rule holds. Other values hold every year.
    enum KIND
    {
        KIND_EVERY_YEAR = 0,
        KIND_EVEN_YEARS = 2, // elections
        KIND_FROM_YEAR = 4,  // from m_nStartYear on
        KIND_UNTIL_YEAR = 5, // up to and including m_nStartYear
        KIND_IN_YEAR = 6,    // in m_nStartYear only: a date that happens once
    };

    // The rule of m_nRuleWord, and what lies in m_anRule; the setters below write both.
    enum RULE : std::int32_t
    {
        RULE_NONE = 0,
        RULE_DAY = 1,              // day, month
        RULE_DAY_OF_WEEK = 2,      // occurrence, day of week, month
        RULE_NEAR_DAY = 3,         // day, month, signed day of week
        RULE_NEAR_DAY_OF_WEEK = 4, // occurrence, day of week, month, signed day of week
    };

    // A blank entry, which matches no date until a rule is set.
    DateEntry() = default;
    virtual ~DateEntry() = default;
    DateEntry(const DateEntry&) = default;
    DateEntry& operator=(const DateEntry&) = default;

    // Stores or loads all members. Loading throws a CArchiveException: with the cause badSchema for a record
    // of an unknown form, with endOfFile for a record that is cut off.
    virtual void Serialize(CArchive& archive);

    // Whether there is a description and a rule that falls on a date in some year.
    virtual bool IsValid() const;

    // What the user reads; the rule stays.
    void SetDesc(const CString& strDesc);

    // The rules. Each call sets the description too, and replaces the rule that was set before; the limit of
    // years stays. Months are 1 to 12, days of the week 1 (Sunday) to 7 (Saturday). A negative
    // nSignedDayOfWeek stands for the nearest such day of the week before the date that the other arguments
    // give, a positive one for the nearest after it; never for that date itself.
    void SetDay(const CString& strDesc, int nDay, int nMonth);
    void SetDayOfWeek(const CString& strDesc, OCCURRENCE occurrence, int nDayOfWeek, int nMonth);
    void SetBeforeAfterDay(const CString& strDesc, int nDay, int nMonth, int nSignedDayOfWeek);
    void SetBeforeAfterDayOfWeek(const CString& strDesc, OCCURRENCE occurrence, int nDayOfWeek, int nMonth,
                                 int nSignedDayOfWeek);

    // Whether the rule falls on the date; false for numbers that are no date. A weekday before or after
    // another date is looked for from that date in nYear only: the day that a rule picks for one year and
    // that lies in the year before or after it never matches.
    bool IsMatch(int nDay, int nMonth, int nYear) const
    {
        return MayFallIn(nMonth) && IsMatchInMonth(nDay, nMonth, nYear);
    }

    // The first date on which the rule falls, from that one on. Nothing if there is none, or if `date` is no
    // date.
    std::optional<DayNumbers::Date> FindNext(DayNumbers::Date date) const;

    std::int32_t m_nRuleWord = RULE_NONE;   // a RULE
    std::int32_t m_nKind = KIND_EVERY_YEAR; // the limit of years, a KIND
    bool m_bRuleFlag = false;               // a fixed date that is kept on the nearest working day
    std::int32_t m_anRule[4] = {};          // the numbers of the rule, see RULE
    std::int32_t m_nStartYear = 0;          // the year of the limit
    std::int32_t m_nID = 0;                 // the number by which the data file knows a national entry
    CString m_strDesc;                      // what the user reads

private:
    // Whether the rule can fall on a day of the month: most entries are passed over by this one look at the
    // month of the rule, which stands in m_anRule[1] by odd rules and in m_anRule[2] by even ones. A rule
    // that counts from a day, or moves it, reaches the neighbouring months.
    bool MayFallIn(int nMonth) const
    {
        const auto nRuleMonth = static_cast<std::uint32_t>(m_anRule[2 - (m_nRuleWord & 1)]);
        const auto nReach = static_cast<std::uint32_t>((m_nRuleWord >= RULE_NEAR_DAY) | m_bRuleFlag);
        return static_cast<std::uint32_t>(nMonth) - nRuleMonth + nReach <= 2 * nReach;
    }
    bool IsMatchInMonth(int nDay, int nMonth, int nYear) const;
    bool HoldsInYear(int nYear) const;
    bool HasCompleteRule() const;
    bool IsMatchFixed(int nDay, int nMonth, int nYear) const;
    bool IsMatchDayOfWeek(int nDay, int nMonth, int nYear) const;
    bool IsMatchNear(int nDay, int nMonth, int nYear) const;
    std::int32_t FindAnchor(int nYear) const;
    void SetRule(const CString& strDesc, std::int32_t nRuleWord, const std::int32_t (&anRule)[4]);
};

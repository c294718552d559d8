// A special date of the calendar: a date entry with a show flag and a colour.
#pragma once

#include <DateEntry.h>

class ZEB17_EXPORT CalendarDateEntry : public DateEntry
{
public:
    // A blank entry: shown, white, not calculated.
    CalendarDateEntry() = default;

    // An entry that is not shown takes no part in lookups.
    void SetShow(bool bShow) { m_bShow = bShow; }
    bool GetShow() const { return m_bShow; }

    // A calculated entry has no rule: its group works its date out, and finds the entry by its id.
    void SetCalculated(bool bCalculated) { m_bCalculated = bCalculated; }
    bool GetCalculated() const { return m_bCalculated; }

    // The colour is 0x00BBGGRR.
    void SetColor(DWORD dwColor) { m_dwColor = dwColor; }
    DWORD GetColor() const { return m_dwColor; }

    // As DateEntry::IsValid; but a calculated entry needs nothing besides a description.
    bool IsValid() const override;

    // Stores or loads the whole entry besides the calculated flag. Failures are the archive's exceptions.
    void Serialize(CArchive& archive) override;

    // The values that the operations above set and give.
    bool m_bShow = true;
    bool m_bCalculated = false;
    DWORD m_dwColor = 0xFFFFFF;
};

// A special date of the calendar: a date entry with what the calendar shows of it.
#pragma once

#include <DateEntry.h>

class ZEB17_EXPORT CalendarDateEntry : public DateEntry
{
public:
    // A blank entry, shown, with its own rule, in white.
    CalendarDateEntry() = default;

    // An entry that is not shown takes no part in lookups.
    void SetShow(bool bShow) { m_bShow = bShow; }
    bool GetShow() const { return m_bShow; }

    // A calculated entry has no rule; its group works its date out and knows it by its id.
    void SetCalculated(bool bCalculated) { m_bCalculated = bCalculated; }
    bool GetCalculated() const { return m_bCalculated; }

    // 0x00BBGGRR.
    void SetColor(DWORD dwColor) { m_dwColor = dwColor; }
    DWORD GetColor() const { return m_dwColor; }

    // As DateEntry; a calculated entry needs a description only.
    bool IsValid() const override;

    // Stores or loads the entry with all but the calculated flag. Failures are the archive's exceptions.
    void Serialize(CArchive& archive) override;

    // What the operations above set and give.
    bool m_bShow = true;
    bool m_bCalculated = false;
    DWORD m_dwColor = 0xFFFFFF;
};

// When an entry of the calendar is complete, and how it is stored.
#include "CalendarDateEntry.h"

#include <SerializeData.h>

bool CalendarDateEntry::IsValid() const
{
    return m_bCalculated ? !m_strDesc.IsEmpty() : DateEntry::IsValid();
}

void CalendarDateEntry::Serialize(CArchive& archive)
{
    DateEntry::Serialize(archive);

    WORD wVersion = 1;
    if (archive.IsStoring())
        archive << wVersion;
    else
        archive >> wVersion; // there is one form, so the word decides nothing
    SerializeData::Serialize(archive, m_bShow);
    if (archive.IsStoring())
        archive << m_dwColor;
    else
        archive >> m_dwColor;
}

// The stored forms of a flag and of a count of records.
#include "SerializeData.h"

#include <cstdint>

void SerializeData::Serialize(CArchive& archive, bool& bValue)
{
    if (archive.IsStoring()) {
        archive << static_cast<BYTE>(bValue ? 1 : 0);
        return;
    }
    BYTE byValue = 0;
    archive >> byValue;
    bValue = byValue != 0;
}

size_t SerializeData::SerializeLoopCounter(CArchive& archive, size_t nCount, bool bOldForm)
{
    if (archive.IsStoring()) {
        archive << static_cast<ULONGLONG>(nCount);
        return nCount;
    }
    if (bOldForm) {
        WORD wCount = 0;
        archive >> wCount;
        return wCount;
    }
    ULONGLONG nStored = 0;
    archive >> nStored;
    return static_cast<size_t>(nStored);
}

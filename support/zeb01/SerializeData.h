// The stored forms of flags and of counts.
#pragma once

#include <afx.h>

#include <zeb17_export.h>

#include <cstddef>

// Each operation stores or loads, as the archive does. Loading beyond the end of the file throws a
// CArchiveException.
class ZEB17_EXPORT SerializeData
{
public:
    // A flag in one byte. Storing writes 0 or 1; loading takes any value but 0 for true.
    static void Serialize(CArchive& archive, bool& bValue);

    // The number of records that follow. Storing writes nCount in 64 bits and returns it. Loading ignores
    // nCount and returns the number that it reads, which has 16 bits if bOldForm is true and 64 bits
    // otherwise.
    static size_t SerializeLoopCounter(CArchive& archive, size_t nCount, bool bOldForm);
};

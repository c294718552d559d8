// The small values of the data file that have a form of their own.
#pragma once

#include <afx.h>

#include <zeb17_export.h>

#include <cstddef>

// The direction of the archive decides between storing and loading. A short archive ends in the archive's own
// exception.
class ZEB17_EXPORT SerializeData
{
public:
    // A flag, in one byte: 0 or 1 stored, anything but 0 read as true.
    static void Serialize(CArchive& archive, bool& bValue);

    // The number of records that follow. Storing writes nCount and returns it, always in the current form of
    // 64 bits; loading ignores nCount and returns what it read, in the older form of 16 bits if bOldForm is
    // set.
    static size_t SerializeLoopCounter(CArchive& archive, size_t nCount, bool bOldForm);
};

// The user's own dates.
#pragma once

#include "UserDates.h"

class DatesCustom : public UserDates
{
public:
    // Stores or loads the entries; loading ends the old ones as soon as the section has begun. Beside the
    // failures of the archive, a count that no list could hold throws std::length_error.
    void Serialize(CArchive& archive) override;

    // The id of the next new entry, for all lists of the process. Stored in the data file.
    static DWORD s_nNextCustomID;

private:
    void LoadBareEntries(CArchive& archive, size_t nCount);
};

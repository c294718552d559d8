// The user's own dates.
#pragma once

#include "UserDates.h"

class DatesCustom : public UserDates
{
public:
    // Stores or loads the entries. Loading deletes the old entries once the first word of the section is
    // read. Failures are the archive's exceptions, and std::length_error for a count that no list could hold.
    void Serialize(CArchive& archive) override;

    // The id that the next new entry gets, in whatever list of the process. The data file stores it.
    static DWORD s_nNextCustomID;

private:
    void LoadBareEntries(CArchive& archive, size_t nCount);
};

// The user's to-do list.
#pragma once

#include "UserDates.h"

class DatesToDo : public UserDates
{
public:
    // As DatesCustom::Serialize.
    void Serialize(CArchive& archive) override;

    // The id of the next new entry, for all lists of the process. Never stored.
    static DWORD s_nNextToDoID;
};

// The user's to-do list.
#pragma once

#include "UserDates.h"

class DatesToDo : public UserDates
{
public:
    // As DatesCustom::Serialize.
    void Serialize(CArchive& archive) override;

    // The id that the next new entry gets, in whatever list of the process. It is never stored.
    static DWORD s_nNextToDoID;
};

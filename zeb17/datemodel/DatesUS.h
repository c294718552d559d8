// The special dates of the United States, ids 0 to 41.
#pragma once

#include "Dates.h"

class DatesUS : public Dates
{
public:
    DatesUS();

    bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const override;
};

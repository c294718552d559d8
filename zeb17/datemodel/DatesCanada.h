// The special dates of Canada, ids 100 to 139.
#pragma once

#include "Dates.h"

class DatesCanada : public Dates
{
public:
    DatesCanada();

    bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const override;
};

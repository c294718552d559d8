// The special dates of the Netherlands, ids 200 to 221.
#pragma once

#include "Dates.h"

class DatesNetherlands : public Dates
{
public:
    DatesNetherlands();

    bool Lookup(int nDay, int nMonth, int nYear, CString& strDesc, DWORD& dwColor) const override;
};

// Numbers as text.
#pragma once

#include <afx.h>

class ZEB17_EXPORT NumberTextConv
{
public:
    // The decimal digits of the number, with a minus sign before them if it is negative. bPlusSign puts a
    // plus sign before a number above 0. Zeros make nMinDigits digits of fewer. strSuffix is appended.
    static CString NumberToString(int nNumber, bool bPlusSign, int nMinDigits, const CString& strSuffix);

    // The number with which the text begins, after blanks; 0 if it begins with none, or with one that is too
    // large for an int.
    static int GetNumberFromString(const CString& strText);
};

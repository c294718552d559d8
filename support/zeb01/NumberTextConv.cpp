// Numbers to text and back.
#include "NumberTextConv.h"

#include <charconv>

CString NumberTextConv::NumberToString(int nNumber, bool bPlusSign, int nMinDigits, const CString& strSuffix)
{
    CString strNumber;
    if (bPlusSign && nNumber > 0)
        strNumber.Format("+%.*d", nMinDigits > 0 ? nMinDigits : 1, nNumber);
    else
        strNumber.Format("%.*d", nMinDigits > 0 ? nMinDigits : 1, nNumber);
    return strNumber + strSuffix;
}

int NumberTextConv::GetNumberFromString(const CString& strText)
{
    CString strNumber = strText;
    strNumber.TrimLeft();
    if (strNumber.Left(1) == "+" && strNumber.Mid(1, 1) != "-")
        strNumber = strNumber.Mid(1);

    int nNumber = 0;
    const char* const szNumber = strNumber;
    std::from_chars(szNumber, szNumber + strNumber.GetLength(), nNumber);
    return nNumber; // still 0 if the text begins with none
}

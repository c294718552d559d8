// Numbers to text and back.
#include "NumberTextConv.h"

#include <charconv>
#include <iterator>
#include <limits>

CString NumberTextConv::NumberToString(int nNumber, bool bPlusSign, int nMinDigits, const CString& strSuffix)
{
    char digits[std::numeric_limits<unsigned>::digits10 + 1];
    const unsigned nDistance =
        nNumber < 0 ? 0U - static_cast<unsigned>(nNumber) : static_cast<unsigned>(nNumber);
    const int nDigits =
        static_cast<int>(std::to_chars(std::begin(digits), std::end(digits), nDistance).ptr - digits);
    CString strNumber;
    if (nNumber < 0)
        strNumber += '-';
    else if (bPlusSign && nNumber > 0)
        strNumber += '+';
    if (nMinDigits > nDigits)
        strNumber += CString('0', nMinDigits - nDigits);
    strNumber += CString(digits, nDigits);
    return strNumber += strSuffix;
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

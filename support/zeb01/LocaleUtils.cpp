// Names from the system's locale data, and dates by the patterns that stand there. The system's own call for
// that does not take all years.
#include "LocaleUtils.h"

#include "DatePattern.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

WideText g_strLocale; // empty: the user's own

const WCHAR* GetLocaleName()
{
    return g_strLocale.empty() ? LOCALE_NAME_USER_DEFAULT : g_strLocale.c_str();
}

// Empty if the locale has no such information.
WideText GetInfo(LCTYPE nType)
{
    constexpr int kLongestInfo =
        80; // of those that are asked for here, with the null, as the system documents
    WCHAR info[kLongestInfo];
    const int nLength = GetLocaleInfoEx(GetLocaleName(), nType, info, kLongestInfo);
    return nLength > 0 ? WideText(info, static_cast<std::size_t>(nLength) - 1) : WideText();
}

// nMonday is the type of information that Monday's name is, the first of seven.
WideText GetDayInfo(int nDayOfWeek, LCTYPE nMonday)
{
    if (nDayOfWeek < 1 || nDayOfWeek > 7)
        return {};
    return GetInfo(nMonday + static_cast<LCTYPE>((nDayOfWeek + 5) % 7));
}

WideText GetMonthInfo(int nMonth, bool bShort, bool bBesideDay)
{
    if (nMonth < 1 || nMonth > 12)
        return {};
    const LCTYPE nType =
        (bShort ? LOCALE_SABBREVMONTHNAME1 : LOCALE_SMONTHNAME1) + static_cast<LCTYPE>(nMonth - 1);
    const WideText strName = bBesideDay ? GetInfo(nType | LOCALE_RETURN_GENITIVE_NAMES) : WideText();
    return strName.empty() ? GetInfo(nType) : strName;
}

WideText ToDigits(int nNumber, std::size_t nMinDigits)
{
    std::string strDigits = std::to_string(nNumber);
    if (strDigits.size() < nMinDigits)
        strDigits.insert(0, nMinDigits - strDigits.size(), '0');
    return WideText(strDigits.begin(), strDigits.end());
}

struct DateParts
{
    int nYear;
    int nMonth;
    int nDay;
    int nDayOfWeek;
};

// One or two letters of a kind stand for a number, more of them for a name. The year is written with its
// century also where the pattern leaves that out, so that 1924 and 2024 differ.
WideText FormatPiece(const DatePattern::Piece& piece, const DateParts& date, bool bBesideDay)
{
    switch (piece.letter) {
    case 'd':
        return piece.nCount < 3 ? ToDigits(date.nDay, piece.nCount)
                                : GetDayInfo(date.nDayOfWeek,
                                             piece.nCount == 3 ? LOCALE_SABBREVDAYNAME1 : LOCALE_SDAYNAME1);
    case 'M':
        return piece.nCount < 3 ? ToDigits(date.nMonth, piece.nCount)
                                : GetMonthInfo(date.nMonth, piece.nCount == 3, bBesideDay);
    case 'y':
        return ToDigits(date.nYear, 1);
    default:
        return piece.strText;
    }
}

bool IsDayNumber(const DatePattern::Piece& piece)
{
    return piece.letter == 'd' && piece.nCount < 3;
}

}

int LocaleUtils::GetFirstDayOfWeek()
{
    const WideText strDay = GetInfo(LOCALE_IFIRSTDAYOFWEEK);
    const int nFromMonday = strDay.empty() ? 6 : strDay.front() - '0';
    return (nFromMonday + 1) % 7 + 1;
}

CString LocaleUtils::GetDayName(int nDayOfWeek, bool bShort)
{
    const WideText strFull = GetDayInfo(nDayOfWeek, LOCALE_SDAYNAME1);
    if (!bShort)
        return FromWide(strFull);
    const WideText strShort = GetDayInfo(nDayOfWeek, LOCALE_SABBREVDAYNAME1);
    if (strShort != strFull)
        return FromWide(strShort);
    const WideText strShortest = GetDayInfo(nDayOfWeek, LOCALE_SSHORTESTDAYNAME1);
    return FromWide(strShortest.empty() ? strFull : strShortest);
}

CString LocaleUtils::GetMonthName(int nMonth, bool bShort)
{
    return FromWide(GetMonthInfo(nMonth, bShort, false));
}

CString LocaleUtils::FormatDate(int nYear, int nMonth, int nDay, int nDayOfWeek, bool bShort)
{
    const auto vPieces = DatePattern::Split(GetInfo(bShort ? LOCALE_SSHORTDATE : LOCALE_SLONGDATE));
    const bool bBesideDay = std::any_of(vPieces.begin(), vPieces.end(), IsDayNumber);
    WideText strDate;
    for (const DatePattern::Piece& piece : vPieces)
        strDate += FormatPiece(piece, {nYear, nMonth, nDay, nDayOfWeek}, bBesideDay);
    CString strText = FromWide(strDate);
    strText.TrimLeft(); // what stood behind an era
    return strText;
}

bool LocaleUtils::SetLocale(const CString& strName)
{
    const WideText strLocale = ToWide(strName);
    if (!strLocale.empty() && !IsValidLocaleName(strLocale.c_str()))
        return false;
    g_strLocale = strLocale;
    return true;
}

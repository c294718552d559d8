// Splits date patterns.
#include "DatePattern.h"

#include <algorithm>

namespace DatePattern {

namespace {

constexpr WCHAR kEra = 'g';

constexpr bool IsLetter(WCHAR ch)
{
    return ch == 'd' || ch == 'M' || ch == 'y';
}

void AddText(std::vector<Piece>& vPieces, WideTextView strText)
{
    vPieces.push_back({0, 0, WideText(strText)});
}

void RemoveBlanksAtEnd(std::vector<Piece>& vPieces)
{
    if (vPieces.empty())
        return;
    WideText& strText = vPieces.back().strText;
    while (!strText.empty() && strText.back() == ' ')
        strText.pop_back();
}

// Takes the quoted text at the beginning off the pattern, and gives it without quotes. A doubled quote stands
// for one quote.
WideTextView TakeQuoted(WideTextView& strPattern)
{
    const std::size_t nEnd = std::min(strPattern.find('\'', 1), strPattern.size());
    const WideTextView strText = nEnd == 1 ? strPattern.substr(0, 1) : strPattern.substr(1, nEnd - 1);
    strPattern.remove_prefix(std::min(nEnd + 1, strPattern.size()));
    return strText;
}

}

std::vector<Piece> Split(WideTextView strPattern)
{
    std::vector<Piece> vPieces;
    while (!strPattern.empty()) {
        const WCHAR ch = strPattern.front();
        if (ch == '\'') {
            AddText(vPieces, TakeQuoted(strPattern));
            continue;
        }
        const std::size_t nRun = std::min(strPattern.find_first_not_of(ch), strPattern.size());
        if (IsLetter(ch))
            vPieces.push_back({ch, nRun, {}});
        else if (ch == kEra)
            RemoveBlanksAtEnd(vPieces);
        else
            AddText(vPieces, strPattern.substr(0, nRun));
        strPattern.remove_prefix(nRun);
    }
    return vPieces;
}

}

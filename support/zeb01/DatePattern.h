// The patterns by which a locale writes dates, such as "d 'de' MMMM 'de' yyyy".
#pragma once

#include <WideText.h>

#include <cstddef>
#include <vector>

namespace DatePattern {

// A run of one pattern letter (d, M or y), or text that stands for itself.
struct Piece
{
    WCHAR letter; // 0: text
    std::size_t nCount;
    WideText strText;
};

// The pieces of a pattern, in their order. The letters of an era are left out, with the blanks before them.
std::vector<Piece> Split(WideTextView strPattern);

}

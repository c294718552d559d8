// Tells fast, of most texts that a long text does not hold, that it does not hold them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// Marks every piece of eight bytes of a text that only grows, in a table of bits with one hash: the filter of
// Bloom (1970). A text of which one piece is not marked cannot be a part. So the joining of many texts takes
// the time of their length, and not of its square.
class SeenPieces
{
public:
    // False if strPart is surely no part of strAll. strAll is the text of the call before, or begins with it.
    bool MayHold(std::string_view strAll, std::string_view strPart);

private:
    void MarkUpTo(std::string_view strAll);
    std::size_t PlaceOf(const char* pPiece) const;

    std::vector<bool> m_vMarks; // a power of two of them
    std::size_t m_nMarked = 0;  // where in the text the first piece begins that is not marked yet
};

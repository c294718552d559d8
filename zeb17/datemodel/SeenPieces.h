// Rules out quickly that a long text holds another text.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// Marks each piece of eight bytes of a growing text in a table of bits, with one hash function: the filter of
// Bloom (1970). Another text with a piece that is not marked cannot be a part of the growing text. So joining
// many texts takes time by their length, and not by its square.
class SeenPieces
{
public:
    // False if strPart is surely no part of strAll. strAll is the text of the call before, or begins with it.
    bool MayHold(std::string_view strAll, std::string_view strPart);

private:
    void MarkUpTo(std::string_view strAll);
    std::size_t PlaceOf(const char* pPiece) const;

    std::vector<bool> m_vMarks; // their number is a power of two
    std::size_t m_nMarked = 0;  // how many pieces, which overlap, are marked already
};

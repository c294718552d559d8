// The table of bits, and the place of a piece in it.
#include "SeenPieces.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace {

constexpr std::size_t kPiece = sizeof(std::uint64_t);

// A shorter text is searched as fast without the table.
constexpr std::size_t kLeastLength = 1024;

// Bits of the table for each byte of text. The more there are, the rarer two pieces share a bit.
constexpr std::size_t kBitsPerByte = 8;

}

bool SeenPieces::MayHold(std::string_view strAll, std::string_view strPart)
{
    if (strAll.size() < kLeastLength || strPart.size() < kPiece)
        return true;
    MarkUpTo(strAll);
    for (std::size_t i = 0; i + kPiece <= strPart.size(); ++i)
        if (!m_vMarks[PlaceOf(strPart.data() + i)])
            return false;
    return true;
}

void SeenPieces::MarkUpTo(std::string_view strAll)
{
    if (m_vMarks.size() < kBitsPerByte * strAll.size()) {
        m_vMarks.assign(2 * std::bit_ceil(kBitsPerByte * strAll.size()), false);
        m_nMarked = 0;
    }
    for (; m_nMarked + kPiece <= strAll.size(); ++m_nMarked)
        m_vMarks[PlaceOf(strAll.data() + m_nMarked)] = true;
}

// Multiplicative hashing (Knuth, 1973): the upper bits of the product with the golden ratio.
std::size_t SeenPieces::PlaceOf(const char* pPiece) const
{
    std::uint64_t nPiece;
    std::memcpy(&nPiece, pPiece, kPiece);
    return static_cast<std::size_t>(nPiece * 0x9E3779B97F4A7C15U >> (65 - std::bit_width(m_vMarks.size())));
}

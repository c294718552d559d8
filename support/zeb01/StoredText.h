// Texts that can be read in the sources and are enciphered in the program:
//
//     const std::vector<int> kSpring = StoredText<6>("Spring");
//     ... StringUtils::DecryptText(kSpring) ...
//
// The number is the length of the text; another length does not compile. The compiler enciphers, so the clear
// text does not reach the program. The cipher hides texts from a casual look at the file, and no more.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace TextCipher {

// The key of a character grows with its place, so that equal letters differ.
constexpr int Key(std::size_t nIndex)
{
    return static_cast<int>((nIndex * 7919 + 271) % 1021) + 128;
}

// The stored integer of the character at that place.
constexpr int Encipher(char ch, std::size_t nIndex)
{
    return static_cast<unsigned char>(ch) ^ Key(nIndex);
}

// The inverse of Encipher.
constexpr char Decipher(int nValue, std::size_t nIndex)
{
    return static_cast<char>((nValue ^ Key(nIndex)) & 0xFF);
}

}

template <std::size_t Length>
class StoredText
{
public:
    // Plain ASCII only, since the 8-bit text of the program has another code page on each system.
    consteval StoredText(const char (&text)[Length + 1])
    {
        for (std::size_t i = 0; i < Length; ++i) {
            if (text[i] <= 0)
                throw "A stored text is made of the ASCII characters from 1 to 127";
            m_anText[i] = TextCipher::Encipher(text[i], i);
        }
    }

    // One integer a character.
    operator std::vector<int>() const { return {m_anText.begin(), m_anText.end()}; }

private:
    std::array<int, Length> m_anText{};
};

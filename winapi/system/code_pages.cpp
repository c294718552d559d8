// Conversion between 8-bit text, which is UTF-8, and 16-bit text, which is UTF-16; copying of 8-bit text.
#include "errors.h"
#include "winnls.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

using namespace winapi;

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kInvalid = 0xFFFFFFFF;

bool isSurrogate(char32_t ch)
{
    return ch >= 0xD800 && ch <= 0xDFFF;
}

// Takes one character off the beginning of the text. Gives kInvalid for bytes that are no UTF-8.
char32_t take(std::string_view& text)
{
    struct Form
    {
        unsigned char mask, lead;
        std::size_t length;
        char32_t least;
    };
    constexpr Form kForms[] = {
        {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

    const auto lead = static_cast<unsigned char>(text.front());
    const auto* form = std::find_if(std::begin(kForms), std::end(kForms),
                                    [lead](const Form& f) { return (lead & f.mask) == f.lead; });
    char32_t ch = form == std::end(kForms) ? kInvalid : lead & static_cast<unsigned char>(~form->mask);
    std::size_t length = 1;
    for (; ch != kInvalid && length < form->length; ++length) {
        const auto next = static_cast<unsigned char>(length < text.size() ? text[length] : 0);
        if ((next & 0xC0) != 0x80)
            break;
        ch = ch << 6 | (next & 0x3F);
    }
    text.remove_prefix(length);
    const bool valid = ch != kInvalid && length == form->length && ch >= form->least && ch <= 0x10FFFF;
    return valid && !isSurrogate(ch) ? ch : kInvalid;
}

char32_t take(std::u16string_view& text)
{
    const char32_t first = text.front();
    text.remove_prefix(1);
    if (!isSurrogate(first))
        return first;
    const char32_t second = text.empty() ? 0 : text.front();
    if (first > 0xDBFF || second < 0xDC00 || second > 0xDFFF)
        return kInvalid;
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void append(std::u16string& text, char32_t ch)
{
    if (ch < 0x10000) {
        text += static_cast<char16_t>(ch);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((ch - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + (ch & 0x3FF));
}

void append(std::string& text, char32_t ch)
{
    const int followers = ch < 0x80 ? 0 : ch < 0x800 ? 1 : ch < 0x10000 ? 2 : 3;
    constexpr unsigned char kLeads[] = {0x00, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(kLeads[followers] | ch >> (6 * followers));
    for (int i = followers - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | (ch >> (6 * i) & 0x3F));
}

// What both calls do: converts, and copies the result to the caller if it fits.
template <class From, class To>
int convert(const From* text, int size, To* result, int resultSize, bool strict)
{
    if (!text || size == 0 || size < -1 || resultSize < 0)
        return fail(ERROR_INVALID_PARAMETER);
    std::basic_string_view<From> rest(text, size < 0 ? std::char_traits<From>::length(text) + 1
                                                     : static_cast<std::size_t>(size));
    std::basic_string<To> converted;
    while (!rest.empty()) {
        const char32_t ch = take(rest);
        if (ch == kInvalid && strict)
            return fail(ERROR_NO_UNICODE_TRANSLATION);
        append(converted, ch == kInvalid ? kReplacement : ch);
    }

    const auto length = static_cast<int>(converted.size());
    if (resultSize == 0)
        return length;
    if (length > resultSize)
        return fail(ERROR_INSUFFICIENT_BUFFER);
    std::copy(converted.begin(), converted.end(), result);
    return length;
}

}

int MultiByteToWideChar(UINT, DWORD flags, LPCSTR text, int size, LPWSTR wide, int wideSize)
{
    return convert(text, size, wide, wideSize, flags & MB_ERR_INVALID_CHARS);
}

int WideCharToMultiByte(UINT, DWORD, LPCWSTR wide, int wideSize, LPSTR text, int size, LPCSTR,
                        LPBOOL usedDefaultChar)
{
    if (usedDefaultChar)
        *usedDefaultChar = FALSE;
    return convert(wide, wideSize, text, size, false);
}

BOOL IsDBCSLeadByte(BYTE)
{
    return FALSE;
}

LPSTR lstrcpynA(LPSTR destination, LPCSTR source, int size)
{
    if (!destination || !source || size <= 0)
        return size == 0 ? destination : nullptr;
    const std::size_t length = std::min(std::strlen(source), static_cast<std::size_t>(size) - 1);
    std::memmove(destination, source, length);
    destination[length] = '\0';
    return destination;
}

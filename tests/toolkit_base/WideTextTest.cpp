// Conversion between 8-bit and 16-bit text.
#include <WideText.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using Units = std::vector<unsigned>;

Units UnitsOf(const WideText& wide)
{
    return Units(wide.begin(), wide.end());
}

TEST(WideText, ConvertsUtf8BothWays)
{
    const std::pair<const char*, Units> kCases[] = {
        {"", {}},
        {"Mei", {'M', 'e', 'i'}},
        {"\x7F\xC2\x80\xDF\xBF", {0x7F, 0x80, 0x7FF}},
        {"\xE0\xA0\x80\xEF\xBF\xBD", {0x800, 0xFFFD}},
        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", {0xD800, 0xDC00, 0xDBFF, 0xDFFF}},
    };
    for (const auto& [text, units] : kCases) {
        const WideText wide = ToWide(text, CP_UTF8);
        EXPECT_EQ(UnitsOf(wide), units) << text;
        EXPECT_EQ(FromWide(wide, CP_UTF8), text);
    }
}

TEST(WideText, ReplacesWhatIsNoUtf8)
{
    // A lone follower, a cut character, an overlong slash, a surrogate, one behind the last, a bad lead.
    for (const char* text : {"\x80", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"})
        EXPECT_NE(ToWide(text, CP_UTF8).find(WCHAR(0xFFFD)), WideText::npos) << text;
}

TEST(WideText, BecomesASubstituteWhereItIsNoText)
{
    const WideText lone(1, WCHAR(0xD800));
    EXPECT_EQ(FromWide(lone, CP_UTF8), "\xEF\xBF\xBD");
}

}

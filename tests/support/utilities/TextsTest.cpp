// Stored texts, arrays of texts and numbers as text.
#include <NumberTextConv.h>
#include <StoredText.h>
#include <StringUtils.h>
#include <TextArray.h>

#include <gtest/gtest.h>

#include <climits>

namespace {

const std::vector<int> kSpring = StoredText<6>("Spring");
const std::vector<int> kNothing = StoredText<0>("");

TEST(StoredText, ComesBack)
{
    EXPECT_EQ(StringUtils::DecryptText(kSpring), "Spring");
    EXPECT_EQ(StringUtils::DecryptText(kNothing), "");
}

TEST(StoredText, WhatIsNoneStillGivesAText)
{
    EXPECT_EQ(StringUtils::DecryptText({INT_MIN, -1, 0, INT_MAX}).GetLength(), 4);
}

TEST(StringUtils, MakesAmpersandsLiteral)
{
    CString text("R&D && &");
    StringUtils::EscapeAmpersand(text);
    EXPECT_EQ(text, "R&&D &&&& &&");
}

TEST(TextArray, FindsWithAndWithoutCase)
{
    CStringList list;
    for (const char* text : {"US", "Canada", "canada"})
        list.AddTail(text);
    TextArray array;
    array.Add("old");
    array.CopyFromList(list);
    ASSERT_EQ(array.GetSize(), 3u);
    struct Case
    {
        const char* text;
        bool matchCase;
        bool found;
        std::size_t index;
    };
    constexpr Case kCases[] = {{"canada", true, true, 2}, {"canada", false, true, 1}, {"old", true, false, 3},
                               {"us", true, false, 3},    {"us", false, true, 0},     {"", true, false, 3}};
    for (const auto& [text, matchCase, found, index] : kCases) {
        bool isFound = !found;
        EXPECT_EQ(array.Find(text, matchCase, isFound), index) << text;
        EXPECT_EQ(isFound, found) << text;
    }
}

TEST(NumberTextConv, WritesAndReads)
{
    struct Written
    {
        int number;
        bool plus;
        int digits;
        const char* suffix;
        const char* text;
    };
    constexpr Written kWritten[] = {
        {2007, false, 0, "", "2007"}, {0, false, 0, "", "0"},       {INT_MIN, false, 0, "", "-2147483648"},
        {7, true, 3, "%", "+007%"},   {-7, true, 2, " C", "-07 C"}, {0, true, 0, "", "0"},
    };
    for (const auto& [number, plus, digits, suffix, text] : kWritten)
        EXPECT_EQ(NumberTextConv::NumberToString(number, plus, digits, suffix), text);

    struct Read
    {
        const char* text;
        int number;
    };
    constexpr Read kRead[] = {{"2007", 2007},    {"  33", 33},
                              {"-5", -5},        {"+5", 5},
                              {"+-5", 0},        {"", 0},
                              {"May", 0},        {"12 May", 12},
                              {"0x10", 0},       {"- 5", 0},
                              {"\t\n9", 9},      {"2147483647", INT_MAX},
                              {"2147483648", 0}, {"99999999999999999999", 0}};
    for (const auto& [text, number] : kRead)
        EXPECT_EQ(NumberTextConv::GetNumberFromString(text), number) << text;
}

}

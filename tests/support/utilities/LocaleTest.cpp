// Week, names and dates of several locales, as both platforms know them.
#include <DatePattern.h>
#include <LocaleUtils.h>
#include <WideText.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class Locale : public testing::Test
{
protected:
    ~Locale() override { LocaleUtils::SetLocale(""); }
};

TEST_F(Locale, KnowsTheWeekAndTheNames)
{
    struct Case
    {
        const char* locale;
        int firstDay;
        const char* sunday;
        const char* shortMonday;
        const char* may;
    };
    constexpr Case kCases[] = {{"en-US", 1, "Sunday", "Mon", "May"},
                               {"nl-NL", 2, "zondag", "ma", "mei"},
                               {"de-DE", 2, "Sonntag", "Mo", "Mai"}};
    for (const auto& [locale, firstDay, sunday, shortMonday, may] : kCases) {
        ASSERT_TRUE(LocaleUtils::SetLocale(locale));
        EXPECT_EQ(LocaleUtils::GetFirstDayOfWeek(), firstDay) << locale;
        EXPECT_EQ(LocaleUtils::GetDayName(1, false), sunday);
        EXPECT_EQ(LocaleUtils::GetDayName(2, true).Left(2), CString(shortMonday).Left(2));
        EXPECT_EQ(LocaleUtils::GetMonthName(5, false), may);
        for (const int none : {0, -1, 13, 100}) {
            EXPECT_EQ(LocaleUtils::GetDayName(none, true), "");
            EXPECT_EQ(LocaleUtils::GetMonthName(none, false), "");
        }
    }
}

// Where a locale does not abbreviate the names of days, the shortest ones suit a narrow column.
TEST_F(Locale, ShortNamesOfDaysAreShort)
{
    for (const char* locale : {"fa-IR", "en-US", "pt-BR", "ja-JP"}) {
        ASSERT_TRUE(LocaleUtils::SetLocale(locale));
        for (int day = 1; day <= 7; ++day)
            EXPECT_LE(ToWide(LocaleUtils::GetDayName(day, true)).size(), 4u) << locale;
        EXPECT_GT(ToWide(LocaleUtils::GetDayName(4, false)).size(), 2u) << locale;
    }
}

TEST_F(Locale, WritesDates)
{
    ASSERT_TRUE(LocaleUtils::SetLocale("en-US"));
    EXPECT_EQ(LocaleUtils::FormatDate(2007, 5, 4, 6, false), "Friday, May 4, 2007");
    EXPECT_EQ(LocaleUtils::FormatDate(1924, 5, 4, 1, true), "5/4/1924") << "with the century";
    for (const char* locale : {"es-ES", "pt-BR"}) {
        ASSERT_TRUE(LocaleUtils::SetLocale(locale));
        const CString text = "14 de " + LocaleUtils::GetMonthName(12, false) + " de 2007";
        EXPECT_NE(LocaleUtils::FormatDate(2007, 12, 14, 6, false).Find(text), -1) << "quoted text";
        EXPECT_EQ(LocaleUtils::FormatDate(2007, 12, 14, 6, true), "14/12/2007");
    }

    ASSERT_TRUE(LocaleUtils::SetLocale("nl-NL"));
    EXPECT_EQ(LocaleUtils::FormatDate(2007, 5, 4, 6, false).Find("vrijdag 4 mei 2007"), 0);

    // The system's own call does not take so early a year.
    ASSERT_TRUE(LocaleUtils::SetLocale("en-US"));
    EXPECT_EQ(LocaleUtils::FormatDate(33, 4, 3, 6, false), "Friday, April 3, 33");
}

// The text that a pattern writes between its numbers and names, which stand as a digit for how many letters.
std::string Outline(const char* pattern)
{
    std::string outline;
    for (const DatePattern::Piece& piece : DatePattern::Split(ToWide(pattern)))
        outline += piece.letter ? char(piece.letter) + std::to_string(piece.nCount)
                                : FromWide(piece.strText).GetString();
    return outline;
}

TEST(DatePatterns, AreSplitIntoLettersAndText)
{
    EXPECT_EQ(Outline("dddd, d 'de' MMMM 'de' yyyy"), "d4, d1 de M4 de y4");
    EXPECT_EQ(Outline("d/M/yy"), "d1/M1/y2");
    EXPECT_EQ(Outline("d''MMM"), "d1'M3");
    EXPECT_EQ(Outline("d MMMM yyyy g"), "d1 M4 y4") << "without the era";
    EXPECT_EQ(Outline("gg y-MM-d"), " y1-M2-d1");
    EXPECT_EQ(Outline("d MMM 'unended"), "d1 M3 unended");
}

TEST_F(Locale, PutsTheMonthInTheCaseThatTheDayAsksFor)
{
    ASSERT_TRUE(LocaleUtils::SetLocale("pl-PL"));
    EXPECT_EQ(LocaleUtils::GetMonthName(5, false), "maj");
    EXPECT_NE(LocaleUtils::FormatDate(2007, 5, 4, 6, false).Find("4 maja 2007"), -1);
}

TEST_F(Locale, RefusesAnUnknownName)
{
    ASSERT_TRUE(LocaleUtils::SetLocale("nl-NL"));
    EXPECT_FALSE(LocaleUtils::SetLocale("not a locale"));
    EXPECT_EQ(LocaleUtils::GetMonthName(5, false), "mei");
}

}

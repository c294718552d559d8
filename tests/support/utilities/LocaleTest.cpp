// Week, names and dates of several locales, as both platforms know them.
#include <LocaleUtils.h>

#include <WideText.h>

#include <gtest/gtest.h>

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

TEST_F(Locale, WritesDates)
{
    ASSERT_TRUE(LocaleUtils::SetLocale("en-US"));
    EXPECT_EQ(LocaleUtils::FormatDate(2007, 5, 4, 6, false), "Friday, May 4, 2007");
    const CString shortForm = LocaleUtils::FormatDate(2007, 5, 4, 6, true);
    EXPECT_TRUE(shortForm == "5/4/2007" || shortForm == "5/4/07") << shortForm.GetString();

    ASSERT_TRUE(LocaleUtils::SetLocale("nl-NL"));
    EXPECT_EQ(LocaleUtils::FormatDate(2007, 5, 4, 6, false).Find("vrijdag 4 mei 2007"), 0);

    // The system's own call does not take so early a year.
    ASSERT_TRUE(LocaleUtils::SetLocale("en-US"));
    EXPECT_EQ(LocaleUtils::FormatDate(33, 4, 3, 6, false), "Friday, April 3, 0033");
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

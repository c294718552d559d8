#include <CalendarWnd.h>
#include <LocaleUtils.h>
#include <StringUtils.h>
#include <ZEBButton.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

class PageCalendar : public CCalendarWnd
{
public:
    using CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE;
    using CCalendarWnd::m_bAllowWebPage;
    using CCalendarWnd::m_date;
    using CCalendarWnd::m_pMonthYearButton;
    using CCalendarWnd::m_pParent;
    using CCalendarWnd::OnOptionsGeneratewebpage;
};

class PromptedParent : public CWnd
{
public:
    PromptedParent()
    {
        CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP, CRect(0, 0, 300, 300), nullptr, 0);
    }
    ~PromptedParent() override { DestroyWindow(); }

    std::vector<std::pair<WPARAM, LPARAM>> m_prompts;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE)
            m_prompts.emplace_back(wParam, lParam);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

struct Cell
{
    std::string strClass;
    std::string strText;

    bool operator==(const Cell&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Cell& cell)
{
    return out << cell.strClass << '|' << cell.strText;
}

class WebPageTest : public testing::Test
{
protected:
    WebPageTest()
    {
        const auto* pInfo = testing::UnitTest::GetInstance()->current_test_info();
        m_directory = std::filesystem::temp_directory_path() / (std::string("zeb17_page_") + pInfo->name());
        std::filesystem::remove_all(m_directory);
        std::filesystem::create_directories(m_directory);
        EXPECT_TRUE(LocaleUtils::SetLocale("en-US"));
    }
    ~WebPageTest() override
    {
        LocaleUtils::SetLocale("");
        std::filesystem::remove_all(m_directory);
    }

    CString GetPath() const { return (m_directory / "month.html").string().c_str(); }

    std::string ReadPage() const
    {
        std::ifstream in(m_directory / "month.html", std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::vector<std::string> Save(const DateTime& date)
    {
        calendar.m_date = date;
        EXPECT_TRUE(calendar.SaveCalendarWebPage(GetPath()));
        std::vector<std::string> lines;
        std::istringstream in(ReadPage());
        for (std::string strLine; std::getline(in, strLine);)
            lines.push_back(strLine.substr(0, strLine.find('\r')));
        return lines;
    }

    static std::vector<Cell> ParseRow(const std::string& strLine)
    {
        static const std::regex reRow("        (<div class=\"[a-z ]+\">[^<]*</div>){7}");
        static const std::regex reCell("<div class=\"([a-z ]+)\">([^<]*)</div>");
        EXPECT_TRUE(std::regex_match(strLine, reRow)) << strLine;
        std::vector<Cell> cells;
        for (std::sregex_iterator it(strLine.begin(), strLine.end(), reCell), end; it != end; ++it)
            cells.push_back({(*it)[1], (*it)[2]});
        return cells;
    }

    PageCalendar calendar;
    std::filesystem::path m_directory;
};

// The block worked out day by day: cell 0 is the first day of the week on or before the first of the month.
std::vector<Cell> WalkMonth(int nYear, int nMonth)
{
    DateTime day(nYear, nMonth, 1, 0, 0, 0);
    while (day.GetDayOfWeek() != LocaleUtils::GetFirstDayOfWeek())
        day.AddDays(-1);
    std::vector<Cell> cells;
    for (int i = 0; i < 42; ++i, day.AddDays(1)) {
        const bool bShown = day.GetMonth() == nMonth;
        std::string strClass = bShown ? "day " : i < 7 ? "prior" : "next ";
        if (bShown || i >= 7)
            strClass += std::string(i >= 35 ? "b" : "") + (i % 7 == 6 ? "r" : "");
        cells.push_back({strClass, std::to_string(day.GetDay())});
    }
    return cells;
}

TEST_F(WebPageTest, CellsOfEveryMonthStandInTheirPlaces)
{
    for (const auto& [pszLocale, nFirst] :
         {std::pair("en-US", 1), std::pair("nl-NL", 2), std::pair("ar-EG", 7)}) {
        ASSERT_TRUE(LocaleUtils::SetLocale(pszLocale));
        ASSERT_EQ(LocaleUtils::GetFirstDayOfWeek(), nFirst);
        for (int nMonth = 1; nMonth <= 12 * 12; ++nMonth) { // every weekday begins every length of month
            const int nYear = 2015 + (nMonth - 1) / 12;
            const int nOfYear = (nMonth - 1) % 12 + 1;
            const auto lines = Save(DateTime(nYear, nOfYear, 15, 0, 0, 0));
            ASSERT_EQ(lines.size(), 40u);
            std::vector<Cell> cells;
            for (std::size_t i = 31; i < 37; ++i)
                for (const Cell& cell : ParseRow(lines[i]))
                    cells.push_back(cell);
            ASSERT_EQ(cells, WalkMonth(nYear, nOfYear)) << pszLocale << ' ' << nYear << '-' << nOfYear;
        }
    }
}

TEST_F(WebPageTest, NamesBeginWithTheFirstDayOfTheWeek)
{
    ASSERT_TRUE(LocaleUtils::SetLocale("nl-NL"));
    const auto cells = ParseRow(Save(DateTime(2026, 9, 1, 0, 0, 0)).at(30));
    ASSERT_EQ(cells.size(), 7u);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(cells[i], (Cell{i == 6 ? "wd r" : "wd ",
                                  LocaleUtils::GetDayName((i + 1) % 7 + 1, true).GetString()}));
}

TEST_F(WebPageTest, FixedLinesHaveTheirLengths)
{
    const auto lines = Save(DateTime(2026, 9, 1, 0, 0, 0));
    const std::size_t lengths[] = {109, 67,  6,   68,  16 + 8, 23,  4,   38,  34,  3, 4, 130, 155, 148,   194,
                                   178, 167, 151, 150, 134,    165, 149, 148, 132, 3, 8, 7,   6,   8 + 5, 22};
    ASSERT_EQ(lines.size(), 40u);
    for (std::size_t i = 0; i < std::size(lengths); ++i)
        EXPECT_EQ(lines[i].size(), lengths[i]) << i + 1;
    EXPECT_EQ(lines[37].size(), 10u);
    EXPECT_EQ(lines[38].size(), 7u);
    EXPECT_EQ(lines[39].size(), 7u);
}

TEST_F(WebPageTest, TitleStandsTwiceAndKeepsItsCharacters)
{
    PromptedParent parent;
    ASSERT_TRUE(calendar.Create(5, CRect(0, 0, 210, 200), false, &parent, true, true, true, false));
    calendar.m_pMonthYearButton->SetWindowText("<Q&A> \"May\" 2026");
    const auto lines = Save(DateTime(2026, 5, 1, 0, 0, 0));
    const std::string strTitle = "&lt;Q&amp;A&gt; &quot;May&quot; 2026";
    EXPECT_EQ(lines.at(4), "         <title>" + strTitle + "</title>");
    EXPECT_EQ(lines.at(28), "    <h1>" + strTitle + "</h1>");
    calendar.DestroyWindow();
}

TEST_F(WebPageTest, WithoutADateNoFileIsTouched)
{
    calendar.m_date = DateTime();
    EXPECT_FALSE(calendar.SaveCalendarWebPage(GetPath()));
    EXPECT_TRUE(std::filesystem::is_empty(m_directory));
}

TEST_F(WebPageTest, FailureLeavesAnOlderPageAsItWas)
{
    Save(DateTime(2026, 5, 1, 0, 0, 0));
    const std::string strOld = ReadPage();
    // A directory in the way of the page fails on every system, whoever the user is.
    std::filesystem::create_directory(m_directory / "taken.html");
    EXPECT_FALSE(calendar.SaveCalendarWebPage((m_directory / "taken.html").string().c_str()));
    EXPECT_FALSE(calendar.SaveCalendarWebPage((m_directory / "missing" / "month.html").string().c_str()));
    EXPECT_EQ(ReadPage(), strOld);
    EXPECT_TRUE(std::filesystem::is_directory(m_directory / "taken.html"));
    int nEntries = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(m_directory))
        ++nEntries;
    EXPECT_EQ(nEntries, 2);
}

TEST_F(WebPageTest, CommandAsksTheParentIfThereIsOne)
{
    calendar.OnOptionsGeneratewebpage();
    PromptedParent parent;
    ASSERT_TRUE(calendar.Create(5, CRect(0, 0, 210, 200), false, &parent, true, true, false, false));
    calendar.OnOptionsGeneratewebpage();
    EXPECT_EQ(parent.m_prompts, (std::vector<std::pair<WPARAM, LPARAM>>{{5, 0}}));
    calendar.DestroyWindow();
}

}

// The lines of the web page.
#include <CalendarWnd.h>
#include <LocaleUtils.h>
#include <ZEBButton.h>

#include <TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>

namespace {

class PageCalendar : public CCalendarWnd
{
public:
    using CCalendarWnd::m_date;
    using CCalendarWnd::m_pMonthYearButton;
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
    WebPageTest() { LocaleUtils::SetLocale("en-US"); }
    ~WebPageTest() override { LocaleUtils::SetLocale(""); }

    bool SaveTo(const char* strName)
    {
        return calendar.SaveCalendarWebPage(directory.PathOf(strName).c_str());
    }

    std::vector<std::string> Save(const DateTime& date)
    {
        calendar.m_date = date;
        EXPECT_TRUE(SaveTo("month.html"));
        std::vector<std::string> lines;
        std::istringstream in(directory.Read("month.html"));
        for (std::string strLine; std::getline(in, strLine);)
            lines.push_back(strLine.substr(0, strLine.find('\r')));
        EXPECT_EQ(lines.size(), 40u);
        lines.resize(40);
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
    TemporaryDirectory directory;
};

// The block worked out day by day: cell 0 is the first day of the week on or before the first of the month.
std::vector<Cell> WalkMonth(DateTime day)
{
    const int nMonth = day.GetMonth();
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

}

TEST_F(WebPageTest, CellsOfEveryMonthStandInTheirPlaces)
{
    for (const auto& [strLocale, nFirst] :
         {std::pair("en-US", 1), std::pair("nl-NL", 2), std::pair("ar-EG", 7)}) {
        ASSERT_TRUE(LocaleUtils::SetLocale(strLocale));
        ASSERT_EQ(LocaleUtils::GetFirstDayOfWeek(), nFirst);
        DateTime first(2015, 1, 1, 0, 0, 0);
        for (; first.GetYear() < 2027; first.AddMonths(1)) { // every weekday begins every length of month
            DateTime shown = first;
            shown.AddDays(14);
            const auto lines = Save(shown);
            std::vector<Cell> cells;
            for (std::size_t i = 31; i < 37; ++i)
                for (const Cell& cell : ParseRow(lines[i]))
                    cells.push_back(cell);
            ASSERT_EQ(cells, WalkMonth(first)) << strLocale << ' ' << lines[28];
        }
        const auto names = ParseRow(Save(first)[30]);
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(names.at(static_cast<std::size_t>(i)),
                      (Cell{i == 6 ? "wd r" : "wd ",
                            LocaleUtils::GetDayName((nFirst - 1 + i) % 7 + 1, true).GetString()}));
    }
}

TEST_F(WebPageTest, FixedLinesHaveTheirLengths)
{
    constexpr std::size_t kRow = 0; // its cells are looked at above
    const std::size_t lengths[] = {109,  67,   6,    68,   16 + 8, 23,   4,    38,  34,    3,
                                   4,    130,  155,  148,  194,    178,  167,  151, 150,   134,
                                   165,  149,  148,  132,  3,      8,    7,    6,   8 + 5, 22,
                                   kRow, kRow, kRow, kRow, kRow,   kRow, kRow, 10,  7,     7};
    const auto lines = Save(DateTime(2026, 9, 1, 0, 0, 0)); // without a window there is no title
    for (std::size_t i = 0; i < std::size(lengths); ++i)
        EXPECT_TRUE(lengths[i] == kRow || lines[i].size() == lengths[i]) << i + 1 << ": " << lines[i];
}

TEST_F(WebPageTest, TitleStandsTwiceAndKeepsItsCharacters)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP, CRect(0, 0, 300, 300), nullptr, 0);
    ASSERT_TRUE(calendar.Create(5, CRect(0, 0, 210, 200), false, &parent, true, true, true, false));
    calendar.m_pMonthYearButton->SetWindowText("<Q&A> \"May\" 2026");
    const auto lines = Save(DateTime(2026, 5, 1, 0, 0, 0));
    const std::string strTitle = "&lt;Q&amp;A&gt; &quot;May&quot; 2026";
    EXPECT_EQ(lines[4], "         <title>" + strTitle + "</title>");
    EXPECT_EQ(lines[28], "    <h1>" + strTitle + "</h1>");
    calendar.DestroyWindow();
}

TEST_F(WebPageTest, FailureLeavesAnOlderPageAsItWas)
{
    Save(DateTime(2026, 5, 1, 0, 0, 0));
    const std::string strOld = directory.Read("month.html");
    std::filesystem::create_directory(directory.PathOf("taken.html"));
    EXPECT_FALSE(SaveTo("taken.html"));
    EXPECT_FALSE(SaveTo("missing/month.html"));

    calendar.m_date = DateTime();
    EXPECT_FALSE(SaveTo("month.html")) << "without a date";
    EXPECT_EQ(directory.Read("month.html"), strOld);
    EXPECT_EQ(directory.Names().size(), 2u) << "nothing is left behind";
}

// The options menu and the ranges of dates.
#include "CalendarFixture.h"

#include <Clock.h>
#include <ImageMenu.h>
#include <resource.h>

#include <gmock/gmock.h>

#include <algorithm>

using testing::ElementsAre;

namespace {

// The items of a menu, with 0 for a separator.
std::vector<UINT> GetIds(HMENU hMenu)
{
    std::vector<UINT> ids(static_cast<std::size_t>(std::max(::GetMenuItemCount(hMenu), 0)));
    for (int i = 0; UINT & nId : ids)
        nId = ::GetMenuItemID(hMenu, i++);
    return ids;
}

// A module that has no menus: one of the system's, on either platform.
HINSTANCE GetModuleWithoutMenus()
{
    const HINSTANCE hModule = ::GetModuleHandleA("user32.dll");
    return hModule ? hModule : ::GetModuleHandleA("c.dll");
}

}

class OptionsTest : public CalendarTest
{
protected:
    struct Range
    {
        DateTime today;
        DateTime shown;
        UINT nCommand;
        DateTime first;
        DateTime last;
    };

    void Check(const Range& range)
    {
        SCOPED_TRACE(std::to_string(range.nCommand) + " shown " + ToText(range.shown) + " on " +
                     ToText(range.today));
        Clock::SetToday(range.today.GetYear(), range.today.GetMonth(), range.today.GetDay());
        Show(range.shown, false);
        parent.m_heard.clear();
        Command(range.nCommand);
        ASSERT_EQ(parent.m_heard.size(), 2u);
        EXPECT_EQ(parent.m_heard[0].strName, "SELCHANGE 1");
        EXPECT_EQ(parent.m_heard[1].strName, "RANGE 0");
        for (const Heard& heard : parent.m_heard)
            EXPECT_EQ(ToText(heard.date), ToText(range.first));
        EXPECT_EQ(ToText(parent.m_heard[1].dtEnd), ToText(range.last));
    }

    std::unique_ptr<CImageMenu> LoadOptionsMenu()
    {
        CImageMenu menu;
        return std::unique_ptr<CImageMenu>(menu.LoadFilteredPopupMenu(IDR_OPTIONS_MENU, calendar.get()));
    }
};

TEST_F(OptionsTest, MenuForms)
{
    Start();
    struct
    {
        bool bWebPage, bRanges;
        std::vector<UINT> ids; // before those of the ranges
    } const cases[] = {
        {true, true, {42030, 42031, 0, 42050, 42049, 0}},
        {false, true, {42030, 42031, 0, 42050, 0}},
        {true, false, {42030, 42031, 0, 42050, 42049}},
        {false, false, {42030, 42031, 0, 42050}},
    };
    const std::vector<UINT> all = GetIds(LoadOptionsMenu()->m_hMenu);
    for (auto [bWebPage, bRanges, ids] : cases) {
        Renew();
        Start({.bAllowWebPage = bWebPage, .bAllowDateRanges = bRanges});
        calendar->m_date = bRanges ? Date(2026, 7, 15) : DateTime();
        const auto popup = LoadOptionsMenu();
        const auto isEnabled = [&](UINT nId) {
            return (::GetMenuState(popup->m_hMenu, nId, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
        };
        EXPECT_EQ(isEnabled(42030), bRanges);
        EXPECT_EQ(isEnabled(42031), bRanges);
        EXPECT_EQ(isEnabled(42049), bWebPage);
        EXPECT_TRUE(isEnabled(42050));
        calendar->FilterOptionsMenu(popup->m_hMenu);
        if (bRanges)
            ids.insert(ids.end(), all.begin() + 6, all.end());
        EXPECT_EQ(GetIds(popup->m_hMenu), ids);
    }
}

TEST_F(OptionsTest, MenuThatDoesNotShowIsLogged)
{
    Start({.bShowOptions = false});
    calendar->OnOptionsButton(); // has no menu to show
    EXPECT_THAT(logger.m_lines, testing::IsEmpty());

    Renew(); // without a window that a menu could belong to
    HINSTANCE& hResources = AfxGetModuleState()->m_hCurrentResourceHandle;
    const HINSTANCE hSaved = hResources;
    calendar->OnOptionsButton();
    hResources = GetModuleWithoutMenus();
    calendar->OnOptionsButton();
    AppLogger::m_pInstance = nullptr;
    calendar->OnOptionsButton();
    hResources = hSaved;
    EXPECT_THAT(logger.m_lines,
                ElementsAre(testing::MatchesRegex("\\{E80C3B37-2E59-4924-A01D-320D1318EC50\\}.+"),
                            "{FEC0DBA9-2245-4F66-8549-E7287A594599}"));
}

TEST_F(OptionsTest, RangesOfTheYear)
{
    Start();
    const DateTime elsewhere = Date(2020, 2, 29);
    const Range ranges[] = {
        {Date(2026, 5, 31), elsewhere, 42032, Date(2026, 5, 1), Date(2026, 5, 31)},
        {Date(2024, 2, 29), elsewhere, 42032, Date(2024, 2, 1), Date(2024, 2, 29)},
        {Date(2026, 2, 28), elsewhere, 42034, Date(2026, 1, 1), Date(2026, 12, 31)},
        {elsewhere, Date(2026, 3, 31), 42046, Date(2026, 2, 1), Date(2026, 2, 28)},
        {elsewhere, Date(2026, 1, 31), 42046, Date(2025, 12, 1), Date(2025, 12, 31)},
        {elsewhere, Date(2024, 1, 31), 42043, Date(2024, 2, 1), Date(2024, 2, 29)},
        {elsewhere, Date(2025, 12, 5), 42043, Date(2026, 1, 1), Date(2026, 1, 31)},
        {elsewhere, Date(2024, 2, 29), 42048, Date(2023, 1, 1), Date(2023, 12, 31)},
        {elsewhere, Date(2024, 2, 29), 42045, Date(2025, 1, 1), Date(2025, 12, 31)},
        {elsewhere, DateTime(), 42046, Date(2020, 1, 1), Date(2020, 1, 31)}, // today where no date is shown
        {elsewhere, DateTime(), 42045, Date(2021, 1, 1), Date(2021, 12, 31)},
    };
    for (const Range& range : ranges)
        Check(range);
}

// A quarter before the first or after the last is one of the same year.
TEST_F(OptionsTest, QuarterOfEachMonth)
{
    Start();
    const int current[] = {1, 4, 7, 10}, previous[] = {10, 1, 4, 7}, next[] = {4, 7, 10, 1};
    const auto check = [this](UINT nCommand, int nMonth, int nFirst) {
        DateTime base = Date(2024, nMonth, 1), last = Date(2024, nFirst + 2, 1);
        base.SetToLastDay();
        last.SetToLastDay();
        Check({base, base, nCommand, Date(2024, nFirst, 1), last});
    };
    for (int nMonth = 1; nMonth <= 12; ++nMonth) {
        const int nQuarter = (nMonth - 1) / 3;
        check(42033, nMonth, current[nQuarter]);
        check(42047, nMonth, previous[nQuarter]);
        check(42044, nMonth, next[nQuarter]);
    }
}

TEST_F(OptionsTest, LastWeeks)
{
    Start();
    const UINT commands[] = {42042, 42035, 42036, 42037, 42038, 42039, 42040, 42041};
    for (const DateTime& today : {Date(2026, 7, 15), Date(2024, 3, 1), Date(2026, 1, 3)})
        for (int nWeeks = 1; nWeeks <= 8; ++nWeeks) {
            DateTime first = today;
            first.AddDays(-(7 * nWeeks - 1));
            Check({today, Date(2020, 2, 29), commands[nWeeks - 1], first, today});
        }
}

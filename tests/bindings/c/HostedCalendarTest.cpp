// A calendar whose window others made: in loops of all kinds, and with a parent that does what it likes.
#include <TemporaryDirectory.h>
#include <ToolTips.h>

#include <afxwin.h>
#include <commctrl.h>
#include <zeb17.h>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

namespace {

std::function<void(UINT, WPARAM, LPARAM)> g_onMessage;

LRESULT CALLBACK ParentProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (g_onMessage)
        g_onMessage(message, wParam, lParam);
    return ::DefWindowProcA(hWnd, message, wParam, lParam);
}

HWND CreateParent()
{
    WNDCLASSA wndClass{};
    wndClass.lpfnWndProc = &ParentProc;
    wndClass.hInstance = ::GetModuleHandleA(nullptr);
    wndClass.lpszClassName = "zeb17 hosted test";
    ::RegisterClassA(&wndClass); // fails from the second time on
    const HWND hWnd = ::CreateWindowExA(0, wndClass.lpszClassName, "", WS_OVERLAPPEDWINDOW, 20, 20, 500, 400,
                                        nullptr, nullptr, nullptr, nullptr);
    ::ShowWindow(hWnd, SW_SHOW);
    return hWnd;
}

constexpr RECT kPlace = {0, 0, 300, 240};
constexpr zeb17_date kToday = {2026, 7, 15};

class HostedCalendar : public testing::Test
{
protected:
    HostedCalendar()
    {
        EXPECT_EQ(zeb17_set_data_directory(m_directory.PathOf("").c_str()), ZEB17_OK);
        EXPECT_EQ(zeb17_set_today(&kToday), ZEB17_OK);
        EXPECT_EQ(zeb17_set_locale("en-US"), ZEB17_OK);
        EXPECT_EQ(zeb17_register(), ZEB17_OK);
        m_parent = CreateParent();
    }
    ~HostedCalendar() override
    {
        g_onMessage = nullptr;
        ::DestroyWindow(m_parent);
        zeb17_set_today(nullptr);
        zeb17_set_locale("");
        zeb17_set_data_directory("");
    }

    HWND Create(uint32_t flags = ZEB17_ALLOW_NO_DATE | ZEB17_OPTIONS)
    {
        m_control = zeb17_create(m_parent, 7, &kPlace, flags);
        return m_control;
    }

    // The day of the month, after this key was pressed twice in the same moment.
    int DayAfterTwo(WPARAM key, const std::function<void(MSG&)>& dispatch)
    {
        EXPECT_EQ(zeb17_set_date(m_control, &kToday), ZEB17_OK);
        ::SetFocus(m_control);
        for (int i = 0; i < 2; ++i)
            ::PostMessageA(m_control, WM_KEYDOWN, key, 1);
        MSG msg;
        while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
            dispatch(msg);
        zeb17_date date{};
        EXPECT_EQ(zeb17_get_date(m_control, &date, nullptr), ZEB17_OK);
        return date.day;
    }

    // The text of the tip that comes up while the pointer rests on a point of the control, after another one.
    std::string TipAt(CPoint point, const std::string& before = "")
    {
        ::ClientToScreen(m_control, &point);
        ::SetCursorPos(point.x, point.y);
        std::string tip;
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while ((tip.empty() || tip == before) && std::chrono::steady_clock::now() < end) {
            MSG msg;
            while (::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE))
                ::DispatchMessageA(&msg);
            tip = GetShownToolTip();
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return tip;
    }

    TemporaryDirectory m_directory;
    HWND m_parent = nullptr;
    HWND m_control = nullptr;
};

}

// Whoever offers a message before, or nobody: a key counts once.
TEST_F(HostedCalendar, CountsEachKeyOnceInAnyLoop)
{
    ASSERT_TRUE(Create());
    const auto plain = [](MSG& msg) { ::DispatchMessageA(&msg); };
    const auto offering = [](MSG& msg) {
        if (!AfxPreTranslateMessage(&msg))
            ::DispatchMessageA(&msg);
    };
    const auto dialog = [this](MSG& msg) {
        if (!::IsDialogMessageA(m_parent, &msg))
            ::DispatchMessageA(&msg);
    };
    const auto filtering = [](MSG& msg) {
        if (!::CallMsgFilterA(&msg, MSGF_USER))
            ::DispatchMessageA(&msg);
    };
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, plain), 17);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, offering), 17);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, dialog), 17);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, filtering), 17);
    // From here on the toolkit filters what IsDialogMessage and CallMsgFilter see.
    AfxWinInit(::GetModuleHandleA(nullptr), nullptr, "", SW_SHOW);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, plain), 17);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, dialog), 17);
    EXPECT_EQ(DayAfterTwo(VK_RIGHT, filtering), 17);
}

TEST_F(HostedCalendar, ShowsTipsInAPlainLoop)
{
    ASSERT_TRUE(Create(ZEB17_SPECIAL_DATES));
    zeb17_settings settings = nullptr;
    ASSERT_EQ(zeb17_control_settings(m_control, &settings), ZEB17_OK);
    for (const int group : {ZEB17_US, ZEB17_CANADA, ZEB17_NETHERLANDS})
        EXPECT_EQ(zeb17_group_set_shown(settings, group, 0), ZEB17_OK);
    const zeb17_entry entry = {sizeof entry, 0, 1, RGB(1, 2, 3), ZEB17_DAY, 15, 7, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(zeb17_entry_add(settings, ZEB17_CUSTOM, &entry, "Midsummer", nullptr), ZEB17_OK);
    EXPECT_EQ(zeb17_refresh(m_control), ZEB17_OK);
    ::UpdateWindow(m_control);
    EXPECT_EQ(TipAt(CPoint(150, 110)), "Midsummer"); // Wednesday of the third week
    EXPECT_NE(TipAt(CPoint(30, 10), "Midsummer").find("June"), std::string::npos) << "a button";
}

TEST_F(HostedCalendar, IsCreatedByItsClassWithTheFlagsInItsStyle)
{
    std::vector<UINT> codes;
    g_onMessage = [&](UINT message, WPARAM, LPARAM lParam) {
        if (message == WM_NOTIFY)
            codes.push_back(reinterpret_cast<const NMHDR*>(lParam)->code - ZEB17_NOTIFY_FIRST);
    };
    const HWND control =
        ::CreateWindowExA(0, ZEB17_CLASS, "", WS_CHILD | ZEB17_NOTIFY | ZEB17_ALLOW_NO_DATE, 0, 0, 300, 240,
                          m_parent, reinterpret_cast<HMENU>(INT_PTR{9}), nullptr, nullptr);
    ASSERT_TRUE(control);
    EXPECT_EQ(zeb17_set_date(control, &kToday), ZEB17_OK);
    EXPECT_EQ(codes, (std::vector<UINT>{ZEB17_NODATE, ZEB17_SELCHANGE}));
    EXPECT_TRUE(::GetDlgItem(control, 2605)) << "the Clear button";
    char name[40] = "";
    ::GetClassNameA(control, name, sizeof name);
    EXPECT_STREQ(name, ZEB17_CLASS);
}

// The parent may end the control in any message: at its creation, and in a change of the date.
TEST_F(HostedCalendar, MayBeEndedByItsParentAtAnyMoment)
{
    const auto endsAt = [](UINT end) {
        g_onMessage = [end](UINT message, WPARAM, LPARAM) {
            if (message == end)
                if (const HWND child = ::GetWindow(::GetActiveWindow(), GW_CHILD))
                    ::DestroyWindow(child);
        };
    };
    ::SetFocus(m_parent);
    endsAt(zeb17_message(ZEB17_NODATE));
    EXPECT_FALSE(Create());
    EXPECT_EQ(zeb17_last_result(), ZEB17_NO_WINDOW);
    endsAt(zeb17_message(ZEB17_SELCHANGE));
    for (const uint32_t flags : {0u, uint32_t{ZEB17_NOTIFY}}) {
        ASSERT_TRUE(Create(flags));
        zeb17_set_date(m_control, &kToday);
        EXPECT_EQ(zeb17_refresh(m_control), ZEB17_BAD_HANDLE);
    }
}

TEST_F(HostedCalendar, SaysWhyItCouldNotBeCreated)
{
    ASSERT_TRUE(Create(ZEB17_SPECIAL_DATES));
    zeb17_settings settings = nullptr;
    ASSERT_EQ(zeb17_control_settings(m_control, &settings), ZEB17_OK);
    ASSERT_EQ(zeb17_settings_save(settings), ZEB17_OK);
    const std::string name = m_directory.Names().at(0);
    m_directory.Write(name, m_directory.Read(name).substr(0, 100));
    EXPECT_EQ(zeb17_reload(m_control), ZEB17_FILE_DAMAGED);
    EXPECT_FALSE(zeb17_create(m_parent, 8, &kPlace, ZEB17_SPECIAL_DATES));
    EXPECT_EQ(zeb17_last_result(), ZEB17_FILE_DAMAGED);
    char detail[200] = "";
    EXPECT_EQ(zeb17_last_detail(detail, sizeof detail, nullptr), ZEB17_OK);
    EXPECT_STRNE(detail, "");
    EXPECT_TRUE(zeb17_create(m_parent, 8, &kPlace, 0)) << "without special dates";
    EXPECT_EQ(zeb17_settings_open(&settings), ZEB17_FILE_DAMAGED);
}

TEST_F(HostedCalendar, WritesThePageAndPrints)
{
    ASSERT_TRUE(Create());
    const std::string page = m_directory.PathOf("page.html");
    EXPECT_EQ(zeb17_save_web_page(m_control, page.c_str()), ZEB17_OK);
    EXPECT_NE(m_directory.Read("page.html").find("2026"), std::string::npos);
    EXPECT_EQ(zeb17_save_web_page(m_control, m_directory.PathOf("no/page.html").c_str()), ZEB17_FILE_FAILED);
    EXPECT_EQ(zeb17_print(m_control, ""), ZEB17_BAD_TEXT);
}

// Every function of the interface with nonsense: it gives a code, and harms nothing.
#include <TemporaryDirectory.h>

#include <zeb17.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <random>
#include <span>
#include <vector>

namespace {

// Takes arguments of a call out of those that hosts get wrong, and a few that are right.
class Nonsense
{
public:
    explicit Nonsense(unsigned int seed) : m_random(seed)
    {
        zeb17_register();
        m_parent =
            ::CreateWindowExA(0, "BUTTON", "", WS_POPUP, 0, 0, 300, 300, nullptr, nullptr, nullptr, nullptr);
        const RECT place = {0, 0, 250, 220};
        m_control = zeb17_create(m_parent, 1, &place, ZEB17_ALL_FLAGS);
        const HWND dead = zeb17_create(m_parent, 2, &place, 0);
        ::DestroyWindow(dead);
        m_windows = {nullptr,
                     m_parent,
                     m_control,
                     m_control,
                     dead,
                     reinterpret_cast<HWND>(INT_PTR{3}),
                     reinterpret_cast<HWND>(~INT_PTR{0})};
        zeb17_settings closed = nullptr;
        zeb17_settings_open(&m_settings);
        zeb17_settings_open(&closed);
        zeb17_settings_close(closed);
        m_holders = {nullptr,
                     m_settings,
                     m_settings,
                     closed,
                     reinterpret_cast<zeb17_settings>(m_control),
                     reinterpret_cast<zeb17_settings>(UINT_PTR{0x17001})};
    }
    ~Nonsense()
    {
        zeb17_settings_close(m_settings);
        ::DestroyWindow(m_parent);
    }
    Nonsense(const Nonsense&) = delete;
    Nonsense& operator=(const Nonsense&) = delete;

    template <class Item>
    Item Any(const std::vector<Item>& items)
    {
        return items[m_random() % items.size()];
    }

    int Number()
    {
        return Any<int>(
            {INT_MIN, -1000, -7, -1, 0, 1, 2, 3, 4, 5, 6, 7, 12, 29, 31, 999, 1582, 2026, 9999, INT_MAX});
    }
    uint32_t Count() { return static_cast<uint32_t>(Number()); }
    HWND Window() { return Any(m_windows); }
    zeb17_settings Settings() { return Any(m_holders); }
    const char* Text()
    {
        return Any<const char*>(
            {nullptr, "", "Day", "M\xC3\xA4rz", "\xFF\xFE", "\xE2\x82", "%s%n", "a\r\nb"});
    }

    // Null, or a place to write to: a struct whose size may be wrong.
    template <class Struct>
    Struct* Place()
    {
        thread_local Struct place{};
        const auto bytes = std::as_writable_bytes(std::span(&place, 1));
        for (std::size_t i = 0; i + sizeof(int) <= bytes.size(); i += sizeof(int)) {
            const int number = Number();
            std::memcpy(&bytes[i], &number, sizeof number);
        }
        if constexpr (requires { place.size; })
            if (m_random() % 8)
                place.size = sizeof place;
        if constexpr (requires {
                          place.shown;
                          place.color;
                      }) {
            place.shown = place.shown & 1;
            place.color = place.color & 0xFFFFFF;
        }
        return m_random() % 8 ? &place : nullptr;
    }
    const zeb17_date* Date()
    {
        thread_local zeb17_date date;
        date = {Any<int>({2026, 1582, 1, 9999, 0, -1, INT_MAX, INT_MIN}),
                Any<int>({1, 2, 10, 12, 0, 13, INT_MIN}), Any<int>({1, 10, 28, 29, 31, 0, 32, INT_MAX})};
        return m_random() % 8 ? &date : nullptr;
    }

    struct Buffer
    {
        char* text;
        uint32_t size;
        uint32_t* length;
    };
    Buffer Out()
    {
        thread_local char text[400];
        thread_local uint32_t length;
        const bool bNull = m_random() % 5 == 0;
        return {bNull ? nullptr : text, Any<uint32_t>({0, 1, 5, sizeof text}),
                m_random() % 4 ? &length : nullptr};
    }

    zeb17_settings OpenSettings() const { return m_settings; }
    HWND Control() const { return m_control; }

private:
    std::mt19937 m_random;
    HWND m_parent = nullptr;
    HWND m_control = nullptr;
    zeb17_settings m_settings = nullptr;
    std::vector<HWND> m_windows;
    std::vector<zeb17_settings> m_holders;
};

// A call with a buffer at its end.
#define INTO(out) out.text, out.size, out.length

std::vector<std::function<int(Nonsense&)>> AllCalls()
{
    return {
        [](Nonsense& n) { return zeb17_error_text(n.Number()) ? 0 : -1; },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_last_detail(INTO(o));
        },
        [](Nonsense& n) { return zeb17_today(n.Place<zeb17_date>()); },
        [](Nonsense& n) { return zeb17_set_today(n.Date()); },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_date_text(n.Date(), n.Number(), INTO(o));
        },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_month_name(n.Number(), n.Number(), INTO(o));
        },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_weekday_name(n.Number(), n.Number(), INTO(o));
        },
        [](Nonsense& n) { return zeb17_add_days(const_cast<zeb17_date*>(n.Date()), n.Number()); },
        [](Nonsense& n) { return zeb17_weekday(n.Date(), n.Place<int>()); },
        [](Nonsense& n) {
            return zeb17_set_locale(n.Any<const char*>({nullptr, "", "nowhere", "nl-NL", "\xFF"}));
        },
        [](Nonsense& n) {
            RECT* const rect = n.Place<RECT>();
            if (rect)
                *rect = {n.Any<LONG>({0, -5}), 0, n.Any<LONG>({9, 200, -30000, 30000}),
                         n.Any<LONG>({0, 1, 99})};
            const HWND made = zeb17_create(n.Window(), n.Number(), rect, n.Count());
            if (made)
                ::DestroyWindow(made);
            return 0;
        },
        [](Nonsense& n) { return zeb17_get_date(n.Window(), n.Place<zeb17_date>(), n.Place<int>()); },
        [](Nonsense& n) { return zeb17_set_date(n.Window(), n.Date()); },
        [](Nonsense& n) { return zeb17_select_today(n.Window()); },
        [](Nonsense& n) { return zeb17_step(n.Window(), n.Number(), n.Number()); },
        [](Nonsense& n) { return zeb17_reload(n.Window()); },
        [](Nonsense& n) { return zeb17_refresh(n.Window()); },
        [](Nonsense& n) {
            return zeb17_save_web_page(n.Window(), n.Any<const char*>({nullptr, "", "\xFF", "/no/p"}));
        },
        [](Nonsense& n) {
            return zeb17_print(n.Window(), n.Any<const char*>({"", "\xFF"}));
        },
        [](Nonsense& n) { return zeb17_set_shading(n.Place<zeb17_shading>()); },
        [](Nonsense& n) { return zeb17_apply_shading(n.Window()); },
        [](Nonsense& n) {
            const UINT message = zeb17_message(n.Number());
            return message == 0 || message >= 0xC000 ? 0 : -1;
        },
        [](Nonsense& n) { return zeb17_range_end(n.Number(), n.Place<zeb17_date>()); },
        [](Nonsense& n) {
            zeb17_settings opened = nullptr;
            const int result = zeb17_settings_open(n.Place<int>() ? &opened : nullptr);
            zeb17_settings_close(opened);
            return result;
        },
        [](Nonsense& n) { return zeb17_control_settings(n.Window(), n.Place<zeb17_settings>()); },
        [](Nonsense& n) { return zeb17_settings_load(n.Settings()); },
        [](Nonsense& n) { return zeb17_settings_save(n.Settings()); },
        [](Nonsense& n) {
            const zeb17_settings settings = n.Settings();
            return settings == n.OpenSettings() ? 0 : zeb17_settings_close(settings);
        },
        [](Nonsense&) { return zeb17_enable_todo(); },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_describe(n.Settings(), n.Date(), INTO(o), n.Place<COLORREF>());
        },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_group_name(n.Number(), INTO(o));
        },
        [](Nonsense& n) { return zeb17_group_get(n.Settings(), n.Number(), n.Place<zeb17_group_info>()); },
        [](Nonsense& n) { return zeb17_group_set_color(n.Settings(), n.Number(), n.Count()); },
        [](Nonsense& n) { return zeb17_group_set_shown(n.Settings(), n.Number(), n.Number()); },
        [](Nonsense& n) {
            return zeb17_entry_get(n.Settings(), n.Number(), n.Count(), n.Place<zeb17_entry>());
        },
        [](Nonsense& n) {
            const auto o = n.Out();
            return zeb17_entry_text(n.Settings(), n.Number(), n.Count(), INTO(o));
        },
        [](Nonsense& n) {
            return zeb17_entry_set(n.Settings(), n.Number(), n.Count(), n.Place<zeb17_entry>(), n.Text());
        },
        [](Nonsense& n) {
            return zeb17_entry_add(n.Settings(), n.Number(), n.Place<zeb17_entry>(), n.Text(),
                                   n.Place<uint32_t>());
        },
        [](Nonsense& n) { return zeb17_entry_delete(n.Settings(), n.Number(), n.Count()); },
        [](Nonsense& n) {
            return zeb17_entry_next(n.Settings(), n.Number(), n.Count(), n.Date(), n.Place<zeb17_date>());
        },
        [](Nonsense&) { return zeb17_set_log(nullptr, nullptr); },
    };
}

}

TEST(Nonsense, IsAnsweredByACodeAndHarmsNothing)
{
    const TemporaryDirectory directory;
    ASSERT_EQ(zeb17_set_data_directory(directory.PathOf("").c_str()), ZEB17_OK);
    std::vector<int> counts(ZEB17_FAILED + 1);
    for (const unsigned int seed : {1u, 2u}) {
        Nonsense nonsense(seed);
        const auto calls = AllCalls();
        for (int i = 0; i < 4000; ++i) {
            const int result = nonsense.Any(calls)(nonsense);
            ASSERT_TRUE(result >= ZEB17_OK && result <= ZEB17_FAILED) << result;
            ++counts[static_cast<std::size_t>(result)];
        }
        // What was right all the time still works.
        const zeb17_date date = {2026, 7, 15};
        EXPECT_EQ(zeb17_set_date(nonsense.Control(), &date), ZEB17_OK);
        EXPECT_EQ(zeb17_settings_save(nonsense.OpenSettings()), ZEB17_OK);
    }
    for (const int code :
         {ZEB17_OK, ZEB17_BAD_ARGUMENT, ZEB17_BAD_SIZE, ZEB17_BAD_HANDLE, ZEB17_BAD_DATE, ZEB17_BAD_RULE,
          ZEB17_BAD_TEXT, ZEB17_SMALL_BUFFER, ZEB17_NOT_FOUND, ZEB17_NOT_ALLOWED})
        EXPECT_GT(counts[static_cast<std::size_t>(code)], 0) << zeb17_error_text(code);
    EXPECT_EQ(counts[ZEB17_FAILED] + counts[ZEB17_NO_MEMORY] + counts[ZEB17_FILE_DAMAGED], 0);
    zeb17_set_today(nullptr);
    zeb17_set_locale("");
    zeb17_set_data_directory("");
}

// Every function of the interface with nonsense: it gives a code, and harms nothing.
#include <TemporaryDirectory.h>

#include <zeb17.h>

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <random>
#include <span>
#include <tuple>
#include <type_traits>
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

    const RECT* Rect()
    {
        thread_local RECT rect;
        rect = {Any<LONG>({0, -5}), 0, Any<LONG>({9, 200, -30000, 30000}), Any<LONG>({0, 1, 99})};
        return m_random() % 8 ? &rect : nullptr;
    }

    // What a host may give for an argument of that type.
    template <class Argument>
    Argument Of()
    {
        if constexpr (std::is_same_v<Argument, int>)
            return Number();
        else if constexpr (std::is_same_v<Argument, HWND>)
            return Any(m_windows);
        else if constexpr (std::is_same_v<Argument, zeb17_settings>)
            return Any(m_holders);
        else if constexpr (std::is_same_v<Argument, const char*>)
            return Text();
        else if constexpr (std::is_same_v<Argument, const zeb17_date*>)
            return Date();
        else if constexpr (std::is_same_v<Argument, const RECT*>)
            return Rect();
        else if constexpr (std::is_same_v<Argument, char*>)
            return m_random() % 5 ? m_buffer.data() : nullptr;
        else if constexpr (std::is_pointer_v<Argument>)
            return Place<std::remove_const_t<std::remove_pointer_t<Argument>>>();
        else
            return static_cast<Argument>(Number());
    }

    zeb17_settings OpenSettings() const { return m_settings; }
    HWND Control() const { return m_control; }

private:
    std::mt19937 m_random;
    std::vector<char> m_buffer = std::vector<char>(16384); // longer than any text, whatever size is told
    HWND m_parent = nullptr;
    HWND m_control = nullptr;
    zeb17_settings m_settings = nullptr;
    std::vector<HWND> m_windows;
    std::vector<zeb17_settings> m_holders;
};

using Call = std::function<int(Nonsense&)>;

// A call whose result is a code, with any arguments.
template <class... Arguments>
Call Any(int (*call)(Arguments...))
{
    return [call](Nonsense& nonsense) {
        const std::tuple<Arguments...> arguments{nonsense.Of<Arguments>()...};
        return std::apply(call, arguments);
    };
}

int CreateAndDestroy(HWND parent, int id, const RECT* rect, uint32_t flags)
{
    const HWND made = zeb17_create(parent, id, rect, flags);
    if (made)
        ::DestroyWindow(made);
    return ZEB17_OK;
}

int OpenAndClose(int place)
{
    zeb17_settings opened = nullptr;
    const int result = zeb17_settings_open(place > 0 ? &opened : nullptr);
    zeb17_settings_close(opened);
    return result;
}

// The calls whose arguments may all be nonsense, and those that a good path or handle would do harm in.
const std::vector<Call> kPlainCalls = {Any(zeb17_last_detail),      Any(zeb17_today),
                                       Any(zeb17_set_today),        Any(zeb17_date_text),
                                       Any(zeb17_month_name),       Any(zeb17_weekday_name),
                                       Any(zeb17_add_days),         Any(zeb17_weekday),
                                       Any(zeb17_set_locale),       Any(CreateAndDestroy),
                                       Any(zeb17_get_date),         Any(zeb17_set_date),
                                       Any(zeb17_select_today),     Any(zeb17_step),
                                       Any(zeb17_reload),           Any(zeb17_refresh),
                                       Any(zeb17_set_shading),      Any(zeb17_apply_shading),
                                       Any(zeb17_range_end),        Any(OpenAndClose),
                                       Any(zeb17_control_settings), Any(zeb17_settings_load),
                                       Any(zeb17_settings_save),    Any(zeb17_enable_todo),
                                       Any(zeb17_describe),         Any(zeb17_group_name),
                                       Any(zeb17_group_get),        Any(zeb17_group_set_color),
                                       Any(zeb17_group_set_shown),  Any(zeb17_entry_get),
                                       Any(zeb17_entry_text),       Any(zeb17_entry_set),
                                       Any(zeb17_entry_add),        Any(zeb17_entry_delete),
                                       Any(zeb17_entry_next),       Any(zeb17_rule_next)};
const std::vector<Call> kCarefulCalls = {
    [](Nonsense& n) { return zeb17_error_text(n.Of<int>()) ? ZEB17_OK : -1; },
    [](Nonsense& n) {
        const UINT message = zeb17_message(n.Of<int>());
        return message == 0 || message >= 0xC000 ? ZEB17_OK : -1;
    },
    [](Nonsense& n) {
        return zeb17_save_web_page(n.Of<HWND>(), n.Any<const char*>({nullptr, "", "/no/p"}));
    },
    [](Nonsense& n) {
        return zeb17_print(n.Of<HWND>(), n.Any<const char*>({"", "\xFF"}));
    },
    [](Nonsense& n) {
        const auto settings = n.Of<zeb17_settings>();
        return settings == n.OpenSettings() ? ZEB17_OK : zeb17_settings_close(settings);
    },
    [](Nonsense&) { return zeb17_set_log(nullptr, nullptr); },
};

}

TEST(Nonsense, IsAnsweredByACodeAndHarmsNothing)
{
    const TemporaryDirectory directory;
    ASSERT_EQ(zeb17_set_data_directory(directory.PathOf("").c_str()), ZEB17_OK);
    std::vector<int> counts(ZEB17_FAILED + 1);
    for (const unsigned int seed : {1u, 2u}) {
        Nonsense nonsense(seed);
        for (int i = 0; i < 4000; ++i) {
            const int result = nonsense.Any(i % 6 ? kPlainCalls : kCarefulCalls)(nonsense);
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

// Texts on their way in and out: UTF-8, the code page, and the caller's buffer.
#include <TemporaryDirectory.h>

#include <zeb17.h>

#include <gtest/gtest.h>

namespace {

constexpr char kEuropean[] = "M\xC3\xA4rz";             // in every code page of western Europe
constexpr char kChinese[] = "\xE4\xB8\xAD\xE5\x9B\xBD"; // in none of them

bool IsUtf8CodePage()
{
    return ::MultiByteToWideChar(CP_ACP, 0, kChinese, -1, nullptr, 0) == 3;
}

}

TEST(Texts, ComeBackAsTheyWereOrAreRefused)
{
    const TemporaryDirectory directory;
    ASSERT_EQ(zeb17_set_data_directory(directory.PathOf("").c_str()), ZEB17_OK);
    zeb17_settings settings = nullptr;
    ASSERT_EQ(zeb17_settings_open(&settings), ZEB17_OK);
    const zeb17_entry entry = {sizeof entry, 0, 1, 0, ZEB17_DAY, 1, 3, 0, 0, 0, 0, 0, 0};
    const struct
    {
        const char* text;
        int result;
    } cases[] = {
        {kEuropean, ZEB17_OK},
        {kChinese, IsUtf8CodePage() ? ZEB17_OK : ZEB17_BAD_TEXT},
        {"", ZEB17_BAD_TEXT},
        {"\xC3", ZEB17_BAD_TEXT},
        {"\xED\xA0\x80", ZEB17_BAD_TEXT}, // half a surrogate pair
        {nullptr, ZEB17_BAD_TEXT},
    };
    for (const auto& one : cases) {
        uint32_t index = 0;
        const int result = zeb17_entry_add(settings, ZEB17_CUSTOM, &entry, one.text, &index);
        EXPECT_EQ(result, one.result) << (one.text ? one.text : "null");
        if (result != ZEB17_OK)
            continue;
        char text[20] = "";
        EXPECT_EQ(zeb17_entry_text(settings, ZEB17_CUSTOM, index, text, sizeof text, nullptr), ZEB17_OK);
        EXPECT_STREQ(text, one.text);
    }
    // The buffer that just fits, and the one that does not.
    char text[6] = "";
    uint32_t length = 0;
    EXPECT_EQ(zeb17_entry_text(settings, ZEB17_CUSTOM, 0, text, 5, &length), ZEB17_SMALL_BUFFER);
    EXPECT_STREQ(text, "");
    EXPECT_EQ(length, 5u);
    EXPECT_EQ(zeb17_entry_text(settings, ZEB17_CUSTOM, 0, text, 6, nullptr), ZEB17_OK);
    EXPECT_EQ(zeb17_settings_close(settings), ZEB17_OK);
    zeb17_set_data_directory("");
}

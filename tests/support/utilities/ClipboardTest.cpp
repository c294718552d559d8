// What is copied can be read by another program.
#include <ClipboardUtils.h>

#include <WideText.h>

#include <gtest/gtest.h>

namespace {

std::string ClipboardText()
{
    if (!OpenClipboard(nullptr))
        return "closed";
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    std::string text = "none";
    if (memory) {
        text = FromWide(static_cast<const WCHAR*>(GlobalLock(memory)), CP_UTF8);
        GlobalUnlock(memory);
    }
    CloseClipboard();
    return text;
}

TEST(Clipboard, TakesTheTextInPlaceOfTheOld)
{
    for (const char* text : {"Friday, May 4, 2007", "zaterdag", "4/5"}) {
        ASSERT_TRUE(ClipboardUtils::CopyTextToClipboard(text));
        EXPECT_EQ(ClipboardText(), text);
    }
    // M\u00E4rz, in the program's own 8-bit text.
    const WideText march = {'M', WCHAR(0xE4), 'r', 'z'};
    ASSERT_TRUE(ClipboardUtils::CopyTextToClipboard(FromWide(march)));
    EXPECT_EQ(ClipboardText(), "M\xC3\xA4rz");
}

}

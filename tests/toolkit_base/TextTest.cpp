// CString.
#include <afx.h>

#include <gtest/gtest.h>

namespace {

TEST(Text, GivesPartsCutToItsEnds)
{
    const CString text("calendar");
    EXPECT_EQ(text.Left(3), "cal");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Right(3), "dar");
    EXPECT_EQ(text.Right(99), "calendar");
    EXPECT_EQ(text.Mid(3, 2), "en");
    EXPECT_EQ(text.Mid(-2, 2), "ca");
    EXPECT_EQ(text.Mid(7, 5), "r");
    EXPECT_EQ(text.Mid(20, 5), "");
}

TEST(Text, Finds)
{
    const CString text("a\r\nb\r\nc");
    EXPECT_EQ(text.Find("\r\n", 2), 4);
    EXPECT_EQ(text.Find("\r\n", 50), -1);
    EXPECT_EQ(text.Find('c'), 6);
    EXPECT_EQ(text.FindOneOf("cb"), 3);
}

TEST(Text, Replaces)
{
    constexpr struct
    {
        const char* text;
        const char* oldText;
        const char* newText;
        int count;
        const char* result;
    } kCases[] = {
        {"a&b&&c", "&", "&&", 3, "a&&b&&&&c"},
        {"aaa", "aa", "b", 1, "ba"},
        {"abc", "", "y", 0, "abc"},
    };
    for (const auto& [text, oldText, newText, count, result] : kCases) {
        CString replaced(text);
        EXPECT_EQ(replaced.Replace(oldText, newText), count) << text;
        EXPECT_EQ(replaced, result) << text;
    }
}

TEST(Text, TrimsFoldsAndCompares)
{
    EXPECT_EQ(CString(" \t a b\r\n").TrimLeft().TrimRight(), "a b");
    EXPECT_EQ(CString(" \n").TrimRight(), "");
    EXPECT_EQ(CString("aZ\xC3\x84").MakeLower(), "az\xC3\x84") << "ASCII alone";
    EXPECT_EQ(CString("May").CompareNoCase("mAY"), 0);
    EXPECT_LT(CString("May").Compare("june"), 0);
    EXPECT_TRUE(CString("a") < CString("b"));
    EXPECT_TRUE(CString(static_cast<const char*>(nullptr)) == "");
}

TEST(Text, FormatsAlsoFromItself)
{
    CString text("May");
    text.Format("%s %d", text.GetString(), 2007);
    EXPECT_EQ(text, "May 2007");
    text.Format("%s", CString('x', 5000).GetString());
    EXPECT_EQ(text.GetLength(), 5000);
}

TEST(Text, JoinsAndLendsItsBuffer)
{
    CString text = "a" + CString("b") + 'c' + "d";
    text += text;
    EXPECT_EQ(text, "abcdabcd");
    char* buffer = text.GetBuffer(20);
    lstrcpynA(buffer + 8, "efgh", 20);
    text.ReleaseBuffer();
    EXPECT_EQ(text, "abcdabcdefgh");
    text.GetBuffer();
    text.ReleaseBuffer(2);
    EXPECT_EQ(text, "ab");
}

}

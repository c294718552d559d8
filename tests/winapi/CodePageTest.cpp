// Conversion between 8-bit and 16-bit text by the calls of the system.
#include <windows.h>

#include <gtest/gtest.h>

TEST(CodePage, CountsAndKeepsToTheBuffer)
{
    WCHAR wide[8];
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, nullptr, 0), 4);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, wide, 8), 4);
    EXPECT_EQ(wide[3], 0);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", -1, wide, 3), 0);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INSUFFICIENT_BUFFER));
}

// When dates are looked up. The linker leads every call of CalendarSettings::GetDateDesc here.
#include "CalendarFixture.h"

namespace {

int g_nLookups = 0;

}

// Stands in for CalendarSettings, whose object `this` is.
class CountedSettings
{
    CString GetDateDesc(int nDay, int nMonth, int nYear, DWORD& dwColor) const asm("__wrap_" GET_DATE_DESC);
    CString Genuine(int nDay, int nMonth, int nYear, DWORD& dwColor) const asm("__real_" GET_DATE_DESC);
};

CString CountedSettings::GetDateDesc(int nDay, int nMonth, int nYear, DWORD& dwColor) const
{
    ++g_nLookups;
    return Genuine(nDay, nMonth, nYear, dwColor);
}

using LookupTest = CalendarTest;

TEST_F(LookupTest, TheCellsAreLookedUpOnceAMonthAndNeverWhilePainting)
{
    g_nLookups = 0;
    Start();
    EXPECT_EQ(g_nLookups, 42);
    for (int i = 0; i < 3; ++i)
        Repaint();
    EXPECT_EQ(g_nLookups, 42);

    Key(VK_NEXT);
    EXPECT_EQ(g_nLookups, 84) << "another month";
    Repaint();
    Key(VK_RIGHT);
    Repaint();
    EXPECT_EQ(g_nLookups, 84) << "a day of the same month";
}

// What the random games share: seeds, chances, dates and the hands of a user.
#pragma once

#include <DateTime.h>

#include <afxwin.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <vector>

class RandomGame
{
public:
    explicit RandomGame(unsigned nSeed) : m_random(nSeed) {}

    // A longer game: ZEB17_MONKEY_MESSAGES says how many messages each seed plays, ZEB17_MONKEY_SEEDS how
    // many further seeds there are. The build has the defaults, for the emulated system is slow.
    static unsigned GetSetting(const char* strName, unsigned nDefault)
    {
        const char* const strValue = std::getenv(strName);
        return strValue ? static_cast<unsigned>(std::strtoul(strValue, nullptr, 10)) : nDefault;
    }

    // A seed that failed is to be added here.
    static std::vector<unsigned> GetSeeds()
    {
        std::vector<unsigned> seeds = {1, 20260715};
        for (unsigned n = GetSetting("ZEB17_MONKEY_SEEDS", 0); n > 0; --n)
            seeds.push_back(std::random_device{}());
        return seeds;
    }

    int Pick(int nBelow) { return static_cast<int>(m_random() % static_cast<unsigned>(nBelow)); }

    // None, one at the ends of time, or a usual one.
    DateTime PickDate()
    {
        DateTime date;
        const int days[] = {0, 1 + Pick(400), 3652061 - Pick(400), 739000 + Pick(2000)};
        date.m_nDayNumber = days[std::min(Pick(8), 3)];
        return date;
    }

    void Press(HWND hWnd)
    {
        const LPARAM lPoint = MAKELPARAM(Pick(300), Pick(240));
        ::SendMessageA(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, lPoint);
        ::SendMessageA(hWnd, WM_LBUTTONUP, 0, lPoint);
    }

    void Key(HWND hWnd)
    {
        constexpr WPARAM kKeys[] = {VK_LEFT, VK_UP,  VK_RIGHT, VK_DOWN,  VK_HOME, VK_END,    'T',
                                    VK_F5,   VK_TAB, VK_SPACE, VK_PRIOR, VK_NEXT, VK_RETURN, VK_ESCAPE};
        MSG msg{hWnd, WM_KEYDOWN, kKeys[Pick(static_cast<int>(std::size(kKeys)))], 1, 0, {}};
        if (!CWnd::WalkPreTranslateTree(::GetAncestor(hWnd, GA_ROOT), &msg))
            ::DispatchMessageA(&msg);
    }

private:
    std::mt19937 m_random;
};

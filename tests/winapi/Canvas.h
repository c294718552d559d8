// A bitmap to draw on, told pixel by pixel in letters.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>
#include <algorithm>
#include <string>
#include <vector>

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);

class Canvas : public testing::Test
{
protected:
    static constexpr int kWidth = 60;
    static constexpr int kHeight = 30;

    Canvas()
    {
        m_old = SelectObject(dc, bitmap);
        clear();
    }

    ~Canvas() override
    {
        SelectObject(dc, m_old);
        DeleteObject(bitmap);
        DeleteDC(dc);
        ReleaseDC(nullptr, screen);
        for (const HGDIOBJ object : m_objects)
            DeleteObject(object);
    }

    // Released when the test is over, after the contexts.
    template <class Handle>
    Handle keep(Handle object)
    {
        m_objects.push_back(object);
        return object;
    }

    void clear()
    {
        const RECT all = {0, 0, kWidth, kHeight};
        FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }

    void setPixel(int x, int y, COLORREF color)
    {
        const HBRUSH brush = keep(CreateSolidBrush(color));
        const RECT pixel = {x, y, x + 1, y + 1};
        FillRect(dc, &pixel, brush);
    }

    // One row: '.' white, '#' black, 'r' red, 'g' green, '?' any other colour.
    std::string row(int y, int left, int right) const
    {
        std::string letters;
        for (int x = left; x < right; ++x)
            letters += letter(GetPixel(dc, x, y));
        return letters;
    }

    // The smallest rectangle that holds all that is not white.
    RECT drawn() const
    {
        RECT found = {kWidth, kHeight, 0, 0};
        for (LONG y = 0; y < kHeight; ++y)
            for (LONG x = 0; x < kWidth; ++x)
                if (GetPixel(dc, x, y) != kWhite)
                    found = {std::min(found.left, x), std::min(found.top, y), std::max(found.right, x + 1),
                             std::max(found.bottom, y + 1)};
        return found.right > 0 ? found : RECT{};
    }

    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, kWidth, kHeight); // what `dc` draws on

private:
    static char letter(COLORREF color)
    {
        switch (color) {
        case kWhite:
            return '.';
        case kBlack:
            return '#';
        case kRed:
            return 'r';
        case kGreen:
            return 'g';
        default:
            return '?';
        }
    }

    HGDIOBJ m_old = nullptr;
    std::vector<HGDIOBJ> m_objects;
};

inline std::string textOf(const RECT& r)
{
    return std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) + "," +
           std::to_string(r.bottom);
}

#define EXPECT_RECT(l, t, r, b, rect) EXPECT_EQ(textOf(RECT{l, t, r, b}), textOf(rect))

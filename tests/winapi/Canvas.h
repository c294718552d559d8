// A bitmap to draw on, told pixel by pixel in letters.
#pragma once

#include <windows.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);

class Canvas : public testing::Test
{
protected:
    static constexpr int width = 60;
    static constexpr int height = 30;

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
        const RECT all = {0, 0, width, height};
        FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
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
        RECT found = {};
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const RECT pixel = {x, y, x + 1, y + 1};
                const RECT before = found;
                if (GetPixel(dc, x, y) != white)
                    UnionRect(&found, &before, &pixel);
            }
        return found;
    }

    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height); // what `dc` draws on

private:
    static char letter(COLORREF color)
    {
        switch (color) {
        case white:
            return '.';
        case black:
            return '#';
        case red:
            return 'r';
        case green:
            return 'g';
        default:
            return '?';
        }
    }

    HGDIOBJ m_old = nullptr;
    std::vector<HGDIOBJ> m_objects;
};

#define EXPECT_RECT(l, t, r, b, rect)                                                                        \
    do {                                                                                                     \
        const RECT told = rect;                                                                              \
        EXPECT_EQ(std::to_string(l) + "," + std::to_string(t) + "," + std::to_string(r) + "," +              \
                      std::to_string(b),                                                                     \
                  std::to_string(told.left) + "," + std::to_string(told.top) + "," +                         \
                      std::to_string(told.right) + "," + std::to_string(told.bottom));                       \
    } while (false)

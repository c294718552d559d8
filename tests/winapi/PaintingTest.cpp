// Update regions, erasing, and what a context of a window reaches.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

void fill(HWND window, COLORREF color)
{
    RECT rect{};
    GetClientRect(window, &rect);
    rect = {rect.left - 50, rect.top - 50, rect.right + 50, rect.bottom + 50};
    const HDC dc = GetDC(window);
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(dc, &rect, brush);
    DeleteObject(brush);
    ReleaseDC(window, dc);
}

COLORREF pixel(HWND window, int x, int y)
{
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return color;
}

class Painting : public testing::Test
{
protected:
    void SetUp() override
    {
        top = recorder.createTop("t");
        recorder.only({"PAINT", "ERASEBKGND"});
    }

    HWND addChild(const char* name, UINT classStyle = 0)
    {
        const HWND child = recorder.create(name, WS_CHILD | WS_VISIBLE, top, 5, classStyle);
        serveMessages();
        recorder.clear();
        return child;
    }

    MessageRecorder recorder;
    HWND top = nullptr;
};

TEST_F(Painting, UpdateRegionsGrowAndShrink)
{
    const RECT first{10, 10, 20, 20};
    const RECT second{30, 40, 50, 60};
    RECT update{};
    EXPECT_FALSE(GetUpdateRect(top, &update, FALSE));
    InvalidateRect(top, &first, FALSE);
    InvalidateRect(top, &second, FALSE);
    EXPECT_TRUE(GetUpdateRect(top, &update, FALSE));
    EXPECT_EQ(update.left, 10);
    EXPECT_EQ(update.bottom, 60);
    ValidateRect(top, &first);
    GetUpdateRect(top, &update, FALSE);
    EXPECT_EQ(update.left, 30);
    EXPECT_EQ(update.top, 40);
    ValidateRect(top, nullptr);
    EXPECT_FALSE(GetUpdateRect(top, &update, FALSE));
    const RECT outside{400, 0, 500, 100};
    InvalidateRect(top, &outside, TRUE);
    EXPECT_FALSE(GetUpdateRect(top, &update, FALSE));
    EXPECT_EQ(recorder.served(), "");
}

TEST_F(Painting, BeginPaintTellsTheRegionAndErasesOnceWhenAsked)
{
    const RECT part{10, 10, 20, 20};
    InvalidateRect(top, &part, TRUE);
    InvalidateRect(top, &part, FALSE);
    PAINTSTRUCT paint{};
    BeginPaint(top, &paint);
    EXPECT_EQ(paint.rcPaint.left, 10);
    EXPECT_EQ(paint.rcPaint.right, 20);
    EXPECT_FALSE(paint.fErase) << "the class has a brush";
    EndPaint(top, &paint);
    EXPECT_EQ(recorder.take(), "t.ERASEBKGND");
    EXPECT_EQ(recorder.served(), "");
}

TEST_F(Painting, ErasingUsesTheBrushOfTheClass)
{
    fill(top, kRed);
    EXPECT_EQ(pixel(top, 5, 5), kRed) << "drawing outside of a paint shows at once";
    InvalidateRect(top, nullptr, FALSE);
    UpdateWindow(top);
    EXPECT_EQ(pixel(top, 5, 5), kRed);
    const RECT part{0, 0, 10, 10};
    InvalidateRect(top, &part, TRUE);
    UpdateWindow(top);
    EXPECT_EQ(pixel(top, 5, 5), kWhite);
    EXPECT_EQ(pixel(top, 15, 5), kRed);
}

TEST_F(Painting, InvalidatingAParentReachesItsChildrenByStyle)
{
    addChild("c");
    InvalidateRect(top, nullptr, TRUE);
    UpdateWindow(top);
    EXPECT_EQ(recorder.take(), "t.PAINT t.ERASEBKGND c.PAINT c.ERASEBKGND");
    SetWindowLongPtrA(top, GWL_STYLE, GetWindowLongPtrA(top, GWL_STYLE) | WS_CLIPCHILDREN);
    InvalidateRect(top, nullptr, TRUE);
    EXPECT_EQ(recorder.served(), "t.PAINT t.ERASEBKGND");
}

TEST_F(Painting, AContextEndsWithItsWindow)
{
    const HWND child = addChild("c");
    fill(child, kBlue);
    EXPECT_EQ(pixel(child, 0, 0), kBlue);
    EXPECT_EQ(pixel(top, 9, 20), kWhite);
    EXPECT_EQ(pixel(top, 10, 20), kBlue);
    fill(top, kRed);
    EXPECT_EQ(pixel(top, 10, 20), kRed) << "over the child, unless it is clipped out";
    fill(child, kBlue);
    SetWindowLongPtrA(top, GWL_STYLE, GetWindowLongPtrA(top, GWL_STYLE) | WS_CLIPCHILDREN);
    fill(top, kWhite);
    EXPECT_EQ(pixel(child, 5, 5), kBlue);
}

TEST_F(Painting, MovingKeepsThePixelsAndUncoversTheParent)
{
    const HWND child = addChild("c");
    fill(child, kBlue);
    MoveWindow(child, 60, 70, 100, 80, TRUE);
    EXPECT_EQ(recorder.served(), "t.PAINT t.ERASEBKGND");
    EXPECT_EQ(pixel(top, 11, 21), kWhite);
    EXPECT_EQ(pixel(top, 61, 71), kBlue);
    EXPECT_EQ(pixel(top, 159, 149), kBlue);
}

TEST_F(Painting, SizingInvalidatesWhatIsNewOrAll)
{
    const struct
    {
        const char* name;
        UINT classStyle;
        bool keeps;
    } cases[] = {{"k", 0, true}, {"r", CS_HREDRAW | CS_VREDRAW, false}};
    for (const auto& [name, classStyle, keeps] : cases) {
        const HWND child = addChild(name, classStyle);
        fill(child, kBlue);
        MoveWindow(child, 10, 20, 120, 80, TRUE);
        EXPECT_EQ(recorder.served(), std::string(name) + ".PAINT " + name + ".ERASEBKGND");
        EXPECT_EQ(pixel(child, 5, 5), keeps ? kBlue : kWhite);
        EXPECT_EQ(pixel(child, 115, 5), kWhite);
        DestroyWindow(child);
        serveMessages();
    }
}

TEST_F(Painting, WhatHidingAndDestroyingUncoverIsPainted)
{
    const HWND child = addChild("c");
    fill(child, kBlue);
    ShowWindow(child, SW_HIDE);
    serveMessages();
    EXPECT_EQ(pixel(top, 30, 30), kWhite);
    recorder.clear();
    InvalidateRect(child, nullptr, TRUE);
    EXPECT_EQ(recorder.served(), "") << "hidden windows are not painted";
    ShowWindow(child, SW_SHOW);
    serveMessages();
    fill(child, kBlue);
    EXPECT_EQ(pixel(top, 30, 30), kBlue);
    DestroyWindow(child);
    serveMessages();
    EXPECT_EQ(pixel(top, 30, 30), kWhite);
}

}

// The tool-tip control: its tools, its texts, and when a tip is up.
#include "Hands.h"
#include "MessageRecorder.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace {

class ToolTipControl : public testing::Test
{
protected:
    void SetUp() override
    {
        movePointer(600, 600);
        top = recorder.createTop("t");
        child = recorder.create("c", WS_CHILD | WS_VISIBLE, top, 5);
        tip = CreateWindowExA(0, TOOLTIPS_CLASSA, "", WS_POPUP, 0, 0, 0, 0, top, nullptr, nullptr, nullptr);
        serveMessages();
    }

    void TearDown() override { DestroyWindow(tip); }

    TOOLINFOA tool(UINT_PTR toolId, const char* text, RECT rect = {0, 0, 60, 60})
    {
        TOOLINFOA info{};
        info.cbSize = sizeof info;
        info.hwnd = child;
        info.uId = toolId;
        info.rect = rect;
        info.lpszText = const_cast<LPSTR>(text);
        return info;
    }

    LRESULT send(UINT message, TOOLINFOA& info)
    {
        return SendMessageA(tip, message, 0, reinterpret_cast<LPARAM>(&info));
    }

    // The pointer comes to rest on the child, 10 pixels off its corner, where the tool is.
    void restOn(TOOLINFOA info)
    {
        send(TTM_ADDTOOLA, info);
        POINT place{10, 10};
        MSG move{child, WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y), 0, {}};
        ClientToScreen(child, &place);
        movePointer(place.x, place.y);
        serveMessages();
        SendMessageA(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&move));
    }

    // Where a tip of that text comes up.
    RECT shown(const char* text)
    {
        TOOLINFOA info = tool(1, text);
        restOn(info);
        EXPECT_TRUE(comesUp()) << text;
        RECT rect{};
        GetWindowRect(tip, &rect);
        movePointer(0, 0);
        EXPECT_TRUE(goes());
        send(TTM_DELTOOLA, info);
        return rect;
    }

    LONG widthOf(const char* text)
    {
        const RECT rect = shown(text);
        return rect.right - rect.left;
    }

    bool comesUp()
    {
        for (int i = 0; i < 60 && !IsWindowVisible(tip); ++i)
            serveMessages();
        return IsWindowVisible(tip);
    }

    bool goes()
    {
        for (int i = 0; i < 60 && IsWindowVisible(tip); ++i)
            serveMessages();
        return !IsWindowVisible(tip);
    }

    MessageRecorder recorder;
    HWND top = nullptr;
    HWND child = nullptr;
    HWND tip = nullptr;
};

TEST_F(ToolTipControl, ATextIsShownAsTypedButForAmpersands)
{
    EXPECT_EQ(widthOf("&one && t&wo"), widthOf("one && two"));
    EXPECT_GT(widthOf("&&lt;"), widthOf("lt;"));
    EXPECT_GT(widthOf("<b>x</b>"), widthOf("xxx")) << "no markup";
}

TEST_F(ToolTipControl, TheTipStaysOnTheScreen)
{
    const HDC dc = GetDC(nullptr);
    const RECT screen{0, 0, GetDeviceCaps(dc, HORZRES), GetDeviceCaps(dc, VERTRES)};
    ReleaseDC(nullptr, dc);
    RECT corner{};
    GetWindowRect(child, &corner);
    MoveWindow(top, 100 + screen.right - corner.left - 14, 100 + screen.bottom - corner.top - 14, 300, 200,
               TRUE);
    serveMessages();
    const RECT rect = shown("a long text at the corner");
    EXPECT_LE(rect.right, screen.right);
    EXPECT_LE(rect.bottom, screen.bottom);
}

TEST_F(ToolTipControl, ADeletedToolShowsNoTip)
{
    restOn(tool(1, "hello"));
    ASSERT_TRUE(comesUp());
    TOOLINFOA info = tool(1, "");
    send(TTM_DELTOOLA, info);
    EXPECT_FALSE(IsWindowVisible(tip));

    movePointer(350, 280);
    serveMessages();
    restOn(tool(1, "hello"));
    ASSERT_FALSE(IsWindowVisible(tip));
    send(TTM_DELTOOLA, info); // its number now is that of a tool elsewhere
    info = tool(1, "elsewhere", {60, 60, 80, 80});
    send(TTM_ADDTOOLA, info);
    EXPECT_FALSE(comesUp());
}

TEST_F(ToolTipControl, AnEmptyTextShowsNoTip)
{
    restOn(tool(1, ""));
    EXPECT_FALSE(comesUp());
}

}

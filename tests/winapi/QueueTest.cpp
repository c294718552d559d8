// The message queue, registered messages, timers and hooks.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

namespace {

// Registered while the program loads.
const UINT earlyMessage = RegisterWindowMessageA("zeb17 test message");

class Queue : public testing::Test
{
protected:
    void SetUp() override { top = recorder.createTop("t"); }

    MessageRecorder recorder;
    HWND top = nullptr;
};

TEST_F(Queue, RegisteredMessagesHaveOneNumberAName)
{
    EXPECT_GE(earlyMessage, 0xC000u);
    EXPECT_LE(earlyMessage, 0xFFFFu);
    EXPECT_EQ(RegisterWindowMessageA("zeb17 test message"), earlyMessage);
    EXPECT_EQ(RegisterWindowMessageA("ZEB17 Test Message"), earlyMessage);
    EXPECT_NE(RegisterWindowMessageA("zeb17 another"), earlyMessage);
}

TEST_F(Queue, PostedMessagesComeInOrderBeforePaintsAndTimers)
{
    recorder.only({"USER", "PAINT", "TIMER"});
    SetTimer(top, 9, 10, nullptr);
    InvalidateRect(top, nullptr, FALSE);
    Sleep(30);
    PostMessageA(top, WM_USER, 1, 0);
    PostMessageA(top, WM_USER, 2, 0);
    MSG message;
    while (recorder.nameOf(top) == "t" && GetMessageA(&message, nullptr, 0, 0)) {
        DispatchMessageA(&message);
        if (message.message == WM_TIMER)
            break;
    }
    EXPECT_EQ(recorder.take(), "t.USER(1) t.USER(2) t.PAINT t.TIMER(9)");
    EXPECT_TRUE(KillTimer(top, 9));
    EXPECT_FALSE(KillTimer(top, 9));
    Sleep(30);
    serveMessages();
    EXPECT_EQ(recorder.take(), "");
}

TEST_F(Queue, QuitComesLastAndOnce)
{
    PostQuitMessage(5);
    PostMessageA(top, WM_USER, 3, 0);
    MSG message{};
    EXPECT_TRUE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, UINT(WM_USER));
    EXPECT_FALSE(GetMessageA(&message, nullptr, 0, 0));
    EXPECT_EQ(message.message, UINT(WM_QUIT));
    EXPECT_EQ(message.wParam, 5u);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Queue, PeekingLooksAtWhatItIsAskedFor)
{
    const HWND child = recorder.create("c", WS_CHILD, top, 5);
    PostMessageA(top, WM_USER, 1, 0);
    PostMessageA(child, WM_USER + 1, 2, 0);
    MSG message{};
    EXPECT_FALSE(PeekMessageA(&message, child, WM_USER, WM_USER, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_USER + 1, WM_USER + 1, PM_NOREMOVE));
    EXPECT_EQ(message.wParam, 2u);
    EXPECT_TRUE(PeekMessageA(&message, top, WM_USER + 1, WM_USER + 1, PM_REMOVE)) << "a child's as well";
    EXPECT_FALSE(PeekMessageA(&message, top, WM_USER + 1, WM_USER + 1, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
}

TEST_F(Queue, MessagesOfAWindowGoWithIt)
{
    const HWND child = recorder.create("c", WS_CHILD, top, 5);
    PostMessageA(child, WM_USER, 1, 0);
    DestroyWindow(child);
    MSG message{};
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_USER, WM_USER, PM_REMOVE));
    SetLastError(0);
    EXPECT_FALSE(PostMessageA(child, WM_USER, 0, 0));
    EXPECT_EQ(GetLastError(), 1400u);
    EXPECT_EQ(SendMessageA(child, WM_USER, 0, 0), 0);
}

TEST_F(Queue, PostedKeysHaveCharacters)
{
    recorder.only({"KEYDOWN", "CHAR"});
    const struct
    {
        int key;
        const char* expected;
    } keys[] = {{'A', "t.KEYDOWN(65) t.CHAR(97)"},
                {'5', "t.KEYDOWN(53) t.CHAR(53)"},
                {VK_RETURN, "t.KEYDOWN(13) t.CHAR(13)"},
                {VK_LEFT, "t.KEYDOWN(37)"}};
    for (const auto& [key, expected] : keys) {
        PostMessageA(top, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
        serveMessages();
        EXPECT_EQ(recorder.take(), expected);
    }
}

std::string hookNotes;

LRESULT CALLBACK creationHook(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_CREATEWND)
        hookNotes += std::string("create ") + reinterpret_cast<CBT_CREATEWNDA*>(lParam)->lpcs->lpszName + " ";
    if (code == HCBT_DESTROYWND)
        hookNotes += "destroy ";
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK refusingHook(int code, WPARAM, LPARAM)
{
    hookNotes += "refuse ";
    return code == HCBT_CREATEWND;
}

LRESULT CALLBACK filterHook(int code, WPARAM, LPARAM lParam)
{
    hookNotes += std::to_string(code) + ":" + std::to_string(reinterpret_cast<MSG*>(lParam)->message) + " ";
    return TRUE;
}

TEST_F(Queue, HooksSeeWindowsComeAndMayRefuseThem)
{
    const DWORD thread = GetCurrentThreadId();
    hookNotes.clear();
    const HHOOK refusing = SetWindowsHookExA(WH_CBT, refusingHook, nullptr, thread);
    const HHOOK noting = SetWindowsHookExA(WH_CBT, creationHook, nullptr, thread);
    recorder.clear();
    EXPECT_EQ(recorder.create("x", WS_CHILD, top, 5), nullptr);
    EXPECT_EQ(hookNotes, "create x refuse ");
    EXPECT_EQ(recorder.take(), "");
    UnhookWindowsHookEx(refusing);
    hookNotes.clear();
    DestroyWindow(recorder.create("y", WS_CHILD, top, 5));
    EXPECT_EQ(hookNotes, "create y destroy ");
    EXPECT_TRUE(UnhookWindowsHookEx(noting));
    EXPECT_FALSE(UnhookWindowsHookEx(noting));
}

TEST_F(Queue, MessageFilter)
{
    MSG message{};
    message.message = WM_USER;
    EXPECT_FALSE(CallMsgFilterA(&message, MSGF_USER));
    hookNotes.clear();
    const HHOOK hook = SetWindowsHookExA(WH_MSGFILTER, filterHook, nullptr, GetCurrentThreadId());
    EXPECT_TRUE(CallMsgFilterA(&message, MSGF_USER));
    EXPECT_EQ(hookNotes, "4096:1024 ");
    UnhookWindowsHookEx(hook);
}

}

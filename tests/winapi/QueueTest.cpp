// The message queue, registered messages, and timers.
#include "MessageRecorder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

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
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    PostMessageA(top, WM_USER, 1, 0);
    PostMessageA(top, WM_USER, 2, 0);
    MSG message;
    do {
        GetMessageA(&message, nullptr, 0, 0);
        DispatchMessageA(&message);
    } while (message.message != WM_TIMER);
    EXPECT_EQ(recorder.take(), "t.USER(1) t.USER(2) t.PAINT t.TIMER(9)");
    EXPECT_TRUE(KillTimer(top, 9));
    EXPECT_FALSE(KillTimer(top, 9));
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    EXPECT_EQ(recorder.served(), "");
}

// The one call that other threads may make. A loop that waits is woken; a window that is gone is noticed.
TEST_F(Queue, AnyThreadMayPost)
{
    constexpr WPARAM kThreads = 4;
    constexpr LPARAM kMessages = 500;
    recorder.only({"TIMER"});
    std::vector<std::thread> threads;
    for (WPARAM thread = 0; thread < kThreads; ++thread)
        threads.emplace_back([=, window = top] {
            for (LPARAM number = 0; number < kMessages; ++number)
                PostMessageA(window, WM_USER, thread, number);
        });
    std::vector<LPARAM> next(kThreads);
    for (LPARAM taken = 0; taken < static_cast<LPARAM>(kThreads) * kMessages;) {
        MSG message;
        GetMessageA(&message, nullptr, 0, 0);
        if (message.message == WM_USER) {
            ASSERT_EQ(message.lParam, next.at(message.wParam)++) << "each thread's in their order";
            ++taken;
        }
        DispatchMessageA(&message);
    }
    for (std::thread& thread : threads)
        thread.join();
    DestroyWindow(top);
    BOOL posted = TRUE;
    std::thread([&posted, window = top] { posted = PostMessageA(window, WM_USER, 0, 0); }).join();
    EXPECT_FALSE(posted);
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
        EXPECT_EQ(recorder.served(), expected);
    }
}

}

// Handlers that destroy a window, their own or another, inside of any message.
#include "Hands.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace {

constexpr const char* kClassName = "ending";

// The windows of the play: a top-level window with a child and a grandchild, one that it owns, and a
// stranger.
enum Role
{
    Top,
    Child,
    Grandchild,
    Owned,
    Stranger,
    Roles
};

using Moment = std::pair<Role, UINT>; // who hears what

class Ending : public testing::Test
{
protected:
    Ending()
    {
        s_current = this;
        WNDCLASSA windowClass{};
        windowClass.lpfnWndProc = procedure;
        windowClass.lpszClassName = kClassName;
        windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        windowClass.style = CS_DBLCLKS;
        RegisterClassA(&windowClass);
    }
    ~Ending() override { s_current = nullptr; }

    void create(Role role, DWORD style, RECT place, HWND parent)
    {
        m_creating = role;
        CreateWindowExA(0, kClassName, "", style, place.left, place.top, place.right, place.bottom, parent,
                        nullptr, nullptr, nullptr);
    }

    static void serve()
    {
        MSG message;
        for (int i = 0; i < 200 && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE); ++i) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }

    // What windows go through in their lives. A call on a window that is gone fails, and that is all.
    void play()
    {
        create(Top, WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, {20, 20, 200, 150}, nullptr);
        create(Child, WS_CHILD | WS_VISIBLE, {10, 10, 150, 100}, m_windows[Top]);
        create(Grandchild, WS_CHILD | WS_VISIBLE, {10, 10, 80, 50}, m_windows[Child]);
        create(Owned, WS_POPUP | WS_VISIBLE, {250, 20, 100, 100}, m_windows[Top]);
        create(Stranger, WS_POPUP | WS_VISIBLE, {250, 150, 100, 100}, nullptr);
        serve();
        for (const Role role : {Grandchild, Child, Owned, Top, Grandchild, Stranger})
            SetFocus(m_windows[role]);
        MoveWindow(m_windows[Top], 30, 30, 210, 160, TRUE);
        MoveWindow(m_windows[Child], 5, 5, 100, 90, TRUE);
        for (const Role role : {Top, Child, Grandchild}) {
            InvalidateRect(m_windows[role], nullptr, TRUE);
            UpdateWindow(m_windows[role]);
        }
        SetWindowTextA(m_windows[Owned], "text");
        useHands();
        EnableWindow(m_windows[Top], FALSE);
        EnableWindow(m_windows[Top], TRUE);
        SetFocus(m_windows[Grandchild]);
        for (const Role role : {Child, Owned, Top}) {
            ShowWindow(m_windows[role], SW_HIDE);
            ShowWindow(m_windows[role], SW_SHOW);
        }
        PostMessageA(m_windows[Stranger], WM_SYSCOMMAND, SC_CLOSE, 0);
        serve();
        DestroyWindow(m_windows[Grandchild]);
        DestroyWindow(m_windows[Top]);
        serve();
        m_victim = Roles;
        for (const HWND window : m_windows)
            DestroyWindow(window);
        m_windows = {};
    }

    void useHands()
    {
        PostMessageA(m_windows[Grandchild], WM_KEYDOWN, 'A', 0);
        PostMessageA(m_windows[Grandchild], WM_SYSKEYDOWN, 'A', 0);
        movePointer(60, 60);
        pressButton();
        releaseButton();
        turnWheel(WHEEL_DELTA);
        serve();
    }

    void expectSurvived(Moment moment, Role victim, bool always)
    {
        m_moment = moment;
        m_victim = victim;
        m_always = always;
        m_depth = m_deepest = 0;
        play();
        EXPECT_LT(m_deepest, 20) << "message " << moment.second << " of window " << moment.first;
    }

    std::set<Moment> m_heard;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (s_current)
            s_current->hear(window, message);
        return DefWindowProcA(window, message, wParam, lParam);
    }

    void hear(HWND window, UINT message)
    {
        if (message == WM_NCCREATE)
            m_windows[m_creating] = window;
        const Role role = roleOf(window);
        if (role == Roles)
            return;
        m_heard.insert({role, message});
        if (m_victim == Roles || Moment{role, message} != m_moment || m_depth > 50)
            return;
        const HWND victim = m_windows[m_victim];
        if (!m_always)
            m_victim = Roles;
        m_deepest = std::max(m_deepest, ++m_depth);
        DestroyWindow(victim);
        --m_depth;
    }

    Role roleOf(HWND window) const
    {
        const auto found = std::find(m_windows.begin(), m_windows.end(), window);
        return static_cast<Role>(found - m_windows.begin());
    }

    std::array<HWND, Roles> m_windows{};
    Role m_creating = Roles;
    Moment m_moment{};
    Role m_victim = Roles; // whom the moment destroys
    bool m_always = false; // each time that it comes
    int m_depth = 0;
    int m_deepest = 0;

    static Ending* s_current;
};

Ending* Ending::s_current = nullptr;

// Each moment of the play, with each window for a victim. Emulated, a part of them.
TEST_F(Ending, AnyMessageMayDestroyAnyWindow)
{
    play();
    const std::set<Moment> moments = m_heard;
    EXPECT_GT(moments.size(), 60u);
    int number = 0;
    for (const Moment& moment : moments)
        for (int victim = Top; victim < Roles; ++victim)
            for (const bool always : {false, true})
                if (++number % ENDING_STRIDE == 0)
                    expectSurvived(moment, static_cast<Role>(victim), always);
}

}

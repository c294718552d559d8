// What stands between the system and the objects of windows.
#pragma once

#include "threadstate.h"

#include <utility>

/// Ends an exception that a handler of the message let out, and gives the result that the system then gets.
LRESULT EndHandlerException(CException* exception, const MSG& message);

/// Runs what the system has called us for. A CException ends here, for it must not cross the system's frames.
template <class Call>
LRESULT GuardFromExceptions(const MSG& message, Call call) noexcept
{
    try {
        return call();
    } catch (CException* exception) {
        CWinApp* app = AfxGetApp();
        return app ? app->ProcessWndProcException(exception, &message)
                   : EndHandlerException(exception, message);
    }
}

inline WNDPROC GetWindowProcedure(HWND hWnd)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(hWnd, GWLP_WNDPROC));
}

/// Gives the procedure that the window had.
inline WNDPROC SetWindowProcedure(HWND hWnd, WNDPROC procedure)
{
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

/// While it lives, its message is the one that is being offered to windows.
class MessageOffer
{
public:
    explicit MessageOffer(const MSG& message)
        : m_before(std::exchange(ThreadState::Current().offered, &message))
    {
    }
    ~MessageOffer() { ThreadState::Current().offered = m_before; }
    MessageOffer(const MessageOffer&) = delete;
    MessageOffer& operator=(const MessageOffer&) = delete;

    /// Whether it is this message: one that is handed to IsDialogMessage by who was offered it comes by once
    /// more.
    static bool IsAtHand(const MSG& message);

private:
    const MSG* m_before;
};

/// While it lives, the next window created of the class becomes the object's, before its first message.
class CreationHook
{
public:
    CreationHook(CWnd* window, LPCSTR className);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

    bool HasCaught() const;

private:
    static LRESULT CALLBACK Catch(int code, WPARAM wParam, LPARAM lParam);

    ThreadState& m_state = ThreadState::Current();
    HHOOK m_hook;
};

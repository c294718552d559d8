// What stands between the system and the objects of windows: exceptions, procedures, and the moment of
// creation.
#pragma once

#include "ThreadState.h"

#include <utility>

// Ends an exception that left a handler of the message, and gives the result that the system gets instead.
LRESULT EndHandlerException(CException* pException, const MSG& message);

// Makes the call, which the system has asked for. A CException ends here, for it must not cross the system's
// frames.
template <class Call>
LRESULT GuardFromExceptions(const MSG& message, Call call) noexcept
{
    try {
        return call();
    } catch (CException* pException) {
        CWinApp* pApp = AfxGetApp();
        return pApp ? pApp->ProcessWndProcException(pException, &message)
                    : EndHandlerException(pException, message);
    }
}

inline WNDPROC GetWindowProcedure(HWND hWnd)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(hWnd, GWLP_WNDPROC));
}

// Gives the procedure that the window had before.
inline WNDPROC SetWindowProcedure(HWND hWnd, WNDPROC pfnProcedure)
{
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(pfnProcedure)));
}

// Marks a message as being offered to windows, for as long as the object lives.
class MessageOffer
{
public:
    explicit MessageOffer(const MSG& message)
        : m_pBefore(std::exchange(ThreadState::Current().pOffered, &message))
    {
    }
    ~MessageOffer()
    {
        ThreadState& state = ThreadState::Current();
        state.lastOffered = *state.pOffered;
        state.pOffered = m_pBefore;
    }
    MessageOffer(const MessageOffer&) = delete;
    MessageOffer& operator=(const MessageOffer&) = delete;

    // Whether this message is already being offered. A window that is offered a message may pass it to
    // IsDialogMessage, whose filter would offer it a second time.
    static bool IsAtHand(const MSG& message)
    {
        const MSG* const pOffered = ThreadState::Current().pOffered;
        return pOffered && IsSame(*pOffered, message);
    }

    // Whether the message is the last one that was offered; says so once for each offer. A window that gets a
    // message learns by it whether a loop has offered the message before.
    static bool WasMade(const MSG& message)
    {
        return IsSame(std::exchange(ThreadState::Current().lastOffered, {}), message);
    }

private:
    static bool IsSame(const MSG& one, const MSG& other)
    {
        return one.hwnd == other.hwnd && one.message == other.message && one.wParam == other.wParam &&
               one.lParam == other.lParam && one.time == other.time;
    }

    const MSG* m_pBefore;
};

// Makes the next window of the class that is created the window of the object, before the window's first
// message. Holds for as long as the hook lives.
class CreationHook
{
public:
    CreationHook(CWnd* pWnd, LPCSTR lpszClassName);
    ~CreationHook();
    CreationHook(const CreationHook&) = delete;
    CreationHook& operator=(const CreationHook&) = delete;

    // Whether the object has got a window.
    bool HasCaught() const;

private:
    static LRESULT CALLBACK Catch(int nCode, WPARAM wParam, LPARAM lParam);

    ThreadState& m_state = ThreadState::Current();
    HHOOK m_hHook;
};

#include "wndproc.h"

namespace {
/// The message at hand, for as long as its window procedure is at work.
class CurrentMessage
{
public:
    explicit CurrentMessage(const MSG& message)
        : m_state(ThreadState::Current()), m_outer(std::exchange(m_state.message, message))
    {
        ++m_state.depth;
    }
    ~CurrentMessage()
    {
        --m_state.depth;
        m_state.message = m_outer;
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    ThreadState& m_state;
    MSG m_outer;
};
}

bool MessageOffer::IsAtHand(const MSG& message)
{
    const MSG* const offered = ThreadState::Current().offered;
    return offered && offered->hwnd == message.hwnd && offered->message == message.message &&
           offered->wParam == message.wParam && offered->lParam == message.lParam &&
           offered->time == message.time;
}

LRESULT CALLBACK CWnd::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    CWnd* window = FromHandlePermanent(hWnd);
    if (!window)
        return ::DefWindowProcA(hWnd, message, wParam, lParam);

    MSG current{};
    current.hwnd = hWnd;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    current.time = static_cast<DWORD>(::GetMessageTime());
    current.pt = CPoint(static_cast<LPARAM>(::GetMessagePos()));

    const CurrentMessage scope(current);
    return GuardFromExceptions(current, [&] { return window->WindowProc(message, wParam, lParam); });
}

LRESULT EndHandlerException(CException* exception, const MSG& message)
{
    exception->Delete();
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr); // else the message would come again at once, for ever
    return message.message == WM_CREATE ? -1 : 0;
}

CreationHook::CreationHook(CWnd* window, LPCSTR className)
{
    m_state.creating = window;
    m_state.creatingClass = className;
    m_hook = ::SetWindowsHookExA(WH_CBT, &CreationHook::Catch, nullptr, ::GetCurrentThreadId());
}

CreationHook::~CreationHook()
{
    m_state.creating = nullptr;
    ::UnhookWindowsHookEx(m_hook);
}

bool CreationHook::HasCaught() const
{
    return !m_state.creating;
}

// The system may create windows of its own on the way to the one that was asked for.
static bool IsOfClass(HWND hWnd, LPCSTR className)
{
    if (reinterpret_cast<UINT_PTR>(className) <= 0xFFFF) // an atom
        return true;
    char name[256];
    ::GetClassNameA(hWnd, name, static_cast<int>(sizeof name));
    return CString(name).CompareNoCase(className) == 0;
}

LRESULT CALLBACK CreationHook::Catch(int code, WPARAM wParam, LPARAM lParam)
{
    ThreadState& state = ThreadState::Current();
    const auto hWnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.creating && IsOfClass(hWnd, state.creatingClass))
        std::exchange(state.creating, nullptr)->SubclassWindow(hWnd);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

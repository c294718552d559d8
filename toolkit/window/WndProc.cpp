// The window procedure of all windows that have an object, and the hook that gives a new window its object.
#include "WndProc.h"

namespace {

// Makes a message the one at hand, for as long as its window procedure is at work.
class CurrentMessage
{
public:
    explicit CurrentMessage(const MSG& message)
        : m_state(ThreadState::Current()), m_outer(std::exchange(m_state.message, message))
    {
        ++m_state.nDepth;
    }
    ~CurrentMessage()
    {
        --m_state.nDepth;
        m_state.message = m_outer;
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

private:
    ThreadState& m_state;
    MSG m_outer; // the message that was at hand before
};

// The system may create windows of other classes on the way to the one that was asked for.
bool IsOfClass(HWND hWnd, LPCSTR lpszClassName)
{
    if (reinterpret_cast<UINT_PTR>(lpszClassName) <= 0xFFFF) // an atom
        return true;
    char szName[256];
    ::GetClassNameA(hWnd, szName, static_cast<int>(sizeof szName));
    return CString(szName).CompareNoCase(lpszClassName) == 0;
}

}

LRESULT CALLBACK CWnd::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    CWnd* pWnd = FromHandlePermanent(hWnd);
    if (!pWnd)
        return ::DefWindowProcA(hWnd, message, wParam, lParam);

    MSG current{};
    current.hwnd = hWnd;
    current.message = message;
    current.wParam = wParam;
    current.lParam = lParam;
    current.time = static_cast<DWORD>(::GetMessageTime());
    current.pt = CPoint(static_cast<LPARAM>(::GetMessagePos()));

    const CurrentMessage scope(current);
    return GuardFromExceptions(current, [&] { return pWnd->WindowProc(message, wParam, lParam); });
}

LRESULT EndHandlerException(CException* pException, const MSG& message)
{
    pException->Delete();
    if (message.message == WM_PAINT)
        ::ValidateRect(message.hwnd, nullptr); // otherwise the message would come again at once, for ever
    return message.message == WM_CREATE ? -1 : 0;
}

CreationHook::CreationHook(CWnd* pWnd, LPCSTR lpszClassName)
{
    m_state.pCreating = pWnd;
    m_state.lpszCreatingClass = lpszClassName;
    m_hHook = ::SetWindowsHookExA(WH_CBT, &CreationHook::Catch, nullptr, ::GetCurrentThreadId());
}

CreationHook::~CreationHook()
{
    m_state.pCreating = nullptr;
    ::UnhookWindowsHookEx(m_hHook);
}

bool CreationHook::HasCaught() const
{
    return !m_state.pCreating;
}

LRESULT CALLBACK CreationHook::Catch(int nCode, WPARAM wParam, LPARAM lParam)
{
    ThreadState& state = ThreadState::Current();
    const auto hWnd = reinterpret_cast<HWND>(wParam);
    if (nCode == HCBT_CREATEWND && state.pCreating && IsOfClass(hWnd, state.lpszCreatingClass))
        std::exchange(state.pCreating, nullptr)->SubclassWindow(hWnd);
    return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
}

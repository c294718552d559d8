// Plays any bytes as messages, keys, commands and calls of a control in a window. The sanitizers judge.
#include "FuzzDirectory.h"

#include <CalendarWnd.h>

#include <afxwin.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>

namespace {

// Messages without pointers, as the system or a stranger may send them.
constexpr UINT kMessages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP,  WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_MOUSEMOVE,
                              WM_MOUSEWHEEL,  WM_MOUSELEAVE, WM_SIZE,          WM_KILLFOCUS,   WM_ENABLE,
                              WM_SHOWWINDOW,  WM_PAINT,      WM_CHAR,          WM_KEYDOWN,     WM_KEYUP,
                              WM_TIMER,       WM_GETDLGCODE, WM_CANCELMODE};

// Hands out the bytes of the input; 0 when there are none left.
class Bytes
{
public:
    Bytes(const std::uint8_t* pData, std::size_t nSize) : m_pNext(pData), m_pEnd(pData + nSize) {}

    bool HasMore() const { return m_pNext != m_pEnd; }
    int Take() { return HasMore() ? *m_pNext++ : 0; }
    int TakeWord() { return Take() | Take() << 8; }
    LPARAM TakePoint() { return MAKELPARAM(TakeWord(), TakeWord()); }

private:
    const std::uint8_t* m_pNext;
    const std::uint8_t* m_pEnd;
};

class Host
{
public:
    // The options button is left out, since its menu waits for a user.
    explicit Host(int nFlags)
    {
        m_frame.CreateEx(0, AfxRegisterWndClass(0), "frame", WS_POPUP | WS_VISIBLE, CRect(0, 0, 400, 300),
                         nullptr, 0);
        m_calendar.Create(1, CRect(0, 0, 300, 240), nFlags & 1, &m_frame, nFlags & 2, false, true, true);
    }

    void Play(Bytes& bytes)
    {
        switch (bytes.Take() % 8) {
        case 0:
            PressKey(WM_KEYDOWN, bytes.Take());
            break;
        case 1:
            PressKey(WM_SYSKEYDOWN, bytes.Take());
            break;
        case 2: {
            const UINT nMessage = kMessages[static_cast<std::size_t>(bytes.Take()) % std::size(kMessages)];
            const WPARAM wParam = MAKEWPARAM(bytes.TakeWord(), bytes.TakeWord());
            m_calendar.SendMessage(nMessage, wParam, bytes.TakePoint());
            break;
        }
        case 3: { // a day or a button below the pointer
            const LPARAM lPoint = MAKELPARAM(bytes.Take() * 2, bytes.Take());
            m_calendar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, lPoint);
            m_calendar.SendMessage(WM_LBUTTONUP, 0, lPoint);
            break;
        }
        case 4: // the buttons, the ranges, copying, the web page
            m_calendar.SendMessage(WM_COMMAND, bytes.Take() & 1 ? MAKEWPARAM(2600 + bytes.Take() % 6, 0)
                                                                : MAKEWPARAM(42030 + bytes.Take() % 20, 0));
            break;
        case 5: {
            DateTime date;
            date.m_nDayNumber = bytes.TakeWord() | bytes.Take() << 16;
            m_calendar.SetDate(date);
            break;
        }
        case 6:
            m_calendar.MoveWindow(0, 0, bytes.Take() * 4 - 20, bytes.Take() * 4 - 20);
            break;
        default:
            bytes.Take() & 1 ? m_frame.SetFocus() : m_calendar.SetFocus();
            break;
        }
        m_calendar.UpdateWindow();
        if (!m_calendar.m_hWnd)
            std::abort(); // nothing of this ends the window
    }

private:
    // As the loop of a host gives a key to the window that has the focus.
    void PressKey(UINT nMessage, int nKey)
    {
        const HWND hFocus = ::GetFocus();
        MSG msg{hFocus ? hFocus : m_calendar.m_hWnd, nMessage, static_cast<WPARAM>(nKey), 1, 0, {}};
        if (!CWnd::WalkPreTranslateTree(m_frame.m_hWnd, &msg))
            ::DispatchMessageA(&msg);
    }

    CWnd m_frame;
    CCalendarWnd m_calendar;
};

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    static const FuzzDirectory directory;
    static CWinApp& app = *new CWinApp; // for the life of the process
    static_cast<void>(app);
    Bytes bytes(pData, nSize);
    Host host(bytes.Take());
    while (bytes.HasMore())
        host.Play(bytes);
    return 0;
}

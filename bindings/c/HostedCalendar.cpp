// The window class of the calendar, the objects of its windows, and what these need in a host's own loop.
#include "HostedCalendar.h"

#include "Result.h"
#include "SettingsTable.h"
#include "Texts.h"

#include <AppLogger.h>
#include <DownArrowButton.h>
#include <Keyboard.h>
#include <UIPrinter.h>
#include <WndProc.h>
#include <WndWatch.h>

#include <commctrl.h>
#include <gdiplus.h>

#include <map>
#include <mutex>
#include <utility>

namespace Zeb17 {

namespace {

// ---- The calendars of all threads

struct Known
{
    HostedCalendar* pCalendar;
    DWORD dwThread;
};

struct Calendars
{
    std::mutex mutex;
    std::map<HWND, Known> byWindow;
};

// Never deleted: calendars may outlive the static objects.
Calendars& AllCalendars()
{
    static Calendars& s_calendars = *new Calendars;
    return s_calendars;
}

// ---- The messages to the parent

const unsigned int* const kMessages[] = {
    &CCalendarWnd::CALWND_ONSELCHANGE,        &CCalendarWnd::CALWND_ONNODATE,
    &CCalendarWnd::CALWND_ENTERKEY,           &CCalendarWnd::CALWND_ESCKEY,
    &CCalendarWnd::CALWND_PROMPT_SAVEWEBPAGE, &CCalendarWnd::CALWND_DATERANGE_CHANGED,
};

thread_local const DateTime* t_pRangeEnd = nullptr;

// Lets RangeEndAt know the date while a message points to it.
class RangeAtHand
{
public:
    explicit RangeAtHand(const DateTime* pEnd) : m_pBefore(std::exchange(t_pRangeEnd, pEnd)) {}
    ~RangeAtHand() { t_pRangeEnd = m_pBefore; }
    RangeAtHand(const RangeAtHand&) = delete;
    RangeAtHand& operator=(const RangeAtHand&) = delete;

private:
    const DateTime* m_pBefore;
};

// ---- The buttons

// A button of a hosted calendar, which handles its input as the calendar does.
template <class Button>
class HostedButton : public Button
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return HostedCalendar::Handle(*this, ::GetParent(this->m_hWnd),
                                      [&] { return Button::WindowProc(message, wParam, lParam); });
    }
};

template <class Button>
void Replace(Button*& pButton)
{
    delete std::exchange(pButton, nullptr);
    pButton = new HostedButton<Button>;
}

// ---- The class

DWORD StyleOf(HWND hWnd)
{
    return static_cast<DWORD>(::GetWindowLongA(hWnd, GWL_STYLE));
}

bool IsInput(UINT message)
{
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

// The procedure of a window that has no object yet, and behind that of one that has.
LRESULT CALLBACK CalendarProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        const auto* const pCreate = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        const auto begin = [=] { return HostedCalendar::Begin(hWnd, *pCreate) ? ZEB17_OK : ZEB17_NO_WINDOW; };
        if (Run(begin) != ZEB17_OK)
            return FALSE;
    }
    return ::DefWindowProcA(hWnd, message, wParam, lParam);
}

// Keeps the library, and with it the window class, to the end of the process.
HMODULE PinLibrary()
{
    HMODULE hModule = nullptr;
    ::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                         reinterpret_cast<LPCSTR>(&CalendarProc), &hModule);
    return hModule;
}

// Without GDI+ the control lacks its dots, and nothing else.
void StartGdiPlus()
{
    const Gdiplus::GdiplusStartupInput input;
    static ULONG_PTR s_token = 0;
    Gdiplus::GdiplusStartup(&s_token, &input, nullptr);
}

// The dialog that moves the focus past the control: the parent, or the one that its parent is a part of.
HWND DialogOf(HWND hWnd)
{
    HWND hDialog = ::GetParent(hWnd);
    while ((StyleOf(hDialog) & WS_CHILD) && (::GetWindowLongA(hDialog, GWL_EXSTYLE) & WS_EX_CONTROLPARENT))
        hDialog = ::GetParent(hDialog);
    return hDialog;
}

// ---- Printing

// Hears the log while a page is printed, and hands it on.
class PrintLog : public AppLogger
{
public:
    PrintLog() : m_pBefore(std::exchange(m_pInstance, this)) {}
    ~PrintLog() override { m_pInstance = m_pBefore; }
    PrintLog(const PrintLog&) = delete;
    PrintLog& operator=(const PrintLog&) = delete;

    void AddLine(const CString& strLine) override
    {
        m_strLine = strLine;
        if (m_pBefore)
            m_pBefore->AddLine(strLine);
    }

    CString m_strLine; // the last one

private:
    AppLogger* m_pBefore;
};

}

bool RegisterCalendarClass()
{
    static const bool s_bRegistered = [] {
        const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES};
        ::InitCommonControlsEx(&controls);
        StartGdiPlus();
        return HostedCalendar::RegisterClass(&CalendarProc, PinLibrary());
    }();
    return s_bRegistered;
}

const DateTime* RangeEndAt(LPARAM lParam)
{
    return lParam == reinterpret_cast<LPARAM>(t_pRangeEnd) ? t_pRangeEnd : nullptr;
}

// ---- Life

HostedCalendar::HostedCalendar(HWND hWndParent, DWORD dwFlags) : m_parent(hWndParent)
{
    ReplaceButtons();
    const auto has = [dwFlags](DWORD dwFlag) { return (dwFlags & dwFlag) != 0; };
    BeginCreation(has(ZEB17_SPECIAL_DATES), hWndParent ? &m_parent : nullptr, has(ZEB17_ALLOW_NO_DATE),
                  has(ZEB17_OPTIONS), has(ZEB17_WEB_PAGE), has(ZEB17_DATE_RANGES));
}

HostedCalendar::~HostedCalendar()
{
    Calendars& calendars = AllCalendars();
    const std::lock_guard lock(calendars.mutex);
    const auto known = calendars.byWindow.find(m_hWndKnown);
    if (known != calendars.byWindow.end() && known->second.pCalendar == this)
        calendars.byWindow.erase(known);
    if (m_hSettings)
        SettingsTable::Remove(m_hSettings);
}

void HostedCalendar::ReplaceButtons()
{
    for (CZEBButton** const ppButton :
         {&m_pMonthYearButton, &m_pPrevMonthButton, &m_pNextMonthButton, &m_pPrevYearButton,
          &m_pNextYearButton, &m_pTodayButton, &m_pClearButton})
        Replace(*ppButton);
    Replace(m_pOptionsButton);
}

bool HostedCalendar::RegisterClass(WNDPROC pfnProcedure, HMODULE hModule)
{
    WNDCLASSA wndClass{};
    wndClass.style = kClassStyle | CS_GLOBALCLASS;
    wndClass.lpfnWndProc = pfnProcedure;
    wndClass.hInstance = hModule;
    wndClass.hbrBackground = static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH));
    wndClass.lpszClassName = ZEB17_CLASS;
    return ::RegisterClassA(&wndClass) != 0;
}

bool HostedCalendar::Begin(HWND hWnd, const CREATESTRUCTA& create)
{
    if (FromHandlePermanent(hWnd))
        return false;
    auto pCalendar = std::make_unique<HostedCalendar>(create.hwndParent, LOWORD(create.style));
    {
        Calendars& calendars = AllCalendars();
        const std::lock_guard lock(calendars.mutex);
        calendars.byWindow[hWnd] = {pCalendar.get(), ::GetCurrentThreadId()};
    }
    pCalendar->m_hWndKnown = hWnd;
    return pCalendar->SubclassWindow(hWnd) && pCalendar.release(); // PostNcDestroy deletes it
}

HostedCalendar* HostedCalendar::Find(HWND hWnd, int& nResult)
{
    Calendars& calendars = AllCalendars();
    const std::lock_guard lock(calendars.mutex);
    const auto known = calendars.byWindow.find(hWnd);
    nResult = ZEB17_BAD_HANDLE;
    if (known == calendars.byWindow.end() || !::IsWindow(hWnd))
        return nullptr;
    nResult = ZEB17_WRONG_THREAD;
    if (known->second.dwThread != ::GetCurrentThreadId())
        return nullptr;
    nResult = ZEB17_OK;
    return known->second.pCalendar;
}

bool HostedCalendar::SetUp()
{
    CRect rect;
    GetClientRect(&rect);
    return SetUpWindow(rect.Width(), rect.Height());
}

// ---- Messages

template <class Handler>
LRESULT HostedCalendar::Handle(CWnd& wnd, HWND hWndCalendar, Handler handler)
{
    const MSG message = *GetCurrentMessage();
    const ToolkitCall scope;
    if (IsInput(message.message) && OfferInput(wnd, hWndCalendar))
        return 0;
    const LRESULT lResult = handler();
    return message.message == WM_GETDLGCODE ? AddDialogCode(hWndCalendar, lResult) : lResult;
}

// Offers the message at hand to the control, unless a loop has done so before. True if the message ends here.
bool HostedCalendar::OfferInput(CWnd& wnd, HWND hWndCalendar)
{
    MSG message = *GetCurrentMessage();
    if (MessageOffer::WasMade(message))
        return false;
    const CWndWatch watch(wnd);
    const bool bEnds = WalkPreTranslateTree(hWndCalendar, &message) || !watch.IsAlive();
    MessageOffer::WasMade(message); // the next message may be the same, and is then to be offered too
    return bEnds;
}

// What a dialog has to leave to the control.
LRESULT HostedCalendar::AddDialogCode(HWND hWndCalendar, LRESULT lCode)
{
    lCode |= DLGC_WANTARROWS | DLGC_WANTTAB | DLGC_WANTCHARS;
    const MSG& code = *GetCurrentMessage();
    const auto* const pAsked = reinterpret_cast<const MSG*>(code.lParam);
    if (!pAsked || pAsked->message != WM_KEYDOWN)
        return lCode;
    const DWORD dwStyle = StyleOf(hWndCalendar);
    const bool bWanted = (pAsked->wParam == VK_RETURN && (dwStyle & ZEB17_WANT_ENTER)) ||
                         (pAsked->wParam == VK_ESCAPE && (dwStyle & ZEB17_WANT_ESC));
    return bWanted ? lCode | DLGC_WANTALLKEYS : lCode;
}

LRESULT HostedCalendar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return Handle(*this, m_hWnd, [&]() -> LRESULT {
        if (message != WM_CREATE)
            return CCalendarWnd::WindowProc(message, wParam, lParam);
        return Run([this] { return SetUp() ? ZEB17_OK : ZEB17_NO_WINDOW; }) == ZEB17_OK ? 0 : -1;
    });
}

BOOL HostedCalendar::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_TAB &&
        LeaveByTab(Keyboard::IsShiftKeyDown()))
        return TRUE;
    return CCalendarWnd::PreTranslateMessage(pMsg);
}

// At the ends of the ring the control gives the focus to its parent. A dialog would hand it to its first
// stop, which may be the control again; so the stop behind the control, or before it, is asked for here.
bool HostedCalendar::LeaveByTab(bool bBackward)
{
    if (::GetFocus() != (bBackward ? m_hWnd : m_pNextYearButton->GetSafeHwnd()))
        return false;
    const HWND hDialog = DialogOf(m_hWnd);
    const HWND hNext = hDialog ? ::GetNextDlgTabItem(hDialog, m_hWnd, bBackward) : nullptr;
    if (!hNext || hNext == m_hWnd || ::IsChild(m_hWnd, hNext))
        return false;
    WhileAlive(
        *this,
        [=] {
            // A dialog does more than to move the focus, such as marking another default button.
            ::SendMessageA(hDialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hNext), TRUE);
            if (::GetFocus() != hNext)
                ::SetFocus(hNext);
        },
        [this] {
            if (m_bHaveDate)
                MoveSelectionRect(CRect());
        });
    return true;
}

void HostedCalendar::SendToParent(UINT nMessage, LPARAM lParam) const
{
    const bool bRange = nMessage == CALWND_DATERANGE_CHANGED;
    const RangeAtHand range(bRange ? reinterpret_cast<const DateTime*>(lParam) : nullptr);
    WhileAlive(
        *this, [&] { CCalendarWnd::SendToParent(nMessage, lParam); },
        [&] {
            if (StyleOf(m_hWnd) & ZEB17_NOTIFY)
                Notify(nMessage, lParam);
        });
}

void HostedCalendar::Notify(UINT nMessage, LPARAM lParam) const
{
    if (!::IsWindow(m_parent.m_hWnd))
        return;
    UINT nEvent = 0;
    while (*kMessages[nEvent] != nMessage)
        ++nEvent;
    const auto asDate = [](const DateTime& date) {
        zeb17_date result;
        date.GetDate(result.year, result.month, result.day);
        return result;
    };
    zeb17_notification notification{};
    notification.header.hwndFrom = m_hWnd;
    notification.header.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    notification.header.code = ZEB17_NOTIFY_FIRST + nEvent;
    notification.size = sizeof notification;
    notification.by_press = nMessage == CALWND_ONSELCHANGE && lParam == 0;
    notification.selected = m_bHaveDate;
    notification.date = asDate(m_date);
    notification.end = asDate(RangeEndAt(lParam) ? *RangeEndAt(lParam) : m_date);
    ::SendMessageA(m_parent.m_hWnd, WM_NOTIFY, notification.header.idFrom,
                   reinterpret_cast<LPARAM>(&notification));
}

// ---- What the interface does with a calendar

int HostedCalendar::GetState(zeb17_date* pDate, int* pSelected) const
{
    if (!pDate && !pSelected)
        return ZEB17_BAD_ARGUMENT;
    if (pDate && !m_date.IsValid()) // stepped beyond the range of dates by hand
        return ZEB17_BAD_DATE;
    if (pDate)
        m_date.GetDate(pDate->year, pDate->month, pDate->day);
    if (pSelected)
        *pSelected = m_bHaveDate;
    return ZEB17_OK;
}

int HostedCalendar::Step(int nUnit, int nCount)
{
    if (nUnit != ZEB17_MONTHS && nUnit != ZEB17_YEARS)
        return ZEB17_BAD_ARGUMENT;
    const auto pStep = nUnit == ZEB17_MONTHS ? &DateTime::AddMonths : &DateTime::AddYears;
    DateTime date = m_date;
    (date.*pStep)(nCount);
    if (m_date.IsValid() && !date.IsValid())
        return ZEB17_BAD_DATE;
    StepDate(pStep, nCount);
    return ZEB17_OK;
}

int HostedCalendar::Print(const char* lpszPath)
{
    CString strPath;
    if (lpszPath && (!FromUtf8(lpszPath, strPath) || strPath.IsEmpty()))
        return ZEB17_BAD_TEXT;
    PrintLog log;
    const UIPrinter::ToFile toFile(strPath);
    OnOptionsPrint();
    if (log.m_strLine.IsEmpty())
        return ZEB17_OK;
    return Note(ZEB17_PRINT_FAILED, ToUtf8(log.m_strLine.Mid(log.m_strLine.Find('}') + 1)));
}

zeb17_settings HostedCalendar::Settings()
{
    if (!m_hSettings)
        m_hSettings = SettingsTable::AddLent(m_settings);
    return m_hSettings;
}

}

// ---- Messages

UINT zeb17_message(int event)
{
    using Zeb17::kMessages;
    return event >= 0 && event < static_cast<int>(std::size(kMessages)) ? *kMessages[event] : 0;
}

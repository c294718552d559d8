// The calendar of a window of the class ZEB17_CLASS, whose host knows nothing of the toolkit.
#pragma once

#include "zeb17.h"

#include <CalendarWnd.h>

#include <memory>

namespace Zeb17 {

// A window of somebody else's, outside of the toolkit's map of handles. The object does not own the window.
class ForeignWnd : public CWnd
{
public:
    explicit ForeignWnd(HWND hWnd) { m_hWnd = hWnd; }
    ~ForeignWnd() override { m_hWnd = nullptr; }
};

// Registers the window class, once for the process. False if the system refuses.
bool RegisterCalendarClass();

// Made when the window is created, and deleted when the window ends.
class HostedCalendar : public CCalendarWnd
{
public:
    HostedCalendar(HWND hWndParent, DWORD dwFlags);
    ~HostedCalendar() override;

    // Registers the window class under the procedure of the module. False if the system refuses.
    static bool RegisterClass(WNDPROC pfnProcedure, HMODULE hModule);

    // Gives a window that is being created its calendar; throws what CalendarSettings::Load throws. False if
    // the window has an object already.
    static bool Begin(HWND hWnd, const CREATESTRUCTA& create);

    // The calendar of a window; null, and the code, if the window has none or belongs to another thread.
    static HostedCalendar* Find(HWND hWnd, int& nResult);

    // What the functions of the interface do with a calendar; each gives a code.
    int GetState(zeb17_date* pDate, int* pSelected) const;
    int Step(int nUnit, int nCount);
    int Print(const char* lpszPath);
    zeb17_settings Settings();

    // The members that the interface calls as they are.
    using CCalendarWnd::OnTodayButton;
    using CCalendarWnd::RefreshSpecialDays;

    // What a handler of a control or of one of its buttons does with a message, around what it did before.
    // hWndCalendar is the control.
    template <class Handler>
    static LRESULT Handle(CWnd& wnd, HWND hWndCalendar, Handler handler);

protected:
    BOOL PreTranslateMessage(MSG* pMsg) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override { delete this; }
    void SendToParent(UINT nMessage, LPARAM lParam) const override;

private:
    void ReplaceButtons();
    bool SetUp();
    bool LeaveByTab(bool bBackward);
    void Notify(UINT nMessage, LPARAM lParam) const;

    static bool OfferInput(CWnd& wnd, HWND hWndCalendar);
    static LRESULT AddDialogCode(HWND hWndCalendar, LRESULT lCode);

    ForeignWnd m_parent;
    HWND m_hWndKnown = nullptr; // the handle under which Find knows the calendar
    zeb17_settings m_hSettings = nullptr;
};

// The last day of the range that a message to the parent points to; null while none is being sent.
const DateTime* RangeEndAt(LPARAM lParam);

}

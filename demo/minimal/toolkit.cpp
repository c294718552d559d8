#include <CalendarWnd.h>

class Host : public CWnd
{
public:
    ~Host() override { DestroyWindow(); }

    bool CreateHost()
    {
        return CreateEx(0, AfxRegisterWndClass(0), "Calendar", WS_OVERLAPPEDWINDOW, CRect(100, 100, 480, 420),
                        nullptr, 0) &&
               m_calendar.Create(1, CRect(), false, this, true, true, false, false);
    }

protected:
    afx_msg void OnDestroy() { PostQuitMessage(0); }
    afx_msg void OnSetFocus(CWnd*) { m_calendar.SetFocus(); }
    afx_msg void OnSize(UINT, int cx, int cy)
    {
        if (m_calendar.GetSafeHwnd())
            m_calendar.MoveWindow(0, 0, cx, cy);
    }
    afx_msg LRESULT OnSelChange(WPARAM, LPARAM)
    {
        SetWindowText(DateTime::ConvertDateToText(m_calendar.GetDate(), false, false, false, false));
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CCalendarWnd m_calendar;
};

BEGIN_MESSAGE_MAP(Host, CWnd)
    ON_WM_DESTROY()
    ON_WM_SETFOCUS()
    ON_WM_SIZE()
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONSELCHANGE, &Host::OnSelChange)
END_MESSAGE_MAP()

int main()
{
    AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW);
    CWinApp app;
    Host host;
    if (!host.CreateHost())
        return 1;
    host.ShowWindow(SW_SHOW);
    return app.Run();
}

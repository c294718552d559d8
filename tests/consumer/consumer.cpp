// A host as a customer would write it, without hands: it makes the control, lets it work and says what went
// wrong.
#include <CalendarWnd.h>
#include <ZebrikUtils.h>

#include <cstdio>
#include <filesystem>

namespace {

// A host may derive from the control.
class Calendar : public CCalendarWnd
{
public:
    CalendarSettings& GetSettings() { return m_settings; }

    // The id of the first item of the menu that Options shows.
    UINT ReadMenu()
    {
        m_nFirstItem = 0;
        OnOptionsButton();
        return m_nFirstItem;
    }

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_INITMENUPOPUP) {
            m_nFirstItem = GetMenuItemID(reinterpret_cast<HMENU>(wParam), 0);
            PostMessage(WM_CANCELMODE);
        }
        return CCalendarWnd::WindowProc(nMessage, wParam, lParam);
    }

private:
    UINT m_nFirstItem = 0;
};

class Host : public CWnd
{
public:
    bool CreateHost()
    {
        return CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 350), nullptr,
                        0) &&
               m_calendar.Create(7, CRect(0, 0, 360, 300), true, this, true, true, true, true);
    }

    Calendar m_calendar;
    int m_nNoDate = 0;
    int m_nChanges = 0;

protected:
    afx_msg LRESULT OnNoDate(WPARAM wParam, LPARAM)
    {
        m_nNoDate += wParam == 7;
        return 0;
    }
    afx_msg LRESULT OnSelChange(WPARAM, LPARAM)
    {
        m_nChanges += m_calendar.GetDate().GetYear() == 2021;
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Host, CWnd)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONNODATE, &Host::OnNoDate)
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONSELCHANGE, &Host::OnSelChange)
END_MESSAGE_MAP()

bool Expect(bool bTrue, const char* szWhat)
{
    if (!bTrue)
        std::printf("wrong: %s\n", szWhat);
    return bTrue;
}

// The exceptions of the library can be caught outside of it.
bool ThrowsForDirectory(CalendarSettings& settings)
{
    std::filesystem::create_directories(ZebrikUtils::GetCalendarSettingsPath(4).GetString());
    try {
        settings.Save();
    } catch (CFileException* e) {
        e->Delete();
        return true;
    }
    return false;
}

}

int main()
{
    const std::filesystem::path data = "consumer-data";
    std::filesystem::remove_all(data);
    ZebrikUtils::SetDataDirectory(data.string().c_str());

    AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW);
    CWinApp app;
    Host host;
    if (!Expect(host.CreateHost(), "Create"))
        return 1;
    CalendarSettings& settings = host.m_calendar.GetSettings();
    host.m_calendar.SetDate(DateTime(2021, 7, 4, 0, 0, 0));
    DWORD dwColor = 0;
    bool bGood = Expect(host.m_nNoDate == 1 && host.m_nChanges == 1, "messages");
    bGood &= Expect(!settings.GetDateDesc(4, 7, 2021, dwColor).IsEmpty(), "special dates");
    host.ShowWindow(SW_SHOW);
    bGood &= Expect(host.m_calendar.ReadMenu() == 42030, "the library's menu, not that of the program");
    bGood &= Expect(settings.Save() && settings.Load(), "data file");
    std::filesystem::remove_all(data);
    bGood &= Expect(ThrowsForDirectory(settings), "exception");
    bGood &= Expect(host.m_calendar.SaveCalendarWebPage((data / "month.html").string().c_str()), "web page");
    return bGood ? 0 : 1;
}

// The window of the sample host: the calendar, the panel of its dates, the last range of dates and the
// messages heard.
#pragma once

#include "Controls.h"
#include "DemoCalendar.h"
#include "HostLog.h"
#include "SettingsPanel.h"

#include <afxwin.h>

class MainWindow : public CWnd
{
public:
    // `attended`: somebody is there to answer a message box.
    explicit MainWindow(bool attended);
    ~MainWindow() override { DestroyWindow(); } // its messages still reach the members

    bool CreateMain();
    // Tells the user, once the window is there, if the data file could not be read.
    void TellLoadError();
    bool SaveWebPage(const CString& path) const { return m_calendar.SaveCalendarWebPage(path); }
    bool PrintToFile(const CString& path);
    void SelectDate(const DateTime& date) { m_calendar.SetDate(date); }

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSelChange(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnNoDate(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEnterKey(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEscKey(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPromptSaveWebPage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDateRangeChanged(WPARAM wParam, LPARAM lParam);
    BOOL PreTranslateMessage(MSG* pMsg) override;
    DECLARE_MESSAGE_MAP()

private:
    bool CreateHeard();
    bool CreateCalendar();
    void Arrange(int cx, int cy);
    bool IsInCalendar(HWND window) const;
    void ShowHeard(const char* message, const CString& details);
    CString CurrentDate() const;

    const bool m_attended;
    bool m_failed = false; // the calendar could not do what it was last told to do
    HostLog m_log;
    CString m_loadError;
    CFont m_font;
    CStatic m_range;
    CListBox m_heard;
    HWND m_lastFocus = nullptr; // while another window is active
    DemoCalendar m_calendar;
    SettingsPanel m_panel{m_calendar};
};

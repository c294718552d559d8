// The window of the sample host: the calendar, the panel of its dates, and a line that names the last message
// heard.
#pragma once

#include "DemoCalendar.h"
#include "SettingsPanel.h"

#include <afxwin.h>

class MainWindow : public CWnd
{
public:
    // `attended`: somebody is there to answer a message box.
    explicit MainWindow(bool attended) : m_attended(attended) {}

    bool CreateMain();
    bool SaveWebPage(const CString& path) const { return m_calendar.SaveCalendarWebPage(path); }
    bool PrintToFile(const CString& path);
    void SelectDate(const DateTime& date) { m_calendar.SetDate(date); }

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSelChange(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnNoDate(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEnterKey(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnEscKey(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPromptSaveWebPage(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDateRangeChanged(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    bool CreateStatus();
    bool CreateCalendar();
    void Arrange(int cx, int cy);
    void TellUser(const CString& words);
    void ShowHeard(const char* message, const CString& details);
    CString CurrentDate() const;

    const bool m_attended;
    CFont m_font;
    CStatic m_status;
    DemoCalendar m_calendar;
    SettingsPanel m_panel{m_calendar};
};

// A Qt application that runs its own loop and shows the calendar among its own widgets.
#include <CalendarWnd.h>
#include <zeb17_qt.h>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <cstdio>

namespace {

// The window in which the calendar lives: the layout of the application sizes it, and it fills it with the
// calendar.
class CalendarHost : public CWnd
{
public:
    explicit CalendarHost(QLabel& label) : m_label(label) {}
    ~CalendarHost() override { DestroyWindow(); }

    bool CreateHost()
    {
        return CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_CLIPCHILDREN, CRect(0, 0, 360, 280),
                        nullptr, 0) &&
               m_calendar.Create(1, CRect(0, 0, 360, 280), false, this, true, true, false, false);
    }

protected:
    afx_msg void OnSize(UINT, int cx, int cy)
    {
        if (m_calendar.GetSafeHwnd() != nullptr)
            m_calendar.MoveWindow(0, 0, cx, cy);
    }
    afx_msg void OnSetFocus(CWnd*) { m_calendar.SetFocus(); }
    afx_msg LRESULT OnSelChange(WPARAM, LPARAM)
    {
        const CString text = DateTime::ConvertDateToText(m_calendar.GetDate(), false, false, false, false);
        m_label.setText(QString::fromLocal8Bit(text.GetString()));
        std::printf("%s\n", static_cast<LPCTSTR>(text));
        std::fflush(stdout);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    QLabel& m_label;
    CCalendarWnd m_calendar;
};

BEGIN_MESSAGE_MAP(CalendarHost, CWnd)
    ON_WM_SIZE()
    ON_WM_SETFOCUS()
    ON_REGISTERED_MESSAGE(CCalendarWnd::CALWND_ONSELCHANGE, &CalendarHost::OnSelChange)
END_MESSAGE_MAP()

}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    AfxWinInit(GetModuleHandle(nullptr), nullptr, "", SW_SHOW);

    QWidget window;
    window.setWindowTitle("zeb17 in Qt");
    QLabel label("Choose a day.");
    CalendarHost host(label);
    if (!host.CreateHost())
        return 1;

    QVBoxLayout layout(&window);
    layout.addWidget(&label);
    layout.addWidget(QWidgetFromWindow(host), 1);
    window.resize(400, 340);
    window.show();
    return QApplication::exec();
}

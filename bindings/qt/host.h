// The window of the toolkit in which the calendar of a widget lives, and what the widget tells of it.
#pragma once

#include "control.h"

#include <AppLogger.h>
#include <gdiplus.h>

#include <QPointer>

#include <array>
#include <functional>
#include <vector>

// Starts GDI+, which draws the dots, and stops it at the end.
class GdiPlusSession
{
public:
    GdiPlusSession();
    ~GdiPlusSession();
    GdiPlusSession(const GdiPlusSession&) = delete;
    GdiPlusSession& operator=(const GdiPlusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
};

class Q_DECL_HIDDEN Zeb17CalendarWidget::Host : public CWnd
{
public:
    explicit Host(Zeb17CalendarWidget& widget);
    ~Host() override;

    // The widget of the window, which fills ours; null if it could not be made.
    QWidget* shown() const { return m_shown; }
    // Makes the calendar, if it is not there yet, and reads the special dates. False if that failed.
    bool ready();
    Control& control() { return m_control; }

    Options options() const { return m_options; }
    void setOptions(Options options);
    void holdOptions() { m_optionsHeld = true; } // the widget was shown
    void setEnabled(bool enable);

    // Runs an operation of the calendar. What it fails with becomes the last error; what has changed in the
    // end is told. True if nothing failed. Nothing of this object may be used afterwards unless the widget is
    // still there.
    bool run(const std::function<void(Control&)>& operation);
    // The same for a message that came to the calendar. What changes while an operation is under way is told
    // at its end.
    void runMessage(UINT message, const std::function<void()>& handle);
    void hearPress();

    // Sets the last error and has the widget tell it.
    bool fail(const QString& words);
    QString lastError() const { return m_lastError; }

    // Special dates
    bool hasSpecialDates();
    bool needSpecialDates(); // fails if there are none to work with
    static bool isGroup(Group group) { return group >= UnitedStates && group <= ToDos; }
    bool mayChange(Group group); // fails if the dates of the group cannot be changed
    bool load();
    bool save();
    bool isUnsaved() const { return m_unsaved; }
    void changed(); // shows what was changed in the special dates
    QColor& groupColor(Group group) { return m_groupColors[static_cast<std::size_t>(group)]; }

protected:
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg void OnSetFocus(CWnd* before);
    afx_msg LRESULT OnEnterKey(WPARAM, LPARAM);
    afx_msg LRESULT OnEscKey(WPARAM, LPARAM);
    afx_msg LRESULT OnPromptSaveWebPage(WPARAM, LPARAM);
    afx_msg LRESULT OnDateRangeChanged(WPARAM, LPARAM last);
    DECLARE_MESSAGE_MAP()

private:
    // What the widget shows of the calendar's state, and has told.
    struct State
    {
        QDate selected;
        int year = 0;
        int month = 0;
        bool unsaved = false;
    };
    using Signal = std::function<void(Zeb17CalendarWidget&)>;

    void createWindow();
    bool createControl();
    void guarded(const std::function<void()>& action);
    State state() const;
    void tell();
    void hear(Signal signal) { m_heard.push_back(std::move(signal)); }

    Zeb17CalendarWidget& m_widget;
    GdiPlusSession m_gdiPlus;
    Options m_options = SpecialDates | NoDate | OptionsMenu;
    bool m_optionsHeld = false;
    bool m_closing = false;
    bool m_creationTried = false;
    bool m_unsaved = false;
    int m_depth = 0;    // operations and messages under way
    int m_failures = 0; // so many until now
    QString m_lastError;
    State m_told;
    std::vector<Signal> m_heard; // to be told at the end of the operation
    std::array<QColor, 5> m_groupColors;
    QPointer<QWidget> m_shown;
    Control m_control;
};

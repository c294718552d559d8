// The window of the desk calendar: the calendar, the panel of its dates, and the signals heard.
#pragma once

#include "dates_panel.h"

#include <Zeb17CalendarWidget.h>

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QSettings>
#include <QSplitter>

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Keeps its place and folders in the settings, or, with null, nowhere: then nobody is there to answer a
    // message box, and what fails is only written on the standard error output.
    explicit MainWindow(QSettings* settings);

    Zeb17CalendarWidget& calendar() { return m_calendar; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createLayout();
    void createMenus();
    void connectCalendar();
    void restore();
    void hear(const QString& signal, const QString& details = {});
    void tellFailure(const QString& error);
    void saveWebPage();
    bool mayClose();

    QSettings* const m_settings;
    QSplitter m_splitter; // holds the others, and so goes after them
    Zeb17CalendarWidget m_calendar;
    DatesPanel m_panel;
    QLabel m_range{tr("Last range: none yet")};
    QListWidget m_heard;
};

// A month calendar with special dates, as a widget for Qt applications.
//
//     Zeb17CalendarWidget calendar;
//     QObject::connect(&calendar, &Zeb17CalendarWidget::selectionChanged, [](QDate date) { ... });
//     calendar.show();
//
// The widget needs a QApplication and nothing else: no initialization, no window or message loop of another
// kind. It is used on the application's main thread, as every widget. No operation throws. What fails sets
// lastError() at once and emits failed() a little later, so that also a failure in the first moments of the
// widget reaches a slot that is connected after it was made.
//
// Days: a QDate and a day of the calendar are the same day if their Julian day numbers are the same. The
// calendar counts by the Julian calendar up to 4 October 1582, as people did then, QDate always by the
// Gregorian one. So for dates before 15 October 1582 the numbers that the calendar shows are not those of
// QDate. The calendar's range is 1 January of year 1 (a QDate of 30 December of 1 BCE) to 31 December 9999.
//
// The locale, the first day of the week and the language of dates are those of the user. The grid has a fixed
// look, on dark desktops too.
#pragma once

#include "Zeb17SpecialDate.h"

#include <QDate>
#include <QList>
#include <QWidget>

#include <memory>

class ZEB17_EXPORT Zeb17CalendarWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Options options READ options WRITE setOptions)
    Q_PROPERTY(QDate selectedDate READ selectedDate WRITE setSelectedDate RESET clearSelection NOTIFY
                   selectionChanged USER true)
    Q_PROPERTY(int yearShown READ yearShown NOTIFY currentPageChanged)
    Q_PROPERTY(int monthShown READ monthShown NOTIFY currentPageChanged)
    Q_PROPERTY(bool unsavedChanges READ hasUnsavedChanges NOTIFY unsavedChangesChanged)

public:
    // What the calendar offers.
    enum Option
    {
        SpecialDates = 0x01, // the user's data file is read, special days get a dot and a tool tip
        NoDate = 0x02,       // a Clear button, with which the user selects no date
        OptionsMenu = 0x04,  // an Options button with a menu: copy the date, print, and the next two
        WebPage = 0x08,      // the menu offers a web page; the application answers webPageRequested
        DateRanges = 0x10,   // the menu offers seventeen ranges of dates, told by rangeSelected
        ToDoList = 0x20 // the user's to-do list is shown; holds for all calendars of the process from then on
    };
    Q_DECLARE_FLAGS(Options, Option)
    Q_FLAG(Options)

    // The groups of special dates. The first three are national dates: their texts and rules are fixed, and
    // their looks are the user's. The entries of the other two are the user's own.
    enum Group
    {
        UnitedStates,
        Canada,
        Netherlands,
        OwnDates,
        ToDos
    };
    Q_ENUM(Group)

    // Stands on today's month, with no date selected and the options SpecialDates, NoDate and OptionsMenu.
    // Reads no file before it is first shown or first asked for something that lies in the file.
    explicit Zeb17CalendarWidget(QWidget* parent = nullptr);
    ~Zeb17CalendarWidget() override;

    // The options can be set until the widget is first shown. After that only ToDoList, WebPage and
    // DateRanges change; the others stay, which counts as a failure.
    Options options() const;
    void setOptions(Options options);
    void setOption(Option option, bool on = true);

    // The selected day; an invalid date if none is.
    QDate selectedDate() const;
    // The month shown as the calendar numbers it: year 1 to 9999, month 1 to 12. Both are 0 after a step
    // beyond the range of dates.
    int yearShown() const;
    int monthShown() const;

    // What went wrong last, in words for the user; empty if nothing did.
    QString lastError() const;

    QSize sizeHint() const override;        // 360 by 280
    QSize minimumSizeHint() const override; // the smallest size at which everything can be read

    // Special dates
    //
    // The widget holds them, as they were in the data file when it read it; changes show at once and reach
    // the file with saveSpecialDates. Several widgets each hold their own: after one of them has saved, the
    // application calls reloadSpecialDates of the others. Everything here is empty, and every change fails,
    // without the option SpecialDates and while the file cannot be read; it is then left as it is. The to-do
    // list can be changed with the option ToDoList only.

    // Whether there are special dates to work with: the option is set, and the file was read or is not there.
    bool hasSpecialDates() const;
    // Whether something was changed since the file was last read or written.
    bool hasUnsavedChanges() const;

    // What is special about a day.
    Zeb17SpecialDay specialDates(QDate date) const;

    // The name of a group, in English.
    static QString groupName(Group group);
    // The colour of the group's dates; of the dates to come if it has none; invalid if they differ.
    QColor groupColor(Group group) const;
    // Whether all, some or none of the group's dates are shown. A group without dates counts as shown.
    Qt::CheckState groupShown(Group group) const;
    // These change all dates of a group. The colour has to be valid; its transparency is ignored.
    bool setGroupColor(Group group, const QColor& color);
    bool setGroupShown(Group group, bool shown);

    // The dates of a group, in a fixed order. `index` is a place in that order, from 0. Beyond its end
    // specialDate and takeSpecialDate give a date without a text and a rule.
    int specialDateCount(Group group) const;
    Zeb17SpecialDate specialDate(Group group, int index) const;
    QList<Zeb17SpecialDate> specialDates(Group group) const;

    // Adds a date to the end of OwnDates or ToDos. It needs a text and a valid
    // rule; the text is one line.
    bool addSpecialDate(Group group, const Zeb17SpecialDate& date);
    // Replaces a date. Of a national one only colour and visibility can be changed.
    bool setSpecialDate(Group group, int index, const Zeb17SpecialDate& date);
    // Removes a date of OwnDates or ToDos and gives it, so that the application can add it again.
    Zeb17SpecialDate takeSpecialDate(Group group, int index);

    // What is set by these holds for the process, and is set before the first widget is made.
    //
    // Keeps the data file in that folder, so that the application has one of its own; a save makes the folder
    // if it is not there. An empty path stands for the user's own, whose file all applications of the user
    // share.
    static void setDataDirectory(const QString& path);
    // For tests and pictures: makes that day today; an invalid date follows the clock again.
    static void setToday(QDate date);
    // The day that the calendars take for today.
    static QDate today();
    // For tests and pictures: follows the locale of that name, such as "nl-NL", instead of the user's. False
    // if there is none.
    static bool setCalendarLocale(const QString& name);

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    // Selects the day and shows its month. An invalid date clears the selection. A day out of the range of
    // dates changes nothing and is a failure.
    void setSelectedDate(QDate date);
    // Selects no day. The month shown stays.
    void clearSelection();

    // These show another month. The calendar has no month apart from its date: where a day is selected, the
    // selection moves along, to the same day or the last day of the other month. Where none is, none becomes
    // it. A month that is not in the calendar changes nothing and is a failure.
    void setCurrentPage(int year, int month);
    void showToday(); // the month of today; a selection moves to today
    void showNextMonth();
    void showPreviousMonth();
    void showNextYear();
    void showPreviousYear();

    // Reads the data file anew; what was changed and not saved is lost. Where there is no file, everything
    // stays as it is. False on failure: then there are no special dates until a later call can read the file.
    bool reloadSpecialDates();
    // Writes the data file, whole or not at all.
    bool saveSpecialDates();

    // Writes the month shown as a web page, in UTF-8. A file that was there is replaced whole or not at all.
    bool saveWebPage(const QString& path);
    // Asks the user for a printer and prints the month shown. True also if the user cancels.
    bool print();
    // Prints the month shown to a PDF file, without asking.
    bool printToPdf(const QString& path);

Q_SIGNALS:
    // Emitted when the calendar has done what the user or a slot asked of it. A slot may do anything, also
    // delete the widget.

    // Another day is selected, or none any more (an invalid date). Once for each change, whatever caused it.
    void selectionChanged(QDate date);
    // Another month is shown.
    void currentPageChanged(int year, int month);
    // The user pressed a day, also the selected one. Comes after selectionChanged.
    void clicked(QDate date);
    // Enter or Esc was pressed in the grid. The date is the selected one, or invalid.
    void activated(QDate date);
    void dismissed();
    // The user chose a range of days, the last one included. The first one is selected.
    void rangeSelected(QDate first, QDate last);
    // The user wants a web page: ask for a path and call saveWebPage.
    void webPageRequested();
    // The special dates are other ones: read anew, changed, or changed back.
    void specialDatesChanged();
    void unsavedChangesChanged(bool unsaved);
    // Something failed, in words for the user. Emitted from the event loop.
    void failed(const QString& error);

protected:
    // The widget's own work at these events of Qt's.
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Control;
    class Host;

    std::unique_ptr<Host> m_host; // the window in which the calendar lives
};
Q_DECLARE_OPERATORS_FOR_FLAGS(Zeb17CalendarWidget::Options)

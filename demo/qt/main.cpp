// The desk calendar for Linux: a month with special dates, the user's own dates and to-dos, on the calendar
// widget. Its command line is described in command_line.h.
#include "main_window.h"

#include <command_line.h>

#include <QApplication>
#include <QFile>
#include <QLocale>
#include <QSettings>

#include <cstdio>
#include <memory>

namespace {

// Dates before 15 October 1582 are those of the Julian calendar.
QDate toDate(const DeskDate& date)
{
    if (date.year == 0)
        return {};
    const QDate gregorian(date.year, date.month, date.day);
    return gregorian >= QDate(1582, 10, 15)
               ? gregorian
               : QCalendar(QCalendar::System::Julian).dateFromParts(date.year, date.month, date.day);
}

// With a folder for all files the settings stand there too.
std::unique_ptr<QSettings> openSettings(const QString& folder)
{
    if (folder.isEmpty())
        return std::make_unique<QSettings>(QStringLiteral("zeb17"), QStringLiteral("desk-calendar"));
    return std::make_unique<QSettings>(folder + QStringLiteral("/desk-calendar.ini"), QSettings::IniFormat);
}

void prepare(const DeskOptions& options)
{
    Zeb17CalendarWidget::setToday(toDate(options.today));
    if (options.data)
        Zeb17CalendarWidget::setDataDirectory(QFile::decodeName(options.data));
    if (!options.locale)
        return;
    Zeb17CalendarWidget::setCalendarLocale(QString::fromUtf8(options.locale));
    QLocale::setDefault(QLocale(QString::fromUtf8(options.locale)));
}

// Writes what the command line asks for; the exit code of the program.
int writeOutputs(MainWindow& window, const DeskOptions& options)
{
    QCoreApplication::processEvents(); // what failed meanwhile is told
    int exitCode = 0;
    const auto check = [&exitCode](bool written, const char* path) {
        if (written)
            return;
        std::fprintf(stderr, "zeb17_desk: could not write %s\n", path);
        exitCode = 1;
    };
    if (options.png)
        check(window.grab().save(QFile::decodeName(options.png), "PNG"), options.png);
    if (options.web)
        check(window.calendar().saveWebPage(QFile::decodeName(options.web)), options.web);
    if (options.print)
        check(window.calendar().printToPdf(QFile::decodeName(options.print)), options.print);
    return exitCode;
}

}

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    DeskOptions options;
    if (!deskReadOptions(&options, argc, argv))
        return 2;
    prepare(options);
    const bool attended = !deskHasOutput(&options);
    const std::unique_ptr<QSettings> settings =
        attended ? openSettings(options.data ? QFile::decodeName(options.data) : QString()) : nullptr;
    MainWindow window(settings.get());
    if (options.select.year != 0)
        window.calendar().setSelectedDate(toDate(options.select));
    window.show();
    return attended ? QApplication::exec() : writeOutputs(window, options);
}

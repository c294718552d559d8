#include <Zeb17CalendarWidget.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    Zeb17CalendarWidget calendar;
    QObject::connect(&calendar, &Zeb17CalendarWidget::selectionChanged,
                     [&](QDate day) { calendar.setWindowTitle(day.toString()); });
    calendar.show();
    return QApplication::exec();
}

// What a calendar costs a Qt application: qt_start zeb17|qt makes one window with one of the two widgets,
// waits until it is painted, and tells the time from the start of main to that moment, and the memory that
// the widget added.
#include <Zeb17CalendarWidget.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <unistd.h>

#include <cstdio>
#include <memory>

namespace {

// The memory of this process alone, in kilobytes.
long privateMemory()
{
    QFile file("/proc/self/statm");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> pages = file.readAll().split(' ');
    return (pages[1].toLong() - pages[2].toLong()) * (sysconf(_SC_PAGESIZE) / 1024);
}

class PaintWatch : public QObject
{
public:
    bool painted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        painted |= event->type() == QEvent::Paint;
        return false;
    }
};

}

int main(int argc, char** argv)
{
    QElapsedTimer timer;
    timer.start();
    QApplication application(argc, argv);
    const double applicationTime = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    const long before = privateMemory();
    std::unique_ptr<QWidget> widget;
    if (argc == 2 && QString(argv[1]) == "zeb17")
        widget = std::make_unique<Zeb17CalendarWidget>();
    else
        widget = std::make_unique<QCalendarWidget>();
    PaintWatch watch;
    widget->installEventFilter(&watch);
    for (QWidget* const child : widget->findChildren<QWidget*>())
        child->installEventFilter(&watch);
    widget->show();
    while (!watch.painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    std::printf(
        "%s: size hint %dx%d, %.1f ms to the first paint (%.1f ms of it for the application), %ld KB\n",
        widget->metaObject()->className(), widget->sizeHint().width(), widget->sizeHint().height(), time,
        applicationTime, privateMemory() - before);
    return 0;
}

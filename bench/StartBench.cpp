// From the start of a process to its first picture, beside a host of Qt's own calendar.
#include "BenchCalendar.h"

#include <zeb17_qt.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QProcess>

namespace {

const char kOursOption[] = "--show-ours";
const char kTheirsOption[] = "--show-theirs";

void ShowOurs()
{
    const Bench::Session session;
    Bench::Host host;
    QWidgetFromWindow(host)->grab();
}

void ShowTheirs()
{
    QCalendarWidget calendar;
    calendar.resize(Bench::kWidth, Bench::kHeight);
    calendar.show();
    calendar.grab();
}

void Start(benchmark::State& state, const char* option)
{
    while (state.KeepRunning()) {
        if (QProcess::execute(QCoreApplication::applicationFilePath(), {option}) != 0)
            state.SkipWithError("the process failed");
    }
}

BENCHMARK_CAPTURE(Start, ours, kOursOption)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Start, QCalendarWidget, kTheirsOption)->Unit(benchmark::kMillisecond)->UseRealTime();

}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(kOursOption)) {
        ShowOurs();
        return 0;
    }
    if (arguments.contains(kTheirsOption)) {
        ShowTheirs();
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

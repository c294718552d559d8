// What the user waits for, beside Qt's own calendar in the same run: from the call to the pixels of the
// window.
#include "BenchCalendar.h"

#include <zeb17_qt.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QTableView>
#include <QTextCharFormat>

namespace {

// Sees when something was painted.
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted |= event->type() == QEvent::Paint;
        return false;
    }
    void waitForPaint()
    {
        while (!std::exchange(m_painted, false))
            QApplication::processEvents();
    }

private:
    bool m_painted = false;
};

PaintWatch* g_watch = nullptr;

void Press(QWidget& widget, Qt::Key key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &down);
    QApplication::sendEvent(&widget, &up);
}

class Ours
{
public:
    Ours() : m_widget(*QWidgetFromWindow(m_host)) {}
    QWidget& widget() { return m_widget; }
    void stepMonth(bool forward) { m_host.m_calendar.StepMonth(forward); }
    void press(Qt::Key key) { Press(m_widget, key); }
    void setDate(int day) { m_host.m_calendar.SetDate(DateTime(2026, 7, day, 0, 0, 0)); }

private:
    Bench::Host m_host;
    QWidget& m_widget;
};

// The same special dates are coloured.
class Theirs
{
public:
    Theirs()
    {
        QTextCharFormat format;
        format.setBackground(QColor(200, 30, 30));
        CalendarSettings settings;
        DateTime date(2026, 1, 1, 0, 0, 0);
        for (; date.GetYear() == 2026; date.AddDays(1)) {
            DWORD color = 0;
            if (!settings.GetDateDesc(date.GetDay(), date.GetMonth(), 2026, color).IsEmpty())
                m_calendar.setDateTextFormat(QDate(2026, date.GetMonth(), date.GetDay()), format);
        }
        m_calendar.resize(Bench::kWidth, Bench::kHeight);
        m_calendar.setSelectedDate(QDate(2026, 7, 9));
        m_calendar.show();
    }
    QWidget& widget() { return m_calendar; }
    void stepMonth(bool forward) { forward ? m_calendar.showNextMonth() : m_calendar.showPreviousMonth(); }
    void press(Qt::Key key) { Press(*m_calendar.findChild<QTableView*>(), key); }
    void setDate(int day) { m_calendar.setSelectedDate(QDate(2026, 7, day)); }

private:
    QCalendarWidget m_calendar;
};

// Measures `work`, which is done in two turns that undo each other, with the painting that follows.
template <class Calendar, class Work>
void Measure(benchmark::State& state, Work work)
{
    Calendar calendar;
    QApplication::processEvents();
    g_watch->waitForPaint();
    bool turn = false;
    while (state.KeepRunning()) {
        work(calendar, turn = !turn);
        g_watch->waitForPaint();
    }
}

template <class Calendar>
void MonthStep(benchmark::State& state)
{
    Measure<Calendar>(state, [](Calendar& calendar, bool turn) { calendar.stepMonth(turn); });
}

template <class Calendar>
void DayMove(benchmark::State& state)
{
    Measure<Calendar>(
        state, [](Calendar& calendar, bool turn) { calendar.press(turn ? Qt::Key_Right : Qt::Key_Left); });
}

template <class Calendar>
void SetDate(benchmark::State& state)
{
    Measure<Calendar>(state, [](Calendar& calendar, bool turn) { calendar.setDate(turn ? 21 : 9); });
}

template <class Calendar>
void Resize(benchmark::State& state)
{
    Measure<Calendar>(state, [](Calendar& calendar, bool turn) {
        calendar.widget().resize(Bench::kWidth + (turn ? 20 : 0), Bench::kHeight + (turn ? 15 : 0));
    });
}

#define BENCH_BOTH(name)                                                                                     \
    BENCHMARK(name<Ours>)->Name(#name "/ours")->Unit(benchmark::kMicrosecond);                               \
    BENCHMARK(name<Theirs>)->Name(#name "/QCalendarWidget")->Unit(benchmark::kMicrosecond)

BENCH_BOTH(MonthStep);
BENCH_BOTH(DayMove);
BENCH_BOTH(SetDate);
BENCH_BOTH(Resize);

}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const Bench::Session session;
    PaintWatch watch;
    application.installEventFilter(&watch);
    g_watch = &watch;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

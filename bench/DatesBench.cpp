// All days of the range from number to year, month and day, beside std::chrono.
#include <DayNumbers.h>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

void DayNumberToDate_ours(benchmark::State& state)
{
    while (state.KeepRunning()) {
        for (std::int32_t n = DayNumbers::kFirst; n <= DayNumbers::kLast; ++n) {
            const DayNumbers::Date date = DayNumbers::ToDate(n);
            benchmark::DoNotOptimize(date.nYear + date.nMonth + date.nDay);
        }
    }
    state.SetItemsProcessed(state.iterations() * DayNumbers::kLast);
}

void DayNumberToDate_chrono(benchmark::State& state)
{
    using namespace std::chrono;
    const sys_days first = year(1) / 1 / 1;
    while (state.KeepRunning()) {
        for (int i = 0; i < DayNumbers::kLast; ++i) {
            const year_month_day date(first + days(i));
            benchmark::DoNotOptimize(int(date.year()) + int(unsigned(date.month()) + unsigned(date.day())));
        }
    }
    state.SetItemsProcessed(state.iterations() * DayNumbers::kLast);
}

BENCHMARK(DayNumberToDate_ours)->Name("DayNumberToDate/ours")->Unit(benchmark::kMillisecond);
BENCHMARK(DayNumberToDate_chrono)->Name("DayNumberToDate/std::chrono")->Unit(benchmark::kMillisecond);

}

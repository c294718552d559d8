// What a month costs, and a file, with lists of many lengths.
#include <CalendarSettings.h>
#include <DateTime.h>
#include <LockHome.h>
#include <ZebrikUtils.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>

namespace {

// Half fixed dates, half dates beside a weekday of the month; no two texts are alike.
void Fill(CalendarSettings& settings, long long nEntries)
{
    for (int i = 0; i < nEntries; ++i) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        CString strDesc;
        strDesc.Format("Appointment %d", i);
        if (i % 2 == 0)
            pEntry->SetDay(strDesc, 1 + i % 28, 1 + i % 12);
        else
            pEntry->SetBeforeAfterDayOfWeek(strDesc, DateEntry::OCCURRENCE_LAST, 6, 1 + i % 12, -4);
        settings.AddCustomEntry(pEntry.release());
    }
}

// One day on which so many texts fall.
void Day(benchmark::State& state)
{
    CalendarSettings settings;
    for (int i = 0; i < state.range(0); ++i) {
        auto pEntry = std::make_unique<CalendarDateEntry>();
        CString strDesc;
        strDesc.Format("Appointment %d", i);
        pEntry->SetDay(strDesc, 4, 7);
        settings.AddCustomEntry(pEntry.release());
    }
    for (auto _ : state) {
        DWORD dwColor = 0xFFFFFF;
        benchmark::DoNotOptimize(settings.GetDateDesc(4, 7, 2026, dwColor));
    }
}

// The 42 lookups of one month.
void Month(benchmark::State& state)
{
    CalendarSettings settings;
    Fill(settings, state.range(0));
    for (auto _ : state) {
        DateTime date(2026, 3, 29, 0, 0, 0);
        for (int nCell = 0; nCell < 42; ++nCell) {
            DWORD dwColor = 0xFFFFFF;
            benchmark::DoNotOptimize(
                settings.GetDateDesc(date.GetDay(), date.GetMonth(), date.GetYear(), dwColor));
            date.AddDays(1);
        }
    }
}

void SaveAndLoad(benchmark::State& state)
{
    const auto directory = std::filesystem::temp_directory_path() / "zeb17-bench";
    std::filesystem::create_directory(directory);
    ZebrikUtils::SetDataDirectory(directory.string().c_str());
    LockHome::Set(directory.string());
    CalendarSettings settings;
    Fill(settings, state.range(0));
    for (auto _ : state) {
        settings.Save();
        settings.Load();
    }
    std::filesystem::remove_all(directory);
}

BENCHMARK(Month)->Arg(0)->Arg(100)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Day)->Arg(100)->Arg(8000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveAndLoad)->Arg(0)->Arg(100)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}

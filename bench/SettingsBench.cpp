// What a month costs, and a file, with lists of many lengths.
#include <CalendarSettings.h>
#include <DayNumbers.h>
#include <LockHome.h>
#include <ZebrikUtils.h>

#include <benchmark/benchmark.h>

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

#include <filesystem>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

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
    while (state.KeepRunning()) {
        DWORD dwColor = 0xFFFFFF;
        benchmark::DoNotOptimize(settings.GetDateDesc(4, 7, 2026, dwColor));
    }
}

void LookUpMonths(benchmark::State& state, const CalendarSettings& settings)
{
    while (state.KeepRunning()) {
        DayNumbers::Date date{2026, 3, 29};
        for (int nCell = 0; nCell < 42; ++nCell, date = DayNumbers::DayAfter(date)) {
            DWORD dwColor = 0xFFFFFF;
            benchmark::DoNotOptimize(settings.GetDateDesc(date.nDay, date.nMonth, date.nYear, dwColor));
        }
    }
}

// The 42 lookups of one month, with so many entries of the user's.
void Month(benchmark::State& state)
{
    CalendarSettings settings;
    Fill(settings, state.range(0));
    LookUpMonths(state, settings);
}

// The 42 lookups of one month in the tables of the three nations.
void NationalMonth(benchmark::State& state)
{
    const CalendarSettings settings;
    LookUpMonths(state, settings);
}

// A directory for the files of one benchmark.
class FilesGuard
{
public:
    FilesGuard() : m_path(std::filesystem::temp_directory_path() / "zeb17-bench")
    {
        std::filesystem::create_directory(m_path);
        ZebrikUtils::SetDataDirectory(m_path.string().c_str());
        LockHome::Set(m_path.string());
    }
    ~FilesGuard() { std::filesystem::remove_all(m_path); }
    FilesGuard(const FilesGuard&) = delete;
    FilesGuard& operator=(const FilesGuard&) = delete;
    QString file() const { return QString::fromStdString((m_path / "peer").string()); }

private:
    std::filesystem::path m_path;
};

void Save(benchmark::State& state)
{
    const FilesGuard files;
    CalendarSettings settings;
    Fill(settings, state.range(0));
    while (state.KeepRunning())
        settings.Save();
}

void Load(benchmark::State& state)
{
    const FilesGuard files;
    CalendarSettings settings;
    Fill(settings, state.range(0));
    settings.Save();
    while (state.KeepRunning())
        settings.Load();
}

// What an entry holds, for Qt's stream.
struct Record
{
    qint32 ruleWord, kind, rule[4], startYear, id;
    quint32 color;
    bool ruleFlag, shown;
    QByteArray text;
};
using Records = std::vector<std::unique_ptr<Record>>;

template <class Stream, class Entry>
void Exchange(Stream& stream, Entry& entry)
{
    const auto exchange = [&](auto&... fields) {
        if constexpr (std::is_const_v<Entry>)
            (stream << ... << fields);
        else
            (stream >> ... >> fields);
    };
    exchange(entry.ruleWord, entry.kind, entry.ruleFlag, entry.rule[0], entry.rule[1], entry.rule[2],
             entry.rule[3], entry.startYear, entry.id, entry.text, entry.shown, entry.color);
}

// The file is flushed to the disk and moved over the old one, as ours.
void SaveByQt(const QString& path, const Records& records)
{
    QSaveFile file(path);
    file.open(QIODevice::WriteOnly);
    QDataStream stream(&file);
    stream << static_cast<quint64>(records.size());
    for (const auto& record : records)
        Exchange(stream, std::as_const(*record));
    file.commit();
}

Records MakeRecords(long long count)
{
    Records records;
    for (int i = 0; i < count; ++i)
        records.push_back(std::make_unique<Record>(Record{1,
                                                          0,
                                                          {1 + i % 28, 1 + i % 12, 0, 0},
                                                          0,
                                                          i,
                                                          0,
                                                          false,
                                                          true,
                                                          "Appointment " + QByteArray::number(i)}));
    return records;
}

void SavePeer(benchmark::State& state)
{
    const FilesGuard files;
    const Records records = MakeRecords(state.range(0));
    while (state.KeepRunning())
        SaveByQt(files.file(), records);
}

void LoadPeer(benchmark::State& state)
{
    const FilesGuard files;
    SaveByQt(files.file(), MakeRecords(state.range(0)));
    while (state.KeepRunning()) {
        QFile file(files.file());
        file.open(QIODevice::ReadOnly);
        QDataStream stream(&file);
        quint64 count = 0;
        stream >> count;
        Records records;
        for (quint64 i = 0; i < count; ++i)
            Exchange(stream, *records.emplace_back(std::make_unique<Record>()));
        benchmark::DoNotOptimize(records.size());
    }
}

BENCHMARK(Month)->Arg(0)->Arg(100)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(Day)->Arg(100)->Arg(8000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(NationalMonth)->Unit(benchmark::kMicrosecond);

constexpr long long kFileSizes[] = {100, 100000};
#define BENCH_FILE(function, name)                                                                           \
    BENCHMARK(function)->Name(name)->Arg(kFileSizes[0])->Arg(kFileSizes[1])->Unit(benchmark::kMillisecond)
BENCH_FILE(Save, "Save/ours");
BENCH_FILE(SavePeer, "Save/QDataStream");
BENCH_FILE(Load, "Load/ours");
BENCH_FILE(LoadPeer, "Load/QDataStream");

}

// How long the generator takes for a pay period, and the data files for a load and a save: for a usual household and
// for the largest lawful files. Saving and loading are what a window does after every change.
#include "RecordingDesk.h"
#include "budget/BudgetGenerator.h"
#include "foundation/BudgetFiles.h"
#include "foundation/State.h"

#include <QFileInfo>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostRecords = 32767;

Currency Amount(int number)
{
    return Currency::FromTenThousandths(10000 + number % 997 * 101);
}

QString Name(const char *what, int number)
{
    return QString::fromLatin1(what) + QLatin1Char(' ') + QString::number(number);
}

/// A date of the year 2004 or later, in steps of two weeks.
DateText PayDate(int number)
{
    return DateText(Format(QDate(2004, 1, 1).addDays(14 * number), DateFormat::Dashes));
}

void PutCreditors(int count)
{
    State.NumberOfCreditors = qint16(count);
    State.Creditors.Redim(count);
    for (int i = 1; i <= count; ++i)
        State.Creditors(i) = {Name("Creditor", i), qint16(1 + i % 28), Amount(i)};
}

void PutRegulars(int count)
{
    State.NumberOfRegulars = qint16(count);
    State.Regulars.Redim(count);
    for (int i = 1; i <= count; ++i)
        State.Regulars(i) = {Name("Item", i), Amount(i)};
}

void PutPayPeriods(int count, int items)
{
    State.NumberOfExtraPayPeriods = qint16(count);
    State.ExtraPayPeriods.Redim(count);
    for (int i = 1; i <= count; ++i) {
        ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        payPeriod.PayPeriodDate = PayDate(i);
        payPeriod.NumberOfExtraItems = qint16(items);
        for (int item = 1; item <= items; ++item)
            payPeriod.ExtraItems.At(item) = {Name("Extra", item), Amount(item)};
    }
}

void PutProjects(int count, int entries)
{
    State.NumberOfProjects = qint16(count);
    State.ProjectNames.Redim(count);
    State.ProjectAmounts.Redim(count);
    State.ProjectEntryCounts.Redim(count);
    State.ProjectEntryDates.Redim(count);
    State.ProjectEntryAmounts.Redim(count);
    for (int i = 1; i <= count; ++i) {
        State.ProjectNames(i) = Name("Project", i);
        State.ProjectAmounts(i) = Amount(i);
        State.ProjectEntryCounts(i) = qint16(entries);
        for (int entry = 1; entry <= entries; ++entry) {
            State.ProjectEntryDates(i).At(entry) = PayDate(entry);
            State.ProjectEntryAmounts(i).At(entry) = Amount(entry);
        }
    }
}

void PutSettings()
{
    State.PaycheckAmount = Currency::FromTenThousandths(10000000);
    State.PayFrequency = Biweekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.BudgetPeriodStart = DateText(u"1/1/2004"_s);
}

// ---------------------------------------------------------------- the generator

/// A look-ahead run and a budget run, as the forecast drives them; a forecast of 1,000 periods makes as many pairs.
void PairOfRuns(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    PutSettings();
    PutCreditors(100);
    PutRegulars(50);
    PutPayPeriods(200, 5);
    PutProjects(20, 100);
    State.ForecastMode = true;
    int pairs = 0;
    for ([[maybe_unused]] auto pass : benchmark) {
        if (++pairs % 1000 == 0)
            State.BudgetPeriodStart = DateText(u"1/1/2004"_s);
        GenerateBudget();
        GenerateBudget();
    }
    benchmark::DoNotOptimize(State.BudgetBalance);
}
BENCHMARK(PairOfRuns);

/// What one forecast of the greatest length costs, the reading of all stored dates included.
void ForecastOf1000Periods(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        PutSettings();
        PutCreditors(100);
        PutRegulars(50);
        PutPayPeriods(200, 5);
        PutProjects(20, 100);
        State.ForecastMode = true;
        benchmark.ResumeTiming();
        for (int run = 0; run < 2000; ++run)
            GenerateBudget();
    }
}
BENCHMARK(ForecastOf1000Periods)->Unit(benchmark::kMillisecond);

// ---------------------------------------------------------------- the data files

struct DataFileCase {
    const char *File;
    void (*Put)(int, int);
    void (*Load)();
    void (*Save)();
};
const DataFileCase Creditors{"creditor.txt", [](int count, int) { PutCreditors(count); }, InputCreditors,
                             SaveCreditors};
const DataFileCase Regulars{"regulars.txt", [](int count, int) { PutRegulars(count); }, InputRegulars, SaveRegulars};
const DataFileCase PayPeriods{"extra.txt", PutPayPeriods, InputPayPeriods, SavePayPeriods};
const DataFileCase Projects{"projects.txt", PutProjects, InputProjects, SaveProjects};

void Prepare(const DataFileCase &file, const benchmark::State &benchmark, const RecordingDesk &desk)
{
    desk.WriteFile(QLatin1String(file.File), "0\r\n");
    file.Put(int(benchmark.range(0)), int(benchmark.range(1)));
    file.Save();
}

void Finish(const DataFileCase &file, benchmark::State &benchmark, const RecordingDesk &desk)
{
    benchmark.counters["file_kB"] = double(QFileInfo(desk.Path(QLatin1String(file.File))).size()) / 1000;
    if (!desk.Messages.isEmpty())
        benchmark.SkipWithError(qPrintable(desk.Messages.first().Text));
}

void Load(benchmark::State &benchmark, const DataFileCase &file)
{
    const RecordingDesk desk;
    Prepare(file, benchmark, desk);
    for ([[maybe_unused]] auto pass : benchmark)
        file.Load();
    Finish(file, benchmark, desk);
}

void Save(benchmark::State &benchmark, const DataFileCase &file)
{
    const RecordingDesk desk;
    Prepare(file, benchmark, desk);
    for ([[maybe_unused]] auto pass : benchmark)
        file.Save();
    Finish(file, benchmark, desk);
}

/// The sizes: records, entries a record. First a usual household's.
void ListSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({20, 0})->Args({MostRecords, 0})->Unit(benchmark::kMillisecond);
}
/// Every record and every item full would be 6.5 million items; either bound alone is tried.
void PayPeriodSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({12, 3})->Args({200, 200})->Args({MostRecords, 10})->Unit(benchmark::kMillisecond);
}
/// Likewise: 3.3 million entries.
void ProjectSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({3, 26})->Args({200, 100})->Args({MostRecords, 10})->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(Load, creditors, Creditors)->Apply(ListSizes);
BENCHMARK_CAPTURE(Save, creditors, Creditors)->Apply(ListSizes);
BENCHMARK_CAPTURE(Load, regulars, Regulars)->Apply(ListSizes);
BENCHMARK_CAPTURE(Save, regulars, Regulars)->Apply(ListSizes);
BENCHMARK_CAPTURE(Load, payPeriods, PayPeriods)->Apply(PayPeriodSizes);
BENCHMARK_CAPTURE(Save, payPeriods, PayPeriods)->Apply(PayPeriodSizes);
BENCHMARK_CAPTURE(Load, projects, Projects)->Apply(ProjectSizes);
BENCHMARK_CAPTURE(Save, projects, Projects)->Apply(ProjectSizes);

} // namespace

BENCHMARK_MAIN();

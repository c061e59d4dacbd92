// How long a savings forecast takes: the calculation alone, and from the call that shows the window until its rows are
// painted; for a usual household by the number of periods and by the number of creditors, and for a large one.
#include "RecordingDesk.h"
#include "Windows.h"
#include "budget/SavingsForecast.h"
#include "platform/controls/Grid.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"

#include <QEvent>
#include <QPixmap>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int UsualPeriods = 100;

struct Household {
    int Creditors = 12;
    int Regulars = 8;
    int ExtraPayPeriods = 6;
    int Projects = 2; ///< the first of them with 100 entries, the others with 26
};

DateText PayDate(int number)
{
    return Format(QDate(2004, 1, 1).addDays(14 * number), DateFormat::Dashes);
}

Currency Dollars(int amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

/// The paycheck grows with the creditors, and every extra pay period ends on a deficit.
void PutHousehold(const Household &household, int periods)
{
    ResetState();
    Forecast = {};
    State.ForecastPeriods = qint16(periods);
    State.PaycheckAmount = Dollars(900 + 100 * household.Creditors + 75 * household.Regulars);
    State.PayFrequency = Biweekly;
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.NumberOfCreditors = qint16(household.Creditors);
    State.Creditors.Redim(household.Creditors);
    for (int i = 1; i <= household.Creditors; ++i)
        State.Creditors(i) = {u"Creditor %1"_s.arg(i), qint16(1 + i % 28), Dollars(100)};
    State.NumberOfRegulars = qint16(household.Regulars);
    State.Regulars.Redim(State.NumberOfRegulars);
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        State.Regulars(i) = {u"Item %1"_s.arg(i), Dollars(60)};
    State.NumberOfExtraPayPeriods = qint16(household.ExtraPayPeriods);
    State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods);
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        State.ExtraPayPeriods(i).PayPeriodDate = PayDate(3 * i);
        State.ExtraPayPeriods(i).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(i).ExtraItems.At(1) = {u"Extra"_s, State.PaycheckAmount};
    }
    State.NumberOfProjects = qint16(household.Projects);
    State.ProjectNames.Redim(household.Projects);
    State.ProjectAmounts.Redim(household.Projects);
    State.ProjectEntryCounts.Redim(household.Projects);
    State.ProjectEntryDates.Redim(household.Projects);
    State.ProjectEntryAmounts.Redim(household.Projects);
    for (int project = 1; project <= household.Projects; ++project) {
        State.ProjectNames(project) = u"Project %1"_s.arg(project);
        State.ProjectEntryCounts(project) = project == 1 ? 100 : 26;
        for (int entry = 1; entry <= State.ProjectEntryCounts(project); ++entry) {
            State.ProjectEntryDates(project).At(entry) = PayDate(entry - 1);
            State.ProjectEntryAmounts(project).At(entry) = Dollars(10);
        }
    }
}

void Calculate(benchmark::State &benchmark, const Household &household, int periods)
{
    const RecordingDesk desk;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        PutHousehold(household, periods);
        State.BudgetPeriodStart = State.CurrentPayPeriod;
        benchmark.ResumeTiming();
        ForecastSavings();
    }
    if (Forecast.ForecastDates(periods).isEmpty())
        benchmark.SkipWithError("the rows are not there");
}

/// What has to stay within a millisecond: 1,000 periods of a large household, its dates parsed by the way.
void LargeHousehold(benchmark::State &benchmark)
{
    Calculate(benchmark,
              {.Creditors = 40,
               .Regulars = 20,
               .ExtraPayPeriods = int(benchmark.range(0)),
               .Projects = int(benchmark.range(1))},
              MostForecastPeriods);
}
BENCHMARK(LargeHousehold)
    ->ArgNames({"extras", "projects"})
    ->Args({0, 0})
    ->Args({12, 0})
    ->Args({12, 3})
    ->Unit(benchmark::kMicrosecond);

/// range(0) is the number of periods.
void Calculation(benchmark::State &benchmark)
{
    Calculate(benchmark, {}, int(benchmark.range(0)));
    benchmark.SetComplexityN(benchmark.range(0));
}
BENCHMARK(Calculation)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);

/// range(0) is the number of creditors.
void CalculationByCreditors(benchmark::State &benchmark)
{
    Calculate(benchmark, {.Creditors = int(benchmark.range(0))}, UsualPeriods);
    benchmark.SetComplexityN(benchmark.range(0));
}
BENCHMARK(CalculationByCreditors)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

/// From the showing of the window until its rows are painted.
void ShowAndPaint(benchmark::State &benchmark, const Household &household, int periods, bool again)
{
    const RecordingDesk desk;
    RegisterWindows();
    const QString window = u"frmSavingsForecast"_s;
    const auto showAndPaint = [&] {
        TheWindows.Show(window);
        QCoreApplication::processEvents(); // the view hears of the new rows
        TheWindows.Loaded(window)->grab();
    };
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        PutHousehold(household, periods);
        if (again) {
            TheWindows.Show(u"frmScanPayPeriods"_s);
            showAndPaint();
            TheWindows.Show(u"frmScanPayPeriods"_s);
            QCoreApplication::processEvents();
        }
        benchmark.ResumeTiming();
        showAndPaint();
        benchmark.PauseTiming();
        const auto &grid = TheWindows.ControlOf<Grid>(window, u"grdSavingsForecast"_s);
        if (grid.Text(periods, 0).toInt() != periods)
            benchmark.SkipWithError("the rows are not there");
        TheWindows.Unload(window);
        TheWindows.Unload(u"frmSetCurrentPayPeriod"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        benchmark.ResumeTiming();
    }
    TheWindows.Reset();
}

void Window(benchmark::State &benchmark)
{
    ShowAndPaint(benchmark, {}, int(benchmark.range(0)), false);
}
BENCHMARK(Window)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// The window comes back to the front: it fills again, above the rows of before.
void WindowAgain(benchmark::State &benchmark)
{
    ShowAndPaint(benchmark, {}, int(benchmark.range(0)), true);
}
BENCHMARK(WindowAgain)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

void WindowByCreditors(benchmark::State &benchmark)
{
    ShowAndPaint(benchmark, {.Creditors = int(benchmark.range(0))}, UsualPeriods, false);
}
BENCHMARK(WindowByCreditors)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv, u"Tallymere"_s);
    SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

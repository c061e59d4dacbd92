// How long an amortization table takes: the calculation alone, the filling of its grid alone, and from the click on OK
// until the table is painted. 26,000 payments are near the most that the rows of a table are counted for.
#include "debt/Amortization.h"
#include "RecordingDesk.h"
#include "Windows.h"
#include "debt/Loans.h"
#include "foundation/StatementGrid.h"
#include "platform/controls/Grid.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"

#include <QEvent>
#include <QPixmap>
#include <QPushButton>
#include <QScrollBar>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void TakeLoan(qint64 payments)
{
    Debt = {};
    LoanPayment({.BorrowedAmount = u"20000000"_s,
                 .AnnualPercentageRate = u"1"_s,
                 .NumberOfMonthlyPayments = QString::number(payments)});
}

/// range(0) is the number of payments.
void Calculation(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    TakeLoan(benchmark.range(0));
    for ([[maybe_unused]] auto pass : benchmark) {
        Statement table;
        Amortize(table);
        benchmark::DoNotOptimize(table.Rows.data());
    }
}

void Fill(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    TakeLoan(benchmark.range(0));
    Statement table;
    Amortize(table);
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        Grid grid;
        grid.SetShape(2, 4);
        benchmark.ResumeTiming();
        ShowRows(grid, table);
        benchmark.PauseTiming();
        if (grid.Text(int(table.Rows.size()), 0) != u"Total"_s)
            benchmark.SkipWithError("the rows are not there");
        benchmark.ResumeTiming();
    }
}

/// The view hears of the new rows, and the window is painted.
void Paint(const QString &window)
{
    QCoreApplication::processEvents();
    TheWindows.Loaded(window)->grab();
}

/// From the click on OK until the table is painted. again: the window stands there with a table already, and another
/// one is inserted above it.
void ClickUntilPainted(benchmark::State &benchmark, bool again)
{
    const RecordingDesk desk;
    RegisterWindows();
    const QString window = u"frmAmortization"_s;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        TakeLoan(benchmark.range(0));
        TheWindows.Show(u"frmSelectMonth"_s);
        auto &ok = TheWindows.ControlOf<QPushButton>(u"frmSelectMonth"_s, u"cmdOK"_s);
        if (again) {
            ok.click();
            Paint(window);
            TheWindows.Show(u"frmSelectMonth"_s);
        }
        QCoreApplication::processEvents();
        benchmark.ResumeTiming();
        ok.click();
        Paint(window);
        benchmark.PauseTiming();
        const auto &grid = TheWindows.ControlOf<Grid>(window, u"grdAmortization"_s);
        if (grid.Text(1, 0) != u"1"_s || grid.Rows() < benchmark.range(0) * (again ? 2 : 1))
            benchmark.SkipWithError("the rows are not there");
        TheWindows.Unload(window);
        TheWindows.Unload(u"frmSelectMonth"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        benchmark.ResumeTiming();
    }
    TheWindows.Reset();
}

void Window(benchmark::State &benchmark)
{
    ClickUntilPainted(benchmark, false);
}

void WindowAgain(benchmark::State &benchmark)
{
    ClickUntilPainted(benchmark, true);
}

/// A page down, painted: what scrolling costs for each page.
void Scrolling(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    RegisterWindows();
    TakeLoan(benchmark.range(0));
    const QString window = u"frmAmortization"_s;
    TheWindows.Show(window);
    Paint(window);
    QScrollBar &bar = *TheWindows.ControlOf<Grid>(window, u"grdAmortization"_s).verticalScrollBar();
    if (bar.maximum() <= bar.pageStep())
        benchmark.SkipWithError("there is nothing to scroll");
    for ([[maybe_unused]] auto pass : benchmark) {
        bar.setValue(bar.value() + bar.pageStep() > bar.maximum() ? 0 : bar.value() + bar.pageStep());
        Paint(window);
    }
    TheWindows.Reset();
}

BENCHMARK(Calculation)->Arg(360)->Arg(26000)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill)->Arg(360)->Arg(26000)->Unit(benchmark::kMillisecond);
BENCHMARK(Window)->Arg(360)->Arg(26000)->Unit(benchmark::kMillisecond);
BENCHMARK(WindowAgain)->Arg(26000)->Unit(benchmark::kMillisecond);
BENCHMARK(Scrolling)->Arg(360)->Arg(26000)->Unit(benchmark::kMillisecond);

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

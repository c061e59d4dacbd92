// How long a pay off plan of some 32,000 months takes: the calculation alone, putting a plan into its window, and from
// the click that ends the entry until the rows are painted, also above the emptied rows of earlier plans; and a step of
// scrolling through it.
#include "RecordingDesk.h"
#include "Windows.h"
#include "debt/PayOffPlan.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Months = 32000;

/// One debt that takes so many months at a dollar each.
PayOffEntry SlowDebt(int months)
{
    return {u"Slow"_s, QString::number(months), u"0"_s, u"1"_s, u"1/15/2004"_s};
}

void EnterDebt(int months)
{
    RedimPayOffCreditors(u"1"_s);
    StorePayOffCreditor(1, SlowDebt(months));
}

void MakePlan()
{
    CalculateMonthsToPay();
    SortPayOffCreditors();
    BuildPayOffPlan();
}

/// range(0) is the number of months.
void Calculation(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    EnterDebt(int(benchmark.range(0)));
    for ([[maybe_unused]] auto pass : benchmark)
        MakePlan();
    if (Debt.PayOffMonthsToPay(1) != benchmark.range(0))
        benchmark.SkipWithError("the months are not there");
}
BENCHMARK(Calculation)->Arg(320)->Arg(3200)->Arg(Months)->Unit(benchmark::kMillisecond);

const Grid &TheGrid()
{
    return TheWindows.ControlOf<Grid>(WindowName::frmPayOff, u"grdPayOff"_s);
}

void Paint()
{
    QCoreApplication::processEvents(); // the view hears of the new rows
    TheWindows.Loaded(WindowName::frmPayOff)->grab();
}

/// Putting a plan into the window, without its calculation, until it is painted.
void Fill(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    RegisterWindows();
    TheWindows.Show(WindowName::frmPayOff);
    const auto plan = std::make_shared<PayOffPlan>();
    for (int month = 1; month <= Months; ++month)
        plan->Rows.push_back({qint16(month), QDate(2004, 1, 15).addMonths(month), {}, {}, {}, {}, {}});
    for ([[maybe_unused]] auto pass : benchmark) {
        Q_EMIT ThePayOffOutlet.Ready(plan);
        Paint();
    }
    if (TheGrid().Text(Months, 0).toInt() != Months)
        benchmark.SkipWithError("the rows are not there");
    TheWindows.Reset();
}
BENCHMARK(Fill)->Unit(benchmark::kMillisecond);

/// From the click on OK, which ends the entry, until the plan is painted. range(0) is the number of plans before it.
void ClickToScreen(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    RegisterWindows();
    TheWindows.Show(WindowName::frmPayOff);
    for (int i = 0; i < benchmark.range(0); ++i) {
        EnterDebt(Months);
        MakePlan();
    }
    Paint();
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        RedimPayOffCreditors(u"1"_s);
        Debt.PayOffCreditorNames(1) = u"Slow"_s;
        TheWindows.Show(WindowName::frmCreditorInfo);
        const auto type = [](const QString &box, const QString &text) {
            TheWindows.ControlOf<QLineEdit>(WindowName::frmCreditorInfo, box).setText(text);
        };
        const PayOffEntry debt = SlowDebt(Months);
        type(u"txtBalanceOwed"_s, debt.Balance);
        type(u"txtAnnualPercentageRate"_s, debt.AnnualPercentageRate);
        type(u"txtMonthlyPayment"_s, debt.MonthlyAmount);
        type(u"txtDueDate"_s, debt.DueDate);
        auto &ok = TheWindows.ControlOf<QAbstractButton>(WindowName::frmCreditorInfo, u"cmdOK"_s);
        QCoreApplication::processEvents();
        benchmark.ResumeTiming();
        ok.click();
        Paint();
        benchmark.PauseTiming();
        if (TheWindows.Loaded(WindowName::frmCreditorInfo) || TheGrid().Text(Months, 0).toInt() != Months)
            benchmark.SkipWithError("the rows are not there");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        benchmark.ResumeTiming();
    }
    TheWindows.Reset();
}
BENCHMARK(ClickToScreen)->Arg(0)->Arg(1)->Arg(50)->Unit(benchmark::kMillisecond);

/// One page further down, painted: rows that nobody has looked at yet.
void ScrollAPage(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    RegisterWindows();
    TheWindows.Show(WindowName::frmPayOff);
    EnterDebt(Months);
    MakePlan();
    Paint();
    QScrollBar &bar = *TheGrid().verticalScrollBar();
    for ([[maybe_unused]] auto pass : benchmark) {
        bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + bar.pageStep());
        Paint();
    }
    if (bar.maximum() == 0)
        benchmark.SkipWithError("there is nothing to scroll");
    TheWindows.Reset();
}
BENCHMARK(ScrollAPage)->Unit(benchmark::kMillisecond);

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

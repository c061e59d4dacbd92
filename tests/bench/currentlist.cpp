// How long the current shopping list takes: filling its grid until it is painted, sorting, and the change of a line
// with all files written and read again; by the number of lines, beside a catalogue of as many records.
#include "shopping/CurrentList.h"
#include "RecordingDesk.h"
#include "Windows.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/PrintedList.h"
#include "shopping/ShoppingDoors.h"

#include <QAbstractButton>
#include <QPixmap>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int UsualLines = 40;
constexpr int ManyLines = 2000;

/// Lines in no order, taxed in turn, each with its record.
void PutLists(const RecordingDesk &desk, int lines)
{
    desk.LayHousehold();
    State.ApplicationPath = desk.Folder();
    State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.SalesTax = 0.06F;
    State.NumberOfCurrentItems = State.NumberOfMasterItems = qint16(lines);
    State.CurrentShoppingList.Redim(lines);
    State.MasterShoppingList.Redim(lines);
    for (int i = 1; i <= lines; ++i) {
        const QString item = u"Item %1"_s.arg(i * 7919 % lines);
        const Currency price = Currency::FromTenThousandths(10000 + i % 997 * 100);
        const QString store = u"Store %1"_s.arg(i % 50);
        State.CurrentShoppingList(i) = {item, u"each"_s, price, store, 2.5F, i % 2 == 0, {}, {}};
        State.MasterShoppingList(i) = {item, u"each"_s, price, store, i % 2 == 0};
    }
    SaveCurrentShoppingList();
    SaveMasterShoppingList();
}

Grid &ShowGrid()
{
    RegisterWindows();
    TheWindows.Show(WindowName::frmCurrentShoppingList);
    QCoreApplication::processEvents();
    return TheWindows.ControlOf<Grid>(WindowName::frmCurrentShoppingList, u"grdCurrentShoppingList"_s);
}

void FillGrid(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    const int lines = int(benchmark.range(0));
    PutLists(desk, lines);
    Grid &grid = ShowGrid();
    for ([[maybe_unused]] auto pass : benchmark) {
        Q_EMIT TheShoppingDoors.CurrentListChanged();
        QCoreApplication::processEvents(); // the view hears of its rows
        benchmark::DoNotOptimize(grid.grab());
    }
    if (grid.Rows() != lines + 2)
        benchmark.SkipWithError("the lines are not there");
    TheWindows.Reset();
}
BENCHMARK(FillGrid)->Arg(UsualLines)->Arg(ManyLines)->Unit(benchmark::kMillisecond);

void Sort(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        PutLists(desk, int(benchmark.range(0)));
        benchmark.ResumeTiming();
        SortCurrentShoppingList();
    }
}
BENCHMARK(Sort)->Arg(UsualLines)->Arg(ManyLines)->Unit(benchmark::kMillisecond);

/// A click on a line and the change button, until it is painted.
void ChangeLine(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    PutLists(desk, int(benchmark.range(0)));
    Grid &grid = ShowGrid();
    auto &change = TheWindows.ControlOf<QAbstractButton>(WindowName::frmCurrentShoppingList, u"cmdChange"_s);
    for ([[maybe_unused]] auto pass : benchmark) {
        grid.SetCurrentRow(int(benchmark.range(0)) / 2);
        Q_EMIT grid.Click();
        change.click();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(grid.grab());
    }
    if (change.isEnabled() || !desk.Messages.isEmpty())
        benchmark.SkipWithError("nothing was changed");
    TheWindows.Reset();
}
BENCHMARK(ChangeLine)->Arg(UsualLines)->Arg(ManyLines)->Unit(benchmark::kMillisecond);

void Print(benchmark::State &benchmark)
{
    RecordingDesk desk;
    PutLists(desk, int(benchmark.range(0)));
    for ([[maybe_unused]] auto pass : benchmark) {
        PrintShoppingList();
        desk.TakePrinted();
    }
}
BENCHMARK(Print)->Arg(UsualLines)->Arg(ManyLines)->Unit(benchmark::kMillisecond);

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

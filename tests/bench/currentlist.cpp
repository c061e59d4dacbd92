// How long the current shopping list takes: filling its grid until it is painted, sorting, a click on a line, and the
// change and the deletion of one with all files written and read again; by the number of lines, beside a catalogue of
// as many records or the greatest.
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
#include <algorithm>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int UsualLines = 40;
constexpr int ManyLines = 2000;
constexpr int MostRecords = 32767;

/// Lines in no order, taxed in turn, each with its record; there may be more records.
void PutLists(const RecordingDesk &desk, int lines, int records = 0)
{
    records = std::max(lines, records);
    desk.LayHousehold();
    State.ApplicationPath = desk.Folder();
    State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.SalesTax = 0.06F;
    State.NumberOfCurrentItems = qint16(lines);
    State.NumberOfMasterItems = qint16(records);
    State.CurrentShoppingList.Redim(lines);
    State.MasterShoppingList.Redim(records);
    for (int i = 1; i <= records; ++i) {
        const QString item = u"Item %1"_s.arg(i * 7919 % records);
        const Currency price = Currency::FromTenThousandths(10000 + i % 997 * 100);
        const QString store = u"Store %1"_s.arg(i % 50);
        if (i <= lines)
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
    PutLists(desk, int(benchmark.range(0)));
    const OneBased<CurrentItemRecord> unsorted = State.CurrentShoppingList;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        State.CurrentShoppingList = unsorted;
        benchmark.ResumeTiming();
        SortCurrentShoppingList();
    }
}
BENCHMARK(Sort)->Arg(UsualLines)->Arg(ManyLines)->Unit(benchmark::kMillisecond);

/// A click on a line, until its fields are painted.
void ClickLine(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    PutLists(desk, int(benchmark.range(0)), int(benchmark.range(1)));
    Grid &grid = ShowGrid();
    for ([[maybe_unused]] auto pass : benchmark) {
        grid.SetCurrentRow(int(benchmark.range(0)) / 2);
        Q_EMIT grid.Click();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(grid.window()->grab());
    }
    if (!TheWindows.ControlOf<QAbstractButton>(WindowName::frmCurrentShoppingList, u"cmdChange"_s).isEnabled())
        benchmark.SkipWithError("no line is selected");
    TheWindows.Reset();
}
BENCHMARK(ClickLine)->Args({UsualLines, UsualLines})->Args({ManyLines, MostRecords})->Unit(benchmark::kMillisecond);

/// A click on a line and the delete button, until it is painted. Each pass leaves a line less.
void DeleteLine(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    const int lines = int(benchmark.range(0));
    PutLists(desk, lines, int(benchmark.range(1)));
    Grid &grid = ShowGrid();
    auto &button = TheWindows.ControlOf<QAbstractButton>(WindowName::frmCurrentShoppingList, u"cmdDelete"_s);
    for ([[maybe_unused]] auto pass : benchmark) {
        grid.SetCurrentRow(State.NumberOfCurrentItems / 2);
        Q_EMIT grid.Click();
        button.click();
        QCoreApplication::processEvents();
        benchmark::DoNotOptimize(grid.grab());
    }
    if (State.NumberOfCurrentItems != lines - int(benchmark.iterations()) || !desk.Messages.isEmpty())
        benchmark.SkipWithError("nothing was deleted");
    TheWindows.Reset();
}
BENCHMARK(DeleteLine)->Args({ManyLines, MostRecords})->Iterations(50)->Unit(benchmark::kMillisecond);

/// A click on a line and the change button, until it is painted.
void ChangeLine(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    PutLists(desk, int(benchmark.range(0)), int(benchmark.range(1)));
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
BENCHMARK(ChangeLine)
    ->Args({UsualLines, UsualLines})
    ->Args({ManyLines, ManyLines})
    ->Args({ManyLines, MostRecords})
    ->Unit(benchmark::kMillisecond);

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

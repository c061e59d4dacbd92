// How long the master shopping list takes: choosing a store and clicking an item until they are painted, and an item
// that goes into the cart with all files written and read; for a usual catalogue, and for the greatest one in 50 stores
// beside a list of 2,000 lines.
#include "shopping/MasterList.h"
#include "RecordingDesk.h"
#include "Windows.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/WindowNames.h"
#include "platform/controls/DropDownList.h"
#include "platform/values/Locale.h"
#include "platform/windows/Application.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/Shelf.h"

#include <QAbstractButton>
#include <QPixmap>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Size {
    int Items;
    int Stores;
    int Lines;
};

constexpr Size Usual{60, 3, 12};
constexpr Size Greatest{32767, 50, 2000};

MasterItemRecord Item(int number, int stores)
{
    return {u"Item %1"_s.arg(number * 7919 % 32768), u"each"_s,
            Currency::FromTenThousandths(10000 + number % 997 * 100), u"Store %1"_s.arg(number % stores),
            number % 2 == 0};
}

/// The first items of the catalogue are on the list, those of the last store's shelf are not.
void PutLists(const RecordingDesk &desk, const Size &size)
{
    desk.LayHousehold();
    State.ApplicationPath = desk.Folder();
    State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.SalesTax = 0.06F;
    State.NumberOfMasterItems = qint16(size.Items);
    State.MasterShoppingList.Redim(size.Items);
    for (int i = 1; i <= size.Items; ++i)
        State.MasterShoppingList(i) = Item(i, size.Stores);
    State.NumberOfCurrentItems = qint16(size.Lines);
    State.CurrentShoppingList.Redim(size.Lines);
    for (int i = 1; i <= size.Lines; ++i) {
        const MasterItemRecord item = Item(i, size.Stores);
        State.CurrentShoppingList(i) = {item.Item, u"case"_s, item.UnitPrice, item.Store, 2.5F, item.Taxable, {}, {}};
    }
    SaveMasterShoppingList();
    SaveCurrentShoppingList();
}

/// The window, opened on its first store.
class MasterWindow
{
public:
    MasterWindow()
    {
        RegisterWindows();
        TheWindows.Show(WindowName::frmMasterShoppingList);
        ChooseStore(0);
    }
    ~MasterWindow() { TheWindows.Reset(); }

    DropDownList &Stores() { return Control<DropDownList>(u"cboStoreList"_s); }
    Shelf &Items() { return Control<Shelf>(u"lstMasterShopper"_s); }
    QAbstractButton &Button(const QString &name) { return Control<QAbstractButton>(name); }

    void ChooseStore(int row)
    {
        Stores().SetListIndex(row);
        Paint();
    }
    void ClickItem(int row)
    {
        Items().SetListIndex(row);
        Paint();
    }
    void Paint()
    {
        QCoreApplication::processEvents(); // the views hear of their rows
        benchmark::DoNotOptimize(TheWindows.Loaded(WindowName::frmMasterShoppingList)->grab());
    }

private:
    template <class Control_>
    Control_ &Control(const QString &name)
    {
        return TheWindows.ControlOf<Control_>(WindowName::frmMasterShoppingList, name);
    }
};

void ChooseStore(benchmark::State &benchmark, const Size &size)
{
    const RecordingDesk desk;
    PutLists(desk, size);
    MasterWindow window;
    int row = 0;
    for ([[maybe_unused]] auto pass : benchmark)
        window.ChooseStore(++row % size.Stores);
    if (window.Items().count() < size.Items / size.Stores)
        benchmark.SkipWithError("the items are not there");
}

void ClickItem(benchmark::State &benchmark, const Size &size)
{
    const RecordingDesk desk;
    PutLists(desk, size);
    MasterWindow window;
    int row = 0;
    for ([[maybe_unused]] auto pass : benchmark)
        window.ClickItem(++row % window.Items().count());
    if (!window.Button(u"cmdSaveChanges"_s).isEnabled())
        benchmark.SkipWithError("no item is shown");
}

/// listBeside: the window of the current list stands beside and shows the new line.
void PutInCart(benchmark::State &benchmark, const Size &size, bool listBeside)
{
    RecordingDesk desk;
    PutLists(desk, size);
    MasterWindow window;
    if (listBeside) {
        TheWindows.Show(WindowName::frmCurrentShoppingList);
        TheWindows.Show(WindowName::frmMasterShoppingList);
        desk.TakeAll();
    }
    const auto lines = State.CurrentShoppingList;
    for ([[maybe_unused]] auto pass : benchmark) {
        benchmark.PauseTiming();
        State.CurrentShoppingList = lines;
        State.NumberOfCurrentItems = qint16(lines.Size());
        window.Items().SetListIndex(-1);
        window.ClickItem(0);
        benchmark.ResumeTiming();
        Q_EMIT window.Items().PutInCart();
        window.Paint();
        if (listBeside)
            benchmark::DoNotOptimize(TheWindows.Loaded(WindowName::frmCurrentShoppingList)->grab());
        if (desk.Messages.size() != 1 || State.NumberOfCurrentItems != size.Lines + 1)
            benchmark.SkipWithError("the item is not on the list");
        desk.Messages.clear();
    }
}

/// Both files written and read.
void SaveChanges(benchmark::State &benchmark, const Size &size)
{
    const RecordingDesk desk;
    PutLists(desk, size);
    MasterWindow window;
    for ([[maybe_unused]] auto pass : benchmark) {
        window.Items().SetListIndex(-1);
        window.Items().SetListIndex(0);
        window.Button(u"cmdSaveChanges"_s).click();
        window.Paint();
    }
    if (!desk.Messages.isEmpty())
        benchmark.SkipWithError("nothing was saved");
}

/// The longest search: every record and every line is of one item, and none of them is equal to another.
void FindAmongEqualNames(benchmark::State &benchmark)
{
    const RecordingDesk desk;
    PutLists(desk, Greatest);
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        State.MasterShoppingList(i).Item = u"Milk"_s;
        State.MasterShoppingList(i).Store = u"Store"_s;
    }
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        State.CurrentShoppingList(i).Item = u"Milk"_s;
        State.CurrentShoppingList(i).Store = u"Store"_s;
    }
    for ([[maybe_unused]] auto pass : benchmark)
        benchmark::DoNotOptimize(FindItem(u"Milk"_s, u"Store"_s));
}
BENCHMARK(FindAmongEqualNames)->Unit(benchmark::kMillisecond);

BENCHMARK_CAPTURE(ChooseStore, usual, Usual)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ChooseStore, greatest, Greatest)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ClickItem, usual, Usual)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ClickItem, greatest, Greatest)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PutInCart, usual, Usual, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PutInCart, greatest, Greatest, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(PutInCart, greatest_with_the_list_beside, Greatest, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveChanges, usual, Usual)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SaveChanges, greatest, Greatest)->Unit(benchmark::kMillisecond);

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

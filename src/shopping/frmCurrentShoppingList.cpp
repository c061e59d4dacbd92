#include "shopping/frmCurrentShoppingList.h"

#include "foundation/Identity.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StatementGrid.h"
#include "foundation/WindowFields.h"
#include "platform/controls/Fields.h"
#include "platform/files/DataFile.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "shopping/CurrentList.h"
#include "shopping/PrintedList.h"
#include "shopping/ShoppingDoors.h"
#include "shopping/ShoppingState.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QRegularExpression>
#include <QScopeGuard>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using Design = Ui::frmCurrentShoppingList;
constexpr EntryRule<Design> Rules[] = {
    {&Design::txtQuantity, Numeric, "Quantity does not contain a valid numeric amount"},
    {&Design::txtCouponValue, Numeric, "Coupon Value does not contain a valid numeric amount"},
};

const QList<GridColumn> &GridColumns()
{
    static const QList<GridColumn> columns{
        {u"Item"_s, 3000},
        {u"Unit"_s, 1200},
        {u"Unit Price"_s, 1000, Qt::AlignRight},
        {u"Store"_s, 1200},
        {u"Quantity"_s, 850, Qt::AlignRight},
        {u"Tax"_s, 420},
        {u"Coupon"_s, 800, Qt::AlignRight},
        {u"Full Price"_s, 1000, Qt::AlignRight},
    };
    return columns;
}

constexpr int RowsAtFirst = 10;
constexpr int RowsBeside = 2; // the lines: the heading and the empty row
const QString TitlePrefix = u"Current Shopping List - "_s;
const QString Untitled = u"untitled.lst"_s;

/// A file of another ending, as "St. John's" seems to have one, would be found in no dialog again.
QString WithEnding(const QString &name)
{
    const QString ending = u".lst"_s;
    return name.isEmpty() || name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

bool IsUntitled(const QString &name)
{
    return name.toUpper() == Untitled.toUpper();
}

} // namespace

frmCurrentShoppingList::frmCurrentShoppingList()
    : Window({.Title = u"Current Shopping List"_s, .TheIcon = Icon::Warning})
{
    for (QLineEdit *field : {ui.txtItem, ui.txtUnit, ui.txtUnitPrice, ui.txtStore, ui.txtTaxCode})
        ShowOnly(field);
    QFont bold = ui.lblTotalGroceryBill->font();
    bold.setBold(true);
    ui.lblTotalGroceryBill->setFont(bold);
    ui.grdCurrentShoppingList->SetFillsOnArrival(true);
    ui.grdCurrentShoppingList->SetRowsAtFirst(RowsAtFirst);
    ui.grdCurrentShoppingList->SetColumns(GridColumns(), RowsBeside);
    ui.grdCurrentShoppingList->horizontalHeader()->setSectionsClickable(false); // it is no line

    connect(ui.grdCurrentShoppingList, &Grid::Click, this,
            [this] { Trap([this] { grdCurrentShoppingList_Click(); }); });
    connect(&TheShoppingDoors, &ShoppingDoors::CurrentListChanged, this, [this] { FillCurrentShoppingGrid(); });
    OnClickTrapped(ui.cmdChange, [this] { cmdChange_Click(); });
    OnClickTrapped(ui.cmdDelete, [this] { cmdDelete_Click(); });
    OnClickTrapped(ui.cmdNew, [this] { cmdNew_Click(); });
    OnClickTrapped(ui.cmdSave, [this] { cmdSave_Click(); });
    OnClick(ui.cmdMasterList, [] { TheWindows.Show(WindowName::frmMasterShoppingList); });
    OnClick(ui.cmdPrint, PrintShoppingList);
    UnloadOn(ui.cmdQuit);
    EnterRing({ui.txtQuantity, ui.txtCouponValue});
    StartAt(ui.grdCurrentShoppingList); // also when the user comes back: nothing is selected then
    OnLostFocus(ui.txtTaxCode, [this] { ui.txtTaxCode->setText(ui.txtTaxCode->text().toUpper()); });
    CurrencyWhenLeft({ui.txtUnitPrice});
}

void frmCurrentShoppingList::Load()
{
    OpenWithRows(*this, *ui.grdCurrentShoppingList, RowsBeside + State.NumberOfCurrentItems);
    if (State.GuidedSetupActive)
        TheWindows.Hide(WindowName::frmGettingStarted);
}

void frmCurrentShoppingList::Activate()
{
    setWindowTitle(TitlePrefix + State.CurrentStoreFile);
    // A file by hand, or a tax, may take the bill beyond money; that is told, and such a list is not printed.
    Trap([this] { FillCurrentShoppingGrid(); });
    ui.lblTaxCode->setText(u"Taxable "_s + WindowField::SalesTax().text() + u'%');
    const bool lines = State.NumberOfCurrentItems != 0;
    for (QWidget *control :
         QList<QWidget *>{ui.txtQuantity, ui.txtCouponValue, ui.cmdSave, ui.cmdNew, ui.grdCurrentShoppingList})
        control->setEnabled(lines);
    if (!lines)
        ui.cmdPrint->setEnabled(false);
    Window::Activate();
}

void frmCurrentShoppingList::Deactivate()
{
    Disable();
}

/// What a list without lines, and a window that is not the active one, does not offer. Activate enables what of it can
/// be used; the fields that only show stay as they are then.
void frmCurrentShoppingList::Disable()
{
    for (QWidget *control : QList<QWidget *>{ui.txtItem, ui.txtUnit, ui.txtStore, ui.txtQuantity, ui.txtCouponValue,
                                             ui.txtUnitPrice, ui.cmdSave, ui.cmdNew, ui.grdCurrentShoppingList})
        control->setEnabled(false);
    OfferLine(false);
}

void frmCurrentShoppingList::Unload()
{
    if (!State.GuidedSetupActive)
        return;
    // Step 3 of the shopping route is its last one.
    if (State.GuidedSetupRoute == 0 && State.GuidedSetupStep == 3) {
        State.GuidedSetupActive = false;
        State.GuidedSetupStep = 0;
        TheWindows.Unload(WindowName::frmGettingStarted);
    } else {
        TheWindows.Show(WindowName::frmGettingStarted);
    }
}

/// Lines that cannot be added up are shown all the same, without what they come to, and then the error is raised.
void frmCurrentShoppingList::FillCurrentShoppingGrid()
{
    std::optional<RuntimeError::Code> failure;
    ResumeNext(PriceCurrentList, [&](const RuntimeError &error) { failure = error.Number; });
    QList<QStringList> rows;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        rows += CurrentListRow(State.CurrentShoppingList(i));
        if (failure)
            rows.last().last().clear();
    }
    Grid &grid = *ui.grdCurrentShoppingList;
    grid.SetColumns(GridColumns(), RowsBeside);
    grid.AddRows(rows, 1);
    if (State.NumberOfCurrentItems != 0)
        ui.cmdPrint->setEnabled(!failure); // what cannot be added up is not printed
    ui.lblTotalGroceryBill->setText(failure ? QString() : FormatCurrency(Shopping.TotalGroceryBill));
    if (failure)
        RaiseError(*failure);
}

void frmCurrentShoppingList::grdCurrentShoppingList_Click()
{
    if (!SelectCurrentItem(ui.grdCurrentShoppingList->CurrentRow()))
        return; // the empty row: the fields and buttons stay as they are
    const CurrentItemRecord &line = State.CurrentShoppingList(Shopping.CurrentItemIndex);
    ui.txtItem->setText(line.Item);
    ui.txtUnit->setText(line.Unit);
    ui.txtStore->setText(line.Store);
    ui.txtUnitPrice->setText(FormatCurrency(line.UnitPrice));
    ui.txtCouponValue->setText(FormatCurrency(line.CouponValue));
    ui.txtQuantity->setText(ShownText(line.Quantity));
    ui.txtTaxCode->setText(line.Taxable ? u"Y"_s : u"N"_s);
    OfferLine(true);
}

/// No line is to be changed or deleted. The focus goes to the lines first, or the disabled button would hand it on to
/// New, where the next press of Space would end the list.
void frmCurrentShoppingList::LeaveLine()
{
    FocusOn(ui.grdCurrentShoppingList);
    OfferLine(false);
}

/// The fields may show a line that is selected no more; the frame's title tells it from one that is.
void frmCurrentShoppingList::OfferLine(bool selected)
{
    ui.cmdChange->setEnabled(selected);
    ui.cmdDelete->setEnabled(selected);
    ui.fraLine->setTitle(selected ? u"Selected Item"_s : u"No Item Selected"_s);
}

void frmCurrentShoppingList::cmdChange_Click()
{
    if (!Accepts(Rules))
        return;
    const int row = Shopping.CurrentItemIndex;
    // Where it cannot be saved, the window stays as it is, so that the user can try again.
    if (!ChangeLineAndSave({.Item = ui.txtItem->text(),
                            .Unit = ui.txtUnit->text(),
                            .UnitPrice = ui.txtUnitPrice->text(),
                            .Store = ui.txtStore->text(),
                            .Quantity = ui.txtQuantity->text(),
                            .TaxCode = ui.txtTaxCode->text(),
                            .CouponValue = ui.txtCouponValue->text()}))
        return;
    LeaveLine();
    FillCurrentShoppingGrid();
    ui.grdCurrentShoppingList->MarkRow(row);
    TheWindows.Touch(WindowName::frmMasterShoppingList); // its shelf is filled, seen or not
    Q_EMIT TheShoppingDoors.ShelfChanged();
}

void frmCurrentShoppingList::cmdDelete_Click()
{
    const int row = Shopping.CurrentItemIndex;
    if (!DeleteLineAndSave()) // likewise
        return;
    LeaveLine();
    for (QLineEdit *field : {ui.txtItem, ui.txtUnit, ui.txtStore, ui.txtQuantity, ui.txtTaxCode})
        field->clear();
    ui.txtUnitPrice->setText(FormatCurrency({}));
    ui.txtCouponValue->setText(FormatCurrency({}));
    // Last, as the lines that are left may not be priced. The keys go on with the line that has moved up.
    const auto goOn =
        qScopeGuard([&] { ui.grdCurrentShoppingList->MarkRow(qMin<int>(row, State.NumberOfCurrentItems)); });
    FillCurrentShoppingGrid();
}

void frmCurrentShoppingList::cmdNew_Click()
{
    // Esc is no answer: as a No it would end the list.
    const Answer answer =
        TheDesk.ShowMessage({.Text = u"If you have not already done so, would you like to save the current list?"_s,
                             .Title = AppTitle,
                             .TheIcon = Icon::Question,
                             .TheButtons = Buttons::YesNo,
                             .MustBeAnswered = true});
    bool saved = true;
    if (answer == Answer::Yes) {
        saved = false;
        Trap([&] { saved = cmdSave_Click(); });
    }
    if (!saved)
        return; // the user was told why, and the list is still here
    ClearCurrentList();
    State.CurrentStoreFile = Untitled;
    SaveCurrentShoppingList();
    WindowField::StoreFile().setText(State.CurrentStoreFile);
    setWindowTitle(TitlePrefix + State.CurrentStoreFile.toUpper());
    FillCurrentShoppingGrid();
    Disable();
}

bool frmCurrentShoppingList::cmdSave_Click()
{
    AskForName();
    WindowField::StoreFile().setText(State.CurrentStoreFile);
    Q_EMIT TheShoppingDoors.StoreFileNamed();
    const bool saved = SaveCurrentShoppingList();
    setWindowTitle(State.CurrentStoreFile); // bare until the next activation
    return saved;
}

/// Whether the user wants to replace another list of that name, which the file dialog does not ask: the list goes to
/// the stores, whatever folder was chosen, and a name in other letters' case is the same there.
bool frmCurrentShoppingList::MayReplace(const QString &name) const
{
    const auto stored = [](const QString &file) { return QFileInfo(ExistingPath(State.StoresDirectory + file)); };
    const QFileInfo list = stored(name);
    return !list.exists() || list.canonicalFilePath() == stored(State.CurrentStoreFile).canonicalFilePath() ||
           ShowMessage(u"There is a list "_s + list.fileName() + u" already. Would you like to replace it?"_s,
                       u"Save Shopping List"_s, Icon::Question, Buttons::YesNo) == Answer::Yes;
}

/// Asks until the name will do. A cancelled dialog leaves the name alone, so that a list without one has no other way
/// out than a name.
void frmCurrentShoppingList::AskForName()
{
    static const QRegularExpression separators(u"[\\\\/]"_s);
    for (;;) {
        State.CurrentStoreFile = State.CurrentStoreFile.section(separators, -1);
        const FileQuestion dlgSaveShoppingList{FileQuestion::Save, u"Store List Files (*.lst)|*.lst"_s,
                                               State.StoresDirectory,
                                               IsUntitled(State.CurrentStoreFile) ? QString() : State.CurrentStoreFile};
        const QString name = WithEnding(TheDesk.AskFile(dlgSaveShoppingList).section(separators, -1));
        if (!AcceptsListName(name, u"Save Shopping List"_s))
            continue;
        if (!name.isEmpty() && !IsUntitled(name) && !MayReplace(name))
            continue;
        if (!name.isEmpty())
            State.CurrentStoreFile = name;
        if (!IsUntitled(State.CurrentStoreFile))
            return;
        ShowMessage(
            u"The name UNTITLED.LST cannot be used for your new list file because Tallymere uses it for new list "
            u"templates"_s,
            u"Save Shopping List"_s, Icon::Warning);
    }
}

// The current shopping list's window: what it shows, its edits, its names and files, and what it tells the others.
#include "ErrorOf.h"
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/ShoppingFiles.h"
#include "foundation/Tutor.h"
#include "platform/values/Locale.h"
#include "shopping/CurrentList.h"
#include "shopping/ShoppingDoors.h"
#include "shopping/ShoppingState.h"

#include <QGroupBox>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmCurrentShoppingList"_s;
const QString GridName = u"grdCurrentShoppingList"_s;
const QString Main = u"frmMain"_s;
const QString Master = u"frmMasterShoppingList"_s;
const QString Started = u"frmGettingStarted"_s;
const QString Settings = u"frmEnvironmentSettings"_s;
const QString ListFile = u"stores\\weekly.lst"_s;
const QString UntitledFile = u"stores\\untitled.lst"_s;
const QString MasterFile = u"mastshop.txt"_s;

const QStringList Fields{u"txtItem"_s,     u"txtUnit"_s,    u"txtUnitPrice"_s,  u"txtStore"_s,
                         u"txtQuantity"_s, u"txtTaxCode"_s, u"txtCouponValue"_s};
/// What the window offers while it has lines.
const QStringList Offered{u"txtQuantity"_s, u"txtCouponValue"_s, u"cmdSave"_s, u"cmdNew"_s, u"cmdPrint"_s, GridName};
/// What it takes back when the user leaves it.
const QStringList TakenBack{u"txtItem"_s,        u"txtUnit"_s,      u"txtStore"_s, u"txtQuantity"_s,
                            u"txtCouponValue"_s, u"txtUnitPrice"_s, u"cmdSave"_s,  u"cmdChange"_s,
                            u"cmdDelete"_s,      u"cmdNew"_s,       GridName};

const Message UnknownError{
    u"An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    "page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    "on the bottom right of the main window."_s,
    u"Current Shopping List"_s, Icon::Warning};
const Message SaveFirst{.Text = u"If you have not already done so, would you like to save the current list?"_s,
                        .Title = AppTitle,
                        .TheIcon = Icon::Question,
                        .TheButtons = Buttons::YesNo,
                        .MustBeAnswered = true};
const Message NotUntitled{u"The name UNTITLED.LST cannot be used for your new list file because Tallymere uses it for "
                          "new list templates"_s,
                          u"Save Shopping List"_s, Icon::Warning};

const Message ReplaceParty{u"There is a list party.lst already. Would you like to replace it?"_s,
                           u"Save Shopping List"_s, Icon::Question, Buttons::YesNo};

Message Told(const char *text, const QString &title)
{
    return {QString::fromLatin1(text), title, Icon::Stop};
}

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

CurrentItemRecord Line(const QString &item, qint64 price, float quantity = 1, bool taxable = false, qint64 coupon = 0)
{
    return {item, u"each"_s, Count(price), u"Corner"_s, quantity, taxable, Count(coupon), {}};
}

class Toy : public Form
{
};

/// The catalogue's window, which fills its shelf when it is told to.
class MasterToy : public Form
{
public:
    MasterToy()
    {
        connect(&TheShoppingDoors, &ShoppingDoors::ShelfChanged, this, [] { ++Fillings; });
    }
    void Load() override { Fillings = 0; }
    inline static int Fillings = 0;
};

/// A household that lies in its files and in memory, open on weekly.lst, with toys for the windows around.
class ShoppingDesk : public GuiDesk
{
public:
    explicit ShoppingDesk(const std::vector<CurrentItemRecord> &lines = {}, TestLine where = TestLine::current())
        : GuiDesk(where)
    {
        TheWindows.Register(Master, [] { return new MasterToy; });
        TheWindows.Register(Started, [] { return new Toy; });
        TheWindows.Register(u"frmElsewhere"_s, [] { return new Toy; });
        State.ApplicationPath = Folder();
        State.StoresDirectory = Folder() + u"\\stores\\"_s;
        State.SalesTax = 0.06F;
        State.CurrentStoreFile = u"weekly.lst"_s;
        State.NumberOfCurrentItems = qint16(lines.size());
        State.CurrentShoppingList.Redim(int(lines.size()));
        std::copy(lines.begin(), lines.end(), State.CurrentShoppingList.begin());
        for (const CurrentItemRecord &line : lines)
            m_catalogue.push_back({line.Item, line.Unit, line.UnitPrice, line.Store, line.Taxable});
        State.NumberOfMasterItems = qint16(lines.size());
        State.MasterShoppingList.Redim(int(lines.size()));
        std::copy(m_catalogue.begin(), m_catalogue.end(), State.MasterShoppingList.begin());
        SaveCurrentShoppingList();
        SaveMasterShoppingList();
        TakeFiles();
    }

private:
    std::vector<MasterItemRecord> m_catalogue;
};

const std::vector<CurrentItemRecord> Lines{Line(u"Bread"_s, 24900), Line(u"Milk"_s, 30000, 2, true, 2500),
                                           Line(u"Tea"_s, 12345678, 2.5F)};
const QStringList Rows{u"Bread | each | $2.49 | Corner | 1.00 | N | $0.00 | $2.49"_s,
                       u"Milk | each | $3.00 | Corner | 2.00 | Y | $0.25 | $5.93"_s,
                       u"Tea | each | $1,234.57 | Corner | 2.50 | N | $0.00 | $3,086.42"_s};

Grid &TheGrid()
{
    return Find<Grid>(Window, GridName);
}

QStringList ShownRows()
{
    return GridRows(Window, GridName, 1);
}

QString TitleOf()
{
    return TheWindows.Loaded(Window)->windowTitle();
}

/// A real click of the mouse on a row; 0 is the heading.
void ClickGridRow(int row)
{
    Grid &grid = TheGrid();
    if (row == 0) {
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 5));
    } else {
        const QModelIndex cell = grid.model()->index(row - 1, 1);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, grid.visualRect(cell).center());
    }
    Settle();
}

QStringList FieldTexts()
{
    QStringList texts;
    for (const QString &field : Fields)
        texts += TextOf(Window, field);
    return texts;
}

/// Those of the controls that are enabled.
QStringList EnabledOf(const QStringList &controls)
{
    QStringList enabled;
    for (const QString &control : controls)
        if (IsEnabled(Window, control))
            enabled += control;
    return enabled;
}

QStringList Items()
{
    QStringList items;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        items += State.CurrentShoppingList(i).Item;
    return items;
}

/// Quantity and coupon of the selected line, typed.
void TypeLine(const QString &quantity, const QString &coupon)
{
    Type(Window, u"txtQuantity"_s, quantity);
    Type(Window, u"txtCouponValue"_s, coupon);
}

void LeaveAndReturn()
{
    Show(u"frmElsewhere"_s);
    Show(Window);
}

FileQuestion SaveQuestion(const RecordingDesk &desk, const QString &name)
{
    return {FileQuestion::Save, u"Store List Files (*.lst)|*.lst"_s, desk.Folder() + u"\\stores\\"_s, name};
}

constexpr int Arrival = 250; // milliseconds; a press that comes earlier is the one that has brought the user back

void MakeReadOnly(const RecordingDesk &desk, const QString &name)
{
    QVERIFY(QFile::setPermissions(desk.Path(name), QFile::ReadOwner | QFile::ReadUser));
}

} // namespace

class gui_frmCurrentShoppingList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }

    // ------------------------------------------------------------ what is there

    void TheWindow()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        QCOMPARE(TitleOf(), u"Current Shopping List - weekly.lst"_s);
        const QList<std::pair<QString, QString>> captions{{u"cmdNew"_s, u"&New"_s},
                                                          {u"cmdSave"_s, u"&Save"_s},
                                                          {u"cmdChange"_s, u"&Change"_s},
                                                          {u"cmdDelete"_s, u"&Delete"_s},
                                                          {u"cmdMasterList"_s, u"&Master List"_s},
                                                          {u"cmdPrint"_s, u"&Print"_s},
                                                          {u"cmdQuit"_s, u"&Quit"_s}};
        for (const auto &[button, caption] : captions)
            QCOMPARE(TextOf(Window, button), caption);
        QCOMPARE(Find(Window, u"txtQuantity"_s).toolTip(), u"Enter the unit quantity"_s);
        QCOMPARE(Find(Window, u"txtCouponValue"_s).toolTip(),
                 u"Enter the dollar/cents value of any coupon you wish to apply to the purchase of the item"_s);
        for (const QString &field : Fields)
            QCOMPARE(Find<QLineEdit>(Window, field).isReadOnly(),
                     field != u"txtQuantity"_s && field != u"txtCouponValue"_s);
    }

    void TheGridsColumns()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        struct Column {
            QString Heading;
            int Twips;
            bool Right;
        };
        const QList<Column> columns{{u"Item"_s, 3000, false},      {u"Unit"_s, 1200, false},
                                    {u"Unit Price"_s, 1000, true}, {u"Store"_s, 1200, false},
                                    {u"Quantity"_s, 850, true},    {u"Tax"_s, 420, false},
                                    {u"Coupon"_s, 800, true},      {u"Full Price"_s, 1000, true}};
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Columns(), columns.size());
        for (int column = 0; column < columns.size(); ++column) {
            QCOMPARE(grid.Text(0, column), columns[column].Heading);
            QCOMPARE(grid.ColumnWidth(column), columns[column].Twips);
            QCOMPARE(grid.RightAligned(column), columns[column].Right);
            QVERIFY(grid.Bold(0, column));
            QVERIFY(!grid.Bold(1, column));
        }
    }

    void TheLinesAndTheirTotal()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        QCOMPARE(ShownRows(), Rows);
        QCOMPARE(TheGrid().Rows(), 5); // the heading, and one empty row below the last line
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$3,094.84"_s); // of exact amounts, not of the shown ones
        QCOMPARE(State.CurrentShoppingList(2).FullPrice, Count(59300));
        QCOMPARE(Shopping.TotalGroceryBill, Count(24900 + 59300 + 30864195));
    }

    void ACouponAboveThePriceLowersTheTotal()
    {
        ShoppingDesk desk({Line(u"Milk"_s, 30000, 1, false, 50000), Line(u"Tea"_s, 30000)});
        Show(Window);
        QCOMPARE(ShownRows().first(), u"Milk | each | $3.00 | Corner | 1.00 | N | $5.00 | ($2.00)"_s);
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$1.00"_s);
    }

    void Names_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("readBack");
        const auto row = [](const char *what, const QString &name, const QString &readBack) {
            QTest::newRow(what) << name << readBack;
        };
        row("a comma", u"Milk, fresh"_s, u"Milk, fresh"_s);
        row("letters outside ASCII", u"Käse 牛乳"_s, u"Käse 牛乳"_s);
        row("a tab stays in its cell", u"Milk\tfresh"_s, u"Milk\tfresh"_s);
        row("an ampersand", u"Fish & chips"_s, u"Fish & chips"_s);
        row("a quote ends a name in the file", u"Milk \"fresh\""_s, u"Milk "_s);
    }
    void Names()
    {
        QFETCH(QString, name);
        QFETCH(QString, readBack);
        ShoppingDesk desk({Line(name, 30000), Line(u"Tea"_s, 10000)});
        Show(Window);
        QCOMPARE(TheGrid().Text(1, 0), name);
        QCOMPARE(TheGrid().Text(1, 1), u"each"_s);
        ClickGridRow(1);
        QCOMPARE(TextOf(Window, u"txtItem"_s), name);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(TheGrid().Text(1, 0), readBack);
        QCOMPARE(TheGrid().Text(1, 7), u"$3.00"_s);
        QCOMPARE(State.MasterShoppingList(1).Item, readBack);
        QCOMPARE(Items().last(), u"Tea"_s);
        QCOMPARE(desk.TakeFiles(), (QStringList{MasterFile, u"stores/weekly.lst"_s}));
    }

    void WithLinesTheWindowOffersAll()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        QCOMPARE(EnabledOf(Offered), Offered);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s)); // nothing is selected yet
        QVERIFY(!IsEnabled(Window, u"cmdDelete"_s));
        QCOMPARE(FocusOf(Window), GridName);
    }

    void WithoutLinesItOffersOnlyTheWaysOn()
    {
        ShoppingDesk desk;
        Show(Window);
        QCOMPARE(EnabledOf(Offered), QStringList());
        QCOMPARE(ShownRows(), QStringList());
        QCOMPARE(TheGrid().Rows(), 2);
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$0.00"_s);
        QVERIFY(IsEnabled(Window, u"cmdMasterList"_s));
        QVERIFY(IsEnabled(Window, u"cmdQuit"_s));
        QCOMPARE(FocusOf(Window), u"cmdMasterList"_s);
    }

    void TheTabKeyGoesFromFieldToButton()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        QStringList order{FocusOf(Window)};
        for (int tab = 0; tab < 9; ++tab) {
            QTest::keyClick(TheWindows.Loaded(Window)->FocusControl(), Qt::Key_Tab);
            order += FocusOf(Window);
        }
        QCOMPARE(order, (QStringList{GridName, u"txtQuantity"_s, u"txtCouponValue"_s, u"cmdChange"_s, u"cmdDelete"_s,
                                     u"cmdNew"_s, u"cmdSave"_s, u"cmdMasterList"_s, u"cmdPrint"_s, u"cmdQuit"_s}));
    }

    // ------------------------------------------------------------ coming and going

    void EachActivationShowsWhatHoldsNow()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        Show(u"frmElsewhere"_s);
        State.CurrentStoreFile = u"other.lst"_s;
        State.NumberOfCurrentItems = 1;
        QCOMPARE(TitleOf(), u"Current Shopping List - weekly.lst"_s); // and not before
        Show(Window);
        QCOMPARE(TitleOf(), u"Current Shopping List - other.lst"_s);
        QCOMPARE(ShownRows(), Rows.mid(0, 1));
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$2.49"_s);
        State.NumberOfCurrentItems = 0;
        LeaveAndReturn();
        QCOMPARE(EnabledOf(Offered), QStringList());
        State.NumberOfCurrentItems = 3;
        LeaveAndReturn();
        QCOMPARE(EnabledOf(Offered), Offered);
    }

    void TheTaxIsThatOfTheSettingsField()
    {
        ShoppingDesk desk(Lines);
        State.SalesTax = 0.06625F;
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblTaxCode"_s), u"Taxable 6.63%"_s);
        QVERIFY(TheWindows.Loaded(Settings)); // touched, and not shown
        QVERIFY(!IsShown(Settings));
        Find<QLineEdit>(Settings, u"txtSalesTax"_s).setText(u"7"_s);
        LeaveAndReturn();
        QCOMPARE(TextOf(Window, u"lblTaxCode"_s), u"Taxable 7%"_s);
    }

    void TheUsualTax()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblTaxCode"_s), u"Taxable 6.00%"_s);
    }

    void LeavingTakesBackWhatItOffers()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        QCOMPARE(EnabledOf(TakenBack), TakenBack);
        Show(u"frmElsewhere"_s);
        QCOMPARE(EnabledOf(TakenBack), QStringList());
        for (const QString &control : {u"txtTaxCode"_s, u"cmdPrint"_s, u"cmdMasterList"_s, u"cmdQuit"_s})
            QVERIFY(IsEnabled(Window, control));
        Show(Window);
        // The fields that only show stay grey; nothing is selected any more.
        QCOMPARE(EnabledOf(TakenBack),
                 (QStringList{u"txtQuantity"_s, u"txtCouponValue"_s, u"cmdSave"_s, u"cmdNew"_s, GridName}));
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Bread"_s);
        QTest::qWait(Arrival);
        ClickGridRow(2);
        QVERIFY(IsEnabled(Window, u"cmdChange"_s));
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
    }

    void TheUserComesBackToTheLines()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        Type(Window, u"txtQuantity"_s, u"4"_s);
        LeaveAndReturn();
        QCOMPARE(FocusOf(Window), GridName);
        QTest::keyClick(&TheGrid(), Qt::Key_Down);
        QTest::keyClick(&TheGrid(), Qt::Key_Return);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
        State.NumberOfCurrentItems = 0;
        LeaveAndReturn();
        QCOMPARE(FocusOf(Window), u"cmdMasterList"_s); // there is no line
    }

    void ThePressThatBringsTheUserBackSelectsNothing()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        LeaveAndReturn();
        const QModelIndex cell = TheGrid().model()->index(1, 1); // at once, without waiting
        QTest::mouseClick(TheGrid().viewport(), Qt::LeftButton, Qt::NoModifier, TheGrid().visualRect(cell).center());
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Bread"_s);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QTest::qWait(Arrival);
        ClickGridRow(2);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
    }

    void OthersHaveTheGridFilled()
    {
        ShoppingDesk desk(Lines);
        TheWindows.Touch(Window); // not shown yet
        Q_EMIT TheShoppingDoors.CurrentListChanged();
        QCOMPARE(ShownRows(), Rows);
        Show(Window);
        State.CurrentShoppingList(1).Quantity = 4;
        Q_EMIT TheShoppingDoors.CurrentListChanged();
        QCOMPARE(ShownRows().first(), u"Bread | each | $2.49 | Corner | 4.00 | N | $0.00 | $9.96"_s);
        QCOMPARE(TheGrid().Rows(), 5);
    }

    void TheGuidedRouteHidesItsWindow()
    {
        ShoppingDesk desk(Lines);
        Show(Started);
        State.GuidedSetupActive = true;
        Show(Window);
        QVERIFY(!IsShown(Started));
        QVERIFY(TheWindows.Loaded(Started));
    }

    void WithoutARouteItsWindowStays()
    {
        ShoppingDesk desk(Lines);
        Show(Started);
        Show(Window);
        QVERIFY(IsShown(Started));
        Click(Window, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(IsShown(Started));
    }

    void TheEndOfTheRoute_data()
    {
        QTest::addColumn<int>("route");
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("ends");
        QTest::newRow("the last step of the shopping route") << 0 << 3 << true;
        QTest::newRow("a step before") << 0 << 2 << false;
        QTest::newRow("another route") << 1 << 3 << false;
    }
    void TheEndOfTheRoute()
    {
        QFETCH(int, route);
        QFETCH(int, step);
        QFETCH(bool, ends);
        ShoppingDesk desk(Lines);
        Show(u"frmElsewhere"_s);
        State.GuidedSetupActive = true;
        State.GuidedSetupRoute = route;
        State.GuidedSetupStep = qint16(step);
        Show(Window);
        QVERIFY(!IsShown(Started));
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.GuidedSetupActive, !ends);
        QCOMPARE(int(State.GuidedSetupStep), ends ? 0 : step);
        QCOMPARE(bool(TheWindows.Loaded(Started)), !ends);
        QCOMPARE(IsShown(Started), !ends);
    }

    // ------------------------------------------------------------ selecting a line

    void AClickBringsALineIntoTheFields_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("1") << 1
                           << QStringList{u"Bread"_s, u"each"_s, u"$2.49"_s, u"Corner"_s, u"1"_s, u"N"_s, u"$0.00"_s};
        QTest::newRow("2") << 2
                           << QStringList{u"Milk"_s, u"each"_s, u"$3.00"_s, u"Corner"_s, u"2"_s, u"Y"_s, u"$0.25"_s};
        QTest::newRow("3") << 3 << QStringList{u"Tea"_s, u"each"_s, u"$1,234.57"_s, u"Corner"_s,
                                               u"2.5"_s, u"N"_s,    u"$0.00"_s};
    }
    void AClickBringsALineIntoTheFields()
    {
        QFETCH(int, row);
        QFETCH(QStringList, texts);
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(row);
        QCOMPARE(FieldTexts(), texts);
        QCOMPARE(int(Shopping.CurrentItemIndex), row);
        QCOMPARE(int(Shopping.MasterItemIndex), row);
        QVERIFY(IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(IsEnabled(Window, u"cmdDelete"_s));
        QCOMPARE(TheGrid().CurrentRow(), row);
    }

    void EnterOnARowIsAClick()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        QTest::keyClick(&TheGrid(), Qt::Key_Return); // the mark was not moved yet
        QCOMPARE(TextOf(Window, u"txtItem"_s), QString());
        QTest::keyClick(&TheGrid(), Qt::Key_Down);
        QCOMPARE(TextOf(Window, u"txtItem"_s), QString());
        QTest::keyClick(&TheGrid(), Qt::Key_Return);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
    }

    void TheEmptyRowSelectsNothing()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(4);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(!IsEnabled(Window, u"cmdDelete"_s));
        ClickGridRow(2);
        const QStringList texts = FieldTexts();
        ClickGridRow(4);
        QCOMPARE(int(Shopping.CurrentItemIndex), 4);
        QCOMPARE(FieldTexts(), texts);
        QVERIFY(IsEnabled(Window, u"cmdChange"_s)); // as it was
        QVERIFY(IsEnabled(Window, u"cmdDelete"_s));
    }

    void TheEmptyRowIsNeitherChangedNorDeleted()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        ClickGridRow(4);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Items(), (QStringList{u"Bread"_s, u"Milk"_s, u"Tea"_s}));
        QCOMPARE(ShownRows(), Rows);
        QCOMPARE(desk.TakeFiles(), QStringList());
    }

    void TheHeadingIsNoLine()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        const QStringList texts = FieldTexts();
        ClickGridRow(0);
        QCOMPARE(FieldTexts(), texts);
        QCOMPARE(int(Shopping.CurrentItemIndex), 2);
        QVERIFY(IsEnabled(Window, u"cmdChange"_s));
        Type(Window, u"txtQuantity"_s, u"4"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(State.CurrentShoppingList(2).Quantity, 4.0F); // the line of before
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ the fields

    void EnterGoesRound()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        static_cast<Form &>(*TheWindows.Loaded(Window)).FocusOn(&Find(Window, u"txtQuantity"_s));
        PressEnter(Window, u"txtQuantity"_s);
        QCOMPARE(FocusOf(Window), u"txtCouponValue"_s);
        QCOMPARE(Find<QLineEdit>(Window, u"txtCouponValue"_s).selectedText(), u"$0.25"_s);
        PressEnter(Window, u"txtCouponValue"_s);
        QCOMPARE(FocusOf(Window), u"txtQuantity"_s);
        QCOMPARE(Find<QLineEdit>(Window, u"txtQuantity"_s).selectedText(), u"2"_s);
        QCOMPARE(desk.TakeFiles(), QStringList()); // and presses no button
    }

    void TheFieldsThatOnlyShowKeepTheirForm()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        const QList<std::array<QString, 3>> rows{{u"txtTaxCode"_s, u"y"_s, u"Y"_s},
                                                 {u"txtUnitPrice"_s, u"1234.5"_s, u"$1,234.50"_s},
                                                 {u"txtUnitPrice"_s, u"abc"_s, u"abc"_s}};
        for (const auto &[field, text, left] : rows) {
            auto &edit = Find<QLineEdit>(Window, field);
            QTest::mouseClick(&edit, Qt::LeftButton);
            QCOMPARE(FocusOf(Window), field);
            edit.setText(text);
            QTest::keyClicks(&edit, u"7"_s); // nobody types into it
            QCOMPARE(edit.text(), text);
            QTest::mouseClick(&Find(Window, u"txtQuantity"_s), Qt::LeftButton);
            QCOMPARE(edit.text(), left);
        }
    }

    // ------------------------------------------------------------ Change

    void AnEntryIsRefused_data()
    {
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("coupon");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        const QString quantity = u"Quantity does not contain a valid numeric amount"_s;
        const QString coupon = u"Coupon Value does not contain a valid numeric amount"_s;
        QTest::newRow("a quantity that is no number") << u"two"_s << u"0"_s << quantity << u"txtQuantity"_s;
        QTest::newRow("no quantity") << u""_s << u"0"_s << quantity << u"txtQuantity"_s;
        QTest::newRow("a coupon that is no number") << u"2"_s << u"none"_s << coupon << u"txtCouponValue"_s;
        QTest::newRow("no coupon") << u"2"_s << u""_s << coupon << u"txtCouponValue"_s;
        QTest::newRow("the quantity first") << u"two"_s << u"none"_s << quantity << u"txtQuantity"_s;
        QTest::newRow("a per cent is no number") << u"5%"_s << u"0"_s << quantity << u"txtQuantity"_s;
    }
    void AnEntryIsRefused()
    {
        QFETCH(QString, quantity);
        QFETCH(QString, coupon);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        TypeLine(quantity, coupon);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeMessage(), (Message{text, u"Current Shopping List"_s, Icon::Warning}));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(ShownRows(), Rows);
        QVERIFY(IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(IsEnabled(Window, u"cmdDelete"_s));
        QCOMPARE(desk.TakeFiles(), QStringList());
    }

    void AChangeGoesToListAndCatalogue()
    {
        ShoppingDesk desk({Line(u"Bread"_s, 24900), Line(u"Milk"_s, 30000, 2, true, 2500)});
        Show(Window);
        ClickGridRow(2);
        TypeLine(u"2.5"_s, u"$1.00"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(ShownRows(), (QStringList{Rows[0], u"Milk | each | $3.00 | Corner | 2.50 | Y | $1.00 | $6.68"_s}));
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$9.17"_s);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(!IsEnabled(Window, u"cmdDelete"_s));
        QCOMPARE(desk.TakeFiles(), (QStringList{MasterFile, u"stores/weekly.lst"_s}));
        // Saved before the tax was counted in: 3.00 times 2.5, less the coupon.
        QCOMPARE(desk.ReadFile(ListFile),
                 QByteArray("2\r\n\"Bread\"\r\n\"each\"\r\n2.49\r\n\"Corner\"\r\n1\r\n#FALSE#\r\n0\r\n2.49\r\n"
                            "\"Milk\"\r\n\"each\"\r\n3\r\n\"Corner\"\r\n2.5\r\n#TRUE#\r\n1\r\n6.5\r\n"));
        QCOMPARE(desk.ReadFile(MasterFile), QByteArray("2\r\n\"Bread\"\r\n\"each\"\r\n2.49\r\n\"Corner\"\r\n#FALSE#\r\n"
                                                       "\"Milk\"\r\n\"each\"\r\n3\r\n\"Corner\"\r\n#TRUE#\r\n"));
        QVERIFY(TheWindows.Loaded(Master)); // its shelf was filled, unseen
        QVERIFY(!IsShown(Master));
        QCOMPARE(MasterToy::Fillings, 1);
    }

    void AQuantityIsTaken_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a broken one") << u"2.5"_s << u"2.50"_s;
        QTest::newRow("none") << u"0"_s << u"0.00"_s;
        QTest::newRow("a negative one") << u"-1"_s << u"-1.00"_s;
        QTest::newRow("one with separators") << u"1,250"_s << u"1,250.00"_s;
        QTest::newRow("an exponent") << u"1e3"_s << u"1,000.00"_s;
        QTest::newRow("an amount") << u"$3"_s << u"3.00"_s;
    }
    void AQuantityIsTaken()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        ShoppingDesk desk({Line(u"Milk"_s, 30000)});
        Show(Window);
        ClickGridRow(1);
        Type(Window, u"txtQuantity"_s, text);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(TheGrid().Text(1, 4), shown);
        QCOMPARE(desk.TakeFiles(), (QStringList{MasterFile, u"stores/weekly.lst"_s}));
    }

    void TheTaxCodeDecides_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<bool>("taxable");
        QTest::newRow("N") << u"N"_s << false;
        QTest::newRow("Y") << u"Y"_s << true;
        QTest::newRow("a small n") << u"n"_s << true;
        QTest::newRow("anything else") << u"?"_s << true;
    }
    void TheTaxCodeDecides()
    {
        QFETCH(QString, code);
        QFETCH(bool, taxable);
        ShoppingDesk desk({Line(u"Milk"_s, 30000, 1, !taxable)});
        Show(Window);
        ClickGridRow(1);
        Find<QLineEdit>(Window, u"txtTaxCode"_s).setText(code);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(TheGrid().Text(1, 5), taxable ? u"Y"_s : u"N"_s);
        QCOMPARE(State.MasterShoppingList(1).Taxable, taxable); // the catalogue follows
        desk.TakeFiles();
    }

    void AChangedLineMayMove()
    {
        ShoppingDesk desk({Line(u"tea"_s, 10000), Line(u"Bread"_s, 24900), Line(u"milk"_s, 30000)});
        Show(Window);
        ClickGridRow(1);
        Type(Window, u"txtQuantity"_s, u"3"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(Items(), (QStringList{u"Bread"_s, u"milk"_s, u"tea"_s}));
        QCOMPARE(ShownRows().last(), u"tea | each | $1.00 | Corner | 3.00 | N | $0.00 | $3.00"_s);
        QCOMPARE(State.MasterShoppingList(1).Item, u"tea"_s); // the catalogue is not sorted
        desk.TakeFiles();
    }

    void ALineWithoutItsRecordLeavesTheCatalogueAlone()
    {
        ShoppingDesk desk(Lines);
        State.MasterShoppingList(2).Store = u"Market"_s; // Milk has moved since
        const auto catalogue = State.MasterShoppingList;
        Show(Window);
        ClickGridRow(1);
        ClickGridRow(2);
        QCOMPARE(int(Shopping.MasterItemIndex), 1); // which is Bread
        Type(Window, u"txtQuantity"_s, u"4"_s);
        Click(Window, u"cmdChange"_s);
        QVERIFY(State.MasterShoppingList == catalogue);
        QCOMPARE(State.CurrentShoppingList(2).Quantity, 4.0F);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s});
    }

    void ARecordThatHasMovedIsNotReplaced()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        Shopping.MasterItemIndex = 3; // a delete in the catalogue's window, say
        const auto catalogue = State.MasterShoppingList;
        Click(Window, u"cmdChange"_s);
        QVERIFY(State.MasterShoppingList == catalogue);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s});
    }

    void TheStoreTellsTheRecordsApart()
    {
        ShoppingDesk desk(Lines);
        State.MasterShoppingList(2) = State.MasterShoppingList(1); // Bread again, and no record of the Milk
        State.MasterShoppingList(2).Store = u"Market"_s;
        State.CurrentShoppingList(2) = State.CurrentShoppingList(1);
        State.CurrentShoppingList(2).Store = u"Valley"_s;
        const auto catalogue = State.MasterShoppingList;
        Show(Window);
        ClickGridRow(1);
        ClickGridRow(2);
        QCOMPARE(int(Shopping.MasterItemIndex), 1); // Bread of another store
        Type(Window, u"txtQuantity"_s, u"4"_s);
        Click(Window, u"cmdChange"_s);
        QVERIFY(State.MasterShoppingList == catalogue);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s});
    }

    void ARecordOfAnEmptiedCatalogueIsNone()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        State.NumberOfMasterItems = 0; // the records of before stay in memory
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s});
    }

    void TheKeysGoOnFromTheChangedLine()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        Click(Window, u"cmdChange"_s);
        QTest::keyClick(&TheGrid(), Qt::Key_Return);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s)); // the mark alone is no choice
        QTest::keyClick(&TheGrid(), Qt::Key_Down);
        QTest::keyClick(&TheGrid(), Qt::Key_Return);
        QCOMPARE(int(Shopping.CurrentItemIndex), 3);
        desk.TakeFiles();
    }

    void TheKeysGoOnAfterADelete_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("next");
        QTest::newRow("down from the one that has moved up") << 3 << int(Qt::Key_Down) << 4;
        QTest::newRow("up from it") << 3 << int(Qt::Key_Up) << 2;
        QTest::newRow("up from the last one that is left") << 6 << int(Qt::Key_Up) << 4;
    }
    void TheKeysGoOnAfterADelete()
    {
        QFETCH(int, line);
        QFETCH(int, key);
        QFETCH(int, next);
        ShoppingDesk desk({Line(u"a"_s, 10000), Line(u"b"_s, 10000), Line(u"c"_s, 10000), Line(u"d"_s, 10000),
                           Line(u"e"_s, 10000), Line(u"f"_s, 10000)});
        Show(Window);
        ClickGridRow(line);
        Click(Window, u"cmdDelete"_s);
        Settle();
        QTest::keyClick(&TheGrid(), Qt::Key(key));
        QTest::keyClick(&TheGrid(), Qt::Key_Return);
        QCOMPARE(int(Shopping.CurrentItemIndex), next);
        desk.TakeFiles();
    }

    void WithoutAnyRecordTheChangeIsSaved()
    {
        ShoppingDesk desk(Lines);
        State.NumberOfMasterItems = 0;
        State.MasterShoppingList.Redim(0);
        Show(Window);
        ClickGridRow(1);
        Type(Window, u"txtQuantity"_s, u"3"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(State.CurrentShoppingList(1).Quantity, 3.0F);
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s});
    }

    void AnEntryBeyondItsRangeChangesNothing_data()
    {
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("coupon");
        QTest::newRow("a quantity beyond a single") << u"1e39"_s << u"0"_s;
        QTest::newRow("an amount beyond money") << u"1e30"_s << u"0"_s;
        QTest::newRow("a coupon beyond money") << u"1"_s << u"1e30"_s;
        QTest::newRow("a total beyond money") << u"1"_s << u"-922337203685400"_s;
    }
    void AnEntryBeyondItsRangeChangesNothing()
    {
        QFETCH(QString, quantity);
        QFETCH(QString, coupon);
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        TypeLine(quantity, coupon);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(State.CurrentShoppingList(1).Quantity, 1.0F);
        QCOMPARE(desk.TakeFiles(), QStringList());
        LeaveAndReturn(); // and the list is shown as before
        QCOMPARE(ShownRows(), Rows);
    }

    void WhatIsNotTouchedKeepsItsDecimals()
    {
        ShoppingDesk desk({Line(u"Milk"_s, 12345, 1.0F / 3, false, 1234)});
        Show(Window);
        ClickGridRow(1);
        Click(Window, u"cmdChange"_s);
        QVERIFY(desk.ReadFile(ListFile).contains("\r\n1.2345\r\n"));
        QVERIFY(desk.ReadFile(ListFile).contains("\r\n0.1234\r\n"));
        QVERIFY(State.CurrentShoppingList(1).Quantity == 1.0F / 3); // and not 0.3333333, as shown
        QVERIFY(desk.ReadFile(MasterFile).contains("\r\n1.2345\r\n"));
        ClickGridRow(1);
        TypeLine(u"2"_s, u"0.5"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(State.CurrentShoppingList(1).UnitPrice, Count(12345));
        QCOMPARE(State.CurrentShoppingList(1).CouponValue, Count(5000));
        QCOMPARE(State.CurrentShoppingList(1).Quantity, 2.0F);
        desk.TakeFiles();
    }

    void AmountsOfTheUsersLocaleComeBack()
    {
        ShoppingDesk desk(Lines);
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany));
        Show(Window);
        ClickGridRow(3);
        QCOMPARE(TextOf(Window, u"txtQuantity"_s), u"2,5"_s);
        Type(Window, u"txtCouponValue"_s, u"1.000,50"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(State.CurrentShoppingList(3).UnitPrice, Count(12345678)); // and not the two decimals shown
        QCOMPARE(State.CurrentShoppingList(3).Quantity, 2.5F);
        QCOMPARE(State.CurrentShoppingList(3).CouponValue, Count(10005000));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ Delete

    void ADeletedLineIsGone()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(ShownRows(), (QStringList{Rows[0], Rows[2]}));
        QCOMPARE(TheGrid().Rows(), 4);
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$3,088.91"_s);
        QCOMPARE(FieldTexts(), (QStringList{{}, {}, u"$0.00"_s, {}, {}, {}, u"$0.00"_s}));
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(!IsEnabled(Window, u"cmdDelete"_s));
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/weekly.lst"_s}); // the catalogue keeps its record
        QCOMPARE(int(State.NumberOfMasterItems), 3);
        QVERIFY(desk.ReadFile(ListFile).startsWith("2\r\n\"Bread\""));
        QVERIFY(!desk.ReadFile(ListFile).contains("Milk"));
    }

    void TheLastLineIsDeletedToo()
    {
        ShoppingDesk desk({Line(u"Milk"_s, 30000)});
        Show(Window);
        ClickGridRow(1);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(desk.ReadFile(ListFile), QByteArray("0\r\n"));
        QCOMPARE(ShownRows(), QStringList());
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$0.00"_s);
        QCOMPARE(EnabledOf(Offered), Offered); // until the next activation
        LeaveAndReturn();
        QCOMPARE(EnabledOf(Offered), QStringList());
    }

    void ChangeAndDeleteLeadBackToTheLines_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("change") << u"cmdChange"_s;
        QTest::newRow("delete") << u"cmdDelete"_s;
    }
    void ChangeAndDeleteLeadBackToTheLines()
    {
        QFETCH(QString, button);
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(2);
        static_cast<Form &>(*TheWindows.Loaded(Window)).FocusOn(&Find(Window, button));
        QTest::keyClick(&Find(Window, button), Qt::Key_Space);
        QCOMPARE(FocusOf(Window), GridName); // and not New, where Space would end the list
        desk.TakeFiles();
    }

    void TheFrameTellsThatNothingIsSelected()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        auto &frame = Find<QGroupBox>(Window, u"fraLine"_s);
        QCOMPARE(frame.title(), u"No Item Selected"_s);
        ClickGridRow(2);
        QCOMPARE(frame.title(), u"Selected Item"_s);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
        QCOMPARE(frame.title(), u"No Item Selected"_s);
        ClickGridRow(2);
        LeaveAndReturn();
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
        QCOMPARE(frame.title(), u"No Item Selected"_s);
        QTest::qWait(Arrival);
        ClickGridRow(2);
        desk.Answers = {Answer::No};
        Click(Window, u"cmdNew"_s);
        desk.TakeMessage();
        QCOMPARE(frame.title(), u"No Item Selected"_s);
        desk.TakeFiles();
    }

    void DeletingNeitherSortsNorReloads()
    {
        // A reload would end the name at its quote.
        ShoppingDesk desk({Line(u"Tea \"black\""_s, 10000), Line(u"Bread"_s, 12345), Line(u"Milk"_s, 30000)});
        Show(Window);
        ClickGridRow(3);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(Items(), (QStringList{u"Tea \"black\""_s, u"Bread"_s}));
        QCOMPARE(TheGrid().Text(1, 0), u"Tea \"black\""_s);
        desk.TakeFiles();
    }

    void ADeletionAmongLinesBeyondMoneyEndsTheSelection()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        State.CurrentShoppingList(2).CouponValue = Count(std::numeric_limits<qint64>::min());
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Items(), (QStringList{u"Milk"_s, u"Tea"_s}));
        QCOMPARE(FieldTexts(), (QStringList{{}, {}, u"$0.00"_s, {}, {}, {}, u"$0.00"_s}));
        QVERIFY(!IsEnabled(Window, u"cmdDelete"_s)); // or the next press would delete another line
        QVERIFY(!IsEnabled(Window, u"cmdChange"_s));
        QVERIFY(!IsEnabled(Window, u"cmdPrint"_s));
        ClickGridRow(1);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(Items(), QStringList{u"Tea"_s});
        QVERIFY(IsEnabled(Window, u"cmdPrint"_s));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ Save

    void AnotherListIsNotReplacedUnasked_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("name");
        QTest::newRow("chosen in another folder") << u"/elsewhere"_s << u"party.lst"_s;
        QTest::newRow("another letter case") << u"stores"_s << u"PARTY.lst"_s;
        QTest::newRow("another letter case, a bare name") << QString() << u"PARTY.lst"_s;
        QTest::newRow("the very file") << u"stores"_s << u"party.lst"_s;
        QTest::newRow("its bare name") << QString() << u"party.lst"_s;
    }
    void AnotherListIsNotReplacedUnasked()
    {
        QFETCH(QString, folder);
        QFETCH(QString, name);
        ShoppingDesk desk(Lines);
        desk.WriteFile(u"stores\\party.lst"_s, "as it was");
        const QString chosen = folder.isEmpty()          ? name
                               : folder.startsWith(u'/') ? folder + u'/' + name
                                                         : desk.Folder() + u'/' + folder + u'/' + name;
        Show(Window);
        desk.FileAnswers = {chosen, {}};
        desk.Answers = {Answer::No};
        Click(Window, u"cmdSave"_s);
        QCOMPARE(desk.TakeMessage(), ReplaceParty);
        QCOMPARE(desk.FileQuestions.size(), 2); // asked again, and cancelled
        QCOMPARE(State.CurrentStoreFile, u"weekly.lst"_s);
        QCOMPARE(desk.ReadFile(u"stores\\party.lst"_s), QByteArray("as it was"));
        desk.FileAnswers = {chosen};
        desk.Answers = {Answer::Yes};
        Click(Window, u"cmdSave"_s);
        QCOMPARE(desk.TakeMessage(), ReplaceParty);
        QCOMPARE(State.CurrentStoreFile, name);
        QCOMPARE(QDir(desk.Path(u"stores"_s)).entryList({u"party.lst"_s}, QDir::Files), QStringList{name});
        QVERIFY(desk.ReadFile(u"stores\\"_s + name).startsWith("3\r\n"));
        QVERIFY(desk.ReadFile(ListFile).startsWith("3\r\n")); // the list of before
        desk.TakeFiles();
    }

    void TheOpenListIsSavedUnasked()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.FileAnswers = {u"/elsewhere/WEEKLY.lst"_s};
        Click(Window, u"cmdSave"_s);
        QCOMPARE(State.CurrentStoreFile, u"WEEKLY.lst"_s);
        QVERIFY(desk.ReadFile(u"stores\\WEEKLY.lst"_s).startsWith("3\r\n"));
        desk.TakeFiles();
    }

    void Saving_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QStringList>("chosen");
        QTest::addColumn<int>("refusals");
        QTest::addColumn<QString>("name");
        QTest::newRow("a name") << u"untitled.lst"_s << QStringList{u"party.lst"_s} << 0 << u"party.lst"_s;
        QTest::newRow("a path with slashes")
            << u"untitled.lst"_s << QStringList{u"/home/family/stores/party.lst"_s} << 0 << u"party.lst"_s;
        QTest::newRow("a path with backslashes")
            << u"untitled.lst"_s << QStringList{u"C:\\family\\stores\\party.lst"_s} << 0 << u"party.lst"_s;
        QTest::newRow("cancelled, named") << u"weekly.lst"_s << QStringList{{}} << 0 << u"weekly.lst"_s;
        QTest::newRow("cancelled, named with folders in the settings")
            << u"old\\stores\\weekly.lst"_s << QStringList{{}} << 0 << u"weekly.lst"_s;
        QTest::newRow("cancelled twice, untitled")
            << u"untitled.lst"_s << QStringList{{}, {}, u"party.lst"_s} << 2 << u"party.lst"_s;
        QTest::newRow("untitled in any case, then a path to it")
            << u"weekly.lst"_s
            << QStringList{u"untitled.lst"_s, u"UNTITLED.LST"_s, u"/stores/Untitled.Lst"_s, u"party.lst"_s} << 3
            << u"party.lst"_s;
        QTest::newRow("untitled is taken first, so that cancelling is no way out then")
            << u"weekly.lst"_s << QStringList{u"untitled.lst"_s, {}, u"party.lst"_s} << 2 << u"party.lst"_s;
        QTest::newRow("only that very name is refused")
            << u"weekly.lst"_s << QStringList{u"untitled.lst.lst"_s} << 0 << u"untitled.lst.lst"_s;
        QTest::newRow("untitled without an ending, which it gets before it is judged")
            << u"weekly.lst"_s << QStringList{u"Untitled"_s, u"party.lst"_s} << 1 << u"party.lst"_s;
        QTest::newRow("without an ending") << u"weekly.lst"_s << QStringList{u"party"_s} << 0 << u"party.lst"_s;
        QTest::newRow("a point that begins no ending")
            << u"weekly.lst"_s << QStringList{u"St. John's"_s} << 0 << u"St. John's.lst"_s;
        QTest::newRow("the ending in capital letters")
            << u"weekly.lst"_s << QStringList{u"PARTY.LST"_s} << 0 << u"PARTY.LST"_s;
        QTest::newRow("letters outside ASCII, commas, an apostrophe")
            << u"weekly.lst"_s << QStringList{u"Käse, 'fein'.lst"_s} << 0 << u"Käse, 'fein'.lst"_s;
    }
    void Saving()
    {
        QFETCH(QString, before);
        QFETCH(QStringList, chosen);
        QFETCH(int, refusals);
        QFETCH(QString, name);
        ShoppingDesk desk(Lines);
        State.CurrentStoreFile = before;
        Show(Window);
        desk.FileAnswers = chosen;
        Click(Window, u"cmdSave"_s);
        // The dialog opens with the list's name, and without one where that would be refused.
        const QString offered = before.endsWith(u"untitled.lst") ? QString() : before.section(u'\\', -1);
        QCOMPARE(desk.FileQuestions.first(), SaveQuestion(desk, offered));
        for (const FileQuestion &again : desk.FileQuestions.mid(1))
            QCOMPARE(again, SaveQuestion(desk, {}));
        QCOMPARE(desk.FileQuestions.size(), chosen.size());
        for (int i = 0; i < refusals; ++i)
            QCOMPARE(desk.TakeMessage(), NotUntitled);
        QCOMPARE(State.CurrentStoreFile, name);
        QCOMPARE(TextOf(Settings, u"txtStoreFile"_s), name);
        QCOMPARE(TitleOf(), name); // bare
        LeaveAndReturn();
        QCOMPARE(TitleOf(), u"Current Shopping List - "_s + name);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/"_s + name});
        QVERIFY(desk.ReadFile(u"stores\\"_s + name).startsWith("3\r\n\"Bread\""));
    }

    void ANameWithAQuoteIsRefused()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.FileAnswers = {u"our \"best\" list.lst"_s, u"/ho\"me/party.lst"_s};
        Click(Window, u"cmdSave"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"The name of a list cannot have a quotation mark in it"_s,
                                              u"Save Shopping List"_s, Icon::Warning}));
        QCOMPARE(desk.FileQuestions.size(), 2); // asked again; a folder's name does not matter
        QCOMPARE(State.CurrentStoreFile, u"party.lst"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/party.lst"_s});
    }

    void SavingRenewsTheMainWindowsLine()
    {
        ShoppingDesk desk;
        desk.StartProgram();
        auto &list = Find<ListBox>(Main, u"lstBudgetState"_s);
        State.CurrentStoreFile = u"weekly.lst"_s;
        InputCurrentShoppingList();
        AddCurrentItem({u"Milk"_s, u"each"_s, Count(10000), u"Shop"_s, false});
        Show(Window);
        State.NumberOfCreditors = 5; // no other line is filled anew
        desk.FileAnswers = {u"a long name for a party.lst"_s};
        Click(Window, u"cmdSave"_s);
        QCOMPARE(list.Items()[6], u"Current Shopping List: a long name for a party.lst"_s);
        QCOMPARE(list.item(6)->toolTip(), list.Items()[6]);
        QCOMPARE(list.Items()[0], u"Creditors: 0"_s);
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ New

    void ANewListIsEmpty()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        ClickGridRow(1);
        desk.Answers = {Answer::No};
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.FileQuestions.size(), 0);
        QCOMPARE(int(State.NumberOfCurrentItems), 0);
        QCOMPARE(State.CurrentShoppingList.Size(), 0);
        QCOMPARE(State.CurrentStoreFile, u"untitled.lst"_s);
        QCOMPARE(TextOf(Settings, u"txtStoreFile"_s), u"untitled.lst"_s);
        QCOMPARE(TitleOf(), u"Current Shopping List - UNTITLED.LST"_s);
        QCOMPARE(ShownRows(), QStringList());
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$0.00"_s);
        QCOMPARE(EnabledOf(TakenBack), QStringList());
        QVERIFY(IsEnabled(Window, u"cmdPrint"_s)); // until the next activation
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/untitled.lst"_s});
        QCOMPARE(desk.ReadFile(UntitledFile), QByteArray("0\r\n"));
        QVERIFY(desk.ReadFile(ListFile).startsWith("3\r\n")); // the old list lies where it lay
        LeaveAndReturn();
        QCOMPARE(EnabledOf(Offered), QStringList());
        QCOMPARE(TitleOf(), u"Current Shopping List - untitled.lst"_s);
    }

    void ANewListAfterSavingTheOldOne()
    {
        ShoppingDesk desk(Lines);
        State.CurrentStoreFile = u"untitled.lst"_s;
        Show(Window);
        desk.Answers = {Answer::Yes};
        desk.FileAnswers = {{}, u"party.lst"_s};
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.TakeMessage(), NotUntitled); // cancelled
        QVERIFY(desk.ReadFile(u"stores\\party.lst"_s).startsWith("3\r\n\"Bread\""));
        QCOMPARE(desk.ReadFile(UntitledFile), QByteArray("0\r\n"));
        QCOMPARE(State.CurrentStoreFile, u"untitled.lst"_s);
        QCOMPARE(TitleOf(), u"Current Shopping List - UNTITLED.LST"_s);
    }

    void AListThatCouldNotBeSavedStays()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.WriteFile(u"stores\\party.lst"_s, "as it was");
        MakeReadOnly(desk, u"stores\\party.lst"_s);
        desk.Answers = {Answer::Yes, Answer::Yes};
        desk.FileAnswers = {u"party.lst"_s};
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.TakeMessage(), ReplaceParty);
        QCOMPARE(desk.TakeMessage(), Told("Error 75: Path/File access error", u"Save Current Shopping List"_s));
        QCOMPARE(ShownRows(), Rows);
        QCOMPARE(int(State.NumberOfCurrentItems), 3);
        QCOMPARE(desk.ReadFile(u"stores\\party.lst"_s), QByteArray("as it was"));
        QCOMPARE(EnabledOf(Offered), Offered);
    }

    void SavingRunsUnderAHandler()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        TheDesk.AskFile = [](const FileQuestion &) -> QString { RaiseError(RuntimeError::DeviceError); };
        Click(Window, u"cmdSave"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(State.CurrentStoreFile, u"weekly.lst"_s);
        desk.Answers = {Answer::Yes}; // a new list after a save that fails so
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(int(State.NumberOfCurrentItems), 3);
        QCOMPARE(desk.TakeFiles(), QStringList());
        QVERIFY(!desk.Ended);
    }

    void ANewListRunsUnderAHandler()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        TheWindows.Unload(Settings);
        TheWindows.Register(Settings, [] { return new Toy; }); // without the field that the name goes to
        desk.Answers = {Answer::No};
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QVERIFY(!desk.Ended);
        QCOMPARE(int(State.NumberOfCurrentItems), 0); // what was done up to then
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/untitled.lst"_s});
        QCOMPARE(TitleOf(), u"Current Shopping List - weekly.lst"_s);
    }

    void AScratchListThatCannotBeWrittenIsTold()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.WriteFile(UntitledFile, "as it was");
        MakeReadOnly(desk, UntitledFile);
        desk.Answers = {Answer::No};
        Click(Window, u"cmdNew"_s);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(desk.TakeMessage(), Told("Error 75: Path/File access error", u"Save Current Shopping List"_s));
        QCOMPARE(desk.ReadFile(UntitledFile), QByteArray("as it was"));
        QVERIFY(desk.ReadFile(ListFile).startsWith("3\r\n\"Bread\""));
        QCOMPARE(ShownRows(), QStringList());
        QCOMPARE(TitleOf(), u"Current Shopping List - UNTITLED.LST"_s);
    }

    // ------------------------------------------------------------ the other buttons

    void TheListIsPrinted()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        Click(Window, u"cmdPrint"_s);
        QCOMPARE(desk.Printed.size(), 1);
        const QStringList page = desk.TakePrinted().Lines;
        QCOMPARE(page[2].trimmed(), u"WEEKLY.LST"_s);
        for (int row = 1; row <= 3; ++row) // the figures of the screen
            QVERIFY(page[2 + 3 * row].endsWith(u' ' + TheGrid().Text(row, 7)));
        QVERIFY(page.last().endsWith(u' ' + TextOf(Window, u"lblTotalGroceryBill"_s)));
        QCOMPARE(ShownRows(), Rows);
    }

    void TheCatalogueIsOpened()
    {
        ShoppingDesk desk;
        Show(Window);
        Click(Window, u"cmdMasterList"_s);
        QCOMPARE(ActiveWindow(), Master);
        QVERIFY(IsShown(Window));
    }

    void AccessKeys()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        const auto press = [](Qt::Key key) { QTest::keyClick(TheWindows.Loaded(Window), key, Qt::AltModifier); };
        press(Qt::Key_P);
        QVERIFY(!desk.TakePrinted().Lines.isEmpty());
        desk.FileAnswers = {u"party.lst"_s};
        press(Qt::Key_S);
        QCOMPARE(State.CurrentStoreFile, u"party.lst"_s);
        ClickGridRow(1);
        press(Qt::Key_C);
        ClickGridRow(1);
        press(Qt::Key_D);
        QCOMPARE(Items(), (QStringList{u"Milk"_s, u"Tea"_s}));
        desk.Answers = {Answer::No};
        press(Qt::Key_N);
        QCOMPARE(desk.TakeMessage(), SaveFirst);
        QCOMPARE(Items(), QStringList());
        press(Qt::Key_M);
        QCOMPARE(ActiveWindow(), Master);
        Show(Window);
        press(Qt::Key_Q);
        QVERIFY(!TheWindows.Loaded(Window));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ other hands on the files

    void AListRemovedByHandIsMadeAgain()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.RemoveFile(ListFile);
        ClickGridRow(1);
        Type(Window, u"txtQuantity"_s, u"4"_s);
        Click(Window, u"cmdChange"_s);
        QVERIFY(desk.ReadFile(ListFile).startsWith("3\r\n"));
        QCOMPARE(State.CurrentShoppingList(1).Quantity, 4.0F);
        desk.TakeFiles();
    }

    void TheLastSaveWins_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("of a deletion") << u"cmdDelete"_s << QStringList{u"Bread"_s, u"Tea"_s};
        QTest::newRow("of a change") << u"cmdChange"_s << QStringList{u"Bread"_s, u"Milk"_s, u"Tea"_s};
    }
    void TheLastSaveWins()
    {
        QFETCH(QString, button);
        QFETCH(QStringList, items);
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.WriteFile(ListFile,
                       "1\r\n\"Eggs\"\r\n\"box\"\r\n1\r\n\"Shop\"\r\n1\r\n#FALSE#\r\n0\r\n1\r\n"); // another program
        ClickGridRow(2);
        Click(Window, button);
        QCOMPARE(Items(), items);
        QVERIFY(!desk.ReadFile(ListFile).contains("Eggs"));
        for (const QString &item : items)
            QVERIFY(desk.ReadFile(ListFile).contains(u"\"%1\""_s.arg(item).toUtf8()));
        QCOMPARE(QDir(desk.Path(u"stores"_s)).entryList(QDir::Files).size(), 2); // nothing else is there
        desk.TakeFiles();
    }

    // What keeps a list from being saved, and how it is told.
    void WhatCannotBeSavedHasNotHappened_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QString>("text");
        for (const QString &button : {u"cmdChange"_s, u"cmdDelete"_s}) {
            const auto row = [&](const QString &obstacle, const char *text) {
                QTest::addRow("%s: %s", qPrintable(button), qPrintable(obstacle))
                    << button << obstacle << QString::fromLatin1(text);
            };
            row(u"a read-only list"_s, "Error 75: Path/File access error");
            row(u"no folder of lists"_s, "Error 76: Path not found");
            row(u"a folder in the list's place"_s, "Error 75: Path/File access error");
        }
    }
    void WhatCannotBeSavedHasNotHappened()
    {
        QFETCH(QString, button);
        QFETCH(QString, obstacle);
        QFETCH(QString, text);
        ShoppingDesk desk({Line(u"Tea"_s, 10000), Line(u"Bread"_s, 24900)}); // which a sort would exchange
        Show(Window);
        const QStringList rows = ShownRows();
        const auto lines = State.CurrentShoppingList;
        const auto catalogue = State.MasterShoppingList;
        const QByteArray listBytes = desk.ReadFile(ListFile);
        const QByteArray masterBytes = desk.ReadFile(MasterFile);
        ClickGridRow(1);
        State.MasterShoppingList(1).UnitPrice = Count(77700); // another price than the line's
        TypeLine(u"4"_s, u"0.10"_s);
        if (obstacle.startsWith(u"a read-only")) {
            MakeReadOnly(desk, ListFile);
        } else {
            QVERIFY(QDir(desk.Path(u"stores"_s)).removeRecursively());
            if (obstacle.startsWith(u"a folder"))
                QVERIFY(QDir(desk.Folder()).mkpath(u"stores/weekly.lst"_s));
        }
        Click(Window, button);
        QCOMPARE(desk.TakeMessage(), Message({text, u"Save Current Shopping List"_s, Icon::Stop}));
        QCOMPARE(desk.Messages.size(), 0); // nothing was read
        QVERIFY(State.CurrentShoppingList == lines);
        QCOMPARE(int(State.NumberOfCurrentItems), 2);
        QCOMPARE(int(State.NumberOfMasterItems), 2);
        QCOMPARE(State.MasterShoppingList(1).UnitPrice, Count(77700));
        QCOMPARE(State.MasterShoppingList(2), catalogue(2));
        QCOMPARE(desk.ReadFile(MasterFile), masterBytes);
        QCOMPARE(ShownRows(), rows);
        QCOMPARE(TextOf(Window, u"txtQuantity"_s), u"4"_s); // what was typed, to be saved once that is possible
        QVERIFY(IsEnabled(Window, button));
        // The file is back, and what is saved next has everything.
        if (obstacle.startsWith(u"a read-only")) {
            QCOMPARE(desk.ReadFile(ListFile), listBytes);
            QVERIFY(QFile::setPermissions(desk.Path(ListFile), QFile::ReadOwner | QFile::WriteOwner));
        } else {
            QVERIFY(QDir(desk.Path(u"stores"_s)).removeRecursively());
            desk.WriteFile(ListFile, listBytes);
        }
        Click(Window, button);
        QCOMPARE(Items(), button == u"cmdChange"_s ? (QStringList{u"Bread"_s, u"Tea"_s}) : QStringList{u"Bread"_s});
        QVERIFY(desk.ReadFile(ListFile).contains("\"Bread\"\r\n\"each\"\r\n2.49\r\n"));
        QCOMPARE(desk.ReadFile(ListFile).contains("\"Tea\"\r\n\"each\"\r\n1\r\n\"Corner\"\r\n4\r\n"),
                 button == u"cmdChange"_s);
        QCOMPARE(desk.ReadFile(MasterFile), masterBytes); // whose price the change has put back
        desk.TakeFiles();
    }

    void AMissingCatalogueLosesNothing()
    {
        ShoppingDesk desk({Line(u"Milk"_s, 30000), Line(u"Tea"_s, 10000)});
        Show(Window);
        const auto catalogue = State.MasterShoppingList;
        const QByteArray bytes = desk.ReadFile(MasterFile);
        ClickGridRow(1);
        Type(Window, u"txtQuantity"_s, u"4"_s);
        desk.RemoveFile(MasterFile);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeMessage(), Told("Error 53: File not found", u"Save Master Shopping List"_s));
        QCOMPARE(desk.Messages.size(), 0);         // it is not read, or its records would be blank
        QCOMPARE(TheGrid().Text(1, 4), u"4.00"_s); // the list itself is saved
        QVERIFY(desk.ReadFile(ListFile).contains("\r\n4\r\n"));
        QVERIFY(desk.ReadFile(MasterFile).isNull());
        QVERIFY(State.MasterShoppingList == catalogue);
        QCOMPARE(int(State.NumberOfMasterItems), 2);
        desk.WriteFile(MasterFile, bytes); // it is back
        ClickGridRow(2);
        Type(Window, u"txtQuantity"_s, u"3"_s);
        Click(Window, u"cmdChange"_s);
        QVERIFY(State.MasterShoppingList == catalogue);
        QCOMPARE(desk.ReadFile(MasterFile), bytes);
        desk.TakeFiles();
    }

    void ACatalogueThatIsNotSavedKeepsItsRecord()
    {
        ShoppingDesk desk({Line(u"Milk"_s, 30000)});
        Show(Window);
        ClickGridRow(1);
        State.MasterShoppingList(1).UnitPrice = Count(77700);
        MakeReadOnly(desk, MasterFile);
        Click(Window, u"cmdChange"_s);
        QCOMPARE(desk.TakeMessage(), Told("Error 75: Path/File access error", u"Save Master Shopping List"_s));
        QCOMPARE(State.MasterShoppingList(1).UnitPrice, Count(77700));
        desk.TakeFiles();
    }

    void ABadFieldCostsOneMessage()
    {
        ShoppingDesk desk;
        desk.WriteFile(ListFile, "2\r\n\"Milk\"\r\n\"each\"\r\nabc\r\n\"Shop\"\r\n2\r\n#TRUE#\r\n0\r\n0\r\n"
                                 "\"Tea\"\r\n\"box\"\r\n3\r\n\"Shop\"\r\n1\r\n#FALSE#\r\n0\r\n77\r\n");
        InputCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told("Error 13: Type mismatch", u"Input Current Shopping List"_s));
        Show(Window);
        QCOMPARE(ShownRows(), (QStringList{u"Milk | each | $0.00 | Shop | 2.00 | Y | $0.00 | $0.00"_s,
                                           u"Tea | box | $3.00 | Shop | 1.00 | N | $0.00 | $3.00"_s}));
    }

    void AListBeyondMoneyIsToldAndNotPrinted()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        State.CurrentShoppingList(2).CouponValue = Count(std::numeric_limits<qint64>::min());
        State.CurrentShoppingList(2).Item = u"Gold"_s;
        LeaveAndReturn();
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QVERIFY(!desk.Ended);
        QVERIFY(!IsEnabled(Window, u"cmdPrint"_s));
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), QString());
        // The lines are there without what they come to, so that the one in question can go.
        QCOMPARE(ShownRows().first(), u"Bread | each | $2.49 | Corner | 1.00 | N | $0.00 | "_s);
        QCOMPARE(TheGrid().Text(2, 0), u"Gold"_s);
        QTest::qWait(Arrival);
        ClickGridRow(2);
        Click(Window, u"cmdDelete"_s);
        QCOMPARE(ShownRows(), (QStringList{Rows[0], Rows[2]}));
        QCOMPARE(TextOf(Window, u"lblTotalGroceryBill"_s), u"$3,088.91"_s);
        LeaveAndReturn();
        QVERIFY(IsEnabled(Window, u"cmdPrint"_s));
        desk.TakeFiles();
    }

    void NamesOfOtherLettersCaseAreOneList()
    {
        ShoppingDesk desk(Lines);
        Show(Window);
        desk.FileAnswers = {u"Weekly.lst"_s};
        Click(Window, u"cmdSave"_s);
        const QStringList files = QDir(desk.Path(u"stores"_s)).entryList(QDir::Files);
        QCOMPARE(files, (QStringList{u"untitled.lst"_s, u"Weekly.lst"_s}));
        QVERIFY(desk.ReadFile(u"stores\\Weekly.lst"_s).startsWith("3\r\n"));
        desk.TakeFiles();
    }

    void ListsOfBothNamesStayApart()
    {
        ShoppingDesk desk(Lines);
        QFile other(desk.Folder() + u"/stores/WEEKLY.lst"_s); // made by hand
        QVERIFY(other.open(QIODevice::WriteOnly));
        other.write("0\r\n");
        other.close();
        Show(Window);
        ClickGridRow(1);
        Click(Window, u"cmdDelete"_s);
        QVERIFY(other.open(QIODevice::ReadOnly));
        QCOMPARE(other.readAll(), QByteArray("0\r\n"));
        QVERIFY(desk.ReadFile(ListFile).startsWith("2\r\n"));
        desk.TakeFiles();
    }

    // ------------------------------------------------------------ from the main window

    void ReviewOpensTheListWithItsPage()
    {
        ShoppingDesk desk;
        desk.StartProgram();
        QList<int> pages;
        connect(&TheTutorRequests, &TutorRequests::PageWanted, this, [&](int page) { pages += page; });
        auto &timer = Find<QTimer>(Main, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuShopperReviewCurrentList"_s);
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(pages, QList<int>{4});
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdQuit"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), Main);
    }

    void AnOpenedListIsShownWhenTheUserComesBack()
    {
        ShoppingDesk desk;
        desk.WriteFile(u"stores\\party.lst"_s,
                       "1\r\n\"Eggs\"\r\n\"box\"\r\n1\r\n\"Shop\"\r\n1\r\n#FALSE#\r\n0\r\n1\r\n");
        desk.StartProgram();
        Choose(u"mnuShopperReviewCurrentList"_s);
        QCOMPARE(EnabledOf(Offered), QStringList());
        Show(Main);
        desk.FileAnswers = {desk.Folder() + u"/stores/party.lst"_s};
        Choose(u"mnuShopperOpenStoreList"_s);
        QCOMPARE(ShownRows(), QStringList()); // and not before
        Choose(u"mnuShopperReviewCurrentList"_s);
        QCOMPARE(TitleOf(), u"Current Shopping List - party.lst"_s);
        QCOMPARE(ShownRows(), QStringList{u"Eggs | box | $1.00 | Shop | 1.00 | N | $0.00 | $1.00"_s});
        QCOMPARE(EnabledOf(Offered), Offered);
    }

    void TheMenuTellsOfAListBeyondMoney()
    {
        ShoppingDesk desk;
        desk.StartProgram();
        AddCurrentItem({u"Milk"_s, u"each"_s, Count(10000), u"Shop"_s, true});
        State.CurrentShoppingList(1).CouponValue = Count(std::numeric_limits<qint64>::min());
        Choose(u"mnuShopperPrintCurrentList"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QVERIFY(desk.Printed.isEmpty());
        QVERIFY(!desk.Ended);
    }

    void AnErrorOfThePrinterIsNotTrapped()
    {
        ShoppingDesk desk;
        desk.StartProgram();
        AddCurrentItem({u"Milk"_s, u"each"_s, Count(10000), u"Shop"_s, true});
        TheDesk.PrintDocument = [](const PrintJob &) { RaiseError(RuntimeError::DeviceError); };
        // The signal alone: an exception that leaves QAction::trigger leaves the guard behind that it holds.
        auto &entry = Find<QAction>(Main, u"mnuShopperPrintCurrentList"_s);
        QVERIFY(entry.isEnabled());
        QCOMPARE(ErrorOf([&] { Q_EMIT entry.triggered(); }), int(RuntimeError::DeviceError));
    }

    // The count of before stands, and every field of its lines is missed. No other list is touched by that.
    void AMissingListCostsNoOther()
    {
        ShoppingDesk desk(Lines);
        desk.StartProgram();
        State.CurrentStoreFile = u"weekly.lst"_s;
        InputCurrentShoppingList();
        desk.FileAnswers = {u"/elsewhere/party.lst"_s}; // looked for among the household's lists
        Choose(u"mnuShopperOpenStoreList"_s);
        const QString title = u"Input Current Shopping List"_s;
        QCOMPARE(desk.TakeMessage(), Told("Error 53: File not found", title));
        for (int i = 0; i < 24; ++i) // the count, and 23 of the three times eight fields
            QCOMPARE(desk.TakeMessage(), Told("Error 52: Bad file name or number", title));
        QVERIFY(desk.TakeMessage().Text.contains(u'1')); // and one box for the rest
        QCOMPARE(State.CurrentStoreFile, u"party.lst"_s);
        QCOMPARE(Items(), (QStringList{{}, {}, {}}));
        QVERIFY(!desk.Ended);
        QVERIFY(desk.ReadFile(ListFile).startsWith("3\r\n\"Bread\""));
        QVERIFY(desk.ReadFile(u"stores\\party.lst"_s).isNull());
    }

    void TheMenuPrintsTheListWithItsPage()
    {
        ShoppingDesk desk;
        desk.StartProgram();
        AddCurrentItem({u"Milk"_s, u"each"_s, Count(10000), u"Shop"_s, true});
        QList<int> pages;
        connect(&TheTutorRequests, &TutorRequests::PageWanted, this, [&](int page) {
            pages += page;
            QVERIFY(desk.Printed.isEmpty()); // the page comes first
        });
        Choose(u"mnuShopperPrintCurrentList"_s);
        QCOMPARE(pages, QList<int>{14});
        const QStringList lines = desk.TakePrinted().Lines;
        QCOMPARE(lines[4], u"1) Milk"_s);
        QCOMPARE(lines.last(), u"Total Grocery Bill                                         $1.06"_s);
        QCOMPARE(ActiveWindow(), Main);
        QVERIFY(!TheWindows.Loaded(Window));
    }
};

REGISTER_TEST(gui_frmCurrentShoppingList)
#include "gui_frmCurrentShoppingList.moc"

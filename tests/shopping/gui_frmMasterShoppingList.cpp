// The window of the catalogue: choosing a store, clicking an item, what arms the buttons, adding, saving, deleting, and
// the cart by mouse, key and menu.
#include "../commitments/CommitmentsDesk.h"
#include "ShoppingDesk.h"

#include "TestProgram.h"

#include "foundation/ShoppingFiles.h"
#include "platform/controls/DropDownList.h"
#include "shopping/Shelf.h"
#include "shopping/ShoppingDoors.h"

#include <QMenu>
#include <QTimer>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmMasterShoppingList"_s;
const QString Dialog = u"frmAddItem"_s;
const QString List = u"lstMasterShopper"_s;
const QString Stores = u"cboStoreList"_s;
const QString CartName = u"imgCurrentShoppingList"_s;
const QString Title = u"Master Shopping List"_s;
const QStringList Fields{u"txtItem"_s, u"txtUnit"_s, u"txtUnitPrice"_s, u"txtStore"_s};
const QStringList Buttons_{u"cmdDeleteFromMaster"_s, u"cmdSaveChanges"_s, u"cmdClear"_s, u"pnlAddToCurrent"_s,
                           CartName};

const MasterItemRecord Milk{u"Milk"_s, u"gallon"_s, Cents(299), u"Corner"_s, false};
const MasterItemRecord Soap{u"Soap"_s, u"bar"_s, Cents(150), u"Corner"_s, true};
const MasterItemRecord Bread{u"bread"_s, u"loaf"_s, Cents(225), u"Corner"_s, false};
const MasterItemRecord DearMilk{u"Milk"_s, u"quart"_s, Cents(349), u"Market"_s, false};
const std::vector<MasterItemRecord> Usual{Milk, DearMilk, Soap, Bread};

const QString AllCart = u"cmdDeleteFromMaster cmdSaveChanges cmdClear pnlAddToCurrent imgCurrentShoppingList"_s;

/// A household with a catalogue and a list, in memory and in the files, and the window opened on them.
class MasterDesk : public GuiDesk
{
public:
    explicit MasterDesk(const std::vector<MasterItemRecord> &items = Usual,
                        const std::vector<CurrentItemRecord> &lines = {},
                        std::source_location where = std::source_location::current())
        : GuiDesk(where)
    {
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.SalesTax = 0.06F;
        TakeCatalogue(items);
        TakeLines(lines);
        SaveMasterShoppingList();
        SaveCurrentShoppingList();
        TakeFiles();
        Show(Window);
    }
};

DropDownList &Combo()
{
    return Find<DropDownList>(Window, Stores);
}

/// The user opens the list of stores and clicks one.
void PickStore(const QString &store)
{
    DropDownList &combo = Combo();
    combo.showPopup();
    QAbstractItemView *rows = combo.view();
    QVERIFY(QTest::qWaitForWindowExposed(rows->window()));
    QTest::qWait(QApplication::doubleClickInterval() + 10); // the list ignores a release right after it has opened
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualRect(rows->model()->index(combo.findText(store), 0)).center());
    Settle();
}

/// The same at once, for tests of something else.
void OpenStore(const QString &store)
{
    Combo().SetListIndex(Combo().findText(store));
    Settle();
}

int RowOf(const QString &item)
{
    return int(RowsOf(Window, List).indexOf(item));
}

void ClickItem(const QString &item)
{
    ClickRow(Window, List, RowOf(item));
}

QString Shown()
{
    return Texts(Window, Fields) + (Find<QCheckBox>(Window, u"chkTaxCode"_s).isChecked() ? u" | taxable"_s : u""_s);
}

QString TitleOf()
{
    return TheWindows.Loaded(Window)->windowTitle();
}

QString Selected()
{
    return TextOf(Window, u"lblSelected"_s);
}

Message Added(const QString &item)
{
    return {item + u" added to Current Shopping List!"_s, Title, Icon::Information, Buttons::Ok};
}

const Message UnknownError{UnknownErrorText, Title, Icon::Warning, Buttons::Ok};

/// Another window of the program to go to and come back from.
void GoAwayAndComeBack()
{
    TheWindows.Register(u"Other"_s, [] { return new Other; });
    Show(u"Other"_s);
    Show(Window);
}

// ---------------------------------------------------------------- the mouse that drags

QPoint CentreOf(const QWidget &widget)
{
    return widget.mapTo(widget.window(), widget.rect().center());
}

/// What the window system tells a window while something is held over it; returns whether it would be taken there.
bool HoldOver(QWindow &window, QMimeData &data, const QPoint &place)
{
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &enter);
    QDragMoveEvent move(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    move.setAccepted(enter.isAccepted());
    QCoreApplication::sendEvent(&window, &move);
    return move.isAccepted();
}

void LetGo(QWindow &window, QMimeData &data, const QPoint &place)
{
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.accept();
    QCoreApplication::sendEvent(&window, &drop);
}

void LeaveWindow(QWindow &window)
{
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&window, &leave);
}

/// How drags run while one of these lives: this desktop has none.
class DragDesk
{
public:
    explicit DragDesk(const std::function<void(QDrag &)> &run) : m_before(Shelf::RunDrag)
    {
        Shelf::RunDrag = [this, run](QDrag &drag) {
            ++Drags;
            run(drag);
            drag.deleteLater();
        };
    }
    ~DragDesk() { Shelf::RunDrag = m_before; }

    int Drags = 0;

private:
    std::function<void(QDrag &)> m_before;
};

/// Drops on a control of the window what is dragged; where it is not taken nothing happens.
std::function<void(QDrag &)> DropOn(const QString &control)
{
    return [control](QDrag &drag) {
        QWindow &window = *TheWindows.Loaded(Window)->windowHandle();
        const QPoint place = CentreOf(Find(Window, control));
        if (HoldOver(window, *drag.mimeData(), place))
            LetGo(window, *drag.mimeData(), place);
        else
            LeaveWindow(window);
    };
}

/// Presses on an item and moves the mouse by so many pixels, then lets go.
void DragItem(const QString &item, int pixels = 40)
{
    auto &shelf = Find<Shelf>(Window, List);
    const QPoint place = shelf.visualItemRect(shelf.item(RowOf(item))).center();
    QTest::mousePress(shelf.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseMove(shelf.viewport(), place + QPoint(pixels, 0));
    QTest::mouseRelease(shelf.viewport(), Qt::LeftButton, {}, place + QPoint(pixels, 0));
    Settle();
}

void DropInCart(const QString &item)
{
    const DragDesk drags(DropOn(CartName));
    DragItem(item);
}

} // namespace

class gui_frmMasterShoppingList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensWithoutAStore()
    {
        const MasterDesk desk;
        QCOMPARE(TitleOf(), Title);
        QCOMPARE(Combo().Items(), (QStringList{u"Corner"_s, u"Market"_s}));
        QCOMPARE(Combo().ListIndex(), -1);
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at Store"_s);
        QCOMPARE(Shown(), u" |  | $0.00 | "_s);
        QCOMPARE(Selected(), QString());
        QCOMPARE(Enabled(Window, Buttons_), QString());
        QCOMPARE(FocusOf(Window), Stores);
    }

    void CaptionsTabsAndHelp()
    {
        MasterDesk desk;
        const QList<std::pair<QString, QString>> captions{{u"cmdAddToMaster"_s, u"&Add New Item"_s},
                                                          {u"cmdDeleteFromMaster"_s, u"&Delete Item"_s},
                                                          {u"chkTaxCode"_s, u"Taxable"_s},
                                                          {u"cmdSaveChanges"_s, u"&Save Changes"_s},
                                                          {u"cmdClear"_s, u"C&lear"_s},
                                                          {u"cmdViewCurrent"_s, u"&View Current Shopping List"_s},
                                                          {u"cmdExit"_s, u"E&xit"_s}};
        for (const auto &[control, caption] : captions)
            QCOMPARE(TextOf(Window, control), caption);
        QCOMPARE(TextOf(Window, u"lblSelectedCaption"_s), u"Selected for Current Shopping List"_s);
        QCOMPARE(BuddyText(Window, Stores), u"Available Stores"_s);
        QCOMPARE(BuddyText(Window, u"txtItem"_s), u"Item"_s);
        QCOMPARE(BuddyText(Window, u"txtUnit"_s), u"Unit"_s);
        QCOMPARE(BuddyText(Window, u"txtUnitPrice"_s), u"Unit Price"_s);
        QCOMPARE(BuddyText(Window, u"txtStore"_s), u"Store"_s);
        QCOMPARE(TabOrder(Window),
                 (QStringList{Stores, List, u"cmdAddToMaster"_s, u"cmdDeleteFromMaster"_s, u"txtItem"_s, u"txtUnit"_s,
                              u"txtUnitPrice"_s, u"txtStore"_s, u"chkTaxCode"_s, u"cmdSaveChanges"_s, u"cmdClear"_s,
                              CartName, u"cmdViewCurrent"_s, u"cmdExit"_s}));
    }

    // ------------------------------------------------------------------ choosing a store

    void AStoreIsChosen()
    {
        const MasterDesk desk;
        PickStore(u"Corner"_s);
        QCOMPARE(TitleOf(), u"Master Shopping List (Corner)"_s);
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at Corner"_s);
        QCOMPARE(Shopping.SelectedStoreName, u"Corner"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"bread"_s, u"Milk"_s, u"Soap"_s})); // whatever the case
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Shown(), u" |  | $0.00 | Corner"_s);
        QCOMPARE(Enabled(Window, Buttons_), QString());
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
    }

    void AnotherStoreClearsWhatWasShown()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        PickStore(u"Market"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Milk"_s});
        QCOMPARE(Shown(), u" |  | $0.00 | Market"_s);
        QCOMPARE(Selected(), QString());
        // Clear leaves the cart as it was.
        QCOMPARE(Enabled(Window, Buttons_), u"pnlAddToCurrent imgCurrentShoppingList"_s);
    }

    void TheSameStorePickedAgainClears()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        PickStore(u"Corner"_s);
        QCOMPARE(Shown(), u" |  | $0.00 | Corner"_s);
    }

    // ------------------------------------------------------------------ clicking an item

    void AClickShowsTheItem_data()
    {
        QTest::addColumn<QString>("store");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("enabled");
        const QString onList = u"cmdSaveChanges cmdClear"_s;
        QTest::newRow("free") << u"Corner"_s << u"Soap"_s << u"Soap | bar | $1.50 | Corner | taxable"_s << u"N"_s
                              << AllCart;
        QTest::newRow("on the list") << u"Corner"_s << u"bread"_s << u"bread | loaf | $2.25 | Corner"_s << u"Y"_s
                                     << onList;
        QTest::newRow("of the same name at another store")
            << u"Market"_s << u"Milk"_s << u"Milk | quart | $3.49 | Market"_s << u"N"_s << AllCart;
        QTest::newRow("listed at another price")
            << u"Corner"_s << u"Milk"_s << u"Milk | gallon | $2.99 | Corner"_s << u"N"_s << AllCart;
    }
    void AClickShowsTheItem()
    {
        QFETCH(QString, store);
        QFETCH(QString, item);
        MasterItemRecord cheap = Milk;
        cheap.UnitPrice = Currency::FromTenThousandths(29899);
        const MasterDesk desk(Usual, {LineOf(cheap), LineOf(Bread, 4)});
        OpenStore(store);
        ClickItem(item);
        QTEST(Shown(), "shown");
        QTEST(Selected(), "selected");
        QTEST(Enabled(Window, Buttons_), "enabled");
        QVERIFY(!Shopping.ListClickInProgress);
    }

    void TheLaterOfTwoRecordsIsShown()
    {
        MasterItemRecord second = Milk;
        second.Unit = u"half gallon"_s;
        const MasterDesk desk({Milk, Soap, second});
        OpenStore(u"Corner"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Milk"_s, u"Milk"_s, u"Soap"_s}));
        for (int row : {0, 1}) {
            ClickItem(u"Soap"_s);
            ClickRow(Window, List, row);
            QCOMPARE(Shown(), u"Milk | half gallon | $2.99 | Corner"_s);
            QCOMPARE(int(Shopping.MasterItemIndex), 3);
        }
    }

    void AClickOnAnItemOfTheListFindsItsLine()
    {
        const MasterDesk desk(Usual, {LineOf(Bread), LineOf(Milk), LineOf(Soap)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        QCOMPARE(int(Shopping.MasterItemIndex), 3);
        QCOMPARE(int(Shopping.CurrentItemIndex), 3);
        ClickItem(u"Milk"_s);
        QCOMPARE(int(Shopping.CurrentItemIndex), 2);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdSaveChanges cmdClear"_s);
        ClickItem(u"Milk"_s); // again
        QCOMPARE(Selected(), u"Y"_s);
    }

    void ComingBackClicksTheSelectedItemAgain()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Soup"_s);
        Shopping.MasterItemIndex = 1; // as another window may leave it
        TakeLines({LineOf(Soap)});
        GoAwayAndComeBack();
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(int(Shopping.MasterItemIndex), 3);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdSaveChanges cmdClear"_s);
    }

    void ComingBackWithoutAnItemChangesNothing()
    {
        const MasterDesk desk;
        Shopping.ListClickInProgress = true;
        GoAwayAndComeBack(); // the shelf is empty
        QVERIFY(!Shopping.ListClickInProgress);
        OpenStore(u"Corner"_s);
        Type(Window, u"txtItem"_s, u"Tea"_s);
        GoAwayAndComeBack();
        QCOMPARE(Shown(), u"Tea |  | $0.00 | Corner"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
    }

    // ------------------------------------------------------------------ what arms the buttons

    void WhatIsTypedArmsClearAlone_data()
    {
        QTest::addColumn<QString>("control");
        for (const QString &control : {u"txtItem"_s, u"txtUnit"_s, u"txtUnitPrice"_s, u"chkTaxCode"_s})
            QTest::addRow("%s", qPrintable(control)) << control;
    }
    void WhatIsTypedArmsClearAlone()
    {
        QFETCH(QString, control);
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        if (control == u"chkTaxCode")
            Click(Window, control);
        else
            Type(Window, control, u"1"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
    }

    void TypingAStoreArmsNothing()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        Type(Window, u"txtStore"_s, u"Bakery"_s);
        QCOMPARE(Enabled(Window, Buttons_), QString());
    }

    void ASavedItemThatIsClickedAgainCanBeSavedAgain()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Click(Window, u"cmdSaveChanges"_s);
        desk.TakeFiles();
        QVERIFY(!IsEnabled(Window, u"cmdSaveChanges"_s));
        Type(Window, u"txtUnit"_s, u"box"_s);
        QVERIFY(!IsEnabled(Window, u"cmdSaveChanges"_s)); // typing does not arm it
        ClickItem(u"Soap"_s);
        QVERIFY(IsEnabled(Window, u"cmdSaveChanges"_s));
        Click(Window, u"cmdSaveChanges"_s);
        desk.TakeFiles();
        ClickItem(u"Soap"_s); // the fields show it already
        QVERIFY(IsEnabled(Window, u"cmdSaveChanges"_s));
    }

    void ThePriceIsFormattedWhenItIsLeft()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        Type(Window, u"txtUnitPrice"_s, u"1234.5"_s);
        PressEnter(Window, u"txtUnitPrice"_s);
        QCOMPARE(TextOf(Window, u"txtUnitPrice"_s), u"$1,234.50"_s);
        Type(Window, u"txtUnitPrice"_s, u"abc"_s);
        PressEnter(Window, u"txtUnitPrice"_s);
        QCOMPARE(TextOf(Window, u"txtUnitPrice"_s), u"abc"_s);
    }

    void EnterGoesRound()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Soup"_s);
        PressEnter(Window, u"txtItem"_s);
        QCOMPARE(FocusOf(Window), u"txtUnit"_s);
        QCOMPARE(SelectedText(Window, u"txtUnit"_s), u"bar"_s);
        PressEnter(Window, u"txtUnit"_s);
        QCOMPARE(FocusOf(Window), u"txtUnitPrice"_s);
        PressEnter(Window, u"txtUnitPrice"_s);
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QCOMPARE(Catalogue().size(), 4); // nothing was saved
    }

    void ClearForgetsTheItem()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtStore"_s, u"Bakery"_s);
        Click(Window, u"cmdClear"_s);
        QCOMPARE(Shown(), u" |  | $0.00 | Corner"_s);
        QCOMPARE(Selected(), QString());
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Enabled(Window, Buttons_), u"pnlAddToCurrent imgCurrentShoppingList"_s);
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        Click(Window, CartName); // nothing is selected
        QCOMPARE(Lines(), QStringList());
    }

    // ------------------------------------------------------------------ adding

    void ANewItemIsAdded_data()
    {
        QTest::addColumn<QString>("store");
        QTest::addColumn<QStringList>("stores");
        QTest::addColumn<QStringList>("shelf");
        QTest::newRow("at the store that is shown") << u"Corner"_s << QStringList{u"Corner"_s, u"Market"_s}
                                                    << QStringList{u"bread"_s, u"Milk"_s, u"Soap"_s, u"Tea"_s};
        QTest::newRow("at another one") << u"Market"_s << QStringList{u"Corner"_s, u"Market"_s}
                                        << QStringList{u"Milk"_s, u"Tea"_s};
        QTest::newRow("at a new one") << u"BAKERY"_s << QStringList{u"BAKERY"_s, u"Corner"_s, u"Market"_s}
                                      << QStringList{u"Tea"_s};
        QTest::newRow("at one of another case")
            << u"CORNER"_s << QStringList{u"Corner"_s, u"CORNER"_s, u"Market"_s} << QStringList{u"Tea"_s};
    }
    void ANewItemIsAdded()
    {
        QFETCH(QString, store);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s); // the selected item is not what is added
        QTimer::singleShot(0, qApp, [&] {
            QCOMPARE(ActiveWindow(), Dialog);
            Type(Dialog, u"txtItem"_s, u"Tea"_s);
            Type(Dialog, u"txtUnit"_s, u"box"_s);
            Type(Dialog, u"txtUnitPrice"_s, u"4.1"_s);
            Find<DropDownList>(Dialog, Stores).setFocus();
            Find<DropDownList>(Dialog, Stores).lineEdit()->selectAll();
            QTest::keyClicks(&Find(Dialog, Stores), store);
            Click(Dialog, u"chkTaxCode"_s);
            Click(Dialog, u"cmdOK"_s);
        });
        Click(Window, u"cmdAddToMaster"_s);
        QCOMPARE(Catalogue().size(), 5);
        QCOMPARE(Catalogue().last(), u"Tea box 4.1 %1 Y"_s.arg(store));
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
        QTEST(Combo().Items(), "stores");
        QTEST(RowsOf(Window, List), "shelf");
        QCOMPARE(Combo().currentText(), store);
        QCOMPARE(TitleOf(), u"Master Shopping List (%1)"_s.arg(store));
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at %1"_s.arg(store));
        QCOMPARE(Shopping.SelectedStoreName, store);
        QCOMPARE(Shown(), u" |  | $0.00 | %1"_s.arg(store));
        QCOMPARE(SelectedRow(Window, List), -1);
        QVERIFY(!Shopping.AddItemAccepted);
        ClickItem(u"Tea"_s);
        QCOMPARE(Shown(), u"Tea | box | $4.10 | %1 | taxable"_s.arg(store));
    }

    void ACancelledDialogAddsNothing()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Shopping.AddItemAccepted = true; // it is put back before the dialog is shown
        QTimer::singleShot(0, qApp, [] {
            Type(Dialog, u"txtItem"_s, u"Tea"_s);
            Click(Dialog, u"cmdCancel"_s);
        });
        Click(Window, u"cmdAddToMaster"_s);
        QCOMPARE(Catalogue().size(), 4);
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
        QCOMPARE(SelectedRow(Window, List), RowOf(u"Soap"_s));
    }

    void AFullCatalogueTellsSo()
    {
        const MasterDesk desk;
        State.NumberOfMasterItems = 32767;
        State.MasterShoppingList.RedimPreserve(32767);
        QTimer::singleShot(0, qApp, [] {
            Type(Dialog, u"txtItem"_s, u"Tea"_s);
            Type(Dialog, u"txtUnit"_s, u"box"_s);
            QTest::keyClicks(&Find(Dialog, Stores), u"Corner"_s);
            Click(Dialog, u"cmdOK"_s);
        });
        Click(Window, u"cmdAddToMaster"_s);
        QCOMPARE(const_cast<MasterDesk &>(desk).TakeMessage(), UnknownError);
        QCOMPARE(int(State.NumberOfMasterItems), 32767);
        QVERIFY(!Shopping.AddItemAccepted); // or the window would not click its item any more
    }

    // ------------------------------------------------------------------ saving changes

    void AChangeIsRefused_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("price") << u"txtUnitPrice"_s << u"abc"_s
                               << u"Unit Price does not contain a valid currency amount"_s;
        QTest::newRow("item") << u"txtItem"_s << QString()
                              << u"Please enter an item name or description in the Item field"_s;
        QTest::newRow("unit") << u"txtUnit"_s << QString()
                              << u"Please enter a unit (loaf, pound, etc.) in the Unit field"_s;
    }
    void AChangeIsRefused()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        QFETCH(QString, message);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, field, text);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(), (Message{message, Title, Icon::Warning, Buttons::Ok}));
        QCOMPARE(FocusOf(Window), field);
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5 Corner Y"_s);
        QVERIFY(IsEnabled(Window, u"cmdSaveChanges"_s));
    }

    void AChangeIsSaved()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Bath Soap"_s);
        Type(Window, u"txtUnitPrice"_s, u"1.75"_s);
        Click(Window, u"chkTaxCode"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue(), (QStringList{u"Milk gallon 2.99 Corner N"_s, u"Milk quart 3.49 Market N"_s,
                                           u"Bath Soap bar 1.75 Corner N"_s, u"bread loaf 2.25 Corner N"_s}));
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Bath Soap"_s, u"bread"_s, u"Milk"_s}));
        QCOMPARE(SelectedRow(Window, List), 0); // it stays the item at hand
        QCOMPARE(Shown(), u"Bath Soap | bar | $1.75 | Corner"_s);
        QCOMPARE(TitleOf(), u"Master Shopping List (Corner)"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear pnlAddToCurrent imgCurrentShoppingList"_s);
        QCOMPARE(FocusOf(Window), List);
    }

    void AChangeReachesTheLineOfTheList()
    {
        MasterDesk desk(Usual, {LineOf(Milk, 3, Cents(50), Cents(847)), LineOf(Soap)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Type(Window, u"txtItem"_s, u"Whole Milk"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeFiles(), (QStringList{u"mastshop.txt"_s, u"stores/untitled.lst"_s}));
        QCOMPARE(Lines().size(), 2);
        QVERIFY(Lines().first().startsWith(u"Soap"_s)); // sorted anew
        QVERIFY(Lines().last().startsWith(u"Whole Milk gallon 2.99 Corner N x3 -0.5 "_s));
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
        QCOMPARE(GridRows(u"frmCurrentShoppingList"_s, u"grdCurrentShoppingList"_s, 1).last(),
                 u"Whole Milk | gallon | $2.99 | Corner | 3.00 | N | $0.50 | $8.47"_s);
        QVERIFY(!IsShown(u"frmCurrentShoppingList"_s));
        ClickItem(u"Whole Milk"_s);
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(int(Shopping.CurrentItemIndex), 2);
    }

    void AnotherStoreMovesTheItemToItsShelf_data()
    {
        QTest::addColumn<QString>("store");
        QTest::addColumn<QStringList>("stores");
        QTest::addColumn<QStringList>("shelf");
        QTest::newRow("known") << u"Market"_s << QStringList{u"Corner"_s, u"Market"_s}
                               << QStringList{u"Milk"_s, u"Soap"_s};
        QTest::newRow("new") << u"Bakery"_s << QStringList{u"Bakery"_s, u"Corner"_s, u"Market"_s}
                             << QStringList{u"Soap"_s};
    }
    void AnotherStoreMovesTheItemToItsShelf()
    {
        QFETCH(QString, store);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtStore"_s, store);
        Click(Window, u"cmdSaveChanges"_s);
        desk.TakeFiles();
        QTEST(Combo().Items(), "stores");
        QTEST(RowsOf(Window, List), "shelf");
        QCOMPARE(TitleOf(), u"Master Shopping List (%1)"_s.arg(store));
        QCOMPARE(Shopping.SelectedStoreName, store);
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | %1 | taxable"_s.arg(store)); // not cleared
        // The drop-down list and the heading follow, so that the next click finds the item of this shelf.
        QCOMPARE(Combo().currentText(), store);
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at %1"_s.arg(store));
        ClickItem(RowsOf(Window, List).first());
        QCOMPARE(TextOf(Window, u"txtStore"_s), store);
    }

    void WhatIsShownAfterASaveIsWhatIsDeleted()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Click(Window, u"cmdSaveChanges"_s);
        Shopping.MasterItemIndex = 1; // as another window may leave it
        GoAwayAndComeBack();
        Click(Window, u"cmdDeleteFromMaster"_s);
        desk.TakeFiles();
        QCOMPARE(Catalogue(), (QStringList{u"Milk gallon 2.99 Corner N"_s, u"Milk quart 3.49 Market N"_s,
                                           u"bread loaf 2.25 Corner N"_s}));
    }

    void ANameThatReadsBackDifferentlyIsNoItemAtHand()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"5\" pipe"_s); // a text ends at the next quote
        Click(Window, u"cmdSaveChanges"_s);
        desk.TakeFiles();
        QCOMPARE(RowsOf(Window, List), (QStringList{u"5"_s, u"bread"_s, u"Milk"_s}));
        QCOMPARE(SelectedRow(Window, List), -1);
        GoAwayAndComeBack();
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
    }

    void AChangeWithoutItsRecordIsAnUnknownError_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("save") << u"cmdSaveChanges"_s;
        QTest::newRow("delete") << u"cmdDeleteFromMaster"_s;
    }
    void AChangeWithoutItsRecordIsAnUnknownError()
    {
        QFETCH(QString, button);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Shopping.MasterItemIndex = 99;
        Click(Window, button);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Catalogue().size(), 4);
    }

    void AMissingCatalogueIsTold()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        desk.RemoveFile(u"mastshop.txt"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Save Master Shopping List"_s, Icon::Stop, Buttons::Ok}));
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Input Master Shopping List"_s, Icon::Stop, Buttons::Ok}));
        desk.TakeAll(); // every value that is not there
        QVERIFY(desk.ReadFile(u"mastshop.txt"_s).isNull());
        QVERIFY(IsShown(Window));
    }

    void ACatalogueThatCannotBeWrittenKeepsTheOldItem()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Soup"_s);
        QVERIFY(QFile(desk.Path(u"mastshop.txt"_s)).setPermissions(QFile::ReadOwner));
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 75: Path/File access error"_s, u"Save Master Shopping List"_s,
                                              Icon::Stop, Buttons::Ok}));
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5 Corner Y"_s);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Soup"_s); // what was typed is not lost
        GoAwayAndComeBack();
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
    }

    // ------------------------------------------------------------------ deleting

    void AnItemIsDeleted()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Click(Window, u"cmdDeleteFromMaster"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
        QCOMPARE(Catalogue().size(), 3);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"bread"_s, u"Milk"_s}));
        QCOMPARE(Combo().currentText(), u"Corner"_s);
        QCOMPARE(TitleOf(), u"Master Shopping List (Corner)"_s);
        QCOMPARE(Shown(), u" |  | $0.00 | Corner"_s);
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void AStoreGoesWithItsLastItem()
    {
        MasterDesk desk;
        OpenStore(u"Market"_s);
        ClickItem(u"Milk"_s);
        Click(Window, u"cmdDeleteFromMaster"_s);
        desk.TakeFiles();
        QCOMPARE(Combo().Items(), QStringList{u"Corner"_s});
        QCOMPARE(Combo().ListIndex(), -1);
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(TitleOf(), u"Master Shopping List (Market)"_s);
        QCOMPARE(Shown(), u" |  | $0.00 | "_s);
    }

    void TheLastItemLeavesAnEmptyCatalogue()
    {
        MasterDesk desk({Milk});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Click(Window, u"cmdDeleteFromMaster"_s);
        QCOMPARE(desk.ReadFile(u"mastshop.txt"_s), "0\r\n");
        QCOMPARE(Combo().Items(), QStringList());
    }

    // ------------------------------------------------------------------ the cart

    void AnItemIsDraggedIntoTheCart()
    {
        MasterDesk desk(Usual, {LineOf(Bread)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        QCOMPARE(Lines().size(), 2);
        QCOMPARE(Lines().last(), u"Milk gallon 2.99 Corner N x1 -0 =2.99"_s);
        QCOMPARE(desk.TakeFiles(), (QStringList{u"mastshop.txt"_s, u"stores/untitled.lst"_s}));
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdSaveChanges cmdClear"_s);
        QCOMPARE(SelectedRow(Window, List), RowOf(u"Milk"_s));
        DropInCart(u"Milk"_s); // the cart does not take it again
        QCOMPARE(Lines().size(), 2);
    }

    void AnItemThatIsNotSelectedIsClickedFirst()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        DropInCart(u"Soap"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Soap"_s));
        QCOMPARE(Lines(), QStringList{u"Soap bar 1.5 Corner Y x1 -0 =1.5"_s});
        DropInCart(u"bread"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"bread"_s));
        QCOMPARE(Lines().size(), 2);
        desk.TakeFiles();
    }

    void WhatWasTypedGoesOnTheListAndNotIntoTheCatalogue()
    {
        MasterDesk desk(Usual, {LineOf(Bread), LineOf(Soap)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Type(Window, u"txtItem"_s, u"Whole Milk"_s);
        Type(Window, u"txtUnitPrice"_s, u"3.5"_s);
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s)); // as the shelf calls it
        QCOMPARE(Lines().last(), u"Whole Milk gallon 3.5 Corner N x1 -0 =3.5"_s);
        QCOMPARE(Catalogue().first(), u"Milk gallon 2.99 Corner N"_s);
        // Saved right after it, the change reaches that very line.
        QCOMPARE(int(Shopping.CurrentItemIndex), 3);
        Type(Window, u"txtUnit"_s, u"quart"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue().first(), u"Whole Milk quart 3.5 Corner N"_s);
        QCOMPARE(Lines().size(), 3);
        QVERIFY(Lines().first().startsWith(u"bread loaf 2.25"_s));
        QVERIFY(Lines()[1].startsWith(u"Soap bar 1.5"_s));
        QVERIFY(Lines().last().startsWith(u"Whole Milk quart 3.5 Corner N x1"_s));
        desk.TakeFiles();
    }

    void APriceThatIsNoNumberAddsNothing()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Type(Window, u"txtUnitPrice"_s, u"abc"_s);
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Lines(), QStringList());
        QCOMPARE(Selected(), u"N"_s);
        QVERIFY(IsEnabled(Window, CartName));
        Type(Window, u"txtUnitPrice"_s, u"3"_s); // the program goes on
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        desk.TakeFiles();
    }

    void AListThatCannotBeWrittenTakesNothing()
    {
        MasterDesk desk(Usual, {LineOf(Bread)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QVERIFY(QFile(desk.Path(u"stores/untitled.lst"_s)).setPermissions(QFile::ReadOwner));
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 75: Path/File access error"_s, u"Save Current Shopping List"_s,
                                              Icon::Stop, Buttons::Ok}));
        QCOMPARE(Lines().size(), 1);
        QCOMPARE(Selected(), u"N"_s);
        QVERIFY(IsEnabled(Window, CartName));
        desk.TakeFiles();
    }

    void OnlyTheCartTakesTheDrop()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        int looked = 0;
        const DragDesk drags([&](QDrag &drag) {
            QVERIFY(!drag.mimeData()->hasText());
            QWindow &window = *TheWindows.Loaded(Window)->windowHandle();
            for (const QWidget *control : TheWindows.Loaded(Window)->findChildren<QWidget *>()) {
                const bool inCart = control == &Find(Window, CartName) || !control->isVisible();
                if (inCart || control->isAncestorOf(&Find(Window, CartName)) || control->isWindow())
                    continue;
                ++looked;
                const QPoint place = CentreOf(*control);
                QVERIFY2(!HoldOver(window, *drag.mimeData(), place), qPrintable(control->objectName()));
                LeaveWindow(window);
            }
        });
        DragItem(u"Milk"_s);
        QCOMPARE(drags.Drags, 1);
        QVERIFY(looked > 20);
        QCOMPARE(Lines(), QStringList());
        QCOMPARE(Shown(), u"Milk | gallon | $2.99 | Corner"_s);
    }

    void TheCartTakesNothingElse()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QMimeData text;
        text.setText(u"Milk"_s);
        QWindow &window = *TheWindows.Loaded(Window)->windowHandle();
        QVERIFY(!HoldOver(window, text, CentreOf(Find(Window, CartName))));
        QVERIFY(!Find<Cart>(Window, CartName).IsTaking());
    }

    void TheCartShowsThatItTakesTheItem()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        auto &cart = Find<Cart>(Window, CartName);
        const QImage before = cart.grab().toImage();
        QImage during, after;
        const DragDesk drags([&](QDrag &drag) {
            QWindow &window = *cart.window()->windowHandle();
            QVERIFY(HoldOver(window, *drag.mimeData(), CentreOf(cart)));
            QVERIFY(cart.IsTaking());
            during = cart.grab().toImage();
            LeaveWindow(window);
            after = cart.grab().toImage();
        });
        DragItem(u"Milk"_s);
        QVERIFY(!during.isNull() && during != before);
        QVERIFY(after == before);
        QCOMPARE(Lines(), QStringList());
    }

    void AGreyCartTakesNothing()
    {
        const MasterDesk desk(Usual, {LineOf(Milk)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        bool taken = true;
        const DragDesk drags([&](QDrag &drag) {
            QWindow &window = *TheWindows.Loaded(Window)->windowHandle();
            taken = HoldOver(window, *drag.mimeData(), CentreOf(Find(Window, CartName)));
            LeaveWindow(window);
        });
        DragItem(u"Milk"_s);
        QCOMPARE(drags.Drags, 1);
        QVERIFY(!taken);
    }

    void APressThatDoesNotMoveIsAClick()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        const DragDesk drags([](QDrag &) {});
        DragItem(u"Milk"_s, QApplication::startDragDistance() - 1);
        QCOMPARE(drags.Drags, 0);
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s);
        Type(Window, u"txtUnit"_s, u"quart"_s);
        DragItem(u"Milk"_s); // a drag of the selected item is no click on it
        QCOMPARE(drags.Drags, 1);
        QCOMPARE(TextOf(Window, u"txtUnit"_s), u"quart"_s);
        QCOMPARE(Lines(), QStringList()); // it was dropped nowhere
    }

    void AClickAndAQuickDragAreNoDoubleClick()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        auto &shelf = Find<Shelf>(Window, List);
        const QPoint place = shelf.visualItemRect(shelf.item(RowOf(u"Milk"_s))).center();
        const DragDesk drags(DropOn(CartName));
        QTest::mouseClick(shelf.viewport(), Qt::LeftButton, {}, place);
        QMouseEvent second(QEvent::MouseButtonDblClick, place, shelf.viewport()->mapToGlobal(place), Qt::LeftButton,
                           Qt::LeftButton, {});
        QCoreApplication::sendEvent(shelf.viewport(), &second);
        QMouseEvent move(QEvent::MouseMove, place + QPoint(40, 0), shelf.viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(shelf.viewport(), &move);
        QTest::mouseRelease(shelf.viewport(), Qt::LeftButton, {}, place + QPoint(40, 0));
        QCOMPARE(drags.Drags, 1);
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        desk.TakeFiles();
    }

    void TheOtherWaysDoWhatTheDropDoes_data()
    {
        QTest::addColumn<QString>("way");
        for (const QString &way : {u"drop"_s, u"Ins"_s, u"menu"_s, u"menu key"_s, u"Enter on the cart"_s,
                                   u"Space on the cart"_s, u"click on the cart"_s})
            QTest::addRow("%s", qPrintable(way)) << way;
    }
    void TheOtherWaysDoWhatTheDropDoes()
    {
        QFETCH(QString, way);
        MasterDesk desk(Usual, {LineOf(Bread)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Type(Window, u"txtUnit"_s, u"quart"_s); // what is typed goes with it
        auto &shelf = Find<Shelf>(Window, List);
        auto &cart = Find<Cart>(Window, CartName);
        auto &form = static_cast<Form &>(*shelf.window());
        const QPoint place = shelf.visualItemRect(shelf.item(RowOf(u"Milk"_s))).center();
        const auto choose = [&](QContextMenuEvent::Reason reason) {
            form.FocusOn(&shelf);
            QContextMenuEvent wanted(reason, place, shelf.viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(shelf.viewport(), &wanted);
            auto &menu = Find<QMenu>(Window, u"mnuShelf"_s);
            QVERIFY(menu.isVisible());
            QVERIFY(menu.actions().first()->isEnabled());
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(menu.actions().first()).center());
        };
        if (way == u"drop")
            DropInCart(u"Milk"_s);
        else if (way == u"Ins") {
            form.FocusOn(&shelf);
            QTest::keyClick(&shelf, Qt::Key_Insert);
        } else if (way == u"menu")
            choose(QContextMenuEvent::Mouse);
        else if (way == u"menu key")
            choose(QContextMenuEvent::Keyboard);
        else if (way == u"click on the cart")
            Click(Window, CartName);
        else {
            form.FocusOn(&cart);
            QTest::keyClick(&cart, way.startsWith(u"Enter"_s) ? Qt::Key_Return : Qt::Key_Space);
        }
        Settle();
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        QCOMPARE(Lines().size(), 2);
        QCOMPARE(Lines().last(), u"Milk quart 2.99 Corner N x1 -0 =2.99"_s);
        QCOMPARE(int(Shopping.CurrentItemIndex), 2);
        QCOMPARE(desk.TakeFiles(), (QStringList{u"mastshop.txt"_s, u"stores/untitled.lst"_s}));
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdSaveChanges cmdClear"_s);
        QVERIFY(FocusOf(Window) != CartName);
    }

    void TheKeyTakesTheMarkedItem()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        auto &shelf = Find<Shelf>(Window, List);
        static_cast<Form *>(shelf.window())->FocusOn(&shelf);
        QTest::keyClick(&shelf, Qt::Key_Insert); // the toolkit's mark is nobody's choice
        QCOMPARE(Lines(), QStringList());
        QTest::keyClick(&shelf, Qt::Key_Down);
        QTest::keyClick(&shelf, Qt::Key_Insert);
        Settle();
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        QCOMPARE(SelectedRow(Window, List), 1);
        QTest::keyClick(&shelf, Qt::Key_Insert); // on the list already
        QCOMPARE(Lines().size(), 1);
        desk.TakeFiles();
    }

    void TheMenuIsGreyForAnItemOnTheList()
    {
        const MasterDesk desk(Usual, {LineOf(Milk)});
        OpenStore(u"Corner"_s);
        auto &shelf = Find<Shelf>(Window, List);
        const QPoint place = shelf.visualItemRect(shelf.item(RowOf(u"Milk"_s))).center();
        QContextMenuEvent wanted(QContextMenuEvent::Mouse, place, shelf.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(shelf.viewport(), &wanted);
        auto &menu = Find<QMenu>(Window, u"mnuShelf"_s);
        QVERIFY(menu.isVisible());
        QVERIFY(!menu.actions().first()->isEnabled());
        QCOMPARE(TextOf(Window, u"txtItem"_s), u"Milk"_s); // the item was clicked
        menu.close();
        // Beside the rows there is nothing to offer.
        const QPoint below(5, shelf.viewport()->height() - 2);
        QContextMenuEvent beside(QContextMenuEvent::Mouse, below, shelf.viewport()->mapToGlobal(below));
        QCoreApplication::sendEvent(shelf.viewport(), &beside);
        QVERIFY(!menu.isVisible());
    }

    // ------------------------------------------------------------------ other windows

    void AChangeElsewhereFillsTheShelfAnew()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        State.MasterShoppingList(1).Item = u"Cream"_s;
        Q_EMIT TheShoppingDoors.ShelfChanged();
        QCOMPARE(RowsOf(Window, List), (QStringList{u"bread"_s, u"Cream"_s, u"Soap"_s}));
        QCOMPARE(SelectedRow(Window, List), 2); // the item at hand stays it
        QVERIFY(IsEnabled(Window, u"cmdSaveChanges"_s));
        State.MasterShoppingList(3).Item = u"Shampoo"_s;
        Q_EMIT TheShoppingDoors.ShelfChanged();
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s); // what is shown is no item any more
        QCOMPARE(Selected(), QString());
    }

    void TheCurrentListIsShown()
    {
        MasterDesk desk(Usual, {LineOf(Bread, 2)});
        Click(Window, u"cmdViewCurrent"_s);
        QCOMPARE(ActiveWindow(), u"frmCurrentShoppingList"_s);
        QCOMPARE(GridRows(u"frmCurrentShoppingList"_s, u"grdCurrentShoppingList"_s, 1),
                 QStringList{u"bread | loaf | $2.25 | Corner | 2.00 | N | $0.00 | $4.50"_s});
        desk.TakeAll(); // what the other window does is the matter of its own tests
    }

    void TheWindowIsClosed()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window); // anew, without a store
        QCOMPARE(TitleOf(), Title);
        QCOMPARE(Combo().ListIndex(), -1);
        QCOMPARE(Shown(), u" |  | $0.00 | "_s);
    }
};

REGISTER_TEST(gui_frmMasterShoppingList)
#include "gui_frmMasterShoppingList.moc"

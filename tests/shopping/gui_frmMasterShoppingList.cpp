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
#include <unistd.h>

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

Message CannotSave(const QString &error, const QString &list = u"Save Master Shopping List"_s)
{
    return {error, list, Icon::Stop, Buttons::Ok};
}
const QString FileNotFound = u"Error 53: File not found"_s;
const QString PathFileAccess = u"Error 75: Path/File access error"_s;
const QString PathNotFound = u"Error 76: Path not found"_s;

/// The user fills in the dialog that opens next, and leaves it by a button.
void AnswerTheDialog(const QString &item, const QString &unit, const QString &price, const QString &store,
                     const QString &button = u"cmdOK"_s)
{
    QTimer::singleShot(0, qApp, [=] {
        // Pasted, since a test's keyboard has ASCII letters only.
        Find<QLineEdit>(Dialog, u"txtItem"_s).insert(item);
        Find<QLineEdit>(Dialog, u"txtUnit"_s).insert(unit);
        Type(Dialog, u"txtUnitPrice"_s, price);
        Find<DropDownList>(Dialog, Stores).lineEdit()->insert(store);
        Click(Dialog, button);
    });
}

/// While one lives, what the folder's bits say counts for this program, too.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_user(::geteuid())
    {
        if (m_user == 0 && ::seteuid(65534) != 0)
            QFAIL("nobody else to be");
    }
    ~OrdinaryUser()
    {
        if (::seteuid(m_user) != 0)
            qFatal("no way back");
    }

private:
    uid_t m_user;
};

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

    void TheGuideStandsAside_data()
    {
        QTest::addColumn<bool>("guided");
        QTest::newRow("while the guided setup runs") << true;
        QTest::newRow("else it is left alone") << false;
    }
    void TheGuideStandsAside()
    {
        QFETCH(bool, guided);
        const MasterDesk desk;
        const QString guide = u"frmGettingStarted"_s;
        TheWindows.Register(guide, [] { return new Form; });
        Show(guide);
        Click(Window, u"cmdExit"_s);
        State.GuidedSetupActive = guided;
        QVERIFY(IsShown(guide));
        Show(Window);
        QCOMPARE(IsShown(guide), !guided);
        if (!guided)
            TheWindows.Hide(guide);
        CloseByFrame(Window);
        QCOMPARE(IsShown(guide), guided);
        State.GuidedSetupActive = false;
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

    /// The pick moves the focus on: the first letter of a name must not be one.
    void KeysInTheClosedListOnlyMoveTheMark_data()
    {
        QTest::addColumn<QString>("store");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("marked");
        QTest::newRow("a letter") << QString() << int(Qt::Key_M) << u"Market"_s;
        QTest::newRow("the letter of the first one") << QString() << int(Qt::Key_C) << u"Cafe"_s;
        QTest::newRow("down to the first one") << QString() << int(Qt::Key_Down) << u"Cafe"_s;
        QTest::newRow("a letter again") << u"Cafe"_s << int(Qt::Key_C) << u"Corner"_s;
        QTest::newRow("down") << u"Corner"_s << int(Qt::Key_Down) << u"Market"_s;
        QTest::newRow("up") << u"Corner"_s << int(Qt::Key_Up) << u"Cafe"_s;
        QTest::newRow("page down") << u"Cafe"_s << int(Qt::Key_PageDown) << u"Market"_s;
        QTest::newRow("page up") << u"Market"_s << int(Qt::Key_PageUp) << u"Cafe"_s;
        QTest::newRow("end") << u"Cafe"_s << int(Qt::Key_End) << u"Market"_s;
        QTest::newRow("home") << u"Market"_s << int(Qt::Key_Home) << u"Cafe"_s;
    }
    void KeysInTheClosedListOnlyMoveTheMark()
    {
        QFETCH(QString, store);
        QFETCH(int, key);
        QFETCH(QString, marked);
        MasterItemRecord bun = Soap;
        bun.Store = u"Cafe"_s;
        const MasterDesk desk({Milk, DearMilk, bun});
        if (!store.isEmpty())
            OpenStore(store);
        const QString title = TitleOf();
        static_cast<Form *>(Combo().window())->FocusOn(&Combo());
        QTest::keyClick(&Combo(), Qt::Key(key));
        QAbstractItemView *rows = Combo().view();
        QVERIFY(rows->isVisible());
        QCOMPARE(rows->currentIndex().data().toString(), marked);
        QCOMPARE(Combo().currentText(), store);
        QCOMPARE(TitleOf(), title);
        QTest::keyClick(rows, Qt::Key_Return);
        Settle();
        QVERIFY(!rows->isVisible());
        QCOMPARE(TitleOf(), u"Master Shopping List (%1)"_s.arg(marked));
        QCOMPARE(Shown(), u" |  | $0.00 | %1"_s.arg(marked)); // no letter went into a field
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
    }

    void EscLeavesTheStoreAsItWas()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        static_cast<Form *>(Combo().window())->FocusOn(&Combo());
        QTest::keyClick(&Combo(), Qt::Key_M);
        QTest::keyClick(Combo().view(), Qt::Key_Escape);
        Settle();
        QVERIFY(IsShown(Window));
        QCOMPARE(Combo().currentText(), u"Corner"_s);
        QCOMPARE(FocusOf(Window), Stores);
    }

    void KeysInAListWithoutStoresDoNothing()
    {
        const MasterDesk desk(std::vector<MasterItemRecord>{});
        QTest::keyClick(&Combo(), Qt::Key_M);
        QTest::keyClick(&Combo(), Qt::Key_Down);
        QCOMPARE(Combo().ListIndex(), -1);
        QVERIFY(!Combo().view()->isVisible());
        QCOMPARE(FocusOf(Window), Stores);
    }

    void AnAmpersandInAStoreIsNoAccessKey()
    {
        MasterItemRecord tea = Soap;
        tea.Store = u"Tea & Spice"_s; // Alt+Blank, and "&S" is on the save button
        MasterItemRecord bun = Soap;
        bun.Store = u"Bun&Coffee"_s; // Alt+C is nobody's
        const MasterDesk desk({tea, bun});
        OpenStore(u"Bun&Coffee"_s);
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at Bun&Coffee"_s);
        QCOMPARE(Find(Window, List).accessibleName(), u"Items Available at Bun&Coffee"_s);
        QCOMPARE(TitleOf(), u"Master Shopping List (Bun&Coffee)"_s);
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QTest::keyClick(&Find(Window, u"txtItem"_s), Qt::Key_C, Qt::AltModifier);
        Settle();
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        OpenStore(u"Tea & Spice"_s);
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at Tea & Spice"_s);
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
        Type(Window, u"txtStore"_s, u"Bakery"_s);
        PressEnter(Window, u"txtStore"_s); // from outside the ring into it
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QCOMPARE(SelectedText(Window, u"txtItem"_s), u"Soup"_s);
        QCOMPARE(Catalogue().size(), 4);
    }

    void ALongTextIsSeenFromItsBeginning()
    {
        MasterItemRecord first = Soap, second = Soap;
        first.Store = second.Store = u"The Grocery Store at the Corner of Main Street and Second Avenue"_s;
        second.Item = u"Tea"_s;
        const MasterDesk desk({first, second});
        OpenStore(first.Store);
        const auto &store = Find<QLineEdit>(Window, u"txtStore"_s);
        QCOMPARE(store.cursorPosition(), 0);
        for (const QString &item : {u"Soap"_s, u"Tea"_s, u"Tea"_s}) {
            ClickItem(item); // whose store is the same as before
            QCOMPARE(store.text(), first.Store);
            QCOMPARE(store.cursorPosition(), 0);
        }
        Click(Window, u"cmdClear"_s);
        QCOMPARE(store.cursorPosition(), 0);
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

    void ACancelledDialogKeepsWhatWasTyped()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Bath Soap"_s);
        Type(Window, u"txtUnitPrice"_s, u"1.75"_s);
        QTimer::singleShot(0, qApp, [] { Click(Dialog, u"cmdCancel"_s); });
        Click(Window, u"cmdAddToMaster"_s);
        QCOMPARE(Shown(), u"Bath Soap | bar | $1.75 | Corner | taxable"_s);
        QCOMPARE(Enabled(Window, Buttons_), AllCart);
        GoAwayAndComeBack(); // from any other window the selected item is clicked again
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
    }

    void EscInTheDialogAddsNothing()
    {
        const MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        QTimer::singleShot(0, qApp, [] {
            Type(Dialog, u"txtItem"_s, u"Tea"_s);
            auto &combo = Find<DropDownList>(Dialog, Stores);
            combo.showPopup();
            QTest::keyClick(combo.view(), Qt::Key_Escape); // closes the list of stores alone
            QVERIFY(IsShown(Dialog));
            QTest::keyClick(&Find(Dialog, u"txtItem"_s), Qt::Key_Escape);
            QVERIFY(!IsShown(Dialog));
        });
        Click(Window, u"cmdAddToMaster"_s);
        QVERIFY(!TheWindows.Loaded(Dialog));
        QVERIFY(!Shopping.AddItemAccepted);
        QCOMPARE(Catalogue().size(), 4);
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
    }

    /// What was accepted is not lost, and cannot take the place of the item that was selected before.
    void WhatCannotBeAddedStaysInTheFields_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<Message>("message");
        QTest::newRow("the catalogue is full") << u"full"_s << UnknownError;
        QTest::newRow("the catalogue is read-only") << u"read-only"_s << CannotSave(PathFileAccess);
        QTest::newRow("the catalogue is missing") << u"missing"_s << CannotSave(FileNotFound);
        QTest::newRow("its folder is read-only") << u"folder"_s << CannotSave(PathFileAccess);
    }
    void WhatCannotBeAddedStaysInTheFields()
    {
        QFETCH(QString, trouble);
        QFETCH(Message, message);
        MasterDesk desk(Usual, {LineOf(Soap)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        if (trouble == u"full") {
            State.NumberOfMasterItems = 32767;
            State.MasterShoppingList.RedimPreserve(32767);
        } else if (trouble == u"read-only") {
            QVERIFY(QFile(desk.Path(u"mastshop.txt"_s)).setPermissions(QFile::ReadOwner));
        } else if (trouble == u"missing") {
            desk.RemoveFile(u"mastshop.txt"_s);
        }
        const QFile::Permissions all = QFile(desk.Folder()).permissions();
        const QStringList before = Catalogue().mid(0, 4);
        const int count = State.NumberOfMasterItems;
        {
            std::optional<OrdinaryUser> user;
            if (trouble == u"folder") {
                QVERIFY(
                    QFile(desk.Path(u"mastshop.txt"_s))
                        .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther | QFile::WriteOther));
                QVERIFY(QFile(desk.Folder())
                            .setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
                user.emplace();
            }
            AnswerTheDialog(u"Tea"_s, u"box"_s, u"4.1"_s, u"Bakery"_s);
            Click(Window, u"cmdAddToMaster"_s);
        }
        QVERIFY(QFile(desk.Folder()).setPermissions(all));
        QCOMPARE(desk.TakeMessage(), message);
        QCOMPARE(int(State.NumberOfMasterItems), count);
        QCOMPARE(Catalogue().mid(0, 4), before);
        QVERIFY(!Shopping.AddItemAccepted); // or the window would not click its item any more
        QCOMPARE(Shown(), u"Tea | box | $4.10 | Bakery"_s);
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Selected(), QString());
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
        QCOMPARE(Combo().currentText(), u"Corner"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"bread"_s, u"Milk"_s, u"Soap"_s}));
        GoAwayAndComeBack();
        QCOMPARE(Shown(), u"Tea | box | $4.10 | Bakery"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear"_s);
        ClickItem(u"Soap"_s); // the window goes on as ever
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
        QCOMPARE(Selected(), u"Y"_s);
        desk.TakeFiles();
    }

    void APriceBeyondMoneyIsMendedInTheDialog()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        QTimer::singleShot(0, qApp, [&] {
            Type(Dialog, u"txtItem"_s, u"Tea"_s);
            Type(Dialog, u"txtUnit"_s, u"box"_s);
            Type(Dialog, u"txtUnitPrice"_s, u"1e15"_s); // a number, but no amount of money
            Find<DropDownList>(Dialog, Stores).setEditText(u"Corner"_s);
            Click(Dialog, u"cmdOK"_s);
            QCOMPARE(desk.TakeMessage(), (Message{UnknownErrorText, u"Add Item"_s, Icon::Warning, Buttons::Ok}));
            QVERIFY(IsShown(Dialog));
            QCOMPARE(FocusOf(Dialog), u"txtUnitPrice"_s);
            QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s); // nothing of it has come here
            Type(Dialog, u"txtUnitPrice"_s, u"15"_s);
            Click(Dialog, u"cmdOK"_s);
        });
        Click(Window, u"cmdAddToMaster"_s);
        desk.TakeFiles();
        QCOMPARE(Catalogue().size(), 5);
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5 Corner Y"_s);
        QCOMPARE(Catalogue().last(), u"Tea box 15 Corner N"_s);
    }

    /// The file's grammar: a text ends at the next quote, and a comma inside the quotes is part of it.
    void NamesAreKeptAsTheFileCanTellThem_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        const auto row = [](const char *name, const QString &typed, const QString &kept) {
            QTest::newRow(name) << typed << kept;
        };
        row("letters outside ASCII", u"Jalape\u00F1o, \u8336, \u0416\u0438\u0442\u043E"_s,
            u"Jalape\u00F1o, \u8336, \u0416\u0438\u0442\u043E"_s);
        row("beyond the first plane", u"Tea \U0001F375"_s, u"Tea \U0001F375"_s);
        row("commas and blanks", u" a, b ,"_s, u" a, b ,"_s);
        row("an apostrophe and an ampersand", u"B&J's"_s, u"B&J's"_s);
        row("a quote inside", u"5\" pipe"_s, u"5"_s);
        row("what looks like a Boolean", u"#TRUE#"_s, u"#TRUE#"_s);
        row("what looks like a number", u"12"_s, u"12"_s);
    }
    void NamesAreKeptAsTheFileCanTellThem()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        MasterDesk desk;
        const QStringList before = Catalogue();
        OpenStore(u"Corner"_s);
        AnswerTheDialog(typed, typed, u"4.1"_s, typed);
        Click(Window, u"cmdAddToMaster"_s);
        desk.TakeFiles();
        QCOMPARE(Catalogue().mid(0, 4), before); // nothing else is lost
        QCOMPARE(Catalogue().size(), 5);
        const MasterItemRecord &added = State.MasterShoppingList(5);
        QCOMPARE(added.Item, kept);
        QCOMPARE(added.Unit, kept);
        QCOMPARE(added.Store, kept);
        QVERIFY(Combo().Items().contains(kept));
        OpenStore(kept);
        ClickItem(kept);
        QCOMPARE(Shown(), u"%1 | %1 | $4.10 | %1"_s.arg(kept));
        Click(Window, CartName);
        QCOMPARE(desk.TakeMessage(), Added(kept));
        QCOMPARE(Lines(), QStringList{u"%1 %1 4.1 %1 N x1 -0 =4.1"_s.arg(kept)});
        QCOMPARE(Selected(), u"Y"_s);
        desk.TakeFiles();
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

    void APriceIsSavedAsItReads_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("saved"); // empty: refused
        QTest::addColumn<QString>("shown"); // once the field is left
        const auto row = [](const char *typed, const QString &saved, const QString &shown) {
            QTest::newRow(typed) << QString::fromUtf8(typed) << saved << shown;
        };
        row("$1,234.50", u"1234.5"_s, u"$1,234.50"_s);
        row("(2.50)", u"-2.5"_s, u"($2.50)"_s);
        row("-2.5", u"-2.5"_s, u"($2.50)"_s);
        row("1e2", u"100"_s, u"$100.00"_s);
        row(" 3 ", u"3"_s, u"$3.00"_s);
        row("0", u"0"_s, u"$0.00"_s);
        row("1.005", u"1.01"_s, u"$1.01"_s); // leaving the field rounds it
        row("abc", {}, u"abc"_s);
        row("1.2.3", {}, u"1.2.3"_s);
        row("5%", {}, u"5%"_s);
        row("12/24/97", {}, u"12/24/97"_s);
        row("", {}, {});
    }
    void APriceIsSavedAsItReads()
    {
        QFETCH(QString, typed);
        QFETCH(QString, saved);
        QFETCH(QString, shown);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtUnitPrice"_s, typed);
        Click(Window, u"cmdSaveChanges"_s);
        if (saved.isEmpty()) {
            QCOMPARE(desk.TakeMessage(), (Message{u"Unit Price does not contain a valid currency amount"_s, Title,
                                                  Icon::Warning, Buttons::Ok}));
            QCOMPARE(FocusOf(Window), u"txtUnitPrice"_s);
        }
        QCOMPARE(Catalogue()[2], u"Soap bar %1 Corner Y"_s.arg(saved.isEmpty() ? u"1.5"_s : saved));
        QCOMPARE(TextOf(Window, u"txtUnitPrice"_s), shown);
        desk.TakeFiles();
    }

    void APriceThatIsNotTouchedKeepsItsDecimals()
    {
        MasterItemRecord fine = Soap;
        fine.UnitPrice = Currency::FromTenThousandths(12345);
        MasterDesk desk({Milk, fine, Bread});
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        QCOMPARE(TextOf(Window, u"txtUnitPrice"_s), u"$1.23"_s);
        Type(Window, u"txtUnit"_s, u"box"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue()[1], u"Soap box 1.2345 Corner Y"_s);
        DropInCart(u"Soap"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Soap"_s));
        QCOMPARE(Lines(), QStringList{u"Soap box 1.2345 Corner Y x1 -0 =1.2345"_s});
        GoAwayAndComeBack();
        QCOMPARE(Selected(), u"Y"_s); // and not once more into the cart
        Type(Window, u"txtUnitPrice"_s, u"1.24"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue()[1], u"Soap box 1.24 Corner Y"_s);
        QVERIFY(Lines().first().startsWith(u"Soap box 1.24 "_s));
        desk.TakeFiles();
    }

    void ANewItemHasThePriceThatWasTyped()
    {
        MasterItemRecord fine = Soap;
        fine.UnitPrice = Currency::FromTenThousandths(12345);
        MasterDesk desk({fine});
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        AnswerTheDialog(u"Tea"_s, u"box"_s, u"1.23"_s, u"Corner"_s);
        Click(Window, u"cmdAddToMaster"_s);
        QCOMPARE(Catalogue().last(), u"Tea box 1.23 Corner N"_s);
        desk.TakeFiles();
    }

    void APriceBeyondMoneyIsAnUnknownError()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtUnitPrice"_s, u"1e15"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5 Corner Y"_s);
        QVERIFY(IsEnabled(Window, u"cmdSaveChanges"_s)); // to be mended and saved
    }

    /// The store is not among the rules of this window.
    void AChangeWithoutAStoreIsSaved()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtStore"_s, {});
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5  Y"_s);
        QCOMPARE(Combo().Items(), (QStringList{QString(), u"Corner"_s, u"Market"_s}));
        QCOMPARE(Combo().ListIndex(), 0);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Soap"_s});
        QCOMPARE(TitleOf(), u"Master Shopping List ()"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtStore"_s, u"Corner"_s); // and found again
        Click(Window, u"cmdSaveChanges"_s);
        desk.TakeFiles();
        QCOMPARE(Catalogue()[2], u"Soap bar 1.5 Corner Y"_s);
    }

    /// Another program has written the same file meanwhile: what this one holds is what is saved.
    void TheLastSaveWins()
    {
        MasterDesk desk(Usual, {LineOf(Bread)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        desk.WriteFile(u"mastshop.txt"_s, "1\r\n\"Nuts\"\r\n\"bag\"\r\n5\r\n\"Corner\"\r\n#FALSE#\r\n");
        desk.WriteFile(u"stores\\untitled.lst"_s, "0\r\n");
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        const QByteArray catalogue = desk.ReadFile(u"mastshop.txt"_s);
        QVERIFY(catalogue.startsWith("4\r\n\"Milk\"\r\n"));
        QVERIFY(!catalogue.contains("Nuts"));
        QCOMPARE(Lines().size(), 2);
        QVERIFY(desk.ReadFile(u"stores\\untitled.lst"_s).startsWith("2\r\n\"bread\"\r\n"));
        desk.WriteFile(u"mastshop.txt"_s, "garbage");
        ClickItem(u"Soap"_s);
        Type(Window, u"txtUnit"_s, u"box"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue(), (QStringList{u"Milk gallon 2.99 Corner N"_s, u"Milk quart 3.49 Market N"_s,
                                           u"Soap box 1.5 Corner Y"_s, u"bread loaf 2.25 Corner N"_s}));
        desk.TakeFiles();
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

    void ASaveTellsAnewWhetherTheItemIsOnTheList_data()
    {
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("selected");
        QTest::newRow("equal to a line from now on") << u"3.25"_s << u"Y"_s;
        QTest::newRow("different from all") << u"3.00"_s << u"N"_s;
    }
    void ASaveTellsAnewWhetherTheItemIsOnTheList()
    {
        QFETCH(QString, price);
        QFETCH(QString, selected);
        MasterItemRecord dear = Milk;
        dear.UnitPrice = Cents(325);
        MasterDesk desk(Usual, {LineOf(Bread), LineOf(dear)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QCOMPARE(Selected(), u"N"_s);
        Type(Window, u"txtUnitPrice"_s, price);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Selected(), selected);
        const bool onList = selected == u"Y"_s;
        QCOMPARE(Enabled(Window, Buttons_),
                 onList ? u"cmdClear"_s : u"cmdClear pnlAddToCurrent imgCurrentShoppingList"_s);
        if (onList)
            QCOMPARE(int(Shopping.CurrentItemIndex), 2);
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
    }

    void ALineThatCouldNotFollowIsNoneOfTheItem()
    {
        MasterDesk desk(Usual, {LineOf(Milk)});
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QCOMPARE(Selected(), u"Y"_s);
        QVERIFY(QFile::setPermissions(desk.Path(u"stores\\untitled.lst"_s), QFile::ReadOwner | QFile::ReadUser));
        Type(Window, u"txtUnitPrice"_s, u"3"_s);
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(), CannotSave(PathFileAccess, u"Save Current Shopping List"_s));
        QCOMPARE(Catalogue().first(), u"Milk gallon 3 Corner N"_s);
        QVERIFY(Lines().first().startsWith(u"Milk gallon 2.99"_s));
        QCOMPARE(Selected(), u"N"_s);
        QCOMPARE(Enabled(Window, Buttons_), u"cmdClear pnlAddToCurrent imgCurrentShoppingList"_s);
        desk.TakeFiles();
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

    /// The catalogue in memory outlives its file: nothing is read that is not there.
    void AChangeThatCannotBeSavedCanBeTriedAgain_data()
    {
        QTest::addColumn<bool>("missing");
        QTest::addColumn<QString>("error");
        QTest::newRow("missing") << true << FileNotFound;
        QTest::newRow("read-only") << false << PathFileAccess;
    }
    void AChangeThatCannotBeSavedCanBeTriedAgain()
    {
        QFETCH(bool, missing);
        QFETCH(QString, error);
        MasterDesk desk(Usual, {LineOf(Soap, 2)});
        const QStringList before = Catalogue(), linesBefore = Lines();
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtItem"_s, u"Soup"_s);
        const QByteArray file = desk.ReadFile(u"mastshop.txt"_s);
        if (missing)
            desk.RemoveFile(u"mastshop.txt"_s);
        else
            QVERIFY(QFile(desk.Path(u"mastshop.txt"_s)).setPermissions(QFile::ReadOwner));
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(desk.TakeMessage(), CannotSave(error));
        QCOMPARE(desk.Messages.size(), 0);
        QCOMPARE(desk.ReadFile(u"mastshop.txt"_s), missing ? QByteArray() : file);
        QCOMPARE(Catalogue(), before);
        QCOMPARE(Lines(), linesBefore);
        QCOMPARE(Shown(), u"Soup | bar | $1.50 | Corner | taxable"_s); // what was typed is not lost
        QCOMPARE(Enabled(Window, Buttons_), u"cmdSaveChanges cmdClear"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"bread"_s, u"Milk"_s, u"Soap"_s}));
        if (missing)
            desk.WriteFile(u"mastshop.txt"_s, file);
        else
            QVERIFY(QFile(desk.Path(u"mastshop.txt"_s)).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        Click(Window, u"cmdSaveChanges"_s);
        QCOMPARE(Catalogue(), (QStringList{u"Milk gallon 2.99 Corner N"_s, u"Milk quart 3.49 Market N"_s,
                                           u"Soup bar 1.5 Corner Y"_s, u"bread loaf 2.25 Corner N"_s}));
        QVERIFY(Lines().first().startsWith(u"Soup bar 1.5 Corner Y x2"_s));
        desk.TakeFiles();
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
        QCOMPARE(TextOf(Window, u"lblStoreItems"_s), u"Items Available at Store"_s); // as before one was chosen
        QCOMPARE(Shown(), u" |  | $0.00 | "_s);
    }

    /// The record goes that is at hand; the shelf that follows is the one of the field, not of the drop-down list.
    void ADeleteFollowsTheFieldOfTheStore_data()
    {
        QTest::addColumn<QString>("store");
        QTest::addColumn<QStringList>("shelf");
        QTest::addColumn<QString>("combo");
        QTest::newRow("another store") << u"Market"_s << QStringList{u"Milk"_s} << u"Market"_s;
        QTest::newRow("a store without items") << u"Bakery"_s << QStringList() << QString();
    }
    void ADeleteFollowsTheFieldOfTheStore()
    {
        QFETCH(QString, store);
        QFETCH(QString, combo);
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        Type(Window, u"txtStore"_s, store);
        Click(Window, u"cmdDeleteFromMaster"_s);
        desk.TakeFiles();
        QCOMPARE(Catalogue(), (QStringList{u"Milk gallon 2.99 Corner N"_s, u"Milk quart 3.49 Market N"_s,
                                           u"bread loaf 2.25 Corner N"_s}));
        QTEST(RowsOf(Window, List), "shelf");
        QCOMPARE(Combo().Items(), (QStringList{u"Corner"_s, u"Market"_s}));
        QCOMPARE(Combo().currentText(), combo);
        QCOMPARE(TitleOf(), u"Master Shopping List (%1)"_s.arg(store));
        QCOMPARE(Shown(), u" |  | $0.00 | "_s + combo);
    }

    void ADeleteThatCannotBeSavedDeletesNothing()
    {
        MasterDesk desk;
        const QStringList before = Catalogue();
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        desk.RemoveFile(u"mastshop.txt"_s);
        Click(Window, u"cmdDeleteFromMaster"_s);
        QCOMPARE(desk.TakeMessage(), CannotSave(FileNotFound));
        QCOMPARE(Catalogue(), before);
        QCOMPARE(SelectedRow(Window, List), RowOf(u"Soap"_s));
        QCOMPARE(Shown(), u"Soap | bar | $1.50 | Corner | taxable"_s);
        QCOMPARE(Enabled(Window, Buttons_), AllCart);
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

    void APriceThatIsNoMoneyAddsNothing_data()
    {
        QTest::addColumn<QString>("price");
        QTest::newRow("no number") << u"abc"_s;
        QTest::newRow("nothing") << QString();
        QTest::newRow("a date") << u"12/24/97"_s;
        QTest::newRow("more than money can be") << u"1e15"_s;
        QTest::newRow("more than the bill can be") << u"922337203685477"_s;
    }
    void APriceThatIsNoMoneyAddsNothing()
    {
        QFETCH(QString, price);
        MasterDesk desk(Usual, {LineOf(Soap, 1000)});
        const QStringList before = Lines();
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        Type(Window, u"txtUnitPrice"_s, price);
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Lines(), before);
        QCOMPARE(int(Shopping.CurrentItemIndex), 0);
        QVERIFY(!desk.TakeFiles().contains(u"stores/untitled.lst"_s));
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

    /// Nothing is read from a folder that has gone: the lines in memory stay.
    void AListWithoutItsFolderKeepsItsLines()
    {
        MasterDesk desk(Usual, {LineOf(Bread, 3, Cents(10), Cents(665))});
        const QStringList before = Lines();
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QVERIFY(QDir(desk.Path(u"stores"_s)).removeRecursively());
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), CannotSave(PathNotFound, u"Save Current Shopping List"_s));
        QCOMPARE(Lines(), before);
        QCOMPARE(Selected(), u"N"_s);
        QVERIFY(QDir().mkdir(desk.Path(u"stores"_s)));
        DropInCart(u"Milk"_s); // the list is made anew, as one that was removed by hand is
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        QCOMPARE(Lines(), before + QStringList{u"Milk gallon 2.99 Corner N x1 -0 =2.99"_s});
        desk.TakeFiles();
    }

    void ACatalogueThatCannotBeWrittenIsToldAndTheItemGoesIntoTheCart()
    {
        MasterDesk desk;
        OpenStore(u"Corner"_s);
        ClickItem(u"Milk"_s);
        QVERIFY(QFile(desk.Path(u"mastshop.txt"_s)).setPermissions(QFile::ReadOwner));
        DropInCart(u"Milk"_s);
        QCOMPARE(desk.TakeMessage(), CannotSave(PathFileAccess));
        QCOMPARE(desk.TakeMessage(), Added(u"Milk"_s));
        QCOMPARE(Lines().size(), 1);
        QCOMPARE(Selected(), u"Y"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/untitled.lst"_s});
    }

    void TheCurrentListBesideShowsTheNewLine()
    {
        MasterDesk desk(Usual, {LineOf(Bread, 2)});
        const QString list = u"frmCurrentShoppingList"_s, grid = u"grdCurrentShoppingList"_s;
        Show(list);
        Show(Window);
        OpenStore(u"Corner"_s);
        ClickItem(u"Soap"_s);
        DropInCart(u"Soap"_s);
        QCOMPARE(desk.TakeMessage(), Added(u"Soap"_s));
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(GridRows(list, grid, 1), (QStringList{u"bread | loaf | $2.25 | Corner | 2.00 | N | $0.00 | $4.50"_s,
                                                       u"Soap | bar | $1.50 | Corner | 1.00 | Y | $0.00 | $1.59"_s}));
        QCOMPARE(TextOf(list, u"lblTotalGroceryBill"_s), u"$6.09"_s);
        desk.TakeAll(); // what the other window does is the matter of its own tests
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

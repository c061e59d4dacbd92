// The dialog for a new item: what enables its button, its ring of Enter, what it refuses and what it leaves for the
// catalogue's window.
#include "../commitments/CommitmentsDesk.h"
#include "ShoppingDesk.h"

#include "TestProgram.h"

#include "platform/controls/DropDownList.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmAddItem"_s;
const QString Master = u"frmMasterShoppingList"_s;
const QString Stores = u"cboStoreList"_s;
const QStringList Fields{u"txtItem"_s, u"txtUnit"_s, u"txtUnitPrice"_s};

class AddDesk : public GuiDesk
{
public:
    explicit AddDesk(std::source_location where = std::source_location::current()) : GuiDesk(where)
    {
        TakeCatalogue({{u"Milk"_s, u"gallon"_s, Cents(299), u"Market"_s, false},
                       {u"Soap"_s, u"bar"_s, Cents(150), u"Corner"_s, true}});
        Show(Window);
    }
};

DropDownList &Combo()
{
    return Find<DropDownList>(Window, Stores);
}

/// Replaces the text of the store by typing.
void TypeStore(const QString &store)
{
    static_cast<Form *>(Combo().window())->FocusOn(&Combo());
    Combo().lineEdit()->selectAll();
    if (store.isEmpty())
        QTest::keyClick(&Combo(), Qt::Key_Delete);
    else
        QTest::keyClicks(&Combo(), store);
    Settle();
}

void Enter(const QString &item, const QString &unit, const QString &price, const QString &store)
{
    Type(Window, u"txtItem"_s, item);
    Type(Window, u"txtUnit"_s, unit);
    Type(Window, u"txtUnitPrice"_s, price);
    TypeStore(store);
}

} // namespace

class gui_frmAddItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensEmpty()
    {
        const AddDesk desk;
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Add Item"_s);
        QCOMPARE(Texts(Window, Fields), u" |  | $0.00"_s);
        QCOMPARE(Combo().Items(), (QStringList{u"Corner"_s, u"Market"_s}));
        QCOMPARE(Combo().currentText(), QString());
        QVERIFY(!Find<QCheckBox>(Window, u"chkTaxCode"_s).isChecked());
        QVERIFY(!IsEnabled(Window, u"cmdOK"_s));
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"&OK"_s);
        QCOMPARE(TextOf(Window, u"cmdCancel"_s), u"&Cancel"_s);
        QCOMPARE(TextOf(Window, u"chkTaxCode"_s), u"Taxable"_s);
        QStringList order = TabOrder(Window);
        order.removeAll(QString()); // what the toolkit puts into the drop-down list
        QCOMPARE(order, (QStringList{u"txtItem"_s, u"txtUnit"_s, u"txtUnitPrice"_s, Stores, u"chkTaxCode"_s, u"cmdOK"_s,
                                     u"cmdCancel"_s}));
        QCOMPARE(BuddyText(Window, Stores), u"Store"_s);
    }

    void TheButtonNeedsAllFour_data()
    {
        QTest::addColumn<QString>("empty");
        for (const QString &field : Fields + QStringList{Stores})
            QTest::addRow("%s", qPrintable(field)) << field;
    }
    void TheButtonNeedsAllFour()
    {
        QFETCH(QString, empty);
        const AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"4.1"_s, u"Bakery"_s);
        QVERIFY(IsEnabled(Window, u"cmdOK"_s));
        if (empty == Stores)
            TypeStore({});
        else
            Type(Window, empty, {});
        QVERIFY(!IsEnabled(Window, u"cmdOK"_s));
        if (empty == Stores)
            TypeStore(u"x"_s);
        else
            Type(Window, empty, u"x"_s);
        QVERIFY(IsEnabled(Window, u"cmdOK"_s));
    }

    void APickedStoreCounts()
    {
        const AddDesk desk;
        Type(Window, u"txtItem"_s, u"Tea"_s);
        Type(Window, u"txtUnit"_s, u"box"_s);
        static_cast<Form *>(Combo().window())->FocusOn(&Combo());
        QTest::keyClick(&Combo(), Qt::Key_Down);
        QCOMPARE(Combo().currentText(), u"Corner"_s);
        QVERIFY(IsEnabled(Window, u"cmdOK"_s));
    }

    void AStoreKeepsItsCase()
    {
        const AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"4.1"_s, u"CORNER"_s);
        PressEnter(Window, Stores);
        QCOMPARE(Combo().currentText(), u"CORNER"_s);
        TypeStore(u"co"_s); // nothing is completed
        QCOMPARE(Combo().currentText(), u"co"_s);
        static_cast<Form *>(Combo().window())->FocusOn(&Find(Window, u"txtItem"_s));
        QCOMPARE(Combo().currentText(), u"co"_s);
    }

    void EnterGoesRound()
    {
        const AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"4.1"_s, u"Bakery"_s);
        static_cast<Form *>(Combo().window())->FocusOn(&Find(Window, u"txtItem"_s));
        PressEnter(Window, u"txtItem"_s);
        QCOMPARE(FocusOf(Window), u"txtUnit"_s);
        PressEnter(Window, u"txtUnit"_s);
        QCOMPARE(FocusOf(Window), u"txtUnitPrice"_s);
        PressEnter(Window, u"txtUnitPrice"_s);
        QCOMPARE(FocusOf(Window), Stores);
        QCOMPARE(Combo().lineEdit()->selectedText(), u"Bakery"_s);
        PressEnter(Window, Stores);
        QCOMPARE(FocusOf(Window), u"txtItem"_s);
        QCOMPARE(SelectedText(Window, u"txtItem"_s), u"Tea"_s);
        QVERIFY(IsShown(Window)); // the ring presses no button
        QVERIFY(!Shopping.AddItemAccepted);
    }

    void ThePriceIsFormattedWhenItIsLeft()
    {
        const AddDesk desk;
        Type(Window, u"txtUnitPrice"_s, u"4.1"_s);
        PressEnter(Window, u"txtUnitPrice"_s);
        QCOMPARE(TextOf(Window, u"txtUnitPrice"_s), u"$4.10"_s);
    }

    void AnEntryIsLeftForTheCatalogue()
    {
        const AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"4.1"_s, u"Corner Shop, 2nd St."_s);
        Click(Window, u"chkTaxCode"_s);
        Click(Window, u"cmdOK"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(Shopping.AddItemAccepted);
        QCOMPARE(Texts(Master, Fields + QStringList{u"txtStore"_s}), u"Tea | box | $4.10 | Corner Shop, 2nd St."_s);
        QVERIFY(Find<QCheckBox>(Master, u"chkTaxCode"_s).isChecked());
        QCOMPARE(Catalogue().size(), 2); // adding it is the other window's
    }

    void APriceThatIsNoNumberIsRefused()
    {
        AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"abc"_s, u"Corner"_s);
        Click(Window, u"cmdOK"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Unit Price does not contain a valid currency amount"_s, u"Add Item"_s,
                                              Icon::Warning, Buttons::Ok}));
        QCOMPARE(FocusOf(Window), u"txtUnitPrice"_s);
        QVERIFY(!Shopping.AddItemAccepted);
        QVERIFY(!TheWindows.Loaded(Master));
    }

    void ACancelLeavesNothing()
    {
        const AddDesk desk;
        Enter(u"Tea"_s, u"box"_s, u"4.1"_s, u"Corner"_s);
        Click(Window, u"cmdCancel"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(!Shopping.AddItemAccepted);
        QVERIFY(!TheWindows.Loaded(Master));
    }
};

REGISTER_TEST(gui_frmAddItem)
#include "gui_frmAddItem.moc"

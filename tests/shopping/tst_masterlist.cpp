// The catalogue: its stores and shelves, which record and which line a click on an item means, its entry rules and
// edits.
#include "ShoppingDesk.h"

#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "platform/values/Locale.h"
#include "shopping/MasterList.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const MasterItemRecord Milk{u"Milk"_s, u"gallon"_s, Cents(299), u"Corner"_s, false};
const MasterItemRecord Soap{u"Soap"_s, u"bar"_s, Cents(150), u"Corner"_s, true};
const MasterItemRecord DearMilk{u"Milk"_s, u"gallon"_s, Cents(349), u"Market"_s, false};

MasterItemRecord With(MasterItemRecord item, auto MasterItemRecord::*field, const auto &value)
{
    item.*field = value;
    return item;
}

constexpr Currency Greatest = Currency::FromTenThousandths(std::numeric_limits<qint64>::max());

class Household : public FakeDesk
{
public:
    Household()
    {
        LayHousehold();
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.SalesTax = 0.06F;
    }
};

constexpr int TypeMismatch = 13, Overflow = 6, SubscriptOutOfRange = 9;

} // namespace

class tst_masterlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void StoresAreListedOnceEach_data()
    {
        QTest::addColumn<QStringList>("stores");
        QTest::addColumn<QStringList>("listed");
        QTest::newRow("none") << QStringList{} << QStringList{};
        QTest::newRow("each once, in alphabetical order")
            << QStringList{u"Market"_s, u"Corner"_s, u"Market"_s} << QStringList{u"Corner"_s, u"Market"_s};
        QTest::newRow("names that differ in case alone are two")
            << QStringList{u"corner"_s, u"CORNER"_s, u"Bakery"_s} << QStringList{u"Bakery"_s, u"corner"_s, u"CORNER"_s};
        QTest::newRow("blanks count") << QStringList{u"Corner"_s, u"Corner "_s}
                                      << QStringList{u"Corner"_s, u"Corner "_s};
        QTest::newRow("one without a name")
            << QStringList{u"Corner"_s, QString()} << QStringList{QString(), u"Corner"_s};
    }
    void StoresAreListedOnceEach()
    {
        QFETCH(QStringList, stores);
        const FakeDesk desk;
        std::vector<MasterItemRecord> items;
        for (const QString &store : stores)
            items.push_back(With(Milk, &MasterItemRecord::Store, store));
        TakeCatalogue(items);
        QTEST(DistinctStores(), "listed");
    }

    void AShelfHoldsTheItemsOfItsStore()
    {
        const FakeDesk desk;
        TakeCatalogue({Soap, DearMilk, Milk, Milk});
        QCOMPARE(ItemsAt(u"Corner"_s), (QStringList{u"Soap"_s, u"Milk"_s, u"Milk"_s}));
        QCOMPARE(ItemsAt(u"Market"_s), QStringList{u"Milk"_s});
        QCOMPARE(ItemsAt(u"corner"_s), QStringList());
        QVERIFY(HasItemsAt(u"Market"_s));
        QVERIFY(!HasItemsAt(u"market"_s));
        State.NumberOfMasterItems = 0; // what lies behind the count is stale
        QCOMPARE(ItemsAt(u"Corner"_s), QStringList());
        QVERIFY(!HasItemsAt(u"Market"_s));
        QCOMPARE(DistinctStores(), QStringList());
    }

    // ------------------------------------------------------------------ which record and which line

    void AClickFinds_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("store");
        QTest::addColumn<int>("record"); // 0: no match, and both indexes stay at 77
        QTest::newRow("the record of that name and store") << u"Soap"_s << u"Corner"_s << 1;
        QTest::newRow("the later of two records") << u"Milk"_s << u"Corner"_s << 4;
        QTest::newRow("the shelf decides") << u"Milk"_s << u"Market"_s << 3;
        QTest::newRow("no other case") << u"milk"_s << u"Corner"_s << 0;
        QTest::newRow("no other case of the store") << u"Milk"_s << u"corner"_s << 0;
        QTest::newRow("nothing where nothing is selected") << QString() << u"Corner"_s << 0;
    }
    void AClickFinds()
    {
        QFETCH(QString, item);
        QFETCH(QString, store);
        QFETCH(int, record);
        const FakeDesk desk;
        TakeCatalogue({Soap, Milk, DearMilk, Milk});
        Shopping.MasterItemIndex = Shopping.CurrentItemIndex = 77;
        QCOMPARE(FindItem(item, store).has_value(), record != 0);
        QCOMPARE(int(Shopping.MasterItemIndex), record != 0 ? record : 77);
        QCOMPARE(int(Shopping.CurrentItemIndex), 77);
    }

    void AnItemIsOnTheListWhereFiveFieldsAreEqual_data()
    {
        QTest::addColumn<CurrentItemRecord>("line");
        QTest::addColumn<bool>("onList");
        const auto row = [](const char *name, const CurrentItemRecord &line, bool onList) {
            QTest::newRow(name) << line << onList;
        };
        row("quantity, coupon and full price do not count", LineOf(Milk, 3, Cents(50), Cents(847)), true);
        row("item", LineOf(With(Milk, &MasterItemRecord::Item, u"milk"_s)), false);
        row("unit", LineOf(With(Milk, &MasterItemRecord::Unit, u"quart"_s)), false);
        row("a price that differs by a ten-thousandth",
            LineOf(With(Milk, &MasterItemRecord::UnitPrice, Currency::FromTenThousandths(29901))), false);
        row("store", LineOf(With(Milk, &MasterItemRecord::Store, u"Market"_s)), false);
        row("tax", LineOf(With(Milk, &MasterItemRecord::Taxable, true)), false);
    }
    void AnItemIsOnTheListWhereFiveFieldsAreEqual()
    {
        QFETCH(CurrentItemRecord, line);
        QFETCH(bool, onList);
        const FakeDesk desk;
        TakeCatalogue({Milk});
        TakeLines({LineOf(Soap), line});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), onList);
        QCOMPARE(int(Shopping.CurrentItemIndex), onList ? 2 : 0);
    }

    void TheLastOfSeveralLinesCounts()
    {
        const FakeDesk desk;
        TakeCatalogue({Milk});
        TakeLines({LineOf(Milk), LineOf(Soap), LineOf(Milk), LineOf(DearMilk)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), true);
        QCOMPARE(int(Shopping.CurrentItemIndex), 3);
    }

    void ALaterRecordWithoutALineHidesTheEarlierOneOnTheList()
    {
        const FakeDesk desk;
        const MasterItemRecord quart = With(Milk, &MasterItemRecord::Unit, u"quart"_s);
        TakeCatalogue({Milk, quart});
        TakeLines({LineOf(Milk)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), false);
        QCOMPARE(int(Shopping.MasterItemIndex), 2);
        QCOMPARE(int(Shopping.CurrentItemIndex), 1); // of the earlier record
        TakeLines({LineOf(quart), LineOf(Milk)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), true);
        QCOMPARE(int(Shopping.CurrentItemIndex), 1); // of the later one, although the other line is later
    }

    // ------------------------------------------------------------------ entry rules

    void AnEntry_data()
    {
        QTest::addColumn<QStringList>("entry"); // item, unit, price, store
        QTest::addColumn<QString>("refusal");
        QTest::addColumn<QString>("focus");
        const QString price = u"Unit Price does not contain a valid currency amount"_s;
        const QString item = u"Please enter an item name or description in the Item field"_s;
        const QString unit = u"Please enter a unit (loaf, pound, etc.) in the Unit field"_s;
        const QString store =
            u"Please enter a new store or select an existing store from the combo box in the Store field"_s;
        const auto row = [](const char *name, const QStringList &entry, const QString &refusal, const QString &focus) {
            QTest::newRow(name) << entry << refusal << focus;
        };
        row("good", {u"Tea"_s, u"box"_s, u"$1.00"_s, u"Corner"_s}, {}, {});
        row("blanks are texts", {u" "_s, u" "_s, u"-1"_s, u" "_s}, {}, {});
        row("a price that is no number", {u"Tea"_s, u"box"_s, u"abc"_s, u"Corner"_s}, price, u"txtUnitPrice"_s);
        row("no price", {u"Tea"_s, u"box"_s, {}, u"Corner"_s}, price, u"txtUnitPrice"_s);
        row("no item", {{}, u"box"_s, u"1"_s, u"Corner"_s}, item, u"txtItem"_s);
        row("no unit", {u"Tea"_s, {}, u"1"_s, u"Corner"_s}, unit, u"txtUnit"_s);
        row("the price is looked at first", {{}, {}, u"abc"_s, {}}, price, u"txtUnitPrice"_s);
        row("then the item", {{}, {}, u"1"_s, {}}, item, u"txtItem"_s);
        row("then the unit", {u"Tea"_s, {}, u"1"_s, {}}, unit, u"txtUnit"_s);
        row("no store: the focus goes to the unit", {u"Tea"_s, u"box"_s, u"1"_s, {}}, store, u"txtUnit"_s);
    }
    void AnEntry()
    {
        QFETCH(QStringList, entry);
        QFETCH(QString, refusal);
        const ItemEntry texts{entry[0], entry[1], entry[2], entry[3]};
        const auto refused = ValidateNewItem(texts);
        QCOMPARE(refused ? refused->Text : QString(), refusal);
        QTEST(refused ? refused->Focus : QString(), "focus");
        // In the catalogue's own window the store may be empty.
        QCOMPARE(ValidateItem(texts), refusal.contains(u"store"_s) ? std::nullopt : refused);
    }

    void AnEntryBecomesARecord()
    {
        QCOMPARE(RecordOf({u"Milk"_s, u"gallon"_s, u"$2.99"_s, u"Corner"_s, false}), Milk);
        QCOMPARE(RecordOf({u"Soap"_s, u"bar"_s, u"1.5"_s, u"Corner"_s, true}), Soap);
        QCOMPARE(ErrorOf([] { RecordOf({u"Milk"_s, u"gallon"_s, u"abc"_s, u"Corner"_s, false}); }), TypeMismatch);
        QCOMPARE(ErrorOf([] { RecordOf({u"Milk"_s, u"gallon"_s, u"1e15"_s, u"Corner"_s, false}); }), Overflow);
    }

    // ------------------------------------------------------------------ edits

    void AnItemIsAddedAtTheEnd()
    {
        const FakeDesk desk;
        AddMasterItem(Soap);
        AddMasterItem(Milk);
        QCOMPARE(Catalogue(), (QStringList{u"Soap bar 1.5 Corner Y"_s, u"Milk gallon 2.99 Corner N"_s}));
        QCOMPARE(State.MasterShoppingList.Size(), 2);
    }

    void ACatalogueThatIsFullTakesNoMore()
    {
        const FakeDesk desk;
        State.NumberOfMasterItems = 32767;
        State.MasterShoppingList.Redim(32767);
        QCOMPARE(ErrorOf([] { AddMasterItem(Milk); }), Overflow);
        QCOMPARE(int(State.NumberOfMasterItems), 32767);
        State.NumberOfMasterItems = -3; // as a damaged file may tell
        QCOMPARE(ErrorOf([] { AddMasterItem(Milk); }), SubscriptOutOfRange);
        QCOMPARE(int(State.NumberOfMasterItems), -3);
    }

    void TheRecordAtHandIsChanged()
    {
        const FakeDesk desk;
        TakeCatalogue({Soap, Milk});
        Shopping.MasterItemIndex = 2;
        ChangeMasterItem(DearMilk);
        QCOMPARE(Catalogue(), (QStringList{u"Soap bar 1.5 Corner Y"_s, u"Milk gallon 3.49 Market N"_s}));
        Shopping.MasterItemIndex = 3;
        QCOMPARE(ErrorOf([] { ChangeMasterItem(Milk); }), SubscriptOutOfRange);
    }

    void ARecordBehindTheCountIsNone()
    {
        const FakeDesk desk;
        TakeCatalogue({Soap, Milk});
        State.NumberOfMasterItems = 0; // as a file of no items leaves it
        Shopping.MasterItemIndex = 2;
        QCOMPARE(ErrorOf([] { ChangeMasterItem(DearMilk); }), SubscriptOutOfRange);
        QCOMPARE(State.MasterShoppingList(2).UnitPrice, Milk.UnitPrice);
        State.MasterShoppingList(2).UnitPrice = Currency::FromTenThousandths(29912);
        const ItemEntry entry{Milk.Item, Milk.Unit, u"$2.99"_s, Milk.Store, Milk.Taxable};
        QCOMPARE(AtHandWith(entry).UnitPrice, Cents(299)); // the text, and not the record's exact price
        State.NumberOfMasterItems = 2;
        QCOMPARE(AtHandWith(entry).UnitPrice, Currency::FromTenThousandths(29912));
    }

    void TheRecordAtHandIsDeleted_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("left"); // blank ones at the end included
        const auto row = [](const char *name, const QStringList &names, int index, const QStringList &left) {
            QTest::newRow(name) << names << index << left;
        };
        row("the first", {u"a"_s, u"b"_s, u"c"_s}, 1, {u"b"_s, u"c"_s});
        row("one in the middle", {u"a"_s, u"b"_s, u"c"_s}, 2, {u"a"_s, u"c"_s});
        row("the last", {u"a"_s, u"b"_s, u"c"_s}, 3, {u"a"_s, u"b"_s});
        row("the only one", {u"a"_s}, 1, {});
        row("the only one, whatever is at hand", {u"a"_s}, 9, {});
        row("one without a name goes with it, and a blank one comes last", {u"a"_s, {}, u"c"_s, u"d"_s}, 4,
            {u"a"_s, u"c"_s, QString()});
    }
    void TheRecordAtHandIsDeleted()
    {
        QFETCH(QStringList, names);
        QFETCH(int, index);
        QFETCH(QStringList, left);
        const FakeDesk desk;
        std::vector<MasterItemRecord> items;
        for (const QString &name : names)
            items.push_back(With(Milk, &MasterItemRecord::Item, name));
        TakeCatalogue(items);
        Shopping.MasterItemIndex = qint16(index);
        DeleteMasterItem();
        QCOMPARE(int(State.NumberOfMasterItems), int(left.size()));
        QStringList found;
        for (int i = 1; i <= State.NumberOfMasterItems; ++i)
            found += State.MasterShoppingList(i).Item;
        QCOMPARE(found, left);
    }

    void NothingIsDeletedWithoutARecord()
    {
        const FakeDesk desk;
        TakeCatalogue({Soap, Milk});
        QCOMPARE(ErrorOf([] { DeleteMasterItem(); }), SubscriptOutOfRange);
        QCOMPARE(Catalogue().size(), 2);
        QCOMPARE(int(State.NumberOfMasterItems), 2);
    }

    // ------------------------------------------------------------------ edits with their files

    void AnAddedItemIsInTheFile()
    {
        const Household desk;
        QVERIFY(AddItemAndSave(Milk));
        QCOMPARE(desk.ReadFile(u"mastshop.txt"_s), "1\r\n\"Milk\"\r\n\"gallon\"\r\n2.99\r\n\"Corner\"\r\n#FALSE#\r\n");
    }

    void AChangeReachesTheLineOfTheList()
    {
        const Household desk;
        TakeCatalogue({Milk, Soap});
        TakeLines({LineOf(Milk, 3, Cents(50), Cents(1)), LineOf(Soap)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), true);
        ChangeItemAndSave({u"Whole milk"_s, u"quart"_s, Cents(99), u"Market"_s, true}, true);
        QCOMPARE(Catalogue(), (QStringList{u"Whole milk quart 0.99 Market Y"_s, u"Soap bar 1.5 Corner Y"_s}));
        // Sorted anew; quantity, coupon and full price stay.
        QCOMPARE(Lines(),
                 (QStringList{u"Soap bar 1.5 Corner Y x1 -0 =0"_s, u"Whole milk quart 0.99 Market Y x3 -0.5 =0.01"_s}));
        QVERIFY(desk.ReadFile(u"mastshop.txt"_s).startsWith("2\r\n\"Whole milk\"\r\n\"quart\"\r\n.99\r\n") ||
                desk.ReadFile(u"mastshop.txt"_s).startsWith("2\r\n\"Whole milk\"\r\n\"quart\"\r\n0.99\r\n"));
        QVERIFY(desk.ReadFile(u"stores/untitled.lst"_s).startsWith("2\r\n\"Soap\"\r\n"));
    }

    void AChangeOfAnItemThatIsNotOnTheListLeavesTheList()
    {
        Household desk;
        TakeCatalogue({Milk, Soap});
        TakeLines({LineOf(Soap), LineOf(DearMilk)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), false);
        ChangeItemAndSave(With(Milk, &MasterItemRecord::Item, u"Cream"_s), false);
        QCOMPARE(Catalogue().first(), u"Cream gallon 2.99 Corner N"_s);
        QCOMPARE(Lines().size(), 2);
        QCOMPARE(Lines().last(), u"Milk gallon 3.49 Market N x1 -0 =0"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"mastshop.txt"_s});
    }

    void AChangeThatNoBillCouldHoldChangesNothing()
    {
        const Household desk;
        TakeCatalogue({Milk});
        TakeLines({LineOf(Milk, 3)});
        QCOMPARE(FindItem(u"Milk"_s, u"Corner"_s), true);
        QCOMPARE(ErrorOf([] { ChangeItemAndSave(With(Milk, &MasterItemRecord::UnitPrice, Greatest), true); }),
                 Overflow);
        QCOMPARE(Catalogue(), QStringList{u"Milk gallon 2.99 Corner N"_s});
        QCOMPARE(Lines(), QStringList{u"Milk gallon 2.99 Corner N x3 -0 =0"_s});
    }

    void ADeletedItemIsGoneFromTheFileAndStaysOnTheList()
    {
        Household desk;
        TakeCatalogue({Milk, Soap});
        TakeLines({LineOf(Soap)});
        Shopping.MasterItemIndex = 2;
        DeleteItemAndSave();
        QCOMPARE(Catalogue(), QStringList{u"Milk gallon 2.99 Corner N"_s});
        QCOMPARE(Lines().size(), 1);
        QVERIFY(desk.ReadFile(u"mastshop.txt"_s).startsWith("1\r\n\"Milk\"\r\n"));
        QCOMPARE(desk.TakeFiles(), QStringList());
    }

    void TheCart_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QStringList>("before");
        QTest::addColumn<QStringList>("after");
        QTest::addColumn<int>("line");
        const auto row = [](const char *name, const QStringList &before, const QString &item, const QStringList &after,
                            int line) { QTest::newRow(name) << item << before << after << line; };
        row("the first line", {}, u"Milk"_s, {u"Milk"_s}, 1);
        row("at its place, upper and lower case alike", {u"bread"_s, u"Tea"_s}, u"Milk"_s,
            {u"bread"_s, u"Milk"_s, u"Tea"_s}, 2);
        row("behind lines of the same name", {u"Milk"_s, u"Tea"_s}, u"Milk"_s, {u"Milk"_s, u"Milk"_s, u"Tea"_s}, 2);
        row("behind lines of the same name in another case", {u"Apple"_s, u"milk"_s}, u"MILK"_s,
            {u"Apple"_s, u"milk"_s, u"MILK"_s}, 3);
        row("the list is sorted by that", {u"Tea"_s, u"Apple"_s}, u"Milk"_s, {u"Apple"_s, u"Milk"_s, u"Tea"_s}, 2);
    }
    void TheCart()
    {
        QFETCH(QString, item);
        QFETCH(QStringList, before);
        QFETCH(QStringList, after);
        QFETCH(int, line);
        Household desk;
        std::vector<CurrentItemRecord> lines;
        for (const QString &name : before)
            lines.push_back(LineOf(With(Soap, &MasterItemRecord::Item, name), 2));
        TakeLines(lines);
        QVERIFY(PutOnCurrentList(With(Milk, &MasterItemRecord::Item, item)));
        QStringList names;
        for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
            names += State.CurrentShoppingList(i).Item;
        QCOMPARE(names, after);
        QCOMPARE(int(Shopping.CurrentItemIndex), line);
        QCOMPARE(Lines()[line - 1], item + u" gallon 2.99 Corner N x1 -0 =2.99"_s);
        QCOMPARE(desk.TakeFiles(), (QStringList{u"mastshop.txt"_s, u"stores/untitled.lst"_s}));
    }

    void TheCartTakesNothingThatTheListCannotHold()
    {
        Household desk;
        Shopping.CurrentItemIndex = 5;
        TakeLines({LineOf(With(Milk, &MasterItemRecord::UnitPrice, Greatest))});
        QCOMPARE(ErrorOf([] { PutOnCurrentList(Milk); }), Overflow);
        QCOMPARE(int(State.NumberOfCurrentItems), 1);
        State.NumberOfCurrentItems = -1;
        QCOMPARE(ErrorOf([] { PutOnCurrentList(Milk); }), SubscriptOutOfRange);
        QCOMPARE(int(State.NumberOfCurrentItems), -1);
        QCOMPARE(int(Shopping.CurrentItemIndex), 5);
        desk.TakeFiles();
    }

    /// And is not read back: what is not there would come as blank records.
    void AnEditThatCannotBeSavedIsUndone_data()
    {
        QTest::addColumn<QString>("edit");
        for (const QString &edit : {u"add"_s, u"change"_s, u"change on the list"_s, u"delete"_s})
            QTest::addRow("%s", qPrintable(edit)) << edit;
    }
    void AnEditThatCannotBeSavedIsUndone()
    {
        QFETCH(QString, edit);
        Household desk;
        TakeCatalogue({Milk, Soap});
        TakeLines({LineOf(Soap), LineOf(DearMilk)}); // not sorted, which a save would do
        const QStringList before = Catalogue(), linesBefore = Lines();
        QVERIFY(FindItem(u"Soap"_s, u"Corner"_s).has_value());
        desk.RemoveFile(u"mastshop.txt"_s);
        const bool saved = edit == u"add"      ? AddItemAndSave(DearMilk)
                           : edit == u"delete" ? DeleteItemAndSave()
                                               : ChangeItemAndSave(DearMilk, edit != u"change");
        QVERIFY(!saved);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 53: File not found"_s, u"Save Master Shopping List"_s, Icon::Stop, Buttons::Ok}));
        QCOMPARE(Catalogue(), before);
        QCOMPARE(State.MasterShoppingList.Size(), 2);
        QCOMPARE(Lines(), linesBefore);
        QCOMPARE(desk.TakeFiles(), QStringList());
    }

    void AChangeStaysWhereTheListCannotBeWritten()
    {
        Household desk;
        TakeCatalogue({Milk, Soap});
        TakeLines({LineOf(Soap, 2)});
        QCOMPARE(FindItem(u"Soap"_s, u"Corner"_s), true);
        QVERIFY(QDir(desk.Path(u"stores"_s)).removeRecursively());
        QVERIFY(ChangeItemAndSave(With(Soap, &MasterItemRecord::Unit, u"box"_s), true));
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 76: Path not found"_s, u"Save Current Shopping List"_s, Icon::Stop, Buttons::Ok}));
        QCOMPARE(Catalogue().last(), u"Soap box 1.5 Corner Y"_s);
        QCOMPARE(Lines(), QStringList{u"Soap bar 1.5 Corner Y x2 -0 =0"_s});
        QCOMPARE(desk.TakeFiles(), (QStringList{u"mastshop.txt"_s, u"stores/untitled.lst"_s})); // which is gone
    }

    void AListThatCannotBeWrittenDoesNotHaveTheItem()
    {
        Household desk;
        desk.WriteFile(u"stores/untitled.lst"_s, "0\r\n");
        QFile file(desk.Path(u"stores/untitled.lst"_s));
        QVERIFY(file.setPermissions(QFile::ReadOwner));
        TakeLines({});
        QVERIFY(!PutOnCurrentList(Milk));
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 75: Path/File access error"_s, u"Save Current Shopping List"_s,
                                              Icon::Stop, Buttons::Ok}));
        QCOMPARE(Lines(), QStringList());
        QCOMPARE(int(Shopping.CurrentItemIndex), 0);
        desk.TakeFiles();
    }
};

REGISTER_TEST(tst_masterlist)
#include "tst_masterlist.moc"

// The lines of the current shopping list: what they cost, their order and their edits.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "shopping/CurrentList.h"
#include "shopping/ShoppingState.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

CurrentItemRecord Line(const QString &item, qint64 price = 10000, float quantity = 1, bool taxable = false,
                       qint64 coupon = 0)
{
    return {item, u"each"_s, Count(price), u"Shop"_s, quantity, taxable, Count(coupon), {}};
}

void TakeLines(const std::vector<CurrentItemRecord> &lines)
{
    State.SalesTax = 0.06F;
    State.NumberOfCurrentItems = qint16(lines.size());
    State.CurrentShoppingList.Redim(int(lines.size()));
    std::copy(lines.begin(), lines.end(), State.CurrentShoppingList.begin());
}

void TakeCatalogue(const std::vector<MasterItemRecord> &items)
{
    State.NumberOfMasterItems = qint16(items.size());
    State.MasterShoppingList.Redim(int(items.size()));
    std::copy(items.begin(), items.end(), State.MasterShoppingList.begin());
}

/// The items in order.
QString Items()
{
    QStringList items;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        items += State.CurrentShoppingList(i).Item;
    return items.join(u' ');
}

const CurrentItemEntry Entry{u"Tea"_s, u"box"_s, u"$3.50"_s, u"Corner"_s, u"2.5"_s, u"N"_s, u"$0.25"_s};
const CurrentItemRecord Entered{u"Tea"_s, u"box"_s, Count(35000), u"Corner"_s, 2.5F, false, Count(2500), Count(85000)};

constexpr qint64 AlmostAll = std::numeric_limits<qint64>::max() - 20000;

} // namespace

class tst_currentlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ALineComesTo_data()
    {
        QTest::addColumn<qint64>("price");
        QTest::addColumn<float>("quantity");
        QTest::addColumn<bool>("taxable");
        QTest::addColumn<qint64>("coupon");
        QTest::addColumn<float>("salesTax");
        QTest::addColumn<qint64>("fullPrice");
        const auto row = [](const char *name, qint64 price, float quantity, bool taxable, qint64 coupon, float salesTax,
                            qint64 fullPrice) {
            QTest::newRow(name) << price << quantity << taxable << coupon << salesTax << fullPrice;
        };
        row("without a tax", 24900, 2, false, 0, 0.06F, 49800);
        row("the tax of one unit, however many there are", 10000, 3, true, 0, 0.06F, 30600);
        row("the tax of one unit, also for none", 20000, 0, true, 0, 0.06F, 1200);
        row("the tax of one unit, also for half of it", 20000, 0.5F, true, 0, 0.06F, 11200);
        row("a broken quantity", 10000, 2.5F, false, 0, 0.06F, 25000);
        row("the coupon once, however many there are", 10000, 3, false, 5000, 0.06F, 25000);
        row("a coupon above the price", 30000, 1, false, 50000, 0.06F, -20000);
        row("a negative coupon adds", 30000, 1, false, -5000, 0.06F, 35000);
        row("no tax is set", 10000, 1, true, 0, 0, 10000);
        row("a tie goes down to the even neighbour", 625, 0.5F, false, 0, 0, 312);
        row("a tie goes up to the even neighbour", 625, 1.5F, false, 0, 0, 938);
        row("rounded once: tax and price together", 5, 0.5F, true, 0, 0.5F, 5);
        row("the coupon after the rounding", 625, 0.5F, false, 1, 0, 311);
        row("a negative quantity", 10000, -2, true, 0, 0.5F, -15000);
    }
    void ALineComesTo()
    {
        FakeDesk desk;
        QFETCH(qint64, price);
        QFETCH(float, quantity);
        QFETCH(bool, taxable);
        QFETCH(qint64, coupon);
        QFETCH(float, salesTax);
        QFETCH(qint64, fullPrice);
        State.SalesTax = salesTax;
        QCOMPARE(ComputeFullPrice(Line(u"Milk"_s, price, quantity, taxable, coupon)), Count(fullPrice));
    }

    void ALineBeyondMoneyIsAnError()
    {
        FakeDesk desk;
        QCOMPARE(ErrorOf([] { ComputeFullPrice(Line(u"Milk"_s, 10000, 1e30F)); }), 6);
        QCOMPARE(ErrorOf([] { ComputeFullPrice(Line(u"Milk"_s, 0, 1, false, std::numeric_limits<qint64>::min())); }),
                 6);
        QCOMPARE(ErrorOf([] { ComputeFullPrice(Line(u"Milk"_s, 10000, std::numeric_limits<float>::infinity())); }), 6);
    }

    void TheTaxOfTheWholeQuantityIsAnotherOne()
    {
        FakeDesk desk;
        State.SalesTax = 0.5F;
        QCOMPARE(TaxOfWholeQuantity(Line(u"Milk"_s, 10000, 3)), 1.5);
        QCOMPARE(TaxOfWholeQuantity(Line(u"Milk"_s, 10000, 0)), 0.0);
    }

    void PricingReplacesWhatWasStored()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s, 10000, 3, true), Line(u"Tea"_s, 30000, 1, false, 50000)});
        State.CurrentShoppingList(1).FullPrice = Count(77);
        Shopping.TotalGroceryBill = Count(99);
        PriceCurrentList();
        QCOMPARE(State.CurrentShoppingList(1).FullPrice, Count(30600));
        QCOMPARE(State.CurrentShoppingList(2).FullPrice, Count(-20000));
        QCOMPARE(Shopping.TotalGroceryBill, Count(10600));
    }

    void AnEmptyListCostsNothing()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s)});
        State.NumberOfCurrentItems = 0; // an empty file leaves the lines in memory
        Shopping.TotalGroceryBill = Count(99);
        PriceCurrentList();
        QCOMPARE(Shopping.TotalGroceryBill, Count(0));
        QCOMPARE(State.CurrentShoppingList(1).FullPrice, Count(0));
    }

    void ARowShowsALine()
    {
        FakeDesk desk;
        CurrentItemRecord line = Line(u"Milk, \"whole\""_s, 12500, 1250.5F, true, 2500);
        line.FullPrice = Count(-20000);
        QCOMPARE(CurrentListRow(line), (QStringList{u"Milk, \"whole\""_s, u"each"_s, u"$1.25"_s, u"Shop"_s,
                                                    u"1,250.50"_s, u"Y"_s, u"$0.25"_s, u"($2.00)"_s}));
        line.Taxable = false;
        QCOMPARE(CurrentListRow(line)[5], u"N"_s);
    }

    void Sorting_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QString>("sorted");
        QTest::newRow("nothing") << QStringList{} << u""_s;
        QTest::newRow("one") << QStringList{u"tea"_s} << u"tea"_s;
        QTest::newRow("letters' case does not count")
            << QStringList{u"tea"_s, u"Milk"_s, u"APPLES"_s, u"bread"_s} << u"APPLES bread Milk tea"_s;
        QTest::newRow("equal names keep their order")
            << QStringList{u"TEA"_s, u"milk"_s, u"tea"_s, u"Milk"_s, u"Tea"_s} << u"milk Milk TEA tea Tea"_s;
        QTest::newRow("signs before digits before letters, underline before a")
            << QStringList{u"a"_s, u"_"_s, u"7"_s, u"-"_s, u"Z"_s} << u"- 7 _ a Z"_s;
        QTest::newRow("no numbers, but characters") << QStringList{u"9"_s, u"10"_s} << u"10 9"_s;
        QTest::newRow("letters outside ASCII come last")
            << QStringList{u"Éclair"_s, u"zucchini"_s, u"ÄPFEL"_s, u"äpfel"_s} << u"zucchini ÄPFEL äpfel Éclair"_s;
        QTest::newRow("no hyphen is passed over") << QStringList{u"coop"_s, u"co-op"_s} << u"co-op coop"_s;
        QTest::newRow("the shorter first") << QStringList{u"milks"_s, u"milk"_s, u"mil"_s} << u"mil milk milks"_s;
    }
    void Sorting()
    {
        FakeDesk desk;
        QFETCH(QStringList, items);
        QFETCH(QString, sorted);
        std::vector<CurrentItemRecord> lines;
        for (const QString &item : items)
            lines.push_back(Line(item));
        TakeLines(lines);
        SortCurrentShoppingList();
        QCOMPARE(Items(), sorted);
    }

    void SortingMovesWholeLines()
    {
        FakeDesk desk;
        TakeLines({{u"b"_s, u"box"_s, Count(1), u"S1"_s, 2, true, Count(3), Count(4)},
                   {u"a"_s, u"can"_s, Count(5), u"S2"_s, 6, false, Count(7), Count(8)}});
        const auto before = State.CurrentShoppingList;
        SortCurrentShoppingList();
        QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{before(2), before(1)}));
    }

    void SortingLeavesLinesBehindTheCountAlone()
    {
        FakeDesk desk;
        TakeLines({Line(u"b"_s), Line(u"c"_s), Line(u"a"_s)});
        State.NumberOfCurrentItems = 2;
        SortCurrentShoppingList();
        QCOMPARE(State.CurrentShoppingList(3).Item, u"a"_s);
        QCOMPARE(Items(), u"b c"_s);
    }

    void SelectingFindsTheRecordOfTheCatalogue()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s), Line(u"Tea"_s), Line(u"milk"_s)});
        TakeCatalogue({{u"Milk"_s, {}, {}, u"Shop"_s, {}},
                       {u"Milk"_s, {}, {}, u"shop"_s, {}},
                       {u"Milk"_s, {}, {}, u"Shop"_s, {}},
                       {u"Milk"_s, {}, {}, u"Corner"_s, {}}});
        QVERIFY(SelectCurrentItem(1));
        QCOMPARE(Shopping.CurrentItemIndex, qint16(1));
        QCOMPARE(Shopping.MasterItemIndex, qint16(3)); // the last one of exactly these texts
        QVERIFY(SelectCurrentItem(2));
        QCOMPARE(Shopping.CurrentItemIndex, qint16(2));
        QCOMPARE(Shopping.MasterItemIndex, qint16(3)); // of the line before
        QVERIFY(SelectCurrentItem(3));
        QCOMPARE(Shopping.MasterItemIndex, qint16(3));
    }

    void ARowPastTheLastLineIsAtHandAlthoughItIsNone()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s)});
        Shopping.MasterItemIndex = 7;
        QVERIFY(!SelectCurrentItem(2));
        QCOMPARE(Shopping.CurrentItemIndex, qint16(2));
        QCOMPARE(Shopping.MasterItemIndex, qint16(7));
    }

    void TheHeadingIsNoLine()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s)});
        Shopping.CurrentItemIndex = 1;
        QCOMPARE(ErrorOf([] { SelectCurrentItem(0); }), 9);
        QCOMPARE(Shopping.CurrentItemIndex, qint16(1));
    }

    void AddingAppendsOneUnit()
    {
        FakeDesk desk;
        TakeLines({Line(u"Tea"_s)});
        AddCurrentItem({u"Milk"_s, u"gallon"_s, Count(24900), u"Corner"_s, true});
        QCOMPARE(State.NumberOfCurrentItems, qint16(2));
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Tea"_s);
        QCOMPARE(State.CurrentShoppingList(2), (CurrentItemRecord{u"Milk"_s, u"gallon"_s, Count(24900), u"Corner"_s, 1,
                                                                  true, Count(0), Count(24900)}));
    }

    void AddingToAnEmptyListStartsIt()
    {
        FakeDesk desk;
        TakeLines({Line(u"Tea"_s), Line(u"Milk"_s)});
        State.NumberOfCurrentItems = 0; // an empty file leaves the lines in memory
        AddCurrentItem({u"Bread"_s, {}, Count(1), {}, false});
        QCOMPARE(Items(), u"Bread"_s);
        QCOMPARE(State.CurrentShoppingList.Size(), 1);
    }

    void AListIsFullAt32767Lines()
    {
        FakeDesk desk;
        State.NumberOfCurrentItems = 32767;
        State.CurrentShoppingList.Redim(32767);
        QCOMPARE(ErrorOf([] { AddCurrentItem({u"Bread"_s, {}, Count(1), {}, false}); }), 6);
        QCOMPARE(State.CurrentShoppingList.Size(), 32767);
        QCOMPARE(State.NumberOfCurrentItems, qint16(32767));
    }

    void ABillBeyondMoneyIsNotMadeByAdding()
    {
        FakeDesk desk;
        TakeLines({Line(u"Gold"_s, AlmostAll / 2, 1)});
        State.CurrentShoppingList(1).CouponValue = Count(-AlmostAll / 2);
        QCOMPARE(ErrorOf([] { AddCurrentItem({u"Milk"_s, {}, Count(50000), {}, false}); }), 6);
        QCOMPARE(Items(), u"Gold"_s);
        QCOMPARE(State.CurrentShoppingList.Size(), 1);
    }

    void ChangingTakesTheTexts_data()
    {
        QTest::addColumn<QString>("taxCode");
        QTest::addColumn<bool>("taxable");
        QTest::newRow("N") << u"N"_s << false;
        QTest::newRow("Y") << u"Y"_s << true;
        QTest::newRow("anything else is taxable, a small n too") << u"n"_s << true;
        QTest::newRow("nothing is taxable, too") << u""_s << true;
    }
    void ChangingTakesTheTexts()
    {
        FakeDesk desk;
        QFETCH(QString, taxCode);
        QFETCH(bool, taxable);
        TakeLines({Line(u"Milk"_s), Line(u"Bread"_s)});
        Shopping.CurrentItemIndex = 2;
        CurrentItemEntry entry = Entry;
        entry.TaxCode = taxCode;
        ChangeCurrentItem(entry);
        CurrentItemRecord expected = Entered;
        expected.Taxable = taxable; // and the full price is without tax all the same
        QCOMPARE(State.CurrentShoppingList(2), expected);
        QCOMPARE(State.CurrentShoppingList(1), Line(u"Milk"_s));
    }

    void AChangeThatFailsChangesNothing_data()
    {
        QTest::addColumn<QString>("price");
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("coupon");
        QTest::addColumn<int>("atHand");
        QTest::addColumn<int>("error");
        QTest::newRow("a price that is no number") << u"x"_s << u"1"_s << u"0"_s << 1 << 13;
        QTest::newRow("a quantity that is no number") << u"1"_s << u"x"_s << u"0"_s << 1 << 13;
        QTest::newRow("a coupon that is no number") << u"1"_s << u"1"_s << u"x"_s << 1 << 13;
        QTest::newRow("a quantity beyond a single") << u"1"_s << u"1e39"_s << u"0"_s << 1 << 6;
        QTest::newRow("an amount beyond money") << u"1"_s << u"1e30"_s << u"0"_s << 1 << 6;
        QTest::newRow("a coupon beyond money") << u"1"_s << u"1"_s << u"1e30"_s << 1 << 6;
        QTest::newRow("a bill beyond money") << u"1"_s << u"1"_s << u"-922337203685475"_s << 1 << 6;
        QTest::newRow("no line at hand") << u"1"_s << u"1"_s << u"0"_s << 0 << 9;
        QTest::newRow("the row past the last line") << u"1"_s << u"1"_s << u"0"_s << 3 << 9;
    }
    void AChangeThatFailsChangesNothing()
    {
        FakeDesk desk;
        QFETCH(QString, price);
        QFETCH(QString, quantity);
        QFETCH(QString, coupon);
        QFETCH(int, atHand);
        QFETCH(int, error);
        TakeLines({Line(u"Milk"_s), Line(u"Bread"_s, 90000)});
        const auto before = State.CurrentShoppingList;
        Shopping.CurrentItemIndex = qint16(atHand);
        CurrentItemEntry entry = Entry;
        entry.UnitPrice = price;
        entry.Quantity = quantity;
        entry.CouponValue = coupon;
        QCOMPARE(ErrorOf([&] { ChangeCurrentItem(entry); }), error);
        QVERIFY(State.CurrentShoppingList == before);
    }

    void TheBillCountsTheChangedLineOnce()
    {
        FakeDesk desk;
        TakeLines({Line(u"Gold"_s, 10000, 1, false, -AlmostAll / 2)});
        Shopping.CurrentItemIndex = 1;
        CurrentItemEntry entry = Entry;
        entry.CouponValue = u"-600000000000000"_s;
        ChangeCurrentItem(entry);
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Tea"_s);
    }

    void TheCatalogueFollows()
    {
        FakeDesk desk;
        TakeLines({Line(u"Milk"_s), Line(u"Tea"_s, 20000, 4, true, 5)});
        TakeCatalogue({{u"A"_s, {}, {}, {}, {}}, {u"B"_s, {}, {}, {}, {}}});
        Shopping.CurrentItemIndex = 2;
        Shopping.MasterItemIndex = 1;
        CopyLineToCatalogue();
        QCOMPARE(State.MasterShoppingList(1), (MasterItemRecord{u"Tea"_s, u"each"_s, Count(20000), u"Shop"_s, true}));
        QCOMPARE(State.MasterShoppingList(2).Item, u"B"_s);
        Shopping.MasterItemIndex = 0;
        QCOMPARE(ErrorOf([] { CopyLineToCatalogue(); }), 9);
    }

    void Deleting_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<int>("atHand");
        QTest::addColumn<QString>("left");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("error");
        const QStringList three{u"a"_s, u"b"_s, u"c"_s};
        QTest::newRow("the first") << three << 1 << u"b c"_s << 2 << 0;
        QTest::newRow("one between") << three << 2 << u"a c"_s << 2 << 0;
        QTest::newRow("the last") << three << 3 << u"a b"_s << 2 << 0;
        QTest::newRow("none at hand") << three << 0 << u"a b c"_s << 3 << 9;
        QTest::newRow("the row past the last line") << three << 4 << u"a b c"_s << 3 << 9;
        QTest::newRow("the only one, whatever is at hand") << QStringList{u"a"_s} << 2 << u""_s << 0 << 0;
        QTest::newRow("nothing is there") << QStringList{} << 1 << u""_s << 0 << 0;
        QTest::newRow("a line without a name goes, too, and leaves a blank one")
            << QStringList{u"a"_s, u""_s, u"c"_s} << 1 << u"c "_s << 2 << 0;
    }
    void Deleting()
    {
        FakeDesk desk;
        QFETCH(QStringList, items);
        QFETCH(int, atHand);
        QFETCH(QString, left);
        QFETCH(int, count);
        QFETCH(int, error);
        std::vector<CurrentItemRecord> lines;
        for (const QString &item : items)
            lines.push_back(Line(item));
        TakeLines(lines);
        Shopping.CurrentItemIndex = qint16(atHand);
        QCOMPARE(ErrorOf([] { DeleteCurrentItem(); }), error);
        QCOMPARE(Items(), left);
        QCOMPARE(int(State.NumberOfCurrentItems), count);
        QCOMPARE(State.CurrentShoppingList.Size(), count);
    }
};

REGISTER_TEST(tst_currentlist)
#include "tst_currentlist.moc"

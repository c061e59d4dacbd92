// The edits of the extra pay periods and their items: the credit's sign, the bound of 200, the clearing up to slot 100.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "commitments/Extras.h"
#include "platform/values/Locale.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(int amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

/// Pay periods with these dates, the first one open; none has items.
void TakePayPeriods(const QStringList &dates)
{
    State.NumberOfExtraPayPeriods = qint16(dates.size());
    State.ExtraPayPeriods.Redim(int(dates.size()));
    for (int i = 0; i < dates.size(); ++i)
        State.ExtraPayPeriods(i + 1).PayPeriodDate = dates[i];
    Extras = {false, 1};
}

/// One open pay period with items named 1 to `count`, each of as many dollars.
void TakeItems(int count)
{
    TakePayPeriods({u"01-05-2004"_s});
    State.ExtraPayPeriods(1).NumberOfExtraItems = qint16(count);
    for (int slot = 1; slot <= count; ++slot)
        State.ExtraPayPeriods(1).ExtraItems.At(slot) = {QString::number(slot), Dollars(slot)};
}

QString ItemsOf(int payPeriod)
{
    QStringList names;
    for (int slot = 1; slot <= State.ExtraPayPeriods(payPeriod).NumberOfExtraItems; ++slot)
        names += State.ExtraPayPeriods(payPeriod).ExtraItems(slot).ExtraItem;
    return names.join(u' ');
}

const ExtraItemRecord &Slot(int slot)
{
    return State.ExtraPayPeriods(1).ExtraItems(slot);
}

} // namespace

class tst_extras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void cleanup() { Extras = {}; }

    void AnEntry_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("focus");
        QTest::newRow("nothing is an amount") << u"0"_s << u"Gift"_s << QString();
        QTest::newRow("a credit") << u"($5.00)"_s << u"Gift"_s << QString();
        QTest::newRow("letters") << u"x"_s << u"Gift"_s << u"txtExtraItemAmount"_s;
        QTest::newRow("no name") << u"5"_s << QString() << u"txtExtraItem"_s;
    }
    void AnEntry()
    {
        QFETCH(QString, amount);
        QFETCH(QString, item);
        QFETCH(QString, focus);
        const auto refusal = ValidateExtraEntry({amount, item});
        QCOMPARE(refusal ? refusal->Focus : QString(), focus);
    }

    void TheCreditBox_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("credit");
        QTest::addColumn<QString>("shown");
        QTest::newRow("makes it negative") << u"12.50"_s << true << u"($12.50)"_s;
        QTest::newRow("makes it positive") << u"($12.50)"_s << false << u"$12.50"_s;
        QTest::newRow("leaves a credit a credit") << u"-12.5"_s << true << u"($12.50)"_s;
        QTest::newRow("leaves nothing without a sign") << u"0"_s << true << u"$0.00"_s;
        QTest::newRow("leaves an empty text") << QString() << true << QString();
        QTest::newRow("leaves letters") << u"abc"_s << true << u"abc"_s;
    }
    void TheCreditBox()
    {
        QFETCH(QString, amount);
        QFETCH(bool, credit);
        QFETCH(QString, shown);
        QCOMPARE(AmountWithCredit(amount, credit), shown);
    }

    void AnItemIsAddedToTheOpenPayPeriodAlone()
    {
        FakeDesk desk;
        TakePayPeriods({u"01-05-2004"_s, u"01-19-2004"_s});
        Extras.SelectedExtraPayPeriod = 2;
        AddExtraItem({u"Gift"_s, Dollars(30)});
        QCOMPARE(ItemsOf(1), QString());
        QCOMPARE(ItemsOf(2), u"Gift"_s);
    }

    void The201stItemRaisesTheCountAndThenTheError()
    {
        FakeDesk desk;
        TakeItems(199);
        AddExtraItem({u"last"_s, Dollars(1)});
        QCOMPARE(Slot(200).ExtraItem, u"last"_s);
        QCOMPARE(ErrorOf([] { AddExtraItem({u"beyond"_s, {}}); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(201));
    }

    void AChangeKeepsThePlaceAndNeedsARow()
    {
        FakeDesk desk;
        TakeItems(3);
        ChangeExtraItem(2, {u"Two"_s, Dollars(-2)});
        QCOMPARE(ItemsOf(1), u"1 Two 3"_s);
        QCOMPARE(ErrorOf([] { ChangeExtraItem(0, {u"none"_s, {}}); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(Slot(0), ExtraItemRecord()); // no row stands for it
    }

    void DeletingAnItem_data()
    {
        QTest::addColumn<int>("slot");
        QTest::addColumn<QString>("left");
        QTest::newRow("the first") << 1 << u"2 3"_s;
        QTest::newRow("in between") << 2 << u"1 3"_s;
        QTest::newRow("the last") << 3 << u"1 2"_s;
    }
    void DeletingAnItem()
    {
        QFETCH(int, slot);
        QFETCH(QString, left);
        FakeDesk desk;
        TakeItems(3);
        DeleteExtraItem(slot);
        QCOMPARE(ItemsOf(1), left);
        QCOMPARE(Slot(3), ExtraItemRecord()); // cleared behind the count
    }

    void ClearingStopsAtSlot100()
    {
        FakeDesk desk;
        TakeItems(150);
        DeleteExtraItem(1);
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(149));
        for (int slot = 1; slot <= 149; ++slot)
            QCOMPARE(Slot(slot), (ExtraItemRecord{QString::number(slot + 1), Dollars(slot + 1)}));
        QCOMPARE(Slot(150), (ExtraItemRecord{u"150"_s, Dollars(150)})); // what lies behind slot 100 is left standing
    }

    void ClearingReachesSlot100()
    {
        FakeDesk desk;
        TakeItems(100);
        DeleteExtraItem(1);
        QCOMPARE(Slot(99).ExtraItem, u"100"_s);
        QCOMPARE(Slot(100), ExtraItemRecord());
    }

    void AnItemWithoutANameDisappearsWithTheDeletedOne()
    {
        FakeDesk desk;
        TakeItems(4);
        State.ExtraPayPeriods(1).ExtraItems.At(2).ExtraItem.clear();
        DeleteExtraItem(1);
        QCOMPARE(ItemsOf(1), u"3 4 "_s);
    }

    void NoItemIsDeletedWithoutARow()
    {
        FakeDesk desk;
        TakeItems(2);
        QCOMPARE(ErrorOf([] { DeleteExtraItem(0); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(ItemsOf(1), u"1 2"_s);
    }

    void DeletingThePayPeriodThatIsOpen()
    {
        FakeDesk desk;
        TakePayPeriods({u"01-05-2004"_s, u"01-19-2004"_s, u"02-02-2004"_s});
        State.ExtraPayPeriods(3).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(3).ExtraItems.At(1) = {u"Gift"_s, Dollars(3)};
        Extras.SelectedExtraPayPeriod = 2;
        DeleteExtraPayPeriod();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"01-05-2004"_s);
        QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), u"02-02-2004"_s);
        QCOMPARE(ItemsOf(2), u"Gift"_s);
    }

    void DeletingTheOnlyPayPeriod()
    {
        FakeDesk desk;
        TakePayPeriods({u"01-05-2004"_s});
        DeleteExtraPayPeriod();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
        QCOMPARE(State.ExtraPayPeriods.Size(), 0);
    }
};

REGISTER_TEST(tst_extras)
#include "tst_extras.moc"

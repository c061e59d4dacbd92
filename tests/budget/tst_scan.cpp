// The pay dates ahead, and the making and sorting of extra pay periods.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "budget/ScanPayPeriods.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

struct ScanDesk : FakeDesk {
    ScanDesk() { Scan = {}; }
};

/// Extra pay periods of these dates, each with one item that tells its number in this order.
void TakePayPeriods(const QStringList &dates)
{
    State.NumberOfExtraPayPeriods = qint16(dates.size());
    State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods);
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        State.ExtraPayPeriods(i).PayPeriodDate = dates[i - 1];
        State.ExtraPayPeriods(i).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(i).ExtraItems.At(1) = {u"Item %1"_s.arg(i), Currency::FromDouble(i)};
    }
}

QStringList PayPeriods()
{
    QStringList told;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        told +=
            State.ExtraPayPeriods(i).PayPeriodDate.Text() + u" | "_s + State.ExtraPayPeriods(i).ExtraItems(1).ExtraItem;
    return told;
}

} // namespace

class tst_scan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PayDates_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("payFrequency");
        QTest::addColumn<int>("firstPayDate");
        QTest::addColumn<int>("secondPayDate");
        QTest::addColumn<int>("monthEndPay");
        QTest::addColumn<QStringList>("dates");
        QTest::newRow("weekly") << u"12-24-2003"_s << 7 << 0 << 0 << 0
                                << QStringList{u"12-24-2003"_s, u"12/31/2003"_s, u"1/7/2004"_s, u"1/14/2004"_s};
        QTest::newRow("biweekly") << u"December 24, 2003"_s << 14 << 0 << 0 << 0
                                  << QStringList{u"December 24, 2003"_s, u"1/7/2004"_s, u"1/21/2004"_s, u"2/4/2004"_s};
        QTest::newRow("semimonthly, two a month")
            << u"12-15-2003"_s << 15 << 1 << 15 << 0
            << QStringList{u"12-15-2003"_s, u"1/1/2004"_s, u"1/15/2004"_s, u"2/1/2004"_s};
        QTest::newRow("semimonthly to the month's end")
            << u"01-15-2004"_s << 15 << 15 << 0 << 0
            << QStringList{u"01-15-2004"_s, u"1/31/2004"_s, u"2/15/2004"_s, u"2/29/2004"_s};
        QTest::newRow("monthly, clamped for good")
            << u"01-31-2004"_s << 30 << 0 << 0 << 0
            << QStringList{u"01-31-2004"_s, u"2/29/2004"_s, u"3/29/2004"_s, u"4/29/2004"_s};
        QTest::newRow("monthly on the last day")
            << u"01-15-2004"_s << 30 << 0 << 0 << -1
            << QStringList{u"01-15-2004"_s, u"2/29/2004"_s, u"3/31/2004"_s, u"4/30/2004"_s};
        QTest::newRow("a frequency that is none has no dates ahead")
            << u"01-15-2004"_s << 21 << 0 << 0 << 0 << QStringList{u"01-15-2004"_s, QString(), QString(), QString()};
    }
    void PayDates()
    {
        QFETCH(QString, start);
        QFETCH(int, payFrequency);
        QFETCH(int, firstPayDate);
        QFETCH(int, secondPayDate);
        QFETCH(int, monthEndPay);
        QFETCH(QStringList, dates);
        ScanDesk desk;
        State.CurrentPayPeriod = start;
        State.PayFrequency = qint16(payFrequency);
        State.FirstPayDate = qint16(firstPayDate);
        State.SecondPayDate = qint16(secondPayDate);
        State.MonthEndPay = qint16(monthEndPay);
        FillScanPayPeriods();
        QStringList found;
        for (std::size_t i = 0; i < 4; ++i)
            found += Scan.ScanDates[i].Text();
        QCOMPARE(found, dates);
    }

    void AHundredAndOneDatesTheFirstAsItWasTyped()
    {
        ScanDesk desk;
        State.CurrentPayPeriod = u"5/24/97"_s;
        State.PayFrequency = Weekly;
        FillScanPayPeriods();
        QCOMPARE(Scan.ScanDates.size(), std::size_t(101));
        QCOMPARE(Scan.ScanDates[0].Text(), u"5/24/97"_s);
        QCOMPARE(Scan.ScanDates[100].Text(), u"4/24/1999"_s); // 700 days later
        QCOMPARE(State.CurrentPayPeriod, u"5/24/97"_s);
        QCOMPARE(State.PayPeriodDate.Text(), u"4/24/1999"_s); // the generator's fields are left changed
        QCOMPARE(State.NextPeriodDate.Text(), u"4/24/1999"_s);
    }

    void BeyondTheCalendarsEndIsError5()
    {
        ScanDesk desk;
        State.CurrentPayPeriod = u"1/1/9999"_s;
        State.PayFrequency = Weekly;
        QCOMPARE(ErrorOf([] { FillScanPayPeriods(); }), int(RuntimeError::InvalidProcedureCall));
    }

    void ANewPayPeriodHasOneItem()
    {
        ScanDesk desk;
        TakePayPeriods({u"1/1/2004"_s});
        Scan.ScanPickedDate = u"01-15-2004"_s;
        NewExtraPayPeriod();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        QCOMPARE(PayPeriods(), (QStringList{u"1/1/2004 | Item 1"_s, u"01-15-2004 | New Item"_s}));
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(1));
        QCOMPARE(State.ExtraPayPeriods(2).ExtraItems(1).ExtraItemAmount, Currency());
    }

    void AStaleRecordBehindTheCountIsMadeNew()
    {
        ScanDesk desk;
        TakePayPeriods({u"1/1/2004"_s, u"1/15/2004"_s});
        State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
        State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Second"_s, Currency::FromDouble(2)};
        State.NumberOfExtraPayPeriods = 0;
        Scan.ScanPickedDate = u"02-01-2004"_s;
        NewExtraPayPeriod();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(1));
        QCOMPARE(PayPeriods(), QStringList{u"02-01-2004 | New Item"_s});
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(2).ExtraItem, QString());
    }

    void TheCountOverflowsAndDoesNotWrap()
    {
        ScanDesk desk;
        State.NumberOfExtraPayPeriods = std::numeric_limits<qint16>::max();
        QCOMPARE(ErrorOf([] { NewExtraPayPeriod(); }), int(RuntimeError::Overflow));
    }

    void Sort_data()
    {
        QTest::addColumn<QStringList>("dates");
        QTest::addColumn<QStringList>("sorted");
        QTest::newRow("none") << QStringList{} << QStringList{};
        QTest::newRow("a single one keeps its text") << QStringList{u"never"_s} << QStringList{u"never | Item 1"_s};
        QTest::newRow("one before all others goes to the front")
            << QStringList{u"2/1/2004"_s, u"3/1/2004"_s, u"01-15-2004"_s}
            << QStringList{u"01-15-2004 | Item 3"_s, u"2/1/2004 | Item 1"_s, u"3/1/2004 | Item 2"_s};
        QTest::newRow("dates are compared and not texts")
            << QStringList{u"10/1/2004"_s, u"9/1/2004"_s, u"December 31, 2003"_s}
            << QStringList{u"December 31, 2003 | Item 3"_s, u"9/1/2004 | Item 2"_s, u"10/1/2004 | Item 1"_s};
        QTest::newRow("of two with the same date the first stands twice")
            << QStringList{u"2/1/2004"_s, u"02-01-2004"_s}
            << QStringList{u"2/1/2004 | Item 1"_s, u"2/1/2004 | Item 1"_s};
        QTest::newRow("of three with the same date the first stands three times")
            << QStringList{u"3/1/2004"_s, u"2/1/2004"_s, u"1/1/2004"_s, u"2/1/2004"_s, u"2/1/2004"_s}
            << QStringList{u"1/1/2004 | Item 3"_s, u"2/1/2004 | Item 2"_s, u"2/1/2004 | Item 2"_s,
                           u"2/1/2004 | Item 2"_s, u"3/1/2004 | Item 1"_s};
    }
    void Sort()
    {
        QFETCH(QStringList, dates);
        QFETCH(QStringList, sorted);
        ScanDesk desk;
        TakePayPeriods(dates);
        SortExtraPayPeriods();
        QCOMPARE(PayPeriods(), sorted);
    }

    void AWholeRecordMovesWithItsDate()
    {
        ScanDesk desk;
        TakePayPeriods({u"2/1/2004"_s, u"1/1/2004"_s});
        State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
        State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Second"_s, Currency::FromDouble(-5)};
        SortExtraPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(1));
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(2));
        QVERIFY((State.ExtraPayPeriods(2).ExtraItems(2) == ExtraItemRecord{u"Second"_s, Currency::FromDouble(-5)}));
    }

    void ADamagedDateIsError13AndNothingMoves()
    {
        ScanDesk desk;
        TakePayPeriods({u"2/1/2004"_s, u"never"_s, u"1/1/2004"_s});
        QCOMPARE(ErrorOf([] { SortExtraPayPeriods(); }), int(RuntimeError::TypeMismatch));
        QCOMPARE(PayPeriods(), (QStringList{u"2/1/2004 | Item 1"_s, u"never | Item 2"_s, u"1/1/2004 | Item 3"_s}));
    }
};

REGISTER_TEST(tst_scan)
#include "tst_scan.moc"

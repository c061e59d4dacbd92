// Money: exact sums, one rounding on the way in, no wrap at the ends of the range.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/Currency.h"

#include <QtTest>
#include <cmath>
#include <limits>

namespace {
constexpr qint64 Greatest = std::numeric_limits<qint64>::max();
constexpr qint64 Least = std::numeric_limits<qint64>::min();

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}
} // namespace

class TestCurrency : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ADoubleIsRoundedToTheNearestTenThousandth_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<qint64>("tenThousandths");
        QTest::newRow("zero") << 0.0 << qint64(0);
        QTest::newRow("whole amount") << 1250.0 << qint64(12500000);
        QTest::newRow("four decimals stay") << 384.3954 << qint64(3843954);
        QTest::newRow("a negative amount") << -3.75 << qint64(-37500);
        QTest::newRow("a tie goes down to the even neighbour") << 0.00025 << qint64(2);
        QTest::newRow("a tie goes up to the even neighbour") << 0.00075 << qint64(8);
        QTest::newRow("a negative tie goes to the even neighbour, too") << -0.00025 << qint64(-2);
        QTest::newRow("more than a tie goes up") << 0.000251 << qint64(3);
        QTest::newRow("less than a tie goes down") << 0.000749 << qint64(7);
        QTest::newRow("nearly the whole range") << 9e14 << qint64(9000000000000000000);
    }
    void ADoubleIsRoundedToTheNearestTenThousandth()
    {
        QFETCH(double, amount);
        QTEST(Currency::FromDouble(amount).TenThousandths(), "tenThousandths");
    }

    void ADoubleOutsideTheRangeIsAnOverflow_data()
    {
        QTest::addColumn<double>("amount");
        QTest::newRow("the first amount that is too great") << 922337203685477.5808;
        QTest::newRow("below the least amount") << -922337203685478.0;
        QTest::newRow("far beyond") << 1e300;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
        QTest::newRow("no number") << std::nan("");
    }
    void ADoubleOutsideTheRangeIsAnOverflow()
    {
        QFETCH(double, amount);
        QCOMPARE(ErrorOf([&] { Currency::FromDouble(amount); }), 6);
    }

    void SumsAndProductsAreExact()
    {
        QCOMPARE((Count(Greatest - 1) + Count(1)).TenThousandths(), Greatest); // no double holds these
        QCOMPARE((Count(9007199254740993) - Count(9007199254740992)).TenThousandths(), qint64(1));
        QCOMPARE((Count(3002399751580331) * 3).TenThousandths(), qint64(9007199254740993));
        QCOMPARE((Count(3333) * 3).TenThousandths(), qint64(9999));
        QCOMPARE((Count(25) * -4).TenThousandths(), qint64(-100));
        QCOMPARE((-Count(37500)).TenThousandths(), qint64(-37500));
        QCOMPARE(Count(-37500).Abs().TenThousandths(), qint64(37500));
        Currency sum = Count(10000);
        sum += Count(5);
        sum -= Count(1);
        QCOMPARE(sum.TenThousandths(), qint64(10004));
    }

    void LeavingTheRangeIsAnOverflowAndNeverAWrap()
    {
        QCOMPARE(ErrorOf([] { Count(Greatest) + Count(1); }), 6);
        QCOMPARE(ErrorOf([] { Count(Least) + Count(-1); }), 6);
        QCOMPARE(ErrorOf([] { Count(Least) - Count(1); }), 6);
        QCOMPARE(ErrorOf([] { Count(Greatest) * 2; }), 6);
        QCOMPARE(ErrorOf([] { Count(Least) * -1; }), 6);
        QCOMPARE(ErrorOf([] { -Count(Least); }), 6);
        QCOMPARE(ErrorOf([] { Count(Least).Abs(); }), 6);
        Currency amount = Count(Greatest);
        QCOMPARE(ErrorOf([&] { amount += Count(1); }), 6);
        QCOMPARE(amount.TenThousandths(), Greatest);
    }

    void AmountsCompareAsNumbers()
    {
        QVERIFY(Count(-1) < Count(0));
        QVERIFY(Count(2) > Count(1));
        QVERIFY(Count(7) == Count(7));
        QVERIFY(Count(7) != Count(8));
        QVERIFY(Currency() == Count(0));
        QVERIFY(Currency::Zero == Count(0));
        QVERIFY(!Currency::Zero.IsNegative());
        QVERIFY(!Count(1).IsNegative());
        QVERIFY(Count(-1).IsNegative());
    }

    void AnAmountAsADoubleIsInWholeUnits() { QCOMPARE(Count(-37500).ToDouble(), -3.75); }
};

REGISTER_TEST(TestCurrency)
#include "tst_currency.moc"

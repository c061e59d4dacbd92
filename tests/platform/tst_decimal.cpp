// The decimal numbers behind texts, amounts and binary numbers: their digits, their rounding, their ends.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/Decimal.h"

#include <QtTest>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

Decimal Of(const char *digits, int point)
{
    const bool negative = *digits == '-';
    return {negative, digits + (negative ? 1 : 0), qsizetype(qstrlen(digits)) - (negative ? 1 : 0), point};
}

} // namespace

class TestDecimal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DigitsAndPointInPlainNotation_data()
    {
        QTest::addColumn<QByteArray>("digits");
        QTest::addColumn<int>("point");
        QTest::addColumn<QString>("text");
        QTest::newRow("within") << QByteArray("125") << 1 << u"1.25"_s;
        QTest::newRow("behind") << QByteArray("125") << 5 << u"12500"_s;
        QTest::newRow("at the end") << QByteArray("125") << 3 << u"125"_s;
        QTest::newRow("ahead") << QByteArray("125") << 0 << u"0.125"_s;
        QTest::newRow("far ahead") << QByteArray("125") << -2 << u"0.00125"_s;
        QTest::newRow("negative") << QByteArray("-125") << 1 << u"-1.25"_s;
        QTest::newRow("zeros ahead go") << QByteArray("00125") << 3 << u"1.25"_s;
        QTest::newRow("zeros behind go") << QByteArray("12500") << 1 << u"1.25"_s;
        QTest::newRow("zeros within stay") << QByteArray("1002") << 2 << u"10.02"_s;
        QTest::newRow("nothing but zeros") << QByteArray("0000") << 2 << u"0"_s;
        QTest::newRow("a negative zero has no sign") << QByteArray("-0") << 1 << u"0"_s;
        QTest::newRow("no digits") << QByteArray() << 0 << u"0"_s;
    }
    void DigitsAndPointInPlainNotation()
    {
        QFETCH(QByteArray, digits);
        QFETCH(int, point);
        QTEST(Of(digits.constData(), point).PlainText(), "text");
    }

    void ACountHasItsDecimals()
    {
        QCOMPARE(Decimal(12345000, 4).PlainText(), u"1234.5"_s);
        QCOMPARE(Decimal(-7, 4).PlainText(), u"-0.0007"_s);
        QCOMPARE(Decimal(0, 4).PlainText(), u"0"_s);
        QCOMPARE(Decimal(std::numeric_limits<qint64>::min(), 4).PlainText(), u"-922337203685477.5808"_s);
    }

    void ABinaryNumberHasItsShortestDigits_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("asSingle");
        QTest::addColumn<QString>("asDouble");
        const auto row = [](const char *name, double value, const char *asSingle, const char *asDouble) {
            QTest::newRow(name) << value << QString::fromLatin1(asSingle) << QString::fromLatin1(asDouble);
        };
        row("a fraction", 0.06625, "0.06625", "0.06625");
        row("more digits than a single has", 0.1234567890123, "0.12345679", "0.1234567890123");
        row("negative", -2.5, "-2.5", "-2.5");
        row("zero", 0, "0", "0");
        row("negative zero", -0.0, "0", "0");
        row("small", 1e-7, "0.0000001", "0.0000001");
        row("great: zeros fill up what the digits leave", 3e10, "30000000000", "30000000000");
        row("great beyond a whole number's digits", 1e23, "100000000000000000000000", "100000000000000000000000");
    }
    void ABinaryNumberHasItsShortestDigits()
    {
        QFETCH(double, value);
        QFETCH(QString, asSingle);
        QFETCH(QString, asDouble);
        QCOMPARE(Decimal(float(value)).PlainText(), asSingle);
        QCOMPARE(Decimal(value).PlainText(), asDouble);
        QVERIFY(Decimal(float(value)).ToFloat() == float(value)); // exactly
        QVERIFY(Decimal(value).ToDouble() == value);
    }

    void DigitsAreCounted()
    {
        QCOMPARE(Decimal::WithDigits(61.1200027, 7).PlainText(), u"61.12"_s);
        QCOMPARE(Decimal::WithDigits(-1234567.8, 7).PlainText(), u"-1234568"_s);
        QCOMPARE(Decimal::WithDigits(9.99, 2).PlainText(), u"10"_s);
    }

    void ShiftingKeepsEveryDigit()
    {
        QCOMPARE(Decimal(0.06625F).Shifted(2).PlainText(), u"6.625"_s);
        QVERIFY(Decimal(6.625F).Shifted(-2).ToFloat() == 0.06625F);
        QCOMPARE(Decimal(-5, 0).Shifted(3).PlainText(), u"-5000"_s);
        QCOMPARE(Decimal().Shifted(3).PlainText(), u"0"_s);
    }

    void Rounding_data()
    {
        QTest::addColumn<QByteArray>("digits");
        QTest::addColumn<int>("point");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("away");
        QTest::addColumn<QString>("even");
        const auto row = [](const char *name, const char *digits, int point, int decimals, const char *away,
                            const char *even) {
            QTest::newRow(name) << QByteArray(digits) << point << decimals << QString::fromLatin1(away)
                                << QString::fromLatin1(even);
        };
        row("nothing to round", "125", 1, 2, "1.25", "1.25");
        row("more decimals than digits", "125", 1, 9, "1.25", "1.25");
        row("below the half", "1249", 1, 2, "1.25", "1.25");
        row("far below the half", "1241", 1, 2, "1.24", "1.24");
        row("a tie above an even digit", "1245", 1, 2, "1.25", "1.24");
        row("a tie above an odd digit", "1255", 1, 2, "1.26", "1.26");
        row("a negative tie", "-1245", 1, 2, "-1.25", "-1.24");
        row("just above a tie", "12450001", 1, 2, "1.25", "1.25");
        row("just below a tie", "124499", 1, 2, "1.24", "1.24");
        row("nines carry over", "1995", 1, 2, "2", "2");
        row("nines all the way", "9995", 1, 2, "10", "10");
        row("zeros that become the end go", "1004", 1, 2, "1", "1");
        row("a tie at the first digit", "5", 0, 0, "1", "0");
        row("a tie at the first digit behind zeros", "5", -2, 2, "0.01", "0");
        row("a six there", "6", -2, 2, "0.01", "0.01");
        row("a four there", "4", -2, 2, "0", "0");
        row("a nine below the place", "9", -3, 2, "0", "0");
        row("what rounds to zero has no sign", "-4", -2, 2, "0", "0");
        row("ahead of the point", "1250", 4, -2, "1300", "1200");
    }
    void Rounding()
    {
        QFETCH(QByteArray, digits);
        QFETCH(int, point);
        QFETCH(int, decimals);
        const Decimal number = Of(digits.constData(), point);
        QTEST(number.Rounded(decimals, Ties::AwayFromZero).PlainText(), "away");
        QTEST(number.Rounded(decimals, Ties::ToEven).PlainText(), "even");
    }

    void WholeAndFractionStandApart()
    {
        const Decimal number = Of("-12305", 3);
        QVERIFY(number.IsNegative());
        QCOMPARE(number.Whole(), u"123"_s);
        QCOMPARE(number.Fraction(0), u"05"_s);
        QCOMPARE(number.Fraction(4), u"0500"_s);
        QCOMPARE(Of("5", -1).Whole(), u"0"_s);
        QCOMPARE(Of("5", -1).Fraction(0), u"05"_s);
        QCOMPARE(Of("5", 3).Whole(), u"500"_s);
        QCOMPARE(Of("5", 3).Fraction(0), QString());
        QCOMPARE(Decimal().Whole(), u"0"_s);
        QCOMPARE(Decimal().Fraction(2), u"00"_s);
    }

    void AWholeNumberHasTheRangeOf64Bits()
    {
        const qint64 greatest = std::numeric_limits<qint64>::max();
        const qint64 least = std::numeric_limits<qint64>::min();
        QCOMPARE(Decimal(greatest, 0).ToWhole(), greatest);
        QCOMPARE(Decimal(least, 0).ToWhole(), least);
        QCOMPARE(Decimal().ToWhole(), qint64(0));
        QCOMPARE(Of("12", 4).ToWhole(), qint64(1200));
        QCOMPARE(ErrorOf([] { Of("9223372036854775808", 19).ToWhole(); }), 6);
        QCOMPARE(ErrorOf([] { Of("-9223372036854775809", 19).ToWhole(); }), 6);
        QCOMPARE(ErrorOf([] { Of("9999999999999999999", 19).ToWhole(); }), 6);
        QCOMPARE(ErrorOf([] { Of("1", 20).ToWhole(); }), 6);
    }

    void BinaryNumbersHaveTheirRange()
    {
        QVERIFY(Of("34", 39).ToFloat() == 3.4e38F);
        QCOMPARE(ErrorOf([] { Of("35", 39).ToFloat(); }), 6);
        QVERIFY(Of("35", 39).ToDouble() == 3.5e38);
        QCOMPARE(ErrorOf([] { Of("-18", 309).ToDouble(); }), 6);
        QCOMPARE(Of("1", -60).ToFloat(), 0.0F);
        QCOMPARE(Of("1", -400).ToDouble(), 0.0);
    }
};

REGISTER_TEST(TestDecimal)
#include "tst_decimal.moc"

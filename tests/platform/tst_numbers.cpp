// Text to number and back: what counts as a number, what it is worth, and how it is written again.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include <QtTest>
#include <ctime>
#include <limits>

Q_DECLARE_METATYPE(Dialect)

namespace {
const QLocale American(QLocale::English, QLocale::UnitedStates);
const QLocale German(QLocale::German, QLocale::Germany);
const QLocale French(QLocale::French, QLocale::France);
} // namespace

class TestNumbers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUserLocale(American); }

    void IsNumericTellsNumbersFromOtherText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("numeric");
        const auto row = [](const char *name, const QString &text, bool numeric) {
            QTest::newRow(name) << text << numeric;
        };
        row("digits", QStringLiteral("42"), true);
        row("blanks around are trimmed", QStringLiteral("  42\t"), true);
        row("a sign before", QStringLiteral("-42"), true);
        row("a plus before", QStringLiteral("+42"), true);
        row("a sign after", QStringLiteral("42-"), true);
        row("a currency symbol before", QStringLiteral("$40"), true);
        row("a currency symbol after", QStringLiteral("40$"), true);
        row("a blank behind the symbol", QStringLiteral("$ 40"), true);
        row("sign and symbol", QStringLiteral("-$40"), true);
        row("symbol and sign", QStringLiteral("$-40"), true);
        row("parentheses around the whole", QStringLiteral("(40)"), true);
        row("a negative amount as it is shown", QStringLiteral("($1,234.50)"), true);
        row("thousands separators", QStringLiteral("1,234,567"), true);
        row("decimals", QStringLiteral("1,234.50"), true);
        row("a point at the end", QStringLiteral("5."), true);
        row("a point at the beginning", QStringLiteral(".5"), true);
        row("an exponent", QStringLiteral("1e3"), true);
        row("an exponent with a sign", QStringLiteral("1.5E-3"), true);
        row("hexadecimal digits", QStringLiteral("&H1F"), true);
        row("hexadecimal digits in small letters", QStringLiteral("&hff"), true);
        row("octal digits", QStringLiteral("&O17"), true);
        row("a number beyond every range", QStringLiteral("1e400"), true);
        row("empty", QString(), false);
        row("blank", QStringLiteral("   "), false);
        row("a lone sign", QStringLiteral("-"), false);
        row("a lone symbol", QStringLiteral("$"), false);
        row("a lone point", QStringLiteral("."), false);
        row("sign and symbol without a digit", QStringLiteral("-$"), false);
        row("a percentage", QStringLiteral("5%"), false);
        row("two points", QStringLiteral("1.2.3"), false);
        row("letters", QStringLiteral("abc"), false);
        row("letters behind", QStringLiteral("12 months"), false);
        row("a date", QStringLiteral("1/2/2004"), false);
        row("two signs", QStringLiteral("--5"), false);
        row("a sign on either side", QStringLiteral("-5-"), false);
        row("two symbols", QStringLiteral("$5$"), false);
        row("a sign within parentheses", QStringLiteral("(-5)"), false);
        row("one parenthesis", QStringLiteral("(5"), false);
        row("empty parentheses", QStringLiteral("()"), false);
        row("a separator behind the point", QStringLiteral("1.2,3"), false);
        row("a separator ahead of every digit", QStringLiteral(",5"), false);
        row("a blank between digits", QStringLiteral("1 2"), false);
        row("an exponent without digits", QStringLiteral("1e"), false);
        row("an exponent without a number", QStringLiteral("e5"), false);
        row("no hexadecimal digit", QStringLiteral("&H"), false);
        row("a wrong hexadecimal digit", QStringLiteral("&HG"), false);
        row("a foreign hexadecimal prefix", QStringLiteral("&H0x1F"), false);
        row("a wrong octal digit", QStringLiteral("&O8"), false);
        row("a foreign currency", QStringLiteral("\u20AC5"), false);
        row("words for numbers", QStringLiteral("inf"), false);
        row("another script's digits", QStringLiteral("\u0661\u0662"), false);
    }
    void IsNumericTellsNumbersFromOtherText()
    {
        QFETCH(QString, text);
        QFETCH(bool, numeric);
        QCOMPARE(IsNumeric(text), numeric);
        // The conversions accept exactly the same.
        for (const auto &convert : {std::function<void()>([&] { ToCurrency(text); }),
                                    {[&] { ToInteger(text); }},
                                    {[&] { ToSingle(text); }},
                                    {[&] { ToDouble(text); }}})
            QCOMPARE(ErrorOf(convert) == 13, !numeric);
    }

    void TextBecomesCurrencyExactly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("tenThousandths");
        const auto row = [](const char *name, const QString &text, qint64 count) {
            QTest::newRow(name) << text << count;
        };
        row("whole", QStringLiteral("1250"), 12500000);
        row("as it is shown", QStringLiteral("($1,234.50)"), -12345000);
        row("a sign behind", QStringLiteral("3.75-"), -37500);
        row("four decimals", QStringLiteral("61.5385"), 615385);
        row("more digits than a double holds", QStringLiteral("922337203685477.5807"), 9223372036854775807);
        row("the least amount", QStringLiteral("-922337203685477.5808"), std::numeric_limits<qint64>::min());
        row("a tie in the fifth decimal goes down to the even neighbour", QStringLiteral("0.00025"), 2);
        row("a tie in the fifth decimal goes up to the even neighbour", QStringLiteral("0.00075"), 8);
        row("a tie that no double hits", QStringLiteral("1.00005"), 10000);
        row("a tie of great amounts", QStringLiteral("100000000000.00015"), 1000000000000002);
        row("just above a tie", QStringLiteral("0.000250000000000000000001"), 3);
        row("a tie with many zeros behind", QStringLiteral("0.00025000000000000000000"), 2);
        row("a fifth decimal below five", QStringLiteral("0.00024"), 2);
        row("half the smallest unit", QStringLiteral("0.00005"), 0);
        row("more than half the smallest unit", QStringLiteral("-0.000051"), -1);
        row("far too small to see", QStringLiteral("1e-400"), 0);
        row("an exponent", QStringLiteral("1.5e3"), 15000000);
        row("an exponent that takes zeros back", QStringLiteral("15000e-3"), 150000);
        row("leading zeros", QStringLiteral("000000000000000000000000000005"), 50000);
        row("hexadecimal", QStringLiteral("&H1F"), 310000);
        row("hexadecimal without a sign", QStringLiteral("&HFFFF"), 655350000);
        row("octal", QStringLiteral("&O17"), 150000);
        row("nothing to any power", QStringLiteral("0e99999999999"), 0);
    }
    void TextBecomesCurrencyExactly()
    {
        QFETCH(QString, text);
        QTEST(ToCurrency(text).TenThousandths(), "tenThousandths");
    }

    void TooMuchForCurrencyIsAnOverflow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("one unit too many") << QStringLiteral("922337203685477.5808");
        QTest::newRow("rounded up beyond the range") << QStringLiteral("922337203685477.58075");
        QTest::newRow("one unit too few") << QStringLiteral("-922337203685477.5809");
        QTest::newRow("beyond every range") << QStringLiteral("1e400");
        QTest::newRow("an exponent beyond every counter") << QStringLiteral("1e99999999999999999999");
    }
    void TooMuchForCurrencyIsAnOverflow()
    {
        QFETCH(QString, text);
        QVERIFY(IsNumeric(text));
        QCOMPARE(ErrorOf([&] { ToCurrency(text); }), 6);
    }

    void TextBecomesAnIntegerRoundedToEven_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("error");
        const auto row = [](const char *name, const QString &text, int value, int error = 0) {
            QTest::newRow(name) << text << value << error;
        };
        row("2.5 is 2", QStringLiteral("2.5"), 2);
        row("3.5 is 4", QStringLiteral("3.5"), 4);
        row("40.5 is 40", QStringLiteral("40.5"), 40);
        row("-2.5 is -2", QStringLiteral("-2.5"), -2);
        row("0.5 is 0", QStringLiteral("0.5"), 0);
        row("11.6 is 12", QStringLiteral("11.6"), 12);
        row("2.5000000000000000000001 is 3", QStringLiteral("2.5000000000000000000001"), 3);
        row("the greatest", QStringLiteral("32767"), 32767);
        row("the least", QStringLiteral("-32768"), -32768);
        row("rounded down into the range", QStringLiteral("32767.49"), 32767);
        row("a tie out of the range", QStringLiteral("32767.5"), 0, 6);
        row("a tie at the lower end stays", QStringLiteral("-32768.5"), -32768);
        row("beyond the range", QStringLiteral("32768"), 0, 6);
        row("below the range", QStringLiteral("-32769"), 0, 6);
        row("far beyond", QStringLiteral("1e400"), 0, 6);
        row("with separators and symbol", QStringLiteral("$1,250.00"), 1250);
    }
    void TextBecomesAnIntegerRoundedToEven()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        QFETCH(int, error);
        int result = 0;
        QCOMPARE(ErrorOf([&] { result = ToInteger(text); }), error);
        QCOMPARE(result, value);
    }

    void ADoubleBecomesAnIntegerRoundedToEven()
    {
        QCOMPARE(int(ToInteger(2.5)), 2);
        QCOMPARE(int(ToInteger(3.5)), 4);
        QCOMPARE(int(ToInteger(-0.5)), 0);
        QCOMPARE(int(ToInteger(-32768.5)), -32768);
        QCOMPARE(ErrorOf([] { ToInteger(32767.5); }), 6);
        QCOMPARE(ErrorOf([] { ToInteger(std::numeric_limits<double>::quiet_NaN()); }), 6);
        QCOMPARE(ErrorOf([] { ToInteger(std::numeric_limits<double>::infinity()); }), 6);
        QCOMPARE(RoundToEven(12.5), 12);
        QCOMPARE(RoundToEven(13.5), 14);
    }

    void ACounterBeyondItsSixteenBitsIsAnOverflowAndNeverAWrap()
    {
        QCOMPARE(int(ToInteger(32767)), 32767);
        QCOMPARE(ErrorOf([] { ToInteger(32767 + 1); }), 6);
        QCOMPARE(ErrorOf([] { ToInteger(-32769); }), 6);
    }

    void TextBecomesTheNearestSingle()
    {
        // The test library compares singles and doubles with a tolerance; these have to be exact.
        QVERIFY(ToSingle(QStringLiteral("0.06")) == 0.06F);
        QVERIFY(ToSingle(QStringLiteral("$1,234.50")) == 1234.5F);
        QVERIFY(ToSingle(QStringLiteral("16777217")) == 16777216.0F); // a tie between two singles
        QVERIFY(ToSingle(QStringLiteral("16777217.0000001")) == 16777218.0F);
        QVERIFY(ToSingle(QStringLiteral("1e-60")) == 0.0F);
        QCOMPARE(ErrorOf([] { ToSingle(QStringLiteral("1e39")); }), 6);
        QCOMPARE(ErrorOf([] { ToSingle(QStringLiteral("-1e400")); }), 6);
        QCOMPARE(ErrorOf([] { ToSingle(1e39); }), 6);
        QVERIFY(ToSingle(0.1) == 0.1F);
    }

    void TextBecomesTheNearestDouble()
    {
        QVERIFY(ToDouble(QStringLiteral("0.1")) == 0.1);
        QVERIFY(ToDouble(QStringLiteral("(2)")) == -2.0);
        QVERIFY(ToDouble(QStringLiteral("1e-400")) == 0.0);
        QVERIFY(ToDouble(QStringLiteral("1.7976931348623157e308")) == std::numeric_limits<double>::max());
        QCOMPARE(ErrorOf([] { ToDouble(QStringLiteral("1e309")); }), 6);
        QCOMPARE(ErrorOf([] { ToDouble(QStringLiteral("-1e400")); }), 6);
    }

    void HostileTextNeitherHangsNorCrashes()
    {
        constexpr int million = 1000000;
        const QString nines(million, QLatin1Char('9'));
        const QString zeros(million, QLatin1Char('0'));
        const std::clock_t start = std::clock(); // the program's own time: other programs may be at work
        QVERIFY(IsNumeric(nines));
        QCOMPARE(ErrorOf([&] { ToCurrency(nines); }), 6);
        QCOMPARE(ErrorOf([&] { ToDouble(nines); }), 6);
        QCOMPARE(ErrorOf([&] { ToInteger(nines); }), 6);
        QCOMPARE(ErrorOf([&] { ToDecimal(nines); }), 6);
        QCOMPARE(ToCurrency(zeros + QLatin1Char('7')).TenThousandths(), qint64(70000));
        QCOMPARE(ToCurrency(QLatin1String("0.") + nines).TenThousandths(), qint64(10000));
        QCOMPARE(ToCurrency(QLatin1String("0.") + zeros + QLatin1Char('1')).TenThousandths(), qint64(0));
        QVERIFY(ToDouble(QLatin1String("0.") + zeros + QLatin1String("1e1000001")) == 1.0);
        QCOMPARE(ToInteger(QLatin1Char('1') + zeros + QLatin1String("e-1000000")), qint16(1));
        QVERIFY(ToDouble(QLatin1String("0.") + zeros + QLatin1String("1e100")) == 0.0); // small despite its exponent
        QVERIFY(!IsNumeric(QString(million, QLatin1Char(','))));
        QVERIFY(!IsNumeric(QString(million, QLatin1Char('('))));
        QVERIFY(!IsNumeric(QString(million, QLatin1Char('-'))));
        QVERIFY(!IsNumeric(QString(million, QLatin1Char(' '))));
        QVERIFY(!IsNumeric(QLatin1String("&H") + nines));
        for (const char *text : {"0e99999999999", "-0e-99999999999", "0.000e2147483647"}) {
            QCOMPARE(ToCurrency(QLatin1String(text)).TenThousandths(), qint64(0));
            QVERIFY(ToDouble(QLatin1String(text)) == 0.0);
            QCOMPARE(ToDecimal(QLatin1String(text)).PlainText(), QStringLiteral("0"));
        }
        QCOMPARE(NumericPrefix(QStringLiteral("1e-99999999999")), 0.0);
        QCOMPARE(ErrorOf([] { NumericPrefix(QStringLiteral("1e99999999999")); }), 6);
        QVERIFY2(std::clock() - start < 10 * CLOCKS_PER_SEC, "a second's work for each of these texts is too much");
    }

    void AnotherLocaleHasItsOwnSigns_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<qint64>("tenThousandths");
        QTest::newRow("German: point parts thousands")
            << German << QStringLiteral("1.234,50") << true << qint64(12345000);
        QTest::newRow("German: euro behind") << German << QStringLiteral("-5,25 \u20AC") << true << qint64(-52500);
        QTest::newRow("German: no dollar") << German << QStringLiteral("$5") << false << qint64(0);
        QTest::newRow("German: two decimal commas") << German << QStringLiteral("1,2,3") << false << qint64(0);
        QTest::newRow("French: the narrow blank that is shown")
            << French << QStringLiteral("1\u202F234,50") << true << qint64(12345000);
        QTest::newRow("French: the plain blank that is typed")
            << French << QStringLiteral("1 234,50") << true << qint64(12345000);
        QTest::newRow("the C locale counts as the United States")
            << QLocale::c() << QStringLiteral("$1,234.50") << true << qint64(12345000);
    }
    void AnotherLocaleHasItsOwnSigns()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, text);
        QFETCH(bool, numeric);
        SetUserLocale(locale);
        QCOMPARE(IsNumeric(text), numeric);
        if (numeric)
            QTEST(ToCurrency(text).TenThousandths(), "tenThousandths");
    }

    void FileTextHasItsOwnSignsInEveryLocale()
    {
        SetUserLocale(German);
        QCOMPARE(ToCurrency(QStringLiteral("12.5"), Dialect::File).TenThousandths(), qint64(125000));
        QCOMPARE(ToCurrency(QStringLiteral("$1,250.00"), Dialect::File).TenThousandths(), qint64(12500000));
        QCOMPARE(int(ToInteger(QStringLiteral("2.5"), Dialect::File)), 2);
        QVERIFY(ToSingle(QStringLiteral(".85"), Dialect::File) == 0.85F);
        QVERIFY(!IsNumeric(QStringLiteral("12,5 \u20AC"), Dialect::File));
    }

    void APlainNumberHasNoSymbolsAndNoSeparators_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("plain");
        QTest::newRow("digits") << QStringLiteral("1250") << true;
        QTest::newRow("negative with decimals") << QStringLiteral("-3.75") << true;
        QTest::newRow("no zero ahead of the point") << QStringLiteral(".06") << true;
        QTest::newRow("exponent") << QStringLiteral("1e3") << true;
        QTest::newRow("symbol") << QStringLiteral("$5") << false;
        QTest::newRow("separators") << QStringLiteral("1,250") << false;
        QTest::newRow("parentheses") << QStringLiteral("(5)") << false;
        QTest::newRow("sign behind") << QStringLiteral("5-") << false;
        QTest::newRow("hexadecimal") << QStringLiteral("&H1F") << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("letters") << QStringLiteral("abc") << false;
    }
    void APlainNumberHasNoSymbolsAndNoSeparators()
    {
        QFETCH(QString, text);
        QTEST(IsPlainNumber(text), "plain");
    }

    void TheNumericPrefixIsTheLongestLeadingPlainNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        QTest::newRow("the whole text") << QStringLiteral("40.5") << 40.5;
        QTest::newRow("blanks ahead are skipped") << QStringLiteral("   8") << 8.0;
        QTest::newRow("what follows is left out") << QStringLiteral("8 hours") << 8.0;
        QTest::newRow("a sign") << QStringLiteral("-3.5x") << -3.5;
        QTest::newRow("no digit ahead of the point") << QStringLiteral(".5") << 0.5;
        QTest::newRow("no digit behind the point") << QStringLiteral("5.") << 5.0;
        QTest::newRow("an exponent") << QStringLiteral("1e2 x") << 100.0;
        QTest::newRow("an exponent without digits is left out") << QStringLiteral("8e") << 8.0;
        QTest::newRow("a second point ends it") << QStringLiteral("1.2.3") << 1.2;
        QTest::newRow("no thousands separators") << QStringLiteral("1,250") << 1.0;
        QTest::newRow("no symbol") << QStringLiteral("$40") << 0.0;
        QTest::newRow("nothing usable") << QStringLiteral("abc") << 0.0;
        QTest::newRow("empty") << QString() << 0.0;
        QTest::newRow("a lone point") << QStringLiteral(".") << 0.0;
        QTest::newRow("a lone sign") << QStringLiteral("-") << 0.0;
    }
    void TheNumericPrefixIsTheLongestLeadingPlainNumber()
    {
        QFETCH(QString, text);
        QTEST(NumericPrefix(text), "value");
    }

    void TheNumericPrefixHasTheLocalesDecimalSeparator()
    {
        SetUserLocale(German);
        QCOMPARE(NumericPrefix(QStringLiteral("8,5 Stunden")), 8.5);
        QCOMPARE(NumericPrefix(QStringLiteral("8.5")), 8.0);
    }

    void PlainTextOfAnAmountHasNoMoreDigitsThanItNeeds_data()
    {
        QTest::addColumn<qint64>("tenThousandths");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << qint64(12500000) << QStringLiteral("1250");
        QTest::newRow("one decimal") << qint64(125000) << QStringLiteral("12.5");
        QTest::newRow("zero") << qint64(0) << QStringLiteral("0");
        QTest::newRow("negative") << qint64(-37500) << QStringLiteral("-3.75");
        QTest::newRow("a zero ahead of the point") << qint64(-7) << QStringLiteral("-0.0007");
        QTest::newRow("the greatest") << std::numeric_limits<qint64>::max() << QStringLiteral("922337203685477.5807");
        QTest::newRow("the least") << std::numeric_limits<qint64>::min() << QStringLiteral("-922337203685477.5808");
    }
    void PlainTextOfAnAmountHasNoMoreDigitsThanItNeeds()
    {
        SetUserLocale(German); // plain text has the point everywhere
        QFETCH(qint64, tenThousandths);
        QTEST(PlainText(Currency::FromTenThousandths(tenThousandths)), "text");
    }

    void PlainTextOfASingleReadsBackAsTheSameValue_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("six per cent") << 0.06F << QStringLiteral("0.06");
        QTest::newRow("nine tenths") << 0.9F << QStringLiteral("0.9");
        QTest::newRow("whole") << 12.0F << QStringLiteral("12");
        QTest::newRow("nine digits where it needs them") << 0.091717355F << QStringLiteral("0.091717355");
        QTest::newRow("negative zero shows no sign") << -0.0F << QStringLiteral("0");
        QTest::newRow("no exponent") << 1e10F << QStringLiteral("10000000000");
        QTest::newRow("no exponent for a small one") << 1e-7F << QStringLiteral("0.0000001");
    }
    void PlainTextOfASingleReadsBackAsTheSameValue()
    {
        SetUserLocale(German);
        QFETCH(float, value);
        QFETCH(QString, text);
        QCOMPARE(PlainText(value), text);
        QVERIFY(ToSingle(text, Dialect::File) == value);
    }

    void EverySingleReadsBackAsTheSameValue()
    {
        quint32 bits = 1;
        for (int i = 0; i < 20000; ++i) {
            bits = bits * 1664525u + 1013904223u;
            float value = 0;
            std::memcpy(&value, &bits, sizeof value);
            if (std::isfinite(value))
                QVERIFY2(ToSingle(PlainText(value), Dialect::File) == value, qPrintable(PlainText(value)));
        }
        const float extremes[] = {std::numeric_limits<float>::max(), std::numeric_limits<float>::lowest(),
                                  std::numeric_limits<float>::min(), std::numeric_limits<float>::denorm_min()};
        for (const float value : extremes)
            QVERIFY2(ToSingle(PlainText(value), Dialect::File) == value, qPrintable(PlainText(value)));
    }

    void ADecimalKeepsEveryDigit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("digits");
        QTest::newRow("as it is") << QStringLiteral("12.5") << QStringLiteral("12.5");
        QTest::newRow("symbol and separators go") << QStringLiteral("($1,234.50)") << QStringLiteral("-1234.5");
        QTest::newRow("a zero comes ahead of the point") << QStringLiteral("-.5") << QStringLiteral("-0.5");
        QTest::newRow("more decimals than a double holds")
            << QStringLiteral("0.12345678901234567891") << QStringLiteral("0.12345678901234567891");
        QTest::newRow("zeros at the end go") << QStringLiteral("10.500") << QStringLiteral("10.5");
        QTest::newRow("zeros ahead of the point stay") << QStringLiteral("&HA0") << QStringLiteral("160");
        QTest::newRow("an exponent is carried out") << QStringLiteral("1.5e3") << QStringLiteral("1500");
        QTest::newRow("a negative exponent is carried out") << QStringLiteral("15e-4") << QStringLiteral("0.0015");
        QTest::newRow("nothing") << QStringLiteral("0.00") << QStringLiteral("0");
        QTest::newRow("next to nothing") << QStringLiteral("1e-99999999") << QStringLiteral("0");
    }
    void ADecimalKeepsEveryDigit()
    {
        QFETCH(QString, text);
        QTEST(ToDecimal(text).PlainText(), "digits");
    }

    void ATextBoxShowsAtMostSevenDigitsOfASingle_data()
    {
        QTest::addColumn<float>("value");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("spaced");
        QTest::newRow("whole") << 85.0F << QStringLiteral("85") << QStringLiteral(" 85");
        QTest::newRow("a fraction: only the spaced form drops its zero")
            << 0.5F << QStringLiteral("0.5") << QStringLiteral(" .5");
        QTest::newRow("a negative fraction") << -0.5F << QStringLiteral("-0.5") << QStringLiteral("-.5");
        QTest::newRow("negative: the sign takes the blank's place")
            << -85.25F << QStringLiteral("-85.25") << QStringLiteral("-85.25");
        QTest::newRow("the eighth digit is rounded away")
            << 61.120003F << QStringLiteral("61.12") << QStringLiteral(" 61.12");
        QTest::newRow("seven digits stay") << 68.42606F << QStringLiteral("68.42606") << QStringLiteral(" 68.42606");
        QTest::newRow("zero") << 0.0F << QStringLiteral("0") << QStringLiteral(" 0");
        QTest::newRow("negative zero") << -0.0F << QStringLiteral("0") << QStringLiteral(" 0");
        QTest::newRow("great numbers keep their length")
            << 12345678.0F << QStringLiteral("12345680") << QStringLiteral(" 12345680");
    }
    void ATextBoxShowsAtMostSevenDigitsOfASingle()
    {
        QFETCH(float, value);
        QFETCH(QString, shown);
        QFETCH(QString, spaced);
        QCOMPARE(ShownText(value), shown);
        QCOMPARE(SpacedText(value), spaced);
        SetUserLocale(German);
        QCOMPARE(ShownText(value), QString(shown).replace(QLatin1Char('.'), QLatin1Char(',')));
        QCOMPARE(SpacedText(value), spaced);
    }
};

REGISTER_TEST(TestNumbers)
#include "tst_numbers.moc"

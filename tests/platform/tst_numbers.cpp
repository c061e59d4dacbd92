// Text to number and back: what counts as a number, what it is worth, and how it is written again.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include <QtTest>
#include <ctime>
#include <limits>

using namespace Qt::Literals::StringLiterals;

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
        row("digits", u"42"_s, true);
        row("blanks around are trimmed", u"  42\t"_s, true);
        row("a sign before", u"-42"_s, true);
        row("a plus before", u"+42"_s, true);
        row("a sign after", u"42-"_s, true);
        row("a currency symbol before", u"$40"_s, true);
        row("a currency symbol after", u"40$"_s, true);
        row("a blank behind the symbol", u"$ 40"_s, true);
        row("sign and symbol", u"-$40"_s, true);
        row("symbol and sign", u"$-40"_s, true);
        row("parentheses around the whole", u"(40)"_s, true);
        row("a negative amount as it is shown", u"($1,234.50)"_s, true);
        row("thousands separators", u"1,234,567"_s, true);
        row("decimals", u"1,234.50"_s, true);
        row("a point at the end", u"5."_s, true);
        row("a point at the beginning", u".5"_s, true);
        row("an exponent", u"1e3"_s, true);
        row("an exponent with a sign", u"1.5E-3"_s, true);
        row("hexadecimal digits", u"&H1F"_s, true);
        row("hexadecimal digits in small letters", u"&hff"_s, true);
        row("octal digits", u"&O17"_s, true);
        row("a number beyond every range", u"1e400"_s, true);
        row("empty", QString(), false);
        row("blank", u"   "_s, false);
        row("a lone sign", u"-"_s, false);
        row("a lone symbol", u"$"_s, false);
        row("a lone point", u"."_s, false);
        row("sign and symbol without a digit", u"-$"_s, false);
        row("a percentage", u"5%"_s, false);
        row("two points", u"1.2.3"_s, false);
        row("letters", u"abc"_s, false);
        row("letters behind", u"12 months"_s, false);
        row("a date", u"1/2/2004"_s, false);
        row("two signs", u"--5"_s, false);
        row("a sign on either side", u"-5-"_s, false);
        row("two symbols", u"$5$"_s, false);
        row("a sign within parentheses", u"(-5)"_s, false);
        row("one parenthesis", u"(5"_s, false);
        row("empty parentheses", u"()"_s, false);
        row("a separator behind the point", u"1.2,3"_s, false);
        row("a separator ahead of every digit", u",5"_s, false);
        row("a blank between digits", u"1 2"_s, false);
        row("an exponent without digits", u"1e"_s, false);
        row("an exponent without a number", u"e5"_s, false);
        row("no hexadecimal digit", u"&H"_s, false);
        row("a wrong hexadecimal digit", u"&HG"_s, false);
        row("a foreign hexadecimal prefix", u"&H0x1F"_s, false);
        row("a wrong octal digit", u"&O8"_s, false);
        row("a foreign currency", u"\u20AC5"_s, false);
        row("words for numbers", u"inf"_s, false);
        row("another script's digits", u"\u0661\u0662"_s, false);
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
        row("whole", u"1250"_s, 12500000);
        row("as it is shown", u"($1,234.50)"_s, -12345000);
        row("a sign behind", u"3.75-"_s, -37500);
        row("four decimals", u"61.5385"_s, 615385);
        row("more digits than a double holds", u"922337203685477.5807"_s, 9223372036854775807);
        row("the least amount", u"-922337203685477.5808"_s, std::numeric_limits<qint64>::min());
        row("a tie in the fifth decimal goes down to the even neighbour", u"0.00025"_s, 2);
        row("a tie in the fifth decimal goes up to the even neighbour", u"0.00075"_s, 8);
        row("a tie that no double hits", u"1.00005"_s, 10000);
        row("a tie of great amounts", u"100000000000.00015"_s, 1000000000000002);
        row("just above a tie", u"0.000250000000000000000001"_s, 3);
        row("a tie with many zeros behind", u"0.00025000000000000000000"_s, 2);
        row("a fifth decimal below five", u"0.00024"_s, 2);
        row("half the smallest unit", u"0.00005"_s, 0);
        row("more than half the smallest unit", u"-0.000051"_s, -1);
        row("far too small to see", u"1e-400"_s, 0);
        row("an exponent", u"1.5e3"_s, 15000000);
        row("an exponent that takes zeros back", u"15000e-3"_s, 150000);
        row("leading zeros", u"000000000000000000000000000005"_s, 50000);
        row("hexadecimal", u"&H1F"_s, 310000);
        row("hexadecimal without a sign", u"&HFFFF"_s, 655350000);
        row("octal", u"&O17"_s, 150000);
        row("nothing to any power", u"0e99999999999"_s, 0);
    }
    void TextBecomesCurrencyExactly()
    {
        QFETCH(QString, text);
        QTEST(ToCurrency(text).TenThousandths(), "tenThousandths");
    }

    void TooMuchForCurrencyIsAnOverflow_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("one unit too many") << u"922337203685477.5808"_s;
        QTest::newRow("rounded up beyond the range") << u"922337203685477.58075"_s;
        QTest::newRow("one unit too few") << u"-922337203685477.5809"_s;
        QTest::newRow("beyond every range") << u"1e400"_s;
        QTest::newRow("an exponent beyond every counter") << u"1e99999999999999999999"_s;
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
        row("2.5 is 2", u"2.5"_s, 2);
        row("3.5 is 4", u"3.5"_s, 4);
        row("40.5 is 40", u"40.5"_s, 40);
        row("-2.5 is -2", u"-2.5"_s, -2);
        row("0.5 is 0", u"0.5"_s, 0);
        row("11.6 is 12", u"11.6"_s, 12);
        row("2.5000000000000000000001 is 3", u"2.5000000000000000000001"_s, 3);
        row("the greatest", u"32767"_s, 32767);
        row("the least", u"-32768"_s, -32768);
        row("rounded down into the range", u"32767.49"_s, 32767);
        row("a tie out of the range", u"32767.5"_s, 0, 6);
        row("a tie at the lower end stays", u"-32768.5"_s, -32768);
        row("beyond the range", u"32768"_s, 0, 6);
        row("below the range", u"-32769"_s, 0, 6);
        row("far beyond", u"1e400"_s, 0, 6);
        row("with separators and symbol", u"$1,250.00"_s, 1250);
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
        QVERIFY(ToSingle(u"0.06"_s) == 0.06F);
        QVERIFY(ToSingle(u"$1,234.50"_s) == 1234.5F);
        QVERIFY(ToSingle(u"16777217"_s) == 16777216.0F); // a tie between two singles
        QVERIFY(ToSingle(u"16777217.0000001"_s) == 16777218.0F);
        QVERIFY(ToSingle(u"1e-60"_s) == 0.0F);
        QCOMPARE(ErrorOf([] { ToSingle(u"1e39"_s); }), 6);
        QCOMPARE(ErrorOf([] { ToSingle(u"-1e400"_s); }), 6);
        QCOMPARE(ErrorOf([] { ToSingle(1e39); }), 6);
        QVERIFY(ToSingle(0.1) == 0.1F);
    }

    void TextBecomesTheNearestDouble()
    {
        QVERIFY(ToDouble(u"0.1"_s) == 0.1);
        QVERIFY(ToDouble(u"(2)"_s) == -2.0);
        QVERIFY(ToDouble(u"1e-400"_s) == 0.0);
        QVERIFY(ToDouble(u"1.7976931348623157e308"_s) == std::numeric_limits<double>::max());
        QCOMPARE(ErrorOf([] { ToDouble(u"1e309"_s); }), 6);
        QCOMPARE(ErrorOf([] { ToDouble(u"-1e400"_s); }), 6);
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
            QCOMPARE(ToDecimal(QLatin1String(text)).PlainText(), u"0"_s);
        }
        QCOMPARE(NumericPrefix(u"1e-99999999999"_s), 0.0);
        QCOMPARE(ErrorOf([] { NumericPrefix(u"1e99999999999"_s); }), 6);
        QVERIFY2(std::clock() - start < 10 * CLOCKS_PER_SEC, "a second's work for each of these texts is too much");
    }

    void AnotherLocaleHasItsOwnSigns_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("numeric");
        QTest::addColumn<qint64>("tenThousandths");
        QTest::newRow("German: point parts thousands") << German << u"1.234,50"_s << true << qint64(12345000);
        QTest::newRow("German: euro behind") << German << u"-5,25 \u20AC"_s << true << qint64(-52500);
        QTest::newRow("German: no dollar") << German << u"$5"_s << false << qint64(0);
        QTest::newRow("German: two decimal commas") << German << u"1,2,3"_s << false << qint64(0);
        QTest::newRow("French: the narrow blank that is shown")
            << French << u"1\u202F234,50"_s << true << qint64(12345000);
        QTest::newRow("French: the plain blank that is typed") << French << u"1 234,50"_s << true << qint64(12345000);
        QTest::newRow("the C locale counts as the United States")
            << QLocale::c() << u"$1,234.50"_s << true << qint64(12345000);
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
        QCOMPARE(ToCurrency(u"12.5"_s, Dialect::File).TenThousandths(), qint64(125000));
        QCOMPARE(ToCurrency(u"$1,250.00"_s, Dialect::File).TenThousandths(), qint64(12500000));
        QCOMPARE(int(ToInteger(u"2.5"_s, Dialect::File)), 2);
        QVERIFY(ToSingle(u".85"_s, Dialect::File) == 0.85F);
        QVERIFY(!IsNumeric(u"12,5 \u20AC"_s, Dialect::File));
    }

    void APlainNumberHasNoSymbolsAndNoSeparators_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("plain");
        QTest::newRow("digits") << u"1250"_s << true;
        QTest::newRow("negative with decimals") << u"-3.75"_s << true;
        QTest::newRow("no zero ahead of the point") << u".06"_s << true;
        QTest::newRow("exponent") << u"1e3"_s << true;
        QTest::newRow("symbol") << u"$5"_s << false;
        QTest::newRow("separators") << u"1,250"_s << false;
        QTest::newRow("parentheses") << u"(5)"_s << false;
        QTest::newRow("sign behind") << u"5-"_s << false;
        QTest::newRow("hexadecimal") << u"&H1F"_s << false;
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("letters") << u"abc"_s << false;
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
        QTest::newRow("the whole text") << u"40.5"_s << 40.5;
        QTest::newRow("blanks ahead are skipped") << u"   8"_s << 8.0;
        QTest::newRow("what follows is left out") << u"8 hours"_s << 8.0;
        QTest::newRow("a sign") << u"-3.5x"_s << -3.5;
        QTest::newRow("no digit ahead of the point") << u".5"_s << 0.5;
        QTest::newRow("no digit behind the point") << u"5."_s << 5.0;
        QTest::newRow("an exponent") << u"1e2 x"_s << 100.0;
        QTest::newRow("an exponent without digits is left out") << u"8e"_s << 8.0;
        QTest::newRow("a second point ends it") << u"1.2.3"_s << 1.2;
        QTest::newRow("no thousands separators") << u"1,250"_s << 1.0;
        QTest::newRow("no symbol") << u"$40"_s << 0.0;
        QTest::newRow("nothing usable") << u"abc"_s << 0.0;
        QTest::newRow("empty") << QString() << 0.0;
        QTest::newRow("a lone point") << u"."_s << 0.0;
        QTest::newRow("a lone sign") << u"-"_s << 0.0;
    }
    void TheNumericPrefixIsTheLongestLeadingPlainNumber()
    {
        QFETCH(QString, text);
        QTEST(NumericPrefix(text), "value");
    }

    void TheNumericPrefixHasTheLocalesDecimalSeparator()
    {
        SetUserLocale(German);
        QCOMPARE(NumericPrefix(u"8,5 Stunden"_s), 8.5);
        QCOMPARE(NumericPrefix(u"8.5"_s), 8.0);
    }

    void PlainTextOfAnAmountHasNoMoreDigitsThanItNeeds_data()
    {
        QTest::addColumn<qint64>("tenThousandths");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << qint64(12500000) << u"1250"_s;
        QTest::newRow("one decimal") << qint64(125000) << u"12.5"_s;
        QTest::newRow("zero") << qint64(0) << u"0"_s;
        QTest::newRow("negative") << qint64(-37500) << u"-3.75"_s;
        QTest::newRow("a zero ahead of the point") << qint64(-7) << u"-0.0007"_s;
        QTest::newRow("the greatest") << std::numeric_limits<qint64>::max() << u"922337203685477.5807"_s;
        QTest::newRow("the least") << std::numeric_limits<qint64>::min() << u"-922337203685477.5808"_s;
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
        QTest::newRow("six per cent") << 0.06F << u"0.06"_s;
        QTest::newRow("nine tenths") << 0.9F << u"0.9"_s;
        QTest::newRow("whole") << 12.0F << u"12"_s;
        QTest::newRow("nine digits where it needs them") << 0.091717355F << u"0.091717355"_s;
        QTest::newRow("negative zero shows no sign") << -0.0F << u"0"_s;
        QTest::newRow("no exponent") << 1e10F << u"10000000000"_s;
        QTest::newRow("no exponent for a small one") << 1e-7F << u"0.0000001"_s;
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
        QTest::newRow("as it is") << u"12.5"_s << u"12.5"_s;
        QTest::newRow("symbol and separators go") << u"($1,234.50)"_s << u"-1234.5"_s;
        QTest::newRow("a zero comes ahead of the point") << u"-.5"_s << u"-0.5"_s;
        QTest::newRow("more decimals than a double holds")
            << u"0.12345678901234567891"_s << u"0.12345678901234567891"_s;
        QTest::newRow("zeros at the end go") << u"10.500"_s << u"10.5"_s;
        QTest::newRow("zeros ahead of the point stay") << u"&HA0"_s << u"160"_s;
        QTest::newRow("an exponent is carried out") << u"1.5e3"_s << u"1500"_s;
        QTest::newRow("a negative exponent is carried out") << u"15e-4"_s << u"0.0015"_s;
        QTest::newRow("nothing") << u"0.00"_s << u"0"_s;
        QTest::newRow("next to nothing") << u"1e-99999999"_s << u"0"_s;
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
        QTest::newRow("whole") << 85.0F << u"85"_s << u" 85"_s;
        QTest::newRow("a fraction: only the spaced form drops its zero") << 0.5F << u"0.5"_s << u" .5"_s;
        QTest::newRow("a negative fraction") << -0.5F << u"-0.5"_s << u"-.5"_s;
        QTest::newRow("negative: the sign takes the blank's place") << -85.25F << u"-85.25"_s << u"-85.25"_s;
        QTest::newRow("the eighth digit is rounded away") << 61.120003F << u"61.12"_s << u" 61.12"_s;
        QTest::newRow("seven digits stay") << 68.42606F << u"68.42606"_s << u" 68.42606"_s;
        QTest::newRow("zero") << 0.0F << u"0"_s << u" 0"_s;
        QTest::newRow("negative zero") << -0.0F << u"0"_s << u" 0"_s;
        QTest::newRow("great numbers keep their length") << 12345678.0F << u"12345680"_s << u" 12345680"_s;
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

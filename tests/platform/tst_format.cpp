// The named formats: what they show, how they round, what they leave alone.
#include "TestProgram.h"
#include "platform/values/Format.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include "../support/ErrorOf.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(NumberFormat)

namespace {
const QLocale American(QLocale::English, QLocale::UnitedStates);
const QLocale German(QLocale::German, QLocale::Germany);
const QLocale Swiss(QLocale::German, QLocale::Switzerland);
constexpr NumberFormat AllFormats[] = {NumberFormat::Currency, NumberFormat::Fixed, NumberFormat::Standard,
                                       NumberFormat::Percent, NumberFormat::GeneralNumber};

Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}
} // namespace

class TestFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUserLocale(American); }

    void AnAmountIsShownInEachFormat_data()
    {
        QTest::addColumn<qint64>("tenThousandths");
        QTest::addColumn<NumberFormat>("format");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, qint64 count, NumberFormat format, const char *text) {
            QTest::newRow(name) << count << format << QString::fromLatin1(text);
        };
        row("currency", 12345000, NumberFormat::Currency, "$1,234.50");
        row("currency, negative: in parentheses", -12345000, NumberFormat::Currency, "($1,234.50)");
        row("currency, zero", 0, NumberFormat::Currency, "$0.00");
        row("currency, less than one", 500, NumberFormat::Currency, "$0.05");
        row("currency, millions", 12345678905000, NumberFormat::Currency, "$1,234,567,890.50");
        row("currency, no separator below a thousand", 9990000, NumberFormat::Currency, "$999.00");
        row("half a cent goes away from zero", 10615385, NumberFormat::Currency, "$1,061.54");
        row("exactly half a cent", 1250, NumberFormat::Fixed, "0.13");
        row("half a negative cent goes away from zero", -50, NumberFormat::Fixed, "-0.01");
        row("less than half a cent", 49, NumberFormat::Fixed, "0.00");
        row("nines carry over", 9999950, NumberFormat::Currency, "$1,000.00");
        row("currency: what rounds to zero shows no sign", -49, NumberFormat::Currency, "$0.00");
        row("fixed: what rounds to zero shows no sign", -49, NumberFormat::Fixed, "0.00");
        row("the greatest amount", 9223372036854775807, NumberFormat::Currency, "$922,337,203,685,477.58");
        row("fixed: no separators", 12345000, NumberFormat::Fixed, "1234.50");
        row("fixed, negative", -12345000, NumberFormat::Fixed, "-1234.50");
        row("standard: separators, no symbol", 12345000, NumberFormat::Standard, "1,234.50");
        row("standard, negative", -12345000, NumberFormat::Standard, "-1,234.50");
        row("percent: times a hundred", 600, NumberFormat::Percent, "6.00%");
        row("percent, negative", -8543, NumberFormat::Percent, "-85.43%");
        row("percent, above a hundred", 10000000, NumberFormat::Percent, "100000.00%");
        row("general number: plain", 12345000, NumberFormat::GeneralNumber, "1234.5");
    }
    void AnAmountIsShownInEachFormat()
    {
        QFETCH(qint64, tenThousandths);
        QFETCH(NumberFormat, format);
        QTEST(Format(Count(tenThousandths), format), "text");
    }

    void FormatCurrencyIsTheFormatCurrency() { QCOMPARE(FormatCurrency(Count(-12345000)), u"($1,234.50)"_s); }

    void TheAmountAsShownIsWhatItsTextReadsBackAs()
    {
        constexpr qint64 most = std::numeric_limits<qint64>::max();
        for (const QLocale &locale : {American, German, Swiss}) {
            SetUserLocale(locale);
            for (const qint64 count :
                 {qint64(0), qint64(49), qint64(50), qint64(-49), qint64(-50), qint64(51), qint64(100), qint64(149),
                  qint64(-150), qint64(10615385), qint64(-10615385), qint64(9999950), most, -most, -most - 1})
                QCOMPARE(AsShown(Count(count)), ToCurrency(FormatCurrency(Count(count))));
        }
        QCOMPARE(AsShown(Count(10615385)), Count(10615400));
        QCOMPARE(AsShown(Count(-50)), Count(-100));
        QCOMPARE(AsShown(Count(-49)), Currency());
    }

    void ASingleIsShownInSinglePrecision()
    {
        // Its double would be 0.0599999986... and 1.0049999952...
        QCOMPARE(Format(0.06F, NumberFormat::Percent), u"6.00%"_s);
        QCOMPARE(Format(1.005F, NumberFormat::Fixed), u"1.01"_s);
        QCOMPARE(Format(0.85F, NumberFormat::GeneralNumber), u"0.85"_s);
    }

    void APercentageShowsTheSameDigitsEverywhere_data()
    {
        QTest::addColumn<float>("fraction");
        QTest::addColumn<QString>("shown");
        const auto row = [](float fraction, const char *shown) {
            QTest::addRow("%s", qPrintable(PlainText(fraction))) << fraction << QString::fromLatin1(shown);
        };
        row(0.0F, "0.00");
        row(0.06F, "6.00");
        row(0.9F, "90.00");
        row(0.06625F, "6.63"); // its double times a hundred lies below 6.625
        row(0.07125F, "7.13");
        row(0.06635F, "6.64");
        row(0.06624999F, "6.62");
        row(0.00005F, "0.01");
        row(-0.06625F, "-6.63");
        row(-0.00001F, "0.00");
        row(12.5F, "1250.00");
    }
    void APercentageShowsTheSameDigitsEverywhere()
    {
        QFETCH(float, fraction);
        QFETCH(QString, shown);
        QCOMPARE(PerCent(fraction), shown);
        QCOMPARE(Format(fraction, NumberFormat::Percent), shown + QLatin1Char('%'));
        SetUserLocale(German);
        QCOMPARE(PerCent(fraction), QString(shown).replace(QLatin1Char('.'), QLatin1Char(',')));
        QCOMPARE(Format(fraction, NumberFormat::Percent), PerCent(fraction) + QLatin1Char('%'));
    }

    void APercentageIsReadDigitByDigit()
    {
        // In binary, 6.63 divided by 100 is another single than 0.0663.
        for (int hundredths = 0; hundredths <= 10000; ++hundredths) {
            const QString typed = Format(Decimal(hundredths, 2).ToDouble(), NumberFormat::Fixed);
            const float fraction = Decimal(hundredths, 4).ToFloat();
            QVERIFY2(FractionOf(typed) == fraction, qPrintable(typed)); // a comparison of the test library is not exact
            QCOMPARE(PerCent(fraction), typed);
        }
        QVERIFY(FractionOf(u"6.625"_s) == 0.06625F);
        QVERIFY(FractionOf(u"-6.625"_s) == -0.06625F);
        QCOMPARE(ErrorOf([] { FractionOf(u"6%"_s); }), 13);
        QCOMPARE(ErrorOf([] { FractionOf(u"1e39"_s); }), 6);
    }

    void ADoubleIsRoundedOnItsDecimalValue()
    {
        QCOMPARE(Format(0.125, NumberFormat::Fixed), u"0.13"_s);
        QCOMPARE(Format(-0.005, NumberFormat::Fixed), u"-0.01"_s);
        QCOMPARE(Format(1.005, NumberFormat::Fixed), u"1.01"_s);
        QCOMPARE(Format(-0.0, NumberFormat::Fixed), u"0.00"_s);
        QCOMPARE(Format(-1e-12, NumberFormat::Percent), u"0.00%"_s);
        QCOMPARE(Format(0.5, NumberFormat::GeneralNumber), u"0.5"_s);
    }

    void WhatIsNoNumberIsAnOverflow()
    {
        QCOMPARE(ErrorOf([] { Format(std::numeric_limits<double>::infinity(), NumberFormat::Fixed); }), 6);
        QCOMPARE(ErrorOf([] { Format(std::numeric_limits<double>::quiet_NaN(), NumberFormat::Fixed); }), 6);
        QCOMPARE(ErrorOf([] { Format(std::numeric_limits<float>::infinity(), NumberFormat::Percent); }), 6);
        QCOMPARE(ErrorOf([] { PerCent(std::numeric_limits<float>::quiet_NaN()); }), 6);
    }

    void ANumberIsShownAsItIs()
    {
        QCOMPARE(Format(0, NumberFormat::GeneralNumber), u"0"_s);
        QCOMPARE(Format(-32768, NumberFormat::GeneralNumber), u"-32768"_s);
        QCOMPARE(Format(0, NumberFormat::Currency), u"$0.00"_s);
        QCOMPARE(Format(1250, NumberFormat::Currency), u"$1,250.00"_s);
    }

    void ATextIsConvertedWhenItIsNumeric_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<NumberFormat>("format");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const char *text, NumberFormat format, const char *shown) {
            QTest::newRow(name) << QString::fromLatin1(text) << format << QString::fromLatin1(shown);
        };
        row("digits become an amount", "1250", NumberFormat::Currency, "$1,250.00");
        row("an amount stays an amount", "($1,234.50)", NumberFormat::Currency, "($1,234.50)");
        row("blanks go", " 5 ", NumberFormat::Currency, "$5.00");
        row("an amount becomes fixed", "$1,234.50", NumberFormat::Fixed, "1234.50");
        row("half a cent in text", "0.125", NumberFormat::Currency, "$0.13");
        row("rounded once, from all its decimals", "0.00499999", NumberFormat::Currency, "$0.00");
        row("more than an amount can hold", "1e20", NumberFormat::Standard, "100,000,000,000,000,000,000.00");
        row("general number", "007.50", NumberFormat::GeneralNumber, "7.5");
        row("general number of a whole number", "$1,250.00", NumberFormat::GeneralNumber, "1250");
        row("percent", ".06", NumberFormat::Percent, "6.00%");
        row("hexadecimal", "&H1F", NumberFormat::GeneralNumber, "31");
        row("text that is no number comes back", "abc", NumberFormat::Currency, "abc");
        row("a percentage comes back", "5%", NumberFormat::Currency, "5%");
        row("blanks come back", "  ", NumberFormat::Fixed, "  ");
        row("empty text comes back", "", NumberFormat::Currency, "");
    }
    void ATextIsConvertedWhenItIsNumeric()
    {
        QFETCH(QString, text);
        QFETCH(NumberFormat, format);
        QTEST(Format(text, format), "shown");
    }

    void ATextBeyondEveryRangeIsAnOverflow()
    {
        for (const NumberFormat format : AllFormats)
            QCOMPARE(ErrorOf([&] { Format(u"1e400"_s, format); }), 6);
    }

    void SeparatorsStandWhereTheLocalePutsThem()
    {
        SetUserLocale(QLocale(QLocale::English, QLocale::India));
        const QString text = FormatCurrency(Count(12345670000));
        QCOMPARE(text, u"\u20B912,34,567.00"_s);
        QVERIFY(IsNumeric(text));
        QCOMPARE(ToCurrency(text).TenThousandths(), qint64(12345670000));
        QCOMPARE(Format(Count(12345670000), NumberFormat::Standard), u"12,34,567.00"_s);
        QCOMPARE(Format(Count(9990000), NumberFormat::Standard), u"999.00"_s);
    }

    void APlainApostropheStandsForTheCurlyOne()
    {
        const QString typed = u"1'234'567.50"_s;
        SetUserLocale(Swiss);
        QVERIFY(IsNumeric(typed));
        QCOMPARE(ToCurrency(typed).TenThousandths(), qint64(12345675000));
        QVERIFY(!IsNumeric(u"'1234"_s)); // it parts digits and does not lead them
        QVERIFY(!IsNumeric(u"1.5'0"_s)); // nor stands behind the point
        SetUserLocale(American);
        QVERIFY(!IsNumeric(typed));
    }

    void SignsFollowTheUsersLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<NumberFormat>("format");
        QTest::addColumn<QString>("text");
        QTest::newRow("German currency") << German << NumberFormat::Currency << u"-1.234,50\u00A0\u20AC"_s;
        QTest::newRow("German fixed") << German << NumberFormat::Fixed << u"-1234,50"_s;
        QTest::newRow("German standard") << German << NumberFormat::Standard << u"-1.234,50"_s;
        QTest::newRow("German general number") << German << NumberFormat::GeneralNumber << u"-1234,5"_s;
        QTest::newRow("German percent") << German << NumberFormat::Percent << u"-123450,00%"_s;
        QTest::newRow("Swiss apostrophe") << Swiss << NumberFormat::Standard << u"-1\u2019234.50"_s;
        QTest::newRow("the C locale counts as the United States")
            << QLocale::c() << NumberFormat::Currency << u"($1,234.50)"_s;
    }
    void SignsFollowTheUsersLocale()
    {
        QFETCH(QLocale, locale);
        QFETCH(NumberFormat, format);
        SetUserLocale(locale);
        QTEST(Format(Count(-12345000), format), "text");
    }

    void WhatIsShownIsNumericAndWorthTheSameInEveryLocale()
    {
        const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(locales.size() > 100);
        for (const QLocale &locale : locales) {
            SetUserLocale(locale);
            for (const NumberFormat format : AllFormats) {
                if (format == NumberFormat::Percent) // a percent sign is no part of a number
                    continue;
                for (const qint64 count : {qint64(0), qint64(500), qint64(-500), qint64(-12345000), qint64(1) << 62}) {
                    const qint64 cents = (count < 0 ? count - 50 : count + 50) / 100 * 100;
                    const QString text = Format(Count(count), format);
                    const QString where = locale.name() + u": "_s + text;
                    QVERIFY2(IsNumeric(text), qPrintable(where));
                    QVERIFY2(ToCurrency(text) == Count(format == NumberFormat::GeneralNumber ? count : cents),
                             qPrintable(where));
                }
            }
        }
    }
};

REGISTER_TEST(TestFormat)
#include "tst_format.moc"

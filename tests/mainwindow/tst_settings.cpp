// What the settings windows show, refuse and store.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "mainwindow/Settings.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(qint64 amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}

QString TextOf(const std::optional<Refusal> &refusal)
{
    return refusal ? refusal->Text : QString();
}

QString FocusOf(const std::optional<Refusal> &refusal)
{
    return refusal ? refusal->Focus : QString();
}

const EnvironmentEntry Good{u"52"_s, u"$1,234.50"_s, u"8.25"_s, u"85"_s};

} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheSettingsAsTheyAreShown()
    {
        FakeDesk desk;
        State.ForecastPeriods = 1000;
        State.PaycheckAmount = Currency::FromTenThousandths(12345000);
        State.SalesTax = 0.06F;
        State.AverageNetPercentage = 0.9F;
        QVERIFY(ShownEnvironment() == (EnvironmentEntry{u"1000"_s, u"$1,234.50"_s, u"6.00"_s, u"90.00"_s}));
    }

    void PercentagesShowTwoDecimals_data()
    {
        QTest::addColumn<float>("fraction");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing") << 0.0F << u"0.00"_s;
        QTest::newRow("a third decimal of five rounds up") << 0.07125F << u"7.13"_s;
        QTest::newRow("also where its double lies below") << 0.06625F << u"6.63"_s;
        QTest::newRow("a single's own error does not show") << 0.07F << u"7.00"_s;
        QTest::newRow("more than everything") << 12.5F << u"1250.00"_s;
    }
    void PercentagesShowTwoDecimals()
    {
        QFETCH(float, fraction);
        QFETCH(QString, shown);
        FakeDesk desk;
        State.SalesTax = fraction;
        State.AverageNetPercentage = fraction;
        QCOMPARE(ShownEnvironment().SalesTax, shown);
        QCOMPARE(ShownEnvironment().AverageNetPercentage, shown);
    }

    void WhatIsShownIsAccepted()
    {
        FakeDesk desk;
        State.PaycheckAmount = Dollars(-1234567);
        State.SalesTax = 0.0825F;
        const EnvironmentEntry shown = ShownEnvironment();
        for (const QString &text :
             {shown.ForecastPeriods, shown.PaycheckAmount, shown.SalesTax, shown.AverageNetPercentage})
            QVERIFY2(IsNumeric(text), qPrintable(text));
    }

    void TheForecastIsBounded_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("bounded");
        const auto row = [](const char *text, const char *bounded) {
            QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(bounded);
        };
        row("26", "26");
        row("1", "1");
        row("1000", "1000");
        row("1001", "1000");
        row("1500", "1000");
        row("0", "1");
        row("-3", "1");
        row("1000.5", "1000.5"); // its integer value is 1000
        row("1001.4", "1000");
        row("0.5", "1"); // its integer value is 0
        row("0.6", "0.6");
    }
    void TheForecastIsBounded()
    {
        QFETCH(QString, text);
        QFETCH(QString, bounded);
        QCOMPARE(BoundedForecastPeriods(text), bounded);
    }

    void AForecastBeyondAnIntegerIsAnOverflow()
    {
        QCOMPARE(ErrorOf([] { BoundedForecastPeriods(u"99999"_s); }), 6);
        QCOMPARE(ErrorOf([] { BoundedForecastPeriods(u"-99999"_s); }), 6);
        QCOMPARE(ErrorOf([] { BoundedForecastPeriods(u"abc"_s); }), 13);
    }

    void TheSpinnerSteps_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("step");
        QTest::addColumn<QString>("stepped");
        const auto row = [](const char *name, const char *text, int step, const char *stepped) {
            QTest::newRow(name) << QString::fromLatin1(text) << step << QString::fromLatin1(stepped);
        };
        row("up", "26", 1, "27");
        row("down", "26", -1, "25");
        row("not above 1000", "1000", 1, "1000");
        row("not below 1", "1", -1, "1");
        row("from above", "1500", -1, "1000");
        row("from far above", "99999", 1, "1000");
        row("from below", "-3", 1, "1");
        row("from between", "12.5", 1, "13");
        row("no number stays", "abc", 1, "abc");
        row("nothing stays", "", 1, "");
        row("beyond every number stays", "1e999", -1, "1e999");
    }
    void TheSpinnerSteps()
    {
        QFETCH(QString, text);
        QFETCH(int, step);
        QFETCH(QString, stepped);
        QCOMPARE(SteppedForecastPeriods(text, step, 1000), stepped);
    }

    void AnEntryIsStored()
    {
        FakeDesk desk;
        TakeEnvironmentEntry(Good);
        QCOMPARE(State.ForecastPeriods, qint16(52));
        QCOMPARE(State.PaycheckAmount, Currency::FromTenThousandths(12345000));
        QVERIFY(State.SalesTax == 0.0825F);
        QVERIFY(State.AverageNetPercentage == 0.85F);
    }

    void ANullTextLeavesItsSetting_data()
    {
        QTest::addColumn<EnvironmentEntry>("entry");
        QTest::addColumn<int>("stored");
        QTest::newRow("none of them") << EnvironmentEntry{} << -1;
        QTest::newRow("forecast") << EnvironmentEntry{.ForecastPeriods = u"52"_s} << 0;
        QTest::newRow("paycheck") << EnvironmentEntry{.PaycheckAmount = u"2"_s} << 1;
        QTest::newRow("sales tax") << EnvironmentEntry{.SalesTax = u"7"_s} << 2;
        QTest::newRow("net percentage") << EnvironmentEntry{.AverageNetPercentage = u"80"_s} << 3;
    }
    void ANullTextLeavesItsSetting()
    {
        QFETCH(EnvironmentEntry, entry);
        QFETCH(int, stored);
        FakeDesk desk;
        State.ForecastPeriods = 26;
        State.PaycheckAmount = Currency::FromTenThousandths(10615385);
        State.SalesTax = 0.06625F;
        State.AverageNetPercentage = 1.0F / 3;
        TakeEnvironmentEntry(entry);
        QCOMPARE(State.ForecastPeriods, qint16(stored == 0 ? 52 : 26));
        QCOMPARE(State.PaycheckAmount, stored == 1 ? Dollars(2) : Currency::FromTenThousandths(10615385));
        QVERIFY(State.SalesTax == (stored == 2 ? 0.07F : 0.06625F));
        QVERIFY(State.AverageNetPercentage == (stored == 3 ? 0.8F : 1.0F / 3));
    }

    void APercentageIsStoredAsItIsTyped_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("stored");
        QTest::newRow("three decimals") << u"6.625"_s << 0.06625F;
        QTest::newRow("two decimals of the same digits") << u"6.63"_s << 0.0663F;
        QTest::newRow("what binary division would miss") << u"0.06"_s << 0.0006F;
        QTest::newRow("another way to write what is shown") << u"7"_s << 0.07F;
        QTest::newRow("what was shown before") << u"6.00"_s << 0.06F;
        QTest::newRow("what is shown") << u"7.00"_s << 0.07F;
    }
    void APercentageIsStoredAsItIsTyped()
    {
        QFETCH(QString, typed);
        QFETCH(float, stored);
        FakeDesk desk;
        State.SalesTax = State.AverageNetPercentage = 0.070001F; // shows 7.00
        TakeEnvironmentEntry({u"26"_s, u"1"_s, typed, typed});
        QVERIFY2(State.SalesTax == stored, qPrintable(PlainText(State.SalesTax)));
        QVERIFY2(State.AverageNetPercentage == stored, qPrintable(PlainText(State.AverageNetPercentage)));
    }

    void AnErrorKeepsWhatWasStoredBefore_data()
    {
        QTest::addColumn<EnvironmentEntry>("entry");
        QTest::addColumn<int>("stored");
        QTest::newRow("forecast") << EnvironmentEntry{u"99999"_s, u"2"_s, u"2"_s, u"2"_s} << 0;
        QTest::newRow("paycheck") << EnvironmentEntry{u"2"_s, u"1e30"_s, u"2"_s, u"2"_s} << 1;
        QTest::newRow("sales tax") << EnvironmentEntry{u"2"_s, u"2"_s, u"1e39"_s, u"2"_s} << 2;
        QTest::newRow("net percentage") << EnvironmentEntry{u"2"_s, u"2"_s, u"2"_s, u"1e39"_s} << 3;
    }
    void AnErrorKeepsWhatWasStoredBefore()
    {
        QFETCH(EnvironmentEntry, entry);
        QFETCH(int, stored);
        FakeDesk desk;
        QCOMPARE(ErrorOf([&] { TakeEnvironmentEntry(entry); }), 6);
        QCOMPARE(State.ForecastPeriods, qint16(stored > 0 ? 2 : 0));
        QCOMPARE(State.PaycheckAmount, Dollars(stored > 1 ? 2 : 0));
        QCOMPARE(State.SalesTax, stored > 2 ? 0.02F : 0.0F);
        QCOMPARE(State.AverageNetPercentage, 0.0F);
    }

    void ThePayDaysAreTold_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("monthEnd");
        QTest::addColumn<QString>("semimonthly");
        QTest::addColumn<QString>("monthly");
        QTest::newRow("two days, not at the end")
            << 1 << 15 << 0 << u"Pay days 1 and 15. To change them choose another frequency, then this one again."_s
            << u"Not paid at the end of the month. To change this choose another frequency, then this one again."_s;
        QTest::newRow("at the end")
            << 12 << 0 << -1
            << u"Pay days 12 and the end of the month. To change them choose another frequency, then this one again."_s
            << u"Paid at the end of the month. To change this choose another frequency, then this one again."_s;
        QTest::newRow("neither yes nor no")
            << 0 << 28 << 1 << u"Pay days 0 and 28. To change them choose another frequency, then this one again."_s
            << u"Not known whether paid at the end of the month. To change this choose another frequency, then this "
               u"one "
               "again."_s;
    }
    void ThePayDaysAreTold()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, monthEnd);
        FakeDesk desk;
        State.FirstPayDate = qint16(first);
        State.SecondPayDate = qint16(second);
        State.MonthEndPay = qint16(monthEnd);
        QTEST(SemimonthlyPayDays(), "semimonthly");
        QTEST(MonthlyPayDay(), "monthly");
    }

    void SemimonthlyDates_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        const auto row = [](const char *first, const char *second, const char *text, const char *focus) {
            QTest::addRow("\"%s\" and \"%s\"", first, second)
                << QString::fromLatin1(first) << QString::fromLatin1(second) << QString::fromLatin1(text)
                << QString::fromLatin1(focus);
        };
        const auto accepted = [&](const char *first, const char *second) { row(first, second, "", ""); };
        accepted("1", "15");
        accepted("15", "0");
        accepted("27", "0");
        accepted("10", "28");
        accepted("27", "28");
        accepted("15", "15");
        accepted("0", "0");
        accepted("0", "28");
        accepted("12.5", "20");
        const auto noFirst = [&](const char *first, const char *second) {
            row(first, second, "First Pay Date does not contain a valid numeric amount", "txtFirstPayDate");
        };
        noFirst("", "15");
        noFirst("abc", "15");
        noFirst("abc", "abc");
        noFirst("abc", "99");
        const auto noSecond = [&](const char *first, const char *second) {
            row(first, second, "Second Pay Date does not contain a valid numeric amount", "txtSecondPayDate");
        };
        noSecond("15", "");
        noSecond("15", "abc");
        noSecond("28", "abc"); // before the range is looked at
        const auto outOfRange = [&](const char *first, const char *second) {
            row(first, second, "Dates are out of acceptable range", "txtFirstPayDate");
        };
        outOfRange("28", "0");
        outOfRange("28", "28");
        outOfRange("-1", "15");
        outOfRange("10", "29");
        outOfRange("10", "-1");
        outOfRange("29", "10"); // before the order is looked at
        outOfRange("27.4", "28");
        outOfRange("99999", "28");
        outOfRange("1", "1e999");
        const auto wrongOrder = [&](const char *first, const char *second) {
            row(first, second,
                "First Pay Date cannot be greater than Second Pay Date unless you get paid at the end of the month",
                "txtFirstPayDate");
        };
        wrongOrder("20", "10");
        wrongOrder("2", "1");
        wrongOrder("15.4", "15.2");
    }
    void SemimonthlyDates()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        const auto refusal = ValidateSemimonthlyEntry(first, second);
        QCOMPARE(TextOf(refusal), text);
        QCOMPARE(FocusOf(refusal), focus);
    }

    void SemimonthlyDatesAreStoredRounded()
    {
        FakeDesk desk;
        TakeSemimonthlyEntry(u"12.5"_s, u"13.5"_s);
        QCOMPARE(State.FirstPayDate, qint16(12));
        QCOMPARE(State.SecondPayDate, qint16(14));
    }
};

REGISTER_TEST(TestSettings)
#include "tst_settings.moc"

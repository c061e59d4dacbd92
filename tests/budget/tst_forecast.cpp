// The savings forecast: its rows, its page, and what it leaves behind.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "budget/SavingsForecast.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Biweekly2004 = "01-01-2004"; // the pay dates are January 1, 15 and 29, February 12, ...

/// A biweekly household of $1,000.00 whose pay periods cost what is told, in this order.
struct ForecastDesk : FakeDesk {
    explicit ForecastDesk(qint16 periods, const QList<double> &costs = {})
    {
        Forecast = {};
        State.ForecastPeriods = periods;
        State.PaycheckAmount = Currency::FromDouble(1000);
        State.PayFrequency = Biweekly;
        State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        State.CurrentPayPeriod = QString::fromLatin1(Biweekly2004);
        State.BudgetPeriodStart = State.CurrentPayPeriod;
        State.NumberOfExtraPayPeriods = qint16(costs.size());
        State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods);
        for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
            ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
            payPeriod.PayPeriodDate = Format(QDate(2004, 1, 1).addDays(14 * (i - 1)), DateFormat::Dashes);
            payPeriod.NumberOfExtraItems = 1;
            payPeriod.ExtraItems.At(1) = {u"Cost"_s, Currency::FromDouble(costs[i - 1])};
        }
    }
};

/// The rows as one text each; an amount in red is marked.
QStringList Rows()
{
    QStringList rows;
    for (const StatementRow &row : ForecastStatement().Rows) {
        QString text = row.Texts.join(u" | "_s);
        for (const Currency amount : row.Amounts)
            text += u" | "_s + FormatCurrency(amount) + (amount < Currency() ? u" red"_s : QString());
        rows += text;
    }
    return rows;
}

} // namespace

class tst_forecast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Rows_data()
    {
        QTest::addColumn<int>("periods");
        QTest::addColumn<QList<double>>("costs");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("one period is one row, the current one")
            << 1 << QList<double>{400} << QStringList{u"January 1, 2004 | $600.00 | $600.00"_s};
        QTest::newRow("what is accumulated grows by each period's savings")
            << 3 << QList<double>{400, 700, 1000}
            << QStringList{u"January 1, 2004 | $600.00 | $600.00"_s, u"January 15, 2004 | $300.00 | $900.00"_s,
                           u"January 29, 2004 | $0.00 | $900.00"_s};
        QTest::newRow("a deficit ahead lowers the period before it to the same figure")
            << 3 << QList<double>{500, 1100}
            << QStringList{u"January 1, 2004 | $200.00 | $200.00"_s, u"January 15, 2004 | $200.00 | $400.00"_s,
                           u"January 29, 2004 | $1,000.00 | $1,400.00"_s};
        QTest::newRow("a deficit in the first row is red, and the total until it is made up for")
            << 3 << QList<double>{1200, 950}
            << QStringList{u"January 1, 2004 | ($200.00) red | ($200.00) red"_s,
                           u"January 15, 2004 | $50.00 | ($150.00) red"_s, u"January 29, 2004 | $1,000.00 | $850.00"_s};
        QTest::newRow("red savings above a total that is still positive")
            << 4 << QList<double>{0, 0, 3500}
            << QStringList{
                   u"January 1, 2004 | $1,000.00 | $1,000.00"_s, u"January 15, 2004 | ($750.00) red | $250.00"_s,
                   u"January 29, 2004 | ($750.00) red | ($500.00) red"_s, u"February 12, 2004 | $1,000.00 | $500.00"_s};
        QTest::newRow("below half a cent is no red: the text decides")
            << 1 << QList<double>{1000.0049} << QStringList{u"January 1, 2004 | $0.00 | $0.00"_s};
        QTest::newRow("half a cent is red")
            << 1 << QList<double>{1000.005} << QStringList{u"January 1, 2004 | ($0.01) red | ($0.01) red"_s};
        QTest::newRow("no period, no row") << 0 << QList<double>{} << QStringList{};
        QTest::newRow("a negative number of periods, no row") << -1 << QList<double>{} << QStringList{};
    }
    void Rows()
    {
        QFETCH(int, periods);
        QFETCH(QList<double>, costs);
        QFETCH(QStringList, rows);
        ForecastDesk desk(qint16(periods), costs);
        ForecastSavings();
        QCOMPARE(::Rows(), rows);
    }

    void TheRunningTotalIsExactWhereTheTextsAreRounded()
    {
        ForecastDesk desk(2, {999.996, 999.996}); // each saves $0.004, together $0.008
        ForecastSavings();
        QCOMPARE(::Rows(), (QStringList{u"January 1, 2004 | $0.00 | $0.00"_s, u"January 15, 2004 | $0.00 | $0.01"_s}));
        QCOMPARE(Forecast.AccumulatedSavings.TenThousandths(), qint64(80));
        QVERIFY((Forecast.Rows(1) ==
                 ForecastRow{QDate(2004, 1, 1), Currency::FromTenThousandths(40), Currency::FromTenThousandths(40)}));
        QVERIFY((Forecast.Rows(2) ==
                 ForecastRow{QDate(2004, 1, 15), Currency::FromTenThousandths(40), Currency::FromTenThousandths(80)}));
    }

    void ItContinuesBehindItsLastRowWithATotalOfNothing()
    {
        ForecastDesk desk(2, {400, 400, 700});
        ForecastSavings();
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/29/2004"_s);
        ForecastSavings();
        QCOMPARE(::Rows(), (QStringList{u"January 29, 2004 | $300.00 | $300.00"_s,
                                        u"February 12, 2004 | $1,000.00 | $1,300.00"_s}));
    }

    void TheTextsStayBehindAShorterRun()
    {
        ForecastDesk desk(3);
        ForecastSavings();
        State.ForecastPeriods = 1;
        ForecastSavings();
        QCOMPARE(Forecast.ForecastDates(1), u"February 12, 2004"_s);
        QCOMPARE(Forecast.ForecastDates(3), u"January 29, 2004"_s);
        QCOMPARE(Forecast.ForecastAccumulated(3), u"$3,000.00"_s);
        QCOMPARE(Forecast.ForecastSavingsAmounts(3), u"$1,000.00"_s);
        QCOMPARE(Forecast.ForecastDates(4), QString()); // where no forecast has come to yet
        QCOMPARE(Forecast.ForecastSavingsAmounts(4), QString());
        QCOMPARE(Forecast.ForecastAccumulated(4), QString());
    }

    void TheFlagsAreDownAfterwardsAndNothingIsPrinted()
    {
        ForecastDesk desk(2);
        ForecastSavings();
        QVERIFY(!State.ForecastMode);
        QVERIFY(!State.PrintSavingsForecast);
        QVERIFY(!State.LookingAhead);
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(desk.TakeHourglass(), QList<bool>{false}); // the long part is done
    }

    void AnOpenDocumentEndsWithTheForecast()
    {
        ForecastDesk desk(1);
        ThePrinter.Print(u"from elsewhere"_s).NewLine();
        ForecastSavings();
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Lines, QStringList{u"from elsewhere"_s});
    }

    void ThePage()
    {
        ForecastDesk desk(4, {0, 0, 3500});
        State.PrintSavingsForecast = true;
        State.PrintFontName = u"Courier"_s;
        ForecastSavings();
        QVERIFY(!State.PrintSavingsForecast);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Font.Name, u"Courier"_s);
        QCOMPARE(page.Name, u"Savings Forecast"_s);
        QCOMPARE(page.Lines,
                 (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                              {},
                              u"                               SAVINGS FORECAST"_s,
                              {},
                              u"    Pay Period                       Savings                 Accumulated"_s,
                              u"    ______________________________________________________________________"_s,
                              {},
                              u"    January 1, 2004                  $1,000.00                   $1,000.00"_s,
                              u"    January 15, 2004                 ($750.00)                     $250.00"_s,
                              u"    January 29, 2004                 ($750.00)                   ($500.00)"_s,
                              u"    February 12, 2004                $1,000.00                     $500.00"_s}));
    }

    void AThousandRowsAreTheMost()
    {
        ForecastDesk desk(1000);
        ForecastSavings();
        QCOMPARE(ForecastStatement().Rows.size(), std::size_t(1000));
        QCOMPARE(Forecast.ForecastAccumulated(1000), u"$1,000,000.00"_s);
    }

    void BeyondAThousandRowsIsError9()
    {
        ForecastDesk desk(1001);
        QCOMPARE(ErrorOf([] { ForecastSavings(); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(Forecast.ForecastAccumulated(1000), u"$1,000,000.00"_s); // it ran up to the bound
    }

    void Errors_data()
    {
        QTest::addColumn<QString>("extraDate");
        QTest::addColumn<int>("payFrequency");
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("error");
        QTest::newRow("a damaged date of an extra pay period") << u"never"_s << 14 << u"1/1/2004"_s << 13;
        QTest::newRow("a pay period that is no date") << u"1/1/2004"_s << 14 << u"soon"_s << 13;
        QTest::newRow("a frequency that is none") << u"1/1/2004"_s << 21 << u"1/1/2004"_s << 13;
        QTest::newRow("beyond the calendar's end") << u"1/1/2004"_s << 14 << u"12/1/9999"_s << 5;
    }
    void Errors()
    {
        QFETCH(QString, extraDate);
        QFETCH(int, payFrequency);
        QFETCH(QString, start);
        QFETCH(int, error);
        ForecastDesk desk(3, {100});
        State.ExtraPayPeriods(1).PayPeriodDate = extraDate;
        State.PayFrequency = qint16(payFrequency);
        State.BudgetPeriodStart = start;
        QCOMPARE(ErrorOf([] { ForecastSavings(); }), error);
    }
};

REGISTER_TEST(tst_forecast)
#include "tst_forecast.moc"

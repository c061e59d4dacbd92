// What one pay period earns: rates, hours, pay, the projections, and what an error leaves behind.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "income/Wages.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency TenThousandths(qint64 count)
{
    return Currency::FromTenThousandths(count);
}

WageBoxes Boxes(const QString &rate, const QString &hours = u"0.00"_s)
{
    WageBoxes boxes;
    boxes.HourlyPayRate = rate;
    boxes.TotalHoursWorked = hours;
    return boxes;
}

/// The written boxes from the regular rate to the paycheck; one that was not written is "-".
QString Written(const WageBoxes &boxes)
{
    QStringList told;
    for (const QString &text : {boxes.RegularRate, boxes.RegularHours, boxes.TotalRegularPay, boxes.OvertimeRate,
                                boxes.OvertimeHours, boxes.TotalOvertimePay, boxes.GrossPay, boxes.NetPay,
                                boxes.MonthlyGross, boxes.YearlyGross, boxes.PaycheckAmount})
        told += text.isNull() ? u"-"_s : text;
    return told.join(u' ');
}

} // namespace

class tst_wages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // 70 regular hours and 10 overtime hours at $10.00, of which 90 per cent are paid out.
    void APayPeriodIsProjectedByItsFrequency_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("boxes");
        QTest::addColumn<qint64>("monthly");
        QTest::addColumn<qint64>("yearly");
        const QString pay = u"$10.00 70.00 $700.00 $15.00 10.00 $150.00 $850.00 $765.00 "_s;
        QTest::newRow("biweekly: 26 a year, of which a month is a twelfth")
            << 14 << pay + u"$1,841.67 $22,100.00 $765.00"_s << qint64(18416667) << qint64(221000000);
        QTest::newRow("semimonthly: 24 a year")
            << 15 << pay + u"$1,700.00 $20,400.00 $765.00"_s << qint64(17000000) << qint64(204000000);
        QTest::newRow("monthly: 12 a year, and a month is the paycheck")
            << 30 << pay + u"$850.00 $10,200.00 $765.00"_s << qint64(8500000) << qint64(102000000);
        QTest::newRow("an unknown frequency leaves the projections as they were")
            << 0 << pay + u"$1.00 $2.00 $765.00"_s << qint64(10000) << qint64(20000);
    }
    void APayPeriodIsProjectedByItsFrequency()
    {
        QFETCH(int, frequency);
        QFETCH(QString, boxes);
        QFETCH(qint64, monthly);
        QFETCH(qint64, yearly);
        FakeDesk desk;
        State.PayFrequency = qint16(frequency);
        State.AverageNetPercentage = 0.9F;
        Income.TotalRegularHours = 70;
        Income.TotalOvertimeHours = 10;
        Income.WageMonthlyGross = TenThousandths(10000);
        Income.WageYearlyGross = TenThousandths(20000);
        WageBoxes written = Boxes(u"10"_s, u"99.00"_s); // what the box of the hours says does not count
        CalculatePeriodWages(written);
        QCOMPARE(Written(written), boxes);
        QCOMPARE(Income.WageHourlyRate, TenThousandths(100000));
        QCOMPARE(Income.WageOvertimeRate, TenThousandths(150000));
        QCOMPARE(Income.WageRegularPay, TenThousandths(7000000));
        QCOMPARE(Income.WageOvertimePay, TenThousandths(1500000));
        QCOMPARE(Income.WageGrossPay, TenThousandths(8500000));
        QCOMPARE(Income.WageNetPay, TenThousandths(7650000));
        QCOMPARE(Income.WageMonthlyGross, TenThousandths(monthly));
        QCOMPARE(Income.WageYearlyGross, TenThousandths(yearly));
        QCOMPARE(State.PaycheckAmount, TenThousandths(7650000)); // at once
    }

    // $10.00 an hour, all of it paid out.
    void AWeekCountsWholeHours_data()
    {
        QTest::addColumn<QString>("hours");
        QTest::addColumn<QString>("boxes");
        QTest::addColumn<float>("regular");
        QTest::addColumn<float>("overtime");
        const QString forty = u"$10.00 40.00 $400.00 $15.00 0.00 $0.00 $400.00 $400.00 $1,733.33 $20,800.00 $400.00"_s;
        const QString fortyOne =
            u"$10.00 40.00 $400.00 $15.00 1.00 $15.00 $415.00 $415.00 $1,798.33 $21,580.00 $415.00"_s;
        const QString fortyTwo =
            u"$10.00 40.00 $400.00 $15.00 2.00 $30.00 $430.00 $430.00 $1,863.33 $22,360.00 $430.00"_s;
        QTest::newRow("exactly 40 give no overtime") << u"40.00"_s << forty << 40.F << 0.F;
        QTest::newRow("40.4 are 40") << u"40.40"_s << forty << 40.F << 0.F;
        QTest::newRow("a tie goes to the even 40") << u"40.50"_s << forty << 40.F << 0.F;
        QTest::newRow("40.51 are 41") << u"40.51"_s << fortyOne << 40.F << 1.F;
        QTest::newRow("41.4 give one overtime hour") << u"41.40"_s << fortyOne << 40.F << 1.F;
        QTest::newRow("a tie goes to the even 42") << u"41.50"_s << fortyTwo << 40.F << 2.F;
        QTest::newRow("39.5 are 40") << u"39.50"_s << forty << 40.F << 0.F;
        QTest::newRow("a part of a week")
            << u"12.00"_s << u"$10.00 12.00 $120.00 $15.00 0.00 $0.00 $120.00 $120.00 $520.00 $6,240.00 $120.00"_s
            << 12.F << 0.F;
        QTest::newRow("less than nothing is not refused")
            << u"-3.00"_s
            << u"$10.00 -3.00 ($30.00) $15.00 0.00 $0.00 ($30.00) ($30.00) ($130.00) ($1,560.00) ($30.00)"_s << -3.F
            << 0.F;
    }
    void AWeekCountsWholeHours()
    {
        QFETCH(QString, hours);
        QFETCH(QString, boxes);
        QFETCH(float, regular);
        QFETCH(float, overtime);
        FakeDesk desk;
        State.PayFrequency = Weekly;
        State.AverageNetPercentage = 1;
        Income.TotalRegularHours = 7; // the hours of the other frequencies are neither read nor changed
        Income.TotalOvertimeHours = 5;
        WageBoxes written = Boxes(u"10"_s, hours);
        CalculateWeeklyWages(written);
        QCOMPARE(Written(written), boxes);
        QCOMPARE(Income.WeeklyRegularHours, regular);
        QCOMPARE(Income.WeeklyOvertimeHours, overtime);
        QCOMPARE(Income.TotalRegularHours, 7.F);
        QCOMPARE(Income.TotalOvertimeHours, 5.F);
    }

    // In ten-thousandths, so that each product is a tie.
    void ProductsAreRoundedToTheTenThousandth_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<float>("hours");
        QTest::addColumn<qint64>("overtimeRate");
        QTest::addColumn<qint64>("regularPay");
        QTest::newRow("1.5 to 2, 0.5 to 0") << u"0.0001"_s << 0.5F << qint64(2) << qint64(0);
        QTest::newRow("4.5 to 4, no tie") << u"0.0003"_s << 1.F << qint64(4) << qint64(3);
        QTest::newRow("7.5 to 8, 2.5 to 2") << u"0.0005"_s << 0.5F << qint64(8) << qint64(2);
        QTest::newRow("10.5 to 10, 3.5 to 4") << u"0.0007"_s << 0.5F << qint64(10) << qint64(4);
        QTest::newRow("an eighth of an hour") << u"10.03"_s << 0.125F << qint64(150450) << qint64(12538);
        QTest::newRow("a fifth decimal of the rate is rounded first") << u"0.00025"_s << 1.F << qint64(3) << qint64(2);
    }
    void ProductsAreRoundedToTheTenThousandth()
    {
        QFETCH(QString, rate);
        QFETCH(float, hours);
        QFETCH(qint64, overtimeRate);
        QFETCH(qint64, regularPay);
        FakeDesk desk;
        State.PayFrequency = Monthly;
        Income.TotalRegularHours = hours;
        WageBoxes boxes = Boxes(rate);
        CalculatePeriodWages(boxes);
        QCOMPARE(Income.WageOvertimeRate, TenThousandths(overtimeRate));
        QCOMPARE(Income.WageRegularPay, TenThousandths(regularPay));
    }

    // The percentage is single precision: 0.9 is a little less than nine tenths, which a large pay shows.
    void ThePercentageIsASingle()
    {
        FakeDesk desk;
        State.PayFrequency = Monthly;
        State.AverageNetPercentage = 0.9F;
        Income.TotalRegularHours = 160;
        WageBoxes boxes = Boxes(u"25"_s);
        CalculatePeriodWages(boxes);
        QCOMPARE(State.PaycheckAmount, TenThousandths(35999999));
        QCOMPARE(boxes.PaycheckAmount, u"$3,600.00"_s);
    }

    void NoPercentageMakesNoPaycheck()
    {
        FakeDesk desk;
        State.PayFrequency = Biweekly;
        State.PaycheckAmount = TenThousandths(10000000);
        Income.TotalRegularHours = 80;
        WageBoxes boxes = Boxes(u"10"_s);
        CalculatePeriodWages(boxes);
        QCOMPARE(boxes.GrossPay, u"$800.00"_s);
        QCOMPARE(boxes.NetPay, u"$0.00"_s);
        QCOMPARE(State.PaycheckAmount, Currency::Zero);
    }

    void AnErrorLeavesWhatWasComputedBeforeIt_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("hours");
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("boxes");
        QTest::newRow("no rate") << 14 << u"ten"_s << u"0"_s << 13 << u"- - - - - - - - - - -"_s;
        QTest::newRow("a rate beyond the range") << 14 << u"1e15"_s << u"0"_s << 6 << u"- - - - - - - - - - -"_s;
        QTest::newRow("an overtime rate beyond it")
            << 14 << u"900000000000000"_s << u"0"_s << 6 << u"$900,000,000,000,000.00 - - - - - - - - - -"_s;
        QTest::newRow("a year beyond it")
            << 14 << u"1000000000000"_s << u"0"_s << 6
            << u"$1,000,000,000,000.00 40.00 $40,000,000,000,000.00 $1,500,000,000,000.00 0.00 $0.00 "
               "$40,000,000,000,000.00 $20,000,000,000,000.00 - - -"_s;
        QTest::newRow("hours of a week that are no number")
            << 7 << u"10"_s << u"many"_s << 13 << u"$10.00 - - $15.00 - - - - - - -"_s;
        QTest::newRow("more of them than a counter holds")
            << 7 << u"10"_s << u"32768"_s << 6 << u"$10.00 - - $15.00 - - - - - - -"_s;
    }
    void AnErrorLeavesWhatWasComputedBeforeIt()
    {
        QFETCH(int, frequency);
        QFETCH(QString, rate);
        QFETCH(QString, hours);
        QFETCH(int, error);
        QFETCH(QString, boxes);
        FakeDesk desk;
        State.PayFrequency = qint16(frequency);
        State.PaycheckAmount = TenThousandths(10000000);
        State.AverageNetPercentage = 0.5F;
        Income.TotalRegularHours = 40;
        WageBoxes written = Boxes(rate, hours);
        QCOMPARE(ErrorOf([&] { frequency == 7 ? CalculateWeeklyWages(written) : CalculatePeriodWages(written); }),
                 error);
        QCOMPARE(Written(written), boxes);
        QCOMPARE(State.PaycheckAmount, TenThousandths(10000000));
    }

    void TheHoursOfAWeekAreTakenFromTheirBox_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<float>("taken");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number, with its fraction") << u"41.4"_s << 41.4F << u"41.40"_s;
        QTest::newRow("shown with two decimals, kept with all") << u"7.125"_s << 7.125F << u"7.13"_s;
        QTest::newRow("nothing gives way to what was held") << QString() << 12.5F << u"12.50"_s;
        QTest::newRow("so does a word") << u"many"_s << 12.5F << u"12.50"_s;
    }
    void TheHoursOfAWeekAreTakenFromTheirBox()
    {
        QFETCH(QString, text);
        QFETCH(float, taken);
        QFETCH(QString, shown);
        FakeDesk desk;
        Income.WeeklyRegularHours = 12.5F;
        QCOMPARE(TakeWeeklyHours(text), shown);
        QCOMPARE(Income.WeeklyRegularHours, taken);
    }
};

REGISTER_TEST(tst_wages)
#include "tst_wages.moc"

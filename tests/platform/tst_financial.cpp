// The financial functions. The expected figures were worked out from the annuity formula in decimal arithmetic of
// fifty digits, the shares of principal and interest by walking the balance from payment to payment.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/values/Financial.h"

#include <QtTest>
#include <cmath>

#define COMPARE_WITHIN(actual, expected, tolerance)                                                                    \
    QVERIFY2(std::abs((actual) - (expected)) <= (tolerance), qPrintable(QString::number(actual, 'g', 17)))

class TestFinancial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PaymentOfALoan_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("periods");
        QTest::addColumn<double>("presentValue");
        QTest::addColumn<double>("futureValue");
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("payment");
        QTest::newRow("what is paid out is negative") << 0.01 << 10.0 << 1000.0 << 0.0 << 0 << -105.582076551171;
        QTest::newRow("at the beginning it is less by the factor 1 + rate")
            << 0.01 << 10.0 << 1000.0 << 0.0 << 1 << -104.536709456605;
        QTest::newRow("saving up for a future value") << 0.01 << 10.0 << 0.0 << 1000.0 << 0 << -95.582076551171;
        QTest::newRow("a balloon that is left to pay") << 0.01 << 10.0 << 1000.0 << -500.0 << 0 << -57.791038275586;
        QTest::newRow("a long mortgage") << 0.005 << 360.0 << 200000.0 << 0.0 << 0 << -1199.101050305505;
        QTest::newRow("at a rate of zero it is the plain share") << 0.0 << 12.0 << 1200.0 << 0.0 << 1 << -100.0;
        QTest::newRow("at zero the future value counts, too") << 0.0 << 12.0 << 1200.0 << 120.0 << 0 << -110.0;
        QTest::newRow("a tiny rate keeps its digits") << 1e-12 << 12.0 << 1200.0 << 0.0 << 0 << -100.000000000650;
        QTest::newRow("a negative rate") << -0.01 << 10.0 << 1000.0 << 0.0 << 0 << -94.582901175912;
        QTest::newRow("12000 at 9.5 % over 36 months")
            << 0.095 / 12 << 36.0 << 12000.0 << 0.0 << 0 << -384.395396889380;
    }
    void PaymentOfALoan()
    {
        QFETCH(double, rate);
        QFETCH(double, periods);
        QFETCH(double, presentValue);
        QFETCH(double, futureValue);
        QFETCH(int, type);
        QFETCH(double, payment);
        COMPARE_WITHIN(Pmt(rate, periods, presentValue, futureValue, type), payment, 1e-9);
    }

    void WhatHasNoPaymentIsAnError_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("periods");
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("error");
        QTest::newRow("no periods") << 0.01 << 0.0 << 0 << 5;
        QTest::newRow("no periods at a rate of zero") << 0.0 << 0.0 << 0 << 5;
        QTest::newRow("a growth beyond every number") << 1.0 << 32767.0 << 0 << 5;
        QTest::newRow("no real power of a negative base") << -3.0 << 2.5 << 0 << 5;
        QTest::newRow("a rate that is no number") << std::nan("") << 12.0 << 0 << 5;
        QTest::newRow("the formula divides by zero at -100 % and payment at the beginning") << -1.0 << 12.0 << 1 << 11;
        QTest::newRow("the formula divides by zero where the growth is 1") << -2.0 << 2.0 << 0 << 11;
    }
    void WhatHasNoPaymentIsAnError()
    {
        QFETCH(double, rate);
        QFETCH(double, periods);
        QFETCH(int, type);
        QTEST(ErrorOf([&] { Pmt(rate, periods, 1000, 0, type); }), "error");
    }

    void FutureValueOfSavings_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<double>("periods");
        QTest::addColumn<double>("payment");
        QTest::addColumn<double>("presentValue");
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("futureValue");
        QTest::newRow("deposits at the end") << 0.01 << 12.0 << -100.0 << 0.0 << 0 << 1268.250301319697;
        QTest::newRow("deposits at the beginning earn one period more")
            << 0.01 << 12.0 << -100.0 << 0.0 << 1 << 1280.932804332894;
        QTest::newRow("with savings to begin with") << 0.01 << 12.0 << -100.0 << -1000.0 << 0 << 2395.075331451667;
        QTest::newRow("a negative count goes back in time")
            << 0.01 << -3.0 << -100.0 << -1000.0 << 0 << 676.491627204089;
        QTest::newRow("at a rate of zero it is the plain sum") << 0.0 << 12.0 << -100.0 << -50.0 << 1 << 1250.0;
        QTest::newRow("no periods leave what there is") << 0.01 << 0.0 << -100.0 << -50.0 << 1 << 50.0;
        QTest::newRow("all zero") << 0.0 << 0.0 << 0.0 << 0.0 << 1 << 0.0;
        QTest::newRow("everything lost") << -1.0 << 3.0 << -100.0 << -1000.0 << 0 << 100.0;
    }
    void FutureValueOfSavings()
    {
        QFETCH(double, rate);
        QFETCH(double, periods);
        QFETCH(double, payment);
        QFETCH(double, presentValue);
        QFETCH(int, type);
        QFETCH(double, futureValue);
        COMPARE_WITHIN(FV(rate, periods, payment, presentValue, type), futureValue, 1e-9);
    }

    void AFutureValueBeyondEveryNumberIsError5()
    {
        QCOMPARE(ErrorOf([] { FV(1.0, 32767, -100, 0, 0); }), 5);
        QCOMPARE(ErrorOf([] { FV(-1.0, -3, -100, -1000, 0); }), 5);
    }

    void PrincipalOfEveryPayment_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QList<double>>("principals");
        QTest::newRow("payments at the end")
            << 0
            << QList<double>{95.582076551171,  96.537897316683,  97.503276289850,  98.478309052748,  99.463092143276,
                             100.457723064709, 101.462300295356, 102.476923298309, 103.501692531292, 104.536709456605};
        QTest::newRow("at the beginning the first payment bears no interest")
            << 1
            << QList<double>{104.536709456605, 95.582076551171,  96.537897316683,  97.503276289850,  98.478309052748,
                             99.463092143276,  100.457723064709, 101.462300295356, 102.476923298309, 103.501692531292};
    }
    void PrincipalOfEveryPayment()
    {
        QFETCH(int, type);
        QFETCH(QList<double>, principals);
        for (int period = 1; period <= 10; ++period)
            COMPARE_WITHIN(PPmt(0.01, period, 10, -1000, 0, type), principals[period - 1], 1e-9);
    }

    void WithoutInterestThePaymentIsAllPrincipal()
    {
        QCOMPARE(PPmt(0, 1, 12, -1200, 0, 0), 100.0);
        QCOMPARE(PPmt(0, 12, 12, -1200, 0, 1), 100.0);
    }

    void APeriodOutsideTheLoanIsError5_data()
    {
        QTest::addColumn<double>("period");
        QTest::addColumn<double>("periods");
        QTest::newRow("period 0") << 0.0 << 12.0;
        QTest::newRow("one beyond the last") << 13.0 << 12.0;
        QTest::newRow("negative") << -1.0 << 12.0;
        QTest::newRow("a loan without periods") << 1.0 << 0.0;
        QTest::newRow("no number") << std::nan("") << 12.0;
    }
    void APeriodOutsideTheLoanIsError5()
    {
        QFETCH(double, period);
        QFETCH(double, periods);
        QCOMPARE(ErrorOf([&] { PPmt(0.01, period, periods, -1000); }), 5);
        QCOMPARE(ErrorOf([&] { PPmt(0.01, period, periods, -1000, 0, 1); }), 5);
    }

    // Each payment was computed from the rate that must come out.
    void RateOfALoan_data()
    {
        QTest::addColumn<double>("periods");
        QTest::addColumn<double>("payment");
        QTest::addColumn<double>("presentValue");
        QTest::addColumn<double>("futureValue");
        QTest::addColumn<int>("type");
        QTest::addColumn<double>("rate");
        QTest::newRow("a year at 1 %") << 12.0 << -888.487886783417 << 10000.0 << 0.0 << 0 << 0.01;
        QTest::newRow("payments at the beginning") << 24.0 << -259.172045359068 << 5000.0 << 0.0 << 1 << 0.02;
        QTest::newRow("a balloon") << 10.0 << -57.791038275586 << 1000.0 << -500.0 << 0 << 0.01;
        QTest::newRow("payments that only just add up: zero") << 12.0 << -100.0 << 1200.0 << 0.0 << 0 << 0.0;
        QTest::newRow("zero with payments at the beginning") << 16.0 << -163.0 << 2608.0 << 0.0 << 1 << 0.0;
        QTest::newRow("too little is paid back: negative") << 24.0 << -195.562631543066 << 5000.0 << 0.0 << 0 << -0.005;
        QTest::newRow("a mortgage of thirty years settles")
            << 360.0 << -804.622616944783 << 100000.0 << 0.0 << 0 << 0.0075;
        QTest::newRow("one payment") << 1.0 << -110.0 << 100.0 << 0.0 << 0 << 0.1;
        // So dear and long that the rounding of what the loan grows to is far beyond the tolerance.
        QTest::newRow("forty years at 19 per cent a year")
            << 480.0 << -5699.56 << 359781.0 << 0.0 << 0 << 0.0158333337888;
        QTest::newRow("thirty years at 22 per cent a year")
            << 360.0 << -14675.39 << 799320.0 << 0.0 << 0 << 0.0183333288258;
        QTest::newRow("a loan shark's") << 264.0 << -24732.19 << 903079.0 << 0.0 << 0 << 0.0273645274680;
        QTest::newRow("for all of life, at the beginning") << 5211.0 << -8.78 << 265.9 << 0.0 << 1 << 0.0341474797760;
    }
    void RateOfALoan()
    {
        QFETCH(double, periods);
        QFETCH(double, payment);
        QFETCH(double, presentValue);
        QFETCH(double, futureValue);
        QFETCH(int, type);
        QFETCH(double, rate);
        COMPARE_WITHIN(Rate(periods, payment, presentValue, futureValue, type, double(0.1F)), rate, 1e-9);
    }

    void AnotherGuessLeadsToTheSameRate_data()
    {
        QTest::addColumn<double>("guess");
        QTest::newRow("the rate itself") << 0.01;
        QTest::newRow("nothing") << 0.0;
        QTest::newRow("below") << -0.05;
        QTest::newRow("above") << 0.5;
    }
    void AnotherGuessLeadsToTheSameRate()
    {
        QFETCH(double, guess);
        COMPARE_WITHIN(Rate(12, -888.487886783417, 10000, 0, 0, guess), 0.01, 1e-9);
    }

    void ARateThatDoesNotSettleIsError5_data()
    {
        QTest::addColumn<double>("periods");
        QTest::addColumn<double>("payment");
        QTest::addColumn<double>("presentValue");
        QTest::addColumn<double>("guess");
        QTest::newRow("no periods") << 0.0 << -100.0 << 1200.0 << 0.1;
        QTest::newRow("negative periods") << -12.0 << -100.0 << 1200.0 << 0.1;
        QTest::newRow("everything is paid in and nothing out") << 12.0 << 100.0 << 1200.0 << 0.1;
        QTest::newRow("nothing is lent and nothing paid: every rate is as good") << 12.0 << 0.0 << 0.0 << 0.1;
        QTest::newRow("nothing is lent, something is paid") << 12.0 << -100.0 << 0.0 << 0.1;
        QTest::newRow("a zero below -100 % is no rate") << 12.0 << -2000.0 << 1000.0 << 0.1;
        QTest::newRow("a growth beyond every number") << 32767.0 << -10.0 << 1000.0 << 0.1;
        QTest::newRow("steps that come to a standstill far from every rate") << 577.0 << -8176.21 << 3.11 << 0.1;
        QTest::newRow("a guess beyond all reason") << 12.0 << -100.0 << 1200.0 << 1e300;
    }
    void ARateThatDoesNotSettleIsError5()
    {
        QFETCH(double, periods);
        QFETCH(double, payment);
        QFETCH(double, presentValue);
        QFETCH(double, guess);
        QCOMPARE(ErrorOf([&] { Rate(periods, payment, presentValue, 0, 0, guess); }), 5);
    }
};

REGISTER_TEST(TestFinancial)
#include "tst_financial.moc"

// The calculations behind the calculators of loans and savings. The expected figures were worked out from the annuity
// equation in decimal arithmetic of sixty digits.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "debt/Loans.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Exactly(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

/// A state that a calculation is seen to leave alone or to replace.
void TakeOtherLoan()
{
    Debt.LoanAnnualRate = 77;
    Debt.LoanPaymentCount = 77;
    Debt.LoanAmount = Exactly(77);
    Debt.LoanFutureValue = Exactly(77);
    Debt.LoanMonthlyPayment = Exactly(77);
    Debt.SavingsMonthlyDeposit = Exactly(77);
    Debt.SavingsCurrentAmount = Exactly(77);
    Debt.SavingsFutureValue = Exactly(77);
}

} // namespace

class tst_loans : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ the monthly payment

    void Payment_data()
    {
        QTest::addColumn<QStringList>("entry"); // amount, rate, count
        QTest::addColumn<int>("due");
        QTest::addColumn<qint64>("payment");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, const QStringList &entry, int due, qint64 payment,
                            const QString &sentence) { QTest::newRow(name) << entry << due << payment << sentence; };
        row("a mortgage of thirty years keeps four decimals and shows two", {u"200000"_s, u"6"_s, u"360"_s}, 0,
            11991011,
            u"With an APR of 6% and a borrowed amount of $200,000.00 your monthly payment will be $1,199.10 for 360 months"_s);
        row("at the beginning it is less by the factor 1 + rate", {u"200000"_s, u"6"_s, u"360"_s}, 1, 11931354,
            u"With an APR of 6% and a borrowed amount of $200,000.00 your monthly payment will be $1,193.14 for 360 months"_s);
        row("rate and count stand as they were typed", {u"$12,000"_s, u"9.50"_s, u"3.6e1"_s}, 0, 3843954,
            u"With an APR of 9.50% and a borrowed amount of $12,000.00 your monthly payment will be $384.40 for 3.6e1 months"_s);
        row("one payment at no rate is the whole amount", {u"1200"_s, u"0"_s, u"1"_s}, 0, 12000000,
            u"With an APR of 0% and a borrowed amount of $1,200.00 your monthly payment will be $1,200.00 for 1 months"_s);
        row("at no rate it is the plain share, whenever it is due", {u"1200"_s, u"0"_s, u"12"_s}, 1, 1000000,
            u"With an APR of 0% and a borrowed amount of $1,200.00 your monthly payment will be $100.00 for 12 months"_s);
        row("half a ten-thousandth goes down to the even neighbour", {u"1"_s, u"0"_s, u"32"_s}, 0, 312,
            u"With an APR of 0% and a borrowed amount of $1.00 your monthly payment will be $0.03 for 32 months"_s);
        row("half a ten-thousandth goes up to the even neighbour", {u"3"_s, u"0"_s, u"32"_s}, 0, 938,
            u"With an APR of 0% and a borrowed amount of $3.00 your monthly payment will be $0.09 for 32 months"_s);
        row("of a count and a half the tie goes to the even number below", {u"1000"_s, u"12"_s, u"2.5"_s}, 0, 5075124,
            u"With an APR of 12% and a borrowed amount of $1,000.00 your monthly payment will be $507.51 for 2.5 months"_s);
        row("of a count and a half the tie goes to the even number above", {u"1000"_s, u"12"_s, u"3.5"_s}, 0, 2562811,
            u"With an APR of 12% and a borrowed amount of $1,000.00 your monthly payment will be $256.28 for 3.5 months"_s);
        row("a debt that is written as a negative amount is paid all the same", {u"(1,000.00)"_s, u"12"_s, u"2"_s}, 0,
            5075124,
            u"With an APR of 12% and a borrowed amount of ($1,000.00) your monthly payment will be $507.51 for 2 months"_s);
        row("a negative rate", {u"1200"_s, u"-6"_s, u"12"_s}, 0, 967799,
            u"With an APR of -6% and a borrowed amount of $1,200.00 your monthly payment will be $96.78 for 12 months"_s);
        row("a rate of a loan shark", {u"1000"_s, u"1000"_s, u"12"_s}, 0, 8339117,
            u"With an APR of 1000% and a borrowed amount of $1,000.00 your monthly payment will be $833.91 for 12 months"_s);
        row("the amount is told as it was typed, the payment as it is kept", {u"0.00499999"_s, u"0"_s, u"1"_s}, 0, 50,
            u"With an APR of 0% and a borrowed amount of $0.00 your monthly payment will be $0.01 for 1 months"_s);
        row("the rate has single precision", {u"200000"_s, u"6.1"_s, u"360"_s}, 0, 12119896,
            u"With an APR of 6.1% and a borrowed amount of $200,000.00 your monthly payment will be $1,211.99 for 360 months"_s);
    }
    void Payment()
    {
        QFETCH(QStringList, entry);
        QFETCH(int, due);
        FakeDesk desk;
        TakeOtherLoan();
        Debt.LoanPaymentDue = qint16(due);
        const std::optional<QString> sentence = LoanPayment({entry[0], entry[1], entry[2]});
        QVERIFY(sentence);
        QTEST(*sentence, "sentence");
        QTEST(Debt.LoanMonthlyPayment.TenThousandths(), "payment");
        QCOMPARE(Debt.LoanFutureValue, Currency());
        QCOMPARE(Debt.LoanPaymentDue, qint16(due));
    }

    void ThePaymentLeavesTheLoanForTheTable()
    {
        FakeDesk desk;
        TakeOtherLoan();
        QVERIFY(LoanPayment({u"$12,000.0025"_s, u"9.5"_s, u"35.6"_s}));
        QCOMPARE(Debt.LoanAnnualRate, 9.5F); // per cent
        QCOMPARE(Debt.LoanPaymentCount, qint16(36));
        QCOMPARE(Debt.LoanAmount, Exactly(120000025));
        QCOMPARE(Debt.LoanFutureValue, Currency());
        QCOMPARE(Debt.SavingsFutureValue, Exactly(77));
    }

    void ACountBelowOneIsSilent_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<int>("read");
        QTest::newRow("zero") << u"0"_s << 0;
        QTest::newRow("negative") << u"-1"_s << -1;
        QTest::newRow("a half is rounded to zero") << u"0.5"_s << 0;
        QTest::newRow("the least") << u"-32768"_s << -32768;
    }
    void ACountBelowOneIsSilent()
    {
        QFETCH(QString, count);
        QFETCH(int, read);
        FakeDesk desk;
        TakeOtherLoan();
        QVERIFY(!LoanPayment({u"1000"_s, u"6"_s, count}));
        QCOMPARE(Debt.LoanAnnualRate, 6.0F); // was read before the count
        QCOMPARE(Debt.LoanPaymentCount, qint16(read));
        QCOMPARE(Debt.LoanAmount, Exactly(77));
        QCOMPARE(Debt.LoanFutureValue, Exactly(77));
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(77));

        TakeOtherLoan();
        QVERIFY(!LoanInterestRate({u"1000"_s, u"100"_s, count}));
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(1000000)); // was read before the count
        QCOMPARE(Debt.LoanPaymentCount, qint16(read));
        QCOMPARE(Debt.LoanAmount, Exactly(77));
        QCOMPARE(Debt.LoanAnnualRate, 77.0F);
    }

    void ACountOfOneIsTheLeast()
    {
        FakeDesk desk;
        QVERIFY(LoanPayment({u"1000"_s, u"6"_s, u"0.6"_s}));
        QVERIFY(LoanInterestRate({u"1000"_s, u"1010"_s, u"1"_s}));
    }

    void WhatHasNoPaymentIsAnError_data()
    {
        QTest::addColumn<QStringList>("entry");
        QTest::addColumn<int>("due");
        QTest::addColumn<int>("error");
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1"_s, u"1"_s, u"70000"_s} << 0 << 6;
        QTest::newRow("a count just beyond 16 bits") << QStringList{u"1"_s, u"1"_s, u"32767.5"_s} << 0 << 6;
        QTest::newRow("a rate beyond a single") << QStringList{u"1"_s, u"1e39"_s, u"1"_s} << 0 << 6;
        QTest::newRow("an amount beyond its range") << QStringList{u"1e15"_s, u"1"_s, u"1"_s} << 0 << 6;
        QTest::newRow("an amount that is no number") << QStringList{u"x"_s, u"1"_s, u"1"_s} << 0 << 13;
        QTest::newRow("a rate that is no number") << QStringList{u"1"_s, u""_s, u"1"_s} << 0 << 13;
        QTest::newRow("a count that is no number") << QStringList{u"1"_s, u"1"_s, u"x"_s} << 0 << 13;
        QTest::newRow("a growth that no number holds") << QStringList{u"1"_s, u"1000"_s, u"32767"_s} << 0 << 5;
        QTest::newRow("everything lost each month") << QStringList{u"1"_s, u"-1200"_s, u"2"_s} << 1 << 11;
    }
    void WhatHasNoPaymentIsAnError()
    {
        QFETCH(QStringList, entry);
        QFETCH(int, due);
        FakeDesk desk;
        TakeOtherLoan();
        Debt.LoanPaymentDue = qint16(due);
        QTEST(ErrorOf([&] { LoanPayment({entry[0], entry[1], entry[2]}); }), "error");
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(77));
    }

    void AnErrorLeavesWhatWasReadBefore()
    {
        FakeDesk desk;
        TakeOtherLoan();
        QCOMPARE(ErrorOf([] { LoanPayment({u"1"_s, u"5"_s, u"70000"_s}); }), 6);
        QCOMPARE(Debt.LoanAnnualRate, 5.0F);
        QCOMPARE(Debt.LoanPaymentCount, qint16(77));
        QCOMPARE(ErrorOf([] { LoanPayment({u"1e15"_s, u"5"_s, u"12"_s}); }), 6);
        QCOMPARE(Debt.LoanPaymentCount, qint16(12));
        QCOMPARE(Debt.LoanAmount, Exactly(77));
        QCOMPARE(Debt.LoanFutureValue, Exactly(77));
    }

    // ------------------------------------------------------------ the interest rate

    void InterestRate_data()
    {
        QTest::addColumn<QStringList>("entry"); // amount, payment, count
        QTest::addColumn<int>("due");
        QTest::addColumn<double>("rate");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("a mortgage of thirty years")
            << QStringList{u"200000"_s, u"1199.10"_s, u"360"_s} << 0 << 0.06
            << u"With a borrowed amount of $200,000.00 and monthly payments of $1,199.10 for 360 months your interest rate is 6.00%"_s;
        QTest::newRow("payments that come to the amount have no rate")
            << QStringList{u"1200"_s, u"100"_s, u"12"_s} << 0 << 0.0
            << u"With a borrowed amount of $1,200.00 and monthly payments of $100.00 for 12 months your interest rate is 0.00%"_s;
        QTest::newRow("at the beginning the same payments stand for more")
            << QStringList{u"200000"_s, u"1193.1354"_s, u"360"_s} << 1 << 0.06
            << u"With a borrowed amount of $200,000.00 and monthly payments of $1,193.14 for 360 months your interest rate is 6.00%"_s;
        QTest::newRow("the count stands as it was typed, amounts as money")
            << QStringList{u"10000"_s, u"888.4879"_s, u"1.2e1"_s} << 0 << 0.12
            << u"With a borrowed amount of $10,000.00 and monthly payments of $888.49 for 1.2e1 months your interest rate is 12.00%"_s;
        QTest::newRow("payments below the amount lose")
            << QStringList{u"1200"_s, u"96.7799"_s, u"12"_s} << 0 << -0.06
            << u"With a borrowed amount of $1,200.00 and monthly payments of $96.78 for 12 months your interest rate is -6.00%"_s;
        QTest::newRow("the amount is told as it was typed, the payment as it is kept")
            << QStringList{u"0.00499999"_s, u"0.00499999"_s, u"1"_s} << 0 << 0.0
            << u"With a borrowed amount of $0.00 and monthly payments of $0.01 for 1 months your interest rate is 0.00%"_s;
        QTest::newRow("found from a tenth a month, and not from a fifth")
            << QStringList{u"1000"_s, u"150"_s, u"36"_s} << 0 << 1.787868901
            << u"With a borrowed amount of $1,000.00 and monthly payments of $150.00 for 36 months your interest rate is 178.79%"_s;
        QTest::newRow("forty years at 19 per cent")
            << QStringList{u"359781"_s, u"5699.56"_s, u"480"_s} << 0 << 0.190000005
            << u"With a borrowed amount of $359,781.00 and monthly payments of $5,699.56 for 480 months your interest rate is 19.00%"_s;
        QTest::newRow("thirty years at 22 per cent")
            << QStringList{u"799320"_s, u"14675.39"_s, u"360"_s} << 0 << 0.219999946
            << u"With a borrowed amount of $799,320.00 and monthly payments of $14,675.39 for 360 months your interest rate is 22.00%"_s;
    }
    void InterestRate()
    {
        QFETCH(QStringList, entry);
        QFETCH(int, due);
        QFETCH(double, rate);
        FakeDesk desk;
        TakeOtherLoan();
        Debt.LoanPaymentDue = qint16(due);
        const std::optional<QString> sentence = LoanInterestRate({entry[0], entry[1], entry[2]});
        QVERIFY(sentence);
        QTEST(*sentence, "sentence");
        // Payments of four decimals leave the rate that open; the plain twelvefold, not compounded.
        QVERIFY2(std::abs(double(Debt.LoanAnnualRate) - rate) < 2e-6,
                 qPrintable(QString::number(double(Debt.LoanAnnualRate))));
        QCOMPARE(Debt.LoanFutureValue, Currency());
        QCOMPARE(Debt.LoanPaymentDue, qint16(due));
    }

    void TheRateIsLeftAsAFractionWhereThePercentageWas()
    {
        FakeDesk desk;
        QVERIFY(LoanPayment({u"1200"_s, u"12"_s, u"12"_s}));
        QCOMPARE(Debt.LoanAnnualRate, 12.0F);
        QVERIFY(LoanInterestRate({u"10000"_s, u"888.4879"_s, u"11.9"_s}));
        QVERIFY(std::abs(Debt.LoanAnnualRate - 0.12F) < 1e-6F);
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(8884879));
        QCOMPARE(Debt.LoanAmount, Exactly(100000000));
        QCOMPARE(Debt.LoanPaymentCount, qint16(12));
    }

    void WhatHasNoRateIsAnError_data()
    {
        QTest::addColumn<QStringList>("entry");
        QTest::addColumn<int>("error");
        QTest::newRow("nothing is paid back: everything lost is no rate")
            << QStringList{u"1000"_s, u"0"_s, u"1"_s} << 5;
        QTest::newRow("nothing is borrowed and something paid") << QStringList{u"0"_s, u"100"_s, u"12"_s} << 5;
        QTest::newRow("both go the same way") << QStringList{u"-1000"_s, u"100"_s, u"12"_s} << 5;
        QTest::newRow("not found from a tenth a month, though from a fifth")
            << QStringList{u"10000"_s, u"779"_s, u"60"_s} << 5;
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1000"_s, u"100"_s, u"70000"_s} << 6;
        QTest::newRow("an amount beyond its range") << QStringList{u"1e15"_s, u"100"_s, u"12"_s} << 6;
        QTest::newRow("a payment beyond its range") << QStringList{u"1000"_s, u"1e15"_s, u"12"_s} << 6;
        QTest::newRow("a payment that is no number") << QStringList{u"1000"_s, u"x"_s, u"12"_s} << 13;
    }
    void WhatHasNoRateIsAnError()
    {
        QFETCH(QStringList, entry);
        FakeDesk desk;
        TakeOtherLoan();
        QTEST(ErrorOf([&] { LoanInterestRate({entry[0], entry[1], entry[2]}); }), "error");
        QCOMPARE(Debt.LoanAnnualRate, 77.0F);
    }

    // ------------------------------------------------------------ savings

    void Savings_data()
    {
        QTest::addColumn<QStringList>("entry"); // deposits, rate, count, current amount
        QTest::addColumn<int>("due");
        QTest::addColumn<qint64>("future");
        QTest::addColumn<QString>("sentence");
        const auto row = [](const char *name, const QStringList &entry, int due, qint64 future,
                            const QString &sentence) { QTest::newRow(name) << entry << due << future << sentence; };
        row("deposits at the end", {u"100"_s, u"6"_s, u"120"_s, u"1000"_s}, 0, 182073314,
            u"With an APR of 6% and a current savings value of $1,000.00 your savings will be worth $18,207.33 after 120 monthly deposits of $100.00"_s);
        row("at the beginning each deposit earns a month more", {u"100"_s, u"6"_s, u"120"_s, u"1000"_s}, 1, 182892711,
            u"With an APR of 6% and a current savings value of $1,000.00 your savings will be worth $18,289.27 after 120 monthly deposits of $100.00"_s);
        row("rate and count stand as they were typed, amounts as money", {u"$100"_s, u"9.3750"_s, u"+12"_s, u"1e3"_s},
            0, 23508143,
            u"With an APR of 9.3750% and a current savings value of $1,000.00 your savings will be worth $2,350.81 after +12 monthly deposits of $100.00"_s);
        row("at no rate it is the plain sum", {u"100"_s, u"0"_s, u"12"_s, u"50"_s}, 1, 12500000,
            u"With an APR of 0% and a current savings value of $50.00 your savings will be worth $1,250.00 after 12 monthly deposits of $100.00"_s);
        row("no deposits leave the current amount", {u"100"_s, u"6"_s, u"0"_s, u"50"_s}, 1, 500000,
            u"With an APR of 6% and a current savings value of $50.00 your savings will be worth $50.00 after 0 monthly deposits of $100.00"_s);
        row("a negative count goes back in time", {u"100"_s, u"9.375"_s, u"-3"_s, u"1000"_s}, 0, 6815512,
            u"With an APR of 9.375% and a current savings value of $1,000.00 your savings will be worth $681.55 after -3 monthly deposits of $100.00"_s);
        row("nothing at all is a sentence, too", {u"$0.00"_s, u"0.00"_s, u"0"_s, u"$0.00"_s}, 1, 0,
            u"With an APR of 0.00% and a current savings value of $0.00 your savings will be worth $0.00 after 0 monthly deposits of $0.00"_s);
        row("half a ten-thousandth goes down to the even neighbour", {u"0"_s, u"9.375"_s, u"1"_s, u"4"_s}, 0, 40312,
            u"With an APR of 9.375% and a current savings value of $4.00 your savings will be worth $4.03 after 1 monthly deposits of $0.00"_s);
        row("half a ten-thousandth goes up to the even neighbour", {u"0"_s, u"9.375"_s, u"1"_s, u"12"_s}, 0, 120938,
            u"With an APR of 9.375% and a current savings value of $12.00 your savings will be worth $12.09 after 1 monthly deposits of $0.00"_s);
        row("of a count and a half the tie goes to the even number", {u"100"_s, u"4.5"_s, u"2.5"_s, u"0"_s}, 0, 2003750,
            u"With an APR of 4.5% and a current savings value of $0.00 your savings will be worth $200.38 after 2.5 monthly deposits of $100.00"_s);
        row("amounts are told as they were typed, the value as it is kept",
            {u"0.00499999"_s, u"0"_s, u"1"_s, u"0.00499999"_s}, 0, 100,
            u"With an APR of 0% and a current savings value of $0.00 your savings will be worth $0.01 after 1 monthly deposits of $0.00"_s);
        row("what is taken out each month", {u"-50"_s, u"0"_s, u"3"_s, u"100"_s}, 0, -500000,
            u"With an APR of 0% and a current savings value of $100.00 your savings will be worth ($50.00) after 3 monthly deposits of ($50.00)"_s);
    }
    void Savings()
    {
        QFETCH(QStringList, entry);
        QFETCH(int, due);
        FakeDesk desk;
        TakeOtherLoan();
        Debt.LoanPaymentDue = qint16(due);
        QTEST(FutureSavings({entry[0], entry[1], entry[2], entry[3]}), "sentence");
        QTEST(Debt.SavingsFutureValue.TenThousandths(), "future");
        QCOMPARE(Debt.LoanPaymentDue, qint16(due));
        QCOMPARE(Debt.LoanAmount, Exactly(77));
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(77));
    }

    void SavingsReplaceTheSharedRateAndCount()
    {
        FakeDesk desk;
        TakeOtherLoan();
        FutureSavings({u"100.00005"_s, u"4.5"_s, u"11.6"_s, u"1e4"_s});
        QCOMPARE(Debt.LoanAnnualRate, 4.5F);
        QCOMPARE(Debt.LoanPaymentCount, qint16(12));
        QCOMPARE(Debt.SavingsMonthlyDeposit, Exactly(1000000)); // a tie of the fifth decimal, to the even neighbour
        QCOMPARE(Debt.SavingsCurrentAmount, Exactly(100000000));
    }

    void WhatHasNoFutureIsAnError_data()
    {
        QTest::addColumn<QStringList>("entry");
        QTest::addColumn<int>("error");
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1"_s, u"1"_s, u"70000"_s, u"1"_s} << 6;
        QTest::newRow("a value beyond an amount") << QStringList{u"1"_s, u"1000"_s, u"500"_s, u"1"_s} << 6;
        QTest::newRow("a value that no number holds") << QStringList{u"1"_s, u"1000"_s, u"32767"_s, u"1"_s} << 5;
        QTest::newRow("a deposit beyond its range") << QStringList{u"1e15"_s, u"1"_s, u"1"_s, u"1"_s} << 6;
        QTest::newRow("a current amount that is no number") << QStringList{u"1"_s, u"1"_s, u"1"_s, u"x"_s} << 13;
    }
    void WhatHasNoFutureIsAnError()
    {
        QFETCH(QStringList, entry);
        FakeDesk desk;
        TakeOtherLoan();
        QTEST(ErrorOf([&] { FutureSavings({entry[0], entry[1], entry[2], entry[3]}); }), "error");
        QCOMPARE(Debt.SavingsFutureValue, Exactly(77));
    }

    void AFailedSavingLeavesWhatWasReadBefore()
    {
        FakeDesk desk;
        TakeOtherLoan();
        QCOMPARE(ErrorOf([] { FutureSavings({u"1"_s, u"3"_s, u"12"_s, u"1e15"_s}); }), 6);
        QCOMPARE(Debt.LoanAnnualRate, 3.0F);
        QCOMPARE(Debt.LoanPaymentCount, qint16(12));
        QCOMPARE(Debt.SavingsMonthlyDeposit, Exactly(10000));
        QCOMPARE(Debt.SavingsCurrentAmount, Exactly(77));
    }
};

REGISTER_TEST(tst_loans)
#include "tst_loans.moc"

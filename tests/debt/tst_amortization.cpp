// The rows of the amortization table: payments, years and the whole loan, their rounding, and what an error leaves.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "debt/Amortization.h"
#include "debt/Loans.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Exactly(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

void TakeLoan(const QString &amount, const QString &rate, const QString &count, int due = 0)
{
    Debt.LoanPaymentDue = qint16(due);
    LoanPayment({amount, rate, count});
}

Statement Table(int startMonth)
{
    Debt.SelectedStartMonth = qint16(startMonth);
    Statement table;
    Amortize(table);
    return table;
}

/// A label and its amounts in cents, or "-" for an empty row.
QString Told(const StatementRow &row)
{
    if (row.TheKind == StatementRow::Gap)
        return row.Texts.isEmpty() && row.Amounts.empty() ? u"-"_s : u"a gap that is not empty"_s;
    QString told = row.Texts.join(u'|');
    for (const Currency amount : row.Amounts)
        told += u' ' + QString::number(double(amount.TenThousandths()) / 10000, 'f', 4);
    return told;
}

QStringList Told(const Statement &table)
{
    QStringList told;
    for (const StatementRow &row : table.Rows)
        told += Told(row);
    return told;
}

/// The labels alone: numbers, "-", "Year 1", "Total".
QStringList Labels(const Statement &table)
{
    QStringList labels;
    for (const StatementRow &row : table.Rows)
        labels += row.TheKind == StatementRow::Gap ? u"-"_s : row.Texts.value(0);
    return labels;
}

/// The labels of the payments from one number to another.
QStringList Numbers(int from, int to)
{
    QStringList numbers;
    for (int i = from; i <= to; ++i)
        numbers += QString::number(i);
    return numbers;
}

QStringList Year(int number)
{
    return {u"-"_s, u"Year %1"_s.arg(number)};
}

const QStringList Whole{u"-"_s, u"Total"_s};

} // namespace

class tst_amortization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RowsOfALoan()
    {
        // 1,000 at 12 per cent in four months: the balance is walked by hand, 1 per cent of it each month.
        FakeDesk desk;
        TakeLoan(u"1000"_s, u"12"_s, u"4"_s);
        QCOMPARE(Debt.LoanMonthlyPayment, Exactly(2562811));
        QCOMPARE(Told(Table(10)), // November
                 (QStringList{u"1 256.2811 246.2800 10.0000"_s, u"2 256.2811 248.7400 7.5400"_s, u"-"_s,
                              u"Year 1 512.5622 495.0200 17.5400"_s, u"-"_s, u"3 256.2811 251.2300 5.0500"_s,
                              u"4 256.2811 253.7400 2.5400"_s, u"-"_s, u"Year 2 512.5622 504.9700 7.5900"_s, u"-"_s,
                              u"Total 1025.1244 999.9900 25.1300"_s}));
    }

    void TheCalendarMakesTheYears_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<int>("startMonth");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("from January, years are full and the last one is shorter")
            << u"30"_s << 0
            << Numbers(1, 12) + Year(1) + QStringList{u"-"_s} + Numbers(13, 24) + Year(2) + QStringList{u"-"_s} +
                   Numbers(25, 30) + Year(3) + Whole;
        QTest::newRow("from December, the first year has one payment")
            << u"3"_s << 11 << Numbers(1, 1) + Year(1) + QStringList{u"-"_s} + Numbers(2, 3) + Year(2) + Whole;
        QTest::newRow("twelve payments from March are ten and two")
            << u"12"_s << 2 << Numbers(1, 10) + Year(1) + QStringList{u"-"_s} + Numbers(11, 12) + Year(2) + Whole;
        QTest::newRow("a loan that ends with the year closes it once")
            << u"12"_s << 0 << Numbers(1, 12) + Year(1) + Whole;
        QTest::newRow("so does a loan that begins inside one") << u"3"_s << 9 << Numbers(1, 3) + Year(1) + Whole;
        QTest::newRow("a single payment") << u"1"_s << 5 << Numbers(1, 1) + Year(1) + Whole;
    }
    void TheCalendarMakesTheYears()
    {
        QFETCH(QString, count);
        QFETCH(int, startMonth);
        FakeDesk desk;
        TakeLoan(u"1000"_s, u"9.375"_s, count);
        QTEST(Labels(Table(startMonth)), "labels");
        QCOMPARE(Debt.SelectedStartMonth, qint16(0)); // walked on, and no longer what the user chose
    }

    void ASecondTableBeginsInJanuary()
    {
        FakeDesk desk;
        TakeLoan(u"1000"_s, u"9.375"_s, u"12"_s);
        QVERIFY(Labels(Table(2)).contains(u"Year 2"_s));
        Statement second;
        Amortize(second);
        QCOMPARE(Labels(second), Numbers(1, 12) + Year(1) + Whole);
    }

    void RowsAreAddedToWhatIsThere()
    {
        FakeDesk desk;
        TakeLoan(u"1000"_s, u"9.375"_s, u"1"_s);
        Statement table{.Rows = {{{u"before"_s}}}};
        Amortize(table);
        QCOMPARE(Labels(table), QStringList{u"before"_s} + Numbers(1, 1) + Year(1) + Whole);
    }

    void PaidAtTheBeginningTheFirstPaymentIsAllPrincipal()
    {
        FakeDesk desk;
        TakeLoan(u"1000"_s, u"12"_s, u"4"_s, 1);
        const Statement table = Table(0);
        // 256.2811 / 1.01 = 253.7437; the others pay interest on what is left, a month later.
        QCOMPARE(Told(table.Rows[0]), u"1 253.7437 253.7400 0.0000"_s);
        QCOMPARE(Told(table.Rows[1]), u"2 253.7437 246.2800 7.4600"_s);
    }

    void WithoutARateEverythingIsPrincipal()
    {
        FakeDesk desk;
        TakeLoan(u"1200"_s, u"0"_s, u"12"_s);
        QCOMPARE(Told(Table(0).Rows[11]), u"12 100.0000 100.0000 0.0000"_s);
    }

    void CentsAreRoundedHalfUp_data()
    {
        QTest::addColumn<qint64>("amount"); // the whole amount is the principal of a single payment
        QTest::addColumn<qint64>("payment");
        QTest::addColumn<qint64>("principal");
        QTest::addColumn<qint64>("interest");
        // The same loan with a payment of its own: interest is the payment less the rounded principal, rounded again.
        QTest::newRow("half a cent goes up") << qint64(10050) << qint64(10050) << qint64(10100) << qint64(0);
        QTest::newRow("less than half a cent goes down")
            << qint64(10049) << qint64(10049) << qint64(10000) << qint64(0);
        QTest::newRow("half a cent of an even number goes up, too")
            << qint64(10250) << qint64(10350) << qint64(10300) << qint64(100);
        QTest::newRow("half a cent below zero goes up")
            << qint64(-10050) << qint64(0) << qint64(-10000) << qint64(10000);
        QTest::newRow("more than half a cent below zero goes down")
            << qint64(-10051) << qint64(0) << qint64(-10100) << qint64(10100);
        QTest::newRow("a whole number of cents below zero stays")
            << qint64(-10100) << qint64(-50) << qint64(-10100) << qint64(10100);
    }
    void CentsAreRoundedHalfUp()
    {
        QFETCH(qint64, amount);
        QFETCH(qint64, payment);
        FakeDesk desk;
        Debt.LoanPaymentCount = 1;
        Debt.LoanAmount = Exactly(amount);
        Debt.LoanMonthlyPayment = Exactly(payment);
        const Statement table = Table(0);
        QCOMPARE(table.Rows[0].Amounts[0].TenThousandths(), payment);
        QTEST(table.Rows[0].Amounts[1].TenThousandths(), "principal");
        QTEST(table.Rows[0].Amounts[2].TenThousandths(), "interest");
        QTEST(Debt.LoanPrincipalPart.TenThousandths(), "principal"); // the last row's stay
        QTEST(Debt.LoanInterestPart.TenThousandths(), "interest");
    }

    void TotalsAddWhatTheRowsHold()
    {
        FakeDesk desk;
        TakeLoan(u"200000"_s, u"6"_s, u"360"_s);
        const Statement table = Table(4);
        Currency ofYear[3];
        Currency ofLoan[3];
        int years = 0;
        int payments = 0;
        for (const StatementRow &row : table.Rows) {
            const QString label = row.Texts.value(0);
            if (row.TheKind == StatementRow::Gap)
                continue;
            for (std::size_t i = 0; i < 3; ++i) {
                if (label.startsWith(u"Year "_s)) {
                    QCOMPARE(row.Amounts[i], ofYear[i]);
                    ofYear[i] = {};
                } else if (label == u"Total"_s) {
                    QCOMPARE(row.Amounts[i], ofLoan[i]);
                } else {
                    ofYear[i] += row.Amounts[i];
                    ofLoan[i] += row.Amounts[i];
                }
            }
            years += label.startsWith(u"Year "_s);
            payments += label.toInt() > 0;
        }
        QCOMPARE(years, 31); // eight months, twenty-nine years, four months
        QCOMPARE(payments, 360);
        QCOMPARE(ofLoan[0], Debt.LoanMonthlyPayment * 360); // with its four decimals
        // Each principal is rounded by half a cent at most.
        const Currency missing = (ofLoan[1] - Debt.LoanAmount).Abs();
        QVERIFY2(missing <= Exactly(50 * 360), qPrintable(QString::number(missing.TenThousandths())));
    }

    void ALoanWithoutPaymentsHasATotalAlone_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("none") << 0;
        QTest::newRow("fewer than none") << -5;
    }
    void ALoanWithoutPaymentsHasATotalAlone()
    {
        QFETCH(int, count);
        FakeDesk desk;
        Debt.LoanPaymentCount = qint16(count);
        const Statement table = Table(7);
        QCOMPARE(Told(table), (QStringList{u"-"_s, u"Total 0.0000 0.0000 0.0000"_s}));
        QCOMPARE(Debt.SelectedStartMonth, qint16(7));
    }

    void ARateLeftAsAFractionIsTakenAsItStands()
    {
        FakeDesk desk;
        QVERIFY(LoanInterestRate({u"1000"_s, u"256.2811"_s, u"4"_s}));
        const Statement table = Table(0);
        // 0.12 per cent a year: of the payment that 12 per cent asks for nearly all is principal, by an honest split of
        // a smaller payment.
        QCOMPARE(Told(table.Rows[0]), u"1 256.2811 249.9600 6.3200"_s);
    }

    // ------------------------------------------------------------ errors

    void TheRowsAreCountedInSixteenBits_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("rows");
        // From January 26,211 payments have 2,185 years of three rows more, the first of two, and two rows at the end.
        QTest::newRow("the most that there are rows for") << 26211 << 0 << 32767;
        QTest::newRow("one payment more") << 26212 << 6 << 32767;
        QTest::newRow("the most payments") << 32767 << 6 << 32767;
    }
    void TheRowsAreCountedInSixteenBits()
    {
        QFETCH(int, count);
        FakeDesk desk;
        TakeLoan(u"200000"_s, u"1"_s, QString::number(count));
        Statement table;
        QTEST(ErrorOf([&] { Amortize(table); }), "error");
        QTEST(int(table.Rows.size()), "rows");
        QCOMPARE(Labels(table).first(), u"1"_s);
    }

    void AnErrorLeavesTheRowsBeforeItAndTheMonth()
    {
        FakeDesk desk;
        TakeLoan(u"200000"_s, u"1"_s, u"32767"_s);
        Statement table;
        QCOMPARE(ErrorOf([&] { Amortize(table); }), 6);
        QCOMPARE(Labels(table).last(), u"26215"_s);
        QCOMPARE(Debt.SelectedStartMonth, qint16(7)); // of payment 26,216, whose row is one too many
    }

    void WhatCannotBeSplitIsAnError_data()
    {
        QTest::addColumn<double>("rate");
        QTest::addColumn<qint64>("amount");
        QTest::addColumn<qint64>("payment");
        QTest::addColumn<int>("error");
        QTest::newRow("a growth that no number holds") << 1e6 << qint64(10000) << qint64(10000) << 5;
        QTest::newRow("cents beyond an amount") << 0.0 << qint64(600'000'000'000'000'000) << qint64(10000) << 6;
        QTest::newRow("interest beyond an amount") << 0.0 << qint64(-10000) << std::numeric_limits<qint64>::max() << 6;
        QTest::newRow("everything lost each month") << -1200.0 << qint64(10000) << qint64(10000) << 11;
    }
    void WhatCannotBeSplitIsAnError()
    {
        QFETCH(double, rate);
        QFETCH(qint64, amount);
        QFETCH(qint64, payment);
        FakeDesk desk;
        Debt.LoanAnnualRate = float(rate);
        Debt.LoanPaymentCount = 1200;
        Debt.LoanPaymentDue = 1;
        Debt.LoanAmount = Exactly(amount);
        Debt.LoanMonthlyPayment = Exactly(payment);
        if (rate == 0)
            Debt.LoanPaymentCount = 1;
        Statement table;
        QTEST(ErrorOf([&] { Amortize(table); }), "error");
        QCOMPARE(table.Rows.size(), std::size_t(0));
    }
};

REGISTER_TEST(tst_amortization)
#include "tst_amortization.moc"

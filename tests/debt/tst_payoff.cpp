// The pay off plan: months alone, order, rows, rolled amounts, lines, paper, and what does not fit.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "debt/PayOffPlan.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QList<PayOffEntry> WorkedExample{{u"Card"_s, u"5000.00"_s, u"18"_s, u"100.00"_s, u"1/15/2004"_s},
                                       {u"Store"_s, u"300.00"_s, u"21"_s, u"50.00"_s, u"1/20/2004"_s}};

void Enter(const QList<PayOffEntry> &creditors)
{
    RedimPayOffCreditors(QString::number(creditors.size()));
    for (int i = 1; i <= creditors.size(); ++i)
        StorePayOffCreditor(i, creditors[i - 1]);
}

/// What is shown of a run.
struct Shown {
    PayOffPlan Plan;
    int Error = 0;
    int Times = 0;

    /// Cells joined by " | ", from row `from` on, 1 the first.
    QStringList Rows(int from = 1, int count = 1000) const
    {
        QStringList rows;
        for (int i = from; i < from + count && i <= int(Plan.Rows.size()); ++i)
            rows += CellsOf(Plan.Rows[std::size_t(i - 1)]).join(u" | "_s);
        return rows;
    }
    QStringList Lines() const
    {
        QStringList lines;
        for (const PayOffLine &line : Plan.Lines)
            lines += line.Text;
        return lines;
    }
};

Shown Build()
{
    Shown shown;
    const QObject context;
    QObject::connect(&ThePayOffOutlet, &PayOffOutlet::Ready, &context, [&](const auto &plan) {
        shown.Plan = *plan;
        ++shown.Times;
    });
    shown.Error = ErrorOf([] { BuildPayOffPlan(); });
    return shown;
}

Shown PlanOf(const QList<PayOffEntry> &creditors)
{
    Enter(creditors);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    return Build();
}

QList<qint16> Months()
{
    return {Debt.PayOffMonthsToPay.begin(), Debt.PayOffMonthsToPay.end()};
}

QStringList Names()
{
    return {Debt.PayOffCreditorNames.begin(), Debt.PayOffCreditorNames.end()};
}

const QString Gap = u" |  |  |  |  |  | "_s;

} // namespace

class tst_payoff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWorkedExample()
    {
        FakeDesk desk;
        Enter(WorkedExample);
        CalculateMonthsToPay();
        QCOMPARE(Months(), (QList<qint16>{94, 7}));
        SortPayOffCreditors();
        QCOMPARE(Months(), (QList<qint16>{7, 94}));
        const Shown shown = Build();
        QCOMPARE(shown.Error, 0);
        QCOMPARE(shown.Times, 1);
        QCOMPARE(shown.Rows().size(), 7 + 1 + 52 + 1);
        QCOMPARE(shown.Rows(1, 1), QStringList{u"1 | 1/20/2004 | $300.00 | $5.25 | $305.25 | $50.00 | $255.25"_s});
        QCOMPARE(shown.Rows(7, 3),
                 (QStringList{u"7 | 7/20/2004 | $19.48 | $0.34 | $19.82 | $19.82 | $0.00"_s, Gap,
                              u"1 | 1/15/2004 | $5,000.00 | $75.00 | $5,075.00 | $100.00 | $4,975.00"_s}));
        QVERIFY(shown.Rows(15, 1).first().contains(u"| $100.00 |"_s));
        const QString eighth = shown.Rows(16, 1).first();
        QVERIFY2(eighth.startsWith(u"8 | 8/15/2004 |"_s) && eighth.contains(u"| $150.00 |"_s), qPrintable(eighth));
        QCOMPARE(shown.Rows(60), (QStringList{u"52 | 4/15/2008 | $20.85 | $0.31 | $21.17 | $21.17 | $0.00"_s, Gap}));
        QCOMPARE(shown.Lines(), (QStringList{u"Creditor: Store"_s,
                                             u"Balance Owed: $300.00"_s,
                                             u"Annual Percentage Rate: 21.00%"_s,
                                             u"Set Monthly Amount: $50.00"_s,
                                             u"Next Due Date: 1/20/2004"_s,
                                             u"Pay This Much a Month: $50.00"_s,
                                             u"Starting: 1/20/2004"_s,
                                             u"Until Paid Off: 7/20/2004"_s,
                                             u"Transfer $50.00 to Card"_s,
                                             QString(),
                                             u"Creditor: Card"_s,
                                             u"Balance Owed: $5,000.00"_s,
                                             u"Annual Percentage Rate: 18.00%"_s,
                                             u"Set Monthly Amount: $100.00"_s,
                                             u"Next Due Date: 1/15/2004"_s,
                                             u"Pay This Much a Month: $150.00"_s,
                                             u"Starting: 8/15/2004"_s,
                                             u"Until Paid Off: 4/15/2008"_s,
                                             u"Transfer $150.00 to Budget"_s,
                                             QString()}));
    }

    void AmountsKeepTheirFourDecimals()
    {
        FakeDesk desk;
        // 100.01 at 1 per cent: 1.0001 of interest; the next month 1.0101 at 0.5101 owed more exactly than shown.
        const Shown shown = PlanOf({{u"One"_s, u"100.01"_s, u"12"_s, u"50"_s, u"1/1/2004"_s}});
        const PayOffRow first = shown.Plan.Rows.at(0);
        QCOMPARE(first.Interest.TenThousandths(), 10001);
        QCOMPARE(first.NextBalance.TenThousandths(), 510101);
        QCOMPARE(shown.Plan.Rows.at(1).PreviousBalance.TenThousandths(), 510101);
        QCOMPARE(shown.Rows(1, 2), (QStringList{u"1 | 1/1/2004 | $100.01 | $1.00 | $101.01 | $50.00 | $51.01"_s,
                                                u"2 | 2/1/2004 | $51.01 | $0.51 | $51.52 | $50.00 | $1.52"_s}));
    }

    void InterestIsRoundedToEven_data()
    {
        QTest::addColumn<qint64>("balance");
        QTest::addColumn<qint64>("interest");
        QTest::newRow("half goes down to 0") << qint64(1) << qint64(0);
        QTest::newRow("two and a half goes down to 2") << qint64(5) << qint64(2);
        QTest::newRow("three and a half goes up to 4") << qint64(7) << qint64(4);
        QTest::newRow("a whole stays") << qint64(8) << qint64(4);
        QTest::newRow("below zero, too") << qint64(-7) << qint64(-4);
    }
    void InterestIsRoundedToEven()
    {
        QFETCH(qint64, balance);
        QFETCH(qint64, interest);
        FakeDesk desk;
        Enter({{u"Half"_s, PlainText(Currency::FromTenThousandths(balance)), u"600"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(Debt.PayOffMonthlyRates(1), 0.5F); // half the balance each month
        FallsInFirstMonth(1);
        QCOMPARE(Debt.PayOffInterest.TenThousandths(), interest);
        QCOMPARE(Build().Plan.Rows.at(0).Interest.TenThousandths(), interest);
    }

    void ABalanceBelowTheMonthlyAmountTakesTwoMonths_data()
    {
        QTest::addColumn<QString>("balance");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("the overpayment is shown as it falls")
            << u"30"_s << u"12"_s
            << QStringList{u"1 | 1/31/2004 | $30.00 | $0.30 | $30.30 | $50.00 | ($19.70)"_s,
                           u"2 | 2/29/2004 | ($19.70) | ($0.20) | ($19.90) | ($19.90) | $0.00"_s, Gap};
        QTest::newRow("nothing left after the first month")
            << u"50"_s << u"0"_s
            << QStringList{u"1 | 1/31/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s,
                           u"2 | 2/29/2004 | $0.00 | $0.00 | $0.00 | $0.00 | $0.00"_s, Gap};
        QTest::newRow("no balance at all")
            << u"0"_s << u"12"_s
            << QStringList{u"1 | 1/31/2004 | $0.00 | $0.00 | $0.00 | $50.00 | ($50.00)"_s,
                           u"2 | 2/29/2004 | ($50.00) | ($0.50) | ($50.50) | ($50.50) | $0.00"_s, Gap};
        QTest::newRow("left is just the payment: the closing month pays a little more")
            << u"99"_s << u"12"_s // 99.99 - 50 = 49.99; see the next row for the equal one
            << QStringList{u"1 | 1/31/2004 | $99.00 | $0.99 | $99.99 | $50.00 | $49.99"_s,
                           u"2 | 2/29/2004 | $49.99 | $0.50 | $50.49 | $50.49 | $0.00"_s, Gap};
    }
    void ABalanceBelowTheMonthlyAmountTakesTwoMonths()
    {
        QFETCH(QString, balance);
        QFETCH(QString, rate);
        QFETCH(QStringList, rows);
        FakeDesk desk;
        const Shown shown = PlanOf({{u"Small"_s, balance, rate, u"50"_s, u"1/31/2004"_s}});
        QCOMPARE(Months(), QList<qint16>{2});
        QCOMPARE(shown.Rows(), rows);
    }

    void ANextBalanceEqualToThePaymentEndsTheMonths()
    {
        FakeDesk desk;
        // 100 + 1 - 50.50 leaves 50.50, exactly the payment; a ten-thousandth more takes another month.
        const Shown shown = PlanOf({{u"Even"_s, u"100"_s, u"12"_s, u"50.50"_s, u"1/1/2004"_s}});
        QCOMPARE(shown.Rows(), (QStringList{u"1 | 1/1/2004 | $100.00 | $1.00 | $101.00 | $50.50 | $50.50"_s,
                                            u"2 | 2/1/2004 | $50.50 | $0.51 | $51.01 | $51.01 | $0.00"_s, Gap}));
        QCOMPARE(PlanOf({{u"Above"_s, u"100.0001"_s, u"12"_s, u"50.50"_s, u"1/1/2004"_s}}).Rows().size(), 4);
        QCOMPARE(Months(), QList<qint16>{3});
    }

    void AtZeroPerCentThereIsNoInterest()
    {
        FakeDesk desk;
        QCOMPARE(PlanOf({{u"Dentist"_s, u"250"_s, u"0"_s, u"100"_s, u"3/1/2004"_s}}).Rows(),
                 (QStringList{u"1 | 3/1/2004 | $250.00 | $0.00 | $250.00 | $100.00 | $150.00"_s,
                              u"2 | 4/1/2004 | $150.00 | $0.00 | $150.00 | $100.00 | $50.00"_s,
                              u"3 | 5/1/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s, Gap}));
    }

    void TheOneThatIsFinishedFirstComesFirst()
    {
        FakeDesk desk;
        const auto debt = [](const char *name, int balance) {
            return PayOffEntry{QString::fromLatin1(name), QString::number(balance), u"0"_s, u"100"_s, u"1/1/2004"_s};
        };
        // 5, 3, 4, 3, 2 and 3 months; those with equal months stay in their order of entry.
        Enter({debt("a", 500), debt("b", 300), debt("c", 400), debt("d", 290), debt("e", 200), debt("f", 280)});
        CalculateMonthsToPay();
        QCOMPARE(Months(), (QList<qint16>{5, 3, 4, 3, 2, 3}));
        SortPayOffCreditors();
        QCOMPARE(Months(), (QList<qint16>{2, 3, 3, 3, 4, 5}));
        QCOMPARE(Names(), (QStringList{u"e"_s, u"b"_s, u"d"_s, u"f"_s, u"c"_s, u"a"_s}));
        QCOMPARE(Debt.PayOffBalances(3).TenThousandths(), 2900000);
    }

    void AllSixArraysMoveTogether()
    {
        FakeDesk desk;
        Enter(WorkedExample);
        CalculateMonthsToPay();
        SortPayOffCreditors();
        QCOMPARE(Names(), (QStringList{u"Store"_s, u"Card"_s}));
        QCOMPARE(Debt.PayOffBalances(1).TenThousandths(), 3000000);
        QCOMPARE(Debt.PayOffMonthlyRates(1), 0.0175F);
        QCOMPARE(Debt.PayOffMonthlyAmounts(1).TenThousandths(), 500000);
        QCOMPARE(Debt.PayOffDueDates(1), QDate(2004, 1, 20));
        QCOMPARE(Debt.PayOffMonthsToPay(1), qint16(7));
        QCOMPARE(Debt.PayOffBalances(2).TenThousandths(), 50000000);
        QCOMPARE(Debt.PayOffMonthlyRates(2), 0.015F);
        QCOMPARE(Debt.PayOffMonthlyAmounts(2).TenThousandths(), 1000000);
        QCOMPARE(Debt.PayOffDueDates(2), QDate(2004, 1, 15));
        QCOMPARE(Debt.PayOffMonthsToPay(2), qint16(94));
    }

    void ACreditorThatIsFinishedTooSoonGetsNothingRolledOn()
    {
        FakeDesk desk;
        const Shown shown = PlanOf({{u"A"_s, u"100"_s, u"0"_s, u"60"_s, u"1/1/2004"_s},
                                    {u"B"_s, u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s},
                                    {u"C"_s, u"1000"_s, u"0"_s, u"100"_s, u"1/1/2004"_s}});
        // A is finished in month 2, so its amount reaches B in month 3, when B is finished, too. From B's own closing
        // month C gets both: 60 + 50, in month 3.
        QCOMPARE(shown.Rows(), (QStringList{u"1 | 1/1/2004 | $100.00 | $0.00 | $100.00 | $60.00 | $40.00"_s,
                                            u"2 | 2/1/2004 | $40.00 | $0.00 | $40.00 | $40.00 | $0.00"_s, Gap,
                                            u"1 | 1/1/2004 | $100.00 | $0.00 | $100.00 | $50.00 | $50.00"_s,
                                            u"2 | 2/1/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s, Gap,
                                            u"1 | 1/1/2004 | $1,000.00 | $0.00 | $1,000.00 | $100.00 | $900.00"_s,
                                            u"2 | 2/1/2004 | $900.00 | $0.00 | $900.00 | $100.00 | $800.00"_s,
                                            u"3 | 3/1/2004 | $800.00 | $0.00 | $800.00 | $210.00 | $590.00"_s,
                                            u"4 | 4/1/2004 | $590.00 | $0.00 | $590.00 | $210.00 | $380.00"_s,
                                            u"5 | 5/1/2004 | $380.00 | $0.00 | $380.00 | $210.00 | $170.00"_s,
                                            u"6 | 6/1/2004 | $170.00 | $0.00 | $170.00 | $170.00 | $0.00"_s, Gap}));
        // The amounts count at their set value: A's is 60 although its last month took 40.
        QCOMPARE(shown.Lines().filter(u"Pay This Much"_s),
                 (QStringList{u"Pay This Much a Month: $60.00"_s, u"Pay This Much a Month: $110.00"_s,
                              u"Pay This Much a Month: $210.00"_s}));
        QCOMPARE(shown.Lines().filter(u"Transfer"_s),
                 (QStringList{u"Transfer $60.00 to B"_s, u"Transfer $110.00 to C"_s, u"Transfer $210.00 to Budget"_s}));
    }

    void ARaisedPaymentDecidesWhetherTheComingMonthIsTheLast()
    {
        FakeDesk desk;
        const Shown shown = PlanOf(
            {{u"A"_s, u"1000"_s, u"0"_s, u"500"_s, u"1/1/2004"_s}, {u"B"_s, u"400"_s, u"0"_s, u"10"_s, u"1/1/2004"_s}});
        // In month 3 B gets 510: 380 are left by then, so that month closes it, and month 2 is not reduced.
        QCOMPARE(shown.Rows(4), (QStringList{u"1 | 1/1/2004 | $400.00 | $0.00 | $400.00 | $10.00 | $390.00"_s,
                                             u"2 | 2/1/2004 | $390.00 | $0.00 | $390.00 | $10.00 | $380.00"_s,
                                             u"3 | 3/1/2004 | $380.00 | $0.00 | $380.00 | $380.00 | $0.00"_s, Gap}));
    }

    void TheRolledAmountArrivesByNumberWhateverTheDatesSay()
    {
        FakeDesk desk;
        const Shown shown = PlanOf(
            {{u"A"_s, u"100"_s, u"0"_s, u"50"_s, u"6/10/2004"_s}, {u"B"_s, u"400"_s, u"0"_s, u"50"_s, u"1/5/2004"_s}});
        QCOMPARE(shown.Rows(4, 3), (QStringList{u"1 | 1/5/2004 | $400.00 | $0.00 | $400.00 | $50.00 | $350.00"_s,
                                                u"2 | 2/5/2004 | $350.00 | $0.00 | $350.00 | $50.00 | $300.00"_s,
                                                u"3 | 3/5/2004 | $300.00 | $0.00 | $300.00 | $100.00 | $200.00"_s}));
        // "Starting" goes by A's closing month, July, and B's day.
        QCOMPARE(shown.Lines().filter(u"Starting"_s), (QStringList{u"Starting: 6/10/2004"_s, u"Starting: 8/5/2004"_s}));
    }

    void ADueDayThatAShortMonthHasCutStaysCut()
    {
        FakeDesk desk;
        const Shown shown = PlanOf({{u"A"_s, u"400"_s, u"0"_s, u"100"_s, u"12/31/2004"_s}});
        QStringList dates;
        for (const PayOffRow &row : shown.Plan.Rows)
            dates += CellsOf(row).value(1);
        QCOMPARE(dates, (QStringList{u"12/31/2004"_s, u"1/31/2005"_s, u"2/28/2005"_s, u"3/28/2005"_s, QString()}));
    }

    void AStartingDayPastTheMonthsEndRunsOver()
    {
        FakeDesk desk;
        const Shown shown = PlanOf(
            {{u"A"_s, u"100"_s, u"0"_s, u"50"_s, u"2/10/2004"_s}, {u"B"_s, u"400"_s, u"0"_s, u"50"_s, u"1/31/2004"_s}});
        QCOMPARE(shown.Lines().filter(u"Until"_s).first(), u"Until Paid Off: 3/10/2004"_s);
        QCOMPARE(shown.Lines().filter(u"Starting"_s).last(), u"Starting: 5/1/2004"_s); // April 31st
    }

    void OneCreditorEndsInTheBudget()
    {
        FakeDesk desk;
        const QStringList lines = PlanOf({{u"Only"_s, u"100"_s, u"0"_s, u"50"_s, u"2/10/2004"_s}}).Lines();
        QCOMPARE(lines.value(6), u"Starting: 2/10/2004"_s);
        QCOMPARE(lines.value(8), u"Transfer $50.00 to Budget"_s);
        QCOMPARE(lines.size(), 10);
    }

    void TheYearlyRateIsTwelveMonthlyOnes()
    {
        FakeDesk desk;
        Enter({{u"A"_s, u"100"_s, u"19.8"_s, u"50"_s, u"2/10/2004"_s}});
        QCOMPARE(Debt.LoanAnnualRate, 19.8F); // per cent, as it is entered
        QCOMPARE(Debt.PayOffMonthlyRates(1), float(double(19.8F) / 100 / 12));
        QVERIFY(Build().Lines().contains(u"Annual Percentage Rate: 19.80%"_s));
        QCOMPARE(Debt.LoanAnnualRate, Debt.PayOffMonthlyRates(1) * 12); // a fraction, which the loan windows find
    }

    // The number of creditors

    void TheNumberOfCreditorsIsRounded_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("error");
        QTest::newRow("a number") << u"3"_s << 3 << 0;
        QTest::newRow("2.5 goes to the even 2") << u"2.5"_s << 2 << 0;
        QTest::newRow("3.5 goes to the even 4") << u"3.5"_s << 4 << 0;
        QTest::newRow("the greatest") << u"32767"_s << 32767 << 0;
        QTest::newRow("rounded beyond it") << u"32767.5"_s << 7 << int(RuntimeError::Overflow);
        QTest::newRow("too large") << u"70000"_s << 7 << int(RuntimeError::Overflow);
        QTest::newRow("none") << u"0"_s << 7 << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("rounded to none") << u"0.5"_s << 7 << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("less than none") << u"-1"_s << 7 << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("a word") << u"many"_s << 7 << int(RuntimeError::TypeMismatch);
    }
    void TheNumberOfCreditorsIsRounded()
    {
        QFETCH(QString, text);
        QFETCH(int, number);
        QFETCH(int, error);
        FakeDesk desk;
        RedimPayOffCreditors(u"7"_s);
        Debt.PayOffCreditorNames(2) = u"earlier"_s;
        QCOMPARE(ErrorOf([&] { RedimPayOffCreditors(text); }), error);
        QCOMPARE(int(Debt.NumberOfPayOffCreditors), number);
        for (const int size :
             {Debt.PayOffCreditorNames.Size(), Debt.PayOffBalances.Size(), Debt.PayOffMonthlyRates.Size(),
              Debt.PayOffMonthlyAmounts.Size(), Debt.PayOffDueDates.Size(), Debt.PayOffMonthsToPay.Size()})
            QCOMPARE(size, number);
        QCOMPARE(Debt.PayOffCreditorNames(2), error ? u"earlier"_s : QString()); // only a new entry drops the old one
    }

    // The figures of a creditor

    void FiguresThatDoNotConvertAreErrors_data()
    {
        QTest::addColumn<int>("creditor");
        QTest::addColumn<PayOffEntry>("entry");
        QTest::addColumn<int>("error");
        const PayOffEntry good{u"A"_s, u"100"_s, u"12"_s, u"50"_s, u"1/1/2004"_s};
        const auto with = [good](QString PayOffEntry::*figure, const char *text) {
            PayOffEntry entry = good;
            entry.*figure = QString::fromLatin1(text);
            return entry;
        };
        QTest::newRow("good") << 1 << good << 0;
        QTest::newRow("no creditor at hand") << 0 << good << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("more than there are") << 2 << good << int(RuntimeError::SubscriptOutOfRange);
        QTest::newRow("a word for the balance") << 1 << with(&PayOffEntry::Balance, "much") << 13;
        QTest::newRow("too large a balance") << 1 << with(&PayOffEntry::Balance, "1e15") << 6;
        QTest::newRow("a word for the rate") << 1 << with(&PayOffEntry::AnnualPercentageRate, "high") << 13;
        QTest::newRow("too large a rate") << 1 << with(&PayOffEntry::AnnualPercentageRate, "1e39") << 6;
        QTest::newRow("a word for the amount") << 1 << with(&PayOffEntry::MonthlyAmount, "some") << 13;
        QTest::newRow("no date") << 1 << with(&PayOffEntry::DueDate, "soon") << 13;
    }
    void FiguresThatDoNotConvertAreErrors()
    {
        QFETCH(int, creditor);
        QFETCH(PayOffEntry, entry);
        QFETCH(int, error);
        FakeDesk desk;
        RedimPayOffCreditors(u"1"_s);
        QCOMPARE(ErrorOf([&] { StorePayOffCreditor(creditor, entry); }), error);
    }

    void TheBalanceHasToFallInTheFirstMonth_data()
    {
        QTest::addColumn<QString>("balance");
        QTest::addColumn<QString>("rate");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("falls");
        QTest::newRow("more than the interest") << u"1000"_s << u"12"_s << u"10.01"_s << true;
        QTest::newRow("just the interest: it stays the same") << u"1000"_s << u"12"_s << u"10"_s << false;
        QTest::newRow("less than the interest") << u"1000"_s << u"12"_s << u"9.99"_s << false;
        QTest::newRow("nothing owed, nothing paid") << u"0"_s << u"0"_s << u"0"_s << false;
        QTest::newRow("nothing owed, something paid") << u"0"_s << u"0"_s << u"1"_s << true;
        QTest::newRow("a negative amount") << u"1000"_s << u"0"_s << u"-1"_s << false;
        QTest::newRow("a negative rate helps") << u"1000"_s << u"-12"_s << u"0"_s << true;
    }
    void TheBalanceHasToFallInTheFirstMonth()
    {
        QFETCH(QString, balance);
        QFETCH(QString, rate);
        QFETCH(QString, amount);
        QFETCH(bool, falls);
        FakeDesk desk;
        Enter({{u"A"_s, balance, rate, amount, u"1/1/2004"_s}});
        QCOMPARE(FallsInFirstMonth(1), falls);
        QCOMPARE(Debt.PayOffNewBalance, Debt.PayOffBalances(1) + Debt.PayOffInterest);
        QCOMPARE(Debt.PayOffNextBalance, Debt.PayOffNewBalance - Debt.PayOffMonthlyAmounts(1));
    }

    void TheFirstMonthMayOverflow()
    {
        FakeDesk desk;
        Enter({{u"A"_s, u"900000000000000"_s, u"1200"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(ErrorOf([] { FallsInFirstMonth(1); }), int(RuntimeError::Overflow));
    }

    // What does not fit

    void MonthsAreCountedIn16Bits_data()
    {
        QTest::addColumn<QString>("balance"); // at a dollar a month
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("months");
        QTest::newRow("the last that fits") << u"32767"_s << 0 << 32767;
        QTest::newRow("one more") << u"32768"_s << int(RuntimeError::Overflow) << 0;
        QTest::newRow("far more") << u"400000"_s << int(RuntimeError::Overflow) << 0;
    }
    void MonthsAreCountedIn16Bits()
    {
        QFETCH(QString, balance);
        QFETCH(int, error);
        QFETCH(int, months);
        FakeDesk desk;
        Enter({{u"Slow"_s, balance, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(ErrorOf([] { CalculateMonthsToPay(); }), error);
        QCOMPARE(int(Debt.PayOffMonthsToPay(1)), months);
    }

    void RowsAreCountedIn16Bits_data()
    {
        QTest::addColumn<QStringList>("balances"); // at a dollar a month each
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("lines");
        QTest::newRow("the last that fits") << QStringList{u"32766"_s} << 0 << 32767 << 10;
        QTest::newRow("the month after the last is none, so that the closing row is missing")
            << QStringList{u"32767"_s} << 6 << 32766 << 0;
        QTest::newRow("the empty row is one too many") << QStringList{u"16383"_s, u"16383"_s} << 6 << 32767 << 10;
        QTest::newRow("the second creditor is cut off") << QStringList{u"17000"_s, u"17000"_s} << 6 << 32767 << 10;
    }
    void RowsAreCountedIn16Bits()
    {
        QFETCH(QStringList, balances);
        QFETCH(int, error);
        QFETCH(int, rows);
        QFETCH(int, lines);
        FakeDesk desk;
        QList<PayOffEntry> creditors;
        for (const QString &balance : balances)
            creditors += {u"Slow"_s, balance, u"0"_s, u"1"_s, u"1/1/2004"_s};
        const Shown shown = PlanOf(creditors);
        QCOMPARE(shown.Error, error);
        QCOMPARE(shown.Times, 1); // what was built is shown all the same
        QCOMPARE(int(shown.Plan.Rows.size()), rows);
        QCOMPARE(int(shown.Lines().size()), lines);
        QCOMPARE(shown.Plan.Rows.back().MonthNumber == 0, error == 0);
    }

    void DatesEndWithTheYear9999()
    {
        FakeDesk desk;
        Enter({{u"A"_s, u"300"_s, u"0"_s, u"100"_s, u"11/15/9999"_s}});
        QCOMPARE(ErrorOf([] { CalculateMonthsToPay(); }), int(RuntimeError::InvalidProcedureCall));
        // Two months fit, but not the day after them from which the next creditor would be paid.
        const Shown shown = PlanOf({{u"A"_s, u"200"_s, u"0"_s, u"100"_s, u"11/15/9999"_s}});
        QCOMPARE(shown.Error, int(RuntimeError::InvalidProcedureCall));
        QCOMPARE(shown.Rows().size(), 3);
        QCOMPARE(shown.Lines().last(), u"Starting: 11/15/9999"_s);
    }

    // Paper

    void TheLinesArePrintedAndTransfersAreNot()
    {
        FakeDesk desk;
        State.PrintPayOffPlan = true;
        State.PrintFontName = u"Courier"_s;
        State.PrintFontSize = 8;
        PlanOf(WorkedExample);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Name, u"Pay Off Plan"_s);
        QCOMPARE(page.Font.Name, u"Courier"_s);
        QCOMPARE(page.Lines,
                 (QStringList{u"                         The Corvelle's Tallymere 1.0"_s, // (80 - 28) / 2 = 26
                              {},
                              u"                                 Pay Off Plan"_s, // (80 - 12) / 2 = 34
                              {},
                              u"Creditor: Store"_s,
                              u"Balance Owed: $300.00"_s,
                              u"Annual Percentage Rate: 21.00%"_s,
                              u"Set Monthly Amount: $50.00"_s,
                              u"Next Due Date: 1/20/2004"_s,
                              u"Pay This Much a Month: $50.00"_s,
                              u"Starting: 1/20/2004"_s,
                              u"Until Paid Off: 7/20/2004"_s,
                              {},
                              u"Creditor: Card"_s,
                              u"Balance Owed: $5,000.00"_s,
                              u"Annual Percentage Rate: 18.00%"_s,
                              u"Set Monthly Amount: $100.00"_s,
                              u"Next Due Date: 1/15/2004"_s,
                              u"Pay This Much a Month: $150.00"_s,
                              u"Starting: 8/15/2004"_s,
                              u"Until Paid Off: 4/15/2008"_s,
                              {}}));
        QVERIFY(State.PrintPayOffPlan); // the switch stays
    }

    void WithoutTheSwitchNothingIsPrinted()
    {
        FakeDesk desk;
        PlanOf(WorkedExample);
        QVERIFY(desk.Printed.isEmpty());
        QVERIFY(ThePrinter.PendingLines().isEmpty());
    }

    void PagesThatAnOtherReportHasOpenAreLeftAlone()
    {
        FakeDesk desk;
        ThePrinter.Print(u"Budget"_s).NewLine();
        PlanOf(WorkedExample);
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(ThePrinter.PendingLines(), QStringList{u"Budget"_s});
        ThePrinter.Reset();
    }

    void WhatWasPrintedBeforeAFailureStaysInTheOpenDocument()
    {
        FakeDesk desk;
        State.PrintPayOffPlan = true;
        const Shown shown = PlanOf({{u"First"_s, u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s},
                                    {u"Second"_s, u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(shown.Error, int(RuntimeError::Overflow));
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(ThePrinter.PendingLines().size(), 4 + 9);
        QVERIFY(ThePrinter.PendingLines().contains(u"Creditor: First"_s));
        QVERIFY(!ThePrinter.PendingLines().contains(u"Creditor: Second"_s));
        ThePrinter.Reset();
    }

    void WhatAFailedPlanLeftIsSentOffBeforeTheNextOne_data()
    {
        QTest::addColumn<bool>("printed");
        QTest::newRow("the next one is printed") << true;
        QTest::newRow("the next one is only shown") << false;
    }
    void WhatAFailedPlanLeftIsSentOffBeforeTheNextOne()
    {
        QFETCH(bool, printed);
        FakeDesk desk;
        State.PrintPayOffPlan = true;
        PlanOf({{u"First"_s, u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s},
                {u"Second"_s, u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        State.PrintPayOffPlan = printed;
        PlanOf({{u"Only"_s, u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s}});
        const PrintJob half = desk.TakePrinted();
        QCOMPARE(half.Name, u"Pay Off Plan"_s);
        QCOMPARE(half.Lines.size(), 4 + 9);
        QCOMPARE(half.Lines[4], u"Creditor: First"_s);
        if (printed)
            QCOMPARE(desk.TakePrinted().Lines.value(4), u"Creditor: Only"_s);
        QVERIFY(desk.Printed.isEmpty());
        QVERIFY(ThePrinter.PendingLines().isEmpty());
    }

    void OnlyAPlansOwnPagesAreSentOff()
    {
        FakeDesk desk;
        EndPrintedPlan(); // nothing to send
        QVERIFY(desk.Printed.isEmpty());
        ThePrinter.DocumentName = u"Budget"_s;
        ThePrinter.Print(u"Budget"_s).NewLine();
        EndPrintedPlan();
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(ThePrinter.PendingLines(), QStringList{u"Budget"_s});
        ThePrinter.Reset();
    }
};

REGISTER_TEST(tst_payoff)
#include "tst_payoff.moc"

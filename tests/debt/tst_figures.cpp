// The worked examples of docs/figures.md: what the page tells is what the program computes.
#include "FakeDesk.h"
#include "Figures.h"
#include "TestProgram.h"

#include "debt/Amortization.h"
#include "debt/Loans.h"
#include "debt/PayOffPlan.h"
#include "foundation/State.h"
#include "income/AverageNet.h"
#include "income/TotalHours.h"
#include "income/Wages.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A row of the test for each row of an example.
void TakeExamples(const QString &heading)
{
    QTest::addColumn<Figures>("figures");
    int number = 0;
    for (const Figures &figures : ExamplesOf(heading))
        QTest::addRow("example %d", ++number) << figures;
    QVERIFY(number > 0);
}

void TakeWhenDue(const Figures &figures)
{
    const QString due = figures[u"Payment Due"_s];
    QVERIFY(due == u"Beginning of Pay Period"_s || due == u"End of Pay Period"_s);
    Debt.LoanPaymentDue = due == u"Beginning of Pay Period"_s ? 1 : 0;
}

void TakeFrequency(const Figures &figures)
{
    static const QHash<QString, qint16> frequencies{
        {u"Weekly"_s, Weekly}, {u"Biweekly"_s, Biweekly}, {u"Semimonthly"_s, Semimonthly}, {u"Monthly"_s, Monthly}};
    const QString paid = figures[u"Paid"_s];
    QVERIFY2(frequencies.contains(paid), qPrintable(paid));
    State.PayFrequency = frequencies[paid];
}

/// The plan to pay off the creditors of the page, as it is shown.
PayOffPlan PlanOfThePage()
{
    const QList<Figures> creditors = ExamplesOf(u"Pay off plan"_s);
    RedimPayOffCreditors(QString::number(creditors.size()));
    int number = 0;
    for (const Figures &figures : creditors)
        StorePayOffCreditor(++number,
                            {figures[u"Creditor"_s], figures[u"Balance Owed"_s], figures[u"Annual Percentage Rate"_s],
                             figures[u"Set Monthly Amount"_s], figures[u"Next Due Date"_s]});
    PayOffPlan shown;
    const QObject context;
    QObject::connect(&ThePayOffOutlet, &PayOffOutlet::Ready, &context, [&](const auto &plan) { shown = *plan; });
    CalculateMonthsToPay();
    SortPayOffCreditors();
    BuildPayOffPlan();
    return shown;
}

/// Where a creditor stands in the plan, from 1.
int PlaceOf(const QString &creditor)
{
    return int(std::find(Debt.PayOffCreditorNames.begin(), Debt.PayOffCreditorNames.end(), creditor) -
               Debt.PayOffCreditorNames.begin()) +
           1;
}

QString LabelOf(const StatementRow &row)
{
    return row.Texts.value(0);
}

} // namespace

class tst_figures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LoanPaymentIsAsToldThere_data() { TakeExamples(u"Loan payment"_s); }
    void LoanPaymentIsAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        TakeWhenDue(figures);
        const std::optional<QString> sentence =
            LoanPayment({figures[u"Borrowed Amount"_s], figures[u"Annual Percentage Rate (APR)"_s],
                         figures[u"Number of Monthly Payments"_s]});
        QVERIFY(sentence);
        QCOMPARE(PlainText(Debt.LoanMonthlyPayment), figures[u"Kept"_s]);
        QVERIFY2(sentence->contains(u" will be %1 for "_s.arg(figures[u"Shown"_s])), qPrintable(*sentence));
    }

    void InterestRateIsAsToldThere_data() { TakeExamples(u"Loan interest rate"_s); }
    void InterestRateIsAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        TakeWhenDue(figures);
        const std::optional<QString> sentence = LoanInterestRate(
            {figures[u"Borrowed Amount"_s], figures[u"Monthly Payments"_s], figures[u"Number of Monthly Payments"_s]});
        QVERIFY(sentence);
        QVERIFY2(sentence->endsWith(u" is "_s + figures[u"Shown"_s]), qPrintable(*sentence));
    }

    void SavingsAreAsToldThere_data() { TakeExamples(u"Savings"_s); }
    void SavingsAreAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        TakeWhenDue(figures);
        const QString sentence =
            FutureSavings({figures[u"Monthly Deposits"_s], figures[u"Annual Percentage Rate (APR)"_s],
                           figures[u"Number of Monthly Deposits"_s], figures[u"Current Savings Amount"_s]});
        QCOMPARE(PlainText(Debt.SavingsFutureValue), figures[u"Kept"_s]);
        QVERIFY2(sentence.contains(u" worth %1 after "_s.arg(figures[u"Shown"_s])), qPrintable(sentence));
    }

    void TheTableIsAsToldThere_data() { TakeExamples(u"Amortization table"_s); }
    void TheTableIsAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        const Figures loan = ExamplesOf(u"Loan payment"_s).value(0); // "the mortgage above"
        TakeWhenDue(loan);
        QVERIFY(LoanPayment({loan[u"Borrowed Amount"_s], loan[u"Annual Percentage Rate (APR)"_s],
                             loan[u"Number of Monthly Payments"_s]}));
        Statement table;
        Amortize(table);
        const auto row = std::find_if(table.Rows.begin(), table.Rows.end(),
                                      [&](const StatementRow &each) { return LabelOf(each) == figures[u"Month"_s]; });
        QVERIFY(row != table.Rows.end());
        QCOMPARE(FormatCurrency(row->Amounts[0]), figures[u"Payment"_s]);
        QCOMPARE(FormatCurrency(row->Amounts[1]), figures[u"Principal"_s]);
        QCOMPARE(FormatCurrency(row->Amounts[2]), figures[u"Interest"_s]);
    }

    void ThePayOffPlanIsAsToldThere_data() { TakeExamples(u"Pay off plan"_s); }
    void ThePayOffPlanIsAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        const PayOffPlan plan = PlanOfThePage();
        const int place = PlaceOf(figures[u"Creditor"_s]);
        QVERIFY(place <= Debt.NumberOfPayOffCreditors);
        QCOMPARE(QString::number(Debt.PayOffMonthsToPay(place)), figures[u"Months Alone"_s]);
        QStringList lines;
        for (const PayOffLine &line : plan.Lines)
            lines += line.Text;
        lines = lines.mid(lines.indexOf(u"Creditor: "_s + figures[u"Creditor"_s]), 9);
        for (const QString &line : {u"Balance Owed"_s, u"Set Monthly Amount"_s, u"Next Due Date"_s,
                                    u"Pay This Much a Month"_s, u"Starting"_s, u"Until Paid Off"_s})
            QVERIFY2(lines.contains(line + u": "_s + figures[line]), qPrintable(lines.join(u'\n')));
        QCOMPARE(lines.value(8), u"Transfer "_s + figures[u"Transfer"_s]);
    }

    void TheMonthsOfThePlanAreAsToldThere_data() { TakeExamples(u"Months of the pay off plan"_s); }
    void TheMonthsOfThePlanAreAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        const PayOffPlan plan = PlanOfThePage();
        int place = 1; // an empty row follows the last month of each creditor
        for (const PayOffRow &row : plan.Rows) {
            place += row.MonthNumber == 0;
            if (place != PlaceOf(figures[u"Creditor"_s]) || QString::number(row.MonthNumber) != figures[u"#"_s])
                continue;
            QCOMPARE(CellsOf(row), (QStringList{figures[u"#"_s], figures[u"Date"_s], figures[u"Previous Balance"_s],
                                                figures[u"Interest"_s], figures[u"New Balance"_s],
                                                figures[u"Payment"_s], figures[u"Next Balance"_s]}));
            return;
        }
        QFAIL("the plan has no such month");
    }

    void WagesAreAsToldThere_data() { TakeExamples(u"Wages"_s); }
    void WagesAreAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        TakeFrequency(figures);
        State.AverageNetPercentage = FractionOf(figures[u"Average Net Percentage"_s]);
        WageBoxes boxes;
        boxes.HourlyPayRate = figures[u"Hourly Pay Rate"_s];
        boxes.TotalHoursWorked = figures[u"Total Hours Worked"_s];
        if (State.PayFrequency == Weekly) {
            CalculateWeeklyWages(boxes);
        } else {
            Income.TotalRegularHours = ToSingle(figures[u"Regular Hours"_s]);
            Income.TotalOvertimeHours = ToSingle(figures[u"Overtime Hours"_s]);
            CalculatePeriodWages(boxes);
        }
        QCOMPARE(boxes.RegularHours, figures[u"Regular Hours"_s]);
        QCOMPARE(boxes.OvertimeHours, figures[u"Overtime Hours"_s]);
        QCOMPARE(boxes.GrossPay, figures[u"Gross Pay"_s]);
        QCOMPARE(boxes.NetPay, figures[u"Net Pay"_s]);
        QCOMPARE(boxes.MonthlyGross, figures[u"Monthly Gross"_s]);
        QCOMPARE(boxes.YearlyGross, figures[u"Yearly Gross"_s]);
        QCOMPARE(PlainText(State.PaycheckAmount), figures[u"Kept"_s]);
    }

    void TotalHoursAreAsToldThere_data() { TakeExamples(u"Total hours"_s); }
    void TotalHoursAreAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        TakeFrequency(figures);
        WeekTexts weeks;
        for (std::size_t week = 0; week < weeks.size(); ++week)
            weeks[week] = figures[u"Week %1"_s.arg(week + 1)];
        TakeHours(weeks);
        QCOMPARE(Format(Income.TotalRegularHours, NumberFormat::Fixed), figures[u"Regular Hours"_s]);
        QCOMPARE(Format(Income.TotalOvertimeHours, NumberFormat::Fixed), figures[u"Overtime Hours"_s]);
        QCOMPARE(Format(Income.TotalHoursWorked, NumberFormat::Fixed), figures[u"Total Hours Worked"_s]);
    }

    void AverageNetPercentageIsAsToldThere_data() { TakeExamples(u"Average net percentage"_s); }
    void AverageNetPercentageIsAsToldThere()
    {
        QFETCH(Figures, figures);
        FakeDesk desk;
        CalculateAverageNet({figures[u"First Check Gross"_s], figures[u"First Check Net"_s],
                             figures[u"Second Check Gross"_s], figures[u"Second Check Net"_s]});
        QCOMPARE(PerCent(State.AverageNetPercentage), figures[u"Shown"_s]);
        QCOMPARE(PlainText(State.AverageNetPercentage), figures[u"Kept"_s]);
    }

    void ThePaymentLeadsBackToItsRate()
    {
        FakeDesk desk;
        QVERIFY(LoanPayment({u"200000"_s, u"6"_s, u"360"_s}));
        QCOMPARE(FormatCurrency(Debt.LoanMonthlyPayment), u"$1,199.10"_s);
        const std::optional<QString> sentence =
            LoanInterestRate({u"200000"_s, FormatCurrency(Debt.LoanMonthlyPayment), u"360"_s});
        QVERIFY(sentence && sentence->endsWith(u" is 6.00%"_s));
    }

    // The rows are the whole table, so what the page says of their sum can be checked against the loan.
    void ThePrincipalMissesTheLoanByWhatThePageAllows()
    {
        FakeDesk desk;
        const Figures loan = ExamplesOf(u"Loan payment"_s).value(0);
        const QList<Figures> rows = ExamplesOf(u"Amortization table"_s);
        QVERIFY(!rows.isEmpty());
        const Currency principal = ToCurrency(rows.last()[u"Principal"_s]);
        const Currency borrowed = ToCurrency(loan[u"Borrowed Amount"_s]);
        const int payments = ToInteger(loan[u"Number of Monthly Payments"_s]);
        QCOMPARE(principal - borrowed, Currency::FromTenThousandths(1000)); // ten cents
        QVERIFY((principal - borrowed).TenThousandths() <= 50 * payments);
    }
};

REGISTER_TEST(tst_figures)
#include "tst_figures.moc"

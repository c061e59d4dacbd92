#include "debt/PayOffPlan.h"

#include "foundation/Report.h"
#include "foundation/State.h"
#include "platform/desk/Printer.h"
#include "platform/values/Dates.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MonthsAYear = 12;
const QString ReportName = u"Pay Off Plan"_s;

/// One month's interest on a balance: money, rounded to the ten-thousandth, ties to even.
Currency InterestOn(Currency balance, float monthlyRate)
{
    return Currency::FromDouble(balance.ToDouble() * double(monthlyRate));
}

void AddInterest(int creditor)
{
    Debt.PayOffInterest = InterestOn(Debt.PayOffPreviousBalance, Debt.PayOffMonthlyRates(creditor));
    Debt.PayOffNewBalance = Debt.PayOffPreviousBalance + Debt.PayOffInterest;
}

void ComputeMonth(int creditor)
{
    AddInterest(creditor);
    Debt.PayOffNextBalance = Debt.PayOffNewBalance - Debt.PayOffPayment;
}

/// The last month pays what is left, also where that is less than nothing.
void ComputeClosingMonth(int creditor)
{
    AddInterest(creditor);
    Debt.PayOffPayment = Debt.PayOffNewBalance;
    Debt.PayOffNextBalance = Debt.PayOffNewBalance - Debt.PayOffPayment;
}

void StartCreditor(int creditor)
{
    Debt.PayOffMonthNumber = 1;
    Debt.PayOffDate = Debt.PayOffDueDates(creditor);
    Debt.PayOffPreviousBalance = Debt.PayOffBalances(creditor);
    Debt.PayOffPayment = Debt.PayOffMonthlyAmounts(creditor);
}

/// Goes on from a month to the next one. Each date comes from the one before it: a due day that a short month has cut
/// stays cut.
void NextMonth()
{
    Debt.PayOffPreviousBalance = Debt.PayOffNextBalance;
    Debt.PayOffDate = AddMonths(Debt.PayOffDate, 1);
    Debt.PayOffMonthNumber = ToInteger(Debt.PayOffMonthNumber + 1);
}

/// Walks through the creditors and collects what becomes of them.
class PlanBuilder
{
public:
    explicit PlanBuilder(PayOffPlan &plan) : m_plan(plan) {}

    void Build()
    {
        m_startingDate = Debt.PayOffDueDates(1);
        for (int creditor = 1; creditor <= Debt.NumberOfPayOffCreditors; ++creditor) {
            AddMonthsOf(creditor);
            AddLinesOf(creditor);
        }
    }

private:
    void AddMonthsOf(int creditor)
    {
        const Currency setAmount = Debt.PayOffMonthlyAmounts(creditor);
        StartCreditor(creditor);
        Debt.LoanAnnualRate = Debt.PayOffMonthlyRates(creditor) * float(MonthsAYear);
        do {
            ComputeMonth(creditor);
            AddRow(ThisMonth());
            NextMonth();
            // The amount rolled on arrives by the number of the month, whatever the due dates say; a creditor that is
            // finished before that month never gets it.
            if (Debt.PayOffMonthNumber == m_transferMonth)
                Debt.PayOffPayment = m_rollingAmount + setAmount;
        } while (Debt.PayOffNextBalance > Debt.PayOffPayment);
        ComputeClosingMonth(creditor);
        m_transferMonth = ToInteger(Debt.PayOffMonthNumber + 1); // after 32,767 months the closing row is never reached
        m_rollingAmount += setAmount;                            // not what the closing month took
        AddRow(ThisMonth());
        AddRow({});
    }
    void AddLinesOf(int creditor)
    {
        const bool last = creditor == Debt.NumberOfPayOffCreditors;
        Add(u"Creditor: "_s + Debt.PayOffCreditorNames(creditor));
        Add(u"Balance Owed: "_s + FormatCurrency(Debt.PayOffBalances(creditor)));
        Add(u"Annual Percentage Rate: "_s + Format(Debt.LoanAnnualRate, NumberFormat::Percent));
        Add(u"Set Monthly Amount: "_s + FormatCurrency(Debt.PayOffMonthlyAmounts(creditor)));
        Add(u"Next Due Date: "_s + Format(Debt.PayOffDueDates(creditor), DateFormat::Short));
        Add(u"Pay This Much a Month: "_s + FormatCurrency(m_rollingAmount));
        Add(u"Starting: "_s + Format(m_startingDate, DateFormat::Short));
        if (!last)
            m_nextDueDay = Debt.PayOffDueDates(creditor + 1).day();
        const QDate nextMonth = AddMonths(Debt.PayOffDate, 1);
        m_startingDate = DateSerial(nextMonth.year(), nextMonth.month(), m_nextDueDay);
        Add(u"Until Paid Off: "_s + Format(Debt.PayOffDate, DateFormat::Short));
        Add(u"Transfer "_s + FormatCurrency(m_rollingAmount) + u" to "_s +
                (last ? u"Budget"_s : Debt.PayOffCreditorNames(creditor + 1)),
            false);
        Add({});
    }

    static PayOffRow ThisMonth()
    {
        return {Debt.PayOffMonthNumber, Debt.PayOffDate,    Debt.PayOffPreviousBalance, Debt.PayOffInterest,
                Debt.PayOffNewBalance,  Debt.PayOffPayment, Debt.PayOffNextBalance};
    }
    void AddRow(const PayOffRow &row)
    {
        m_gridRow = ToInteger(m_gridRow + 1);
        m_plan.Rows.push_back(row);
    }
    void Add(const QString &line, bool isPrinted = true) { m_plan.Lines.push_back({line, isPrinted}); }

    PayOffPlan &m_plan;
    qint16 m_gridRow = 0;
    qint16 m_transferMonth = 0; // in which the rolled amount reaches the creditor at hand; no month is number 0
    Currency m_rollingAmount;   // the set monthly amounts of all creditors finished so far
    QDate m_startingDate;       // of the creditor's row with everything rolled into it
    int m_nextDueDay = 0;
};

void PrintPlan(const PayOffPlan &plan)
{
    BeginReport(ReportName);
    PrintHeading(ReportName);
    for (const PayOffLine &line : plan.Lines)
        if (line.IsPrinted)
            ThePrinter.Print(line.Text).NewLine();
}

} // namespace

void RedimPayOffCreditors(const QString &count)
{
    const qint16 number = ToInteger(count);
    if (number < 1)
        RaiseError(RuntimeError::SubscriptOutOfRange);
    Debt.NumberOfPayOffCreditors = number;
    Debt.PayOffCreditorNames.Redim(number);
    Debt.PayOffBalances.Redim(number);
    Debt.PayOffMonthlyRates.Redim(number);
    Debt.PayOffMonthlyAmounts.Redim(number);
    Debt.PayOffDueDates.Redim(number);
    Debt.PayOffMonthsToPay.Redim(number);
}

void StorePayOffCreditor(int creditor, const PayOffEntry &entry)
{
    constexpr double perCent = 100;
    Debt.PayOffCreditorNames(creditor) = entry.Name;
    Debt.PayOffBalances(creditor) = ToCurrency(entry.Balance);
    Debt.LoanAnnualRate = ToSingle(entry.AnnualPercentageRate);
    Debt.PayOffMonthlyRates(creditor) = ToSingle(double(Debt.LoanAnnualRate) / perCent / MonthsAYear);
    Debt.PayOffMonthlyAmounts(creditor) = ToCurrency(entry.MonthlyAmount);
    Debt.PayOffDueDates(creditor) = ToDate(entry.DueDate);
}

bool FallsInFirstMonth(int creditor)
{
    const Currency balance = Debt.PayOffBalances(creditor);
    Debt.PayOffInterest = InterestOn(balance, Debt.PayOffMonthlyRates(creditor));
    Debt.PayOffNewBalance = balance + Debt.PayOffInterest;
    Debt.PayOffNextBalance = Debt.PayOffNewBalance - Debt.PayOffMonthlyAmounts(creditor);
    return Debt.PayOffNextBalance < balance;
}

void CalculateMonthsToPay()
{
    for (int creditor = 1; creditor <= Debt.NumberOfPayOffCreditors; ++creditor) {
        StartCreditor(creditor);
        do {
            ComputeMonth(creditor);
            NextMonth();
        } while (Debt.PayOffNextBalance > Debt.PayOffPayment);
        ComputeClosingMonth(creditor);
        Debt.PayOffMonthsToPay(creditor) = Debt.PayOffMonthNumber;
    }
}

void SortPayOffCreditors()
{
    const auto exchange = [](int one, int other) {
        std::swap(Debt.PayOffMonthsToPay(one), Debt.PayOffMonthsToPay(other));
        std::swap(Debt.PayOffCreditorNames(one), Debt.PayOffCreditorNames(other));
        std::swap(Debt.PayOffBalances(one), Debt.PayOffBalances(other));
        std::swap(Debt.PayOffMonthlyRates(one), Debt.PayOffMonthlyRates(other));
        std::swap(Debt.PayOffMonthlyAmounts(one), Debt.PayOffMonthlyAmounts(other));
        std::swap(Debt.PayOffDueDates(one), Debt.PayOffDueDates(other));
    };
    for (int pass = 1; pass <= Debt.NumberOfPayOffCreditors; ++pass)
        for (int i = 2; i <= Debt.NumberOfPayOffCreditors; ++i)
            if (Debt.PayOffMonthsToPay(i) < Debt.PayOffMonthsToPay(i - 1))
                exchange(i, i - 1);
}

void BuildPayOffPlan()
{
    EndPrintedPlan();
    const auto plan = std::make_shared<PayOffPlan>();
    std::optional<RuntimeError::Code> failure;
    ResumeNext([&] { PlanBuilder(*plan).Build(); }, [&](const RuntimeError &error) { failure = error.Number; });
    if (State.PrintPayOffPlan)
        PrintPlan(*plan);
    Q_EMIT ThePayOffOutlet.Ready(plan);
    if (failure)
        RaiseError(*failure); // for the window, whose handler tells it
    if (State.PrintPayOffPlan)
        ThePrinter.EndDoc();
}

void EndPrintedPlan()
{
    if (ThePrinter.DocumentName == ReportName)
        ThePrinter.EndDoc();
}

QStringList CellsOf(const PayOffRow &row)
{
    if (row.MonthNumber == 0)
        return {{}, {}, {}, {}, {}, {}, {}};
    return {QString::number(row.MonthNumber), Format(row.Date, DateFormat::Short), FormatCurrency(row.PreviousBalance),
            FormatCurrency(row.Interest),     FormatCurrency(row.NewBalance),      FormatCurrency(row.Payment),
            FormatCurrency(row.NextBalance)};
}

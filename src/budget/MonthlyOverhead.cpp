#include "budget/MonthlyOverhead.h"

#include "foundation/Calendar.h"
#include "foundation/Report.h"
#include "foundation/State.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"

std::optional<Currency> MonthlyAmount(Currency amount, qint16 payFrequency)
{
    const auto perMonth = [&](int payPeriodsPerYear) {
        return Currency::FromDouble((amount * payPeriodsPerYear).ToDouble() / 12);
    };
    switch (payFrequency) {
    case Weekly: return perMonth(52);
    case Biweekly: return perMonth(26);
    case Semimonthly: return perMonth(24);
    case Monthly: return amount;
    default: return {};
    }
}

OverheadStatement CalculateOverhead()
{
    Overhead.MonthlyNetIncome =
        MonthlyAmount(State.PaycheckAmount, State.PayFrequency).value_or(Overhead.MonthlyNetIncome);
    OverheadStatement statement;
    statement.MonthlyNetIncome = Overhead.MonthlyNetIncome;
    State.BudgetBalance = Overhead.MonthlyNetIncome;
    const auto add = [&](const QString &label, Currency amount) {
        statement.Lines.push_back({label, amount, BudgetLine::Ordinary});
        State.BudgetBalance -= amount;
        statement.TotalOverhead += amount;
    };
    for (int i = 1; i <= State.NumberOfCreditors; ++i) {
        const CreditorRecord &creditor = State.Creditors(i);
        add(OrdinalDueLabel(creditor.CreditorName, creditor.CreditorDueDate), creditor.CreditorAmount);
    }
    for (int i = 1; i <= State.NumberOfRegulars; ++i) {
        const RegularRecord &regular = State.Regulars(i);
        Overhead.RegularMonthlyAmount =
            MonthlyAmount(regular.RegularAmount, State.PayFrequency).value_or(Overhead.RegularMonthlyAmount);
        add(regular.RegularItem, Overhead.RegularMonthlyAmount);
    }
    statement.Result = State.BudgetBalance;
    statement.ResultLabel =
        statement.Result.IsNegative() ? QStringLiteral("DEFICIT") : QStringLiteral("Remaining Funds");
    return statement;
}

void PrintOverhead()
{
    const OverheadStatement statement = CalculateOverhead();
    PrintReportTitle(QStringLiteral("OVERHEAD"), QStringLiteral("Overhead"));
    ThePrinter.AmountLine(QStringLiteral("Monthly Net Income"), FormatCurrency(statement.MonthlyNetIncome));
    ThePrinter.RuleLine();
    ThePrinter.NewLine();
    for (const BudgetLine &line : statement.Lines)
        ThePrinter.AmountLine(line.Label, FormatCurrency(line.Amount));
    ThePrinter.RuleLine();
    ThePrinter.NewLine();
    ThePrinter.AmountLine(QStringLiteral("Total Overhead"), FormatCurrency(statement.TotalOverhead));
    ThePrinter.NewLine();
    ThePrinter.AmountLine(statement.ResultLabel, FormatCurrency(statement.Result));
    ThePrinter.EndDoc();
}

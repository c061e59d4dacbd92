#include "budget/MonthlyOverhead.h"

#include "foundation/Calendar.h"
#include "foundation/Report.h"
#include "foundation/State.h"
#include "platform/desk/Printer.h"

using namespace Qt::Literals::StringLiterals;

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

Statement CalculateOverhead()
{
    Overhead.MonthlyNetIncome =
        MonthlyAmount(State.PaycheckAmount, State.PayFrequency).value_or(Overhead.MonthlyNetIncome);
    State.BudgetBalance = Overhead.MonthlyNetIncome;
    Statement statement{.Heading = u"OVERHEAD"_s,
                        .Opening = {{u"Monthly Net Income"_s}, {Overhead.MonthlyNetIncome}},
                        .FirstRow = 2,
                        .Name = u"Overhead"_s}; // an empty row below the income
    Currency total;
    const auto add = [&](const QString &label, Currency amount) {
        statement.Rows.push_back({{label}, {amount}});
        State.BudgetBalance -= amount;
        total += amount;
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
    statement.Rows.push_back({.TheKind = StatementRow::Rule});
    statement.Rows.push_back({{u"Total Overhead"_s}, {total}, StatementRow::Total});
    // A deficit stands apart, with an empty row on both sides; what remains follows the total directly.
    if (State.BudgetBalance.IsNegative()) {
        statement.Rows.push_back({.TheKind = StatementRow::Gap});
        statement.Rows.push_back({{u"DEFICIT"_s}, {State.BudgetBalance}, StatementRow::Result});
        statement.Rows.push_back({.TheKind = StatementRow::Gap});
    } else {
        statement.Rows.push_back({{u"Remaining Funds"_s}, {State.BudgetBalance}, StatementRow::Result});
    }
    return statement;
}

int MostOverheadRows()
{
    constexpr int incomeAndGap = 2;
    constexpr int gapAndTotal = 2;
    constexpr int deficitAndGaps = 3;
    return incomeAndGap + State.NumberOfCreditors + State.NumberOfRegulars + gapAndTotal + deficitAndGaps;
}

void PrintOverhead()
{
    PrintStatement(CalculateOverhead(), AmountPage);
    ThePrinter.EndDoc();
}

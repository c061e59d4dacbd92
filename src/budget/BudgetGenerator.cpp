#include "budget/BudgetGenerator.h"

#include "foundation/Calendar.h"
#include "foundation/Report.h"
#include "foundation/State.h"
#include "platform/desk/Printer.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString AheadPrefix = u"Looking Ahead - "_s;
const QString BudgetPrefix = u"Budget - "_s;

int LastDayOf(QDate date)
{
    // The leap year is asked of a year that is always 0, which counts as one: February has 29 days in every year.
    constexpr int february = 2;
    return date.month() == february ? 29 : State.MonthDays[std::size_t(date.month() - 1)];
}

/// Takes a run's amounts from the balance and collects its lines. Without a statement no label is ever made.
class Run
{
public:
    explicit Run(Statement *statement) : m_statement(statement) {}

    template <class Label>
    void Subtract(Currency amount, StatementRow::Kind kind, const Label &label)
    {
        Add(amount, kind, label);
        State.BudgetBalance -= amount;
    }
    template <class Label>
    void Add(Currency amount, StatementRow::Kind kind, const Label &label)
    {
        if (m_statement)
            m_statement->Rows.push_back({{label()}, {amount}, kind});
    }

private:
    Statement *m_statement;
};

void SubtractCreditors(Run &run, const DueWindow &window)
{
    for (int i = 1; i <= State.NumberOfCreditors; ++i) {
        const CreditorRecord &creditor = State.Creditors(i);
        if (FallsDue(creditor.CreditorDueDate, window, State.PayFrequency))
            run.Subtract(creditor.CreditorAmount, StatementRow::Ordinary,
                         [&] { return OrdinalDueLabel(creditor.CreditorName, creditor.CreditorDueDate); });
    }
}

void SubtractRegulars(Run &run)
{
    for (int i = 1; i <= State.NumberOfRegulars; ++i) {
        const RegularRecord &regular = State.Regulars(i);
        run.Subtract(regular.RegularAmount, StatementRow::Ordinary, [&] { return regular.RegularItem; });
    }
}

void SubtractExtras(Run &run, qint64 day)
{
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        const ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(i);
        if (payPeriod.PayPeriodDate.JulianDay() != day)
            continue;
        for (int item = 1; item <= ItemsOf(payPeriod); ++item) {
            const ExtraItemRecord &extra = payPeriod.ExtraItems(item);
            if (extra.ExtraItemAmount.IsNegative())
                run.Subtract(extra.ExtraItemAmount, StatementRow::Credit,
                             [&] { return u"CREDIT - "_s + extra.ExtraItem; });
            else
                run.Subtract(extra.ExtraItemAmount, StatementRow::Ordinary, [&] { return extra.ExtraItem; });
        }
        return; // a later record with the same date is ignored
    }
}

void SubtractProjects(Run &run, qint64 day)
{
    for (int i = 1; i <= State.NumberOfProjects; ++i) {
        const auto &dates = State.ProjectEntryDates(i);
        const auto &amounts = State.ProjectEntryAmounts(i);
        const int entries = EntriesOf(i);
        for (int entry = 1; entry <= entries; ++entry)
            if (dates(entry).JulianDay() == day)
                run.Subtract(amounts(entry), StatementRow::Ordinary, [&] { return State.ProjectNames(i); });
    }
}

/// Takes in what the last budget run passed forward.
void ReceiveCredit(Run &run)
{
    if (State.BudgetCredit == Currency::Zero)
        return;
    run.Add(-State.BudgetCredit, StatementRow::Credit, [] { return u"CREDIT - Budget"_s; });
    State.BudgetBalance += State.BudgetCredit;
    State.BudgetCredit = Currency::Zero;
}

/// Pays in advance for a deficit of the next period: both periods end on the same figure.
void LevelDeficitAhead(Run &run)
{
    if (State.NextPeriodShortfall == Currency::Zero)
        return;
    State.NextPeriodShortfall = State.NextPeriodShortfall.Abs();
    State.BudgetBalance = LevelledBalance(State.BudgetBalance, State.NextPeriodShortfall);
    State.NextPeriodShortfall += State.BudgetBalance;
    State.BudgetCredit = State.NextPeriodShortfall;
    run.Add(State.NextPeriodShortfall, StatementRow::Ordinary,
            [] { return u"Budget - "_s + FormatLongDate(State.NextPeriodDate); });
}

} // namespace

bool FallsDue(int dueDay, const DueWindow &window, qint16 payFrequency)
{
    if (payFrequency == Monthly)
        return true;
    if (window.EndDay > window.StartDay)
        return window.StartDay <= dueDay && dueDay < window.EndDay;
    // A due day beyond the month's last day satisfies neither half: that creditor waits for a month that has the day.
    if (window.EndDay < window.StartDay)
        return (window.StartDay <= dueDay && dueDay <= window.LastDayOfMonth) || dueDay < window.EndDay;
    return false;
}

Currency LevelledBalance(Currency balance, Currency shortfall)
{
    return Currency::FromDouble((balance - shortfall).ToDouble() / 2);
}

void CalculateBudget(Statement *statement)
{
    Run run(statement);
    const bool withFrame = statement && !State.ForecastMode;
    State.LookingAhead = !State.LookingAhead;
    State.PayPeriodDate = DateText(State.BudgetPeriodStart.Date());
    State.NextPeriodDate = NextPayPeriod(State.PayPeriodDate, State.PayFrequency);
    State.NextNextPeriodDate = NextPayPeriod(State.NextPeriodDate, State.PayFrequency);

    const QDate start = (State.LookingAhead ? State.NextPeriodDate : State.PayPeriodDate).Date();
    const QDate end = (State.LookingAhead ? State.NextNextPeriodDate : State.NextPeriodDate).Date();
    if (withFrame) {
        statement->Heading = (State.LookingAhead ? AheadPrefix : BudgetPrefix) + Format(start, DateFormat::Long);
        statement->Opening = PaycheckRow();
        statement->FirstRow = 2; // an empty row below the paycheck
    }

    State.BudgetBalance = State.PaycheckAmount;
    SubtractCreditors(run, {start.day(), end.day(), LastDayOf(start)});
    SubtractRegulars(run);
    SubtractExtras(run, start.toJulianDay());
    SubtractProjects(run, start.toJulianDay());

    if (State.LookingAhead) {
        State.NextPeriodShortfall = std::min(State.BudgetBalance, Currency::Zero);
    } else {
        ReceiveCredit(run);
        LevelDeficitAhead(run);
    }
    if (statement)
        statement->Rows.push_back({.TheKind = StatementRow::Rule});
    if (withFrame)
        statement->Rows.push_back({{State.BudgetBalance.IsNegative() ? u"DEFICIT"_s : u"SAVINGS"_s},
                                   {State.BudgetBalance},
                                   StatementRow::Result});
    if (!State.LookingAhead)
        State.BudgetPeriodStart = State.NextPeriodDate;
}

void GenerateBudget()
{
    const bool isShown = !State.ForecastMode && TheBudgetOutlet.IsConnected();
    if (!isShown && !State.PrintBudget) {
        CalculateBudget(nullptr);
        return;
    }
    Statement statement{.Name = u"Budget"_s};
    CalculateBudget(&statement);
    if (isShown)
        Q_EMIT TheBudgetOutlet.Ready(statement);
    if (!State.PrintBudget)
        return;
    PrintStatement(statement, AmountPage);
    if (!State.ForecastMode)
        ThePrinter.NewLine(); // the next run's page follows in the same document
}

bool CanBudget(int pairs)
{
    return IsDate(State.BudgetPeriodStart) &&
           PayPeriodsFollow(State.BudgetPeriodStart.Date(), State.PayFrequency, pairs + 1);
}

QString NextRunHeading()
{
    if (!CanBudget())
        return {};
    const QDate start = State.BudgetPeriodStart.Date();
    // Each run turns the look-ahead, so the next one is of the other kind than the last.
    return State.LookingAhead ? BudgetPrefix + Format(start, DateFormat::Long)
                              : AheadPrefix + Format(NextPayPeriod(start, State.PayFrequency), DateFormat::Long);
}

StatementRow PaycheckRow()
{
    return {{u"Paycheck Amount"_s}, {State.PaycheckAmount}};
}

void RestartAlternation()
{
    State.LookingAhead = false;
    State.BudgetCredit = {};
}

int MostBudgetRows()
{
    int extras = 0;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        extras = std::max(extras, ItemsOf(State.ExtraPayPeriods(i)));
    constexpr int paycheckAndGap = 2;
    constexpr int receivedAndPassed = 2;
    constexpr int gapAndResult = 2;
    return paycheckAndGap + State.NumberOfCreditors + State.NumberOfRegulars + extras + State.NumberOfProjects +
           receivedAndPassed + gapAndResult;
}

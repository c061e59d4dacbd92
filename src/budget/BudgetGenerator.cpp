#include "budget/BudgetGenerator.h"

#include "foundation/Calendar.h"
#include "foundation/Report.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "platform/values/Format.h"

namespace {

int LastDayOf(QDate date)
{
    // The leap year is asked of a year that is always 0, which counts as one: February has 29 days in every year.
    constexpr int february = 2;
    return date.month() == february ? 29 : State.MonthDays[std::size_t(date.month() - 1)];
}

/// Collects a run's lines and takes their amounts from the balance. Without a page no label is ever made.
class Run
{
public:
    explicit Run(BudgetPage *page) : m_page(page) {}

    template <class Label>
    void Subtract(Currency amount, BudgetLine::Kind kind, const Label &label)
    {
        Tell(amount, kind, label);
        State.BudgetBalance -= amount;
    }
    template <class Label>
    void Tell(Currency amount, BudgetLine::Kind kind, const Label &label)
    {
        if (m_page)
            m_page->Lines.push_back({label(), amount, kind});
    }

private:
    BudgetPage *m_page;
};

void SubtractCreditors(Run &run, const DueWindow &window)
{
    for (int i = 1; i <= State.NumberOfCreditors; ++i) {
        const CreditorRecord &creditor = State.Creditors(i);
        if (FallsDue(creditor.CreditorDueDate, window, State.PayFrequency))
            run.Subtract(creditor.CreditorAmount, BudgetLine::Ordinary,
                         [&] { return OrdinalDueLabel(creditor.CreditorName, creditor.CreditorDueDate); });
    }
}

void SubtractRegulars(Run &run)
{
    for (int i = 1; i <= State.NumberOfRegulars; ++i) {
        const RegularRecord &regular = State.Regulars(i);
        run.Subtract(regular.RegularAmount, BudgetLine::Ordinary, [&] { return regular.RegularItem; });
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
                run.Subtract(extra.ExtraItemAmount, BudgetLine::Credit,
                             [&] { return QStringLiteral("CREDIT - ") + extra.ExtraItem; });
            else
                run.Subtract(extra.ExtraItemAmount, BudgetLine::Ordinary, [&] { return extra.ExtraItem; });
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
                run.Subtract(amounts(entry), BudgetLine::Ordinary, [&] { return State.ProjectNames(i); });
    }
}

/// Takes in what the last budget run passed forward.
void ReceiveCredit(Run &run)
{
    if (State.BudgetCredit == Currency::Zero)
        return;
    run.Tell(-State.BudgetCredit, BudgetLine::Credit, [] { return QStringLiteral("CREDIT - Budget"); });
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
    run.Tell(State.NextPeriodShortfall, BudgetLine::Ordinary,
             [] { return QStringLiteral("Budget - ") + FormatLongDate(State.NextPeriodDate); });
}

/// In forecast mode the page has neither heading nor result.
void PrintBudgetPage(const BudgetPage &page, bool headingAndResult)
{
    ApplyPrintSettings();
    ThePrinter.DocumentName = QStringLiteral("Budget");
    ThePrinter.CentredLine(QString::fromLatin1(ReportTitle));
    ThePrinter.NewLine();
    if (headingAndResult) {
        ThePrinter.CentredLine(page.Heading);
        ThePrinter.NewLine();
        ThePrinter.AmountLine(QStringLiteral("Paycheck Amount"), FormatCurrency(State.PaycheckAmount));
        ThePrinter.RuleLine();
        ThePrinter.NewLine();
    }
    for (const BudgetLine &line : page.Lines)
        ThePrinter.AmountLine(line.Label, FormatCurrency(line.Amount));
    ThePrinter.RuleLine();
    ThePrinter.NewLine();
    if (headingAndResult) {
        ThePrinter.AmountLine(page.ResultLabel, FormatCurrency(page.Result));
        ThePrinter.NewLine();
    }
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

void CalculateBudget(BudgetPage *page)
{
    Run run(page);
    State.LookingAhead = !State.LookingAhead;
    State.PayPeriodDate = DateText(State.BudgetPeriodStart.Date());
    State.NextPeriodDate = NextPayPeriod(State.PayPeriodDate, State.PayFrequency);
    State.NextNextPeriodDate = NextPayPeriod(State.NextPeriodDate, State.PayFrequency);

    const QDate start = (State.LookingAhead ? State.NextPeriodDate : State.PayPeriodDate).Date();
    const QDate end = (State.LookingAhead ? State.NextNextPeriodDate : State.NextPeriodDate).Date();
    if (page)
        page->Heading = (State.LookingAhead ? QStringLiteral("Looking Ahead - ") : QStringLiteral("Budget - ")) +
                        Format(start, DateFormat::Long);

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
    if (page) {
        page->ResultLabel = State.BudgetBalance.IsNegative() ? QStringLiteral("DEFICIT") : QStringLiteral("SAVINGS");
        page->Result = State.BudgetBalance;
    }
    if (!State.LookingAhead)
        State.BudgetPeriodStart = State.NextPeriodDate;
}

void GenerateBudget()
{
    if (State.ForecastMode && !State.PrintBudget) {
        CalculateBudget(nullptr);
        return;
    }
    BudgetPage page;
    CalculateBudget(&page);
    if (!State.ForecastMode && ShowBudgetPage)
        ShowBudgetPage(page);
    if (State.PrintBudget)
        PrintBudgetPage(page, !State.ForecastMode);
}

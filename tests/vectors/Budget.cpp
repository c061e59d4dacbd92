#include "Cases.h"

#include "RecordingDesk.h"
#include "budget/BudgetGenerator.h"
#include "platform/values/Format.h"

namespace {

QJsonObject ToldRun(const BudgetPage &page)
{
    QJsonArray lines;
    for (const BudgetLine &line : page.Lines)
        lines += QJsonObject{{QStringLiteral("label"), line.Label},
                             {QStringLiteral("amount"), Told(line.Amount)},
                             {QStringLiteral("text"), FormatCurrency(line.Amount)},
                             {QStringLiteral("kind"), line.TheKind == BudgetLine::Credit ? QStringLiteral("credit")
                                                                                         : QStringLiteral("ordinary")}};
    return {{QStringLiteral("run"), State.LookingAhead ? QStringLiteral("look-ahead") : QStringLiteral("budget")},
            {QStringLiteral("heading"), page.Heading},
            {QStringLiteral("lines"), lines},
            {QStringLiteral("result"), QJsonObject{{QStringLiteral("label"), page.ResultLabel},
                                                   {QStringLiteral("amount"), Told(page.Result)},
                                                   {QStringLiteral("text"), FormatCurrency(page.Result)}}},
            {QStringLiteral("BudgetBalance"), Told(State.BudgetBalance)},
            {QStringLiteral("NextPeriodShortfall"), Told(State.NextPeriodShortfall)},
            {QStringLiteral("BudgetCredit"), Told(State.BudgetCredit)},
            {QStringLiteral("BudgetPeriodStart"), State.BudgetPeriodStart.Text()},
            {QStringLiteral("PayPeriodDate"), State.PayPeriodDate.Text()},
            {QStringLiteral("NextPeriodDate"), State.NextPeriodDate.Text()},
            {QStringLiteral("NextNextPeriodDate"), State.NextNextPeriodDate.Text()}};
}

} // namespace

/// The runs that a case tells, through all three outlets; the printed lines of the runs that tell them.
QJsonValue RunBudgetCase(const QJsonObject &input, const QJsonObject &expected, RecordingDesk &)
{
    TakeHousehold(input);
    State.BudgetPeriodStart = State.CurrentPayPeriod;
    BudgetPage shown;
    ShowBudgetPage = [&](const BudgetPage &page) { shown = page; };
    QJsonArray runs;
    const QJsonArray expectedRuns = expected[u"runs"].toArray();
    for (const QJsonValue run : expectedRuns) {
        const qsizetype printedBefore = ThePrinter.PendingLines().size();
        State.PrintBudget = run.toObject().contains(u"printed");
        GenerateBudget();
        QJsonObject told = ToldRun(shown);
        if (State.PrintBudget)
            told[QStringLiteral("printed")] = Told(ThePrinter.PendingLines().mid(printedBefore));
        runs += told;
    }
    ShowBudgetPage = nullptr;
    return QJsonObject{{QStringLiteral("runs"), runs}};
}

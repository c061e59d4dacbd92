#include "Cases.h"

#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/BudgetGenerator.h"
#include "platform/values/Format.h"

namespace {

QJsonObject ToldRun(const Statement &page)
{
    QJsonArray lines;
    for (const StatementRow &line : LinesOf(page))
        lines +=
            QJsonObject{{QStringLiteral("label"), LabelOf(line)},
                        {QStringLiteral("amount"), Told(AmountOf(line))},
                        {QStringLiteral("text"), FormatCurrency(AmountOf(line))},
                        {QStringLiteral("kind"),
                         line.TheKind == StatementRow::Credit ? QStringLiteral("credit") : QStringLiteral("ordinary")}};
    return {{QStringLiteral("run"), State.LookingAhead ? QStringLiteral("look-ahead") : QStringLiteral("budget")},
            {QStringLiteral("heading"), page.Heading},
            {QStringLiteral("lines"), lines},
            {QStringLiteral("result"), QJsonObject{{QStringLiteral("label"), ResultLabelOf(page)},
                                                   {QStringLiteral("amount"), Told(ResultOf(page))},
                                                   {QStringLiteral("text"), FormatCurrency(ResultOf(page))}}},
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
    Statement shown;
    QObject window;
    QObject::connect(&TheBudgetOutlet, &StatementOutlet::Ready, &window, [&](const Statement &page) { shown = page; });
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
    return QJsonObject{{QStringLiteral("runs"), runs}};
}

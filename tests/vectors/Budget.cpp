// Budget runs, as the budget window makes and shows them.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/BudgetGenerator.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Runs = 16; ///< eight pairs
const QString Window = WindowName::frmBudget;

/// Texts and colours are the window's, the exact amounts those of the statement that it was given.
QJsonObject ToldRun(const Statement &budget)
{
    const Grid &grid = GridIn(Window, u"grdBudget"_s);
    QJsonArray lines;
    int row = budget.FirstRow;
    for (const StatementRow &line : LinesOf(budget)) {
        lines += QJsonObject{{u"label"_s, grid.Text(row, 0)},
                             {u"amount"_s, Told(AmountOf(line))},
                             {u"text"_s, grid.Text(row, 1)},
                             {u"kind"_s, grid.Colour(row, 1) == GridColour::LightBlue ? u"credit"_s : u"ordinary"_s}};
        ++row;
    }
    return {{u"run"_s, State.LookingAhead ? u"look-ahead"_s : u"budget"_s},
            {u"heading"_s, TitleOf(Window)},
            {u"lines"_s, lines},
            {u"result"_s, QJsonObject{{u"label"_s, grid.Text(grid.ResultRow(), 0)},
                                      {u"amount"_s, Told(ResultOf(budget))},
                                      {u"text"_s, grid.Text(grid.ResultRow(), 1)}}},
            {u"BudgetBalance"_s, Told(State.BudgetBalance)},
            {u"NextPeriodShortfall"_s, Told(State.NextPeriodShortfall)},
            {u"BudgetCredit"_s, Told(State.BudgetCredit)},
            {u"BudgetPeriodStart"_s, State.BudgetPeriodStart.Text()},
            {u"PayPeriodDate"_s, State.PayPeriodDate.Text()},
            {u"NextPeriodDate"_s, State.NextPeriodDate.Text()},
            {u"NextNextPeriodDate"_s, State.NextNextPeriodDate.Text()}};
}

} // namespace

QJsonValue RunBudgetCase(const QJsonObject &input, RecordingDesk &)
{
    TakeHousehold(input);
    Open(Window);
    SwitchOn(Window, u"pbPrintOn"_s);
    Statement budget;
    QObject listener;
    QObject::connect(&TheBudgetOutlet, &StatementOutlet::Ready, &listener, [&](const Statement &run) { budget = run; });
    QJsonArray runs;
    for (int run = 0; run < Runs; ++run) {
        const qsizetype printedBefore = ThePrinter.PendingLines().size();
        Press(Window, u"cmdBudget"_s);
        QJsonObject told = ToldRun(budget);
        told[u"printed"_s] = Told(ThePrinter.PendingLines().mid(printedBefore));
        runs += told;
    }
    return QJsonObject{{u"runs"_s, runs}};
}

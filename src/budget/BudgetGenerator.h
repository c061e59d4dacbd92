// The budget of one pay period: one paycheck, less every commitment that falls into the period. The generator works in
// pairs of runs, a look-ahead run of the following period and a budget run of the current one; a deficit found ahead is
// levelled with the current period by passing money forward.
#pragma once

#include "foundation/Statement.h"

/// The calculation of one run on the shared state. It takes State.BudgetPeriodStart, turns State.LookingAhead and
/// leaves its figures in State. With a statement it also fills that with its lines, and unless State.ForecastMode with
/// heading, paycheck and result; without one it does no text work.
/// Raises error 13 for a stored date that is none, error 6 for amounts beyond the range of Currency.
void CalculateBudget(Statement *statement);

/// What every budget starts from.
StatementRow PaycheckRow();

/// Whether the calendar has the pay periods that so many pairs of runs need. A frequency that was never set or a pay
/// period typed at the calendar's end is a slip that a window refuses; the runs themselves raise an error.
bool CanBudget(int pairs = 1);

/// "Looking Ahead - January 13, 2004" or "Budget - December 30, 2003": what the next run will be of; empty where there
/// is none.
QString NextRunHeading();

/// One run with its outlets: the budget window unless State.ForecastMode, the printer if State.PrintBudget.
void GenerateBudget();

/// The next run is a look-ahead run again, and what the last budget run has passed forward is lost: what coming to a
/// window that works with the generator does, and leaving it.
void RestartAlternation();

/// The way of each run to the budget window.
inline StatementOutlet TheBudgetOutlet;

/// How many rows the longest budget of this household can take in a grid.
int MostBudgetRows();

/// The window of days in which a commitment falls due. Only days are compared, no months and no years.
struct DueWindow {
    int StartDay = 0;       ///< day of the month on which the pay period starts
    int EndDay = 0;         ///< day of the next pay date, which no longer belongs to the period
    int LastDayOfMonth = 0; ///< of the month in which the period starts; February counts 29
};

/// Where a due day is placed: whether a creditor due on that day of every month is paid in the window.
bool FallsDue(int dueDay, const DueWindow &window, qint16 payFrequency);

/// What both periods end on when this one pays for a deficit ahead.
/// balance: this period's result. shortfall: the next one's deficit, not negative. Both are money.
/// The difference is exact; its half is taken in double and rounded once, ties to even.
/// Raises error 6 (Overflow) outside the range of Currency.
Currency LevelledBalance(Currency balance, Currency shortfall);

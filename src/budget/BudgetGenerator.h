// The budget of one pay period: one paycheck, less every commitment that falls into the period. The generator works in
// pairs of runs, a look-ahead run of the following period and a budget run of the current one; a deficit found ahead is
// levelled with the current period by passing money forward.
#pragma once

#include "platform/values/Currency.h"

#include <QString>
#include <functional>
#include <vector>

/// One line of a budget. A credit is shown in the credit colour.
struct BudgetLine {
    enum Kind { Ordinary, Credit };
    QString Label;
    Currency Amount;
    Kind TheKind = Ordinary;
    bool operator==(const BudgetLine &) const = default;
};

/// What a run shows and prints.
struct BudgetPage {
    QString Heading;
    std::vector<BudgetLine> Lines;
    QString ResultLabel; ///< "SAVINGS" or "DEFICIT"
    Currency Result;
};

/// The calculation of one run on the shared state. It takes State.BudgetPeriodStart, turns State.LookingAhead and
/// leaves its figures in State. With a page it also tells its lines; without one it does no text work.
/// Raises error 13 for a stored date that is none, error 6 for amounts beyond the range of Currency.
void CalculateBudget(BudgetPage *page);

/// One run with its outlets: the budget window unless State.ForecastMode, the printer if State.PrintBudget.
void GenerateBudget();

/// The budget window's outlet. Empty while the window is not loaded.
inline std::function<void(const BudgetPage &)> ShowBudgetPage;

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

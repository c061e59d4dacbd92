// The monthly statement: what a month costs, compared with what a month brings in.
#pragma once

#include "foundation/Statement.h"

#include <optional>

/// The statement's own state: a pay frequency that is none leaves both at their last value. A test puts it back with
/// one assignment.
struct OverheadState {
    Currency MonthlyNetIncome;     ///< the paycheck converted to a month
    Currency RegularMonthlyAmount; ///< the regular item under work, converted to a month
};
inline OverheadState Overhead;

/// An amount per pay period as an amount per month: times 52, 26 or 24, divided by 12; monthly unchanged. The
/// multiplication is exact, the division in double, rounded once to the ten-thousandth, ties to even. Nothing for any
/// other frequency. Raises error 6 beyond the range of Currency.
std::optional<Currency> MonthlyAmount(Currency amount, qint16 payFrequency);

/// Computes the statement from the shared state and leaves its rest in State.BudgetBalance. Creditors are monthly as
/// they stand; each regular item is converted and rounded by itself.
Statement CalculateOverhead();

/// How many rows the longest statement of this household can take in a grid.
int MostOverheadRows();

/// Prints the same figures.
void PrintOverhead();

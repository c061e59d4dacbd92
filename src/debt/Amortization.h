// Every payment of the loan that was calculated last, split into principal and interest, with the totals of each
// calendar year and of the whole loan.
#pragma once

#include "debt/DebtState.h"
#include "foundation/Statement.h"

/// Adds the rows of the loan in Debt to a statement, each as soon as it is computed, so that an error leaves there
/// what came before it. Principal and interest are rounded to cents, half up, each by itself; the payment keeps its
/// four decimals in the totals. So a row may miss the payment by a cent, and the principal the loan by some cents.
/// What they add up to is of the kind Total. Debt.SelectedStartMonth is the month of the first payment and 0
/// afterwards. Raises error 6 beyond 32,767 rows or the range of an amount, and what PPmt raises.
void Amortize(Statement &table);

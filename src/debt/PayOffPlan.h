// The pay off plan: in which order to attack some debts and what to pay each month. The debt that is finished first at
// its own monthly amount comes first, and the amounts of finished debts are rolled into the next one. Nothing is chosen
// by interest rate, and never is more paid in all than the monthly amounts come to.
#pragma once

#include "debt/DebtState.h"

#include <QObject>
#include <QStringList>
#include <memory>
#include <vector>

/// A month of a creditor, or the empty row that parts the creditor from the next one. Amounts are exact to the
/// ten-thousandth and never rounded to cents.
struct PayOffRow {
    qint16 MonthNumber = 0; ///< counted from the creditor's own first row; 0 in the empty row
    QDate Date = {};
    Currency PreviousBalance = {};
    Currency Interest = {};
    Currency NewBalance = {};
    Currency Payment = {};
    Currency NextBalance = {};
    bool operator==(const PayOffRow &) const = default;
};

/// A line about a creditor.
struct PayOffLine {
    QString Text = {};
    bool IsPrinted = true; ///< what is transferred is for the screen alone
    bool operator==(const PayOffLine &) const = default;
};

struct PayOffPlan {
    std::vector<PayOffRow> Rows; ///< for the screen alone
    std::vector<PayOffLine> Lines;
};

/// The way of each plan to its window.
class PayOffOutlet : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    void Ready(const std::shared_ptr<const PayOffPlan> &plan);
};
inline PayOffOutlet ThePayOffOutlet;

/// The figures of a creditor as they are typed.
struct PayOffEntry {
    QString Name;
    QString Balance;              ///< money
    QString AnnualPercentageRate; ///< per cent: "18"
    QString MonthlyAmount;        ///< money
    QString DueDate;
};

/// Makes room for that many creditors, rounded to the nearest whole number, halves to even, and drops those of before.
/// Error 13 for what is no number, 6 beyond 16 bits, 9 below 1; then those of before stay.
void RedimPayOffCreditors(const QString &count);

/// Puts a creditor's figures into the arrays and its rate, in per cent a year, into LoanAnnualRate. Error 9 for an
/// index outside the arrays, 13 for what is no number or no date, 6 for what is too large.
void StorePayOffCreditor(int creditor, const PayOffEntry &entry);

/// Whether the first month's payment leaves less than the balance; a balance that stays the same never ends. The
/// figures of that month stand in the state afterwards. Error 6 beyond the range of Currency.
bool FallsInFirstMonth(int creditor);

/// Tells each creditor the number of months that it takes alone, the closing one included; 2 at least. Errors: 6 beyond
/// 32,767 months or the range of Currency, 5 beyond the year 9999.
void CalculateMonthsToPay();

/// Sorts the creditors by their months, those with equal months in their order of entry.
void SortPayOffCreditors();

/// Computes the plan, prints its lines if State.PrintPayOffPlan, and shows it. Interest is charged on a month's
/// previous balance before the payment, also in the first month, at one twelfth of the yearly rate whatever the month's
/// length; it is rounded to the ten-thousandth, ties to even, and everything else is exact. Errors: 6 beyond 32,767
/// rows or the range of Currency, 5 beyond the year 9999. What was built until then is shown all the same, and what was
/// printed stays in the open document until EndPrintedPlan, with which the next plan begins.
void BuildPayOffPlan();

/// Sends off what a plan that failed has left in the open document, so that it never stands before another print. Pages
/// of another report are left alone.
void EndPrintedPlan();

/// A row as the cells of a grid.
QStringList CellsOf(const PayOffRow &row);

// The savings forecast: the budget run silently over many pay periods ahead, what each would save, and the running
// total.
#pragma once

#include "foundation/State.h"
#include "foundation/Statement.h"

#include <QObject>

/// A row of the forecast, exact to the ten-thousandth.
struct ForecastRow {
    QDate Day;            ///< the pay period; invalid where no forecast has come to yet
    Currency Savings;     ///< what its budget run ends on
    Currency Accumulated; ///< the running total up to this row
    bool operator==(const ForecastRow &) const = default;
};

/// The forecast's own state: it keeps its rows after a run. A test puts it back with one assignment.
struct ForecastState {
    OneBased<ForecastRow> Rows = OneBased<ForecastRow>::OfSize(MostForecastPeriods);
    Currency AccumulatedSavings; ///< the running total while the forecast runs
    qint16 ForecastPickRow = 0;  ///< the row picked as a project's completion date
    Currency ForecastPickAccumulated;

    /// A row as texts, made when they are asked for; empty where no forecast has come to yet. Projects work from these
    /// texts, so from amounts of two decimals. Error 9 outside 1 to MostForecastPeriods.
    QString ForecastDates(int row) const; ///< "mmmm d, yyyy"
    QString ForecastSavingsAmounts(int row) const;
    QString ForecastAccumulated(int row) const;
};
inline ForecastState Forecast;

/// The way of each forecast to its window.
inline StatementOutlet TheForecastOutlet;

/// Runs State.ForecastPeriods pairs of budget runs from State.BudgetPeriodStart on, which is left behind the last row,
/// prints the forecast if State.PrintSavingsForecast, shows it, and only then ends the document. The pointer is the
/// normal one again when the rows are computed. Raises error 9 beyond 1000 rows, else what GenerateBudget raises.
void ForecastSavings();

/// The headings of its columns.
StatementRow ForecastHeadings();

/// The rows of the last run as they are shown, with amounts of two decimals; so an amount is red when its text is below
/// 0.
Statement ForecastStatement();

/// The pick of a row as a project's completion date: leaves the row and what is accumulated by then, the text of its
/// cell, in the forecast's state and ends the picking. Returns the text of the date; a row below the last forecast row
/// has none, whatever a longer forecast has left there before. Error 9 for the heading.
QString PickForecastRow(int row, const QString &accumulated);

/// Where the projects' window hears of the date that was picked.
class CompletionDateOutlet : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    void Picked(const QString &date);
};
inline CompletionDateOutlet TheCompletionDateOutlet;

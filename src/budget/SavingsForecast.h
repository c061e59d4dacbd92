// The savings forecast: the budget run silently over many pay periods ahead, what each would save, and the running
// total.
#pragma once

#include "foundation/Report.h"
#include "foundation/State.h"
#include "platform/values/Currency.h"
#include "platform/values/OneBased.h"

#include <QObject>

/// The forecast's own state: it keeps its rows after a run, as texts with two decimals, and projects work from these
/// texts. A test puts it back with one assignment.
struct ForecastState {
    OneBased<QString> ForecastDates = OneBased<QString>::OfSize(MostForecastPeriods); ///< "mmmm d, yyyy"
    OneBased<QString> ForecastSavingsAmounts = OneBased<QString>::OfSize(MostForecastPeriods);
    OneBased<QString> ForecastAccumulated = OneBased<QString>::OfSize(MostForecastPeriods);
    Currency AccumulatedSavings; ///< the running total while the forecast runs
    qint16 ForecastPickRow = 0;  ///< the row picked as a project's completion date
    Currency ForecastPickAccumulated;
};
inline ForecastState Forecast;

/// Runs State.ForecastPeriods pairs of budget runs from State.BudgetPeriodStart on, which is left behind the last row,
/// and prints the forecast if State.PrintSavingsForecast. The pointer is the normal one again when the rows are
/// computed. Raises error 9 beyond 1000 rows, else what GenerateBudget raises.
void ForecastSavings();

/// The rows of the last run as they are shown: an amount is red when its text is below 0.
std::vector<DatedRow> ForecastRows();

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

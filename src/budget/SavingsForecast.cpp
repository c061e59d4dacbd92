#include "budget/SavingsForecast.h"

#include "budget/BudgetGenerator.h"
#include "foundation/State.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

void ForecastSavings()
{
    State.ForecastMode = true;
    Forecast.AccumulatedSavings = {};
    for (int row = 1; row <= State.ForecastPeriods; ++row) {
        GenerateBudget(); // looks ahead
        GenerateBudget(); // budgets the row's pay period
        Forecast.ForecastDates(row) = Format(State.PayPeriodDate.Date(), DateFormat::Long);
        Forecast.ForecastSavingsAmounts(row) = FormatCurrency(State.BudgetBalance);
        Forecast.AccumulatedSavings += State.BudgetBalance;
        Forecast.ForecastAccumulated(row) = FormatCurrency(Forecast.AccumulatedSavings);
    }
    TheDesk.Hourglass(false); // the long part is done
    if (State.PrintSavingsForecast) {
        PrintReportTitle(QStringLiteral("SAVINGS FORECAST"), QStringLiteral("Savings Forecast"));
        PrintDatedTable(QStringLiteral("Pay Period"), QStringLiteral("Savings"), QStringLiteral("Accumulated"),
                        ForecastRows());
    }
    State.ForecastMode = false;
    State.PrintSavingsForecast = false;
    ThePrinter.EndDoc(); // whether or not anything was printed
}

std::vector<DatedRow> ForecastRows()
{
    std::vector<DatedRow> rows;
    for (int row = 1; row <= State.ForecastPeriods; ++row) {
        const QString &savings = Forecast.ForecastSavingsAmounts(row);
        const QString &accumulated = Forecast.ForecastAccumulated(row);
        rows.push_back({Forecast.ForecastDates(row), savings, accumulated, ToCurrency(savings).IsNegative(),
                        ToCurrency(accumulated).IsNegative()});
    }
    return rows;
}

QString PickForecastRow(int row, const QString &accumulated)
{
    const QString date = row > State.ForecastPeriods ? QString() : QString(Forecast.ForecastDates(row));
    Forecast.ForecastPickRow = ToInteger(row);
    Forecast.ForecastPickAccumulated = accumulated.isEmpty() ? Currency::Zero : ToCurrency(accumulated);
    State.ProjectDateFromForecast = false;
    return date;
}

#include "budget/SavingsForecast.h"

#include "budget/BudgetGenerator.h"
#include "foundation/Report.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The text of a row's amount, none where no forecast has come to yet.
QString AmountText(const ForecastRow &row, Currency amount)
{
    return row.Day.isValid() ? FormatCurrency(amount) : QString();
}

} // namespace

QString ForecastState::ForecastDates(int row) const
{
    const QDate day = Rows(row).Day;
    return day.isValid() ? Format(day, DateFormat::Long) : QString();
}

QString ForecastState::ForecastSavingsAmounts(int row) const
{
    return AmountText(Rows(row), Rows(row).Savings);
}

QString ForecastState::ForecastAccumulated(int row) const
{
    return AmountText(Rows(row), Rows(row).Accumulated);
}

void ForecastSavings()
{
    State.ForecastMode = true;
    Forecast.AccumulatedSavings = {};
    for (int row = 1; row <= State.ForecastPeriods; ++row) {
        GenerateBudget(); // looks ahead
        GenerateBudget(); // budgets the row's pay period
        Forecast.AccumulatedSavings += State.BudgetBalance;
        Forecast.Rows(row) = {State.PayPeriodDate.Date(), State.BudgetBalance, Forecast.AccumulatedSavings};
    }
    TheDesk.Hourglass(false); // the long part is done
    if (State.PrintSavingsForecast || TheForecastOutlet.IsConnected()) {
        const Statement forecast = ForecastStatement();
        if (State.PrintSavingsForecast)
            PrintStatement(forecast, TablePage);
        Q_EMIT TheForecastOutlet.Ready(forecast);
    }
    State.ForecastMode = false;
    State.PrintSavingsForecast = false;
    ThePrinter.EndDoc(); // whether or not anything was printed
}

StatementRow ForecastHeadings()
{
    return {{u"Pay Period"_s, u"Savings"_s, u"Accumulated"_s}};
}

Statement ForecastStatement()
{
    Statement statement{.Heading = u"SAVINGS FORECAST"_s,
                        .Opening = ForecastHeadings(),
                        .Numbered = true,
                        .Name = u"Savings Forecast"_s};
    for (int number = 1; number <= State.ForecastPeriods; ++number) {
        const ForecastRow &row = Forecast.Rows(number);
        statement.Rows.push_back(
            {{Forecast.ForecastDates(number)}, {AsShown(row.Savings), AsShown(row.Accumulated)}, StatementRow::Signed});
    }
    return statement;
}

QString PickForecastRow(int row, const QString &accumulated)
{
    QString date = row > State.ForecastPeriods ? QString() : Forecast.ForecastDates(row);
    Forecast.ForecastPickRow = ToInteger(row);
    Forecast.ForecastPickAccumulated = accumulated.isEmpty() ? Currency::Zero : ToCurrency(accumulated);
    State.ProjectDateFromForecast = false;
    return date;
}

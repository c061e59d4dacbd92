// Forecast, monthly overhead and the scan of pay periods.
#include "Cases.h"

#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/MonthlyOverhead.h"
#include "budget/SavingsForecast.h"
#include "budget/ScanPayPeriods.h"
#include "foundation/BudgetFiles.h"
#include "foundation/State.h"
#include "platform/controls/Grid.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"

#include "Windows.h"

namespace {

QJsonArray ToldForecast()
{
    QJsonArray told;
    const Statement shown = ForecastStatement();
    for (int i = 1; i <= State.ForecastPeriods; ++i) {
        const ForecastRow &row = Forecast.Rows(i);
        const StatementRow &line = shown.Rows[std::size_t(i - 1)];
        told += QJsonObject{{QStringLiteral("number"), i},
                            {QStringLiteral("date"), Format(row.Day, DateFormat::Short)},
                            {QStringLiteral("date_text"), LabelOf(line)},
                            {QStringLiteral("savings"), Told(row.Savings)},
                            {QStringLiteral("savings_text"), FormatCurrency(line.Amounts[0])},
                            {QStringLiteral("savings_red"), line.Amounts[0] < Currency()},
                            {QStringLiteral("accumulated"), Told(row.Accumulated)},
                            {QStringLiteral("accumulated_text"), FormatCurrency(line.Amounts[1])},
                            {QStringLiteral("accumulated_red"), line.Amounts[1] < Currency()}};
    }
    return told;
}

} // namespace

QJsonValue RunForecastCase(const QJsonObject &input, const QJsonObject &expected, RecordingDesk &desk)
{
    TakeHousehold(input);
    Forecast = {};
    State.BudgetPeriodStart = State.CurrentPayPeriod;
    State.PrintSavingsForecast = expected.contains(u"printed");
    ForecastSavings();
    QJsonObject told{{QStringLiteral("rows"), ToldForecast()}};
    if (expected.contains(u"printed"))
        told[QStringLiteral("printed")] = Told(desk.Printed.value(0).Lines);
    if (expected.contains(u"rows_when_focus_returns")) {
        State.LookingAhead = false;
        State.BudgetCredit = {};
        ForecastSavings();
        told[QStringLiteral("rows_when_focus_returns")] = ToldForecast();
    }
    return told;
}

QJsonValue RunOverheadCase(const QJsonObject &input, const QJsonObject &expected, RecordingDesk &desk)
{
    TakeHousehold(input);
    Overhead = {};
    const Statement statement = CalculateOverhead();
    QJsonArray lines;
    for (const StatementRow &line : LinesOf(statement))
        lines += QJsonObject{{QStringLiteral("label"), LabelOf(line)},
                             {QStringLiteral("amount"), Told(AmountOf(line))},
                             {QStringLiteral("text"), FormatCurrency(AmountOf(line))}};
    const Currency total = AmountOf(RowOf(statement, StatementRow::Total));
    PrintOverhead();

    // The grid is read off the window itself, as many rows as the case tells.
    RegisterWindows();
    TheWindows.Show(QStringLiteral("frmMonthlyOverhead"));
    const auto &shown = TheWindows.ControlOf<Grid>(QStringLiteral("frmMonthlyOverhead"), QStringLiteral("grdOverhead"));
    QJsonArray grid;
    for (int row = 0; row < shown.Rows(); ++row)
        if (row < expected[u"grid"].toArray().size() || !(shown.Text(row, 0) + shown.Text(row, 1)).isEmpty())
            grid += QJsonArray{shown.Text(row, 0), shown.Text(row, 1)};
    TheWindows.Reset();

    return QJsonObject{
        {QStringLiteral("MonthlyNetIncome"), Told(AmountOf(statement.Opening))},
        {QStringLiteral("MonthlyNetIncome_text"), FormatCurrency(AmountOf(statement.Opening))},
        {QStringLiteral("lines"), lines},
        {QStringLiteral("TotalOverhead"), Told(total)},
        {QStringLiteral("TotalOverhead_text"), FormatCurrency(total)},
        {QStringLiteral("result"), QJsonObject{{QStringLiteral("label"), ResultLabelOf(statement)},
                                               {QStringLiteral("amount"), Told(ResultOf(statement))},
                                               {QStringLiteral("text"), FormatCurrency(ResultOf(statement))}}},
        {QStringLiteral("grid"), grid},
        {QStringLiteral("printed"), Told(desk.Printed.value(0).Lines)}};
}

/// A pick in the list that the extras window has opened.
QJsonValue RunScanCase(const QJsonObject &input, const QJsonObject &, RecordingDesk &desk)
{
    TakeHousehold(input);
    HoldDatesAsLoaded();
    Scan = {};
    desk.WriteFile(QStringLiteral("extra.txt"), "0\r\n");
    FillScanPayPeriods();
    QStringList list;
    for (const DateText &date : Scan.ScanDates)
        list += FormatLongDate(date);
    Scan.ScanPickedDate = Format(Scan.ScanDates[std::size_t(input[u"picked_row"].toInt())], DateFormat::Dashes);
    NewExtraPayPeriod();
    SortExtraPayPeriods();
    SavePayPeriods();
    InputPayPeriods();
    QStringList payPeriods;
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        payPeriods += FormatLongDate(State.ExtraPayPeriods(i).PayPeriodDate);
    return QJsonObject{{QStringLiteral("list"), Told(list)},
                       {QStringLiteral("ScanPickedDate"), Scan.ScanPickedDate},
                       {QStringLiteral("ExtraPayPeriods"), ToldExtras(DateFormat::Short)},
                       {QStringLiteral("pay_period_list"), Told(payPeriods)},
                       {QStringLiteral("extra.txt"), QString::fromUtf8(desk.ReadFile(QStringLiteral("extra.txt")))}};
}

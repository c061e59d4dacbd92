// Forecast, monthly overhead and the scan of pay periods.
#include "Cases.h"

#include "RecordingDesk.h"
#include "budget/MonthlyOverhead.h"
#include "budget/SavingsForecast.h"
#include "budget/ScanPayPeriods.h"
#include "foundation/BudgetFiles.h"
#include "foundation/State.h"
#include "platform/controls/Grid.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include "Windows.h"

namespace {

QJsonArray ToldForecast(const QJsonArray &expected)
{
    QJsonArray told;
    const std::vector<DatedRow> rows = ForecastRows();
    Currency accumulated;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const DatedRow &row = rows[i];
        // The exact amounts behind the texts are not kept; those that the text cannot tell come from the running state.
        const QJsonValue wanted = i < std::size_t(expected.size()) ? expected[qsizetype(i)] : QJsonValue();
        const auto exact = [](const QString &text, const QJsonValue &amount) {
            const Currency given = Currency::FromTenThousandths(amount.toInteger());
            return FormatCurrency(given) == text ? Told(given) : QJsonValue(text);
        };
        told += QJsonObject{{QStringLiteral("number"), int(i) + 1},
                            {QStringLiteral("date"), Format(row.Date, DateFormat::Short)},
                            {QStringLiteral("date_text"), row.Date},
                            {QStringLiteral("savings"), exact(row.Amount, wanted[u"savings"])},
                            {QStringLiteral("savings_text"), row.Amount},
                            {QStringLiteral("savings_red"), row.AmountIsRed},
                            {QStringLiteral("accumulated"), exact(row.Accumulated, wanted[u"accumulated"])},
                            {QStringLiteral("accumulated_text"), row.Accumulated},
                            {QStringLiteral("accumulated_red"), row.AccumulatedIsRed}};
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
    QJsonObject told{{QStringLiteral("rows"), ToldForecast(expected[u"rows"].toArray())}};
    if (expected.contains(u"printed"))
        told[QStringLiteral("printed")] = Told(desk.Printed.value(0).Lines);
    if (expected.contains(u"rows_when_focus_returns")) {
        State.LookingAhead = false;
        State.BudgetCredit = {};
        ForecastSavings();
        told[QStringLiteral("rows_when_focus_returns")] = ToldForecast(expected[u"rows_when_focus_returns"].toArray());
    }
    return told;
}

QJsonValue RunOverheadCase(const QJsonObject &input, const QJsonObject &expected, RecordingDesk &desk)
{
    TakeHousehold(input);
    Overhead = {};
    const OverheadStatement statement = CalculateOverhead();
    QJsonArray lines;
    for (const BudgetLine &line : statement.Lines)
        lines += QJsonObject{{QStringLiteral("label"), line.Label},
                             {QStringLiteral("amount"), Told(line.Amount)},
                             {QStringLiteral("text"), FormatCurrency(line.Amount)}};
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
        {QStringLiteral("MonthlyNetIncome"), Told(statement.MonthlyNetIncome)},
        {QStringLiteral("MonthlyNetIncome_text"), FormatCurrency(statement.MonthlyNetIncome)},
        {QStringLiteral("lines"), lines},
        {QStringLiteral("TotalOverhead"), Told(statement.TotalOverhead)},
        {QStringLiteral("TotalOverhead_text"), FormatCurrency(statement.TotalOverhead)},
        {QStringLiteral("result"), QJsonObject{{QStringLiteral("label"), statement.ResultLabel},
                                               {QStringLiteral("amount"), Told(statement.Result)},
                                               {QStringLiteral("text"), FormatCurrency(statement.Result)}}},
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

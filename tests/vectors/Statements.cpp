// Forecast, monthly overhead and the scan of pay periods, as their windows show them.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "StatementOf.h"
#include "budget/MonthlyOverhead.h"
#include "budget/SavingsForecast.h"
#include "budget/ScanPayPeriods.h"
#include "foundation/BudgetFiles.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/controls/ListBox.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Texts and colours are the window's, days and exact amounts those of the calculation.
QJsonArray ToldForecast()
{
    const Grid &grid = GridIn(WindowName::frmSavingsForecast, u"grdSavingsForecast"_s);
    QJsonArray told;
    for (int row = 1; row <= State.ForecastPeriods; ++row) {
        const ForecastRow &exact = Forecast.Rows(row);
        told += QJsonObject{{u"number"_s, grid.Text(row, 0).toInt()},
                            {u"date"_s, Format(exact.Day, DateFormat::Short)},
                            {u"date_text"_s, grid.Text(row, 1)},
                            {u"savings"_s, Told(exact.Savings)},
                            {u"savings_text"_s, grid.Text(row, 2)},
                            {u"savings_red"_s, grid.Colour(row, 2) == GridColour::LightRed},
                            {u"accumulated"_s, Told(exact.Accumulated)},
                            {u"accumulated_text"_s, grid.Text(row, 3)},
                            {u"accumulated_red"_s, grid.Colour(row, 3) == GridColour::LightRed}};
    }
    return told;
}

/// The rows of a grid, the heading included. Of empty rows at its end one is told: taking back a colour below the last
/// row makes another one.
QJsonArray ToldGrid(const Grid &grid)
{
    const QJsonArray empty{QString(), QString()};
    QJsonArray rows;
    for (int row = 0; row < grid.Rows(); ++row)
        rows += QJsonArray{grid.Text(row, 0), grid.Text(row, 1)};
    while (rows.size() > 1 && rows.last() == empty && rows[rows.size() - 2] == empty)
        rows.removeLast();
    return rows;
}

} // namespace

QJsonValue RunForecastCase(const QJsonObject &input, RecordingDesk &desk)
{
    const QString elsewhere = u"frmElsewhere"_s;
    TheWindows.Register(elsewhere, [] { return new Form; });
    TakeHousehold(input);
    State.PrintSavingsForecast = true;
    Open(WindowName::frmSavingsForecast);
    QJsonObject told{{u"rows"_s, ToldForecast()}, {u"printed"_s, Told(desk.TakePrinted().Lines)}};
    Open(elsewhere);
    Open(WindowName::frmSavingsForecast);
    told[u"rows_when_focus_returns"_s] = ToldForecast();
    return told;
}

QJsonValue RunOverheadCase(const QJsonObject &input, RecordingDesk &desk)
{
    TakeHousehold(input);
    Open(WindowName::frmMonthlyOverhead);
    Press(WindowName::frmMonthlyOverhead, u"cmdPrint"_s);
    const Grid &grid = GridIn(WindowName::frmMonthlyOverhead, u"grdOverhead"_s);
    const Statement overhead = CalculateOverhead();
    QJsonArray lines;
    int row = overhead.FirstRow;
    for (const StatementRow &line : LinesOf(overhead)) {
        lines += QJsonObject{
            {u"label"_s, grid.Text(row, 0)}, {u"amount"_s, Told(AmountOf(line))}, {u"text"_s, grid.Text(row, 1)}};
        ++row;
    }
    const StatementRow total = RowOf(overhead, StatementRow::Total);
    const int result = grid.ResultRow();
    return QJsonObject{{u"MonthlyNetIncome"_s, Told(AmountOf(overhead.Opening))},
                       {u"MonthlyNetIncome_text"_s, grid.Text(0, 1)},
                       {u"lines"_s, lines},
                       {u"TotalOverhead"_s, Told(AmountOf(total))},
                       {u"TotalOverhead_text"_s, FormatCurrency(AmountOf(total))},
                       {u"result"_s, QJsonObject{{u"label"_s, grid.Text(result, 0)},
                                                 {u"amount"_s, Told(ResultOf(overhead))},
                                                 {u"text"_s, grid.Text(result, 1)}}},
                       {u"grid"_s, ToldGrid(grid)},
                       {u"printed"_s, Told(desk.TakePrinted().Lines)}};
}

/// A pick in the list that the extras window has opened.
QJsonValue RunScanCase(const QJsonObject &input, RecordingDesk &desk)
{
    TakeHousehold(input);
    HoldDatesAsLoaded();
    desk.WriteFile(u"extra.txt"_s, "0\r\n");
    SavePayPeriods();
    Open(WindowName::frmExtras);
    Press(WindowName::frmExtras, u"cmdListPayPeriods"_s);
    Press(WindowName::frmExtras, u"cmdAddPayPeriod"_s);
    const QStringList list = ListIn(WindowName::frmScanPayPeriods, u"lstScanPayPeriods"_s).Items();
    Pick(WindowName::frmScanPayPeriods, u"lstScanPayPeriods"_s, input[u"picked_row"].toInt());
    return QJsonObject{{u"list"_s, Told(list)},
                       {u"ScanPickedDate"_s, Scan.ScanPickedDate},
                       {u"ExtraPayPeriods"_s, ToldExtras(DateFormat::Short)},
                       {u"pay_period_list"_s, Told(ListIn(WindowName::frmExtras, u"lstExtraItems"_s).Items())},
                       {u"extra.txt"_s, QString::fromUtf8(desk.ReadFile(u"extra.txt"_s))}};
}

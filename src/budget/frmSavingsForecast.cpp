#include "budget/frmSavingsForecast.h"

#include "budget/BudgetGenerator.h"
#include "budget/SavingsForecast.h"
#include "foundation/State.h"
#include "foundation/StatementGrid.h"
#include "foundation/WindowFields.h"
#include "platform/controls/PickSign.h"
#include "platform/desk/Desk.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Dates.h"
#include "platform/windows/WindowRegister.h"

#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int RowsInView = 16;
enum Column { Number, PayPeriod, Savings, Accumulated, Columns };
} // namespace

frmSavingsForecast::frmSavingsForecast()
{
    Grid &grid = *ui.grdSavingsForecast;
    grid.SetShape(2, Columns);
    for (int column = 0; column < Columns; ++column)
        grid.SetColumnWidth(column, column == Number ? 500 : 2045);
    grid.SetRightAligned(Savings, true);
    grid.SetRightAligned(Accumulated, true);
    grid.SetFillsOnArrival(true);
    connect(&TheForecastOutlet, &StatementOutlet::Ready, this,
            [this](const Statement &forecast) { ShowForecast(forecast); });
    OnGotFocus(&grid, [this] { grdSavingsForecast_GotFocus(); });
    connect(&grid, &Grid::Click, this, [this] { grdSavingsForecast_Click(); });
}

void frmSavingsForecast::Load()
{
    // Set here alone: when the window comes back to the front, the forecast continues behind its last row.
    State.BudgetPeriodStart = State.CurrentPayPeriod;
}

void frmSavingsForecast::Activate()
{
    RestartAlternation();
    Grid &grid = *ui.grdSavingsForecast;
    ShowWaitsForPick(*ui.lblPick, grid, State.ProjectDateFromForecast);
    grid.SetRowsInView(RowsInView);
    ShowOpening(grid, ForecastHeadings(), true);
}

void frmSavingsForecast::Deactivate()
{
    RestartAlternation();
    // The question for the pay period is loaded unseen for this where it is not loaded.
    State.CurrentPayPeriod = Format(ToDate(WindowField::CurrentPayPeriod().text()), DateFormat::Short);
}

void frmSavingsForecast::Unload()
{
    State.ProjectDateFromForecast = false; // closed without a pick: a later look at the forecast picks nothing
    Deactivate();
}

void frmSavingsForecast::grdSavingsForecast_GotFocus()
{
    if (!CanBudget(State.ForecastPeriods)) {
        State.PrintSavingsForecast = false;
        ShowUnknownError(windowTitle());
        return;
    }
    TheDesk.Hourglass(true);
    ForecastSavings();
    TheDesk.Hourglass(false);
}

/// Rows of an earlier forecast are pushed down, but for those that a row with a red amount is written over.
void frmSavingsForecast::ShowForecast(const Statement &forecast)
{
    ShowRows(*ui.grdSavingsForecast, forecast);
    ui.grdSavingsForecast->SetCurrentRow(0);
}

void frmSavingsForecast::grdSavingsForecast_Click()
{
    if (State.ProjectDateFromForecast)
        PickCompletionDate();
}

void frmSavingsForecast::PickCompletionDate()
{
    const int row = ui.grdSavingsForecast->CurrentRow();
    // A click on the heading is error 9, which nobody traps.
    const QString date = PickForecastRow(row, ui.grdSavingsForecast->Text(row, Accumulated));
    TheWindows.Touch(WindowName::frmProjects); // the user may have closed it in the meantime
    Q_EMIT TheCompletionDateOutlet.Picked(date);
    Close();
}

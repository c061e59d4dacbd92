#include "budget/frmSavingsForecast.h"

#include "budget/BudgetGenerator.h"
#include "budget/SavingsForecast.h"
#include "foundation/StatementGrid.h"
#include "platform/desk/Desk.h"
#include "platform/values/Dates.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmSavingsForecast.h"

#include <QLineEdit>

namespace {

constexpr int StartRows = 2;
constexpr int RowsInView = 16;
constexpr int NumberTwips = 500;
constexpr int TextTwips = 2045;
enum Column { Number, PayPeriod, Savings, Accumulated, Columns };

} // namespace

frmSavingsForecast::frmSavingsForecast() : ui(std::make_unique<Ui::frmSavingsForecast>())
{
    ui->setupUi(this);
    ui->grdSavingsForecast->SetShape(StartRows, Columns);
    for (int column = 0; column < Columns; ++column) // before it is shown: the window opens wide enough
        ui->grdSavingsForecast->SetColumnWidth(column, column == Number ? NumberTwips : TextTwips);
    connect(&TheForecastOutlet, &StatementOutlet::Ready, this, &frmSavingsForecast::ShowForecast);
    OnGotFocus(ui->grdSavingsForecast, [this] { grdSavingsForecast_GotFocus(); });
    connect(ui->grdSavingsForecast, &Grid::Click, this, &frmSavingsForecast::grdSavingsForecast_Click);
}

frmSavingsForecast::~frmSavingsForecast() = default;

void frmSavingsForecast::Load()
{
    // Set here alone: when the window comes back to the front, the forecast continues behind its last row.
    State.BudgetPeriodStart = State.CurrentPayPeriod;
}

void frmSavingsForecast::Activate()
{
    RestartAlternation();
    Grid &grid = *ui->grdSavingsForecast;
    grid.setToolTip(State.ProjectDateFromForecast
                        ? QStringLiteral("Click a pay period to choose it as the completion date")
                        : QString());
    grid.SetRowsInView(RowsInView);
    for (int column = 0; column < Columns; ++column)
        grid.SetColumnWidth(column, column == Number ? NumberTwips : TextTwips);
    ShowOpening(grid, ForecastHeadings(), true);
    grid.SetRightAligned(Savings, true);
    grid.SetRightAligned(Accumulated, true);
}

void frmSavingsForecast::Deactivate()
{
    RestartAlternation();
    // The question for the pay period is loaded unseen for this where it is not loaded.
    const auto &entry = TheWindows.ControlOf<QLineEdit>(QStringLiteral("frmSetCurrentPayPeriod"),
                                                        QStringLiteral("txtCurrentPayPeriod"));
    State.CurrentPayPeriod = Format(ToDate(entry.text()), DateFormat::Short);
}

void frmSavingsForecast::Unload()
{
    State.ProjectDateFromForecast = false; // closed without a pick: a later look at the forecast picks nothing
    Deactivate();
}

void frmSavingsForecast::grdSavingsForecast_GotFocus()
{
    TheDesk.Hourglass(true);
    ForecastSavings();
    TheDesk.Hourglass(false);
}

/// Rows of an earlier forecast are pushed down, but for those that a row with a red amount is written over.
void frmSavingsForecast::ShowForecast(const Statement &forecast)
{
    ShowRows(*ui->grdSavingsForecast, forecast);
    ui->grdSavingsForecast->SetCurrentRow(0);
}

void frmSavingsForecast::grdSavingsForecast_Click()
{
    if (State.ProjectDateFromForecast)
        PickCompletionDate();
}

void frmSavingsForecast::PickCompletionDate()
{
    const int row = ui->grdSavingsForecast->CurrentRow();
    // A click on the heading is error 9, which nobody traps.
    const QString date = PickForecastRow(row, ui->grdSavingsForecast->Text(row, Accumulated));
    TheWindows.ControlOf<QLineEdit>(QStringLiteral("frmProjects"), QStringLiteral("txtProjectCompletionDate"))
        .setText(date);
    TheWindows.Unload(objectName());
}

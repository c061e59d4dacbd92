#include "budget/frmSavingsForecast.h"

#include "budget/GridRendering.h"
#include "budget/SavingsForecast.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
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
    State.LookingAhead = false;
    State.BudgetCredit = {};
    Grid &grid = *ui->grdSavingsForecast;
    grid.SetRowsInView(RowsInView);
    const QString headings[Columns] = {QStringLiteral("No."), QStringLiteral("Pay Period"), QStringLiteral("Savings"),
                                       QStringLiteral("Accumulated")};
    for (int column = 0; column < Columns; ++column) {
        grid.SetColumnWidth(column, column == Number ? NumberTwips : TextTwips);
        grid.SetBold(0, column, true);
        grid.SetText(0, column, headings[column]);
    }
    grid.SetRightAligned(Savings, true);
    grid.SetRightAligned(Accumulated, true);
}

void frmSavingsForecast::Deactivate()
{
    State.LookingAhead = false;
    State.BudgetCredit = {};
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
    FillGrid();
    TheDesk.Hourglass(false);
}

/// Rows of an earlier forecast are pushed down, but for those that a row with a red amount is written over.
void frmSavingsForecast::FillGrid()
{
    Grid &grid = *ui->grdSavingsForecast;
    int number = 0;
    for (const DatedRow &row : ForecastRows()) {
        ++number;
        WriteDatedRow(grid, number, row, {QString::number(number)});
    }
    grid.SetCurrentRow(0);
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
    TheWindows.Touch(WindowName::frmProjects); // the user may have closed it in the meantime
    Q_EMIT TheCompletionDateOutlet.Picked(date);
    TheWindows.Unload(objectName());
}

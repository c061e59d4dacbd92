#include "budget/frmBudget.h"

#include "foundation/State.h"
#include "foundation/StatementGrid.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

frmBudget::frmBudget()
{
    ui.grdBudget->SetShape(128, 2);
    ui.grdBudget->SetColumnWidth(0, 3100);
    ui.grdBudget->SetColumnWidth(1, 1750);
    ui.grdBudget->SetRightAligned(1, true);
    ui.grdBudget->SetEndsWithText(true); // the rows stay, and each run brings more
    connect(&TheBudgetOutlet, &StatementOutlet::Ready, this, [this](const Statement &budget) { ShowBudget(budget); });
    OnClick(ui.cmdBudget, [] { GenerateBudget(); });
    connect(ui.printSwitch, &PrintSwitch::Click, this, [](bool on) {
        State.PrintBudget = on;
        if (!on)
            ThePrinter.EndDoc();
    });
    OnClick(ui.cmdCancel, [this] { cmdCancel_Click(); });
}

void frmBudget::Load()
{
    State.BudgetPeriodStart = State.CurrentPayPeriod;
    OpenWithRows(*this, *ui.grdBudget, MostBudgetRows());
}

void frmBudget::Activate()
{
    // The caption tells the current pay period although the next run may cover a later one: stepping goes on from
    // where it was. Accepted behaviour.
    SetHeading(u"Budget - "_s + FormatLongDate(State.CurrentPayPeriod));
    RestartAlternation();
    ShowOpening(*ui.grdBudget, PaycheckRow());
    ClearBudgetGrid();
}

void frmBudget::Deactivate()
{
    RestartAlternation();
    ui.printSwitch->Set(false);
}

void frmBudget::Unload()
{
    ui.printSwitch->Set(false); // pages that were printed are sent off and not lost with the window
}

void frmBudget::ClearBudgetGrid()
{
    ui.grdBudget->ClearBelowHeading();
    ui.grdBudget->SetCurrentRow(0);
}

/// What the grid shows is told in the window's title and again above the grid.
void frmBudget::SetHeading(const QString &heading)
{
    setWindowTitle(heading);
    ui.lblHeading->setText(heading);
}

void frmBudget::ShowBudget(const Statement &budget)
{
    ClearBudgetGrid();
    SetHeading(budget.Heading);
    ShowRows(*ui.grdBudget, budget);
    ui.grdBudget->scrollToTop();
}

void frmBudget::cmdCancel_Click()
{
    RestartAlternation();
    ClearBudgetGrid();
    Close();
}

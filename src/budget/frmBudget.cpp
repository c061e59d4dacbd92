#include "budget/frmBudget.h"

#include "foundation/State.h"
#include "foundation/StatementGrid.h"
#include "platform/controls/Icons.h"
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
    ui.pbPrintOn->setIcon(ThemedIcon(u"switch-on"_s));
    ui.pbPrintOff->setIcon(ThemedIcon(u"switch-off"_s));
    connect(&TheBudgetOutlet, &StatementOutlet::Ready, this, [this](const Statement &budget) { ShowBudget(budget); });
    OnClick(ui.cmdBudget, [] { GenerateBudget(); });
    // The two states raise their click also when code sets them, and none when nothing changes.
    connect(ui.pbPrintOn, &QToolButton::toggled, this, [this](bool on) {
        if (on)
            pbPrintOn_Click();
    });
    connect(ui.pbPrintOff, &QToolButton::toggled, this, [this](bool on) {
        if (on)
            pbPrintOff_Click();
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
    ui.pbPrintOff->setChecked(true);
}

void frmBudget::Unload()
{
    ui.pbPrintOff->setChecked(true); // pages that were printed are sent off and not lost with the window
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

void frmBudget::pbPrintOn_Click()
{
    State.PrintBudget = true;
}

void frmBudget::pbPrintOff_Click()
{
    State.PrintBudget = false;
    ThePrinter.EndDoc();
}

void frmBudget::cmdCancel_Click()
{
    RestartAlternation();
    ClearBudgetGrid();
    Close();
}

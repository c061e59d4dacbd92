#include "budget/frmMonthlyOverhead.h"

#include "budget/BudgetGenerator.h"
#include "budget/MonthlyOverhead.h"
#include "foundation/StatementGrid.h"
#include "foundation/WindowNames.h"
#include "platform/windows/WindowRegister.h"

frmMonthlyOverhead::frmMonthlyOverhead()
{
    ui.grdOverhead->SetShape(2, 2);
    ui.grdOverhead->SetColumnWidth(0, 3095);
    ui.grdOverhead->SetColumnWidth(1, 1716);
    ui.grdOverhead->SetRightAligned(1, true);
    ui.grdOverhead->SetEndsWithText(true); // the rows stay, and each showing brings more
    OnClick(ui.cmdPrint, [] { PrintOverhead(); });
    UnloadOn(ui.cmdQuit);
}

void frmMonthlyOverhead::Load()
{
    OpenWithRows(*this, *ui.grdOverhead, MostOverheadRows());
}

void frmMonthlyOverhead::Activate()
{
    ShowOverhead();
    ui.grdOverhead->SetCurrentRow(0);
}

void frmMonthlyOverhead::Deactivate()
{
    RestartAlternation();
    // Leaving the overhead puts the budget away, wherever the user goes to: a habit of this window.
    TheWindows.Hide(WindowName::frmBudget);
}

void frmMonthlyOverhead::ClearOverheadGrid()
{
    ui.grdOverhead->ClearBelowHeading();
    ui.grdOverhead->SetCurrentRow(0);
}

void frmMonthlyOverhead::ShowOverhead()
{
    const Statement overhead = CalculateOverhead();
    ShowOpening(*ui.grdOverhead, overhead.Opening);
    ClearOverheadGrid();
    ShowRows(*ui.grdOverhead, overhead);
}

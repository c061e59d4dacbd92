#include "budget/frmMonthlyOverhead.h"

#include "budget/BudgetGenerator.h"
#include "budget/MonthlyOverhead.h"
#include "foundation/StatementGrid.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmMonthlyOverhead.h"

namespace {
constexpr int StartRows = 2;
constexpr int LabelTwips = 3095;
constexpr int AmountTwips = 1716;
} // namespace

frmMonthlyOverhead::frmMonthlyOverhead() : ui(std::make_unique<Ui::frmMonthlyOverhead>())
{
    ui->setupUi(this);
    ui->grdOverhead->SetShape(StartRows, 2);
    ui->grdOverhead->SetColumnWidth(0, LabelTwips); // before it is shown: the window opens wide enough
    ui->grdOverhead->SetColumnWidth(1, AmountTwips);
    ui->grdOverhead->SetEndsWithText(true); // the rows stay, and each showing brings more
    connect(ui->cmdPrint, &QPushButton::clicked, this, &frmMonthlyOverhead::cmdPrint_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmMonthlyOverhead::cmdQuit_Click);
}

frmMonthlyOverhead::~frmMonthlyOverhead() = default;

void frmMonthlyOverhead::Activate()
{
    ui->grdOverhead->SetRightAligned(1, true);
    ui->grdOverhead->SetColumnWidth(0, LabelTwips);
    ui->grdOverhead->SetColumnWidth(1, AmountTwips);
    ShowOverhead();
    ui->grdOverhead->SetCurrentRow(0);
}

void frmMonthlyOverhead::Deactivate()
{
    RestartAlternation();
    // Leaving the overhead puts the budget away, wherever the user goes to: a habit of this window.
    TheWindows.Hide(QStringLiteral("frmBudget"));
}

void frmMonthlyOverhead::ClearOverheadGrid()
{
    ui->grdOverhead->ClearBelowHeading();
    ui->grdOverhead->SetCurrentRow(0);
}

void frmMonthlyOverhead::ShowOverhead()
{
    const Statement overhead = CalculateOverhead();
    ShowOpening(*ui->grdOverhead, overhead.Opening);
    ClearOverheadGrid();
    ShowRows(*ui->grdOverhead, overhead);
}

void frmMonthlyOverhead::cmdPrint_Click()
{
    PrintOverhead();
}

void frmMonthlyOverhead::cmdQuit_Click()
{
    TheWindows.Unload(objectName());
}

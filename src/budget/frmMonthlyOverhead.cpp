#include "budget/frmMonthlyOverhead.h"

#include "budget/GridRendering.h"
#include "budget/MonthlyOverhead.h"
#include "foundation/State.h"
#include "platform/values/Format.h"
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
    connect(ui->cmdPrint, &QPushButton::clicked, this, &frmMonthlyOverhead::cmdPrint_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmMonthlyOverhead::cmdQuit_Click);
}

frmMonthlyOverhead::~frmMonthlyOverhead() = default;

void frmMonthlyOverhead::Activate()
{
    ui->grdOverhead->SetRightAligned(1, true);
    ui->grdOverhead->SetColumnWidth(0, LabelTwips);
    ui->grdOverhead->SetColumnWidth(1, AmountTwips);
    ui->grdOverhead->SetBold(0, 0, true);
    ui->grdOverhead->SetBold(0, 1, true);
    ui->grdOverhead->SetText(0, 0, QStringLiteral("Monthly Net Income"));
    ShowOverhead();
    ui->grdOverhead->SetCurrentRow(0);
}

void frmMonthlyOverhead::Deactivate()
{
    State.BudgetCredit = {};
    State.LookingAhead = false;
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
    const OverheadStatement statement = CalculateOverhead();
    ui->grdOverhead->SetText(0, 1, FormatCurrency(statement.MonthlyNetIncome));
    ClearOverheadGrid();
    LineWriter lines(*ui->grdOverhead);
    for (const BudgetLine &line : statement.Lines)
        lines.Insert(line.Label, FormatCurrency(line.Amount));
    lines.InsertEmpty();
    lines.Write(QStringLiteral("Total Overhead"), FormatCurrency(statement.TotalOverhead));
    // A deficit stands apart, with an empty row on both sides; what remains follows the total directly.
    if (statement.Result.IsNegative()) {
        lines.InsertEmpty();
        lines.Write(statement.ResultLabel, FormatCurrency(statement.Result), GridColour::LightRed);
        lines.InsertEmpty();
    } else {
        lines.Insert(statement.ResultLabel, FormatCurrency(statement.Result));
    }
    lines.Finish();
}

void frmMonthlyOverhead::cmdPrint_Click()
{
    PrintOverhead();
}

void frmMonthlyOverhead::cmdQuit_Click()
{
    TheWindows.Unload(objectName());
}

#include "budget/frmBudget.h"

#include "budget/GridRendering.h"
#include "foundation/State.h"
#include "platform/controls/Icons.h"
#include "platform/desk/Printer.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmBudget.h"

namespace {
constexpr int StartRows = 128;
constexpr int LabelTwips = 3100;
constexpr int AmountTwips = 1750;
} // namespace

frmBudget::frmBudget() : ui(std::make_unique<Ui::frmBudget>())
{
    ui->setupUi(this);
    ui->grdBudget->SetShape(StartRows, 2);
    ui->grdBudget->SetColumnWidth(0, LabelTwips);
    ui->grdBudget->SetColumnWidth(1, AmountTwips);
    ui->pbPrintOn->setIcon(ThemedIcon(QStringLiteral("switch-on")));
    ui->pbPrintOff->setIcon(ThemedIcon(QStringLiteral("switch-off")));
    connect(ui->cmdBudget, &QPushButton::clicked, this, &frmBudget::cmdBudget_Click);
    // The two states raise their click also when code sets them, and none when nothing changes.
    connect(ui->pbPrintOn, &QToolButton::toggled, this, [this](bool on) {
        if (on)
            pbPrintOn_Click();
    });
    connect(ui->pbPrintOff, &QToolButton::toggled, this, [this](bool on) {
        if (on)
            pbPrintOff_Click();
    });
    connect(ui->cmdCancel, &QPushButton::clicked, this, &frmBudget::cmdCancel_Click);
}

frmBudget::~frmBudget() = default;

void frmBudget::Load()
{
    ShowBudgetPage = [this](const BudgetPage &page) { ShowPage(page); };
    State.BudgetPeriodStart = State.CurrentPayPeriod;
}

void frmBudget::Activate()
{
    // The caption tells the current pay period although the next run may cover a later one: stepping goes on from
    // where it was. Accepted behaviour.
    setWindowTitle(QStringLiteral("Budget - ") + FormatLongDate(State.CurrentPayPeriod));
    State.BudgetCredit = {};
    State.LookingAhead = false;
    ui->grdBudget->SetRightAligned(1, true);
    ui->grdBudget->SetColumnWidth(0, LabelTwips);
    ui->grdBudget->SetColumnWidth(1, AmountTwips);
    ui->grdBudget->SetBold(0, 0, true);
    ui->grdBudget->SetBold(0, 1, true);
    ui->grdBudget->SetText(0, 0, QStringLiteral("Paycheck Amount"));
    ui->grdBudget->SetText(0, 1, FormatCurrency(State.PaycheckAmount));
    ClearBudgetGrid();
}

void frmBudget::Deactivate()
{
    State.BudgetCredit = {};
    State.LookingAhead = false;
    ui->pbPrintOff->setChecked(true);
}

void frmBudget::Unload()
{
    ShowBudgetPage = nullptr;
    ui->pbPrintOff->setChecked(true); // pages that were printed are sent off and not lost with the window
}

void frmBudget::ClearBudgetGrid()
{
    ui->grdBudget->ClearBelowHeading();
    ui->grdBudget->SetCurrentRow(0);
}

void frmBudget::ShowPage(const BudgetPage &page)
{
    ClearBudgetGrid();
    setWindowTitle(page.Heading);
    LineWriter lines(*ui->grdBudget);
    for (const BudgetLine &line : page.Lines) {
        if (line.TheKind == BudgetLine::Credit)
            lines.Write(line.Label, FormatCurrency(line.Amount), GridColour::LightBlue);
        else
            lines.Insert(line.Label, FormatCurrency(line.Amount));
    }
    lines.InsertEmpty();
    if (page.Result.IsNegative())
        lines.Write(page.ResultLabel, FormatCurrency(page.Result), GridColour::LightRed);
    else
        lines.Insert(page.ResultLabel, FormatCurrency(page.Result));
    lines.Finish();
}

void frmBudget::cmdBudget_Click()
{
    GenerateBudget();
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
    State.LookingAhead = false;
    State.BudgetCredit = {};
    ClearBudgetGrid();
    TheWindows.Unload(objectName());
}

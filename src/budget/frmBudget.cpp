#include "budget/frmBudget.h"

#include "foundation/State.h"
#include "foundation/StatementGrid.h"
#include "platform/controls/Theme.h"
#include "platform/desk/Printer.h"
#include "platform/desk/UnknownError.h"
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
    OnClick(ui.cmdBudget, [this] { cmdBudget_Click(); });
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
    ShowNextRun();
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
    ui.lblResult->clear();
}

/// What the grid shows stands in the window's title and again above the grid.
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
    ShowResult(budget.Rows.back());
}

/// What a budget ends on stands beside the heading, too: on a small screen its row is out of sight.
void frmBudget::ShowResult(const StatementRow &result)
{
    QPalette colours = palette();
    if (result.Amounts.at(0).IsNegative())
        colours.setColor(QPalette::WindowText, QBColor(int(GridColour::LightRed), colours.color(QPalette::Window),
                                                       colours.color(QPalette::WindowText)));
    ui.lblResult->setPalette(colours);
    ui.lblResult->setText(result.Texts.value(0) + u' ' + FormatCurrency(result.Amounts.at(0)));
}

/// Opening another window may have moved on what the next run is of, so it is said before the click.
void frmBudget::ShowNextRun()
{
    const QString next = NextRunHeading();
    ui.lblNext->setText(next.isEmpty() ? QString() : u"Next: "_s + next);
    ui.cmdBudget->setToolTip(ui.lblNext->text());
}

void frmBudget::cmdBudget_Click()
{
    if (CanBudget())
        GenerateBudget();
    else
        ShowUnknownError(u"Budget"_s);
    ShowNextRun();
}

void frmBudget::cmdCancel_Click()
{
    RestartAlternation();
    ClearBudgetGrid();
    Close();
}

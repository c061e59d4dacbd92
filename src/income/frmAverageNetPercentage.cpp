#include "income/frmAverageNetPercentage.h"

#include "foundation/State.h"
#include "income/AverageNet.h"
#include "platform/controls/Fields.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmAverageNetPercentage;

const QString Title = u"Average Net Percentage"_s;

constexpr EntryRule<Design> Rules[] = {
    {&Design::txtFirstCheckGross, Numeric, "Please enter a numerical dollar amount in the First Check Gross field",
     nullptr, 26},
    {&Design::txtFirstCheckNet, Numeric, "Please enter a numerical dollar amount in the First Check Net field", nullptr,
     27},
    {&Design::txtSecondCheckGross, Numeric, "Please enter a numerical dollar amount in the Second Check Gross field",
     nullptr, 28},
    {&Design::txtSecondCheckNet, Numeric, "Please enter a numerical dollar amount in the Second Check Net field",
     nullptr, 29},
};
} // namespace

frmAverageNetPercentage::frmAverageNetPercentage()
    : Window({.Title = Title, .TheButtons = Buttons::OkHelp, .HelpContext = 26})
{
    ShowOnly(ui.txtAverageNetPercentage);
    StartAt(ui.txtFirstCheckGross);
    EnterRing({ui.txtFirstCheckGross, ui.txtFirstCheckNet, ui.txtSecondCheckGross, ui.txtSecondCheckNet});
    OnClickTrapped(ui.cmdCalculate, [this] { cmdCalculate_Click(); });
    UnloadOn(ui.cmdExit);
}

void frmAverageNetPercentage::Load()
{
    RememberedAverageNetPercentage = State.AverageNetPercentage;
}

void frmAverageNetPercentage::Activate()
{
    for (QLineEdit *field : {ui.txtFirstCheckGross, ui.txtFirstCheckNet, ui.txtSecondCheckGross, ui.txtSecondCheckNet})
        field->setText(FormatCurrency(Currency::Zero));
    ShowPercentage();
    Window::Activate();
}

void frmAverageNetPercentage::ShowPercentage()
{
    ui.txtAverageNetPercentage->setText(PerCent(State.AverageNetPercentage));
}

void frmAverageNetPercentage::cmdCalculate_Click()
{
    if (!Accepts(Rules))
        return;
    CalculateAverageNet({.FirstCheckGross = ui.txtFirstCheckGross->text(),
                         .FirstCheckNet = ui.txtFirstCheckNet->text(),
                         .SecondCheckGross = ui.txtSecondCheckGross->text(),
                         .SecondCheckNet = ui.txtSecondCheckNet->text()});
    ShowPercentage();
}

/// Every way of closing asks, unlike in the wage calculator.
bool frmAverageNetPercentage::QueryUnload(CloseMode)
{
    if (State.AverageNetPercentage != RememberedAverageNetPercentage &&
        ShowMessage(AverageNetQuestion(), Title, Icon::Question, Buttons::YesNo) != Answer::Yes)
        State.AverageNetPercentage = RememberedAverageNetPercentage;
    return true;
}

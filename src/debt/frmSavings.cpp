#include "debt/frmSavings.h"

#include "debt/Loans.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmSavings;
constexpr EntryRule<Design> Rules[] = {
    {&Design::txtMonthlyDeposits, Numeric, "Monthly Deposits does not contain a valid currency amount"},
    {&Design::txtAnnualPercentageRate, Numeric, "Annual Percentage Rate does not contain a valid numeric amount"},
    {&Design::txtNumberOfMonthlyDeposits, Numeric,
     "Number of Monthly Deposits does not contain a valid numeric amount"},
    // It speaks of a date although an amount is meant: the wording that users know, kept.
    {&Design::txtCurrentSavingsAmount, Numeric, "Current Savings Amount does not contain a valid date"},
};
} // namespace

frmSavings::frmSavings()
    : Window({.Title = u"Savings"_s, .TheIcon = Icon::Warning}),
      optPaymentDue(ui.optPaymentDue0, ui.optPaymentDue1, ui.lblDueChanged)
{
    OnClickTrapped(ui.cmdCalculate, [this] { cmdCalculate_Click(); });
    UnloadOn(ui.cmdExit);
    EnterRing(
        {ui.txtMonthlyDeposits, ui.txtAnnualPercentageRate, ui.txtNumberOfMonthlyDeposits, ui.txtCurrentSavingsAmount});
    StartAt(ui.txtMonthlyDeposits);
}

void frmSavings::Load()
{
    ui.txtMonthlyDeposits->setText(FormatCurrency({}));
    ui.txtAnnualPercentageRate->setText(Format(0, NumberFormat::Fixed));
    ui.txtNumberOfMonthlyDeposits->setText(Format(0, NumberFormat::GeneralNumber));
    ui.txtCurrentSavingsAmount->setText(FormatCurrency({}));
    Debt.LoanPaymentDue = 1;
    optPaymentDue.ShowWhatHolds();
}

void frmSavings::Activate()
{
    optPaymentDue.ShowWhatHolds();
    Window::Activate();
}

void frmSavings::cmdCalculate_Click()
{
    if (!Accepts(Rules))
        return;
    ui.lblFutureValue->setText(FutureSavings({.MonthlyDeposits = ui.txtMonthlyDeposits->text(),
                                              .AnnualPercentageRate = ui.txtAnnualPercentageRate->text(),
                                              .NumberOfMonthlyDeposits = ui.txtNumberOfMonthlyDeposits->text(),
                                              .CurrentSavingsAmount = ui.txtCurrentSavingsAmount->text()}));
    optPaymentDue.HoldsForTheResult();
}

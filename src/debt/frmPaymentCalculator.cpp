#include "debt/frmPaymentCalculator.h"

#include "debt/Loans.h"
#include "foundation/WindowNames.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmPaymentCalculator;
constexpr EntryRule<Design> Rules[] = {
    {&Design::txtBorrowedAmount, Numeric, "Borrowed Amount does not contain a valid currency amount"},
    {&Design::txtAnnualPercentageRate, Numeric, "Annual Percentage Rate does not contain a valid numeric amount"},
    {&Design::txtNumberOfMonthlyPayments, Numeric,
     "Number of Monthly Payments does not contain a valid numeric amount"},
};
} // namespace

frmPaymentCalculator::frmPaymentCalculator()
    : Window({.Title = u"Loan Payments"_s, .TheIcon = Icon::Warning}),
      optPaymentDue(ui.optPaymentDue0, ui.optPaymentDue1, ui.lblDueChanged)
{
    OnClickTrapped(ui.cmdCalculate, [this] { cmdCalculate_Click(); });
    OnClick(ui.cmdAmortizationTable, [] { TheWindows.Show(WindowName::frmSelectMonth); });
    UnloadOn(ui.cmdExit);
    EnterRing({ui.txtBorrowedAmount, ui.txtAnnualPercentageRate, ui.txtNumberOfMonthlyPayments});
}

void frmPaymentCalculator::Load()
{
    ui.txtAnnualPercentageRate->setText(Format(0, NumberFormat::Fixed));
    ui.txtNumberOfMonthlyPayments->setText(Format(0, NumberFormat::GeneralNumber));
    ui.txtBorrowedAmount->setText(FormatCurrency({}));
    Debt.LoanPaymentDue = 1;
    optPaymentDue.ShowWhatHolds();
}

void frmPaymentCalculator::Activate()
{
    optPaymentDue.ShowWhatHolds();
}

void frmPaymentCalculator::cmdCalculate_Click()
{
    if (!Accepts(Rules))
        return;
    const std::optional<QString> sentence =
        LoanPayment({.BorrowedAmount = ui.txtBorrowedAmount->text(),
                     .AnnualPercentageRate = ui.txtAnnualPercentageRate->text(),
                     .NumberOfMonthlyPayments = ui.txtNumberOfMonthlyPayments->text()});
    if (!sentence)
        return;
    ui.lblMonthlyPayment->setText(*sentence);
    optPaymentDue.HoldsForTheResult();
    ui.cmdAmortizationTable->setEnabled(true); // and it stays so: the table lists the loan that is stored
}

#include "debt/frmInterestRateCalculator.h"

#include "debt/Loans.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {
using Design = Ui::frmInterestRateCalculator;
constexpr EntryRule<Design> Rules[] = {
    {&Design::txtBorrowedAmount, Numeric, "Borrowed Amount does not contain a valid currency amount"},
    {&Design::txtMonthlyPayments, Numeric, "Monthly Payments does not contain a valid currency amount"},
    {&Design::txtNumberOfMonthlyPayments, Numeric,
     "Number of Monthly Payments does not contain a valid numeric amount"},
};
} // namespace

frmInterestRateCalculator::frmInterestRateCalculator()
    : Window({.Title = u"Loan Interest Rates"_s, .TheIcon = Icon::Warning}),
      optPaymentDue(ui.optPaymentDue0, ui.optPaymentDue1, ui.lblDueChanged)
{
    // What cannot be computed is told under another title than what is refused: a habit of this window that is kept.
    OnClick(ui.cmdCalculate, [this] { TrapUnknownError(u"Interest Rates"_s, [this] { cmdCalculate_Click(); }); });
    UnloadOn(ui.cmdExit);
    EnterRing({ui.txtBorrowedAmount, ui.txtMonthlyPayments, ui.txtNumberOfMonthlyPayments});
}

void frmInterestRateCalculator::Load()
{
    ui.txtMonthlyPayments->setText(FormatCurrency({}));
    ui.txtNumberOfMonthlyPayments->setText(Format(0, NumberFormat::GeneralNumber));
    ui.txtBorrowedAmount->setText(FormatCurrency({}));
    // Unlike its sisters it keeps when payments are due as the calculator before left it.
    optPaymentDue.ShowWhatHolds();
}

void frmInterestRateCalculator::Activate()
{
    optPaymentDue.ShowWhatHolds();
}

void frmInterestRateCalculator::cmdCalculate_Click()
{
    if (!Accepts(Rules))
        return;
    const std::optional<QString> sentence =
        LoanInterestRate({.BorrowedAmount = ui.txtBorrowedAmount->text(),
                          .MonthlyPayments = ui.txtMonthlyPayments->text(),
                          .NumberOfMonthlyPayments = ui.txtNumberOfMonthlyPayments->text()});
    if (!sentence)
        return;
    ui.lblInterestRate->setText(*sentence);
    optPaymentDue.HoldsForTheResult();
}

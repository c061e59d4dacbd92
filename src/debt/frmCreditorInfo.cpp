#include "debt/frmCreditorInfo.h"

#include "debt/PayOffPlan.h"
#include "foundation/WindowNames.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr EntryRule<Ui::frmCreditorInfo> Rules[] = {
    {&Ui::frmCreditorInfo::txtBalanceOwed, Numeric, "Balance Owed does not contain a valid currency amount"},
    {&Ui::frmCreditorInfo::txtAnnualPercentageRate, Numeric,
     "Annual Percentage Rate does not contain a valid numeric amount"},
    {&Ui::frmCreditorInfo::txtMonthlyPayment, Numeric, "Monthly Payment does not contain a valid currency amount"},
    {&Ui::frmCreditorInfo::txtDueDate, IsDate, "Due Date does not contain a valid date"},
};
} // namespace

frmCreditorInfo::frmCreditorInfo() : Window({.Title = u"Enter Creditor Info"_s, .TheIcon = Icon::Warning})
{
    // An unknown error has a title of its own here.
    OnClick(ui.cmdOK, [this] { TrapUnknownError(u"Creditor Info"_s, [this] { cmdOK_Click(); }); });
    EnterRing({ui.txtBalanceOwed, ui.txtAnnualPercentageRate, ui.txtMonthlyPayment, ui.txtDueDate});
    StartAt(ui.txtBalanceOwed);
}

/// What was entered for earlier creditors stands in the arrays until it is entered anew.
void frmCreditorInfo::Activate()
{
    Debt.LoopIndex = 1;
    AskForFigures(DateFormat::Short);
    Window::Activate();
}

void frmCreditorInfo::AskForFigures(DateFormat dueDate)
{
    const QString &name = Debt.PayOffCreditorNames(Debt.LoopIndex);
    setWindowTitle(u"Pay Off Information For "_s + name);
    ui.txtCreditor->setText(name);
    ui.txtBalanceOwed->setText(FormatCurrency(Currency::Zero));
    ui.txtAnnualPercentageRate->setText(Format(0, NumberFormat::Fixed));
    ui.txtMonthlyPayment->setText(FormatCurrency(Currency::Zero));
    ui.txtDueDate->setText(Format(TheDesk.Now().date(), dueDate));
}

void frmCreditorInfo::cmdOK_Click()
{
    if (!Accepts(Rules))
        return;
    StorePayOffCreditor(Debt.LoopIndex, {.Name = ui.txtCreditor->text(),
                                         .Balance = ui.txtBalanceOwed->text(),
                                         .AnnualPercentageRate = ui.txtAnnualPercentageRate->text(),
                                         .MonthlyAmount = ui.txtMonthlyPayment->text(),
                                         .DueDate = ui.txtDueDate->text()});
    if (!FallsInFirstMonth(Debt.LoopIndex)) {
        TheDesk.Beep();
        Refuse(u" The monthly amount of %1 will never pay off %2. You need to pay a higher monthly amount."_s.arg(
                   FormatCurrency(Debt.PayOffMonthlyAmounts(Debt.LoopIndex)), Debt.PayOffCreditorNames(Debt.LoopIndex)),
               ui.txtMonthlyPayment);
        return;
    }
    Debt.LoopIndex = ToInteger(Debt.LoopIndex + 1);
    if (Debt.LoopIndex > Debt.NumberOfPayOffCreditors)
        MakePlan();
    else
        AskForFigures(DateFormat::ShortYear); // unlike the first creditor's; the focus stays where it is
}

/// After a failure this window stays open without a creditor at hand, so that OK fails again until the user has left it
/// and come back; and the pointer stays busy.
void frmCreditorInfo::MakePlan()
{
    Debt.LoopIndex = 0;
    TheDesk.Hourglass(true);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    TheWindows.Touch(WindowName::frmPayOff); // the user may have closed it in the meantime
    BuildPayOffPlan();
    TheDesk.Hourglass(false);
    Close();
}

#include "debt/frmCreditorInfo.h"

#include "debt/PayOffPlan.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Fields.h"
#include "platform/desk/UnknownError.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QApplication>

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
    const QList<QLineEdit *> figures{ui.txtBalanceOwed, ui.txtAnnualPercentageRate, ui.txtMonthlyPayment,
                                     ui.txtDueDate};
    ShowOnly(ui.txtCreditor);
    connect(ui.cmdOK, &QPushButton::pressed, this, [this] { cmdOK_Pressed(); });
    // An unknown error has a title of its own here.
    OnClick(ui.cmdOK, [this] { TrapUnknownError(u"Creditor Info"_s, [this] { cmdOK_Click(); }); });
    for (const QLineEdit *figure : figures)
        connect(figure, &QLineEdit::textEdited, this, [this] { m_sameDoubleClick = {}; });
    EnterRing(figures);
    StartAt(ui.txtBalanceOwed);
}

/// What was entered for earlier creditors stands in the arrays until it is entered anew.
void frmCreditorInfo::Activate()
{
    Debt.LoopIndex = 1;
    AskForFigures(DateFormat::Short);
    Window::Activate();
}

/// A plan that failed has left the pointer busy.
void frmCreditorInfo::Unload()
{
    if (m_busy)
        TheDesk.Hourglass(false);
}

void frmCreditorInfo::AskForFigures(DateFormat dueDate)
{
    const QString &name = Debt.PayOffCreditorNames(Debt.LoopIndex);
    setWindowTitle(u"Pay Off Information For "_s + name);
    ui.txtCreditor->setText(name);
    const QString tip = name + u'\n' +
                        u"Creditor %1 of %2. Going to another window of the program and coming back starts again with "
                        "the first."_s.arg(Debt.LoopIndex)
                            .arg(Debt.NumberOfPayOffCreditors);
    ui.txtCreditor->setToolTip(tip);
    ui.txtCreditor->setAccessibleDescription(tip);
    ui.txtBalanceOwed->setText(FormatCurrency(Currency::Zero));
    ui.txtAnnualPercentageRate->setText(Format(0, NumberFormat::Fixed));
    ui.txtMonthlyPayment->setText(FormatCurrency(Currency::Zero));
    ui.txtDueDate->setText(Format(TheDesk.Now().date(), dueDate));
}

/// The second press of a double-click would take the figures of the next creditor before anybody has seen its name.
void frmCreditorInfo::cmdOK_Pressed()
{
    m_swallows = !m_sameDoubleClick.hasExpired();
    if (m_swallows)
        m_sameDoubleClick.setRemainingTime(QApplication::doubleClickInterval()); // a third press, too
}

void frmCreditorInfo::cmdOK_Click()
{
    if (m_swallows)
        return;
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
        return MakePlan();
    AskForFigures(DateFormat::ShortYear); // unlike the first creditor's; the focus stays where it is
    m_sameDoubleClick.setRemainingTime(QApplication::doubleClickInterval());
}

/// After a failure this window stays open without a creditor at hand, so that OK fails again until the user has left it
/// and come back; and the pointer stays busy until the window closes.
void frmCreditorInfo::MakePlan()
{
    Debt.LoopIndex = 0;
    m_busy = true;
    TheDesk.Hourglass(true);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    // The user may have closed it in the meantime. Loaded unseen, it would hold the tutor back and show the plan to
    // nobody.
    if (!TheWindows.Touch(WindowName::frmPayOff).isVisible())
        TheWindows.Show(WindowName::frmPayOff);
    BuildPayOffPlan();
    TheDesk.Hourglass(false);
    m_busy = false;
    Close();
}

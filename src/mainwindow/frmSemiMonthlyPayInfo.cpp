#include "mainwindow/frmSemiMonthlyPayInfo.h"

#include "mainwindow/Settings.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

frmSemiMonthlyPayInfo::frmSemiMonthlyPayInfo()
    : Window({.Title = u"Semimonthly Paydate Information"_s, .TheIcon = Icon::Warning})
{
    OnClick(ui.cmdOK, [this] { cmdOK_Click(); });
    EnterRing({ui.txtFirstPayDate, ui.txtSecondPayDate});
}

void frmSemiMonthlyPayInfo::Load()
{
    ui.txtFirstPayDate->setText(Format(int(State.FirstPayDate), NumberFormat::GeneralNumber));
    ui.txtSecondPayDate->setText(Format(int(State.SecondPayDate), NumberFormat::GeneralNumber));
}

/// Its tests are of both dates together, so they are no table of the window's fields.
bool frmSemiMonthlyPayInfo::ValidateSemimonthlyDates()
{
    const auto refusal = ValidateSemimonthlyEntry(ui.txtFirstPayDate->text(), ui.txtSecondPayDate->text());
    if (refusal)
        Refuse(refusal->Text, findChild<QWidget *>(refusal->Focus));
    return !refusal;
}

void frmSemiMonthlyPayInfo::cmdOK_Click()
{
    if (!ValidateSemimonthlyDates())
        return;
    TakeSemimonthlyEntry(ui.txtFirstPayDate->text(), ui.txtSecondPayDate->text());
    Close();
}

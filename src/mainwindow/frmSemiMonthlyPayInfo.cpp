#include "mainwindow/frmSemiMonthlyPayInfo.h"

#include "mainwindow/Settings.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmSemiMonthlyPayInfo.h"

frmSemiMonthlyPayInfo::frmSemiMonthlyPayInfo() : ui(std::make_unique<Ui::frmSemiMonthlyPayInfo>())
{
    ui->setupUi(this);
    connect(ui->cmdOK, &QPushButton::clicked, this, &frmSemiMonthlyPayInfo::cmdOK_Click);
    EnterRing({ui->txtFirstPayDate, ui->txtSecondPayDate});
}

frmSemiMonthlyPayInfo::~frmSemiMonthlyPayInfo() = default;

void frmSemiMonthlyPayInfo::Load()
{
    ui->txtFirstPayDate->setText(Format(int(State.FirstPayDate), NumberFormat::GeneralNumber));
    ui->txtSecondPayDate->setText(Format(int(State.SecondPayDate), NumberFormat::GeneralNumber));
}

bool frmSemiMonthlyPayInfo::ValidateSemimonthlyDates()
{
    const auto refusal = ValidateSemimonthlyEntry(ui->txtFirstPayDate->text(), ui->txtSecondPayDate->text());
    if (!refusal)
        return true;
    ShowMessage(refusal->Text, QStringLiteral("Semimonthly Paydate Information"), Icon::Warning);
    FocusOn(findChild<QWidget *>(refusal->Focus));
    return false;
}

void frmSemiMonthlyPayInfo::cmdOK_Click()
{
    if (!ValidateSemimonthlyDates())
        return;
    TakeSemimonthlyEntry(ui->txtFirstPayDate->text(), ui->txtSecondPayDate->text());
    TheWindows.Unload(objectName());
}

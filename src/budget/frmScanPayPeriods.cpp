#include "budget/frmScanPayPeriods.h"

#include "budget/ScanPayPeriods.h"
#include "foundation/State.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmScanPayPeriods.h"

frmScanPayPeriods::frmScanPayPeriods() : ui(std::make_unique<Ui::frmScanPayPeriods>())
{
    ui->setupUi(this);
    OnGotFocus(ui->lstScanPayPeriods, [this] { lstScanPayPeriods_GotFocus(); });
    connect(ui->lstScanPayPeriods, &ListBox::Click, this, &frmScanPayPeriods::lstScanPayPeriods_Click);
}

frmScanPayPeriods::~frmScanPayPeriods() = default;

void frmScanPayPeriods::lstScanPayPeriods_GotFocus()
{
    FillScanPayPeriods();
    ui->lstScanPayPeriods->Clear();
    for (const QString &row : ScanRows())
        ui->lstScanPayPeriods->AddItem(row);
    ui->lstScanPayPeriods->setToolTip(
        State.ScanCalledFromExtras ? QStringLiteral("Click a date to add it to the extra pay periods") : QString());
}

void frmScanPayPeriods::lstScanPayPeriods_Click()
{
    if (!PickScanDate(ui->lstScanPayPeriods->ListIndex()))
        return;
    TheWindows.Touch(QStringLiteral("frmExtras")); // the user may have closed it in the meantime
    Q_EMIT ThePayPeriodOutlet.PayPeriodAdded();
    TheWindows.Hide(objectName());
}

void frmScanPayPeriods::Unload()
{
    State.ScanCalledFromExtras = false; // closed without a pick: a later look at the list adds nothing
}

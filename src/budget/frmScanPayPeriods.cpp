#include "budget/frmScanPayPeriods.h"

#include "budget/ScanPayPeriods.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/controls/ListBox.h"
#include "platform/windows/WindowRegister.h"

frmScanPayPeriods::frmScanPayPeriods()
{
    OnGotFocus(ui.lstScanPayPeriods, [this] { FillList(); });
    connect(ui.lstScanPayPeriods, &ListBox::Click, this, &frmScanPayPeriods::PickDate);
}

void frmScanPayPeriods::FillList()
{
    FillScanPayPeriods();
    ui.lstScanPayPeriods->Clear();
    for (const QString &row : ScanRows())
        ui.lstScanPayPeriods->AddItem(row);
    ui.lstScanPayPeriods->setToolTip(
        State.ScanCalledFromExtras ? QStringLiteral("Click a date to add it to the extra pay periods") : QString());
}

void frmScanPayPeriods::PickDate()
{
    if (!PickScanDate(ui.lstScanPayPeriods->ListIndex()))
        return;
    TheWindows.Touch(WindowName::frmExtras); // the user may have closed it in the meantime
    Q_EMIT ThePayPeriodOutlet.PayPeriodAdded();
    TheWindows.Hide(objectName());
}

void frmScanPayPeriods::Unload()
{
    State.ScanCalledFromExtras = false; // closed without a pick: a later look at the list adds nothing
}

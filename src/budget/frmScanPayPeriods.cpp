#include "budget/frmScanPayPeriods.h"

#include "budget/ScanPayPeriods.h"
#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/PickSign.h"
#include "platform/desk/UnknownError.h"
#include "platform/windows/WindowRegister.h"

#include <QScrollBar>

frmScanPayPeriods::frmScanPayPeriods()
{
    OnGotFocus(ui.lstScanPayPeriods, [this] { FillList(); });
    connect(ui.lstScanPayPeriods, &ListBox::Click, this, &frmScanPayPeriods::PickDate);
}

void frmScanPayPeriods::FillList()
{
    ListBox &list = *ui.lstScanPayPeriods;
    ShowWaitsForPick(*ui.lblPick, list, State.ScanCalledFromExtras);
    // A pay period typed at the calendar's end is a slip, and the rows stay as they were.
    bool filled = false;
    TrapUnknownError(ScanTitle, [&] {
        FillScanPayPeriods();
        filled = true;
    });
    if (!filled)
        return;
    const QStringList rows = ScanRows();
    const bool same = rows == list.Items();
    const int place = list.verticalScrollBar()->value();
    list.Clear();
    for (const QString &row : rows)
        list.AddItem(row);
    list.doItemsLayout();
    // A click that brings the user back meets the row that it was aimed at.
    list.verticalScrollBar()->setValue(same ? place : 0);
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

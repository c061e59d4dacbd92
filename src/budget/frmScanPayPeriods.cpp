#include "budget/frmScanPayPeriods.h"

#include "budget/ScanPayPeriods.h"
#include "foundation/BudgetFiles.h"
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
    for (const DateText &date : Scan.ScanDates)
        ui->lstScanPayPeriods->AddItem(FormatLongDate(date));
}

void frmScanPayPeriods::lstScanPayPeriods_Click()
{
    const DateText &date = Scan.ScanDates[std::size_t(ui->lstScanPayPeriods->ListIndex())];
    Scan.ScanPickedDate = Format(date.Text(), DateFormat::Dashes);
    if (!State.ScanCalledFromExtras)
        return;
    State.ScanCalledFromExtras = false;
    NewExtraPayPeriod();
    SortExtraPayPeriods();
    SavePayPeriods();
    InputPayPeriods();
    TheWindows.Touch(QStringLiteral("frmExtras")); // the user may have closed it in the meantime
    FillPayPeriodList();
    TheWindows.Hide(objectName());
}

void frmScanPayPeriods::Unload()
{
    WorkWindow::Unload();
    State.ScanCalledFromExtras = false; // closed without a pick: a later look at the list adds nothing
}

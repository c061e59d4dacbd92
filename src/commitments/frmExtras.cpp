#include "commitments/frmExtras.h"

#include "budget/ScanPayPeriods.h"
#include "commitments/Extras.h"
#include "foundation/BudgetFiles.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"
#include "ui_frmExtras.h"

frmExtras::frmExtras() : ui(std::make_unique<Ui::frmExtras>())
{
    ui->setupUi(this);
    TakeControls({.Title = QStringLiteral("Extras"),
                  .HelpContext = ExtrasHelp,
                  .List = ui->lstExtraItems,
                  .Delete = ui->cmdDeleteExtraItem,
                  .Commit = ui->cmdAddChangeExtraItem,
                  .Fields = {ui->txtExtraItemAmount, ui->txtExtraItem}});
    connect(ui->cmdListPayPeriods, &QPushButton::clicked, this, &frmExtras::cmdListPayPeriods_Click);
    connect(ui->cmdAddPayPeriod, &QPushButton::clicked, this, &frmExtras::cmdAddPayPeriod_Click);
    connect(ui->lstExtraItems, &ListBox::Click, this, &frmExtras::lstExtraItems_Click);
    connect(ui->cmdAddExtraItem, &QPushButton::clicked, this, &frmExtras::cmdAddExtraItem_Click);
    // The check box raises its click also when code changes its value.
    connect(ui->chkCredit, &QCheckBox::toggled, this, &frmExtras::chkCredit_Click);
    connect(ui->cmdAddChangeExtraItem, &QPushButton::clicked, this, &frmExtras::cmdAddChangeExtraItem_Click);
    connect(ui->cmdDeleteExtraItem, &QPushButton::clicked, this, &frmExtras::cmdDeleteExtraItem_Click);
    connect(ui->cmdDeletePayPeriod, &QPushButton::clicked, this, &frmExtras::cmdDeletePayPeriod_Click);
    connect(ui->cmdQuit, &QPushButton::clicked, this, &frmExtras::cmdQuit_Click);
    EnterRing({ui->txtExtraItemAmount, ui->txtExtraItem});
}

frmExtras::~frmExtras() = default;

void frmExtras::Load()
{
    WorkWindow::Load();
    ::FillPayPeriodList = [this] { TakePickedPayPeriod(); };
}

void frmExtras::Unload()
{
    WorkWindow::Unload();
    ::FillPayPeriodList = nullptr;
}

void frmExtras::FillPayPeriodList()
{
    ui->lstExtraItems->Clear();
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i)
        ui->lstExtraItems->AddItem(FormatLongDate(State.ExtraPayPeriods(i).PayPeriodDate));
}

void frmExtras::FillExtraItemList()
{
    const ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(Extras.SelectedExtraPayPeriod);
    ui->lblPayPeriod->setText(FormatLongDate(payPeriod.PayPeriodDate));
    ui->lstExtraItems->Clear();
    for (int i = 1; i <= ItemsOf(payPeriod); ++i)
        ui->lstExtraItems->AddItem(payPeriod.ExtraItems(i).ExtraItem);
    Extras.ExtrasListMode = false;
    ui->cmdAddPayPeriod->setEnabled(false);
    ui->cmdDeletePayPeriod->setEnabled(true);
    ui->cmdAddExtraItem->setEnabled(true);
}

/// Reads the file and goes back to the level of the pay periods.
void frmExtras::ShowPayPeriods()
{
    InputPayPeriods();
    ListPayPeriods();
}

/// After a pick in the scan. A pay period that was opened meanwhile is closed again, or its items would be written into
/// another one: the records have moved.
void frmExtras::TakePickedPayPeriod()
{
    if (Extras.ExtrasListMode) {
        FillPayPeriodList();
        return;
    }
    ListPayPeriods();
    EmptyPanel();
}

void frmExtras::ListPayPeriods()
{
    ui->lblPayPeriod->clear();
    FillPayPeriodList();
    ui->cmdAddPayPeriod->setEnabled(true);
    Extras.ExtrasListMode = true;
    ui->cmdDeletePayPeriod->setEnabled(false);
    ui->cmdDeleteExtraItem->setEnabled(false);
    ui->cmdAddExtraItem->setEnabled(false);
    ui->cmdAddChangeExtraItem->setEnabled(false);
}

void frmExtras::SaveAndReload()
{
    SavePayPeriods();
    InputPayPeriods();
    FillExtraItemList();
}

void frmExtras::cmdListPayPeriods_Click()
{
    ShowPayPeriods();
    EmptyPanel();
}

void frmExtras::EmptyPanel()
{
    ui->chkCredit->setChecked(false);
    ui->chkCredit->setEnabled(false);
    EmptyFields();
}

/// What an entry has left in memory and not in the file, because it failed half-way, is dropped before the next one.
void frmExtras::DropUnsaved()
{
    if (std::exchange(m_unsaved, false))
        InputPayPeriods();
}

void frmExtras::cmdAddPayPeriod_Click()
{
    State.ScanCalledFromExtras = true;
    TheWindows.Show(QStringLiteral("frmScanPayPeriods")); // a pick there comes back through FillPayPeriodList
}

void frmExtras::lstExtraItems_Click()
{
    if (!Extras.ExtrasListMode) {
        ShowExtraItem();
        return;
    }
    Extras.SelectedExtraPayPeriod = ToInteger(SelectedRecord());
    FillExtraItemList();
}

void frmExtras::ShowExtraItem()
{
    const ExtraItemRecord item = State.ExtraPayPeriods(Extras.SelectedExtraPayPeriod).ExtraItems(SelectedRecord());
    SetFields({FormatCurrency(item.ExtraItemAmount), item.ExtraItem});
    ui->cmdAddExtraItem->setEnabled(true);
    ui->cmdDeleteExtraItem->setEnabled(ui->lstExtraItems->count() != 1); // a pay period keeps at least one item
    ui->chkCredit->setEnabled(true);
    // Its click follows the amount, which has its sign already and stays as it is. The panel opens after it: the amount
    // is written again and would lose its selection.
    ui->chkCredit->setChecked(item.ExtraItemAmount < Currency());
    OpenPanel(ChangeCaption, ui->txtExtraItemAmount);
}

void frmExtras::cmdAddExtraItem_Click()
{
    // The check box keeps what it showed; only a click on it changes the sign.
    EmptyFields();
    OpenPanel(NewCaption, ui->txtExtraItemAmount);
    ui->chkCredit->setEnabled(true);
}

void frmExtras::chkCredit_Click()
{
    ui->txtExtraItemAmount->setText(AmountWithCredit(ui->txtExtraItemAmount->text(), ui->chkCredit->isChecked()));
}

void frmExtras::CommitEntry()
{
    if (Refused(ValidateExtraEntry({ui->txtExtraItemAmount->text(), ui->txtExtraItem->text()})))
        return;
    const ExtraItemRecord item{ui->txtExtraItem->text(), ToCurrency(ui->txtExtraItemAmount->text())};
    ui->txtExtraItemAmount->setText(FormatCurrency(item.ExtraItemAmount));

    DropUnsaved();
    m_unsaved = true;
    if (ui->cmdAddChangeExtraItem->text() == NewCaption)
        AddExtraItem(item);
    else if (ui->cmdAddChangeExtraItem->text() == ChangeCaption)
        ChangeExtraItem(SelectedRecord(), item);
    else
        return;
    SaveAndReload();
    m_unsaved = false;
}

void frmExtras::cmdAddChangeExtraItem_Click()
{
    Trap([this] { CommitEntry(); });
}

void frmExtras::cmdDeleteExtraItem_Click()
{
    Trap([this] {
        DropUnsaved();
        DeleteExtraItem(SelectedRecord());
        SaveAndReload();
        ClosePanel();
        ui->chkCredit->setChecked(false);
        ui->chkCredit->setEnabled(false);
    });
}

void frmExtras::cmdDeletePayPeriod_Click()
{
    Trap([this] {
        DeleteExtraPayPeriod();
        SavePayPeriods();
        ShowPayPeriods();
        EmptyFields();
    });
}

void frmExtras::cmdQuit_Click()
{
    ui->cmdAddExtraItem->setEnabled(false);
    ui->cmdDeleteExtraItem->setEnabled(false);
    TheWindows.Unload(objectName());
}

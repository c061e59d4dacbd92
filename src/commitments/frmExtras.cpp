#include "commitments/frmExtras.h"

#include "budget/ScanPayPeriods.h"
#include "commitments/Extras.h"
#include "foundation/WindowNames.h"
#include "platform/controls/ListBox.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"

#include <QScopeGuard>
#include <QShortcut>
#include <QSignalBlocker>

frmExtras::frmExtras() : ListWindow(ExtraItemList)
{
    TakeControls({.List = ui.lstExtraItems,
                  .Read = ui.cmdListPayPeriods,
                  .Add = ui.cmdAddExtraItem,
                  .Delete = ui.cmdDeleteExtraItem,
                  .Quit = ui.cmdQuit,
                  .Commit = ui.cmdAddChangeExtraItem,
                  .Fields = {ui.txtExtraItemAmount, ui.txtExtraItem}});
    connect(&ThePayPeriodOutlet, &PayPeriodOutlet::PayPeriodAdded, this, &frmExtras::TakePickedPayPeriod);
    OnClick(ui.cmdAddPayPeriod, [this] { AddPayPeriod(); });
    // The check box raises its click also when code changes its value.
    connect(ui.chkCredit, &QCheckBox::toggled, this, &frmExtras::TurnAmount);
    OnClickTrapped(ui.cmdDeletePayPeriod, [this] { DeletePayPeriod(); });
    // Both delete buttons have the same access key, and a delete asks nothing: the key moves the focus and never
    // clicks, or it would delete the whole pay period where the item's button happens to be disabled.
    connect(new QShortcut(ui.cmdDeletePayPeriod->shortcut(), this), &QShortcut::activated, this,
            &frmExtras::GoToDelete);
    for (QPushButton *button : {ui.cmdDeletePayPeriod, ui.cmdDeleteExtraItem})
        button->setShortcut({});
}

void frmExtras::FillPayPeriodList()
{
    ui.lstExtraItems->Clear();
    for (const QString &name : PayPeriodNames())
        ui.lstExtraItems->AddItem(name);
}

/// The open pay period with its items.
void frmExtras::FillList()
{
    ui.lblPayPeriod->setText(OpenPayPeriodName());
    ListPanel::FillList();
    Extras.ExtrasListMode = false;
    ui.cmdAddPayPeriod->setEnabled(false);
    ui.cmdDeletePayPeriod->setEnabled(true);
    ui.cmdAddExtraItem->setEnabled(true);
}

/// The level of the pay periods.
void frmExtras::ShowPayPeriods()
{
    ui.lblPayPeriod->clear();
    FillPayPeriodList();
    ui.cmdAddPayPeriod->setEnabled(true);
    Extras.ExtrasListMode = true;
    ui.cmdDeletePayPeriod->setEnabled(false);
    ui.cmdDeleteExtraItem->setEnabled(false);
    ui.cmdAddExtraItem->setEnabled(false);
    ui.cmdAddChangeExtraItem->setEnabled(false);
}

/// After a pick in the scan. A pay period that was opened meanwhile is closed again, or its items would be written into
/// another one: the records have moved.
void frmExtras::TakePickedPayPeriod()
{
    if (Extras.ExtrasListMode) {
        FillPayPeriodList();
        return;
    }
    FocusOn(ui.lstExtraItems); // as after a delete
    ShowPayPeriods();
    EmptyPanel();
}

/// The fields first: clearing the box is a click on it, and with a typed amount it could fail.
void frmExtras::EmptyPanel()
{
    EmptyFields();
    ClearCredit();
}

void frmExtras::ClearCredit()
{
    ui.chkCredit->setChecked(false);
    ui.chkCredit->setEnabled(false);
}

void frmExtras::ReadClicked()
{
    ExtraItemList.Input();
    ShowPayPeriods();
    EmptyPanel();
}

void frmExtras::AddPayPeriod()
{
    State.ScanCalledFromExtras = true;
    TheWindows.Show(WindowName::frmScanPayPeriods); // a pick there comes back as TakePickedPayPeriod
}

void frmExtras::RowClicked()
{
    if (Extras.ExtrasListMode) {
        Extras.SelectedExtraPayPeriod = ToInteger(SelectedRecord());
        FillList();
        return;
    }
    SetFields(ExtraItemList.PanelOf(SelectedRecord()));
    ui.cmdAddExtraItem->setEnabled(true);
    ui.cmdDeleteExtraItem->setEnabled(ui.lstExtraItems->count() != 1); // a pay period keeps at least one item
    ui.chkCredit->setEnabled(true);
    // Its click follows the amount, which has its sign already and stays as it is. The panel opens after it: the amount
    // is written again and would lose its selection.
    ui.chkCredit->setChecked(IsCredit(SelectedRecord()));
    OpenPanel(ChangeCaption);
}

void frmExtras::AddClicked()
{
    // The check box keeps what it showed; only a click on it changes the sign.
    ListPanel::AddClicked();
    ui.chkCredit->setEnabled(true);
}

void frmExtras::TurnAmount()
{
    Trap([this] {
        const bool credit = ui.chkCredit->isChecked();
        auto putBack = qScopeGuard([&] {
            const QSignalBlocker noClick(ui.chkCredit);
            ui.chkCredit->setChecked(!credit);
        });
        ui.txtExtraItemAmount->setText(AmountWithCredit(ui.txtExtraItemAmount->text(), credit));
        putBack.dismiss();
    });
}

void frmExtras::DeleteClicked()
{
    ListPanel::DeleteClicked();
    ClearCredit();
}

void frmExtras::DeletePayPeriod()
{
    RemovePayPeriodAndSave();
    FocusOn(ui.lstExtraItems); // as after the delete of an item
    ShowPayPeriods();
    EmptyFields();
}

/// From one delete button to the other, or where that one is disabled, nowhere.
void frmExtras::GoToDelete()
{
    FocusOn(FocusControl() == ui.cmdDeletePayPeriod ? ui.cmdDeleteExtraItem : ui.cmdDeletePayPeriod);
}

#include "shopping/frmMasterShoppingList.h"

#include "foundation/WindowNames.h"
#include "platform/desk/Desk.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/ShoppingDoors.h"
#include "shopping/ShoppingState.h"
#include "shopping/StoreCombo.h"

#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Title = u"Master Shopping List"_s;
const QString OnList = u"Y"_s;
const QString NotOnList = u"N"_s;

/// The grid of the current list, in its window that is loaded unseen where it is not loaded.
void FillCurrentShoppingGrid()
{
    TheWindows.Touch(WindowName::frmCurrentShoppingList);
    Q_EMIT TheShoppingDoors.CurrentListChanged();
}

} // namespace

frmMasterShoppingList::frmMasterShoppingList() : Window({.Title = Title, .TheIcon = Icon::Warning})
{
    connect(ui.cboStoreList, &DropDownList::Click, this, &frmMasterShoppingList::ChooseStore);
    connect(ui.lstMasterShopper, &Shelf::Click, this, &frmMasterShoppingList::ClickItem);
    for (const QLineEdit *field : {ui.txtItem, ui.txtUnit, ui.txtUnitPrice})
        connect(field, &QLineEdit::textChanged, this, &frmMasterShoppingList::Edited);
    connect(ui.chkTaxCode, &QCheckBox::toggled, this, &frmMasterShoppingList::Edited);
    EnterRing({ui.txtItem, ui.txtUnit, ui.txtUnitPrice});
    OnEnter(ui.txtStore, [this] { FocusOn(ui.txtItem); }); // which goes on with the ring
    CurrencyWhenLeft({ui.txtUnitPrice});
    OnClick(ui.cmdClear, [this] { Clear(); });
    OnClickTrapped(ui.cmdAddToMaster, [this] { AddItem(); });
    OnClickTrapped(ui.cmdSaveChanges, [this] { SaveChanges(); });
    OnClickTrapped(ui.cmdDeleteFromMaster, [this] { DeleteItem(); });
    OnClick(ui.cmdViewCurrent, [] { TheWindows.Show(WindowName::frmCurrentShoppingList); }); // which fills its grid
    UnloadOn(ui.cmdExit);

    // The drop, the key and the menu do the same.
    m_shelfMenu.setObjectName(u"mnuShelf"_s);
    m_putInCart = m_shelfMenu.addAction(u"&Put on Current Shopping List\tIns"_s, this, [this] { PutInCart(); });
    m_putInCart->setObjectName(u"mnuPutInCart"_s);
    connect(ui.lstMasterShopper, &Shelf::PutInCart, this, &frmMasterShoppingList::PutInCart);
    connect(ui.lstMasterShopper, &Shelf::MenuWanted, this, [this](const QPoint &place) {
        m_putInCart->setEnabled(ui.imgCurrentShoppingList->isEnabled());
        m_shelfMenu.popup(place);
    });
    OnClick(ui.imgCurrentShoppingList, [this] { PutInCart(); });
    connect(&TheShoppingDoors, &ShoppingDoors::ShelfChanged, this, &frmMasterShoppingList::FillAgain);
}

void frmMasterShoppingList::Load()
{
    FillStoreCombo(*ui.cboStoreList);
    ShowFields({});
    ui.lblSelected->clear();
    ui.cmdDeleteFromMaster->setEnabled(false);
    ui.cmdSaveChanges->setEnabled(false);
    ui.cmdClear->setEnabled(false);
    if (State.GuidedSetupActive)
        TheWindows.Hide(WindowName::frmGettingStarted);
}

void frmMasterShoppingList::Activate()
{
    Window::Activate();
    // Not where the user comes back from the dialog: the selected item would take the place of the new one in the
    // fields, or of what was typed there before a dialog that was cancelled.
    if (!m_asksForItem)
        ClickItem();
}

void frmMasterShoppingList::Unload()
{
    if (State.GuidedSetupActive)
        TheWindows.Show(WindowName::frmGettingStarted);
}

void frmMasterShoppingList::ChooseStore()
{
    NameStore(ui.cboStoreList->currentText());
    FillMasterItemList();
    Clear();
}

/// The title, and the heading of the shelf, which names no store where the drop-down list shows none: it has gone with
/// its last item.
void frmMasterShoppingList::NameStore(const QString &store)
{
    Shopping.SelectedStoreName = store;
    setWindowTitle(u"%1 (%2)"_s.arg(Title, store));
    const QString heading = u"Items Available at "_s + (ui.cboStoreList->ListIndex() < 0 ? u"Store"_s : store);
    ui.lblStoreItems->setText(heading);
    // The label is no buddy of the shelf, or it would take an & in a store's name for an access key.
    ui.lstMasterShopper->setAccessibleName(heading);
}

void frmMasterShoppingList::FillMasterItemList()
{
    FillShelf(ui.cboStoreList->currentText());
}

void frmMasterShoppingList::FillShelf(const QString &store)
{
    ui.lstMasterShopper->Clear();
    for (const QString &item : ItemsAt(store))
        ui.lstMasterShopper->AddItem(item);
}

/// Without a click, which would clear the fields.
void frmMasterShoppingList::FollowStore(const QString &store)
{
    const QSignalBlocker noClick(ui.cboStoreList);
    ui.cboStoreList->SetListIndex(ui.cboStoreList->findText(store));
}

/// Selects an item that the fields show already.
void frmMasterShoppingList::StandOn(const QString &item)
{
    const QSignalBlocker noClick(ui.lstMasterShopper);
    const qsizetype row = ui.lstMasterShopper->Items().indexOf(item);
    ui.lstMasterShopper->SetListIndex(int(row));
    if (row < 0)
        StandOnNoItem();
}

/// What the fields show is no item of the shelf: it stays, but nothing can be done with it until the user has chosen
/// again.
void frmMasterShoppingList::StandOnNoItem()
{
    ui.lstMasterShopper->SetListIndex(-1);
    ui.lblSelected->clear();
    ui.cmdSaveChanges->setEnabled(false);
    EnableCart(false);
}

/// A saved change may have made the item equal to a line of the list or different from all of them, and a list that
/// could not be saved has not followed.
void frmMasterShoppingList::TellWhetherOnList()
{
    if (ui.lstMasterShopper->ListIndex() < 0)
        return;
    const bool onList = FindLineOf(State.MasterShoppingList(Shopping.MasterItemIndex));
    ui.lblSelected->setText(onList ? OnList : NotOnList);
    EnableCart(!onList);
}

void frmMasterShoppingList::ClickItem()
{
    if (ui.lstMasterShopper->count() == 0) {
        Shopping.ListClickInProgress = false;
        return;
    }
    Shopping.ListClickInProgress = true;
    const auto onList = FindItem(ui.lstMasterShopper->SelectedText(), ui.cboStoreList->currentText());
    if (onList) {
        ShowItem(State.MasterShoppingList(Shopping.MasterItemIndex));
        ui.lblSelected->setText(*onList ? OnList : NotOnList);
    }
    EnableCart(ui.lblSelected->text() == NotOnList);
    Shopping.ListClickInProgress = false;
}

void frmMasterShoppingList::ShowItem(const MasterItemRecord &item)
{
    ShowFields(item);
    Edited(); // also where the fields have shown the same before and do not change
}

void frmMasterShoppingList::ShowFields(const MasterItemRecord &item)
{
    const QList<std::pair<QLineEdit *, QString>> texts{{ui.txtItem, item.Item},
                                                       {ui.txtUnit, item.Unit},
                                                       {ui.txtStore, item.Store},
                                                       {ui.txtUnitPrice, FormatCurrency(item.UnitPrice)}};
    for (const auto &[field, text] : texts) {
        field->setText(text);
        field->setCursorPosition(0); // a long one is seen from its beginning, also where it is the same as before
    }
    ui.chkTaxCode->setChecked(item.Taxable);
}

/// Also while a click on an item fills the fields, and only then can the changes be saved: a selected item is saveable
/// at once, while what is typed with no item selected can only be cleared.
void frmMasterShoppingList::Edited()
{
    if (Shopping.ListClickInProgress)
        ui.cmdSaveChanges->setEnabled(true);
    ui.cmdClear->setEnabled(true);
}

/// An item on the current list can neither be put there again nor be deleted from the catalogue.
void frmMasterShoppingList::EnableCart(bool enabled)
{
    ui.pnlAddToCurrent->setEnabled(enabled);
    ui.imgCurrentShoppingList->setEnabled(enabled);
    ui.cmdDeleteFromMaster->setEnabled(enabled);
}

void frmMasterShoppingList::Clear()
{
    MasterItemRecord none;
    none.Store = ui.cboStoreList->currentText();
    ShowFields(none);
    ui.lblSelected->clear();
    ui.lstMasterShopper->SetListIndex(-1);
    FocusOn(ui.txtItem); // before the button that may have it is disabled
    ui.cmdDeleteFromMaster->setEnabled(false);
    ui.cmdSaveChanges->setEnabled(false);
    ui.cmdClear->setEnabled(false);
}

ItemEntry frmMasterShoppingList::Entry() const
{
    return {ui.txtItem->text(), ui.txtUnit->text(), ui.txtUnitPrice->text(), ui.txtStore->text(),
            ui.chkTaxCode->isChecked()};
}

void frmMasterShoppingList::AddItem()
{
    Shopping.AddItemAccepted = false;
    {
        const QScopedValueRollback asking(m_asksForItem, true);
        TheWindows.ShowModal(WindowName::frmAddItem);
    }
    if (!Shopping.AddItemAccepted)
        return;
    bool added = false;
    const auto done = qScopeGuard([&] {
        Shopping.AddItemAccepted = false;
        if (!added) // the user keeps what was typed, apart from the item that was selected, which it must not replace
            StandOnNoItem();
    });
    added = AddItemAndSave(RecordOf(Entry()));
    if (!added)
        return;
    const QString store = ui.txtStore->text();
    FillShelf(store);
    if (!ui.cboStoreList->Items().contains(store))
        FillStoreCombo(*ui.cboStoreList);
    ui.cboStoreList->SetListIndex(ui.cboStoreList->findText(store)); // another store is chosen by that
    NameStore(store);
    Clear();
}

void frmMasterShoppingList::SaveChanges()
{
    const ItemEntry entry = Entry();
    if (const auto refusal = ValidateItem(entry)) {
        Refuse(refusal->Text, findChild<QWidget *>(refusal->Focus));
        return;
    }
    const bool onList = ui.lblSelected->text() == OnList;
    // Where it cannot be saved, the window stays as it is, so that the user can try again.
    if (!ChangeItemAndSave(AtHandWith(entry), onList))
        return;
    FocusOn(ui.lstMasterShopper); // or the toolkit moves it on from the disabled button to the next one
    FillShelf(entry.Store);
    if (!ui.cboStoreList->Items().contains(entry.Store))
        FillStoreCombo(*ui.cboStoreList);
    // The next click on an item looks for it at the store of the drop-down list, and coming back to this window at the
    // selected item: both stay with what is shown, or another record would be changed or deleted.
    FollowStore(entry.Store);
    StandOn(entry.Item);
    TellWhetherOnList();
    if (onList)
        FillCurrentShoppingGrid();
    ui.cmdDeleteFromMaster->setEnabled(false);
    NameStore(entry.Store);
    ui.cmdSaveChanges->setEnabled(false);
}

void frmMasterShoppingList::DeleteItem()
{
    if (!DeleteItemAndSave())
        return;
    const QString store = ui.txtStore->text();
    FillShelf(store);
    if (!HasItemsAt(store))
        FillStoreCombo(*ui.cboStoreList); // a store goes with its last item
    FollowStore(store);
    NameStore(store);
    Clear();
}

/// What the drop on the cart does, and the key and the menu: the fields as they stand go on the current list, so that a
/// change that is not saved goes there and not into the catalogue.
void frmMasterShoppingList::PutInCart()
{
    if (!ui.imgCurrentShoppingList->isEnabled() || ui.lstMasterShopper->ListIndex() < 0)
        return;
    Trap([this] {
        if (!PutOnCurrentList(AtHandWith(Entry())))
            return;
        ui.lblSelected->setText(OnList);
        if (FocusControl() == ui.imgCurrentShoppingList)
            FocusOn(ui.lstMasterShopper); // likewise
        EnableCart(false);
        if (const Form *list = TheWindows.Loaded(WindowName::frmCurrentShoppingList); list && list->isVisible())
            Q_EMIT TheShoppingDoors.CurrentListChanged(); // whoever has it beside this window sees the new line
        ShowMessage(u"%1 added to Current Shopping List!"_s.arg(ui.lstMasterShopper->SelectedText()), Title,
                    Icon::Information, Buttons::Ok);
    });
}

/// The catalogue was changed in another window.
void frmMasterShoppingList::FillAgain()
{
    const bool selected = ui.lstMasterShopper->ListIndex() >= 0;
    const QString item = ui.lstMasterShopper->SelectedText();
    FillMasterItemList();
    if (selected)
        StandOn(item);
}

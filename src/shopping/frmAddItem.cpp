#include "shopping/frmAddItem.h"

#include "foundation/WindowNames.h"
#include "platform/controls/Fields.h"
#include "platform/values/Format.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/ShoppingState.h"
#include "shopping/StoreCombo.h"

#include <QCheckBox>

using namespace Qt::Literals::StringLiterals;

namespace {

template <class Control>
Control &OfMasterList(const QString &name)
{
    return TheWindows.ControlOf<Control>(WindowName::frmMasterShoppingList, name);
}

} // namespace

frmAddItem::frmAddItem() : Window({.Title = u"Add Item"_s, .TheIcon = Icon::Warning})
{
    ui.cboStoreList->setCompleter(nullptr); // a store's name is kept as it is typed
    for (const QLineEdit *field : {ui.txtItem, ui.txtUnit, ui.txtUnitPrice})
        connect(field, &QLineEdit::textChanged, this, &frmAddItem::EnableOk);
    connect(ui.cboStoreList, &QComboBox::editTextChanged, this, &frmAddItem::EnableOk);
    connect(ui.cboStoreList, &DropDownList::Click, this, &frmAddItem::EnableOk);
    OnClick(ui.cmdOK, [this] { Accept(); });
    UnloadOn(ui.cmdCancel);
    EnterRing({ui.txtItem, ui.txtUnit, ui.txtUnitPrice});
    OnEnter(ui.txtUnitPrice, [this] {
        FocusOn(ui.cboStoreList);
        ui.cboStoreList->lineEdit()->selectAll();
    });
    OnEnter(ui.cboStoreList, [this] { FocusOn(ui.txtItem); });
    CurrencyWhenLeft({ui.txtUnitPrice});
}

void frmAddItem::Load()
{
    FillStoreCombo(*ui.cboStoreList);
    ui.txtItem->clear();
    ui.txtUnit->clear();
    ui.txtUnitPrice->setText(FormatCurrency({}));
    ui.chkTaxCode->setChecked(false);
}

ItemEntry frmAddItem::Entry() const
{
    return {ui.txtItem->text(), ui.txtUnit->text(), ui.txtUnitPrice->text(), ui.cboStoreList->currentText(),
            ui.chkTaxCode->isChecked()};
}

void frmAddItem::EnableOk()
{
    const ItemEntry entry = Entry();
    ui.cmdOK->setEnabled(!entry.Item.isEmpty() && !entry.Unit.isEmpty() && !entry.UnitPrice.isEmpty() &&
                         !entry.Store.isEmpty());
}

void frmAddItem::Accept()
{
    const ItemEntry entry = Entry();
    if (const auto refusal = ValidateNewItem(entry)) {
        Refuse(refusal->Text, findChild<QWidget *>(refusal->Focus));
        return;
    }
    // The rules let a number pass that is more than money can be: it is mended here, before the dialog is gone.
    bool isMoney = false;
    Trap([&] {
        RecordOf(entry);
        isMoney = true;
    });
    if (!isMoney)
        return FocusOn(ui.txtUnitPrice);
    OfMasterList<QLineEdit>(u"txtItem"_s).setText(entry.Item);
    OfMasterList<QLineEdit>(u"txtUnit"_s).setText(entry.Unit);
    OfMasterList<QLineEdit>(u"txtUnitPrice"_s).setText(entry.UnitPrice);
    OfMasterList<QLineEdit>(u"txtStore"_s).setText(entry.Store);
    OfMasterList<QCheckBox>(u"chkTaxCode"_s).setChecked(entry.Taxable);
    Shopping.AddItemAccepted = true;
    Close();
}

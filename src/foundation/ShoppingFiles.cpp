#include "foundation/ShoppingFiles.h"

#include "foundation/FileRoutine.h"
#include "foundation/State.h"
#include "platform/desk/Desk.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void MasterFields(auto &file)
{
    const auto redim = [] { State.MasterShoppingList.Redim(State.NumberOfMasterItems); };
    file.List(State.NumberOfMasterItems, redim, [&](int i) {
        MasterItemRecord &item = State.MasterShoppingList(i);
        file.Value(item.Item);
        file.Value(item.Unit);
        file.ByText(item.UnitPrice);
        file.Value(item.Store);
        file.Value(item.Taxable);
    });
}

void CurrentFields(auto &file)
{
    const auto redim = [] { State.CurrentShoppingList.Redim(State.NumberOfCurrentItems); };
    file.List(State.NumberOfCurrentItems, redim, [&](int i) {
        CurrentItemRecord &item = State.CurrentShoppingList(i);
        file.Value(item.Item);
        file.Value(item.Unit);
        file.ByText(item.UnitPrice);
        file.Value(item.Store);
        file.ByText(item.Quantity);
        file.Value(item.Taxable);
        file.ByText(item.CouponValue);
        file.Value(item.FullPrice);
    });
}

QString MasterPath()
{
    return State.ApplicationPath + u"\\mastshop.txt"_s;
}

QString CurrentPath()
{
    return State.StoresDirectory + State.CurrentStoreFile;
}

} // namespace

void InputMasterShoppingList()
{
    LoadFile(u"Input Master Shopping List"_s, MasterPath(), MasterFields<Loader>);
}

void InputCurrentShoppingList()
{
    LoadFile(u"Input Current Shopping List"_s, CurrentPath(), CurrentFields<Loader>);
}

bool SaveMasterShoppingList()
{
    // Not asked whether it is there: a missing catalogue is an error, a missing store list is not.
    return SaveFile(u"Save Master Shopping List"_s, MasterPath(), OldFile::MustExist, MasterFields<ListWriter>);
}

bool SaveCurrentShoppingList()
{
    return SaveFile(u"Save Current Shopping List"_s, CurrentPath(), OldFile::MayBeMissing, CurrentFields<ListWriter>);
}

bool AcceptsListName(const QString &name, const QString &title)
{
    if (!name.contains(u'"'))
        return true;
    ShowMessage(u"The name of a list cannot have a quotation mark in it"_s, title, Icon::Warning, Buttons::Ok);
    return false;
}

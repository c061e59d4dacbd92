#include "foundation/ShoppingFiles.h"

#include "foundation/FileRoutine.h"
#include "foundation/State.h"

namespace {

QString MasterPath()
{
    return State.ApplicationPath + QStringLiteral("\\mastshop.txt");
}

QString CurrentPath()
{
    return State.StoresDirectory + State.CurrentStoreFile;
}

} // namespace

void InputMasterShoppingList()
{
    Loader loader(QStringLiteral("Input Master Shopping List"), MasterPath());
    loader.Read(State.NumberOfMasterItems);
    if (State.NumberOfMasterItems == 0)
        return;
    loader.Step([](InputFile &) { State.MasterShoppingList.Redim(State.NumberOfMasterItems); });
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        MasterItemRecord &item = State.MasterShoppingList(i);
        loader.Read(item.Item);
        loader.Read(item.Unit);
        loader.ReadByText(item.UnitPrice);
        loader.Read(item.Store);
        loader.Read(item.Taxable);
    }
}

void InputCurrentShoppingList()
{
    Loader loader(QStringLiteral("Input Current Shopping List"), CurrentPath());
    loader.Read(State.NumberOfCurrentItems);
    if (State.NumberOfCurrentItems == 0)
        return;
    loader.Step([](InputFile &) { State.CurrentShoppingList.Redim(State.NumberOfCurrentItems); });
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        CurrentItemRecord &item = State.CurrentShoppingList(i);
        loader.Read(item.Item);
        loader.Read(item.Unit);
        loader.ReadByText(item.UnitPrice);
        loader.Read(item.Store);
        loader.ReadByText(item.Quantity);
        loader.Read(item.Taxable);
        loader.ReadByText(item.CouponValue);
        loader.Read(item.FullPrice);
    }
}

void SaveMasterShoppingList()
{
    // Not asked whether it is there: a missing catalogue is an error, a missing store list is not.
    RunWriter(QStringLiteral("Save Master Shopping List"), MasterPath(), OldFile::MustExist, [](OutputFile &file) {
        file.Write(State.NumberOfMasterItems);
        for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
            const MasterItemRecord &item = State.MasterShoppingList(i);
            file.Write(item.Item);
            file.Write(item.Unit);
            file.Write(item.UnitPrice);
            file.Write(item.Store);
            file.Write(item.Taxable);
        }
    });
}

void SaveCurrentShoppingList()
{
    RunWriter(QStringLiteral("Save Current Shopping List"), CurrentPath(), OldFile::MayBeMissing, [](OutputFile &file) {
        file.Write(State.NumberOfCurrentItems);
        for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
            const CurrentItemRecord &item = State.CurrentShoppingList(i);
            file.Write(item.Item);
            file.Write(item.Unit);
            file.Write(item.UnitPrice);
            file.Write(item.Store);
            file.Write(item.Quantity);
            file.Write(item.Taxable);
            file.Write(item.CouponValue);
            file.Write(item.FullPrice);
        }
    });
}

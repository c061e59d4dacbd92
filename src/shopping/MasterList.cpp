#include "shopping/MasterList.h"

#include "foundation/Compaction.h"
#include "foundation/OneMore.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "shopping/CurrentList.h"
#include "shopping/ListEdit.h"
#include "shopping/ShoppingState.h"

#include <QSet>
#include <map>
#include <tuple>

namespace {

/// The last line of an item of a store by what else must be equal: unit, price in ten-thousandths and tax.
using LinesByRest = std::map<std::tuple<QString, qint64, bool>, qint16>;

auto RestOf(const auto &record)
{
    return std::make_tuple(record.Unit, record.UnitPrice.TenThousandths(), record.Taxable);
}

LinesByRest LinesOf(const QString &item, const QString &store)
{
    LinesByRest lines;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        if (const CurrentItemRecord &line = State.CurrentShoppingList(i); line.Item == item && line.Store == store)
            lines[RestOf(line)] = qint16(i);
    return lines;
}

void CopyToLine(const MasterItemRecord &item, CurrentItemRecord &line)
{
    line.Item = item.Item;
    line.Unit = item.Unit;
    line.UnitPrice = item.UnitPrice;
    line.Store = item.Store;
    line.Taxable = item.Taxable;
}

} // namespace

QStringList DistinctStores()
{
    QSet<QString> seen;
    QStringList stores;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        const QString &store = State.MasterShoppingList(i).Store;
        if (seen.contains(store))
            continue;
        seen += store;
        stores += store;
    }
    std::stable_sort(stores.begin(), stores.end(), [](const QString &left, const QString &right) {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    });
    return stores;
}

QStringList ItemsAt(const QString &store)
{
    QStringList items;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i)
        if (const MasterItemRecord &record = State.MasterShoppingList(i); record.Store == store)
            items += record.Item;
    return items;
}

bool HasItemsAt(const QString &store)
{
    for (int i = 1; i <= State.NumberOfMasterItems; ++i)
        if (State.MasterShoppingList(i).Store == store)
            return true;
    return false;
}

std::optional<bool> FindItem(const QString &item, const QString &store)
{
    QList<qint16> matches;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i)
        if (const MasterItemRecord &record = State.MasterShoppingList(i); record.Item == item && record.Store == store)
            matches += qint16(i);
    if (matches.isEmpty())
        return {};
    Shopping.MasterItemIndex = matches.last();
    const LinesByRest lines = LinesOf(item, store);
    const auto lineOf = [&](int record) { return lines.find(RestOf(State.MasterShoppingList(record))); };
    for (auto match = matches.crbegin(); match != matches.crend(); ++match)
        if (const auto line = lineOf(*match); line != lines.end()) {
            Shopping.CurrentItemIndex = line->second;
            break;
        }
    return lineOf(matches.last()) != lines.end();
}

bool FindLineOf(const MasterItemRecord &item)
{
    const LinesByRest lines = LinesOf(item.Item, item.Store);
    const auto line = lines.find(RestOf(item));
    if (line == lines.end())
        return false;
    Shopping.CurrentItemIndex = line->second;
    return true;
}

MasterItemRecord RecordOf(const ItemEntry &entry)
{
    return {entry.Item, entry.Unit, ToCurrency(entry.UnitPrice), entry.Store, entry.Taxable};
}

MasterItemRecord AtHandWith(const ItemEntry &entry)
{
    const qint16 index = Shopping.MasterItemIndex;
    const bool isRecord = index >= 1 && index <= State.NumberOfMasterItems;
    if (!isRecord || entry.UnitPrice != FormatCurrency(State.MasterShoppingList(index).UnitPrice))
        return RecordOf(entry);
    return {entry.Item, entry.Unit, State.MasterShoppingList(index).UnitPrice, entry.Store, entry.Taxable};
}

std::optional<Refusal> ValidateItem(const ItemEntry &entry)
{
    return FirstFailure({
        {IsNumeric(entry.UnitPrice), "Unit Price does not contain a valid currency amount", "txtUnitPrice"},
        {!entry.Item.isEmpty(), "Please enter an item name or description in the Item field", "txtItem"},
        {!entry.Unit.isEmpty(), "Please enter a unit (loaf, pound, etc.) in the Unit field", "txtUnit"},
    });
}

std::optional<Refusal> ValidateNewItem(const ItemEntry &entry)
{
    if (auto refusal = ValidateItem(entry))
        return refusal;
    // The focus goes to the unit although the store is missing: a habit of this window that its users know.
    return FirstFailure(
        {{!entry.Store.isEmpty(),
          "Please enter a new store or select an existing store from the combo box in the Store field", "txtUnit"}});
}

void AddMasterItem(const MasterItemRecord &item)
{
    const qint16 count = OneMore(State.NumberOfMasterItems);
    State.MasterShoppingList.RedimPreserve(count);
    State.NumberOfMasterItems = count;
    State.MasterShoppingList(count) = item;
}

void ChangeMasterItem(const MasterItemRecord &item)
{
    // A file that holds no items leaves the records of before in the list.
    if (Shopping.MasterItemIndex > State.NumberOfMasterItems)
        RaiseError(RuntimeError::SubscriptOutOfRange);
    State.MasterShoppingList(Shopping.MasterItemIndex) = item;
}

void DeleteMasterItem()
{
    if (State.NumberOfMasterItems < 2) {
        State.MasterShoppingList.Redim(0);
        State.NumberOfMasterItems = 0;
        return;
    }
    DeleteByMark(State.MasterShoppingList, State.NumberOfMasterItems, Shopping.MasterItemIndex,
                 &MasterItemRecord::Item);
}

bool AddItemAndSave(const MasterItemRecord &item)
{
    auto edit = CatalogueEdit();
    AddMasterItem(item);
    return edit.SaveAndReadBack();
}

bool ChangeItemAndSave(const MasterItemRecord &item, bool onCurrentList)
{
    CurrentItemRecord line;
    if (onCurrentList) {
        line = State.CurrentShoppingList(Shopping.CurrentItemIndex);
        CopyToLine(item, line);
        CheckBillWith(line, Shopping.CurrentItemIndex);
    }
    auto edit = CatalogueEdit();
    ChangeMasterItem(item);
    if (!edit.SaveAndReadBack())
        return false;
    if (onCurrentList) {
        auto listEdit = CurrentListEdit();
        State.CurrentShoppingList(Shopping.CurrentItemIndex) = line;
        SortCurrentShoppingList();
        listEdit.SaveAndReadBack();
    }
    return true;
}

bool DeleteItemAndSave()
{
    auto edit = CatalogueEdit();
    DeleteMasterItem();
    return edit.SaveAndReadBack();
}

bool PutOnCurrentList(const MasterItemRecord &item)
{
    OneMore(State.NumberOfCurrentItems); // a list that is full raises its error before a file is written
    SaveMasterShoppingList();
    auto edit = CurrentListEdit();
    AddCurrentItem(item);
    const qint16 count = State.NumberOfCurrentItems;
    const CurrentItemRecord added = State.CurrentShoppingList(count);
    SortCurrentShoppingList();
    // The sort keeps the order of equal names, so the line that came last is the last one that is equal to it.
    int place = count;
    while (State.CurrentShoppingList(place) != added)
        --place;
    if (!edit.SaveAndReadBack())
        return false;
    // It is the line at hand from now on, or the next change to the item would be written into another one.
    Shopping.CurrentItemIndex = qint16(place);
    return true;
}

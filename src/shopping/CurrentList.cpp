#include "shopping/CurrentList.h"

#include "foundation/Compaction.h"
#include "foundation/OneMore.h"
#include "platform/values/Format.h"
#include "platform/values/Numbers.h"
#include "shopping/ListEdit.h"
#include "shopping/ShoppingState.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

Currency ComputeFullPrice(const CurrentItemRecord &line)
{
    const float taxed = line.Taxable ? 1 : 0;
    const double rate = taxed * State.SalesTax;
    const double price = line.UnitPrice.ToDouble();
    const double tax = price * rate; // of one unit, whatever the quantity
    return Currency::FromDouble(price * double(line.Quantity) + tax) - line.CouponValue;
}

void CheckBillWith(const CurrentItemRecord &line, int index)
{
    Currency bill = ComputeFullPrice(line);
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        if (i != index)
            bill += ComputeFullPrice(State.CurrentShoppingList(i));
}

double TaxOfWholeQuantity(const CurrentItemRecord &line)
{
    return line.UnitPrice.ToDouble() * double(line.Quantity) * double(State.SalesTax);
}

void PriceCurrentList()
{
    Shopping.TotalGroceryBill = {};
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        CurrentItemRecord &line = State.CurrentShoppingList(i);
        line.FullPrice = ComputeFullPrice(line);
        Shopping.TotalGroceryBill += line.FullPrice;
    }
}

QStringList CurrentListRow(const CurrentItemRecord &line)
{
    return {line.Item,
            line.Unit,
            FormatCurrency(line.UnitPrice),
            line.Store,
            Format(line.Quantity, NumberFormat::Standard),
            line.Taxable ? u"Y"_s : u"N"_s,
            FormatCurrency(line.CouponValue),
            FormatCurrency(line.FullPrice)};
}

void SortCurrentShoppingList()
{
    struct KeyedLine {
        QString Key;
        CurrentItemRecord Line;
    };
    std::vector<KeyedLine> lines;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        lines.push_back({State.CurrentShoppingList(i).Item.toLower(), State.CurrentShoppingList(i)});
    std::stable_sort(lines.begin(), lines.end(),
                     [](const KeyedLine &one, const KeyedLine &other) { return one.Key < other.Key; });
    int place = 0;
    for (KeyedLine &line : lines)
        State.CurrentShoppingList(++place) = std::move(line.Line);
}

bool SelectCurrentItem(int row)
{
    const qint16 index = ToInteger(row);
    if (index > State.NumberOfCurrentItems) {
        Shopping.CurrentItemIndex = index;
        return false;
    }
    const CurrentItemRecord &line = State.CurrentShoppingList(index);
    Shopping.CurrentItemIndex = index;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        const MasterItemRecord &item = State.MasterShoppingList(i);
        if (item.Item == line.Item && item.Store == line.Store)
            Shopping.MasterItemIndex = qint16(i); // the last match stands
    }
    return true;
}

void AddCurrentItem(const MasterItemRecord &item)
{
    const CurrentItemRecord line{.Item = item.Item,
                                 .Unit = item.Unit,
                                 .UnitPrice = item.UnitPrice,
                                 .Store = item.Store,
                                 .Quantity = 1,
                                 .Taxable = item.Taxable,
                                 .CouponValue = {},
                                 .FullPrice = item.UnitPrice};
    const qint16 count = OneMore(State.NumberOfCurrentItems);
    CheckBillWith(line, count);
    State.CurrentShoppingList.RedimPreserve(count);
    State.NumberOfCurrentItems = count;
    State.CurrentShoppingList(count) = line;
}

void ChangeCurrentItem(const CurrentItemEntry &entry)
{
    CurrentItemRecord &atHand = State.CurrentShoppingList(Shopping.CurrentItemIndex);
    // A text shows fewer decimals than its value may have. One that was not touched stands for the value.
    const auto amount = [](const QString &text, Currency before) {
        return text == FormatCurrency(before) ? before : ToCurrency(text);
    };
    const bool sameQuantity = entry.Quantity == ShownText(atHand.Quantity);
    CurrentItemRecord line{.Item = entry.Item,
                           .Unit = entry.Unit,
                           .UnitPrice = amount(entry.UnitPrice, atHand.UnitPrice),
                           .Store = entry.Store,
                           .Quantity = sameQuantity ? atHand.Quantity : ToSingle(entry.Quantity),
                           .Taxable = entry.TaxCode != u"N"_s,
                           .CouponValue = amount(entry.CouponValue, atHand.CouponValue),
                           .FullPrice = {}};
    line.FullPrice = Currency::FromDouble(line.UnitPrice.ToDouble() * double(line.Quantity)) - line.CouponValue;
    CheckBillWith(line, Shopping.CurrentItemIndex);
    atHand = line;
}

bool HasItsRecordAtHand(const CurrentItemRecord &line)
{
    if (Shopping.MasterItemIndex < 1 || Shopping.MasterItemIndex > State.NumberOfMasterItems)
        return false;
    const MasterItemRecord &item = State.MasterShoppingList(Shopping.MasterItemIndex);
    return item.Item == line.Item && item.Store == line.Store;
}

void CopyLineToCatalogue()
{
    const CurrentItemRecord &line = State.CurrentShoppingList(Shopping.CurrentItemIndex);
    State.MasterShoppingList(Shopping.MasterItemIndex) = {.Item = line.Item,
                                                          .Unit = line.Unit,
                                                          .UnitPrice = line.UnitPrice,
                                                          .Store = line.Store,
                                                          .Taxable = line.Taxable};
}

bool ChangeLineAndSave(const CurrentItemEntry &entry)
{
    auto listEdit = CurrentListEdit();
    auto catalogueEdit = CatalogueEdit();
    const bool hasRecord = HasItsRecordAtHand(State.CurrentShoppingList(Shopping.CurrentItemIndex));
    ChangeCurrentItem(entry);
    if (hasRecord)
        CopyLineToCatalogue();
    SortCurrentShoppingList();
    if (!listEdit.SaveAndReadBack()) {
        catalogueEdit.Undo();
        return false;
    }
    if (hasRecord)
        catalogueEdit.SaveAndReadBack();
    return true;
}

void DeleteCurrentItem()
{
    if (State.NumberOfCurrentItems < 2)
        return ClearCurrentList();
    DeleteByMark(State.CurrentShoppingList, State.NumberOfCurrentItems, Shopping.CurrentItemIndex,
                 &CurrentItemRecord::Item);
}

bool DeleteLineAndSave()
{
    auto edit = CurrentListEdit();
    DeleteCurrentItem();
    return edit.Save();
}

void ClearCurrentList()
{
    State.CurrentShoppingList.Redim(0);
    State.NumberOfCurrentItems = 0;
}

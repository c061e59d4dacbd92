// What the tests of the master shopping list share: a catalogue, a list, and both as they stand in memory and file.
#pragma once

#include "foundation/State.h"
#include "shopping/ShoppingState.h"

#include <QStringList>

inline Currency Cents(qint64 cents)
{
    return Currency::FromTenThousandths(100 * cents);
}

inline void TakeCatalogue(const std::vector<MasterItemRecord> &items)
{
    State.NumberOfMasterItems = qint16(items.size());
    State.MasterShoppingList.Redim(int(items.size()));
    std::copy(items.begin(), items.end(), State.MasterShoppingList.begin());
}

inline void TakeLines(const std::vector<CurrentItemRecord> &lines)
{
    State.NumberOfCurrentItems = qint16(lines.size());
    State.CurrentShoppingList.Redim(int(lines.size()));
    std::copy(lines.begin(), lines.end(), State.CurrentShoppingList.begin());
}

/// The line of an item.
inline CurrentItemRecord LineOf(const MasterItemRecord &item, float quantity = 1, Currency coupon = {},
                                Currency fullPrice = {})
{
    return {item.Item, item.Unit, item.UnitPrice, item.Store, quantity, item.Taxable, coupon, fullPrice};
}

/// The catalogue, item by item: "Milk gallon 2.99 Corner N".
inline QStringList Catalogue()
{
    QStringList items;
    for (int i = 1; i <= State.NumberOfMasterItems; ++i) {
        const MasterItemRecord &item = State.MasterShoppingList(i);
        items += QStringLiteral("%1 %2 %3 %4 %5")
                     .arg(item.Item, item.Unit, QString::number(item.UnitPrice.ToDouble()), item.Store,
                          item.Taxable ? QStringLiteral("Y") : QStringLiteral("N"));
    }
    return items;
}

/// The current list, line by line: "Milk gallon 2.99 Corner N x1 -0 =2.99".
inline QStringList Lines()
{
    QStringList lines;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        const CurrentItemRecord &line = State.CurrentShoppingList(i);
        lines += QStringLiteral("%1 %2 %3 %4 %5 x%6 -%7 =%8")
                     .arg(line.Item, line.Unit, QString::number(line.UnitPrice.ToDouble()), line.Store,
                          line.Taxable ? QStringLiteral("Y") : QStringLiteral("N"))
                     .arg(double(line.Quantity))
                     .arg(line.CouponValue.ToDouble())
                     .arg(line.FullPrice.ToDouble());
    }
    return lines;
}

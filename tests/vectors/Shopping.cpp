// The current shopping list: its order, what its lines come to, its window and its printed page.
#include "Cases.h"

#include "Hand.h"
#include "RecordingDesk.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/WindowNames.h"
#include "platform/controls/Grid.h"
#include "platform/values/Numbers.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/CurrentList.h"
#include "shopping/ShoppingState.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {

void TakeLines(const QJsonArray &items)
{
    State.NumberOfCurrentItems = qint16(items.size());
    State.CurrentShoppingList.Redim(int(items.size()));
    int place = 0;
    for (const QJsonValue item : items) {
        const auto amount = [&](const char *name) {
            return Currency::FromTenThousandths(item[QLatin1String(name)].toInteger());
        };
        State.CurrentShoppingList(++place) = {.Item = item[u"Item"].toString(),
                                              .Unit = item[u"Unit"].toString(),
                                              .UnitPrice = amount("UnitPrice"),
                                              .Store = item[u"Store"].toString(),
                                              .Quantity = ToSingle(item[u"Quantity"].toString(), Dialect::File),
                                              .Taxable = item[u"Taxable"].toBool(),
                                              .CouponValue = amount("CouponValue"),
                                              .FullPrice = {}};
    }
}

QJsonObject ToldLine(const CurrentItemRecord &line)
{
    return {{u"Item"_s, line.Item},
            {u"Unit"_s, line.Unit},
            {u"UnitPrice"_s, Told(line.UnitPrice)},
            {u"Store"_s, line.Store},
            {u"Quantity"_s, PlainText(line.Quantity)},
            {u"Taxable"_s, line.Taxable},
            {u"CouponValue"_s, Told(line.CouponValue)}};
}

/// The rows below the heading that hold a line.
QJsonArray ToldRows(const Grid &grid)
{
    QJsonArray rows;
    for (int row = 1; row < grid.Rows() - 1; ++row) {
        QStringList cells;
        for (int column = 0; column < grid.Columns(); ++column)
            cells += grid.Text(row, column);
        rows += Told(cells);
    }
    return rows;
}

} // namespace

/// The list lies sorted in its file, is read from there, shown and printed.
QJsonValue RunShoppingCase(const QJsonObject &input, RecordingDesk &desk)
{
    desk.LayHousehold();
    const QString window = WindowName::frmCurrentShoppingList;
    State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
    State.CurrentStoreFile = input[u"CurrentStoreFile"].toString();
    State.SalesTax = ToSingle(input[u"SalesTax"].toString(), Dialect::File);
    TakeLines(input[u"items"].toArray());
    SortCurrentShoppingList();
    SaveCurrentShoppingList();
    State.CurrentShoppingList.Redim(0);
    InputCurrentShoppingList();
    QJsonArray sorted;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        sorted += ToldLine(State.CurrentShoppingList(i));

    Open(window);
    QJsonArray fullPrices;
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i)
        fullPrices += Told(State.CurrentShoppingList(i).FullPrice);
    QJsonObject told{
        {u"sorted"_s, sorted},
        {u"FullPrice"_s, fullPrices},
        {u"grid"_s, ToldRows(GridIn(window, u"grdCurrentShoppingList"_s))},
        {u"TotalGroceryBill"_s, Told(Shopping.TotalGroceryBill)},
        {u"TotalGroceryBill_text"_s, TheWindows.ControlOf<QLabel>(window, u"lblTotalGroceryBill"_s).text()}};
    Press(window, u"cmdPrint"_s);
    told[u"printed"_s] = Told(desk.TakePrinted().Lines);
    return told;
}

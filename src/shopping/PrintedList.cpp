#include "shopping/PrintedList.h"

#include "foundation/Identity.h"
#include "foundation/StartAndEnd.h"
#include "platform/values/Format.h"
#include "shopping/CurrentList.h"
#include "shopping/ShoppingState.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int AmountsEnd = 65; // just before this column
constexpr int RuleLength = 70;

void PrintAmount(Currency amount)
{
    const QString text = FormatCurrency(amount);
    ThePrinter.Tab(AmountsEnd - int(text.size())).Print(text).NewLine();
}

QString Arithmetic(const CurrentItemRecord &line)
{
    QString text = Format(line.Quantity, NumberFormat::GeneralNumber) + u' ' + line.Unit + u" @ "_s +
                   FormatCurrency(line.UnitPrice) + u" each"_s;
    if (line.Taxable)
        text += u" + Tax("_s + Format(TaxOfWholeQuantity(line), NumberFormat::Currency) + u')';
    if (line.CouponValue != Currency())
        text += u" - Coupon("_s + FormatCurrency(line.CouponValue) + u')';
    return text;
}

} // namespace

void PrintShoppingList()
{
    PriceCurrentList();
    ApplyPrintSettings();
    ThePrinter.DocumentName = u"Shopping List"_s;
    for (const QString &heading : {ReportTitle, State.CurrentStoreFile.toUpper()}) {
        ThePrinter.CentredLine(heading);
        ThePrinter.NewLine();
    }
    for (int i = 1; i <= State.NumberOfCurrentItems; ++i) {
        const CurrentItemRecord &line = State.CurrentShoppingList(i);
        ThePrinter.Print(QString::number(i) + u") "_s + line.Item).NewLine();
        ThePrinter.Tab(3).Print(Arithmetic(line));
        PrintAmount(line.FullPrice);
        ThePrinter.NewLine();
    }
    ThePrinter.RuleLine(1, RuleLength);
    ThePrinter.NewLine();
    ThePrinter.Print(u"Total Grocery Bill"_s);
    PrintAmount(Shopping.TotalGroceryBill);
    ThePrinter.EndDoc();
}

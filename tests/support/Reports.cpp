#include "Reports.h"

#include "GuiDesk.h"
#include "budget/BudgetGenerator.h"
#include "commitments/Projects.h"
#include "debt/PayOffPlan.h"
#include "platform/values/Format.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(double amount)
{
    return Currency::FromDouble(amount);
}

/// The cells of a grid, row by row, without the empty ones.
QStringList CellsOf(const QString &window, const QString &name, int fromColumn = 0)
{
    const auto &grid = Find<Grid>(window, name);
    QStringList cells;
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = fromColumn; column < grid.Columns(); ++column)
            if (!grid.Text(row, column).isEmpty())
                cells += grid.Text(row, column);
    return cells;
}

PrintedReport Taken(FakeDesk &desk, const QString &window, const QStringList &screen)
{
    TheWindows.Unload(window);
    Settle();
    return {screen, desk.TakePrinted()};
}

PrintedReport PrintBudget(FakeDesk &desk)
{
    const QString window = u"frmBudget"_s;
    Show(window);
    Click(window, u"pbPrintOn"_s);
    QStringList screen;
    for (int run = 0; run < 4; ++run) { // two pay periods, each looked ahead from
        Click(window, u"cmdBudget"_s);
        screen += QStringList{ReportTitle, TextOf(window, u"lblHeading"_s)} + CellsOf(window, u"grdBudget"_s);
    }
    Click(window, u"pbPrintOff"_s);
    return Taken(desk, window, screen);
}

PrintedReport PrintTheOverhead(FakeDesk &desk)
{
    const QString window = u"frmMonthlyOverhead"_s;
    Show(window);
    Click(window, u"cmdPrint"_s);
    return Taken(desk, window, QStringList{ReportTitle, u"OVERHEAD"_s} + CellsOf(window, u"grdOverhead"_s));
}

PrintedReport PrintForecast(FakeDesk &desk)
{
    const QString window = u"frmSavingsForecast"_s;
    State.PrintSavingsForecast = true;
    Show(window);
    constexpr int withoutNumbers = 1;
    return Taken(desk, window,
                 QStringList{ReportTitle, u"SAVINGS FORECAST"_s} +
                     CellsOf(window, u"grdSavingsForecast"_s, withoutNumbers));
}

PrintedReport PrintTheProject(FakeDesk &desk)
{
    const QString window = u"frmViewProject"_s;
    Projects.SelectedProject = 1;
    State.PrintProjectView = true;
    Show(window);
    return Taken(desk, window,
                 QStringList{ReportTitle, TheWindows.Loaded(window)->windowTitle()} +
                     CellsOf(window, u"grdViewProject"_s));
}

PrintedReport PrintPayOff(FakeDesk &desk)
{
    const QString window = u"frmPayOff"_s;
    Show(window);
    Click(window, u"pbPrintOn"_s);
    const PayOffEntry debts[] = {{u"Car"_s, u"5,250"_s, u"6.9"_s, u"260"_s, u"1/15/2004"_s},
                                 {u"Credit card"_s, u"1,300.50"_s, u"18"_s, u"120"_s, u"1/5/2004"_s}};
    RedimPayOffCreditors(QString::number(std::size(debts)));
    for (int i = 0; i < int(std::size(debts)); ++i)
        StorePayOffCreditor(i + 1, debts[i]);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    BuildPayOffPlan();
    Click(window, u"pbPrintOff"_s);
    QStringList screen{ReportTitle, u"Pay Off Plan"_s};
    for (const QString &line : RowsOf(window, u"lstPayOffInfo"_s))
        if (!line.startsWith(u"Transfer "_s)) // for the screen alone
            screen += TextsOf(line);
    return Taken(desk, window, screen);
}

PrintedReport PrintTheShoppingList(FakeDesk &desk)
{
    const QString window = u"frmCurrentShoppingList"_s;
    Show(window);
    QStringList screen{ReportTitle, u"WEEKLY.LST"_s};
    // Between its cells, what a line says on the page alone: the quantity in plain digits, and its tax.
    const QStringList quantities{u"1250"_s, u"2.5"_s, u"1"_s};
    const QStringList taxes{u" + Tax($52.50)"_s, {}, {}};
    const auto &grid = Find<Grid>(window, u"grdCurrentShoppingList"_s);
    enum Column { Item, Unit, UnitPrice, Store, Quantity, Tax, Coupon, FullPrice };
    for (int row = 1; row <= 3; ++row) {
        const QString coupon = grid.Text(row, Coupon);
        screen += u"%1) %2"_s.arg(row).arg(grid.Text(row, Item));
        screen += quantities[row - 1] + u' ' + grid.Text(row, Unit) + u" @ "_s + grid.Text(row, UnitPrice) +
                  u" each"_s + taxes[row - 1] + (coupon == u"$0.00"_s ? QString() : u" - Coupon("_s + coupon + u')');
        screen += grid.Text(row, FullPrice);
    }
    screen += QStringList{u"Total Grocery Bill"_s, TextOf(window, u"lblTotalGroceryBill"_s)};
    Click(window, u"cmdPrint"_s);
    return Taken(desk, window, screen);
}

} // namespace

const QList<Report> Reports{
    {"Budget", PrintBudget},   {"Overhead", PrintTheOverhead}, {"Savings Forecast", PrintForecast},
    {"Boat", PrintTheProject}, {"Pay Off Plan", PrintPayOff},  {"Shopping List", PrintTheShoppingList},
};

void TakeHouseholdForReports()
{
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.PaycheckAmount = Dollars(1875.5);
    State.PayFrequency = Biweekly;
    State.ForecastPeriods = 26;
    State.SalesTax = 0.06F;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.Creditors = {
        {u"Rent"_s, 1, Dollars(850)}, {u"Car loan"_s, 15, Dollars(244.17)}, {u"Dentist"_s, 20, Dollars(7.5)}};
    State.NumberOfCreditors = 3;
    State.Regulars = {{u"Food"_s, Dollars(260)}, {u"Gas"_s, Dollars(45.25)}};
    State.NumberOfRegulars = 2;
    State.ExtraPayPeriods.Redim(2);
    State.NumberOfExtraPayPeriods = 2;
    State.ExtraPayPeriods(1).PayPeriodDate = u"01-01-2004"_s;
    State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
    State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Birthday"_s, Dollars(33.99)};
    State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Tax refund"_s, Dollars(-412.08)}; // a credit
    State.ExtraPayPeriods(2).PayPeriodDate = u"01-15-2004"_s;
    State.ExtraPayPeriods(2).NumberOfExtraItems = 1;
    State.ExtraPayPeriods(2).ExtraItems.At(1) = {u"New roof"_s, Dollars(12345.67)}; // a deficit
    State.NumberOfProjects = 1;
    State.ProjectNames = {u"Boat"_s};
    State.ProjectAmounts = {Dollars(1500)};
    State.ProjectEntryCounts = {3};
    State.ProjectEntryDates.Redim(1);
    State.ProjectEntryAmounts.Redim(1);
    State.CurrentStoreFile = u"weekly.lst"_s;
    State.CurrentShoppingList = {
        {u"Candles, white"_s, u"box"_s, Dollars(0.7), u"Corner"_s, 1250, true, Dollars(12), {}},
        {u"Milk"_s, u"gallon"_s, Dollars(3.49), u"Corner"_s, 2.5F, false, {}, {}},
        {u"Soap"_s, u"piece"_s, Dollars(1.5), u"Corner"_s, 1, false, Dollars(2), {}}}; // less than nothing
    State.NumberOfCurrentItems = 3;
    const double installments[] = {1234.56, -20.4, 285.84};
    for (int i = 1; i <= 3; ++i) {
        State.ProjectEntryDates(1).At(i) = Format(QDate(2004, 2, 12).addDays(14 * (i - 1)), DateFormat::Dashes);
        State.ProjectEntryAmounts(1).At(i) = Dollars(installments[i - 1]);
    }
}

QStringList TextsOf(const QString &line)
{
    static const QRegularExpression gap(u"  +"_s);
    return line.split(gap, Qt::SkipEmptyParts);
}

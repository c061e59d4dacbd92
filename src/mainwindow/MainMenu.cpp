#include "mainwindow/MainMenu.h"

#include "foundation/State.h"
#include "foundation/WindowNames.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

// A row a line, so that a table is checked at a glance.
// clang-format off
const QList<MenuEntry> &MainMenu()
{
    using namespace WindowName;
    static const QList<MenuEntry> entries{
        {{}, u"mnuFile"_s, u"&File"_s, Command::Submenu, {}, 0, {}},
        {u"mnuFile"_s, u"mnuFileCreditors"_s, u"C&reditors"_s, Command::Open, frmCreditors, 3, {}},
        {u"mnuFile"_s, u"mnuFileRegulars"_s, u"Re&gular Items"_s, Command::Open, frmRegulars, 17, {}},
        {u"mnuFile"_s, u"mnuFileExtras"_s, u"&Extra Items"_s, Command::Open, frmExtras, 6, {}},
        {u"mnuFile"_s, u"mnuFileProjects"_s, u"&Projects"_s, Command::Open, frmProjects, 16, u"Ctrl+J"_s},
        {u"mnuFile"_s, u"FileSeparator"_s, {}, Command::Separator, {}, 0, {}},
        {u"mnuFile"_s, u"mnuFileExit"_s, u"E&xit"_s, Command::Exit, {}, 0, u"Ctrl+X"_s},
        {{}, u"mnuIncome"_s, u"&Income"_s, Command::Submenu, {}, 0, {}},
        {u"mnuIncome"_s, u"mnuIncomeScanPayPeriods"_s, u"&Scan Pay Periods"_s, Command::Open, frmScanPayPeriods, 20, u"F6"_s},
        {u"mnuIncome"_s, u"mnuIncomeAverageNetPercentage"_s, u"&Average Net Percentage"_s, Command::Open, frmAverageNetPercentage, 1, {}},
        {u"mnuIncome"_s, u"mnuIncomeCalculateWages"_s, u"&Calculate Wages"_s, Command::Open, frmCalculateWages, 24, u"F5"_s},
        {{}, u"mnuBudget"_s, u"&Budget"_s, Command::Submenu, {}, 0, {}},
        {u"mnuBudget"_s, u"mnuBudgetCurrentOverhead"_s, u"&Current Overhead"_s, Command::Open, frmMonthlyOverhead, 12, u"Ctrl+O"_s},
        {u"mnuBudget"_s, u"mnuBudgetViewBudget"_s, u"&View Budget"_s, Command::Open, frmBudget, 2, u"Ctrl+B"_s},
        {u"mnuBudget"_s, u"mnuBudgetSavingsForecast"_s, u"&Savings Forecast"_s, Command::SavingsForecast, frmSavingsForecast, 19, u"Ctrl+F"_s},
        {{}, u"mnuShopper"_s, u"&Shopper"_s, Command::Submenu, {}, 0, {}},
        {u"mnuShopper"_s, u"mnuShopperOpenStoreList"_s, u"&Open Store List..."_s, Command::OpenStoreList, {}, 11, {}},
        {u"mnuShopper"_s, u"mnuShopperReviewCurrentList"_s, u"&Review Current List"_s, Command::Open, frmCurrentShoppingList, 4, u"Ctrl+S"_s},
        {u"mnuShopper"_s, u"mnuShopperPrintCurrentList"_s, u"&Print Current List"_s, Command::PrintCurrentList, {}, 14, {}},
        {u"mnuShopper"_s, u"mnuShopperSeparator"_s, {}, Command::Separator, {}, 0, {}},
        {u"mnuShopper"_s, u"mnuShopperMasterShoppingList"_s, u"&Master Shopping List"_s, Command::Open, frmMasterShoppingList, 9, u"Ctrl+M"_s},
        {{}, u"mnuFinance"_s, u"Fi&nance"_s, Command::Submenu, {}, 0, {}},
        {u"mnuFinance"_s, u"mnuFinanceSavings"_s, u"&Savings"_s, Command::Open, frmSavings, 18, {}},
        {u"mnuFinance"_s, u"mnuFinanceLoans"_s, u"&Loans..."_s, Command::Submenu, {}, 0, {}},
        {u"mnuFinanceLoans"_s, u"mnuFinanceLoansPayments"_s, u"&Payments"_s, Command::Open, frmPaymentCalculator, 8, {}},
        {u"mnuFinanceLoans"_s, u"mnuFinanceLoansInterestRates"_s, u"&Interest Rates"_s, Command::Open, frmInterestRateCalculator, 7, {}},
        {u"mnuFinance"_s, u"mnuFinancePayOff"_s, u"&Pay Off"_s, Command::Open, frmPayOff, 13, u"Ctrl+Y"_s},
        {u"mnuFinance"_s, u"FinanceSeparator"_s, {}, Command::Separator, {}, 0, {}},
        {u"mnuFinance"_s, u"mnuFinanceMathCalculator"_s, u"&Math Calculator"_s, Command::MathCalculator, {}, 10, u"Ctrl+C"_s},
        {{}, u"mnuOptions"_s, u"&Options"_s, Command::Submenu, {}, 0, {}},
        {u"mnuOptions"_s, u"mnuOptionsSetCurrentPayPeriod"_s, u"Set &Current Pay Period"_s, Command::SetCurrentPayPeriod, frmSetCurrentPayPeriod, 22, u"F7"_s},
        {u"mnuOptions"_s, u"mnuOptionsPrinterSetup"_s, u"&Printer Setup..."_s, Command::Open, frmPrinter, 15, u"F2"_s},
        {u"mnuOptions"_s, u"OptionsSeparator"_s, {}, Command::Separator, {}, 0, {}},
        {u"mnuOptions"_s, u"mnuOptionsEnvironmentSettings"_s, u"&Environment Setting"_s, Command::Open, frmEnvironmentSettings, 5, u"Ctrl+E"_s},
        {u"mnuOptions"_s, u"mnuTipOfTheDay"_s, u"&Tip of the Day on Startup"_s, Command::TipOfTheDay, frmTip, 0, {}},
        {u"mnuOptions"_s, u"mnuTallymereTutor"_s, u"&Tallymere Tutor"_s, Command::Tutor, frmTallymereTutor, 0, {}},
        {u"mnuOptions"_s, u"mnuWelcomeScreen"_s, u"&Welcome Screen"_s, Command::WelcomeScreen, frmWelcome, 0, {}},
        {{}, u"mnuHelp"_s, u"&Help"_s, Command::Submenu, {}, 0, {}},
        {u"mnuHelp"_s, u"mnuHelpSearch"_s, u"&Search for Help On..."_s, Command::Search, {}, 0, {}},
        {u"mnuHelp"_s, u"mnuGettingStarted"_s, u"&Getting Started"_s, Command::Submenu, {}, 0, {}},
        {u"mnuGettingStarted"_s, u"mnuStartBudget"_s, u"Getting Started With Your &Budget"_s, Command::StartRoute, frmGettingStarted, 0, {}},
        {u"mnuGettingStarted"_s, u"mnuStartShopping"_s, u"Getting Started With &Shopping"_s, Command::StartRoute, frmGettingStarted, 0, {}},
        {u"mnuGettingStarted"_s, u"mnuStartPayingOffBills"_s, u"Getting Started With &Paying Off Bills"_s, Command::StartRoute, frmGettingStarted, 0, {}},
        {u"mnuHelp"_s, u"mnuHowDoI"_s, u"Ho&w Do I...?"_s, Command::Open, frmHowDoI, 0, {}},
        {u"mnuHelp"_s, u"mnuHelpAbout"_s, u"&About"_s, Command::Open, frmAbout, 0, {}},
    };
    return entries;
}

const QList<ToolbarEntry> &MainToolbar()
{
    static const QList<ToolbarEntry> entries{
        {u"Projects"_s, u"mnuFileProjects"_s, u"projects"_s,
         u"Use the Projects window for anything you have to save up money for by a particular date (pay period)"_s},
        {u"Scan Pay Periods"_s, u"mnuIncomeScanPayPeriods"_s, u"scan-pay-periods"_s,
         u"Use this feature to \"foresee\" your upcoming pay periods starting with the current pay period in the Set Current Pay Period window"_s},
        {u"Average Net Percentage"_s, u"mnuIncomeAverageNetPercentage"_s, u"average-net-percentage"_s,
         u"Use the Average Net Percentage window as a calculator to help you quickly project future income"_s},
        {u"Wage Calculator"_s, u"mnuIncomeCalculateWages"_s, u"wage-calculator"_s,
         u"Use the Calculate Wages window as a calculator to determine what your wages will be for a particular pay period or project your monthly and yearly income"_s},
        {u"Overhead"_s, u"mnuBudgetCurrentOverhead"_s, u"overhead"_s,
         u"Use this feature to determine at a glance if you are \"in the red\" and, if so, what areas you need to adjust to improve your financial picture"_s},
        {u"Budget"_s, u"mnuBudgetViewBudget"_s, u"budget"_s,
         u"After entering your income and expenses information, this feature takes that information and sets up a budget for you - pay period after pay period"_s},
        {u"Savings Forecast"_s, u"mnuBudgetSavingsForecast"_s, u"savings-forecast"_s,
         u"This feature records and displays the balances left over from each budget and keeps a running total, enabling you to forecast your savings, if any"_s},
        {u"Current Shopping List"_s, u"mnuShopperReviewCurrentList"_s, u"current-shopping-list"_s,
         u"This feature is your on-line shopping list complete with item names, units, prices, sales tax and coupon values you can include to reduce your grocery bill"_s},
        {u"Master Shopping List"_s, u"mnuShopperMasterShoppingList"_s, u"master-shopping-list"_s,
         u"Use this feature to build a master list from which you can prepare shopping lists (sublists) each time you go shopping at your favorite stores"_s},
        {u"Savings"_s, u"mnuFinanceSavings"_s, u"savings"_s,
         u"Use this feature to determine what the future value of your planned investment will be at the end of your savings program"_s},
        {u"Loan Payments"_s, u"mnuFinanceLoansPayments"_s, u"loan-payments"_s,
         u"After you indicate the amount you wish to borrow, the expected annual percentage rate (APR) of your loan and the number of monthly payments you would like to make, this feature will tell you what you can expect to pay per month for the loan itself"_s},
        {u"Loan Interest Rates"_s, u"mnuFinanceLoansInterestRates"_s, u"loan-interest-rates"_s,
         u"After you indicate the amount you wish to borrow, the desired monthly payments you would like to make and the number of months you intend to make these payments, this feature will indicate what annual percentage rate your loan needs to be set at"_s},
        {u"Pay Off"_s, u"mnuFinancePayOff"_s, u"pay-off"_s,
         u"After obtaining information, this feature proceeds to display a pay off plan that pays off your creditors/bills in the shortest time possible considering the money you have to work with"_s},
        {u"Set Current Pay Period"_s, u"mnuOptionsSetCurrentPayPeriod"_s, u"set-current-pay-period"_s,
         u"The Set Current Pay Period window allows you to set whatever pay period you wish to budget, using any valid date format you desire"_s},
        {u"Printer Setup"_s, u"mnuOptionsPrinterSetup"_s, u"printer-setup"_s,
         u"The Printer Setup window allows you to adjust your printer settings to take advantage of the information Tallymere provides"_s},
        {u"Environment Settings"_s, u"mnuOptionsEnvironmentSettings"_s, u"environment-settings"_s,
         u"The Environment Settings window is used by Tallymere to retain information peculiar to your financial circumstances so as to avoid repeatedly entering this information each time you switch on your computer and use Tallymere"_s},
    };
    return entries;
}
// clang-format on

const QList<StateEntry> &BudgetStateLines()
{
    using namespace WindowName;
    static const auto count = [](qint16 number) { return Format(int(number), NumberFormat::GeneralNumber); };
    static const QList<StateEntry> entries{
        {[] { return u"Creditors: "_s + count(State.NumberOfCreditors); }, frmCreditors},
        {[] { return u"Regular Items: "_s + count(State.NumberOfRegulars); }, frmRegulars},
        {[] { return u"Extra Item Pay Periods: "_s + count(State.NumberOfExtraPayPeriods); }, frmExtras},
        {[] { return u"Projects: "_s + count(State.NumberOfProjects); }, frmProjects},
        {[] { return u"Average Net Percentage: "_s + Format(State.AverageNetPercentage, NumberFormat::Percent); },
         frmAverageNetPercentage},
        {[] { return u"Paycheck Amount: "_s + FormatCurrency(State.PaycheckAmount); }, frmEnvironmentSettings},
        {[] { return u"Current Shopping List: "_s + State.CurrentStoreFile; }, frmCurrentShoppingList},
        {[] { return u"Savings Forecast: "_s + count(State.ForecastPeriods) + u" Pay Periods"_s; },
         frmEnvironmentSettings},
        {[] { return u"Current Sales Tax: "_s + Format(State.SalesTax, NumberFormat::Percent); },
         frmEnvironmentSettings},
    };
    return entries;
}

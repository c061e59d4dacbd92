#include "guidance/TutorPages.h"

#include "platform/values/OneBased.h"

using namespace Qt::Literals::StringLiterals;

// A row a line, so that the table is checked at a glance.
// clang-format off
const TutorPageEntry &TutorPage(int page)
{
    static const OneBased<TutorPageEntry> pages{
        {u"pnlAverageNetPercentage"_s, u"average-net-percentage"_s, u"Average Net Percentage"_s},
        {u"pnlBudget"_s, u"budget"_s, u"Budget"_s},
        {u"pnlCreditors"_s, u"creditors"_s, u"Creditors"_s},
        {u"pnlCurrentShoppingList"_s, u"current-shopping-list"_s, u"Current Shopping List"_s},
        {u"pnlEnvironmentSettings"_s, u"environment-settings"_s, u"Environment Settings"_s},
        {u"pnlExtraItems"_s, u"extra-items"_s, u"Extra Items"_s},
        {u"pnlLoanInterestRates"_s, u"loan-interest-rates"_s, u"Loan Interest Rates"_s},
        {u"pnlLoanPayments"_s, u"loan-payments"_s, u"Loan Payments"_s},
        {u"pnlMasterShoppingList"_s, u"master-shopping-list"_s, u"Master Shopping List"_s},
        {u"pnlMathCalculator"_s, u"math-calculator"_s, u"Math Calculator"_s},
        {u"pnlOpenStoreList"_s, u"open-store-list"_s, u"Open Store List"_s},
        {u"pnlOverhead"_s, u"overhead"_s, u"Overhead"_s},
        {u"pnlPayOff"_s, u"pay-off"_s, u"Pay Off"_s},
        {u"pnlPrintCurrentList"_s, u"print-current-list"_s, u"Print Current List"_s},
        {u"pnlPrinterSetup"_s, u"printer-setup"_s, u"Printer Setup"_s},
        {u"pnlProjects"_s, u"projects"_s, u"Projects"_s},
        {u"pnlRegularItems"_s, u"regular-items"_s, u"Regular Items"_s},
        {u"pnlSavings"_s, u"savings"_s, u"Savings"_s},
        {u"pnlSavingsForecast"_s, u"savings-forecast"_s, u"Savings Forecast"_s},
        {u"pnlScanPayPeriods"_s, u"scan-pay-periods"_s, u"Scan Pay Periods"_s},
        {u"pnlSearchForHelpOn"_s, u"search-for-help"_s, u"Search for Help"_s},
        {u"pnlSetCurrentPayPeriod"_s, u"set-current-pay-period"_s, u"Set Current Pay Period"_s},
        {u"pnlTipOfTheDay"_s, u"tip-of-the-day"_s, u"Tip of the Day"_s},
        {u"pnlWageCalculator"_s, u"wage-calculator"_s, u"Wage Calculator"_s},
        {u"pnlMasterShoppingList"_s, u"master-shopping-list"_s, u"Master Shopping List"_s},
        {u"pnlMasterShoppingList"_s, u"master-shopping-list"_s, u"Master Shopping List"_s},
    };
    return pages(page);
}
// clang-format on

// The given names of all windows: the register knows them by these, and the names of their files are the same.
#pragma once

#include <QString>

namespace WindowName {
#define WINDOW_NAME(name) inline const QString name = QStringLiteral(#name)
WINDOW_NAME(frmAbout);
WINDOW_NAME(frmAddItem);
WINDOW_NAME(frmAmortization);
WINDOW_NAME(frmAverageNetPercentage);
WINDOW_NAME(frmBudget);
WINDOW_NAME(frmCalculateWages);
WINDOW_NAME(frmCreditorInfo);
WINDOW_NAME(frmCreditors);
WINDOW_NAME(frmCurrentShoppingList);
WINDOW_NAME(frmEnvironmentSettings);
WINDOW_NAME(frmExtras);
WINDOW_NAME(frmGettingStarted);
WINDOW_NAME(frmHowDoI);
WINDOW_NAME(frmInput);
WINDOW_NAME(frmInterestRateCalculator);
WINDOW_NAME(frmMain);
WINDOW_NAME(frmMasterShoppingList);
WINDOW_NAME(frmMonthlyOverhead);
WINDOW_NAME(frmMonthlyPaymentOption);
WINDOW_NAME(frmPayOff);
WINDOW_NAME(frmPaymentCalculator);
WINDOW_NAME(frmPrinter);
WINDOW_NAME(frmProjects);
WINDOW_NAME(frmRegulars);
WINDOW_NAME(frmSavings);
WINDOW_NAME(frmSavingsForecast);
WINDOW_NAME(frmScanPayPeriods);
WINDOW_NAME(frmSelectMonth);
WINDOW_NAME(frmSemiMonthlyPayInfo);
WINDOW_NAME(frmSetCurrentPayPeriod);
WINDOW_NAME(frmSplash);
WINDOW_NAME(frmTallymereTutor);
WINDOW_NAME(frmTip);
WINDOW_NAME(frmTotalHours);
WINDOW_NAME(frmViewProject);
WINDOW_NAME(frmWelcome);
#undef WINDOW_NAME
} // namespace WindowName

#include "Windows.h"

#include "budget/frmBudget.h"
#include "budget/frmMonthlyOverhead.h"
#include "budget/frmSavingsForecast.h"
#include "budget/frmScanPayPeriods.h"
#include "commitments/frmCreditors.h"
#include "commitments/frmExtras.h"
#include "commitments/frmProjects.h"
#include "commitments/frmRegulars.h"
#include "commitments/frmViewProject.h"
#include "debt/frmAmortization.h"
#include "debt/frmCreditorInfo.h"
#include "debt/frmInput.h"
#include "debt/frmInterestRateCalculator.h"
#include "debt/frmPayOff.h"
#include "debt/frmPaymentCalculator.h"
#include "debt/frmSavings.h"
#include "debt/frmSelectMonth.h"
#include "foundation/Options.h"
#include "foundation/Tutor.h"
#include "foundation/WindowNames.h"
#include "foundation/frmSplash.h"
#include "guidance/frmGettingStarted.h"
#include "guidance/frmHowDoI.h"
#include "guidance/frmTallymereTutor.h"
#include "guidance/frmTip.h"
#include "guidance/frmWelcome.h"
#include "income/frmAverageNetPercentage.h"
#include "income/frmCalculateWages.h"
#include "income/frmTotalHours.h"
#include "mainwindow/frmAbout.h"
#include "mainwindow/frmEnvironmentSettings.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmMonthlyPaymentOption.h"
#include "mainwindow/frmPrinter.h"
#include "mainwindow/frmSemiMonthlyPayInfo.h"
#include "mainwindow/frmSetCurrentPayPeriod.h"
#include "platform/windows/WindowRegister.h"
#include "shopping/frmAddItem.h"
#include "shopping/frmCurrentShoppingList.h"
#include "shopping/frmMasterShoppingList.h"

namespace {

template <class AWindow>
void Register(const QString &name)
{
    TheWindows.Register(name, [] { return new AWindow; });
}

} // namespace

void RegisterWindows()
{
    Register<frmSplash>(WindowName::frmSplash);
    Register<frmWelcome>(WindowName::frmWelcome);
    Register<frmMain>(WindowName::frmMain);
    Register<frmSetCurrentPayPeriod>(WindowName::frmSetCurrentPayPeriod);
    Register<frmEnvironmentSettings>(WindowName::frmEnvironmentSettings);
    Register<frmSemiMonthlyPayInfo>(WindowName::frmSemiMonthlyPayInfo);
    Register<frmMonthlyPaymentOption>(WindowName::frmMonthlyPaymentOption);
    Register<frmPrinter>(WindowName::frmPrinter);
    Register<frmAbout>(WindowName::frmAbout);
    Register<frmBudget>(WindowName::frmBudget);
    Register<frmMonthlyOverhead>(WindowName::frmMonthlyOverhead);
    Register<frmSavingsForecast>(WindowName::frmSavingsForecast);
    Register<frmScanPayPeriods>(WindowName::frmScanPayPeriods);
    Register<frmCreditors>(WindowName::frmCreditors);
    Register<frmRegulars>(WindowName::frmRegulars);
    Register<frmExtras>(WindowName::frmExtras);
    Register<frmProjects>(WindowName::frmProjects);
    Register<frmViewProject>(WindowName::frmViewProject);
    Register<frmPayOff>(WindowName::frmPayOff);
    Register<frmInput>(WindowName::frmInput);
    Register<frmCreditorInfo>(WindowName::frmCreditorInfo);
    Register<frmPaymentCalculator>(WindowName::frmPaymentCalculator);
    Register<frmSelectMonth>(WindowName::frmSelectMonth);
    Register<frmAmortization>(WindowName::frmAmortization);
    Register<frmInterestRateCalculator>(WindowName::frmInterestRateCalculator);
    Register<frmSavings>(WindowName::frmSavings);
    Register<frmCalculateWages>(WindowName::frmCalculateWages);
    Register<frmTotalHours>(WindowName::frmTotalHours);
    Register<frmAverageNetPercentage>(WindowName::frmAverageNetPercentage);
    Register<frmMasterShoppingList>(WindowName::frmMasterShoppingList);
    Register<frmAddItem>(WindowName::frmAddItem);
    Register<frmCurrentShoppingList>(WindowName::frmCurrentShoppingList);
    Register<frmGettingStarted>(WindowName::frmGettingStarted);
    Register<frmTallymereTutor>(WindowName::frmTallymereTutor);
    Register<frmHowDoI>(WindowName::frmHowDoI);
    Register<frmTip>(WindowName::frmTip);
    // Not the tutor's window itself listens: the user may have turned it off, and some pages are shown all the same.
    QObject::connect(&TheTutorRequests, &TutorRequests::PageWanted, &TheWindows, ShowTutorPage);
    QObject::connect(&TheTutorRequests, &TutorRequests::ReleaseWanted, &TheWindows, ReleaseTutor);
}

QString FirstWindow()
{
    return OptionValue(ShowWelcome) == 1 ? WindowName::frmWelcome : WindowName::frmSplash;
}

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
#include "foundation/Options.h"
#include "foundation/frmSplash.h"
#include "mainwindow/frmEnvironmentSettings.h"
#include "mainwindow/frmMain.h"
#include "mainwindow/frmMonthlyPaymentOption.h"
#include "mainwindow/frmSemiMonthlyPayInfo.h"
#include "mainwindow/frmSetCurrentPayPeriod.h"
#include "platform/windows/WindowRegister.h"

namespace {

template <class Window>
void Declare(const char *name)
{
    TheWindows.Declare(QString::fromLatin1(name), [] { return new Window; });
}

} // namespace

void DeclareWindows()
{
    Declare<frmSplash>("frmSplash");
    Declare<frmMain>("frmMain");
    Declare<frmSetCurrentPayPeriod>("frmSetCurrentPayPeriod");
    Declare<frmEnvironmentSettings>("frmEnvironmentSettings");
    Declare<frmSemiMonthlyPayInfo>("frmSemiMonthlyPayInfo");
    Declare<frmMonthlyPaymentOption>("frmMonthlyPaymentOption");
    Declare<frmBudget>("frmBudget");
    Declare<frmMonthlyOverhead>("frmMonthlyOverhead");
    Declare<frmSavingsForecast>("frmSavingsForecast");
    Declare<frmScanPayPeriods>("frmScanPayPeriods");
    Declare<frmCreditors>("frmCreditors");
    Declare<frmRegulars>("frmRegulars");
    Declare<frmExtras>("frmExtras");
    Declare<frmProjects>("frmProjects");
    Declare<frmViewProject>("frmViewProject");
}

QString FirstWindow()
{
    const QString welcome = QStringLiteral("frmWelcome");
    return OptionValue(ShowWelcome) == 1 && TheWindows.Knows(welcome) ? welcome : QStringLiteral("frmSplash");
}

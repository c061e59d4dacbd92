#include "mainwindow/TutorPause.h"

#include "foundation/Tutor.h"
#include "foundation/WindowFields.h"
#include "foundation/WindowNames.h"
#include "platform/windows/WindowRegister.h"

namespace {
const QSet<QString> &PausingWindows()
{
    using namespace WindowName;
    static const QSet<QString> windows{
        frmAbout,
        frmAverageNetPercentage,
        frmBudget,
        frmCalculateWages,
        frmCreditors,
        frmCurrentShoppingList,
        frmEnvironmentSettings,
        frmExtras,
        frmGettingStarted,
        frmHowDoI,
        frmInput,
        frmInterestRateCalculator,
        frmMasterShoppingList,
        frmMonthlyOverhead,
        frmPayOff,
        frmPaymentCalculator,
        frmPrinter,
        frmProjects,
        frmRegulars,
        frmSavings,
        frmSavingsForecast,
        frmScanPayPeriods,
        frmSetCurrentPayPeriod,
    };
    return windows;
}
} // namespace

TutorPause::TutorPause(QTimer &timer) : m_timer(timer)
{
    connect(&TheWindows, &WindowRegister::WindowLoads, this, [this](const QString &window) {
        Pause(window);
        // One that another window has loaded unseen may find the timer running again when it is shown at last.
        connect(
            TheWindows.Loaded(window), &Form::Appears, this, [this, window] { Pause(window); },
            Qt::SingleShotConnection);
    });
    connect(&TheWindows, &WindowRegister::WindowUnloads, this, &TutorPause::Resume);
}

void TutorPause::Pause(const QString &window)
{
    if (!PausingWindows().contains(window) || !m_timer.isActive())
        return;
    RememberedTutorTimer.insert(window);
    m_timer.stop();
}

void TutorPause::Resume(const QString &window)
{
    // A timer that the main window has started meanwhile runs on: a restart would hold its next page back. A page that
    // the user has frozen meanwhile is his to release.
    if (RememberedTutorTimer.remove(window) && !m_timer.isActive() && !WindowField::TutorIsFrozen())
        m_timer.start();
}

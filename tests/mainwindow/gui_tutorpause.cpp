// The windows that make the tutor pause, one by one, and when its timer goes on.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "mainwindow/TutorPause.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class gui_tutorpause : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheTimerStandsStillWhileAWindowOfTheListIsLoaded_data()
    {
        QTest::addColumn<bool>("pauses");
        for (const char *window : {"frmAbout",
                                   "frmAverageNetPercentage",
                                   "frmBudget",
                                   "frmCalculateWages",
                                   "frmCreditors",
                                   "frmCurrentShoppingList",
                                   "frmEnvironmentSettings",
                                   "frmExtras",
                                   "frmGettingStarted",
                                   "frmHowDoI",
                                   "frmInput",
                                   "frmInterestRateCalculator",
                                   "frmMasterShoppingList",
                                   "frmMonthlyOverhead",
                                   "frmPayOff",
                                   "frmPaymentCalculator",
                                   "frmPrinter",
                                   "frmProjects",
                                   "frmRegulars",
                                   "frmSavings",
                                   "frmSavingsForecast",
                                   "frmScanPayPeriods",
                                   "frmSetCurrentPayPeriod"})
            QTest::newRow(window) << true;
        for (const char *window :
             {"frmSplash", "frmViewProject", "frmSemiMonthlyPayInfo", "frmMonthlyPaymentOption", "frmTotalHours",
              "frmCreditorInfo", "frmAddItem", "frmAmortization", "frmSelectMonth", "frmWelcome", "frmTallymereTutor"})
            QTest::newRow(window) << false;
    }
    void TheTimerStandsStillWhileAWindowOfTheListIsLoaded()
    {
        QFETCH(bool, pauses);
        const QString window = QString::fromLatin1(QTest::currentDataTag());
        GuiDesk desk;
        TheWindows.Register(window, [] { return new Form; });
        QTimer timer;
        const TutorPause pause(timer);
        timer.start(100000);
        TheWindows.Touch(window);
        QCOMPARE(timer.isActive(), !pauses);
        TheWindows.Unload(window);
        QVERIFY(timer.isActive());

        timer.stop();
        TheWindows.Touch(window);
        TheWindows.Unload(window);
        QVERIFY(!timer.isActive()); // a timer that was off stays off
    }

    void OneThatWasLoadedUnseenPausesWhenItIsShown()
    {
        GuiDesk desk;
        QTimer timer;
        const TutorPause pause(timer);
        timer.start(100000);
        TheWindows.Touch(u"frmCreditors"_s);
        TheWindows.Touch(u"frmRegulars"_s); // it found the timer stopped
        TheWindows.Unload(u"frmCreditors"_s);
        QVERIFY(timer.isActive());
        Show(u"frmRegulars"_s);
        QVERIFY(!timer.isActive());
        timer.start(100000); // by the main window
        TheWindows.Hide(u"frmRegulars"_s);
        Show(u"frmRegulars"_s);
        QVERIFY(timer.isActive()); // its load and its first showing count
        timer.stop();
        TheWindows.Unload(u"frmRegulars"_s);
        QVERIFY(timer.isActive());
    }

    void TwoWindowsTheOneThatStoppedItStartsIt()
    {
        GuiDesk desk;
        QTimer timer;
        const TutorPause pause(timer);
        timer.start(100000);
        TheWindows.Touch(u"frmCreditors"_s);
        TheWindows.Touch(u"frmRegulars"_s);
        TheWindows.Unload(u"frmRegulars"_s); // it found the timer stopped
        QVERIFY(!timer.isActive());
        TheWindows.Unload(u"frmCreditors"_s);
        QVERIFY(timer.isActive());
    }

    void ARunningTimerIsNotStartedAgain()
    {
        GuiDesk desk;
        QTimer timer;
        const TutorPause pause(timer);
        timer.setTimerType(Qt::PreciseTimer);
        timer.start(100000);
        TheWindows.Touch(u"frmCreditors"_s);
        timer.start(100000); // as the main window does when the user comes back to it
        QTest::qWait(50);
        TheWindows.Unload(u"frmCreditors"_s);
        QVERIFY(timer.isActive());
        QVERIFY(timer.remainingTime() <= timer.interval() - 40);
    }
};

REGISTER_TEST(gui_tutorpause)
#include "gui_tutorpause.moc"

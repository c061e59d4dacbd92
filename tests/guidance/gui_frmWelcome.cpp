// The welcome window: what each level does, the four tours tick by tick, and that nothing of it stays when it is gone.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "guidance/Stage.h"

#include <QStackedWidget>
#include <QTimer>
#include <QVariantAnimation>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString TheWindow = u"frmWelcome"_s;

/// One second passes on the timer, if it runs.
void Tick(const QString &timer)
{
    auto &clock = Find<QTimer>(TheWindow, timer);
    if (clock.isActive())
        QMetaObject::invokeMethod(&clock, "timeout");
}

void Tick(const QString &timer, int seconds)
{
    for (int second = 0; second < seconds; ++second)
        Tick(timer);
}

/// Everything that moves arrives. What follows from that may move in turn.
void LetMotionArrive()
{
    for (auto *motion : TheWindows.Loaded(TheWindow)->findChildren<QVariantAnimation *>())
        if (motion->state() == QAbstractAnimation::Running)
            motion->setCurrentTime(motion->totalDuration());
}

/// Everything that moves, and whatever follows, comes to its end.
void LetMotionEnd()
{
    for (int round = 0; round < 3; ++round)
        LetMotionArrive();
}

QString FrontPanel()
{
    return Find<QStackedWidget>(TheWindow, u"panels"_s).currentWidget()->objectName();
}

bool IsVisible(const QString &control)
{
    return Find(TheWindow, control).isVisible();
}

/// Where a piece stands, in twips.
QPointF PlaceOf(const QString &piece)
{
    auto &widget = Find(TheWindow, piece);
    return static_cast<Stage *>(widget.parentWidget())->PlaceOf(&widget);
}

QString Title()
{
    return TheWindows.Loaded(TheWindow)->windowTitle();
}

const QStringList TourPieces{
    u"imgTipOfTheDay"_s, u"Label4"_s,           u"Label5"_s,  u"cmdNext1"_s,  u"cmdExit1"_s,
    u"Label6"_s,         u"Label7"_s,           u"Label8"_s,  u"imgFreeze"_s, u"cmdNext2"_s,
    u"cmdExit2"_s,       u"Label9"_s,           u"Label10"_s, u"Label11"_s,   u"imgSearchForHelpOn"_s,
    u"cmdNext3"_s,       u"cmdExit3"_s,         u"Label12"_s, u"Label13"_s,   u"imgHowDoI"_s,
    u"imgFreezeHow"_s,   u"cmdGoToTallymere3"_s};

QStringList VisiblePieces()
{
    QStringList visible;
    for (const QString &piece : TourPieces)
        if (IsVisible(piece))
            visible += piece;
    visible.sort();
    return visible;
}

struct TourStep {
    QString Title;
    QString Panel;
    QString Timer;
    int LastTick;
    QString Next; ///< the button that goes on
};

const QList<TourStep> Tour{
    {u"Tip of the Day"_s, u"pnlTipOfTheDay"_s, u"tmrTipOfTheDay"_s, 12, u"cmdNext1"_s},
    {u"Tallymere Tutor"_s, u"pnlBudgetTutor"_s, u"tmrBudgetTutor"_s, 20, u"cmdNext2"_s},
    {u"Search For Help On..."_s, u"pnlSearchForHelpOn"_s, u"tmrSearchForHelpOn"_s, 19, u"cmdNext3"_s},
    {u"How Do I ...?"_s, u"pnlHowDoI"_s, u"tmrHowDoI"_s, 17, u"cmdGoToTallymere3"_s}};

/// Goes to a step of the tour by the user's clicks, with the steps before it at their ends.
void GoToStep(int step)
{
    Show(TheWindow);
    Click(TheWindow, u"lblLevelSelection2"_s);
    for (int before = 0; before < step; ++before) {
        for (int tick = 0; tick < Tour[before].LastTick; ++tick) {
            Tick(Tour[before].Timer);
            LetMotionEnd();
        }
        Click(TheWindow, Tour[before].Next);
    }
}

void TourRows()
{
    QTest::addColumn<int>("step");
    for (int step = 0; step < Tour.size(); ++step)
        QTest::newRow(qPrintable(Tour[step].Title)) << step;
}

} // namespace

class gui_frmWelcome : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("caption");
        const QList<QPair<QString, QString>> captions{
            {u"Label1"_s, u"Welcome to the Corvelle's Tallymere!"_s},
            {u"Label2"_s, u"I am your Tallymere Tutor and will be helping you get up to speed. But first ..."_s},
            {u"Label3"_s, u"Tell me where you're at with Tallymere ---"_s},
            {u"chkShowDialog"_s, u"Show this dialog at startup"_s},
            {u"lblLevelSelection0"_s, u"I'm new to Tallymere and need help just getting started"_s},
            {u"lblLevelSelection1"_s, u"This is not my first time but there are some things I'm not sure how to do"_s},
            {u"lblLevelSelection2"_s, u"Just show me how to get the help I need and I can take it from here"_s},
            {u"lblLevelSelection3"_s, u"I'm ready to start Tallymere without any help"_s},
            {u"lblGettingStarted1"_s,
             u"OK! Then the very first thing you need to do is set up your household budget."_s},
            {u"lblGettingStarted2"_s,
             u"When you click the \"Go To Tallymere\" button below, the splash screen will appear."_s},
            {u"lblGettingStarted3"_s,
             u"Just click the Continue button and the splash screen will be replaced by the Set Current Pay Period "
             u"screen. "
             u"For now, just click Exit and proceed to the Getting Started With Your Budget panels."_s},
            {u"lblGettingStarted4"_s,
             u"Follow the directions I give you in each panel carefully and you will be doing your first budget!"_s},
            {u"lblHowToDo1"_s, u"OK! You probably need to take a look at the How Do I...? screen. This screen lists "
                               u"the basic tasks you can "
                               u"perform in Tallymere and shows you how to get started with each of them."_s},
            {u"lblHowToDo2"_s,
             u"When you click the \"Go To Tallymere\" button below, the splash screen will appear."_s},
            {u"lblHowToDo3"_s, u"Just click the Continue button and the splash screen will be replaced by the Set "
                               u"Current Pay Period screen. "
                               u"For now, just click Exit and proceed to the How Do I...? screen."_s},
            {u"lblHowToDo4"_s,
             u"Select the topic you need help on either from the first page or the second page and I - your Tallymere "
             u"Tutor - will give you the correct hint at the bottom of your screen!"_s},
            {u"Label4"_s, u"Tallymere's Tip of the Day displays every time you start up Tallymere."_s},
            {u"Label5"_s, u"From the Options menu you can turn this feature on or off."_s},
            {u"Label6"_s, u"From the Options menu you can turn me on or off."_s},
            {u"Label7"_s,
             u"Oh! I - your Tallymere Tutor - will display hints for you every 10 seconds at the bottom right "
             u"of your screen."_s},
            {u"Label8"_s, u"If you click on me I will freeze the hint until you click me again."_s},
            {u"Label9"_s,
             u"From the Help menu you can click on Search for Help On... to access Tallymere's online help."_s},
            {u"Label10"_s,
             u"Once you are in a help topic you can click the enabled Browse buttons (<< or >>) to advance "
             u"forward or backward in the help instructions."_s},
            {u"Label11"_s,
             u"If you hit the F1 key anywhere in Tallymere you will access the online help for the window you "
             u"are in."_s},
            {u"Label12"_s,
             u"From the Help menu you can click on How Do I ...? to get help for specific tasks in Tallymere."_s},
            // The quotation mark is not closed, and stays so.
            {u"Label13"_s,
             u"For each topic you select I - your Tallymere Tutor - will display its \"frozen hint at the "
             u"bottom right of your screen."_s},
            {u"cmdGoToTallymere1"_s, u"&Go To Tallymere"_s},
            {u"cmdGoToTallymere2"_s, u"&Go To Tallymere"_s},
            {u"cmdGoToTallymere3"_s, u"&Go To Tallymere"_s},
        };
        for (const auto &[control, caption] : captions)
            QTest::newRow(qPrintable(control)) << control << caption;
    }
    void TheCaptionsAreTheDesigns()
    {
        QFETCH(QString, control);
        GuiDesk desk;
        Show(TheWindow);
        if (auto *check = qobject_cast<QCheckBox *>(&Find(TheWindow, control)))
            QTEST(check->text(), "caption");
        else
            QTEST(TextOf(TheWindow, control), "caption");
    }

    void ItOpensOnItsQuestion()
    {
        GuiDesk desk;
        Show(TheWindow);
        QCOMPARE(Title(), u"The Corvelle's Tallymere 1.0"_s);
        QCOMPARE(FrontPanel(), u"pnlWelcome"_s);
        QVERIFY(IsVisible(u"imgTallymereTutor"_s));
        QVERIFY(Find<QCheckBox>(TheWindow, u"chkShowDialog"_s).isChecked());
        QCOMPARE(FocusOf(TheWindow), u"lblLevelSelection0"_s);
        QVERIFY(!State.WelcomeLevelPending);
        for (const TourStep &step : Tour) {
            QVERIFY(!Find<QTimer>(TheWindow, step.Timer).isActive());
            QCOMPARE(Find<QTimer>(TheWindow, step.Timer).interval(), 1000);
        }
        QVERIFY(desk.Options.isEmpty()); // nothing is saved by its showing
    }

    void ALevelLeadsToItsPanel_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("button");
        QTest::newRow("0") << 0 << u"Getting Started With Tallymere"_s << u"pnlGettingStartedWithBudget"_s
                           << u"cmdGoToTallymere1"_s;
        QTest::newRow("1") << 1 << u"The Corvelle's Tallymere 1.0"_s << u"pnlHowToDo"_s << u"cmdGoToTallymere2"_s;
    }
    void ALevelLeadsToItsPanel()
    {
        QFETCH(int, level);
        QFETCH(QString, panel);
        QFETCH(QString, button);
        GuiDesk desk;
        Show(TheWindow);
        Click(TheWindow, u"lblLevelSelection%1"_s.arg(level));
        QCOMPARE(State.WelcomeLevel, level);
        QVERIFY(State.WelcomeLevelPending);
        QTEST(Title(), "title");
        QCOMPARE(FrontPanel(), panel);
        QCOMPARE(Find(TheWindow, u"pnlTallymereTutor"_s).parentWidget()->objectName(), panel);
        QVERIFY(IsVisible(u"imgTallymereTutor"_s));
        QCOMPARE(FocusOf(TheWindow), button);
        QVERIFY(IsShown(TheWindow));
        Click(TheWindow, button);
        QVERIFY(!TheWindows.Loaded(TheWindow)); // the splash has unloaded it
        QCOMPARE(ActiveWindow(), u"frmSplash"_s);
        QVERIFY(State.WelcomeLevelPending);
    }

    void TheLastLevelGoesStraightToTheSplash()
    {
        GuiDesk desk;
        Show(TheWindow);
        QString panel;
        const QMetaObject::Connection watch =
            QObject::connect(&Find<QStackedWidget>(TheWindow, u"panels"_s), &QStackedWidget::currentChanged, qApp,
                             [&] { panel = FrontPanel(); });
        Click(TheWindow, u"lblLevelSelection3"_s);
        QObject::disconnect(watch);
        QCOMPARE(State.WelcomeLevel, 3);
        QVERIFY(State.WelcomeLevelPending);
        QCOMPARE(panel, QString()); // no panel has changed
        QCOMPARE(ActiveWindow(), u"frmSplash"_s);
        QVERIFY(!TheWindows.Loaded(TheWindow));
    }

    void ALevelIsChosenByKeyToo()
    {
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
            GuiDesk desk;
            Show(TheWindow);
            QTest::keyClick(&Find(TheWindow, u"lblLevelSelection0"_s), Qt::Key_Tab);
            QCOMPARE(FocusOf(TheWindow), u"lblLevelSelection1"_s);
            QTest::keyClick(&Find(TheWindow, u"lblLevelSelection1"_s), key);
            QCOMPARE(FrontPanel(), u"pnlHowToDo"_s);
        }
    }

    void TheBoxSavesItsValueAtOnce()
    {
        GuiDesk desk;
        Show(TheWindow);
        Click(TheWindow, u"chkShowDialog"_s);
        QCOMPARE(desk.TakeOption(u"show welcome at startup"_s), u"0"_s);
        Click(TheWindow, u"chkShowDialog"_s);
        QCOMPARE(desk.TakeOption(u"show welcome at startup"_s), u"1"_s);
    }

    void AStepHasItsTitlePanelAndTimer_data() { TourRows(); }
    void AStepHasItsTitlePanelAndTimer()
    {
        QFETCH(int, step);
        GuiDesk desk;
        GoToStep(step);
        QCOMPARE(State.WelcomeLevel, 2);
        QVERIFY(State.WelcomeLevelPending);
        QCOMPARE(Title(), Tour[step].Title);
        QCOMPARE(FrontPanel(), Tour[step].Panel);
        QCOMPARE(VisiblePieces(), QStringList());
        for (int other = 0; other < Tour.size(); ++other)
            QCOMPARE(Find<QTimer>(TheWindow, Tour[other].Timer).isActive(), other == step);
    }

    // What has come to be seen after each tick.
    void APanelBuildsUpTickByTick_data()
    {
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("tick");
        QTest::addColumn<QStringList>("appears");
        const QList<std::tuple<int, int, QStringList>> ticks{
            {0, 1, {u"imgTipOfTheDay"_s}},
            {0, 2, {u"Label4"_s}},
            {0, 7, {u"Label5"_s}},
            {0, 12, {u"cmdNext1"_s, u"cmdExit1"_s}},
            {1, 2, {u"Label7"_s}},
            {1, 10, {u"Label8"_s, u"imgFreeze"_s}},
            {1, 15, {u"Label6"_s}},
            {1, 20, {u"cmdNext2"_s, u"cmdExit2"_s}},
            {2, 1, {u"Label9"_s, u"imgSearchForHelpOn"_s}},
            {2, 7, {u"Label10"_s}},
            {2, 14, {u"Label11"_s}},
            {2, 19, {u"cmdNext3"_s, u"cmdExit3"_s}},
            {3, 1, {u"Label12"_s}},
            {3, 5, {u"imgHowDoI"_s}},
            {3, 10, {u"Label13"_s}},
            {3, 12, {u"imgFreezeHow"_s}},
            {3, 17, {u"cmdGoToTallymere3"_s}},
        };
        for (const auto &[step, tick, appears] : ticks)
            QTest::addRow("%s, tick %d", qPrintable(Tour[step].Title), tick) << step << tick << appears;
    }
    void APanelBuildsUpTickByTick()
    {
        QFETCH(int, step);
        QFETCH(int, tick);
        QFETCH(QStringList, appears);
        GuiDesk desk;
        GoToStep(step);
        for (int before = 1; before < tick; ++before) {
            Tick(Tour[step].Timer);
            LetMotionEnd();
        }
        const QStringList seenBefore = VisiblePieces();
        Tick(Tour[step].Timer);
        LetMotionEnd();
        QStringList expected = seenBefore + appears;
        expected.sort();
        QCOMPARE(VisiblePieces(), expected);
    }

    void NothingAppearsAtOtherTicks_data() { TourRows(); }
    void NothingAppearsAtOtherTicks()
    {
        QFETCH(int, step);
        static const QList<QSet<int>> telling{{1, 2, 7, 12}, {2, 10, 15, 20}, {1, 7, 14, 19}, {1, 5, 10, 12, 17}};
        GuiDesk desk;
        GoToStep(step);
        for (int tick = 1; tick <= Tour[step].LastTick; ++tick) {
            QVERIFY(Find<QTimer>(TheWindow, Tour[step].Timer).isActive());
            const QStringList before = VisiblePieces();
            Tick(Tour[step].Timer);
            LetMotionEnd();
            QCOMPARE(VisiblePieces() != before, telling[step].contains(tick));
        }
        QVERIFY(!Find<QTimer>(TheWindow, Tour[step].Timer).isActive());
    }

    void TheTeacherSlidesInAtTheFirstTick_data() { TourRows(); }
    void TheTeacherSlidesInAtTheFirstTick()
    {
        QFETCH(int, step);
        GuiDesk desk;
        GoToStep(step);
        Tick(Tour[step].Timer);
        QCOMPARE(Find(TheWindow, u"pnlTallymereTutor"_s).parentWidget()->objectName(), Tour[step].Panel);
        QCOMPARE(PlaceOf(u"pnlTallymereTutor"_s), QPointF(8445, 150));
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"pnlTallymereTutor"_s), QPointF(158, 150));
        QVERIFY(IsVisible(u"imgTallymereTutor"_s));
        const QWidget &teacher = Find(TheWindow, u"pnlTallymereTutor"_s); // in front of all other pieces
        QCOMPARE(teacher.parentWidget()->findChildren<QWidget *>(Qt::FindDirectChildrenOnly).last(), &teacher);
    }

    void ThePiecesMoveBetweenTheirPlaces()
    {
        GuiDesk desk;
        GoToStep(0);
        Tick(u"tmrTipOfTheDay"_s);
        QCOMPARE(PlaceOf(u"imgTipOfTheDay"_s), QPointF(8160, 5280));
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"imgTipOfTheDay"_s), QPointF(8160 - 38 * 136, 5280 - 38 * 100));
        TheWindows.Unload(TheWindow);

        State.WelcomeLevelPending = false;
        GoToStep(1);
        Tick(u"tmrBudgetTutor"_s, 2);
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2520, 360));
        Tick(u"tmrBudgetTutor"_s, 6);
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2520, 360));
        QVERIFY(!IsShown(u"frmTallymereTutor"_s)); // only when the hint has come down
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2520 + 408, 4440));
        QVERIFY(IsShown(u"frmTallymereTutor"_s));
        QCOMPARE(ActiveWindow(), TheWindow); // the sample is only looked at
        Tick(u"tmrBudgetTutor"_s, 2);
        QVERIFY(!IsVisible(u"Label8"_s));
        LetMotionArrive();
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2520 + 408, 360));
        QVERIFY(!TheWindows.Loaded(u"frmTallymereTutor"_s));
        QCOMPARE(PlaceOf(u"Label8"_s), QPointF(8400, 4680));
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"Label8"_s), QPointF(2280, 4680));
        TheWindows.Unload(TheWindow);

        State.WelcomeLevelPending = false;
        GoToStep(2);
        Tick(u"tmrSearchForHelpOn"_s);
        QCOMPARE(PlaceOf(u"Label9"_s), QPointF(2520, 360));
        Tick(u"tmrSearchForHelpOn"_s, 6);
        QCOMPARE(PlaceOf(u"Label10"_s), QPointF(8400, 4080));
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"Label10"_s), QPointF(2640, 4080));
    }

    void AMotionThatIsOvertakenArrivesFirst()
    {
        GuiDesk desk;
        GoToStep(1);
        Tick(u"tmrBudgetTutor"_s, 10); // all seconds at once, after a pause of the machine
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2928, 4440));
        QVERIFY(IsShown(u"frmTallymereTutor"_s)); // what was to follow the first motion has followed
        LetMotionEnd();
        QCOMPARE(PlaceOf(u"Label7"_s), QPointF(2928, 360));
        QVERIFY(!TheWindows.Loaded(u"frmTallymereTutor"_s));
        QVERIFY(IsVisible(u"Label8"_s));
    }

    void MotionTakesTimeAndEndsByItself()
    {
        GuiDesk desk;
        GoToStep(0);
        Tick(u"tmrTipOfTheDay"_s);
        QCOMPARE(PlaceOf(u"pnlTallymereTutor"_s), QPointF(8445, 150)); // the tick has not waited for it
        QTRY_COMPARE(PlaceOf(u"pnlTallymereTutor"_s), QPointF(158, 150));
    }

    void TheButtonsAtTheEndGetTheFocusAndLeadOn()
    {
        GuiDesk desk;
        for (int step = 0; step < Tour.size(); ++step) {
            TheWindows.Unload(TheWindow);
            GoToStep(step);
            Tick(Tour[step].Timer, Tour[step].LastTick);
            LetMotionEnd();
            QCOMPARE(FocusOf(TheWindow), Tour[step].Next);
        }
        Click(TheWindow, u"cmdGoToTallymere3"_s);
        QCOMPARE(ActiveWindow(), u"frmSplash"_s);
        QVERIFY(!TheWindows.Loaded(TheWindow));
    }

    void ExitGoesToTheSplash_data()
    {
        QTest::addColumn<int>("step");
        QTest::newRow("cmdExit1") << 0;
        QTest::newRow("cmdExit2") << 1;
        QTest::newRow("cmdExit3") << 2;
    }
    void ExitGoesToTheSplash()
    {
        QFETCH(int, step);
        GuiDesk desk;
        GoToStep(step);
        Tick(Tour[step].Timer, Tour[step].LastTick);
        LetMotionEnd();
        Click(TheWindow, u"cmdExit%1"_s.arg(step + 1));
        QCOMPARE(ActiveWindow(), u"frmSplash"_s);
        QVERIFY(!TheWindows.Loaded(TheWindow));
        QVERIFY(State.WelcomeLevelPending);
        QCOMPARE(State.WelcomeLevel, 2);
    }

    void WhatWasUnderWayEndsWithTheWindow()
    {
        GuiDesk desk;
        GoToStep(1);
        Tick(u"tmrBudgetTutor"_s, 8);
        const QPointer<QTimer> timer = &Find<QTimer>(TheWindow, u"tmrBudgetTutor"_s);
        TheWindows.Show(u"frmSplash"_s); // it unloads the welcome window in the middle of a motion
        Settle();
        QVERIFY(!timer);
        QTest::qWait(Stage::GlideTime + 100);
        QVERIFY(!TheWindows.Loaded(u"frmTallymereTutor"_s));
        QCOMPARE(ActiveWindow(), u"frmSplash"_s);
    }

    void TheSampleGoesWithTheWindow()
    {
        GuiDesk desk;
        GoToStep(1);
        Tick(u"tmrBudgetTutor"_s, 8);
        LetMotionEnd();
        QVERIFY(IsShown(u"frmTallymereTutor"_s));
        CloseByFrame(TheWindow);
        QTRY_VERIFY(desk.Ended); // it was the last window
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList());
    }

    void ClosingItByItsFrameEndsTheProgramAndSavesNothing()
    {
        GuiDesk desk;
        Show(TheWindow);
        QTest::keyClick(&Find(TheWindow, u"lblLevelSelection0"_s), Qt::Key_Escape);
        QVERIFY(IsShown(TheWindow)); // Esc is no way out here
        desk.RemoveFile(u"environm.ini"_s);
        CloseByFrame(TheWindow);
        QTRY_VERIFY(desk.Ended);
        QVERIFY(desk.ReadFile(u"environm.ini"_s).isNull());
    }

    void PiecesKeepTheirPlacesWhenTheWindowGrows()
    {
        GuiDesk desk;
        GoToStep(0);
        Tick(u"tmrTipOfTheDay"_s, 2);
        LetMotionEnd();
        const QWidget &picture = Find(TheWindow, u"imgTipOfTheDay"_s);
        const QWidget &stage = *picture.parentWidget();
        const auto share = [&] { return double(picture.x()) / stage.width(); };
        const double before = share();
        TheWindows.Loaded(TheWindow)->resize(1200, 900);
        Settle();
        QVERIFY(qAbs(share() - before) < 0.005);
        QVERIFY(stage.rect().contains(picture.geometry()));
    }
};

REGISTER_TEST(gui_frmWelcome)
#include "gui_frmWelcome.moc"

// The life of windows: what each of them hears, in which order, and that it is heard before the call returns.
#include "TestProgram.h"
#include "ToyWindows.h"
#include "foundation/Identity.h"
#include "platform/controls/ListBox.h"
#include "platform/desk/RealDesk.h"
#include "platform/values/RuntimeError.h"

#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>

namespace {

// What a window hears when it is shown for the first time, when the user comes to it, and when he leaves it.
QStringList Comes(const QString &name)
{
    return {name + QStringLiteral(" Activate"), name + QStringLiteral(" GotFocus First")};
}
QStringList Opens(const QString &name)
{
    return QStringList{name + QStringLiteral(" Load")} + Comes(name);
}
QStringList Goes(const QString &name)
{
    return {name + QStringLiteral(" LostFocus First"), name + QStringLiteral(" Deactivate")};
}
QStringList Closes(const QString &name)
{
    return {name + QStringLiteral(" QueryUnload by code"), name + QStringLiteral(" Unload")};
}
/// A opens B: the load comes first, then A is left, then B is entered.
QStringList OpensFrom(const QString &old, const QString &name)
{
    return QStringList{name + QStringLiteral(" Load")} + Goes(old) + Comes(name);
}

/// The user clicks on another window of the program, in his own time.
void UserGoesTo(Form &form)
{
    QTest::qWait(200);
    form.activateWindow();
    Settle();
}

/// Does something as soon as the message loop runs.
template <class Action>
void Soon(Action action)
{
    QTimer::singleShot(0, qApp, action);
}

/// The real message box, closed by its button of that kind once it is on the screen.
QMessageBox *OpenBox()
{
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}
void AnswerBoxSoon(QMessageBox::StandardButton button = QMessageBox::Ok)
{
    Soon([button] {
        if (auto *box = OpenBox())
            box->button(button)->click();
        else
            QFAIL("no message box");
    });
}

} // namespace

class gui_windowregister : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Load, Activate, Deactivate and their order

    void FirstShowingLoadsActivatesAndFocuses()
    {
        ToyBox toys;
        Show("A");
        QCOMPARE(TakeLog(), Opens("A"));
        QVERIFY(toys["A"].isVisible());
        QCOMPARE(Active(), "A");
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void ShowingAnotherLeavesTheOldOneBeforeTheCallReturns()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
        Settle(); // what the toolkit tells afterwards changes nothing
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "B");
        QCOMPARE(QApplication::focusWidget(), toys["B"].First);
    }

    void TouchingLoadsUnseen()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        TheWindows.ControlOf<QLineEdit>("B", "Second").setText("touched");
        Settle();
        QCOMPARE(TakeLog(), QStringList{"B Load"});
        QVERIFY(!toys["B"].isVisible());
        QCOMPARE(Active(), "A");
        Show("B"); // it is loaded already, and what was written into it stands
        QCOMPARE(TakeLog(), Goes("A") + Comes("B"));
        QCOMPARE(toys["B"].Second->text(), "touched");
    }

    void HidingAnUnloadedWindowLoadsItUnseen()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        Hide("B");
        Settle();
        QCOMPARE(TakeLog(), QStringList{"B Load"});
        QVERIFY(!toys["B"].isVisible());
    }

    void ShowingTheActiveWindowTellsNothing()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        Show("A");
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void ShowingAVisibleWindowBringsItForward()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        Show("A");
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
    }

    void ShowingAMinimizedWindowRestoresIt()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        toys["A"].showMinimized();
        Settle();
        Show("A");
        QVERIFY(!toys["A"].isMinimized());
        QVERIFY(toys["A"].isVisible());
    }

    void TheUsersClickOnAnotherWindowIsAMove()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        UserGoesTo(toys["A"]);
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        UserGoesTo(toys["B"]);
        QCOMPARE(TakeLog(), Goes("A") + Comes("B"));
    }

    // Unload

    void UnloadingGivesBackToTheOneBefore_data()
    {
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("heir");
        QTest::newRow("the one that opened it") << QStringList{"A", "B"} << "A";
        QTest::newRow("the second of three") << QStringList{"A", "B", "C"} << "B";
        QTest::newRow("not the one that was opened last") << QStringList{"A", "B", "A", "C"} << "A";
        QTest::newRow("the one that was left last, though another was shown last")
            << QStringList{"A", "B", "C", "B", "D"} << "B";
    }
    void UnloadingGivesBackToTheOneBefore()
    {
        QFETCH(QStringList, shown);
        QFETCH(QString, heir);
        ToyBox toys;
        for (const QString &name : shown)
            TheWindows.Show(name);
        Settle();
        TakeLog();
        QVERIFY(TheWindows.Unload(shown.last()));
        // Neither a third window nor a deactivation of the one that ends
        QCOMPARE(TakeLog(), Closes(shown.last()) + Comes(heir));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), heir);
        QCOMPARE(QApplication::activeWindow(), TheWindows.Loaded(heir));
    }

    void UnloadingPassesOverAHiddenWindow()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Show("C");
        Hide("B");
        TakeLog();
        Unload("C");
        QCOMPARE(TakeLog(), Closes("C") + Comes("A"));
    }

    void UnloadingAnInactiveWindowActivatesNobody()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        Unload("A");
        Settle();
        QCOMPARE(TakeLog(), Closes("A"));
        QCOMPARE(Active(), "B");
    }

    void UnloadingAnUnloadedWindowDoesNothing()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        QVERIFY(Unload("B"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QVERIFY(!TheWindows.Loaded("B"));
    }

    void TheNextShowingLoadsAfresh()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        toys["B"].First->setText("old");
        toys["B"].FocusOn(toys["B"].Second);
        const QPointer<Form> old = &toys["B"];
        Unload("B");
        Settle();
        QVERIFY(!old);
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
        QCOMPARE(toys["B"].First->text(), QString());
    }

    void HidingKeepsTheInstance()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        toys["B"].First->setText("kept");
        Hide("B");
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), Goes("A") + Comes("B"));
        QCOMPARE(toys["B"].First->text(), "kept");
    }

    void HidingTheActiveWindowDeactivatesIt()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        Hide("B");
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QVERIFY(!toys["B"].isVisible());
    }

    void HidingAnInactiveWindowTellsNothing()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        Hide("A");
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "B");
    }

    void ARefusedQueryKeepsTheWindow()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Refusing = {"B"};
        TakeLog();
        QVERIFY(!Unload("B"));
        QVERIFY(!toys["B"].close());
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"B QueryUnload by code", "B QueryUnload by frame"}));
        QVERIFY(toys["B"].isVisible());
        QCOMPARE(Active(), "B");
        Refusing.clear();
        QVERIFY(Unload("B"));
    }

    void AWithdrawnWindowIsAskedNothing()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Refusing = {"A", "B"};
        TakeLog();
        QVERIFY(TheWindows.Unload("A", Form::CloseMode::Withdrawal));
        QCOMPARE(TakeLog(), QStringList{"A Unload"});
        QCOMPARE(Active(), "B");
        QVERIFY(!TheWindows.Loaded("A"));
        Refusing.clear();
    }

    void TheCloseBoxAsksUnloadsAndGivesBack()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        TakeLog();
        toys["B"].close();
        QCOMPARE(TakeLog(), (QStringList{"B QueryUnload by frame", "B Unload"} + Comes("A")));
        Settle();
        QVERIFY(!TheWindows.Loaded("B"));
    }

    void AWindowMayUnloadItselfInItsUnload()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        When("B Unload", [] { Unload("B"); });
        TakeLog();
        Unload("B");
        QCOMPARE(TakeLog(), Closes("B") + Comes("A"));
    }

    void AQueryMayCancelTheFramesClosingAndCloseByCode()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        When("B QueryUnload by frame", [] { Unload("B"); });
        TakeLog();
        toys["B"].close();
        QCOMPARE(TakeLog(), QStringList{"B QueryUnload by frame"} + Closes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void AQueryThatUnloadsIsNotAskedAgain()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        When("B QueryUnload by code", [] { Unload("B"); });
        TakeLog();
        Unload("B");
        QCOMPARE(TakeLog(), Closes("B") + Comes("A"));
    }

    void AnUnloadThatShowsTheCallerLeavesTheWindowOnce()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Hide("A");
        When("B Unload", [] { Show("A"); });
        TakeLog();
        Unload("B");
        QCOMPARE(TakeLog(), Closes("B") + Goes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void AWindowThatStandsAlreadyIsOnlyBroughtForward()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Show("A");
        TakeLog();
        ShowModal("B"); // and does not wait
        QCOMPARE(TakeLog(), Goes("A") + Comes("B"));
        QVERIFY(!toys["B"].isModal());
        Show("A"); // which it does not block
        QCOMPARE(TakeLog(), Goes("B") + Comes("A"));
        QCOMPARE(Active(), "A");
    }

    void AModalWindowThatIsShownAgainIsWaitedForOnce()
    {
        ToyBox toys;
        Show("A");
        bool again = false;
        QTimer::singleShot(0, [&] {
            ShowModal("B");
            again = true;
            Unload("B");
        });
        ShowModal("B");
        QVERIFY(again);
        QVERIFY(!TheWindows.Loaded(QStringLiteral("B")));
        QCOMPARE(Active(), "A");
    }

    void AWindowThatEndsInItsLoadIsNotShown()
    {
        ToyBox toys;
        Show("A");
        When("B Load", [] { Unload("B"); });
        TakeLog();
        Show("B");
        ShowModal("B"); // and does not wait for ever
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"B Load"} + Closes("B")) + (QStringList{"B Load"} + Closes("B")));
        QCOMPARE(Active(), "A");
    }

    void AWindowThatShowsItselfInItsLoadIsActivatedOnce()
    {
        ToyBox toys;
        Show("A");
        When("B Load", [] { Show("B"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
    }

    void ALoadThatHidesTheCallerDeactivatesItThere()
    {
        ToyBox toys;
        Show("A");
        When("B Load", [] { Hide("A"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Goes("A") + Comes("B"));
        Settle();
        QCOMPARE(TakeLog(), QStringList()); // nor does the program end, though no window was visible for a moment
    }

    void AnEndedWindowsTimersStop()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        auto *timer = new QTimer(&toys["B"]);
        connect(timer, &QTimer::timeout, &toys["B"], [] { Tell("tick"); });
        timer->start(0);
        // The instance cannot go yet: a handler of its own waits for a modal window.
        Soon([] {
            Unload("B");
            TakeLog();
            Soon([] {
                QTest::qWait(20);
                QCOMPARE(TakeLog(), QStringList());
                Unload("C");
            });
        });
        ShowModal("C");
    }

    // Modal windows

    void AModalWindowsCallerIsLeftBeforeItWaitsAndActiveBeforeItReturns()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        QStringList beforeWaiting, afterUnload;
        Soon([&] {
            beforeWaiting = TakeLog();
            Unload("B");
            afterUnload = TakeLog();
        });
        ShowModal("B");
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(beforeWaiting, OpensFrom("A", "B"));
        QCOMPARE(afterUnload, Closes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void AModalWindowBlocksTheOthersButNoTimers()
    {
        ToyBox toys;
        Show("A");
        int ticks = 0;
        QTimer timer(&toys["A"]);
        connect(&timer, &QTimer::timeout, this, [&] {
            if (++ticks == 3)
                Unload("B");
        });
        timer.start(1);
        Soon([&] {
            QCOMPARE(QApplication::activeModalWidget(), TheWindows.Loaded("B"));
            TakeLog();
            QTest::mouseClick(toys["A"].windowHandle(), Qt::LeftButton, {}, toys["A"].Button->geometry().center());
            QTest::qWait(1);
            QVERIFY(!Log.contains("A Click"));
        });
        ShowModal("B");
        QVERIFY(ticks >= 3);
        Settle();
        QTest::mouseClick(toys["A"].windowHandle(), Qt::LeftButton, {}, toys["A"].Button->geometry().center());
        Settle();
        QVERIFY(Log.contains("A Click"));
    }

    void HidingAModalWindowReturnsToTheCaller()
    {
        ToyBox toys;
        Show("A");
        Soon([] { Hide("B"); });
        ShowModal("B");
        QCOMPARE(TakeLog(), Opens("A") + OpensFrom("A", "B") + Goes("B") + Comes("A"));
        QVERIFY(!toys["B"].isVisible());
        // The next showing may be modeless; then it blocks nobody.
        Show("B");
        QVERIFY(!toys["B"].isModal());
        QVERIFY(!QApplication::activeModalWidget());
        Unload("B");
        QCOMPARE(Active(), "A");
    }

    void NestedModalWindowsReturnOneByOne()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        Soon([] {
            Soon([] {
                Unload("C");
                Tell("C is closed");
            });
            ShowModal("C");
            Tell("C has returned");
            Unload("B");
        });
        ShowModal("B");
        Tell("B has returned");
        QCOMPARE(TakeLog(), OpensFrom("A", "B") + OpensFrom("B", "C") + Closes("C") + Comes("B") +
                                QStringList({"C is closed", "C has returned"}) + Closes("B") + Comes("A") +
                                QStringList{"B has returned"});
    }

    void AModalWindowOverAnotherGoesBackToTheCallerNotToTheThird()
    {
        ToyBox toys;
        Show("C");
        Show("A");
        TakeLog();
        Soon([] { Unload("B"); });
        ShowModal("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B") + Closes("B") + Comes("A"));
    }

    void AModalWindowMayBeShownAfreshManyTimes()
    {
        ToyBox toys;
        Show("A");
        for (int i = 0; i < 3; ++i) {
            TakeLog();
            Soon([] { Unload("B"); });
            ShowModal("B");
            QCOMPARE(TakeLog(), OpensFrom("A", "B") + Closes("B") + Comes("A"));
        }
    }

    void AFocusThatALoadAsksForIsKeptByAModalWindow()
    {
        ToyBox toys;
        Show("A");
        When("B Load", [&] { toys["B"].FocusOn(toys["B"].Second); });
        TakeLog();
        QWidget *focus = nullptr;
        Soon([&] {
            Settle();
            focus = QApplication::focusWidget();
            QCOMPARE(focus ? focus->objectName() : QString(), "Second");
            Unload("B");
        });
        ShowModal("B");
        QVERIFY(focus);
        QVERIFY(Log.contains("B GotFocus Second"));
        QVERIFY(!Log.contains("B GotFocus First"));
    }

    void ACallerThatATimerEndsOutlivesItsOwnHandler()
    {
        ToyBox toys;
        Show("D");
        Show("A");
        const QPointer<Form> caller = &toys["A"];
        bool callerStoodThere = false;
        Soon([&] {
            Unload("A");
            QTest::qWait(5); // time for a deletion that came too early
            Soon([] { Unload("B"); });
        });
        ShowModal("B");
        callerStoodThere = caller; // as a handler of A sees it that goes on now
        QVERIFY(callerStoodThere);
        Settle();
        QVERIFY(!caller);
        QCOMPARE(Active(), "D");
    }

    // Handlers that move windows themselves

    void AnActivateThatShowsAModalWindowIsToldAgainWhenItReturns()
    {
        ToyBox toys;
        Show("D");
        When("A Activate", [] {
            WhenHeard.remove("A Activate");
            Soon([] { Unload("B"); });
            ShowModal("B");
        });
        TakeLog();
        Show("A");
        // A's field never had the focus before the modal window took it, so it does not lose it.
        QCOMPARE(TakeLog(), QStringList{"A Load"} + Goes("D") + QStringList({"A Activate", "B Load", "A Deactivate"}) +
                                Comes("B") + Closes("B") + Comes("A"));
        QCOMPARE(Active(), "A");
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void AnActivateThatShowsAMessageBoxIsToldOnce()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("D");
        When("A Activate", [] {
            AnswerBoxSoon();
            ShowMessage("text", "title", Icon::Stop);
        });
        TakeLog();
        Show("A");
        QCOMPARE(TakeLog(), OpensFrom("D", "A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(QApplication::focusWidget(), toys["A"].First);
    }

    void AFocusThatAnActivateAsksForIsTheOnlyGotFocus()
    {
        ToyBox toys;
        Show("A");
        When("B Activate", [&] { toys["B"].FocusOn(toys["B"].Second); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), (QStringList{"B Load"} + Goes("A") + QStringList{"B Activate", "B GotFocus Second"}));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void AnActivateThatDisablesTheFirstFieldEntersTheNext()
    {
        ToyBox toys;
        Show("A");
        When("B Activate", [&] { toys["B"].First->setEnabled(false); });
        TakeLog();
        Show("B");
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"B Load"} + Goes("A") + QStringList{"B Activate", "B GotFocus Second"}));
    }

    void AnActivateThatUnloadsItsWindowGivesBack()
    {
        ToyBox toys;
        Show("A");
        When("B Activate", [] { Unload("B"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Goes("A") + QStringList{"B Activate"} + Closes("B") + Comes("A"));
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void ADeactivateMayHideAThirdWindow()
    {
        ToyBox toys;
        Show("C");
        Show("A");
        When("A Deactivate", [] { Hide("C"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
        QVERIFY(!toys["C"].isVisible());
    }

    void ADeactivateMayHideAnUnloadedWindow()
    {
        ToyBox toys;
        Show("B");
        Show("A");
        When("A Deactivate", [] { Hide("C"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), Goes("A") + QStringList{"C Load"} + Comes("B"));
    }

    void ADeactivateMayHideItsOwnWindow()
    {
        ToyBox toys;
        Show("A");
        When("A Deactivate", [] { Hide("A"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), OpensFrom("A", "B"));
        QVERIFY(!toys["A"].isVisible());
        QCOMPARE(Active(), "B");
    }

    void ADeactivateMayUnloadItsOwnWindow()
    {
        ToyBox toys;
        Show("A");
        When("A Deactivate", [] { Unload("A"); });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Goes("A") + Closes("A") + Comes("B"));
        QVERIFY(!TheWindows.Loaded("A"));
    }

    // The overhead hides the budget whenever it is left, also when it is left for the budget.
    void ADeactivateThatHidesItsSuccessorKeepsTheUser_data()
    {
        QTest::addColumn<bool>("byClick");
        QTest::newRow("shown by code") << false;
        QTest::newRow("clicked") << true;
    }
    void ADeactivateThatHidesItsSuccessorKeepsTheUser()
    {
        QFETCH(bool, byClick);
        ToyBox toys;
        Show("B");
        Show("A");
        When("A Deactivate", [] { Hide("B"); });
        TakeLog();
        if (byClick)
            UserGoesTo(toys["B"]);
        else
            Show("B");
        Settle();
        QCOMPARE(TakeLog(), Goes("A") + Comes("A"));
        QVERIFY(!toys["B"].isVisible());
        QCOMPARE(Active(), "A");
    }

    void ADeactivateThatShowsAModalWindowDoesNotLoseTheSuccessor()
    {
        ToyBox toys;
        Show("A");
        When("A Deactivate", [] {
            WhenHeard.remove("A Deactivate");
            Soon([] { Unload("C"); });
            ShowModal("C");
            Tell("C has returned");
        });
        TakeLog();
        Show("B");
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Goes("A") + Opens("C") + Closes("C") + Comes("B") +
                                QStringList{"C has returned"});
        QCOMPARE(Active(), "B");
    }

    void ALostFocusWithAMessageBoxIsToldOnce()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        When("A LostFocus First", [] {
            AnswerBoxSoon();
            ShowMessage("text", "title", Icon::Warning);
        });
        TakeLog();
        toys["A"].FocusOn(toys["A"].Second);
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Second"}));
        QCOMPARE(QApplication::focusWidget(), toys["A"].Second);
        toys["A"].FocusOn(toys["A"].First);
        TakeLog();
        QTest::keyClick(toys["A"].First, Qt::Key_Tab);
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Second"}));
        QCOMPARE(QApplication::focusWidget(), toys["A"].Second);
    }

    void ALostFocusMayKeepTheFocus_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("against code") << false;
        QTest::newRow("against a key") << true;
    }
    void ALostFocusMayKeepTheFocus()
    {
        QFETCH(bool, byKey);
        ToyBox toys;
        Show("A");
        When("A LostFocus First", [&] { toys["A"].FocusOn(toys["A"].First); });
        TakeLog();
        if (byKey)
            QTest::keyClick(toys["A"].First, Qt::Key_Tab);
        else
            toys["A"].FocusOn(toys["A"].Second);
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus First"}));
        QCOMPARE(QApplication::focusWidget(), toys["A"].First);
    }

    // What is no move between windows

    void MessageBoxesTellNothing_data()
    {
        QTest::addColumn<Buttons>("buttons");
        QTest::addColumn<int>("answered");
        QTest::newRow("OK") << Buttons::Ok << int(QMessageBox::Ok);
        QTest::newRow("Yes") << Buttons::YesNo << int(QMessageBox::Yes);
        QTest::newRow("No") << Buttons::YesNo << int(QMessageBox::No);
    }
    void MessageBoxesTellNothing()
    {
        QFETCH(Buttons, buttons);
        QFETCH(int, answered);
        ToyBox toys;
        UseRealBoxes();
        Show("B");
        Show("A");
        toys["A"].FocusOn(toys["A"].Second);
        Settle();
        TakeLog();
        AnswerBoxSoon(QMessageBox::StandardButton(answered));
        ShowMessage("text", "title", Icon::Question, buttons);
        QCOMPARE(TakeLog(), QStringList());
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "A");
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
        QCOMPARE(QApplication::focusWidget(), toys["A"].Second);
    }

    void AMessageBoxOverAModalWindowTellsNothing()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        TakeLog();
        Soon([] {
            AnswerBoxSoon();
            ShowMessage("text", "title", Icon::Stop);
            Tell("box closed");
            Unload("B");
        });
        ShowModal("B");
        Settle();
        QCOMPARE(TakeLog(), OpensFrom("A", "B") + QStringList{"box closed"} + Closes("B") + Comes("A"));
    }

    void ABoxSurvivesTheEndOfItsWindow()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("D");
        Show("A");
        const QPointer<Form> window = &toys["A"];
        TakeLog();
        Soon([&] {
            Unload("A"); // a timer's doing
            QTest::qWait(5);
            QVERIFY(OpenBox());
            AnswerBoxSoon();
        });
        QCOMPARE(ShowMessage("text", "title", Icon::Stop), Answer::Ok);
        QCOMPARE(TakeLog(), Closes("A") + Comes("D"));
        Settle();
        QVERIFY(!window);
        QCOMPARE(TakeLog(), QStringList());
    }

    void MenusAndPopupsTellNothing()
    {
        ToyBox toys;
        Show("A");
        auto *bar = new QMenuBar(&toys["A"]);
        QMenu *file = bar->addMenu("&File");
        file->addAction("&Open", [] { Tell("chosen"); });
        auto *combo = new QComboBox(&toys["A"]);
        combo->addItems({"one", "two"});
        bar->show();
        combo->show();
        Settle();
        TakeLog();

        bar->setFocus(Qt::MenuBarFocusReason); // as Alt or F10 alone does
        Settle();
        QCOMPARE(QApplication::focusWidget(), bar);
        toys["A"].First->setFocus(Qt::MenuBarFocusReason);
        Settle();
        QCOMPARE(TakeLog(), QStringList());

        Soon([&] { QTest::keyClick(file, Qt::Key_O); });
        file->exec(toys["A"].mapToGlobal(QPoint(5, 5)));
        Settle();
        QCOMPARE(TakeLog(), QStringList{"chosen"});

        toys["A"].FocusOn(combo);
        TakeLog();
        combo->showPopup();
        Settle();
        combo->hidePopup();
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "A");
    }

    // Windows that are only looked at

    void AWindowThatIsOnlyLookedAtTakesNoActivation()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        Show("T");
        Settle();
        QCOMPARE(TakeLog(), QStringList{"T Load"});
        QVERIFY(toys["T"].isVisible());
        QCOMPARE(Active(), "A");
        QCOMPARE(QApplication::focusWidget(), toys["A"].First); // the user's typing goes on where it was
        Show("T");
        Hide("T");
        Show("T");
        Settle();
        Unload("T");
        Settle();
        QCOMPARE(TakeLog(), Closes("T"));
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
    }

    void ClosingAWindowThatIsOnlyLookedAtLeavesTheUserWhereHeWas()
    {
        ToyBox toys;
        Show("C");
        Show("A");
        Show("T");
        UserGoesTo(toys["T"]);
        TakeLog();
        toys["T"].close();
        Settle();
        QCOMPARE(TakeLog(), (QStringList{"T QueryUnload by frame", "T Unload"}));
        QCOMPARE(Active(), "A");
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
    }

    void ItBecomesTheActiveOneWhereTheUserAskedForIt_data()
    {
        QTest::addColumn<bool>("visible");
        QTest::newRow("for the first time") << false;
        QTest::newRow("it stands there already") << true;
    }
    void ItBecomesTheActiveOneWhereTheUserAskedForIt()
    {
        QFETCH(bool, visible);
        ToyBox toys;
        Show("C");
        Show("A");
        TheWindows.Touch("T");
        if (visible)
            Show("T");
        TakeLog();
        TheWindows.ShowAndActivate("T");
        QCOMPARE(TakeLog(), Goes("A") + Comes("T"));
        Settle();
        QCOMPARE(QApplication::activeWindow(), &toys["T"]);
        Unload("A"); // the list that the user asked by: its end leads nowhere
        Settle();
        QCOMPARE(TakeLog(), Closes("A"));
        QCOMPARE(Active(), "T");
        UserGoesTo(toys["C"]);
        QCOMPARE(TakeLog(), Goes("T") + Comes("C"));
        Show("T"); // by itself it takes nothing again
        Settle();
        UserGoesTo(toys["T"]);
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(Active(), "C");
    }

    void OneThatTheUserAskedForGivesBackWhenItCloses()
    {
        ToyBox toys;
        Show("A");
        TheWindows.ShowAndActivate("T");
        TakeLog();
        toys["T"].close();
        QCOMPARE(TakeLog(), (QStringList{"T QueryUnload by frame", "T Unload"} + Comes("A")));
        Show("T"); // a new one asks for nothing
        QCOMPARE(TakeLog(), QStringList{"T Load"});
        QCOMPARE(Active(), "A");
    }

    void OneThatComesBackFromTheTaskBarTakesNoActivation()
    {
        ToyBox toys;
        Show("A");
        Show("T");
        toys["T"].showMinimized();
        Settle();
        TakeLog();
        Show("T");
        Settle();
        QVERIFY(!toys["T"].isMinimized());
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(QApplication::activeWindow(), &toys["A"]);
    }

    // The focus inside a window

    void TheFocusMovesWithinTheActiveWindow()
    {
        ToyBox toys;
        Show("A");
        TakeLog();
        toys["A"].FocusOn(toys["A"].Second);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Second"}));
        Settle();
        QTest::keyClick(toys["A"].Second, Qt::Key_Tab);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus Second", "A GotFocus Button"}));
        toys["A"].FocusOn(toys["A"].Button);
        QTest::mouseClick(toys["A"].Button, Qt::LeftButton);
        QCOMPARE(TakeLog(), QStringList{"A Click"});
    }

    void TheFocusOfAnotherWindowIsToldWithItsActivation()
    {
        ToyBox toys;
        Show("B");
        Show("A");
        TakeLog();
        toys["B"].FocusOn(toys["B"].Second);
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        Show("B");
        QCOMPARE(TakeLog(), Goes("A") + QStringList({"B Activate", "B GotFocus Second"}));
    }

    void TheControlWithTheFocusHearsEveryActivation()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        QCOMPARE(ToyWindow::FirstFieldEntered, 2);
        Show("A");
        QCOMPARE(ToyWindow::FirstFieldEntered, 3);
        Unload("A");
        QCOMPARE(ToyWindow::FirstFieldEntered, 4);
    }

    void ADisabledControlIsLeftAlone()
    {
        ToyBox toys;
        Show("A");
        toys["A"].Second->setEnabled(false);
        TakeLog();
        toys["A"].FocusOn(toys["A"].Second);
        toys["A"].FocusOn(nullptr);
        QCOMPARE(TakeLog(), QStringList());
        toys["A"].Button->hide();
        toys["A"].FocusOn(toys["A"].Button);
        QCOMPARE(TakeLog(), QStringList());
        Settle();
        QCOMPARE(QApplication::focusWidget(), toys["A"].First);
    }

    void DisablingTheFocusedControlMovesOn()
    {
        ToyBox toys;
        Show("A");
        Settle();
        TakeLog();
        toys["A"].First->setEnabled(false);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Second"}));
    }

    void AControlDisabledMeanwhileIsPassedOver()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Settle();
        toys["A"].First->setEnabled(false);
        TakeLog();
        Show("A");
        QCOMPARE(TakeLog(), Goes("B") + QStringList({"A Activate", "A GotFocus Second"}));
    }

    void AWindowWithoutControlsIsActivatedAllTheSame()
    {
        ToyBox toys;
        Show("A");
        When("B Load", [&] {
            for (QWidget *control : {static_cast<QWidget *>(toys["B"].First), static_cast<QWidget *>(toys["B"].Second),
                                     static_cast<QWidget *>(toys["B"].Button)})
                control->setEnabled(false);
        });
        TakeLog();
        Show("B");
        Settle();
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Goes("A") + QStringList{"B Activate"});
        Show("A");
        QCOMPARE(TakeLog(), QStringList{"B Deactivate"} + Comes("A"));
    }

    void AFieldIsSelectedWhenItGetsTheFocus_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("by code") << 0;
        QTest::newRow("by Tab") << 1;
        QTest::newRow("by a click") << 2;
        QTest::newRow("by the window's activation") << 3;
    }
    void AFieldIsSelectedWhenItGetsTheFocus()
    {
        QFETCH(int, way);
        ToyBox toys;
        Show("A");
        ToyWindow &window = toys["A"];
        window.First->setText("first");
        window.Second->setText("12.50");
        window.Second->deselect();
        switch (way) {
        case 0: window.FocusOn(window.Second); break;
        case 1: QTest::keyClick(window.First, Qt::Key_Tab); break;
        case 2: QTest::mouseClick(window.Second, Qt::LeftButton, {}, QPoint(20, window.Second->height() / 2)); break;
        default:
            window.FocusOn(window.Second);
            Show("B");
            window.Second->deselect();
            Show("A");
        }
        Settle();
        QCOMPARE(window.Second->selectedText(), "12.50");
        QTest::keyClicks(QApplication::focusWidget(), "7");
        QCOMPARE(window.Second->text(), "7");
        // A second click in the field only sets the caret.
        window.Second->setText("12.50");
        QTest::mouseClick(window.Second, Qt::LeftButton, {}, QPoint(20, window.Second->height() / 2));
        QVERIFY(!window.Second->hasSelectedText());
    }

    void EnterFollowsTheRingAndSelects()
    {
        ToyBox toys;
        Show("A");
        ToyWindow &window = toys["A"];
        window.First->setText("1");
        window.Second->setText("2");
        window.Button->setDefault(true); // as careless design might
        window.Button->setAutoDefault(true);
        TakeLog();
        QTest::keyClick(window.First, Qt::Key_Return);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Second"}));
        QCOMPARE(window.Second->selectedText(), "2");
        QTest::keyClick(window.Second, Qt::Key_Enter);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus Second", "A GotFocus First"}));
        QCOMPARE(window.First->selectedText(), "1");
    }

    void EnterInAFieldOutsideTheRingDoesNothing()
    {
        ToyBox toys;
        Show("A");
        auto *lone = new QLineEdit(&toys["A"]);
        lone->setObjectName("Lone");
        lone->show();
        toys["A"].FocusOn(lone);
        toys["A"].Button->setDefault(true);
        TakeLog();
        QTest::keyClick(lone, Qt::Key_Return);
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        toys["A"].OnEnter(lone, [] { Tell("entered"); });
        QTest::keyClick(lone, Qt::Key_Return);
        QCOMPARE(TakeLog(), QStringList{"entered"});
    }

    void EnterOnAButtonIsAClickAndEscClosesNothing()
    {
        ToyBox toys;
        Show("A");
        toys["A"].FocusOn(toys["A"].Button);
        TakeLog();
        QTest::keyClick(toys["A"].Button, Qt::Key_Return);
        QTest::keyClick(toys["A"].Button, Qt::Key_Space);
        QCOMPARE(TakeLog(), (QStringList{"A Click", "A Click"}));
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
        QApplication::sendEvent(toys["A"].Button, &held); // a key held down does not click on and on
        QTest::keyClick(toys["A"].Button, Qt::Key_Escape);
        QTest::keyClick(toys["A"].First, Qt::Key_Escape);
        Settle();
        QCOMPARE(TakeLog(), QStringList());
        QVERIFY(toys["A"].isVisible());
    }

    // Where the window system marks none of its presses as repeated
    void AKeyHeldOnAButtonIsOneClick_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void AKeyHeldOnAButtonIsOneClick()
    {
        QFETCH(int, key);
        ToyBox toys;
        Show("A");
        toys["A"].FocusOn(toys["A"].Button);
        TakeLog();
        const auto send = [&](QEvent::Type type, quint64 at) {
            QKeyEvent event(type, key, Qt::NoModifier);
            event.setTimestamp(at);
            QCoreApplication::sendEvent(toys["A"].Button, &event);
        };
        send(QEvent::KeyPress, 1000);
        for (const quint64 at : {1500, 1530, 1560}) {
            send(QEvent::KeyRelease, at);
            send(QEvent::KeyPress, at);
        }
        send(QEvent::KeyRelease, 1580);
        QCOMPARE(TakeLog(), QStringList{"A Click"});
        send(QEvent::KeyPress, 1700);
        send(QEvent::KeyRelease, 1780);
        QCOMPARE(TakeLog(), QStringList{"A Click"});
    }

    void EscDoesNotCloseAModalWindow()
    {
        ToyBox toys;
        Show("A");
        bool stayed = false;
        Soon([&] {
            QTest::keyClick(toys["B"].First, Qt::Key_Escape);
            stayed = toys["B"].isVisible();
            Unload("B");
        });
        ShowModal("B");
        QVERIFY(stayed);
    }

    void AnAccessKeyMovesTheFocusBeforeItClicks()
    {
        ToyBox toys;
        Show("A");
        Settle();
        TakeLog();
        QTest::keyClick(toys["A"].First, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "A GotFocus Button", "A Click"}));
        toys["A"].Button->setEnabled(false);
        Settle();
        TakeLog();
        QTest::keyClick(toys["A"].First, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(TakeLog(), QStringList());
    }

    void AnAccessKeyWhoseFocusHandlerShowsABoxClicksAfterIt()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        Settle();
        When("A LostFocus First", [] {
            AnswerBoxSoon();
            ShowMessage("text", "title", Icon::Stop);
            Tell("box closed");
        });
        TakeLog();
        QTest::keyClick(toys["A"].First, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(TakeLog(), (QStringList{"A LostFocus First", "box closed", "A GotFocus Button", "A Click"}));
    }

    // The help

    void F1OpensTheWindowsHelpAndNothingElse_data()
    {
        QTest::addColumn<QString>("control");
        QTest::newRow("in a field") << "First";
        QTest::newRow("on a button") << "Button";
        QTest::newRow("without any control") << QString();
    }
    void F1OpensTheWindowsHelpAndNothingElse()
    {
        QFETCH(QString, control);
        ToyBox toys;
        const QList<HelpQuestion> &asked = RecordHelp();
        Show("B");
        toys["B"].TheHelpContext = 7;
        Show("A");
        toys["A"].TheHelpContext = 22;
        toys["A"].First->setText("12.50");
        auto *watched = control.isEmpty() ? &toys["A"] : toys["A"].findChild<QWidget *>(control);
        if (!control.isEmpty())
            toys["A"].FocusOn(watched);
        Settle();
        TakeLog();
        QTest::keyClick(watched, Qt::Key_F1);
        Settle();
        QCOMPARE(asked, (QList<HelpQuestion>{{QString(), 22, "A"}}));
        QCOMPARE(TakeLog(), QStringList());
        QCOMPARE(toys["A"].First->text(), "12.50");
        QCOMPARE(Active(), "A");
        toys["A"].TheHelpContext = 0; // the contents
        QTest::keyClick(watched, Qt::Key_F1);
        QCOMPARE(asked.last(), (HelpQuestion{QString(), 0, "A"}));
        QCOMPARE(asked.size(), 2);
    }

    void F1InAModalWindowOpensItsHelp()
    {
        ToyBox toys;
        const QList<HelpQuestion> &asked = RecordHelp();
        Show("A");
        toys["A"].TheHelpContext = 22;
        QStringList heard{"not asked"};
        bool stayed = false;
        Soon([&] {
            toys["B"].TheHelpContext = 7;
            TakeLog();
            QTest::keyClick(toys["B"].Second, Qt::Key_F1);
            Settle();
            heard = TakeLog();
            stayed = toys["B"].isVisible();
            Unload("B");
        });
        ShowModal("B");
        QCOMPARE(asked, (QList<HelpQuestion>{{QString(), 7, "B"}}));
        QCOMPARE(heard, QStringList());
        QVERIFY(stayed);
    }

    void F1HeldDownAsksOnce()
    {
        ToyBox toys;
        const QList<HelpQuestion> &asked = RecordHelp();
        Show("A");
        QTest::keyPress(toys["A"].First, Qt::Key_F1);
        QKeyEvent again(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(toys["A"].First, &again);
        QCOMPARE(asked.size(), 1);
        QVERIFY(again.isAccepted()); // and goes no further
    }

    void AnotherKeyAsksForNoHelp()
    {
        ToyBox toys;
        const QList<HelpQuestion> &asked = RecordHelp();
        Show("A");
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Help, Qt::Key_H})
            QTest::keyClick(toys["A"].First, key);
        QCOMPARE(asked.size(), 0);
    }

    // The end of the program

    void TheProgramEndsWithItsLastWindow_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("closed by its frame") << 0;
        QTest::newRow("unloaded") << 1;
        QTest::newRow("hidden") << 2;
    }
    void TheProgramEndsWithItsLastWindow()
    {
        QFETCH(int, way);
        ToyBox toys;
        Show("A");
        Show("B");
        Unload("B");
        Settle();
        QVERIFY(!Log.contains("the program ends"));
        switch (way) {
        case 0: toys["A"].close(); break;
        case 1: Unload("A"); break;
        default: Hide("A");
        }
        Settle();
        QCOMPARE(TakeLog().count("the program ends"), 1);
    }

    void TwoWindowsThatCloseTogetherEndTheProgramOnce()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        Unload("A");
        Unload("B");
        Settle();
        QCOMPARE(TakeLog().count("the program ends"), 1);
    }

    void AWindowThatFollowsInTheSameHandlerKeepsTheProgram()
    {
        ToyBox toys;
        Show("A");
        Unload("A");
        Show("B");
        Settle();
        QVERIFY(!TakeLog().contains("the program ends"));
    }

    void TheProgramDoesNotEndWhileTheNextWindowLoads()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        // The loading may take its time, tell errors in boxes, and let the message loop run.
        When("B Load", [] {
            Unload("A");
            AnswerBoxSoon();
            ShowMessage("text", "title", Icon::Stop);
            QTest::qWait(5);
        });
        TakeLog();
        Show("B");
        Settle();
        QCOMPARE(TakeLog(), QStringList{"B Load"} + Closes("A") + Comes("B"));
    }

    void TheProgramEndsAfterTheBoxThatOutlivesTheLastWindow()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        TakeLog();
        Unload("A");
        Soon([] {
            QTest::qWait(5);
            AnswerBoxSoon();
        });
        ShowMessage("text", "title", Icon::Information);
        Tell("box closed");
        Settle();
        QCOMPARE(TakeLog(), Closes("A") + QStringList({"box closed", "the program ends"}));
    }

    void TimersOfHiddenWindowsRun()
    {
        ToyBox toys;
        Show("A");
        Show("B");
        int ticks = 0;
        auto *timer = new QTimer(&toys["B"]);
        connect(timer, &QTimer::timeout, this, [&] { ++ticks; });
        timer->start(1);
        Hide("B");
        ticks = 0;
        QTRY_VERIFY(ticks > 2);
    }

    // Errors that nobody traps

    void AnUntrappedErrorIsReportedAndEndsTheProgram()
    {
        ToyBox toys;
        QList<Message> boxes;
        TheDesk.ProgramTitle = "The toys";
        TheDesk.ShowMessage = [&](const Message &message) {
            boxes += message;
            return Answer::Ok;
        };
        Show("A");
        When("A Click", [] { RaiseError(RuntimeError::TypeMismatch); });
        QTest::mouseClick(toys["A"].Button, Qt::LeftButton);
        QCOMPARE(boxes.size(), 1);
        QCOMPARE(boxes[0].Text, "Run-time error '13':\n\nType mismatch");
        QCOMPARE(boxes[0].Title, "The toys");
        QCOMPARE(boxes[0].TheIcon, Icon::Stop);
        QCOMPARE(boxes[0].TheButtons, Buttons::Ok);
        QCOMPARE(TakeLog().count("the program ends"), 1);
    }

    void AnUntrappedErrorPutsThePointerBackBeforeItIsReported()
    {
        ToyBox toys;
        QStringList order;
        TheDesk.Hourglass = [&](bool on) { order += on ? "hourglass" : "normal"; };
        TheDesk.ShowMessage = [&](const Message &) {
            order += "box";
            return Answer::Ok;
        };
        TheDesk.EndProgram = [&] { order += "end"; };
        Show("A");
        When("A Click", [] {
            TheDesk.Hourglass(true);
            RaiseError(RuntimeError::DivisionByZero);
        });
        QTest::mouseClick(toys["A"].Button, Qt::LeftButton);
        QCOMPARE(order, (QStringList{"hourglass", "normal", "box", "end"}));
    }

    void ThePointerOverTheReportIsTheNormalOne()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        bool wasBusy = false;
        bool isBusy = true;
        When("A Click", [&] {
            TheDesk.Hourglass(true);
            TheDesk.Hourglass(true); // two that wanted it
            wasBusy = QApplication::overrideCursor();
            Soon([&] {
                isBusy = QApplication::overrideCursor();
                AnswerBoxSoon();
            });
            RaiseError(RuntimeError::DivisionByZero);
        });
        QTest::mouseClick(toys["A"].Button, Qt::LeftButton);
        QVERIFY(wasBusy);
        QVERIFY(!isBusy);
        QVERIFY(!QApplication::overrideCursor());
        QCOMPARE(TakeLog().count("the program ends"), 1);
    }

    void AnErrorOfATimerUnderTheReportIsNotReported()
    {
        ToyBox toys;
        UseRealBoxes();
        Show("A");
        Soon([] { RaiseError(RuntimeError::TypeMismatch); });
        int failures = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (++failures == 4)
                AnswerBoxSoon();
            if (OpenBox())
                RaiseError(RuntimeError::Overflow);
        });
        timer.start(1);
        QTRY_VERIFY(Log.contains("the program ends"));
        timer.stop();
        QVERIFY(failures >= 4);
        QCOMPARE(TakeLog().count("the program ends"), 1);
    }

private:
    QTemporaryDir m_folder;
    QList<HelpQuestion> m_asked;

    /// What the help is asked for from here on.
    const QList<HelpQuestion> &RecordHelp()
    {
        m_asked.clear();
        TheDesk.ShowHelp = [this](const HelpQuestion &question) { m_asked += question; };
        return m_asked;
    }

    void UseRealBoxes()
    {
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(AppTitle, m_folder.path());
        TheDesk.EndProgram = end;
    }
};

REGISTER_TEST(gui_windowregister)
#include "gui_windowregister.moc"

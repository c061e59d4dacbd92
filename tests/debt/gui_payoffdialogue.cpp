// The conversation that leads to a pay off plan, in all its ways: through the three windows, forth and back.
#include "Conversation.h"
#include "GuiDesk.h"
#include "TestProgram.h"

#include "debt/PayOffPlan.h"
#include "platform/desk/Printer.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString PayOff = u"frmPayOff"_s;
const QString Info = u"frmCreditorInfo"_s;
const QString CountPrompt = u"In the box below enter the number of creditors or bills you wish to pay off?"_s;

QString NamePrompt(int number)
{
    return u"In the box below enter the name of the creditor or bill that would be Creditor # %1"_s.arg(number);
}
QString AskedForCount()
{
    return u"Enter Number of Creditors | "_s + CountPrompt + u" | 1"_s;
}
QString AskedForName(int number)
{
    return u"Enter Creditor Name | "_s + NamePrompt(number) + u" | "_s;
}

/// Names the creditors; their figures are asked for then.
void Begin(const QStringList &names)
{
    Show(PayOff);
    Conversation talk;
    talk.Say(QString::number(names.size()));
    for (const QString &name : names)
        talk.Say(name);
    Click(PayOff, u"cmdEnterCreditors"_s);
}

QString Title()
{
    return TheWindows.Loaded(Info)->windowTitle();
}

QStringList PlanLines()
{
    return RowsOf(PayOff, u"lstPayOffInfo"_s);
}

QStringList PlanRows()
{
    return GridRows(PayOff, u"grdPayOff"_s, 1);
}

Message UnknownError(const QString &title)
{
    return {UnknownErrorText, title, Icon::Warning};
}

} // namespace

class gui_payoffdialogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void FromTheQuestionToThePlan()
    {
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Say(u"2"_s).Say(u"Card"_s).Say(u"Store"_s);
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(talk.Asked, (QStringList{AskedForCount(), AskedForName(1), AskedForName(2)}));
        QVERIFY(!TheWindows.Loaded(u"frmInput"_s));
        QCOMPARE(ActiveWindow(), Info);
        QVERIFY(!TheWindows.Loaded(Info)->isModal()); // the plan's window stays usable
        QCOMPARE(PlanLines(), QStringList());
        EnterFigures(u"5000"_s, u"18"_s, u"100"_s, u"1/15/2004"_s);
        QCOMPARE(Title(), u"Pay Off Information For Store"_s);
        QVERIFY(desk.HourglassCalls.isEmpty());
        EnterFigures(u"300"_s, u"21"_s, u"50"_s, u"1/20/2004"_s);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false}));
        QVERIFY(!TheWindows.Loaded(Info));
        QCOMPARE(ActiveWindow(), PayOff);
        QCOMPARE(Debt.LoopIndex, qint16(0));
        QCOMPARE(PlanLines().size(), 20);
        QCOMPARE(PlanLines().filter(u"Transfer"_s),
                 (QStringList{u"Transfer $50.00 to Card"_s, u"Transfer $150.00 to Budget"_s}));
        QCOMPARE(PlanRows().size(), 7 + 52);
        QCOMPARE(PlanRows().last(), u"52 | 4/15/2008 | $20.85 | $0.31 | $21.17 | $21.17 | $0.00"_s);
        QCOMPARE(Debt.PayOffCreditorNames(1), u"Store"_s); // the arrays stay sorted
    }

    void APlanIsPrintedWithTheSwitchOn()
    {
        GuiDesk desk;
        Show(PayOff);
        Click(PayOff, u"pbPrintOn"_s);
        Begin({u"Card"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        QCOMPARE(desk.Printed.size(), 1);
        QCOMPARE(desk.TakePrinted().Lines.value(4), u"Creditor: Card"_s);
    }

    void TheBudgetsCreditorsAreOthers()
    {
        GuiDesk desk;
        State.NumberOfCreditors = 1;
        State.Creditors = {{u"Rent"_s, 1, Currency::FromDouble(500)}};
        Begin({u"Card"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.Creditors(1).CreditorName, u"Rent"_s);
        QVERIFY(!PlanLines().join(QString()).contains(u"Rent"_s)); // and no file was written, or the desk fails
    }

    // Giving up, and answers from before

    void TheFirstTimeClosingTheQuestionEndsTheEntry()
    {
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Dismiss();
        Click(PayOff, u"cmdEnterCreditors"_s);
        QVERIFY(!TheWindows.Loaded(Info));
        QCOMPARE(ActiveWindow(), PayOff);
        QCOMPARE(Debt.NumberOfPayOffCreditors, qint16(0));
    }

    void ClosingTheQuestionForANameTakesTheCountAsTheName()
    {
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Say(u"2"_s).Dismiss().Dismiss();
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(Title(), u"Pay Off Information For 2"_s);
        QCOMPARE(Debt.PayOffCreditorNames(2), u"2"_s);
    }

    void ClosingALaterNameRepeatsTheOneBefore()
    {
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Say(u"2"_s).Say(u"Card"_s).Dismiss();
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(Debt.PayOffCreditorNames(1), u"Card"_s);
        QCOMPARE(Debt.PayOffCreditorNames(2), u"Card"_s);
        QCOMPARE(ActiveWindow(), Info);
    }

    void ClosingTheCountAfterANameIsAnUnknownError()
    {
        GuiDesk desk;
        Begin({u"Card"_s});
        Conversation talk;
        talk.Dismiss();
        Click(PayOff, u"cmdEnterCreditors"_s); // "Card" is no number
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Pay Off"_s));
        QCOMPARE(Debt.PayOffCreditorNames(1), u"Card"_s); // what was entered stands
    }

    void ClosingTheCountAfterACountTakesItAgain()
    {
        GuiDesk desk;
        Begin({u"2"_s}); // a creditor of that name
        Conversation talk;
        talk.Dismiss().Say(u"Card"_s).Say(u"Store"_s);
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(Debt.NumberOfPayOffCreditors, qint16(2));
        QCOMPARE(Debt.PayOffCreditorNames(2), u"Store"_s);
    }

    void AnEmptyAnswerLeftFromBeforeEndsTheEntry_data()
    {
        QTest::addColumn<bool>("atTheName");
        QTest::newRow("at the count") << false;
        QTest::newRow("at a name") << true;
    }
    void AnEmptyAnswerLeftFromBeforeEndsTheEntry()
    {
        QFETCH(bool, atTheName);
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        if (atTheName)
            talk.Say(u"2"_s).Say(u"Card"_s);
        talk.Do([] {
            Debt.InputResult.clear(); // the dialogue itself never leaves an empty answer
            CloseByFrame(u"frmInput"_s);
        });
        Click(PayOff, u"cmdEnterCreditors"_s);
        QVERIFY(!TheWindows.Loaded(Info));
        QCOMPARE(Debt.NumberOfPayOffCreditors, qint16(atTheName ? 2 : 0));
        if (atTheName)
            QCOMPARE(Debt.PayOffCreditorNames(1), u"Card"_s); // the entries so far stay
        QCOMPARE(PlanLines(), QStringList());
    }

    void RefusedAnswersAreAskedAgain()
    {
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Say(u"two"_s).Say(u"1"_s).Say(QString()).Say(u"Card"_s);
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Please enter a valid number"_s, u"Enter Number of Creditors"_s, Icon::Warning}));
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Please enter creditor name"_s, u"Enter Creditor Name"_s, Icon::Warning}));
        QCOMPARE(talk.Asked[1], u"Enter Number of Creditors | "_s + CountPrompt + u" | two"_s); // the text stays
        QCOMPARE(Title(), u"Pay Off Information For Card"_s);
    }

    void CountsThatCannotBe_data()
    {
        QTest::addColumn<QString>("count");
        QTest::newRow("none") << u"0"_s;
        QTest::newRow("fewer") << u"-1"_s;
        QTest::newRow("rounded to none") << u"0.5"_s;
        QTest::newRow("too many") << u"70000"_s;
    }
    void CountsThatCannotBe()
    {
        QFETCH(QString, count);
        GuiDesk desk;
        Begin({u"Card"_s, u"Store"_s});
        Show(PayOff);
        Conversation talk;
        talk.Say(count);
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Pay Off"_s));
        QCOMPARE(Debt.NumberOfPayOffCreditors, qint16(2)); // nothing else has changed
        QCOMPARE(Debt.PayOffCreditorNames(2), u"Store"_s);
        QVERIFY(desk.HourglassCalls.isEmpty());
        QCOMPARE(ActiveWindow(), PayOff);
    }

    void FractionsOfACountAreRounded_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<int>("names");
        QTest::newRow("to the even 2") << u"2.5"_s << 2;
        QTest::newRow("to the even 4") << u"3.5"_s << 4;
    }
    void FractionsOfACountAreRounded()
    {
        QFETCH(QString, count);
        QFETCH(int, names);
        GuiDesk desk;
        Show(PayOff);
        Conversation talk;
        talk.Say(count);
        for (int i = 1; i <= names; ++i)
            talk.Say(u"Debt %1"_s.arg(i));
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(talk.Asked.last(), AskedForName(names));
        QCOMPARE(int(Debt.NumberOfPayOffCreditors), names);
    }

    void StartingOverDropsWhatWasEntered()
    {
        GuiDesk desk;
        Begin({u"Card"_s, u"Store"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QCOMPARE(Debt.LoopIndex, qint16(2));
        Begin({u"Doctor"_s}); // while the figures are still asked for
        QCOMPARE(ActiveWindow(), Info);
        QCOMPARE(Title(), u"Pay Off Information For Doctor"_s);
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QCOMPARE(Debt.PayOffBalances(1), Currency());
    }

    // Leaving the figures and coming back

    void ComingBackFromAnotherWindowStartsAgain()
    {
        GuiDesk desk;
        Begin({u"Card"_s, u"Store"_s, u"Doctor"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        EnterFigures(u"200"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QCOMPARE(Debt.LoopIndex, qint16(3));
        Type(Info, u"txtBalanceOwed"_s, u"77"_s);
        TheWindows.Loaded(Info)->FocusOn(&Find(Info, u"txtDueDate"_s));
        Show(PayOff);
        Show(Info);
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QCOMPARE(Title(), u"Pay Off Information For Card"_s);
        QCOMPARE(TextOf(Info, u"txtBalanceOwed"_s), u"$0.00"_s);
        QCOMPARE(TextOf(Info, u"txtDueDate"_s), u"1/5/2004"_s);
        QCOMPARE(FocusOf(Info), u"txtBalanceOwed"_s);
        QCOMPARE(Debt.PayOffBalances(2), Currency::FromDouble(200)); // stands until it is entered anew
        QCOMPARE(PlanLines(), QStringList());
    }

    void AWarningInBetweenDoesNotStartAgain()
    {
        GuiDesk desk;
        Begin({u"Card"_s, u"Store"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        const auto tellAndGoOn = TheDesk.ShowMessage;
        TheDesk.ShowMessage = [tellAndGoOn](const Message &message) { // as a real box is shown
            Answer answer = Answer::Ok;
            TheWindows.WhileAway([&] {
                QWidget box(TheWindows.Loaded(Info), Qt::Dialog);
                box.setWindowModality(Qt::ApplicationModal);
                box.show();
                box.activateWindow();
                Settle();
                answer = tellAndGoOn(message);
            });
            Settle();
            return answer;
        };
        Type(Info, u"txtBalanceOwed"_s, u"much"_s);
        Click(Info, u"cmdOK"_s);
        QCOMPARE(desk.TakeMessage().Title, u"Enter Creditor Info"_s);
        QCOMPARE(Debt.LoopIndex, qint16(2));
        QCOMPARE(TextOf(Info, u"txtBalanceOwed"_s), u"much"_s);
        QCOMPARE(Title(), u"Pay Off Information For Store"_s);
        EnterFigures(u"100"_s, u"0"_s, u"0"_s, u"1/1/2004"_s);
        QVERIFY(desk.TakeBeep());
        desk.TakeMessage();
        QCOMPARE(Debt.LoopIndex, qint16(2));
        QCOMPARE(FocusOf(Info), u"txtMonthlyPayment"_s);
        QCOMPARE(TextOf(Info, u"txtBalanceOwed"_s), u"100"_s);
    }

    void WithThePlansWindowClosedThePlanBringsItBack()
    {
        GuiDesk desk;
        desk.StartProgram();
        Begin({u"Card"_s});
        CloseByFrame(PayOff);
        Show(Info);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        QVERIFY(!TheWindows.Loaded(Info));
        QVERIFY(IsShown(PayOff)); // unseen it would hold the tutor's timer
        QCOMPARE(ActiveWindow(), PayOff);
        QCOMPARE(PlanLines().value(0), u"Creditor: Card"_s);
        Click(PayOff, u"cmdExit"_s);
        QVERIFY(Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s).isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }

    void ThePlanLeavesTheUserWhereTheWindowStands()
    {
        GuiDesk desk;
        desk.StartProgram();
        Begin({u"Card"_s});
        Show(u"frmSavings"_s);
        Show(Info);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        QVERIFY(IsShown(PayOff));
        QCOMPARE(ActiveWindow(), u"frmSavings"_s); // from where the figures were entered
    }

    void APlanThatFailsInAClosedWindowBringsItBack()
    {
        GuiDesk desk;
        Begin({u"First"_s, u"Second"_s});
        CloseByFrame(PayOff);
        Show(Info);
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        desk.TakeHourglass();
        QVERIFY(IsShown(PayOff));
        QVERIFY(IsShown(Info));
        QCOMPARE(PlanLines().size(), 10);
    }

    // Failures inside the plan

    void ADebtOfTooManyMonthsFailsBeforeAnythingIsShown()
    {
        GuiDesk desk;
        Begin({u"Card"_s});
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        const QStringList rows = PlanRows();
        const QStringList lines = PlanLines();
        Begin({u"Slow"_s});
        EnterFigures(u"40000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true}); // the pointer stays busy
        QVERIFY(IsShown(Info));
        QCOMPARE(Debt.LoopIndex, qint16(0));
        QCOMPARE(PlanRows(), rows); // the plan of before stands
        QCOMPARE(PlanLines(), lines);
        CloseByFrame(Info);
        QCOMPARE(desk.TakeHourglass(), QList<bool>{false}); // the program goes on with a free pointer
        Begin({u"Card"_s});
        CloseByFrame(Info);
        QVERIFY(desk.TakeHourglass().isEmpty());
    }

    void APlanOfTooManyRowsIsShownAsFarAsItGot()
    {
        GuiDesk desk;
        Begin({u"First"_s, u"Second"_s});
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true});
        QVERIFY(IsShown(Info));
        QCOMPARE(PlanLines().size(), 10);
        QCOMPARE(PlanLines().value(8), u"Transfer $1.00 to Second"_s);
        auto &grid = Find<Grid>(PayOff, u"grdPayOff"_s);
        QCOMPARE(grid.Text(17000, 0), u"17000"_s);
        QCOMPARE(grid.Text(17001, 0), QString());
        QCOMPARE(grid.Text(32767, 0), u"15766"_s);
        QCOMPARE(grid.Text(32768, 0), QString());
    }

    void HalfThePagesOfAFailedPlanAreSentOff_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("with the switch") << u"pbPrintOff"_s;
        QTest::newRow("with the window") << u"cmdExit"_s;
    }
    void HalfThePagesOfAFailedPlanAreSentOff()
    {
        QFETCH(QString, button);
        GuiDesk desk;
        Show(PayOff);
        Click(PayOff, u"pbPrintOn"_s);
        Begin({u"First"_s, u"Second"_s});
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        EnterFigures(u"17000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        desk.TakeHourglass();
        QVERIFY(desk.Printed.isEmpty());
        Show(PayOff);
        Click(PayOff, button);
        QCOMPARE(desk.TakePrinted().Lines.value(4), u"Creditor: First"_s);
        QVERIFY(ThePrinter.PendingLines().isEmpty());
    }

    void OkAfterAFailureFailsUntilTheUserComesBack()
    {
        GuiDesk desk;
        Begin({u"Slow"_s, u"Card"_s});
        EnterFigures(u"40000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true});
        Click(Info, u"cmdOK"_s); // no creditor is at hand
        QCOMPARE(desk.TakeMessage(), UnknownError(u"Creditor Info"_s));
        QVERIFY(desk.TakeHourglass().isEmpty());
        QCOMPARE(Debt.LoopIndex, qint16(0));
        QCOMPARE(Debt.PayOffCreditorNames(1), u"Slow"_s);
        QCOMPARE(Debt.PayOffBalances(1), Currency::FromDouble(40000));
        Show(PayOff);
        Show(Info);
        QCOMPARE(Title(), u"Pay Off Information For Slow"_s);
        EnterFigures(u"40"_s, u"0"_s, u"10"_s, u"1/1/2004"_s);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false})); // and the pointer is free again
        QVERIFY(!TheWindows.Loaded(Info));
        QCOMPARE(PlanLines().size(), 20);
    }

    // The tutor

    void TheTutorIsHiddenWhereThePayOffWindowHasStoppedIt_data()
    {
        QTest::addColumn<bool>("running");
        QTest::newRow("its timer ran") << true;
        QTest::newRow("its timer stood") << false;
    }
    void TheTutorIsHiddenWhereThePayOffWindowHasStoppedIt()
    {
        QFETCH(bool, running);
        GuiDesk desk;
        desk.StartProgram();
        TheWindows.Register(u"frmTallymereTutor"_s, [] { return new Form; });
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        if (!running)
            timer.stop();
        Show(PayOff);
        Show(u"frmTallymereTutor"_s);
        Show(PayOff);
        Conversation talk;
        QList<bool> shown;
        const auto look = [&](const QString &answer) {
            shown += IsShown(u"frmTallymereTutor"_s);
            Type(u"frmInput"_s, u"txtInput"_s, answer);
            TheWindows.Show(u"frmTallymereTutor"_s); // it comes back meanwhile
            TheWindows.Show(u"frmInput"_s);
            Click(u"frmInput"_s, u"cmdOK"_s);
        };
        talk.Do([&] { look(u"1"_s); }).Do([&] { look(u"Card"_s); });
        Click(PayOff, u"cmdEnterCreditors"_s);
        QCOMPARE(shown, (QList<bool>{!running, !running})); // before each question
    }
};

REGISTER_TEST(gui_payoffdialogue)
#include "gui_payoffdialogue.moc"

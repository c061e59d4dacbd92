// What the window of the projects does by itself: planning against the forecast's pick, the completion date that is
// never typed, the delete of the project that was clicked last, the way to its view. The rest is in gui_listpanels.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmProjects"_s;
const QString ForecastWindow = u"frmSavingsForecast"_s;
const QString List = u"lstProjects"_s;
const QString Commit = u"cmdNew"_s;
const QString Project = u"txtProject"_s;
const QString Amount = u"txtProjectAmount"_s;
const QString Date = u"txtProjectCompletionDate"_s;
const QStringList Fields{Project, Amount, Date};
const QStringList ListButtons{u"cmdListProjects"_s, u"cmdAddProject"_s, u"cmdDeleteProject"_s, u"cmdQuit"_s};
const QStringList Controls = ListButtons + Fields + QStringList{Commit};

const QByteArray Boat = "\"Boat\"\r\n60\r\n2\r\n\"January 1, 2004\"\r\n40\r\n\"January 8, 2004\"\r\n20\r\n";
const QByteArray Lamp = "\"Lamp\"\r\n25\r\n1\r\n\"January 15, 2004\"\r\n25\r\n";

/// A weekly household of $100.00 that saves $100.00, $50.00 and $100.00 in the first three pay periods of 2004.
void TakeHousehold(const CommitmentsDesk &desk)
{
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.PaycheckAmount = Dollars(100);
    State.PayFrequency = Weekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.ForecastPeriods = 3;
    desk.WriteFile(u"extra.txt"_s, "1\r\n\"01-08-2004\"\r\n1\r\n\"Gift\"\r\n50\r\n");
    State.NumberOfExtraPayPeriods = 1;
    State.ExtraPayPeriods.Redim(1);
    State.ExtraPayPeriods(1).PayPeriodDate = u"01-08-2004"_s;
    State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
    State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Gift"_s, Dollars(50)};
}

void Open(const CommitmentsDesk &desk, const QByteArray &file)
{
    TakeHousehold(desk);
    desk.WriteFile(u"projects.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListProjects"_s);
}

void Add(const QString &project, const QString &amount)
{
    Click(Window, u"cmdAddProject"_s);
    Type(Window, Project, project);
    Type(Window, Amount, amount);
}

void DoubleClickDate()
{
    QTest::mouseDClick(&Find(Window, Date), Qt::LeftButton);
    Settle();
}

void MoveOverDate()
{
    QWidget &date = Find(Window, Date);
    QMouseEvent moved(QEvent::MouseMove, QPointF(5, 5), date.mapToGlobal(QPointF(5, 5)), Qt::NoButton, Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&date, &moved);
}

/// Picks a row of the forecast that is open.
void Pick(int row)
{
    auto &grid = Find<Grid>(ForecastWindow, u"grdSavingsForecast"_s);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                      grid.visualRect(grid.model()->index(row - 1, 0)).center());
    Settle();
}

void PickDate(int row)
{
    DoubleClickDate();
    Pick(row);
}

/// Picks the first row that is too late for a project; the mouse would have to scroll to it.
void PickRow101()
{
    DoubleClickDate();
    auto &grid = Find<Grid>(ForecastWindow, u"grdSavingsForecast"_s);
    grid.SetCurrentRow(101);
    Q_EMIT grid.Click();
    Settle();
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"projects.txt"_s);
}

const Message UnknownError{UnknownErrorText, u"Projects"_s, Icon::Warning};
const Message NotEnough{u"Tallymere did not find enough funds by the selected Completion Date. Double-click on the "
                        "Completion Date box to select a later completion date which has at least the Project Amount "
                        "available in the Accumulated column."_s,
                        u"Projects"_s, Icon::Warning, Buttons::OkHelp, 4};

Message PrintQuestion(const QString &project)
{
    return {u"Do you wish to print project "_s + project + u'?', u"Projects"_s, Icon::Question, Buttons::YesNo};
}

} // namespace

class gui_frmProjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheListTellsOfTheView()
    {
        CommitmentsDesk desk;
        Show(Window);
        QCOMPARE(Find(Window, List).toolTip(), u"Double-click on a project to see project detail"_s);
        QCOMPARE(Find(Window, Date).toolTip(), u"Any key picks the date in the savings forecast"_s); // its description
    }

    void ALookAtARowEndsTheEntry()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Boat);
        Add(u"Coat"_s, u"5"_s);
        PickDate(1);
        ClickRow(Window, List, 0);
        QVERIFY(!IsEnabled(Window, Commit)); // or New would plan a second project of the row's name
        Type(Window, Project, u"Ship"_s);
        PickDate(2);
        QVERIFY(!IsEnabled(Window, Commit));
        Click(Window, u"cmdAddProject"_s);
        QCOMPARE(Texts(Window, Fields), u" |  | "_s);
        QVERIFY(!IsEnabled(Window, Commit));
    }

    void NewIsEnabledWhenAllThreeFieldsHaveText()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(u"B"_s, u"6"_s);
        QVERIFY(!IsEnabled(Window, Commit));
        PickDate(2);
        QVERIFY(IsEnabled(Window, Commit));
        for (const QString &field : {Project, Amount}) { // deleting the one character of any of them disables it
            const QString text = TextOf(Window, field);
            Type(Window, field, {});
            QVERIFY(!IsEnabled(Window, Commit));
            Type(Window, field, text);
            QVERIFY(IsEnabled(Window, Commit));
        }
        Find<QLineEdit>(Window, Date).clear(); // as a pick below the last row of the forecast does
        QVERIFY(!IsEnabled(Window, Commit));
    }

    void ARowShowsItsProjectAndDoesNotEnableNew()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"Boat | $60.00 | January 8, 2004"_s);
        QCOMPARE(Projects.SelectedProject, qint16(1));
        QCOMPARE(FocusOf(Window), Project);
        QCOMPARE(Enabled(Window, Controls),
                 u"cmdListProjects cmdAddProject cmdDeleteProject cmdQuit txtProject txtProjectAmount "
                 "txtProjectCompletionDate"_s);
        Type(Window, Project, u"Ship"_s);
        QVERIFY(!IsEnabled(Window, Commit)); // a project is viewed and deleted, never edited
    }

    void TheDateIsPickedInTheForecastAndTheProjectPlanned()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(u"Boat"_s, u"60"_s);
        DoubleClickDate();
        QCOMPARE(ActiveWindow(), ForecastWindow);
        QVERIFY(State.ProjectDateFromForecast);
        Pick(2);
        QVERIFY(!TheWindows.Loaded(ForecastWindow));
        QVERIFY(!State.ProjectDateFromForecast);
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(TextOf(Window, Date), u"January 8, 2004"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Boat)); // 100 to 50 as the savings are
        QCOMPARE(RowsOf(Window, List), QStringList{u"Boat"_s});
        QCOMPARE(Texts(Window, Fields), u"Boat | $60.00 | January 8, 2004"_s);
        QVERIFY(!IsEnabled(Window, Commit));
        Type(Window, Project, u"Ship"_s); // the entry is over
        QVERIFY(!IsEnabled(Window, Commit));
    }

    void TheFirstRowMakesOneInstallment()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(u"Coat"_s, u"99.99"_s);
        PickDate(1);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n\"Coat\"\r\n99.99\r\n1\r\n\"January 1, 2004\"\r\n99.99\r\n"));
    }

    void EqualFundsPass()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(u"All"_s, u"150"_s);
        PickDate(2);
        Click(Window, Commit);
        QCOMPARE(State.NumberOfProjects, qint16(1));
        QCOMPARE(State.ProjectAmounts(1), Dollars(150));
        QCOMPARE(desk.TakeFiles(), QStringList{u"projects.txt"_s});
    }

    void TooLittleIsToldAndALaterRowSucceeds()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(u"Piano"_s, u"150.01"_s);
        PickDate(2);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), NotEnough);
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        QCOMPARE(Texts(Window, Fields), u"Piano | $150.01 | January 8, 2004"_s);
        QVERIFY(IsEnabled(Window, Commit));
        PickDate(3);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Piano"_s});
        QCOMPARE(State.ProjectEntryCounts(1), qint16(3));
        QCOMPARE(desk.TakeFiles(), QStringList{u"projects.txt"_s});
    }

    void AKeyInTheDateOpensTheForecastAndTypesNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("opens");
        QTest::newRow("a letter") << int(Qt::Key_J) << u"j"_s << 0 << true;
        QTest::newRow("a capital letter") << int(Qt::Key_J) << u"J"_s << int(Qt::ShiftModifier) << true;
        QTest::newRow("a digit") << int(Qt::Key_5) << u"5"_s << 0 << true;
        QTest::newRow("the space") << int(Qt::Key_Space) << u" "_s << 0 << true;
        QTest::newRow("Enter") << int(Qt::Key_Return) << u"\r"_s << 0 << true;
        QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter) << u"\r"_s << 0 << true;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << u"\b"_s << 0 << true;
        QTest::newRow("Esc") << int(Qt::Key_Escape) << u"\x1b"_s << 0 << true;
        QTest::newRow("a tab") << int(Qt::Key_Tab) << u"\t"_s << 0 << false;
        QTest::newRow("an arrow") << int(Qt::Key_Left) << QString() << 0 << false;
        QTest::newRow("a function key") << int(Qt::Key_F2) << QString() << 0 << false;
        QTest::newRow("Delete") << int(Qt::Key_Delete) << u"\x7f"_s << 0 << false;
        QTest::newRow("a key with Ctrl") << int(Qt::Key_V) << u"\x16"_s << int(Qt::ControlModifier) << false;
        QTest::newRow("the shift key alone") << int(Qt::Key_Shift) << QString() << int(Qt::ShiftModifier) << false;
    }
    void AKeyInTheDateOpensTheForecastAndTypesNothing()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        QFETCH(bool, opens);
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Boat);
        ClickRow(Window, List, 0);
        auto &date = Find<QLineEdit>(Window, Date);
        TheWindows.Loaded(Window)->FocusOn(&date);
        QTest::sendKeyEvent(QTest::Click, &date, Qt::Key(key), text, Qt::KeyboardModifiers(modifiers));
        Settle();
        QCOMPARE(date.text(), u"January 8, 2004"_s);
        QCOMPARE(IsShown(ForecastWindow), opens);
        QCOMPARE(State.ProjectDateFromForecast, opens);
    }

    void AKeyThatIsHeldInTheDateOpensNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::newRow("a letter") << int(Qt::Key_J) << u"j"_s;
        QTest::newRow("Backspace") << int(Qt::Key_Backspace) << u"\b"_s;
        QTest::newRow("Enter") << int(Qt::Key_Return) << u"\r"_s;
        QTest::newRow("Esc") << int(Qt::Key_Escape) << u"\x1b"_s;
    }
    void AKeyThatIsHeldInTheDateOpensNothing()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Boat);
        ClickRow(Window, List, 0);
        auto &date = Find<QLineEdit>(Window, Date);
        TheWindows.Loaded(Window)->FocusOn(&date);
        QTest::simulateEvent(&date, true, Qt::Key(key), Qt::NoModifier, text, true);
        Settle();
        QVERIFY(!IsShown(ForecastWindow));
        QVERIFY(!State.ProjectDateFromForecast);
        QVERIFY(IsShown(Window));
        QCOMPARE(date.text(), u"January 8, 2004"_s);
    }

    void AfterThePickTheFocusIsOnNewIfItIsEnabled_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("focus");
        QTest::newRow("the entry is whole") << u"Boat"_s << u"60"_s << Commit;
        QTest::newRow("the amount is missing") << u"Boat"_s << QString() << Date;
        QTest::newRow("the description is missing") << QString() << u"60"_s << Date;
    }
    void AfterThePickTheFocusIsOnNewIfItIsEnabled()
    {
        QFETCH(QString, project);
        QFETCH(QString, amount);
        QFETCH(QString, focus);
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(project, amount);
        TheWindows.Loaded(Window)->FocusOn(&Find(Window, Date));
        PressEnter(Window, Date);
        Pick(2);
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(FocusOf(Window), focus);
        if (focus == Date)
            return;
        QVERIFY(Find(Window, Commit).hasFocus());
        PressEnter(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Boat));
        QVERIFY(!IsShown(ForecastWindow));
    }

    void TheHintHowToPickNeedsBothOfTheOthers_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("hint");
        QTest::newRow("neither") << QString() << QString() << false;
        QTest::newRow("the description alone") << u"Boat"_s << QString() << false;
        QTest::newRow("the amount alone") << QString() << u"60"_s << false;
        QTest::newRow("both") << u"Boat"_s << u"60"_s << true;
    }
    void TheHintHowToPickNeedsBothOfTheOthers()
    {
        QFETCH(QString, project);
        QFETCH(QString, amount);
        QFETCH(bool, hint);
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Add(project, amount);
        MoveOverDate();
        const QWidget &date = Find(Window, Date);
        QCOMPARE(date.toolTip(), hint ? u"Double-click to select valid date"_s : date.accessibleDescription());
    }

    void TheDateTellsHowToPickItWhenTheOthersAreFilled()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddProject"_s);
        const QWidget &date = Find(Window, Date);
        const QString description = date.accessibleDescription();
        Type(Window, Project, u"Boat"_s);
        MoveOverDate();
        QCOMPARE(date.toolTip(), description);
        Type(Window, Amount, u"60"_s);
        QCOMPARE(date.toolTip(), description); // the hint comes with the mouse
        MoveOverDate();
        QCOMPARE(date.toolTip(), u"Double-click to select valid date"_s);
        Type(Window, Amount, {});
        MoveOverDate();
        QCOMPARE(date.toolTip(), u"Double-click to select valid date"_s); // and stays
    }

    void ADisabledDateDoesNotOpenTheForecast()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        DoubleClickDate();
        QVERIFY(!IsShown(ForecastWindow));
    }

    void ARowBeyondTheHundredthIsAnUnknownErrorAndIsNotSaved()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        State.ForecastPeriods = 101;
        Add(u"Far"_s, u"60"_s);
        PickRow101();
        QCOMPARE(Forecast.ForecastPickRow, qint16(101));
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(State.NumberOfProjects, qint16(1)); // in memory already
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        Click(Window, u"cmdListProjects"_s); // the next reading drops it
        QCOMPARE(State.NumberOfProjects, qint16(0));
    }

    void AnEarlierRowAfterOneBeyondTheHundredthIsSavedAlone()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Lamp);
        State.ForecastPeriods = 101;
        Add(u"Boat"_s, u"60"_s);
        PickRow101();
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        PickDate(2);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("2\r\n" + Lamp + Boat));
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Lamp"_s, u"Boat"_s}));
    }

    void ADeleteAfterAnEntryThatFailedTakesItsRowAlone()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        State.ForecastPeriods = 101;
        Add(u"Far"_s, u"60"_s);
        PickRow101();
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteProject"_s);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Lamp));
        QCOMPARE(RowsOf(Window, List), QStringList{u"Lamp"_s});
    }

    void NothingAccumulatedAndNothingWantedIsAnUnknownError()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        State.PaycheckAmount = {};
        State.NumberOfExtraPayPeriods = 0;
        Add(u"Nothing"_s, u"0"_s);
        PickDate(1);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        QCOMPARE(State.NumberOfProjects, qint16(0));

        State.PaycheckAmount = Dollars(100); // put right, the entry is saved alone
        PickDate(1);
        Type(Window, Amount, u"60"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n\"Nothing\"\r\n60\r\n1\r\n\"January 1, 2004\"\r\n60\r\n"));
        QCOMPARE(RowsOf(Window, List), QStringList{u"Nothing"_s});
    }

    void DeletingTakesTheProjectThatWasClickedLastWhateverIsMarkedNow()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdListProjects"_s);
        QCOMPARE(SelectedRow(Window, List), -1);
        auto &list = Find<ListBox>(Window, List);
        TheWindows.Loaded(Window)->FocusOn(&list);
        QTest::keyClick(&list, Qt::Key_End); // only moves the mark
        Click(Window, u"cmdDeleteProject"_s);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Lamp));
        QCOMPARE(RowsOf(Window, List), QStringList{u"Lamp"_s});
    }

    void ANegativeCountOfInstallmentsIsAProjectWithoutAny()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n\"Odd\"\r\n60\r\n-2\r\n" + Lamp);
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"Odd | $60.00 | "_s);
        desk.Answers = {Answer::Yes};
        DoubleClickRow(Window, List, 0);
        QCOMPARE(desk.TakeMessage(), PrintQuestion(u"Odd"_s));
        QVERIFY(std::exchange(desk.Beeps, 0) == 1);
        QCOMPARE(TheWindows.Active()->windowTitle(), u"Odd"_s);
        QCOMPARE(GridRows(u"frmViewProject"_s, u"grdViewProject"_s, 1), QStringList());
        QCOMPARE(std::exchange(desk.Printed, {}).value(0).Lines.value(2).trimmed(), u"Odd"_s);
        CloseByFrame(u"frmViewProject"_s);

        Add(u"Coat"_s, u"5"_s); // the forecast runs with it, too
        PickDate(1);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Odd"_s, u"Lamp"_s, u"Coat"_s}));
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteProject"_s);
        QCOMPARE(File(desk), QByteArray("2\r\n" + Lamp + "\"Coat\"\r\n5\r\n1\r\n\"January 1, 2004\"\r\n5\r\n"));
        QVERIFY(!desk.Ended);
    }

    void DeletingTheOnlyProjectNeedsNoRow()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        ClickRow(Window, List, 1);
        desk.WriteFile(u"projects.txt"_s, "1\r\n" + Boat);
        Click(Window, u"cmdListProjects"_s);
        QCOMPARE(Projects.SelectedProject, qint16(2)); // which is gone
        Click(Window, u"cmdDeleteProject"_s);
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        QCOMPARE(RowsOf(Window, List), QStringList());
    }

    void OfSeveralAProjectThatIsGoneIsAnUnknownErrorAndChangesNothing()
    {
        CommitmentsDesk desk;
        Open(desk, "3\r\n" + Boat + Lamp + Boat);
        ClickRow(Window, List, 2);
        desk.WriteFile(u"projects.txt"_s, "2\r\n" + Boat + Lamp);
        Click(Window, u"cmdListProjects"_s);
        Click(Window, u"cmdDeleteProject"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), QByteArray("2\r\n" + Boat + Lamp));
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Boat"_s, u"Lamp"_s}));
    }

    void ADoubleClickAsksWhetherToPrintAndShowsTheProject_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<bool>("prints");
        QTest::newRow("yes") << Answer::Yes << true;
        QTest::newRow("no") << Answer::No << false;
    }
    void ADoubleClickAsksWhetherToPrintAndShowsTheProject()
    {
        QFETCH(Answer, answer);
        QFETCH(bool, prints);
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        State.PrintProjectView = !prints;
        desk.Answers = {answer};
        DoubleClickRow(Window, List, 1);
        QCOMPARE(desk.TakeMessage(), PrintQuestion(u"Lamp"_s));
        QVERIFY(desk.TakeBeep());
        QCOMPARE(State.PrintProjectView, prints);
        QCOMPARE(Texts(Window, Fields), u"Lamp | $25.00 | January 15, 2004"_s); // the click comes first
        QCOMPARE(ActiveWindow(), u"frmViewProject"_s);
        QCOMPARE(TheWindows.Active()->windowTitle(), u"Lamp"_s);
        QCOMPARE(desk.TakePrinted().Lines.isEmpty(), !prints);
    }

    void TheKeyboardReachesTheProjectsView()
    {
        CommitmentsDesk desk;
        Open(desk, "2\r\n" + Boat + Lamp);
        desk.Answers = {Answer::No};
        auto &list = Find<ListBox>(Window, List);
        TheWindows.Loaded(Window)->FocusOn(&list);
        QTest::keyClick(&list, Qt::Key_End);
        QTest::keyClick(&list, Qt::Key_Return, Qt::ControlModifier);
        Settle();
        QCOMPARE(desk.TakeMessage(), PrintQuestion(u"Lamp"_s));
        QVERIFY(desk.TakeBeep());
        QCOMPARE(ActiveWindow(), u"frmViewProject"_s);
    }

    void EnterGoesThroughTheFieldsToTheForecast()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Boat);
        ClickRow(Window, List, 0);
        for (const QString &next : {Amount, Date}) {
            PressEnter(Window, FocusOf(Window));
            QCOMPARE(FocusOf(Window), next);
            QCOMPARE(SelectedText(Window, next), TextOf(Window, next));
        }
        PressEnter(Window, Date);
        QCOMPARE(ActiveWindow(), ForecastWindow);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Boat));
    }
};

REGISTER_TEST(gui_frmProjects)
#include "gui_frmProjects.moc"

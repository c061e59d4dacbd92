// The window of the creditors, event by event: controls, messages, focus, and what stands in creditor.txt afterwards.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmCreditors"_s;
const QString List = u"lstCreditors"_s;
const QString Commit = u"cmdAddChangeCreditor"_s;
const QStringList Fields{u"txtCreditorDueDate"_s, u"txtCreditorAmount"_s, u"txtCreditor"_s};
const QStringList ListButtons{u"cmdListCreditors"_s, u"cmdAddCreditor"_s, u"cmdDeleteCreditor"_s, u"cmdQuit"_s};
const QStringList Controls = ListButtons + Fields + QStringList{Commit};

const QByteArray TwoCreditors = "2\r\n5\r\n\"Rent\"\r\n700\r\n20\r\n\"Phone\"\r\n40.5\r\n";

/// The window with the file's creditors listed.
void Open(const CommitmentsDesk &desk, const QByteArray &file = TwoCreditors)
{
    desk.WriteFile(u"creditor.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListCreditors"_s);
}

void Enter(const QString &dueDate, const QString &amount, const QString &creditor)
{
    Type(Window, Fields[0], dueDate);
    Type(Window, Fields[1], amount);
    Type(Window, Fields[2], creditor);
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"creditor.txt"_s);
}

const Message UnknownError{UnknownErrorText, u"Creditors"_s, Icon::Warning};

} // namespace

class gui_frmCreditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns()
    {
        CommitmentsDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Creditors"_s);
        QCOMPARE(Texts(Window, ListButtons), u"&List Creditors | &Add Creditor | &Delete Creditor | &Quit"_s);
        QCOMPARE(TextOf(Window, u"Frame1"_s), u"Creditor Information"_s);
        QCOMPARE(BuddyText(Window, Fields[0]), u"Due Date"_s);
        QCOMPARE(BuddyText(Window, Fields[1]), u"Amount"_s);
        QCOMPARE(BuddyText(Window, Fields[2]), u"Creditor"_s);
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QCOMPARE(TabOrder(Window), QStringList{List} + Controls);
        QVERIFY(Find<QLineEdit>(Window, Fields[1]).alignment() & Qt::AlignRight);
    }

    void OpeningShowsNothingAndOffersTheListAlone()
    {
        CommitmentsDesk desk;
        desk.WriteFile(u"creditor.txt"_s, TwoCreditors);
        Show(Window);
        QCOMPARE(Enabled(Window, Controls), u"cmdListCreditors cmdQuit"_s);
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(Texts(Window, Fields), u" |  | "_s);
    }

    void ListingReadsTheFileAndLetsAdd()
    {
        CommitmentsDesk desk;
        Open(desk);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Rent"_s, u"Phone"_s}));
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Enabled(Window, Controls), u"cmdListCreditors cmdAddCreditor cmdQuit"_s);

        desk.WriteFile(u"creditor.txt"_s, "1\r\n9\r\n\"Water\"\r\n12\r\n"); // it is read again each time
        Click(Window, u"cmdListCreditors"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Water"_s});
    }

    void AFileThatIsNotThereIsToldByTheLoader()
    {
        CommitmentsDesk desk;
        desk.RemoveFile(u"creditor.txt"_s);
        Show(Window);
        Click(Window, u"cmdListCreditors"_s);
        QCOMPARE(desk.Messages.value(0), (Message{u"Error 53: File not found"_s, u"Input Creditors"_s, Icon::Stop}));
        desk.Messages.clear();
        QVERIFY(IsEnabled(Window, u"cmdAddCreditor"_s));
    }

    void AddingStartsAnEmptyEntry()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 1);
        Click(Window, u"cmdAddCreditor"_s);
        QCOMPARE(Texts(Window, Fields), u" |  | "_s);
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QCOMPARE(FocusOf(Window), Fields[0]);
        QCOMPARE(Enabled(Window, Fields + QStringList{Commit}), (Fields + QStringList{Commit}).join(u' '));
    }

    void ARowShowsItsRecord()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 1);
        QCOMPARE(Texts(Window, Fields), u"20 | $40.50 | Phone"_s);
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QCOMPARE(FocusOf(Window), Fields[0]);
        QCOMPARE(SelectedText(Window, Fields[0]), u"20"_s);
        QCOMPARE(Enabled(Window, Controls), Controls.join(u' '));
        QCOMPARE(SelectedRow(Window, List), 1);
    }

    void AClickOnTheSelectedRowShowsItAgain()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Type(Window, Fields[2], u"Something else"_s);
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"5 | $700.00 | Rent"_s);
    }

    void TheKeyboardReachesARow()
    {
        CommitmentsDesk desk;
        Open(desk);
        auto &list = Find<ListBox>(Window, List);
        TheWindows.Loaded(Window)->FocusOn(&list);
        QTest::keyClick(&list, Qt::Key_Home);
        QTest::keyClick(&list, Qt::Key_Down);
        QCOMPARE(Texts(Window, Fields), u" |  | "_s); // the arrows only move the mark
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(Texts(Window, Fields), u"20 | $40.50 | Phone"_s);
    }

    void ANewCreditorIsSortedInSavedAndReadBack()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"12"_s, u"1,250.5"_s, u"Car"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Rent"_s, u"Car"_s, u"Phone"_s}));
        QCOMPARE(File(desk),
                 QByteArray("3\r\n5\r\n\"Rent\"\r\n700\r\n12\r\n\"Car\"\r\n1250.5\r\n20\r\n\"Phone\"\r\n40.5\r\n"));
        QCOMPARE(State.Creditors(2), (CreditorRecord{u"Car"_s, 12, Dollars(1250.5)}));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void ThePanelKeepsModeAndTextSoThatLikeEntriesFollow()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u" 5 "_s, u"(3.75)"_s, u"Cashback"_s);
        Click(Window, Commit);
        QCOMPARE(Texts(Window, Fields), u"5 | ($3.75) | Cashback"_s); // in their normal forms
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QVERIFY(IsEnabled(Window, Commit));
        Type(Window, Fields[2], u"Cashback 2"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Cashback"_s, u"Cashback 2"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n5\r\n\"Cashback\"\r\n-3.75\r\n5\r\n\"Cashback 2\"\r\n-3.75\r\n"));
    }

    void AFractionOfADayIsRounded()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"2.5"_s, u"10"_s, u"Half"_s);
        Click(Window, Commit);
        QCOMPARE(TextOf(Window, Fields[0]), u"2"_s); // ties go to even
        QCOMPARE(State.Creditors(1).CreditorDueDate, qint16(2));
        QCOMPARE(File(desk), QByteArray("1\r\n2\r\n\"Half\"\r\n10\r\n"));
    }

    void AChangedCreditorMovesToItsDay()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Enter(u"28"_s, u"710"_s, u"Rent"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Phone"_s, u"Rent"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n20\r\n\"Phone\"\r\n40.5\r\n28\r\n\"Rent\"\r\n710\r\n"));
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QVERIFY(IsEnabled(Window, Commit));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void ASecondChangeWithoutARowIsAnUnknownErrorAndChangesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Type(Window, Fields[1], u"710"_s);
        Click(Window, Commit);
        const QByteArray before = File(desk);
        Type(Window, Fields[1], u"999"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), before);
        QCOMPARE(State.NumberOfCreditors, qint16(2));
        QCOMPARE(State.Creditors(1).CreditorAmount, Dollars(710));
        ClickRow(Window, List, 0); // a row must be selected again
        Type(Window, Fields[1], u"999"_s);
        Click(Window, Commit);
        QCOMPARE(State.Creditors(1).CreditorAmount, Dollars(999));
        QCOMPARE(desk.TakeFiles(), QStringList{u"creditor.txt"_s});
    }

    void AnyOtherCaptionCommitsNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"7.0"_s, u"70"_s, u"Water"_s);
        Find<QAbstractButton>(Window, Commit).setText(u"New"_s); // without its access key it is no mode
        Click(Window, Commit);
        QCOMPARE(File(desk), TwoCreditors);
        // What was typed is put in its normal form all the same.
        QCOMPARE(Texts(Window, Fields), u"7 | $70.00 | Water"_s);
    }

    void AnEntryIsRefused_data()
    {
        QTest::addColumn<QString>("dueDate");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("creditor");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        const QString day = u"Please enter a number between 1 and 28 in the Creditor Due Date field"_s;
        const QString amount = u"Please enter a numerical dollar amount in the Creditor Amount field"_s;
        const QString name = u"Please enter a creditor name or description in the Creditor field"_s;
        QTest::newRow("a day of letters") << u"abc"_s << u"40"_s << u"Rent"_s << day << Fields[0];
        QTest::newRow("no day") << QString() << u"40"_s << u"Rent"_s << day << Fields[0];
        QTest::newRow("day 29") << u"29"_s << u"40"_s << u"Rent"_s << day << Fields[0];
        QTest::newRow("day 0") << u"0"_s << u"40"_s << u"Rent"_s << day << Fields[0];
        QTest::newRow("day 28 and a bit") << u"28.2"_s << u"40"_s << u"Rent"_s << day << Fields[0];
        QTest::newRow("the day comes first") << u"x"_s << u"x"_s << QString() << day << Fields[0];
        QTest::newRow("an amount of letters") << u"5"_s << u"forty"_s << u"Rent"_s << amount << Fields[1];
        QTest::newRow("the amount comes before the name") << u"5"_s << QString() << QString() << amount << Fields[1];
        // The caret goes to the amount although the name is missing.
        QTest::newRow("no name") << u"5"_s << u"40"_s << QString() << name << Fields[1];
    }
    void AnEntryIsRefused()
    {
        QFETCH(QString, dueDate);
        QFETCH(QString, amount);
        QFETCH(QString, creditor);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddCreditor"_s);
        Enter(dueDate, amount, creditor);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), (Message{text, u"Creditors"_s, Icon::Stop, Buttons::OkHelp, 22}));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(TextOf(Window, Fields[0]), dueDate); // the entry stays as it was typed
        QCOMPARE(TextOf(Window, Fields[1]), amount);
        QCOMPARE(File(desk), TwoCreditors);
        QCOMPARE(State.NumberOfCreditors, qint16(2));
    }

    void TheLastDayThatEveryMonthHasAndANegativeAmountPass()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"28"_s, u"-5"_s, u"Refund"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n28\r\n\"Refund\"\r\n-5\r\n"));
    }

    void AnAmountBeyondTheRangeIsAnUnknownError()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddCreditor"_s);
        Enter(u"5"_s, u"999999999999999999"_s, u"Rent"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), TwoCreditors);
    }

    void DeletingTakesTheRowOutAndClosesThePanel()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteCreditor"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Phone"_s});
        QCOMPARE(File(desk), QByteArray("1\r\n20\r\n\"Phone\"\r\n40.5\r\n"));
        QCOMPARE(Texts(Window, Fields), u" |  | "_s);
        QCOMPARE(Enabled(Window, Controls), u"cmdListCreditors cmdAddCreditor cmdQuit"_s);
    }

    void DeletingTheOnlyCreditorLeavesAnEmptyFile()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n5\r\n\"Rent\"\r\n700\r\n");
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteCreditor"_s);
        QCOMPARE(State.NumberOfCreditors, qint16(0));
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(File(desk), QByteArray("0\r\n"));
    }

    void DeletingTheOnlyOneNeedsNoRow()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n5\r\n\"Rent\"\r\n700\r\n");
        ClickRow(Window, List, 0);
        Click(Window, Commit); // the delete button outlasts the selection
        QCOMPARE(SelectedRow(Window, List), -1);
        Click(Window, u"cmdDeleteCreditor"_s);
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(File(desk), QByteArray("0\r\n"));
    }

    void DeletingWithoutARowLosesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, Commit); // the delete button outlasts the selection
        QCOMPARE(SelectedRow(Window, List), -1);
        Click(Window, u"cmdDeleteCreditor"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), TwoCreditors);
        QVERIFY(!desk.Ended);
    }

    void AFileThatCannotBeWrittenIsToldAndReadBack()
    {
        CommitmentsDesk desk;
        Open(desk);
        QFile::setPermissions(desk.Path(u"creditor.txt"_s), QFile::ReadOwner);
        ClickRow(Window, List, 0);
        Type(Window, Fields[1], u"1"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 75: Path/File access error"_s, u"Save Creditors"_s, Icon::Stop}));
        QCOMPARE(State.Creditors(1).CreditorAmount, Dollars(700));
    }

    void EnterGoesRoundTheFieldsAndPressesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        for (const int next : {1, 2, 0}) {
            PressEnter(Window, FocusOf(Window));
            QCOMPARE(FocusOf(Window), Fields[next]);
            QCOMPARE(SelectedText(Window, Fields[next]), TextOf(Window, Fields[next]));
        }
        QCOMPARE(File(desk), TwoCreditors);
    }

    void QuittingUnloads()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window); // afresh
        QCOMPARE(Enabled(Window, Controls), u"cmdListCreditors cmdQuit"_s);
        QCOMPARE(RowsOf(Window, List), QStringList());
    }

    void F1AsksForThePageOfTheWindow()
    {
        CommitmentsDesk desk;
        Open(desk);
        QTest::keyClick(&Find(Window, List), Qt::Key_F1);
        ClickRow(Window, List, 0);
        QTest::keyClick(&Find(Window, FocusOf(Window)), Qt::Key_F1); // and the same in a field
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 22}));
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 22}));
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        CommitmentsDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuFileCreditors"_s);
        QVERIFY(IsShown(Window));
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdQuit"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }
};

REGISTER_TEST(gui_frmCreditors)
#include "gui_frmCreditors.moc"

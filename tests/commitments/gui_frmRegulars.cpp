// The window of the regular items, event by event: controls, messages, focus, and what stands in regulars.txt
// afterwards.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmRegulars"_s;
const QString List = u"lstRegulars"_s;
const QString Commit = u"cmdAddChangeRegularItem"_s;
const QString Amount = u"txtRegularAmount"_s;
const QString Item = u"txtRegularItem"_s;
const QStringList Fields{Amount, Item};
const QStringList ListButtons{u"cmdListRegularItems"_s, u"cmdAddRegularItem"_s, u"cmdDeleteRegularItem"_s,
                              u"cmdQuit"_s};
const QStringList Controls = ListButtons + Fields + QStringList{Commit};

const QByteArray TwoItems = "2\r\n\"Groceries\"\r\n120\r\n\"Bus\"\r\n15.25\r\n";

void Open(const CommitmentsDesk &desk, const QByteArray &file = TwoItems)
{
    desk.WriteFile(u"regulars.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListRegularItems"_s);
}

void Enter(const QString &amount, const QString &item)
{
    Type(Window, Amount, amount);
    Type(Window, Item, item);
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"regulars.txt"_s);
}

const Message UnknownError{UnknownErrorText, u"Regulars"_s, Icon::Warning};

} // namespace

class gui_frmRegulars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheCaptionsAreTheDesigns()
    {
        CommitmentsDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Regulars"_s);
        QCOMPARE(Texts(Window, ListButtons),
                 u"&List Regular Items | &Add Regular Items | &Delete Regular Items | &Quit"_s);
        QCOMPARE(TextOf(Window, u"Frame1"_s), u"Regular Items Information"_s);
        QCOMPARE(BuddyText(Window, Amount), u"Amount"_s);
        QCOMPARE(BuddyText(Window, Item), u"Item"_s);
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QCOMPARE(TabOrder(Window), QStringList{List} + Controls);
        QVERIFY(Find<QLineEdit>(Window, Amount).alignment() & Qt::AlignRight);
    }

    void OpeningOffersTheListAlone()
    {
        CommitmentsDesk desk;
        Show(Window);
        QCOMPARE(Enabled(Window, Controls), u"cmdListRegularItems cmdQuit"_s);
    }

    void ListingReadsTheFileAndLetsAdd()
    {
        CommitmentsDesk desk;
        Open(desk);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Groceries"_s, u"Bus"_s}));
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Enabled(Window, Controls), u"cmdListRegularItems cmdAddRegularItem cmdQuit"_s);
    }

    void AddingStartsAnEmptyEntry()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdAddRegularItem"_s);
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QCOMPARE(FocusOf(Window), Amount);
        QVERIFY(IsEnabled(Window, Commit));
    }

    void ARowShowsItsRecord()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 1);
        QCOMPARE(Texts(Window, Fields), u"$15.25 | Bus"_s);
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QCOMPARE(FocusOf(Window), Amount);
        QCOMPARE(SelectedText(Window, Amount), u"$15.25"_s);
        QCOMPARE(Enabled(Window, Controls), Controls.join(u' '));
    }

    void ANewItemGoesToTheEndAndTheButtonIsDisabledAfterwards()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddRegularItem"_s);
        Enter(u"1,000"_s, u"Apples"_s);
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Groceries"_s, u"Bus"_s, u"Apples"_s}));
        QCOMPARE(File(desk), QByteArray("3\r\n\"Groceries\"\r\n120\r\n\"Bus\"\r\n15.25\r\n\"Apples\"\r\n1000\r\n"));
        QVERIFY(!IsEnabled(Window, Commit));
        QCOMPARE(Texts(Window, Fields), u"$1,000.00 | Apples"_s); // the text stays
        QCOMPARE(Enabled(Window, Fields), Fields.join(u' '));
        Click(Window, u"cmdAddRegularItem"_s); // the next one
        QVERIFY(IsEnabled(Window, Commit));
    }

    void AChangedItemKeepsItsPlaceAndTheButtonStays()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Enter(u"0"_s, u"Zucchini"_s); // nothing is an amount, too
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Zucchini"_s, u"Bus"_s}));
        QCOMPARE(File(desk), QByteArray("2\r\n\"Zucchini\"\r\n0\r\n\"Bus\"\r\n15.25\r\n"));
        QVERIFY(IsEnabled(Window, Commit));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void ASecondChangeWithoutARowIsAnUnknownErrorAndChangesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, Commit);
        Enter(u"1"_s, u"Other"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), TwoItems);
        QCOMPARE(State.Regulars(1).RegularItem, u"Groceries"_s);
    }

    void AnEntryIsRefused_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("focus");
        const QString amount = u"Please enter a numerical dollar amount in the Regular Amount field"_s;
        const QString item = u"Please enter a regular item description in the Regular Item field"_s;
        QTest::newRow("an amount of letters") << u"x"_s << u"Bus"_s << amount << Amount;
        QTest::newRow("the amount comes first") << QString() << QString() << amount << Amount;
        QTest::newRow("no description") << u"5"_s << QString() << item << Item;
    }
    void AnEntryIsRefused()
    {
        QFETCH(QString, amount);
        QFETCH(QString, item);
        QFETCH(QString, text);
        QFETCH(QString, focus);
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddRegularItem"_s);
        Enter(amount, item);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), (Message{text, u"Regulars"_s, Icon::Stop, Buttons::OkHelp, 23}));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(File(desk), TwoItems);
        QVERIFY(IsEnabled(Window, Commit));
    }

    void ANegativeAmountPasses()
    {
        CommitmentsDesk desk;
        Open(desk, "0\r\n");
        Click(Window, u"cmdAddRegularItem"_s);
        Enter(u"-2.5"_s, u"Allowance"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("1\r\n\"Allowance\"\r\n-2.5\r\n"));
        QCOMPARE(TextOf(Window, Amount), u"($2.50)"_s);
    }

    void DeletingTakesTheRowOutAndClosesThePanel()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteRegularItem"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Bus"_s});
        QCOMPARE(File(desk), QByteArray("1\r\n\"Bus\"\r\n15.25\r\n"));
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(Enabled(Window, Controls), u"cmdListRegularItems cmdAddRegularItem cmdQuit"_s);
    }

    void DeletingTheOnlyItemLeavesAnEmptyFile()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n\"Bus\"\r\n15.25\r\n");
        ClickRow(Window, List, 0);
        Click(Window, u"cmdDeleteRegularItem"_s);
        QCOMPARE(State.NumberOfRegulars, qint16(0));
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        QCOMPARE(RowsOf(Window, List), QStringList());
    }

    void DeletingTheOnlyOneNeedsNoRow()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n\"Bus\"\r\n15.25\r\n");
        ClickRow(Window, List, 0);
        Click(Window, Commit); // the delete button outlasts the selection
        QCOMPARE(SelectedRow(Window, List), -1);
        Click(Window, u"cmdDeleteRegularItem"_s);
        QCOMPARE(RowsOf(Window, List), QStringList());
        QCOMPARE(File(desk), QByteArray("0\r\n"));
    }

    void DeletingWithoutARowLosesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Click(Window, Commit);
        Click(Window, u"cmdDeleteRegularItem"_s);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), TwoItems);
        QVERIFY(!desk.Ended);
    }

    void EnterGoesRoundTheFieldsAndPressesNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        for (const QString &next : {Item, Amount}) {
            PressEnter(Window, FocusOf(Window));
            QCOMPARE(FocusOf(Window), next);
            QCOMPARE(SelectedText(Window, next), TextOf(Window, next));
        }
        QCOMPARE(File(desk), TwoItems);
    }

    void QuittingUnloads()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void F1AsksForThePageOfTheWindow()
    {
        CommitmentsDesk desk;
        Open(desk);
        QTest::keyClick(&Find(Window, List), Qt::Key_F1);
        ClickRow(Window, List, 0);
        QTest::keyClick(&Find(Window, FocusOf(Window)), Qt::Key_F1); // and the same in a field
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 23}));
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 23}));
    }

    void AnAmountThatIsTooLargeIsAnUnknownErrorAndIsNotSaved()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddRegularItem"_s);
        Enter(u"922337203685478"_s, u"Moon"_s); // one dollar more than an amount can hold
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(File(desk), TwoItems);
        QCOMPARE(State.NumberOfRegulars, qint16(2));
        Type(Window, Amount, u"5"_s); // the entry is still open and can be put right
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("3\r\n\"Groceries\"\r\n120\r\n\"Bus\"\r\n15.25\r\n\"Moon\"\r\n5\r\n"));
    }

    void AnyOtherCaptionCommitsNothing()
    {
        CommitmentsDesk desk;
        Open(desk);
        ClickRow(Window, List, 0);
        Enter(u"1"_s, u"Other"_s);
        Find<QAbstractButton>(Window, Commit).setText(u"Change"_s); // without its access key
        Click(Window, Commit);
        QCOMPARE(File(desk), TwoItems);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Groceries"_s, u"Bus"_s}));
        QCOMPARE(SelectedRow(Window, List), 0);
        QCOMPARE(State.Regulars(1).RegularItem, u"Groceries"_s);
    }

    void AFileThatCannotBeWrittenIsToldAndReadBack()
    {
        CommitmentsDesk desk;
        Open(desk);
        QVERIFY(QFile::setPermissions(desk.Path(u"regulars.txt"_s), QFile::ReadOwner));
        ClickRow(Window, List, 0);
        Enter(u"1"_s, u"Other"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 75: Path/File access error"_s, u"Save Regulars"_s, Icon::Stop}));
        QCOMPARE(File(desk), TwoItems);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Groceries"_s, u"Bus"_s}));
    }

    void AFileThatIsNotThereIsToldAndNotMade()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n\"Bus\"\r\n15.25\r\n");
        ClickRow(Window, List, 0);
        desk.RemoveFile(u"regulars.txt"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 53: File not found"_s, u"Save Regulars"_s, Icon::Stop}));
        QCOMPARE(desk.TakeMessage(), (Message{u"Error 53: File not found"_s, u"Input Regulars"_s, Icon::Stop}));
        for (int read = 0; read < 3; ++read) // the count, which stays, and the two values of its one item
            QCOMPARE(desk.TakeMessage(),
                     (Message{u"Error 52: Bad file name or number"_s, u"Input Regulars"_s, Icon::Stop}));
        QVERIFY(!QFile::exists(desk.Path(u"regulars.txt"_s)));
        QCOMPARE(RowsOf(Window, List), QStringList{QString()});
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        CommitmentsDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        Choose(u"mnuFileRegulars"_s);
        QVERIFY(IsShown(Window));
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdQuit"_s);
        QVERIFY(timer.isActive());
    }
};

REGISTER_TEST(gui_frmRegulars)
#include "gui_frmRegulars.moc"

// What the window of the extra items does by itself: the two levels of its list, the credit box, the pick of a pay
// period in the scan, and the bound of 200 items. The rest is in gui_listpanels.
#include "CommitmentsDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmExtras"_s;
const QString List = u"lstExtraItems"_s;
const QString Heading = u"lblPayPeriod"_s; // the caption of pnlPayPeriod
const QString Commit = u"cmdAddChangeExtraItem"_s;
const QString Amount = u"txtExtraItemAmount"_s;
const QString Item = u"txtExtraItem"_s;
const QString Credit = u"chkCredit"_s;
const QStringList Fields{Amount, Item};
const QStringList ListButtons{u"cmdListPayPeriods"_s, u"cmdAddPayPeriod"_s,    u"cmdDeletePayPeriod"_s,
                              u"cmdAddExtraItem"_s,   u"cmdDeleteExtraItem"_s, u"cmdQuit"_s};
const QStringList Controls = ListButtons + Fields + QStringList{Credit, Commit};

const QByteArray Gift = "\"01-05-2004\"\r\n2\r\n\"Gift\"\r\n30\r\n\"Refund\"\r\n-12.5\r\n";
const QByteArray Trip = "\"01-19-2004\"\r\n1\r\n\"Trip\"\r\n200\r\n";
const QByteArray TwoPeriods = "2\r\n" + Gift + Trip;

/// The window with the file's pay periods listed.
void Open(const CommitmentsDesk &desk, const QByteArray &file = TwoPeriods)
{
    State.CurrentPayPeriod = u"01-05-2004"_s;
    State.PayFrequency = Biweekly;
    desk.WriteFile(u"extra.txt"_s, file);
    Show(Window);
    Click(Window, u"cmdListPayPeriods"_s);
}

void OpenPayPeriod(const CommitmentsDesk &desk, int row, const QByteArray &file = TwoPeriods)
{
    Open(desk, file);
    ClickRow(Window, List, row);
}

void Enter(const QString &amount, const QString &item)
{
    Type(Window, Amount, amount);
    Type(Window, Item, item);
}

bool IsCredit()
{
    return Find<QCheckBox>(Window, Credit).isChecked();
}

QByteArray File(const CommitmentsDesk &desk)
{
    return desk.ReadFile(u"extra.txt"_s);
}

/// A pay period of `count` items of one dollar, named 1 to `count`.
QByteArray Items(int count)
{
    QByteArray text = "\"01-05-2004\"\r\n" + QByteArray::number(count) + "\r\n";
    for (int i = 1; i <= count; ++i)
        text += '"' + QByteArray::number(i) + "\"\r\n1\r\n";
    return text;
}

const Message UnknownError{UnknownErrorText, u"Extras"_s, Icon::Warning};

} // namespace

class gui_frmExtras : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheHeadingStandsAboveTheListAndTheCreditBoxTellsItself()
    {
        CommitmentsDesk desk;
        Show(Window);
        QCOMPARE(TextOf(Window, Credit), u"Credit"_s);
        QCOMPARE(TextOf(Window, Heading), QString());
        QCOMPARE(Find(Window, List).parentWidget(), &Find(Window, u"pnlPayPeriod"_s));
        QCOMPARE(Find(Window, Heading).parentWidget(), &Find(Window, u"pnlPayPeriod"_s));
    }

    void TheCreditBoxSaysThatItIsClickedAfterTheAmount()
    {
        CommitmentsDesk desk;
        Show(Window);
        const QString hint = u"Turns the sign of the amount; click it after typing the amount"_s;
        QCOMPARE(Find(Window, Credit).toolTip(), hint);
        QCOMPARE(Find(Window, Credit).accessibleDescription(), hint);
    }

    void ListingShowsThePayPeriods()
    {
        CommitmentsDesk desk;
        Open(desk);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(TextOf(Window, Heading), QString());
        QCOMPARE(Enabled(Window, Controls), u"cmdListPayPeriods cmdAddPayPeriod cmdQuit"_s);
        QVERIFY(Extras.ExtrasListMode);
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void APayPeriodOpensIntoItsItems()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        QCOMPARE(TextOf(Window, Heading), u"January 5, 2004"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Gift"_s, u"Refund"_s}));
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Extras.SelectedExtraPayPeriod, qint16(1));
        QVERIFY(!Extras.ExtrasListMode);
        QCOMPARE(Enabled(Window, Controls), u"cmdListPayPeriods cmdDeletePayPeriod cmdAddExtraItem cmdQuit"_s);
    }

    void ADoubleClickOnAPayPeriodOpensItAndSelectsNoItem()
    {
        CommitmentsDesk desk;
        Open(desk);
        auto &list = Find<ListBox>(Window, List);
        const QPoint place = list.visualItemRect(list.item(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place); // its second press and release
        Settle();
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Gift"_s, u"Refund"_s}));
        QCOMPARE(SelectedRow(Window, List), -1);
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QVERIFY(!IsEnabled(Window, Commit));
        ClickRow(Window, List, 0); // a click of its own does
        QCOMPARE(Texts(Window, Fields), u"$30.00 | Gift"_s);
    }

    void ANegativeCountOfItemsIsAnEmptyPayPeriod()
    {
        CommitmentsDesk desk;
        const QByteArray file = "2\r\n\"01-05-2004\"\r\n-3\r\n" + Trip;
        OpenPayPeriod(desk, 0, file);
        QCOMPARE(RowsOf(Window, List), QStringList());
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"1"_s, u"Other"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError); // it has no slot for it
        QCOMPARE(File(desk), file);
        Click(Window, u"cmdDeletePayPeriod"_s);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Trip));
        QVERIFY(!desk.Ended);
    }

    void TheHeadingKeepsItsLine()
    {
        CommitmentsDesk desk;
        Open(desk);
        const QPoint before = Find(Window, List).pos();
        ClickRow(Window, List, 0);
        QCOMPARE(Find(Window, List).pos(), before); // nothing jumps when the heading comes
    }

    void AnItemShowsItself()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"$30.00 | Gift"_s);
        QVERIFY(!IsCredit());
        QCOMPARE(TextOf(Window, Commit), u"&Change"_s);
        QCOMPARE(FocusOf(Window), Amount);
        QCOMPARE(Enabled(Window, Controls),
                 u"cmdListPayPeriods cmdDeletePayPeriod cmdAddExtraItem cmdDeleteExtraItem cmdQuit txtExtraItemAmount "
                 "txtExtraItem chkCredit cmdAddChangeExtraItem"_s);
    }

    void TheCreditBoxFollowsTheRowsAndLeavesTheirAmountsAlone()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        QVERIFY(IsCredit());
        QCOMPARE(TextOf(Window, Amount), u"($12.50)"_s);
        ClickRow(Window, List, 0);
        QVERIFY(!IsCredit());
        QCOMPARE(TextOf(Window, Amount), u"$30.00"_s);
        QCOMPARE(File(desk), TwoPeriods);
    }

    void TheWholeAmountIsSelectedAlsoWhereTheSignTurns()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        for (const auto &[row, amount] :
             {std::pair{0, u"$30.00"_s}, {1, u"($12.50)"_s}, {0, u"$30.00"_s}, {0, u"$30.00"_s}}) {
            ClickRow(Window, List, row);
            QCOMPARE(FocusOf(Window), Amount);
            QCOMPARE(SelectedText(Window, Amount), amount);
        }
    }

    void TheOnlyItemCannotBeDeleted()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 1);
        ClickRow(Window, List, 0);
        QVERIFY(!IsEnabled(Window, u"cmdDeleteExtraItem"_s));
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"5"_s, u"Map"_s);
        Click(Window, Commit);
        ClickRow(Window, List, 0);
        QVERIFY(IsEnabled(Window, u"cmdDeleteExtraItem"_s));
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void ANewItemGoesToTheEndOfThePayPeriod()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        Click(Window, u"cmdAddExtraItem"_s);
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QCOMPARE(FocusOf(Window), Amount);
        QCOMPARE(Enabled(Window, Fields + QStringList{Credit, Commit}),
                 (Fields + QStringList{Credit, Commit}).join(u' '));
        Enter(u"0"_s, u"Flowers"_s); // an amount of 0 is an ordinary item
        Click(Window, Commit);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Gift"_s, u"Refund"_s, u"Flowers"_s}));
        QCOMPARE(TextOf(Window, Amount), u"$0.00"_s);
        QCOMPARE(
            File(desk),
            QByteArray("2\r\n\"01-05-2004\"\r\n3\r\n\"Gift\"\r\n30\r\n\"Refund\"\r\n-12.5\r\n\"Flowers\"\r\n0\r\n" +
                       Trip));
        QCOMPARE(TextOf(Window, Heading), u"January 5, 2004"_s);
        QVERIFY(IsEnabled(Window, Commit));
        QCOMPARE(SelectedRow(Window, List), -1);
    }

    void TheCreditBoxTurnsTheAmountAround()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"12.50"_s, u"Sale"_s);
        Click(Window, Credit);
        QCOMPARE(TextOf(Window, Amount), u"($12.50)"_s);
        Click(Window, Credit);
        QCOMPARE(TextOf(Window, Amount), u"$12.50"_s);
        Click(Window, Credit);
        Click(Window, Commit);
        QCOMPARE(
            File(desk),
            QByteArray("2\r\n\"01-05-2004\"\r\n3\r\n\"Gift\"\r\n30\r\n\"Refund\"\r\n-12.5\r\n\"Sale\"\r\n-12.5\r\n" +
                       Trip));
    }

    void TheCreditBoxLeavesWhatIsNoAmountAlone_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::newRow("empty") << QString();
        QTest::newRow("letters") << u"abc"_s;
    }
    void TheCreditBoxLeavesWhatIsNoAmountAlone()
    {
        QFETCH(QString, amount);
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        Click(Window, u"cmdAddExtraItem"_s);
        Type(Window, Amount, amount);
        Click(Window, Credit);
        QCOMPARE(TextOf(Window, Amount), amount);
        QVERIFY(IsCredit());
    }

    void AnAmountThatIsTooLargeToTurnIsAnUnknownErrorAndChangesNothing()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"999999999999999999"_s, u"Sale"_s);
        Click(Window, Credit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(Texts(Window, Fields), u"999999999999999999 | Sale"_s);
        QVERIFY(!IsCredit());
        QVERIFY(!desk.Ended);
        Type(Window, Amount, u"12.50"_s); // put right, the box turns it
        Click(Window, Credit);
        QCOMPARE(TextOf(Window, Amount), u"($12.50)"_s);
        QVERIFY(IsCredit());
    }

    void TheBoxStaysTickedWhereTheAmountIsTooLargeToTurnBack()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Type(Window, Amount, u"-999999999999999999"_s);
        Click(Window, Credit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(TextOf(Window, Amount), u"-999999999999999999"_s);
        QVERIFY(IsCredit());
    }

    void ListingClearsTheBoxSilentlyWhateverAmountStandsThere()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Type(Window, Amount, u"-999999999999999999"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        Click(Window, u"cmdListPayPeriods"_s); // an error or a message here fails the test
        QVERIFY(!IsCredit());
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(File(desk), TwoPeriods);
        QVERIFY(!desk.Ended);
    }

    void DeletingAnItemClearsTheBoxSilentlyWhateverAmountStandsThere()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Type(Window, Amount, u"-999999999999999999"_s);
        Click(Window, u"cmdDeleteExtraItem"_s);
        QVERIFY(!IsCredit());
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Gift"_s});
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void AMinusSignMakesACreditWithoutTheBox()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 1);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"-7"_s, u"Bottles"_s);
        Click(Window, Commit);
        QVERIFY(!IsCredit());
        QCOMPARE(TextOf(Window, Amount), u"($7.00)"_s);
        ClickRow(Window, List, 1); // the box shows it when the item is selected again
        QVERIFY(IsCredit());
        QCOMPARE(TextOf(Window, Amount), u"($7.00)"_s);
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void ABoxThatStandsFromARowBeforeDoesNotMakeTheNextItemACredit()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Click(Window, u"cmdAddExtraItem"_s);
        QVERIFY(IsCredit());
        Enter(u"7"_s, u"Cake"_s);
        Click(Window, Commit);
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(3).ExtraItemAmount, Dollars(7));
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void The201stItemIsAnUnknownErrorAndIsNotSaved()
    {
        CommitmentsDesk desk;
        const QByteArray full = "1\r\n" + Items(200);
        OpenPayPeriod(desk, 0, full);
        QCOMPARE(RowsOf(Window, List).size(), 200);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"1"_s, u"201"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(201)); // by then the count has gone up
        QCOMPARE(File(desk), full);
        Click(Window, u"cmdListPayPeriods"_s); // reading the file puts it right
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(200));
    }

    void AfterAnItemThatFailedTheNextEditWorksOnTheFile_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::newRow("a change") << u"change"_s;
        QTest::newRow("a delete") << u"delete"_s;
        QTest::newRow("another one too many") << u"add"_s;
    }
    void AfterAnItemThatFailedTheNextEditWorksOnTheFile()
    {
        QFETCH(QString, edit);
        CommitmentsDesk desk;
        const QByteArray full = "2\r\n" + Items(200) + Trip;
        OpenPayPeriod(desk, 0, full);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"1"_s, u"201"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(), UnknownError);

        QByteArray expected = full;
        if (edit == u"add"_s) {
            Click(Window, Commit);
            QCOMPARE(desk.TakeMessage(), UnknownError);
            Click(Window, u"cmdListPayPeriods"_s);
            ClickRow(Window, List, 0);
            QCOMPARE(RowsOf(Window, List).size(), 200);
        } else if (edit == u"change"_s) {
            ClickRow(Window, List, 199);
            Enter(u"2"_s, u"last"_s);
            Click(Window, Commit);
            expected.replace("\"200\"\r\n1\r\n", "\"last\"\r\n2\r\n");
            QCOMPARE(RowsOf(Window, List).size(), 200);
        } else {
            ClickRow(Window, List, 0);
            Click(Window, u"cmdDeleteExtraItem"_s);
            expected.replace("\"01-05-2004\"\r\n200\r\n\"1\"\r\n1\r\n", "\"01-05-2004\"\r\n199\r\n");
            QCOMPARE(RowsOf(Window, List).size(), 199);
            Click(Window, u"cmdAddExtraItem"_s); // now there is room
            Enter(u"1"_s, u"201"_s);
            Click(Window, Commit);
            expected.replace("\r\n199\r\n\"2\"", "\r\n200\r\n\"2\"");
            expected.replace("\"200\"\r\n1\r\n", "\"200\"\r\n1\r\n\"201\"\r\n1\r\n");
        }
        QCOMPARE(File(desk), expected);
    }

    void DeletingAnItemClosesThePanel()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Click(Window, u"cmdDeleteExtraItem"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"Gift"_s});
        QCOMPARE(File(desk), QByteArray("2\r\n\"01-05-2004\"\r\n1\r\n\"Gift\"\r\n30\r\n" + Trip));
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QVERIFY(!IsCredit());
        QCOMPARE(Enabled(Window, Controls), u"cmdListPayPeriods cmdDeletePayPeriod cmdAddExtraItem cmdQuit"_s);
    }

    void DeletingThePayPeriodGoesBackToTheOthers()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Click(Window, u"cmdDeletePayPeriod"_s);
        QCOMPARE(RowsOf(Window, List), QStringList{u"January 19, 2004"_s});
        QCOMPARE(File(desk), QByteArray("1\r\n" + Trip));
        QCOMPARE(TextOf(Window, Heading), QString());
        QVERIFY(Extras.ExtrasListMode);
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        // The fields and the credit box are emptied or left, but not disabled by this.
        QCOMPARE(Enabled(Window, Controls),
                 u"cmdListPayPeriods cmdAddPayPeriod cmdQuit txtExtraItemAmount txtExtraItem chkCredit"_s);
        QVERIFY(IsCredit());
    }

    void DeletingTheOnlyPayPeriodLeavesAnEmptyFile()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0, "1\r\n" + Trip);
        Click(Window, u"cmdDeletePayPeriod"_s);
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
        QCOMPARE(File(desk), QByteArray("0\r\n"));
        QCOMPARE(RowsOf(Window, List), QStringList());
    }

    void ListingAgainLeavesTheItemsAndEmptiesThePanel()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        ClickRow(Window, List, 1);
        Click(Window, u"cmdListPayPeriods"_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(TextOf(Window, Heading), QString());
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QVERIFY(!IsCredit());
        QCOMPARE(Enabled(Window, Controls),
                 u"cmdListPayPeriods cmdAddPayPeriod cmdQuit txtExtraItemAmount txtExtraItem"_s);
    }

    void APayPeriodIsPickedInTheScan()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddPayPeriod"_s);
        QVERIFY(State.ScanCalledFromExtras);
        QCOMPARE(ActiveWindow(), u"frmScanPayPeriods"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 2);
        QVERIFY(!State.ScanCalledFromExtras);
        QVERIFY(!IsShown(u"frmScanPayPeriods"_s));
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(RowsOf(Window, List),
                 (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s, u"February 2, 2004"_s}));
        QCOMPARE(File(desk), QByteArray("3\r\n" + Gift + Trip + "\"02-02-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n"));

        ClickRow(Window, List, 2); // its one item cannot be deleted
        QCOMPARE(RowsOf(Window, List), QStringList{u"New Item"_s});
        ClickRow(Window, List, 0);
        QCOMPARE(Texts(Window, Fields), u"$0.00 | New Item"_s);
        QVERIFY(!IsEnabled(Window, u"cmdDeleteExtraItem"_s));
    }

    void APayPeriodPickedTwiceStandsTwiceWithTheOlderItems()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdAddPayPeriod"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 1);
        QCOMPARE(RowsOf(Window, List),
                 (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(File(desk), QByteArray("3\r\n" + Gift + Trip + Trip));
    }

    void APickWhileAnotherPayPeriodIsOpenClosesIt()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Trip);
        Click(Window, u"cmdAddPayPeriod"_s);
        Show(Window); // the scan stays open behind
        ClickRow(Window, List, 0);
        ClickRow(Window, List, 0);
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"5"_s, u"Map"_s);
        Show(u"frmScanPayPeriods"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 0); // comes before the open one, which moves

        const QByteArray picked = "2\r\n\"01-05-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n" + Trip;
        QCOMPARE(File(desk), picked);
        QCOMPARE(TextOf(Window, Heading), QString());
        QVERIFY(Extras.ExtrasListMode);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QVERIFY(!IsCredit());
        QCOMPARE(Enabled(Window, ListButtons + QStringList{Credit, Commit}),
                 u"cmdListPayPeriods cmdAddPayPeriod cmdQuit"_s); // no item can be committed
        ClickRow(Window, List, 1);                                // the item goes where the user opens it again
        Click(Window, u"cmdAddExtraItem"_s);
        Enter(u"5"_s, u"Map"_s);
        Click(Window, Commit);
        QCOMPARE(File(desk), QByteArray("2\r\n\"01-05-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n\"01-19-2004\"\r\n2\r\n"
                                        "\"Trip\"\r\n200\r\n\"Map\"\r\n5\r\n"));
    }

    void APickClearsTheBoxSilentlyWhateverAmountStandsThere()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Gift);
        Click(Window, u"cmdAddPayPeriod"_s);
        Show(Window); // the scan stays open behind
        ClickRow(Window, List, 0);
        ClickRow(Window, List, 1);
        Type(Window, Amount, u"-999999999999999999"_s);
        QVERIFY(IsCredit());
        Show(u"frmScanPayPeriods"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 1); // an error or a message here fails the test
        QVERIFY(!IsCredit());
        QCOMPARE(Texts(Window, Fields), u" | "_s);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
        QVERIFY(!desk.Ended);
    }

    void AClosedWindowHearsOfNoPick()
    {
        CommitmentsDesk desk;
        Open(desk);
        Click(Window, u"cmdQuit"_s);
        Q_EMIT ThePayPeriodOutlet.PayPeriodAdded();
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void AnAccessKeyThatTwoButtonsShareServesTheOneThatIsEnabled()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0); // adding a pay period is disabled here, adding an item is not
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_A, Qt::AltModifier);
        Settle();
        QCOMPARE(TextOf(Window, Commit), u"&New"_s);
        QCOMPARE(FocusOf(Window), Amount);
    }

    void TheAccessKeyOfTheDeleteButtonsOnlyMovesTheFocus_data()
    {
        QTest::addColumn<bool>("itemSelected");
        QTest::addColumn<QStringList>("focus"); // after each press
        const QString period = u"cmdDeletePayPeriod"_s;
        const QString item = u"cmdDeleteExtraItem"_s;
        QTest::newRow("only the pay period can be deleted") << false << QStringList{period, period};
        QTest::newRow("so can the item") << true << QStringList{period, item, period};
    }
    void TheAccessKeyOfTheDeleteButtonsOnlyMovesTheFocus()
    {
        QFETCH(bool, itemSelected);
        QFETCH(QStringList, focus);
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        if (itemSelected)
            ClickRow(Window, List, 0);
        for (const QString &next : focus) {
            QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_D, Qt::AltModifier);
            QTest::qWait(150); // a click by key would come with a delay
            Settle();
            QCOMPARE(FocusOf(Window), next);
            QCOMPARE(RowsOf(Window, List), (QStringList{u"Gift"_s, u"Refund"_s}));
        }
        QCOMPARE(File(desk), TwoPeriods);
        PressEnter(Window, FocusOf(Window)); // there the user deletes on purpose
        QCOMPARE(File(desk), QByteArray("1\r\n" + Trip));
    }

    void TheAccessKeyOfTheDeleteButtonsDoesNothingWhereNothingCanBeDeleted()
    {
        CommitmentsDesk desk;
        Open(desk);
        const QString focus = FocusOf(Window);
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_D, Qt::AltModifier);
        Settle();
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(File(desk), TwoPeriods);
    }

    void AfterADeleteOfAPayPeriodTheListHasTheFocusAndEnterDoesNothing()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        TheWindows.Loaded(Window)->FocusOn(&Find(Window, u"cmdDeletePayPeriod"_s));
        PressEnter(Window, u"cmdDeletePayPeriod"_s);
        QCOMPARE(File(desk), QByteArray("1\r\n" + Trip));
        QCOMPARE(FocusOf(Window), List);
        PressEnter(Window, FocusOf(Window));
        QVERIFY(IsShown(Window));
        QVERIFY(Extras.ExtrasListMode); // it has opened no pay period either
    }

    void APickThatClosesTheOpenPayPeriodLeavesTheFocusOnTheList()
    {
        CommitmentsDesk desk;
        Open(desk, "1\r\n" + Trip);
        Click(Window, u"cmdAddPayPeriod"_s);
        Show(Window);
        ClickRow(Window, List, 0);
        TheWindows.Loaded(Window)->FocusOn(&Find(Window, u"cmdDeletePayPeriod"_s));
        Show(u"frmScanPayPeriods"_s);
        ClickRow(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s, 0);
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(FocusOf(Window), List);
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void AFileThatCannotBeWrittenIsToldAndReadBack()
    {
        CommitmentsDesk desk;
        OpenPayPeriod(desk, 0);
        QVERIFY(QFile::setPermissions(desk.Path(u"extra.txt"_s), QFile::ReadOwner));
        ClickRow(Window, List, 0);
        Enter(u"1"_s, u"Other"_s);
        Click(Window, Commit);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 75: Path/File access error"_s, u"Save Pay Periods"_s, Icon::Stop}));
        QCOMPARE(File(desk), TwoPeriods);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"Gift"_s, u"Refund"_s}));
        Click(Window, u"cmdDeletePayPeriod"_s);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 75: Path/File access error"_s, u"Save Pay Periods"_s, Icon::Stop}));
        QCOMPARE(File(desk), TwoPeriods);
        QCOMPARE(RowsOf(Window, List), (QStringList{u"January 5, 2004"_s, u"January 19, 2004"_s}));
    }
};

REGISTER_TEST(gui_frmExtras)
#include "gui_frmExtras.moc"

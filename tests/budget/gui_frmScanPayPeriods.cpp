// The window of valid pay periods: looking only, and picking one for the extras.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "budget/ScanPayPeriods.h"

#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmScanPayPeriods"_s;
const QString List = u"lstScanPayPeriods"_s;
const QString UnknownErrorText =
    u"An unknown error occured. This may be due to an invalid entry. If you need help press F1 for assistance on this "
    "page. On the main menu click on Help->Search for Help On... or Help->How Do I? or click on any of the help icons "
    "on the bottom right of the main window."_s;

void TakeHousehold()
{
    Scan = {};
    State.CurrentPayPeriod = u"01-01-2004"_s;
    State.PayFrequency = Biweekly;
}

class Other : public Form
{
};

/// The extras window adds a pay period: it is shown, its flag is up, and the scan is open above it.
void OpenForExtras()
{
    Show(u"frmExtras"_s);
    State.ScanCalledFromExtras = true;
    Show(Window);
}

} // namespace

class gui_frmScanPayPeriods : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheListHasAHundredAndOneRowsFromTheCurrentPayPeriodOn()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Valid Pay Periods"_s);
        const QStringList rows = RowsOf(Window, List);
        QCOMPARE(rows.size(), 101);
        QCOMPARE(rows.mid(0, 3), (QStringList{u"January 1, 2004"_s, u"January 15, 2004"_s, u"January 29, 2004"_s}));
        QCOMPARE(rows.last(), u"November 1, 2007"_s); // 1,400 days later
        QCOMPARE(Find<ListBox>(Window, List).ListIndex(), -1);
        QCOMPARE(FocusOf(Window), List);
    }

    void ComingBackFillsAgain()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Show(u"frmOther"_s);
        State.PayFrequency = Weekly;
        Show(Window);
        QCOMPARE(RowsOf(Window, List).mid(0, 2), (QStringList{u"January 1, 2004"_s, u"January 8, 2004"_s}));
        QCOMPARE(RowsOf(Window, List).size(), 101);
    }

    void ComingBackToTheSameDatesKeepsThePlace()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        QScrollBar &bar = *Find<ListBox>(Window, List).verticalScrollBar();
        bar.setValue(bar.maximum() / 2);
        const int place = bar.value();
        QVERIFY(place > 0);
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(bar.value(), place);
        Show(u"frmOther"_s);
        State.PayFrequency = Weekly; // other dates begin at the top
        Show(Window);
        QCOMPARE(bar.value(), 0);
    }

    void ThatItWaitsForAPickIsSeen()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QVERIFY(!Find<QLabel>(Window, u"lblPick"_s).isVisible());
        OpenForExtras();
        QVERIFY(Find<QLabel>(Window, u"lblPick"_s).isVisible());
        QCOMPARE(TextOf(Window, u"lblPick"_s), u"Click a date to add it to the extra pay periods"_s);
        QCOMPARE(Find<ListBox>(Window, List).viewport()->cursor().shape(), Qt::PointingHandCursor);
    }

    void APayPeriodAtTheCalendarsEndIsAnUnknownErrorAndKeepsTheRows()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        const QStringList rows = RowsOf(Window, List);
        Show(u"frmOther"_s);
        State.CurrentPayPeriod = u"12/31/9999"_s;
        Show(Window);
        const Message box = desk.TakeMessage();
        QCOMPARE(box.Text, UnknownErrorText);
        QCOMPARE(box.Title, u"Valid Pay Periods"_s);
        QCOMPARE(RowsOf(Window, List), rows);
        ClickRow(Window, List, 1);
        QCOMPARE(Scan.ScanPickedDate, u"01-15-2004"_s); // the dates are those of the rows
    }

    void ForLookingOnlyAClickIsRememberedAndNothingElse()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        ClickRow(Window, List, 1);
        QCOMPARE(Scan.ScanPickedDate, u"01-15-2004"_s);
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("0\r\n"));
        QVERIFY(IsShown(Window));
        QVERIFY(!TheWindows.Loaded(u"frmExtras"_s));
    }

    void AFrequencyThatIsNoneLeavesTheRowsEmpty()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = 21;
        Show(Window);
        QCOMPARE(RowsOf(Window, List).size(), 101);
        QCOMPARE(RowsOf(Window, List).mid(0, 2), (QStringList{u"January 1, 2004"_s, QString()}));
        ClickRow(Window, List, 1);
        QCOMPARE(Scan.ScanPickedDate, QString());
    }

    void APickForTheExtrasMakesSavesAndHides()
    {
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfExtraPayPeriods = 1;
        State.ExtraPayPeriods.Redim(1);
        State.ExtraPayPeriods(1).PayPeriodDate = u"02-12-2004"_s;
        State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Tires"_s, Currency::FromDouble(80.5)};
        OpenForExtras();
        ClickRow(Window, List, 2);
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("2\r\n\"01-29-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n"
                                                           "\"02-12-2004\"\r\n1\r\n\"Tires\"\r\n80.5\r\n"));
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItem, u"New Item"_s);
        QVERIFY(!State.ScanCalledFromExtras);
        QCOMPARE(RowsOf(u"frmExtras"_s, u"lstExtraItems"_s),
                 (QStringList{u"January 29, 2004"_s, u"February 12, 2004"_s}));
        QVERIFY(TheWindows.Loaded(Window)); // hidden and not unloaded
        QVERIFY(!IsShown(Window));
        QCOMPARE(ActiveWindow(), u"frmExtras"_s);

        Show(Window); // the next showing only looks
        ClickRow(Window, List, 3);
        QCOMPARE(Scan.ScanPickedDate, u"02-12-2004"_s);
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        QVERIFY(IsShown(Window));
    }

    void ASinglePayPeriodIsKeptAsPicked()
    {
        GuiDesk desk;
        TakeHousehold();
        OpenForExtras();
        ClickRow(Window, List, 0);
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("1\r\n\"01-01-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n"));
    }

    void ADatePickedTwiceKeepsTheOlderRecordTwice()
    {
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfExtraPayPeriods = 1;
        State.ExtraPayPeriods.Redim(1);
        State.ExtraPayPeriods(1).PayPeriodDate = u"01-15-2004"_s;
        State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Tires"_s, Currency::FromDouble(80)};
        OpenForExtras();
        ClickRow(Window, List, 1);
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("2\r\n\"01-15-2004\"\r\n1\r\n\"Tires\"\r\n80\r\n"
                                                           "\"01-15-2004\"\r\n1\r\n\"Tires\"\r\n80\r\n"));
    }

    void TheArrowsOnlyMoveAndEnterOrSpacePicks_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void TheArrowsOnlyMoveAndEnterOrSpacePicks()
    {
        QFETCH(int, key);
        GuiDesk desk;
        TakeHousehold();
        OpenForExtras();
        auto &list = Find<ListBox>(Window, List);
        QTest::keyClick(&list, Qt::Key_Down);
        QTest::keyClick(&list, Qt::Key_Down);
        QVERIFY(State.ScanCalledFromExtras);
        QCOMPARE(Scan.ScanPickedDate, QString());
        const QString marked = list.currentItem()->text();
        QTest::keyClick(&list, Qt::Key(key));
        Settle();
        QCOMPARE(Scan.ScanPickedDate, Format(marked, DateFormat::Dashes));
        QVERIFY(!State.ScanCalledFromExtras);
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void WhileItWaitsForAPickItsTipTellsWhatAClickDoes()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(Find(Window, List).toolTip(), QString());
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        Click(u"frmExtras"_s, u"cmdAddPayPeriod"_s);
        auto &list = Find<ListBox>(Window, List);
        const QPoint place = list.visualItemRect(list.item(1)).center();
        QHelpEvent rest(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(list.viewport(), &rest); // the mouse rests on a row
        QCOMPARE(QToolTip::text(), u"Click a date to add it to the extra pay periods"_s);
        QToolTip::hideText();
        ClickRow(Window, List, 1);
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("1\r\n\"01-15-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n"));
        Show(Window);
        QCOMPARE(list.toolTip(), QString());
    }

    void ClosedWithoutAPickItOnlyLooksTheNextTime()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        Click(u"frmExtras"_s, u"cmdAddPayPeriod"_s);
        QVERIFY(State.ScanCalledFromExtras);
        CloseByFrame(Window);
        QVERIFY(!State.ScanCalledFromExtras);
        Show(Window);
        ClickRow(Window, List, 1);
        QCOMPARE(Scan.ScanPickedDate, u"01-15-2004"_s);
        QVERIFY(IsShown(Window));
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(RowsOf(u"frmExtras"_s, u"lstExtraItems"_s), QStringList());
    }

    void AnExtrasWindowThatIsClosedIsLoadedUnseen()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(u"frmOther"_s);
        OpenForExtras();
        TheWindows.Unload(u"frmExtras"_s);
        ClickRow(Window, List, 1);
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(1));
        QCOMPARE(RowsOf(u"frmExtras"_s, u"lstExtraItems"_s), QStringList{u"January 15, 2004"_s});
        QVERIFY(TheWindows.Loaded(u"frmExtras"_s));
        QVERIFY(!IsShown(u"frmExtras"_s));
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
    }

    void ADamagedDateIsAnUnknownErrorAndChangesNothing()
    {
        GuiDesk desk;
        TakeHousehold();
        const QByteArray damaged = "2\r\n\"01-29-2004\"\r\n1\r\n\"Tires\"\r\n80\r\n\"never\"\r\n0\r\n";
        desk.WriteFile(u"extra.txt"_s, damaged);
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        Click(u"frmExtras"_s, u"cmdAddPayPeriod"_s);
        for (int pick = 0; pick < 2; ++pick) {
            ClickRow(Window, List, 1);
            QCOMPARE(desk.TakeMessage(), (Message{UnknownErrorText, u"Valid Pay Periods"_s, Icon::Warning}));
            QCOMPARE(desk.ReadFile(u"extra.txt"_s), damaged);
            QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
            QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"01-29-2004"_s);
            QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), u"never"_s);
            QVERIFY(State.ScanCalledFromExtras); // the extras window goes on waiting
            QVERIFY(IsShown(Window));
        }
        QVERIFY(!desk.Ended);
    }

    void APickThatCannotBeSavedIsToldAndReadBack()
    {
        GuiDesk desk;
        TakeHousehold();
        const QByteArray tires = "1\r\n\"02-12-2004\"\r\n1\r\n\"Tires\"\r\n80.5\r\n";
        desk.WriteFile(u"extra.txt"_s, tires);
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        QVERIFY(QFile::setPermissions(desk.Path(u"extra.txt"_s), QFile::ReadOwner));
        Click(u"frmExtras"_s, u"cmdAddPayPeriod"_s);
        ClickRow(Window, List, 2);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Error 75: Path/File access error"_s, u"Save Pay Periods"_s, Icon::Stop}));
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), tires);
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(1));
        QCOMPARE(RowsOf(u"frmExtras"_s, u"lstExtraItems"_s), QStringList{u"February 12, 2004"_s});
        QVERIFY(!IsShown(Window)); // the pick is over all the same
        QVERIFY(!State.ScanCalledFromExtras);
    }

    void AfterAnItemTooManyAPickSavesTheFileAndItselfAlone()
    {
        GuiDesk desk;
        TakeHousehold();
        QByteArray items;
        for (int i = 1; i <= MostExtraItems; ++i)
            items += '"' + QByteArray::number(i) + "\"\r\n1\r\n";
        desk.WriteFile(u"extra.txt"_s, "1\r\n\"01-01-2004\"\r\n200\r\n" + items);
        Show(u"frmExtras"_s);
        Click(u"frmExtras"_s, u"cmdListPayPeriods"_s);
        Click(u"frmExtras"_s, u"cmdAddPayPeriod"_s); // and before the pick the user goes back to the items
        Show(u"frmExtras"_s);
        ClickRow(u"frmExtras"_s, u"lstExtraItems"_s, 0);
        Click(u"frmExtras"_s, u"cmdAddExtraItem"_s);
        Type(u"frmExtras"_s, u"txtExtraItemAmount"_s, u"1"_s);
        Type(u"frmExtras"_s, u"txtExtraItem"_s, u"201"_s);
        Click(u"frmExtras"_s, u"cmdAddChangeExtraItem"_s);
        QCOMPARE(desk.TakeMessage(), (Message{UnknownErrorText, u"Extras"_s, Icon::Warning}));
        ClickRow(Window, List, 1);
        QCOMPARE(desk.ReadFile(u"extra.txt"_s),
                 QByteArray("2\r\n\"01-01-2004\"\r\n200\r\n" + items + "\"01-15-2004\"\r\n1\r\n\"New Item\"\r\n0\r\n"));
        QCOMPARE(RowsOf(u"frmExtras"_s, u"lstExtraItems"_s),
                 (QStringList{u"January 1, 2004"_s, u"January 15, 2004"_s}));
    }

    void FilledAgainTheListHasNoSelection()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        ClickRow(Window, List, 3);
        QCOMPARE(Find<ListBox>(Window, List).ListIndex(), 3);
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(Find<ListBox>(Window, List).ListIndex(), -1);
        QCOMPARE(Scan.ScanPickedDate, u"02-12-2004"_s);
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        GuiDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuIncomeScanPayPeriods"_s);
        QVERIFY(!timer.isActive());
        CloseByFrame(Window);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }
};

REGISTER_TEST(gui_frmScanPayPeriods)
#include "gui_frmScanPayPeriods.moc"

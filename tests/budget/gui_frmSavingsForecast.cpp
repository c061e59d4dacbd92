// The savings forecast's window: filling and filling again, the pick of a completion date, and what leaving it does.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "budget/SavingsForecast.h"
#include "platform/controls/RowLook.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmSavingsForecast"_s;
const QString GridName = u"grdSavingsForecast"_s;

/// A biweekly household of $1,000.00 from January 1, 2004 on, whose pay periods cost what is told, in this order.
void TakeHousehold(qint16 periods, const QList<double> &costs = {})
{
    Forecast = {};
    State.ForecastPeriods = periods;
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.PaycheckAmount = Currency::FromDouble(1000);
    State.PayFrequency = Biweekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.NumberOfExtraPayPeriods = qint16(costs.size());
    State.ExtraPayPeriods.Redim(State.NumberOfExtraPayPeriods);
    for (int i = 1; i <= State.NumberOfExtraPayPeriods; ++i) {
        State.ExtraPayPeriods(i).PayPeriodDate = Format(QDate(2004, 1, 1).addDays(14 * (i - 1)), DateFormat::Dashes);
        State.ExtraPayPeriods(i).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(i).ExtraItems.At(1) = {u"Cost"_s, Currency::FromDouble(costs[i - 1])};
    }
}

Grid &TheGrid()
{
    return Find<Grid>(Window, GridName);
}

QStringList Rows()
{
    return GridRows(Window, GridName, 1);
}

/// A real click of the mouse on a row; 0 is the heading.
void ClickGridRow(int row)
{
    Grid &grid = TheGrid();
    if (row == 0) {
        QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 5));
    } else {
        const QModelIndex cell = grid.model()->index(row - 1, 1);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier, grid.visualRect(cell).center());
    }
    Settle();
}

class Other : public Form
{
};

/// The projects window has asked for a date: its flag is up, and the forecast is open above it.
void OpenForPick()
{
    Show(u"frmProjects"_s);
    State.ProjectDateFromForecast = true;
    Show(Window);
}

QString PickedDate()
{
    return TextOf(u"frmProjects"_s, u"txtProjectCompletionDate"_s);
}

} // namespace

class gui_frmSavingsForecast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindow()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Savings Forecast"_s);
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Columns(), 4);
        const QStringList headings{u"No."_s, u"Pay Period"_s, u"Savings"_s, u"Accumulated"_s};
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(grid.Text(0, column), headings[column]);
            QVERIFY(grid.Bold(0, column));
            QVERIFY(!grid.Bold(1, column));
            QCOMPARE(grid.ColumnWidth(column), column == 0 ? 500 : 2045);
            QCOMPARE(grid.RightAligned(column), column >= 2);
        }
        QCOMPARE(grid.CurrentRow(), 0);
        QCOMPARE(FocusOf(Window), GridName);
    }

    void SixteenRowsFillTheGrid()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        Grid &grid = TheGrid();
        const auto rowsInView = [&] {
            const int whole = grid.viewport()->height() + grid.horizontalHeader()->height();
            return double(whole) / grid.verticalHeader()->defaultSectionSize();
        };
        QVERIFY(rowsInView() >= 16 && rowsInView() < 17);
        TheWindows.Loaded(Window)->resize(900, 900);
        Settle();
        QVERIFY(rowsInView() >= 16 && rowsInView() < 17);
    }

    void ItFillsByItselfWhenItIsShown()
    {
        GuiDesk desk;
        TakeHousehold(3, {500, 1100});
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | January 1, 2004 | $200.00 | $200.00"_s,
                                      u"2 | January 15, 2004 | $200.00 | $400.00"_s,
                                      u"3 | January 29, 2004 | $1,000.00 | $1,400.00"_s}));
        QCOMPARE(State.BudgetPeriodStart.Text(), u"2/12/2004"_s);
        QVERIFY(!State.ForecastMode);
        QVERIFY(!TheWindows.Loaded(u"frmBudget"_s)); // the generator ran silently
        QVERIFY(desk.Printed.isEmpty());
    }

    void TheHourglassIsBackToNormalBeforeTheFillingAndAfterIt()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false, false}));
    }

    void TheGridIsFilledBetweenTheEndOfTheLongPartAndTheEndOfTheDocument()
    {
        GuiDesk desk;
        TakeHousehold(2, {400, 1100});
        QStringList order;
        const auto rows = [] { return QString::number(Rows().size()) + u" rows"_s; };
        TheDesk.Hourglass = [&](bool on) { order += on ? u"hourglass"_s : u"pointer, "_s + rows(); };
        TheDesk.PrintDocument = [&](const PrintJob &page) {
            order += u"document of %1 lines, "_s.arg(page.Lines.size()) + rows() + u", row "_s +
                     QString::number(TheGrid().CurrentRow());
            QVERIFY(!State.ForecastMode);
            QVERIFY(!State.PrintSavingsForecast);
        };
        State.PrintSavingsForecast = true;
        Show(Window);
        QCOMPARE(order, (QStringList{u"hourglass"_s, u"pointer, 0 rows"_s, u"document of 9 lines, 2 rows, row 0"_s,
                                     u"pointer, 2 rows"_s}));
    }

    void TheTipSaysWhatAClickDoesOnlyWhileAPickIsWaitedFor()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        const auto tip = [](int row) { return TheGrid().model()->index(row - 1, 1).data(Qt::ToolTipRole).toString(); };
        QCOMPARE(tip(1), u"January 1, 2004"_s);
        CloseByFrame(Window);
        OpenForPick();
        QCOMPARE(tip(1), u"Click a pay period to choose it as the completion date"_s);
        ClickGridRow(1);
        State.CurrentPayPeriod = u"January 1, 2004"_s;
        Show(Window);
        QCOMPARE(tip(1), u"January 1, 2004"_s);
    }

    void RedStandsInItsCellAlone()
    {
        GuiDesk desk;
        TakeHousehold(4, {0, 0, 3500});
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | January 1, 2004 | $1,000.00 | $1,000.00"_s,
                                      u"2 | January 15, 2004 | ($750.00) | $250.00"_s,
                                      u"3 | January 29, 2004 | ($750.00) | ($500.00)"_s,
                                      u"4 | February 12, 2004 | $1,000.00 | $500.00"_s}));
        const Grid &grid = TheGrid();
        for (int row = 0; row <= 5; ++row) {
            QCOMPARE(grid.Colour(row, 0), GridColour::Text);
            QCOMPARE(grid.Colour(row, 1), GridColour::Text);
            QCOMPARE(grid.Colour(row, 2), row == 2 || row == 3 ? GridColour::LightRed : GridColour::Text);
            QCOMPARE(grid.Colour(row, 3), row == 3 ? GridColour::LightRed : GridColour::Text);
        }
    }

    void OnePeriodIsOneRow()
    {
        GuiDesk desk;
        TakeHousehold(1, {400});
        Show(Window);
        QCOMPARE(Rows(), QStringList{u"1 | January 1, 2004 | $600.00 | $600.00"_s});
    }

    void ComingBackContinuesAndPushesTheEarlierRowsDown()
    {
        GuiDesk desk;
        TakeHousehold(2, {400, 400, 700});
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | January 29, 2004 | $300.00 | $300.00"_s,
                                      u"2 | February 12, 2004 | $1,000.00 | $1,300.00"_s,
                                      u"1 | January 1, 2004 | $600.00 | $600.00"_s,
                                      u"2 | January 15, 2004 | $600.00 | $1,200.00"_s}));
        CloseByFrame(Window);
        State.CurrentPayPeriod = u"January 1, 2004"_s;
        Show(Window); // only a window opened anew starts again
        QCOMPARE(Rows(), (QStringList{u"1 | January 1, 2004 | $600.00 | $600.00"_s,
                                      u"2 | January 15, 2004 | $600.00 | $1,200.00"_s}));
    }

    void ARowWithRedIsWrittenOverAnEarlierOne()
    {
        GuiDesk desk;
        TakeHousehold(2, {0, 0, 1100, 1100});
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | January 1, 2004 | $1,000.00 | $1,000.00"_s,
                                      u"2 | January 15, 2004 | $450.00 | $1,450.00"_s}));
        Show(u"frmOther"_s); // the credit of $550.00 is lost with that
        Show(Window);
        // January 29 costs 1,100 and the 12th of February the same: both end on -100.
        QCOMPARE(Rows(), (QStringList{u"1 | January 29, 2004 | ($100.00) | ($100.00)"_s,
                                      u"2 | February 12, 2004 | ($100.00) | ($200.00)"_s}));
        QCOMPARE(TheGrid().Colour(2, 2), GridColour::LightRed);
        QCOMPARE(TheGrid().Colour(3, 2), GridColour::Text);
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | February 26, 2004 | $1,000.00 | $1,000.00"_s,
                                      u"2 | March 11, 2004 | $1,000.00 | $2,000.00"_s,
                                      u"1 | January 29, 2004 | ($100.00) | ($100.00)"_s,
                                      u"2 | February 12, 2004 | ($100.00) | ($200.00)"_s}));
        QCOMPARE(TheGrid().Colour(1, 2), GridColour::Text);
        QCOMPARE(TheGrid().Colour(3, 2), GridColour::LightRed); // pushed down with its row
    }

    void APositiveAmountIsNeverRedAboveAnEarlierRedOne()
    {
        GuiDesk desk;
        // First both rows are red in both columns. Then comes a sound row, and in place of a red one a row of red
        // savings with a total that is still positive.
        TakeHousehold(2, {1100, 1100, 0, 0, 3500});
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        QCOMPARE(TheGrid().Colour(1, 3), GridColour::LightRed);
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(Rows().mid(0, 2), (QStringList{u"1 | January 29, 2004 | $1,000.00 | $1,000.00"_s,
                                                u"2 | February 12, 2004 | ($750.00) | $250.00"_s}));
        QCOMPARE(TheGrid().Colour(2, 2), GridColour::LightRed);
        QCOMPARE(TheGrid().Colour(2, 3), GridColour::Text);
    }

    void WithoutAProjectAClickDoesNothing()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        ClickGridRow(1);
        ClickGridRow(0);
        QVERIFY(IsShown(Window));
        QCOMPARE(Forecast.ForecastPickRow, qint16(0));
        QVERIFY(!TheWindows.Loaded(u"frmProjects"_s));
    }

    void AClickPicksTheCompletionDate()
    {
        GuiDesk desk;
        TakeHousehold(3, {500, 1100});
        OpenForPick();
        ClickGridRow(2);
        QCOMPARE(PickedDate(), u"January 15, 2004"_s);
        QCOMPARE(Forecast.ForecastPickRow, qint16(2));
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency::FromDouble(400));
        QVERIFY(!State.ProjectDateFromForecast);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(ActiveWindow(), u"frmProjects"_s);
    }

    void ARedTotalIsPickedWithItsSign()
    {
        GuiDesk desk;
        TakeHousehold(1, {1200.5});
        OpenForPick();
        ClickGridRow(1);
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency::FromDouble(-200.5));
    }

    void TheArrowsMoveAndEnterOrSpacePicks_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << int(Qt::Key_Return);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }
    void TheArrowsMoveAndEnterOrSpacePicks()
    {
        QFETCH(int, key);
        GuiDesk desk;
        TakeHousehold(3);
        OpenForPick();
        QTest::keyClick(&TheGrid(), Qt::Key_Down);
        QTest::keyClick(&TheGrid(), Qt::Key_Down);
        QVERIFY(State.ProjectDateFromForecast);
        const int row = TheGrid().CurrentRow();
        QVERIFY(row > 0);
        QTest::keyClick(&TheGrid(), Qt::Key(key));
        Settle();
        QVERIFY(!State.ProjectDateFromForecast);
        QCOMPARE(int(Forecast.ForecastPickRow), row);
        QCOMPARE(PickedDate(), Forecast.ForecastDates(row));
    }

    void APickOnTheHeadingEndsTheProgram()
    {
        GuiDesk desk;
        TakeHousehold(2);
        OpenForPick();
        ClickGridRow(0);
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Run-time error '9':\n\nSubscript out of range"_s, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
    }

    void ARowBelowTheLastOneTakesAnEmptyDate()
    {
        GuiDesk desk;
        TakeHousehold(2);
        OpenForPick();
        Find<QLineEdit>(u"frmProjects"_s, u"txtProjectCompletionDate"_s).setText(u"January 1, 2004"_s);
        ClickGridRow(3);
        QCOMPARE(PickedDate(), QString());
        QCOMPARE(Forecast.ForecastPickRow, qint16(3));
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency());
        QVERIFY(!State.ProjectDateFromForecast);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void BelowAShorterForecastTheDateIsEmptyToo()
    {
        GuiDesk desk;
        TakeHousehold(4);
        Show(Window);
        CloseByFrame(Window);
        State.CurrentPayPeriod = u"January 1, 2004"_s;
        State.ForecastPeriods = 2;
        OpenForPick();
        Find<QLineEdit>(u"frmProjects"_s, u"txtProjectCompletionDate"_s).setText(u"January 1, 2004"_s);
        QCOMPARE(Forecast.ForecastDates(3), u"January 29, 2004"_s); // left by the longer one
        ClickGridRow(3);
        QCOMPARE(PickedDate(), QString());
        QCOMPARE(Forecast.ForecastPickRow, qint16(3));
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency());
    }

    void BelowTheGreatestForecastTheDateIsEmptyToo()
    {
        GuiDesk desk;
        TakeHousehold(MostForecastPeriods);
        OpenForPick();
        Find<QLineEdit>(u"frmProjects"_s, u"txtProjectCompletionDate"_s).setText(u"January 1, 2004"_s);
        TheGrid().scrollToBottom();
        ClickGridRow(1001);
        QCOMPARE(PickedDate(), QString());
        QCOMPARE(Forecast.ForecastPickRow, qint16(1001));
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency());
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(!desk.Ended);
    }

    void TheThousandthNumberIsNotCut()
    {
        GuiDesk desk;
        TakeHousehold(MostForecastPeriods);
        Show(Window);
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Text(1000, 0), u"1000"_s);
        const int room = grid.horizontalHeader()->sectionSize(0) - 2 * RowLook::Margin;
        QVERIFY2(room >= grid.fontMetrics().horizontalAdvance(u"1000"_s), qPrintable(QString::number(room)));
    }

    void AnAbandonedPickPicksNothingLater()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold(2);
        OpenForPick();
        CloseByFrame(Window);
        QVERIFY(!State.ProjectDateFromForecast);
        desk.Answers = {Answer::No};
        Show(u"frmMain"_s);
        Choose(u"mnuBudgetSavingsForecast"_s);
        desk.TakeMessage();
        QVERIFY(desk.TakeBeep());
        ClickGridRow(1);
        ClickGridRow(0);
        QVERIFY(IsShown(Window));
        QVERIFY(!desk.Ended);
        QCOMPARE(Forecast.ForecastPickRow, qint16(0));
        QCOMPARE(PickedDate(), QString());
    }

    void ARowThatWasPushedDownTakesAnEmptyDateAndItsOwnAmount()
    {
        GuiDesk desk;
        TakeHousehold(2, {400});
        OpenForPick();
        Show(u"frmProjects"_s);
        Show(Window);
        QTest::qWait(250); // nobody aims at a row sooner
        ClickGridRow(3);   // the first row of before
        QCOMPARE(PickedDate(), QString());
        QCOMPARE(Forecast.ForecastPickAccumulated, Currency::FromDouble(600));
    }

    void ThePressThatBringsTheUserBackPicksNothing()
    {
        GuiDesk desk;
        TakeHousehold(3);
        OpenForPick();
        Show(u"frmProjects"_s);
        Show(Window); // the rows are others now
        ClickGridRow(2);
        QVERIFY(IsShown(Window));
        QVERIFY(State.ProjectDateFromForecast);
        QCOMPARE(PickedDate(), QString());
        QTest::qWait(250);
        ClickGridRow(2);
        QCOMPARE(PickedDate(), u"February 26, 2004"_s); // of the continued forecast, as the user sees it
        QVERIFY(!State.ProjectDateFromForecast);
    }

    void ThatItWaitsForAPickIsSeen()
    {
        GuiDesk desk;
        TakeHousehold(3);
        Show(Window);
        QVERIFY(!Find<QLabel>(Window, u"lblPick"_s).isVisible());
        QCOMPARE(TheGrid().viewport()->cursor().shape(), Qt::ArrowCursor);
        TheWindows.Unload(Window);
        OpenForPick();
        QVERIFY(Find<QLabel>(Window, u"lblPick"_s).isVisible());
        QCOMPARE(TextOf(Window, u"lblPick"_s), u"Click a pay period to choose it as the completion date"_s);
        QCOMPARE(TheGrid().viewport()->cursor().shape(), Qt::PointingHandCursor);
    }

    void ASlipIsAnUnknownErrorAndEndsThePrinting()
    {
        GuiDesk desk;
        TakeHousehold(26);
        State.CurrentPayPeriod = u"12/1/9999"_s; // two pay periods are left
        State.PrintSavingsForecast = true;
        Show(Window);
        const Message box = desk.TakeMessage();
        QVERIFY(box.Text.startsWith(u"An unknown error occured."_s));
        QCOMPARE(box.Title, u"Savings Forecast"_s);
        QCOMPARE(Rows(), QStringList());
        QVERIFY(!State.PrintSavingsForecast);
        QVERIFY(!State.ForecastMode);
        QCOMPARE(State.BudgetPeriodStart.Text(), u"12/1/9999"_s);
    }

    void AProjectsWindowThatIsClosedIsLoadedUnseen()
    {
        GuiDesk desk;
        TakeHousehold(2);
        OpenForPick();
        TheWindows.Unload(u"frmProjects"_s);
        ClickGridRow(1);
        QCOMPARE(PickedDate(), u"January 1, 2004"_s);
        QVERIFY(!IsShown(u"frmProjects"_s));
    }

    void ComingForgetsWhatABudgetHasLeft()
    {
        GuiDesk desk;
        TakeHousehold(2, {400, 300});
        State.LookingAhead = true; // or the runs that look ahead and those that budget would change places
        State.BudgetCredit = Currency::FromDouble(50);
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"1 | January 1, 2004 | $600.00 | $600.00"_s,
                                      u"2 | January 15, 2004 | $700.00 | $1,300.00"_s}));
    }

    void LeavingTakesThePayPeriodFromItsWindow_data()
    {
        QTest::addColumn<bool>("unload");
        QTest::newRow("for another window") << false;
        QTest::newRow("for good") << true;
    }
    void LeavingTakesThePayPeriodFromItsWindow()
    {
        QFETCH(bool, unload);
        GuiDesk desk;
        TakeHousehold(2);
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(u"frmOther"_s);
        Show(Window);
        State.LookingAhead = true;
        State.BudgetCredit = Currency::FromDouble(5);
        const auto leave = [&] { unload ? CloseByFrame(Window) : Show(u"frmOther"_s); };
        leave();
        QVERIFY(!State.LookingAhead);
        QCOMPARE(State.BudgetCredit, Currency());
        QVERIFY(TheWindows.Loaded(u"frmSetCurrentPayPeriod"_s)); // touched unseen
        QVERIFY(!IsShown(u"frmSetCurrentPayPeriod"_s));
        QCOMPARE(State.CurrentPayPeriod, u"1/1/2004"_s);

        Find<QLineEdit>(u"frmSetCurrentPayPeriod"_s, u"txtCurrentPayPeriod"_s).setText(u"24-May-97"_s);
        Show(Window);
        leave();
        QCOMPARE(State.CurrentPayPeriod, u"5/24/1997"_s);
    }

    void APayPeriodThatIsNoDateEndsTheProgram()
    {
        GuiDesk desk;
        TakeHousehold(2);
        Show(Window);
        TheWindows.ControlOf<QLineEdit>(u"frmSetCurrentPayPeriod"_s, u"txtCurrentPayPeriod"_s).setText(u"soon"_s);
        CloseByFrame(Window);
        QCOMPARE(desk.TakeMessage(), (Message{u"Run-time error '13':\n\nType mismatch"_s, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
    }

    void TheMenuAsksWhetherToPrint()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold(2, {500, 1100});
        desk.Answers = {Answer::Yes, Answer::No};
        Choose(u"mnuBudgetSavingsForecast"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Do you wish to print the Savings Forecast?"_s, u"Savings Forecast"_s,
                                              Icon::Question, Buttons::YesNo}));
        QVERIFY(desk.TakeBeep());
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Lines,
                 (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                              {},
                              u"                               SAVINGS FORECAST"_s,
                              {},
                              u"    Pay Period                       Savings                 Accumulated"_s,
                              u"    ______________________________________________________________________"_s,
                              {},
                              u"    January 1, 2004                    $200.00                     $200.00"_s,
                              u"    January 15, 2004                   $200.00                     $400.00"_s}));
        QVERIFY(!State.PrintSavingsForecast);
        Show(u"frmMain"_s);
        Choose(u"mnuBudgetSavingsForecast"_s); // comes to the front, fills again, prints nothing
        desk.TakeMessage();
        QVERIFY(desk.TakeBeep());
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(Rows().size(), 4);
    }

    void MoreThanAThousandPeriodsEndTheProgram()
    {
        GuiDesk desk;
        desk.StartProgram();
        TakeHousehold(1001);
        desk.Answers = {Answer::No};
        Click(u"frmMain"_s, u"Toolbar1Button7"_s);
        desk.TakeMessage();
        QVERIFY(desk.TakeBeep());
        QCOMPARE(desk.TakeMessage(),
                 (Message{u"Run-time error '9':\n\nSubscript out of range"_s, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        GuiDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        desk.Answers = {Answer::No};
        Choose(u"mnuBudgetSavingsForecast"_s);
        desk.TakeMessage();
        QVERIFY(desk.TakeBeep());
        QVERIFY(!timer.isActive());
        CloseByFrame(Window);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }
};

REGISTER_TEST(gui_frmSavingsForecast)
#include "gui_frmSavingsForecast.moc"

// The monthly overhead's window: its rows, and what leaving it does.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "budget/MonthlyOverhead.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmMonthlyOverhead"_s;

/// A household of $700.00 a week: $3,033.33 a month, of which rent and food take `rent` and $260.00.
void TakeHousehold(double rent = 500)
{
    Overhead = {};
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.PaycheckAmount = Currency::FromDouble(700);
    State.PayFrequency = Weekly;
    State.NumberOfCreditors = 1;
    State.Creditors = {{u"Rent"_s, 1, Currency::FromDouble(rent)}};
    State.NumberOfRegulars = 1;
    State.Regulars = {{u"Food"_s, Currency::FromDouble(60)}};
}

/// Every row, the empty ones too, as label and amount.
QStringList Rows()
{
    const auto &grid = Find<Grid>(Window, u"grdOverhead"_s);
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row)
        rows += grid.Text(row, 0).isEmpty() ? grid.Text(row, 1) : grid.Text(row, 0) + u" | "_s + grid.Text(row, 1);
    return rows;
}

const QStringList SoundMonth{u"Monthly Net Income | $3,033.33"_s,
                             {},
                             u"Rent - 1st | $500.00"_s,
                             u"Food | $260.00"_s,
                             {},
                             u"Total Overhead | $760.00"_s,
                             u"Remaining Funds | $2,273.33"_s};

class Other : public Form
{
};

} // namespace

class gui_frmMonthlyOverhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWindow()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Monthly Overhead"_s);
        QCOMPARE(TextOf(Window, u"cmdPrint"_s), u"&Print"_s);
        QCOMPARE(TextOf(Window, u"cmdQuit"_s), u"&Quit"_s);
        const auto &grid = Find<Grid>(Window, u"grdOverhead"_s);
        QCOMPARE(grid.Columns(), 2);
        QCOMPARE(grid.ColumnWidth(0), 3095);
        QCOMPARE(grid.ColumnWidth(1), 1716);
        QVERIFY(!grid.RightAligned(0));
        QVERIFY(grid.RightAligned(1));
        QVERIFY(grid.Bold(0, 0));
        QVERIFY(grid.Bold(0, 1));
        QVERIFY(!grid.Bold(2, 0));
        QCOMPARE(grid.CurrentRow(), 0);
    }

    void WhatRemainsFollowsTheTotalDirectly()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(Rows(), SoundMonth);
        for (int row = 0; row < 7; ++row)
            QCOMPARE(Find<Grid>(Window, u"grdOverhead"_s).Colour(row, 1), GridColour::Text);
    }

    void ATabInANameStaysInItsCell()
    {
        GuiDesk desk;
        TakeHousehold();
        State.Creditors(1).CreditorName = u"Rent\thouse"_s;
        State.Regulars(1).RegularItem = u"Food\tbought"_s;
        Show(Window);
        QStringList expected = SoundMonth;
        expected[2] = u"Rent\thouse - 1st | $500.00"_s;
        expected[3] = u"Food\tbought | $260.00"_s;
        QCOMPARE(Rows(), expected);
        QVERIFY(!desk.Ended);
    }

    void ADeficitStandsApartInRed()
    {
        GuiDesk desk;
        TakeHousehold(3000);
        Show(Window);
        QCOMPARE(Rows().mid(0, 10), (QStringList{u"Monthly Net Income | $3,033.33"_s,
                                                 {},
                                                 u"Rent - 1st | $3,000.00"_s,
                                                 u"Food | $260.00"_s,
                                                 {},
                                                 u"Total Overhead | $3,260.00"_s,
                                                 {},
                                                 u"DEFICIT | ($226.67)"_s,
                                                 {},
                                                 {}}));
        const auto &grid = Find<Grid>(Window, u"grdOverhead"_s);
        QCOMPARE(grid.Colour(7, 1), GridColour::LightRed);
        QCOMPARE(grid.Colour(7, 0), GridColour::Text);
        for (int row : {2, 3, 5, 6, 8, 9})
            QCOMPARE(grid.Colour(row, 1), GridColour::Text);
    }

    void EmptyListsShowATotalOfNothing()
    {
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfCreditors = State.NumberOfRegulars = 0;
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"Monthly Net Income | $3,033.33"_s,
                                      {},
                                      {},
                                      u"Total Overhead | $0.00"_s,
                                      u"Remaining Funds | $3,033.33"_s}));
    }

    void NothingLeftIsShownAsRemainingFunds()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = Monthly;
        State.Creditors(1).CreditorAmount = Currency::FromDouble(640);
        Show(Window);
        QCOMPARE(Rows().last(), u"Remaining Funds | $0.00"_s);
    }

    void ComingBackShowsWhatHoldsNow()
    {
        GuiDesk desk;
        TakeHousehold(3000);
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Show(u"frmOther"_s);
        State.Creditors(1).CreditorAmount = Currency::FromDouble(500);
        Show(Window);
        QCOMPARE(Rows().mid(0, SoundMonth.size()), SoundMonth);
        QCOMPARE(GridRows(Window, u"grdOverhead"_s).size(), 5); // the rows of before are emptied and not removed
        QVERIFY(Rows().size() > SoundMonth.size());
        for (int row = 0; row < int(SoundMonth.size()); ++row)
            QCOMPARE(Find<Grid>(Window, u"grdOverhead"_s).Colour(row, 1), GridColour::Text);
        Show(u"frmOther"_s);
        State.PaycheckAmount = Currency::FromDouble(1500);
        State.PayFrequency = Weekly;
        Show(Window);
        QVERIFY(Rows().first().endsWith(u"| $6,500.00"_s)); // 1,500 times 52, a twelfth of it
    }

    void PrintPrintsTheSameFigures()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdPrint"_s);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Lines, (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                                          {},
                                          u"                                   OVERHEAD"_s,
                                          {},
                                          u"              Monthly Net Income                       $3,033.33"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Rent - 1st                                 $500.00"_s,
                                          u"              Food                                       $260.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Total Overhead                             $760.00"_s,
                                          {},
                                          u"              Remaining Funds                          $2,273.33"_s}));
        QCOMPARE(Rows(), SoundMonth); // the window stays as it is
    }

    void LeavingResetsTheGeneratorAndPutsTheBudgetAway()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(u"frmBudget"_s);
        Show(Window);
        State.BudgetCredit = Currency::FromDouble(5);
        State.LookingAhead = true;
        Show(u"frmOther"_s);
        QCOMPARE(State.BudgetCredit, Currency());
        QVERIFY(!State.LookingAhead);
        QVERIFY(TheWindows.Loaded(u"frmBudget"_s));
        QVERIFY(!IsShown(u"frmBudget"_s));
        QVERIFY(IsShown(Window));
        QCOMPARE(ActiveWindow(), u"frmOther"_s);
    }

    void LeavingLoadsABudgetThatIsNotLoaded()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        QVERIFY(!TheWindows.Loaded(u"frmBudget"_s));
        Show(u"frmOther"_s);
        QVERIFY(TheWindows.Loaded(u"frmBudget"_s));
        QVERIFY(!IsShown(u"frmBudget"_s));
        QCOMPARE(State.BudgetPeriodStart.Text(), u"January 1, 2004"_s); // what its load does
    }

    void ThereIsNoWayStraightToTheBudget()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Show(u"frmBudget"_s); // leaving the overhead hides it again
        QVERIFY(!IsShown(u"frmBudget"_s));
        QCOMPARE(ActiveWindow(), Window);
        QCOMPARE(Rows().mid(0, SoundMonth.size()), SoundMonth);
    }

    void QuitUnloadsAndLeavesTheBudgetAlone()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(u"frmBudget"_s);
        Show(Window);
        Click(Window, u"cmdQuit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(IsShown(u"frmBudget"_s));
        QCOMPARE(ActiveWindow(), u"frmBudget"_s);
    }

    void AFrequencyThatIsNoneLeavesTheLastValues()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PayFrequency = 0;
        Overhead.MonthlyNetIncome = Currency::FromDouble(11);
        Overhead.RegularMonthlyAmount = Currency::FromDouble(3);
        State.NumberOfCreditors = 0;
        Show(Window);
        QCOMPARE(Rows(), (QStringList{u"Monthly Net Income | $11.00"_s,
                                      {},
                                      u"Food | $3.00"_s,
                                      {},
                                      u"Total Overhead | $3.00"_s,
                                      u"Remaining Funds | $8.00"_s}));
    }

    void AmountsBeyondMoneyEndTheProgramWithTheDefaultReport()
    {
        GuiDesk desk;
        desk.StartProgram();
        State.PaycheckAmount = Currency::FromTenThousandths(std::numeric_limits<qint64>::max());
        State.PayFrequency = Weekly;
        Click(u"frmMain"_s, u"Toolbar1Button5"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Run-time error '6':\n\nOverflow"_s, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        GuiDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuBudgetCurrentOverhead"_s);
        QCOMPARE(ActiveWindow(), Window);
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdQuit"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }

    void TheButtonsAreReachedByTheirKeys()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(FocusOf(Window), u"grdOverhead"_s);
        QTest::keyClick(&Find(Window, u"grdOverhead"_s), Qt::Key_Tab);
        QCOMPARE(FocusOf(Window), u"cmdPrint"_s);
        QTest::keyClick(&Find(Window, u"cmdPrint"_s), Qt::Key_Tab);
        QCOMPARE(FocusOf(Window), u"cmdQuit"_s);
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_P, Qt::AltModifier);
        QVERIFY(!desk.TakePrinted().Lines.isEmpty());
        QTest::keyClick(TheWindows.Loaded(Window), Qt::Key_Q, Qt::AltModifier);
        QVERIFY(!TheWindows.Loaded(Window));
    }
};

REGISTER_TEST(gui_frmMonthlyOverhead)
#include "gui_frmMonthlyOverhead.moc"

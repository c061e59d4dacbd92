// The budget window: stepping, the print switch, and what a change of windows resets.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "budget/BudgetGenerator.h"

#include "platform/controls/RowLook.h"
#include "platform/controls/Theme.h"

#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmBudget"_s;

/// A biweekly household of $1,000.00: this period costs $500.00, the next one $1,100.00.
void TakeHousehold()
{
    State.CurrentPayPeriod = u"January 1, 2004"_s;
    State.PaycheckAmount = Currency::FromTenThousandths(1000 * Currency::Unit);
    State.PayFrequency = Biweekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.NumberOfExtraPayPeriods = 2;
    State.ExtraPayPeriods.Redim(2);
    State.ExtraPayPeriods(1).PayPeriodDate = u"01-01-2004"_s;
    State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
    State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Now"_s, Currency::FromTenThousandths(520 * Currency::Unit)};
    State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Refund"_s, Currency::FromTenThousandths(-20 * Currency::Unit)};
    State.ExtraPayPeriods(2).PayPeriodDate = u"01-15-2004"_s;
    State.ExtraPayPeriods(2).NumberOfExtraItems = 1;
    State.ExtraPayPeriods(2).ExtraItems.At(1) = {u"Then"_s, Currency::FromTenThousandths(1100 * Currency::Unit)};
}

QString Caption()
{
    return TheWindows.Loaded(Window)->windowTitle();
}

QStringList Rows()
{
    return GridRows(Window, u"grdBudget"_s);
}

/// A second window of the program to go to and come back from.
class Other : public Form
{
};

} // namespace

class gui_frmBudget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OpeningShowsTheCurrentPeriodAndThePaycheckAlone()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(Caption(), u"Budget - January 1, 2004"_s);
        QCOMPARE(Rows(), QStringList{u"Paycheck Amount | $1,000.00"_s});
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).Rows(), 128);
        QVERIFY(Find<Grid>(Window, u"grdBudget"_s).Bold(0, 0));
        QVERIFY(Find<Grid>(Window, u"grdBudget"_s).Bold(0, 1));
        QVERIFY(Find<Grid>(Window, u"grdBudget"_s).RightAligned(1));
        QVERIFY(!Find<Grid>(Window, u"grdBudget"_s).RightAligned(0));
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).ColumnWidth(0), 3100);
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).ColumnWidth(1), 1750);
        QCOMPARE(State.BudgetPeriodStart.Text(), u"January 1, 2004"_s);
        QVERIFY(Find<QAbstractButton>(Window, u"pbPrintOff"_s).isChecked());
        QVERIFY(!Find<QAbstractButton>(Window, u"pbPrintOn"_s).isChecked());
    }

    void TheCaptionsAreTheDesigns()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(TextOf(Window, u"cmdBudget"_s), u"&Budget"_s);
        QCOMPARE(TextOf(Window, u"cmdCancel"_s), u"Cancel"_s);
        QCOMPARE(TextOf(Window, u"Frame1"_s), u"Print"_s);
        QCOMPARE(TextOf(Window, u"Label1"_s), u"On"_s);
        QCOMPARE(TextOf(Window, u"Label2"_s), u"Off"_s);
    }

    void TheFirstClickLooksAheadTheSecondBudgets()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Looking Ahead - January 15, 2004"_s);
        QCOMPARE(Rows(),
                 (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Then | $1,100.00"_s, u"DEFICIT | ($100.00)"_s}));
        QCOMPARE(State.BudgetPeriodStart.Text(), u"January 1, 2004"_s);

        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Budget - January 1, 2004"_s);
        QCOMPARE(Rows(),
                 (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Now | $520.00"_s, u"CREDIT - Refund | ($20.00)"_s,
                              u"Budget - January 15, 2004 | $300.00"_s, u"SAVINGS | $200.00"_s}));
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/15/2004"_s);

        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Looking Ahead - January 29, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Budget - January 15, 2004"_s);
        QCOMPARE(Rows(), (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Then | $1,100.00"_s,
                                      u"CREDIT - Budget | ($300.00)"_s, u"SAVINGS | $200.00"_s}));
    }

    void TheFirstLineStandsInRowTwoAndAnEmptyRowAboveTheResult()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        const auto &grid = Find<Grid>(Window, u"grdBudget"_s);
        QCOMPARE(grid.Text(1, 0), QString());
        QCOMPARE(grid.Text(2, 0), u"Then"_s);
        QCOMPARE(grid.Text(3, 0), QString());
        QCOMPARE(grid.Text(4, 0), u"DEFICIT"_s);
        QCOMPARE(grid.Rows(), 130); // the line and the empty row were inserted, the deficit written in place
    }

    void CreditsAndDeficitsStandInColourAndNothingElse()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        const auto &grid = Find<Grid>(Window, u"grdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.Colour(4, 1), GridColour::LightRed);
        QCOMPARE(grid.Colour(4, 0), GridColour::Text);
        QCOMPARE(grid.Colour(5, 1), GridColour::Text);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.Text(3, 0), u"CREDIT - Refund"_s);
        QCOMPARE(grid.Colour(3, 1), GridColour::LightBlue);
        QCOMPARE(grid.Colour(3, 0), GridColour::Text); // the label of a credit is not coloured
        for (int row : {1, 2, 4, 5, 6, 7})
            QCOMPARE(grid.Colour(row, 1), GridColour::Text);
    }

    void WhatTheGridShowsStandsAboveItToo()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblHeading"_s), u"Budget - January 1, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(TextOf(Window, u"lblHeading"_s), u"Looking Ahead - January 15, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(TextOf(Window, u"lblHeading"_s), u"Budget - January 1, 2004"_s);
        QVERIFY(Find<QLabel>(Window, u"lblHeading"_s).isVisible());
        QVERIFY(desk.HourglassCalls.isEmpty());
    }

    void TheResultIsBoldBelowARule()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        const auto &grid = Find<Grid>(Window, u"grdBudget"_s);
        const auto isSetOff = [&](int row) {
            const QModelIndex cell = grid.model()->index(row - 1, 0);
            const bool bold = cell.data(Qt::FontRole).value<QFont>().bold();
            if (bold != cell.data(RowLook::RuleAbove).toBool())
                QTest::qFail("bold and rule belong together", __FILE__, __LINE__);
            return bold;
        };
        QCOMPARE(grid.ResultRow(), 0);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.Text(4, 0), u"DEFICIT"_s);
        for (int row = 1; row <= 4; ++row)
            QCOMPARE(isSetOff(row), row == 4);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.Text(6, 0), u"SAVINGS"_s);
        for (int row = 1; row <= 6; ++row)
            QCOMPARE(isSetOff(row), row == 6);
        QVERIFY(!grid.Bold(6, 0)); // the cell is as any other and looks so when it is emptied
        Show(Window);
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(u"frmOther"_s);
        Show(Window);
        QCOMPARE(grid.ResultRow(), 0);
    }

    void TheViewEndsWithTheResultAndEachRunStartsAtTheTop()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        auto &grid = Find<Grid>(Window, u"grdBudget"_s);
        QCOMPARE(grid.model()->rowCount(), 0);
        QCOMPARE(grid.Rows(), 128);
        for (int run = 1; run <= 6; ++run) {
            Click(Window, u"cmdBudget"_s);
            constexpr int rows[] = {4, 6, 3, 5, 3, 3}; // two of them the gap and the empty row
            QCOMPARE(grid.model()->rowCount(), rows[run - 1]);
            QVERIFY(!grid.verticalScrollBar()->isVisible());
        }
        State.NumberOfRegulars = 200;
        State.Regulars.Redim(200);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.verticalScrollBar()->value(), 0);
        grid.scrollToBottom();
        QVERIFY(grid.verticalScrollBar()->value() > 0);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.verticalScrollBar()->value(), 0);
    }

    void ItOpensTallEnoughForTheLongestBudgetUpToTheScreen_data()
    {
        QTest::addColumn<int>("regulars");
        QTest::addColumn<bool>("scrolls");
        QTest::newRow("a short budget") << 3 << false;
        QTest::newRow("a budget that the screen has room for") << 14 << false;
        QTest::newRow("more than the screen has room for") << 300 << true;
    }
    void ItOpensTallEnoughForTheLongestBudgetUpToTheScreen()
    {
        QFETCH(int, regulars);
        QFETCH(bool, scrolls);
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfRegulars = qint16(regulars);
        State.Regulars.Redim(regulars);
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        const Form &window = *TheWindows.Loaded(Window);
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).verticalScrollBar()->isVisible(), scrolls);
        QVERIFY(window.height() < window.screen()->availableSize().height());
        QCOMPARE(window.height() > window.screen()->availableSize().height() * 9 / 10, scrolls);
    }

    void EmptyListsShowTheSavingsAlone()
    {
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfExtraPayPeriods = 0;
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Rows(), (QStringList{u"Paycheck Amount | $1,000.00"_s, u"SAVINGS | $1,000.00"_s}));
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).Text(3, 0), u"SAVINGS"_s);
    }

    void ATabInANameStaysInItsCell()
    {
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfCreditors = State.NumberOfRegulars = State.NumberOfProjects = 1;
        State.Creditors = {{u"Rent\thouse"_s, 20, Currency::FromDouble(10)}};
        State.Regulars = {{u"Food\tbought"_s, Currency::FromDouble(20)}};
        State.ExtraPayPeriods(1).ExtraItems.At(2).ExtraItem = u"Refund\tof tax"_s;
        State.ExtraPayPeriods(2).ExtraItems.At(1).ExtraItem = u"Then\tlater"_s;
        State.ProjectNames = {u"Roof\ttiles"_s};
        State.ProjectAmounts = {Currency::FromDouble(30)};
        State.ProjectEntryCounts = {qint16(1)};
        State.ProjectEntryDates.Redim(1);
        State.ProjectEntryAmounts.Redim(1);
        State.ProjectEntryDates(1).At(1) = DateText(u"1/15/2004"_s);
        State.ProjectEntryAmounts(1).At(1) = Currency::FromDouble(30);
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Rows(), (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Rent\thouse - 20th | $10.00"_s,
                                      u"Food\tbought | $20.00"_s, u"Then\tlater | $1,100.00"_s,
                                      u"Roof\ttiles | $30.00"_s, u"DEFICIT | ($160.00)"_s}));
        QCOMPARE(Find<Grid>(Window, u"grdBudget"_s).Rows(), 133); // four lines and the empty row were inserted
        Click(Window, u"cmdBudget"_s);
        // 1,000 - 20 - 520 + 20 = 480, of which (480 - 160) / 2 = 160 stay.
        QCOMPARE(Rows(), (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Food\tbought | $20.00"_s, u"Now | $520.00"_s,
                                      u"CREDIT - Refund\tof tax | ($20.00)"_s, u"Budget - January 15, 2004 | $320.00"_s,
                                      u"SAVINGS | $160.00"_s}));
        QVERIFY(!desk.Ended);
    }

    void TheGreatestNumberOfRegularItemsIsSteppedThrough()
    {
        constexpr int most = 32767;
        GuiDesk desk;
        TakeHousehold();
        State.NumberOfExtraPayPeriods = 0;
        State.NumberOfRegulars = most;
        State.Regulars.Redim(most);
        for (int i = 1; i <= most; ++i)
            State.Regulars(i) = {u"Item %1"_s.arg(i), Currency::FromTenThousandths(100)};
        Show(Window);
        const auto &grid = Find<Grid>(Window, u"grdBudget"_s);
        const QSignalSpy refreshed(grid.model(), &QAbstractItemModel::modelReset);
        // Each run inserts its lines, the empty row and the savings of 1,000 - 327.67; the rows of before are emptied
        // and pushed down.
        for (int run = 1; run <= 3; ++run) {
            Click(Window, u"cmdBudget"_s);
            QCOMPARE(grid.Rows(), 128 + run * (most + 2));
            QCOMPARE(grid.model()->rowCount(), most + 3); // the gap, the lines, the empty row and the savings
            QCOMPARE(refreshed.size(), 1);                // for the first run; the others show as many rows
            QCOMPARE(grid.Text(1, 0), QString());
            QCOMPARE(grid.Text(2, 0), u"Item 1"_s);
            QCOMPARE(grid.Text(2, 1), u"$0.01"_s);
            QCOMPARE(grid.Text(most + 1, 0), u"Item 32767"_s);
            QCOMPARE(grid.Text(most + 1, 1), u"$0.01"_s);
            QCOMPARE(grid.Text(most + 2, 0), QString());
            QCOMPARE(grid.Text(most + 3, 0), u"SAVINGS"_s);
            QCOMPARE(grid.Text(most + 3, 1), u"$672.33"_s);
            for (int row = most + 4; row < grid.Rows(); ++row)
                if (!grid.Text(row, 0).isEmpty() || !grid.Text(row, 1).isEmpty())
                    QFAIL(qPrintable(u"row %1 is not empty in run %2"_s.arg(row).arg(run)));
        }
        QCOMPARE(Caption(), u"Looking Ahead - January 29, 2004"_s);
    }

    void GoingToAnotherWindowAndBackLooksAheadAgainFromWhereItWas()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s); // period 2 comes next, and a credit is on its way
        QVERIFY(State.BudgetCredit != Currency());
        Show(u"frmOther"_s);
        QCOMPARE(State.BudgetCredit, Currency());
        QVERIFY(!State.LookingAhead);
        Show(Window);
        QCOMPARE(Caption(), u"Budget - January 1, 2004"_s); // although the next budget run covers January 15
        QCOMPARE(Rows(), QStringList{u"Paycheck Amount | $1,000.00"_s});
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Looking Ahead - January 29, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Budget - January 15, 2004"_s);
        QCOMPARE(Rows(),
                 (QStringList{u"Paycheck Amount | $1,000.00"_s, u"Then | $1,100.00"_s, u"DEFICIT | ($100.00)"_s}));
    }

    void ComingForgetsWhatAForecastHasLeft()
    {
        GuiDesk desk;
        TakeHousehold();
        State.LookingAhead = true;
        State.BudgetCredit = Currency::FromDouble(50);
        Show(Window);
        QVERIFY(!State.LookingAhead);
        QCOMPARE(State.BudgetCredit, Currency());
    }

    void ComingBackShowsThePaycheckAndThePayPeriodOfNow()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Show(u"frmOther"_s);
        State.PaycheckAmount = Currency::FromDouble(1234.5);
        State.CurrentPayPeriod = u"March 4, 2004"_s;
        Show(Window);
        QCOMPARE(Rows(), QStringList{u"Paycheck Amount | $1,234.50"_s});
        QCOMPARE(Caption(), u"Budget - March 4, 2004"_s);
    }

    void AForecastBesideItLeavesItAsItIs()
    {
        GuiDesk desk;
        TakeHousehold();
        State.ForecastPeriods = 3;
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        const QStringList rows = Rows();
        QSignalSpy runs(&TheBudgetOutlet, &StatementOutlet::Ready);
        Show(u"frmSavingsForecast"_s);
        desk.TakeAll();
        QCOMPARE(runs.count(), 0);
        QCOMPARE(Caption(), u"Looking Ahead - January 15, 2004"_s);
        QCOMPARE(Rows(), rows);
    }

    void EachRunTakesTheSelectionAway()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        Grid &grid = Find<Grid>(Window, u"grdBudget"_s);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(grid.model()->index(1, 0)).center());
        QCOMPARE(grid.CurrentRow(), 2);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(grid.CurrentRow(), 0);
        QVERIFY(!grid.selectionModel()->hasSelection());
    }

    void WhatTheNextClickShowsIsSaidBeforeIt()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        const auto next = [] { return TextOf(Window, u"lblNext"_s); };
        Show(Window);
        QCOMPARE(next(), u"Next: Looking Ahead - January 15, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(next(), u"Next: Budget - January 1, 2004"_s);
        QCOMPARE(Find<QWidget>(Window, u"cmdBudget"_s).toolTip(), next());
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(next(), u"Next: Looking Ahead - January 29, 2004"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Looking Ahead - January 29, 2004"_s); // so it was
        Show(u"frmOther"_s);
        State.BudgetPeriodStart = u"1/13/2005"_s; // a forecast was opened meanwhile
        Show(Window);
        QCOMPARE(next(), u"Next: Looking Ahead - January 27, 2005"_s);
    }

    void TheResultStandsBesideTheHeadingToo()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        const auto &result = Find<QLabel>(Window, u"lblResult"_s);
        const QColor plain = result.parentWidget()->palette().color(QPalette::WindowText);
        QCOMPARE(result.text(), QString());
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(result.text(), u"DEFICIT ($100.00)"_s);
        QCOMPARE(result.palette().color(QPalette::WindowText),
                 QBColor(12, result.palette().color(QPalette::Window), plain));
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(result.text(), u"SAVINGS $200.00"_s);
        QCOMPARE(result.palette().color(QPalette::WindowText), plain);
    }

    void ASlipIsAnUnknownErrorAndChangesNothing_data()
    {
        QTest::addColumn<QString>("payPeriod");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("monthEnd");
        QTest::newRow("a pay period at the calendar's end") << u"12/31/9999"_s << 14 << 0;
        QTest::newRow("no frequency was chosen") << u"1/1/2004"_s << 0 << 0;
        QTest::newRow("the month's end is neither yes nor no") << u"1/1/2004"_s << 30 << 5;
    }
    void ASlipIsAnUnknownErrorAndChangesNothing()
    {
        QFETCH(QString, payPeriod);
        QFETCH(int, frequency);
        QFETCH(int, monthEnd);
        GuiDesk desk;
        TakeHousehold();
        State.CurrentPayPeriod = payPeriod;
        State.PayFrequency = qint16(frequency);
        State.MonthEndPay = qint16(monthEnd);
        Show(Window);
        const QStringList rows = Rows();
        Click(Window, u"cmdBudget"_s);
        const Message box = desk.TakeMessage();
        QVERIFY(box.Text.startsWith(u"An unknown error occured."_s));
        QCOMPARE(box.Title, u"Budget"_s);
        QCOMPARE(Rows(), rows);
        QVERIFY(!State.LookingAhead);
        QCOMPARE(State.BudgetPeriodStart.Text(), payPeriod);
        QCOMPARE(TextOf(Window, u"lblNext"_s), QString());
    }

    void AMessageBoxDoesNotResetTheAlternation()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        TheWindows.WhileAway([] {});
        Settle();
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(Caption(), u"Budget - January 1, 2004"_s);
    }

    void CancelForgetsTheStepping()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdCancel"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(!State.LookingAhead);
        QCOMPARE(State.BudgetCredit, Currency());
        Show(Window);
        QCOMPARE(State.BudgetPeriodStart.Text(), u"January 1, 2004"_s);
        QCOMPARE(Caption(), u"Budget - January 1, 2004"_s);
        QVERIFY(TheBudgetOutlet.IsConnected());
    }

    void TheSwitchPrintsEveryRunIntoOneDocument()
    {
        GuiDesk desk;
        TakeHousehold();
        State.PrintFontName = u"Courier"_s;
        State.PrintFontSize = 8;
        Show(Window);
        Click(Window, u"pbPrintOn"_s);
        QVERIFY(State.PrintBudget);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(desk.Printed.size(), 0);
        Click(Window, u"pbPrintOff"_s);
        QVERIFY(!State.PrintBudget);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Font.Name, u"Courier"_s);
        QCOMPARE(page.Name, u"Budget"_s);
        QCOMPARE(page.Lines, (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                                          {},
                                          u"                       Looking Ahead - January 15, 2004"_s,
                                          {},
                                          u"              Paycheck Amount                          $1,000.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Then                                     $1,100.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              DEFICIT                                  ($100.00)"_s,
                                          {},
                                          u"                         The Corvelle's Tallymere 1.0"_s,
                                          {},
                                          u"                           Budget - January 1, 2004"_s,
                                          {},
                                          u"              Paycheck Amount                          $1,000.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Now                                        $520.00"_s,
                                          u"              CREDIT - Refund                           ($20.00)"_s,
                                          u"              Budget - January 15, 2004                  $300.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              SAVINGS                                    $200.00"_s,
                                          {}}));
    }

    void LosingTheFocusEndsTheDocumentAndThePrinting()
    {
        GuiDesk desk;
        TakeHousehold();
        TheWindows.Register(u"frmOther"_s, [] { return new Other; });
        Show(Window);
        Click(Window, u"pbPrintOn"_s);
        Click(Window, u"cmdBudget"_s);
        Show(u"frmOther"_s);
        QVERIFY(!desk.TakePrinted().Lines.isEmpty());
        QVERIFY(!State.PrintBudget);
        QVERIFY(Find<QAbstractButton>(Window, u"pbPrintOff"_s).isChecked());
        QVERIFY(!Find<QAbstractButton>(Window, u"pbPrintOn"_s).isChecked());
    }

    void ClickingTheStateThatHoldsDoesNothing()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"pbPrintOff"_s);
        Click(Window, u"pbPrintOn"_s);
        Click(Window, u"pbPrintOff"_s);
        QCOMPARE(desk.Printed.size(), 0); // nothing was printed
    }

    void PagesAreNotLostWithTheWindow()
    {
        GuiDesk desk;
        TakeHousehold();
        Show(Window);
        Click(Window, u"pbPrintOn"_s);
        Click(Window, u"cmdBudget"_s);
        Click(Window, u"cmdCancel"_s);
        QVERIFY(!desk.TakePrinted().Lines.isEmpty());
        QVERIFY(!State.PrintBudget);
    }

    void PagesAreNotLostWhenTheFrameClosesTheWindow()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuBudgetViewBudget"_s);
        Click(Window, u"pbPrintOn"_s);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(desk.Printed.size(), 0);
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Lines.value(2).trimmed(), u"Looking Ahead - January 19, 2004"_s);
        QVERIFY(!State.PrintBudget);
        QVERIFY(!desk.Ended);
    }

    void ADamagedDateEndsTheProgramWithTheDefaultReport()
    {
        GuiDesk desk;
        TakeHousehold();
        State.ExtraPayPeriods(1).PayPeriodDate = u"never"_s;
        Show(Window);
        Click(Window, u"cmdBudget"_s);
        QCOMPARE(desk.TakeMessage(), (Message{u"Run-time error '13':\n\nType mismatch"_s, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
    }

    void TheTutorRestsWhileTheWindowIsLoaded()
    {
        GuiDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuBudgetViewBudget"_s);
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdCancel"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }
};

REGISTER_TEST(gui_frmBudget)
#include "gui_frmBudget.moc"

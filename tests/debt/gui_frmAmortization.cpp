// The window of the amortization table: its grid, the rows that come with every return of the focus, the pointer, a
// table that fails, and what leaving it does to the budget.
#include "CalculatorDesk.h"
#include "TestProgram.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmAmortization"_s;
const QString GridName = u"grdAmortization"_s;

Grid &TheGrid()
{
    return Find<Grid>(Window, GridName);
}

/// A loan without interest, of one dollar a month.
void TakeLoan(int payments)
{
    Debt.LoanAnnualRate = 0;
    Debt.LoanPaymentDue = 0;
    Debt.LoanPaymentCount = qint16(payments);
    Debt.LoanAmount = Dollars(payments);
    Debt.LoanMonthlyPayment = Dollars(1);
}

const QStringList RowsOfTwoPayments{u"1 | $1.00 | $1.00 | $0.00"_s, u"2 | $1.00 | $1.00 | $0.00"_s,
                                    u"Year 1 | $2.00 | $2.00 | $0.00"_s, u"Total | $2.00 | $2.00 | $0.00"_s};

} // namespace

class gui_frmAmortization : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensWithItsTable()
    {
        GuiDesk desk;
        TakeLoan(2);
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Amortization"_s);
        QCOMPARE(GridRows(Window, GridName, 1), RowsOfTwoPayments);
        QCOMPARE(FocusOf(Window), GridName);
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Text(3, 0), QString()); // an empty row before the year, and one before the total
        QCOMPARE(grid.Text(5, 0), QString());
        QCOMPARE(grid.Text(6, 0), u"Total"_s);
        QCOMPARE(grid.ResultRow(), 6);
        QCOMPARE(grid.CurrentRow(), 0);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false}));
    }

    void TheGridIsLaidOut()
    {
        GuiDesk desk;
        TakeLoan(1);
        Show(Window);
        const Grid &grid = TheGrid();
        QCOMPARE(GridRows(Window, GridName).value(0), u"Month | Payment | Principal | Interest"_s);
        QCOMPARE(grid.Columns(), 4);
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(grid.ColumnWidth(column), column == 0 ? 750 : 1595);
            QVERIFY(grid.Bold(0, column));
            QVERIFY(!grid.Bold(1, column));
            QVERIFY(grid.RightAligned(column));
        }
        Form &form = *TheWindows.Loaded(Window);
        form.resize(form.width(), 1200);
        Settle();
        QCOMPARE(grid.verticalHeader()->defaultSectionSize(), grid.contentsRect().height() / 19);
    }

    void TheShownPaymentIsRoundedItsTotalIsNot()
    {
        GuiDesk desk;
        TakeLoan(3);
        Debt.LoanMonthlyPayment = Currency::FromTenThousandths(10033); // shows 1.00; three of them 3.01
        Show(Window);
        desk.TakeHourglass();
        QCOMPARE(GridRows(Window, GridName).value(1), u"1 | $1.00 | $1.00 | $0.00"_s);
        QCOMPARE(GridRows(Window, GridName).value(4), u"Year 1 | $3.01 | $3.00 | $0.00"_s);
    }

    void EachReturnInsertsATableAboveTheOneOfBefore()
    {
        GuiDesk desk;
        TakeLoan(2);
        Show(Window);
        const int rows = TheGrid().Rows();
        TakeLoan(1);
        LeaveAndComeBack(Window);
        QCOMPARE(GridRows(Window, GridName, 1),
                 QStringList({u"1 | $1.00 | $1.00 | $0.00"_s, u"Year 1 | $1.00 | $1.00 | $0.00"_s,
                              u"Total | $1.00 | $1.00 | $0.00"_s}) +
                     RowsOfTwoPayments);
        QCOMPARE(TheGrid().Rows(), rows + 5);
        QCOMPARE(TheGrid().ResultRow(), 5); // the new table's
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, false, true, false}));
    }

    void EachFillBeginsAtTheTop()
    {
        GuiDesk desk;
        TakeLoan(200);
        Show(Window);
        Settle();
        QScrollBar &bar = *TheGrid().verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        bar.setValue(bar.maximum());
        LeaveAndComeBack(Window);
        Settle();
        QCOMPARE(TheGrid().verticalScrollBar()->value(), 0);
        desk.TakeHourglass();
    }

    void YearsAndTotalsAreBoldAndPaymentsAreNot()
    {
        GuiDesk desk;
        TakeLoan(2);
        TheWindows.Touch(u"frmSelectMonth"_s); // its load picks January
        Debt.SelectedStartMonth = 11;
        Show(Window);
        LeaveAndComeBack(Window);
        desk.TakeHourglass();
        const Grid &grid = TheGrid();
        int bold = 0;
        for (int row = 1; row < grid.Rows(); ++row) {
            const QString label = grid.Text(row, 0);
            const bool sum = label == u"Total"_s || label.startsWith(u"Year "_s);
            bold += sum;
            for (int column = 0; column < grid.Columns(); ++column)
                QVERIFY2(grid.Bold(row, column) == sum, qPrintable(label));
        }
        QCOMPARE(bold, 5); // two years and a total, and of the table from January one year and a total
    }

    void AMessageBoxInBetweenFillsNothing()
    {
        GuiDesk desk;
        TakeLoan(2);
        Show(Window);
        const int rows = TheGrid().Rows();
        ShowMessage(u"text"_s, u"title"_s, Icon::Warning);
        Settle();
        QCOMPARE(TheGrid().Rows(), rows);
        QCOMPARE(desk.TakeMessage().Text, u"text"_s);
        desk.TakeHourglass();
    }

    void ALoanOfNoPaymentsHasATotal()
    {
        GuiDesk desk;
        Show(Window);
        desk.TakeHourglass();
        QCOMPARE(GridRows(Window, GridName, 1), QStringList{u"Total | $0.00 | $0.00 | $0.00"_s});
    }

    // ------------------------------------------------------------ a table that fails

    void WhatWasListedBeforeAnErrorStands()
    {
        GuiDesk desk;
        TakeLoan(32767);
        Show(Window);
        QCOMPARE(desk.TakeMessage(), Warning(u"Amortization"_s, UnknownErrorText));
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true}); // the hourglass stays
        const Grid &grid = TheGrid();
        QCOMPARE(grid.Text(1, 0), u"1"_s);
        QCOMPARE(grid.Text(32767, 0), u"26215"_s);
        QCOMPARE(grid.ResultRow(), 0);
        QCOMPARE(ActiveWindow(), Window);
    }

    void TheRowsStandBeforeTheErrorIsTold()
    {
        GuiDesk desk;
        TakeLoan(32767);
        QString seen;
        const auto show = TheDesk.ShowMessage;
        TheDesk.ShowMessage = [&](const Message &message) {
            seen = TheGrid().Text(1, 0);
            return show(message);
        };
        Show(Window);
        QCOMPARE(seen, u"1"_s);
        desk.TakeMessage();
        desk.TakeHourglass();
    }

    void WithoutAnyRowTheGridIsAsItWas()
    {
        GuiDesk desk;
        TakeLoan(20);
        Debt.LoanAnnualRate = 1e30F;
        Show(Window);
        QCOMPARE(desk.TakeMessage(), Warning(u"Amortization"_s, UnknownErrorText));
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true});
        QCOMPARE(GridRows(Window, GridName, 1), QStringList());
    }

    void TheHourglassOfAFailedTableEndsWithTheNextOneOrTheWindow()
    {
        GuiDesk desk;
        TakeLoan(2);
        Debt.LoanAnnualRate = 1e30F;
        Show(Window);
        TakeLoan(2);
        LeaveAndComeBack(Window);
        QCOMPARE(desk.TakeHourglass(), (QList<bool>{true, true, false}));
        Debt.LoanAnnualRate = 1e30F;
        LeaveAndComeBack(Window);
        QCOMPARE(desk.TakeHourglass(), QList<bool>{true});
        CloseByFrame(Window);
        QCOMPARE(desk.TakeHourglass(), QList<bool>{false});
        desk.Messages.clear();
    }

    // ------------------------------------------------------------ its neighbours

    void LoadHidesTheQuestionForTheMonth()
    {
        GuiDesk desk;
        TakeLoan(1);
        Show(u"frmSelectMonth"_s);
        Show(Window);
        QVERIFY(!IsShown(u"frmSelectMonth"_s));
        QVERIFY(TheWindows.Loaded(u"frmSelectMonth"_s));
        desk.TakeHourglass();
    }

    void LeavingItRestartsTheBudgetsPass()
    {
        GuiDesk desk;
        TakeLoan(1);
        Show(Window);
        State.LookingAhead = true;
        State.BudgetCredit = Dollars(5);
        LeaveAndComeBack(Window);
        QVERIFY(!State.LookingAhead);
        QCOMPARE(State.BudgetCredit, Currency());
        desk.TakeHourglass();
    }

    void ClosingItLeavesTheBudgetsPassAlone()
    {
        GuiDesk desk;
        TakeLoan(1);
        Show(u"frmPaymentCalculator"_s);
        Show(Window);
        State.LookingAhead = true;
        State.BudgetCredit = Dollars(5);
        CloseByFrame(Window);
        QCOMPARE(ActiveWindow(), u"frmPaymentCalculator"_s);
        QVERIFY(State.LookingAhead);
        QCOMPARE(State.BudgetCredit, Dollars(5));
        desk.TakeHourglass();
    }

    void ManyPaymentsAreOnlyLookedAt()
    {
        GuiDesk desk;
        TakeLoan(26000);
        Show(Window);
        desk.TakeHourglass();
        const Grid &grid = TheGrid();
        QCOMPARE(grid.model()->rowCount(), grid.Rows() - 1);
        QCOMPARE(grid.Text(grid.ResultRow(), 1), u"$26,000.00"_s);
        QVERIFY(TheWindows.Loaded(Window)->findChildren<QWidget *>().size() < 50); // no widget a cell
    }
};

REGISTER_TEST(gui_frmAmortization)
#include "gui_frmAmortization.moc"

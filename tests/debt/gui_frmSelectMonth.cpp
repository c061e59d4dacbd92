// The question for the month: the list, what a pick leaves, and the windows before and behind it.
#include "CalculatorDesk.h"
#include "TestProgram.h"

#include "platform/controls/DropDownList.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmSelectMonth"_s;
const QString TableWindow = u"frmAmortization"_s;

DropDownList &Months()
{
    return Find<DropDownList>(Window, u"cboMonth"_s);
}

/// Picks a month with the keys, as a user does: opens the list, goes to the row, takes it.
void PickMonth(int row)
{
    Months().setFocus();
    QTest::keyClick(&Months(), Qt::Key_Home);
    for (int i = 0; i < row; ++i)
        QTest::keyClick(&Months(), Qt::Key_Down);
    Settle();
}

void TakeLoan()
{
    Debt.LoanPaymentCount = 3;
    Debt.LoanAmount = Dollars(300);
    Debt.LoanMonthlyPayment = Dollars(100);
}

} // namespace

class gui_frmSelectMonth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOffersTheMonthsOfAYear()
    {
        GuiDesk desk;
        Debt.SelectedStartMonth = 5;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Select Month"_s);
        QCOMPARE(BuddyText(Window, u"cboMonth"_s), u"Select month payment begins"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"&OK"_s);
        QCOMPARE(Months().Items(),
                 (QStringList{u"January"_s, u"February"_s, u"March"_s, u"April"_s, u"May"_s, u"June"_s, u"July"_s,
                              u"August"_s, u"September"_s, u"October"_s, u"November"_s, u"December"_s}));
        QCOMPARE(Months().ListIndex(), 0);
        QCOMPARE(Debt.SelectedStartMonth, qint16(0)); // selecting the first is a click, too
        QCOMPARE(FocusOf(Window), u"cboMonth"_s);
        QCOMPARE(TabOrder(Window), (QStringList{u"cboMonth"_s, u"cmdOK"_s}));
    }

    void APickIsThePositionInTheYear_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("February") << 1;
        QTest::newRow("March") << 2;
        QTest::newRow("December") << 11;
    }
    void APickIsThePositionInTheYear()
    {
        QFETCH(int, row);
        GuiDesk desk;
        Show(Window);
        PickMonth(row);
        QCOMPARE(Months().ListIndex(), row);
        QCOMPARE(Debt.SelectedStartMonth, qint16(row));
    }

    void TheShownMonthPickedAgainIsNoChoice()
    {
        GuiDesk desk;
        Show(Window);
        PickMonth(4);
        Debt.SelectedStartMonth = 0; // as a table leaves it
        Q_EMIT Months().activated(4);
        QCOMPARE(Debt.SelectedStartMonth, qint16(0));
        PickMonth(5);
        QCOMPARE(Debt.SelectedStartMonth, qint16(5));
    }

    void OkShowsTheTableAndTheQuestionGoes()
    {
        GuiDesk desk;
        TakeLoan();
        Show(u"frmPaymentCalculator"_s);
        Show(Window);
        Click(Window, u"cmdOK"_s);
        desk.TakeHourglass();
        QCOMPARE(ActiveWindow(), TableWindow);
        QVERIFY(!IsShown(Window));
        QVERIFY(TheWindows.Loaded(Window)); // hidden, not unloaded
        QVERIFY(IsShown(u"frmPaymentCalculator"_s));
        Show(u"frmPaymentCalculator"_s); // the table is not modal
        QCOMPARE(ActiveWindow(), u"frmPaymentCalculator"_s);
    }

    void ComingBackItShowsTheMonthOfBefore()
    {
        GuiDesk desk;
        TakeLoan();
        Show(Window);
        PickMonth(10);
        Click(Window, u"cmdOK"_s);
        QCOMPARE(GridRows(TableWindow, u"grdAmortization"_s).value(3), u"Year 1 | $200.00 | $200.00 | $0.00"_s);
        CloseByFrame(TableWindow);
        Show(Window); // its load ran once
        QCOMPARE(Months().ListIndex(), 10);
        QCOMPARE(Months().Items().size(), 12);
        QCOMPARE(Debt.SelectedStartMonth, qint16(0));
        Click(Window, u"cmdOK"_s); // without a new choice the table begins in January
        desk.TakeHourglass();
        QCOMPARE(GridRows(TableWindow, u"grdAmortization"_s).value(4), u"Year 1 | $300.00 | $300.00 | $0.00"_s);
    }

    void WhileATableStandsTheQuestionStays()
    {
        GuiDesk desk;
        TakeLoan();
        Show(Window);
        Click(Window, u"cmdOK"_s);
        Show(Window);
        Click(Window, u"cmdOK"_s);
        desk.TakeHourglass();
        QCOMPARE(ActiveWindow(), TableWindow);
        QVERIFY(IsShown(Window));
        QCOMPARE(GridRows(TableWindow, u"grdAmortization"_s).count(u"Total | $300.00 | $300.00 | $0.00"_s), 2);
    }
};

REGISTER_TEST(gui_frmSelectMonth)
#include "gui_frmSelectMonth.moc"

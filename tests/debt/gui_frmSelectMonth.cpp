// The question for the month: the list, what a pick leaves, and the windows before and behind it.
#include "CalculatorDesk.h"
#include "TestProgram.h"

#include "platform/controls/DropDownList.h"

#include <QAbstractItemView>

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

QString Line()
{
    return TextOf(Window, u"lblNextTable"_s);
}

void PressReturn(Qt::Key key = Qt::Key_Return, bool held = false)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), held);
    QCoreApplication::sendEvent(&Months(), &press);
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

    void TheMonthOfTheNextTableIsTold()
    {
        GuiDesk desk;
        TakeLoan();
        Show(Window);
        QCOMPARE(Line(), QString());
        PickMonth(10);
        LeaveAndComeBack(Window);
        QCOMPARE(Line(), QString()); // the list shows it
        Click(Window, u"cmdOK"_s);
        CloseByFrame(TableWindow);
        desk.TakeHourglass();
        Show(Window);
        QCOMPARE(Line(), u"The next table begins in January. Pick another month to change that."_s);
        QVERIFY(Find(Window, u"lblNextTable"_s).isVisible());
        QCOMPARE(Months().ListIndex(), 10); // neither of them has changed
        QCOMPARE(Debt.SelectedStartMonth, qint16(0));
        Q_EMIT Months().activated(10); // the month shown is no choice
        QVERIFY(!Line().isEmpty());
        QTest::keyClick(&Months(), Qt::Key_Up);
        QCOMPARE(Debt.SelectedStartMonth, qint16(9));
        QCOMPARE(Line(), QString());
        LeaveAndComeBack(Window);
        QCOMPARE(Line(), QString());
    }

    void TheMonthIsTheOneWhereATableHasLeftOff_data()
    {
        QTest::addColumn<int>("left");
        QTest::addColumn<QString>("month");
        QTest::newRow("February") << 1 << u"February"_s;
        QTest::newRow("December") << 11 << u"December"_s;
        QTest::newRow("none, beyond the year") << 12 << QString();
        QTest::newRow("the one that the list shows") << 4 << QString();
    }
    void TheMonthIsTheOneWhereATableHasLeftOff()
    {
        QFETCH(int, left);
        QFETCH(QString, month);
        GuiDesk desk;
        Show(Window);
        PickMonth(4);
        Debt.SelectedStartMonth = qint16(left); // as a table that has failed leaves it
        LeaveAndComeBack(Window);
        QCOMPARE(Line(), month.isEmpty()
                             ? QString()
                             : u"The next table begins in %1. Pick another month to change that."_s.arg(month));
        Debt.SelectedStartMonth = 4;
        LeaveAndComeBack(Window);
        QCOMPARE(Line(), QString());
    }

    void EnterOnTheClosedListIsOk_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
    }
    void EnterOnTheClosedListIsOk()
    {
        QFETCH(int, key);
        GuiDesk desk;
        TakeLoan();
        Show(Window);
        PickMonth(10);
        PressReturn(Qt::Key(key), true); // held down since the window before
        QCOMPARE(ActiveWindow(), Window);
        PressReturn(Qt::Key(key));
        desk.TakeHourglass();
        QCOMPARE(ActiveWindow(), TableWindow);
        QCOMPARE(GridRows(TableWindow, u"grdAmortization"_s).value(3), u"Year 1 | $200.00 | $200.00 | $0.00"_s);
    }

    void EnterInTheOpenListPicksItsRow()
    {
        GuiDesk desk;
        Show(Window);
        Months().showPopup();
        Settle();
        QTest::keyClick(Months().view(), Qt::Key_Down);
        QTest::keyClick(Months().view(), Qt::Key_Return);
        Settle();
        QCOMPARE(Months().ListIndex(), 1);
        QCOMPARE(Debt.SelectedStartMonth, qint16(1));
        QCOMPARE(ActiveWindow(), Window);
        QVERIFY(!TheWindows.Loaded(TableWindow));
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

// The window of the pay off plan: its columns, its print switch, and the plans that are put into it.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "debt/PayOffPlan.h"
#include "platform/controls/PrintSwitch.h"
#include "platform/controls/RowLook.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmPayOff"_s;

Grid &TheGrid()
{
    return Find<Grid>(Window, u"grdPayOff"_s);
}

void Plan(const QList<PayOffEntry> &creditors)
{
    RedimPayOffCreditors(QString::number(creditors.size()));
    for (int i = 1; i <= creditors.size(); ++i)
        StorePayOffCreditor(i, creditors[i - 1]);
    CalculateMonthsToPay();
    SortPayOffCreditors();
    BuildPayOffPlan();
    Settle();
}

const PayOffEntry Small{u"Small"_s, u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s};
const PayOffEntry Large{u"Large"_s, u"250"_s, u"0"_s, u"50"_s, u"1/1/2004"_s};

} // namespace

class gui_frmPayOff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItsDesign()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Pay Off"_s);
        QCOMPARE(TextOf(Window, u"lblPayOffPlan"_s), u"Pay Off Plan"_s);
        QCOMPARE(TextOf(Window, u"cmdEnterCreditors"_s), u"&Enter Creditors"_s);
        QCOMPARE(TextOf(Window, u"Frame1"_s), u"Print"_s);
        QVERIFY(Find(Window, u"Frame1"_s).toolTip().contains(u"set it before Enter Creditors"_s));
        QCOMPARE(TextOf(Window, u"Label1"_s), u"On"_s);
        QCOMPARE(TextOf(Window, u"Label2"_s), u"Off"_s);
        QCOMPARE(RowsOf(Window, u"lstPayOffInfo"_s), QStringList());
    }

    void ItsColumns()
    {
        GuiDesk desk;
        Show(Window);
        const Grid &grid = TheGrid();
        QCOMPARE(GridRows(Window, u"grdPayOff"_s),
                 QStringList{u"# | Date | Previous Balance | Interest | New Balance | Payment | Next Balance"_s});
        const QList<int> widths{500, 1113, 1653, 1228, 1653, 1653, 1653};
        QCOMPARE(grid.Columns(), int(widths.size()));
        for (int column = 0; column < grid.Columns(); ++column) {
            QVERIFY(grid.Bold(0, column));
            QCOMPARE(grid.ColumnWidth(column), widths[column]);
            QCOMPARE(grid.RightAligned(column), column >= 2);
        }
    }

    void TheGreatestMonthNumberIsNotCut()
    {
        GuiDesk desk;
        Show(Window);
        Form &form = *TheWindows.Loaded(Window);
        form.resize(form.sizeHint()); // what it opens with where the screen has the room
        Settle();
        const Grid &grid = TheGrid();
        const int room = grid.horizontalHeader()->sectionSize(0) - 2 * RowLook::Margin;
        QVERIFY2(room >= grid.fontMetrics().horizontalAdvance(u"32767"_s), qPrintable(QString::number(room)));
    }

    void TheListHasRoomForACreditor_data()
    {
        QTest::addColumn<int>("pixels"); // of the letters
        QTest::addColumn<bool>("fits");
        QTest::newRow("usual letters") << 13 << true;
        QTest::newRow("letters too large for the screen") << 40 << false;
    }
    void TheListHasRoomForACreditor()
    {
        QFETCH(int, pixels);
        QFETCH(bool, fits);
        GuiDesk desk;
        Show(Window);
        Form &form = *TheWindows.Loaded(Window);
        QFont font = form.font();
        font.setPixelSize(pixels);
        form.setFont(font);
        Settle();
        Plan({Small});
        form.resize(form.minimumSizeHint());
        Settle();
        const auto &list = Find<ListBox>(Window, u"lstPayOffInfo"_s);
        QCOMPARE(list.count(), 10);
        const QRect tenth = list.visualItemRect(list.item(9));
        QVERIFY2((tenth.bottom() <= list.viewport()->height()) == fits,
                 qPrintable(u"%1 of %2"_s.arg(tenth.bottom()).arg(list.viewport()->height())));
        QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(0))));
        if (fits)
            QVERIFY(form.height() <= form.screen()->availableSize().height() - 28); // below a title bar
    }

    void APlanFillsListAndGrid()
    {
        GuiDesk desk;
        Show(Window);
        Plan({Large, Small});
        QCOMPARE(GridRows(Window, u"grdPayOff"_s, 1),
                 (QStringList{u"1 | 1/1/2004 | $100.00 | $0.00 | $100.00 | $50.00 | $50.00"_s,
                              u"2 | 2/1/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s,
                              u"1 | 1/1/2004 | $250.00 | $0.00 | $250.00 | $50.00 | $200.00"_s,
                              u"2 | 2/1/2004 | $200.00 | $0.00 | $200.00 | $50.00 | $150.00"_s,
                              u"3 | 3/1/2004 | $150.00 | $0.00 | $150.00 | $100.00 | $50.00"_s,
                              u"4 | 4/1/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s}));
        QCOMPARE(TheGrid().Text(3, 0), QString()); // an empty row parts the creditors
        QCOMPARE(TheGrid().Text(4, 0), u"1"_s);
        const QStringList lines = RowsOf(Window, u"lstPayOffInfo"_s);
        QCOMPARE(lines.size(), 20);
        QCOMPARE(lines[0], u"Creditor: Small"_s);
        QCOMPARE(lines[9], QString());
        QCOMPARE(lines[18], u"Transfer $100.00 to Budget"_s);
        QCOMPARE(Find<ListBox>(Window, u"lstPayOffInfo"_s).ListIndex(), -1);
    }

    void TheNextPlanPushesTheEmptiedRowsDown()
    {
        GuiDesk desk;
        Show(Window);
        const int before = TheGrid().Rows();
        Plan({Large, Small});
        const int after = TheGrid().Rows();
        QCOMPARE(after - before, 8);
        Plan({Small});
        QCOMPARE(TheGrid().Rows() - after, 3); // the grid keeps growing
        QCOMPARE(GridRows(Window, u"grdPayOff"_s, 1),
                 (QStringList{u"1 | 1/1/2004 | $100.00 | $0.00 | $100.00 | $50.00 | $50.00"_s,
                              u"2 | 2/1/2004 | $50.00 | $0.00 | $50.00 | $50.00 | $0.00"_s}));
        QCOMPARE(RowsOf(Window, u"lstPayOffInfo"_s).size(), 10);
        QCOMPARE(TheGrid().model()->rowCount(), 2); // what is empty below is not scrolled through
    }

    void ALongPlanStartsAtItsTop()
    {
        GuiDesk desk;
        Show(Window);
        Plan({{u"Long"_s, u"2000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        QScrollBar &bar = *TheGrid().verticalScrollBar();
        bar.setValue(bar.maximum());
        QVERIFY(bar.value() > 0);
        TheGrid().SetCurrentRow(1500);
        Plan({{u"Long"_s, u"3000"_s, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(bar.value(), 0);
        QCOMPARE(TheGrid().CurrentRow(), 0); // nothing is marked in it
        QCOMPARE(TheGrid().Text(3000, 6), u"$0.00"_s);
    }

    void ThirtyTwoThousandRowsAreThereToTheLast()
    {
        GuiDesk desk;
        Show(Window);
        Plan({{u"Slow"_s, u"32766"_s, u"0"_s, u"1"_s, u"1/1/2004"_s}});
        QCOMPARE(TheGrid().model()->rowCount(), 32766);
        QCOMPARE(TheGrid().Text(32766, 0), u"32766"_s);
        TheGrid().scrollToBottom();
        Settle();
        const QModelIndex last = TheGrid().model()->index(32765, 6);
        QVERIFY(TheGrid().viewport()->rect().contains(TheGrid().visualRect(last.siblingAtColumn(0))));
        QCOMPARE(last.data().toString(), u"$0.00"_s);
    }

    void ThePrintSwitchHoldsWhileTheProgramRuns()
    {
        GuiDesk desk;
        Show(Window);
        QVERIFY(!State.PrintPayOffPlan);
        Click(Window, u"pbPrintOn"_s);
        QVERIFY(State.PrintPayOffPlan);
        CloseByFrame(Window);
        QVERIFY(State.PrintPayOffPlan);
        Show(Window);
        QVERIFY(Find<PrintSwitch>(Window, u"printSwitch"_s).IsOn()); // it shows what holds
        QVERIFY(State.PrintPayOffPlan);
        Click(Window, u"pbPrintOff"_s);
        QVERIFY(!State.PrintPayOffPlan);
        QVERIFY(desk.Printed.isEmpty());
    }

    void APlanOnTheScreenCannotBePrintedAfterwards()
    {
        GuiDesk desk;
        Show(Window);
        Plan({Small});
        Click(Window, u"pbPrintOn"_s);
        QVERIFY(desk.Printed.isEmpty());
        QCOMPARE(RowsOf(Window, u"lstPayOffInfo"_s).size(), 10);
        Plan({Small});
        QCOMPARE(desk.TakePrinted().Lines.size(), 4 + 9);
    }

    void ExitClosesIt()
    {
        GuiDesk desk;
        Show(Window);
        Plan({Small});
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window);
        QCOMPARE(RowsOf(Window, u"lstPayOffInfo"_s), QStringList()); // the plan is gone with it
    }

    void TheMenuOpensItAndTheTutorRests()
    {
        GuiDesk desk;
        desk.StartProgram();
        const auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        QVERIFY(timer.isActive());
        Choose(u"mnuFinancePayOff"_s);
        QCOMPARE(ActiveWindow(), Window);
        QVERIFY(!timer.isActive());
        Click(Window, u"cmdExit"_s);
        QVERIFY(timer.isActive());
        QCOMPARE(ActiveWindow(), u"frmMain"_s);
    }

    // The guided route

    void OnTheGuidedRouteItTakesOverAndEndsTheRoute()
    {
        GuiDesk desk;
        TheWindows.Register(u"frmGettingStarted"_s, [] { return new Form; });
        Show(u"frmGettingStarted"_s);
        State.GuidedSetupActive = true;
        State.GuidedSetupRoute = 1;
        State.GuidedSetupStep = 2;
        Show(Window);
        QVERIFY(TheWindows.Loaded(u"frmGettingStarted"_s));
        QVERIFY(!IsShown(u"frmGettingStarted"_s));
        QVERIFY(State.GuidedSetupActive);
        Click(Window, u"cmdExit"_s);
        QVERIFY(!State.GuidedSetupActive);
        QCOMPARE(State.GuidedSetupStep, qint16(0));
        QCOMPARE(State.GuidedSetupRoute, 1);
        QVERIFY(!TheWindows.Loaded(u"frmGettingStarted"_s));
    }

    void WithoutARouteTheWelcomeStays()
    {
        GuiDesk desk;
        TheWindows.Register(u"frmGettingStarted"_s, [] { return new Form; });
        Show(u"frmGettingStarted"_s);
        State.GuidedSetupStep = 2;
        Show(Window);
        QVERIFY(IsShown(u"frmGettingStarted"_s));
        Click(Window, u"cmdExit"_s);
        QVERIFY(IsShown(u"frmGettingStarted"_s));
        QCOMPARE(State.GuidedSetupStep, qint16(2));
    }
};

REGISTER_TEST(gui_frmPayOff)
#include "gui_frmPayOff.moc"

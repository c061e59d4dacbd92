// What the tips claim about windows, held against the windows: each claim by its words, as a fresh household gets them.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "../debt/Conversation.h"
#include "GuidanceTexts.h"
#include "mainwindow/MainMenu.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Main = u"frmMain"_s;
const QString Budget = u"frmBudget"_s;
const QString Overhead = u"frmMonthlyOverhead"_s;
const QString Wages = u"frmCalculateWages"_s;
const QString PayOff = u"frmPayOff"_s;

bool ATipSays(const QString &words)
{
    return !LinesOf(TipFile).filter(words).isEmpty();
}

/// A net paycheck of 40 hours at $10.00 in the calculator, 90 per cent of the gross pay.
void EarnInAWeek()
{
    State.PayFrequency = Weekly;
    State.PaycheckAmount = Currency::FromDouble(1000);
    State.AverageNetPercentage = 0.9F;
    Choose(u"mnuIncomeCalculateWages"_s);
    PressEnter(Wages, u"txtTotalHoursWorked"_s);
    Type(u"frmTotalHours"_s, u"txtWeek1"_s, u"40"_s);
    Click(u"frmTotalHours"_s, u"cmdOK"_s);
    Type(Wages, u"txtHourlyPayRate"_s, u"10"_s);
    Click(Wages, u"cmdCalculate"_s);
}

} // namespace

class gui_tips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void GoingFromTheOverheadToAnotherWindowPutsTheBudgetAway()
    {
        QVERIFY(ATipSays(u"going from the overhead to another window puts the budget window away"_s));
        QVERIFY(ATipSays(u"Closing the overhead leaves it there, and Ctrl+B in the main window brings it back."_s));
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuBudgetViewBudget"_s);
        Show(Main);
        Choose(u"mnuBudgetCurrentOverhead"_s);
        QVERIFY(IsShown(Budget));
        CloseByFrame(Overhead);
        QVERIFY(IsShown(Budget));
        Choose(u"mnuBudgetCurrentOverhead"_s);
        Show(Main);
        QVERIFY(IsShown(Overhead));
        QVERIFY(!IsShown(Budget));
        QTest::keyClick(&Find(Main, u"lstBudgetState"_s), Qt::Key_B, Qt::ControlModifier);
        Settle();
        QVERIFY(IsShown(Budget));
        QCOMPARE(ActiveWindow(), Budget);
    }

    void TheWageCalculatorAsksOnlyAtItsExit_data()
    {
        QTest::addColumn<QString>("way");
        QTest::newRow("Exit") << u"Exit"_s;
        QTest::newRow("close box") << u"close box"_s;
        QTest::newRow("Esc") << u"Esc"_s;
    }
    void TheWageCalculatorAsksOnlyAtItsExit()
    {
        QFETCH(QString, way);
        QVERIFY(
            ATipSays(u"\"Exit\" in the wage calculator asks before its net pay becomes the paycheck of your budget? "
                     u"The close box of the window, and Esc, keep it without asking."_s));
        QVERIFY(LinesOfPage(24).join(u' ').contains(
            u"Click \"Exit\". I ask before the net pay becomes the paycheck of your budget. The close "
            u"box, and Esc, make it your paycheck without asking."_s));
        GuiDesk desk;
        desk.StartProgram();
        EarnInAWeek();
        QCOMPARE(TextOf(Wages, u"txtNetPay"_s), u"$360.00"_s);
        if (way == u"Exit"_s) {
            desk.Answers = {Answer::No};
            Click(Wages, u"cmdExit"_s);
            QCOMPARE(desk.TakeMessage().Text, u"Do you wish to save $360.00 as the new Paycheck Amount?"_s);
        } else if (way == u"Esc"_s) {
            QTest::keyClick(&Find(Wages, u"cmdCalculate"_s), Qt::Key_Escape);
            Settle();
        } else {
            CloseByFrame(Wages);
        }
        QVERIFY(!TheWindows.Loaded(Wages));
        QCOMPARE(State.PaycheckAmount, Currency::FromDouble(way == u"Exit"_s ? 1000 : 360));
    }

    void APlanIsPrintedIfTheSwitchIsOnBeforeTheLastOk_data()
    {
        QTest::addColumn<int>("at"); // the step at which the switch is set
        QTest::addColumn<bool>("prints");
        QTest::newRow("before the first question") << 0 << true;
        QTest::newRow("before the last OK") << 1 << true;
        QTest::newRow("when the plan stands there") << 2 << false;
    }
    void APlanIsPrintedIfTheSwitchIsOnBeforeTheLastOk()
    {
        QFETCH(int, at);
        QFETCH(bool, prints);
        QVERIFY(ATipSays(u"a pay off plan is printed only if \"Print\" is \"On\" before the last \"OK\"?"_s));
        GuiDesk desk;
        Show(PayOff);
        if (at == 0)
            Click(PayOff, u"pbPrintOn"_s);
        Conversation talk;
        talk.Say(u"1"_s).Say(u"Card"_s);
        Click(PayOff, u"cmdEnterCreditors"_s);
        if (at == 1)
            Click(PayOff, u"pbPrintOn"_s);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        desk.TakeHourglass();
        if (at == 2)
            Click(PayOff, u"pbPrintOn"_s);
        QCOMPARE(desk.Printed.size(), prints ? 1 : 0);
        if (prints)
            QCOMPARE(desk.TakePrinted().Lines.value(4), u"Creditor: Card"_s);
    }

    void EscClosesTheWindowsOfTheMenu()
    {
        QVERIFY(ATipSays(u"in most windows Esc does the same as the close box"_s));
        GuiDesk desk;
        desk.StartProgram();
        QSet<QString> seen;
        for (const MenuEntry &entry : MainMenu()) {
            if (entry.TheCommand != Command::Open || seen.contains(entry.Window))
                continue;
            seen.insert(entry.Window);
            Show(entry.Window);
            QTest::keyClick(TheWindows.Loaded(entry.Window), Qt::Key_Escape);
            Settle();
            QVERIFY2(!IsShown(entry.Window), qPrintable(entry.Window));
        }
        QVERIFY2(seen.size() >= 18, qPrintable(QString::number(seen.size())));
        QTest::keyClick(&Find(Main, u"lstBudgetState"_s), Qt::Key_Escape); // this would end the program
        Settle();
        QVERIFY(IsShown(Main));
    }
};

REGISTER_TEST(gui_tips)
#include "gui_tips.moc"

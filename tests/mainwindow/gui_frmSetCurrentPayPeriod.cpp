// The question for the pay period: every way out, and what it leaves behind.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/Calendar.h"
#include "mainwindow/TutorPause.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Window = u"frmSetCurrentPayPeriod"_s;
const Message NoDate{u"You have not entered a valid date"_s, u"Set Current Pay Period"_s, Icon::Warning};

/// Stands in for the main window with the tutor's timer, which nothing but the question touches here.
class MainToy : public Form
{
public:
    MainToy()
    {
        m_timer.setParent(this);
        m_timer.setObjectName(u"tmrAutoTutor"_s);
        m_timer.setInterval(10000);
    }

private:
    QTimer m_timer;
    TutorPause m_pause{m_timer};
};

/// Enter, the button or the close box.
constexpr int WaysOut = 3;
void LeaveBy(int way)
{
    if (way == 0)
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
    else if (way == 1)
        Click(Window, u"cmdExit"_s);
    else
        CloseByFrame(Window);
}
} // namespace

class gui_frmSetCurrentPayPeriod : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheOfferedTextIsTheLongDateAndSelected()
    {
        GuiDesk desk;
        State.CurrentPayPeriod = u"05-24-1997"_s;
        Show(Window);
        QCOMPARE(TextOf(Window, u"txtCurrentPayPeriod"_s), u"May 24, 1997"_s);
        QCOMPARE(FocusOf(Window), u"txtCurrentPayPeriod"_s);
        QCOMPARE(Find<QLineEdit>(Window, u"txtCurrentPayPeriod"_s).selectedText(), u"May 24, 1997"_s);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Set Current Pay Period"_s);
    }

    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblCurrentPayPeriod"_s), u"Enter Current Pay Period"_s);
        QCOMPARE(TextOf(Window, u"lblInstructions"_s),
                 u"Please use a month, date, year format Valid formats are the following examples: May 24, 1997 or "
                 u"5/24/97 or 5-24-97"_s);
        QCOMPARE(TextOf(Window, u"fraDateTime"_s), u"Current Date && Time"_s);
    }

    void EnterTakesTheTextAsItStands()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"5/24/97"_s);
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
        QCOMPARE(State.CurrentPayPeriod, u"5/24/97"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(State.CurrentPayPeriodConfirmed);
    }

    void TheButtonTakesTheTextAsItStands()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"5-24-97"_s);
        Click(Window, u"cmdExit"_s);
        QCOMPARE(State.CurrentPayPeriod, u"5-24-97"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(State.CurrentPayPeriodConfirmed);
    }

    void TheCloseBoxTakesTheTextAsItStands()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"May 24, 1997"_s);
        CloseByFrame(Window);
        QCOMPARE(State.CurrentPayPeriod, u"May 24, 1997"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QVERIFY(State.CurrentPayPeriodConfirmed);
    }

    void AcceptingTheOfferLeavesTheLongForm()
    {
        GuiDesk desk;
        State.CurrentPayPeriod = u"01-05-2004"_s;
        Show(Window);
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
        QCOMPARE(State.CurrentPayPeriod, u"January 5, 2004"_s);
    }

    void WhatIsNoDateIsRefusedByEveryWayOut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("way");
        const QStringList texts{QString(), u"abc"_s, u"2/30/2004"_s, u"15"_s};
        for (const QString &text : texts)
            for (int way = 0; way < WaysOut; ++way)
                QTest::addRow("\"%s\" by way %d", qPrintable(text), way) << text << way;
    }
    void WhatIsNoDateIsRefusedByEveryWayOut()
    {
        QFETCH(QString, text);
        QFETCH(int, way);
        GuiDesk desk;
        State.CurrentPayPeriod = u"01-05-2004"_s;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, text);
        LeaveBy(way);
        QCOMPARE(desk.TakeMessage(), NoDate);
        QVERIFY(IsShown(Window));
        QCOMPARE(FocusOf(Window), u"txtCurrentPayPeriod"_s);
        QCOMPARE(TextOf(Window, u"txtCurrentPayPeriod"_s), text);
        QCOMPARE(State.CurrentPayPeriod, u"01-05-2004"_s);
        QVERIFY(!State.CurrentPayPeriodConfirmed);
    }

    void ARefusedTextIsSelectedAsAWhole_data()
    {
        QTest::addColumn<int>("way");
        for (int way = 0; way < WaysOut; ++way)
            QTest::addRow("by way %d", way) << way;
    }
    void ARefusedTextIsSelectedAsAWhole()
    {
        QFETCH(int, way);
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"2/30/2004"_s);
        QCOMPARE(FocusOf(Window), u"txtCurrentPayPeriod"_s);
        LeaveBy(way);
        QCOMPARE(desk.TakeMessage(), NoDate);
        QCOMPARE(Find<QLineEdit>(Window, u"txtCurrentPayPeriod"_s).selectedText(), u"2/30/2004"_s);
    }

    void AnErrorIsToldUnderTheTitleOfItsWayOut_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<QString>("title");
        QTest::newRow("the button") << 1 << u"Creditors"_s;
        QTest::newRow("the close box") << 2 << u"Set Current Pay Period"_s;
    }
    void AnErrorIsToldUnderTheTitleOfItsWayOut()
    {
        QFETCH(int, way);
        QFETCH(QString, title);
        GuiDesk desk;
        State.CurrentPayPeriod = u"01-05-2004"_s;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"abc"_s);
        TheDesk.ShowMessage = [show = TheDesk.ShowMessage](const Message &message) {
            TheDesk.ShowMessage = show; // fails once
            if (message == NoDate)
                RaiseError(RuntimeError::InvalidProcedureCall);
            return show(message);
        };
        LeaveBy(way);
        const Message told = desk.TakeMessage();
        QCOMPARE(told.Title, title);
        QVERIFY2(told.Text.startsWith(u"An unknown error occured."_s), qPrintable(told.Text));
        QCOMPARE(told.TheIcon, Icon::Warning);
        QCOMPARE(State.CurrentPayPeriod, u"01-05-2004"_s);
        // The button's handler ends before it closes the window; the close box goes on closing.
        QCOMPARE(IsShown(Window), way == 1);
    }

    void BlanksAroundADateAreKept_data() { ARefusedTextIsSelectedAsAWhole_data(); }
    void BlanksAroundADateAreKept()
    {
        QFETCH(int, way);
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u" 5/24/97 "_s);
        LeaveBy(way);
        QCOMPARE(State.CurrentPayPeriod, u" 5/24/97 "_s);
        QVERIFY(!TheWindows.Loaded(Window));
    }

    void ADateFarFromAnyPayDayIsAccepted()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"1/1/9000"_s);
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
        QCOMPARE(State.CurrentPayPeriod, u"1/1/9000"_s);
    }

    void ADateThatIsNoPayDateIsSteppedOnFrom_data()
    {
        QTest::addColumn<qint16>("frequency");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("monthEnd");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("heading");
        QTest::newRow("weekly") << Weekly << 0 << 0 << 0 << u"12/27/2003"_s << u"1/3/2004"_s << u"January 3, 2004"_s;
        QTest::newRow("biweekly") << Biweekly << 0 << 0 << 0 << u"1-7-04"_s << u"1/21/2004"_s << u"January 21, 2004"_s;
        QTest::newRow("between the 1st and the 15th")
            << Semimonthly << 1 << 15 << 0 << u"January 7, 2004"_s << u"1/15/2004"_s << u"January 15, 2004"_s;
        QTest::newRow("before the 5th, which is passed over")
            << Semimonthly << 5 << 20 << 0 << u"1/3/2004"_s << u"1/20/2004"_s << u"January 20, 2004"_s;
        QTest::newRow("past the 20th") << Semimonthly << 5 << 20 << 0 << u"1/25/2004"_s << u"2/5/2004"_s
                                       << u"February 5, 2004"_s;
        QTest::newRow("the 28th counts as the month's end")
            << Semimonthly << 15 << 0 << 0 << u"1/28/2004"_s << u"2/15/2004"_s << u"February 15, 2004"_s;
        QTest::newRow("monthly") << Monthly << 0 << 0 << 0 << u"1/7/2004"_s << u"2/7/2004"_s << u"February 7, 2004"_s;
        QTest::newRow("in the middle of a month that ends with pay")
            << Monthly << 0 << 0 << -1 << u"1/15/2004"_s << u"2/29/2004"_s << u"February 29, 2004"_s;
    }
    void ADateThatIsNoPayDateIsSteppedOnFrom()
    {
        QFETCH(qint16, frequency);
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, monthEnd);
        QFETCH(QString, typed);
        QFETCH(QString, next);
        QFETCH(QString, heading);
        GuiDesk desk;
        desk.StartProgram();
        State.PayFrequency = frequency;
        State.FirstPayDate = qint16(first);
        State.SecondPayDate = qint16(second);
        State.MonthEndPay = qint16(monthEnd);
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, typed);
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
        QCOMPARE(State.CurrentPayPeriod, typed);
        QCOMPARE(NextPayPeriod(State.CurrentPayPeriod, State.PayFrequency).Text(), next);
        Show(u"frmBudget"_s);
        Click(u"frmBudget"_s, u"cmdBudget"_s);
        QCOMPARE(TheWindows.Loaded(u"frmBudget"_s)->windowTitle(), u"Looking Ahead - "_s + heading);
    }

    // The tutor

    void TheTutorRestsFromLoadToUnload_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<bool>("runs");
        for (int way = 0; way < WaysOut; ++way) {
            QTest::addRow("way %d, the timer runs", way) << way << true;
            QTest::addRow("way %d, the timer is off and stays off", way) << way << false;
        }
    }
    void TheTutorRestsFromLoadToUnload()
    {
        QFETCH(int, way);
        QFETCH(bool, runs);
        GuiDesk desk;
        TheWindows.Register(u"frmMain"_s, [] { return new MainToy; });
        Show(u"frmMain"_s);
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        if (runs)
            timer.start();
        State.CurrentPayPeriod = u"01-05-2004"_s;
        TheWindows.Touch(Window);
        QVERIFY(!timer.isActive()); // with the load, before anything is seen
        Show(Window);
        QVERIFY(!timer.isActive());
        Type(Window, u"txtCurrentPayPeriod"_s, u"abc"_s);
        LeaveBy(way);
        QCOMPARE(desk.TakeMessage(), NoDate);
        QVERIFY(!timer.isActive()); // a refused way out is none
        Type(Window, u"txtCurrentPayPeriod"_s, u"1/7/2004"_s);
        LeaveBy(way);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(timer.isActive(), runs);
    }

    void TheClockGoesOnAndTheDateIsNotRefreshed()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TextOf(Window, u"lblTime"_s), u"09:30:00 AM"_s); // from the first moment
        Find<QLabel>(Window, u"lblDate"_s).setText(u"Monday  January 5, 2004"_s);
        desk.Now = QDateTime(QDate(2004, 1, 6), QTime(14, 5, 9));
        auto &timer = Find<QTimer>(Window, u"Timer1"_s);
        QCOMPARE(timer.interval(), 1000);
        QTRY_COMPARE_WITH_TIMEOUT(TextOf(Window, u"lblTime"_s), u"02:05:09 PM"_s, 3000);
        QCOMPARE(State.ClockTime, QTime(14, 5, 9));
        QCOMPARE(TextOf(Window, u"lblDate"_s), u"Monday  January 5, 2004"_s);
        timer.setInterval(20);
        for (const int second : {10, 11, 12}) { // it strikes again and again
            desk.Now = QDateTime(QDate(2004, 1, 6), QTime(14, 5, second));
            QTRY_COMPARE_WITH_TIMEOUT(TextOf(Window, u"lblTime"_s), u"02:05:%1 PM"_s.arg(second), 3000);
        }
    }
};

REGISTER_TEST(gui_frmSetCurrentPayPeriod)
#include "gui_frmSetCurrentPayPeriod.moc"

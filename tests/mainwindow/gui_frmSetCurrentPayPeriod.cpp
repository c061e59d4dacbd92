// The question for the pay period: every way out, and what it leaves behind.
#include "GuiDesk.h"
#include "GuiMain.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Window = u"frmSetCurrentPayPeriod"_s;
const Message NoDate{u"You have not entered a valid date"_s, u"Set Current Pay Period"_s, Icon::Warning};
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
            for (int way = 0; way < 3; ++way)
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
        if (way == 0)
            PressEnter(Window, u"txtCurrentPayPeriod"_s);
        else if (way == 1)
            Click(Window, u"cmdExit"_s);
        else
            CloseByFrame(Window);
        QCOMPARE(desk.TakeMessage(), NoDate);
        QVERIFY(IsShown(Window));
        QCOMPARE(FocusOf(Window), u"txtCurrentPayPeriod"_s);
        QCOMPARE(TextOf(Window, u"txtCurrentPayPeriod"_s), text);
        QCOMPARE(State.CurrentPayPeriod, u"01-05-2004"_s);
        QVERIFY(!State.CurrentPayPeriodConfirmed);
    }

    void ADateFarFromAnyPayDayIsAccepted()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, u"txtCurrentPayPeriod"_s, u"1/1/9000"_s);
        PressEnter(Window, u"txtCurrentPayPeriod"_s);
        QCOMPARE(State.CurrentPayPeriod, u"1/1/9000"_s);
    }

    void TheClockGoesOnAndTheDateIsNotRefreshed()
    {
        GuiDesk desk;
        Show(Window);
        Find<QLabel>(Window, u"lblDate"_s).setText(u"Monday  January 5, 2004"_s);
        desk.Now = QDateTime(QDate(2004, 1, 6), QTime(14, 5, 9));
        auto &timer = Find<QTimer>(Window, u"Timer1"_s);
        QCOMPARE(timer.interval(), 1000);
        QTRY_COMPARE_WITH_TIMEOUT(TextOf(Window, u"lblTime"_s), u"02:05:09 PM"_s, 3000);
        QCOMPARE(State.ClockTime, QTime(14, 5, 9));
        QCOMPARE(TextOf(Window, u"lblDate"_s), u"Monday  January 5, 2004"_s);
    }
};

GUI_TEST_MAIN(gui_frmSetCurrentPayPeriod)
#include "gui_frmSetCurrentPayPeriod.moc"

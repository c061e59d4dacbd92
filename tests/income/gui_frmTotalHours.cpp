// The hours week by week: which weeks there are, what is refused and where the focus is then, what is taken over.
#include "IncomeDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

const QStringList Boxes{u"txtWeek1"_s, u"txtWeek2"_s, u"txtWeek3"_s, u"txtWeek4"_s, u"txtWeek5"_s};
const Message NoNumber{u"One or more fields do not contain a valid number"_s, u"Total Hours Worked"_s, Icon::Stop,
                       Buttons::OkHelp, 18};
const Message TooMany{u"It is not possible to have more than 168 hours in a week"_s, u"Total Hours Worked"_s,
                      Icon::Stop};

void Accept()
{
    Click(Hours, u"cmdOK"_s);
}

/// "1 2 3": the weeks whose boxes can be filled.
QString WeeksInReach()
{
    QStringList weeks;
    for (int week = 1; week <= 5; ++week) {
        const bool enabled = IsEnabled(Hours, u"txtWeek%1"_s.arg(week));
        if (IsEnabled(Hours, u"lblWeek%1"_s.arg(week)) != enabled)
            return u"week %1: its label differs"_s.arg(week);
        if (enabled)
            weeks += QString::number(week);
    }
    return weeks.join(u' ');
}

QString Kept()
{
    QStringList kept;
    for (const float hours : Income.WeekHours)
        kept += QString::number(double(hours));
    return kept.join(u' ');
}

} // namespace

class gui_frmTotalHours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Show(Hours);
        QCOMPARE(TheWindows.Loaded(Hours)->windowTitle(), u"Total Hours Worked"_s);
        QCOMPARE(TextOf(Hours, u"cmdOK"_s), u"&OK"_s);
        for (int week = 1; week <= 5; ++week) {
            const QString box = u"txtWeek%1"_s.arg(week);
            QCOMPARE(LabelOf(Hours, box), u"Total Hours for Week %1"_s.arg(week));
            QCOMPARE(Find(Hours, box).toolTip(),
                     u"Hours worked in this week as a decimal number: 37.5 for 37 hours and "
                     "30 minutes; at most 168"_s);
            QVERIFY(Find<QLineEdit>(Hours, box).alignment() & Qt::AlignRight);
        }
        QCOMPARE(Find(Hours, u"cmdOK"_s).toolTip(),
                 u"Take the hours over; until then they are lost when you go to another window"_s);
        QCOMPARE(TabOrder(Hours), Boxes + QStringList{u"cmdOK"_s});
    }

    void TheWeeksFollowTheFrequency_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QString>("weeks");
        QTest::addColumn<QString>("shown");
        QTest::newRow("weekly") << 7 << u"1"_s << u"1.00 | 0.00 | 0.00 | 0.00 | 0.00"_s;
        QTest::newRow("biweekly") << 14 << u"1 2"_s << u"1.00 | 2.13 | 0.00 | 0.00 | 0.00"_s;
        QTest::newRow("semimonthly") << 15 << u"1 2 3"_s << u"1.00 | 2.13 | 3.00 | 0.00 | 0.00"_s;
        QTest::newRow("monthly") << 30 << u"1 2 3 4 5"_s << u"1.00 | 2.13 | 3.00 | 4.00 | 5.00"_s;
        QTest::newRow("another one leaves the first alone, as designed")
            << 21 << u"1"_s << u"1.00 | 0.00 | 0.00 | 0.00 | 0.00"_s;
    }
    void TheWeeksFollowTheFrequency()
    {
        QFETCH(int, frequency);
        QFETCH(QString, weeks);
        QFETCH(QString, shown);
        GuiDesk desk;
        State.PayFrequency = qint16(frequency);
        Income.WeekHours = {1, 2.125F, 3, 4, 5};
        Show(Hours);
        QCOMPARE(WeeksInReach(), weeks);
        QCOMPARE(Texts(Hours, Boxes), shown);
        QCOMPARE(FocusOf(Hours), Boxes[0]);
        QCOMPARE(Selected(Hours, Boxes[0]), u"1.00"_s);
    }

    void EveryActivationBeginsAnew()
    {
        GuiDesk desk;
        State.PayFrequency = Biweekly;
        Show(Hours);
        Type(Hours, Boxes[1], u"12"_s);
        Show(u"frmEnvironmentSettings"_s);
        State.PayFrequency = Semimonthly;
        Show(Hours);
        QCOMPARE(WeeksInReach(), u"1 2 3"_s);
        QCOMPARE(Texts(Hours, Boxes), u"0.00 | 0.00 | 0.00 | 0.00 | 0.00"_s);
        QCOMPARE(FocusOf(Hours), Boxes[0]);
        Show(u"frmEnvironmentSettings"_s);
        State.PayFrequency = Weekly; // weeks are taken back, too
        Show(Hours);
        QCOMPARE(WeeksInReach(), u"1"_s);
    }

    void EnterIsSwallowedAndMovesNothing()
    {
        GuiDesk desk;
        State.PayFrequency = Monthly;
        Show(Hours);
        for (const QString &box : Boxes) {
            Type(Hours, box, u"4"_s);
            PressEnter(Hours, box);
            QCOMPARE(FocusOf(Hours), box);
            QVERIFY(IsShown(Hours));
        }
        QCOMPARE(Texts(Hours, Boxes), u"4 | 4 | 4 | 4 | 4"_s);
    }

    void TheFocusSelectsTheBox()
    {
        GuiDesk desk;
        State.PayFrequency = Biweekly;
        Income.WeekHours[1] = 38.5F;
        Show(Hours);
        QTest::keyClick(&Find(Hours, Boxes[0]), Qt::Key_Tab);
        QCOMPARE(FocusOf(Hours), Boxes[1]);
        QCOMPARE(Selected(Hours, Boxes[1]), u"38.50"_s);
    }

    void TheHoursAreTakenOver()
    {
        GuiDesk desk;
        State.PayFrequency = Biweekly;
        Income.WeekHours = {0, 0, 33, 33, 33};
        Show(Hours);
        Type(Hours, Boxes[0], u"50"_s);
        Type(Hours, Boxes[1], u"30"_s);
        QTest::keyClick(&Find(Hours, Boxes[1]), Qt::Key_O, Qt::AltModifier);
        Settle();
        QVERIFY(!TheWindows.Loaded(Hours));
        QCOMPARE(Income.TotalRegularHours, 70.F);
        QCOMPARE(Income.TotalOvertimeHours, 10.F);
        QCOMPARE(Income.TotalHoursWorked, 80.F);
        QCOMPARE(Kept(), u"50 30 0 0 0"_s); // a grey week is stored as 0

        Show(Hours);
        QCOMPARE(Texts(Hours, Boxes), u"50.00 | 30.00 | 0.00 | 0.00 | 0.00"_s);
    }

    void AWeeklyHouseholdKeepsNothingOfAWeekThatIsGrey()
    {
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Income.WeekHours[1] = 30;
        Show(Hours);
        Type(Hours, Boxes[0], u"50"_s);
        Accept();
        QCOMPARE(Income.TotalHoursWorked, 50.F);
        State.PayFrequency = Biweekly;
        Show(Hours);
        QCOMPARE(Texts(Hours, Boxes), u"50.00 | 0.00 | 0.00 | 0.00 | 0.00"_s);
    }

    void WhatAWeekMayHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<Message>>("messages");
        QTest::addColumn<float>("worked"); ///< where it is accepted
        QTest::newRow("168") << u"168"_s << QList<Message>() << 168.F;
        QTest::newRow("as good as 168 in single precision") << u"168.000001"_s << QList<Message>() << 168.F;
        QTest::newRow("168.01") << u"168.01"_s << QList{TooMany} << 0.F;
        QTest::newRow("with a separator") << u"1,000"_s << QList{TooMany} << 0.F;
        QTest::newRow("beyond every number") << u"1e39"_s << QList{TooMany} << 0.F;
        QTest::newRow("beyond every number by far") << u"1e999"_s << QList{TooMany} << 0.F;
        QTest::newRow("nothing") << QString() << QList{NoNumber} << 0.F;
        QTest::newRow("a word") << u"abc"_s << QList{NoNumber} << 0.F;
        QTest::newRow("a time of day") << u"4:30"_s << QList{NoNumber} << 0.F;
        QTest::newRow("less than nothing") << u"-5"_s << QList<Message>() << -5.F;
        QTest::newRow("an amount of money is a number, but begins with none") << u"$40"_s << QList<Message>() << 0.F;
        QTest::newRow("an exponent") << u"4e1"_s << QList<Message>() << 40.F;
    }
    void WhatAWeekMayHold()
    {
        QFETCH(QString, text);
        QFETCH(QList<Message>, messages);
        QFETCH(float, worked);
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Income.TotalHoursWorked = 33;
        Show(Hours);
        Type(Hours, Boxes[0], text);
        Accept();
        QCOMPARE(std::exchange(desk.Messages, {}), messages);
        QCOMPARE(IsShown(Hours), !messages.isEmpty());
        QCOMPARE(Income.TotalHoursWorked, messages.isEmpty() ? worked : 33.F);
        if (!messages.isEmpty()) {
            QCOMPARE(FocusOf(Hours), Boxes[0]);
            QCOMPARE(Selected(Hours, Boxes[0]), text);
        }
    }

    void EveryBadBoxIsToldAndTheLastKeepsTheFocus()
    {
        GuiDesk desk;
        State.PayFrequency = Monthly;
        Income.WeekHours = {1, 2, 3, 4, 5};
        Show(Hours);
        const QStringList texts{u"1e39"_s, u"-1e39"_s, u"abc"_s, u"200"_s, u"8"_s};
        for (qsizetype week = 0; week < texts.size(); ++week)
            Type(Hours, Boxes[week], texts[week]);
        Accept();
        QCOMPARE(std::exchange(desk.Messages, {}), (QList<Message>{TooMany, NoNumber, TooMany}));
        QCOMPARE(FocusOf(Hours), Boxes[3]);
        QCOMPARE(Selected(Hours, Boxes[3]), u"200"_s);
        QCOMPARE(Texts(Hours, Boxes), texts.join(u" | "_s));
        QCOMPARE(Kept(), u"1 2 3 4 5"_s); // nothing is taken

        Type(Hours, Boxes[3], u"20"_s);
        Accept();
        QCOMPARE(std::exchange(desk.Messages, {}), (QList<Message>{TooMany, NoNumber}));
        QCOMPARE(FocusOf(Hours), Boxes[2]);
    }

    // The box of a message may cover what it is about.
    void ABoxIsMarkedBeforeItsMessage()
    {
        GuiDesk desk;
        State.PayFrequency = Monthly;
        Show(Hours);
        const QStringList texts{u"x"_s, u"40"_s, u"y"_s, u"200"_s, u"8"_s};
        for (qsizetype week = 0; week < texts.size(); ++week)
            Type(Hours, Boxes[week], texts[week]);
        QStringList marked;
        TheDesk.ShowMessage = [&, record = TheDesk.ShowMessage](const Message &message) {
            marked += FocusOf(Hours) + u": "_s + Selected(Hours, FocusOf(Hours));
            return record(message);
        };
        Accept();
        QCOMPARE(std::exchange(desk.Messages, {}), (QList<Message>{NoNumber, NoNumber, TooMany}));
        QCOMPARE(marked, (QStringList{u"txtWeek1: x"_s, u"txtWeek3: y"_s, u"txtWeek4: 200"_s}));
        QCOMPARE(FocusOf(Hours), Boxes[3]);
        QCOMPARE(Selected(Hours, Boxes[3]), u"200"_s);

        // A box that has the focus already is marked anew.
        Type(Hours, Boxes[0], u"1"_s);
        Type(Hours, Boxes[2], u"1"_s);
        Type(Hours, Boxes[3], u"300"_s);
        marked.clear();
        Find<QAbstractButton>(Hours, u"cmdOK"_s).click();
        QCOMPARE(desk.TakeMessage(), TooMany);
        QCOMPARE(marked, QStringList{u"txtWeek4: 300"_s});
    }

    void AGreyBoxIsLookedAtAsWell()
    {
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Show(Hours);
        Find<QLineEdit>(Hours, Boxes[4]).setText(u"abc"_s); // which no user can
        Accept();
        QCOMPARE(desk.TakeMessage(), NoNumber);
        QVERIFY(IsShown(Hours));
        QCOMPARE(FocusOf(Hours), u"cmdOK"_s); // a grey box takes no focus
        QCOMPARE(Selected(Hours, Boxes[4]), QString());
    }

    void HoursBeyondEveryNumberChangeNothing()
    {
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Income.WeekHours.fill(33);
        Show(Hours);
        Type(Hours, Boxes[0], u"-1e39"_s);
        Accept();
        QCOMPARE(desk.TakeMessage(), (Message{UnknownError, u"Total Hours Worked"_s, Icon::Warning}));
        QVERIFY(IsShown(Hours));
        QCOMPARE(Kept(), u"33 33 33 33 33"_s);
    }

    void EscClosesItInEitherWay_data()
    {
        QTest::addColumn<bool>("modally");
        QTest::newRow("beside the others") << false;
        QTest::newRow("modally") << true;
    }
    void EscClosesItInEitherWay()
    {
        QFETCH(bool, modally);
        GuiDesk desk;
        State.PayFrequency = Biweekly;
        Show(u"frmEnvironmentSettings"_s);
        bool held = false;
        bool closed = false;
        const auto press = [&] {
            Type(Hours, Boxes[0], u"50"_s);
            HoldKey(Hours, Boxes[0], Qt::Key_Escape, u"\x1b"_s); // of the press that opened it
            held = IsShown(Hours);
            QTest::keyClick(&Find(Hours, Boxes[0]), Qt::Key_Escape);
            closed = !TheWindows.Loaded(Hours);
        };
        if (modally) {
            QVERIFY(Meanwhile(
                Hours, [] { TheWindows.ShowModal(Hours); }, press));
        } else {
            Show(Hours);
            press();
        }
        QVERIFY(held);
        QVERIFY(closed);
        Settle();
        QCOMPARE(ActiveWindow(), u"frmEnvironmentSettings"_s);
        QCOMPARE(Kept(), u"0 0 0 0 0"_s); // as the close box, it takes nothing
    }

    void TheCloseBoxTakesNothing()
    {
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Show(Hours);
        Type(Hours, Boxes[0], u"abc"_s);
        CloseByFrame(Hours);
        QVERIFY(!TheWindows.Loaded(Hours));
        QCOMPARE(Kept(), u"0 0 0 0 0"_s);
    }

    void F1AsksForTheHelpOfTheRefusal()
    {
        GuiDesk desk;
        State.PayFrequency = Weekly;
        Show(Hours);
        QTest::keyClick(&Find(Hours, Boxes[0]), Qt::Key_F1);
        QCOMPARE(desk.TakeHelp(), (HelpQuestion{QString(), 18, Hours}));
    }
};

REGISTER_TEST(gui_frmTotalHours)
#include "gui_frmTotalHours.moc"

// The average net percentage: the four boxes, what is refused, the setting that changes at once, and the question that
// every way of closing asks.
#include "IncomeDesk.h"
#include "TestProgram.h"

#include "platform/values/Format.h"
#include "platform/values/Locale.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

const QStringList Boxes{u"txtFirstCheckGross"_s, u"txtFirstCheckNet"_s, u"txtSecondCheckGross"_s,
                        u"txtSecondCheckNet"_s};
const QString Result = u"txtAverageNetPercentage"_s;
const QString Title = u"Average Net Percentage"_s;

void Enter(const QStringList &texts)
{
    for (qsizetype box = 0; box < Boxes.size(); ++box)
        Type(AverageNet, Boxes[box], texts[box]);
}

void Calculate()
{
    Click(AverageNet, u"cmdCalculate"_s);
}

/// 85 per cent.
void CalculateAnew()
{
    Show(AverageNet);
    Enter({u"1000"_s, u"850"_s, u"1000"_s, u"850"_s});
    Calculate();
}

Message Question(const QString &number)
{
    return {u"Do you wish to save %1% as the new Average Net Percentage?"_s.arg(number), Title, Icon::Question,
            Buttons::YesNo};
}

enum Way { ExitButton, CloseBox, Escape };

void Leave(int way)
{
    if (way == ExitButton)
        Click(AverageNet, u"cmdExit"_s);
    else if (way == CloseBox)
        CloseByFrame(AverageNet);
    else
        QTest::keyClick(&Find(AverageNet, Boxes[0]), Qt::Key_Escape);
    Settle();
}

} // namespace

class gui_frmAverageNetPercentage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Show(AverageNet);
        QCOMPARE(TheWindows.Loaded(AverageNet)->windowTitle(), Title);
        QCOMPARE(TextOf(AverageNet, u"fraFirstPaycheck"_s), u"First Paycheck"_s);
        QCOMPARE(TextOf(AverageNet, u"fraSecondPaycheck"_s), u"Second Paycheck"_s);
        QCOMPARE(LabelOf(AverageNet, Result), Title);
        QCOMPARE(TextOf(AverageNet, u"lblPercent"_s), u"%"_s);
        QCOMPARE(TextOf(AverageNet, u"cmdCalculate"_s), u"&Calculate"_s);
        for (const QString &box : Boxes) {
            const bool gross = box.endsWith(u"Gross"_s);
            QCOMPARE(LabelOf(AverageNet, box), gross ? u"Gross"_s : u"Net"_s);
            QCOMPARE(
                Find(AverageNet, box).toolTip(),
                gross
                    ? u"Gross amount of this paycheck, before taxes and other deductions; it is lost when you go to another window"_s
                    : u"Net amount of the same paycheck: what was paid out; it is lost when you go to another window"_s);
            QVERIFY(Find<QLineEdit>(AverageNet, box).alignment() & Qt::AlignRight);
        }
        QVERIFY(Find<QLineEdit>(AverageNet, Result).isReadOnly());
        QCOMPARE(TabOrder(AverageNet), Boxes + QStringList({u"cmdCalculate"_s, u"cmdExit"_s}));
    }

    void EveryActivationBeginsAnew()
    {
        GuiDesk desk;
        State.AverageNetPercentage = 0.06625F;
        Show(AverageNet);
        QCOMPARE(Texts(AverageNet, Boxes), u"$0.00 | $0.00 | $0.00 | $0.00"_s);
        QCOMPARE(TextOf(AverageNet, Result), u"6.63"_s);
        QCOMPARE(FocusOf(AverageNet), Boxes[0]);
        QCOMPARE(Selected(AverageNet, Boxes[0]), u"$0.00"_s);

        Enter({u"1"_s, u"2"_s, u"3"_s, u"4"_s});
        Show(u"frmEnvironmentSettings"_s);
        Show(AverageNet);
        QCOMPARE(Texts(AverageNet, Boxes), u"$0.00 | $0.00 | $0.00 | $0.00"_s);
        QCOMPARE(FocusOf(AverageNet), Boxes[0]);
    }

    void TheBoxesBeginInTheMoneyOfTheLocale()
    {
        GuiDesk desk;
        const QLocale before = UserLocale();
        const auto putBack = qScopeGuard([&] { SetUserLocale(before); });
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany));
        State.AverageNetPercentage = 0.85F;
        Show(AverageNet);
        const QString nothing = FormatCurrency(Currency::Zero);
        QVERIFY(nothing.startsWith(u"0,00"_s)); // with the euro behind it
        QCOMPARE(Texts(AverageNet, Boxes), QStringList({nothing, nothing, nothing, nothing}).join(u" | "_s));
        QCOMPARE(TextOf(AverageNet, Result), u"85,00"_s);
        Enter({u"1.000,00"_s, u"500"_s, u"10"_s, u"7,5"_s});
        Calculate();
        QCOMPARE(TextOf(AverageNet, Result), u"62,50"_s);
        Show(u"frmEnvironmentSettings"_s);
        Show(AverageNet);
        QCOMPARE(Texts(AverageNet, Boxes), QStringList({nothing, nothing, nothing, nothing}).join(u" | "_s));
        desk.Answers = {Answer::No};
        Leave(ExitButton);
        QCOMPARE(desk.TakeMessage(), Question(u" 62.5"_s)); // the plain conversion knows no locale
    }

    void EnterGoesRound()
    {
        GuiDesk desk;
        Show(AverageNet);
        for (qsizetype box = 0; box < Boxes.size(); ++box) {
            QCOMPARE(FocusOf(AverageNet), Boxes[box]);
            PressEnter(AverageNet, Boxes[box]);
            const QString next = Boxes[(box + 1) % Boxes.size()];
            QCOMPARE(FocusOf(AverageNet), next);
            QCOMPARE(Selected(AverageNet, next), u"$0.00"_s);
        }
        QCOMPARE(TextOf(AverageNet, Result), u"0.00"_s); // no button was pressed
    }

    void TheFirstBoxThatIsNoNumberIsRefused_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<int>("box");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("helpContext");
        const QString text = u"Please enter a numerical dollar amount in the %1 field"_s;
        const QStringList names{u"First Check Gross"_s, u"First Check Net"_s, u"Second Check Gross"_s,
                                u"Second Check Net"_s};
        for (int box = 0; box < 4; ++box) {
            QStringList texts{u"1"_s, u"2"_s, u"3"_s, u"4"_s};
            texts[box] = u"ten"_s;
            QTest::newRow(qPrintable(names[box])) << texts << box << text.arg(names[box]) << 26 + box;
            texts[box].clear();
            QTest::newRow(qPrintable(names[box] + u", empty"_s)) << texts << box << text.arg(names[box]) << 26 + box;
        }
        QTest::newRow("the first of several")
            << QStringList{u"1"_s, u"x"_s, u"y"_s, u"z"_s} << 1 << text.arg(names[1]) << 27;
    }
    void TheFirstBoxThatIsNoNumberIsRefused()
    {
        QFETCH(QStringList, texts);
        QFETCH(int, box);
        QFETCH(QString, text);
        QFETCH(int, helpContext);
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        Show(AverageNet);
        Enter(texts);
        Calculate();
        QCOMPARE(desk.TakeMessage(), (Message{text, Title, Icon::Stop, Buttons::OkHelp, helpContext}));
        QCOMPARE(FocusOf(AverageNet), Boxes[box]);
        QCOMPARE(Selected(AverageNet, Boxes[box]), texts[box]);
        QCOMPARE(Texts(AverageNet, Boxes), texts.join(u" | "_s));
        QCOMPARE(TextOf(AverageNet, Result), u"90.00"_s);
        QCOMPARE(State.AverageNetPercentage, 0.9F);
    }

    void TheSettingChangesAtOnce()
    {
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        Show(AverageNet);
        Enter({u"$100.00"_s, u"50"_s, u"10,000"_s, u"9000"_s});
        Calculate();
        QCOMPARE(TextOf(AverageNet, Result), u"70.00"_s);
        QCOMPARE(State.AverageNetPercentage, 0.7F);
        QCOMPARE(Texts(AverageNet, Boxes), u"$100.00 | 50 | 10,000 | 9000"_s); // as they were typed
    }

    void FiguresThatLookOddAreAccepted_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("shown");
        QTest::newRow("nothing at all") << QStringList{u"0"_s, u"0"_s, u"0"_s, u"0"_s} << u"0.00"_s;
        QTest::newRow("net without gross") << QStringList{u"0"_s, u"100"_s, u"0"_s, u"100"_s} << u"1000000.00"_s;
        QTest::newRow("more net than gross") << QStringList{u"100"_s, u"110"_s, u"100"_s, u"110"_s} << u"110.00"_s;
    }
    void FiguresThatLookOddAreAccepted()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, shown);
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        Show(AverageNet);
        Enter(texts);
        Calculate();
        QCOMPARE(TextOf(AverageNet, Result), shown);
    }

    void AnAmountBeyondTheRangeChangesNothing()
    {
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        Show(AverageNet);
        Enter({u"100"_s, u"50"_s, u"1e15"_s, u"1"_s});
        Calculate();
        QCOMPARE(desk.TakeMessage(), (Message{UnknownError, Title, Icon::Warning}));
        QCOMPARE(State.AverageNetPercentage, 0.9F);
        QCOMPARE(TextOf(AverageNet, Result), u"90.00"_s);
        QVERIFY(!desk.Ended);
    }

    void EveryWayOfClosingAsks_data()
    {
        QTest::addColumn<int>("way");
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<float>("kept");
        QTest::newRow("exit, yes") << int(ExitButton) << Answer::Yes << 0.85F;
        QTest::newRow("exit, no") << int(ExitButton) << Answer::No << 0.9F;
        QTest::newRow("close box, yes") << int(CloseBox) << Answer::Yes << 0.85F;
        QTest::newRow("close box, no") << int(CloseBox) << Answer::No << 0.9F;
        QTest::newRow("Esc, no") << int(Escape) << Answer::No << 0.9F;
    }
    void EveryWayOfClosingAsks()
    {
        QFETCH(int, way);
        QFETCH(Answer, answer);
        QFETCH(float, kept);
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        CalculateAnew();
        desk.Answers = {answer};
        Leave(way);
        QCOMPARE(desk.TakeMessage(), Question(u" 85"_s)); // with a blank of its own
        QVERIFY(!TheWindows.Loaded(AverageNet));          // whatever the answer
        QCOMPARE(State.AverageNetPercentage, kept);
        QCOMPARE(desk.TakeFiles(), QStringList()); // kept in memory only
    }

    // What is remembered is the percentage of the load, however often the window becomes active since.
    void AnotherWindowInBetweenForgetsNothing_data()
    {
        QTest::addColumn<Answer>("answer");
        QTest::addColumn<float>("kept");
        QTest::newRow("yes") << Answer::Yes << 0.85F;
        QTest::newRow("no") << Answer::No << 0.9F;
    }
    void AnotherWindowInBetweenForgetsNothing()
    {
        QFETCH(Answer, answer);
        QFETCH(float, kept);
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        CalculateAnew();
        Show(u"frmEnvironmentSettings"_s);
        Show(AverageNet);
        QCOMPARE(TextOf(AverageNet, Result), u"85.00"_s);
        desk.Answers = {answer};
        Leave(ExitButton);
        QCOMPARE(desk.TakeMessage(), Question(u" 85"_s));
        QCOMPARE(State.AverageNetPercentage, kept);
    }

    void CalculatingTwiceAsksOnce()
    {
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        CalculateAnew();
        Calculate();
        desk.Answers = {Answer::Yes};
        Leave(ExitButton);
        QCOMPARE(desk.TakeMessage(), Question(u" 85"_s));
    }

    void AnEqualPercentageIsNotAskedAbout_data()
    {
        QTest::addColumn<bool>("calculates");
        QTest::newRow("calculated again by chance") << true;
        QTest::newRow("not calculated") << false;
    }
    void AnEqualPercentageIsNotAskedAbout()
    {
        QFETCH(bool, calculates);
        GuiDesk desk;
        State.AverageNetPercentage = 0.85F;
        if (calculates)
            CalculateAnew();
        else
            Show(AverageNet);
        Leave(CloseBox);
        QVERIFY(!TheWindows.Loaded(AverageNet));
        QCOMPARE(State.AverageNetPercentage, 0.85F);
    }

    void TheNewPercentageIsTheWageCalculators()
    {
        GuiDesk desk;
        State.AverageNetPercentage = 0.9F;
        State.PayFrequency = Biweekly;
        Show(Wages);
        CalculateAnew();
        desk.Answers = {Answer::Yes};
        Leave(ExitButton);
        desk.TakeMessage();
        QCOMPARE(ActiveWindow(), Wages);
        QCOMPARE(TextOf(Wages, Result), u"85.00"_s);
    }

    void TheTutorWaits()
    {
        GuiDesk desk;
        desk.Options[u"show tallymere tutor"_s] = u"5"_s; // the main window leaves the timer as it is
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        timer.start(100000);
        Choose(u"mnuIncomeAverageNetPercentage"_s);
        QCOMPARE(ActiveWindow(), AverageNet);
        QVERIFY(!timer.isActive());
        Leave(ExitButton);
        QVERIFY(timer.isActive());
        timer.stop();
    }
};

REGISTER_TEST(gui_frmAverageNetPercentage)
#include "gui_frmAverageNetPercentage.moc"

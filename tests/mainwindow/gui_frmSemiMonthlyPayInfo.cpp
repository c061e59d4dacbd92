// The question for the two pay days of a semimonthly household.
#include "GuiDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmSemiMonthlyPayInfo"_s;
const QString First = u"txtFirstPayDate"_s;
const QString Second = u"txtSecondPayDate"_s;

void ShowWith(int first, int second)
{
    State.FirstPayDate = qint16(first);
    State.SecondPayDate = qint16(second);
    Show(Window);
}

void VerifyDates(int first, int second)
{
    QCOMPARE(State.FirstPayDate, qint16(first));
    QCOMPARE(State.SecondPayDate, qint16(second));
}

} // namespace

class gui_frmSemiMonthlyPayInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Semimonthly Paydate Information"_s);
        QCOMPARE(TextOf(Window, u"lblSemiPrompt"_s),
                 u"You have chosen the semimonthly payment\noption. Please tell Tallymere the two\n"
                 u"dates you receive your pay checks on."_s);
        QCOMPARE(TextOf(Window, u"lblFirstPayDate"_s), u"First Pay Date"_s);
        QCOMPARE(TextOf(Window, u"lblSecondPayDate"_s), u"Second Pay Date"_s);
        QCOMPARE(TextOf(Window, u"lblEndOfMonth"_s), u"If second pay is end of the month enter 0"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"OK"_s);
    }

    void TheTitleFitsItsBar()
    {
        GuiDesk desk;
        Show(Window);
        Form &window = *TheWindows.Loaded(Window);
        QFont titleFont = window.font();
        titleFont.setBold(true);
        constexpr int buttons = 100; // pixels; icon and buttons of a title bar
        QVERIFY(window.width() >= QFontMetrics(titleFont).horizontalAdvance(window.windowTitle()) + buttons);
        window.resize(1, 1);
        Settle();
        QVERIFY(window.width() >= QFontMetrics(titleFont).horizontalAdvance(window.windowTitle()) + buttons);
    }

    void TheDatesAreShownAndTheFirstIsSelected()
    {
        GuiDesk desk;
        ShowWith(5, 20);
        QCOMPARE(TextOf(Window, First), u"5"_s);
        QCOMPARE(TextOf(Window, Second), u"20"_s);
        QCOMPARE(FocusOf(Window), First);
        QCOMPARE(Find<QLineEdit>(Window, First).selectedText(), u"5"_s);
    }

    void EnterGoesToTheOtherFieldAndSelectsIt()
    {
        GuiDesk desk;
        ShowWith(5, 20);
        PressEnter(Window, First);
        QCOMPARE(FocusOf(Window), Second);
        QCOMPARE(Find<QLineEdit>(Window, Second).selectedText(), u"20"_s);
        PressEnter(Window, Second);
        QCOMPARE(FocusOf(Window), First);
        QCOMPARE(Find<QLineEdit>(Window, First).selectedText(), u"5"_s);
        QVERIFY(IsShown(Window));
    }

    void ValidDatesAreStored_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("storedFirst");
        QTest::addColumn<int>("storedSecond");
        QTest::newRow("two days") << u"1"_s << u"15"_s << 1 << 15;
        QTest::newRow("the month's end") << u"15"_s << u"0"_s << 15 << 0;
        QTest::newRow("the last second date") << u"10"_s << u"28"_s << 10 << 28;
        QTest::newRow("the last first date") << u"27"_s << u"28"_s << 27 << 28;
        QTest::newRow("a first date after the month's end") << u"27"_s << u"0"_s << 27 << 0;
        QTest::newRow("equal dates") << u"15"_s << u"15"_s << 15 << 15;
        QTest::newRow("a first date of 0") << u"0"_s << u"15"_s << 0 << 15;
        QTest::newRow("a half goes to the even day") << u"12.5"_s << u"20"_s << 12 << 20;
        QTest::newRow("the next half goes up") << u"13.5"_s << u"20.5"_s << 14 << 20;
    }
    void ValidDatesAreStored()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(int, storedFirst);
        QFETCH(int, storedSecond);
        GuiDesk desk;
        ShowWith(3, 18);
        Type(Window, First, first);
        Type(Window, Second, second);
        Click(Window, u"cmdOK"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        VerifyDates(storedFirst, storedSecond);
    }

    void OtherDatesAreRefused_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        const auto row = [](const char *first, const char *second, const char *message, const QString &focus) {
            QTest::addRow("\"%s\" and \"%s\"", first, second)
                << QString::fromLatin1(first) << QString::fromLatin1(second) << QString::fromLatin1(message) << focus;
        };
        row("abc", "15", "First Pay Date does not contain a valid numeric amount", First);
        row("", "", "First Pay Date does not contain a valid numeric amount", First);
        row("10", "abc", "Second Pay Date does not contain a valid numeric amount", Second);
        row("28", "", "Second Pay Date does not contain a valid numeric amount", Second);
        row("28", "0", "Dates are out of acceptable range", First);
        row("28", "28", "Dates are out of acceptable range", First);
        row("-1", "15", "Dates are out of acceptable range", First);
        row("10", "29", "Dates are out of acceptable range", First);
        row("10", "-1", "Dates are out of acceptable range", First);
        row("99999", "15", "Dates are out of acceptable range", First);
        row("20", "10",
            "First Pay Date cannot be greater than Second Pay Date unless you get paid at the end of the month", First);
    }
    void OtherDatesAreRefused()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        GuiDesk desk;
        ShowWith(3, 18);
        Type(Window, First, first);
        Type(Window, Second, second);
        Click(Window, u"cmdOK"_s);
        QCOMPARE(desk.TakeMessage(), (Message{message, u"Semimonthly Paydate Information"_s, Icon::Warning}));
        QVERIFY(IsShown(Window));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(Find<QLineEdit>(Window, focus).selectedText(), TextOf(Window, focus));
        VerifyDates(3, 18);
    }

    void TheCloseBoxKeepsTheOldDates_data()
    {
        QTest::addColumn<QString>("first");
        QTest::newRow("with other dates") << u"5"_s;
        QTest::newRow("with no dates") << u"abc"_s;
    }
    void TheCloseBoxKeepsTheOldDates()
    {
        QFETCH(QString, first);
        GuiDesk desk;
        ShowWith(3, 18);
        Type(Window, First, first);
        CloseByFrame(Window);
        QVERIFY(!TheWindows.Loaded(Window));
        VerifyDates(3, 18);
    }

    void TheTutorIsLeftAlone()
    {
        GuiDesk desk;
        desk.StartProgram();
        auto &timer = Find<QTimer>(u"frmMain"_s, u"tmrAutoTutor"_s);
        timer.start();
        Show(Window);
        QVERIFY(timer.isActive());
    }
};

REGISTER_TEST(gui_frmSemiMonthlyPayInfo)
#include "gui_frmSemiMonthlyPayInfo.moc"

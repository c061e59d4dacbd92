// The question whether a monthly paycheck comes at the month's end.
#include "GuiDesk.h"
#include "TestProgram.h"

#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmMonthlyPaymentOption"_s;
const QString Yes = u"optYesNo0"_s;
const QString No = u"optYesNo1"_s;

void ShowWith(int monthEndPay)
{
    State.MonthEndPay = qint16(monthEndPay);
    Show(Window);
}

bool IsSelected(const QString &option)
{
    return Find<QRadioButton>(Window, option).isChecked();
}

} // namespace

class gui_frmMonthlyPaymentOption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheWordsAreTheDesigns()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Monthly Payment Option"_s);
        QCOMPARE(TextOf(Window, u"lblMonthlyPrompt"_s), u"\nDo you get paid at the end of the month?\n"_s);
        QCOMPARE(TextOf(Window, Yes), u"Yes"_s);
        QCOMPARE(TextOf(Window, No), u"No"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"OK"_s);
    }

    void TheLoadSelectsTheSetting_data()
    {
        QTest::addColumn<int>("monthEndPay");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<bool>("no");
        QTest::addColumn<QString>("focus");
        QTest::newRow("yes") << -1 << true << false << Yes;
        QTest::newRow("no") << 0 << false << true << No;
        QTest::newRow("another value selects neither") << 1 << false << false << Yes;
    }
    void TheLoadSelectsTheSetting()
    {
        QFETCH(int, monthEndPay);
        QFETCH(bool, yes);
        QFETCH(bool, no);
        QFETCH(QString, focus);
        GuiDesk desk;
        ShowWith(monthEndPay);
        QCOMPARE(IsSelected(Yes), yes);
        QCOMPARE(IsSelected(No), no);
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(State.MonthEndPay, qint16(monthEndPay));
        Click(Window, u"cmdOK"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.MonthEndPay, qint16(monthEndPay));
    }

    void AChoiceTakesEffectAtOnce_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("after");
        QTest::newRow("yes") << 0 << Yes << -1;
        QTest::newRow("no") << -1 << No << 0;
        QTest::newRow("yes, from another value") << 1 << Yes << -1;
        QTest::newRow("no, from another value") << 1 << No << 0;
    }
    void AChoiceTakesEffectAtOnce()
    {
        QFETCH(int, before);
        QFETCH(QString, option);
        QFETCH(int, after);
        GuiDesk desk;
        ShowWith(before);
        Click(Window, option);
        QCOMPARE(State.MonthEndPay, qint16(after));
        QVERIFY(IsShown(Window));
        CloseByFrame(Window); // nothing is taken back
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.MonthEndPay, qint16(after));
    }

    void TheArrowKeysChoose()
    {
        GuiDesk desk;
        ShowWith(-1);
        QTest::keyClick(&Find(Window, Yes), Qt::Key_Down);
        QCOMPARE(State.MonthEndPay, qint16(0));
        QVERIFY(IsSelected(No));
        QVERIFY(!IsSelected(Yes));
        QCOMPARE(FocusOf(Window), No);
    }

    void EnterOnAnOptionAnswers_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("option");
        QTest::addColumn<int>("monthEndPay");
        QTest::newRow("Enter on yes") << int(Qt::Key_Return) << Yes << -1;
        QTest::newRow("Enter on no") << int(Qt::Key_Return) << No << 0;
        QTest::newRow("the keypad's") << int(Qt::Key_Enter) << No << 0;
        QTest::newRow("where nothing is chosen") << int(Qt::Key_Return) << Yes << 1;
    }
    void EnterOnAnOptionAnswers()
    {
        QFETCH(int, key);
        QFETCH(QString, option);
        QFETCH(int, monthEndPay);
        GuiDesk desk;
        ShowWith(monthEndPay);
        QCOMPARE(FocusOf(Window), option);
        QTest::keyClick(&Find(Window, option), Qt::Key(key));
        Settle();
        QVERIFY(!TheWindows.Loaded(Window));
        QCOMPARE(State.MonthEndPay, qint16(monthEndPay));
    }

    void OtherKeysOnAnOptionDoNotAnswer()
    {
        GuiDesk desk;
        ShowWith(-1);
        QTest::keyClick(&Find(Window, Yes), Qt::Key_A);
        Settle();
        QVERIFY(IsShown(Window));
    }
};

REGISTER_TEST(gui_frmMonthlyPaymentOption)
#include "gui_frmMonthlyPaymentOption.moc"

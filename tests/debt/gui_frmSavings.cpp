// The savings calculator: what it opens with, where it starts, its ring, every refusal, the sentence.
#include "CalculatorDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmSavings"_s;
const QString Deposits = u"txtMonthlyDeposits"_s;
const QString Rate = u"txtAnnualPercentageRate"_s;
const QString Count = u"txtNumberOfMonthlyDeposits"_s;
const QString Current = u"txtCurrentSavingsAmount"_s;
const QStringList Fields{Deposits, Rate, Count, Current};
const QString Result = u"lblFutureValue"_s;
const QString Calculate = u"cmdCalculate"_s;

const QString TenYears = u"With an APR of 6% and a current savings value of $1,000.00 your savings will be worth "
                         u"$18,207.33 after 120 monthly deposits of $100.00"_s;

void CalculateTenYears()
{
    Show(Window);
    Click(Window, End);
    TypeAll(Window, Fields, {u"100"_s, u"6"_s, u"120"_s, u"1000"_s});
    Click(Window, Calculate);
}

} // namespace

class gui_frmSavings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensWithNothingCalculated()
    {
        GuiDesk desk;
        Debt.LoanPaymentDue = 0;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Savings"_s);
        QCOMPARE(Texts(Window, Fields), u"$0.00 | 0.00 | 0 | $0.00"_s);
        QCOMPARE(TextOf(Window, Result), QString());
        QCOMPARE(Debt.LoanPaymentDue, qint16(1));
        QCOMPARE(DueShown(Window), 1);
        QCOMPARE(FocusOf(Window), Deposits);
        QCOMPARE(SelectedText(Window, Deposits), u"$0.00"_s);
    }

    void EachReturnStartsAtTheDeposits()
    {
        GuiDesk desk;
        Show(Window);
        Type(Window, Current, u"1000"_s);
        LeaveAndComeBack(Window);
        QCOMPARE(FocusOf(Window), Deposits);
        QCOMPARE(TextOf(Window, Current), u"1000"_s);
    }

    void CaptionsAndOrder()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(BuddyText(Window, Deposits), u"Monthly Deposits"_s);
        QCOMPARE(BuddyText(Window, Rate), u"Annual Percentage Rate (APR)"_s);
        QCOMPARE(BuddyText(Window, Count), u"Number of Monthly Deposits"_s);
        QCOMPARE(BuddyText(Window, Current), u"Current Savings Amount"_s);
        QCOMPARE(TextOf(Window, u"lblPercent"_s), u"%"_s);
        QCOMPARE(TextOf(Window, u"fraPaymentDue"_s), u"Payment Due"_s);
        QCOMPARE(TextOf(Window, Beginning), u"Beginning of Pay Period"_s);
        QCOMPARE(TextOf(Window, End), u"End of Pay Period"_s);
        QCOMPARE(TextOf(Window, Calculate), u"&Calculate"_s);
        QCOMPARE(TabOrder(Window), Fields + QStringList({Beginning, Calculate, u"cmdExit"_s}));
    }

    void EnterGoesRound()
    {
        GuiDesk desk;
        Show(Window);
        WalkTheRing(Window, Fields);
    }

    void WhatIsNoNumberIsRefused_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        const QString deposits = u"Monthly Deposits does not contain a valid currency amount"_s;
        const QString rate = u"Annual Percentage Rate does not contain a valid numeric amount"_s;
        const QString count = u"Number of Monthly Deposits does not contain a valid numeric amount"_s;
        const QString current = u"Current Savings Amount does not contain a valid date"_s; // so it is worded
        QTest::newRow("text as deposit") << QStringList{u"x"_s, u"1"_s, u"1"_s, u"1"_s} << deposits << Deposits;
        QTest::newRow("no deposit") << QStringList{QString(), u"1"_s, u"1"_s, u"1"_s} << deposits << Deposits;
        QTest::newRow("text as rate") << QStringList{u"1"_s, u"6%"_s, u"1"_s, u"1"_s} << rate << Rate;
        QTest::newRow("no rate") << QStringList{u"1"_s, QString(), u"1"_s, u"1"_s} << rate << Rate;
        QTest::newRow("a date as count") << QStringList{u"1"_s, u"1"_s, u"1/2/2004"_s, u"1"_s} << count << Count;
        QTest::newRow("no count") << QStringList{u"1"_s, u"1"_s, QString(), u"1"_s} << count << Count;
        QTest::newRow("a date as current amount")
            << QStringList{u"1"_s, u"1"_s, u"1"_s, u"1/2/2004"_s} << current << Current;
        QTest::newRow("no current amount") << QStringList{u"1"_s, u"1"_s, u"1"_s, QString()} << current << Current;
        QTest::newRow("the deposits are tested first")
            << QStringList{u"x"_s, u"x"_s, u"x"_s, u"x"_s} << deposits << Deposits;
        QTest::newRow("then the rate") << QStringList{u"1"_s, u"x"_s, u"x"_s, u"x"_s} << rate << Rate;
        QTest::newRow("then the count") << QStringList{u"1"_s, u"1"_s, u"x"_s, u"x"_s} << count << Count;
    }
    void WhatIsNoNumberIsRefused()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        GuiDesk desk;
        CalculateTenYears();
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Savings"_s, message));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(TextOf(Window, Result), TenYears);
        QCOMPARE(Debt.LoanAnnualRate, 6.0F);
        QCOMPARE(Debt.SavingsFutureValue.TenThousandths(), 182073314);
    }

    void TheFutureIsTold()
    {
        GuiDesk desk;
        CalculateTenYears();
        QCOMPARE(TextOf(Window, Result), TenYears);
        Click(Window, Beginning); // each deposit earns a month more
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).contains(u" $18,289.27 "_s));
    }

    void WhatItOpensWithIsASentence()
    {
        GuiDesk desk;
        Show(Window);
        Click(Window, Calculate);
        QCOMPARE(TextOf(Window, Result),
                 u"With an APR of 0.00% and a current savings value of $0.00 your savings will be "
                 u"worth $0.00 after 0 monthly deposits of $0.00"_s);
    }

    void AnyCountWillDo_data()
    {
        QTest::addColumn<QString>("count");
        QTest::addColumn<QString>("worth");
        QTest::newRow("none") << u"0"_s << u"$1,000.00 after 0 "_s;
        QTest::newRow("one") << u"1"_s << u"$1,105.00 after 1 "_s;
        QTest::newRow("fewer than none") << u"-1"_s << u"$895.52 after -1 "_s;
        QTest::newRow("two and a half are two") << u"2.5"_s << u"$1,210.53 after 2.5 "_s;
    }
    void AnyCountWillDo()
    {
        QFETCH(QString, count);
        QFETCH(QString, worth);
        GuiDesk desk;
        CalculateTenYears();
        Type(Window, Count, count);
        Click(Window, Calculate);
        QVERIFY2(TextOf(Window, Result).contains(worth), qPrintable(TextOf(Window, Result)));
    }

    void WhatCannotBeCalculatedIsTold_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1"_s, u"6"_s, u"70000"_s, u"0"_s};
        QTest::newRow("a future beyond all bounds") << QStringList{u"1"_s, u"1000"_s, u"500"_s, u"0"_s};
        QTest::newRow("a deposit beyond all bounds") << QStringList{u"1e20"_s, u"6"_s, u"1"_s, u"0"_s};
    }
    void WhatCannotBeCalculatedIsTold()
    {
        QFETCH(QStringList, texts);
        GuiDesk desk;
        CalculateTenYears();
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Savings"_s, UnknownErrorText));
        QCOMPARE(FocusOf(Window), Calculate);
        QCOMPARE(TextOf(Window, Result), TenYears);
        QCOMPARE(Debt.SavingsFutureValue.TenThousandths(), 182073314);
    }

    void OptionsAndSharedValueAgree()
    {
        GuiDesk desk;
        Show(Window);
        SeeThatOptionsAndSharedValueAgree(Window);
    }

    void AChangeFromElsewhereIsTold()
    {
        GuiDesk desk;
        CalculateTenYears();
        SeeThatAChangeFromElsewhereIsTold(Window, Result, Count);
        QVERIFY(desk.TakeMessage().Text.contains(u" does not contain a valid numeric amount"_s));
        QCOMPARE(desk.TakeMessage().Text, UnknownErrorText);
    }

    void TheResultIsReadAloud()
    {
        GuiDesk desk;
        CalculateTenYears();
        QCOMPARE(NameSpoken(Window, Result), TenYears);
    }

    void ExitEndsIt()
    {
        GuiDesk desk;
        CalculateTenYears();
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window);
        QCOMPARE(TextOf(Window, Result), QString());
        QCOMPARE(Texts(Window, Fields), u"$0.00 | 0.00 | 0 | $0.00"_s);
        QCOMPARE(Debt.LoanPaymentDue, qint16(1));
    }

    void TheMenuOpensIt()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFinanceSavings"_s);
        QCOMPARE(ActiveWindow(), Window);
    }
};

REGISTER_TEST(gui_frmSavings)
#include "gui_frmSavings.moc"

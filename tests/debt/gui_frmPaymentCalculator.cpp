// The loan payment calculator: what it opens with, its ring, every refusal, the sentence, the way to the table.
#include "CalculatorDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmPaymentCalculator"_s;
const QString Amount = u"txtBorrowedAmount"_s;
const QString Rate = u"txtAnnualPercentageRate"_s;
const QString Count = u"txtNumberOfMonthlyPayments"_s;
const QStringList Fields{Amount, Rate, Count};
const QString Result = u"lblMonthlyPayment"_s;
const QString Calculate = u"cmdCalculate"_s;
const QString Table = u"cmdAmortizationTable"_s;

const QString Mortgage =
    u"With an APR of 6% and a borrowed amount of $200,000.00 your monthly payment will be $1,199.10 for 360 months"_s;

/// The window with the mortgage calculated.
void CalculateTheMortgage()
{
    Show(Window);
    Click(Window, End);
    TypeAll(Window, Fields, {u"200000"_s, u"6"_s, u"360"_s});
    Click(Window, Calculate);
}

} // namespace

class gui_frmPaymentCalculator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensWithNothingCalculated()
    {
        GuiDesk desk;
        Debt.LoanPaymentDue = 0;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Loan Payment Calculator"_s);
        QCOMPARE(Texts(Window, Fields), u"$0.00 | 0.00 | 0"_s);
        QCOMPARE(TextOf(Window, Result), QString());
        QVERIFY(!IsEnabled(Window, Table));
        QVERIFY(IsEnabled(Window, Calculate));
        QCOMPARE(Debt.LoanPaymentDue, qint16(1));
        QCOMPARE(DueShown(Window), 1);
        QCOMPARE(FocusOf(Window), Amount);
        QCOMPARE(SelectedText(Window, Amount), u"$0.00"_s);
    }

    void CaptionsAndOrder()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(BuddyText(Window, Amount), u"Borrowed Amount"_s);
        QCOMPARE(BuddyText(Window, Rate), u"Annual Percentage Rate (APR)"_s);
        QCOMPARE(BuddyText(Window, Count), u"Number of Monthly Payments"_s);
        QCOMPARE(TextOf(Window, u"lblPercent"_s), u"%"_s);
        QCOMPARE(TextOf(Window, u"fraPaymentDue"_s), u"Payment Due"_s);
        QCOMPARE(TextOf(Window, Beginning), u"Beginning of Pay Period"_s);
        QCOMPARE(TextOf(Window, End), u"End of Pay Period"_s);
        QCOMPARE(TextOf(Window, Calculate), u"&Calculate"_s);
        QCOMPARE(TextOf(Window, Table), u"Click Here for &Amortization Table"_s);
        QCOMPARE(TabOrder(Window), (QStringList{Amount, Rate, Count, Beginning, Calculate, Table,
                                                u"cmdExit"_s})); // of the two the set one
        for (const QString &field : Fields)
            QVERIFY(Find<QLineEdit>(Window, field).alignment() & Qt::AlignRight);
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
        const QString amount = u"Borrowed Amount does not contain a valid currency amount"_s;
        const QString rate = u"Annual Percentage Rate does not contain a valid numeric amount"_s;
        const QString count = u"Number of Monthly Payments does not contain a valid numeric amount"_s;
        QTest::newRow("text as amount") << QStringList{u"x"_s, u"6"_s, u"360"_s} << amount << Amount;
        QTest::newRow("no amount") << QStringList{QString(), u"6"_s, u"360"_s} << amount << Amount;
        QTest::newRow("text as rate") << QStringList{u"1"_s, u"6%"_s, u"360"_s} << rate << Rate;
        QTest::newRow("no rate") << QStringList{u"1"_s, QString(), u"360"_s} << rate << Rate;
        QTest::newRow("text as count") << QStringList{u"1"_s, u"6"_s, u"many"_s} << count << Count;
        QTest::newRow("no count") << QStringList{u"1"_s, u"6"_s, QString()} << count << Count;
        QTest::newRow("the amount is tested first") << QStringList{u"x"_s, u"y"_s, u"z"_s} << amount << Amount;
        QTest::newRow("then the rate") << QStringList{u"1"_s, u"y"_s, u"z"_s} << rate << Rate;
    }
    void WhatIsNoNumberIsRefused()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        GuiDesk desk;
        CalculateTheMortgage();
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Loan Payments"_s, message));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(SelectedText(Window, focus), TextOf(Window, focus));
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QCOMPARE(Debt.LoanAnnualRate, 6.0F);
        QCOMPARE(Debt.LoanPaymentCount, qint16(360));
        QCOMPARE(Debt.LoanMonthlyPayment.TenThousandths(), 11991011);
        QVERIFY(IsEnabled(Window, Table));
    }

    void ThePaymentIsToldAndTheTableOffered()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QVERIFY(IsEnabled(Window, Table));
        QCOMPARE(Texts(Window, Fields), u"200000 | 6 | 360"_s); // as they were typed
    }

    void WhatIsDueAtTheBeginningIsLess()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        Click(Window, Beginning);
        QCOMPARE(TextOf(Window, Result), Mortgage); // until it is calculated again
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).contains(u" $1,193.14 "_s));
    }

    void ACountBelowOneDoesNothing_data()
    {
        QTest::addColumn<QString>("count");
        QTest::newRow("zero, as the window opens") << u"0"_s;
        QTest::newRow("negative") << u"-1"_s;
        QTest::newRow("a half") << u"0.5"_s;
    }
    void ACountBelowOneDoesNothing()
    {
        QFETCH(QString, count);
        GuiDesk desk;
        Show(Window);
        TypeAll(Window, Fields, {u"1000"_s, u"6"_s, count});
        Click(Window, Calculate);
        QCOMPARE(TextOf(Window, Result), QString());
        QVERIFY(!IsEnabled(Window, Table));

        CalculateTheMortgage();
        Type(Window, Count, count);
        Click(Window, Calculate);
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QVERIFY(IsEnabled(Window, Table));
    }

    void ACountAndAHalfIsRounded()
    {
        GuiDesk desk;
        Show(Window);
        TypeAll(Window, Fields, {u"1200"_s, u"0"_s, u"2.5"_s});
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).endsWith(u" $600.00 for 2.5 months"_s));
    }

    void WhatCannotBeCalculatedIsTold_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1"_s, u"6"_s, u"70000"_s};
        QTest::newRow("a rate beyond all bounds") << QStringList{u"1"_s, u"1e30"_s, u"360"_s};
        QTest::newRow("an amount beyond all bounds") << QStringList{u"1e20"_s, u"6"_s, u"360"_s};
    }
    void WhatCannotBeCalculatedIsTold()
    {
        QFETCH(QStringList, texts);
        GuiDesk desk;
        CalculateTheMortgage();
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Loan Payments"_s, UnknownErrorText));
        QCOMPARE(FocusOf(Window), Calculate); // where the click left it
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QVERIFY(IsEnabled(Window, Table)); // for the loan that is stored
        QCOMPARE(Debt.LoanMonthlyPayment.TenThousandths(), 11991011);
    }

    void OptionsAndSharedValueAgree()
    {
        GuiDesk desk;
        Show(Window);
        SeeThatOptionsAndSharedValueAgree(Window);
    }

    void WhatIsShownIsWhatIsComputed()
    {
        GuiDesk desk;
        CalculateTheMortgage(); // due at the end
        Show(u"frmSavings"_s);  // whose load sets the beginning for all
        Show(Window);
        QCOMPARE(DueShown(Window), 1);
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).contains(u" $1,193.14 "_s));
    }

    void TheTableIsAskedForItsMonth()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        Click(Window, Table);
        QCOMPARE(ActiveWindow(), u"frmSelectMonth"_s);
        QVERIFY(IsShown(Window));
        Click(Window, Calculate); // it is not modal
        QCOMPARE(TextOf(Window, Result), Mortgage);
    }

    void AChangeFromElsewhereIsTold()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        SeeThatAChangeFromElsewhereIsTold(Window, Result, Count);
        QVERIFY(desk.TakeMessage().Text.contains(u" does not contain a valid numeric amount"_s));
        QCOMPARE(desk.TakeMessage().Text, UnknownErrorText);
    }

    void TheResultIsReadAloud()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        QCOMPARE(NameSpoken(Window, Result), Mortgage);
    }

    void ExitEndsIt()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window); // afresh
        QCOMPARE(TextOf(Window, Result), QString());
        QCOMPARE(Texts(Window, Fields), u"$0.00 | 0.00 | 0"_s);
        QVERIFY(!IsEnabled(Window, Table));
        QCOMPARE(Debt.LoanPaymentDue, qint16(1));
        QCOMPARE(Debt.LoanMonthlyPayment.TenThousandths(), 11991011); // the loan outlives its window
        QTest::keyClick(&Find(Window, Amount), Qt::Key_Escape);
        Settle();
        QVERIFY(!IsShown(Window));
    }

    void TheMenuOpensIt()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFinanceLoansPayments"_s);
        QCOMPARE(ActiveWindow(), Window);
    }
};

REGISTER_TEST(gui_frmPaymentCalculator)
#include "gui_frmPaymentCalculator.moc"

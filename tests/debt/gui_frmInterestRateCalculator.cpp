// The interest rate calculator: what it opens with and keeps, its ring, every refusal, the sentence, and what it leaves
// for the other calculators.
#include "CalculatorDesk.h"
#include "TestProgram.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmInterestRateCalculator"_s;
const QString Amount = u"txtBorrowedAmount"_s;
const QString Payment = u"txtMonthlyPayments"_s;
const QString Count = u"txtNumberOfMonthlyPayments"_s;
const QStringList Fields{Amount, Payment, Count};
const QString Result = u"lblInterestRate"_s;
const QString Calculate = u"cmdCalculate"_s;

const QString Mortgage =
    u"With a borrowed amount of $200,000.00 and monthly payments of $1,199.10 for 360 months your interest rate is 6.00%"_s;

void CalculateTheMortgage()
{
    Show(Window);
    TypeAll(Window, Fields, {u"200000"_s, u"1199.10"_s, u"360"_s});
    Click(Window, Calculate);
}

} // namespace

class gui_frmInterestRateCalculator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItOpensWithNothingCalculated()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(TheWindows.Loaded(Window)->windowTitle(), u"Loan Interest Rate Calculator"_s);
        QCOMPARE(Texts(Window, Fields), u"$0.00 | $0.00 | 0"_s);
        QCOMPARE(TextOf(Window, Result), QString());
        QCOMPARE(FocusOf(Window), Amount);
        QCOMPARE(SelectedText(Window, Amount), u"$0.00"_s);
    }

    void ItKeepsWhenPaymentsAreDue_data()
    {
        QTest::addColumn<int>("due");
        QTest::newRow("the end, as at the start of the program") << 0;
        QTest::newRow("the beginning, as another calculator left it") << 1;
    }
    void ItKeepsWhenPaymentsAreDue()
    {
        QFETCH(int, due);
        GuiDesk desk;
        QCOMPARE(Debt.LoanPaymentDue, qint16(0));
        Debt.LoanPaymentDue = qint16(due);
        Show(Window);
        QCOMPARE(Debt.LoanPaymentDue, qint16(due));
        QCOMPARE(DueShown(Window), due);
    }

    void CaptionsAndOrder()
    {
        GuiDesk desk;
        Show(Window);
        QCOMPARE(BuddyText(Window, Amount), u"Borrowed Amount"_s);
        QCOMPARE(BuddyText(Window, Payment), u"Monthly Payments"_s);
        QCOMPARE(BuddyText(Window, Count), u"Number of Monthly Payments"_s);
        QCOMPARE(TextOf(Window, u"fraPaymentDue"_s), u"Payment Due"_s);
        QCOMPARE(TextOf(Window, Beginning), u"Beginning of Pay Period"_s);
        QCOMPARE(TextOf(Window, End), u"End of Pay Period"_s);
        QCOMPARE(TextOf(Window, Calculate), u"&Calculate"_s);
        QCOMPARE(TabOrder(Window), (QStringList{Amount, Payment, Count, End, Calculate, u"cmdExit"_s}));
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
        const QString payment = u"Monthly Payments does not contain a valid currency amount"_s;
        const QString count = u"Number of Monthly Payments does not contain a valid numeric amount"_s;
        QTest::newRow("text as amount") << QStringList{u"x"_s, u"6"_s, u"360"_s} << amount << Amount;
        QTest::newRow("no amount") << QStringList{QString(), u"6"_s, u"360"_s} << amount << Amount;
        QTest::newRow("text as payment") << QStringList{u"1"_s, u"much"_s, u"360"_s} << payment << Payment;
        QTest::newRow("no payment") << QStringList{u"1"_s, QString(), u"360"_s} << payment << Payment;
        QTest::newRow("text as count") << QStringList{u"1"_s, u"6"_s, u"many"_s} << count << Count;
        QTest::newRow("no count") << QStringList{u"1"_s, u"6"_s, QString()} << count << Count;
        QTest::newRow("the amount is tested first") << QStringList{u"x"_s, u"y"_s, u"z"_s} << amount << Amount;
        QTest::newRow("then the payment") << QStringList{u"1"_s, u"y"_s, u"z"_s} << payment << Payment;
    }
    void WhatIsNoNumberIsRefused()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        GuiDesk desk;
        CalculateTheMortgage();
        const float rate = Debt.LoanAnnualRate;
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Loan Interest Rates"_s, message));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QCOMPARE(Debt.LoanAnnualRate, rate);
        QCOMPARE(Debt.LoanMonthlyPayment.TenThousandths(), 11991000);
    }

    void TheRateIsTold()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        QCOMPARE(TextOf(Window, Result), Mortgage);
        Click(Window, Beginning); // the same payments, a month earlier, are worth more
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).endsWith(u" your interest rate is 6.05%"_s));
    }

    void PaymentsThatComeToTheAmountHaveNoRate()
    {
        GuiDesk desk;
        Show(Window);
        TypeAll(Window, Fields, {u"1200"_s, u"100"_s, u"12"_s});
        Click(Window, Calculate);
        QVERIFY(TextOf(Window, Result).endsWith(u" your interest rate is 0.00%"_s));
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
        TypeAll(Window, Fields, {u"1000"_s, u"100"_s, count});
        Click(Window, Calculate);
        QCOMPARE(TextOf(Window, Result), QString());

        CalculateTheMortgage();
        Type(Window, Count, count);
        Click(Window, Calculate);
        QCOMPARE(TextOf(Window, Result), Mortgage);
    }

    void WhatCannotBeCalculatedIsToldUnderAnotherTitle_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("no rate is found") << QStringList{u"0"_s, u"100"_s, u"12"_s};
        QTest::newRow("a count beyond 16 bits") << QStringList{u"1"_s, u"6"_s, u"70000"_s};
        QTest::newRow("an amount beyond all bounds") << QStringList{u"1e20"_s, u"6"_s, u"360"_s};
        QTest::newRow("a payment beyond all bounds") << QStringList{u"1"_s, u"1e20"_s, u"360"_s};
    }
    void WhatCannotBeCalculatedIsToldUnderAnotherTitle()
    {
        QFETCH(QStringList, texts);
        GuiDesk desk;
        CalculateTheMortgage();
        const float rate = Debt.LoanAnnualRate;
        TypeAll(Window, Fields, texts);
        Click(Window, Calculate);
        QCOMPARE(desk.TakeMessage(), Warning(u"Interest Rates"_s, UnknownErrorText));
        QCOMPARE(FocusOf(Window), Calculate);
        QCOMPARE(TextOf(Window, Result), Mortgage);
        QCOMPARE(Debt.LoanAnnualRate, rate);
    }

    void OptionsAndSharedValueAgree()
    {
        GuiDesk desk;
        Show(Window);
        SeeThatOptionsAndSharedValueAgree(Window);
    }

    void TheTableOfTheOtherCalculatorRunsOnTheFraction()
    {
        GuiDesk desk;
        Show(u"frmPaymentCalculator"_s);
        TypeAll(u"frmPaymentCalculator"_s, {Amount, u"txtAnnualPercentageRate"_s, Count}, {u"9000"_s, u"9"_s, u"9"_s});
        Click(u"frmPaymentCalculator"_s, Calculate);
        Show(Window);
        Click(Window, End);
        TypeAll(Window, Fields, {u"1000"_s, u"256.2811"_s, u"4"_s});
        Click(Window, Calculate);
        Show(u"frmPaymentCalculator"_s);
        Click(u"frmPaymentCalculator"_s, u"cmdAmortizationTable"_s);
        Click(u"frmSelectMonth"_s, u"cmdOK"_s);
        desk.TakeHourglass();
        // A split at 0.12 per cent a year, where 12 per cent was found.
        QCOMPARE(GridRows(u"frmAmortization"_s, u"grdAmortization"_s).value(1), u"1 | $256.28 | $249.96 | $6.32"_s);
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

    void WhatItOpensWithIsNoChange()
    {
        GuiDesk desk;
        Debt.LoanPaymentDue = 1;
        Show(Window);
        QCOMPARE(DueShown(Window), 1);
        QCOMPARE(DueLine(Window), QString());
    }

    void ExitEndsIt()
    {
        GuiDesk desk;
        CalculateTheMortgage();
        Click(Window, Beginning);
        Click(Window, u"cmdExit"_s);
        QVERIFY(!TheWindows.Loaded(Window));
        Show(Window);
        QCOMPARE(TextOf(Window, Result), QString());
        QCOMPARE(Texts(Window, Fields), u"$0.00 | $0.00 | 0"_s);
        QCOMPARE(DueShown(Window), 1); // kept
    }

    void TheMenuOpensIt()
    {
        GuiDesk desk;
        desk.StartProgram();
        Choose(u"mnuFinanceLoansInterestRates"_s);
        QCOMPARE(ActiveWindow(), Window);
    }
};

REGISTER_TEST(gui_frmInterestRateCalculator)
#include "gui_frmInterestRateCalculator.moc"

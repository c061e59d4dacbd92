// The figures of one creditor of the pay off plan after the other.
#include "Conversation.h"
#include "GuiDesk.h"
#include "TestProgram.h"

#include "debt/PayOffPlan.h"
#include "platform/values/Locale.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Window = u"frmCreditorInfo"_s;

void NameCreditors(const QStringList &names)
{
    RedimPayOffCreditors(QString::number(names.size()));
    for (int i = 1; i <= names.size(); ++i)
        Debt.PayOffCreditorNames(i) = names[i - 1];
}

QStringList Boxes()
{
    QStringList texts{TheWindows.Loaded(Window)->windowTitle()};
    for (const QString &box :
         {u"txtCreditor"_s, u"txtBalanceOwed"_s, u"txtAnnualPercentageRate"_s, u"txtMonthlyPayment"_s, u"txtDueDate"_s})
        texts += TextOf(Window, box);
    return texts;
}

} // namespace

class gui_frmCreditorInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItsDesign()
    {
        GuiDesk desk;
        QCOMPARE(TheWindows.Touch(Window).windowTitle(), u"Creditor Information for Payoff"_s);
        QCOMPARE(TextOf(Window, u"lblCreditor"_s), u"Creditor"_s);
        QCOMPARE(TextOf(Window, u"lblBalanceOwed"_s), u"Balance Owed"_s);
        QCOMPARE(TextOf(Window, u"lblAnnualPercentageRate"_s), u"Annual Percentage Rate"_s);
        QCOMPARE(TextOf(Window, u"lblPercent"_s), u"%"_s);
        QCOMPARE(TextOf(Window, u"lblMonthlyPayment"_s), u"Monthly Payment"_s);
        QCOMPARE(TextOf(Window, u"lblDueDate"_s), u"Due Date"_s);
        QCOMPARE(TextOf(Window, u"cmdOK"_s), u"&OK"_s);
        const auto &creditor = Find<QLineEdit>(Window, u"txtCreditor"_s);
        QVERIFY(creditor.isReadOnly());
        QCOMPARE(creditor.palette().color(QPalette::Base), QColor(Qt::transparent)); // a shown value
        QCOMPARE(creditor.focusPolicy(), Qt::ClickFocus);                            // the tab key passes it by
        for (const QString &box :
             {u"txtBalanceOwed"_s, u"txtAnnualPercentageRate"_s, u"txtMonthlyPayment"_s, u"txtDueDate"_s}) {
            QVERIFY(!Find<QLineEdit>(Window, box).isReadOnly());
            QVERIFY(!Find(Window, box).accessibleDescription().isEmpty());
        }
    }

    void ItStartsWithTheFirstCreditor()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s});
        Debt.LoopIndex = 2;
        Show(Window);
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QCOMPARE(Boxes(), (QStringList{u"Pay Off Information For Card"_s, u"Card"_s, u"$0.00"_s, u"0.00"_s, u"$0.00"_s,
                                       u"1/5/2004"_s}));
        QCOMPARE(FocusOf(Window), u"txtBalanceOwed"_s);
        QCOMPARE(Find<QLineEdit>(Window, u"txtBalanceOwed"_s).selectedText(), u"$0.00"_s);
    }

    void TheNextCreditorsDateHasTwoDigits()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s});
        Show(Window);
        EnterFigures(u"$1,000.00"_s, u"12"_s, u"10.01"_s, u"May 24, 2004"_s);
        QCOMPARE(Debt.LoopIndex, qint16(2));
        QCOMPARE(
            Find(Window, u"txtCreditor"_s).toolTip(),
            u"Store\nCreditor 2 of 2. Going to another window of the program and coming back starts again with the "
            "first."_s);
        QCOMPARE(Boxes(), (QStringList{u"Pay Off Information For Store"_s, u"Store"_s, u"$0.00"_s, u"0.00"_s,
                                       u"$0.00"_s, u"1/5/04"_s}));
        QCOMPARE(FocusOf(Window), u"cmdOK"_s); // not moved
        QCOMPARE(Debt.PayOffCreditorNames(1), u"Card"_s);
        QCOMPARE(Debt.PayOffBalances(1).TenThousandths(), 10000000);
        QCOMPARE(Debt.PayOffMonthlyRates(1), 0.01F);
        QCOMPARE(Debt.PayOffMonthlyAmounts(1).TenThousandths(), 100100);
        QCOMPARE(Debt.PayOffDueDates(1), QDate(2004, 5, 24));
        QCOMPARE(Debt.LoanAnnualRate, 12.0F); // shared with the loan windows
        QVERIFY(!TheWindows.Loaded(u"frmPayOff"_s));
    }

    void ALongNameCanBeReadAsAWhole()
    {
        GuiDesk desk;
        const QString name = u"The %1 Department Store of the Town Beyond the River "_s.repeated(3);
        NameCreditors({u"Card"_s, u"Store"_s, name});
        Show(Window);
        QCOMPARE(Find(Window, u"txtCreditor"_s).toolTip().section(u'.', 0, 0), u"Card\nCreditor 1 of 3"_s);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        const auto &field = Find<QLineEdit>(Window, u"txtCreditor"_s);
        QVERIFY(field.toolTip().startsWith(name + u"\nCreditor 3 of 3. "_s));
        QCOMPARE(field.accessibleDescription(), field.toolTip());
        QCOMPARE(field.cursorPosition(), 0);
    }

    void ADoubleClickOnOkIsOneClick_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("by mouse") << true;
        QTest::newRow("by its access key") << false;
    }
    void ADoubleClickOnOkIsOneClick()
    {
        QFETCH(bool, byMouse);
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s, u"Doctor"_s});
        Show(Window);
        const auto again = [&] {
            if (byMouse)
                return Click(Window, u"cmdOK"_s);
            QTest::keyClick(&Find(Window, FocusOf(Window)), Qt::Key_O, Qt::AltModifier);
            Settle();
        };
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        again(); // and a third press
        again();
        QVERIFY(desk.Messages.isEmpty()); // zeros would be refused
        QCOMPARE(Debt.LoopIndex, qint16(2));
        QCOMPARE(Debt.PayOffMonthlyAmounts(2), Currency());
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        again(); // a click of its own
        QVERIFY(desk.TakeBeep());
        desk.TakeMessage();
        EnterFigures(u"200"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        EnterFigures(u"300"_s, u"0"_s, u"50"_s, u"1/1/2004"_s); // somebody types fast
        desk.TakeHourglass();
        QVERIFY(!TheWindows.Loaded(Window));
    }

    // Each press counts its time anew, as a hand does that goes on clicking.
    void AThirdPressBelongsToTheSecond()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s, u"Doctor"_s});
        Show(Window);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        const int usual = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(2000);
        EnterFigures(u"200"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QCOMPARE(Debt.LoopIndex, qint16(3));
        for (int press = 2; press <= 3; ++press) {
            QTest::qWait(1200);
            Click(Window, u"cmdOK"_s);
        }
        QApplication::setDoubleClickInterval(usual);
        QVERIFY(desk.Messages.isEmpty()); // zeros would be refused
        QCOMPARE(Debt.LoopIndex, qint16(3));
    }

    void OkHeldDownIsOneClick()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s});
        Show(Window);
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s);
        QTest::qWait(QApplication::doubleClickInterval() + 50); // a keyboard may wait longer before it repeats
        for (const auto &[key, modifier] :
             {std::pair(Qt::Key_O, Qt::AltModifier), std::pair(Qt::Key_Space, Qt::NoModifier),
              std::pair(Qt::Key_Return, Qt::NoModifier)}) {
            QTest::simulateEvent(&Find(Window, u"cmdOK"_s), true, key, modifier, QString(), true);
            QTest::simulateEvent(&Find(Window, u"cmdOK"_s), false, key, modifier, QString(), true);
        }
        Settle();
        QVERIFY(desk.Messages.isEmpty());
        QCOMPARE(Debt.LoopIndex, qint16(2));
    }

    void EnterGoesRoundAndPressesNothing()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s});
        Show(Window);
        const QStringList ring{u"txtBalanceOwed"_s, u"txtAnnualPercentageRate"_s, u"txtMonthlyPayment"_s,
                               u"txtDueDate"_s};
        for (qsizetype i = 0; i < ring.size(); ++i) {
            QCOMPARE(FocusOf(Window), ring[i]);
            auto &next = Find<QLineEdit>(Window, ring[(i + 1) % ring.size()]);
            next.deselect();
            PressEnter(Window, ring[i]);
            QCOMPARE(FocusOf(Window), next.objectName());
            QCOMPARE(next.selectedText(), next.text());
        }
        QVERIFY(IsShown(Window));
        QCOMPARE(Debt.LoopIndex, qint16(1));
    }

    void TheFirstBadEntryIsTold_data()
    {
        QTest::addColumn<QStringList>("figures");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");
        const QString balance = u"Balance Owed does not contain a valid currency amount"_s;
        const QString rate = u"Annual Percentage Rate does not contain a valid numeric amount"_s;
        const QString amount = u"Monthly Payment does not contain a valid currency amount"_s;
        const QString date = u"Due Date does not contain a valid date"_s;
        QTest::newRow("all bad") << QStringList{u"x"_s, u"x"_s, u"x"_s, u"x"_s} << balance << u"txtBalanceOwed"_s;
        QTest::newRow("no balance") << QStringList{QString(), u"1"_s, u"1"_s, u"1/1/2004"_s} << balance
                                    << u"txtBalanceOwed"_s;
        QTest::newRow("three bad") << QStringList{u"1"_s, u"5%"_s, u"x"_s, u"x"_s} << rate
                                   << u"txtAnnualPercentageRate"_s;
        QTest::newRow("two bad") << QStringList{u"1"_s, u"5"_s, u"1.2.3"_s, u"x"_s} << amount << u"txtMonthlyPayment"_s;
        QTest::newRow("no date") << QStringList{u"1"_s, u"5"_s, u"1"_s, u"2/30/2004"_s} << date << u"txtDueDate"_s;
        QTest::newRow("an empty date") << QStringList{u"1"_s, u"5"_s, u"1"_s, QString()} << date << u"txtDueDate"_s;
    }
    void TheFirstBadEntryIsTold()
    {
        QFETCH(QStringList, figures);
        QFETCH(QString, message);
        QFETCH(QString, focus);
        GuiDesk desk;
        NameCreditors({u"Card"_s});
        Show(Window);
        EnterFigures(figures[0], figures[1], figures[2], figures[3]);
        QCOMPARE(desk.TakeMessage(), (Message{message, u"Enter Creditor Info"_s, Icon::Warning}));
        QCOMPARE(FocusOf(Window), focus);
        QCOMPARE(Boxes().mid(2), figures);
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QCOMPARE(Debt.PayOffBalances(1), Currency()); // nothing is stored
        QVERIFY(IsShown(Window));
    }

    void AnAmountThatNeverPaysOffIsRefused_data()
    {
        QTest::addColumn<QStringList>("figures");
        QTest::addColumn<QString>("amount");
        QTest::newRow("just the interest") << QStringList{u"1000"_s, u"12"_s, u"10"_s} << u"$10.00"_s;
        QTest::newRow("less") << QStringList{u"1000"_s, u"12"_s, u"1.5"_s} << u"$1.50"_s;
        QTest::newRow("nothing at all") << QStringList{u"0"_s, u"0"_s, u"0"_s} << u"$0.00"_s;
        QTest::newRow("a negative one") << QStringList{u"1000"_s, u"0"_s, u"-5"_s} << u"($5.00)"_s;
    }
    void AnAmountThatNeverPaysOffIsRefused()
    {
        QFETCH(QStringList, figures);
        QFETCH(QString, amount);
        GuiDesk desk;
        NameCreditors({u"Rent %1"_s, u"Store"_s}); // a name is a text like any other
        Show(Window);
        int beepsBefore = -1;
        const auto show = TheDesk.ShowMessage;
        TheDesk.ShowMessage = [&](const Message &message) {
            beepsBefore = desk.Beeps;
            return show(message);
        };
        EnterFigures(figures[0], figures[1], figures[2], u"1/1/2004"_s);
        QCOMPARE(beepsBefore, 1); // not after the message has been read
        QVERIFY(desk.TakeBeep());
        QCOMPARE(desk.TakeMessage(),
                 (Message{u" The monthly amount of "_s + amount +
                              u" will never pay off Rent %1. You need to pay a higher monthly amount."_s,
                          u"Enter Creditor Info"_s, Icon::Warning}));
        QCOMPARE(FocusOf(Window), u"txtMonthlyPayment"_s);
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QCOMPARE(Debt.PayOffDueDates(1), QDate(2004, 1, 1)); // what was refused stands until OK succeeds
        Type(Window, u"txtMonthlyPayment"_s, u"500"_s);
        Click(Window, u"cmdOK"_s);
        QCOMPARE(Debt.LoopIndex, qint16(2));
        QCOMPARE(Debt.PayOffMonthlyAmounts(1).TenThousandths(), 5000000);
    }

    void NothingOwedAndSomethingPaidPasses()
    {
        GuiDesk desk;
        NameCreditors({u"Card"_s, u"Store"_s});
        Show(Window);
        EnterFigures(u"0"_s, u"0"_s, u"1"_s, u"1/1/2004"_s);
        QCOMPARE(Debt.LoopIndex, qint16(2));
    }

    void WhatDoesNotConvertIsAnUnknownError_data()
    {
        QTest::addColumn<QStringList>("figures");
        QTest::newRow("the balance") << QStringList{u"1e15"_s, u"12"_s, u"10"_s};
        QTest::newRow("the rate") << QStringList{u"1"_s, u"1e39"_s, u"10"_s};
        QTest::newRow("the amount") << QStringList{u"1"_s, u"12"_s, u"1e15"_s};
        QTest::newRow("the first month's interest") << QStringList{u"9e14"_s, u"1200"_s, u"10"_s};
    }
    void WhatDoesNotConvertIsAnUnknownError()
    {
        QFETCH(QStringList, figures);
        GuiDesk desk;
        NameCreditors({u"Card"_s});
        Show(Window);
        EnterFigures(figures[0], figures[1], figures[2], u"1/1/2004"_s);
        QCOMPARE(desk.TakeMessage(), (Message{UnknownErrorText, u"Creditor Info"_s, Icon::Warning}));
        QCOMPARE(Debt.LoopIndex, qint16(1));
        QVERIFY(desk.TakeHourglass().isEmpty());
        QVERIFY(IsShown(Window));
        EnterFigures(u"100"_s, u"0"_s, u"50"_s, u"1/1/2004"_s); // and goes on
        QVERIFY(!TheWindows.Loaded(Window));
        desk.TakeHourglass();
    }

    void TheBoxesFollowTheUsersLocale()
    {
        GuiDesk desk;
        const QLocale american(QLocale::English, QLocale::UnitedStates);
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany));
        NameCreditors({u"Card"_s, u"Store"_s});
        Show(Window);
        QCOMPARE(Boxes().mid(2, 2), (QStringList{u"0,00\u00A0\u20AC"_s, u"0,00"_s}));
        EnterFigures(u"1.000,50"_s, u"12,5"_s, u"20,00"_s, u"1/31/2004"_s);
        SetUserLocale(american);
        QCOMPARE(Debt.PayOffBalances(1).TenThousandths(), 10005000);
        QCOMPARE(Debt.LoanAnnualRate, 12.5F);
    }
};

REGISTER_TEST(gui_frmCreditorInfo)
#include "gui_frmCreditorInfo.moc"

// The monthly overhead: the conversion to a month, the statement and its page.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "StatementOf.h"
#include "TestProgram.h"

#include "budget/MonthlyOverhead.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(double amount)
{
    return Currency::FromDouble(amount);
}

/// The desk, with the statement's own state as it starts.
struct OverheadDesk : FakeDesk {
    OverheadDesk() { Overhead = {}; }
};

Currency TotalOf(const Statement &statement)
{
    return AmountOf(RowOf(statement, StatementRow::Total));
}

void TakeCreditors(const QList<CreditorRecord> &creditors)
{
    State.NumberOfCreditors = qint16(creditors.size());
    State.Creditors.Redim(State.NumberOfCreditors);
    for (int i = 1; i <= State.NumberOfCreditors; ++i)
        State.Creditors(i) = creditors[i - 1];
}

void TakeRegulars(const QList<RegularRecord> &regulars)
{
    State.NumberOfRegulars = qint16(regulars.size());
    State.Regulars.Redim(State.NumberOfRegulars);
    for (int i = 1; i <= State.NumberOfRegulars; ++i)
        State.Regulars(i) = regulars[i - 1];
}

} // namespace

class tst_overhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MonthlyAmount_data()
    {
        QTest::addColumn<qint64>("amount");
        QTest::addColumn<int>("payFrequency");
        QTest::addColumn<qint64>("monthly");
        QTest::newRow("weekly $700.00 is $3,033.3333") << qint64(7000000) << 7 << qint64(30333333);
        QTest::newRow("biweekly $1,400.00 is the same") << qint64(14000000) << 14 << qint64(30333333);
        QTest::newRow("semimonthly $1,000.00 is $2,000.00") << qint64(10000000) << 15 << qint64(20000000);
        QTest::newRow("monthly stands") << qint64(12345678) << 30 << qint64(12345678);
        QTest::newRow("two thirds are rounded up") << qint64(100000) << 14 << qint64(216667);
        QTest::newRow("a tie goes down to the even neighbour") << qint64(1875) << 14 << qint64(4062);
        QTest::newRow("a tie goes up to the even neighbour") << qint64(5625) << 14 << qint64(12188);
        QTest::newRow("a negative amount") << qint64(-7000000) << 7 << qint64(-30333333);
        QTest::newRow("nothing") << qint64(0) << 7 << qint64(0);
    }
    void MonthlyAmount()
    {
        QFETCH(qint64, amount);
        QFETCH(int, payFrequency);
        QFETCH(qint64, monthly);
        const auto converted = ::MonthlyAmount(Currency::FromTenThousandths(amount), qint16(payFrequency));
        QVERIFY(converted.has_value());
        QCOMPARE(converted->TenThousandths(), monthly);
    }

    void AnyOtherFrequencyConvertsNothing()
    {
        for (const qint16 frequency : {qint16(0), qint16(21), qint16(-7)})
            QVERIFY(!::MonthlyAmount(Dollars(1), frequency).has_value());
    }

    void TheMultiplicationOverflowsAsMoneyDoes()
    {
        const Currency most = Currency::FromTenThousandths(std::numeric_limits<qint64>::max());
        QCOMPARE(ErrorOf([&] { ::MonthlyAmount(most, Semimonthly); }), int(RuntimeError::Overflow));
        QCOMPARE(ErrorOf([&] { ::MonthlyAmount(most, Monthly); }), 0);
    }

    void CreditorsStandAsTheyAreAndRegularItemsAreConverted()
    {
        OverheadDesk desk;
        State.PaycheckAmount = Dollars(700);
        State.PayFrequency = Weekly;
        TakeCreditors({{u"Rent"_s, 1, Dollars(500)}, {u"Phone"_s, 22, Dollars(40.5)}});
        TakeRegulars({{u"Food"_s, Dollars(60)}});
        const Statement statement = CalculateOverhead();
        QCOMPARE(AmountOf(statement.Opening).TenThousandths(), qint64(30333333));
        QCOMPARE(LinesOf(statement).size(), std::size_t(3));
        QVERIFY((LinesOf(statement)[0] == StatementRow{{u"Rent - 1st"_s}, {Dollars(500)}}));
        QVERIFY((LinesOf(statement)[1] == StatementRow{{u"Phone - 22nd"_s}, {Dollars(40.5)}}));
        QVERIFY((LinesOf(statement)[2] == StatementRow{{u"Food"_s}, {Dollars(260)}}));
        QCOMPARE(TotalOf(statement), Dollars(800.5));
        QCOMPARE(ResultLabelOf(statement), u"Remaining Funds"_s);
        QCOMPARE(ResultOf(statement).TenThousandths(), qint64(22328333));
        QCOMPARE(State.BudgetBalance, ResultOf(statement));
        QCOMPARE(Overhead.MonthlyNetIncome.TenThousandths(), qint64(30333333));
        QCOMPARE(Overhead.RegularMonthlyAmount, Dollars(260));
    }

    void EachRegularItemIsRoundedByItself()
    {
        OverheadDesk desk;
        State.PayFrequency = Weekly;
        TakeRegulars({{u"A"_s, Dollars(10)}, {u"B"_s, Dollars(10)}, {u"C"_s, Dollars(10)}});
        QCOMPARE(TotalOf(CalculateOverhead()).TenThousandths(), qint64(3 * 433333)); // and not $130.00
    }

    void EmptyListsLeaveTheNetIncome()
    {
        OverheadDesk desk;
        State.PaycheckAmount = Dollars(1000);
        State.PayFrequency = Semimonthly;
        const Statement statement = CalculateOverhead();
        QVERIFY(LinesOf(statement).empty());
        QCOMPARE(TotalOf(statement), Currency());
        QCOMPARE(ResultLabelOf(statement), u"Remaining Funds"_s);
        QCOMPARE(ResultOf(statement), Dollars(2000));
    }

    void NothingLeftIsNoDeficitAndATenThousandthIs()
    {
        OverheadDesk desk;
        State.PaycheckAmount = Dollars(500);
        State.PayFrequency = Monthly;
        TakeCreditors({{u"Rent"_s, 1, Dollars(500)}});
        QCOMPARE(ResultLabelOf(CalculateOverhead()), u"Remaining Funds"_s);
        QCOMPARE(State.BudgetBalance, Currency());
        State.Creditors(1).CreditorAmount = Dollars(500.0001);
        QCOMPARE(ResultLabelOf(CalculateOverhead()), u"DEFICIT"_s);
        QCOMPARE(State.BudgetBalance.TenThousandths(), qint64(-1));
    }

    void AFrequencyThatIsNoneLeavesTheLastValues()
    {
        OverheadDesk desk;
        Overhead.MonthlyNetIncome = Dollars(11);
        Overhead.RegularMonthlyAmount = Dollars(3);
        State.PaycheckAmount = Dollars(700);
        State.PayFrequency = 21;
        TakeRegulars({{u"A"_s, Dollars(10)}, {u"B"_s, Dollars(20)}});
        const Statement statement = CalculateOverhead();
        QCOMPARE(AmountOf(statement.Opening), Dollars(11));
        QCOMPARE(TotalOf(statement), Dollars(6));
        QCOMPARE(ResultOf(statement), Dollars(5));
    }

    void ThePageOfASoundMonth()
    {
        OverheadDesk desk;
        State.PaycheckAmount = Dollars(700);
        State.PayFrequency = Weekly;
        State.PrintFontName = u"Courier"_s;
        State.PrintFontSize = 8;
        TakeCreditors({{u"Rent"_s, 1, Dollars(500)}});
        TakeRegulars({{u"Food"_s, Dollars(60)}});
        PrintOverhead();
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob page = desk.TakePrinted();
        QCOMPARE(page.Font.Name, u"Courier"_s);
        QCOMPARE(page.Name, u"Overhead"_s);
        QCOMPARE(page.Lines, (QStringList{u"                         The Corvelle's Tallymere 1.0"_s,
                                          {},
                                          u"                                   OVERHEAD"_s,
                                          {},
                                          u"              Monthly Net Income                       $3,033.33"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Rent - 1st                                 $500.00"_s,
                                          u"              Food                                       $260.00"_s,
                                          u"              __________________________________________________"_s,
                                          {},
                                          u"              Total Overhead                             $760.00"_s,
                                          {},
                                          u"              Remaining Funds                          $2,273.33"_s}));
    }

    void ThePageOfADeficit()
    {
        OverheadDesk desk;
        State.PaycheckAmount = Dollars(500);
        State.PayFrequency = Monthly;
        TakeCreditors({{u"Rent"_s, 1, Dollars(501)}});
        PrintOverhead();
        QCOMPARE(desk.TakePrinted().Lines.mid(7),
                 (QStringList{u"              Rent - 1st                                 $501.00"_s,
                              u"              __________________________________________________"_s,
                              {},
                              u"              Total Overhead                             $501.00"_s,
                              {},
                              u"              DEFICIT                                    ($1.00)"_s}));
    }
};

REGISTER_TEST(tst_overhead)
#include "tst_overhead.moc"

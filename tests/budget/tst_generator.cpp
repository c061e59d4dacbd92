// The budget generator: pairs of runs, a look-ahead run of the following period and a budget run of the current one.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "StatementOf.h"
#include "TestProgram.h"
#include "budget/BudgetGenerator.h"
#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Whole units of money.
constexpr Currency Dollars(qint64 amount)
{
    return Currency::FromTenThousandths(amount * Currency::Unit);
}
constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

const QString NextCredit = u"CREDIT - Budget"_s;

/// A biweekly household of 1,000 without commitments, budgeted from January 1, 2004.
class Household : public FakeDesk
{
public:
    Household()
    {
        State.PaycheckAmount = Dollars(1000);
        State.PayFrequency = Biweekly;
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        State.BudgetPeriodStart = DateText(u"1/1/2004"_s);
        QObject::connect(&TheBudgetOutlet, &StatementOutlet::Ready, &m_window, [this](const Statement &budget) {
            Shown = budget;
            ++Runs;
        });
    }

    void AddCreditor(const char *name, int day, Currency amount)
    {
        State.Creditors.RedimPreserve(++State.NumberOfCreditors);
        State.Creditors(State.NumberOfCreditors) = {QString::fromLatin1(name), qint16(day), amount};
    }
    void AddRegular(const char *name, Currency amount)
    {
        State.Regulars.RedimPreserve(++State.NumberOfRegulars);
        State.Regulars(State.NumberOfRegulars) = {QString::fromLatin1(name), amount};
    }
    void AddPayPeriod(const char *date)
    {
        State.ExtraPayPeriods.RedimPreserve(++State.NumberOfExtraPayPeriods);
        State.ExtraPayPeriods(State.NumberOfExtraPayPeriods).PayPeriodDate = DateText(QString::fromLatin1(date));
    }
    void AddExtra(const char *name, Currency amount)
    {
        ExtraPayPeriodRecord &payPeriod = State.ExtraPayPeriods(State.NumberOfExtraPayPeriods);
        payPeriod.ExtraItems.At(++payPeriod.NumberOfExtraItems) = {QString::fromLatin1(name), amount};
    }
    void AddProject(const char *name)
    {
        ++State.NumberOfProjects;
        State.ProjectNames.RedimPreserve(State.NumberOfProjects);
        State.ProjectAmounts.RedimPreserve(State.NumberOfProjects);
        State.ProjectEntryCounts.RedimPreserve(State.NumberOfProjects);
        State.ProjectEntryDates.RedimPreserve(State.NumberOfProjects);
        State.ProjectEntryAmounts.RedimPreserve(State.NumberOfProjects);
        State.ProjectNames(State.NumberOfProjects) = QString::fromLatin1(name);
    }
    void AddEntry(const char *date, Currency amount)
    {
        const int entry = ++State.ProjectEntryCounts(State.NumberOfProjects);
        State.ProjectEntryDates(State.NumberOfProjects).At(entry) = DateText(QString::fromLatin1(date));
        State.ProjectEntryAmounts(State.NumberOfProjects).At(entry) = amount;
    }

    Statement Run()
    {
        Shown = {};
        GenerateBudget();
        return Shown;
    }
    /// A look-ahead run, then the budget run.
    Statement RunPair()
    {
        Run();
        return Run();
    }

    Statement Shown;
    int Runs = 0; ///< that were shown

private:
    QObject m_window;
};

/// "Rent - 1st 650; CREDIT - Gift -20 credit": a run's lines at a glance, amounts in ten-thousandths where not whole.
QString Told(const Statement &page)
{
    QStringList told;
    for (const StatementRow &line : LinesOf(page)) {
        const qint64 count = AmountOf(line).TenThousandths();
        const QString amount = count % Currency::Unit == 0 ? QString::number(count / Currency::Unit)
                                                           : QString::number(count) + QLatin1String("/10000");
        told += LabelOf(line) + QLatin1Char(' ') + amount +
                (line.TheKind == StatementRow::Credit ? u" credit"_s : QString());
    }
    return told.join(u"; "_s);
}

struct Figures {
    Currency Balance = State.BudgetBalance;
    Currency Shortfall = State.NextPeriodShortfall;
    Currency Credit = State.BudgetCredit;
    QString Start = State.BudgetPeriodStart.Text();
    QString Period = State.PayPeriodDate.Text();
    QString Next = State.NextPeriodDate.Text();
    QString NextNext = State.NextNextPeriodDate.Text();
    bool LookingAhead = State.LookingAhead;
    bool operator==(const Figures &) const = default;
};

} // namespace

class TestGenerator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ the alternation of runs

    void EveryRunTurnsTheDirection()
    {
        Household household;
        QCOMPARE(household.Run().Heading, u"Looking Ahead - January 15, 2004"_s);
        QVERIFY(State.LookingAhead);
        QCOMPARE(household.Run().Heading, u"Budget - January 1, 2004"_s);
        QVERIFY(!State.LookingAhead);
        QCOMPARE(household.Run().Heading, u"Looking Ahead - January 29, 2004"_s);
        QCOMPARE(household.Run().Heading, u"Budget - January 15, 2004"_s);
        QCOMPARE(household.Run().Heading, u"Looking Ahead - February 12, 2004"_s);
    }

    void OnlyABudgetRunMovesThePeriodOn()
    {
        Household household;
        household.Run();
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/1/2004"_s);
        QCOMPARE(State.PayPeriodDate.Text(), u"1/1/2004"_s);
        QCOMPARE(State.NextPeriodDate.Text(), u"1/15/2004"_s);
        QCOMPARE(State.NextNextPeriodDate.Text(), u"1/29/2004"_s);
        household.Run();
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/15/2004"_s);
        QCOMPARE(State.PayPeriodDate.Text(), u"1/1/2004"_s);
        household.Run();
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/15/2004"_s);
        QCOMPARE(State.PayPeriodDate.Text(), u"1/15/2004"_s);
    }

    void TheStartIsNormalised()
    {
        Household household;
        State.BudgetPeriodStart = DateText(u"January 01, 2004"_s);
        household.Run();
        QCOMPARE(State.PayPeriodDate.Text(), u"1/1/2004"_s);
        QCOMPARE(State.BudgetPeriodStart.Text(), u"January 01, 2004"_s);
    }

    void AReversedAlternationBudgetsFirst()
    {
        Household household;
        State.LookingAhead = true; // what a window's activation prevents
        QCOMPARE(household.Run().Heading, u"Budget - January 1, 2004"_s);
    }

    // ------------------------------------------------------------ lines

    void WithEmptyListsABudgetShowsOnlyThePaycheckAsSavings()
    {
        Household household;
        const Statement page = household.RunPair();
        QCOMPARE(Told(page), QString());
        QCOMPARE(ResultLabelOf(page), u"SAVINGS"_s);
        QCOMPARE(ResultOf(page), Dollars(1000));
    }

    void LinesComeInTheirOrder()
    {
        Household household;
        household.AddProject("Roof");
        household.AddEntry("1/1/2004", Dollars(10));
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Gift", Dollars(20));
        household.AddExtra("Refund", Dollars(-5));
        household.AddRegular("Food", Dollars(100));
        household.AddRegular("Bus", Dollars(30));
        household.AddCreditor("Car", 14, Dollars(200));
        household.AddCreditor("Rent", 1, Dollars(400)); // in array order, sorted or not
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Tax", Dollars(1170));
        household.Run();
        State.BudgetCredit = Dollars(7);
        const Statement page = household.Run();
        // Ahead: 1000 - 130 - 1170 = -300. Now: 1000 - 600 - 130 - 20 + 5 - 10 = 245, received 7 makes 252.
        // Levelled: (252 - 300) / 2 = -24; passed on: 300 - 24 = 276.
        QCOMPARE(Told(page), u"Car - 14th 200; Rent - 1st 400; Food 100; Bus 30; Gift 20; "
                             "CREDIT - Refund -5 credit; Roof 10; CREDIT - Budget -7 credit; "
                             "Budget - January 15, 2004 276"_s);
        QCOMPARE(ResultLabelOf(page), u"DEFICIT"_s);
        QCOMPARE(ResultOf(page), Dollars(-24));
    }

    void ALookAheadRunTellsTheFollowingPeriod()
    {
        Household household;
        household.AddProject("Roof");
        household.AddEntry("1/1/2004", Dollars(10));
        household.AddEntry("1/15/2004", Dollars(11));
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Now", Dollars(20));
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Then", Dollars(21));
        household.AddRegular("Food", Dollars(100));
        household.AddCreditor("Rent", 1, Dollars(400));
        household.AddCreditor("Car", 15, Dollars(200));
        const Statement page = household.Run();
        QCOMPARE(Told(page), u"Car - 15th 200; Food 100; Then 21; Roof 11"_s);
        QCOMPARE(ResultOf(page), Dollars(668));
    }

    void ALookAheadRunTakesNoCreditAndPassesNothingOn()
    {
        Household household;
        State.BudgetCredit = Dollars(50);
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Tax", Dollars(1100));
        const Statement page = household.Run();
        QCOMPARE(Told(page), u"Tax 1100"_s);
        QCOMPARE(ResultOf(page), Dollars(-100));
        QCOMPARE(ResultLabelOf(page), u"DEFICIT"_s);
        QCOMPARE(State.BudgetCredit, Dollars(50));
        QCOMPARE(State.NextPeriodShortfall, Dollars(-100));
    }

    void ABalanceOfExactly0IsSavings()
    {
        Household household;
        household.AddRegular("All", Dollars(1000));
        const Statement ahead = household.Run();
        QCOMPARE(ResultLabelOf(ahead), u"SAVINGS"_s);
        QCOMPARE(ResultOf(ahead), Currency());
        QCOMPARE(State.NextPeriodShortfall, Currency());
        const Statement now = household.Run();
        QCOMPARE(Told(now), u"All 1000"_s); // no "Budget - <date>" line
        QCOMPARE(ResultLabelOf(now), u"SAVINGS"_s);
        QCOMPARE(ResultOf(now), Currency());
    }

    void OneTenThousandthBelow0IsADeficit()
    {
        Household household;
        household.AddRegular("All", Count(10000001));
        household.Run();
        QCOMPARE(State.NextPeriodShortfall, Count(-1));
    }

    // ------------------------------------------------------------ extra items

    void OnlyTheFirstOfTwoEqualDatesCounts()
    {
        Household household;
        household.AddPayPeriod("2/1/2004");
        household.AddExtra("Other", Dollars(1));
        household.AddPayPeriod("01-01-2004"); // compared as dates, not as texts
        household.AddExtra("First", Dollars(2));
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Second", Dollars(4));
        QCOMPARE(Told(household.RunPair()), u"First 2"_s);
    }

    void AnEmptyFirstRecordStopsTheSearch()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Second", Dollars(4));
        QCOMPARE(Told(household.RunPair()), QString());
    }

    void ACreditRaisesTheBalance()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Refund", Dollars(-20));
        const Statement page = household.RunPair();
        QCOMPARE(Told(page), u"CREDIT - Refund -20 credit"_s);
        QCOMPARE(ResultOf(page), Dollars(1020));
    }

    void AnItemOf0IsOrdinary()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Nothing", Currency());
        QCOMPARE(Told(household.RunPair()), u"Nothing 0"_s);
    }

    void ItemsBehindTheCountAreNotLookedAt()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("In", Dollars(1));
        State.ExtraPayPeriods(1).ExtraItems.At(0) = {u"Zero"_s, Dollars(2)};
        State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Behind"_s, Dollars(4)};
        QCOMPARE(Told(household.RunPair()), u"In 1"_s);
    }

    void TwoHundredItemsAreWalked()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        for (int item = 1; item <= 200; ++item)
            household.AddExtra("x", Dollars(1));
        const Statement page = household.RunPair();
        QCOMPARE(LinesOf(page).size(), std::size_t(200));
        QCOMPARE(ResultOf(page), Dollars(800));
    }

    // ------------------------------------------------------------ projects

    void EveryMatchingEntryCounts()
    {
        Household household;
        household.AddProject("Roof");
        household.AddEntry("1/1/2004", Dollars(1));
        household.AddEntry("1/15/2004", Dollars(2));
        household.AddEntry("01-01-2004", Dollars(4));
        household.AddProject("Trip");
        household.AddEntry("January 1, 2004", Dollars(-8)); // not a credit: only extra items are
        QCOMPARE(Told(household.RunPair()), u"Roof 1; Roof 4; Trip -8"_s);
        QCOMPARE(State.BudgetBalance, Dollars(1003));
    }

    void AProjectsOwnAmountAndItsEntry0PlayNoPart()
    {
        Household household;
        household.AddProject("Roof");
        State.ProjectAmounts(1) = Dollars(500);
        State.ProjectEntryDates(1).At(0) = DateText(u"1/1/2004"_s);
        State.ProjectEntryAmounts(1).At(0) = Dollars(5);
        const Statement page = household.RunPair();
        QCOMPARE(Told(page), QString());
        QCOMPARE(ResultOf(page), Dollars(1000));
    }

    // ------------------------------------------------------------ levelling

    void Levelling_data()
    {
        QTest::addColumn<qint64>("balance");  // B, in ten-thousandths, before the pair
        QTest::addColumn<qint64>("deficit");  // D, the next period's
        QTest::addColumn<qint64>("levelled"); // what both end on
        QTest::addColumn<qint64>("passedOn");
        const auto row = [](const char *name, qint64 balance, qint64 deficit, qint64 levelled, qint64 passedOn) {
            QTest::newRow(name) << balance << deficit << levelled << passedOn;
        };
        row("500 now, 1100 then: 300 is passed on", 5000000, 1000000, 2000000, 3000000);
        row("the current period is negative itself", -500000, 1000000, -750000, 250000);
        row("a deficit greater than the surplus", 1000000, 5000000, -2000000, 3000000);
        row("nothing left now", 0, 1000000, -500000, 500000);
        row("equal figures end on nothing", 1000000, 1000000, 0, 1000000);
        row("the current deficit is three times the one ahead", -3000000, 1000000, -2000000, -1000000);
        row("an odd ten-thousandth: 0.00025 goes down to even", 10, 5, 2, 7);
        row("an odd ten-thousandth: 0.00075 goes up to even", 22, 7, 8, 15);
        row("an odd ten-thousandth below nothing: -0.00025", 0, 5, -2, 3);
        row("an odd ten-thousandth below nothing: -0.00075", 0, 15, -8, 7);
    }
    void Levelling()
    {
        Household household;
        QFETCH(qint64, balance);
        QFETCH(qint64, deficit);
        QFETCH(qint64, levelled);
        QFETCH(qint64, passedOn);
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Now", Dollars(1000) - Count(balance));
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Then", Dollars(1000) + Count(deficit));
        household.Run();
        QCOMPARE(State.NextPeriodShortfall, Count(-deficit));
        const Statement page = household.Run();
        QCOMPARE(LabelOf(LinesOf(page).back()), u"Budget - January 15, 2004"_s);
        QCOMPARE(AmountOf(LinesOf(page).back()), Count(passedOn));
        QCOMPARE(LinesOf(page).back().TheKind, StatementRow::Ordinary); // also a negative one
        QCOMPARE(ResultOf(page), Count(levelled));
        QCOMPARE(State.BudgetBalance, Count(levelled));
        QCOMPARE(State.NextPeriodShortfall, Count(passedOn));
        QCOMPARE(State.BudgetCredit, Count(passedOn));

        // The next pair receives it, and that brings it to what it ends on: -deficit + passed on.
        const Statement next = household.RunPair();
        QCOMPARE(LabelOf(LinesOf(next).back()), NextCredit);
        QCOMPARE(AmountOf(LinesOf(next).back()), Count(-passedOn));
        QCOMPARE(LinesOf(next).back().TheKind, StatementRow::Credit);
        QCOMPARE(ResultOf(next), Count(passedOn - deficit));
        QCOMPARE(State.BudgetCredit, Currency());
    }

    void TheWorkedExampleToTheEnd()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Now", Dollars(500));
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Then", Dollars(1100));
        Statement page = household.RunPair();
        QCOMPARE(Told(page), u"Now 500; Budget - January 15, 2004 300"_s);
        QCOMPARE(ResultLabelOf(page), u"SAVINGS"_s);
        QCOMPARE(ResultOf(page), Dollars(200));
        page = household.RunPair();
        QCOMPARE(Told(page), u"Then 1100; CREDIT - Budget -300 credit"_s);
        QCOMPARE(ResultOf(page), Dollars(200));
        // A shortfall is passed on once, and a surplus never.
        page = household.RunPair();
        QCOMPARE(Told(page), QString());
        QCOMPARE(ResultOf(page), Dollars(1000));
    }

    void DeficitsInARowAreLevelledOneByOne()
    {
        Household household;
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("A", Dollars(1200)); // -200
        household.AddPayPeriod("1/29/2004");
        household.AddExtra("B", Dollars(1400));                // -400
        QCOMPARE(ResultOf(household.RunPair()), Dollars(400)); // (1000 - 200) / 2
        QCOMPARE(State.BudgetCredit, Dollars(600));
        const Statement second = household.RunPair();
        // -200 + 600 = 400 received; (400 - 400) / 2 = 0; passed on 400.
        QCOMPARE(Told(second), u"A 1200; CREDIT - Budget -600 credit; Budget - January 29, 2004 400"_s);
        QCOMPARE(ResultOf(second), Currency());
        QCOMPARE(Told(household.RunPair()), u"B 1400; CREDIT - Budget -400 credit"_s);
        QCOMPARE(State.BudgetBalance, Currency());
    }

    void ALevelledBalanceThatLeavesNothingToPassOnIsReceivedAsNothing()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Now", Dollars(1100)); // B = -100
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Then", Dollars(1100)); // D = 100: both stay at -100
        const Statement page = household.RunPair();
        QCOMPARE(Told(page), u"Now 1100; Budget - January 15, 2004 0"_s);
        QCOMPARE(ResultOf(page), Dollars(-100));
        QCOMPARE(Told(household.RunPair()), u"Then 1100"_s); // a credit of 0 is none
    }

    void TheLevelledBalanceRoundsOnce_data()
    {
        QTest::addColumn<qint64>("balance");
        QTest::addColumn<qint64>("shortfall");
        QTest::addColumn<qint64>("levelled");
        QTest::newRow("even") << qint64(4) << qint64(2) << qint64(1);
        QTest::newRow("0.5 to 0") << qint64(1) << qint64(0) << qint64(0);
        // The division is one of amounts: 0.0003 as a double is a little less than that, and so is its half.
        QTest::newRow("nearly 1.5 to 1") << qint64(3) << qint64(0) << qint64(1);
        QTest::newRow("2.5 to 2") << qint64(5) << qint64(0) << qint64(2);
        QTest::newRow("-0.5 to 0") << qint64(0) << qint64(1) << qint64(0);
        QTest::newRow("nearly -1.5 to -1") << qint64(0) << qint64(3) << qint64(-1);
        QTest::newRow("7.5 to 8") << qint64(15) << qint64(0) << qint64(8);
        QTest::newRow("a greater one") << qint64(10000001) << qint64(0) << qint64(5000000);
        QTest::newRow("and its neighbour") << qint64(10000003) << qint64(0) << qint64(5000002);
    }
    void TheLevelledBalanceRoundsOnce()
    {
        QFETCH(qint64, balance);
        QFETCH(qint64, shortfall);
        QFETCH(qint64, levelled);
        QCOMPARE(LevelledBalance(Count(balance), Count(shortfall)), Count(levelled));
    }

    // ------------------------------------------------------------ placement

    void Placement_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("last");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<int>("due");
        QTest::addColumn<bool>("paid");
        const auto rows = [](const char *window, int start, int end, int last, int frequency,
                             std::initializer_list<std::pair<int, bool>> days) {
            for (const auto &[due, paid] : days)
                QTest::addRow("%s, due on %d", window, due) << start << end << last << frequency << due << paid;
        };
        rows("inside one month", 8, 22, 31, Biweekly,
             {{7, false}, {8, true}, {21, true}, {22, false}, {31, false}, {0, false}, {1, false}});
        rows("over a month of 31", 25, 8, 31, Biweekly,
             {{24, false},
              {25, true},
              {28, true},
              {31, true},
              {32, false},
              {1, true},
              {3, true},
              {7, true},
              {8, false}});
        rows("over a month of 30", 25, 9, 30, Biweekly, {{30, true}, {31, false}, {8, true}, {9, false}});
        rows("over February", 20, 5, 29, Biweekly,
             {{28, true}, {29, true}, {30, false}, {31, false}, {4, true}, {5, false}});
        rows("up to the first", 15, 1, 31, Semimonthly, {{14, false}, {15, true}, {31, true}, {1, false}, {0, true}});
        rows("equal days", 15, 15, 31, Biweekly, {{14, false}, {15, false}, {16, false}});
        rows("equal days, semimonthly", 15, 15, 31, Semimonthly, {{15, false}});
        rows("monthly, inside one month", 1, 28, 31, Monthly,
             {{28, true}, {31, true}, {0, true}, {99, true}, {-1, true}});
        rows("monthly, equal days", 15, 15, 31, Monthly, {{1, true}, {15, true}, {31, true}});
        rows("monthly, over a month's end", 31, 29, 31, Monthly, {{30, true}, {31, true}});
    }
    void Placement()
    {
        QFETCH(int, start);
        QFETCH(int, end);
        QFETCH(int, last);
        QFETCH(int, frequency);
        QFETCH(int, due);
        QTEST(FallsDue(due, {start, end, last}, qint16(frequency)), "paid");
    }

    void PlacementInARun_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QList<int>>("paid"); // of the days 1 to 31
        const auto days = [](int from, int to) {
            QList<int> list;
            for (int day = from; day <= to; ++day)
                list += day;
            return list;
        };
        QTest::newRow("biweekly from the 25th to the 8th: the 28th and the 3rd, not the 8th")
            << u"1/25/2004"_s << 14 << days(1, 7) + days(25, 31);
        QTest::newRow("February 20 of a leap year has a 29th") << u"2/20/2004"_s << 14 << days(1, 4) + days(20, 29);
        QTest::newRow("February 20 of a common year has a 29th, too")
            << u"2/20/2005"_s << 14 << days(1, 5) + days(20, 29);
        QTest::newRow("a month of 30 days leaves out the 31st") << u"4/25/2004"_s << 14 << days(1, 8) + days(25, 30);
        QTest::newRow("inside one month") << u"1/8/2004"_s << 14 << days(8, 21);
        QTest::newRow("weekly") << u"12/29/2003"_s << 7 << days(1, 4) + days(29, 31);
        QTest::newRow("semimonthly, first half") << u"1/1/2004"_s << 15 << days(1, 14);
        QTest::newRow("semimonthly, second half") << u"1/15/2004"_s << 15 << days(15, 31);
        QTest::newRow("semimonthly, second half of February") << u"2/15/2005"_s << 15 << days(15, 29);
        QTest::newRow("monthly: all of them") << u"1/15/2004"_s << 30 << days(1, 31);
        QTest::newRow("biweekly over a common February meets the same day in between")
            << u"2/14/2005"_s << 14 << days(14, 27);
    }
    void PlacementInARun()
    {
        Household household;
        QFETCH(QString, start);
        QFETCH(int, frequency);
        QFETCH(QList<int>, paid);
        State.BudgetPeriodStart = DateText(start);
        State.PayFrequency = qint16(frequency);
        for (int day = 1; day <= 31; ++day)
            household.AddCreditor("x", day, Dollars(1));
        household.RunPair();
        QList<int> found;
        for (const StatementRow &line : LinesOf(household.Shown))
            if (LabelOf(line).startsWith(QLatin1String("x - ")))
                found += LabelOf(line).mid(4).chopped(2).toInt();
        QCOMPARE(found, paid);
    }

    void ALookAheadRunUsesTheWindowOfTheNextPeriod()
    {
        Household household;
        State.BudgetPeriodStart = DateText(u"4/15/2004"_s); // next: April 29 to May 13
        for (const int day : {28, 29, 30, 31, 1, 12, 13, 15})
            household.AddCreditor("x", day, Dollars(1));
        // April, in which that window starts, has 30 days.
        QCOMPARE(Told(household.Run()), u"x - 29th 1; x - 30th 1; x - 1st 1; x - 12th 1"_s);
    }

    void SemimonthlyPayWithAFirstPayDayOf0PaysNobodyAndStands()
    {
        // Only a damaged file can say so: the day 0 of February is January 31 itself. The period starts and ends on one
        // day, nobody falls due, and the next one starts there again.
        Household household;
        State.PayFrequency = Semimonthly;
        State.FirstPayDate = 0;
        State.BudgetPeriodStart = DateText(u"1/31/2004"_s);
        household.AddCreditor("x", 31, Dollars(1));
        household.AddCreditor("x", 1, Dollars(1));
        QCOMPARE(Told(household.RunPair()), QString());
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/31/2004"_s);
    }

    void WithMonthlyPayEverythingIsInEveryPeriod()
    {
        Household household;
        State.PayFrequency = Monthly;
        State.MonthEndPay = -1;
        household.AddCreditor("Rent", 31, Dollars(1));
        household.AddCreditor("Car", 5, Dollars(2));
        household.AddRegular("Food", Dollars(4));
        for (int run = 0; run < 24; ++run) {
            QCOMPARE(Told(household.Run()), u"Rent - 31st 1; Car - 5th 2; Food 4"_s);
            QCOMPARE(State.BudgetBalance, Dollars(993));
        }
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/31/2005"_s);
    }

    void RegularItemsAreInEveryRunWhateverTheFrequency()
    {
        for (const qint16 frequency : {Weekly, Biweekly, Semimonthly, Monthly}) {
            Household household;
            State.PayFrequency = frequency;
            household.AddRegular("Food", Dollars(4));
            household.AddRegular("Bus", Dollars(-3)); // not a credit: only extra items are
            QCOMPARE(Told(household.Run()), u"Food 4; Bus -3"_s);
            QCOMPARE(Told(household.Run()), u"Food 4; Bus -3"_s);
        }
    }

    void EachCreditorGetsOneLine()
    {
        Household household;
        household.AddCreditor("Rent", 1, Count(6500001));
        household.AddCreditor("Rent", 1, Dollars(-30));
        const Statement page = household.RunPair();
        QCOMPARE(Told(page), u"Rent - 1st 6500001/10000; Rent - 1st -30"_s);
        QCOMPARE(ResultOf(page), Count(10000000 - 6500001 + 300000));
    }

    void MoreItemsThanARecordHoldsAreWalkedAsFarAsItGoes()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        for (int item = 1; item <= 200; ++item)
            household.AddExtra("Gift", Dollars(1));
        State.ExtraPayPeriods(1).NumberOfExtraItems = 300;
        household.AddProject("Roof");
        for (int entry = 1; entry <= 100; ++entry)
            household.AddEntry("1/1/2004", Dollars(2));
        State.ProjectEntryCounts(1) = 150;
        household.AddProject("Trip"); // what stands behind the damaged ones counts as ever
        household.AddEntry("1/1/2004", Dollars(7));
        const Statement page = household.RunPair();
        QCOMPARE(LinesOf(page).size(), std::size_t(200 + 100 + 1));
        QCOMPARE(LabelOf(LinesOf(page)[199]), u"Gift"_s);
        QCOMPARE(LabelOf(LinesOf(page)[200]), u"Roof"_s);
        QCOMPARE(LabelOf(LinesOf(page)[300]), u"Trip"_s);
        QCOMPARE(ResultOf(page), Dollars(1000 - 200 - 200 - 7));
        QCOMPARE(State.BudgetPeriodStart.Text(), u"1/15/2004"_s);
        QCOMPARE(Told(household.Run()), QString());
    }

    void CountsBelow0AreNoItems()
    {
        Household household;
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Gift", Dollars(1));
        State.ExtraPayPeriods(1).NumberOfExtraItems = -3;
        household.AddProject("Roof");
        household.AddEntry("1/1/2004", Dollars(2));
        State.ProjectEntryCounts(1) = -1;
        QCOMPARE(Told(household.RunPair()), QString());
    }

    void StaleEntriesBehindACountOf0AreNotLookedAt()
    {
        Household household;
        household.AddCreditor("Rent", 1, Dollars(1));
        household.AddRegular("Food", Dollars(1));
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Gift", Dollars(1));
        household.AddProject("Roof");
        household.AddEntry("1/1/2004", Dollars(1));
        State.NumberOfCreditors = State.NumberOfRegulars = State.NumberOfExtraPayPeriods = State.NumberOfProjects = 0;
        QCOMPARE(Told(household.RunPair()), QString());
    }

    // ------------------------------------------------------------ outlets

    void ASilentRunEqualsALoudOne()
    {
        QList<Figures> loud;
        QList<Figures> silent;
        for (const bool forecast : {false, true}) {
            Household household;
            State.ForecastMode = forecast;
            household.AddCreditor("Rent", 1, Dollars(650));
            household.AddCreditor("Car", 20, Count(3333333));
            household.AddRegular("Food", Dollars(300));
            household.AddPayPeriod("2/12/2004");
            household.AddExtra("Tax", Dollars(900));
            household.AddProject("Roof");
            household.AddEntry("1/29/2004", Dollars(100));
            for (int run = 0; run < 20; ++run) {
                household.Run();
                (forecast ? silent : loud) += Figures();
            }
            QCOMPARE(household.Shown.Heading.isEmpty(), forecast);
            QCOMPARE(household.Runs, forecast ? 0 : 20); // no grid, no caption and no rows in a forecast
            QVERIFY(ThePrinter.PendingLines().isEmpty());
        }
        QVERIFY(loud == silent);
        QVERIFY(std::any_of(loud.begin(), loud.end(), [](const Figures &run) { return run.Credit != Currency(); }));
    }

    void ARunNeedsNoOutlet()
    {
        Household household;
        TheBudgetOutlet.disconnect();
        QVERIFY(!TheBudgetOutlet.IsConnected());
        household.AddRegular("Food", Dollars(4));
        GenerateBudget();
        GenerateBudget();
        QCOMPARE(State.BudgetBalance, Dollars(996));
        CalculateBudget(nullptr);
        QVERIFY(State.LookingAhead);
    }

    void ThePrintedPageOfAPair()
    {
        Household household;
        State.PrintBudget = true;
        household.AddCreditor("Rent", 1, Dollars(480));
        household.AddPayPeriod("1/1/2004");
        household.AddExtra("Refund", Dollars(-20));
        household.AddExtra("Party", Dollars(40));
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Tax", Count(11005000));
        household.RunPair();
        // Ahead: 1000 - 1100.50 = -100.50. Now: 1000 - 480 + 20 - 40 = 500; (500 - 100.50) / 2 = 199.75; passed on
        // 300.25.
        const QString blanks14(14, QLatin1Char(' '));
        const QString rule = blanks14 + QString(50, QLatin1Char('_'));
        // From column 15 up to column 64: an amount ends just before column 65, where the rule ends.
        const auto amountLine = [&](const char *label, const char *amount) {
            return blanks14 + QString::fromLatin1(label) +
                   QString(50 - int(strlen(label)) - int(strlen(amount)), QLatin1Char(' ')) +
                   QString::fromLatin1(amount);
        };
        // 28 signs: column (80 - 28) / 2 = 26, and so 25 blanks. 32 signs: column 24. 24 signs: column 28.
        const QString title = QString(25, QLatin1Char(' ')) + u"The Corvelle's Tallymere 1.0"_s;
        const QStringList expected{
            title,
            QString(),
            QString(23, QLatin1Char(' ')) + u"Looking Ahead - January 15, 2004"_s,
            QString(),
            amountLine("Paycheck Amount", "$1,000.00"),
            rule,
            QString(),
            amountLine("Tax", "$1,100.50"),
            rule,
            QString(),
            amountLine("DEFICIT", "($100.50)"),
            QString(),
            title,
            QString(),
            QString(27, QLatin1Char(' ')) + u"Budget - January 1, 2004"_s,
            QString(),
            amountLine("Paycheck Amount", "$1,000.00"),
            rule,
            QString(),
            amountLine("Rent - 1st", "$480.00"),
            amountLine("CREDIT - Refund", "($20.00)"),
            amountLine("Party", "$40.00"),
            amountLine("Budget - January 15, 2004", "$300.25"),
            rule,
            QString(),
            amountLine("SAVINGS", "$199.75"),
            QString(),
        };
        QCOMPARE(ThePrinter.PendingLines(), expected);
        QVERIFY(household.Printed.isEmpty()); // the document grows run by run until the switch goes off
    }

    void ALoneWordOnThePage()
    {
        Household household;
        State.PrintBudget = true;
        household.Run();
        QCOMPARE(ThePrinter.PendingLines().value(4),
                 u"              Paycheck Amount                          $1,000.00"_s);
        QCOMPARE(ThePrinter.PendingLines().value(5),
                 u"              __________________________________________________"_s);
    }

    void AForecastPrintsNeitherHeadingNorResult()
    {
        Household household;
        State.PrintBudget = State.ForecastMode = true;
        household.AddRegular("Food", Dollars(4));
        household.Run();
        QCOMPARE(ThePrinter.PendingLines(),
                 QStringList({u"                         The Corvelle's Tallymere 1.0"_s, QString(),
                              u"              Food                                         $4.00"_s,
                              u"              __________________________________________________"_s, QString()}));
        QCOMPARE(household.Shown.Heading, QString());
    }

    void APrintedRunTakesThePrintSettingsFirst()
    {
        Household household;
        State.PrintBudget = true;
        State.PrintFontName = u"Serif"_s;
        State.PrintFontSize = 11;
        household.Run();
        ThePrinter.EndDoc();
        const PrintFont font = household.TakePrinted().Font;
        QCOMPARE(font.Name, u"Serif"_s);
        QCOMPARE(font.Size, 11.0F);
    }

    void WithoutTheSwitchNothingIsPrinted()
    {
        Household household;
        household.RunPair();
        QVERIFY(ThePrinter.PendingLines().isEmpty());
    }

    // ------------------------------------------------------------ failures, which the program does not trap

    void ADamagedDateIsATypeMismatch_data()
    {
        QTest::addColumn<int>("place");
        QTest::newRow("the start") << 0;
        QTest::newRow("an extra pay period") << 1;
        QTest::newRow("a project's entry") << 2;
        QTest::newRow("an unknown frequency has no next date") << 3;
        QTest::newRow("an unknown month-end setting has none either") << 4;
    }
    void ADamagedDateIsATypeMismatch()
    {
        Household household;
        QFETCH(int, place);
        if (place == 0)
            State.BudgetPeriodStart = DateText(u"some day"_s);
        if (place == 1)
            household.AddPayPeriod("some day");
        if (place == 2) {
            household.AddProject("Roof");
            household.AddEntry("", Dollars(1));
        }
        if (place == 3)
            State.PayFrequency = 21;
        if (place == 4) {
            State.PayFrequency = Monthly;
            State.MonthEndPay = 1;
        }
        QCOMPARE(ErrorOf(GenerateBudget), 13);
    }

    void ADamagedDateBehindTheFirstMatchIsNeverReached()
    {
        Household household;
        household.AddPayPeriod("1/15/2004");
        household.AddExtra("Then", Dollars(1));
        household.AddPayPeriod("some day");
        QCOMPARE(Told(household.Run()), u"Then 1"_s);
    }

    void AmountsBeyondTheRangeAreAnOverflow_data()
    {
        QTest::addColumn<int>("place");
        for (int place = 0; place < 4; ++place)
            QTest::addRow("list %d", place) << place;
    }
    void AmountsBeyondTheRangeAreAnOverflow()
    {
        Household household;
        QFETCH(int, place);
        const Currency least = Count(std::numeric_limits<qint64>::min());
        switch (place) {
        case 0: household.AddCreditor("Rent", 15, least); break;
        case 1: household.AddRegular("Food", least); break;
        case 2:
            household.AddPayPeriod("1/15/2004");
            household.AddExtra("Gift", least);
            break;
        default: household.AddProject("Roof"); household.AddEntry("1/15/2004", least);
        }
        QCOMPARE(ErrorOf(GenerateBudget), 6);
    }

    void BeyondTheYear9999IsAnInvalidCall()
    {
        Household household;
        State.BudgetPeriodStart = DateText(u"12/24/9999"_s);
        QCOMPARE(ErrorOf(GenerateBudget), 5);
    }
};

REGISTER_TEST(TestGenerator)
#include "tst_generator.moc"

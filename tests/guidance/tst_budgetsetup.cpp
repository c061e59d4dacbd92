// The setup of a budget as calculations: conversions between pay frequencies, counts and records, summaries, and the
// save, step by step, with all that can fail in it.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/PayFrequency.h"
#include "guidance/BudgetSetup.h"
#include "platform/values/Format.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

constexpr Currency Dollars(qint64 amount)
{
    return Count(amount * Currency::Unit);
}

const Currency Greatest = Count(std::numeric_limits<qint64>::max());

/// Two incomes, three creditors and two regular items in a biweekly budget.
BudgetSetup FamilySetup()
{
    BudgetSetup setup;
    TakeNumberOfIncomes(setup, u"2"_s);
    TakeIncome(setup, u"300"_s, u"weekly"_s);
    TakeIncome(setup, u"$1,000.00"_s, u"monthly"_s);
    ChooseBudgetFrequency(setup, u"biweekly"_s);
    TakeNumberOfCreditors(setup, u"3"_s);
    TakeCreditor(setup, u"15"_s, u"650"_s, u"Rent"_s);
    TakeCreditor(setup, u"5"_s, u"42.50"_s, u"Phone, \"mobile"_s);
    TakeCreditor(setup, u"45"_s, u"-3.75"_s, u"Refund"_s);
    TakeNumberOfRegulars(setup, u"2"_s);
    TakeRegular(setup, u"120"_s, u"Food"_s);
    TakeRegular(setup, u"30.1234"_s, u"Gas"_s);
    AddUpExpenses(setup);
    AddUpOverhead(setup);
    return setup;
}

const QByteArray FamilyCreditors =
    "3\r\n15\r\n\"Rent\"\r\n650\r\n5\r\n\"Phone, \"mobile\"\r\n42.5\r\n45\r\n\"Refund\"\r\n-3.75\r\n";
const QByteArray FamilyRegulars = "2\r\n\"Food\"\r\n120\r\n\"Gas\"\r\n30.1234\r\n";

/// The household that a save replaces: something in each file, and the same in memory.
void LayOldHousehold(const FakeDesk &desk)
{
    desk.LayHousehold();
    desk.WriteFile(u"creditor.txt"_s, "1\r\n9\r\n\"Old creditor\"\r\n1\r\n");
    desk.WriteFile(u"regulars.txt"_s, "1\r\n\"Old item\"\r\n2\r\n");
    desk.WriteFile(u"extra.txt"_s, "1\r\n\"01-15-2004\"\r\n0\r\n");
    desk.WriteFile(u"projects.txt"_s, "1\r\n\"Old roof\"\r\n3\r\n0\r\n");
    desk.WriteFile(u"mastshop.txt"_s, "1\r\n\"Old milk\"\r\n\"gallon\"\r\n4\r\n\"Corner\"\r\n#FALSE#\r\n");
    State.ApplicationPath = desk.Folder();
    State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
    State.PayFrequency = Biweekly;
}

QStringList Titles(const FakeDesk &desk)
{
    QStringList titles;
    for (const Message &message : desk.Messages)
        titles += message.Title + u": "_s + message.Text;
    return titles;
}

} // namespace

class tst_budgetsetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Conversions: amounts in ten-thousandths, worked out by hand from paychecks a year
    void ConvertPayGoesByThePaychecksOfAYear_data()
    {
        QTest::addColumn<qint64>("amount");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<qint64>("converted");
        const auto row = [](const char *name, qint64 amount, const QString &from, const QString &to, qint64 converted) {
            QTest::newRow(name) << amount << from << to << converted;
        };
        row("52 to 26", 3000000, u"weekly"_s, u"biweekly"_s, 6000000);
        row("52 to 24", 2400000, u"weekly"_s, u"semimonthly"_s, 5200000);
        row("52 to 12", 500000, u"weekly"_s, u"monthly"_s, 2166667);
        row("26 to 52", 3000001, u"biweekly"_s, u"weekly"_s, 1500000); // a tie to even
        row("26 to 24", 10000000, u"biweekly"_s, u"semimonthly"_s, 10833333);
        row("26 to 12", 1200000, u"biweekly"_s, u"monthly"_s, 2600000);
        row("24 to 52", 5200000, u"semimonthly"_s, u"weekly"_s, 2400000);
        row("24 to 26", 2600000, u"semimonthly"_s, u"biweekly"_s, 2400000);
        row("24 to 12", 12345678, u"semimonthly"_s, u"monthly"_s, 24691356);
        row("12 to 52", 5200000, u"monthly"_s, u"weekly"_s, 1200000);
        row("12 to 26", 10000000, u"monthly"_s, u"biweekly"_s, 4615385);
        row("12 to 24", 24691356, u"monthly"_s, u"semimonthly"_s, 12345678);
        for (const QString &name : BudgetFrequencyNames())
            QTest::addRow("%s to itself", qPrintable(name)) << qint64(12345677) << name << name << qint64(12345677);
        row("the greatest amount to itself", Greatest.TenThousandths(), u"weekly"_s, u"weekly"_s,
            Greatest.TenThousandths());
        row("a loss", -3000000, u"weekly"_s, u"biweekly"_s, -6000000);
        row("from no such name", 3000000, u"Weekly"_s, u"biweekly"_s, 0);
        row("to no such name", 3000000, u"weekly"_s, u"yearly"_s, 0);
        row("of no name to itself", 3000000, {}, {}, 3000000);
    }
    void ConvertPayGoesByThePaychecksOfAYear()
    {
        QFETCH(qint64, amount);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QTEST(ConvertPay(Count(amount), from, to).TenThousandths(), "converted");
    }

    void TooMuchForMoneyIsAnOverflow()
    {
        QCOMPARE(ErrorOf([] { ConvertPay(Greatest, u"weekly"_s, u"monthly"_s); }), 6);
        QCOMPARE(ErrorOf([] { ConvertPay(Greatest, u"weekly"_s, u"yearly"_s); }), 0); // falls through to nothing
    }

    void ConvertToMonthlyIsToMonthly()
    {
        QCOMPARE(ConvertToMonthly(Dollars(50), u"weekly"_s), Count(2166667));
        QCOMPARE(ConvertToMonthly(Dollars(50), u"monthly"_s), Dollars(50));
    }

    void IncomesAreCombinedOneByOne()
    {
        const BudgetSetup setup = FamilySetup();
        QCOMPARE(setup.CombinedPaycheck, Count(10615385));
        QCOMPARE(FormatCurrency(setup.CombinedPaycheck), u"$1,061.54"_s);
        QCOMPARE(setup.BudgetFrequencyName, u"biweekly"_s);
        QCOMPARE(CombineIncomes(setup, u"monthly"_s), Dollars(2300));
    }

    void TheNamesGoWithTheOptions()
    {
        QCOMPARE(BudgetFrequencyNames(), (QStringList{u"weekly"_s, u"biweekly"_s, u"semimonthly"_s, u"monthly"_s}));
        QCOMPARE(BudgetFrequencyNames().size(), PayFrequencyOptions().size());
    }

    // Counts
    void AHouseholdHasAnIncome_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("bounded");
        QTest::newRow("3") << u"3"_s << u"3"_s;
        QTest::newRow("1") << u"1"_s << u"1"_s;
        QTest::newRow("0") << u"0"_s << u"1"_s;
        QTest::newRow("-2") << u"-2"_s << u"1"_s;
        QTest::newRow("a fraction below 1") << u"0.9"_s << u"1"_s;
        QTest::newRow("far below") << u"-99999"_s << u"1"_s;
        QTest::newRow("a fraction above") << u"2.5"_s << u"2.5"_s;
    }
    void AHouseholdHasAnIncome()
    {
        QFETCH(QString, text);
        QTEST(BoundedNumberOfIncomes(text), "bounded");
    }

    void CountsAreRoundedToIntegers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("error");
        QTest::newRow("2") << u"2"_s << 2 << 0;
        QTest::newRow("2.5 to the even 2") << u"2.5"_s << 2 << 0;
        QTest::newRow("3.5 to the even 4") << u"3.5"_s << 4 << 0;
        QTest::newRow("0") << u"0"_s << 0 << 0;
        QTest::newRow("0.6 is one") << u"0.6"_s << 1 << 0;
        QTest::newRow("a count below none is none") << u"-2"_s << 0 << 0;
        QTest::newRow("the most") << u"32767"_s << 32767 << 0;
        QTest::newRow("one more") << u"32768"_s << 7 << 6;
        QTest::newRow("one hundred thousand") << u"1e5"_s << 7 << 6;
        QTest::newRow("no number") << u"two"_s << 7 << 13;
    }
    void CountsAreRoundedToIntegers()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        QFETCH(int, error);
        BudgetSetup setup;
        // From before: seven records, of which some have been taken
        for (const auto &take : {TakeNumberOfIncomes, TakeNumberOfCreditors, TakeNumberOfRegulars})
            take(setup, u"7"_s);
        setup.IncomeIndex = setup.SetupCreditorIndex = setup.SetupRegularIndex = 5;
        for (const auto &take : {TakeNumberOfIncomes, TakeNumberOfCreditors, TakeNumberOfRegulars})
            QCOMPARE(ErrorOf([&] { take(setup, text); }), error);
        for (const int learned :
             {int(setup.NumberOfIncomes), int(setup.NumberOfSetupCreditors), int(setup.NumberOfSetupRegulars),
              setup.Incomes.Size(), setup.SetupCreditors.Size(), setup.SetupRegulars.Size()})
            QCOMPARE(learned, count);
        for (const qint16 index : {setup.IncomeIndex, setup.SetupCreditorIndex, setup.SetupRegularIndex})
            QCOMPARE(index, qint16(error ? 5 : 0)); // the first record again
    }

    // Records
    void RecordsAreTakenInOrder()
    {
        const BudgetSetup setup = FamilySetup();
        QCOMPARE(setup.IncomeIndex, qint16(2));
        QCOMPARE(setup.SetupCreditorIndex, qint16(3));
        QCOMPARE(setup.SetupRegularIndex, qint16(2));
        QVERIFY(setup.Incomes(1) == (IncomeRecord{Dollars(300), u"weekly"_s}));
        QVERIFY(setup.Incomes(2) == (IncomeRecord{Dollars(1000), u"monthly"_s}));
        QVERIFY(setup.SetupCreditors(3) == (SetupCreditorRecord{45, Count(-37500), u"Refund"_s}));
        QVERIFY(setup.SetupRegulars(2) == (SetupRegularRecord{Count(301234), u"Gas"_s}));
    }

    void ARecordThatCannotBeTakenIsNot_data()
    {
        QTest::addColumn<QString>("day");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<int>("error");
        QTest::newRow("a day beyond an Integer") << u"32768"_s << u"1"_s << 6;
        QTest::newRow("an amount beyond money") << u"1"_s << u"1e15"_s << 6;
        QTest::newRow("no number") << u"1"_s << u"much"_s << 13;
        QTest::newRow("no day") << u"1st"_s << u"1"_s << 13;
    }
    void ARecordThatCannotBeTakenIsNot()
    {
        QFETCH(QString, day);
        QFETCH(QString, amount);
        QFETCH(int, error);
        BudgetSetup setup;
        for (const auto &take : {TakeNumberOfIncomes, TakeNumberOfCreditors, TakeNumberOfRegulars})
            take(setup, u"1"_s);
        QCOMPARE(ErrorOf([&] { TakeCreditor(setup, day, amount, u"Rent"_s); }), error);
        QCOMPARE(setup.SetupCreditorIndex, qint16(0));
        QVERIFY(setup.SetupCreditors(1) == SetupCreditorRecord());
        if (day != u"1"_s)
            return;
        QCOMPARE(ErrorOf([&] { TakeIncome(setup, amount, u"weekly"_s); }), error);
        QCOMPARE(ErrorOf([&] { TakeRegular(setup, amount, u"Food"_s); }), error);
        QCOMPARE(setup.IncomeIndex, qint16(0));
        QCOMPARE(setup.SetupRegularIndex, qint16(0));
        QVERIFY(setup.Incomes(1) == IncomeRecord());
        QVERIFY(setup.SetupRegulars(1) == SetupRegularRecord());
    }

    void ThereIsNoRecordBeyondTheCount()
    {
        BudgetSetup setup;
        QCOMPARE(ErrorOf([&] { TakeIncome(setup, u"1"_s, u"weekly"_s); }), 9);
        QCOMPARE(ErrorOf([&] { TakeCreditor(setup, u"1"_s, u"1"_s, u"Rent"_s); }), 9);
        QCOMPARE(ErrorOf([&] { TakeRegular(setup, u"1"_s, u"Food"_s); }), 9);
        QCOMPARE(setup.IncomeIndex, qint16(0));
        QCOMPARE(setup.SetupCreditorIndex, qint16(0));
        QCOMPARE(setup.SetupRegularIndex, qint16(0));
    }

    // Sums
    void RegularItemsAreConvertedOnceOnTheirSum()
    {
        BudgetSetup setup;
        setup.BudgetFrequencyName = u"weekly"_s;
        TakeNumberOfRegulars(setup, u"2"_s);
        TakeRegular(setup, u"0.01"_s, u"A"_s); // 0.0433 a month each
        TakeRegular(setup, u"0.01"_s, u"B"_s);
        AddUpExpenses(setup);
        QCOMPARE(setup.TotalRegularAmount, Count(867));
        QCOMPARE(setup.TotalCreditorAmount, Currency());
        QCOMPARE(setup.TotalExpenses, Count(867));
    }

    void TheMonthIsAddedUp()
    {
        const BudgetSetup setup = FamilySetup();
        QCOMPARE(setup.TotalCreditorAmount, Count(6887500));
        QCOMPARE(setup.TotalRegularAmount, Count(3252674)); // 150.1234 x 26 / 12 = 325.26736...
        QCOMPARE(setup.TotalExpenses, Count(10140174));
        QCOMPARE(setup.MonthlyIncome, Count(23000001)); // 1061.5385 x 26 / 12 = 2300.00008...
        QCOMPARE(setup.MonthlyBalance, Count(12859827));
        QCOMPARE(ExpenseSummary(setup), u"Total creditor/monthly obligation amounts: $688.75\n"
                                        u"Total regular items amounts: $325.27\n\nTotal expenses: $1,014.02"_s);
        QCOMPARE(OverheadSummary(setup),
                 u"Average monthly household income: $2,300.00\n"
                 u"Total monthly expenses: $1,014.02\n\nMonthly balance remaining: $1,285.98"_s);
    }

    void WithoutExpensesTheyAreNothing()
    {
        BudgetSetup setup;
        setup.BudgetFrequencyName = u"weekly"_s;
        AddUpExpenses(setup);
        QCOMPARE(ExpenseSummary(setup), u"Total creditor/monthly obligation amounts: $0.00\n"
                                        u"Total regular items amounts: $0.00\n\nTotal expenses: $0.00"_s);
    }

    void ExpensesAboveTheIncomeLeaveANegativeBalance()
    {
        BudgetSetup setup;
        setup.BudgetFrequencyName = u"monthly"_s;
        setup.CombinedPaycheck = Dollars(100);
        setup.TotalExpenses = Dollars(1350);
        AddUpOverhead(setup);
        QCOMPARE(setup.MonthlyBalance, Dollars(-1250));
        QVERIFY(OverheadSummary(setup).endsWith(u"Monthly balance remaining: ($1,250.00)"_s));
    }

    void ASumBeyondMoneyChangesNothing()
    {
        BudgetSetup setup;
        setup.BudgetFrequencyName = u"weekly"_s;
        setup.TotalCreditorAmount = setup.TotalRegularAmount = setup.TotalExpenses = Dollars(1);
        TakeNumberOfCreditors(setup, u"1"_s);
        TakeNumberOfRegulars(setup, u"1"_s);
        TakeRegular(setup, u"900000000000000"_s, u"Moon"_s);
        QCOMPARE(ErrorOf([&] { AddUpExpenses(setup); }), 6);
        QCOMPARE(setup.TotalCreditorAmount, Dollars(1));
        setup.CombinedPaycheck = Greatest;
        setup.MonthlyIncome = Dollars(1);
        QCOMPARE(ErrorOf([&] { AddUpOverhead(setup); }), 6);
        QCOMPARE(setup.MonthlyIncome, Dollars(1));
        TakeNumberOfIncomes(setup, u"1"_s);
        TakeIncome(setup, u"900000000000000"_s, u"weekly"_s);
        QCOMPARE(ErrorOf([&] { ChooseBudgetFrequency(setup, u"monthly"_s); }), 6);
        QCOMPARE(setup.BudgetFrequencyName, u"weekly"_s);
    }

    void WhatTheSummariesSay()
    {
        const BudgetSetup setup = FamilySetup();
        QCOMPARE(IncomeSummary(setup),
                 u"The paycheck amount of $1,061.54 will be used for your biweekly budget. It is from this amount that "
                 u"Tallymere will deduct your expenses in figuring out your budget. This amount represents your BASIC "
                 u"income. At this point, you need not concern yourself about any extra income that may show up "
                 u"occasionally - just your basic income."_s);
        QCOMPARE(RegularsPrompt(setup), u"For each regular item, Tallymere needs to know their name, and biweekly "
                                        u"amount. Click Next to proceed or Cancel to exit."_s);
        QCOMPARE(RegularHint(setup), u"Enter what one biweekly pay period costs. Leave quotation marks out of the "
                                     u"name: they spoil the file."_s);
    }

    void ARarerIncomeIsHintedAt_data()
    {
        QTest::addColumn<QString>("income");
        QTest::addColumn<QString>("budget");
        QTest::addColumn<bool>("hinted");
        QTest::newRow("monthly in a biweekly budget") << u"monthly"_s << u"biweekly"_s << true;
        QTest::newRow("semimonthly in a biweekly budget") << u"semimonthly"_s << u"biweekly"_s << true;
        QTest::newRow("as often") << u"biweekly"_s << u"biweekly"_s << false;
        QTest::newRow("more often") << u"weekly"_s << u"monthly"_s << false;
    }
    void ARarerIncomeIsHintedAt()
    {
        QFETCH(QString, income);
        QFETCH(QString, budget);
        QFETCH(bool, hinted);
        BudgetSetup setup;
        TakeNumberOfIncomes(setup, u"2"_s);
        TakeIncome(setup, u"300"_s, budget);
        TakeIncome(setup, u"100"_s, income);
        ChooseBudgetFrequency(setup, budget);
        QCOMPARE(IncomeHint(setup), hinted ? u"A paycheck that comes less often than your budget counts with its share "
                                             u"of each pay period. Keep back enough of it to last until the next one."_s
                                           : QString());
    }

    // The save
    void TheSettingsOfTheProfile_data()
    {
        QTest::addColumn<int>("frequency");
        QTest::addColumn<QByteArray>("dates"); // lines 4 to 6 of the file
        QTest::newRow("weekly") << 7 << QByteArray("1\r\n15\r\n0\r\n");
        QTest::newRow("biweekly") << 14 << QByteArray("1\r\n15\r\n0\r\n");
        QTest::newRow("semimonthly keeps the pay dates") << 15 << QByteArray("7\r\n22\r\n0\r\n");
        QTest::newRow("monthly keeps the month's end") << 30 << QByteArray("1\r\n15\r\n-1\r\n");
        QTest::newRow("another keeps all three") << 21 << QByteArray("7\r\n22\r\n-1\r\n");
    }
    void TheSettingsOfTheProfile()
    {
        QFETCH(int, frequency);
        QFETCH(QByteArray, dates);
        FakeDesk desk;
        LayOldHousehold(desk);
        State.PayFrequency = qint16(frequency);
        State.FirstPayDate = 7;
        State.SecondPayDate = 22;
        State.MonthEndPay = -1;
        State.ForecastPeriods = 5;
        State.CurrentStoreFile = u"corner.lst"_s;
        WriteProfileSettings(FamilySetup());
        QCOMPARE(desk.ReadFile(u"environm.ini"_s), "26\r\n1061.5385\r\n" + QByteArray::number(frequency) + "\r\n" +
                                                       dates + "0.06\r\n\"untitled.lst\"\r\n0.9\r\n");
        QCOMPARE(State.ForecastPeriods, qint16(26));
        QCOMPARE(State.PaycheckAmount, Count(10615385));
        QCOMPARE(State.SalesTax, 0.06F);
        QCOMPARE(State.AverageNetPercentage, 0.9F);
        QCOMPARE(State.CurrentStoreFile, u"untitled.lst"_s);
    }

    void TheListsAreWrittenAsTheyWereEntered()
    {
        FakeDesk desk;
        LayOldHousehold(desk);
        State.NumberOfCreditors = 1;
        State.Creditors = {{u"Old creditor"_s, 9, Dollars(1)}};
        State.NumberOfRegulars = 1;
        State.Regulars = {{u"Old item"_s, Dollars(2)}};
        WriteSetupCreditors(FamilySetup());
        WriteSetupRegulars(FamilySetup());
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), FamilyCreditors); // not sorted
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), FamilyRegulars);
        // What is in memory waits for the loaders.
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.Creditors(1).CreditorName, u"Old creditor"_s);
        QCOMPARE(State.NumberOfRegulars, qint16(1));
        QCOMPARE(State.Regulars(1).RegularItem, u"Old item"_s);
    }

    void EmptyListsAreWrittenAsNone()
    {
        FakeDesk desk;
        LayOldHousehold(desk);
        BudgetSetup setup;
        TakeNumberOfCreditors(setup, u"-2"_s); // below none: a file that counts so could not be read
        WriteSetupCreditors(setup);
        WriteSetupRegulars(setup);
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), QByteArray("0\r\n"));
    }

    void TheSaveReplacesTheHousehold()
    {
        FakeDesk desk;
        LayOldHousehold(desk);
        desk.WriteFile(u"stores\\untitled.lst"_s,
                       "1\r\n\"Milk\"\r\n\"gallon\"\r\n2.99\r\n\"Corner\"\r\n1\r\n#FALSE#\r\n0\r\n2.99\r\n");
        State.NumberOfExtraPayPeriods = State.NumberOfProjects = State.NumberOfMasterItems = 1;
        State.CurrentStoreFile = u"corner.lst"_s;
        BudgetSetup setup = FamilySetup();
        setup.SetupCreditors(2).SetupCreditor = u"Phone, mobile"_s; // a quotation mark ends a text when it is read
        SaveProfile(setup);
        QCOMPARE(State.NumberOfCreditors, qint16(3));
        QVERIFY(State.Creditors(2) == (CreditorRecord{u"Phone, mobile"_s, 5, Count(425000)}));
        QCOMPARE(State.NumberOfRegulars, qint16(2));
        QVERIFY(State.Regulars(1) == (RegularRecord{u"Food"_s, Dollars(120)}));
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
        QCOMPARE(State.NumberOfProjects, qint16(0));
        QCOMPARE(State.NumberOfMasterItems, qint16(0));
        QCOMPARE(State.NumberOfCurrentItems, qint16(1)); // whatever untitled.lst holds
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Milk"_s);
        for (const QString &emptied : {u"extra.txt"_s, u"mastshop.txt"_s, u"projects.txt"_s})
            QCOMPARE(desk.ReadFile(emptied), QByteArray("0\r\n"));
        QCOMPARE(desk.TakeFiles(), (QStringList{u"creditor.txt"_s, u"environm.ini"_s, u"regulars.txt"_s}));
    }

    /// One file is missing: its routines say so, the first step stops there, and every later step runs.
    void AMissingFileStopsItsOwnSteps_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("messages");
        QTest::addColumn<QStringList>("kept"); // with their old content
        const QString notFound = u": Error 53: File not found"_s;
        const QString badFile = u": Error 52: Bad file name or number"_s;
        const QString initialize = u"Initialize Files"_s + notFound;
        const auto load = [&](const QString &title) { return QStringList{title + notFound, title + badFile}; };
        QTest::newRow("creditor.txt") << u"creditor.txt"_s
                                      << QStringList{initialize, u"Save Creditors"_s + notFound} +
                                             load(u"Input Creditors"_s)
                                      << QStringList{u"extra.txt"_s, u"mastshop.txt"_s, u"projects.txt"_s};
        QTest::newRow("extra.txt") << u"extra.txt"_s << QStringList{initialize} + load(u"Input Pay Periods"_s)
                                   << QStringList{u"mastshop.txt"_s, u"projects.txt"_s};
        QTest::newRow("mastshop.txt") << u"mastshop.txt"_s
                                      << QStringList{initialize} + load(u"Input Master Shopping List"_s)
                                      << QStringList{u"projects.txt"_s};
        QTest::newRow("projects.txt") << u"projects.txt"_s << QStringList{initialize} + load(u"Input Projects"_s)
                                      << QStringList{};
        QTest::newRow("regulars.txt") << u"regulars.txt"_s
                                      << QStringList{initialize, u"Save Regulars"_s + notFound} +
                                             load(u"Input Regulars"_s)
                                      << QStringList{};
        QTest::newRow("environm.ini") << u"environm.ini"_s << QStringList{u"Save Environment Settings"_s + notFound}
                                      << QStringList{};
        QTest::newRow("untitled.lst") << u"stores\\untitled.lst"_s << load(u"Input Current Shopping List"_s)
                                      << QStringList{};
    }
    void AMissingFileStopsItsOwnSteps()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, messages);
        QFETCH(QStringList, kept);
        FakeDesk desk;
        LayOldHousehold(desk);
        desk.RemoveFile(file);
        QMap<QString, QByteArray> before;
        const QStringList all{u"creditor.txt"_s, u"extra.txt"_s,    u"mastshop.txt"_s,
                              u"projects.txt"_s, u"regulars.txt"_s, u"environm.ini"_s};
        for (const QString &name : all)
            before[name] = desk.ReadFile(name);
        SaveProfile(FamilySetup());
        QCOMPARE(Titles(desk), messages);
        for (const Message &message : desk.Messages) {
            QCOMPARE(message.TheIcon, Icon::Stop);
            QCOMPARE(message.TheButtons, Buttons::Ok);
        }
        desk.Messages.clear();
        QVERIFY(desk.ReadFile(file).isNull()); // only an installation supplies the first copy
        for (const QString &name : all)
            if (name != file)
                QCOMPARE(desk.ReadFile(name) == before[name], kept.contains(name));
        if (file != u"creditor.txt")
            QCOMPARE(desk.ReadFile(u"creditor.txt"_s), FamilyCreditors);
        if (file != u"regulars.txt")
            QCOMPARE(desk.ReadFile(u"regulars.txt"_s), FamilyRegulars);
    }

    void WithoutAnyFileEachStepSaysSoInItsTurn()
    {
        FakeDesk desk;
        LayOldHousehold(desk);
        for (const QString &name : {u"creditor.txt"_s, u"regulars.txt"_s, u"extra.txt"_s, u"projects.txt"_s,
                                    u"mastshop.txt"_s, u"environm.ini"_s, u"stores\\untitled.lst"_s})
            desk.RemoveFile(name);
        SaveProfile(FamilySetup());
        QStringList titles;
        for (const Message &message : std::exchange(desk.Messages, {}))
            if (titles.isEmpty() || titles.last() != message.Title) // a loader says two things
                titles += message.Title;
        QCOMPARE(titles,
                 (QStringList{u"Initialize Files"_s, u"Save Environment Settings"_s, u"Save Creditors"_s,
                              u"Save Regulars"_s, u"Input Creditors"_s, u"Input Regulars"_s, u"Input Pay Periods"_s,
                              u"Input Projects"_s, u"Input Master Shopping List"_s, u"Input Current Shopping List"_s}));
    }

    void AMissingListKeepsItsOldCountInMemory()
    {
        FakeDesk desk;
        LayOldHousehold(desk);
        desk.RemoveFile(u"creditor.txt"_s);
        State.NumberOfCreditors = 1;
        State.Creditors = {{u"Old creditor"_s, 9, Dollars(1)}};
        SaveProfile(FamilySetup());
        // The count stands, the list behind it is cleared, and each of its three values is told.
        QCOMPARE(Titles(desk).filter(u"Input Creditors: "_s).size(), 5);
        desk.Messages.clear();
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QVERIFY(State.Creditors(1) == CreditorRecord());
        desk.TakeFiles();
    }
};

REGISTER_TEST(tst_budgetsetup)
#include "tst_budgetsetup.moc"

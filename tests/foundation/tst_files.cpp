// The household's data files: what is written byte for byte, what is read, and how their failures are told.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "InChild.h"
#include "TestProgram.h"
#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "platform/files/DataFile.h"
#include "platform/values/Locale.h"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

Message Told(const char *text, const QString &title)
{
    return {QString::fromLatin1(text), title, Icon::Stop, Buttons::Ok, 0};
}

const char FileNotFound[] = "Error 53: File not found";
const char BadFile[] = "Error 52: Bad file name or number";
const char PastEnd[] = "Error 62: Input past end of file";
const char Mismatch[] = "Error 13: Type mismatch";
const char TooLarge[] = "Error 6: Overflow";
const char OutOfRange[] = "Error 9: Subscript out of range";
const char NoAccess[] = "Error 75: Path/File access error";

/// One list: its file, its routines, its count, and how many values a record has.
struct DataList {
    const char *File;
    const char *LoadTitle;
    const char *SaveTitle;
    void (*Load)();
    void (*Save)();
    qint16 SharedState::*Count;
    int ValuesOfRecord;
};
const DataList Lists[] = {
    {"creditor.txt", "Input Creditors", "Save Creditors", InputCreditors, SaveCreditors,
     &SharedState::NumberOfCreditors, 3},
    {"regulars.txt", "Input Regulars", "Save Regulars", InputRegulars, SaveRegulars, &SharedState::NumberOfRegulars, 2},
    {"extra.txt", "Input Pay Periods", "Save Pay Periods", InputPayPeriods, SavePayPeriods,
     &SharedState::NumberOfExtraPayPeriods, 2},
    {"projects.txt", "Input Projects", "Save Projects", InputProjects, SaveProjects, &SharedState::NumberOfProjects, 3},
};

int SizeOf(const DataList &list)
{
    if (list.Load == InputCreditors)
        return State.Creditors.Size();
    if (list.Load == InputRegulars)
        return State.Regulars.Size();
    return list.Load == InputPayPeriods ? State.ExtraPayPeriods.Size() : State.ProjectNames.Size();
}

void PutOneOfEach()
{
    State.NumberOfCreditors = State.NumberOfRegulars = State.NumberOfExtraPayPeriods = State.NumberOfProjects = 1;
    State.Creditors = {{QStringLiteral("Rent"), 1, Count(6500000)}};
    State.Regulars = {{QStringLiteral("Food"), Count(1000000)}};
    State.ExtraPayPeriods.Redim(1);
    State.ExtraPayPeriods(1).PayPeriodDate = DateText(QStringLiteral("01-15-2004"));
    State.ProjectNames = {QStringLiteral("Roof")};
    State.ProjectAmounts = {Count(10000000)};
    State.ProjectEntryCounts = {qint16(0)};
    State.ProjectEntryDates.Redim(1);
    State.ProjectEntryAmounts.Redim(1);
}

void ListRows()
{
    QTest::addColumn<int>("list");
    for (int i = 0; i < int(std::size(Lists)); ++i)
        QTest::newRow(Lists[i].File) << i;
}

const DataList &FetchedList()
{
    QFETCH(int, list);
    return Lists[list];
}

QString LoadTitle(const DataList &list)
{
    return QString::fromLatin1(list.LoadTitle);
}
QString SaveTitle(const DataList &list)
{
    return QString::fromLatin1(list.SaveTitle);
}

void WriteProtect(const QString &path)
{
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther));
}

/// `count` times the message, and no other one.
void ExpectOnly(FakeDesk &desk, int count, const Message &message)
{
    QCOMPARE(desk.Messages.size(), count);
    for (const Message &told : std::as_const(desk.Messages))
        QCOMPARE(told, message);
    desk.Messages.clear();
}

/// As long as it lives no file can grow beyond `bytes`, as on a device that fails in the middle of a write.
class SmallFiles
{
public:
    explicit SmallFiles(rlim_t bytes) : m_handler(::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const struct rlimit small = {bytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallFiles()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_handler);
    }
    SmallFiles(const SmallFiles &) = delete;
    SmallFiles &operator=(const SmallFiles &) = delete;

private:
    void (*m_handler)(int);
    struct rlimit m_before = {};
};

/// Another locale for one test.
class InLocale
{
public:
    explicit InLocale(const QLocale &locale) : m_before(UserLocale()) { SetUserLocale(locale); }
    ~InLocale() { SetUserLocale(m_before); }

private:
    QLocale m_before;
};

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ the bytes of each file

    void CreditorsAreDueDayNameAmount()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "0\r\n");
        State.NumberOfCreditors = 3;
        State.Creditors = {{QStringLiteral("Rent"), 1, Count(12500000)},
                           {QStringLiteral("Car, blue"), 15, Count(-37500)},
                           {QString(), 28, Count(125000)}};
        SaveCreditors();
        QCOMPARE(desk.ReadFile(QStringLiteral("creditor.txt")),
                 QByteArray("3\r\n1\r\n\"Rent\"\r\n1250\r\n15\r\n\"Car, blue\"\r\n-3.75\r\n28\r\n\"\"\r\n12.5\r\n"));

        const auto saved = State.Creditors;
        State.Creditors.Redim(0);
        State.NumberOfCreditors = 0;
        InputCreditors();
        QCOMPARE(State.NumberOfCreditors, qint16(3));
        QVERIFY(State.Creditors == saved); // the comma and the negative amount, too
    }

    void RegularsAreItemAmount()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{QStringLiteral("Groceries"), Count(1000000)}, {QStringLiteral("Bus"), Count(1)}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(QStringLiteral("regulars.txt")),
                 QByteArray("2\r\n\"Groceries\"\r\n100\r\n\"Bus\"\r\n0.0001\r\n"));
        const auto saved = State.Regulars;
        State.Regulars.Redim(0);
        InputRegulars();
        QVERIFY(State.Regulars == saved);
    }

    void PayPeriodsAreDateCountAndItems()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("extra.txt"), "0\r\n");
        State.NumberOfExtraPayPeriods = 2;
        State.ExtraPayPeriods.Redim(2);
        State.ExtraPayPeriods(1).PayPeriodDate = DateText(QStringLiteral("5/24/1997"));
        State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
        State.ExtraPayPeriods(1).ExtraItems.At(1) = {QStringLiteral("Gift"), Count(0)};
        State.ExtraPayPeriods(1).ExtraItems.At(2) = {QStringLiteral("Refund"), Count(-200000)};
        State.ExtraPayPeriods(2).PayPeriodDate = DateText(QStringLiteral("some day"));
        SavePayPeriods();
        QCOMPARE(desk.ReadFile(QStringLiteral("extra.txt")),
                 QByteArray("2\r\n\"5/24/1997\"\r\n2\r\n\"Gift\"\r\n0\r\n\"Refund\"\r\n-20\r\n\"some day\"\r\n0\r\n"));
        InputPayPeriods();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        // The first reload brings every date into the one form; what is no date passes through.
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), QStringLiteral("05-24-1997"));
        QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), QStringLiteral("some day"));
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(2));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(0), ExtraItemRecord());
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1), (ExtraItemRecord{QStringLiteral("Gift"), Count(0)}));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(2), (ExtraItemRecord{QStringLiteral("Refund"), Count(-200000)}));
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(0));
        SavePayPeriods();
        QVERIFY(desk.ReadFile(QStringLiteral("extra.txt")).startsWith("2\r\n\"05-24-1997\"\r\n"));
    }

    void ProjectsAreNameAmountCountAndEntries()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("projects.txt"), "0\r\n");
        State.NumberOfProjects = 2;
        State.ProjectNames = {QStringLiteral("Roof"), QStringLiteral("Trip")};
        State.ProjectAmounts = {Count(10005000), Count(0)};
        State.ProjectEntryCounts = {qint16(2), qint16(0)};
        State.ProjectEntryDates.Redim(2);
        State.ProjectEntryAmounts.Redim(2);
        State.ProjectEntryDates(1).At(1) = DateText(QStringLiteral("1/1/2004"));
        State.ProjectEntryAmounts(1).At(1) = Count(5002500);
        State.ProjectEntryDates(1).At(2) = DateText(QStringLiteral("1/15/2004"));
        State.ProjectEntryAmounts(1).At(2) = Count(5002500);
        SaveProjects();
        QCOMPARE(desk.ReadFile(QStringLiteral("projects.txt")),
                 QByteArray("2\r\n\"Roof\"\r\n1000.5\r\n2\r\n\"1/1/2004\"\r\n500.25\r\n\"1/15/2004\"\r\n500.25\r\n"
                            "\"Trip\"\r\n0\r\n0\r\n"));
        State = SharedState();
        State.ApplicationPath = desk.Folder();
        InputProjects();
        QCOMPARE(State.NumberOfProjects, qint16(2));
        QCOMPARE(State.ProjectNames(1), QStringLiteral("Roof"));
        QCOMPARE(State.ProjectAmounts(1), Count(10005000));
        QCOMPARE(State.ProjectEntryCounts(1), qint16(2));
        QCOMPARE(State.ProjectEntryDates(1)(0).Text(), QString());
        // Unlike those of the pay periods these dates keep the form that they have in the file.
        QCOMPARE(State.ProjectEntryDates(1)(2).Text(), QStringLiteral("1/15/2004"));
        QCOMPARE(State.ProjectEntryAmounts(1)(2), Count(5002500));
        QCOMPARE(State.ProjectNames(2), QStringLiteral("Trip"));
        QCOMPARE(State.ProjectEntryCounts(2), qint16(0));
        for (const int size : {State.ProjectNames.Size(), State.ProjectAmounts.Size(), State.ProjectEntryCounts.Size(),
                               State.ProjectEntryDates.Size(), State.ProjectEntryAmounts.Size()})
            QCOMPARE(size, 2);
    }

    void SettingsAreNineLines()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("environm.ini"), "");
        State.ForecastPeriods = 26;
        State.PaycheckAmount = Count(10000000);
        State.PayFrequency = 14;
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        State.SalesTax = 0.06F;
        State.CurrentStoreFile = QStringLiteral("untitled.lst");
        State.AverageNetPercentage = 0.9F;
        SaveEnvironmentSettings();
        QCOMPARE(desk.ReadFile(QStringLiteral("environm.ini")),
                 QByteArray("26\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
    }

    void MonthEndPayIsWrittenAsAnInteger()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("environm.ini"), "");
        State.PayFrequency = 30;
        State.MonthEndPay = -1;
        State.SalesTax = 0.0625F;
        State.AverageNetPercentage = 1.0F / 3;
        SaveEnvironmentSettings();
        QCOMPARE(desk.ReadFile(QStringLiteral("environm.ini")),
                 QByteArray("0\r\n0\r\n30\r\n0\r\n0\r\n-1\r\n0.0625\r\n\"\"\r\n0.33333334\r\n"));
    }

    void SettingsComeBackUnchanged()
    {
        FakeDesk desk;
        desk.LayHousehold();
        State.ForecastPeriods = 1000;
        State.PaycheckAmount = Count(12345678);
        State.PayFrequency = 15;
        State.FirstPayDate = 15;
        State.SecondPayDate = 0;
        State.MonthEndPay = 0;
        State.SalesTax = 0.06F;
        State.CurrentStoreFile = QStringLiteral("untitled.lst");
        State.AverageNetPercentage = 0.8437F;
        SaveEnvironmentSettings();
        QCOMPARE(desk.TakeFiles(), QStringList{QStringLiteral("environm.ini")});
        State = SharedState();
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{QStringLiteral("start")});
        QCOMPARE(State.ForecastPeriods, qint16(1000));
        QCOMPARE(State.PaycheckAmount, Count(12345678));
        QCOMPARE(State.PayFrequency, qint16(15));
        QCOMPARE(State.FirstPayDate, qint16(15));
        QCOMPARE(State.SecondPayDate, qint16(0));
        QCOMPARE(State.MonthEndPay, qint16(0));
        QVERIFY(State.SalesTax == 0.06F);
        QCOMPARE(State.CurrentStoreFile, QStringLiteral("untitled.lst"));
        QVERIFY(State.AverageNetPercentage == 0.8437F);
    }

    void AmountsAtTheEndsOfTheRangeComeBack()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{QStringLiteral("most"), Count(std::numeric_limits<qint64>::max())},
                          {QStringLiteral("least"), Count(std::numeric_limits<qint64>::min())}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(QStringLiteral("regulars.txt")),
                 QByteArray("2\r\n\"most\"\r\n922337203685477.5807\r\n\"least\"\r\n-922337203685477.5808\r\n"));
        const auto saved = State.Regulars;
        InputRegulars();
        QVERIFY(State.Regulars == saved);
    }

    // ------------------------------------------------------------ empty lists

    void AnEmptyListIsTheOneLine0_data() { ListRows(); }
    void AnEmptyListIsTheOneLine0()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "1\r\nold contents\r\n");
        State.*list.Count = 0;
        list.Save();
        QCOMPARE(desk.ReadFile(QLatin1String(list.File)), QByteArray("0\r\n"));
    }

    void ACountOf0LeavesTheArrayAsItWas_data() { ListRows(); }
    void ACountOf0LeavesTheArrayAsItWas()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "0\r\n");
        list.Load();
        QCOMPARE(State.*list.Count, qint16(0));
        QCOMPARE(SizeOf(list), 1);
        QCOMPARE(State.Creditors(1).CreditorName, QStringLiteral("Rent"));
        QCOMPARE(State.Regulars(1).RegularItem, QStringLiteral("Food"));
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), QStringLiteral("01-15-2004"));
        QCOMPARE(State.ProjectNames(1), QStringLiteral("Roof"));
    }

    void ALoadReplacesTheWholeArray_data() { ListRows(); }
    void ALoadReplacesTheWholeArray()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        // Every list reads this: numbers as text, text as text, and counts of 0.
        desk.WriteFile(QLatin1String(list.File), "2\n0\n0\n0\n0\n0\n0\n");
        list.Load();
        QCOMPARE(State.*list.Count, qint16(2));
        QCOMPARE(SizeOf(list), 2);
        QVERIFY(State.Creditors(1).CreditorName != QStringLiteral("Rent") || list.Load != InputCreditors);
        QVERIFY(State.Regulars(1).RegularItem != QStringLiteral("Food") || list.Load != InputRegulars);
        QVERIFY(State.ExtraPayPeriods(1).PayPeriodDate.Text() != QStringLiteral("01-15-2004") ||
                list.Load != InputPayPeriods);
        QVERIFY(State.ProjectNames(1) != QStringLiteral("Roof") || list.Load != InputProjects);
    }

    // ------------------------------------------------------------ how values are read

    void CreditorsAreReadInAnySpelling_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("as written") << QByteArray("1\r\n5\r\n\"Rent\"\r\n12.5\r\n");
        QTest::newRow("line feeds alone") << QByteArray("1\n5\n\"Rent\"\n12.5\n");
        QTest::newRow("carriage returns alone") << QByteArray("1\r5\r\"Rent\"\r12.5\r");
        QTest::newRow("no end of the last line") << QByteArray("1\r\n5\r\n\"Rent\"\r\n12.5");
        QTest::newRow("all on one line") << QByteArray("1,5,\"Rent\",12.5");
        QTest::newRow("blanks around") << QByteArray("  1 \r\n\r\n  5\r\n   \"Rent\"  \r\n\t12.5\r\n");
        QTest::newRow("a blank ends the count") << QByteArray("1 5\r\nRent\r\n12.5\r\n");
        QTest::newRow("no quotes") << QByteArray("1\r\n5\r\nRent\r\n12.5\r\n");
        QTest::newRow("quoted numbers") << QByteArray("\"1\"\r\n\"5\"\r\n\"Rent\"\r\n\"12.5\"\r\n");
        QTest::newRow("the rest of the line behind a closing quote")
            << QByteArray("1\r\n5\r\n\"Rent\" or so\r\n12.5\r\n");
        QTest::newRow("more figures") << QByteArray("1.0\r\n5.0\r\n\"Rent\"\r\n12.5000\r\n");
        QTest::newRow("an exponent") << QByteArray("1\r\n5\r\n\"Rent\"\r\n1.25e1\r\n");
        QTest::newRow("a symbol") << QByteArray("1\r\n5\r\n\"Rent\"\r\n$12.50\r\n");
        QTest::newRow("a byte-order mark") << QByteArray("\xEF\xBB\xBF"
                                                         "1\r\n5\r\n\"Rent\"\r\n12.5\r\n");
        QTest::newRow("values behind the last record") << QByteArray("1\r\n5\r\n\"Rent\"\r\n12.5\r\n9\r\n\"X\"\r\n");
        QTest::newRow("a fraction as the count is rounded to even") << QByteArray("0.6\r\n5\r\n\"Rent\"\r\n12.5\r\n");
        QTest::newRow("a fraction as the day is rounded to even") << QByteArray("1\r\n4.5001\r\n\"Rent\"\r\n12.5\r\n");
    }
    void CreditorsAreReadInAnySpelling()
    {
        FakeDesk desk;
        QFETCH(QByteArray, file);
        desk.WriteFile(QStringLiteral("creditor.txt"), file);
        InputCreditors();
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.Creditors(1), (CreditorRecord{QStringLiteral("Rent"), 5, Count(125000)}));
    }

    void FractionsWithAndWithoutAZeroBeforeThePoint_data()
    {
        QTest::addColumn<QByteArray>("fraction");
        QTest::newRow("with") << QByteArray("0.06");
        QTest::newRow("without") << QByteArray(".06");
    }
    void FractionsWithAndWithoutAZeroBeforeThePoint()
    {
        FakeDesk desk;
        QFETCH(QByteArray, fraction);
        desk.LayHousehold();
        desk.WriteFile(QStringLiteral("environm.ini"),
                       "26\n" + fraction + "\n14\n1\n15\n0\n" + fraction + "\n\"untitled.lst\"\n.9\n");
        desk.WriteFile(QStringLiteral("regulars.txt"), "1\n\"Stamp\"\n" + fraction + "\n");
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{QStringLiteral("start")});
        QCOMPARE(State.PaycheckAmount, Count(600));
        QVERIFY(State.SalesTax == 0.06F);
        QVERIFY(State.AverageNetPercentage == 0.9F);
        QCOMPARE(State.Regulars(1).RegularAmount, Count(600));
    }

    void AThousandsSeparatorMakesTwoValues()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "2\nRent\n1,250.00\nBus\n3\n");
        InputRegulars();
        QCOMPARE(State.Regulars(1), (RegularRecord{QStringLiteral("Rent"), Count(10000)}));
        QCOMPARE(State.Regulars(2).RegularItem, QStringLiteral("250.00"));
        QCOMPARE(State.Regulars(2).RegularAmount, Currency());
        QCOMPARE(desk.TakeMessage(), Told(Mismatch, QStringLiteral("Input Regulars"))); // "Bus" for an amount
    }

    void ADoubleQuoteCutsTheTextAndMisreadsTheRest()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{QStringLiteral("12\" pipe, long"), Count(50000)}, {QStringLiteral("Bus"), Count(30000)}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(QStringLiteral("regulars.txt")),
                 QByteArray("2\r\n\"12\" pipe, long\"\r\n5\r\n\"Bus\"\r\n3\r\n"));
        InputRegulars();
        QCOMPARE(State.Regulars(1).RegularItem, QStringLiteral("12"));
        QCOMPARE(State.Regulars(1).RegularAmount, Currency()); // long" is no number
        QCOMPARE(State.Regulars(2).RegularItem, QStringLiteral("5"));
        QCOMPARE(State.Regulars(2).RegularAmount, Currency()); // nor is Bus
        ExpectOnly(desk, 2, Told(Mismatch, QStringLiteral("Input Regulars")));
    }

    void NamesComeBackWithEverySign_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("comma") << QStringLiteral("Smith, Jones, & Co");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks at both ends") << QStringLiteral("  Rent  ");
        QTest::newRow("accents") << QStringLiteral("Café Žižkov €");
        QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F3E0 Rent");
        QTest::newRow("looks like a number") << QStringLiteral("1250");
        QTest::newRow("looks like a Boolean") << QStringLiteral("#TRUE#");
        QTest::newRow("a mark that is no sign") << QStringLiteral("\uFEFFRent");
        QTest::newRow("long") << QString(10000, QLatin1Char('x'));
        QTest::newRow("all that a field can hold") << QString(32767, QChar(0x20AC)); // 98,301 bytes
    }
    void NamesComeBackWithEverySign()
    {
        FakeDesk desk;
        QFETCH(QString, name);
        PutOneOfEach();
        State.Creditors(1).CreditorName = State.Regulars(1).RegularItem = State.ProjectNames(1) = name;
        State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
        State.ExtraPayPeriods(1).ExtraItems.At(1).ExtraItem = name;
        for (const DataList &list : Lists) {
            desk.WriteFile(QLatin1String(list.File), "0\r\n");
            list.Save();
            QCOMPARE(desk.TakeFiles(), QStringList{QLatin1String(list.File)});
            list.Load();
        }
        QCOMPARE(State.Creditors(1).CreditorName, name);
        QCOMPARE(State.Regulars(1).RegularItem, name);
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItem, name);
        QCOMPARE(State.ProjectNames(1), name);
        QCOMPARE(State.Creditors(1).CreditorAmount, Count(6500000)); // what follows the name is where it was
    }

    void OldFilesInWindows1252Load()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "2\r\n\"Caf\xE9 \x80\"\r\n1\r\n\"Caf\xC3\xA9\"\r\n2\r\n");
        InputRegulars();
        QCOMPARE(State.Regulars(1).RegularItem, QStringLiteral("Café €"));
        QCOMPARE(State.Regulars(2).RegularItem, QStringLiteral("Café"));
    }

    void ExtraDatesTakeTheOneForm_data()
    {
        QTest::addColumn<QString>("inFile");
        QTest::addColumn<QString>("loaded");
        QTest::newRow("as written") << QStringLiteral("05-24-1997") << QStringLiteral("05-24-1997");
        QTest::newRow("short form") << QStringLiteral("5/24/1997") << QStringLiteral("05-24-1997");
        QTest::newRow("two figures of the year") << QStringLiteral("5/24/97") << QStringLiteral("05-24-1997");
        QTest::newRow("words") << QStringLiteral("May 24, 1997") << QStringLiteral("05-24-1997");
        QTest::newRow("without a year the present one") << QStringLiteral("5/24") << QStringLiteral("05-24-2004");
        QTest::newRow("an impossible date") << QStringLiteral("2/30/2004") << QStringLiteral("2/30/2004");
        QTest::newRow("no date") << QStringLiteral("pay day") << QStringLiteral("pay day");
        QTest::newRow("a bare number") << QStringLiteral("24") << QStringLiteral("24");
        QTest::newRow("nothing") << QString() << QString();
    }
    void ExtraDatesTakeTheOneForm()
    {
        FakeDesk desk;
        QFETCH(QString, inFile);
        desk.WriteFile(QStringLiteral("extra.txt"), "1\r\n\"" + inFile.toUtf8() + "\"\r\n0\r\n");
        InputPayPeriods();
        QTEST(State.ExtraPayPeriods(1).PayPeriodDate.Text(), "loaded");
    }

    void ANumberReadDirectlyThatIsNoneIs0()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("projects.txt"), "1\r\n\"Roof\"\r\nmuch\r\nmany\r\n");
        InputProjects();
        QCOMPARE(State.ProjectNames(1), QStringLiteral("Roof"));
        QCOMPARE(State.ProjectAmounts(1), Currency());
        QCOMPARE(State.ProjectEntryCounts(1), qint16(0));
    }

    void ACountThatIsNoNumberIs0_data() { ListRows(); }
    void ACountThatIsNoNumberIs0()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "three\r\n1\r\n\"A\"\r\n1\r\n");
        list.Load();
        QCOMPARE(State.*list.Count, qint16(0));
        QCOMPARE(SizeOf(list), 1);
    }

    // ------------------------------------------------------------ failures of a load

    void AMissingFileAtTheStart_data() { ListRows(); }
    void AMissingFileAtTheStart()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        list.Load();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, LoadTitle(list)));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, LoadTitle(list)));
        QCOMPARE(State.*list.Count, qint16(0));
        QCOMPARE(SizeOf(list), 0);
    }

    void AMissingFileInALaterReload_data() { ListRows(); }
    void AMissingFileInALaterReload()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        list.Load();
        // The old count stands, the array is cleared, and every read fails.
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, LoadTitle(list)));
        ExpectOnly(desk, 1 + list.ValuesOfRecord, Told(BadFile, LoadTitle(list)));
        QCOMPARE(State.*list.Count, qint16(1));
        QCOMPARE(SizeOf(list), 1);
        if (list.Load == InputCreditors)
            QCOMPARE(State.Creditors(1), CreditorRecord());
        else if (list.Load == InputRegulars)
            QCOMPARE(State.Regulars(1), RegularRecord());
        else if (list.Load == InputPayPeriods)
            QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), QString());
        else
            QCOMPARE(State.ProjectNames(1), QString());
    }

    void AMissingFolder()
    {
        FakeDesk desk;
        State.ApplicationPath = desk.Path(QStringLiteral("nowhere"));
        InputCreditors();
        QCOMPARE(desk.TakeMessage(), Told("Error 76: Path not found", QStringLiteral("Input Creditors")));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, QStringLiteral("Input Creditors")));
    }

    void AFolderInPlaceOfTheFile()
    {
        FakeDesk desk;
        QVERIFY(QDir().mkpath(desk.Path(QStringLiteral("creditor.txt"))));
        InputCreditors();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, QStringLiteral("Input Creditors")));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, QStringLiteral("Input Creditors")));
        SaveCreditors();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, QStringLiteral("Save Creditors")));
    }

    void AnEmptyFile_data() { ListRows(); }
    void AnEmptyFile()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        desk.WriteFile(QLatin1String(list.File), "");
        list.Load();
        QCOMPARE(desk.TakeMessage(), Told(PastEnd, LoadTitle(list)));
        QCOMPARE(State.*list.Count, qint16(0));
    }

    void AShortFileTellsOnceForEachMissingValue_data()
    {
        QTest::addColumn<int>("list");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("missing");
        QTest::newRow("creditors: the count alone") << 0 << QByteArray("2\r\n") << 6;
        QTest::newRow("creditors: the second name is missing") << 0 << QByteArray("2\n5\nRent\n1\n9\n") << 2;
        QTest::newRow("regulars: the amount is missing") << 1 << QByteArray("1\nFood\n") << 1;
        QTest::newRow("regulars: three of three") << 1 << QByteArray("3\n") << 6;
        QTest::newRow("pay periods: the last amount is missing")
            << 2 << QByteArray("1\n1/1/2004\n2\nGift\n1\nX\n") << 1;
        QTest::newRow("pay periods: two of two") << 2 << QByteArray("2\n") << 4;
        QTest::newRow("pay periods: all of three items") << 2 << QByteArray("1\n1/1/2004\n3\n") << 6;
        QTest::newRow("projects: one of one") << 3 << QByteArray("1\n") << 3;
        QTest::newRow("projects: two entries of two") << 3 << QByteArray("1\nRoof\n100\n2\n") << 4;
    }
    void AShortFileTellsOnceForEachMissingValue()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        QFETCH(QByteArray, file);
        QFETCH(int, missing);
        desk.WriteFile(QLatin1String(list.File), file);
        list.Load();
        ExpectOnly(desk, missing, Told(PastEnd, LoadTitle(list)));
    }

    void TheRestOfAShortFileStaysEmpty()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "2\r\n5\r\n\"Rent\"\r\n650\r\n9\r\n");
        InputCreditors();
        QCOMPARE(State.NumberOfCreditors, qint16(2));
        QCOMPARE(State.Creditors(1), (CreditorRecord{QStringLiteral("Rent"), 5, Count(6500000)}));
        QCOMPARE(State.Creditors(2), (CreditorRecord{QString(), 9, Currency()}));
        ExpectOnly(desk, 2, Told(PastEnd, QStringLiteral("Input Creditors")));
    }

    void ADamagedNumberTellsOnceAndKeeps0_data()
    {
        QTest::addColumn<int>("list");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("message");
        const QString mismatch = QString::fromLatin1(Mismatch);
        const QString tooLarge = QString::fromLatin1(TooLarge);
        QTest::newRow("a due day that is none") << 0 << QByteArray("1\nfirst\nRent\n650\n") << mismatch;
        QTest::newRow("an empty due day") << 0 << QByteArray("1\n\"\"\nRent\n650\n") << mismatch;
        QTest::newRow("a due day beyond 16 bits") << 0 << QByteArray("1\n32768\nRent\n650\n") << tooLarge;
        QTest::newRow("a due day far below") << 0 << QByteArray("1\n-40000\nRent\n650\n") << tooLarge;
        QTest::newRow("a creditor's amount that is none") << 0 << QByteArray("1\n5\nRent\nmuch\n") << mismatch;
        QTest::newRow("a creditor's amount beyond the range")
            << 0 << QByteArray("1\n5\nRent\n922337203685477.5808\n") << tooLarge;
        QTest::newRow("a regular amount that is none") << 1 << QByteArray("1\nFood\n1.2.3\n") << mismatch;
        QTest::newRow("an extra amount that is none") << 2 << QByteArray("1\n1/1/2004\n1\nGift\n5%\n") << mismatch;
        QTest::newRow("a count of items beyond 16 bits") << 2 << QByteArray("1\n1/1/2004\n32768\n") << tooLarge;
        QTest::newRow("a project's amount beyond the range") << 3 << QByteArray("1\nRoof\n1e20\n0\n") << tooLarge;
        QTest::newRow("an entry's amount that is none")
            << 3 << QByteArray("1\nRoof\n1\n1\n1/1/2004\nhalf\n") << mismatch;
    }
    void ADamagedNumberTellsOnceAndKeeps0()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        QFETCH(QByteArray, file);
        QFETCH(QString, message);
        desk.WriteFile(QLatin1String(list.File), file);
        list.Load();
        QCOMPARE(desk.TakeMessage(), (Message{message, LoadTitle(list), Icon::Stop, Buttons::Ok, 0}));
        QCOMPARE(State.*list.Count, qint16(1));
        if (list.Load == InputCreditors) {
            const bool dayIsDamaged = State.Creditors(1).CreditorDueDate == 0;
            QCOMPARE(State.Creditors(1).CreditorName, QStringLiteral("Rent"));
            QCOMPARE(State.Creditors(1).CreditorDueDate, qint16(dayIsDamaged ? 0 : 5));
            QCOMPARE(State.Creditors(1).CreditorAmount, dayIsDamaged ? Count(6500000) : Currency());
        } else if (list.Load == InputRegulars) {
            QCOMPARE(State.Regulars(1), (RegularRecord{QStringLiteral("Food"), Currency()}));
        } else if (list.Load == InputPayPeriods) {
            QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), QStringLiteral("01-01-2004"));
            QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItemAmount, Currency());
        } else {
            QCOMPARE(State.ProjectNames(1), QStringLiteral("Roof"));
            QCOMPARE(State.ProjectEntryAmounts(1)(1), Currency());
        }
    }

    void ACountBeyond16BitsIsToldAndTheOldOneStands_data() { ListRows(); }
    void ACountBeyond16BitsIsToldAndTheOldOneStands()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        desk.WriteFile(QLatin1String(list.File), "32768\r\n");
        list.Load();
        QCOMPARE(desk.TakeMessage(), Told(TooLarge, LoadTitle(list)));
        QCOMPARE(State.*list.Count, qint16(0));
        QCOMPARE(SizeOf(list), 0);
    }

    void ANegativeCountReadsNothing_data() { ListRows(); }
    void ANegativeCountReadsNothing()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "-1\r\n5\r\n\"New\"\r\n5\r\n");
        list.Load();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, LoadTitle(list)));
        QCOMPARE(State.*list.Count, qint16(-1));
        QCOMPARE(SizeOf(list), 1); // and what was there stays
        QCOMPARE(State.Creditors(1).CreditorName, QStringLiteral("Rent"));
        QCOMPARE(State.Regulars(1).RegularItem, QStringLiteral("Food"));
        QCOMPARE(State.ProjectNames(1), QStringLiteral("Roof"));
    }

    void ANegativeCountOfItemsReadsNone()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("extra.txt"), "2\n1/1/2004\n-3\n1/15/2004\n1\nGift\n20\n");
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(-3));
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(1)), 0);
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(2)), 1);
        QCOMPARE(State.ExtraPayPeriods(2).ExtraItems(1), (ExtraItemRecord{QStringLiteral("Gift"), Count(200000)}));
    }

    void ANegativeCountOfEntriesReadsNone()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("projects.txt"), "2\nRoof\n100\n-3\nTrip\n50\n1\n1/1/2004\n20\n");
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(-3));
        QCOMPARE(EntriesOf(1), 0);
        QCOMPARE(State.ProjectNames(2), QStringLiteral("Trip"));
        QCOMPARE(EntriesOf(2), 1);
        QCOMPARE(State.ProjectEntryAmounts(2)(1), Count(200000));
    }

    void OneItemBeyondTheBoundTellsTwiceAndMisalignsTheRest()
    {
        FakeDesk desk;
        QByteArray file = "2\r\n\"1/1/2004\"\r\n201\r\n";
        for (int item = 1; item <= 201; ++item)
            file += "\"Item " + QByteArray::number(item) + "\"\r\n" + QByteArray::number(item) + "\r\n";
        file += "\"1/15/2004\"\r\n0\r\n";
        desk.WriteFile(QStringLiteral("extra.txt"), file);
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(201));
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(1)), 200);
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(200),
                 (ExtraItemRecord{QStringLiteral("Item 200"), Count(2000000)}));
        // The failed reads took nothing: the 201st item's name and amount are the next record's date and count.
        QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), QStringLiteral("Item 201"));
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(201));
        QCOMPARE(State.ExtraPayPeriods(2).ExtraItems(1), (ExtraItemRecord{QStringLiteral("1/15/2004"), Currency()}));
        const QString title = QStringLiteral("Input Pay Periods");
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, title));
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, title));
        // The second record has two values and then misses 199 items, and has one item beyond the bound itself.
        for (int shown = 3; shown <= 25; ++shown)
            QCOMPARE(desk.TakeMessage(), Told(PastEnd, title));
        QCOMPARE(desk.TakeMessage(),
                 Told("Further errors in this file, not shown one by one: 377", title)); // 2 + 398 + 2 - 25
    }

    void OneEntryBeyondTheBoundTellsTwiceAndMisalignsTheRest()
    {
        FakeDesk desk;
        QByteArray file = "2\r\n\"Roof\"\r\n1000\r\n101\r\n";
        for (int entry = 1; entry <= 101; ++entry)
            file += "\"1/1/2004\"\r\n" + QByteArray::number(entry) + "\r\n";
        file += "\"Trip\"\r\n5\r\n0\r\n";
        desk.WriteFile(QStringLiteral("projects.txt"), file);
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(101));
        QCOMPARE(EntriesOf(1), 100);
        QCOMPARE(State.ProjectEntryAmounts(1)(100), Count(1000000));
        QCOMPARE(State.ProjectNames(2), QStringLiteral("1/1/2004"));
        QCOMPARE(State.ProjectAmounts(2), Count(1010000));
        QCOMPARE(State.ProjectEntryCounts(2), qint16(0)); // "Trip" is no number
        ExpectOnly(desk, 2, Told(OutOfRange, QStringLiteral("Input Projects")));
    }

    void TheGreatestCountOfItemsIsToldFor()
    {
        FakeDesk desk;
        QByteArray file = "1\n1/1/2004\n32767\n";
        for (int value = 1; value <= 200; ++value)
            file += "x\n1\n";
        desk.WriteFile(QStringLiteral("extra.txt"), file);
        InputPayPeriods();
        const QString title = QStringLiteral("Input Pay Periods");
        for (int shown = 1; shown <= 25; ++shown)
            QCOMPARE(desk.TakeMessage(), Told(OutOfRange, title));
        QCOMPARE(desk.TakeMessage(),
                 Told("Further errors in this file, not shown one by one: 65109", title)); // 2 * 32567 - 25
    }

    void TwentyFiveMessagesComeOneByOne()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "9\n5\nRent\n1\n5\n"); // 27 values, 4 of them there
        InputCreditors();
        ExpectOnly(desk, 23, Told(PastEnd, QStringLiteral("Input Creditors")));
        desk.WriteFile(QStringLiteral("creditor.txt"), "9\n5\nRent\n");
        InputCreditors();
        ExpectOnly(desk, 25, Told(PastEnd, QStringLiteral("Input Creditors")));
    }

    void OneMoreThan25IsTheLastBox()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "9\n5\n");
        InputCreditors();
        const Message last = desk.Messages.takeLast();
        ExpectOnly(desk, 25, Told(PastEnd, QStringLiteral("Input Creditors")));
        QCOMPARE(last, Told("Further errors in this file, not shown one by one: 1", QStringLiteral("Input Creditors")));
    }

    void ADamagedCountOf32767HoldsNobodyPrisoner_data() { ListRows(); }
    void ADamagedCountOf32767HoldsNobodyPrisoner()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        desk.WriteFile(QLatin1String(list.File), "32767\r\n");
        list.Load();
        QCOMPARE(State.*list.Count, qint16(32767));
        QCOMPARE(SizeOf(list), 32767);
        const Message last = desk.Messages.takeLast();
        ExpectOnly(desk, 25, Told(PastEnd, LoadTitle(list)));
        QCOMPARE(last.Text, QStringLiteral("Further errors in this file, not shown one by one: %1")
                                .arg(32767 * list.ValuesOfRecord - 25));
    }

    // ------------------------------------------------------------ full records

    void APayPeriodWith200ItemsComesBack()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("extra.txt"), "0\r\n");
        PutOneOfEach();
        State.ExtraPayPeriods(1).NumberOfExtraItems = 200;
        for (int item = 1; item <= 200; ++item)
            State.ExtraPayPeriods(1).ExtraItems.At(item) = {QString::number(item), Count(item)};
        SavePayPeriods();
        QCOMPARE(desk.TakeFiles(), QStringList{QStringLiteral("extra.txt")});
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(200));
        for (int item = 1; item <= 200; ++item)
            QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(item), (ExtraItemRecord{QString::number(item), Count(item)}));
        // The 201st cannot be stored.
        QCOMPARE(ErrorOf([] { State.ExtraPayPeriods(1).ExtraItems.At(201) = {}; }), 9);
    }

    void AProjectWith100EntriesComesBack()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("projects.txt"), "0\r\n");
        PutOneOfEach();
        State.ProjectEntryCounts(1) = 100;
        for (int entry = 1; entry <= 100; ++entry) {
            State.ProjectEntryDates(1).At(entry) = DateText(QStringLiteral("1/1/%1").arg(2000 + entry));
            State.ProjectEntryAmounts(1).At(entry) = Count(entry);
        }
        SaveProjects();
        QCOMPARE(desk.TakeFiles(), QStringList{QStringLiteral("projects.txt")});
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(100));
        QCOMPARE(State.ProjectEntryDates(1)(100).Text(), QStringLiteral("1/1/2100"));
        QCOMPARE(State.ProjectEntryAmounts(1)(100), Count(100));
    }

    // ------------------------------------------------------------ failures of a save

    void AMissingFileIsNotHealedBySaving_data() { ListRows(); }
    void AMissingFileIsNotHealedBySaving()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        list.Save();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, SaveTitle(list)));
        QVERIFY(desk.ReadFile(QLatin1String(list.File)).isNull());
        QCOMPARE(State.*list.Count, qint16(1));
        QCOMPARE(SizeOf(list), 1);
    }

    void MissingSettingsAreNotHealedBySaving()
    {
        FakeDesk desk;
        SaveEnvironmentSettings();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, QStringLiteral("Save Environment Settings")));
        QVERIFY(desk.ReadFile(QStringLiteral("environm.ini")).isNull());
    }

    void AReadOnlyFileStaysAsItWas_data() { ListRows(); }
    void AReadOnlyFileStaysAsItWas()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "as it was");
        WriteProtect(desk.Path(QLatin1String(list.File)));
        list.Save(); // told to root as well, and although the folder would allow it
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, SaveTitle(list)));
        QCOMPARE(desk.ReadFile(QLatin1String(list.File)), QByteArray("as it was"));
        QCOMPARE(State.*list.Count, qint16(1));
    }

    void AFileOfAnotherUserStaysAsItWas_data() { ListRows(); }
    void AFileOfAnotherUserStaysAsItWas()
    {
        if (::geteuid() != 0)
            QSKIP("only root can lay down the file of another user");
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        desk.WriteFile(QLatin1String(list.File), "as it was");
        QCOMPARE(::chmod(QFile::encodeName(desk.Folder()).constData(), 0777), 0); // which would allow the deletion
        QCOMPARE(InChild([&] {
                     constexpr uid_t nobody = 65534;
                     if (::setuid(nobody) != 0)
                         return 2;
                     list.Save();
                     return desk.TakeMessage() == Told(NoAccess, SaveTitle(list)) ? 0 : 1;
                 }),
                 0);
        QCOMPARE(desk.ReadFile(QLatin1String(list.File)), QByteArray("as it was"));
    }

    void ReadOnlySettingsStayAsTheyWere()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("environm.ini"), "as it was");
        WriteProtect(desk.Path(QStringLiteral("environm.ini")));
        SaveEnvironmentSettings();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, QStringLiteral("Save Environment Settings")));
        QCOMPARE(desk.ReadFile(QStringLiteral("environm.ini")), QByteArray("as it was"));
    }

    void AReadOnlyFileLoads()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("regulars.txt"), "1\r\n\"Food\"\r\n5\r\n");
        WriteProtect(desk.Path(QStringLiteral("regulars.txt")));
        InputRegulars();
        QCOMPARE(State.Regulars(1), (RegularRecord{QStringLiteral("Food"), Count(50000)}));
    }

    void AWriterEndsAtTheFirstFailureAndTheNextOneIsNotBlocked()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "1\r\n5\r\n\"Rent\"\r\n1\r\n");
        PutOneOfEach();
        State.NumberOfCreditors = 2; // more than there are
        SaveCreditors();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, QStringLiteral("Save Creditors")));
        // The values are collected first, so an error among them comes before the old file goes.
        QCOMPARE(desk.ReadFile(QStringLiteral("creditor.txt")), QByteArray("1\r\n5\r\n\"Rent\"\r\n1\r\n"));
        State.NumberOfCreditors = 1;
        SaveCreditors();
        QCOMPARE(desk.ReadFile(QStringLiteral("creditor.txt")), QByteArray("1\r\n1\r\n\"Rent\"\r\n650\r\n"));
    }

    void MoreThanARecordHoldsIsNotSaved_data()
    {
        QTest::addColumn<int>("list");
        QTest::newRow("300 items") << 2;
        QTest::newRow("150 entries") << 3;
    }
    void MoreThanARecordHoldsIsNotSaved()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        PutOneOfEach();
        State.ExtraPayPeriods(1).NumberOfExtraItems = 300;
        State.ProjectEntryCounts(1) = 150;
        desk.WriteFile(QLatin1String(list.File), "as it was");
        list.Save();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, SaveTitle(list)));
        QCOMPARE(desk.ReadFile(QLatin1String(list.File)), QByteArray("as it was"));
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(300)); // and the user may still mend it
        QCOMPARE(State.ProjectEntryCounts(1), qint16(150));
        State.ExtraPayPeriods(1).NumberOfExtraItems = 200;
        State.ProjectEntryCounts(1) = 100;
        list.Save();
        QVERIFY(desk.ReadFile(QLatin1String(list.File)).startsWith("1\r\n"));
    }

    void AFailureBehindTheDeleteIsToldAndTheMemoryStands()
    {
        FakeDesk desk;
        desk.WriteFile(QStringLiteral("creditor.txt"), "1\r\n5\r\n\"Rent\"\r\n1\r\n");
        State.NumberOfCreditors = 2;
        State.Creditors = {{QString(10000, QLatin1Char('x')), 1, Count(6500000)},
                           {QStringLiteral("Car"), 15, Count(37500)}};
        const auto inMemory = State.Creditors;
        qsizetype written = 0;
        {
            const SmallFiles limit(4096);
            SaveCreditors();
            written = desk.ReadFile(QStringLiteral("creditor.txt")).size();
        }
        QCOMPARE(desk.TakeMessage(), Told("Error 57: Device I/O error", QStringLiteral("Save Creditors")));
        QVERIFY(written <= 4096);
        QVERIFY(!desk.ReadFile(QStringLiteral("creditor.txt")).contains("Rent")); // the old file was gone by then
        QCOMPARE(State.NumberOfCreditors, qint16(2));
        QVERIFY(State.Creditors == inMemory);
        SaveCreditors(); // once there is room, the memory is saved whole
        QCOMPARE(desk.ReadFile(QStringLiteral("creditor.txt")),
                 "2\r\n1\r\n\"" + QByteArray(10000, 'x') + "\"\r\n650\r\n15\r\n\"Car\"\r\n3.75\r\n");
    }

    void AFullDiskIsTold()
    {
        if (!QFile::exists(QStringLiteral("/dev/full")))
            QSKIP("this system has no device that is always full");
        FakeDesk desk;
        QVERIFY(QDir().mkpath(desk.Path(QStringLiteral("stores"))));
        // No plain file, so nothing is deleted before the device is written to.
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), desk.Path(QStringLiteral("stores/full.lst"))));
        State.CurrentStoreFile = QStringLiteral("full.lst");
        State.NumberOfCurrentItems = 1;
        State.CurrentShoppingList.Redim(1);
        State.CurrentShoppingList(1).Item = QStringLiteral("Milk");
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told("Error 61: Disk full", QStringLiteral("Save Current Shopping List")));
        QCOMPARE(State.NumberOfCurrentItems, qint16(1));
        QCOMPARE(State.CurrentShoppingList(1).Item, QStringLiteral("Milk"));
    }

    // ------------------------------------------------------------ names and locales

    void UpperCaseNamesAreFoundAndRewrittenInTheProgramsOwnSpelling_data() { ListRows(); }
    void UpperCaseNamesAreFoundAndRewrittenInTheProgramsOwnSpelling()
    {
        FakeDesk desk;
        const DataList &list = FetchedList();
        const QString upper = QString::fromLatin1(list.File).toUpper();
        desk.WriteFile(upper, "1\n7\n0\n0\n");
        list.Load();
        QCOMPARE(State.*list.Count, qint16(1));
        State.*list.Count = 0;
        list.Save();
        // No second file beside the old one: a later load would not know which of the two to take.
        QCOMPARE(QDir(desk.Folder()).entryList(QDir::Files), QStringList(QLatin1String(list.File)));
        QCOMPARE(desk.ReadFile(QLatin1String(list.File)), QByteArray("0\r\n"));
        QCOMPARE(desk.TakeFiles(), QStringList{upper}); // gone
    }

    void StoreListsWhoseNamesDifferInCaseAloneAreTwo_data()
    {
        QTest::addColumn<QString>("saved");
        QTest::addColumn<QString>("other");
        QTest::newRow("the small one is saved") << QStringLiteral("aldo.lst") << QStringLiteral("ALDO.LST");
        QTest::newRow("the capital one is saved") << QStringLiteral("ALDO.LST") << QStringLiteral("aldo.lst");
    }
    void StoreListsWhoseNamesDifferInCaseAloneAreTwo()
    {
        FakeDesk desk;
        QFETCH(QString, saved);
        QFETCH(QString, other);
        const auto list = [](const QByteArray &item) {
            return "1\r\n\"" + item + "\"\r\n\"\"\r\n2\r\n\"\"\r\n1\r\n#TRUE#\r\n0\r\n2\r\n";
        };
        desk.WriteFile(QStringLiteral("stores/") + saved, list("Milk"));
        desk.WriteFile(QStringLiteral("stores/") + other, list("Eggs"));
        State.CurrentStoreFile = saved;
        InputCurrentShoppingList();
        QCOMPARE(State.CurrentShoppingList(1).Item, QStringLiteral("Milk"));
        State.CurrentShoppingList(1).Item = QStringLiteral("Bread");
        SaveCurrentShoppingList();
        QCOMPARE(desk.ReadFile(QStringLiteral("stores/") + saved), list("Bread"));
        QCOMPARE(desk.ReadFile(QStringLiteral("stores/") + other), list("Eggs"));
        QCOMPARE(QDir(desk.Path(QStringLiteral("stores"))).entryList(QDir::Files).size(), 2);
    }

    void AHouseholdFromAnOldDiskStarts()
    {
        FakeDesk desk;
        desk.LayHousehold();
        const QDir folder(desk.Folder());
        QDir renamed(desk.Folder());
        for (const QString &name : folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY(renamed.rename(name, name.toUpper()));
        QVERIFY(QFile::rename(desk.Path(QStringLiteral("STORES/untitled.lst")),
                              desk.Path(QStringLiteral("STORES/UNTITLED.LST"))));
        desk.TakeFiles(); // their names are changed
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{QStringLiteral("start")});
        QVERIFY(!State.InitializingVariables);
        QVERIFY(!State.MathCalculatorMissing);
        QCOMPARE(State.ForecastPeriods, qint16(26));
    }

    void FilesReadAndWriteTheSameInEveryLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
        QTest::newRow("French") << QLocale(QLocale::French, QLocale::France);
        QTest::newRow("Arabic figures") << QLocale(QLocale::Arabic, QLocale::Egypt);
        QTest::newRow("Indian groups") << QLocale(QLocale::Hindi, QLocale::India);
    }
    void FilesReadAndWriteTheSameInEveryLocale()
    {
        FakeDesk desk;
        QFETCH(QLocale, locale);
        const InLocale inLocale(locale);
        desk.LayHousehold();
        const QMap<QString, QByteArray> files{
            {QStringLiteral("creditor.txt"), "1\r\n5\r\n\"Rent\"\r\n1234.5678\r\n"},
            {QStringLiteral("regulars.txt"), "1\r\n\"Food\"\r\n-0.5\r\n"},
            {QStringLiteral("extra.txt"), "1\r\n\"05-24-1997\"\r\n1\r\n\"Gift\"\r\n12.5\r\n"},
            {QStringLiteral("projects.txt"), "1\r\n\"Roof\"\r\n1000.25\r\n1\r\n\"1/15/2004\"\r\n0.0001\r\n"},
            {QStringLiteral("environm.ini"),
             "26\r\n1061.5385\r\n14\r\n1\r\n15\r\n0\r\n0.0625\r\n\"untitled.lst\"\r\n0.9\r\n"}};
        for (auto file = files.begin(); file != files.end(); ++file)
            desk.WriteFile(file.key(), file.value());
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{QStringLiteral("start")});
        QCOMPARE(State.Creditors(1).CreditorAmount, Count(12345678));
        QCOMPARE(State.Regulars(1).RegularAmount, Count(-5000));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItemAmount, Count(125000));
        QCOMPARE(State.ProjectAmounts(1), Count(10002500));
        QCOMPARE(State.ProjectEntryAmounts(1)(1), Count(1));
        QCOMPARE(State.PaycheckAmount, Count(10615385));
        QVERIFY(State.SalesTax == 0.0625F);
        for (const DataList &list : Lists)
            list.Save();
        SaveEnvironmentSettings();
        for (auto file = files.begin(); file != files.end(); ++file)
            QCOMPARE(desk.ReadFile(file.key()), file.value());
    }

    // ------------------------------------------------------------ the reset of the household

    void TheResetLeavesFiveEmptyLists()
    {
        FakeDesk desk;
        const char *names[] = {"creditor.txt", "extra.txt", "mastshop.txt", "projects.txt", "regulars.txt"};
        for (const char *name : names)
            desk.WriteFile(QLatin1String(name), "1\r\nold\r\n");
        desk.WriteFile(QStringLiteral("environm.ini"), "stays");
        PutOneOfEach();
        InitializeFiles();
        for (const char *name : names)
            QCOMPARE(desk.ReadFile(QLatin1String(name)), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(QStringLiteral("environm.ini")), QByteArray("stays"));
        QCOMPARE(State.NumberOfCreditors, qint16(1)); // the lists in memory are not its matter
    }

    void TheResetStopsAtTheFirstMissingFile_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<int>("reset");
        const char *names[] = {"creditor.txt", "extra.txt", "mastshop.txt", "projects.txt", "regulars.txt"};
        for (int i = 0; i < 5; ++i)
            QTest::newRow(names[i]) << QString::fromLatin1(names[i]) << i;
    }
    void TheResetStopsAtTheFirstMissingFile()
    {
        FakeDesk desk;
        QFETCH(QString, missing);
        QFETCH(int, reset);
        const char *names[] = {"creditor.txt", "extra.txt", "mastshop.txt", "projects.txt", "regulars.txt"};
        for (const char *name : names)
            if (QLatin1String(name) != missing)
                desk.WriteFile(QLatin1String(name), "old");
        InitializeFiles();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, QStringLiteral("Initialize Files")));
        for (int i = 0; i < 5; ++i)
            QCOMPARE(desk.ReadFile(QLatin1String(names[i])), i < reset    ? QByteArray("0\r\n")
                                                             : i == reset ? QByteArray()
                                                                          : QByteArray("old"));
    }

    void TheResetStopsAtAReadOnlyFile()
    {
        FakeDesk desk;
        for (const char *name : {"creditor.txt", "extra.txt", "mastshop.txt", "projects.txt", "regulars.txt"})
            desk.WriteFile(QLatin1String(name), "old");
        WriteProtect(desk.Path(QStringLiteral("extra.txt")));
        InitializeFiles();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, QStringLiteral("Initialize Files")));
        QCOMPARE(desk.ReadFile(QStringLiteral("creditor.txt")), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(QStringLiteral("extra.txt")), QByteArray("old"));
        QCOMPARE(desk.ReadFile(QStringLiteral("mastshop.txt")), QByteArray("old"));
    }
};

REGISTER_TEST(TestFiles)
#include "tst_files.moc"

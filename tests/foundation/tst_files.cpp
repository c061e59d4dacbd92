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

using namespace Qt::Literals::StringLiterals;

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
    State.Creditors = {{u"Rent"_s, 1, Count(6500000)}};
    State.Regulars = {{u"Food"_s, Count(1000000)}};
    State.ExtraPayPeriods.Redim(1);
    State.ExtraPayPeriods(1).PayPeriodDate = DateText(u"01-15-2004"_s);
    State.ProjectNames = {u"Roof"_s};
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
        desk.WriteFile(u"creditor.txt"_s, "0\r\n");
        State.NumberOfCreditors = 3;
        State.Creditors = {
            {u"Rent"_s, 1, Count(12500000)}, {u"Car, blue"_s, 15, Count(-37500)}, {QString(), 28, Count(125000)}};
        SaveCreditors();
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s),
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
        desk.WriteFile(u"regulars.txt"_s, "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{u"Groceries"_s, Count(1000000)}, {u"Bus"_s, Count(1)}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), QByteArray("2\r\n\"Groceries\"\r\n100\r\n\"Bus\"\r\n0.0001\r\n"));
        const auto saved = State.Regulars;
        State.Regulars.Redim(0);
        InputRegulars();
        QVERIFY(State.Regulars == saved);
    }

    void PayPeriodsAreDateCountAndItems()
    {
        FakeDesk desk;
        desk.WriteFile(u"extra.txt"_s, "0\r\n");
        State.NumberOfExtraPayPeriods = 2;
        State.ExtraPayPeriods.Redim(2);
        State.ExtraPayPeriods(1).PayPeriodDate = DateText(u"5/24/1997"_s);
        State.ExtraPayPeriods(1).NumberOfExtraItems = 2;
        State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Gift"_s, Count(0)};
        State.ExtraPayPeriods(1).ExtraItems.At(2) = {u"Refund"_s, Count(-200000)};
        State.ExtraPayPeriods(2).PayPeriodDate = DateText(u"some day"_s);
        SavePayPeriods();
        QCOMPARE(desk.ReadFile(u"extra.txt"_s),
                 QByteArray("2\r\n\"5/24/1997\"\r\n2\r\n\"Gift\"\r\n0\r\n\"Refund\"\r\n-20\r\n\"some day\"\r\n0\r\n"));
        InputPayPeriods();
        QCOMPARE(State.NumberOfExtraPayPeriods, qint16(2));
        // The first reload brings every date into the one form; what is no date passes through.
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"05-24-1997"_s);
        QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), u"some day"_s);
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(2));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(0), ExtraItemRecord());
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1), (ExtraItemRecord{u"Gift"_s, Count(0)}));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(2), (ExtraItemRecord{u"Refund"_s, Count(-200000)}));
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(0));
        SavePayPeriods();
        QVERIFY(desk.ReadFile(u"extra.txt"_s).startsWith("2\r\n\"05-24-1997\"\r\n"));
    }

    void ProjectsAreNameAmountCountAndEntries()
    {
        FakeDesk desk;
        desk.WriteFile(u"projects.txt"_s, "0\r\n");
        State.NumberOfProjects = 2;
        State.ProjectNames = {u"Roof"_s, u"Trip"_s};
        State.ProjectAmounts = {Count(10005000), Count(0)};
        State.ProjectEntryCounts = {qint16(2), qint16(0)};
        State.ProjectEntryDates.Redim(2);
        State.ProjectEntryAmounts.Redim(2);
        State.ProjectEntryDates(1).At(1) = DateText(u"1/1/2004"_s);
        State.ProjectEntryAmounts(1).At(1) = Count(5002500);
        State.ProjectEntryDates(1).At(2) = DateText(u"1/15/2004"_s);
        State.ProjectEntryAmounts(1).At(2) = Count(5002500);
        SaveProjects();
        QCOMPARE(desk.ReadFile(u"projects.txt"_s),
                 QByteArray("2\r\n\"Roof\"\r\n1000.5\r\n2\r\n\"1/1/2004\"\r\n500.25\r\n\"1/15/2004\"\r\n500.25\r\n"
                            "\"Trip\"\r\n0\r\n0\r\n"));
        State = SharedState();
        State.ApplicationPath = desk.Folder();
        InputProjects();
        QCOMPARE(State.NumberOfProjects, qint16(2));
        QCOMPARE(State.ProjectNames(1), u"Roof"_s);
        QCOMPARE(State.ProjectAmounts(1), Count(10005000));
        QCOMPARE(State.ProjectEntryCounts(1), qint16(2));
        QCOMPARE(State.ProjectEntryDates(1)(0).Text(), QString());
        // Unlike those of the pay periods these dates keep the form that they have in the file.
        QCOMPARE(State.ProjectEntryDates(1)(2).Text(), u"1/15/2004"_s);
        QCOMPARE(State.ProjectEntryAmounts(1)(2), Count(5002500));
        QCOMPARE(State.ProjectNames(2), u"Trip"_s);
        QCOMPARE(State.ProjectEntryCounts(2), qint16(0));
        for (const int size : {State.ProjectNames.Size(), State.ProjectAmounts.Size(), State.ProjectEntryCounts.Size(),
                               State.ProjectEntryDates.Size(), State.ProjectEntryAmounts.Size()})
            QCOMPARE(size, 2);
    }

    void SettingsAreNineLines()
    {
        FakeDesk desk;
        desk.WriteFile(u"environm.ini"_s, "");
        State.ForecastPeriods = 26;
        State.PaycheckAmount = Count(10000000);
        State.PayFrequency = 14;
        State.FirstPayDate = 1;
        State.SecondPayDate = 15;
        State.SalesTax = 0.06F;
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.AverageNetPercentage = 0.9F;
        SaveEnvironmentSettings();
        QCOMPARE(desk.ReadFile(u"environm.ini"_s),
                 QByteArray("26\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n"));
    }

    void MonthEndPayIsWrittenAsAnInteger()
    {
        FakeDesk desk;
        desk.WriteFile(u"environm.ini"_s, "");
        State.PayFrequency = 30;
        State.MonthEndPay = -1;
        State.SalesTax = 0.0625F;
        State.AverageNetPercentage = 1.0F / 3;
        SaveEnvironmentSettings();
        QCOMPARE(desk.ReadFile(u"environm.ini"_s),
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
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.AverageNetPercentage = 0.8437F;
        SaveEnvironmentSettings();
        QCOMPARE(desk.TakeFiles(), QStringList{u"environm.ini"_s});
        State = SharedState();
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        QCOMPARE(State.ForecastPeriods, qint16(1000));
        QCOMPARE(State.PaycheckAmount, Count(12345678));
        QCOMPARE(State.PayFrequency, qint16(15));
        QCOMPARE(State.FirstPayDate, qint16(15));
        QCOMPARE(State.SecondPayDate, qint16(0));
        QCOMPARE(State.MonthEndPay, qint16(0));
        QVERIFY(State.SalesTax == 0.06F);
        QCOMPARE(State.CurrentStoreFile, u"untitled.lst"_s);
        QVERIFY(State.AverageNetPercentage == 0.8437F);
    }

    void AmountsAtTheEndsOfTheRangeComeBack()
    {
        FakeDesk desk;
        desk.WriteFile(u"regulars.txt"_s, "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{u"most"_s, Count(std::numeric_limits<qint64>::max())},
                          {u"least"_s, Count(std::numeric_limits<qint64>::min())}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s),
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
        QCOMPARE(State.Creditors(1).CreditorName, u"Rent"_s);
        QCOMPARE(State.Regulars(1).RegularItem, u"Food"_s);
        QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"01-15-2004"_s);
        QCOMPARE(State.ProjectNames(1), u"Roof"_s);
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
        QVERIFY(State.Creditors(1).CreditorName != u"Rent"_s || list.Load != InputCreditors);
        QVERIFY(State.Regulars(1).RegularItem != u"Food"_s || list.Load != InputRegulars);
        QVERIFY(State.ExtraPayPeriods(1).PayPeriodDate.Text() != u"01-15-2004"_s || list.Load != InputPayPeriods);
        QVERIFY(State.ProjectNames(1) != u"Roof"_s || list.Load != InputProjects);
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
        desk.WriteFile(u"creditor.txt"_s, file);
        InputCreditors();
        QCOMPARE(State.NumberOfCreditors, qint16(1));
        QCOMPARE(State.Creditors(1), (CreditorRecord{u"Rent"_s, 5, Count(125000)}));
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
        desk.WriteFile(u"environm.ini"_s,
                       "26\n" + fraction + "\n14\n1\n15\n0\n" + fraction + "\n\"untitled.lst\"\n.9\n");
        desk.WriteFile(u"regulars.txt"_s, "1\n\"Stamp\"\n" + fraction + "\n");
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
        QCOMPARE(State.PaycheckAmount, Count(600));
        QVERIFY(State.SalesTax == 0.06F);
        QVERIFY(State.AverageNetPercentage == 0.9F);
        QCOMPARE(State.Regulars(1).RegularAmount, Count(600));
    }

    void AThousandsSeparatorMakesTwoValues()
    {
        FakeDesk desk;
        desk.WriteFile(u"regulars.txt"_s, "2\nRent\n1,250.00\nBus\n3\n");
        InputRegulars();
        QCOMPARE(State.Regulars(1), (RegularRecord{u"Rent"_s, Count(10000)}));
        QCOMPARE(State.Regulars(2).RegularItem, u"250.00"_s);
        QCOMPARE(State.Regulars(2).RegularAmount, Currency());
        QCOMPARE(desk.TakeMessage(), Told(Mismatch, u"Input Regulars"_s)); // "Bus" for an amount
    }

    void ADoubleQuoteCutsTheTextAndMisreadsTheRest()
    {
        FakeDesk desk;
        desk.WriteFile(u"regulars.txt"_s, "0\r\n");
        State.NumberOfRegulars = 2;
        State.Regulars = {{u"12\" pipe, long"_s, Count(50000)}, {u"Bus"_s, Count(30000)}};
        SaveRegulars();
        QCOMPARE(desk.ReadFile(u"regulars.txt"_s), QByteArray("2\r\n\"12\" pipe, long\"\r\n5\r\n\"Bus\"\r\n3\r\n"));
        InputRegulars();
        QCOMPARE(State.Regulars(1).RegularItem, u"12"_s);
        QCOMPARE(State.Regulars(1).RegularAmount, Currency()); // long" is no number
        QCOMPARE(State.Regulars(2).RegularItem, u"5"_s);
        QCOMPARE(State.Regulars(2).RegularAmount, Currency()); // nor is Bus
        ExpectOnly(desk, 2, Told(Mismatch, u"Input Regulars"_s));
    }

    void NamesComeBackWithEverySign_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("comma") << u"Smith, Jones, & Co"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks at both ends") << u"  Rent  "_s;
        QTest::newRow("accents") << u"Café Žižkov €"_s;
        QTest::newRow("beyond the basic plane") << u"\U0001F3E0 Rent"_s;
        QTest::newRow("looks like a number") << u"1250"_s;
        QTest::newRow("looks like a Boolean") << u"#TRUE#"_s;
        QTest::newRow("a mark that is no sign") << u"\uFEFFRent"_s;
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
        desk.WriteFile(u"regulars.txt"_s, "2\r\n\"Caf\xE9 \x80\"\r\n1\r\n\"Caf\xC3\xA9\"\r\n2\r\n");
        InputRegulars();
        QCOMPARE(State.Regulars(1).RegularItem, u"Café €"_s);
        QCOMPARE(State.Regulars(2).RegularItem, u"Café"_s);
    }

    void ExtraDatesTakeTheOneForm_data()
    {
        QTest::addColumn<QString>("inFile");
        QTest::addColumn<QString>("loaded");
        QTest::newRow("as written") << u"05-24-1997"_s << u"05-24-1997"_s;
        QTest::newRow("short form") << u"5/24/1997"_s << u"05-24-1997"_s;
        QTest::newRow("two figures of the year") << u"5/24/97"_s << u"05-24-1997"_s;
        QTest::newRow("words") << u"May 24, 1997"_s << u"05-24-1997"_s;
        QTest::newRow("without a year the present one") << u"5/24"_s << u"05-24-2004"_s;
        QTest::newRow("an impossible date") << u"2/30/2004"_s << u"2/30/2004"_s;
        QTest::newRow("no date") << u"pay day"_s << u"pay day"_s;
        QTest::newRow("a bare number") << u"24"_s << u"24"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void ExtraDatesTakeTheOneForm()
    {
        FakeDesk desk;
        QFETCH(QString, inFile);
        desk.WriteFile(u"extra.txt"_s, "1\r\n\"" + inFile.toUtf8() + "\"\r\n0\r\n");
        InputPayPeriods();
        QTEST(State.ExtraPayPeriods(1).PayPeriodDate.Text(), "loaded");
    }

    void ANumberReadDirectlyThatIsNoneIs0()
    {
        FakeDesk desk;
        desk.WriteFile(u"projects.txt"_s, "1\r\n\"Roof\"\r\nmuch\r\nmany\r\n");
        InputProjects();
        QCOMPARE(State.ProjectNames(1), u"Roof"_s);
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
        State.ApplicationPath = desk.Path(u"nowhere"_s);
        InputCreditors();
        QCOMPARE(desk.TakeMessage(), Told("Error 76: Path not found", u"Input Creditors"_s));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, u"Input Creditors"_s));
    }

    void AFolderInPlaceOfTheFile()
    {
        FakeDesk desk;
        QVERIFY(QDir().mkpath(desk.Path(u"creditor.txt"_s)));
        InputCreditors();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, u"Input Creditors"_s));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, u"Input Creditors"_s));
        SaveCreditors();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, u"Save Creditors"_s));
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
        desk.WriteFile(u"creditor.txt"_s, "2\r\n5\r\n\"Rent\"\r\n650\r\n9\r\n");
        InputCreditors();
        QCOMPARE(State.NumberOfCreditors, qint16(2));
        QCOMPARE(State.Creditors(1), (CreditorRecord{u"Rent"_s, 5, Count(6500000)}));
        QCOMPARE(State.Creditors(2), (CreditorRecord{QString(), 9, Currency()}));
        ExpectOnly(desk, 2, Told(PastEnd, u"Input Creditors"_s));
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
            QCOMPARE(State.Creditors(1).CreditorName, u"Rent"_s);
            QCOMPARE(State.Creditors(1).CreditorDueDate, qint16(dayIsDamaged ? 0 : 5));
            QCOMPARE(State.Creditors(1).CreditorAmount, dayIsDamaged ? Count(6500000) : Currency());
        } else if (list.Load == InputRegulars) {
            QCOMPARE(State.Regulars(1), (RegularRecord{u"Food"_s, Currency()}));
        } else if (list.Load == InputPayPeriods) {
            QCOMPARE(State.ExtraPayPeriods(1).PayPeriodDate.Text(), u"01-01-2004"_s);
            QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItemAmount, Currency());
        } else {
            QCOMPARE(State.ProjectNames(1), u"Roof"_s);
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
        QCOMPARE(State.Creditors(1).CreditorName, u"Rent"_s);
        QCOMPARE(State.Regulars(1).RegularItem, u"Food"_s);
        QCOMPARE(State.ProjectNames(1), u"Roof"_s);
    }

    void ANegativeCountOfItemsReadsNone()
    {
        FakeDesk desk;
        desk.WriteFile(u"extra.txt"_s, "2\n1/1/2004\n-3\n1/15/2004\n1\nGift\n20\n");
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(-3));
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(1)), 0);
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(2)), 1);
        QCOMPARE(State.ExtraPayPeriods(2).ExtraItems(1), (ExtraItemRecord{u"Gift"_s, Count(200000)}));
    }

    void ANegativeCountOfEntriesReadsNone()
    {
        FakeDesk desk;
        desk.WriteFile(u"projects.txt"_s, "2\nRoof\n100\n-3\nTrip\n50\n1\n1/1/2004\n20\n");
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(-3));
        QCOMPARE(EntriesOf(1), 0);
        QCOMPARE(State.ProjectNames(2), u"Trip"_s);
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
        desk.WriteFile(u"extra.txt"_s, file);
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).NumberOfExtraItems, qint16(201));
        QCOMPARE(ItemsOf(State.ExtraPayPeriods(1)), 200);
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(200), (ExtraItemRecord{u"Item 200"_s, Count(2000000)}));
        // The failed reads took nothing: the 201st item's name and amount are the next record's date and count.
        QCOMPARE(State.ExtraPayPeriods(2).PayPeriodDate.Text(), u"Item 201"_s);
        QCOMPARE(State.ExtraPayPeriods(2).NumberOfExtraItems, qint16(201));
        QCOMPARE(State.ExtraPayPeriods(2).ExtraItems(1), (ExtraItemRecord{u"1/15/2004"_s, Currency()}));
        const QString title = u"Input Pay Periods"_s;
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
        desk.WriteFile(u"projects.txt"_s, file);
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(101));
        QCOMPARE(EntriesOf(1), 100);
        QCOMPARE(State.ProjectEntryAmounts(1)(100), Count(1000000));
        QCOMPARE(State.ProjectNames(2), u"1/1/2004"_s);
        QCOMPARE(State.ProjectAmounts(2), Count(1010000));
        QCOMPARE(State.ProjectEntryCounts(2), qint16(0)); // "Trip" is no number
        ExpectOnly(desk, 2, Told(OutOfRange, u"Input Projects"_s));
    }

    void TheGreatestCountOfItemsIsToldFor()
    {
        FakeDesk desk;
        QByteArray file = "1\n1/1/2004\n32767\n";
        for (int value = 1; value <= 200; ++value)
            file += "x\n1\n";
        desk.WriteFile(u"extra.txt"_s, file);
        InputPayPeriods();
        const QString title = u"Input Pay Periods"_s;
        for (int shown = 1; shown <= 25; ++shown)
            QCOMPARE(desk.TakeMessage(), Told(OutOfRange, title));
        QCOMPARE(desk.TakeMessage(),
                 Told("Further errors in this file, not shown one by one: 65109", title)); // 2 * 32567 - 25
    }

    void TwentyFiveMessagesComeOneByOne()
    {
        FakeDesk desk;
        desk.WriteFile(u"creditor.txt"_s, "9\n5\nRent\n1\n5\n"); // 27 values, 4 of them there
        InputCreditors();
        ExpectOnly(desk, 23, Told(PastEnd, u"Input Creditors"_s));
        desk.WriteFile(u"creditor.txt"_s, "9\n5\nRent\n");
        InputCreditors();
        ExpectOnly(desk, 25, Told(PastEnd, u"Input Creditors"_s));
    }

    void OneMoreThan25IsTheLastBox()
    {
        FakeDesk desk;
        desk.WriteFile(u"creditor.txt"_s, "9\n5\n");
        InputCreditors();
        const Message last = desk.Messages.takeLast();
        ExpectOnly(desk, 25, Told(PastEnd, u"Input Creditors"_s));
        QCOMPARE(last, Told("Further errors in this file, not shown one by one: 1", u"Input Creditors"_s));
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
        QCOMPARE(last.Text,
                 u"Further errors in this file, not shown one by one: %1"_s.arg(32767 * list.ValuesOfRecord - 25));
    }

    // ------------------------------------------------------------ full records

    void APayPeriodWith200ItemsComesBack()
    {
        FakeDesk desk;
        desk.WriteFile(u"extra.txt"_s, "0\r\n");
        PutOneOfEach();
        State.ExtraPayPeriods(1).NumberOfExtraItems = 200;
        for (int item = 1; item <= 200; ++item)
            State.ExtraPayPeriods(1).ExtraItems.At(item) = {QString::number(item), Count(item)};
        SavePayPeriods();
        QCOMPARE(desk.TakeFiles(), QStringList{u"extra.txt"_s});
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
        desk.WriteFile(u"projects.txt"_s, "0\r\n");
        PutOneOfEach();
        State.ProjectEntryCounts(1) = 100;
        for (int entry = 1; entry <= 100; ++entry) {
            State.ProjectEntryDates(1).At(entry) = DateText(u"1/1/%1"_s.arg(2000 + entry));
            State.ProjectEntryAmounts(1).At(entry) = Count(entry);
        }
        SaveProjects();
        QCOMPARE(desk.TakeFiles(), QStringList{u"projects.txt"_s});
        InputProjects();
        QCOMPARE(State.ProjectEntryCounts(1), qint16(100));
        QCOMPARE(State.ProjectEntryDates(1)(100).Text(), u"1/1/2100"_s);
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
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, u"Save Environment Settings"_s));
        QVERIFY(desk.ReadFile(u"environm.ini"_s).isNull());
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
        desk.WriteFile(u"environm.ini"_s, "as it was");
        WriteProtect(desk.Path(u"environm.ini"_s));
        SaveEnvironmentSettings();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, u"Save Environment Settings"_s));
        QCOMPARE(desk.ReadFile(u"environm.ini"_s), QByteArray("as it was"));
    }

    void AReadOnlyFileLoads()
    {
        FakeDesk desk;
        desk.WriteFile(u"regulars.txt"_s, "1\r\n\"Food\"\r\n5\r\n");
        WriteProtect(desk.Path(u"regulars.txt"_s));
        InputRegulars();
        QCOMPARE(State.Regulars(1), (RegularRecord{u"Food"_s, Count(50000)}));
    }

    void AWriterEndsAtTheFirstFailureAndTheNextOneIsNotBlocked()
    {
        FakeDesk desk;
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n1\r\n");
        PutOneOfEach();
        State.NumberOfCreditors = 2; // more than there are
        SaveCreditors();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, u"Save Creditors"_s));
        // The values are collected first, so an error among them comes before the old file goes.
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("1\r\n5\r\n\"Rent\"\r\n1\r\n"));
        State.NumberOfCreditors = 1;
        SaveCreditors();
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("1\r\n1\r\n\"Rent\"\r\n650\r\n"));
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
        desk.WriteFile(u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n1\r\n");
        State.NumberOfCreditors = 2;
        State.Creditors = {{QString(10000, QLatin1Char('x')), 1, Count(6500000)}, {u"Car"_s, 15, Count(37500)}};
        const auto inMemory = State.Creditors;
        qsizetype written = 0;
        {
            const SmallFiles limit(4096);
            SaveCreditors();
            written = desk.ReadFile(u"creditor.txt"_s).size();
        }
        QCOMPARE(desk.TakeMessage(), Told("Error 57: Device I/O error", u"Save Creditors"_s));
        QVERIFY(written <= 4096);
        QVERIFY(!desk.ReadFile(u"creditor.txt"_s).contains("Rent")); // the old file was gone by then
        QCOMPARE(State.NumberOfCreditors, qint16(2));
        QVERIFY(State.Creditors == inMemory);
        SaveCreditors(); // once there is room, the memory is saved whole
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s),
                 "2\r\n1\r\n\"" + QByteArray(10000, 'x') + "\"\r\n650\r\n15\r\n\"Car\"\r\n3.75\r\n");
    }

    void AFullDiskIsTold()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("this system has no device that is always full");
        FakeDesk desk;
        QVERIFY(QDir().mkpath(desk.Path(u"stores"_s)));
        // No plain file, so nothing is deleted before the device is written to.
        QVERIFY(QFile::link(u"/dev/full"_s, desk.Path(u"stores/full.lst"_s)));
        State.CurrentStoreFile = u"full.lst"_s;
        State.NumberOfCurrentItems = 1;
        State.CurrentShoppingList.Redim(1);
        State.CurrentShoppingList(1).Item = u"Milk"_s;
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told("Error 61: Disk full", u"Save Current Shopping List"_s));
        QCOMPARE(State.NumberOfCurrentItems, qint16(1));
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Milk"_s);
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
        QTest::newRow("the small one is saved") << u"aldo.lst"_s << u"ALDO.LST"_s;
        QTest::newRow("the capital one is saved") << u"ALDO.LST"_s << u"aldo.lst"_s;
    }
    void StoreListsWhoseNamesDifferInCaseAloneAreTwo()
    {
        FakeDesk desk;
        QFETCH(QString, saved);
        QFETCH(QString, other);
        const auto list = [](const QByteArray &item) {
            return "1\r\n\"" + item + "\"\r\n\"\"\r\n2\r\n\"\"\r\n1\r\n#TRUE#\r\n0\r\n2\r\n";
        };
        desk.WriteFile(u"stores/"_s + saved, list("Milk"));
        desk.WriteFile(u"stores/"_s + other, list("Eggs"));
        State.CurrentStoreFile = saved;
        InputCurrentShoppingList();
        QCOMPARE(State.CurrentShoppingList(1).Item, u"Milk"_s);
        State.CurrentShoppingList(1).Item = u"Bread"_s;
        SaveCurrentShoppingList();
        QCOMPARE(desk.ReadFile(u"stores/"_s + saved), list("Bread"));
        QCOMPARE(desk.ReadFile(u"stores/"_s + other), list("Eggs"));
        QCOMPARE(QDir(desk.Path(u"stores"_s)).entryList(QDir::Files).size(), 2);
    }

    void AHouseholdFromAnOldDiskStarts()
    {
        FakeDesk desk;
        desk.LayHousehold();
        const QDir folder(desk.Folder());
        QDir renamed(desk.Folder());
        for (const QString &name : folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot))
            QVERIFY(renamed.rename(name, name.toUpper()));
        QVERIFY(QFile::rename(desk.Path(u"STORES/untitled.lst"_s), desk.Path(u"STORES/UNTITLED.LST"_s)));
        desk.TakeFiles(); // their names are changed
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
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
            {u"creditor.txt"_s, "1\r\n5\r\n\"Rent\"\r\n1234.5678\r\n"},
            {u"regulars.txt"_s, "1\r\n\"Food\"\r\n-0.5\r\n"},
            {u"extra.txt"_s, "1\r\n\"05-24-1997\"\r\n1\r\n\"Gift\"\r\n12.5\r\n"},
            {u"projects.txt"_s, "1\r\n\"Roof\"\r\n1000.25\r\n1\r\n\"1/15/2004\"\r\n0.0001\r\n"},
            {u"environm.ini"_s, "26\r\n1061.5385\r\n14\r\n1\r\n15\r\n0\r\n0.0625\r\n\"untitled.lst\"\r\n0.9\r\n"}};
        for (auto file = files.begin(); file != files.end(); ++file)
            desk.WriteFile(file.key(), file.value());
        InitializeVariables();
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"start"_s});
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
        desk.WriteFile(u"environm.ini"_s, "stays");
        PutOneOfEach();
        InitializeFiles();
        for (const char *name : names)
            QCOMPARE(desk.ReadFile(QLatin1String(name)), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(u"environm.ini"_s), QByteArray("stays"));
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
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, u"Initialize Files"_s));
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
        WriteProtect(desk.Path(u"extra.txt"_s));
        InitializeFiles();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, u"Initialize Files"_s));
        QCOMPARE(desk.ReadFile(u"creditor.txt"_s), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(u"extra.txt"_s), QByteArray("old"));
        QCOMPARE(desk.ReadFile(u"mastshop.txt"_s), QByteArray("old"));
    }
};

REGISTER_TEST(TestFiles)
#include "tst_files.moc"

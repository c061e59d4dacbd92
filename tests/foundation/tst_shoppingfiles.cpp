// The master shopping list and the store list files: bytes, reading, failures.
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"
#include "foundation/State.h"
#include "platform/values/Locale.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString MasterFile = u"mastshop.txt"_s;
const QString ListFile = u"stores\\untitled.lst"_s;
const QString InputMaster = u"Input Master Shopping List"_s;
const QString InputCurrent = u"Input Current Shopping List"_s;
const QString SaveMaster = u"Save Master Shopping List"_s;
const QString SaveCurrent = u"Save Current Shopping List"_s;

constexpr Currency Count(qint64 tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths);
}

Message Told(const char *text, const QString &title)
{
    return {QString::fromLatin1(text), title, Icon::Stop, Buttons::Ok, 0};
}

const char FileNotFound[] = "Error 53: File not found";
const char PathNotFound[] = "Error 76: Path not found";
const char BadFile[] = "Error 52: Bad file name or number";
const char PastEnd[] = "Error 62: Input past end of file";
const char Mismatch[] = "Error 13: Type mismatch";
const char TooLarge[] = "Error 6: Overflow";
const char OutOfRange[] = "Error 9: Subscript out of range";
const char NoAccess[] = "Error 75: Path/File access error";

const MasterItemRecord Milk{u"Milk, whole"_s, u"gallon"_s, Count(24900), u"Corner"_s, true};
const MasterItemRecord Bread{u"Bread"_s, QString(), Count(0), QString(), false};
const CurrentItemRecord MilkOnTheList{u"Milk"_s, u"gallon"_s, Count(24900), u"Corner"_s,
                                      1.5F,      true,        Count(2500),  Count(37091)};

void ExpectOnly(FakeDesk &desk, int count, const Message &message)
{
    QCOMPARE(desk.Messages.size(), count);
    for (const Message &told : std::as_const(desk.Messages))
        QCOMPARE(told, message);
    desk.Messages.clear();
}

void WriteProtect(const QString &path)
{
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther));
}

} // namespace

class TestShoppingFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // ------------------------------------------------------------ bytes

    void TheMasterListIsFiveLinesAnItem()
    {
        FakeDesk desk;
        desk.WriteFile(MasterFile, "0\r\n");
        State.NumberOfMasterItems = 2;
        State.MasterShoppingList = {Milk, Bread};
        SaveMasterShoppingList();
        QCOMPARE(desk.ReadFile(MasterFile),
                 QByteArray("2\r\n"
                            "\"Milk, whole\"\r\n\"gallon\"\r\n2.49\r\n\"Corner\"\r\n#TRUE#\r\n"
                            "\"Bread\"\r\n\"\"\r\n0\r\n\"\"\r\n#FALSE#\r\n"));
        State.MasterShoppingList.Redim(0);
        InputMasterShoppingList();
        QCOMPARE(State.NumberOfMasterItems, qint16(2));
        QVERIFY(State.MasterShoppingList == (OneBased<MasterItemRecord>{Milk, Bread}));
    }

    void AStoreListIsEightLinesAnItem()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(ListFile, "0\r\n");
        State.NumberOfCurrentItems = 1;
        State.CurrentShoppingList = {MilkOnTheList};
        SaveCurrentShoppingList();
        QCOMPARE(
            desk.ReadFile(ListFile),
            QByteArray("1\r\n\"Milk\"\r\n\"gallon\"\r\n2.49\r\n\"Corner\"\r\n1.5\r\n#TRUE#\r\n0.25\r\n3.7091\r\n"));
        State.CurrentShoppingList.Redim(0);
        InputCurrentShoppingList();
        QCOMPARE(State.NumberOfCurrentItems, qint16(1));
        QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{MilkOnTheList}));
    }

    void AQuantityComesBackAsTheSameSingle_data()
    {
        QTest::addColumn<float>("quantity");
        QTest::newRow("1") << 1.0F;
        QTest::newRow("1.5") << 1.5F;
        QTest::newRow("a third") << 1.0F / 3;
        QTest::newRow("0.1") << 0.1F;
        QTest::newRow("the greatest") << std::numeric_limits<float>::max();
        QTest::newRow("the least") << std::numeric_limits<float>::denorm_min();
        QTest::newRow("negative") << -2.25F;
    }
    void AQuantityComesBackAsTheSameSingle()
    {
        FakeDesk desk;
        QFETCH(float, quantity);
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(ListFile, "0\r\n");
        State.NumberOfCurrentItems = 1;
        State.CurrentShoppingList = {MilkOnTheList};
        State.CurrentShoppingList(1).Quantity = quantity;
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeFiles(), QStringList{u"stores/untitled.lst"_s});
        InputCurrentShoppingList();
        QVERIFY(State.CurrentShoppingList(1).Quantity == quantity);
    }

    void TheListIsTheOneOfTheSettings()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"Saturday.lst"_s;
        desk.WriteFile(ListFile, "0\r\n");
        State.NumberOfCurrentItems = 1;
        State.CurrentShoppingList = {MilkOnTheList};
        SaveCurrentShoppingList();
        QVERIFY(desk.ReadFile(u"stores/Saturday.lst"_s).startsWith("1\r\n\"Milk\""));
        QCOMPARE(desk.ReadFile(ListFile), QByteArray("0\r\n"));
        State.CurrentStoreFile = u"untitled.lst"_s;
        InputCurrentShoppingList();
        QCOMPARE(State.NumberOfCurrentItems, qint16(0));
    }

    // ------------------------------------------------------------ empty lists

    void EmptyListsAreTheOneLine0()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(MasterFile, "old");
        desk.WriteFile(ListFile, "old");
        SaveMasterShoppingList();
        SaveCurrentShoppingList();
        QCOMPARE(desk.ReadFile(MasterFile), QByteArray("0\r\n"));
        QCOMPARE(desk.ReadFile(ListFile), QByteArray("0\r\n"));
    }

    void ACountOf0LeavesTheListInMemory()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.NumberOfMasterItems = State.NumberOfCurrentItems = 1;
        State.MasterShoppingList = {Milk};
        State.CurrentShoppingList = {MilkOnTheList};
        desk.WriteFile(MasterFile, "0\r\n");
        desk.WriteFile(ListFile, "0\r\n");
        InputMasterShoppingList();
        InputCurrentShoppingList();
        QCOMPARE(State.NumberOfMasterItems, qint16(0));
        QCOMPARE(State.NumberOfCurrentItems, qint16(0));
        QVERIFY(State.MasterShoppingList == (OneBased<MasterItemRecord>{Milk}));
        QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{MilkOnTheList}));
    }

    // ------------------------------------------------------------ reading

    void TaxableIsReadInAnySpelling_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<bool>("taxable");
        QTest::newRow("#TRUE#") << QByteArray("#TRUE#") << true;
        QTest::newRow("#FALSE#") << QByteArray("#FALSE#") << false;
        QTest::newRow("small letters") << QByteArray("#true#") << true;
        QTest::newRow("-1") << QByteArray("-1") << true;
        QTest::newRow("0") << QByteArray("0") << false;
        QTest::newRow("no Boolean and no number is false") << QByteArray("yes") << false;
    }
    void TaxableIsReadInAnySpelling()
    {
        FakeDesk desk;
        QFETCH(QByteArray, word);
        desk.WriteFile(MasterFile, "1\r\nMilk\r\ngallon\r\n2.49\r\nCorner\r\n" + word + "\r\n");
        InputMasterShoppingList();
        QCOMPARE(State.MasterShoppingList(1).Store, u"Corner"_s);
        QTEST(State.MasterShoppingList(1).Taxable, "taxable");
    }

    void OnOneLine()
    {
        FakeDesk desk;
        desk.WriteFile(MasterFile, "2,\"Milk, whole\",gallon,2.49,Corner,#TRUE#,Bread,,0,,#FALSE#");
        InputMasterShoppingList();
        QVERIFY(State.MasterShoppingList == (OneBased<MasterItemRecord>{Milk, Bread}));
    }

    void AFieldThatIsNoNumberCostsOneMessage_data()
    {
        QTest::addColumn<int>("line");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("unit price") << 3 << QByteArray("cheap") << QString::fromLatin1(Mismatch);
        QTest::newRow("unit price too large") << 3 << QByteArray("1e20") << QString::fromLatin1(TooLarge);
        QTest::newRow("quantity") << 5 << QByteArray("some") << QString::fromLatin1(Mismatch);
        QTest::newRow("quantity beyond single precision") << 5 << QByteArray("1e39") << QString::fromLatin1(TooLarge);
        QTest::newRow("coupon") << 7 << QByteArray("\"\"") << QString::fromLatin1(Mismatch);
        QTest::newRow("full price too large") << 8 << QByteArray("1e20") << QString::fromLatin1(TooLarge);
        QTest::newRow("a full price is read directly: 0 without a message") << 8 << QByteArray("dear") << QString();
        QTest::newRow("so is taxable") << 6 << QByteArray("perhaps") << QString();
    }
    void AFieldThatIsNoNumberCostsOneMessage()
    {
        FakeDesk desk;
        QFETCH(int, line);
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        State.CurrentStoreFile = u"untitled.lst"_s;
        QByteArrayList lines{"2", "Milk", "gallon", "2.49", "Corner", "1.5", "#TRUE#", "0.25", "3.7091"};
        lines += lines.mid(1);
        lines[line] = text;
        desk.WriteFile(ListFile, lines.join("\r\n"));
        InputCurrentShoppingList();
        if (!message.isEmpty())
            QCOMPARE(desk.TakeMessage(), (Message{message, InputCurrent, Icon::Stop, Buttons::Ok, 0}));
        CurrentItemRecord damaged = MilkOnTheList;
        switch (line) {
        case 3: damaged.UnitPrice = Currency(); break;
        case 5: damaged.Quantity = 0; break;
        case 6: damaged.Taxable = false; break;
        case 7: damaged.CouponValue = Currency(); break;
        default: damaged.FullPrice = Currency(); break;
        }
        QVERIFY(State.CurrentShoppingList(1) == damaged);
        QVERIFY(State.CurrentShoppingList(2) == MilkOnTheList); // the loop carries on with the following field
    }

    void AMasterPriceThatIsNoNumberCostsOneMessage()
    {
        FakeDesk desk;
        desk.WriteFile(MasterFile, "1\r\n\"Milk, whole\"\r\ngallon\r\n?\r\nCorner\r\n#TRUE#\r\n");
        InputMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(Mismatch, InputMaster));
        MasterItemRecord damaged = Milk;
        damaged.UnitPrice = Currency();
        QVERIFY(State.MasterShoppingList(1) == damaged);
    }

    void PricesReadTheSameInAGermanLocale()
    {
        FakeDesk desk;
        const QLocale before = UserLocale();
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany));
        State.CurrentStoreFile = u"untitled.lst"_s;
        const QByteArray list =
            "1\r\n\"Milk\"\r\n\"gallon\"\r\n2.49\r\n\"Corner\"\r\n1.5\r\n#TRUE#\r\n0.25\r\n3.7091\r\n";
        desk.WriteFile(ListFile, list);
        InputCurrentShoppingList();
        SaveCurrentShoppingList();
        SetUserLocale(before);
        QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{MilkOnTheList}));
        QCOMPARE(desk.ReadFile(ListFile), list);
    }

    // ------------------------------------------------------------ failures of a load

    void MissingFilesGiveTwoMessages()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(u"stores\\other.lst"_s, "0\r\n");
        InputMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, InputMaster));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, InputMaster));
        InputCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, InputCurrent));
        QCOMPARE(desk.TakeMessage(), Told(BadFile, InputCurrent));
        QCOMPARE(State.NumberOfMasterItems, qint16(0));
        QCOMPARE(State.NumberOfCurrentItems, qint16(0));
    }

    void MissingFilesInALaterReloadClearTheLists()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.NumberOfMasterItems = State.NumberOfCurrentItems = 1;
        State.MasterShoppingList = {Milk};
        State.CurrentShoppingList = {MilkOnTheList};
        InputMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, InputMaster));
        ExpectOnly(desk, 1 + 5, Told(BadFile, InputMaster));
        InputCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(PathNotFound, InputCurrent)); // the folder of the lists is missing, too
        ExpectOnly(desk, 1 + 8, Told(BadFile, InputCurrent));
        QVERIFY(State.MasterShoppingList == (OneBased<MasterItemRecord>{MasterItemRecord()}));
        QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{CurrentItemRecord()}));
    }

    void ShortFilesTellOnceForEachMissingValue()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(MasterFile, "2\r\nMilk\r\ngallon\r\n2.49\r\nCorner\r\n");
        InputMasterShoppingList();
        ExpectOnly(desk, 1 + 5, Told(PastEnd, InputMaster));
        QCOMPARE(State.MasterShoppingList(1).UnitPrice, Count(24900));
        desk.WriteFile(ListFile, "1\r\nMilk\r\ngallon\r\n");
        InputCurrentShoppingList();
        ExpectOnly(desk, 6, Told(PastEnd, InputCurrent));
        QCOMPARE(State.CurrentShoppingList(1).Unit, u"gallon"_s);
    }

    void ADamagedCountOf32767HoldsNobodyPrisoner()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(MasterFile, "32767");
        InputMasterShoppingList();
        QCOMPARE(desk.Messages.size(), 26);
        QCOMPARE(desk.Messages.takeLast(),
                 Told("Further errors in this file, not shown one by one: 163810", InputMaster));
        ExpectOnly(desk, 25, Told(PastEnd, InputMaster)); // 5 * 32767 - 25
        desk.WriteFile(ListFile, "32767");
        InputCurrentShoppingList();
        QCOMPARE(desk.Messages.takeLast(),
                 Told("Further errors in this file, not shown one by one: 262111", InputCurrent)); // 8 * 32767 - 25
        ExpectOnly(desk, 25, Told(PastEnd, InputCurrent));
        QCOMPARE(State.CurrentShoppingList.Size(), 32767);
    }

    void DamagedCounts()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        State.MasterShoppingList = {Milk};
        State.CurrentShoppingList = {MilkOnTheList};
        for (const auto &[count, message] : {std::pair("-2\r\n", OutOfRange), std::pair("40000\r\n", TooLarge)}) {
            State.NumberOfMasterItems = State.NumberOfCurrentItems = 0;
            desk.WriteFile(MasterFile, count);
            desk.WriteFile(ListFile, count);
            InputMasterShoppingList();
            QCOMPARE(desk.TakeMessage(), Told(message, InputMaster));
            InputCurrentShoppingList();
            QCOMPARE(desk.TakeMessage(), Told(message, InputCurrent));
            QVERIFY(State.MasterShoppingList == (OneBased<MasterItemRecord>{Milk}));
            QVERIFY(State.CurrentShoppingList == (OneBased<CurrentItemRecord>{MilkOnTheList}));
        }
    }

    // ------------------------------------------------------------ failures of a save

    void AMissingMasterListIsNotHealedBySaving()
    {
        FakeDesk desk;
        State.NumberOfMasterItems = 1;
        State.MasterShoppingList = {Milk};
        SaveMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(FileNotFound, SaveMaster));
        QVERIFY(desk.ReadFile(MasterFile).isNull());
    }

    void AMissingCurrentListIsMade()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"new.lst"_s;
        desk.WriteFile(ListFile, "0\r\n");
        SaveCurrentShoppingList();
        QCOMPARE(desk.ReadFile(u"stores\\new.lst"_s), QByteArray("0\r\n"));
    }

    void AMissingFolderOfListsIsTold()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"new.lst"_s;
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(PathNotFound, SaveCurrent));
    }

    void ReadOnlyFilesStayAsTheyWere()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(MasterFile, "as it was");
        desk.WriteFile(ListFile, "as it was");
        WriteProtect(desk.Path(MasterFile));
        WriteProtect(desk.Path(ListFile));
        SaveMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, SaveMaster));
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(NoAccess, SaveCurrent));
        QCOMPARE(desk.ReadFile(MasterFile), QByteArray("as it was"));
        QCOMPARE(desk.ReadFile(ListFile), QByteArray("as it was"));
    }

    void AnErrorAmongTheValuesComesBeforeTheFileIsTouched()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(MasterFile, "as it was");
        desk.WriteFile(ListFile, "as it was");
        State.NumberOfMasterItems = State.NumberOfCurrentItems = 2; // one more than there are
        State.MasterShoppingList = {Milk};
        State.CurrentShoppingList = {MilkOnTheList};
        SaveMasterShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, SaveMaster));
        SaveCurrentShoppingList();
        QCOMPARE(desk.TakeMessage(), Told(OutOfRange, SaveCurrent));
        QCOMPARE(desk.ReadFile(MasterFile), QByteArray("as it was"));
        QCOMPARE(desk.ReadFile(ListFile), QByteArray("as it was"));
        State.NumberOfCurrentItems = 1; // and nothing is blocked
        SaveCurrentShoppingList();
        QVERIFY(desk.ReadFile(ListFile).startsWith("1\r\n\"Milk\""));
    }

    void AnUpperCaseNameIsFoundAndNotDoubled()
    {
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(u"STORES/UNTITLED.LST"_s, "1\r\nA\r\nB\r\n1\r\nC\r\n1\r\n#TRUE#\r\n0\r\n0\r\n");
        InputCurrentShoppingList();
        QCOMPARE(State.CurrentShoppingList(1).Item, u"A"_s);
        SaveCurrentShoppingList();
        const QDir stores(desk.Path(u"STORES"_s));
        QCOMPARE(stores.entryList(QDir::Files).size(), 1);
        QCOMPARE(desk.TakeFiles(), (QStringList{u"STORES/UNTITLED.LST"_s, u"STORES/untitled.lst"_s}));
        QCOMPARE(QDir(desk.Folder()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList(u"STORES"_s));
    }
};

REGISTER_TEST(TestShoppingFiles)
#include "tst_shoppingfiles.moc"

// How each field of each file is read: directly, where text that is no number is 0 without a word, or by way of text,
// where it is error 13.
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

enum Kind { Text, Direct, ByText };

struct Field {
    const char *Name;
    const char *Value; ///< as a sound file holds it
    Kind TheKind;
};

void ReadSettings()
{
    ReadEnvironmentSettings([](const std::function<void()> &statement) {
        ResumeNext(statement, [](const RuntimeError &error) { ShowMessage(error.Text(), {}, Icon::Stop); });
    });
}

/// A file with one record.
struct FileOfFields {
    const char *Name;
    void (*Load)();
    std::vector<Field> Fields;
};

const FileOfFields Files[] = {
    {"environm.ini",
     ReadSettings,
     {{"ForecastPeriods", "26", Direct},
      {"PaycheckAmount", "1000", Direct},
      {"PayFrequency", "14", Direct},
      {"FirstPayDate", "1", Direct},
      {"SecondPayDate", "15", Direct},
      {"MonthEndPay", "-1", Direct},
      {"SalesTax", "0.06", Direct},
      {"CurrentStoreFile", "\"untitled.lst\"", Text},
      {"AverageNetPercentage", "0.9", Direct}}},
    {"creditor.txt",
     InputCreditors,
     {{"NumberOfCreditors", "1", Direct},
      {"CreditorDueDate", "5", ByText},
      {"CreditorName", "\"Rent\"", Text},
      {"CreditorAmount", "650", ByText}}},
    {"regulars.txt",
     InputRegulars,
     {{"NumberOfRegulars", "1", Direct}, {"RegularItem", "\"Food\"", Text}, {"RegularAmount", "100", ByText}}},
    {"extra.txt",
     InputPayPeriods,
     {{"NumberOfExtraPayPeriods", "1", Direct},
      {"PayPeriodDate", "\"01-15-2004\"", Text},
      {"NumberOfExtraItems", "1", Direct},
      {"ExtraItem", "\"Gift\"", Text},
      {"ExtraItemAmount", "20", ByText}}},
    {"projects.txt",
     InputProjects,
     {{"NumberOfProjects", "1", Direct},
      {"ProjectNames", "\"Roof\"", Text},
      {"ProjectAmounts", "1000", Direct},
      {"ProjectEntryCounts", "1", Direct},
      {"ProjectEntryDates", "\"1/1/2004\"", Text},
      {"ProjectEntryAmounts", "500", ByText}}},
    {"mastshop.txt",
     InputMasterShoppingList,
     {{"NumberOfMasterItems", "1", Direct},
      {"Item", "\"Milk\"", Text},
      {"Unit", "\"gallon\"", Text},
      {"UnitPrice", "2.49", ByText},
      {"Store", "\"Corner\"", Text},
      {"Taxable", "#TRUE#", Direct}}},
    {"stores\\untitled.lst",
     InputCurrentShoppingList,
     {{"NumberOfCurrentItems", "1", Direct},
      {"Item", "\"Milk\"", Text},
      {"Unit", "\"gallon\"", Text},
      {"UnitPrice", "2.49", ByText},
      {"Store", "\"Corner\"", Text},
      {"Quantity", "1.5", ByText},
      {"Taxable", "#TRUE#", Direct},
      {"CouponValue", "0.25", ByText},
      {"FullPrice", "3.7091", Direct}}},
};

QByteArray FileWith(const FileOfFields &file, std::size_t replaced, const QByteArray &value)
{
    QByteArray bytes;
    for (std::size_t i = 0; i < file.Fields.size(); ++i)
        bytes += (i == replaced ? value : QByteArray(file.Fields[i].Value)) + "\r\n";
    return bytes;
}

} // namespace

class tst_fields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TextThatIsNoNumber_data()
    {
        QTest::addColumn<int>("file");
        QTest::addColumn<int>("field");
        for (int file = 0; file < int(std::size(Files)); ++file)
            for (int field = 0; field < int(Files[file].Fields.size()); ++field)
                QTest::addRow("%s: %s", Files[file].Name, Files[file].Fields[std::size_t(field)].Name) << file << field;
    }
    void TextThatIsNoNumber()
    {
        QFETCH(int, file);
        QFETCH(int, field);
        const FileOfFields &tested = Files[file];
        FakeDesk desk;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(QLatin1String(tested.Name), FileWith(tested, tested.Fields.size(), {}));
        tested.Load();
        QCOMPARE(desk.Messages.size(), 0); // the file is sound
        desk.WriteFile(QLatin1String(tested.Name), FileWith(tested, std::size_t(field), "many"));
        State.CurrentStoreFile = u"untitled.lst"_s;
        tested.Load();
        if (tested.Fields[std::size_t(field)].TheKind == ByText)
            QCOMPARE(desk.TakeMessage().Text, u"Error 13: Type mismatch"_s);
    }

    // A blank ends a number that is read directly and belongs to a text.
    void ABlankBehindANumber()
    {
        FakeDesk desk;
        desk.WriteFile(u"extra.txt"_s, "1 \"01-15-2004\" \r\n1 Gift\r\n20\r\n");
        InputPayPeriods();
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItem, u"Gift"_s);
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItemAmount, Currency::FromTenThousandths(200000));
    }

    // Just above the middle between two Singles, but the nearest double is the middle itself.
    void AQuantityIsRoundedTwiceAndATaxOnce()
    {
        FakeDesk desk;
        const QByteArray aboveTheMiddle = "1.00000005960464477539062500001";
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.WriteFile(u"stores\\untitled.lst"_s, FileWith(Files[6], 5, aboveTheMiddle));
        InputCurrentShoppingList();
        QVERIFY(State.CurrentShoppingList(1).Quantity == 1.0F);
        desk.WriteFile(u"environm.ini"_s, FileWith(Files[0], 6, aboveTheMiddle));
        ReadSettings();
        QVERIFY(State.SalesTax == std::nextafter(1.0F, 2.0F));
    }
};

REGISTER_TEST(tst_fields)
#include "tst_fields.moc"

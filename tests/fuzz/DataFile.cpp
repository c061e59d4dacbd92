// Any bytes at all as a data file. The first byte of an input says what reads the rest: a letter of the table below
// names a loader, which gets the rest as its file; under every other byte the values are read one by one from memory,
// the type changing from read to read, which is many times faster.
//
// Beside what the sanitizers see, these must hold: only RuntimeError is ever thrown; every read takes something from
// the file or says that it is at its end; a load shows at most 26 boxes; what was loaded without a message is saved
// without one and loads again as the same; the number and date tests agree with their conversions.
#include "platform/files/DataFile.h"
#include "ErrorOf.h"
#include "RecordingDesk.h"
#include "budget/BudgetGenerator.h"
#include "foundation/BudgetFiles.h"
#include "foundation/ShoppingFiles.h"
#include "foundation/StartAndEnd.h"
#include "platform/values/Numbers.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

// Stands before the C library's own routine: waiting for the disk would take most of the time.
int fsync(int)
{
    return 0;
}

namespace {

void Require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

// ---------------------------------------------------------------- values from memory

void CheckText(const QString &text)
{
    const bool isNumber = IsNumeric(text, Dialect::File);
    double number = 0;
    const int toDouble = ErrorOf([&] { number = ToDouble(text, Dialect::File); });
    const int toCurrency = ErrorOf([&] { ToCurrency(text, Dialect::File); });
    const int toInteger = ErrorOf([&] { ToInteger(text, Dialect::File); });
    for (const int error : {toDouble, toCurrency, toInteger})
        Require(isNumber ? error == 0 || error == RuntimeError::Overflow : error == RuntimeError::TypeMismatch,
                "a conversion takes exactly what is numeric");

    QDate date;
    const int toDate = ErrorOf([&] { date = ToDate(text); });
    Require(IsDate(text) == (toDate == 0), "IsDate agrees with the conversion");
    if (toDate == 0)
        for (const DateFormat format : {DateFormat::Long, DateFormat::Dashes, DateFormat::Short})
            Require(ToDate(Format(date, format)) == date, "a date reads back from each of its forms");
}

void ReadFromMemory(const QByteArray &bytes, int firstType)
{
    InputFile file;
    file.OpenBytes(bytes);
    qsizetype reads = 0;
    for (int type = firstType;; ++type) {
        const int error = ErrorOf([&] {
            switch (type % 6) {
            case 0: {
                const qint16 value = file.InputInteger();
                Require(ToInteger(PlainText(value), Dialect::File) == value, "an Integer reads back");
                break;
            }
            case 1: {
                const Currency value = file.InputCurrency();
                Require(ToCurrency(PlainText(value), Dialect::File) == value, "an amount reads back");
                break;
            }
            case 2: {
                const float value = file.InputSingle();
                const float again = ToSingle(PlainText(value), Dialect::File);
                Require(again == value, "a Single reads back");
                break;
            }
            case 3: file.InputBoolean(); break;
            case 4: CheckText(file.InputString()); break;
            default: file.InputLine(); break;
            }
        });
        if (error == RuntimeError::InputPastEnd)
            break;
        Require(error == 0 || error == RuntimeError::Overflow, "a direct read fails with nothing but 6 and 62");
        Require(++reads <= bytes.size(), "every read takes something");
    }
    Require(ErrorOf([&] { file.InputString(); }) == RuntimeError::InputPastEnd, "the end stays the end");
}

// ---------------------------------------------------------------- loaders

RecordingDesk &TheRecorder()
{
    static RecordingDesk desk;
    return desk;
}

/// Everything that the lists hold, as one text to compare.
QString ToldState()
{
    QStringList told;
    const auto add = [&](const auto &...fields) { (told.append(fields), ...); };
    const auto amount = [](Currency value) { return PlainText(value); };
    add(QString::number(State.NumberOfCreditors), QString::number(State.NumberOfRegulars),
        QString::number(State.NumberOfExtraPayPeriods), QString::number(State.NumberOfProjects),
        QString::number(State.NumberOfMasterItems), QString::number(State.NumberOfCurrentItems));
    for (const CreditorRecord &creditor : State.Creditors)
        add(QString::number(creditor.CreditorDueDate), creditor.CreditorName, amount(creditor.CreditorAmount));
    for (const RegularRecord &regular : State.Regulars)
        add(regular.RegularItem, amount(regular.RegularAmount));
    for (const ExtraPayPeriodRecord &payPeriod : State.ExtraPayPeriods) {
        add(payPeriod.PayPeriodDate.Text(), QString::number(payPeriod.NumberOfExtraItems));
        for (int i = 1; i <= payPeriod.NumberOfExtraItems; ++i)
            add(payPeriod.ExtraItems(i).ExtraItem, amount(payPeriod.ExtraItems(i).ExtraItemAmount));
    }
    for (int project = 1; project <= State.ProjectNames.Size(); ++project) {
        add(State.ProjectNames(project), amount(State.ProjectAmounts(project)));
        for (int entry = 1; entry <= State.ProjectEntryCounts(project); ++entry)
            add(State.ProjectEntryDates(project)(entry).Text(), amount(State.ProjectEntryAmounts(project)(entry)));
    }
    for (const MasterItemRecord &item : State.MasterShoppingList)
        add(item.Item, item.Unit, amount(item.UnitPrice), item.Store, QString::number(item.Taxable));
    for (const CurrentItemRecord &item : State.CurrentShoppingList)
        add(item.Item, item.Unit, amount(item.UnitPrice), item.Store, PlainText(item.Quantity),
            QString::number(item.Taxable), amount(item.CouponValue), amount(item.FullPrice));
    add(QString::number(State.ForecastPeriods), amount(State.PaycheckAmount), QString::number(State.PayFrequency),
        QString::number(State.FirstPayDate), QString::number(State.SecondPayDate), QString::number(State.MonthEndPay),
        PlainText(State.SalesTax), State.CurrentStoreFile, PlainText(State.AverageNetPercentage));
    // A double quote ends a value early when it is read back; such texts are not kept, and nothing mends that.
    for (const QString &text : std::as_const(told))
        if (text.contains(QLatin1Char('"')))
            return {};
    return told.join(QChar(0));
}

struct LoaderUnderTest {
    char Letter;
    const char *File;
    void (*Load)();
    void (*Save)();
};
constexpr LoaderUnderTest Loaders[] = {
    {'c', "creditor.txt", InputCreditors, SaveCreditors},
    {'r', "regulars.txt", InputRegulars, SaveRegulars},
    {'x', "extra.txt", InputPayPeriods, SavePayPeriods},
    {'p', "projects.txt", InputProjects, SaveProjects},
    {'m', "mastshop.txt", InputMasterShoppingList, [] { SaveMasterShoppingList(); }},
    {'l', "stores\\untitled.lst", InputCurrentShoppingList, [] { SaveCurrentShoppingList(); }},
    {'e', "environm.ini", InitializeVariables, SaveEnvironmentSettings},
};

/// A household of the loaded lists, budgeted for two pay periods: dates and amounts are what the file made them.
void RunBudgets()
{
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.PayFrequency = Semimonthly;
    State.FirstPayDate = 1;
    State.SecondPayDate = 15;
    State.BudgetPeriodStart = u"01-01-2004"_s;
    ErrorOf([] {
        for (int run = 0; run < 4; ++run) {
            Statement page;
            CalculateBudget(&page);
        }
    });
}

/// A greater count is lawful, but makes a hundred thousand errors out of a few bytes: the unit tests load it once.
constexpr int GreatestCount = 300;

bool HasGreatCount(const QByteArray &bytes)
{
    InputFile file;
    file.OpenBytes(bytes);
    int count = 0;
    ErrorOf([&] { count = file.InputInteger(); });
    return count > GreatestCount;
}

void LoadAsFile(const LoaderUnderTest &loader, const QByteArray &bytes)
{
    RecordingDesk &desk = TheRecorder();
    const bool settings = loader.Letter == 'e';
    if (!settings && HasGreatCount(bytes))
        return;
    const auto reset = [&] {
        ResetState();
        State.ApplicationPath = desk.Folder();
        State.StoresDirectory = desk.Folder() + u"\\stores\\"_s;
        State.CurrentStoreFile = u"untitled.lst"_s;
        desk.Messages.clear();
    };
    const QString name = QString::fromLatin1(loader.File);
    desk.WriteFile(name, bytes);
    reset();
    loader.Load();
    Require(desk.Messages.size() <= 26, "a load shows at most 26 boxes");
    const bool sound = desk.Messages.isEmpty() && !State.MathCalculatorMissing;
    if (sound) {
        const QString loaded = ToldState();
        loader.Save();
        Require(desk.Messages.isEmpty(), "what was loaded is saved without a message");
        if (!loaded.isEmpty()) {
            reset();
            loader.Load();
            Require(desk.Messages.isEmpty(), "what was saved is loaded without a message");
            Require(ToldState() == loaded, "what was saved is loaded as it was");
        }
    }
    if (!settings)
        RunBudgets();
    // The next input finds a household again: with a strange store file in the settings its list was not the usual one.
    desk.WriteFile(name, "0\r\n");
}

void LoadTutor(const QByteArray &bytes)
{
    TheRecorder().WriteFile(u"help\\Instruction.txt"_s, bytes);
    State.ApplicationPath = TheRecorder().Folder();
    const int error = ErrorOf(LoadTutorInstructions);
    Require(error == 0 || error == RuntimeError::SubscriptOutOfRange, "the tutor's pages fail with nothing but 9");
    TheRecorder().WriteFile(u"help\\Instruction.txt"_s, ";\r\n");
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    TheRecorder().LayHousehold();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    for (const LoaderUnderTest &loader : Loaders)
        if (char(data[0]) == loader.Letter) {
            LoadAsFile(loader, bytes);
            return 0;
        }
    if (data[0] == 't')
        LoadTutor(bytes);
    else
        ReadFromMemory(bytes, data[0] % 6);
    return 0;
}

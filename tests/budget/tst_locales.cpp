// Every locale that the toolkit knows: the forecast finds what is red, a project is planned alike, and the files are
// written alike.
#include "FakeDesk.h"
#include "TestProgram.h"

#include "budget/SavingsForecast.h"
#include "commitments/Projects.h"
#include "foundation/BudgetFiles.h"
#include "foundation/StartAndEnd.h"
#include "platform/values/Format.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale American(QLocale::English, QLocale::UnitedStates);

Currency Dollars(double amount)
{
    return Currency::FromDouble(amount);
}

/// A weekly household of 1,234.56, the first pay period of which costs 4,000.00: its total is below 0 for three
/// periods.
void TakeHousehold()
{
    Forecast = {};
    Projects = {};
    State.CurrentPayPeriod = u"December 31, 2003"_s;
    State.BudgetPeriodStart = State.CurrentPayPeriod;
    State.PaycheckAmount = Dollars(1234.56);
    State.PayFrequency = Weekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.ForecastPeriods = 5;
    State.SalesTax = 0.06625F;
    State.CurrentStoreFile = u"untitled.lst"_s;
    State.AverageNetPercentage = 0.875F;
    State.NumberOfCreditors = 1;
    State.Creditors = {{u"Rent"_s, 1, Dollars(0.5)}};
    State.NumberOfRegulars = 1;
    State.Regulars = {{u"Refund"_s, Dollars(-0.25)}};
    State.NumberOfExtraPayPeriods = 1;
    State.ExtraPayPeriods.Redim(1);
    State.ExtraPayPeriods(1).PayPeriodDate = u"12-31-2003"_s;
    State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
    State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Roof"_s, Dollars(4000)};
}

/// What a household's files hold after a forecast and a project planned by it.
QByteArray FilesOf(const QLocale &locale)
{
    FakeDesk desk;
    desk.LayHousehold();
    SetUserLocale(locale);
    TakeHousehold();
    ForecastSavings();
    Forecast.ForecastPickRow = 5;
    AddProject(u"Boat"_s, Dollars(1000));
    SaveCreditors();
    SaveRegulars();
    SavePayPeriods();
    SaveProjects();
    SaveEnvironmentSettings();
    QByteArray files;
    for (const char *name : {"creditor.txt", "regulars.txt", "extra.txt", "projects.txt", "environm.ini"})
        files += desk.ReadFile(QString::fromLatin1(name)) + '\f';
    SetUserLocale(American);
    return files;
}

} // namespace

class tst_locales : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { SetUserLocale(American); }
    void cleanup()
    {
        SetUserLocale(American);
        Forecast = {};
        Projects = {};
    }

    void TheForecastFindsWhatIsRedInEveryLocale()
    {
        const auto locales = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
        QVERIFY(locales.size() > 100);
        FakeDesk desk;
        for (const QLocale &locale : locales) {
            SetUserLocale(locale);
            TakeHousehold();
            State.NumberOfCreditors = State.NumberOfRegulars = 0;
            ForecastSavings();
            const std::vector<StatementRow> rows = ForecastStatement().Rows;
            QCOMPARE(rows.size(), std::size_t(5));
            const double accumulated[] = {-2765.44, -1530.88, -296.32, 938.24, 2172.80};
            for (std::size_t i = 0; i < rows.size(); ++i) {
                QCOMPARE(rows[i].TheKind, StatementRow::Signed);
                QCOMPARE(rows[i].Texts, QStringList{Format(QDate(2003, 12, 31).addDays(7 * int(i)), DateFormat::Long)});
                QCOMPARE(rows[i].Amounts, (std::vector{Dollars(i == 0 ? -2765.44 : 1234.56), Dollars(accumulated[i])}));
                // What is shown reads back as the same amount.
                for (const Currency amount : rows[i].Amounts)
                    QVERIFY2(ToCurrency(FormatCurrency(amount)) == amount, qPrintable(locale.name()));
            }
        }
    }

    void TheFilesAreTheSameInEveryLocale()
    {
        const QByteArray american = FilesOf(American);
        QVERIFY(american.contains("0.06625\r\n"));
        QVERIFY(american.contains("\"Refund\"\r\n-0.25\r\n"));
        QVERIFY(american.contains("\"Boat\"\r\n1000\r\n5\r\n\"December 31, 2003\"\r\n"));
        const QLocale locales[] = {QLocale::c(),
                                   {QLocale::German, QLocale::Germany},
                                   {QLocale::French, QLocale::France},
                                   {QLocale::German, QLocale::Switzerland},
                                   {QLocale::Hindi, QLocale::India},
                                   {QLocale::Arabic, QLocale::Egypt}};
        for (const QLocale &locale : locales)
            QCOMPARE(FilesOf(locale), american);
    }

    void WhatOneLocaleWroteTheOtherReads()
    {
        FakeDesk desk;
        desk.LayHousehold();
        SetUserLocale({QLocale::German, QLocale::Germany});
        TakeHousehold();
        SaveCreditors();
        SaveRegulars();
        SavePayPeriods();
        ResetState();
        State.ApplicationPath = desk.Folder();
        SetUserLocale({QLocale::Hindi, QLocale::India});
        InputCreditors();
        InputRegulars();
        InputPayPeriods();
        QCOMPARE(State.Creditors(1).CreditorAmount, Dollars(0.5));
        QCOMPARE(State.Regulars(1).RegularAmount, Dollars(-0.25));
        QCOMPARE(State.ExtraPayPeriods(1).ExtraItems(1).ExtraItemAmount, Dollars(4000));
        QCOMPARE(desk.TakeFiles(), (QStringList{u"creditor.txt"_s, u"extra.txt"_s, u"regulars.txt"_s}));
    }
};

REGISTER_TEST(tst_locales)
#include "tst_locales.moc"

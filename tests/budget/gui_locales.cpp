// The windows' amounts and dates for users of other locales: how they look, that they read back as the same amounts,
// which of them are red, that the paper shows the screen's figures, and that the files stay as they are.
#include "../commitments/CommitmentsDesk.h"
#include "TestProgram.h"

#include "platform/values/Format.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale American(QLocale::English, QLocale::UnitedStates);

/// What 1,234.56 and -2,765.44 look like, by the toolkit's patterns; amounts keep the common digits everywhere.
struct LocaleCase {
    const char *Name;
    QLocale Locale;
    QString Positive;
    QString Negative;
};

const QList<LocaleCase> &LocaleCases()
{
    static const QList<LocaleCase> cases{
        {"en_US", American, u"$1,234.56"_s, u"($2,765.44)"_s},
        {"C", QLocale::c(), u"$1,234.56"_s, u"($2,765.44)"_s},
        {"de_DE", {QLocale::German, QLocale::Germany}, u"1.234,56\u00A0\u20AC"_s, u"-2.765,44\u00A0\u20AC"_s},
        {"fr_FR", {QLocale::French, QLocale::France}, u"1\u202F234,56\u00A0\u20AC"_s, u"(2\u202F765,44\u00A0\u20AC)"_s},
        {"de_CH", {QLocale::German, QLocale::Switzerland}, u"1\u2019234.56\u00A0CHF"_s, u"-2\u2019765.44\u00A0CHF"_s},
        {"hi_IN", {QLocale::Hindi, QLocale::India}, u"\u20B91,234.56"_s, u"\u20B9-2,765.44"_s},
        {"ar_EG",
         {QLocale::Arabic, QLocale::Egypt},
         u"1\u066C234\u066B56 \u062C.\u0645.\u200F"_s,
         u"\u061C-2\u066C765\u066B44 \u062C.\u0645.\u200F"_s},
    };
    return cases;
}

/// A user of the locale; the United States' comes back at the end.
struct LocaleDesk : CommitmentsDesk {
    explicit LocaleDesk(const QLocale &locale) { SetUserLocale(locale); }
    ~LocaleDesk() override { SetUserLocale(American); }
};

/// A weekly household of 1,234.56, the first pay period of which costs 4,000.00.
void TakeHousehold(const RecordingDesk &desk)
{
    State.CurrentPayPeriod = u"December 31, 2003"_s;
    State.PaycheckAmount = Dollars(1234.56);
    State.PayFrequency = Weekly;
    State.MonthDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    State.ForecastPeriods = 5;
    State.SalesTax = 0.06625F;
    State.AverageNetPercentage = 0.9F;
    desk.WriteFile(u"extra.txt"_s, "1\r\n\"12-31-2003\"\r\n1\r\n\"Roof\"\r\n4000\r\n");
    State.NumberOfExtraPayPeriods = 1;
    State.ExtraPayPeriods.Redim(1);
    State.ExtraPayPeriods(1).PayPeriodDate = u"12-31-2003"_s;
    State.ExtraPayPeriods(1).NumberOfExtraItems = 1;
    State.ExtraPayPeriods(1).ExtraItems.At(1) = {u"Roof"_s, Dollars(4000)};
}

struct ForecastLine {
    QString Date;
    double Savings;
    double Accumulated;
};
const QList<ForecastLine> ForecastLines{
    {u"December 31, 2003"_s, -2765.44, -2765.44}, {u"January 7, 2004"_s, 1234.56, -1530.88},
    {u"January 14, 2004"_s, 1234.56, -296.32},    {u"January 21, 2004"_s, 1234.56, 938.24},
    {u"January 28, 2004"_s, 1234.56, 2172.80},
};

/// The cell shows the amount: it reads back as the amount and is red when that is below 0.
void VerifyAmount(const Grid &grid, int row, int column, double amount)
{
    const QString text = grid.Text(row, column);
    QVERIFY2(IsNumeric(text), qPrintable(text));
    QCOMPARE(ToCurrency(text), Dollars(amount));
    QCOMPARE(text, FormatCurrency(Dollars(amount)));
    QCOMPARE(grid.Colour(row, column), amount < 0 ? GridColour::LightRed : GridColour::Text);
}

/// A printed line of a table: the date and two amounts, which end before columns 47 and 75.
QString TableLine(const QString &date, const QString &amount, const QString &accumulated)
{
    const QString one = (u"    "_s + date).leftJustified(46 - amount.size()) + amount;
    return one.leftJustified(74 - accumulated.size()) + accumulated;
}

/// A printed line of a statement: the label at column 15, the amount before column 65.
QString StatementLine(const QString &label, const QString &amount)
{
    return (QString(14, u' ') + label).leftJustified(64 - amount.size()) + amount;
}

void Locales()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("positive");
    QTest::addColumn<QString>("negative");
    for (const LocaleCase &one : LocaleCases())
        QTest::newRow(one.Name) << one.Locale << one.Positive << one.Negative;
}

} // namespace

class gui_locales : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { SetUserLocale(American); }

    void TheForecastShowsTheLocalesAmounts_data() { Locales(); }
    void TheForecastShowsTheLocalesAmounts()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        TakeHousehold(desk);
        State.PrintSavingsForecast = true;
        const QString window = u"frmSavingsForecast"_s;
        Show(window);
        const auto &grid = Find<Grid>(window, u"grdSavingsForecast"_s);
        QTEST(grid.Text(2, 2), "positive");
        QTEST(grid.Text(1, 2), "negative");
        QStringList paper;
        for (int row = 1; row <= ForecastLines.size(); ++row) {
            const ForecastLine &line = ForecastLines[row - 1];
            QCOMPARE(grid.Text(row, 1), line.Date);
            VerifyAmount(grid, row, 2, line.Savings);
            VerifyAmount(grid, row, 3, line.Accumulated);
            paper += TableLine(grid.Text(row, 1), grid.Text(row, 2), grid.Text(row, 3));
        }
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob printed = desk.TakePrinted();
        QCOMPARE(printed.Lines.last(ForecastLines.size()), paper);
    }

    void TheOverheadShowsTheLocalesAmounts_data() { Locales(); }
    void TheOverheadShowsTheLocalesAmounts()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        TakeHousehold(desk);
        State.PayFrequency = Monthly;
        State.NumberOfCreditors = 1;
        State.Creditors = {{u"Rent"_s, 1, Dollars(3999.5)}};
        State.NumberOfRegulars = 1;
        State.Regulars = {{u"Food"_s, Dollars(0.5)}};
        const QString window = u"frmMonthlyOverhead"_s;
        Show(window);
        const auto &grid = Find<Grid>(window, u"grdOverhead"_s);
        QTEST(grid.Text(0, 1), "positive");
        QTEST(grid.Text(7, 1), "negative");
        const QList<QPair<int, double>> amounts{{0, 1234.56}, {2, 3999.5}, {3, 0.5}, {5, 4000}, {7, -2765.44}};
        for (const auto &[row, amount] : amounts)
            VerifyAmount(grid, row, 1, amount);
        QCOMPARE(grid.Text(7, 0), u"DEFICIT"_s);
        Click(window, u"cmdPrint"_s);
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob printed = desk.TakePrinted();
        for (const auto &[row, amount] : amounts) {
            const QString line = StatementLine(grid.Text(row, 0), grid.Text(row, 1));
            QVERIFY2(printed.Lines.contains(line), qPrintable(line));
        }
    }

    void TheProjectsViewShowsTheLocalesAmounts_data() { Locales(); }
    void TheProjectsViewShowsTheLocalesAmounts()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        TakeHousehold(desk);
        const QList<ForecastLine> lines{{u"January 8, 2004"_s, 1234.56, 1234.56},
                                        {u"January 15, 2004"_s, -2765.44, -1530.88},
                                        {u"January 22, 2004"_s, 0.88, -1530}};
        State.NumberOfProjects = 1;
        State.ProjectNames = {u"Boat"_s};
        State.ProjectAmounts.Redim(1);
        State.ProjectEntryCounts = {qint16(lines.size())};
        State.ProjectEntryDates.Redim(1);
        State.ProjectEntryAmounts.Redim(1);
        for (int i = 1; i <= lines.size(); ++i) {
            State.ProjectEntryDates(1).At(i) = u"01-%1-2004"_s.arg(7 * i + 1, 2, 10, QLatin1Char('0'));
            State.ProjectEntryAmounts(1).At(i) = Dollars(lines[i - 1].Savings);
        }
        Projects.SelectedProject = 1;
        State.PrintProjectView = true;
        const QString window = u"frmViewProject"_s;
        Show(window);
        const auto &grid = Find<Grid>(window, u"grdViewProject"_s);
        QTEST(grid.Text(1, 1), "positive");
        QTEST(grid.Text(2, 1), "negative");
        QStringList paper;
        for (int row = 1; row <= lines.size(); ++row) {
            QCOMPARE(grid.Text(row, 0), lines[row - 1].Date);
            VerifyAmount(grid, row, 1, lines[row - 1].Savings);
            VerifyAmount(grid, row, 2, lines[row - 1].Accumulated);
            paper += TableLine(grid.Text(row, 0), grid.Text(row, 1), grid.Text(row, 2));
        }
        QCOMPARE(desk.Printed.size(), 1);
        const PrintJob printed = desk.TakePrinted();
        QCOMPARE(printed.Lines.last(lines.size()), paper);
    }

    void TheScansDatesAreEnglishEverywhere_data() { Locales(); }
    void TheScansDatesAreEnglishEverywhere()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        TakeHousehold(desk);
        Show(u"frmScanPayPeriods"_s);
        const QStringList rows = RowsOf(u"frmScanPayPeriods"_s, u"lstScanPayPeriods"_s);
        QCOMPARE(rows.mid(0, 6), (QStringList{u"December 31, 2003"_s, u"January 7, 2004"_s, u"January 14, 2004"_s,
                                              u"January 21, 2004"_s, u"January 28, 2004"_s, u"February 4, 2004"_s}));
        for (const QString &row : rows)
            QVERIFY2(IsDate(row), qPrintable(row));
    }

    void TheStateOfTheBudgetAndTheSettingsShowTheSameFigures_data() { Locales(); }
    void TheStateOfTheBudgetAndTheSettingsShowTheSameFigures()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        desk.StartProgram();
        TakeHousehold(desk);
        Show(u"frmEnvironmentSettings"_s);
        QTEST(TextOf(u"frmEnvironmentSettings"_s, u"txtPaycheckAmount"_s), "positive");
        const QString tax = TextOf(u"frmEnvironmentSettings"_s, u"txtSalesTax"_s);
        QCOMPARE(tax, u"6.63"_s.replace(u'.', locale == QLocale::c() ? u"."_s : locale.decimalPoint()));
        Click(u"frmEnvironmentSettings"_s, u"cmdExit"_s);
        QCOMPARE(State.PaycheckAmount, Dollars(1234.56));
        QVERIFY(State.SalesTax == 0.06625F);
        Show(u"frmMain"_s);
        const QStringList lines = RowsOf(u"frmMain"_s, u"lstBudgetState"_s);
        QCOMPARE(lines[8], u"Current Sales Tax: "_s + tax + u'%');
        QTEST(lines[5].mid(u"Paycheck Amount: "_s.size()), "positive");
    }

    void AProjectsInstallmentsAreTheSameEverywhere_data() { Locales(); }
    void AProjectsInstallmentsAreTheSameEverywhere()
    {
        QFETCH(QLocale, locale);
        LocaleDesk desk(locale);
        TakeHousehold(desk);
        desk.WriteFile(u"projects.txt"_s, "0\r\n");
        const QString window = u"frmProjects"_s;
        Show(window);
        Click(window, u"cmdListProjects"_s);
        Click(window, u"cmdAddProject"_s);
        Type(window, u"txtProject"_s, u"Boat"_s);
        Type(window, u"txtProjectAmount"_s, u"1000"_s);
        QTest::mouseDClick(&Find(window, u"txtProjectCompletionDate"_s), Qt::LeftButton);
        Settle();
        auto &grid = Find<Grid>(u"frmSavingsForecast"_s, u"grdSavingsForecast"_s);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid.visualRect(grid.model()->index(int(ForecastLines.size()) - 1, 1)).center());
        Settle();
        QCOMPARE(TextOf(window, u"txtProjectCompletionDate"_s), ForecastLines.last().Date);
        QCOMPARE(Forecast.ForecastPickAccumulated, Dollars(2172.8));
        Click(window, u"cmdNew"_s);
        // -2,765.44 and four times 1,234.56 of 2,172.80, as shares of 1,000.00
        QCOMPARE(desk.ReadFile(u"projects.txt"_s),
                 QByteArray("1\r\n\"Boat\"\r\n1000\r\n5\r\n\"December 31, 2003\"\r\n-1272.7541\r\n"
                            "\"January 7, 2004\"\r\n568.1885\r\n\"January 14, 2004\"\r\n568.1885\r\n"
                            "\"January 21, 2004\"\r\n568.1885\r\n\"January 28, 2004\"\r\n568.1885\r\n"));
        QTEST(FormatCurrency(Dollars(1234.56)), "positive");
        QCOMPARE(TextOf(window, u"txtProjectAmount"_s), FormatCurrency(Dollars(1000)));
    }
};

REGISTER_TEST(gui_locales)
#include "gui_locales.moc"

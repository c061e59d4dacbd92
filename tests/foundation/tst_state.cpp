// What the shared state holds before anything was loaded, and that all of it can be put back.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"
#include "foundation/State.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void ExpectTheStart()
{
    QCOMPARE(State.ApplicationPath, QString());
    QCOMPARE(State.StoresDirectory, QString());
    QCOMPARE(State.HelpFile, QString());

    QCOMPARE(State.ForecastPeriods, qint16(0));
    QCOMPARE(State.PaycheckAmount, Currency());
    QCOMPARE(State.PayFrequency, qint16(0));
    QCOMPARE(State.FirstPayDate, qint16(0));
    QCOMPARE(State.SecondPayDate, qint16(0));
    QCOMPARE(State.MonthEndPay, qint16(0));
    QCOMPARE(State.SalesTax, 0.0F);
    QCOMPARE(State.CurrentStoreFile, QString());
    QCOMPARE(State.AverageNetPercentage, 0.0F);

    QCOMPARE(State.NumberOfCreditors, qint16(0));
    QCOMPARE(State.NumberOfRegulars, qint16(0));
    QCOMPARE(State.NumberOfExtraPayPeriods, qint16(0));
    QCOMPARE(State.NumberOfProjects, qint16(0));
    QCOMPARE(State.NumberOfMasterItems, qint16(0));
    QCOMPARE(State.NumberOfCurrentItems, qint16(0));
    QCOMPARE(State.Creditors.Size(), 0);
    QCOMPARE(State.Regulars.Size(), 0);
    QCOMPARE(State.ExtraPayPeriods.Size(), 0);
    QCOMPARE(State.ProjectNames.Size(), 0);
    QCOMPARE(State.ProjectAmounts.Size(), 0);
    QCOMPARE(State.ProjectEntryCounts.Size(), 0);
    QCOMPARE(State.ProjectEntryDates.Size(), 0);
    QCOMPARE(State.ProjectEntryAmounts.Size(), 0);
    QCOMPARE(State.MasterShoppingList.Size(), 0);
    QCOMPARE(State.CurrentShoppingList.Size(), 0);

    QCOMPARE(State.CurrentPayPeriod, QString());
    QCOMPARE(State.BudgetPeriodStart.Text(), QString());
    QCOMPARE(State.PayPeriodDate.Text(), QString());
    QCOMPARE(State.NextPeriodDate.Text(), QString());
    QCOMPARE(State.NextNextPeriodDate.Text(), QString());
    for (const qint16 days : State.MonthDays)
        QCOMPARE(days, qint16(0));
    QVERIFY(!State.ClockTime.isValid());

    QVERIFY(!State.InitializingVariables);
    QVERIFY(!State.MathCalculatorMissing);
    QVERIFY(!State.CurrentPayPeriodConfirmed);
    QCOMPARE(State.WelcomeLevel, 0);
    QVERIFY(!State.WelcomeLevelPending);
    QVERIFY(!State.GuidedSetupActive);
    QCOMPARE(State.GuidedSetupRoute, 0);
    QCOMPARE(State.GuidedSetupStep, qint16(0));
    QVERIFY(!State.LookingAhead);
    QVERIFY(!State.ForecastMode);
    QVERIFY(!State.ProjectDateFromForecast);
    QVERIFY(!State.ScanCalledFromExtras);
    QVERIFY(!State.PrintBudget);
    QVERIFY(!State.PrintPayOffPlan);
    QVERIFY(!State.PrintSavingsForecast);
    QVERIFY(!State.PrintProjectView);

    QCOMPARE(State.TutorInstructions.Size(), 26);
    for (const QString &page : State.TutorInstructions)
        QCOMPARE(page, QString());

    QCOMPARE(State.PrintFontName, QString());
    QCOMPARE(State.PrintFontSize, 0.0F);
    QVERIFY(!State.PrintFontBold);
    QVERIFY(!State.PrintFontItalic);
    QVERIFY(!State.PrintFontUnderline);
    QVERIFY(!State.PrintFontStrikethru);
    QCOMPARE(State.PrintFontColor, 0);

    QCOMPARE(State.BudgetBalance, Currency());
    QCOMPARE(State.NextPeriodShortfall, Currency());
    QCOMPARE(State.BudgetCredit, Currency());
}

} // namespace

class TestState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheStartValues()
    {
        State = SharedState();
        ExpectTheStart();
    }

    void OneResetPutsAllOfItBack()
    {
        {
            SharedState used;
            used.ApplicationPath = used.StoresDirectory = used.HelpFile = u"somewhere"_s;
            used.ForecastPeriods = used.PayFrequency = used.FirstPayDate = used.SecondPayDate = used.MonthEndPay = 1;
            used.PaycheckAmount = used.BudgetBalance = used.NextPeriodShortfall = used.BudgetCredit =
                Currency::FromTenThousandths(1);
            used.SalesTax = used.AverageNetPercentage = used.PrintFontSize = 1;
            used.CurrentStoreFile = used.CurrentPayPeriod = used.PrintFontName = u"text"_s;
            used.NumberOfCreditors = used.NumberOfRegulars = used.NumberOfExtraPayPeriods = used.NumberOfProjects =
                used.NumberOfMasterItems = used.NumberOfCurrentItems = used.GuidedSetupStep = 1;
            used.Creditors.Redim(1);
            used.Regulars.Redim(1);
            used.ExtraPayPeriods.Redim(1);
            used.ProjectNames.Redim(1);
            used.ProjectAmounts.Redim(1);
            used.ProjectEntryCounts.Redim(1);
            used.ProjectEntryDates.Redim(1);
            used.ProjectEntryAmounts.Redim(1);
            used.MasterShoppingList.Redim(1);
            used.CurrentShoppingList.Redim(1);
            used.BudgetPeriodStart = used.PayPeriodDate = used.NextPeriodDate = used.NextNextPeriodDate =
                DateText(u"1/1/2004"_s);
            used.MonthDays.fill(30);
            used.ClockTime = QTime(1, 2, 3);
            used.InitializingVariables = used.MathCalculatorMissing = used.CurrentPayPeriodConfirmed =
                used.WelcomeLevelPending = used.GuidedSetupActive = used.LookingAhead = used.ForecastMode =
                    used.ProjectDateFromForecast = used.ScanCalledFromExtras = used.PrintBudget = used.PrintPayOffPlan =
                        used.PrintSavingsForecast = used.PrintProjectView = used.PrintFontBold = used.PrintFontItalic =
                            used.PrintFontUnderline = used.PrintFontStrikethru = true;
            used.WelcomeLevel = used.GuidedSetupRoute = used.PrintFontColor = 1;
            used.TutorInstructions(26) = u"page"_s;
            State = used;
        }
        ResetState();
        ExpectTheStart();
    }

    void TheBoundsOfTheRecords()
    {
        ExtraPayPeriodRecord payPeriod;
        payPeriod.ExtraItems.At(200).ExtraItem = u"the last one"_s;
        QCOMPARE(payPeriod.ExtraItems(200).ExtraItem, u"the last one"_s);
        QCOMPARE(payPeriod.ExtraItems(0).ExtraItem, QString());
        QCOMPARE(ErrorOf([&] { payPeriod.ExtraItems(201); }), 9);
        QCOMPARE(ErrorOf([&] { payPeriod.ExtraItems(-1); }), 9);
        FixedArray<DateText, MostProjectEntries> entries;
        QVERIFY(entries(100).IsEmpty());
        QCOMPARE(ErrorOf([&] { entries(101); }), 9);
    }
};

REGISTER_TEST(TestState)
#include "tst_state.moc"

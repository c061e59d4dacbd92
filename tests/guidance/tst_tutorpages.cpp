// The table of the tutor's pages.
#include "FakeDesk.h"
#include "TestProgram.h"

#include "ErrorOf.h"
#include "guidance/TutorPages.h"

using namespace Qt::Literals::StringLiterals;

class tst_tutorpages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryPageHasItsTopic_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("panel");
        const QStringList panels{u"pnlAverageNetPercentage"_s,
                                 u"pnlBudget"_s,
                                 u"pnlCreditors"_s,
                                 u"pnlCurrentShoppingList"_s,
                                 u"pnlEnvironmentSettings"_s,
                                 u"pnlExtraItems"_s,
                                 u"pnlLoanInterestRates"_s,
                                 u"pnlLoanPayments"_s,
                                 u"pnlMasterShoppingList"_s,
                                 u"pnlMathCalculator"_s,
                                 u"pnlOpenStoreList"_s,
                                 u"pnlOverhead"_s,
                                 u"pnlPayOff"_s,
                                 u"pnlPrintCurrentList"_s,
                                 u"pnlPrinterSetup"_s,
                                 u"pnlProjects"_s,
                                 u"pnlRegularItems"_s,
                                 u"pnlSavings"_s,
                                 u"pnlSavingsForecast"_s,
                                 u"pnlScanPayPeriods"_s,
                                 u"pnlSearchForHelpOn"_s,
                                 u"pnlSetCurrentPayPeriod"_s,
                                 u"pnlTipOfTheDay"_s,
                                 u"pnlWageCalculator"_s,
                                 u"pnlMasterShoppingList"_s,
                                 u"pnlMasterShoppingList"_s};
        QCOMPARE(panels.size(), MostTutorPages);
        for (int page = 1; page <= MostTutorPages; ++page)
            QTest::addRow("%d", page) << page << panels[page - 1];
    }
    void EveryPageHasItsTopic()
    {
        QFETCH(int, page);
        QTEST(TutorPage(page).Panel, "panel");
        QVERIFY(!TutorPage(page).Topic.isEmpty());
    }

    void TheTopicsOfTheTimedPagesDifferAndAreInAlphabeticalOrder()
    {
        for (int page = 2; page <= 24; ++page) {
            QVERIFY2(TutorPage(page - 1).Topic < TutorPage(page).Topic, qPrintable(TutorPage(page).Topic));
            for (int other = 1; other < page; ++other)
                QVERIFY2(TutorPage(other).Icon != TutorPage(page).Icon, qPrintable(TutorPage(page).Icon));
        }
    }

    void ThereAreNoOtherPages()
    {
        for (const int page : {0, -1, MostTutorPages + 1})
            QCOMPARE(ErrorOf([&] { (void)TutorPage(page); }), int(RuntimeError::SubscriptOutOfRange));
    }
};

REGISTER_TEST(tst_tutorpages)
#include "tst_tutorpages.moc"

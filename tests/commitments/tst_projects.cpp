// The edits of the projects: funds, installments in proportion to what each pay period saves, the bound of 100 entries.
#include "ErrorOf.h"
#include "FakeDesk.h"
#include "TestProgram.h"

#include "budget/SavingsForecast.h"
#include "commitments/Projects.h"
#include "platform/values/Format.h"
#include "platform/values/Locale.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Currency Dollars(double amount)
{
    return Currency::FromDouble(amount);
}

/// A forecast that saves these dollars in its rows, with the last one picked. Its dates are January 1, 2 and so on.
void TakeForecast(const QList<double> &savings)
{
    Currency accumulated;
    for (int row = 1; row <= savings.size(); ++row) {
        accumulated += Dollars(savings[row - 1]);
        Forecast.Rows(row) = {QDate(2004, 1, 1).addDays(row - 1), Dollars(savings[row - 1]), accumulated};
    }
    Forecast.ForecastPickRow = qint16(savings.size());
    Forecast.ForecastPickAccumulated = accumulated;
}

QList<double> InstallmentsOf(int project)
{
    QList<double> amounts;
    for (int entry = 1; entry <= State.ProjectEntryCounts(project); ++entry)
        amounts += State.ProjectEntryAmounts(project)(entry).ToDouble();
    return amounts;
}

QString ProjectNames()
{
    QStringList names;
    for (int project = 1; project <= State.NumberOfProjects; ++project)
        names += State.ProjectNames(project);
    return names.join(u' ');
}

/// Three projects of one, two and three installments of a dollar.
void TakeProjects()
{
    for (int count = 1; count <= 3; ++count) {
        TakeForecast(QList<double>(count, 1));
        AddProject(QString(QChar(u'A' + count - 1)), Dollars(count));
    }
}

} // namespace

class tst_projects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { SetUserLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void cleanup()
    {
        Forecast = {};
        Projects = {};
    }

    void AnEntry_data()
    {
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<QString>("focus");
        QTest::newRow("a project") << u"Boat"_s << u"60"_s << QString();
        QTest::newRow("letters") << u"Boat"_s << u"x"_s << u"txtProjectAmount"_s;
        QTest::newRow("the amount comes first") << QString() << u"x"_s << u"txtProjectAmount"_s;
        QTest::newRow("no description") << QString() << u"60"_s << u"txtProject"_s;
    }
    void AnEntry()
    {
        QFETCH(QString, project);
        QFETCH(QString, amount);
        QFETCH(QString, focus);
        const auto refusal = ValidateProjectEntry({project, amount});
        QCOMPARE(refusal ? refusal->Focus : QString(), focus);
    }

    void Funds_data()
    {
        QTest::addColumn<double>("accumulated");
        QTest::addColumn<double>("amount");
        QTest::addColumn<bool>("enough");
        QTest::newRow("more than the amount") << 100.0 << 60.0 << true;
        QTest::newRow("equal funds pass") << 60.0 << 60.0 << true;
        QTest::newRow("a ten-thousandth is missing") << 60.0 << 60.0001 << false;
        QTest::newRow("a deficit") << -1.0 << 0.0 << false;
    }
    void Funds()
    {
        QFETCH(double, accumulated);
        QFETCH(double, amount);
        QFETCH(bool, enough);
        Forecast.ForecastPickAccumulated = Dollars(accumulated);
        QCOMPARE(!ValidateProjectFunds(Dollars(amount)), enough);
    }

    void Installments_data()
    {
        QTest::addColumn<QList<double>>("savings");
        QTest::addColumn<double>("amount");
        QTest::addColumn<QList<double>>("installments");
        QTest::newRow("in proportion") << QList<double>{100, 200, 300, 600} << 600.0
                                       << QList<double>{50, 100, 150, 300};
        QTest::newRow("twice the savings, twice the installment")
            << QList<double>{100, 50} << 60.0 << QList<double>{40, 20};
        QTest::newRow("one row is the whole amount") << QList<double>{130} << 99.99 << QList<double>{99.99};
        QTest::newRow("a row of deficit") << QList<double>{100, -50, 150} << 100.0 << QList<double>{50, -25, 75};
        QTest::newRow("rounded to the ten-thousandth")
            << QList<double>{1, 1, 1} << 1.0 << QList<double>{0.3333, 0.3333, 0.3333};
        QTest::newRow("from amounts of two decimals") << QList<double>{0.004, 1} << 1.0 << QList<double>{0, 1};
    }
    void Installments()
    {
        QFETCH(QList<double>, savings);
        QFETCH(double, amount);
        QFETCH(QList<double>, installments);
        FakeDesk desk;
        TakeForecast(savings);
        AddProject(u"Boat"_s, Dollars(amount));
        QCOMPARE(State.NumberOfProjects, qint16(1));
        QCOMPARE(State.ProjectNames(1), u"Boat"_s);
        QCOMPARE(State.ProjectAmounts(1), Dollars(amount));
        QCOMPARE(State.ProjectEntryDates(1)(1).Text(), u"January 1, 2004"_s);
        QCOMPARE(InstallmentsOf(1), installments);
    }

    void AHundredInstallmentsFit()
    {
        FakeDesk desk;
        TakeForecast(QList<double>(100, 1));
        AddProject(u"Long"_s, Dollars(50));
        QCOMPARE(InstallmentsOf(1), QList<double>(100, 0.5));
    }

    void The101stInstallmentIsAnErrorWithTheProjectInMemory()
    {
        FakeDesk desk;
        TakeForecast(QList<double>(101, 1));
        QCOMPARE(ErrorOf([] { AddProject(u"Far"_s, Dollars(50)); }), int(RuntimeError::SubscriptOutOfRange));
        QCOMPARE(State.NumberOfProjects, qint16(1));
        QCOMPARE(State.ProjectEntryCounts(1), qint16(101));
    }

    void NothingDividedByNothingIsAnError()
    {
        FakeDesk desk;
        TakeForecast({0});
        QCOMPARE(ErrorOf([] { AddProject(u"Nothing"_s, {}); }), int(RuntimeError::DivisionByZero));
        QCOMPARE(State.NumberOfProjects, qint16(0)); // nothing was added half-way
        QCOMPARE(State.ProjectNames.Size(), 0);
    }

    void EarlierProjectsKeepWhatTheyHave()
    {
        FakeDesk desk;
        TakeProjects();
        QCOMPARE(ProjectNames(), u"A B C"_s);
        QCOMPARE(InstallmentsOf(2), QList<double>(2, 1));
        QCOMPARE(InstallmentsOf(3), QList<double>(3, 1));
    }

    void Deleting_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("left");
        QTest::addColumn<int>("firstCount");
        QTest::addColumn<int>("secondCount");
        QTest::newRow("the first") << 1 << u"B C"_s << 2 << 3;
        QTest::newRow("in between") << 2 << u"A C"_s << 1 << 3;
        QTest::newRow("the last") << 3 << u"A B"_s << 1 << 2;
    }
    void Deleting()
    {
        QFETCH(int, index);
        QFETCH(QString, left);
        QFETCH(int, firstCount);
        QFETCH(int, secondCount);
        FakeDesk desk;
        TakeProjects();
        Projects.SelectedProject = qint16(index);
        DeleteProject();
        QCOMPARE(ProjectNames(), left);
        QCOMPARE(InstallmentsOf(1), QList<double>(firstCount, 1));
        QCOMPARE(InstallmentsOf(2), QList<double>(secondCount, 1));
        QCOMPARE(State.ProjectAmounts(2), Dollars(secondCount));
    }

    void DeletingTheOnlyProject()
    {
        FakeDesk desk;
        TakeForecast({1});
        AddProject(u"A"_s, Dollars(1));
        DeleteProject(); // whatever is selected
        QCOMPARE(State.NumberOfProjects, qint16(0));
        QCOMPARE(State.ProjectNames.Size(), 0);
    }

    void NothingIsDeletedWithoutARow()
    {
        FakeDesk desk;
        TakeProjects();
        for (const int selected : {0, 4}) {
            Projects.SelectedProject = qint16(selected);
            QCOMPARE(ErrorOf([] { DeleteProject(); }), int(RuntimeError::SubscriptOutOfRange));
        }
        QCOMPARE(ProjectNames(), u"A B C"_s);
    }

    void AProjectWithoutANameDisappearsWithTheDeletedOne()
    {
        FakeDesk desk;
        TakeProjects();
        State.ProjectNames(2).clear();
        Projects.SelectedProject = 1;
        DeleteProject();
        QCOMPARE(ProjectNames(), u"C "_s);
    }

    void TheRowsOfTheViewAddUp()
    {
        FakeDesk desk;
        TakeForecast({-10, 5, 65});
        AddProject(u"Boat"_s, Dollars(60));
        const Statement view = ProjectStatement(1);
        QCOMPARE(view.Heading, u"Boat"_s);
        QCOMPARE(int(view.Rows.size()), 3);
        const auto row = [](const QString &date, double amount, double total) {
            return StatementRow{{date}, {Dollars(amount), Dollars(total)}, StatementRow::Signed};
        };
        QVERIFY(view.Rows[0] == row(u"January 1, 2004"_s, -10, -10));
        QVERIFY(view.Rows[1] == row(u"January 2, 2004"_s, 5, -5));
        QVERIFY(view.Rows[2] == row(u"January 3, 2004"_s, 65, 60));
    }
};

REGISTER_TEST(tst_projects)
#include "tst_projects.moc"

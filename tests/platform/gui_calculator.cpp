// The desktop's calculator as a process: a script that only sleeps stands in for it.
#include "../support/ErrorOf.h"
#include "TestProgram.h"
#include "platform/desk/Calculator.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

using namespace Qt::Literals::StringLiterals;

class TestCalculator : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_programs;
    QByteArray m_pathBefore;

    /// Installs a program that notes its process and its name, and sleeps.
    void Install(const QString &name)
    {
        QFile script(m_programs.filePath(name));
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho $$ >" + QFile::encodeName(NotePath(name)) + ".part\n/bin/mv " +
                     QFile::encodeName(NotePath(name)) + ".part " + QFile::encodeName(NotePath(name)) +
                     "\nexec /bin/sleep 60\n");
        script.close();
        QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QString NotePath(const QString &name) const { return m_programs.filePath(name + u".pid"_s); }
    /// The process of an installed program that was started; 0 if it was not.
    int ProcessOf(const QString &name) const
    {
        QFile note(NotePath(name));
        return note.open(QIODevice::ReadOnly) ? note.readAll().trimmed().toInt() : 0;
    }
    static bool Runs(int process)
    {
        QFile state(u"/proc/%1/stat"_s.arg(process));
        if (process == 0 || !state.open(QIODevice::ReadOnly))
            return false;
        const QByteArray line = state.readAll();
        return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_programs.isValid());
        m_pathBefore = qgetenv("PATH");
    }
    void init() { qputenv("PATH", QFile::encodeName(m_programs.path())); }
    void cleanup()
    {
        CloseCalculator();
        const QStringList names = QDir(m_programs.path()).entryList(QDir::Files);
        for (const QString &name : names)
            QFile::remove(m_programs.filePath(name));
        qputenv("PATH", m_pathBefore);
    }

    void NoneInstalledIsError53()
    {
        QVERIFY(!CalculatorInstalled());
        QCOMPARE(ErrorOf(StartCalculator), 53);
        QCOMPARE(ErrorOf(BringCalculatorForward), 5);
        CloseCalculator(); // ignores that there is none
    }

    void TheFirstOfTheUsualOnesIsStarted_data()
    {
        QTest::addColumn<QStringList>("installed");
        QTest::addColumn<QString>("started");
        const QStringList usual{u"kcalc"_s,         u"gnome-calculator"_s, u"mate-calc"_s, u"galculator"_s,
                                u"qalculate-gtk"_s, u"qalculate-qt"_s,     u"xcalc"_s};
        for (int i = 0; i < usual.size(); ++i)
            QTest::addRow("%s comes before all that follow", qPrintable(usual[i])) << usual.mid(i) << usual[i];
    }
    void TheFirstOfTheUsualOnesIsStarted()
    {
        QFETCH(QStringList, installed);
        QFETCH(QString, started);
        for (const QString &name : std::as_const(installed))
            Install(name);
        QVERIFY(CalculatorInstalled());
        QCOMPARE(ErrorOf(StartCalculator), 0);
        QTRY_VERIFY(Runs(ProcessOf(started)));
        for (const QString &name : std::as_const(installed))
            QCOMPARE(ProcessOf(name) != 0, name == started);
        // Nothing can raise another program's window on this platform: either the calculator raises itself when it is
        // started again, or it is told as not running, and a new one comes to the front.
        const bool keepsToOneInstance =
            started == QLatin1String("gnome-calculator") || started.startsWith(QLatin1String("qalculate"));
        QCOMPARE(ErrorOf(BringCalculatorForward), keepsToOneInstance ? 0 : 5);
    }

    void AProgramThatIsNoCalculatorIsNotStarted()
    {
        Install(u"calc"_s);
        QVERIFY(!CalculatorInstalled());
    }

    void OneThatWasInstalledLaterIsFound()
    {
        QCOMPARE(ErrorOf(StartCalculator), 53);
        Install(u"xcalc"_s);
        QCOMPARE(ErrorOf(StartCalculator), 0);
        QTRY_VERIFY(Runs(ProcessOf(u"xcalc"_s)));
    }

    void StartingDoesNotHoldUpTheProgram()
    {
        Install(u"xcalc"_s);
        QElapsedTimer time;
        time.start();
        StartCalculator();
        QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
    }

    void OneThatTheUserClosedIsError5AndCanBeStartedAgain()
    {
        const QString calculator = u"gnome-calculator"_s; // raises itself when it is started again
        Install(calculator);
        StartCalculator();
        QTRY_VERIFY(Runs(ProcessOf(calculator)));
        const int first = ProcessOf(calculator);
        QCOMPARE(::kill(first, SIGKILL), 0);
        QTRY_COMPARE(ErrorOf(BringCalculatorForward), 5);
        StartCalculator();
        QTRY_VERIFY(ProcessOf(calculator) != first && Runs(ProcessOf(calculator)));
        QCOMPARE(ErrorOf(BringCalculatorForward), 0);
    }

    void ClosingEndsOnlyTheOneThatWasStartedHere()
    {
        Install(u"xcalc"_s);
        QProcess users;
        users.start(m_programs.filePath(u"xcalc"_s), {});
        QVERIFY(users.waitForStarted());
        QTRY_COMPARE(ProcessOf(u"xcalc"_s), int(users.processId()));
        QFile::remove(NotePath(u"xcalc"_s));
        StartCalculator();
        QTRY_VERIFY(Runs(ProcessOf(u"xcalc"_s)));
        const int ours = ProcessOf(u"xcalc"_s);
        QVERIFY(ours != int(users.processId()));
        CloseCalculator();
        QTRY_VERIFY(!Runs(ours));
        QVERIFY(Runs(int(users.processId())));
        QCOMPARE(ErrorOf(BringCalculatorForward), 5);
        CloseCalculator(); // a second time changes nothing
        QVERIFY(Runs(int(users.processId())));
        users.kill();
        QVERIFY(users.waitForFinished());
    }

    void OneThatCouldNotBeBroughtForwardIsClosedWithItsSuccessor()
    {
        const QString calculator = u"kcalc"_s;
        Install(calculator);
        StartCalculator();
        QTRY_VERIFY(Runs(ProcessOf(calculator)));
        const int first = ProcessOf(calculator);
        QCOMPARE(ErrorOf(BringCalculatorForward), 5); // nothing here can raise it
        StartCalculator();
        QTRY_VERIFY(ProcessOf(calculator) != first && Runs(ProcessOf(calculator)));
        QVERIFY(Runs(first)); // the user may still work in it
        CloseCalculator();
        QTRY_VERIFY(!Runs(first));
        QTRY_VERIFY(!Runs(ProcessOf(calculator)));
    }

    void AUsersCalculatorCountsAsNoneOfOurs()
    {
        Install(u"xcalc"_s);
        QProcess users;
        users.start(m_programs.filePath(u"xcalc"_s), {});
        QVERIFY(users.waitForStarted());
        QCOMPARE(ErrorOf(BringCalculatorForward), 5);
        CloseCalculator();
        QVERIFY(Runs(int(users.processId())));
        users.kill();
        QVERIFY(users.waitForFinished());
    }
};

REGISTER_TEST(TestCalculator)
#include "gui_calculator.moc"

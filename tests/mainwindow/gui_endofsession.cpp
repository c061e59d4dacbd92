// The ends that nobody at the screen asks for: the program runs as a process of its own, offscreen, on a household laid
// down for it, and a signal or the desktop's session ends it, whatever stands open.
#include "GuiDesk.h"
#include "TestProgram.h"

#include "foundation/StartAndEnd.h"
#include "mainwindow/EndOfSession.h"
#include "platform/windows/Application.h"

#include <QProcess>
#include <QSessionManager>
#include <QSignalSpy>
#include <csignal>
#include <sys/prctl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// The same settings as the program writes them and as an editor does.
const QByteArray Written = "26\r\n1000\r\n14\r\n1\r\n15\r\n0\r\n0.06\r\n\"untitled.lst\"\r\n0.9\r\n";
const QByteArray Edited = "26\r\n1000.00\r\n14\r\n1\r\n15\r\n0\r\n0.060\r\n\"untitled.lst\"\r\n0.90\r\n";

/// The program on a household in the desk's folder, and with a calculator that is told from all others.
class Program
{
public:
    Program(const RecordingDesk &desk, const QString &steps, const QByteArray &settings = Edited,
            void (*hangUp)(int) = SIG_DFL)
        : m_calculator(desk.Path(u"bin\\kcalc.pid"_s))
    {
        desk.LayHousehold();
        desk.WriteFile(u"environm.ini"_s, settings);
        desk.WriteFile(u"bin\\kcalc"_s, "#!/bin/sh\necho $$ > \"$0.pid\"\nexec sleep 600\n");
        QFile::setPermissions(desk.Path(u"bin\\kcalc"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QFile::remove(m_calculator);

        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        environment.insert(u"XDG_CONFIG_HOME"_s, desk.Path(u"config"_s));
        environment.insert(u"PATH"_s, desk.Path(u"bin"_s) + u":/usr/bin:/bin"_s);
        environment.insert(u"TALLYMERE_STEPS"_s, steps);
        process.setProcessEnvironment(environment);
        process.setChildProcessModifier([hangUp] { // whoever runs the tests, and however
            std::signal(SIGTERM, SIG_DFL);
            std::signal(SIGINT, SIG_DFL);
            std::signal(SIGHUP, hangUp);
            prctl(PR_SET_PDEATHSIG, SIGKILL);
        });
        process.start(desk.Path(u"program"_s), QStringList());
    }
    ~Program()
    {
        process.kill();
        process.waitForFinished();
        if (CalculatorRuns())
            ::kill(pid_t(CalculatorId()), SIGKILL);
    }
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    bool IsReady()
    {
        return QTest::qWaitFor([this] { return process.canReadLine() && process.readLine() == "ready\n"; }, 20000);
    }
    bool HasEnded()
    {
        return QTest::qWaitFor([this] { return process.state() == QProcess::NotRunning; }, 20000) &&
               process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }
    int Send(int number) const { return ::kill(pid_t(process.processId()), number); }
    bool CalculatorRuns() const
    {
        QFile state(u"/proc/%1/stat"_s.arg(CalculatorId()));
        return state.open(QIODevice::ReadOnly) && !state.readAll().contains(") Z ");
    }
    QProcess process;

private:
    qint64 CalculatorId() const
    {
        QFile file(m_calculator);
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toLongLong() : -1;
    }
    QString m_calculator;
};

const QString ToTheSplash = u"frmWelcome.lblLevelSelection3,frmSplash"_s;
const QString ToTheTip = ToTheSplash + u".cmdContinue,frmTip"_s;
const QString ToTheQuestion = ToTheTip + u".cmdOK,frmSetCurrentPayPeriod"_s;
const QString ToTheMainWindow = ToTheQuestion + u".cmdExit,frmMain"_s;

} // namespace

class gui_endofsession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_desk = std::make_unique<RecordingDesk>();
        // The household lies in the folder of the program.
        QVERIFY(
            QFile::copy(QCoreApplication::applicationDirPath() + u"/steered_program"_s, m_desk->Path(u"program"_s)));
    }
    void cleanupTestCase() { m_desk.reset(); }

    void ASignalLeavesAsTheMenuDoes_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("steps");
        for (const auto &[name, number] : {std::pair{"SIGTERM", SIGTERM}, {"SIGINT", SIGINT}, {"SIGHUP", SIGHUP}})
            QTest::addRow("%s at the main window", name) << number << ToTheMainWindow;
        QTest::newRow("under a modal window") << SIGTERM << ToTheQuestion;
        QTest::newRow("under a message box") << SIGTERM << ToTheMainWindow + u".mnuBudgetSavingsForecast,messageBox"_s;
        QTest::newRow("under a file dialog") << SIGTERM << ToTheMainWindow + u".mnuShopperOpenStoreList,QFileDialog"_s;
        QTest::newRow("beside another window")
            << SIGTERM << ToTheMainWindow + u".mnuOptionsEnvironmentSettings,frmEnvironmentSettings"_s;
        QTest::newRow("while a guide hides the main window")
            << SIGTERM << ToTheMainWindow + u".mnuStartBudget,frmGettingStarted"_s;
    }
    void ASignalLeavesAsTheMenuDoes()
    {
        QFETCH(int, number);
        QFETCH(QString, steps);
        Program program(*m_desk, steps);
        QVERIFY(program.IsReady());
        QVERIFY(QTest::qWaitFor([&] { return program.CalculatorRuns(); }));
        QCOMPARE(m_desk->ReadFile(u"environm.ini"_s), Edited);
        QCOMPARE(program.Send(number), 0);
        QVERIFY(program.HasEnded());
        QCOMPARE(m_desk->ReadFile(u"environm.ini"_s), Written);
        QVERIFY(QTest::qWaitFor([&] { return !program.CalculatorRuns(); }));
    }

    void BeforeTheMainWindowStandsNothingIsSaved_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QByteArray>("settings");
        QTest::newRow("the welcome window") << u"frmWelcome"_s << Edited;
        QTest::newRow("the splash") << ToTheSplash << Edited;
        QTest::newRow("the tip before it") << ToTheTip << Edited;
        QTest::newRow("half of the settings is read")
            << ToTheTip + u".cmdOK,messageBox"_s << QByteArray("26\r\n1000.00\r\n");
        QTest::newRow("the rest of them was given up")
            << ToTheTip + u".cmdOK,messageBox.OK,frmSetCurrentPayPeriod"_s << QByteArray("26\r\n1000.00\r\n");
    }
    void BeforeTheMainWindowStandsNothingIsSaved()
    {
        QFETCH(QString, steps);
        QFETCH(QByteArray, settings);
        Program program(*m_desk, steps, settings);
        QVERIFY(program.IsReady());
        QCOMPARE(program.Send(SIGTERM), 0);
        QVERIFY(program.HasEnded());
        QCOMPARE(m_desk->ReadFile(u"environm.ini"_s), settings);
    }

    void ASignalThatIsIgnoredStaysSo()
    {
        Program program(*m_desk, ToTheMainWindow, Edited, SIG_IGN);
        QVERIFY(program.IsReady());
        QCOMPARE(program.Send(SIGHUP), 0);
        QTest::qWait(300);
        QCOMPARE(program.process.state(), QProcess::Running);
        QCOMPARE(m_desk->ReadFile(u"environm.ini"_s), Edited);
        QCOMPARE(program.Send(SIGTERM), 0);
        QVERIFY(program.HasEnded());
    }

    void BeforeTheSessionEndsTheSettingsAreSaved()
    {
        Program program(*m_desk, ToTheMainWindow + u",commit"_s);
        QVERIFY(program.IsReady());
        QVERIFY(QTest::qWaitFor([this] { return m_desk->ReadFile(u"environm.ini"_s) == Written; }));
        QTest::qWait(300);
        QCOMPARE(program.process.state(), QProcess::Running); // the user may still call the logout off
        QVERIFY(program.CalculatorRuns());
    }

    void TheEndOfTheSessionLeavesAsTheMenuDoes()
    {
        Program program(*m_desk, ToTheMainWindow + u".mnuOptionsEnvironmentSettings,frmEnvironmentSettings,quit"_s);
        QVERIFY(program.HasEnded());
        QCOMPARE(m_desk->ReadFile(u"environm.ini"_s), Written);
        QVERIFY(QTest::qWaitFor([&] { return !program.CalculatorRuns(); }));
    }

    void WhatCannotBeSavedIsNotAsked()
    {
        GuiDesk desk;
        desk.StartProgram();
        desk.RemoveFile(u"environm.ini"_s);
        QDir(desk.Folder()).mkdir(u"environm.ini"_s); // no file can take its place
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Error \\d+"_s));
        LeaveWithoutQuestion();
        QVERIFY(desk.TakeEnd());
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QCOMPARE(desk.Messages.size(), 0);
        ShowMessage(u"later"_s, {}, Icon::None);
        QCOMPARE(desk.TakeMessage().Text, u"later"_s); // only then was it quiet
    }

    // A print switch that is on keeps its pages until it is turned off, and the desk tells of them at its end.
    void PagesThatWereKeptArePrinted_data()
    {
        QTest::addColumn<bool>("asked");
        QTest::addColumn<bool>("fails");
        QTest::newRow("by the user") << true << false;
        QTest::newRow("by a signal") << false << false;
        QTest::newRow("by the user, without a printer that works") << true << true;
        QTest::newRow("by a signal, without a printer that works") << false << true;
    }
    void PagesThatWereKeptArePrinted()
    {
        QFETCH(bool, asked);
        QFETCH(bool, fails);
        GuiDesk desk;
        desk.StartProgram();
        ThePrinter.Print(u"Rent"_s).NewLine();
        if (fails)
            TheDesk.PrintDocument = [](const PrintJob &) { RaiseError(RuntimeError::DeviceError); };
        TheDesk.EndProgram = [end = TheDesk.EndProgram] {
            ShowMessage(u"The pages are in a file"_s, {}, Icon::Information);
            end();
        };
        if (asked) {
            LeaveProgram();
            QCOMPARE(desk.TakeMessage().Text, u"The pages are in a file"_s);
        } else {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"The pages are in a file"_s));
            LeaveWithoutQuestion();
        }
        QVERIFY(desk.TakeEnd());
        QCOMPARE(desk.TakeCalculatorCalls(), QStringList{u"close"_s});
        QCOMPARE(desk.TakeFiles(), QStringList{u"environm.ini"_s});
        QCOMPARE(desk.TakePrinted().Lines.size(), fails ? 0 : 1);
    }

    void BothRequestsOfTheDesktopAreHeard()
    {
        auto &application = static_cast<Application &>(*qApp);
        QSignalSpy save(&application, &Application::SaveRequested);
        QSignalSpy end(&application, &Application::EndRequested);
        auto &manager = *qApp->findChild<QSessionManager *>();
        Q_EMIT qGuiApp->commitDataRequest(manager);
        Q_EMIT qGuiApp->saveStateRequest(manager);
        QCOMPARE(save.size(), 2);
        QCOMPARE(end.size(), 0);
        QEvent quit(QEvent::Quit);
        QCoreApplication::sendEvent(qApp, &quit);
        QCOMPARE(end.size(), 1);
        QCOMPARE(save.size(), 2);
    }

private:
    std::unique_ptr<RecordingDesk> m_desk;
};

REGISTER_TEST(gui_endofsession)
#include "gui_endofsession.moc"

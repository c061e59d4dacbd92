// The program's side of the help: one viewer for all questions, and a box wherever the help cannot be shown.
#include "GuiDesk.h"
#include "Pages.h"
#include "TestProgram.h"
#include "platform/desk/HelpViewer.h"

namespace {

/// A stand-in for the viewer, a shell script that writes each line it hears to the file `heard`.
class StandIn
{
public:
    explicit StandIn(const QString &steps)
    {
        QFile file(Program());
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write the stand-in");
        file.write(u"#!/bin/sh\nheard='%1'\n%2\n"_s.arg(m_folder.filePath(u"heard"_s), steps).toUtf8());
        file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeUser);
    }
    QString Program() const { return m_folder.filePath(u"viewer"_s); }
    QString File() const { return m_folder.filePath(u"a file.hlp"_s); }
    void WriteFile(const QByteArray &text, const QDateTime &time = QDateTime::currentDateTime()) const
    {
        QFile file(File());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush() ||
            !file.setFileTime(time, QFileDevice::FileModificationTime))
            qFatal("cannot write the help file");
    }
    QString Heard() const
    {
        QFile file(m_folder.filePath(u"heard"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).simplified() : QString();
    }

private:
    QTemporaryDir m_folder;
};

const QString AnswersAll =
    u"echo start >>$heard; while read -r line; do echo \"$line;\" >>$heard; echo shown page; done"_s;
const QString ThenEnds = u"; echo end >>$heard"_s;

/// The viewer itself, as the program starts it, with a cache of its own.
class RealViewer : public QProcess
{
public:
    explicit RealViewer(const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CACHE_HOME"_s, m_home.path());
        setProcessEnvironment(environment);
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(QStringLiteral(HELP_PROGRAM), QStringList{u"--listen"_s} + arguments);
    }
    ~RealViewer() override
    {
        kill();
        waitForFinished();
    }
    QString Line()
    {
        while (!canReadLine() && waitForReadyRead(Longest))
            ;
        return QString::fromUtf8(readLine()).trimmed();
    }
    /// Closes its input, as the end of the program that asks does.
    bool End()
    {
        closeWriteChannel();
        return waitForFinished(Longest) && exitStatus() == QProcess::NormalExit && exitCode() == 0;
    }
    QStringList WorkingFolders() const
    {
        return QDir(m_home.filePath(u"TallymereHelp"_s)).entryList({u"reading-*"_s}, QDir::Dirs);
    }

private:
    static constexpr int Longest = 20000; // milliseconds
    QTemporaryDir m_home;
};

Message Warning(const QString &text)
{
    return {text, AppTitle, Icon::Warning, Buttons::Ok, 0};
}

} // namespace

class gui_helpviewer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OneViewerHearsAllQuestions()
    {
        GuiDesk desk;
        const StandIn standIn(AnswersAll);
        standIn.WriteFile("pages");
        HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
        viewer.Ask({QString(), 22, u"frmCreditors"_s});
        QTRY_VERIFY(viewer.HasAnswered());
        viewer.Ask({QString(), 26, QString()});
        viewer.Ask({QString(), 0, u"frmMain"_s});
        viewer.Ask({standIn.File(), 0, QString()});
        QTRY_COMPARE(standIn.Heard(), u"start topic frmCreditors; context 26; topic frmMain; contents;"_s);
        QTRY_VERIFY(viewer.HasAnswered());
        viewer.Close();
        QVERIFY(!viewer.HasAnswered());
        viewer.Ask({QString(), 0, u"frmTip"_s}); // and starts again
        QTRY_VERIFY(standIn.Heard().endsWith(u"contents; start topic frmTip;"_s));
    }

    void AFileIsFoundInAnyLetterCase()
    {
        GuiDesk desk;
        const StandIn standIn(AnswersAll);
        standIn.WriteFile("pages");
        HelpViewer viewer(standIn.Program(), {});
        viewer.Ask({QString(standIn.File()).replace(u"/a file"_s, u"\\A FILE"_s), 0, QString()});
        QTRY_COMPARE(standIn.Heard(), u"start contents;"_s);
    }

    void ARenewedFileIsOpenedAnew_data()
    {
        QTest::addColumn<QByteArray>("pages");
        QTest::addColumn<int>("laterBySeconds");
        QTest::newRow("of another size") << QByteArray("other pages") << 0;
        QTest::newRow("of another time") << QByteArray("seeds") << 1;
        QTest::newRow("older than the one before") << QByteArray("seeds") << -1;
    }
    void ARenewedFileIsOpenedAnew()
    {
        QFETCH(QByteArray, pages);
        QFETCH(int, laterBySeconds);
        GuiDesk desk;
        const StandIn standIn(AnswersAll);
        const QDateTime time(QDate(2026, 1, 5), QTime(9, 30));
        standIn.WriteFile("pages", time);
        HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_VERIFY(viewer.HasAnswered());
        standIn.WriteFile(pages, time.addSecs(laterBySeconds));
        viewer.Ask({QString(), 0, u"frmMain"_s});
        QTRY_COMPARE(standIn.Heard(), u"start topic frmTip; start topic frmMain;"_s);
        QTRY_VERIFY(viewer.HasAnswered());
        viewer.Ask({QString(), 0, u"frmTip"_s}); // now the same one
        QTRY_VERIFY(standIn.Heard().endsWith(u"start topic frmMain; topic frmTip;"_s));
    }

    void AClosedViewerIsStartedByTheNextQuestion()
    {
        GuiDesk desk;
        const StandIn standIn(u"echo start >>$heard; read -r line; echo \"$line;\" >>$heard; echo shown; exit 0"_s);
        standIn.WriteFile("pages");
        HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_COMPARE(standIn.Heard(), u"start topic frmTip;"_s);
        QTRY_VERIFY(!viewer.HasAnswered());
        QTest::qWait(200);
        QCOMPARE(standIn.Heard(), u"start topic frmTip;"_s); // nobody has asked
        viewer.Ask({QString(), 0, u"frmMain"_s});
        QTRY_COMPARE(standIn.Heard(), u"start topic frmTip; start topic frmMain;"_s);
    }

    void ItEndsWithTheProgram()
    {
        GuiDesk desk;
        const StandIn standIn(AnswersAll + ThenEnds);
        standIn.WriteFile("pages");
        {
            HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
            viewer.Ask({QString(), 0, u"frmTip"_s});
            QTRY_VERIFY(viewer.HasAnswered());
        }
        QCOMPARE(standIn.Heard(), u"start topic frmTip; end"_s); // and nobody has had to kill it
    }

    void AViewerThatDoesNotEndIsKilled()
    {
        GuiDesk desk;
        const StandIn standIn(u"read -r line; echo shown; exec sleep 60"_s);
        standIn.WriteFile("pages");
        HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_VERIFY(viewer.HasAnswered());
        QElapsedTimer time;
        time.start();
        viewer.Close();
        QVERIFY(!viewer.HasAnswered());
        QVERIFY2(time.elapsed() < 10000, qPrintable(QString::number(time.elapsed())));
    }

    void AViewerThatIsClosedInThatMomentIsStartedAgain()
    {
        GuiDesk desk;
        const StandIn standIn(u"echo start >>$heard; [ $(wc -l <$heard) -gt 1 ] || exit 0\n"_s + AnswersAll);
        standIn.WriteFile("pages");
        HelpViewer viewer(standIn.Program(), [&] { return standIn.File(); });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_COMPARE(standIn.Heard(), u"start start start topic frmTip;"_s);
    }

    void AMissingFileIsTold()
    {
        GuiDesk desk;
        HelpViewer viewer(u"/nowhere/TallymereHelp"_s, [&] { return desk.Folder() + u"\\help\\budget help.hlp"_s; });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QCOMPARE(desk.TakeMessage(),
                 Warning(u"The help file is missing:\n%1/help/budget help.hlp"_s.arg(desk.Folder())));
    }

    void AMissingViewerIsTold()
    {
        GuiDesk desk;
        HelpViewer viewer(u"/nowhere/TallymereHelp"_s, [] { return HelpFile; });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QCOMPARE(desk.TakeMessage(), Warning(u"The program that shows the help is missing:\n/nowhere/TallymereHelp"_s));
        viewer.Ask({QString(), 0, u"frmTip"_s}); // each time it is asked
        QCOMPARE(desk.TakeMessage().Title, AppTitle);
    }

    void AViewerThatFailsIsTold()
    {
        GuiDesk desk;
        const StandIn standIn(u"exit 127"_s);
        HelpViewer viewer(standIn.Program(), [] { return HelpFile; });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_COMPARE(desk.Messages.size(), 1);
        QCOMPARE(desk.TakeMessage(),
                 Warning(u"The program that shows the help has ended by itself:\n"_s + standIn.Program()));
    }

    void ADamagedFileIsTold()
    {
        GuiDesk desk;
        desk.WriteFile(u"help\\budget help.hlp"_s, "no pages at all");
        HelpViewer viewer(QStringLiteral(HELP_PROGRAM), [&] { return desk.Folder() + u"\\help\\budget help.hlp"_s; });
        viewer.Ask({QString(), 0, u"frmTip"_s});
        QTRY_COMPARE_WITH_TIMEOUT(desk.Messages.size(), 1, 20000);
        QCOMPARE(desk.TakeMessage(),
                 Warning(u"The help file is damaged:\n%1/help/budget help.hlp"_s.arg(desk.Folder())));
    }

    void TheViewerShowsThePage()
    {
        GuiDesk desk;
        HelpViewer viewer(QStringLiteral(HELP_PROGRAM), [] { return HelpFile; });
        QElapsedTimer time;
        time.start();
        viewer.Ask({QString(), 0, u"frmPaymentCalculator"_s});
        QTRY_VERIFY_WITH_TIMEOUT(viewer.HasAnswered(), 20000);
        qInfo("from the question to the page: %lld ms", time.elapsed());
        viewer.Close();
        QVERIFY(!viewer.HasAnswered());
    }

    // The viewer, as it is spoken to

    void EachQuestionIsAnsweredByALine()
    {
        RealViewer viewer({HelpFile});
        viewer.write("topic frmTip\ncontext 22\n"); // together
        QCOMPARE(viewer.Line(), u"shown frmTip.html"_s);
        QCOMPARE(viewer.Line(), u"shown frmCreditors.html"_s);
        viewer.write("topic fr"); // in two parts
        QVERIFY(viewer.waitForBytesWritten());
        QTest::qWait(200);
        QCOMPARE(viewer.readAll(), QByteArray());
        viewer.write("mMain\n");
        QCOMPARE(viewer.Line(), u"shown frmMain.html"_s);
        QTest::qWait(200);
        QCOMPARE(viewer.readAll(), QByteArray());
    }

    void NothingOfItStaysBehind()
    {
        RealViewer viewer({HelpFile});
        viewer.write("contents\n");
        QCOMPARE(viewer.Line(), u"shown index.html"_s);
        QCOMPARE(viewer.WorkingFolders().size(), 1);
        QVERIFY(viewer.End());
        QCOMPARE(viewer.WorkingFolders(), QStringList());
    }

    void TheFileBesideItIsItsOwn()
    {
        RealViewer viewer({});
        const QString own = QFileInfo(QStringLiteral(HELP_PROGRAM)).path() + u"/help/budget help.hlp"_s;
        QVERIFY(!QFile::exists(own)); // which is laid down only later
        QCOMPARE(viewer.Line(), u"error The help file is missing:\t"_s + own);
        QVERIFY(!viewer.End()); // that is a failure
    }
};

REGISTER_TEST(gui_helpviewer)
#include "gui_helpviewer.moc"

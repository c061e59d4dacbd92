// The fakes are strict: whatever a test causes and does not take, and whatever no user could do, fails at the test's
// own line. The failing tests stand in FakesAtFault.cpp and run in a program of their own.
#include "TestProgram.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Faults = u"FakesAtFault"_s;

/// What the program of the failing tests says. limit: milliseconds that a test may take, 0 for the usual time.
QString RunFaults(const QStringList &functions, int limit = 0)
{
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TALLYMERE_MODAL_LIMIT"_s, u"200"_s);
    environment.insert(u"QTEST_DISABLE_STACK_DUMP"_s, u"1"_s);
    if (limit > 0)
        environment.insert(u"QTEST_FUNCTION_TIMEOUT"_s, QString::number(limit));
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QCoreApplication::applicationFilePath(), QStringList{Faults} + functions);
    program.waitForFinished(60000);
    return QString::fromUtf8(program.readAll());
}

struct Fault {
    const char *Test;
    const char *Words;
};
constexpr Fault Rows[] = {
    {"AMessage", "not taken: message title: text"},
    {"ABeep", "not taken: beeps: 1"},
    {"APrintJob", "not taken: print job: "},
    {"AHelpQuestion", "not taken: help  0 "},
    {"AnHourglassLeftOn", "not taken: the pointer is an hourglass"},
    {"AnOption", "not taken: option key = 1"},
    {"AnOptionSetAgain", "not taken: option key = 1"},
    {"TheCalculator", "not taken: calculator: close"},
    {"TheEnd", "not taken: the end of the program"},
    {"AQuestionWithoutAnAnswer", "not taken: a question without a scripted answer"},
    {"APrinterDialogWithoutAnAnswer", "not taken: a question without a scripted answer"},
    {"AFontDialogWithoutAnAnswer", "not taken: a question without a scripted answer"},
    {"AChosenPrinterWithoutItsDialog", "not taken: a scripted answer without its question"},
    {"AChosenFontWithoutItsDialog", "not taken: a scripted answer without its question"},
    {"AnAnswerWithoutAQuestion", "not taken: a scripted answer without its question"},
    {"ANewFile", "not taken: file new.txt"},
    {"AFileOfTheHousehold", "not taken: file stores/untitled.lst"},
    {"AFileOfTheSameBytes", "not taken: file creditor.txt"},
    {"AFileWrittenAfterItWasRead", "not taken: file environm.ini"},
    {"AFileThatWent", "not taken: file extra.txt"},
    {"AClickOnAGreyButton", "cmdListCreditors is grey"},
    {"AClickOnAnUnseenButton", "cmdListCreditors is not to be seen"},
    {"AClickOnARowThatIsNotThere", "lstScanPayPeriods has no row 5000"},
    {"TypingIntoAGreyField", "txtCurrentPayPeriod is grey"},
    {"ActingBehindAModalWindow", "cmdListCreditors is behind frmSetCurrentPayPeriod"},
    {"ABoxThatNobodyAnswers", "a modal window stood until the watchdog closed it: title: stray"},
    {"AModalWindowThatNobodyCloses",
     "a modal window stood until the watchdog closed it: frmSetCurrentPayPeriod Set Current Pay Period"},
};

} // namespace

class gui_fakes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStringList functions;
        for (const Fault &row : Rows)
            functions += QLatin1String(row.Test);
        m_output = RunFaults(functions);
    }

    void EachFailsAtItsOwnLine_data()
    {
        QTest::addColumn<QString>("test");
        QTest::addColumn<QString>("words");
        for (const Fault &row : Rows)
            QTest::newRow(row.Test) << QString::fromLatin1(row.Test) << QString::fromLatin1(row.Words);
    }
    void EachFailsAtItsOwnLine()
    {
        QFETCH(QString, test);
        QFETCH(QString, words);
        const QStringList lines = m_output.split(QLatin1Char('\n'));
        const QString failure = u"FAIL!  : FakesAtFault::%1() %2"_s.arg(test, words);
        const qsizetype line = lines.indexOf(failure);
        QVERIFY2(line >= 0, qPrintable(failure + u" is missing in "_s + m_output));
        QVERIFY2(lines.value(line + 1).contains(u"FakesAtFault.cpp("_s), qPrintable(lines.value(line + 1)));
    }

    void NoneOfThemPasses()
    {
        QVERIFY2(m_output.contains(u"Totals: 2 passed, %1 failed"_s.arg(std::size(Rows))), qPrintable(m_output));
    }

    void AWindowThatIsNotThereEndsTheProgramWithTheTestsLine()
    {
        const QString said = RunFaults({u"AWindowThatIsNotThere"_s});
        QVERIFY2(said.contains(QRegularExpression(u"FakesAtFault.cpp:\\d+: no frmNowhere.cmdNothing"_s)),
                 qPrintable(said));
    }

    void ATestThatHangsIsEndedWithAWord()
    {
        const QString said = RunFaults({u"ATestThatHangs"_s}, 300);
        QVERIFY2(said.contains(u"FakesAtFault::ATestThatHangs() Test function timed out"_s), qPrintable(said));
    }

private:
    QString m_output;
};

REGISTER_TEST(gui_fakes)
#include "gui_fakes.moc"

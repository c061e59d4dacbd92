// The strict desk of the Qt tests. Whatever the program did to the world outside and the test did not take, and
// whatever was asked but not scripted or scripted but not asked, fails the test.
#pragma once

#include "RecordingDesk.h"

#include <QtTest>
#include <source_location>

class FakeDesk : public RecordingDesk
{
public:
    /// where: the line that a failure names, the test's own.
    explicit FakeDesk(std::source_location where = std::source_location::current()) : m_where(where) {}
    ~FakeDesk() override
    {
        const QStringList left = Left();
        if (!left.isEmpty())
            QTest::qFail(qPrintable(QStringLiteral("not taken: ") + left.join(QStringLiteral(" | "))),
                         m_where.file_name(), int(m_where.line()));
    }

protected:
    /// Where a test shows single windows, the last one that closes ends the program as a matter of course.
    bool EndsWithItsWindows = false;

private:
    /// What happened and was not taken.
    QStringList Left() const
    {
        QStringList left;
        for (const Message &message : Messages)
            left += QStringLiteral("message %1: %2").arg(message.Title, message.Text);
        for (const PrintJob &job : Printed)
            left += QStringLiteral("print job: ") + job.Lines.join(QLatin1Char(' ')).simplified().left(60);
        for (const HelpQuestion &help : HelpQuestions)
            left += QStringLiteral("help %1 %2 %3").arg(help.File).arg(help.Context).arg(help.Topic);
        if (Beeps != 0)
            left += QStringLiteral("beeps: %1").arg(Beeps);
        if (!HourglassCalls.isEmpty() && HourglassCalls.last())
            left += QStringLiteral("the pointer is an hourglass");
        for (const QString &call : CalculatorCalls)
            left += QStringLiteral("calculator: ") + call;
        for (const QString &key : SavedOptions)
            left += QStringLiteral("option %1 = %2").arg(key, Options.value(key));
        const QStringList files = ChangedFiles();
        for (const QString &file : files)
            left += QStringLiteral("file ") + file;
        if (Ended && !EndsWithItsWindows)
            left += QStringLiteral("the end of the program");
        if (Unscripted)
            left += QStringLiteral("a question without a scripted answer");
        if (!RandomNumbers.isEmpty())
            left += QStringLiteral("a random number that was not drawn");
        if (!Answers.isEmpty() || !FileAnswers.isEmpty() || !PrinterAnswers.isEmpty() || !FontAnswers.isEmpty())
            left += QStringLiteral("a scripted answer without its question");
        return left;
    }

    std::source_location m_where;
};

// Failed comparisons show what the messages say.
inline char *toString(const Message &message)
{
    return QTest::toString(QStringLiteral("%1 | %2 | icon %3 buttons %4 context %5%6")
                               .arg(message.Text, message.Title)
                               .arg(int(message.TheIcon))
                               .arg(int(message.TheButtons))
                               .arg(message.HelpContext)
                               .arg(QLatin1String(message.MustBeAnswered ? " must be answered" : "")));
}
inline char *toString(const Currency &amount)
{
    return QTest::toString(QString::number(amount.TenThousandths()));
}

// The recording desk of the Qt tests: what was shown but not taken, and what was asked but not scripted, fails the
// test.
#pragma once

#include "RecordingDesk.h"

#include <QtTest>

class FakeDesk : public RecordingDesk
{
public:
    ~FakeDesk() override
    {
        QStringList left;
        for (const Message &message : std::as_const(Messages))
            left += message.Title + QStringLiteral(": ") + message.Text;
        if (!left.isEmpty())
            QTest::qFail(qPrintable(QStringLiteral("not expected: ") + left.join(QStringLiteral(" | "))), __FILE__,
                         __LINE__);
        if (Unscripted)
            QTest::qFail("something was asked that was not scripted", __FILE__, __LINE__);
    }
};

// Failed comparisons show what the messages say.
inline char *toString(const Message &message)
{
    return QTest::toString(QStringLiteral("%1 | %2 | icon %3 buttons %4 context %5")
                               .arg(message.Text, message.Title)
                               .arg(int(message.TheIcon))
                               .arg(int(message.TheButtons))
                               .arg(message.HelpContext));
}
inline char *toString(const Currency &amount)
{
    return QTest::toString(QString::number(amount.TenThousandths()));
}

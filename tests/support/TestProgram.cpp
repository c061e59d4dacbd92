#include "TestProgram.h"

#include <QMap>
#include <QtTest>

namespace {
QMap<QString, MakeTest> &Tests()
{
    static QMap<QString, MakeTest> tests;
    return tests;
}
} // namespace

bool RegisterTest(const char *fileName, const MakeTest &make)
{
    Tests().insert(QString::fromLatin1(fileName).section(QLatin1Char('.'), 0, 0), make);
    return true;
}

int RunRegisteredTest(int argc, char **argv)
{
    const MakeTest make = argc > 1 ? Tests().value(QString::fromLocal8Bit(argv[1])) : MakeTest();
    if (!make) {
        qWarning("which test? %s", qPrintable(Tests().keys().join(QLatin1Char(' '))));
        return 2;
    }
    // A function that takes longer hangs; the test library then ends the program and names it.
    if (!qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "60000");
    argv[1] = argv[0];
    const auto test = make();
    return QTest::qExec(test.get(), argc - 1, argv + 1);
}

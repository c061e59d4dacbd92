// The one place where an error that nobody traps ends the program, whoever has thrown it.
#include "FakeDesk.h"
#include "TestProgram.h"

#include <new>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Throws from within the event loop.
class Thrower : public QObject
{
public:
    std::function<void()> Throw;
    bool event(QEvent *) override
    {
        Throw();
        return true;
    }
};

} // namespace

class gui_application : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WhatNobodyTrapsIsReportedAndEndsTheProgram_data()
    {
        QTest::addColumn<std::function<void()>>("fail");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const std::function<void()> &fail, const char *text) {
            QTest::newRow(name) << fail << QString::fromLatin1(text);
        };
        row(
            "an error of the program's own", [] { RaiseError(RuntimeError::PathNotFound); },
            "Run-time error '76':\n\nPath not found");
        row(
            "no memory", [] { throw std::bad_alloc(); }, "Run-time error '7':\n\nOut of memory");
        row(
            "a length that nobody can have", [] { std::vector<int>().reserve(std::size_t(-1)); },
            "Run-time error '51':\n\nInternal error");
        row(
            "another library's error", [] { throw std::runtime_error("what the library says"); },
            "Run-time error '51':\n\nInternal error");
    }
    void WhatNobodyTrapsIsReportedAndEndsTheProgram()
    {
        QFETCH(std::function<void()>, fail);
        QFETCH(QString, text);
        FakeDesk desk;
        Thrower thrower;
        thrower.Throw = fail;
        if (text.contains(u"51"_s)) // what it says is for those who mend it
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"library says|reserve"_s));
        QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
        QCoreApplication::sendPostedEvents(&thrower);
        QCOMPARE(desk.TakeMessage(), (Message{text, AppTitle, Icon::Stop}));
        QVERIFY(desk.TakeEnd());
        QCOMPARE(desk.TakeHourglass(), QList{false});
    }

    void TheDesktopKnowsTheProgram() { QCOMPARE(QGuiApplication::desktopFileName(), u"tallymere"_s); }
};

REGISTER_TEST(gui_application)
#include "gui_application.moc"

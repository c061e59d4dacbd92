// The options store: per user, under the program's title, section "Options".
#include "TestProgram.h"
#include "foundation/Identity.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Options.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

class TestOptions : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

    QString StoreText() const
    {
        QFile file(m_home.filePath(AppTitle + QStringLiteral(".ini")));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        TheDesk.ProgramTitle = AppTitle;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_home.path());
    }
    void init() { QFile::remove(m_home.filePath(AppTitle + QStringLiteral(".ini"))); }

    void AKeyThatWasNeverSavedGivesTheFallback()
    {
        QCOMPARE(GetSetting(QStringLiteral("Show Tips at Startup"), QStringLiteral("1")), QStringLiteral("1"));
        QCOMPARE(GetSetting(QStringLiteral("Show Tips at Startup"), QStringLiteral("0")), QStringLiteral("0"));
    }

    void WhatWasSavedIsReadBack_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("one") << QStringLiteral("1");
        QTest::newRow("zero") << QStringLiteral("0");
        QTest::newRow("negative") << QStringLiteral("-1");
        QTest::newRow("a comma is text, not a list") << QStringLiteral("1,5");
        QTest::newRow("any text") << QStringLiteral("caf\u00E9; \"x\" = @y");
        QTest::newRow("empty is a value, too") << QStringLiteral("");
    }
    void WhatWasSavedIsReadBack()
    {
        QFETCH(QString, value);
        SaveSetting(QStringLiteral("Show Welcome At Startup"), value);
        QCOMPARE(GetSetting(QStringLiteral("Show Welcome At Startup"), QStringLiteral("fallback")), value);
    }

    void TheLastValueCounts()
    {
        SaveSetting(QStringLiteral("Show Tallymere Tutor"), QStringLiteral("1"));
        SaveSetting(QStringLiteral("Show Tallymere Tutor"), QStringLiteral("0"));
        QCOMPARE(GetSetting(QStringLiteral("Show Tallymere Tutor"), QStringLiteral("1")), QStringLiteral("0"));
    }

    void KeysIgnoreLetterCase()
    {
        SaveSetting(QStringLiteral("Show Welcome At Startup"), QStringLiteral("1"));
        QCOMPARE(GetSetting(QStringLiteral("show welcome at STARTUP"), QStringLiteral("0")), QStringLiteral("1"));
        SaveSetting(QStringLiteral("show welcome at startup"), QStringLiteral("2"));
        QCOMPARE(GetSetting(QStringLiteral("Show Welcome At Startup"), QStringLiteral("0")), QStringLiteral("2"));
        QCOMPARE(StoreText().count(QStringLiteral("welcome"), Qt::CaseInsensitive), 1);
    }

    void TheStoreIsOnTheDiskAtOnceUnderTheProgramsTitle()
    {
        SaveSetting(QStringLiteral("Show Tips at Startup"), QStringLiteral("1"));
        const QString text = StoreText();
        QVERIFY2(text.contains(QStringLiteral("[Options]")), qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("=1")), qPrintable(text));
    }
};

REGISTER_TEST(TestOptions)
#include "tst_options.moc"

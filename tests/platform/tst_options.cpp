// The options store: per user, under the program's title, section "Options".
#include "TestProgram.h"
#include "foundation/Identity.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Options.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::Literals::StringLiterals;

class TestOptions : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;

    QString StoreText() const
    {
        QFile file(m_home.filePath(AppTitle + u".ini"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_home.isValid());
        TheDesk.ProgramTitle = AppTitle;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_home.path());
    }
    void init() { QFile::remove(m_home.filePath(AppTitle + u".ini"_s)); }

    void AKeyThatWasNeverSavedGivesTheFallback()
    {
        QCOMPARE(GetSetting(u"Show Tips at Startup"_s, u"1"_s), u"1"_s);
        QCOMPARE(GetSetting(u"Show Tips at Startup"_s, u"0"_s), u"0"_s);
    }

    void WhatWasSavedIsReadBack_data()
    {
        QTest::addColumn<QString>("value");
        QTest::newRow("one") << u"1"_s;
        QTest::newRow("zero") << u"0"_s;
        QTest::newRow("negative") << u"-1"_s;
        QTest::newRow("a comma is text, not a list") << u"1,5"_s;
        QTest::newRow("any text") << u"caf\u00E9; \"x\" = @y"_s;
        QTest::newRow("empty is a value, too") << u""_s;
    }
    void WhatWasSavedIsReadBack()
    {
        QFETCH(QString, value);
        SaveSetting(u"Show Welcome At Startup"_s, value);
        QCOMPARE(GetSetting(u"Show Welcome At Startup"_s, u"fallback"_s), value);
    }

    void TheLastValueCounts()
    {
        SaveSetting(u"Show Tallymere Tutor"_s, u"1"_s);
        SaveSetting(u"Show Tallymere Tutor"_s, u"0"_s);
        QCOMPARE(GetSetting(u"Show Tallymere Tutor"_s, u"1"_s), u"0"_s);
    }

    void KeysIgnoreLetterCase()
    {
        SaveSetting(u"Show Welcome At Startup"_s, u"1"_s);
        QCOMPARE(GetSetting(u"show welcome at STARTUP"_s, u"0"_s), u"1"_s);
        SaveSetting(u"show welcome at startup"_s, u"2"_s);
        QCOMPARE(GetSetting(u"Show Welcome At Startup"_s, u"0"_s), u"2"_s);
        QCOMPARE(StoreText().count(u"welcome"_s, Qt::CaseInsensitive), 1);
    }

    void TheStoreIsOnTheDiskAtOnceUnderTheProgramsTitle()
    {
        SaveSetting(u"Show Tips at Startup"_s, u"1"_s);
        const QString text = StoreText();
        QVERIFY2(text.contains(u"[Options]"_s), qPrintable(text));
        QVERIFY2(text.contains(u"=1"_s), qPrintable(text));
    }
};

REGISTER_TEST(TestOptions)
#include "tst_options.moc"

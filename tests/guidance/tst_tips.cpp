// The tips of the day: what the file holds, and which one is drawn.
#include "FakeDesk.h"
#include "TestProgram.h"

#include "guidance/Tips.h"
#include "platform/files/DataFile.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

class tst_tips : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryLineIsATipAsItStands_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("tips");
        QTest::newRow("an empty file has none") << QByteArray("") << QStringList();
        QTest::newRow("one without a line end") << QByteArray("One") << QStringList{u"One"_s};
        QTest::newRow("two") << QByteArray("One\r\nTwo\r\n") << QStringList{u"One"_s, u"Two"_s};
        QTest::newRow("a blank line is a tip")
            << QByteArray("One\r\n\r\nTwo\r\n") << QStringList{u"One"_s, u""_s, u"Two"_s};
        QTest::newRow("blanks, commas and quotes stay")
            << QByteArray("  A \"tip\", with all.  \n") << QStringList{u"  A \"tip\", with all.  "_s};
        QTest::newRow("every kind of line end")
            << QByteArray("1\n2\r3\r\n4") << QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s};
        QTest::newRow("letters of the world") << QByteArray("Gr\xc3\xbc\xc3\x9f Gott\n") << QStringList{u"Grüß Gott"_s};
        QTest::newRow("those of old files") << QByteArray("Gr\xfc\xdf Gott\n") << QStringList{u"Grüß Gott"_s};
    }
    void EveryLineIsATipAsItStands()
    {
        QFETCH(QByteArray, file);
        FakeDesk desk;
        desk.WriteFile(u"TIPOFDAY.TXT"_s, file);
        const auto tips = ReadTips(desk.Folder() + u"\\TIPOFDAY.TXT"_s);
        QVERIFY(tips.has_value());
        QTEST(*tips, "tips");
    }

    void TheFileIsFoundInAnyLetterCase()
    {
        FakeDesk desk;
        desk.WriteFile(u"TipOfDay.txt"_s, "One\r\n");
        QCOMPARE(ReadTips(desk.Folder() + u"\\TIPOFDAY.TXT"_s), QStringList{u"One"_s});
    }

    void NothingWithoutAFile()
    {
        FakeDesk desk;
        QVERIFY(!ReadTips(QString()));
        QVERIFY(!ReadTips(desk.Folder() + u"\\TIPOFDAY.TXT"_s));
        QVERIFY(!ReadTips(desk.Folder())); // a folder is none
    }

    void AFileThatCannotBeReadCountsAsMissing()
    {
        FakeDesk desk;
        desk.WriteFile(u"TIPOFDAY.TXT"_s, "One\r\n");
        QFile file(desk.Path(u"TIPOFDAY.TXT"_s));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.resize(InputFile::GreatestSize + 1)); // one hole, which takes no room on the disk
        file.close();
        QVERIFY(!ReadTips(desk.Path(u"TIPOFDAY.TXT"_s)));
        desk.RemoveFile(u"TIPOFDAY.TXT"_s);
    }

    void ATipIsDrawnByTheRandomNumber_data()
    {
        QTest::addColumn<double>("random");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("tip");
        QTest::newRow("0 is the first") << 0.0 << 4 << 1;
        QTest::newRow("just below a quarter, too") << 0.2499 << 4 << 1;
        QTest::newRow("a quarter is the second") << 0.25 << 4 << 2;
        QTest::newRow("a half is the third") << 0.5 << 4 << 3;
        QTest::newRow("the greatest number is the last") << std::nextafter(1.0, 0.0) << 4 << 4;
        QTest::newRow("of one it is that one") << 0.99 << 1 << 1;
        QTest::newRow("of none it is 1, too") << 0.99 << 0 << 1;
        QTest::newRow("of many") << 0.999 << 1000 << 1000;
    }
    void ATipIsDrawnByTheRandomNumber()
    {
        QFETCH(double, random);
        QFETCH(int, count);
        QTEST(int(DrawTip(random, count)), "tip");
    }
};

REGISTER_TEST(tst_tips)
#include "tst_tips.moc"

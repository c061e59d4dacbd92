// The delimited data files: what is written, what is read back, and what every failure is called.
#include "ErrorOf.h"
#include "InChild.h"
#include "TestProgram.h"
#include "platform/files/DataFile.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <grp.h>
#include <limits>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What was synchronised with the disk, and the error with which that fails; 0 for none.
QStringList Synchronised;
int SynchronisingFails = 0;

} // namespace

// Stands before the C library's own routine of this name.
int fsync(int handle)
{
    Synchronised += QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(handle));
    if (SynchronisingFails == 0)
        return int(::syscall(SYS_fsync, handle));
    errno = SynchronisingFails;
    return -1;
}

namespace {

constexpr uid_t Nobody = 65534;

/// Gives up the rights of root, in a child.
bool BecomeNobody()
{
    return ::setgroups(0, nullptr) == 0 && ::setgid(Nobody) == 0 && ::setuid(Nobody) == 0;
}

/// Puts a disk of so many bytes in the place of a folder, in a child, whose disks are then its own.
bool MountSmallDisk(const QString &folder, int bytes)
{
    if (::unshare(CLONE_NEWNS) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return false;
    return ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           ::mount("none", QFile::encodeName(folder).constData(), "tmpfs", 0,
                   QByteArray("size=" + QByteArray::number(bytes)).constData()) == 0;
}

/// The room left on the disk of a folder.
qint64 RoomOf(const QString &folder)
{
    struct statvfs disk = {};
    return ::statvfs(QFile::encodeName(folder).constData(), &disk) == 0 ? qint64(disk.f_bavail * disk.f_frsize) : -1;
}

/// Reads one value of a kind (i Integer, c Currency in ten-thousandths, f Single, b Boolean, s String, l line) and
/// tells it as text; "error 62" and the like for what cannot be read.
QString ReadAs(InputFile &file, char kind)
{
    QString text;
    const int error = ErrorOf([&] {
        switch (kind) {
        case 'i': text = QString::number(file.InputInteger()); break;
        case 'c': text = QString::number(file.InputCurrency().TenThousandths()); break;
        case 'f': text = PlainText(file.InputSingle()); break;
        case 'b': text = file.InputBoolean() ? u"true"_s : u"false"_s; break;
        case 's': text = file.InputString(); break;
        case 'l': text = file.InputLine(); break;
        }
    });
    return error == 0 ? text : u"error %1"_s.arg(error);
}

QStringList ReadKinds(const QByteArray &bytes, const QByteArray &kinds)
{
    InputFile file;
    file.OpenBytes(bytes);
    QStringList values;
    for (const char kind : kinds)
        values += ReadAs(file, kind);
    return values;
}

} // namespace

class TestDataFile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString Path(const QString &name) const { return m_folder.filePath(name); }
    void Put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }
    QByteArray Get(const QString &name) const
    {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void init()
    {
        SetUserLocale(QLocale(QLocale::German, QLocale::Germany)); // files ignore the user's locale
        Synchronised.clear();
        SynchronisingFails = 0;
    }
    void cleanup()
    {
        SetUserLocale(QLocale::c());
        const QFileInfoList left =
            QDir(m_folder.path()).entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : left) {
            ::chmod(QFile::encodeName(entry.filePath()).constData(), 0700);
            if (entry.isDir())
                QDir(entry.filePath()).removeRecursively();
            else
                QFile::remove(entry.filePath());
        }
    }

    // ---- Writing

    void EachValueIsWrittenOnALineOfItsOwn()
    {
        OutputFile file;
        file.Open(Path(u"out.txt"_s));
        file.Write(qint16(-32768));
        file.Write(qint16(0));
        file.Write(Currency::FromTenThousandths(12500000));
        file.Write(Currency::FromTenThousandths(125000));
        file.Write(Currency());
        file.Write(Currency::FromTenThousandths(-37500));
        file.Write(Currency::FromTenThousandths(7));
        file.Write(0.06F);
        file.Write(0.9F);
        file.Write(0.091717355F);
        file.Write(true);
        file.Write(false);
        file.Write(u"untitled.lst"_s);
        file.Write(QString());
        file.Write(u"Discount, Main St."_s);
        file.Write(u"12\" pipe"_s);
        file.Write(u"caf\u00E9 \u20AC"_s);
        file.Close();
        QCOMPARE(Get(u"out.txt"_s), QByteArray("-32768\r\n"
                                               "0\r\n"
                                               "1250\r\n"
                                               "12.5\r\n"
                                               "0\r\n"
                                               "-3.75\r\n"
                                               "0.0007\r\n"
                                               "0.06\r\n"
                                               "0.9\r\n"
                                               "0.091717355\r\n"
                                               "#TRUE#\r\n"
                                               "#FALSE#\r\n"
                                               "\"untitled.lst\"\r\n"
                                               "\"\"\r\n"
                                               "\"Discount, Main St.\"\r\n"
                                               "\"12\" pipe\"\r\n"
                                               "\"caf\xC3\xA9 \xE2\x82\xAC\"\r\n"));
    }

    void WritingReplacesTheWholeFile()
    {
        Put(u"out.txt"_s, "a long line that was there before\r\n");
        OutputFile file;
        file.Open(Path(u"out.txt"_s));
        file.Write(qint16(0));
        file.Close();
        QCOMPARE(Get(u"out.txt"_s), QByteArray("0\r\n"));
    }

    void WhatWasWrittenInOneLocaleReadsBackInEveryOther()
    {
        OutputFile output;
        output.Open(Path(u"out.txt"_s));
        output.Write(Currency::FromTenThousandths(12345678));
        output.Write(0.06F);
        output.Write(u"Rent, and more"_s);
        output.Write(true);
        output.Write(qint16(-1));
        output.Close();
        for (const QLocale &locale : {QLocale(QLocale::French), QLocale(QLocale::English, QLocale::UnitedStates)}) {
            SetUserLocale(locale);
            InputFile input;
            input.Open(Path(u"out.txt"_s));
            QCOMPARE(input.InputCurrency().TenThousandths(), qint64(12345678));
            QCOMPARE(input.InputSingle(), 0.06F);
            QCOMPARE(input.InputString(), u"Rent, and more"_s);
            QCOMPARE(input.InputBoolean(), true);
            QCOMPARE(int(input.InputInteger()), -1);
        }
    }

    // ---- Reading

    void ValuesAreReadByKind_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("kinds");
        QTest::addColumn<QStringList>("values");
        const auto row = [](const char *name, const QByteArray &bytes, const char *kinds, const QStringList &values) {
            QTest::newRow(name) << bytes << QByteArray(kinds) << values;
        };
        const auto list = [](std::initializer_list<const char *> texts) {
            QStringList values;
            for (const char *text : texts)
                values += QString::fromUtf8(text);
            return values;
        };

        // Parting values
        row("a value a line", "26\r\n1000\r\n\"x\"\r\n", "ics", list({"26", "10000000", "x"}));
        row("a comma parts values as a line end does", "1,\"Rent\",119.85", "isc", list({"1", "Rent", "1198500"}));
        row("line feed alone", "1\n\"Rent\"\n2\n", "isi", list({"1", "Rent", "2"}));
        row("carriage return alone", "1\r\"Rent\"\r2\r", "isi", list({"1", "Rent", "2"}));
        row("blanks, tabs and line ends before a value are skipped", " \t\r\n\r\n  7 \r\n\n   \"x\"", "is",
            list({"7", "x"}));
        row("no line end behind the last value", "7", "i", list({"7"}));
        row("a comma and a line end part two values, not three", "1,\r\n2", "ii", list({"1", "2"}));
        row("two commas hold an empty value", "a,,b", "sss", list({"a", "", "b"}));
        row("an empty value is 0", "1,,3", "iii", list({"1", "0", "3"}));

        // Text
        row("a comma within quotes is safe", "\"Smith, John\"\r\n5", "si", list({"Smith, John", "5"}));
        row("a line end within quotes belongs to the text", "\"a\r\nb\",5", "si", list({"a\r\nb", "5"}));
        row("blanks within quotes stay", "\"  a  \"", "s", list({"  a  "}));
        row("two quotes are an empty text", "\"\"\r\n5", "si", list({"", "5"}));
        row("a quote within the text ends it, the rest of the line is dropped", "\"12\" pipe\"\r\n5", "si",
            list({"12", "5"}));
        row("the rest is dropped only up to a comma", "\"12\" pipe, long\"\r\n5", "sss", list({"12", "long\"", "5"}));
        row("a quote that never closes runs to the end of the file", "\"never\r\nclosed, 5", "ss",
            list({"never\r\nclosed, 5", "error 62"}));
        row("text without quotes runs to the comma", "Lunch Money, 33.25", "sc", list({"Lunch Money", "332500"}));
        row("text without quotes runs to the line end", "12 oz. can\r\n5", "si", list({"12 oz. can", "5"}));
        row("a quote in the middle of a text is plain", "12\" pipe\r\n5", "si", list({"12\" pipe", "5"}));
        row("a number read as text", "119.85\r\n", "s", list({"119.85"}));
        row("1,250.00 by hand is two values", "1,250.00", "ss", list({"1", "250.00"}));

        // Numbers
        row("a blank ends a number", "1 2 3", "iii", list({"1", "2", "3"}));
        row("one comma behind the blanks belongs to the number", "1 , 2", "ii", list({"1", "2"}));
        row("a second comma holds an empty value", "1 ,, 2", "iii", list({"1", "0", "2"}));
        row("a comma on the next line holds an empty value", "1 \r\n,2", "iii", list({"1", "0", "2"}));
        row("a number within quotes", "\"12.5\"\r\n", "c", list({"125000"}));
        row("no zero ahead of the point", ".06\r\n-.5", "fc", list({"0.06", "-5000"}));
        row("text where a number is wanted is 0", "abc\r\n5", "ii", list({"0", "5"}));
        row("text with blanks is several values for numbers", "abc def\r\n5", "iii", list({"0", "0", "5"}));
        row("a symbol makes no number", "$5\r\n6", "cc", list({"0", "60000"}));
        row("a decimal comma parts values", "12,5", "cc", list({"120000", "50000"}));
        row("hexadecimal digits are no number in a file", "&H1F", "i", list({"0"}));
        row("a Boolean where a number is wanted is 0", "#TRUE#", "i", list({"0"}));
        row("a fraction is rounded to an Integer, ties to even", "2.5 3.5 40.5 -2.5", "iiii",
            list({"2", "4", "40", "-2"}));
        row("an exponent", "1e3 1.5E-2", "ic", list({"1000", "150"}));
        row("a fifth decimal is rounded, ties to even", "0.00025 0.00075", "cc", list({"2", "8"}));
        row("more digits than a double holds", "922337203685477.5807", "c", list({"9223372036854775807"}));
        row("a plus sign", "+7", "i", list({"7"}));
        row("beyond 16 bits: error 6, and the value is used up", "32768 5", "ii", list({"error 6", "5"}));
        row("beyond the range of an amount: error 6", "1e400 5", "ci", list({"error 6", "5"}));
        row("beyond the range of a single: error 6", "1e39 5", "fi", list({"error 6", "5"}));
        row("nothing to any power is nothing", "0e99999999999", "i", list({"0"}));

        // Booleans
        row("Booleans by word", "#TRUE#\r\n#FALSE#\r\n", "bb", list({"true", "false"}));
        row("Booleans in any letter case", "#true#,#False#", "bb", list({"true", "false"}));
        row("Booleans as numbers", "-1 0 1 0.0 0e5", "bbbbb", list({"true", "false", "true", "false", "false"}));
        row("other text is false", "yes", "b", list({"false"}));

        // The end
        row("an empty file", "", "is", list({"error 62", "error 62"}));
        row("only blanks and line ends", " \r\n\t\n", "s", list({"error 62"}));
        row("reading past the last value", "1\r\n", "iii", list({"1", "error 62", "error 62"}));

        // Bytes
        row("a byte-order mark is skipped",
            "\xEF\xBB\xBF"
            "5\r\n\"x\"",
            "is", list({"5", "x"}));
        row("UTF-8", "\"caf\xC3\xA9\"", "s", list({"caf\xC3\xA9"}));
        row("what is not UTF-8 is Windows-1252", "\"caf\xE9\"\r\n\"caf\xE9 noir\"", "ss",
            list({"caf\xC3\xA9", "caf\xC3\xA9 noir"}));
        row("the euro and the quotes of Windows-1252", "\"\x80 \x93x\x94\x99\"", "s",
            list({"\xE2\x82\xAC \xE2\x80\x9Cx\xE2\x80\x9D\xE2\x84\xA2"}));
        row("old and new values side by side", "\"\xE9\",\"\xC3\xA9\"", "ss", list({"\xC3\xA9", "\xC3\xA9"}));
        row("zero bytes are text", QByteArray("\0\0,5", 4), "ii", list({"0", "5"}));
    }
    void ValuesAreReadByKind()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, kinds);
        QTEST(ReadKinds(bytes, kinds), "values");
    }

    void APlainTextFileIsReadLineByLine_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QByteArray &bytes, const QStringList &lines) {
            QTest::newRow(name) << bytes << lines;
        };
        row("each kind of line end", "a\r\nb\nc\rd", {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        row("empty lines count", "a\r\n\r\nb\n\nc", {u"a"_s, QString(), u"b"_s, QString(), u"c"_s});
        row("a line end closes the last line", "a\r\n", {u"a"_s});
        row("quotes, commas and blanks are text", "  \"a\", b \r\n", {u"  \"a\", b "_s});
        row("a byte-order mark is skipped",
            "\xEF\xBB\xBF"
            "a",
            {u"a"_s});
        row("Windows-1252", "caf\xE9\r\nx", {u"caf\u00E9"_s, u"x"_s});
        row("an empty file has no line", "", {});
    }
    void APlainTextFileIsReadLineByLine()
    {
        QFETCH(QByteArray, bytes);
        InputFile file;
        file.OpenBytes(bytes);
        QStringList lines;
        while (!file.AtEnd())
            lines += file.InputLine();
        QTEST(lines, "lines");
        QCOMPARE(ErrorOf([&] { file.InputLine(); }), 62);
    }

    void EveryByteIsReadableAndHangsNothing()
    {
        // Any bytes at all: whatever comes out, reading ends with error 62 and takes no more reads than there are
        // bytes.
        constexpr char awkward[] = "\"\", \r\n\t0129.-+eE#$&H\xE9\xC3";
        quint32 state = 12345;
        for (int round = 0; round < 300; ++round) {
            QByteArray bytes;
            for (int i = 0; i < 200; ++i) {
                state = state * 1664525u + 1013904223u;
                bytes += round % 2 ? char(state >> 24) : awkward[(state >> 24) % (sizeof awkward - 1)];
            }
            for (const char kind : {'i', 'c', 'f', 'b', 's', 'l'}) {
                InputFile file;
                file.OpenBytes(bytes);
                int reads = 0;
                while (ReadAs(file, kind) != QLatin1String("error 62"))
                    QVERIFY(++reads <= bytes.size());
            }
        }
    }

    void ALongValueIsReadInOneGo()
    {
        const QByteArray digits(InputFile::GreatestValue, '7');
        QCOMPARE(ReadKinds(digits + ",5", "ii"), (QStringList{u"error 6"_s, u"5"_s}));
        // One sign more is too long, and the next value is read as if nothing had been.
        QCOMPARE(ReadKinds(digits + "7,5", "ii"), (QStringList{u"error 7"_s, u"5"_s}));
        QCOMPARE(ReadKinds(digits + "7,5", "si"), (QStringList{u"error 7"_s, u"5"_s}));
        QCOMPARE(ReadKinds(QByteArray(1000000, ' ') + "5", "i"), QStringList{u"5"_s});
        QCOMPARE(ReadKinds('"' + digits, "s").first().size(), InputFile::GreatestValue);
    }

    // ---- Opening, and its errors

    void AMissingFileIsError53AndTheReadBehindItError52()
    {
        InputFile file;
        QCOMPARE(ErrorOf([&] { file.Open(Path(u"creditor.txt"_s)); }), 53);
        QCOMPARE(ErrorOf([&] { file.InputInteger(); }), 52);
        QCOMPARE(ErrorOf([&] { file.InputLine(); }), 52);
    }

    void AFailedOpeningLeavesNothingOfTheFileBefore()
    {
        Put(u"a.txt"_s, "1\r\n2\r\n");
        InputFile file;
        file.Open(Path(u"a.txt"_s));
        QCOMPARE(int(file.InputInteger()), 1);
        QCOMPARE(ErrorOf([&] { file.Open(Path(u"b.txt"_s)); }), 53);
        QCOMPARE(ErrorOf([&] { file.InputInteger(); }), 52);
    }

    void AReadBehindTheClosingIsError52()
    {
        InputFile file;
        file.OpenBytes("1");
        file.Close();
        QCOMPARE(ErrorOf([&] { file.InputString(); }), 52);
    }

    void OpeningTellsWhatIsWrong_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("reading");
        QTest::addColumn<int>("writing");
        QTest::newRow("a missing folder") << u"nowhere/creditor.txt"_s << 76 << 76;
        QTest::newRow("a folder") << u"stores"_s << 75 << 75;
        QTest::newRow("a folder with its slash") << u"stores\\"_s << 75 << 75;
        QTest::newRow("a file in the place of a folder") << u"plain.txt/creditor.txt"_s << 76 << 76;
        QTest::newRow("a pipe is no data file") << u"pipe"_s << 75 << 75;
    }
    void OpeningTellsWhatIsWrong()
    {
        QFETCH(QString, name);
        QFETCH(int, reading);
        QFETCH(int, writing);
        QVERIFY(QDir(m_folder.path()).mkdir(u"stores"_s));
        Put(u"plain.txt"_s, "0\r\n");
        QCOMPARE(::mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0600), 0);
        InputFile input;
        QCOMPARE(ErrorOf([&] { input.Open(Path(name)); }), reading);
        OutputFile output;
        QCOMPARE(ErrorOf([&] { output.Open(Path(name)); }), writing);
    }

    void ADeviceThatNeverEndsIsNoDataFile()
    {
        InputFile file;
        QCOMPARE(ErrorOf([&] { file.Open(u"/dev/zero"_s); }), 75);
    }

    void AFileBeyondAllBoundsIsError7AndTakesNoMemory()
    {
        Put(u"huge.txt"_s, "1\r\n");
        QVERIFY(QFile::resize(Path(u"huge.txt"_s), InputFile::GreatestSize + 1)); // sparse: takes no room
        InputFile file;
        QCOMPARE(ErrorOf([&] { file.Open(Path(u"huge.txt"_s)); }), 7);
        QCOMPARE(ErrorOf([&] { file.InputInteger(); }), 52);
    }

    void AnEmptyNameIsAnErrorAndNoCrash()
    {
        InputFile input;
        OutputFile output;
        QVERIFY(ErrorOf([&] { input.Open(QString()); }) != 0);
        QVERIFY(ErrorOf([&] { output.Open(QString()); }) != 0);
        QVERIFY(ErrorOf([] { DeleteFile(QString()); }) != 0);
        QVERIFY(!FileExists(QString()));
    }

    // ---- Names

    void AFileIsFoundWhateverTheCaseOfItsName_data()
    {
        QTest::addColumn<QString>("onDisk");
        QTest::addColumn<QString>("asked");
        QTest::newRow("as it is spelt") << u"creditor.txt"_s << u"creditor.txt"_s;
        QTest::newRow("capitals on the disk") << u"CREDITOR.TXT"_s << u"creditor.txt"_s;
        QTest::newRow("capitals in the question") << u"creditor.txt"_s << u"Creditor.TXT"_s;
        QTest::newRow("a backslash parts folders") << u"stores/my list.lst"_s << u"stores\\my list.lst"_s;
        QTest::newRow("the folder's case does not matter, either")
            << u"STORES/MY LIST.LST"_s << u"stores\\my list.lst"_s;
    }
    void AFileIsFoundWhateverTheCaseOfItsName()
    {
        QFETCH(QString, onDisk);
        QFETCH(QString, asked);
        if (onDisk.contains(QLatin1Char('/')))
            QVERIFY(QDir(m_folder.path()).mkdir(onDisk.section(QLatin1Char('/'), 0, 0)));
        Put(onDisk, "5\r\n");
        QCOMPARE(ExistingPath(Path(asked)), Path(onDisk));
        QVERIFY(FileExists(Path(asked)));
        InputFile input;
        input.Open(Path(asked));
        QCOMPARE(int(input.InputInteger()), 5);
        // It is the same file for a deletion.
        DeleteFile(Path(asked));
        QVERIFY(!FileExists(Path(onDisk)));
    }

    void AWriterKeepsToItsSpellingAndFindsTheFolder()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(u"STORES"_s));
        Put(u"STORES/Weekly.lst"_s, "5\r\n");
        OutputFile output;
        output.Open(Path(u"stores\\weekly.lst"_s));
        output.Write(qint16(6));
        output.Close();
        QCOMPARE(Get(u"STORES/weekly.lst"_s), QByteArray("6\r\n"));
        QCOMPARE(Get(u"STORES/Weekly.lst"_s), QByteArray("5\r\n"));
    }

    void TheSpellingOfTheQuestionComesFirst()
    {
        Put(u"LIST.LST"_s, "1");
        Put(u"list.lst"_s, "2");
        QCOMPARE(ExistingPath(Path(u"list.lst"_s)), Path(u"list.lst"_s));
        QCOMPARE(ExistingPath(Path(u"LIST.LST"_s)), Path(u"LIST.LST"_s));
    }

    void ANewFileKeepsTheGivenSpellingInTheFolderThatIsThere()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(u"Stores"_s));
        OutputFile file;
        file.Open(Path(u"stores\\My List.lst"_s));
        file.Write(qint16(0));
        file.Close();
        QCOMPARE(Get(u"Stores/My List.lst"_s), QByteArray("0\r\n"));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{u"Stores"_s});
    }

    void ANameWithoutAFolderIsLookedForInThePresentOne()
    {
        Put(u"CREDITOR.TXT"_s, "5");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder.path()));
        const bool found = FileExists(u"creditor.txt"_s);
        const QString path = ExistingPath(u"creditor.txt"_s);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(found);
        QCOMPARE(path, u"CREDITOR.TXT"_s);
    }

    void AFolderIsNoFile()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(u"stores"_s));
        QVERIFY(!FileExists(Path(u"stores"_s)));
        QVERIFY(!FileExists(Path(u"nothing.txt"_s)));
    }

    // ---- Deleting

    void ADeletionTellsWhatIsMissing()
    {
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"creditor.txt"_s)); }), 53);
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"nowhere/creditor.txt"_s)); }), 76);
    }

    void AFileWithoutAWriteBitStaysForEveryUser()
    {
        // The folder would allow the deletion, and this may well run as the superuser.
        Put(u"creditor.txt"_s, "5\r\n");
        QCOMPARE(::chmod(QFile::encodeName(Path(u"creditor.txt"_s)).constData(), 0444), 0);
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"creditor.txt"_s)); }), 75);
        OutputFile file;
        QCOMPARE(ErrorOf([&] { file.Open(Path(u"creditor.txt"_s)); }), 75);
        QCOMPARE(Get(u"creditor.txt"_s), QByteArray("5\r\n"));
    }

    void AFileThatThisUserMayNotWriteStays_data()
    {
        QTest::addColumn<uint>("owner");
        QTest::addColumn<uint>("mode");
        QTest::newRow("of another user") << 0U << 0644U;
        QTest::newRow("of another user, readable by nobody else") << 0U << 0600U;
        QTest::newRow("his own, but only the others may write") << uint(Nobody) << 0466U;
    }
    void AFileThatThisUserMayNotWriteStays()
    {
        QFETCH(uint, owner);
        QFETCH(uint, mode);
        if (::geteuid() != 0)
            QSKIP("only root can lay down the files of two users");
        Put(u"creditor.txt"_s, "5\r\n");
        const QByteArray path = QFile::encodeName(Path(u"creditor.txt"_s));
        QCOMPARE(::chown(path.constData(), owner, owner), 0);
        QCOMPARE(::chmod(path.constData(), mode), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_folder.path()).constData(), 0777), 0);
        const auto asNobody = [](const std::function<int()> &run) {
            return InChild([&] { return BecomeNobody() ? run() : 200; });
        };
        QCOMPARE(asNobody([&] { return ErrorOf([&] { DeleteFile(QFile::decodeName(path)); }); }), 75);
        QCOMPARE(asNobody([&] {
                     OutputFile file;
                     return ErrorOf([&] { file.Open(QFile::decodeName(path)); });
                 }),
                 75);
        QCOMPARE(asNobody([&] {
                     OutputFile file;
                     file.Collect();
                     file.Write(qint16(6));
                     return ErrorOf([&] { file.Replace(QFile::decodeName(path), OldFile::MustExist); });
                 }),
                 75);
        QCOMPARE(Get(u"creditor.txt"_s), QByteArray("5\r\n"));
        // It was no matter of the folder, which would have let him delete it.
        QCOMPARE(asNobody([&] { return ::unlink(path.constData()) == 0 ? 0 : 1; }), 0);
    }

    void OnlyAPlainFileIsDeleted()
    {
        const QByteArray pipe = QFile::encodeName(Path(u"pipe"_s));
        QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
        QVERIFY(QFile::link(Path(u"pipe"_s), Path(u"link"_s)));
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"pipe"_s)); }), 75);
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"link"_s)); }), 75);
        QCOMPARE(::access(pipe.constData(), F_OK), 0);
    }

    // ---- Permissions

    void TheNewFileTakesTheOldOnesPermissions()
    {
        const QString path = Path(u"creditor.txt"_s);
        Put(u"creditor.txt"_s, "5\r\n");
        const QFile::Permissions hidden = QFile::ReadOwner | QFile::WriteOwner;
        const QFile::Permissions alike =
            QFile::ReadUser | QFile::WriteUser; // the toolkit tells the owner's as the user's
        QVERIFY(QFile::setPermissions(path, hidden));
        OutputFile file;
        file.Collect();
        file.Write(qint16(6));
        file.Replace(path, OldFile::MustExist);
        QCOMPARE(Get(u"creditor.txt"_s), QByteArray("6\r\n"));
        QCOMPARE(QFile::permissions(path) & ~alike, hidden);
        // A file of another name is a new one.
        file.Collect();
        file.Write(qint16(7));
        file.Replace(Path(u"regulars.txt"_s), OldFile::MayBeMissing);
        QVERIFY(QFile::permissions(Path(u"regulars.txt"_s)) & QFile::ReadGroup);
    }

    // ---- Symbolic links

    void ALinkIsFollowedAndStays_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("as it is asked for") << u"creditor.txt"_s;
        QTest::newRow("in capitals") << u"CREDITOR.TXT"_s;
    }
    void ALinkIsFollowedAndStays()
    {
        QFETCH(QString, link);
        QVERIFY(QDir(m_folder.path()).mkdir(u"cloud"_s));
        Put(u"cloud/lists.txt"_s, "5\r\n");
        QVERIFY(QFile::link(Path(u"cloud/lists.txt"_s), Path(link)));
        OutputFile file;
        file.Collect();
        file.Write(qint16(6));
        file.Replace(Path(u"creditor.txt"_s), OldFile::MustExist);
        QCOMPARE(Get(u"cloud/lists.txt"_s), QByteArray("6\r\n"));
        QCOMPARE(QFile::symLinkTarget(Path(link)), Path(u"cloud/lists.txt"_s));
        QCOMPARE(QDir(m_folder.path()).entryList(QDir::Files | QDir::System), QStringList{link});
        QVERIFY(Synchronised.contains(Path(u"cloud"_s))); // the folder that has a new file
        DeleteFile(Path(u"creditor.txt"_s));
        QVERIFY(!QFile::exists(Path(u"cloud/lists.txt"_s)));
        QVERIFY(QFileInfo(Path(link)).isSymLink());
    }

    void ALinkToNothingIsAMissingFile()
    {
        QVERIFY(QFile::link(Path(u"elsewhere.txt"_s), Path(u"creditor.txt"_s)));
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"creditor.txt"_s)); }), 53);
        OutputFile file;
        file.Collect();
        file.Write(qint16(6));
        QCOMPARE(ErrorOf([&] { file.Replace(Path(u"creditor.txt"_s), OldFile::MustExist); }), 53);
        QVERIFY(!QFile::exists(Path(u"elsewhere.txt"_s)));
        file.Replace(Path(u"creditor.txt"_s), OldFile::MayBeMissing);
        QCOMPARE(Get(u"elsewhere.txt"_s), QByteArray("6\r\n"));
        QVERIFY(QFileInfo(Path(u"creditor.txt"_s)).isSymLink());
    }

    void AFolderIsNotDeleted()
    {
        QVERIFY(QDir(m_folder.path()).mkdir(u"stores"_s));
        QCOMPARE(ErrorOf([&] { DeleteFile(Path(u"stores"_s)); }), 75);
        QVERIFY(QDir(Path(u"stores"_s)).exists());
    }

    // ---- Writing, and its errors

    void WritingWithoutAnOpenFileIsError52()
    {
        OutputFile file;
        QCOMPARE(ErrorOf([&] { file.Write(qint16(1)); }), 52);
        file.Close(); // nothing to close is no error
    }

    void AFullDiskIsError61AtTheLatestWhenTheFileIsClosed()
    {
        OutputFile file;
        file.Open(u"/dev/full"_s);
        file.Write(qint16(1)); // still waits in memory
        QCOMPARE(ErrorOf([&] { file.Close(); }), 61);
    }

    void AFullDiskIsNoticedBeforeTheOldFileGoes_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("hasTwoNames");
        QTest::addColumn<int>("error");
        // The old file takes 16 KiB, 8 KiB are left.
        constexpr int kib = 1024;
        QTest::newRow("smaller than the old one") << 4 * kib << false << 0;
        QTest::newRow("all the room that there will be") << 24 * kib << false << 0;
        QTest::newRow("a byte more takes another block") << 24 * kib + 1 << false << 61;
        QTest::newRow("far more") << 60 * kib << false << 61;
        QTest::newRow("a file with two names: what is left") << 8 * kib << true << 0;
        QTest::newRow("a file with two names frees nothing") << 8 * kib + 1 << true << 61;
    }
    void AFullDiskIsNoticedBeforeTheOldFileGoes()
    {
        QFETCH(int, size);
        QFETCH(bool, hasTwoNames);
        QFETCH(int, error);
        constexpr int noDisk = 200;
        constexpr int notAsExpected = 201;
        const QString folder = m_folder.path();
        const int told = InChild([&] {
            if (!MountSmallDisk(folder, 64 * 1024))
                return noDisk;
            const QByteArray old(16 * 1024, 'o');
            const auto put = [&](const QString &name, const QByteArray &bytes) {
                QFile file(Path(name));
                return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
            };
            if (!put(u"creditor.txt"_s, old) || !put(u"filler"_s, QByteArray(RoomOf(folder) - 8 * 1024, 'f')) ||
                RoomOf(folder) != 8 * 1024)
                return notAsExpected;
            if (hasTwoNames && ::link(QFile::encodeName(Path(u"creditor.txt"_s)).constData(),
                                      QFile::encodeName(Path(u"second"_s)).constData()) != 0)
                return notAsExpected;
            OutputFile file;
            file.Collect();
            file.Write(QString(size - 4, QLatin1Char('n'))); // and two quotes and the line's end
            const int number = ErrorOf([&] { file.Replace(Path(u"creditor.txt"_s), OldFile::MustExist); });
            const QByteArray left = Get(u"creditor.txt"_s);
            return number == 0 ? (left.size() == size ? 0 : notAsExpected) : left == old ? number : notAsExpected;
        });
        if (told == noDisk)
            QSKIP("no disk can be mounted here");
        QCOMPARE(told, error);
    }

    void AFileIsOnTheDiskWhenItIsClosed()
    {
        OutputFile file;
        file.Open(Path(u"creditor.txt"_s));
        file.Write(qint16(6));
        QCOMPARE(Synchronised, QStringList());
        file.Close();
        QCOMPARE(Synchronised, (QStringList{Path(u"creditor.txt"_s), m_folder.path()}));
    }

    void WhatDoesNotReachTheDiskIsAnError_data()
    {
        QTest::addColumn<int>("systemError");
        QTest::addColumn<int>("error");
        QTest::newRow("a failing device") << EIO << 57;
        QTest::newRow("a full disk") << ENOSPC << 61;
        QTest::newRow("the user's share is used up") << EDQUOT << 61;
        QTest::newRow("a device that cannot be asked") << EINVAL << 0;
    }
    void WhatDoesNotReachTheDiskIsAnError()
    {
        QFETCH(int, systemError);
        OutputFile file;
        file.Open(Path(u"creditor.txt"_s));
        file.Write(qint16(6));
        SynchronisingFails = systemError;
        QTEST(ErrorOf([&] { file.Close(); }), "error");
    }

    void AFullDiskIsNoticedDuringALongFile()
    {
        OutputFile file;
        file.Open(u"/dev/full"_s);
        const QString text(1000, QLatin1Char('x'));
        int error = 0;
        int writes = 0;
        while (error == 0 && writes++ < 1000)
            error = ErrorOf([&] { file.Write(text); });
        QCOMPARE(error, 61);
    }

    void AFailingDeviceIsError57()
    {
        // A limit on the size of files stands in for the device.
        struct rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        auto *const oldHandler = ::signal(SIGXFSZ, SIG_IGN);
        OutputFile file;
        file.Open(Path(u"out.txt"_s));
        const struct rlimit small = {4096, before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        const int error = ErrorOf([&] {
            file.Write(QString(10000, QLatin1Char('x')));
            file.Close();
        });
        ::setrlimit(RLIMIT_FSIZE, &before);
        ::signal(SIGXFSZ, oldHandler);
        QCOMPARE(error, 57);
    }

    void AWriterThatFailedBlocksNothing()
    {
        OutputFile failed;
        failed.Open(Path(u"creditor.txt"_s));
        failed.Write(qint16(7)); // and its handler leaves the routine, the file stays open
        DeleteFile(Path(u"creditor.txt"_s));
        OutputFile next;
        next.Open(Path(u"creditor.txt"_s));
        next.Write(qint16(8));
        next.Close();
        QCOMPARE(Get(u"creditor.txt"_s), QByteArray("8\r\n"));
        failed.Open(Path(u"other.txt"_s)); // the same number can be used again
        failed.Write(qint16(9));
        failed.Close();
        QCOMPARE(Get(u"other.txt"_s), QByteArray("9\r\n"));
        QCOMPARE(Get(u"creditor.txt"_s), QByteArray("8\r\n"));
    }

    // ---- What errors are called

    void EveryErrorHasItsDescription_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](int number, const char *text) {
            QTest::addRow("%d", number) << number << QString::fromLatin1(text);
        };
        row(5, "Error 5: Invalid procedure call or argument");
        row(6, "Error 6: Overflow");
        row(7, "Error 7: Out of memory");
        row(9, "Error 9: Subscript out of range");
        row(11, "Error 11: Division by zero");
        row(13, "Error 13: Type mismatch");
        row(52, "Error 52: Bad file name or number");
        row(53, "Error 53: File not found");
        row(55, "Error 55: File already open");
        row(57, "Error 57: Device I/O error");
        row(61, "Error 61: Disk full");
        row(62, "Error 62: Input past end of file");
        row(70, "Error 70: Permission denied");
        row(75, "Error 75: Path/File access error");
        row(76, "Error 76: Path not found");
    }
    void EveryErrorHasItsDescription()
    {
        QFETCH(int, number);
        QTEST(RuntimeError(RuntimeError::Code(number)).Text(), "text");
    }

    void ResumingGoesOnWithTheNextStatement()
    {
        QList<int> told;
        const auto tell = [&](const RuntimeError &error) { told += error.Number; };
        QVERIFY(!ResumeNext([] { RaiseError(RuntimeError::InputPastEnd); }, tell));
        QVERIFY(ResumeNext([] {}, tell));
        IgnoreErrors([] { RaiseError(RuntimeError::TypeMismatch); });
        QCOMPARE(told, QList<int>{62});
    }
};

REGISTER_TEST(TestDataFile)
#include "tst_datafile.moc"

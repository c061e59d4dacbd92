// Columns and lines of the printed page.
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"

#include <QtTest>

using namespace Qt::Literals::StringLiterals;

class TestPrinter : public QObject
{
    Q_OBJECT

private:
    QList<PrintJob> m_printed;

private Q_SLOTS:
    void init()
    {
        m_printed.clear();
        TheDesk.PrintDocument = [this](const PrintJob &job) { m_printed += job; };
        ThePrinter.Reset();
    }
    void cleanup()
    {
        TheDesk = {};
        ThePrinter.Reset();
    }

    void TabMovesToAColumnThatCountsFromOne_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("column");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const char *before, int column, const QStringList &lines) {
            QTest::newRow(name) << QString::fromLatin1(before) << column << lines;
        };
        row("column 1 is the line's beginning", "", 1, {u"x"_s});
        row("column 5 leaves four blanks", "", 5, {u"    x"_s});
        row("column 0 counts as 1", "", 0, {u"x"_s});
        row("a negative column counts as 1", "", -7, {u"x"_s});
        row("the column next to the text goes on in the line", "abcd", 5, {u"abcdx"_s});
        row("a gap is filled with blanks", "ab", 5, {u"ab  x"_s});
        row("a line that is past the column goes on in the next", "abcdef", 5, {u"abcdef"_s, u"    x"_s});
        row("column 1 behind text goes on in the next", "a", 1, {u"a"_s, u"x"_s});
    }
    void TabMovesToAColumnThatCountsFromOne()
    {
        QFETCH(QString, before);
        QFETCH(int, column);
        if (!before.isEmpty())
            ThePrinter.Print(before);
        ThePrinter.Tab(column).Print(u"x"_s).NewLine();
        QTEST(ThePrinter.PendingLines(), "lines");
    }

    void TextFollowsTextInTheLine()
    {
        ThePrinter.Print(u"Quantity "_s).Print(u"2"_s).NewLine();
        QCOMPARE(ThePrinter.PendingLines(), QStringList{u"Quantity 2"_s});
    }

    void ACentredLineStartsAtHalfTheRest_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("blanks");
        QTest::newRow("an even length") << 8 << 35;             // column 36
        QTest::newRow("33.5 goes to the even 34") << 13 << 33;  // column 34
        QTest::newRow("32.5 goes to the even 32") << 15 << 31;  // column 32
        QTest::newRow("a text as wide as the page") << 80 << 0; // column 0 counts as 1
        QTest::newRow("a text wider than the page") << 90 << 0;
    }
    void ACentredLineStartsAtHalfTheRest()
    {
        QFETCH(int, length);
        QFETCH(int, blanks);
        const QString text(length, QLatin1Char('t'));
        ThePrinter.CentredLine(text);
        QCOMPARE(ThePrinter.PendingLines(), QStringList{QString(blanks, QLatin1Char(' ')) + text});
    }

    void ARuleIsFiftyUnderscoresAtColumnFifteen()
    {
        ThePrinter.RuleLine();
        ThePrinter.RuleLine(5, 70);
        QCOMPARE(ThePrinter.PendingLines(),
                 (QStringList{QString(14, QLatin1Char(' ')) + QString(50, QLatin1Char('_')),
                              QString(4, QLatin1Char(' ')) + QString(70, QLatin1Char('_'))}));
    }

    void BlanksAtTheEndOfALineAreCutOff()
    {
        ThePrinter.Print(u"total   "_s).NewLine();
        ThePrinter.Tab(30).NewLine();
        QCOMPARE(ThePrinter.PendingLines(), (QStringList{u"total"_s, QString()}));
    }

    void EndDocSendsTheDocumentOffOnce()
    {
        ThePrinter.Print(u"one"_s).NewLine();
        ThePrinter.NewLine();
        ThePrinter.Print(u"two"_s).NewLine();
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, (QStringList{u"one"_s, QString(), u"two"_s}));
        QVERIFY(ThePrinter.PendingLines().isEmpty());
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
    }

    void EndDocEndsAnOpenLine()
    {
        ThePrinter.Print(u"open"_s);
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, QStringList{u"open"_s});
    }

    void WithNothingPrintedEndDocDoesNothing()
    {
        ThePrinter.EndDoc();
        ThePrinter.Tab(15);
        ThePrinter.EndDoc();
        QVERIFY(m_printed.isEmpty());
        // Nor does the column that was moved to reach the next document.
        ThePrinter.Print(u"x"_s).NewLine().Tab(9);
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, QStringList{u"x"_s});
    }

    void TheDocumentHasTheFontThatWasSetBeforeIt()
    {
        ThePrinter.Font = {u"Courier"_s, 8, false, false, false, false, 0};
        ThePrinter.Print(u"x"_s).NewLine();
        ThePrinter.Font = {u"Sans"_s, 12, true, false, false, false, 0xFF};
        ThePrinter.EndDoc();
        ThePrinter.Print(u"y"_s);
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 2);
        QCOMPARE(m_printed[0].Font.Name, u"Courier"_s);
        QCOMPARE(m_printed[0].Font.Size, 8.0F);
        QVERIFY(m_printed[1].Font == ThePrinter.Font);
    }

    void ANameIsOfOneDocument()
    {
        ThePrinter.DocumentName = u"Budget"_s;
        ThePrinter.EndDoc(); // nothing is printed yet
        ThePrinter.Print(u"x"_s);
        ThePrinter.EndDoc();
        ThePrinter.Print(u"y"_s);
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 2);
        QCOMPARE(m_printed[0].Name, u"Budget"_s);
        QCOMPARE(m_printed[1].Name, QString());
    }
};

REGISTER_TEST(TestPrinter)
#include "tst_printer.moc"

// Columns and lines of the printed page.
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/desk/Printer.h"

#include <QtTest>

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
        row("column 1 is the line's beginning", "", 1, {QStringLiteral("x")});
        row("column 5 leaves four blanks", "", 5, {QStringLiteral("    x")});
        row("column 0 counts as 1", "", 0, {QStringLiteral("x")});
        row("a negative column counts as 1", "", -7, {QStringLiteral("x")});
        row("the column next to the text goes on in the line", "abcd", 5, {QStringLiteral("abcdx")});
        row("a gap is filled with blanks", "ab", 5, {QStringLiteral("ab  x")});
        row("a line that is past the column goes on in the next", "abcdef", 5,
            {QStringLiteral("abcdef"), QStringLiteral("    x")});
        row("column 1 behind text goes on in the next", "a", 1, {QStringLiteral("a"), QStringLiteral("x")});
    }
    void TabMovesToAColumnThatCountsFromOne()
    {
        QFETCH(QString, before);
        QFETCH(int, column);
        if (!before.isEmpty())
            ThePrinter.Print(before);
        ThePrinter.Tab(column).Print(QStringLiteral("x")).NewLine();
        QTEST(ThePrinter.PendingLines(), "lines");
    }

    void TextFollowsTextInTheLine()
    {
        ThePrinter.Print(QStringLiteral("Quantity ")).Print(QStringLiteral("2")).NewLine();
        QCOMPARE(ThePrinter.PendingLines(), QStringList{QStringLiteral("Quantity 2")});
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
        ThePrinter.Print(QStringLiteral("total   ")).NewLine();
        ThePrinter.Tab(30).NewLine();
        QCOMPARE(ThePrinter.PendingLines(), (QStringList{QStringLiteral("total"), QString()}));
    }

    void EndDocSendsTheDocumentOffOnce()
    {
        ThePrinter.Print(QStringLiteral("one")).NewLine();
        ThePrinter.NewLine();
        ThePrinter.Print(QStringLiteral("two")).NewLine();
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, (QStringList{QStringLiteral("one"), QString(), QStringLiteral("two")}));
        QVERIFY(ThePrinter.PendingLines().isEmpty());
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
    }

    void EndDocEndsAnOpenLine()
    {
        ThePrinter.Print(QStringLiteral("open"));
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, QStringList{QStringLiteral("open")});
    }

    void WithNothingPrintedEndDocDoesNothing()
    {
        ThePrinter.EndDoc();
        ThePrinter.Tab(15);
        ThePrinter.EndDoc();
        QVERIFY(m_printed.isEmpty());
        // Nor does the column that was moved to reach the next document.
        ThePrinter.Print(QStringLiteral("x")).NewLine().Tab(9);
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 1);
        QCOMPARE(m_printed[0].Lines, QStringList{QStringLiteral("x")});
    }

    void TheDocumentHasTheFontThatWasSetBeforeIt()
    {
        ThePrinter.Font = {QStringLiteral("Courier"), 8, false, false, false, false, 0};
        ThePrinter.Print(QStringLiteral("x")).NewLine();
        ThePrinter.Font = {QStringLiteral("Sans"), 12, true, false, false, false, 0xFF};
        ThePrinter.EndDoc();
        ThePrinter.Print(QStringLiteral("y"));
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 2);
        QCOMPARE(m_printed[0].Font.Name, QStringLiteral("Courier"));
        QCOMPARE(m_printed[0].Font.Size, 8.0F);
        QVERIFY(m_printed[1].Font == ThePrinter.Font);
    }

    void ANameIsOfOneDocument()
    {
        ThePrinter.DocumentName = QStringLiteral("Budget");
        ThePrinter.EndDoc(); // nothing is printed yet
        ThePrinter.Print(QStringLiteral("x"));
        ThePrinter.EndDoc();
        ThePrinter.Print(QStringLiteral("y"));
        ThePrinter.EndDoc();
        QCOMPARE(m_printed.size(), 2);
        QCOMPARE(m_printed[0].Name, QStringLiteral("Budget"));
        QCOMPARE(m_printed[1].Name, QString());
    }
};

REGISTER_TEST(TestPrinter)
#include "tst_printer.moc"

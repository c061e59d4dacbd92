// Documents on paper, read back from the PDF that they become.
#include "ErrorOf.h"
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/desk/PagePrinter.h"
#include "platform/desk/Printer.h"
#include "platform/values/Locale.h"

#include <QPaintEngine>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

PrintFont Courier(float size)
{
    PrintFont font;
    font.Name = QStringLiteral("Courier");
    font.Size = size;
    return font;
}

QStringList Numbered(int lines)
{
    QStringList all;
    for (int line = 1; line <= lines; ++line)
        all += QStringLiteral("Line %1").arg(line);
    return all;
}

/// A PDF of that document; returns the number of pages that the drawing tells.
int WritePdf(const PrintJob &job, const QString &path, QPageSize::PageSizeId size = QPageSize::Letter)
{
    QPdfWriter pdf(path);
    pdf.setPageSize(QPageSize(size));
    pdf.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    return DrawDocument(job, pdf);
}

/// Its pages as text, laid out as on the paper.
QStringList PagesOf(const QString &path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!reader.waitForStarted() || !reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext (of the package poppler-utils) does not run");
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(QLatin1Char('\f'));
    pages.removeLast();
    return pages;
}

/// The left edge of a word on its page and the page's width, in points.
struct Place {
    double Left = -1;
    double Right = -1;
    double PageWidth = 0;
};
Place PlaceOf(const QString &word, const QString &path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), path, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext (of the package poppler-utils) does not run");
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    static const QRegularExpression page(QStringLiteral("<page width=\"([0-9.]+)\""));
    const QRegularExpression found(
        QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"[0-9.]+\" xMax=\"([0-9.]+)\" yMax=\"[0-9.]+\">%1<").arg(word));
    const auto match = found.match(text);
    Place place;
    place.PageWidth = page.match(text).captured(1).toDouble();
    if (match.hasMatch()) {
        place.Left = match.captured(1).toDouble();
        place.Right = match.captured(2).toDouble();
    }
    return place;
}

/// A printer that fails at some point, as one does that is switched off or runs out of paper.
class TestPrinter : public QPdfWriter
{
public:
    enum Failure { Never, AtTheStart, AtTheSecondPage, AtTheEnd };

    TestPrinter(Failure failure, const QString &path)
        : QPdfWriter(failure == AtTheStart ? path + "/nowhere" : path), m_failure(failure), m_engine(failure)
    {
    }
    bool newPage() override { return m_failure == AtTheEnd || (m_failure != AtTheSecondPage && QPdfWriter::newPage()); }

protected:
    QPaintEngine *paintEngine() const override
    {
        return m_failure == AtTheEnd ? const_cast<Engine *>(&m_engine) : QPdfWriter::paintEngine();
    }

private:
    /// Draws nothing and cannot finish.
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(Failure failure) : QPaintEngine(AllFeatures), m_ends(failure != AtTheEnd) {}
        bool begin(QPaintDevice *) override { return true; }
        bool end() override { return m_ends; }
        void updateState(const QPaintEngineState &) override {}
        void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
        void drawTextItem(const QPointF &, const QTextItem &) override {}
        Type type() const override { return User; }

    private:
        bool m_ends;
    };

    Failure m_failure;
    Engine m_engine;
};

constexpr double Margin = 15 / 25.4 * 72; // points

} // namespace

class gui_pageprinter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TheDesk.Now = [] { return QDateTime(QDate(2004, 1, 5), QTime(9, 30, 1)); };
    }

    void APageHoldsWhatFitsAndNoLineIsLost_data()
    {
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("leastPages");
        QTest::addColumn<int>("mostPages");
        // A letter sheet has 25 cm between the margins; eight points and the space between lines are 3 to 4 mm.
        QTest::newRow("one line") << 1 << 1 << 1;
        QTest::newRow("half a page") << 30 << 1 << 1;
        QTest::newRow("two pages or three") << 150 << 2 << 3;
        QTest::newRow("many pages") << 1000 << 12 << 17;
    }
    void APageHoldsWhatFitsAndNoLineIsLost()
    {
        QFETCH(int, lines);
        QFETCH(int, leastPages);
        QFETCH(int, mostPages);
        const QString path = m_folder.filePath("pages.pdf");
        const int pages = WritePdf({Courier(8), Numbered(lines)}, path);
        QVERIFY2(pages >= leastPages && pages <= mostPages, qPrintable(QString::number(pages)));
        const QStringList texts = PagesOf(path);
        QCOMPARE(texts.size(), pages);
        QStringList read;
        for (const QString &page : texts) {
            const QStringList rows = page.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
            for (const QString &row : rows)
                read += row.trimmed();
        }
        QCOMPARE(read, Numbered(lines));
        // Every page but the last is full.
        for (qsizetype page = 1; page + 1 < texts.size(); ++page)
            QCOMPARE(texts[page].count("Line"), texts[0].count("Line"));
    }

    void LargerLettersNeedMorePages()
    {
        const int small = WritePdf({Courier(8), Numbered(300)}, m_folder.filePath("small.pdf"));
        const int large = WritePdf({Courier(10), Numbered(300)}, m_folder.filePath("large.pdf"));
        QVERIFY(large > small);
    }

    void EmptyLinesTakeTheirRoom()
    {
        QStringList sparse;
        for (const QString &line : Numbered(40))
            sparse += QStringList{line, {}, {}};
        const QString path = m_folder.filePath("sparse.pdf");
        QCOMPARE(WritePdf({Courier(8), sparse}, path),
                 WritePdf({Courier(8), Numbered(120)}, m_folder.filePath("dense.pdf")));
    }

    void TextStandsInItsColumns()
    {
        Printer printer;
        PrintJob job;
        TheDesk.PrintDocument = [&](const PrintJob &sent) { job = sent; };
        printer.Font = Courier(8);
        printer.CentredLine("OVERHEAD");
        printer.NewLine();
        printer.Tab(15).Print("Rent due the 1st").Tab(56).Print("$1,250.00").NewLine();
        printer.Tab(15).Print("Gas").Tab(60).Print("$7.50").NewLine();
        printer.RuleLine();
        printer.EndDoc();
        const QString path = m_folder.filePath("columns.pdf");
        QCOMPARE(WritePdf(job, path), 1);
        QStringList read = PagesOf(path).value(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(read.size(), 4);
        // The reader drops the blanks that all lines have in common and rounds places; the columns stay under each
        // other.
        const auto ends = [&](int line) { return read[line].size(); };
        const auto starts = [&](int line) { return read[line].size() - read[line].trimmed().size(); };
        QVERIFY(read[1].contains("Rent due the 1st"));
        QVERIFY(qAbs(ends(1) - ends(2)) <= 1); // amounts end in one column
        QCOMPARE(starts(1), starts(2));        // labels start in one column
        QVERIFY(starts(0) > starts(1));
        QCOMPARE(read[3].trimmed(), QString(50, QLatin1Char('_')));
        QVERIFY(qAbs(ends(3) - ends(1)) <= 1); // the rule ends where the amounts end
    }

    // Column n starts n - 1 widths of a figure right of the margin, whatever the letters.
    void ColumnsStandInAnyFont_data()
    {
        QTest::addColumn<QString>("font");
        QTest::newRow("fixed") << "Courier";
        QTest::newRow("proportional") << "DejaVu Sans";
        QTest::newRow("unknown") << "No Such Font";
        QTest::newRow("none") << "";
    }
    void ColumnsStandInAnyFont()
    {
        QFETCH(QString, font);
        PrintJob job;
        job.Font.Name = font;
        job.Font.Size = 8;
        // Wide and narrow letters before the columns, which are 1, 31 and 61
        job.Lines = {QStringLiteral("aaa%1bbb%1ccc").arg(QString(27, QLatin1Char(' '))),
                     QStringLiteral("WWWWWWWWWWWW%1iiiiiiiiiiii%1ddd").arg(QString(18, QLatin1Char(' ')))};
        const QString path = m_folder.filePath("fonts.pdf");
        QCOMPARE(WritePdf(job, path), 1);
        const Place first = PlaceOf("aaa", path), second = PlaceOf("bbb", path), third = PlaceOf("ccc", path);
        const Place wide = PlaceOf("WWWWWWWWWWWW", path), narrow = PlaceOf("iiiiiiiiiiii", path),
                    last = PlaceOf("ddd", path);
        QVERIFY(qAbs(first.Left - Margin) < 1);
        QVERIFY(third.Left > second.Left && second.Left > first.Left);
        QVERIFY(qAbs((third.Left - second.Left) - (second.Left - first.Left)) < 0.5);
        QVERIFY(qAbs(wide.Left - first.Left) < 0.5);
        QVERIFY(qAbs(narrow.Left - second.Left) < 0.5);
        QVERIFY(qAbs(last.Left - third.Left) < 0.5);
    }

    // In letters of different widths the figures of an amount do not fill its columns.
    void AmountsEndUnderEachOtherInAnyFont_data() { ColumnsStandInAnyFont_data(); }
    void AmountsEndUnderEachOtherInAnyFont()
    {
        QFETCH(QString, font);
        PrintJob job;
        job.Font.Name = font;
        job.Font.Size = 8;
        const QStringList amounts{"$1,111.11", "($8.00)", "12345", "$1,234,567.89"};
        for (const QString &amount : amounts)
            job.Lines += QStringLiteral("Label %1").arg(amount, 40);
        job.Lines += QString(6, QLatin1Char(' ')) + QString(40, QLatin1Char('_'));
        const QString path = m_folder.filePath("amounts.pdf");
        QCOMPARE(WritePdf(job, path), 1);
        const Place first = PlaceOf(QRegularExpression::escape(amounts[0]), path);
        QVERIFY(first.Right > 0);
        for (const QString &amount : amounts)
            QVERIFY(qAbs(PlaceOf(QRegularExpression::escape(amount), path).Right - first.Right) < 0.5);
        // The rule spans the columns that its signs are counted for, within half a sign.
        const Place rule = PlaceOf("_+", path);
        QVERIFY(rule.Left > 0);
        QVERIFY(qAbs(rule.Right - first.Right) < 3);
    }

    void EmptyLinesAtTheEndAreNoPage()
    {
        QStringList lines = Numbered(1);
        for (int line = 0; line < 200; ++line)
            lines += QString();
        QCOMPARE(WritePdf({Courier(8), lines}, m_folder.filePath("gap.pdf")), 1);
        lines += Numbered(1);
        QVERIFY(WritePdf({Courier(8), lines}, m_folder.filePath("gap.pdf")) > 1);
    }

    void EightyColumnsFit_data()
    {
        QTest::addColumn<QString>("font");
        QTest::addColumn<float>("size");
        QTest::addColumn<int>("paper");
        QTest::newRow("the usual font on letter") << "Courier" << 8.F << int(QPageSize::Letter);
        QTest::newRow("the usual font on A4") << "Courier" << 8.F << int(QPageSize::A4);
        QTest::newRow("a large font") << "Courier" << 24.F << int(QPageSize::A4);
        QTest::newRow("small paper") << "Courier" << 10.F << int(QPageSize::A5);
        QTest::newRow("a size of nothing") << "Courier" << 0.F << int(QPageSize::Letter);
    }
    void EightyColumnsFit()
    {
        QFETCH(QString, font);
        QFETCH(float, size);
        QFETCH(int, paper);
        PrintJob job;
        job.Font.Name = font;
        job.Font.Size = size;
        job.Lines = {QString(77, QLatin1Char(' ')) + QStringLiteral("end"), QString(80, QLatin1Char('8'))};
        const QString path = m_folder.filePath("wide.pdf");
        QCOMPARE(WritePdf(job, path, QPageSize::PageSizeId(paper)), 1);
        const Place end = PlaceOf("end", path), all = PlaceOf(QString(80, QLatin1Char('8')), path);
        QVERIFY(end.Left > 0 && all.Left > 0);
        QVERIFY(qAbs(all.Left - Margin) < 1);
        QVERIFY(end.Right <= end.PageWidth - Margin + 1);
        QVERIFY(all.Right <= all.PageWidth - Margin + 1);
        QVERIFY(qAbs(end.Right - all.Right) < 2);
    }

    // Where no printer is installed

    void WithoutAPrinterAPdfIsWritten()
    {
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
        TheDesk.Now = [] { return QDateTime(QDate(2004, 1, 5), QTime(9, 30, 1)); };
        const QString folder = m_folder.filePath("house/printed"); // not there yet
        const PrintJob job{Courier(8), Numbered(200), QStringLiteral("Savings Forecast")};
        const QString first = PrintToPaperOrPdf(job, folder);
        QCOMPARE(first, folder + "/2004-01-05 Savings Forecast.pdf");
        QCOMPARE(PrintToPaperOrPdf(job, folder), folder + "/2004-01-05 Savings Forecast (2).pdf");
        QCOMPARE(PrintToPaperOrPdf(job, folder), folder + "/2004-01-05 Savings Forecast (3).pdf");
        QCOMPARE(QDir(folder).entryList(QDir::Files).size(), 3);
        const QStringList pages = PagesOf(first);
        QVERIFY(pages.size() >= 3);
        QVERIFY(pages[0].contains("Line 1\n"));
        QVERIFY(pages.last().contains("Line 200"));
    }

    void AFileIsCalledByItsDocument_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("file");
        QTest::newRow("as it is") << "New roof"
                                  << "New roof";
        QTest::newRow("letters of every kind") << u"Žižkov €"_s << u"Žižkov €"_s;
        QTest::newRow("a folder's separator") << "Car/boat"
                                              << "Car-boat";
        QTest::newRow("no way out of the folder") << "../../etc/passwd"
                                                  << "..-..-etc-passwd";
        QTest::newRow("signs that other disks refuse") << "a\\b:c*d?e\"f<g>h|i"
                                                       << "a-b-c-d-e-f-g-h-i";
        QTest::newRow("many in a row") << "who???"
                                       << "who-";
        QTest::newRow("a line end") << "one\ntwo"
                                    << "one-two";
        QTest::newRow("blanks around") << "  roof "
                                       << "roof";
        QTest::newRow("too long for a file") << QString(300, QChar(0x20AC)) << QString(60, QChar(0x20AC));
        QTest::newRow("no name") << ""
                                 << "Report";
    }
    void AFileIsCalledByItsDocument()
    {
        QFETCH(QString, document);
        QFETCH(QString, file);
        TheDesk.Now = [] { return QDateTime(QDate(2026, 11, 21), QTime(9, 30, 1)); };
        const QString folder = m_folder.filePath("named");
        QCOMPARE(PrintToPaperOrPdf({Courier(8), Numbered(1), document}, folder, nullptr),
                 folder + "/2026-11-21 " + file + ".pdf");
        QVERIFY(QDir(folder).removeRecursively());
    }

    void PaperIsThatOfTheUsersCountry_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("width"); // in points
        QTest::newRow("none chosen") << QLocale::c() << 612.0;
        QTest::newRow("United States") << QLocale(QLocale::English, QLocale::UnitedStates) << 612.0;
        QTest::newRow("Germany") << QLocale(QLocale::German, QLocale::Germany) << 595.0;
        QTest::newRow("United Kingdom") << QLocale(QLocale::English, QLocale::UnitedKingdom) << 595.0;
    }
    void PaperIsThatOfTheUsersCountry()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, width);
        const QLocale before = UserLocale();
        SetUserLocale(locale);
        const QString path = PrintToPaperOrPdf({Courier(8), Numbered(1)}, m_folder.filePath("paper"), nullptr);
        SetUserLocale(before);
        QVERIFY(qAbs(PlaceOf("Line", path).PageWidth - width) < 1);
    }

    void APrinterThatFailsLeavesAPdf_data()
    {
        QTest::addColumn<int>("failure");
        QTest::newRow("at the start") << int(TestPrinter::AtTheStart);
        QTest::newRow("at the second page") << int(TestPrinter::AtTheSecondPage);
        QTest::newRow("at the end") << int(TestPrinter::AtTheEnd);
    }
    void APrinterThatFailsLeavesAPdf()
    {
        QFETCH(int, failure);
        TestPrinter printer(TestPrinter::Failure(failure), m_folder.filePath("paper.out"));
        const PrintJob job{Courier(8), Numbered(200), QStringLiteral("Budget")};
        const QString path = PrintToPaperOrPdf(job, m_folder.filePath("failed"), &printer);
        const QStringList pages = PagesOf(path);
        QVERIFY(pages.size() >= 3);
        QVERIFY(pages[0].contains("Line 1\n"));
        QVERIFY(pages.last().contains("Line 200"));
    }

    void APrinterThatWorksLeavesNone()
    {
        TestPrinter printer(TestPrinter::Never, m_folder.filePath("paper.out"));
        const QString folder = m_folder.filePath("none");
        QCOMPARE(PrintToPaperOrPdf({Courier(8), Numbered(200)}, folder, &printer), QString());
        QVERIFY(!QDir(folder).exists());
    }

    void WhereTheFolderCannotBeMadeThePagesGoToTheDocuments()
    {
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
        QFile file(m_folder.filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const PrintJob job{Courier(8), Numbered(2)};
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString path = PrintToPaperOrPdf(job, m_folder.filePath("file/printed"));
        qputenv("HOME", home);
        QVERIFY(documents.startsWith(m_folder.path()));
        QCOMPARE(QFileInfo(path).path(), documents);
        QVERIFY(PagesOf(path).value(0).contains("Line 1\n"));
    }

    void AFullDiskIsAnErrorAndLeavesNoHalfDocument()
    {
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
        TheDesk.Now = [] { return QDateTime(QDate(2004, 1, 5), QTime(9, 30, 1)); };
        const QString folder = m_folder.filePath("full");
        const PrintJob job{Courier(8), Numbered(2000)};
        rlimit before{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit little{4096, before.rlim_max}; // as if the disk had this much room left
        const auto ignored = signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &little);
        const int error = ErrorOf([&] { PrintToPaperOrPdf(job, folder); });
        setrlimit(RLIMIT_FSIZE, &before);
        signal(SIGXFSZ, ignored);
        QCOMPARE(error, 57);
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList());
    }

private:
    QTemporaryDir m_folder;
};

REGISTER_TEST(gui_pageprinter)
#include "gui_pageprinter.moc"

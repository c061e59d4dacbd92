// Documents on paper, read back from the PDF that they become.
#include "ErrorOf.h"
#include "PdfText.h"
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
    font.Name = u"Courier"_s;
    font.Size = size;
    return font;
}

QStringList Numbered(int lines)
{
    QStringList all;
    for (int line = 1; line <= lines; ++line)
        all += u"Line %1"_s.arg(line);
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
        job.Lines = {u"aaa%1bbb%1ccc"_s.arg(QString(27, QLatin1Char(' '))),
                     u"WWWWWWWWWWWW%1iiiiiiiiiiii%1ddd"_s.arg(QString(18, QLatin1Char(' ')))};
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
            job.Lines += u"Label %1"_s.arg(amount, 40);
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

    // The seven settings, as they come out on the paper

    void TheLettersAreOfTheChosenFont_data()
    {
        QTest::addColumn<PrintFont>("font");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << PrintFont{u"DejaVu Serif"_s, 8} << "DejaVuSerif";
        QTest::newRow("bold") << PrintFont{u"DejaVu Serif"_s, 8, true} << "DejaVuSerif-Bold";
        QTest::newRow("italic") << PrintFont{u"DejaVu Serif"_s, 8, false, true} << "DejaVuSerif-Italic";
        QTest::newRow("both") << PrintFont{u"DejaVu Serif"_s, 8, true, true} << "DejaVuSerif-BoldItalic";
        QTest::newRow("another family") << PrintFont{u"DejaVu Sans Mono"_s, 8} << "DejaVuSansMono";
        QTest::newRow("another, bold") << PrintFont{u"DejaVu Sans Mono"_s, 8, true} << "DejaVuSansMono-Bold";
    }
    void TheLettersAreOfTheChosenFont()
    {
        QFETCH(PrintFont, font);
        QFETCH(QString, name);
        const QString path = m_folder.filePath("letters.pdf");
        WritePdf({font, Numbered(3)}, path);
        QProcess reader;
        reader.start(u"pdffonts"_s, {path});
        QVERIFY2(reader.waitForFinished() && reader.exitCode() == 0, "pdffonts (of the package poppler-utils)");
        const QStringList rows = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(rows.size(), 3); // two lines of heads, and one font
        QCOMPARE(rows[2].section(u' ', 0, 0).section(u'+', -1), name);
    }

    void TheLettersAreOfTheChosenSize()
    {
        for (const float size : {6.F, 8.F, 9.5F}) {
            const QString path = m_folder.filePath("size.pdf");
            WritePdf({{u"DejaVu Sans Mono"_s, size}, {QString(40, u'8')}}, path);
            const Place place = PlaceOf(QString(40, u'8'), path);
            QVERIFY(qAbs(place.Right - place.Left - 40 * 0.602 * size) < 3); // its letters are 0.602 of the size wide
        }
    }

    void TheInkIsOfTheChosenColour()
    {
        // Red lowest: three bytes that no two of them could be changed for each other.
        const QImage page = PictureOf({{u"DejaVu Sans Mono"_s, 8, true, false, false, false, 0x30A0F0}, {u"MMMM"_s}});
        QVERIFY(CountOf(page, QColor(0xF0, 0xA0, 0x30)) > 20);
        QCOMPARE(CountOf(page, QColor(0x30, 0xA0, 0xF0)), 0);
        QCOMPARE(CountOf(page, Qt::black), 0);
    }

    void ALineUnderOrThroughIsDrawn()
    {
        const auto font = [](bool under, bool through) {
            return PrintFont{u"DejaVu Sans Mono"_s, 8, false, false, under, through};
        };
        // Letters with white between them: a row of the picture that is black along all of them is a line.
        const auto linesOf = [&](bool under, bool through) {
            const QImage page = PictureOf({font(under, through), {u"llllllllll"_s}});
            const QRect ink = InkOf(page);
            QList<double> heights; // 0 top of the letters, 1 bottom of all
            for (int row = ink.top(); row <= ink.bottom(); ++row) {
                int dark = 0;
                for (int column = ink.left(); column <= ink.right(); ++column)
                    dark += qGray(page.pixel(column, row)) < 128;
                if (dark > ink.width() * 0.95)
                    heights += double(row - ink.top()) / ink.height();
            }
            return heights;
        };
        QCOMPARE(linesOf(false, false).size(), 0);
        const QList<double> under = linesOf(true, false), through = linesOf(false, true), both = linesOf(true, true);
        QVERIFY(!under.isEmpty() && under.first() > 0.8);
        QVERIFY(!through.isEmpty() && through.first() > 0.3 && through.last() < 0.9);
        QVERIFY(both.first() < 0.8 && both.last() > 0.8);
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
        job.Lines = {QString(77, QLatin1Char(' ')) + u"end"_s, QString(80, QLatin1Char('8'))};
        const QString path = m_folder.filePath("wide.pdf");
        QCOMPARE(WritePdf(job, path, QPageSize::PageSizeId(paper)), 1);
        const Place end = PlaceOf("end", path), all = PlaceOf(QString(80, QLatin1Char('8')), path);
        QVERIFY(end.Left > 0 && all.Left > 0);
        QVERIFY(qAbs(all.Left - Margin) < 1);
        QVERIFY(end.Right <= end.PageWidth - Margin + 1);
        QVERIFY(all.Right <= all.PageWidth - Margin + 1);
        QVERIFY(qAbs(end.Right - all.Right) < 2);
    }

    // A page is at least 80 columns wide, and what a document has beyond its edge stands below.
    void TheEndOfALongLineStandsBelow_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("rows");
        const auto run = [](QChar sign, int count) { return QString(count, sign); };
        QTest::newRow("full") << run(u'8', 80) << QStringList{run(u'8', 80)};
        QTest::newRow("one sign more") << run(u'8', 81) << QStringList{run(u'8', 80), u"8"_s};
        QTest::newRow("three rows") << run(u'8', 165) << QStringList{run(u'8', 80), run(u'8', 80), run(u'8', 5)};
        QTest::newRow("at a blank") << run(u'a', 60) + u' ' + run(u'b', 30)
                                    << QStringList{run(u'a', 60), run(u'b', 30)};
        QTest::newRow("the blank beyond the edge")
            << run(u'a', 80) + u' ' + run(u'b', 30) << QStringList{run(u'a', 80), run(u'b', 30)};
        QTest::newRow("not at one far left")
            << u"a "_s + run(u'b', 90) << QStringList{u"a "_s + run(u'b', 78), run(u'b', 12)};
        QTest::newRow("the amount") << run(u'a', 75) + u"    $1,250.00"_s << QStringList{run(u'a', 75), u"$1,250.00"_s};
    }
    void TheEndOfALongLineStandsBelow()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, rows);
        const QString path = m_folder.filePath("long.pdf");
        QCOMPARE(WritePdf({Courier(24), {line, u"next"_s}}, path), 1); // as large as 80 columns fit
        QStringList read;
        for (const QString &row : PagesOf(path).value(0).split(u'\n', Qt::SkipEmptyParts))
            read += row.trimmed();
        QCOMPARE(read, rows + QStringList{u"next"_s});
        for (const QString &row : rows)
            QVERIFY(PlaceOf(QRegularExpression::escape(row.section(u' ', -1)), path).Right <=
                    PlaceOf(u"next"_s, path).PageWidth - Margin + 1);
    }

    void ALongLineTakesTheRoomOfItsRows()
    {
        QCOMPARE(WritePdf({Courier(24), QStringList(100, QString(160, u'8'))}, m_folder.filePath("long.pdf")),
                 WritePdf({Courier(24), QStringList(200, QString(80, u'8'))}, m_folder.filePath("short.pdf")));
    }

    // Wide letters pass their columns, and are condensed before they reach what stands to the right.
    void NoCellReachesTheNext_data()
    {
        QTest::addColumn<QString>("font");
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("amountEnd");
        for (const char *font : {"Courier", "DejaVu Sans", "DejaVu Serif"}) {
            const auto name = [&](const char *row) { return QByteArray(font) + ", " + row; };
            QTest::newRow(name("two blanks between")) << font << QString(38, u'W') << 50;
            QTest::newRow(name("one blank between")) << font << QString(40, u'W') << 50;
            QTest::newRow(name("room enough")) << font << QString(5, u'W') << 50;
            QTest::newRow(name("narrow letters")) << font << QString(40, u'i') << 50;
        }
    }
    void NoCellReachesTheNext()
    {
        QFETCH(QString, font);
        QFETCH(QString, label);
        QFETCH(int, amountEnd);
        PrintJob job;
        job.Font = {font, 8};
        const QString amount = u"$1,111.11"_s, other = u"$2,222.22"_s;
        job.Lines = QStringList{label + amount.rightJustified(amountEnd - int(label.size())),
                                u"Gas"_s + other.rightJustified(amountEnd - 3), u"Title 2 of 7"_s};
        const QString path = m_folder.filePath("cells.pdf");
        QCOMPARE(WritePdf(job, path), 1);
        const Place left = PlaceOf(label, path), right = PlaceOf(QRegularExpression::escape(amount), path);
        const Place below = PlaceOf(QRegularExpression::escape(other), path);
        QVERIFY(left.Right > 0 && right.Right > 0 && below.Right > 0);
        QVERIFY2(left.Right < right.Left, qPrintable(u"%1 %2"_s.arg(left.Right).arg(right.Left)));
        QVERIFY(qAbs(right.Right - below.Right) < 0.5); // the amount ends where the others do
        QVERIFY(qAbs(left.Left - Margin) < 1);
        // A figure in a sentence stays with its word.
        QVERIFY(PlaceOf(u"7"_s, path).Left - PlaceOf(u"of"_s, path).Right < 6);
    }

    void WideLettersStayOnTheSheet()
    {
        PrintJob job;
        job.Font = {u"DejaVu Sans"_s, 10};
        job.Lines = QStringList{QString(80, u'W')};
        const QString path = m_folder.filePath("sheet.pdf");
        QCOMPARE(WritePdf(job, path), 1);
        const Place all = PlaceOf(QString(80, u'W'), path);
        QVERIFY(all.Left > 0);
        QVERIFY(all.Right <= all.PageWidth - Margin + 1);
    }

    // Margins that meet each other
    void MarginsThatLeaveNoRoomGiveWayToTheUsualOnes_data()
    {
        QTest::addColumn<QMarginsF>("margins");
        QTest::addColumn<bool>("hold");
        QTest::newRow("left and right meet") << QMarginsF(107, 15, 108.8, 15) << false;
        QTest::newRow("top and bottom meet") << QMarginsF(15, 139, 15, 139) << false;
        QTest::newRow("too narrow") << QMarginsF(100, 15, 96, 15) << false;
        QTest::newRow("just wide enough") << QMarginsF(100, 15, 95, 15) << true;
    }
    void MarginsThatLeaveNoRoomGiveWayToTheUsualOnes()
    {
        QFETCH(QMarginsF, margins);
        QFETCH(bool, hold);
        const QString path = m_folder.filePath("margins.pdf");
        int pages = 0;
        {
            QPdfWriter pdf(path);
            pdf.setPageSize(QPageSize(QPageSize::Letter));
            QVERIFY(pdf.setPageMargins(margins, QPageLayout::Millimeter));
            pages = DrawDocument({Courier(8), Numbered(20)}, pdf);
        }
        QCOMPARE(pages, 1);
        QCOMPARE(PagesOf(path).value(0).count(u"Line"_s), 20);
        QVERIFY(qAbs(PlaceOf(u"Line"_s, path).Left - (hold ? 100 / 25.4 * 72 : Margin)) < 1);
    }

    // Paper of a label printer: less than a line high, and still no sheet stays empty.
    void ASheetTakesOneLineAtTheLeast()
    {
        const QString path = m_folder.filePath("label.pdf");
        int pages = 0;
        {
            QPdfWriter pdf(path);
            pdf.setPageSize(QPageSize(QSizeF(100, 2), QPageSize::Millimeter));
            pdf.setPageMargins({}, QPageLayout::Millimeter);
            pages = DrawDocument({Courier(8), Numbered(3)}, pdf);
        }
        QCOMPARE(pages, 3);
    }

    // Where no printer is installed

    void WithoutAPrinterAPdfIsWritten()
    {
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
        TheDesk.Now = [] { return QDateTime(QDate(2004, 1, 5), QTime(9, 30, 1)); };
        const QString folder = m_folder.filePath("house/printed"); // not there yet
        const PrintJob job{Courier(8), Numbered(200), u"Savings Forecast"_s};
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
        const PrintJob job{Courier(8), Numbered(200), u"Budget"_s};
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
    /// The first page as it is seen, at 300 dots to the inch.
    QImage PictureOf(const PrintJob &job)
    {
        const QString path = m_folder.filePath("seen.pdf");
        WritePdf(job, path);
        QProcess reader;
        reader.start(u"pdftoppm"_s, {u"-r"_s, u"300"_s, u"-f"_s, u"1"_s, u"-singlefile"_s, u"-png"_s, path,
                                     m_folder.filePath("seen")});
        if (!reader.waitForFinished() || reader.exitCode() != 0)
            qFatal("pdftoppm (of the package poppler-utils) does not run");
        return QImage(m_folder.filePath("seen.png")).convertToFormat(QImage::Format_RGB32);
    }

    static int CountOf(const QImage &page, QColor colour)
    {
        int count = 0;
        for (int row = 0; row < page.height(); ++row)
            for (int column = 0; column < page.width(); ++column)
                count += page.pixel(column, row) == colour.rgb();
        return count;
    }

    /// The least rectangle around all that is dark.
    static QRect InkOf(const QImage &page)
    {
        QRect ink;
        for (int row = 0; row < page.height(); ++row)
            for (int column = 0; column < page.width(); ++column)
                if (qGray(page.pixel(column, row)) < 128)
                    ink |= QRect(column, row, 1, 1);
        return ink;
    }

    QTemporaryDir m_folder;
};

REGISTER_TEST(gui_pageprinter)
#include "gui_pageprinter.moc"

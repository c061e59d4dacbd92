// All reports: what each window shows is what it prints, in the settings of the moment, and can be read on its pages.
#include "GuiDesk.h"
#include "Reports.h"
#include "TestProgram.h"
#include "mainwindow/TestPage.h"
#include "platform/desk/PagePrinter.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The texts of a page, line by line, without rules. A line that ends in a blank has lost it.
QStringList TextsOf(const PrintJob &page)
{
    QStringList texts;
    for (const QString &line : page.Lines)
        if (!line.trimmed().startsWith(u"____"_s))
            texts += TextsOf(line);
    return texts;
}

void Set(const PrintFont &font)
{
    State.PrintFontName = font.Name;
    State.PrintFontSize = font.Size;
    State.PrintFontBold = font.Bold;
    State.PrintFontItalic = font.Italic;
    State.PrintFontUnderline = font.Underline;
    State.PrintFontStrikethru = font.Strikethru;
    State.PrintFontColor = font.Color;
}

/// Together they tell the four switches apart.
const PrintFont OddFonts[] = {
    {u"DejaVu Serif"_s, 11.5F, true, true, false, false, 0x5A10C8},
    {u"Žižkov Sans"_s, 6.25F, true, false, true, false, 0x0000FF},
    {u"Courier"_s, 8, false, false, false, true, 0xFF0000},
};

PrintedReport Print(FakeDesk &desk, const Report &report)
{
    TakeHouseholdForReports();
    PrintedReport printed = report.Print(desk);
    desk.TakeHourglass();
    return printed;
}

QString PdfText(const QString &path)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext (of the package poppler-utils) does not run");
    return QString::fromUtf8(reader.readAllStandardOutput());
}

} // namespace

class gui_reports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachReportIsPrintedInTheSettings_data()
    {
        QTest::addColumn<int>("report");
        QTest::addColumn<int>("font");
        for (int report = 0; report < Reports.size(); ++report)
            for (int font = 0; font < int(std::size(OddFonts)); ++font)
                QTest::addRow("%s %d", Reports[report].Name, font) << report << font;
    }
    void EachReportIsPrintedInTheSettings()
    {
        QFETCH(int, report);
        QFETCH(int, font);
        GuiDesk desk;
        Set(OddFonts[font]);
        const PrintedReport printed = Print(desk, Reports[report]);
        QCOMPARE(printed.Page.Name, QString::fromLatin1(Reports[report].Name));
        const PrintFont &used = printed.Page.Font;
        QCOMPARE(used.Name, OddFonts[font].Name);
        QCOMPARE(used.Size, OddFonts[font].Size);
        QCOMPARE(used.Bold, OddFonts[font].Bold);
        QCOMPARE(used.Italic, OddFonts[font].Italic);
        QCOMPARE(used.Underline, OddFonts[font].Underline);
        QCOMPARE(used.Strikethru, OddFonts[font].Strikethru);
        QCOMPARE(used.Color, OddFonts[font].Color);
    }

    void SettingsOfAnEarlierReportAreNotKept()
    {
        GuiDesk desk;
        for (const PrintFont &font : OddFonts) {
            Set(font);
            PrintTestPage();
            QCOMPARE(desk.TakePrinted().Font, font);
        }
    }

    void EachReportPrintsWhatIsShown_data()
    {
        QTest::addColumn<int>("report");
        for (int report = 0; report < Reports.size(); ++report)
            QTest::newRow(Reports[report].Name) << report;
    }
    void EachReportPrintsWhatIsShown()
    {
        QFETCH(int, report);
        GuiDesk desk;
        const PrintedReport printed = Print(desk, Reports[report]);
        const QStringList texts = TextsOf(printed.Page);
        for (qsizetype i = 0; i < qMin(texts.size(), printed.Screen.size()); ++i)
            QCOMPARE(texts[i], printed.Screen[i]);
        QCOMPARE(texts.size(), printed.Screen.size());
        const QString all = texts.join(u' ');
        QVERIFY2(all.contains(u'$'), "a report tells amounts");
    }

    void EachReportCanBeReadOnItsPages_data() { EachReportPrintsWhatIsShown_data(); }
    void EachReportCanBeReadOnItsPages()
    {
        QFETCH(int, report);
        GuiDesk desk;
        Set({u"Courier"_s, 8});
        const PrintJob page = Print(desk, Reports[report]).Page;
        QTemporaryDir folder;
        const QString read = PdfText(PrintToPaperOrPdf(page, folder.path(), nullptr));
        QStringList texts;
        for (const QString &line : read.split(u'\n'))
            if (!line.trimmed().startsWith(u"____"_s))
                texts += TextsOf(line.simplified());
        QStringList lines;
        for (const QString &line : page.Lines)
            if (!line.trimmed().isEmpty() && !line.trimmed().startsWith(u"____"_s))
                lines += line.simplified();
        QCOMPARE(texts, lines);
    }
};

REGISTER_TEST(gui_reports)
#include "gui_reports.moc"

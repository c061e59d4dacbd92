// The printer dialog and the font dialog, operated as by a user, and what later documents make of the answers.
#include "AtDialog.h"
#include "TestProgram.h"
#include "ToyWindows.h"
#include "foundation/Identity.h"
#include "platform/desk/PagePrinter.h"
#include "platform/desk/RealDesk.h"

#include <QCheckBox>
#include <QFontDialog>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

QLineEdit &FileOf(QDialog &dialog)
{
    return Part<QLineEdit>(dialog, u"filename"_s);
}

/// The list of the font dialog under a caption: "&Font", "Font st&yle".
QListView &ListOf(QDialog &dialog, const QString &caption)
{
    for (QLabel *label : dialog.findChildren<QLabel *>())
        if (auto *list = qobject_cast<QListView *>(label->buddy()); list && label->text() == caption)
            return *list;
    qFatal("the font dialog has no list \"%s\"", qPrintable(caption));
}

/// The user's click on a line of such a list.
void ClickLine(QDialog &dialog, const QString &caption, const QString &line)
{
    QListView &list = ListOf(dialog, caption);
    // A family that two makers have is listed with the maker: "Nimbus Sans [urw]".
    const QRegularExpression wanted(u"^%1( \\[.*)?$"_s.arg(QRegularExpression::escape(line)));
    const auto found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, wanted, 1,
                                           Qt::MatchRegularExpression | Qt::MatchWrap);
    if (found.isEmpty())
        qFatal("\"%s\" does not list \"%s\"", qPrintable(caption), qPrintable(line));
    list.scrollTo(found[0]);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(found[0]).center());
    QCOMPARE(list.currentIndex(), found[0]);
}

QLineEdit &SizeOf(QDialog &dialog)
{
    for (QLabel *label : dialog.findChildren<QLabel *>())
        if (auto *field = qobject_cast<QLineEdit *>(label->buddy()); field && label->text() == u"&Size"_s)
            return *field;
    qFatal("the font dialog has no field of the size");
}

QPushButton &OkOf(QDialog &dialog)
{
    for (QDialogButtonBox *box : dialog.findChildren<QDialogButtonBox *>(Qt::FindDirectChildrenOnly))
        if (QPushButton *ok = box->button(QDialogButtonBox::Ok))
            return *ok;
    qFatal("the dialog has no OK");
}

/// The user's own steps to a font, of the style by that name.
void ChooseFont(QDialog &dialog, const PrintFont &font, const QString &style)
{
    ClickLine(dialog, u"&Font"_s, font.Name);
    ClickLine(dialog, u"Font st&yle"_s, style);
    SizeOf(dialog).selectAll();
    QTest::keyClicks(&SizeOf(dialog), QString::number(font.Size));
    for (QCheckBox *box : dialog.findChildren<QCheckBox *>()) {
        if ((box->text() == u"&Underline"_s && font.Underline) || (box->text() == u"Stri&keout"_s && font.Strikethru))
            box->click();
    }
}

PrintJob Document(const QString &name)
{
    PrintJob job;
    job.Font = {u"Courier"_s, 8};
    job.Lines = QStringList{u"a line"_s};
    job.Name = name;
    return job;
}

/// "595 x 842" in points.
QString PaperOf(const QString &path)
{
    QProcess reader;
    reader.start(u"pdfinfo"_s, {path});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdfinfo (of the package poppler-utils) does not run");
    static const QRegularExpression size(u"Page size: *([0-9]+)[0-9.]* x ([0-9]+)"_s);
    const auto match = size.match(QString::fromUtf8(reader.readAllStandardOutput()));
    return match.captured(1) + u" x "_s + match.captured(2);
}

} // namespace

class gui_printerdialogs : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ToyBox> m_toys;

    QString Usual(const QString &name) const { return m_folder.filePath(u"printed/2026-11-21 "_s + name); }
    QString Chosen(const QString &name) const { return m_folder.filePath(u"chosen/2026-11-21 "_s + name); }

    /// The user chooses to print to files of the folder `chosen`, and what else `act` does.
    bool ChooseFolder(
        DocumentPrinter &printer, const std::function<void(QDialog &)> &act = [](QDialog &) {})
    {
        const AtDialog user([&](QDialog &dialog) {
            FileOf(dialog).setText(m_folder.filePath(u"chosen/any.pdf"_s));
            act(dialog);
            Press(dialog, QDialogButtonBox::Ok);
        });
        return printer.Choose(nullptr);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        if (!QPrinterInfo::availablePrinters().isEmpty())
            QSKIP("this machine has a printer, and a test prints nothing on it");
    }
    void init()
    {
        m_toys = std::make_unique<ToyBox>();
        const auto end = TheDesk.EndProgram;
        InstallRealDesk(AppTitle, m_folder.filePath(u"printed"_s));
        TheDesk.EndProgram = end;
        TheDesk.Now = [] { return QDateTime(QDate(2026, 11, 21), QTime(9, 30)); };
        QVERIFY(QDir().mkpath(m_folder.filePath(u"chosen"_s)));
        Show("A");
        Settle();
    }
    void cleanup()
    {
        m_toys.reset();
        QDir(m_folder.filePath(u"printed"_s)).removeRecursively();
        QDir(m_folder.filePath(u"chosen"_s)).removeRecursively();
    }

    // The printer

    void TheDialogOffersWhereDocumentsGoAtPresent()
    {
        const AtDialog user([&](QDialog &dialog) {
            QVERIFY(qobject_cast<QPrintDialog *>(&dialog));
            QCOMPARE(dialog.windowTitle(), u"Printer Select"_s);
            QCOMPARE(QFileInfo(FileOf(dialog).text()).path(), m_folder.filePath(u"printed"_s));
            QCOMPARE(dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->text(), u"OK"_s);
            Press(dialog, QDialogButtonBox::Cancel);
        });
        QVERIFY(!TheDesk.AskPrinter());
        QVERIFY(!QDir(m_folder.filePath(u"printed"_s)).exists()); // cancelling leaves nothing behind
    }

    // What printing does not go by is nothing to set. A file is one copy, in its colours, of single sheets.
    void TheDialogOffersNothingThatPrintingIgnores()
    {
        const AtDialog user([](QDialog &dialog) {
            for (const char *part : {"printAll", "printRange", "pagesRadioButton", "pageSetCombo", "copies", "collate",
                                     "reverse", "color", "grayscale", "noDuplex", "duplexLong", "duplexShort"})
                QVERIFY2(!Part<QWidget>(dialog, QLatin1String(part)).isEnabled(), part);
            for (const char *part : {"printers", "filename", "fileBrowser", "properties"})
                QVERIFY2(Part<QWidget>(dialog, QLatin1String(part)).isEnabled(), part);
            QVERIFY(dialog.minimumWidth() >= 520 && dialog.width() >= 520);
            Press(dialog, QDialogButtonBox::Cancel);
        });
        TheDesk.AskPrinter();
    }

    void AskingLeavesTheActiveWindowAlone()
    {
        TakeLog();
        const AtDialog user([&](QDialog &dialog) { Press(dialog, QDialogButtonBox::Cancel); });
        TheDesk.AskPrinter();
        Settle();
        QCOMPARE(TakeLog(), QStringList());
    }

    void CancellingKeepsThePrinter()
    {
        DocumentPrinter printer(m_folder.filePath(u"printed"_s));
        const auto cancel = [&] {
            const AtDialog user([&](QDialog &dialog) {
                FileOf(dialog).setText(m_folder.filePath(u"elsewhere.pdf"_s));
                Press(dialog, QDialogButtonBox::Cancel);
            });
            return printer.Choose(nullptr);
        };
        QVERIFY(!cancel());
        QCOMPARE(printer.Print(Document(u"Budget"_s)), (PrintedDocument{Usual(u"Budget.pdf"_s), false}));
        QVERIFY(ChooseFolder(printer));
        QVERIFY(!cancel());
        QCOMPARE(printer.Print(Document(u"Budget"_s)), (PrintedDocument{Chosen(u"Budget.pdf"_s), true}));
    }

    void WhatIsChosenHoldsForEveryLaterDocument()
    {
        DocumentPrinter printer(m_folder.filePath(u"printed"_s));
        QVERIFY(ChooseFolder(printer));
        QCOMPARE(printer.Print(Document(u"Budget"_s)), (PrintedDocument{Chosen(u"Budget.pdf"_s), true}));
        QCOMPARE(printer.Print(Document(u"Budget"_s)), (PrintedDocument{Chosen(u"Budget (2).pdf"_s), true}));
        QCOMPARE(printer.Print(Document(u"Overhead"_s)), (PrintedDocument{Chosen(u"Overhead.pdf"_s), true}));
        QCOMPARE(QDir(m_folder.filePath(u"chosen"_s)).entryList(QDir::Files).size(), 3); // and no "any.pdf"
        QVERIFY(!QFile::exists(Usual(u"Budget.pdf"_s)));
        printer.Forget();
        QCOMPARE(printer.Print(Document(u"Budget"_s)), (PrintedDocument{Usual(u"Budget.pdf"_s), false}));
    }

    void TheDialogComesBackWithWhatWasChosen()
    {
        DocumentPrinter printer(m_folder.filePath(u"printed"_s));
        QVERIFY(ChooseFolder(printer));
        printer.Print(Document({}));
        const AtDialog user([&](QDialog &dialog) {
            QCOMPARE(QFileInfo(FileOf(dialog).text()).path(), m_folder.filePath(u"chosen"_s));
            QVERIFY(!QFile::exists(FileOf(dialog).text())); // or the dialog would warn of it
            Press(dialog, QDialogButtonBox::Ok);
        });
        QVERIFY(printer.Choose(nullptr));
        QCOMPARE(printer.Print(Document(u"Budget"_s)).PdfPath, Chosen(u"Budget.pdf"_s));
    }

    void TheChosenPaperIsPrintedOn()
    {
        DocumentPrinter printer(m_folder.filePath(u"printed"_s));
        QVERIFY(ChooseFolder(printer, [](QDialog &dialog) {
            const AtDialog properties([](QDialog &inner) {
                auto &paper = Part<QComboBox>(inner, u"pageSizeCombo"_s);
                paper.setCurrentIndex(paper.findText(u"A5"_s, Qt::MatchStartsWith));
                Part<QRadioButton>(inner, u"landscape"_s).click();
                Press(inner, QDialogButtonBox::Ok);
            });
            QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
        }));
        for (int document = 0; document < 2; ++document)
            QCOMPARE(PaperOf(printer.Print(Document(u"Budget"_s)).PdfPath), u"595 x 420"_s);
        // The next choice starts there.
        const AtDialog user([](QDialog &dialog) { Press(dialog, QDialogButtonBox::Ok); });
        QVERIFY(printer.Choose(nullptr));
        QCOMPARE(PaperOf(printer.Print(Document(u"Budget"_s)).PdfPath), u"595 x 420"_s);
    }

    void AChosenFolderThatWentIsMadeAgain()
    {
        DocumentPrinter printer(m_folder.filePath(u"printed"_s));
        QVERIFY(ChooseFolder(printer));
        QVERIFY(QDir(m_folder.filePath(u"chosen"_s)).removeRecursively());
        QCOMPARE(printer.Print(Document(u"Budget"_s)).PdfPath, Chosen(u"Budget.pdf"_s));
    }

    // A file stands where the folder of the documents was, as a disk that is not there any more leaves no folder.
    void AFolderThatCannotTakeThemIsNamed()
    {
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const auto blocked = [&](const QString &name) {
            QDir(m_folder.filePath(name)).removeRecursively();
            QFile file(m_folder.filePath(name));
            return file.open(QIODevice::WriteOnly);
        };
        DocumentPrinter printer(m_folder.filePath(u"printed/"_s));
        QVERIFY(blocked(u"printed"_s));
        const QString usual = documents + u"/2026-11-21 Usual.pdf"_s, chosen = documents + u"/2026-11-21 Chosen.pdf"_s;
        QCOMPARE(printer.Print(Document(u"Usual"_s)),
                 (PrintedDocument{usual, false, m_folder.filePath(u"printed/"_s)}));
        QFile::remove(m_folder.filePath(u"printed"_s));
        QVERIFY(printer.Print(Document(u"Usual"_s)).RefusedFolder.isEmpty());
        QVERIFY(ChooseFolder(printer));
        QVERIFY(blocked(u"chosen"_s));
        QCOMPARE(printer.Print(Document(u"Chosen"_s)), (PrintedDocument{chosen, true, m_folder.filePath(u"chosen"_s)}));

        // The box that tells of them
        QFile::remove(usual);
        QDir(m_folder.filePath(u"printed"_s)).removeRecursively();
        QVERIFY(blocked(u"printed"_s));
        QString said;
        const AtDialog user([&](QDialog &dialog) {
            said = qobject_cast<QMessageBox *>(&dialog)->text();
            dialog.accept();
        });
        TheDesk.PrintDocument(Document(u"Usual"_s));
        TheDesk.PrintDocument(Document(u"Usual"_s));
        qputenv("HOME", home);
        QTRY_COMPARE(
            said,
            u"No printer could be used. The folder %1 cannot be written to. The printed pages are in the "
            "files\n%2\n%3"_s.arg(m_folder.filePath(u"printed"_s), usual, documents + u"/2026-11-21 Usual (2).pdf"_s));
        QFile::remove(m_folder.filePath(u"printed"_s));
        QFile::remove(m_folder.filePath(u"chosen"_s));
    }

    void WhoAskedForAFileHearsNothingOfAPrinter()
    {
        {
            const AtDialog user([&](QDialog &dialog) {
                FileOf(dialog).setText(m_folder.filePath(u"chosen/any.pdf"_s));
                Press(dialog, QDialogButtonBox::Ok);
            });
            QVERIFY(TheDesk.AskPrinter());
        }
        QString said;
        const AtDialog user([&](QDialog &dialog) {
            said = qobject_cast<QMessageBox *>(&dialog)->text();
            dialog.accept();
        });
        TheDesk.PrintDocument(Document(u"Budget"_s));
        QTRY_COMPARE(said, u"The printed pages are in the file\n"_s + Chosen(u"Budget.pdf"_s));
    }

    // The font

    void TheFontDialogOpensOnAFontOfItsOwn()
    {
        for (int time = 0; time < 2; ++time) { // and not on what was chosen before
            const AtDialog user([](QDialog &dialog) {
                QCOMPARE(dialog.windowTitle(), u"Font Select"_s);
                auto &fonts = *dialog.findChild<QFontDialog *>();
                const QFont shown = fonts.currentFont();
                QCOMPARE(shown.family(), QFontInfo(QApplication::font()).family());
                QCOMPARE(shown.pointSize(), QApplication::font().pointSize());
                QVERIFY(!shown.bold() && !shown.italic() && !shown.underline() && !shown.strikeOut());
                QCOMPARE(Part<QComboBox>(dialog, u"inkColour"_s).currentText(), u"Black"_s);
                QVERIFY(fonts.testOption(QFontDialog::ScalableFonts)); // those that a printer draws
                QVERIFY(!fonts.testOption(QFontDialog::MonospacedFonts));
                ChooseFont(dialog, {u"DejaVu Serif"_s, 20}, u"Bold Italic"_s);
                Part<QComboBox>(dialog, u"inkColour"_s).setCurrentText(u"Red"_s);
                Press(dialog, QDialogButtonBox::Ok);
            });
            QVERIFY(TheDesk.AskFont().has_value());
        }
    }

    void AChosenFontIsToldWhole_data()
    {
        QTest::addColumn<PrintFont>("font");
        QTest::addColumn<QString>("colour");
        const QString serif = u"DejaVu Serif"_s;
        QTest::newRow("plain") << PrintFont{serif, 12} << "Black";
        QTest::newRow("bold") << PrintFont{serif, 12, true} << "Black";
        QTest::newRow("italic") << PrintFont{serif, 9, false, true} << "Black";
        QTest::newRow("underlined") << PrintFont{serif, 9, false, false, true} << "Black";
        QTest::newRow("struck through") << PrintFont{serif, 9, false, false, false, true} << "Black";
        QTest::newRow("red stands lowest") << PrintFont{serif, 9, false, false, false, false, 0x0000FF} << "Red";
        QTest::newRow("lime in the middle") << PrintFont{serif, 9, false, false, false, false, 0x00FF00} << "Lime";
        QTest::newRow("navy highest") << PrintFont{serif, 9, false, false, false, false, 0x800000} << "Navy";
        QTest::newRow("half a point") << PrintFont{serif, 10.5F} << "Black";
        QTest::newRow("all") << PrintFont{u"DejaVu Sans Mono"_s, 24, true, true, true, true, 0x800080} << "Purple";
    }
    void AChosenFontIsToldWhole()
    {
        QFETCH(PrintFont, font);
        QFETCH(QString, colour);
        const AtDialog user([&](QDialog &dialog) {
            const QString slanted = font.Name.endsWith(u"Mono"_s) ? u"Oblique"_s : u"Italic"_s;
            QStringList style;
            if (font.Bold)
                style += u"Bold"_s;
            if (font.Italic)
                style += slanted;
            ChooseFont(dialog, font, style.isEmpty() ? u"Book"_s : style.join(u' '));
            auto &colours = Part<QComboBox>(dialog, u"inkColour"_s);
            QVERIFY(colours.findText(colour) >= 0);
            colours.setCurrentText(colour);
            Press(dialog, QDialogButtonBox::Ok);
        });
        const std::optional<PrintFont> chosen = TheDesk.AskFont();
        QVERIFY(chosen.has_value());
        QCOMPARE(chosen->Name, font.Name);
        QCOMPARE(chosen->Size, font.Size);
        QCOMPARE(chosen->Bold, font.Bold);
        QCOMPARE(chosen->Italic, font.Italic);
        QCOMPARE(chosen->Underline, font.Underline);
        QCOMPARE(chosen->Strikethru, font.Strikethru);
        QCOMPARE(chosen->Color, font.Color);
    }

    // Only the family is picked: no letters become bold or slanted by that, whatever its styles are called.
    void AFamilyAloneKeepsTheLook_data()
    {
        QTest::addColumn<QStringList>("families");
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("bold");
        QTest::addColumn<bool>("italic");
        const QString sans = u"Nimbus Sans"_s, mono = u"Nimbus Mono PS"_s, bookman = u"URW Bookman"_s;
        QTest::newRow("Regular") << QStringList{sans} << "" << false << false;
        QTest::newRow("Regular of another") << QStringList{mono} << "" << false << false;
        QTest::newRow("Roman") << QStringList{u"C059"_s} << "" << false << false;
        QTest::newRow("none of normal weight") << QStringList{bookman} << "" << false << false;
        QTest::newRow("not the narrow one") << QStringList{sans, u"DejaVu Serif"_s} << "" << false << false;
        QTest::newRow("past a slanted family") << QStringList{u"Z003"_s, mono} << "" << false << false;
        QTest::newRow("a slanted family") << QStringList{u"Z003"_s} << "" << false << true;
        QTest::newRow("a bold look stays") << QStringList{sans, bookman} << "Bold" << true << false;
        QTest::newRow("a slanted look stays") << QStringList{sans, u"DejaVu Sans Mono"_s} << "Italic" << false << true;
    }
    void AFamilyAloneKeepsTheLook()
    {
        QFETCH(QStringList, families);
        QFETCH(QString, style);
        QFETCH(bool, bold);
        QFETCH(bool, italic);
        const AtDialog user([&](QDialog &dialog) {
            for (const QString &family : families) {
                ClickLine(dialog, u"&Font"_s, family);
                if (family == families.first() && !style.isEmpty())
                    ClickLine(dialog, u"Font st&yle"_s, style);
            }
            QVERIFY(!ListOf(dialog, u"Font st&yle"_s).currentIndex().data().toString().contains(u"Condensed"_s));
            Press(dialog, QDialogButtonBox::Ok);
        });
        const std::optional<PrintFont> chosen = TheDesk.AskFont();
        QVERIFY(chosen.has_value());
        QCOMPARE(chosen->Name.section(u" ["_s, 0, 0), families.last());
        QCOMPARE(chosen->Bold, bold);
        QCOMPARE(chosen->Italic, italic);
    }

    // A family that lacks the look shows the nearest, and the next one that has it shows it again.
    void ALookIsKeptAcrossAFamilyWithoutIt()
    {
        const AtDialog user([](QDialog &dialog) {
            const auto style = [&] { return ListOf(dialog, u"Font st&yle"_s).currentIndex().data().toString(); };
            ClickLine(dialog, u"&Font"_s, u"DejaVu Sans"_s);
            ClickLine(dialog, u"Font st&yle"_s, u"Bold"_s);
            for (const QString &family : {u"Z003"_s, u"DejaVu Math TeX Gyre"_s}) {
                ClickLine(dialog, u"&Font"_s, family);
                QVERIFY2(!style().contains(u"Bold"_s), qPrintable(family));
                ClickLine(dialog, u"&Font"_s, u"DejaVu Sans"_s);
                QVERIFY2(style() == u"Bold"_s, qPrintable(family + u" before "_s + style()));
            }
            Press(dialog, QDialogButtonBox::Cancel);
        });
        TheDesk.AskFont();
    }

    // Documents know a family, bold and italic: a style that these do not bring back is none to choose.
    void OnlyStylesThatPrintingKeepsAreOffered_data()
    {
        QTest::addColumn<QString>("family");
        QTest::addColumn<QStringList>("styles");
        const QStringList oblique{u"Bold"_s, u"Bold Oblique"_s, u"Book"_s, u"Oblique"_s};
        QTest::newRow("narrow and thin ones") << u"DejaVu Sans"_s << oblique;
        QTest::newRow("narrow ones") << u"DejaVu Serif"_s
                                     << QStringList{u"Bold"_s, u"Bold Italic"_s, u"Book"_s, u"Italic"_s};
        QTest::newRow("all can be had") << u"DejaVu Sans Mono"_s << oblique;
        QTest::newRow("light is the plain one")
            << u"URW Bookman"_s << QStringList{u"Demi"_s, u"Demi Italic"_s, u"Light"_s, u"Light Italic"_s};
        QTest::newRow("a single style") << u"Z003"_s << QStringList{u"Medium Italic"_s};
    }
    void OnlyStylesThatPrintingKeepsAreOffered()
    {
        QFETCH(QString, family);
        QFETCH(QStringList, styles);
        const AtDialog user([&](QDialog &dialog) {
            QListView &list = ListOf(dialog, u"Font st&yle"_s);
            const auto shown = [&] {
                QStringList lines;
                for (int row = 0; row < list.model()->rowCount(); ++row)
                    if (!list.isRowHidden(row))
                        lines += list.model()->index(row, 0).data().toString();
                lines.sort();
                return lines;
            };
            ClickLine(dialog, u"&Font"_s, u"Nimbus Sans"_s);
            ClickLine(dialog, u"&Font"_s, family);
            QCOMPARE(shown(), styles);
            // Nor are they reached by the keys.
            list.setFocus();
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_End,
                                      Qt::Key_C, Qt::Key_E, Qt::Key_L, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_PageDown}) {
                QTest::keyClick(&list, key);
                QTest::qWait(1);
                QVERIFY2(styles.contains(list.currentIndex().data().toString()), qPrintable(QString::number(key, 16)));
            }
            Press(dialog, QDialogButtonBox::Cancel);
        });
        TheDesk.AskFont();
    }

    void TheFontDialogOpensOnStylesThatPrintingKeeps()
    {
        const AtDialog user([](QDialog &dialog) {
            const QListView &list = ListOf(dialog, u"Font st&yle"_s);
            QVERIFY(!list.isRowHidden(list.currentIndex().row()));
            for (int row = 0; row < list.model()->rowCount(); ++row)
                if (!list.isRowHidden(row))
                    QVERIFY(!list.model()->index(row, 0).data().toString().contains(u"Condensed"_s));
            Press(dialog, QDialogButtonBox::Cancel);
        });
        TheDesk.AskFont();
    }

    void ASizeIsAtMostOneDecimal_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<float>("size"); // 0: refused
        QTest::newRow("whole") << "10" << 10.F;
        QTest::newRow("a half") << "10.5" << 10.5F;
        QTest::newRow("the comma of other countries") << "10,5" << 10.5F;
        QTest::newRow("a second decimal is not taken") << "10.57" << 10.5F;
        QTest::newRow("a third figure is not taken") << "105" << 10.F;
        QTest::newRow("letters are not taken") << "1x2" << 12.F;
        QTest::newRow("least") << "1" << 1.F;
        QTest::newRow("greatest") << "72" << 72.F;
        QTest::newRow("too small") << "0.9" << 0.F;
        QTest::newRow("nothing") << "" << 0.F;
        QTest::newRow("zero") << "0" << 0.F;
        QTest::newRow("too great") << "72.1" << 0.F;
    }
    void ASizeIsAtMostOneDecimal()
    {
        QFETCH(QString, typed);
        QFETCH(float, size);
        const AtDialog user([&](QDialog &dialog) {
            SizeOf(dialog).selectAll();
            QTest::keyClick(&SizeOf(dialog), Qt::Key_Delete);
            QTest::keyClicks(&SizeOf(dialog), typed);
            QCOMPARE(OkOf(dialog).isEnabled(), size > 0);
            if (size > 0) {
                ClickLine(dialog, u"&Font"_s, u"DejaVu Serif"_s); // another family or style is of that size, too
                ClickLine(dialog, u"Font st&yle"_s, u"Bold"_s);
                Press(dialog, QDialogButtonBox::Ok);
                return;
            }
            for (QWidget *part :
                 {static_cast<QWidget *>(&SizeOf(dialog)), static_cast<QWidget *>(&ListOf(dialog, u"&Font"_s))}) {
                QTest::keyClick(part, Qt::Key_Return);
                QVERIFY(part->isVisible());
            }
            dialog.reject();
        });
        const std::optional<PrintFont> chosen = TheDesk.AskFont();
        QCOMPARE(chosen.has_value(), size > 0);
        if (chosen)
            QCOMPARE(chosen->Size, size);
    }

    void EnterIsOk_data()
    {
        QTest::addColumn<int>("part");
        QTest::newRow("in the size") << 0;
        QTest::newRow("in the color") << 1;
        QTest::newRow("in the families") << 2;
        QTest::newRow("in the styles") << 3;
    }
    void EnterIsOk()
    {
        QFETCH(int, part);
        const AtDialog user([&](QDialog &dialog) {
            const QList<QWidget *> parts{&SizeOf(dialog), &Part<QComboBox>(dialog, u"inkColour"_s),
                                         &ListOf(dialog, u"&Font"_s), &ListOf(dialog, u"Font st&yle"_s)};
            parts[part]->setFocus();
            QTest::keyClick(parts[part], Qt::Key_Return);
            if (dialog.isVisible()) {
                QTest::qFail("Enter does nothing", __FILE__, __LINE__);
                dialog.reject();
            }
        });
        QVERIFY(TheDesk.AskFont().has_value());
    }

    void AFontDialogThatIsCancelledTellsNothing()
    {
        TakeLog();
        {
            const AtDialog user([](QDialog &dialog) { Press(dialog, QDialogButtonBox::Cancel); });
            QVERIFY(!TheDesk.AskFont().has_value());
        }
        {
            // Esc in the toolkit's part ends the whole and not that part alone.
            const AtDialog user([](QDialog &dialog) {
                QTest::keyClick(dialog.findChild<QFontDialog *>()->findChild<QListView *>(), Qt::Key_Escape);
            });
            QVERIFY(!TheDesk.AskFont().has_value());
        }
        Settle();
        QCOMPARE(TakeLog(), QStringList()); // the window below noticed nothing
    }
};

REGISTER_TEST(gui_printerdialogs)
#include "gui_printerdialogs.moc"

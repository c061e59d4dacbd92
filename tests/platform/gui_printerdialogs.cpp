// The printer dialog and the font dialog, operated as by a user, and what later documents make of the answers.
#include "TestProgram.h"
#include "ToyWindows.h"
#include "foundation/Identity.h"
#include "platform/desk/PagePrinter.h"
#include "platform/desk/RealDesk.h"

#include <QDialogButtonBox>
#include <QFontDialog>
#include <QListView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QRadioButton>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Does something with the dialog that comes next, once it is there.
class AtDialog : public QObject
{
public:
    explicit AtDialog(const std::function<void(QDialog &)> &act) : m_act(act)
    {
        connect(&m_timer, &QTimer::timeout, this, &AtDialog::Look);
        m_timer.start(20);
    }
    ~AtDialog() override
    {
        if (!m_met)
            QTest::qFail("no dialog has come", __FILE__, __LINE__);
    }

private:
    void Look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_met = true;
        m_act(*dialog);
    }
    std::function<void(QDialog &)> m_act;
    QTimer m_timer;
    bool m_met = false;
};

/// A control of a dialog by its name; the program ends where it is not there.
template <class Control>
Control &Part(QDialog &dialog, const QString &name)
{
    auto *part = dialog.findChild<Control *>(name);
    if (!part)
        qFatal("%s has no %s", qPrintable(dialog.objectName()), qPrintable(name));
    return *part;
}

void Press(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    // The last one: a part of the dialog may have buttons of its own.
    const auto boxes = dialog.findChildren<QDialogButtonBox *>();
    for (auto box = boxes.rbegin(); box != boxes.rend(); ++box)
        if (QPushButton *found = (*box)->button(button); found && found->isVisible()) {
            QTest::mouseClick(found, Qt::LeftButton);
            return;
        }
    qFatal("%s has no such button", qPrintable(dialog.objectName()));
}

QLineEdit &FileOf(QDialog &dialog)
{
    return Part<QLineEdit>(dialog, u"filename"_s);
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
                fonts.setCurrentFont(QFont(u"DejaVu Serif"_s, 20, QFont::Bold, true));
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
        QTest::newRow("all") << PrintFont{u"DejaVu Sans Mono"_s, 24, true, true, true, true, 0x800080} << "Purple";
    }
    void AChosenFontIsToldWhole()
    {
        QFETCH(PrintFont, font);
        QFETCH(QString, colour);
        const AtDialog user([&](QDialog &dialog) {
            QFont wanted(font.Name, int(font.Size), font.Bold ? QFont::Bold : QFont::Normal, font.Italic);
            if (!font.Bold && !font.Italic)
                wanted.setStyleName(u"Book"_s); // the dialog goes by the style's own name
            wanted.setUnderline(font.Underline);
            wanted.setStrikeOut(font.Strikethru);
            dialog.findChild<QFontDialog *>()->setCurrentFont(wanted);
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

// Documents on a real printer, which a server of the test plays: what it is sent, and what the printer dialog offers.
#include "AtDialog.h"
#include "PdfText.h"
#include "PrintServer.h"
#include "TestProgram.h"
#include "platform/desk/Desk.h"
#include "platform/desk/PagePrinter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

PrintJob Document(const QString &name)
{
    PrintJob job;
    job.Font = {u"Courier"_s, 8};
    job.Lines = QStringList{u"first line of "_s + name, {}, u"last line of "_s + name};
    job.Name = name;
    return job;
}

QComboBox &PrintersOf(QDialog &dialog)
{
    return Part<QComboBox>(dialog, u"printers"_s);
}

bool IsEnabled(QDialog &dialog, const char *part)
{
    return Part<QWidget>(dialog, QLatin1String(part)).isEnabled();
}

} // namespace

class gui_paperprinter : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PrintServer> m_server;
    std::unique_ptr<DocumentPrinter> m_printer;

    QString PrintedFolder() const { return m_folder.filePath(u"printed"_s); }

    bool Choose(const std::function<void(QDialog &)> &act, QDialogButtonBox::StandardButton end = QDialogButtonBox::Ok)
    {
        const AtDialog user([&](QDialog &dialog) {
            act(dialog);
            Press(dialog, end);
        });
        return m_printer->Choose(nullptr);
    }

    /// What one document becomes, which goes to the paper and nowhere else.
    PrintedJob Print(const QString &name)
    {
        if (const PrintedDocument printed = m_printer->Print(Document(name)); printed != PrintedDocument{})
            QTest::qFail(qPrintable(printed.PdfPath), __FILE__, __LINE__);
        const QList<PrintedJob> jobs = m_server->TakeJobs();
        if (jobs.size() != 1)
            QTest::qFail(qPrintable(u"%1 jobs"_s.arg(jobs.size())), __FILE__, __LINE__);
        return jobs.value(0);
    }

    QStringList LinesOf(const PrintedJob &job)
    {
        QFile file(m_folder.filePath(u"paper.pdf"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(job.Pdf) != job.Pdf.size())
            qFatal("the test cannot write");
        file.close();
        QStringList lines;
        for (const QString &line : PagesOf(file.fileName()).value(0).split(u'\n', Qt::SkipEmptyParts))
            lines += line.trimmed();
        return lines;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_server = std::make_unique<PrintServer>();
        QCOMPARE(QPrinterInfo::availablePrinterNames(), (QStringList{u"Attic"_s, u"Office"_s}));
    }
    void init()
    {
        TheDesk.Now = [] { return QDateTime(QDate(2026, 11, 21), QTime(9, 30)); };
        m_printer = std::make_unique<DocumentPrinter>(PrintedFolder());
    }
    void cleanup()
    {
        m_printer.reset();
        m_server->SetPresent(true);
        QVERIFY(m_server->TakeJobs().isEmpty());
        QVERIFY(!QDir(PrintedFolder()).exists());
    }
    void cleanupTestCase() { m_server.reset(); }

    void WithoutAChoiceTheInstalledPrinterPrints()
    {
        const PrintedJob job = Print(u"Budget"_s);
        QCOMPARE(job.Settings.value("job-name"), "Budget");
        QVERIFY(job.Settings.value("printer-uri").endsWith("/Office"));
        QCOMPARE(LinesOf(job), (QStringList{u"first line of Budget"_s, u"last line of Budget"_s}));
    }

    void TheChosenPrinterPrintsEveryLaterDocument()
    {
        QVERIFY(Choose([](QDialog &dialog) {
            QCOMPARE(PrintersOf(dialog).currentText(), u"Office"_s);
            PrintersOf(dialog).setCurrentText(u"Attic"_s);
        }));
        for (const QString &name : {u"Budget"_s, u"Overhead"_s}) {
            const PrintedJob job = Print(name);
            QVERIFY(job.Settings.value("printer-uri").endsWith("/Attic"));
            QCOMPARE(job.Settings.value("job-name"), name.toUtf8());
            QCOMPARE(LinesOf(job), (QStringList{u"first line of "_s + name, u"last line of "_s + name}));
        }
        // The next choice starts there.
        QVERIFY(Choose([](QDialog &dialog) { QCOMPARE(PrintersOf(dialog).currentText(), u"Attic"_s); }));
        QVERIFY(Print(u"Budget"_s).Settings.value("printer-uri").endsWith("/Attic"));
    }

    void ThereAndBackBetweenPrinterAndFile()
    {
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1); }));
        const PrintedDocument printed = m_printer->Print(Document(u"Budget"_s));
        QCOMPARE(printed, (PrintedDocument{PrintedFolder() + u"/2026-11-21 Budget.pdf"_s, true}));
        QVERIFY(QDir(PrintedFolder()).removeRecursively());
        QVERIFY(Choose([](QDialog &dialog) {
            QCOMPARE(PrintersOf(dialog).currentIndex(), PrintersOf(dialog).count() - 1);
            PrintersOf(dialog).setCurrentText(u"Office"_s);
        }));
        const PrintedJob job = Print(u"Budget"_s);
        QCOMPARE(LinesOf(job).size(), 2);
        QCOMPARE(job.Settings.value("media"), "A4"); // its own paper, and not that of the file
    }

    void ItTellsWhereDocumentsGo()
    {
        QCOMPARE(m_printer->InUse(), u"Office"_s);
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentText(u"Attic"_s); }));
        QCOMPARE(m_printer->InUse(), u"Attic"_s);
        m_server->SetPresent(false);
        QCOMPARE(m_printer->InUse(), u"PDF files in printed"_s);
        m_server->SetPresent(true);
        QVERIFY(Choose([&](QDialog &dialog) {
            PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1);
            Part<QLineEdit>(dialog, u"filename"_s).setText(m_folder.path() + u"/any.pdf"_s);
        }));
        QCOMPARE(m_printer->InUse(), u"PDF files in "_s + QDir(m_folder.path()).dirName());
        m_printer->Forget();
        QCOMPARE(m_printer->InUse(), u"Office"_s);
    }

    // A printer has copies and two sides; a file has not.
    void WhatIsOfferedFollowsThePrinter()
    {
        Choose(
            [](QDialog &dialog) {
                const auto check = [&](bool isFile) {
                    for (const char *part : {"printAll", "printRange", "pagesRadioButton", "pageSetCombo", "reverse"})
                        QVERIFY2(!IsEnabled(dialog, part), part);
                    for (const char *part : {"copies", "collate", "noDuplex", "duplexLong", "duplexShort"})
                        QVERIFY2(IsEnabled(dialog, part) != isFile, part);
                    for (const char *part : {"filename", "fileBrowser"})
                        QVERIFY2(IsEnabled(dialog, part) == isFile, part);
                    QVERIFY(!IsEnabled(dialog, "color") || !Part<QWidget>(dialog, u"colorMode"_s).isVisibleTo(&dialog));
                };
                check(false);
                PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1);
                QVERIFY(!IsEnabled(dialog, "copies"));
                QVERIFY(!IsEnabled(dialog, "collate") && !IsEnabled(dialog, "noDuplex") && !IsEnabled(dialog, "color"));
                QVERIFY(IsEnabled(dialog, "filename") && IsEnabled(dialog, "fileBrowser"));
                PrintersOf(dialog).setCurrentText(u"Office"_s);
                check(false);
            },
            QDialogButtonBox::Cancel);
    }

    void AFileIsSaidToBeOneOfAFolder()
    {
        Choose(
            [](QDialog &dialog) {
                const auto &note = Part<QLabel>(dialog, u"fileNote"_s);
                QCOMPARE(note.text(), u"Each report becomes a new file in this folder."_s);
                QVERIFY(!note.isVisible());
                PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1);
                QVERIFY(note.isVisible());
                QCoreApplication::processEvents(); // it finds its place below the field, and is not cut off
                const QWidget &field = Part<QWidget>(dialog, u"filename"_s);
                QVERIFY(note.mapToGlobal(QPoint()).y() >= field.mapToGlobal(QPoint(0, field.height())).y());
                QVERIFY(note.width() >= note.sizeHint().width() && note.height() >= note.sizeHint().height());
                PrintersOf(dialog).setCurrentText(u"Office"_s);
                QVERIFY(!note.isVisible());
            },
            QDialogButtonBox::Cancel);
    }

    // Copies and sides fold out; for a file nothing of them is to be set.
    void TheOptionsFoldOutForAPrinterAlone()
    {
        Choose(
            [](QDialog &dialog) {
                QAbstractButton *more = nullptr;
                const auto *buttons = dialog.findChild<QDialogButtonBox *>();
                for (QAbstractButton *button : buttons->buttons())
                    if (button->text().contains(u"Options"_s))
                        more = button;
                QVERIFY(more);
                const auto areOut = [&] { return Part<QTabWidget>(dialog, u"tabs"_s).isVisible(); };
                QComboBox &printers = PrintersOf(dialog);
                QVERIFY(more->isEnabled() && !areOut());
                printers.setCurrentIndex(printers.count() - 1);
                QVERIFY(!more->isEnabled() && !areOut());
                printers.setCurrentText(u"Office"_s);
                QVERIFY(more->isEnabled() && !areOut());
                more->click();
                QVERIFY(areOut());
                Part<QTabWidget>(dialog, u"tabs"_s).setCurrentIndex(1);
                printers.setCurrentText(u"Attic"_s);
                QVERIFY(more->isEnabled() && areOut());
                printers.setCurrentIndex(printers.count() - 1);
                QVERIFY(!more->isEnabled() && !areOut());
            },
            QDialogButtonBox::Cancel);
    }

    void APrinterHasJobOptionsAndAFileHasNone()
    {
        const auto hasJobOptions = [](QDialog &dialog) {
            bool has = false;
            const AtDialog properties([&](QDialog &inner) {
                auto &tabs = Part<QTabWidget>(inner, u"tabs"_s);
                for (int tab = 0; tab < tabs.count(); ++tab) {
                    if (tabs.tabText(tab) == u"Job Options"_s)
                        has = tabs.isTabEnabled(tab);
                    else
                        QVERIFY(tabs.isTabEnabled(tab) || tabs.tabText(tab) == u"Advanced"_s);
                }
                Press(inner, QDialogButtonBox::Cancel);
            });
            QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
            return has;
        };
        Choose(
            [&](QDialog &dialog) {
                QVERIFY(hasJobOptions(dialog));
                PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1);
                QVERIFY(!hasJobOptions(dialog));
                PrintersOf(dialog).setCurrentText(u"Office"_s);
                QVERIFY(hasJobOptions(dialog));
            },
            QDialogButtonBox::Cancel);
    }

    void CopiesSidesAndOrderHold_data()
    {
        QTest::addColumn<int>("copies");
        QTest::addColumn<QString>("side");
        QTest::addColumn<QByteArray>("sides");
        QTest::addColumn<bool>("collated");
        QTest::newRow("as it is") << 1 << "noDuplex" << QByteArray("one-sided") << true;
        QTest::newRow("long edge") << 3 << "duplexLong" << QByteArray("two-sided-long-edge") << true;
        QTest::newRow("short edge") << 2 << "duplexShort" << QByteArray("two-sided-short-edge") << false;
    }
    void CopiesSidesAndOrderHold()
    {
        QFETCH(int, copies);
        QFETCH(QString, side);
        QFETCH(QByteArray, sides);
        QFETCH(bool, collated);
        const auto check = [&] {
            for (int time = 0; time < 2; ++time) {
                const PrintedJob job = Print(u"Budget"_s);
                QCOMPARE(job.Number("copies"), job.Settings.contains("copies") ? copies : 0);
                QCOMPARE(job.Settings.contains("copies"), copies > 1);
                QCOMPARE(job.Settings.value("sides"), sides);
                if (copies > 1)
                    QCOMPARE(job.Number("Collate"), int(collated));
            }
        };
        QVERIFY(Choose([&](QDialog &dialog) {
            Part<QSpinBox>(dialog, u"copies"_s).setValue(copies);
            Part<QCheckBox>(dialog, u"collate"_s).setChecked(collated);
            Part<QRadioButton>(dialog, side).click();
        }));
        check();
        // Asked again, the dialog starts there; cancelled, nothing changes, and neither does an OK alone.
        Choose(
            [&](QDialog &dialog) {
                QCOMPARE(Part<QSpinBox>(dialog, u"copies"_s).value(), copies);
                QCOMPARE(Part<QCheckBox>(dialog, u"collate"_s).isChecked(), collated);
                QVERIFY(Part<QRadioButton>(dialog, side).isChecked());
                Part<QSpinBox>(dialog, u"copies"_s).setValue(9);
                Part<QRadioButton>(dialog, side == u"noDuplex"_s ? u"duplexLong"_s : u"noDuplex"_s).click();
            },
            QDialogButtonBox::Cancel);
        check();
        QVERIFY(Choose([](QDialog &) {}));
        check();
    }

    void TheChosenPaperHolds()
    {
        QVERIFY(Choose([](QDialog &dialog) {
            const AtDialog properties([](QDialog &inner) {
                auto &paper = Part<QComboBox>(inner, u"pageSizeCombo"_s);
                paper.setCurrentIndex(paper.findText(u"A5"_s, Qt::MatchStartsWith));
                Press(inner, QDialogButtonBox::Ok);
            });
            QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
        }));
        QCOMPARE(Print(u"Budget"_s).Settings.value("media"), "A5");
        // The toolkit's dialog forgets it at the next OK, and the program does not; nor by a look at the properties.
        QVERIFY(Choose([](QDialog &) {}));
        QCOMPARE(Print(u"Budget"_s).Settings.value("media"), "A5");
        QVERIFY(Choose([](QDialog &dialog) {
            const AtDialog properties([](QDialog &inner) { Press(inner, QDialogButtonBox::Cancel); });
            QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
        }));
        QCOMPARE(Print(u"Budget"_s).Settings.value("media"), "A5");
        // Another printer has its own.
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentText(u"Attic"_s); }));
        QCOMPARE(Print(u"Budget"_s).Settings.value("media"), "A4");
    }

    void TheMarginsAreThoseOfEveryReport()
    {
        const auto left = [&](const PrintedJob &job) {
            LinesOf(job);
            return PlaceOf(u"first"_s, m_folder.filePath(u"paper.pdf"_s)).Left;
        };
        constexpr double usual = 15 / 25.4 * 72; // points
        QVERIFY(qAbs(left(Print(u"Budget"_s)) - usual) < 1);
        QVERIFY(Choose([](QDialog &) {}));
        QVERIFY(qAbs(left(Print(u"Budget"_s)) - usual) < 1);
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentIndex(PrintersOf(dialog).count() - 1); }));
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentText(u"Office"_s); }));
        QVERIFY(qAbs(left(Print(u"Budget"_s)) - usual) < 1);
        // Others that the user wants hold.
        QVERIFY(Choose([](QDialog &dialog) {
            const AtDialog properties([](QDialog &inner) {
                Part<QDoubleSpinBox>(inner, u"leftMargin"_s).setValue(30);
                Press(inner, QDialogButtonBox::Ok);
            });
            QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
        }));
        for (int time = 0; time < 2; ++time) {
            QVERIFY2(qAbs(left(Print(u"Budget"_s)) - 2 * usual) < 1, qPrintable(QString::number(left(Print(u"x"_s)))));
            QVERIFY(Choose([](QDialog &) {}));
        }
    }

    // What the printer's properties set, asked about again and left as it is.
    void TheSettingsOfThePropertiesHold()
    {
        const auto with = [](const std::function<void(QDialog &)> &act) {
            return [act](QDialog &dialog) {
                const AtDialog properties([&](QDialog &inner) {
                    act(inner);
                    Press(inner, QDialogButtonBox::Ok);
                });
                QTest::mouseClick(&Part<QPushButton>(dialog, u"properties"_s), Qt::LeftButton);
            };
        };
        const auto set = [](QDialog &inner) {
            QComboBox *colours = nullptr; // the toolkit gives those of the printer's own options no names
            for (QComboBox *box : inner.findChildren<QComboBox *>())
                if (box->findText(u"Gray"_s) >= 0)
                    colours = box;
            QVERIFY(colours);
            colours->setCurrentText(u"Gray"_s);
            Part<QSpinBox>(inner, u"jobPrioritySpinBox"_s).setValue(80);
            Part<QComboBox>(inner, u"pagesPerSheetCombo"_s).setCurrentIndex(1);
        };
        const auto check = [&](const QByteArray &colour, int priority, int pages) {
            const PrintedJob job = Print(u"Budget"_s);
            QCOMPARE(job.Settings.value("ColorModel"), colour);
            QCOMPARE(job.Number("job-priority"), priority);
            QCOMPARE(job.Number("number-up"), pages);
        };
        QVERIFY(Choose(with(set)));
        check("Gray", 80, 2);
        for (int time = 0; time < 2; ++time) {
            QVERIFY(Choose([](QDialog &) {}));
            check("Gray", 80, 2);
        }
        // What the dialog itself sets is not held back by them.
        QVERIFY(Choose([](QDialog &dialog) {
            Part<QSpinBox>(dialog, u"copies"_s).setValue(3);
            Part<QRadioButton>(dialog, u"duplexLong"_s).click();
        }));
        const PrintedJob job = Print(u"Budget"_s);
        QCOMPARE(job.Number("copies"), 3);
        QCOMPARE(job.Settings.value("sides"), "two-sided-long-edge");
        QCOMPARE(job.Settings.value("ColorModel"), "Gray");
        // Another printer has its own.
        QVERIFY(Choose([](QDialog &dialog) { PrintersOf(dialog).setCurrentText(u"Attic"_s); }));
        const PrintedJob other = Print(u"Budget"_s);
        QVERIFY(other.Settings.value("ColorModel") != "Gray");
        QVERIFY(other.Number("job-priority") != 80);
    }

    // Switched off, or taken away: the pages are not lost.
    void APrinterThatWentLeavesAPdf_data()
    {
        QTest::addColumn<bool>("chosen");
        QTest::newRow("chosen") << true;
        QTest::newRow("the usual one") << false;
    }
    void APrinterThatWentLeavesAPdf()
    {
        QFETCH(bool, chosen);
        if (chosen)
            QVERIFY(Choose([](QDialog &) {}));
        m_server->SetPresent(false);
        QCOMPARE(m_printer->Print(Document(u"Budget"_s)),
                 (PrintedDocument{PrintedFolder() + u"/2026-11-21 Budget.pdf"_s, false}));
        QVERIFY(QDir(PrintedFolder()).removeRecursively());
        m_server->SetPresent(true);
        QCOMPARE(LinesOf(Print(u"Budget"_s)).size(), 2); // and it prints again when it is back
    }
};

REGISTER_TEST(gui_paperprinter)
#include "gui_paperprinter.moc"

#include "platform/desk/PagePrinter.h"

#include "platform/desk/Desk.h"
#include "platform/values/Locale.h"
#include "platform/values/Numbers.h"
#include "platform/values/RuntimeError.h"

#include <QChildEvent>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>
#include <QTabWidget>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QMarginsF PageMargins(15, 15, 15, 15); // millimetres
constexpr int CharactersWide = 80;

/// Margins can be set that leave nothing between them; the usual ones, or none, are better than a page without text.
void LeaveRoom(QPagedPaintDevice &device)
{
    constexpr qreal leastRoom = 20; // millimetres either way
    for (const QMarginsF &margins : {PageMargins, QMarginsF()}) {
        const QRectF room = device.pageLayout().paintRect(QPageLayout::Millimeter);
        if (room.width() >= leastRoom && room.height() >= leastRoom)
            return;
        device.setPageMargins(margins, QPageLayout::Millimeter);
    }
}

QFont PageFont(const PrintFont &font, QPagedPaintDevice &device)
{
    QFont result(font.Name);
    result.setStyleHint(QFont::Monospace);
    result.setPointSizeF(font.Size > 0 ? qreal(font.Size) : 8);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setUnderline(font.Underline);
    result.setStrikeOut(font.Strikethru);
    // A font that would push the 80 columns off the sheet is drawn as large as fits.
    const qreal needed = QFontMetricsF(result, &device).horizontalAdvance(QLatin1Char('0')) * CharactersWide;
    const qreal width = device.pageLayout().paintRectPixels(device.logicalDpiX()).width();
    if (needed > width)
        result.setPointSizeF(result.pointSizeF() * width / needed);
    return result;
}

/// The folder, made where it is missing; where that cannot be, as on a read-only disk, the user's documents.
QString WritableFolder(const QString &folder)
{
    if (QDir().mkpath(folder) && QFileInfo(folder).isWritable())
        return folder;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!QDir().mkpath(documents))
        RaiseError(RuntimeError::PathFileAccess);
    return documents;
}

/// A document's name as part of a file's name: signs that some disk or desktop cannot take become "-".
QString InFileName(QString name)
{
    static const QRegularExpression refused(uR"([\x00-\x1F\x7F/\\:*?"<>|]+)"_s);
    name.replace(refused, u"-"_s);
    constexpr qsizetype greatestLength = 60; // in the longest letters still below the 255 bytes that disks take
    name = name.left(greatestLength).simplified();
    return name.isEmpty() ? u"Report"_s : name;
}

/// "2026-11-21 Savings Forecast.pdf", and with "(2)" and so on where that is taken.
QString FreePdfPath(const QString &folder, const QString &documentName)
{
    const QString name = TheDesk.Now().toString(u"yyyy-MM-dd"_s) + QLatin1Char(' ') + InFileName(documentName);
    QString path = u"%1/%2.pdf"_s.arg(folder, name);
    for (int copy = 2; QFile::exists(path); ++copy)
        path = u"%1/%2 (%3).pdf"_s.arg(folder, name).arg(copy);
    return path;
}

QPageSize::PageSizeId PaperOf(const QLocale &locale)
{
    // The British measure roads in miles, but not paper.
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter : QPageSize::A4;
}

constexpr QLatin1Char Rule('_');

bool IsRule(const QString &text)
{
    return text.count(Rule) == text.size();
}

/// A report may end with empty lines; they are not worth a page.
QStringList WithoutLastGap(QStringList lines)
{
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

struct Cell {
    int Start = 0; ///< its first column, from 0
    QString Text;
    int End() const { return Start + int(Text.size()); }
};

/// The words that stand apart by two blanks or more: each run of them starts at its own place.
QList<Cell> CellsOf(const QString &line)
{
    static const QRegularExpression cell(u"\\S+(?: \\S+)*"_s);
    QList<Cell> cells;
    auto matches = cell.globalMatch(line);
    while (matches.hasNext()) {
        const auto match = matches.next();
        cells += Cell{int(match.capturedStart()), match.captured()};
    }
    return cells;
}

/// The columns in which the amounts of a document end.
QSet<int> AmountEndsOf(const QStringList &lines)
{
    QSet<int> ends;
    for (const QString &line : lines)
        for (const Cell &cell : CellsOf(line))
            if (IsNumeric(cell.Text))
                ends += cell.End();
    return ends;
}

/// The cells of a line. An amount that follows its label at one blank is a cell of its own, too, where it ends under
/// other amounts.
QList<Cell> CellsOf(const QString &line, const QSet<int> &amountEnds)
{
    QList<Cell> cells;
    for (const Cell &cell : CellsOf(line)) {
        const int blank = int(cell.Text.lastIndexOf(QLatin1Char(' ')));
        if (blank > 0 && amountEnds.contains(cell.End()) && IsNumeric(cell.Text.mid(blank + 1)))
            cells << Cell{cell.Start, cell.Text.left(blank)} << Cell{cell.Start + blank + 1, cell.Text.mid(blank + 1)};
        else
            cells += cell;
    }
    return cells;
}

/// The lines as the sheet has them: what passes its right edge goes on in a line below, after a blank if there is one
/// in the second half.
QStringList SheetLines(const QStringList &lines, int columns)
{
    QStringList all;
    for (QString line : lines) {
        while (line.size() > columns) {
            const qsizetype blank = line.lastIndexOf(QLatin1Char(' '), columns);
            const qsizetype end = blank > columns / 2 ? blank : columns;
            all += line.left(end);
            line = line.mid(end).trimmed();
        }
        all += line;
    }
    return all;
}

} // namespace

int DrawDocument(const PrintJob &job, QPagedPaintDevice &device)
{
    LeaveRoom(device);
    const QFont font = PageFont(job.Font, device);
    QPainter painter;
    if (!painter.begin(&device))
        RaiseError(RuntimeError::DeviceError);
    painter.setFont(font);
    const qint32 colour = job.Font.Color;
    painter.setPen(QColor(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF));
    const QFontMetricsF metrics(font, &device);
    const qreal column = metrics.horizontalAdvance(QLatin1Char('0'));
    const qreal height = device.pageLayout().paintRectPixels(device.logicalDpiY()).height();
    const qreal width = device.pageLayout().paintRectPixels(device.logicalDpiX()).width();
    const QStringList lines = WithoutLastGap(job.Lines);
    const QSet<int> amountEnds = AmountEndsOf(lines);

    int pages = 1;
    qreal top = 0;
    for (const QString &line : SheetLines(lines, qMax(CharactersWide, int(width / column)))) {
        if (top > 0 && top + metrics.height() > height) { // a sheet takes one line at the least
            if (!device.newPage())
                RaiseError(RuntimeError::DeviceError);
            ++pages;
            top = 0;
        }
        qreal right = width; // from the last cell to the first, each as wide as the one on its right leaves room for
        const QList<Cell> cells = CellsOf(line, amountEnds);
        for (auto cell = cells.rbegin(); cell != cells.rend(); ++cell) {
            QString text = cell->Text;
            qreal left = column * cell->Start;
            if (IsRule(text)) // as wide as the columns that it stands for
                text.fill(Rule, qRound(column * qreal(text.size()) / metrics.horizontalAdvance(Rule)));
            else if (IsNumeric(text)) // amounts end under each other
                left = column * cell->End() - metrics.horizontalAdvance(text);
            const qreal needed = metrics.horizontalAdvance(text);
            painter.save();
            painter.translate(left, top + metrics.ascent());
            if (left + needed > right && right > left)
                painter.scale((right - left) / needed, 1);
            painter.drawText(QPointF(), text);
            painter.restore();
            right = left - column / 2;
        }
        top += metrics.lineSpacing();
    }
    if (!painter.end())
        RaiseError(RuntimeError::DeviceError);
    return pages;
}

namespace {

/// The default printer, or any where none is the default one; null where none is installed.
QPrinterInfo UsualPrinterInfo()
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    return info.isNull() ? QPrinterInfo::availablePrinters().value(0) : info;
}

std::unique_ptr<QPrinter> UsualPrinter()
{
    const QPrinterInfo info = UsualPrinterInfo();
    if (info.isNull())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setPageMargins(PageMargins, QPageLayout::Millimeter);
    return printer;
}

QPageLayout UsualLayout()
{
    return {QPageSize(PaperOf(UserLocale())), QPageLayout::Portrait, PageMargins, QPageLayout::Millimeter};
}

/// Prints to a new file of the folder, and tells its path.
QString PrintToPdf(const PrintJob &job, const QString &folder, const QPageLayout &layout)
{
    const QString path = FreePdfPath(WritableFolder(folder), job.Name);
    QSaveFile file(path); // a disk that fills up leaves no half document behind
    if (!file.open(QIODevice::WriteOnly))
        RaiseError(RuntimeError::DeviceError);
    {
        QPdfWriter pdf(&file);
        pdf.setCreator(TheDesk.ProgramTitle);
        pdf.setTitle(job.Name);
        pdf.setPageLayout(layout);
        DrawDocument(job, pdf);
    }
    if (!file.commit())
        RaiseError(RuntimeError::DeviceError);
    return path;
}

bool IsFile(const QPrinter &printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat;
}

/// Where the toolkit keeps what the properties set of the job and of the printer's own options; it has no name for it
/// in public.
constexpr auto JobOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

/// A printer to be asked about, which stands as `present` does, or null for the usual one.
std::unique_ptr<QPrinter> CopyOf(const QPrinter *present, const QString &pdfPath)
{
    std::unique_ptr<QPrinter> copy = present ? nullptr : UsualPrinter();
    if (!copy)
        copy = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (present && !IsFile(*present))
        copy->setPrinterName(present->printerName());
    if (IsFile(present ? *present : *copy))
        copy->setOutputFileName(pdfPath);
    copy->setPageLayout(present ? present->pageLayout() : IsFile(*copy) ? UsualLayout() : copy->pageLayout());
    if (present) {
        copy->setCopyCount(present->copyCount());
        copy->setCollateCopies(present->collateCopies());
        copy->setColorMode(present->colorMode());
    }
    return copy;
}

/// The printer dialog, which offers no more than printing goes by.
class PrinterDialog : public QPrintDialog
{
public:
    /// present: what it starts as, or null for what is usual. pdfPath: what it proposes for a file.
    PrinterDialog(QPrinter &printer, const QPrinter *present, const QString &pdfPath, QWidget *above)
        : QPrintDialog(&printer, above), m_startsWithFile(present && IsFile(*present)), m_pdfPath(pdfPath)
    {
        setObjectName(u"printerDialog"_s);
        setWindowTitle(u"Printer Select"_s);
        setOptions(PrintToFile | PrintShowPageSize | PrintCollateCopies);
        constexpr int leastWidth = 520; // or the path of a file is cut off
        setMinimumWidth(leastWidth);
        // Nothing is printed before a report's own button is pressed.
        if (auto *buttons = findChild<QDialogButtonBox *>(); buttons && buttons->button(QDialogButtonBox::Ok)) {
            buttons->button(QDialogButtonBox::Ok)->setText(u"OK"_s);
            for (QAbstractButton *button : buttons->buttons())
                if (buttons->buttonRole(button) == QDialogButtonBox::ResetRole)
                    m_more = button;
        }
        if (auto *properties = findChild<QPushButton *>(u"properties"_s))
            connect(properties, &QPushButton::clicked, this, [this] { // after the toolkit's dialog for them
                const auto *inner = findChild<QDialog *>();
                m_paperIsSet |= inner && inner->result() == Accepted;
            });
        const auto *file = findChild<QLineEdit *>(u"filename"_s);
        if (auto *grid = file ? qobject_cast<QGridLayout *>(file->parentWidget()->layout()) : nullptr) {
            // The toolkit asks for one file; a name that is typed there counts for nothing.
            auto *note = new QLabel(u"Each report becomes a new file in this folder."_s, file->parentWidget());
            note->setObjectName(u"fileNote"_s);
            grid->addWidget(note, grid->rowCount(), 1, 1, -1);
        }
        if (present) // it starts with the sides that are usual for the printer, unless somebody clicks
            MarkSides(present->duplex());
    }

    /// Whether the user has set paper and margins.
    bool PaperIsSet() const { return m_paperIsSet; }

    /// The toolkit fills its dialog as it is shown.
    void setVisible(bool visible) override
    {
        QPrintDialog::setVisible(visible);
        auto *printers = findChild<QComboBox *>(u"printers"_s);
        auto *file = findChild<QLineEdit *>(u"filename"_s);
        if (!visible || !printers || !file)
            return;
        file->setText(m_pdfPath);
        if (m_startsWithFile)
            printers->setCurrentIndex(printers->count() - 1); // the file is the last of them
        OfferWhatCounts();
        connect(printers, &QComboBox::currentIndexChanged, this, &PrinterDialog::OfferWhatCounts, Qt::UniqueConnection);
    }

protected:
    /// The dialog of the properties is made anew for each printer. A file is no job of a print server.
    bool event(QEvent *event) override
    {
        const auto *properties = event->type() == QEvent::ChildPolished
                                     ? qobject_cast<QDialog *>(static_cast<QChildEvent *>(event)->child())
                                     : nullptr;
        if (auto *tabs = properties ? properties->findChild<QTabWidget *>(u"tabs"_s) : nullptr)
            if (auto *job = tabs->findChild<QWidget *>(u"QCupsJobWidget"_s))
                tabs->setTabEnabled(tabs->indexOf(job), !IsFileChosen());
        return QPrintDialog::event(event);
    }

private:
    bool IsFileChosen() const
    {
        const auto *file = findChild<QLineEdit *>(u"filename"_s);
        return file && file->isEnabled();
    }

    void MarkSides(QPrinter::DuplexMode sides)
    {
        const QLatin1String name(sides == QPrinter::DuplexLongSide    ? "duplexLong"
                                 : sides == QPrinter::DuplexShortSide ? "duplexShort"
                                                                      : "noDuplex");
        if (auto *radio = findChild<QRadioButton *>(name))
            radio->click();
    }

    /// A report is printed whole and from its first page on; a file is one copy, in its colours, of single sheets.
    void OfferWhatCounts()
    {
        const auto enable = [this](const char *part, bool on) {
            if (auto *widget = findChild<QWidget *>(QLatin1String(part)))
                widget->setEnabled(on);
        };
        for (const char *part : {"gbPrintRange", "reverse"})
            enable(part, false);
        const bool isFile = IsFileChosen();
        for (const char *part : {"copies", "collate", "colorMode", "duplex"})
            enable(part, !isFile);
        enable("fileBrowser", isFile);
        if (auto *note = findChild<QLabel *>(u"fileNote"_s))
            note->setVisible(isFile);
        if (!m_more)
            return;
        const auto tabs = findChildren<QTabWidget *>();
        if (isFile && std::any_of(tabs.begin(), tabs.end(), [](const QTabWidget *part) { return part->isVisible(); }))
            m_more->click(); // folds in what is grey for a file
        m_more->setEnabled(!isFile);
    }

    const bool m_startsWithFile;
    bool m_paperIsSet = false;
    QAbstractButton *m_more = nullptr; // "Options >>", which shows the job's settings
    const QString m_pdfPath;
};

} // namespace

DocumentPrinter::DocumentPrinter(const QString &pdfFolder) : m_pdfFolder(pdfFolder) {}

DocumentPrinter::~DocumentPrinter() = default;

bool DocumentPrinter::Choose(QWidget *above)
{
    const bool made = !QDir(m_pdfFolder).exists();
    const bool isFile = m_chosen && IsFile(*m_chosen);
    const QString folder = isFile ? QFileInfo(m_chosen->outputFileName()).path() : WritableFolder(m_pdfFolder);
    // A name that is free: the dialog would warn of a file that stands there, but no document replaces one.
    const QString pdfPath = FreePdfPath(folder, {});
    auto asked = CopyOf(m_chosen.get(), pdfPath);
    const QString before = asked->printerName();
    const QPageLayout layout = asked->pageLayout();
    PrinterDialog dialog(*asked, m_chosen.get(), pdfPath, above);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (made)
        QDir().rmdir(m_pdfFolder); // the dialog only wants a folder that is there; printing makes it again
    if (!accepted)
        return false;
    // The toolkit gives a printer the paper, the narrow margins and the options that are usual for it, whatever it had
    // before.
    if (!IsFile(*asked) && !dialog.PaperIsSet()) {
        if (asked->printerName() == before) {
            asked->setPageLayout(layout);
            if (m_chosen && !isFile)
                asked->printEngine()->setProperty(JobOptions, m_chosen->printEngine()->property(JobOptions));
        } else {
            asked->setPageMargins(PageMargins, QPageLayout::Millimeter);
        }
    }
    m_chosen = std::move(asked);
    return true;
}

void DocumentPrinter::Forget()
{
    m_chosen.reset();
}

QString DocumentPrinter::InUse() const
{
    QString folder = m_pdfFolder;
    if (m_chosen && IsFile(*m_chosen)) {
        folder = QFileInfo(m_chosen->outputFileName()).path();
    } else {
        const auto info = m_chosen ? QPrinterInfo::printerInfo(m_chosen->printerName()) : UsualPrinterInfo();
        if (!info.isNull())
            return info.printerName();
    }
    return u"PDF files in %1"_s.arg(QDir(folder).dirName());
}

PrintedDocument DocumentPrinter::Print(const PrintJob &job)
{
    PrintedDocument printed;
    QString folder = m_pdfFolder;
    if (!m_chosen) {
        printed.PdfPath = PrintToPaperOrPdf(job, folder);
    } else if (IsFile(*m_chosen)) {
        folder = QFileInfo(m_chosen->outputFileName()).path();
        printed = {PrintToPdf(job, folder, m_chosen->pageLayout()), true};
    } else {
        m_chosen->setDocName(job.Name);
        // The toolkit does not notice that nobody takes what it sends.
        const bool isThere = !QPrinterInfo::printerInfo(m_chosen->printerName()).isNull();
        printed.PdfPath = PrintToPaperOrPdf(job, folder, isThere ? m_chosen.get() : nullptr);
    }
    if (!printed.PdfPath.isEmpty() && QFileInfo(printed.PdfPath).dir() != QDir(folder))
        printed.RefusedFolder = folder;
    return printed;
}

QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder)
{
    const auto printer = UsualPrinter();
    if (printer)
        printer->setDocName(job.Name);
    return PrintToPaperOrPdf(job, folder, printer.get());
}

QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder, QPagedPaintDevice *printer)
{
    // A printer that fails does not take the pages with it: they become PDF like without one.
    if (printer && ResumeNext([&] { DrawDocument(job, *printer); }, [](const RuntimeError &) {}))
        return {};
    return PrintToPdf(job, folder, UsualLayout());
}

// Documents on paper: through the installed printer, or as PDF where there is none.
#pragma once

#include "platform/desk/PrintJob.h"

#include <memory>

class QPagedPaintDevice;
class QPainter;
class QPageLayout;
class QPrinter;
class QWidget;

/// Where a document went.
struct PrintedDocument {
    QString PdfPath = {};       ///< empty: it is on paper
    bool PdfIsChosen = false;   ///< the user has asked for a file
    QString RefusedFolder = {}; ///< where the file should have gone, and could not; empty: it is there
    bool operator==(const PrintedDocument &) const = default;
};

/// What documents are printed on: the default printer until another one is chosen, for as long as this lives.
class DocumentPrinter
{
public:
    /// pdfFolder: where documents go as PDF where no printer can be used.
    explicit DocumentPrinter(const QString &pdfFolder);
    ~DocumentPrinter();

    /// Shows the printer dialog above a window. A printer or a file that is chosen there, with its paper and its
    /// copies, holds for every later document; false: cancelled, and nothing has changed.
    bool Choose(QWidget *above);
    /// Where Print() prints to: the name of a printer that is there, or "PDF files in" and the folder's own name.
    QString InUse() const;
    /// Prints to the printer that was chosen, or as PrintToPaperOrPdf() where there is none or it is not there any
    /// more; where a file was chosen, to a new PDF file beside it.
    PrintedDocument Print(const PrintJob &job);
    /// Goes back to the default printer. What was chosen does not outlive the application.
    void Forget();

private:
    QString m_pdfFolder;
    std::unique_ptr<QPrinter> m_chosen; ///< null: none yet
};

/// Prints to the default printer; on a machine without one, or where it fails, to a new PDF file in `folder`, whose
/// path is returned. The file is called by the day and the document's name, and is as large as the paper of the user's
/// country. Raises error 75 where that folder cannot be made, 57 where writing fails.
QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder);
/// The same with a given printer; null stands for none.
QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder, QPagedPaintDevice *printer);

/// Draws a document on a device whose page layout is set, on as many pages as it needs; returns how many.
/// Column n starts n - 1 digit widths from the left margin, so that columns stand in any font:
/// texts start in theirs, amounts end in theirs, and rules are as wide as theirs. Letters too wide for the room before
/// the next column are condensed, and a line longer than the sheet is wide goes on in the next one.
int DrawDocument(const PrintJob &job, QPagedPaintDevice &device);

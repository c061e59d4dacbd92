// Documents on paper: through the installed printer, or as PDF where there is none.
#pragma once

#include "platform/desk/PrintJob.h"

class QPagedPaintDevice;
class QPainter;

/// Prints to the default printer; on a machine without one, or where it fails, to a new PDF file in `folder`, whose
/// path is returned. The file is called by the day and the document's name, and is as large as the paper of the user's
/// country. Raises error 75 where that folder cannot be made, 57 where writing fails.
QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder);
/// The same with a given printer; null stands for none.
QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder, QPagedPaintDevice *printer);

/// Draws a document on a device whose page layout is set, on as many pages as it needs; returns how many.
/// Column n starts n - 1 digit widths from the left margin, so that columns stand in any font.
int DrawDocument(const PrintJob &job, QPagedPaintDevice &device);

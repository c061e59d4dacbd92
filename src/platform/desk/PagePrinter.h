// Documents on paper: through the installed printer, or as PDF where there is none.
#pragma once

#include "platform/desk/PrintJob.h"

class QPagedPaintDevice;
class QPainter;

/// Prints to the default printer; on a machine without one, to a new PDF file in `folder`, whose path is returned.
/// Raises error 75 where that folder cannot be made, 57 where printing or writing fails.
QString PrintToPaperOrPdf(const PrintJob &job, const QString &folder);

/// Draws a document on a device whose page layout is set, on as many pages as it needs; returns how many.
/// Column n starts n - 1 digit widths from the left margin, so that columns stand in any font.
int DrawDocument(const PrintJob &job, QPagedPaintDevice &device);

// Every report of the program, printed through its window.
#pragma once

#include "FakeDesk.h"

/// What a window shows and what it printed.
struct PrintedReport {
    QStringList Screen; ///< texts of headings and cells that belong on the page, in the order of the page
    PrintJob Page;
};

struct Report {
    const char *Name; ///< of the document
    /// Opens the window for the household below, prints as the user does, and closes it.
    PrintedReport (*Print)(FakeDesk &desk);
};
extern const QList<Report> Reports;

/// A household with something in every report: amounts above and below 0, of one to five digits before the point.
void TakeHouseholdForReports();

/// The texts of a printed line: what two blanks or more part.
QStringList TextsOf(const QString &line);

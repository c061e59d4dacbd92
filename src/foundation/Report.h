// What the printed reports have in common: the title, and the table of a date and two amounts.
#pragma once

#include <QString>
#include <vector>

inline const char *const ReportTitle = "The Corvelle's Tallymere 1.0";

/// Applies the print settings and prints the title and the report's own heading, each centred and followed by an empty
/// line. The document is called by `documentName`, since headings stand in capitals.
void PrintReportTitle(const QString &heading, const QString &documentName);

/// A row of a date and two amounts; an amount whose number is below 0 stands in red on the screen.
struct DatedRow {
    QString Date;
    QString Amount;
    QString Accumulated;
    bool AmountIsRed = false;
    bool AccumulatedIsRed = false;
    bool operator==(const DatedRow &) const = default;
};

/// The table below its title: three headings, a rule, the rows.
void PrintDatedTable(const QString &dateHeading, const QString &amountHeading, const QString &accumulatedHeading,
                     const std::vector<DatedRow> &rows);

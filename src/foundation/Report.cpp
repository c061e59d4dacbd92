#include "foundation/Report.h"

#include "foundation/StartAndEnd.h"

void PrintReportTitle(const QString &heading, const QString &documentName)
{
    ApplyPrintSettings();
    ThePrinter.DocumentName = documentName;
    ThePrinter.CentredLine(QString::fromLatin1(ReportTitle));
    ThePrinter.NewLine();
    ThePrinter.CentredLine(heading);
    ThePrinter.NewLine();
}

void PrintDatedTable(const QString &dateHeading, const QString &amountHeading, const QString &accumulatedHeading,
                     const std::vector<DatedRow> &rows)
{
    ThePrinter.Tab(5).Print(dateHeading).Tab(38).Print(amountHeading).Tab(62).Print(accumulatedHeading).NewLine();
    ThePrinter.RuleLine(5, 70);
    ThePrinter.NewLine();
    for (const DatedRow &row : rows) {
        ThePrinter.Tab(5).Print(row.Date);
        ThePrinter.Tab(47 - int(row.Amount.size())).Print(row.Amount);
        ThePrinter.Tab(75 - int(row.Accumulated.size())).Print(row.Accumulated).NewLine();
    }
}

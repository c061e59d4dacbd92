#include "foundation/Report.h"

#include "foundation/Identity.h"
#include "foundation/StartAndEnd.h"
#include "platform/values/Format.h"

namespace {

void PrintRow(const StatementRow &row, const PageColumns &columns)
{
    for (std::size_t i = 0; i < std::size_t(row.Texts.size()); ++i)
        ThePrinter.Tab(columns.Texts.at(i)).Print(row.Texts[qsizetype(i)]);
    for (std::size_t i = 0; i < row.Amounts.size(); ++i) {
        const QString amount = FormatCurrency(row.Amounts[i]);
        ThePrinter.Tab(columns.AmountEnds.at(i) - int(amount.size())).Print(amount);
    }
    ThePrinter.NewLine();
}

void PrintRule(const PageColumns &columns)
{
    ThePrinter.RuleLine(columns.Texts.front(), columns.RuleLength);
    ThePrinter.NewLine();
}

} // namespace

void BeginReport(const QString &documentName)
{
    ApplyPrintSettings();
    ThePrinter.DocumentName = documentName;
    PrintHeading(ReportTitle);
}

void PrintHeading(const QString &heading)
{
    ThePrinter.CentredLine(heading);
    ThePrinter.NewLine();
}

void PrintStatement(const Statement &statement, const PageColumns &columns)
{
    BeginReport(statement.Name);
    if (!statement.Opening.Texts.isEmpty()) {
        PrintHeading(statement.Heading);
        PrintRow(statement.Opening, columns);
        PrintRule(columns);
    }
    for (const StatementRow &row : statement.Rows) {
        switch (row.TheKind) {
        case StatementRow::Gap: break;
        case StatementRow::Rule: PrintRule(columns); break;
        case StatementRow::Total:
            PrintRow(row, columns);
            ThePrinter.NewLine();
            break;
        default: PrintRow(row, columns);
        }
    }
}

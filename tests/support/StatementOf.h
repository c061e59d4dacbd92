// What tests ask of a statement.
#pragma once

#include "foundation/Statement.h"

/// The lines between the opening and what they come to.
inline std::vector<StatementRow> LinesOf(const Statement &statement)
{
    std::vector<StatementRow> lines;
    for (const StatementRow &row : statement.Rows)
        if (row.TheKind == StatementRow::Ordinary || row.TheKind == StatementRow::Credit ||
            row.TheKind == StatementRow::Signed)
            lines.push_back(row);
    return lines;
}

/// The row of that kind; an empty one with the amount 0 where there is none.
inline StatementRow RowOf(const Statement &statement, StatementRow::Kind kind)
{
    for (const StatementRow &row : statement.Rows)
        if (row.TheKind == kind)
            return row;
    return {{QString()}, {Currency()}, kind};
}

inline QString LabelOf(const StatementRow &row)
{
    return row.Texts.value(0);
}
inline Currency AmountOf(const StatementRow &row)
{
    return row.Amounts.at(0);
}
inline QString ResultLabelOf(const Statement &statement)
{
    return LabelOf(RowOf(statement, StatementRow::Result));
}
inline Currency ResultOf(const Statement &statement)
{
    return AmountOf(RowOf(statement, StatementRow::Result));
}

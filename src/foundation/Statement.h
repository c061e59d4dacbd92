// A statement as data: what a budget, an overhead, a forecast and their like come to. StatementGrid.h shows it in a
// grid, Report.h on a page; no amount is computed for either of them.
#pragma once

#include "platform/values/Currency.h"

#include <QObject>
#include <QStringList>
#include <vector>

/// Texts, and the amounts behind them.
struct StatementRow {
    enum Kind {
        Ordinary, ///< in the text colour
        Credit,   ///< its amounts in the credit colour
        Signed,   ///< its amounts below 0 in the deficit colour
        Gap,      ///< an empty row of the grid, nothing on the page
        Rule,     ///< an empty row of the grid, a rule on the page
        Total,    ///< what the lines add up to
        Result,   ///< what the statement comes to: as Signed, and set off from the lines
    };
    QStringList Texts = {};
    std::vector<Currency> Amounts = {};
    Kind TheKind = Ordinary;

    bool operator==(const StatementRow &) const = default;
};

struct Statement {
    QString Heading = {};      ///< "Budget - January 1, 2004"
    StatementRow Opening = {}; ///< the grid's row 0: what the statement starts from, or the headings of its columns
    std::vector<StatementRow> Rows = {};
    int FirstRow = 1;      ///< of the grid; 2 leaves an empty row below the opening
    bool Numbered = false; ///< whether the grid, but not the page, tells the number of each row in front
    QString Name = {};     ///< of the printed document: "Savings Forecast"
};

/// A statement's way to the window that shows it. The window connects with itself as context, so that the connection
/// ends with it.
class StatementOutlet : public QObject
{
    Q_OBJECT
public:
    /// Whether anybody looks: a statement that nobody sees need not be made.
    bool IsConnected() const;

Q_SIGNALS:
    void Ready(const Statement &statement);
};

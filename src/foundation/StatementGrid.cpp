#include "foundation/StatementGrid.h"

#include "platform/values/Format.h"

#include <QScreen>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

GridColour ColourOf(const StatementRow &row, Currency amount)
{
    switch (row.TheKind) {
    case StatementRow::Credit: return GridColour::LightBlue;
    case StatementRow::Signed:
    case StatementRow::Result: return amount.IsNegative() ? GridColour::LightRed : GridColour::Text;
    default: return GridColour::Text;
    }
}

bool IsWrittenOver(const StatementRow &row)
{
    return row.TheKind == StatementRow::Total ||
           std::any_of(row.Amounts.begin(), row.Amounts.end(),
                       [&](Currency amount) { return ColourOf(row, amount) != GridColour::Text; });
}

QStringList CellsOf(const StatementRow &row)
{
    QStringList cells = row.Texts;
    for (const Currency amount : row.Amounts)
        cells += FormatCurrency(amount);
    return cells;
}

/// Walks down a grid. Rows that follow each other are inserted in one go.
class RowWriter
{
public:
    RowWriter(Grid &grid, int firstRow) : m_grid(grid), m_next(firstRow) {}

    void Insert(const QStringList &cells)
    {
        m_waiting.append(cells);
        ++m_next;
    }
    void WriteOver(const StatementRow &row, const QStringList &cells)
    {
        Finish();
        const int firstAmount = int(cells.size()) - int(row.Amounts.size());
        for (int column = 0; column < int(cells.size()); ++column) {
            if (column >= firstAmount) {
                const GridColour colour = ColourOf(row, row.Amounts[std::size_t(column - firstAmount)]);
                m_grid.SetColour(m_next, column, colour);
                if (colour != GridColour::Text)
                    m_grid.SetColour(m_next + 1, column, GridColour::Text);
            }
            m_grid.SetText(m_next, column, cells[column]);
        }
        ++m_next;
    }
    int Next() const { return m_next; }
    void Finish()
    {
        if (!m_waiting.isEmpty())
            m_grid.AddRows(m_waiting, m_next - int(m_waiting.size()));
        m_waiting.clear();
    }

private:
    Grid &m_grid;
    QList<QStringList> m_waiting;
    int m_next;
};

} // namespace

void ShowOpening(Grid &grid, const StatementRow &opening, bool numbered)
{
    QStringList cells = CellsOf(opening);
    if (numbered)
        cells.prepend(u"No."_s);
    for (int column = 0; column < int(cells.size()); ++column) {
        grid.SetBold(0, column, true);
        grid.SetText(0, column, cells[column]);
    }
}

void ShowRows(Grid &grid, const Statement &statement)
{
    RowWriter writer(grid, statement.FirstRow);
    int number = 0;
    int result = 0;
    for (const StatementRow &row : statement.Rows) {
        QStringList cells = CellsOf(row);
        if (statement.Numbered)
            cells.prepend(QString::number(++number));
        if (row.TheKind == StatementRow::Result)
            result = writer.Next();
        if (IsWrittenOver(row))
            writer.WriteOver(row, cells);
        else
            writer.Insert(cells);
    }
    writer.Finish();
    grid.SetResultRow(result);
}

void InsertRows(Grid &grid, const std::shared_ptr<const Statement> &statement)
{
    grid.AddRows(int(statement->Rows.size()), statement->FirstRow,
                 [statement](int row) { return CellsOf(statement->Rows[std::size_t(row)]); });
    for (int row = 0; row < int(statement->Rows.size()); ++row)
        if (statement->Rows[std::size_t(row)].TheKind == StatementRow::Total)
            for (int column = 0; column < grid.Columns(); ++column)
                grid.SetBold(statement->FirstRow + row, column, true);
}

void OpenWithRows(QWidget &window, Grid &grid, int rows)
{
    constexpr int titleAndFrame = 40;
    grid.SetRowsAtFirst(qMax(rows, grid.RowsAtFirst()));
    window.ensurePolished();
    window.resize(window.sizeHint().boundedTo(window.screen()->availableSize() - QSize(0, titleAndFrame)));
}

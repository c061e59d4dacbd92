// How statements stand in a grid: a line counter, ordinary lines inserted at it, coloured lines written in place.
#pragma once

#include "foundation/Report.h"
#include "platform/controls/Grid.h"

/// Walks down a grid of labels and amounts. Row 1 stays empty as a gap below the heading. Lines that follow each other
/// are inserted in one go, when a line is written in place or at Finish, which every statement ends with.
class LineWriter
{
public:
    explicit LineWriter(Grid &grid) : m_grid(grid) {}

    /// The counter goes up by one, and the line is inserted there; what lies below is pushed down.
    void Insert(const QString &label, const QString &amount)
    {
        m_waiting += QStringList{label, amount};
        ++m_row;
    }
    void InsertEmpty() { Insert({}, {}); }
    /// The counter goes up by one, and the row is written in place, its amount in a colour that does not run on.
    void Write(const QString &label, const QString &amount, GridColour colour = GridColour::Text)
    {
        Finish();
        ++m_row;
        m_grid.SetText(m_row, 0, label);
        m_grid.SetColour(m_row, 1, colour);
        m_grid.SetText(m_row, 1, amount);
        if (colour != GridColour::Text)
            m_grid.SetColour(m_row + 1, 1, GridColour::Text);
    }

    void Finish()
    {
        if (!m_waiting.isEmpty())
            m_grid.AddRows(m_waiting, m_row - int(m_waiting.size()) + 1);
        m_waiting.clear();
    }

private:
    Grid &m_grid;
    QList<QStringList> m_waiting;
    int m_row = 1;
};

/// Writes an amount in place, red or not; a red one does not colour the row below.
inline void WriteAmount(Grid &grid, int row, int column, const QString &amount, bool red)
{
    grid.SetColour(row, column, red ? GridColour::LightRed : GridColour::Text);
    grid.SetText(row, column, amount);
    if (red)
        grid.SetColour(row + 1, column, GridColour::Text);
}

/// Puts a row of a date and two amounts into the grid, behind the cells of `before`. A row without red is inserted at
/// `row` and pushes the rest down; a row with red is written over what stands there.
inline void WriteDatedRow(Grid &grid, int row, const DatedRow &dated, const QStringList &before = {})
{
    QStringList cells = before;
    cells << dated.Date << dated.Amount << dated.Accumulated;
    if (!dated.AmountIsRed && !dated.AccumulatedIsRed) {
        grid.AddRows({cells}, row);
        return;
    }
    const int amount = int(before.size()) + 1;
    for (int column = 0; column < amount; ++column)
        grid.SetText(row, column, cells[column]);
    WriteAmount(grid, row, amount, dated.Amount, dated.AmountIsRed);
    WriteAmount(grid, row, amount + 1, dated.Accumulated, dated.AccumulatedIsRed);
}

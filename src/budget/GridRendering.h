// How statements stand in a grid: a line counter, ordinary lines inserted at it, coloured lines written in place.
#pragma once

#include "platform/Grid.h"

/// Walks down a grid of labels and amounts. Row 1 stays empty as a gap below the heading.
class LineWriter
{
public:
    explicit LineWriter(Grid &grid) : m_grid(grid) {}

    /// The counter goes up by one, and the line is inserted there; what lies below is pushed down.
    void Insert(const QString &label, const QString &amount)
    {
        m_grid.AddItem(label + QLatin1Char('\t') + amount, ++m_row);
    }
    void InsertEmpty() { m_grid.AddItem(QString(), ++m_row); }
    /// The counter goes up by one, and the row is written in place, its amount in a colour that does not run on.
    void Write(const QString &label, const QString &amount, GridColour colour = GridColour::Text)
    {
        ++m_row;
        m_grid.SetText(m_row, 0, label);
        m_grid.SetColour(m_row, 1, colour);
        m_grid.SetText(m_row, 1, amount);
        m_grid.SetColour(m_row + 1, 1, GridColour::Text);
    }

private:
    Grid &m_grid;
    int m_row = 1;
};

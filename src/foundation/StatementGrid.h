// How a statement stands in a grid.
#pragma once

#include "foundation/Statement.h"
#include "platform/controls/Grid.h"

#include <memory>

/// Puts the opening of a statement into row 0, in bold; in a numbered one "No." stands in front.
void ShowOpening(Grid &grid, const StatementRow &opening, bool numbered = false);

/// Puts the rows of a statement into a grid, from the statement's first row on. Most rows are inserted and push down
/// what stands there. A credit, a total and a row with a red amount are written over what stands there; and below an
/// amount in colour the cell takes the text colour, so that the colour does not run on.
void ShowRows(Grid &grid, const Statement &statement);

/// Inserts the rows of a long statement of plain rows, totals in bold; the texts of the others are made when they are
/// looked at.
void InsertRows(Grid &grid, const std::shared_ptr<const Statement> &statement);

/// Makes a window that is about to be shown so tall that this grid of it shows so many rows, where they are more than a
/// grid shows anyway, up to the screen.
void OpenWithRows(QWidget &window, Grid &grid, int rows);

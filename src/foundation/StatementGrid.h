// How a statement stands in a grid.
#pragma once

#include "foundation/Statement.h"
#include "platform/controls/Grid.h"

/// Puts the rows of a statement into a grid, from the statement's first row on. Most rows are inserted and push down what
/// stands there. A credit, a total and a row with a red amount are written over what stands there; and below an amount
/// in colour the cell takes the text colour, so that the colour does not run on.
void ShowRows(Grid &grid, const Statement &statement);

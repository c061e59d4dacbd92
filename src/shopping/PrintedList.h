// The current shopping list as a printed page.
#pragma once

/// Prices the list and sends it to the printer as one document of 80 columns: its name, two lines an item with the
/// arithmetic of its price spelled out, and the total. Amounts end just before column 65, those that find no room there
/// a line further down. The page breaks where the sheet ends.
/// The tax beside an item is that of its whole quantity; the amount holds that of one unit.
/// Error 6, with nothing printed, where an amount goes beyond the range of money.
void PrintShoppingList();
